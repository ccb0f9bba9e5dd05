// SPDX-License-Identifier: BSD-3-Clause
#include "files.h"
#include "messagelog.h"
#include "wlanaddress.h"

#include <QtTest>

namespace
{
const QString Interfaces = QStringLiteral("/sys/class/net/");

void makeInterface(const char *name, const QByteArray &address, const char *mark)
{
    const QString path = Interfaces + QLatin1String(name);
    QDir().mkpath(path);
    if (!address.isNull())
        writeFile(path + QStringLiteral("/address"), address);
    if (mark)
        QDir().mkpath(path + QLatin1Char('/') + QLatin1String(mark));
}
}

class tst_WlanAddress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void findsNoInterface();
    void recognisesWirelessInterfaces_data();
    void recognisesWirelessInterfaces();
    void takesTheFirstByName();
    void goesByTheNameAtLast();
    void followsLinks();
    void neverAsksAnother();
    void survivesOddAddresses_data();
    void survivesOddAddresses();
};

void tst_WlanAddress::init()
{
    emptyFolder(Interfaces);
}

void tst_WlanAddress::findsNoInterface()
{
    const MessageLog log;
    QCOMPARE(readWlanAddress(), QString());
    makeInterface("eth0", "00:00:00:00:00:01\n", nullptr);
    makeInterface("rmnet0", "00:00:00:00:00:02\n", "queues");
    writeFile(Interfaces + QStringLiteral("bonding_masters"), "\n");
    QCOMPARE(readWlanAddress(), QString());
    QVERIFY(QDir(Interfaces).removeRecursively());
    QCOMPARE(readWlanAddress(), QString());
    QVERIFY(QDir().mkpath(Interfaces));
    QCOMPARE(log.all(), QStringList());
}

void tst_WlanAddress::recognisesWirelessInterfaces_data()
{
    QTest::addColumn<QString>("mark");
    QTest::newRow("wireless extensions") << QStringLiteral("wireless");
    QTest::newRow("cfg80211") << QStringLiteral("phy80211");
}

void tst_WlanAddress::recognisesWirelessInterfaces()
{
    QFETCH(QString, mark);
    makeInterface("eth0", "00:00:00:00:00:01\n", nullptr);
    makeInterface("wl", "00:00:00:00:AA:02\n", mark.toLatin1().constData());
    QCOMPARE(readWlanAddress(), QStringLiteral("00:00:00:00:AA:02"));
}

void tst_WlanAddress::takesTheFirstByName()
{
    makeInterface("wlan1", "00:00:00:00:00:03\n", "wireless");
    makeInterface("wlan0", "00:00:00:00:00:02\n", "phy80211");
    makeInterface("p2p0", nullptr, nullptr);
    QCOMPARE(readWlanAddress(), QStringLiteral("00:00:00:00:00:02"));
    makeInterface("Wlan5", "00:00:00:00:00:01\n", "wireless");
    QCOMPARE(readWlanAddress(), QStringLiteral("00:00:00:00:00:01"));
}

void tst_WlanAddress::goesByTheNameAtLast()
{
    makeInterface("eth0", "00:00:00:00:00:01\n", nullptr);
    makeInterface("wlan1", "00:00:00:00:00:03\n", nullptr);
    makeInterface("wlan0", "00:00:00:00:00:02\n", nullptr);
    QCOMPARE(readWlanAddress(), QStringLiteral("00:00:00:00:00:02"));
    makeInterface("wlp2s0", "00:00:00:00:00:04\n", "phy80211");
    QCOMPARE(readWlanAddress(), QStringLiteral("00:00:00:00:00:04"));
}

void tst_WlanAddress::followsLinks()
{
    writeFile(QStringLiteral("/run/kiv/devices/wlan0/address"), "00:00:00:00:00:02\n");
    QDir().mkpath(QStringLiteral("/run/kiv/devices/phy0"));
    QVERIFY(QFile::link(QStringLiteral("../phy0"), QStringLiteral("/run/kiv/devices/wlan0/phy80211")));
    QVERIFY(QFile::link(QStringLiteral("/run/kiv/devices/wlan0"), Interfaces + QStringLiteral("wlan0")));
    QVERIFY(QFile::link(QStringLiteral("/run/kiv/devices/gone"), Interfaces + QStringLiteral("wlan")));
    QCOMPARE(readWlanAddress(), QStringLiteral("00:00:00:00:00:02"));
}

void tst_WlanAddress::neverAsksAnother()
{
    makeInterface("wlan0", nullptr, "wireless");
    makeInterface("wlan1", "00:00:00:00:00:03\n", "wireless");
    QCOMPARE(readWlanAddress(), QString());
    QDir().mkpath(Interfaces + QStringLiteral("wlan0/address"));
    QCOMPARE(readWlanAddress(), QString());
}

void tst_WlanAddress::survivesOddAddresses_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("address");
    QTest::newRow("empty") << QByteArray("") << QString();
    QTest::newRow("no newline") << QByteArray("00:01") << QStringLiteral("00:01");
    QTest::newRow("two lines") << QByteArray("00:01\n00:02\n") << QStringLiteral("00:01");
    QTest::newRow("no UTF-8") << QByteArray("\xe9\n") << QStringLiteral("\u00e9");
    QTest::newRow("megabytes") << QByteArray(4 << 20, 'x') << QString(4 << 20, QLatin1Char('x'));
}

void tst_WlanAddress::survivesOddAddresses()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, address);
    makeInterface("wlan0", content, "wireless");
    QCOMPARE(readWlanAddress(), address);
}

QTEST_GUILESS_MAIN(tst_WlanAddress)
#include "tst_wlanaddress.moc"
