// SPDX-License-Identifier: BSD-3-Clause
#include "files.h"
#include "messagelog.h"
#include "metaobject.h"
#include "ordinaryuser.h"
#include "radiopreference.h"

#include <QtTest>

#include <unistd.h>

namespace
{
const QString Configuration = QStringLiteral("/etc/ofono/ril_subscription.conf");
}

class tst_RadioPreference : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void interface();
    void looksForTheSection_data();
    void looksForTheSection();
    void readsAnewEachTime();
    void isFalseForWhatIsNoFile();
    void isFalseForUnreadableFile();
};

void tst_RadioPreference::init()
{
    emptyFolder(QStringLiteral("/etc/ofono"));
}

void tst_RadioPreference::interface()
{
    QCOMPARE(ownInterface(RadioPreference::staticMetaObject), QStringList(QStringLiteral("property bool getResult")));
}

void tst_RadioPreference::looksForTheSection_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("result");
    QTest::newRow("only line") << QByteArray("[4gOn]\n") << true;
    QTest::newRow("without line end") << QByteArray("[4gOn]") << true;
    QTest::newRow("between others") << QByteArray("[Settings]\nx=1\n\n[4gOn]\nvalue=false\n") << true;
    QTest::newRow("last, without line end") << QByteArray("[Settings]\nx=1\n[4gOn]") << true;
    QTest::newRow("carriage returns") << QByteArray("[Settings]\r\n[4gOn]\r\n") << true;
    QTest::newRow("stray carriage returns") << QByteArray("\r[4gOn]\r\r\n") << true;
    QTest::newRow("behind megabytes") << QByteArray(4 * 1024 * 1024, 'x').append("\n[4gOn]\n") << true;
    QTest::newRow("behind invalid UTF-8") << QByteArray("\xff\xfd\xfc\n[4gOn]\n") << true;
    QTest::newRow("behind a NUL") << QByteArray("a\0b\n[4gOn]\n", 11) << true;
    QTest::newRow("empty") << QByteArray("") << false;
    QTest::newRow("lower case") << QByteArray("[4gon]\n") << false;
    QTest::newRow("upper case") << QByteArray("[4GON]\n") << false;
    QTest::newRow("leading blank") << QByteArray(" [4gOn]\n") << false;
    QTest::newRow("trailing blank") << QByteArray("[4gOn] \n") << false;
    QTest::newRow("tab") << QByteArray("\t[4gOn]\n") << false;
    QTest::newRow("comment") << QByteArray("#[4gOn]\n;[4gOn]\n") << false;
    QTest::newRow("key behind") << QByteArray("[4gOn] x=1\n") << false;
    QTest::newRow("part of a line") << QByteArray("x=[4gOn]\n") << false;
    QTest::newRow("without brackets") << QByteArray("4gOn\n") << false;
    QTest::newRow("NUL behind") << QByteArray("[4gOn]\0\n", 8) << false;
    QTest::newRow("other section") << QByteArray("[4gOff]\n") << false;
    QTest::newRow("split") << QByteArray("[4g\nOn]\n") << false;
}

void tst_RadioPreference::looksForTheSection()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, result);
    writeFile(Configuration, content);
    MessageLog log;
    const RadioPreference preference;
    QCOMPARE(preference.property("getResult"), QVariant(result));
    QVERIFY(log.all().isEmpty());
}

void tst_RadioPreference::readsAnewEachTime()
{
    MessageLog log;
    const RadioPreference preference;
    QVERIFY(!preference.getResult());
    writeFile(Configuration, "[4gOn]\n");
    QVERIFY(preference.getResult());
    QVERIFY(QFile::remove(Configuration));
    QVERIFY(!preference.getResult());
    QVERIFY(log.all().isEmpty());
}

void tst_RadioPreference::isFalseForWhatIsNoFile()
{
    MessageLog log;
    const RadioPreference preference;
    QVERIFY(QDir().mkpath(Configuration));
    QVERIFY(!preference.getResult());
    QVERIFY(QDir().rmdir(Configuration));
    QVERIFY(QFile::link(QStringLiteral("ril_subscription.conf"), Configuration)); // a link to itself
    QVERIFY(!preference.getResult());
    QVERIFY(QFile::remove(Configuration));
    QVERIFY(log.all().isEmpty());
}

void tst_RadioPreference::isFalseForUnreadableFile()
{
    writeFile(Configuration, "[4gOn]\n", QFile::WriteOwner);
    QVERIFY(RadioPreference().getResult() || ::geteuid() != 0); // root reads everything
    const Verdict verdict = asOrdinaryUser([] {
        const MessageLog log;
        return !RadioPreference().getResult() && log.all().isEmpty();
    });
    if (verdict == Verdict::NoSuchUser)
        QSKIP("another user is needed");
    QCOMPARE(verdict, Verdict::True);
}

QTEST_GUILESS_MAIN(tst_RadioPreference)
#include "tst_radiopreference.moc"
