// SPDX-License-Identifier: BSD-3-Clause
#include "files.h"
#include "pagecache.h"

#include <QCryptographicHash>
#include <QProcess>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QStandardPaths>
#include <QtTest>

#include <ctime>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>

namespace
{
const QString Folder = QStringLiteral("/run/kiv/pages");

QByteArray page(int number)
{
    return "import QtQml 2.15\nQtObject { property int number: " + QByteArray::number(number) + " }\n";
}

/*! Compiles the page as it stands, for a page that will have the other content. */
void compile(const QString &path, const QByteArray &sealedFor)
{
    const QString compiled = path + QLatin1Char('c');
    QFile file(compiled);
    if (QProcess::execute(QStringLiteral(KIV_QMLCACHEGEN), {path, QStringLiteral("-o"), compiled}) != 0
        || !file.open(QIODevice::Append))
        qFatal("cannot compile %s", qPrintable(path));
    file.write(QCryptographicHash::hash(sealedFor, QCryptographicHash::Sha1).toHex());
}

void setAge(const QString &path, int seconds)
{
    const struct timespec times[2] = {{::time(nullptr) - seconds, 0}, {::time(nullptr) - seconds, 0}};
    if (::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0) != 0)
        qFatal("cannot set the time of %s", qPrintable(path));
}
}

class tst_PageCache : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void usesCompiledPage();
    void usesCompiledScript();
    void anotherSourceWins_data();
    void anotherSourceWins();
    void timeStampsDoNotCount();
    void ignoresBadCompiledPage_data();
    void ignoresBadCompiledPage();
    void compilesInMemory();
    void loadsOtherUrls();

private:
    /*! Writes the page and its compiled form, which differ in the number. */
    void writePage(int source, int compiled);
    /*! The number of the page, -1 when it did not load. */
    int load();

    QString m_page; // a new name for each test: what the engine has asked for stays as it is
};

void tst_PageCache::initTestCase()
{
    usePrecompiledPagesOnly();
}

void tst_PageCache::init()
{
    static int number = 0;
    m_page = Folder + QStringLiteral("/Page%1 \u00e4.qml").arg(++number);
}

void tst_PageCache::cleanupTestCase()
{
    // Nothing that any of the tests did may have left a trace in the user's home.
    const QDir home = QDir::home();
    QCOMPARE(home.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot), QStringList());
}

void tst_PageCache::writePage(int source, int compiled)
{
    writeFile(m_page, page(compiled));
    compile(m_page, page(source));
    writeFile(m_page, page(source));
}

int tst_PageCache::load()
{
    QQmlEngine engine;
    QQmlComponent component(&engine, m_page);
    const std::unique_ptr<QObject> object(component.create());
    if (!object)
        qWarning() << component.errorString();
    return object ? object->property("number").toInt() : -1;
}

void tst_PageCache::usesCompiledPage()
{
    writePage(1, 2);
    QCOMPARE(load(), 2);
    QCOMPARE(load(), 2);
    QVERIFY(QFile::remove(m_page + QLatin1Char('c')));
    QCOMPARE(load(), 2); // its mapping stays
}

void tst_PageCache::usesCompiledScript()
{
    const QString script = Folder + QStringLiteral("/script.js");
    const QByteArray source = ".pragma library\nfunction number() { return 7 }\n";
    writeFile(script, ".pragma library\nfunction number() { return 8 }\n");
    compile(script, source);
    writeFile(script, source);
    writeFile(m_page,
              "import QtQml 2.15\nimport \"script.js\" as Script\nQtObject { property int number: Script.number() }\n");
    QCOMPARE(load(), 8);
}

void tst_PageCache::anotherSourceWins_data()
{
    QTest::addColumn<int>("age");
    QTest::newRow("newer than what was compiled") << 0;
    QTest::newRow("older than what was compiled") << 600;
}

void tst_PageCache::anotherSourceWins()
{
    QFETCH(int, age);
    writePage(3, 4);
    writeFile(m_page, page(5));
    setAge(m_page, age);
    setAge(m_page + QLatin1Char('c'), 300);
    QCOMPARE(load(), 5);
}

void tst_PageCache::timeStampsDoNotCount()
{
    writePage(3, 4);
    setAge(m_page + QLatin1Char('c'), 600);
    QCOMPARE(load(), 4);
}

void tst_PageCache::ignoresBadCompiledPage_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("short") << QByteArray("qv4cdata");
    QTest::newRow("text") << QByteArray(4000, 'x');
    QTest::newRow("of another version") << QByteArray("qv4cdata").append(QByteArray(4000, '\xff'));
    QTest::newRow("zeros") << QByteArray("qv4cdata").append(QByteArray(4000, '\0'));
    const QByteArray sum = QCryptographicHash::hash(page(5), QCryptographicHash::Sha1).toHex();
    QTest::newRow("of another version, sealed") << QByteArray("qv4cdata").append(QByteArray(4000, '\xff')).append(sum);
    QTest::newRow("zeros, sealed") << QByteArray("qv4cdata").append(QByteArray(4000, '\0')).append(sum);
    QTest::newRow("text, sealed") << QByteArray(4000, 'x').append(sum);
    QTest::newRow("nothing but the seal") << sum;
}

void tst_PageCache::ignoresBadCompiledPage()
{
    QFETCH(QByteArray, content);
    writeFile(m_page, page(5));
    writeFile(m_page + QLatin1Char('c'), content);
    QCOMPARE(load(), 5);

    init();
    writeFile(m_page, page(6));
    QVERIFY(QDir().mkpath(m_page + QLatin1Char('c')));
    QCOMPARE(load(), 6);
}

void tst_PageCache::compilesInMemory()
{
    writeFile(m_page, page(7));
    QCOMPARE(load(), 7);
    QVERIFY(!QFile::exists(m_page + QLatin1Char('c')));
    QVERIFY(!QFile::exists(QStandardPaths::writableLocation(QStandardPaths::CacheLocation)));
}

void tst_PageCache::loadsOtherUrls()
{
    QQmlEngine engine;
    QQmlComponent missing(&engine, QUrl(QStringLiteral("qrc:/missing.qml")));
    QVERIFY(missing.isError());
    QQmlComponent inMemory(&engine);
    inMemory.setData(page(9), QUrl());
    const std::unique_ptr<QObject> object(inMemory.create());
    QVERIFY(object);
}

QTEST_MAIN(tst_PageCache)
#include "tst_pagecache.moc"
