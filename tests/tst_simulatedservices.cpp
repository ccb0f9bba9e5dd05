// SPDX-License-Identifier: BSD-3-Clause
#include "gps.h"
#include "mce.h"
#include "mceinterface.h"
#include "messagelog.h"
#include "usbotg.h"
#include "zel.h"

#include <QProcess>
#include <QSignalSpy>
#include <QtTest>

/*! What phonectl does to the simulated phone's daemons, as Kiv sees it. Runs on the phone "full". */
class tst_SimulatedServices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void radios();
    void times();
    void modeControlRequests();
    void cover();
    void providerStatus();
    void satellites();
    void drives();
    void stoppedAndStarted_data();
    void stoppedAndStarted();
    void frozen();
    void wrongWords_data();
    void wrongWords();

private:
    QString m_output;
    QString m_error;

    /*! Exit status of phonectl with these words. */
    int phonectl(const QString &words)
    {
        QProcess process;
        process.start(QStringLiteral(KIV_PHONECTL), words.split(QLatin1Char(' ')));
        process.waitForFinished();
        m_output = QString::fromUtf8(process.readAllStandardOutput());
        m_error = QString::fromUtf8(process.readAllStandardError());
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }
};

#define PHONECTL(words) QVERIFY2(phonectl(QStringLiteral(words)) == 0, qPrintable(m_error))

void tst_SimulatedServices::radios()
{
    const Mce mce;
    QTRY_VERIFY(mce.nfcEnabled());
    QVERIFY(!mce.fmtxEnabled());
    PHONECTL("radio switch fmtx on");
    QTRY_VERIFY(mce.fmtxEnabled());
    PHONECTL("radio switch nfc off");
    QTRY_VERIFY(!mce.nfcEnabled());
    PHONECTL("radio switch bluetooth off");
    PHONECTL("radio");
    QCOMPARE(m_output,
             QStringLiteral("master     on\ncellular   on\nwlan       on\nbluetooth  off\nnfc        off\n"
                            "fmtx       on\n"));
    PHONECTL("radio switch nfc on");
    PHONECTL("radio switch fmtx off");
    QTRY_VERIFY(mce.nfcEnabled() && !mce.fmtxEnabled());
}

void tst_SimulatedServices::times()
{
    qlonglong suspend = 0;
    qlonglong uptime = 0;
    {
        const Mce mce;
        QTRY_VERIFY(mce.uptime() > 0);
        uptime = mce.uptime();
        suspend = mce.suspend();
        QVERIFY(suspend > 0 && suspend < uptime);
    }
    PHONECTL("sleep 1000.5");
    const Mce mce;
    QTRY_VERIFY(mce.uptime() > 0);
    QCOMPARE(mce.suspend(), suspend + 1000500);
    QVERIFY(mce.uptime() >= uptime + 1000500);
    QVERIFY(mce.uptime() < uptime + 1000500 + 60000);
}

void tst_SimulatedServices::modeControlRequests()
{
    const QDBusObjectPath key(QStringLiteral("/system/osso/dsm/leds/enabled"));
    ComNokiaMceRequestInterface request(QStringLiteral("com.nokia.mce"), QStringLiteral("/com/nokia/mce/request"),
                                        QDBusConnection::systemBus());
    ComNokiaMceSignalInterface broadcasts(QStringLiteral("com.nokia.mce"), QStringLiteral("/com/nokia/mce/signal"),
                                          QDBusConnection::systemBus());
    QSignalSpy radioSpy(&broadcasts, &ComNokiaMceSignalInterface::radio_states_ind);
    QSignalSpy configSpy(&broadcasts, &ComNokiaMceSignalInterface::config_change_ind);

    QDBusPendingReply<QDBusVariant> config = request.get_config(key);
    config.waitForFinished();
    QVERIFY(config.isError());
    QDBusPendingReply<bool> set = request.set_config(key, QDBusVariant(5));
    set.waitForFinished();
    QVERIFY2(set.isValid() && set.value(), qPrintable(set.error().message()));
    config = request.get_config(key);
    config.waitForFinished();
    QVERIFY2(config.isValid(), qPrintable(config.error().message()));
    QCOMPARE(config.value().variant(), QVariant(5));
    QTRY_COMPARE(configSpy.count(), 1);
    QCOMPARE(configSpy.first().first().toString(), key.path());

    QDBusPendingReply<uint> states = request.get_radio_states();
    states.waitForFinished();
    QVERIFY2(states.isValid(), qPrintable(states.error().message()));
    request.req_radio_states_change(~states.value(), 0x20).waitForFinished();
    QTRY_COMPARE(radioSpy.count(), 1);
    QCOMPARE(radioSpy.first().first().toUInt(), states.value() ^ 0x20);
    request.req_radio_states_change(states.value(), 0x20).waitForFinished();
    QTRY_COMPARE(radioSpy.count(), 2);

    qlonglong suspend = -1;
    const QDBusReply<qlonglong> uptime = request.get_suspend_stats(suspend);
    QVERIFY2(uptime.isValid(), qPrintable(uptime.error().message()));
    QVERIFY(suspend > 0 && suspend < uptime.value());
}

void tst_SimulatedServices::cover()
{
    const Zel zel;
    QTRY_VERIFY(zel.ready());
    QVERIFY(!zel.docked());
    QCOMPARE(zel.zelId(), QString());
    PHONECTL("cover dock blue-7");
    QTRY_VERIFY(zel.docked());
    QTRY_COMPARE(zel.zelId(), QStringLiteral("blue-7"));
    PHONECTL("cover");
    QCOMPARE(m_output, QStringLiteral("daemon  ready\ncover   blue-7\n"));
    {
        const Zel later;
        QTRY_COMPARE(later.zelId(), QStringLiteral("blue-7"));
        QVERIFY(later.docked());
    }
    PHONECTL("cover ready no");
    QTRY_VERIFY(!zel.ready());
    PHONECTL("cover remove");
    QTRY_VERIFY(!zel.docked());
    QTRY_COMPARE(zel.zelId(), QString());
    PHONECTL("cover ready yes");
    QTRY_VERIFY(zel.ready());
    QVERIFY(!zel.error());
}

void tst_SimulatedServices::providerStatus()
{
    const Gps gps;
    QTRY_COMPARE(gps.status(), Gps::StatusAcquiring);
    PHONECTL("gps status available");
    QTRY_COMPARE(gps.status(), Gps::StatusAvailable);
    PHONECTL("gps status error");
    QTRY_COMPARE(gps.status(), Gps::StatusError);
    PHONECTL("gps status unavailable");
    QTRY_COMPARE(gps.status(), Gps::StatusUnavailable);
    PHONECTL("gps status 7");
    QTRY_COMPARE(int(gps.status()), 7);
    PHONECTL("gps status acquiring");
    QTRY_COMPARE(gps.status(), Gps::StatusAcquiring);
}

void tst_SimulatedServices::satellites()
{
    const Gps gps;
    QVERIFY(gps.satelliteInfoAvailable());
    QTRY_COMPARE(gps.satellitesInView(), 5);
    QCOMPARE(gps.satellitesInUse(), 0);
    PHONECTL("satellite rise 30 10 90 17");
    QTRY_COMPARE(gps.satellitesInView(), 6);
    PHONECTL("satellite use 30");
    PHONECTL("satellite use 5");
    QTRY_COMPARE(gps.satellitesInUse(), 2);
    const QVariantMap risen{{QStringLiteral("identifier"), 30},
                            {QStringLiteral("strength"), 17},
                            {QStringLiteral("elevation"), 10.0},
                            {QStringLiteral("azimuth"), 90.0},
                            {QStringLiteral("inUse"), true}};
    QCOMPARE(gps.satelliteInfo().last().toMap(), risen);
    PHONECTL("gps");
    QVERIFY2(m_output.endsWith(QStringLiteral("\nsatellite 30: elevation 10, azimuth 90, strength 17, in use\n")),
             qPrintable(m_output));
    PHONECTL("satellite use 5 no");
    QTRY_COMPARE(gps.satellitesInUse(), 1);
    PHONECTL("satellite set 30");
    QTRY_COMPARE(gps.satellitesInView(), 5);
    QTRY_COMPARE(gps.satellitesInUse(), 0);
}

void tst_SimulatedServices::drives()
{
    const UsbOtg usbOtg;
    QSignalSpy spy(&usbOtg, &UsbOtg::massStorageChanged);
    QVERIFY(!usbOtg.massStorage());
    PHONECTL("drive attach");
    QTRY_VERIFY(usbOtg.massStorage());
    PHONECTL("drive");
    QCOMPARE(m_output, QStringLiteral("dev-sda.device\ndev-sda1.device\n"));
    PHONECTL("drive detach");
    QTRY_VERIFY(!usbOtg.massStorage());
    PHONECTL("drive attach sdb");
    QTRY_VERIFY(usbOtg.massStorage());
    PHONECTL("drive detach sdb");
    QTRY_COMPARE(spy.count(), 4);
}

void tst_SimulatedServices::stoppedAndStarted_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("stopped") << QStringLiteral("stop");
    QTest::newRow("killed") << QStringLiteral("kill");
}

void tst_SimulatedServices::stoppedAndStarted()
{
    QFETCH(QString, way);
    const QStringList daemons{QStringLiteral("mce"), QStringLiteral("zeld"), QStringLiteral("hybris"),
                              QStringLiteral("systemd")};
    const Mce mce;
    const Zel zel;
    const Gps gps;
    const UsbOtg usbOtg;
    QTRY_VERIFY(mce.nfcEnabled());
    QTRY_VERIFY(zel.ready());
    QTRY_COMPARE(gps.satellitesInView(), 5);
    QTRY_COMPARE(gps.status(), Gps::StatusAcquiring);

    for (const QString &daemon : daemons)
        QVERIFY2(phonectl(QStringLiteral("daemon %1 %2").arg(way, daemon)) == 0, qPrintable(m_error));
    QTRY_COMPARE(gps.status(), Gps::StatusUnavailable);
    QTRY_VERIFY(gps.satelliteInfoError());
    QCOMPARE(gps.satellitesInView(), 0);
    QVERIFY(mce.nfcEnabled());
    QVERIFY(zel.ready());
    {
        // Pages that are opened meanwhile.
        MessageLog log;
        const Mce without;
        const Zel withoutCover;
        const Gps withoutProvider;
        QTRY_COMPARE(log.warnings().count(), 2);
        QTRY_VERIFY(withoutCover.error());
        QTRY_COMPARE(withoutProvider.status(), Gps::StatusError);
    }

    for (const QString &daemon : daemons)
        QVERIFY2(phonectl(QStringLiteral("daemon start ") + daemon) == 0, qPrintable(m_error));
    QTRY_VERIFY(!gps.satelliteInfoError());
    QTRY_COMPARE(gps.satellitesInView(), 5);
    QCOMPARE(gps.status(), Gps::StatusUnavailable);
    PHONECTL("gps status available");
    QTRY_COMPARE(gps.status(), Gps::StatusAvailable);
    PHONECTL("radio switch nfc off");
    QTRY_VERIFY(!mce.nfcEnabled());
    PHONECTL("cover dock");
    QTRY_VERIFY(zel.docked());
    PHONECTL("drive attach");
    QTRY_VERIFY(usbOtg.massStorage());

    // As it was.
    PHONECTL("gps status acquiring");
    PHONECTL("radio switch nfc on");
    PHONECTL("cover remove");
    PHONECTL("drive detach");
}

void tst_SimulatedServices::frozen()
{
    PHONECTL("daemon freeze zeld");
    PHONECTL("daemon freeze mce");
    PHONECTL("daemon freeze hybris");
    QElapsedTimer clock;
    clock.start();
    auto mce = std::make_unique<Mce>();
    const Zel zel;
    auto gps = std::make_unique<Gps>();
    // A call that nobody answers ends after 25 s.
    QVERIFY2(clock.elapsed() < 20000, qPrintable(QString::number(clock.elapsed())));
    QTest::qWait(100);
    mce.reset();
    gps.reset();
    QVERIFY(!zel.error());
    PHONECTL("daemon thaw zeld");
    PHONECTL("daemon thaw mce");
    PHONECTL("daemon thaw hybris");
    QTRY_VERIFY(zel.ready());
}

void tst_SimulatedServices::wrongWords_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("error");
    QTest::newRow("radio switch tv on") << 1 << QStringLiteral("mce: there is no radio tv; there are: master, ");
    QTest::newRow("radio switch nfc maybe") << 1 << QStringLiteral("say on or off");
    QTest::newRow("radio nfc") << 2 << QStringLiteral("radio: unknown word 'nfc'; known are: switch");
    QTest::newRow("sleep -1") << 1 << QStringLiteral("-1 is no number of seconds");
    QTest::newRow("sleep nan") << 1 << QStringLiteral("nan is no number of seconds");
    QTest::newRow("cover ready perhaps") << 1 << QStringLiteral("say yes or no");
    QTest::newRow("drive attach mmcblk0") << 1 << QStringLiteral("mmcblk0 is no name of a drive such as sda");
    QTest::newRow("drive detach sdq") << 1 << QStringLiteral("systemd: there is no unit dev-sdq1.device");
    QTest::newRow("gps status fine") << 1 << QStringLiteral("say error, unavailable, acquiring, available, or the");
    QTest::newRow("gps status 2147483648") << 1 << QStringLiteral("say error, unavailable, acquiring, available, or");
    QTest::newRow("satellite rise x") << 1 << QStringLiteral("x is no identifier from 1 to 999");
    QTest::newRow("satellite rise 1 91") << 1 << QStringLiteral("91 is no elevation from 0 to 90");
    QTest::newRow("satellite set 99") << 1 << QStringLiteral("hybris: satellite 99 is not up");
    QTest::newRow("satellite use 99") << 1 << QStringLiteral("hybris: satellite 99 is not up");
    QTest::newRow("satellite use 5 perhaps") << 1 << QStringLiteral("say yes or no");
    QTest::newRow("satellite") << 2 << QStringLiteral("satellite needs one of: rise, set, use");
}

void tst_SimulatedServices::wrongWords()
{
    QFETCH(int, status);
    QFETCH(QString, error);
    QCOMPARE(phonectl(QString::fromLatin1(QTest::currentDataTag())), status);
    QVERIFY2(m_error.startsWith(QStringLiteral("phonectl: ") + error), qPrintable(m_error));
    QCOMPARE(m_error.count(QLatin1Char('\n')), 1);
}

QTEST_GUILESS_MAIN(tst_SimulatedServices)

#include "tst_simulatedservices.moc"
