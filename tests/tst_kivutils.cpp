// SPDX-License-Identifier: BSD-3-Clause
#include "files.h"
#include "kivutils.h"
#include "messagelog.h"
#include "metaobject.h"

#include <QtTest>

namespace
{
const QString Folder = QStringLiteral("/run/kiv/files");
const QString Victim = Folder + QStringLiteral("/a file #1?.wav");
}

class tst_KivUtils : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void interface();
    void removesLocalFile();
    void removesLinkAndNotItsTarget();
    void refuses_data();
    void refuses();
};

void tst_KivUtils::init()
{
    writeFile(Victim, "sound");
    emptyFolder(Folder);
    writeFile(Victim, "sound");
}

void tst_KivUtils::interface()
{
    QCOMPARE(ownInterface(KivUtils::staticMetaObject), QStringList(QStringLiteral("invokable bool removeFile(QUrl)")));
}

void tst_KivUtils::removesLocalFile()
{
    MessageLog log;
    KivUtils utils;
    const QUrl url = QUrl::fromLocalFile(Victim);
    // As the pages call it.
    bool removed = false;
    QVERIFY(QMetaObject::invokeMethod(&utils, "removeFile", Q_RETURN_ARG(bool, removed), Q_ARG(QUrl, url)));
    QVERIFY(removed);
    QVERIFY(!QFile::exists(Victim));
    QVERIFY(!utils.removeFile(url));
    QVERIFY(log.all().isEmpty());
}

void tst_KivUtils::removesLinkAndNotItsTarget()
{
    const QString link = Folder + QStringLiteral("/link");
    QVERIFY(QFile::link(Victim, link));
    QVERIFY(KivUtils().removeFile(QUrl::fromLocalFile(link)));
    QVERIFY(!QFileInfo(link).isSymLink());
    QVERIFY(QFile::exists(Victim));
}

void tst_KivUtils::refuses_data()
{
    QTest::addColumn<QUrl>("url");
    QTest::newRow("missing") << QUrl::fromLocalFile(Folder + QStringLiteral("/nothing"));
    QTest::newRow("bare path") << QUrl(QString::fromLatin1(QUrl::toPercentEncoding(Victim, "/")));
    QTest::newRow("folder") << QUrl::fromLocalFile(Folder);
    QTest::newRow("empty") << QUrl();
    QTest::newRow("scheme without path") << QUrl(QStringLiteral("file:"));
    QTest::newRow("http") << QUrl(QStringLiteral("http://localhost") + Folder);
    QTest::newRow("qrc") << QUrl(QStringLiteral("qrc:/a"));
    QTest::newRow("invalid") << QUrl(QStringLiteral("http://[::/"));
    QTest::newRow("below a file") << QUrl::fromLocalFile(Victim + QStringLiteral("/x"));
}

void tst_KivUtils::refuses()
{
    QFETCH(QUrl, url);
    QVERIFY(QDir().mkpath(Folder));
    MessageLog log;
    QVERIFY(!KivUtils().removeFile(url));
    QVERIFY(QFile::exists(Victim));
    QVERIFY2(log.all().isEmpty(), qPrintable(log.all().join(QLatin1Char('\n'))));
}

QTEST_GUILESS_MAIN(tst_KivUtils)
#include "tst_kivutils.moc"
