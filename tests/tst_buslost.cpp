// SPDX-License-Identifier: BSD-3-Clause
#include "gps.h"
#include "mce.h"
#include "messagelog.h"
#include "privatebus.h"
#include "usbotg.h"
#include "zel.h"

#include <QAbstractEventDispatcher>
#include <QDBusPendingCallWatcher>
#include <QTimerEvent>
#include <QtTest>

/*! The clients of the phone's daemons when both buses crash. Nothing brings a bus back in a running process. */
class tst_BusLost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsWhatWaits();
    void failsFromThenOn();
};

namespace
{
template<typename Element>
bool waits(const Element &element)
{
    return element.template findChild<QDBusPendingCallWatcher *>();
}
}

void tst_BusLost::endsWhatWaits()
{
    PrivateBus systemBus(PrivateBus::System);
    PrivateBus sessionBus(PrivateBus::Session);
    FakeDaemon modeControl(systemBus.address(), QStringLiteral("com.nokia.mce"));
    modeControl.hold(QStringLiteral("get_suspend_stats"));
    modeControl.answer(QStringLiteral("get_radio_states"), {0x30u});
    FakeDaemon cover(systemBus.address(), QStringLiteral("com.orvel.zeld"));
    cover.hold(QStringLiteral("GetAll"));
    FakeDaemon systemd(systemBus.address(), QStringLiteral("org.freedesktop.systemd1"));
    FakeDaemon provider(sessionBus.address(), QStringLiteral("org.freedesktop.Geoclue.Providers.Hybris"));
    provider.hold(QStringLiteral("GetStatus"));

    Mce mce;
    Zel zel;
    Gps gps;
    UsbOtg usbOtg;
    QTRY_VERIFY(mce.nfcEnabled());
    QTRY_COMPARE(cover.calls().count(), 1);
    QTRY_COMPARE(provider.calls().count(), 1);
    FakeDaemon::synchronise(QDBusConnection::systemBus());
    systemd.emitSignal(QStringLiteral("/org/freedesktop/systemd1"), QStringLiteral("org.freedesktop.systemd1.Manager"),
                       QStringLiteral("UnitNew"),
                       {QStringLiteral("dev-sda.device"),
                        QVariant::fromValue(QDBusObjectPath(QStringLiteral("/org/freedesktop/systemd1/unit/x")))});
    QTRY_VERIFY(usbOtg.massStorage());

    MessageLog log;
    systemBus.kill();
    sessionBus.kill();
    QTRY_VERIFY(zel.error());
    QTRY_COMPARE(gps.status(), Gps::StatusError);
    QTRY_VERIFY(!waits(mce) && !waits(zel) && !waits(gps));
    QVERIFY2(log.warnings().count() == 1 && log.warnings().first().startsWith(QStringLiteral("QDBusError(")),
             qPrintable(log.all().join(QLatin1Char('\n'))));

    // What was known stands.
    QVERIFY(mce.nfcEnabled());
    QVERIFY(mce.fmtxEnabled());
    QVERIFY(usbOtg.massStorage());

    const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(&mce);
    QCOMPARE(timers.count(), 1);
    QTimerEvent event(timers.first().timerId);
    QCoreApplication::sendEvent(&mce, &event);
    QTRY_COMPARE(log.warnings().count(), 2);
    QVERIFY2(log.warnings().last().contains(QStringLiteral("DBus.Error.Disconnected")),
             qPrintable(log.warnings().last()));
    QTRY_VERIFY(!waits(mce));
}

void tst_BusLost::failsFromThenOn()
{
    MessageLog log;
    const Mce mce;
    const Zel zel;
    const Gps gps;
    const UsbOtg usbOtg;
    QTRY_VERIFY(zel.error());
    QTRY_COMPARE(gps.status(), Gps::StatusError);
    QTRY_VERIFY(!waits(mce) && !waits(zel) && !waits(gps));
    QCOMPARE(log.warnings().filter(QStringLiteral("DBus.Error.Disconnected")).count(), 2);
}

QTEST_GUILESS_MAIN(tst_BusLost)

#include "tst_buslost.moc"
