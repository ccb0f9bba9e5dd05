// SPDX-License-Identifier: BSD-3-Clause
#include "audioroute.h"
#include "gps.h"
#include "mce.h"
#include "messagelog.h"
#include "usbotg.h"
#include "zel.h"

#include <QAbstractEventDispatcher>
#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTimerEvent>
#include <QtTest>

/*! The clients of the phone's daemons where neither bus is there. */
class tst_WithoutBus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void mce();
    void zel();
    void gps();
    void usbOtg();
    void audioRoute();
    void destroyedAtOnce();
};

void tst_WithoutBus::initTestCase()
{
    const QByteArray nowhere("unix:path=/run/kiv-test/no-bus");
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", nowhere);
    qputenv("DBUS_SESSION_BUS_ADDRESS", nowhere);
    QVERIFY(!QDBusConnection::systemBus().isConnected());
    QVERIFY(!QDBusConnection::sessionBus().isConnected());
}

void tst_WithoutBus::mce()
{
    MessageLog log;
    Mce mce;
    QSignalSpy spy(&mce, &Mce::uptimeChanged);
    // Not before the event loop runs.
    QVERIFY(log.all().isEmpty());
    QTRY_COMPARE(log.all().count(), 2);
    const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(&mce);
    QCOMPARE(timers.count(), 1);
    QTimerEvent event(timers.first().timerId);
    QCoreApplication::sendEvent(&mce, &event);
    QTRY_COMPARE(log.all().count(), 3);
    QTRY_VERIFY(mce.findChildren<QDBusPendingCallWatcher *>().isEmpty());
    for (const QString &warning : log.warnings()) {
        QCOMPARE(warning,
                 QStringLiteral("QDBusError(\"org.freedesktop.DBus.Error.Disconnected\", "
                                "\"Not connected to D-Bus server\")"));
    }
    QCOMPARE(log.warnings().count(), 3);
    QVERIFY(spy.isEmpty());
    QCOMPARE(mce.uptime(), 0);
    QCOMPARE(mce.suspend(), 0);
    QVERIFY(!mce.nfcEnabled());
    QVERIFY(!mce.fmtxEnabled());
}

void tst_WithoutBus::zel()
{
    MessageLog log;
    Zel zel;
    QSignalSpy spy(&zel, &Zel::errorChanged);
    QVERIFY(!zel.error());
    QTRY_COMPARE(spy.count(), 1);
    QVERIFY(zel.error());
    QVERIFY(!zel.ready());
    QVERIFY(!zel.docked());
    QCOMPARE(zel.zelId(), QString());
    QTRY_VERIFY(zel.findChildren<QDBusPendingCallWatcher *>().isEmpty());
    QVERIFY2(log.all().isEmpty(), qPrintable(log.all().join(QLatin1Char('\n'))));
}

void tst_WithoutBus::gps()
{
    MessageLog log;
    Gps gps;
    QSignalSpy spy(&gps, &Gps::statusChanged);
    QCOMPARE(gps.status(), Gps::StatusUnavailable);
    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(gps.status(), Gps::StatusError);
    // Nor is there a satellite source.
    QVERIFY(!gps.satelliteInfoAvailable());
    QVERIFY(!gps.satelliteInfoError());
    QCOMPARE(gps.satellitesInView(), 0);
    QCOMPARE(gps.satellitesInUse(), 0);
    QCOMPARE(gps.satelliteInfo(), QVariantList());
    QVERIFY2(log.all().isEmpty(), qPrintable(log.all().join(QLatin1Char('\n'))));
}

void tst_WithoutBus::usbOtg()
{
    MessageLog log;
    const UsbOtg usbOtg;
    QVERIFY(!usbOtg.massStorage());
    QCOMPARE(log.all(),
             QStringList({QStringLiteral("Failed to connect  org.freedesktop.systemd1   UnitNew"),
                          QStringLiteral("Failed to connect  org.freedesktop.systemd1   UnitRemoved")}));
    QCOMPARE(log.warnings().count(), 2);
}

void tst_WithoutBus::audioRoute()
{
    MessageLog log;
    QElapsedTimer timer;
    timer.start();
    {
        AudioRoute route;
        QVERIFY(log.all().isEmpty());
        QTRY_COMPARE(log.warnings(), QStringList(QStringLiteral("Audio route GetAll returned error")));
        route.setFmRadio(true);
        QVERIFY(!route.fmRadio());
        QVERIFY(!route.wiredOutputConnected());
        QVERIFY(!route.wiredInputConnected());
    }
    QCOMPARE(log.all().count(), 1);
    // Long before the end of a call that nobody answers.
    QVERIFY2(timer.elapsed() < 20000, qPrintable(QString::number(timer.elapsed())));
}

void tst_WithoutBus::destroyedAtOnce()
{
    MessageLog log;
    for (int round = 0; round < 100; ++round) {
        const Mce mce;
        const Zel zel;
        const Gps gps;
        const AudioRoute audioRoute;
    }
    QCoreApplication::processEvents();
    QVERIFY2(log.all().isEmpty(), qPrintable(log.all().join(QLatin1Char('\n'))));
}

QTEST_GUILESS_MAIN(tst_WithoutBus)

#include "tst_withoutbus.moc"
