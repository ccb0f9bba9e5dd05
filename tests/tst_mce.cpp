// SPDX-License-Identifier: BSD-3-Clause
#include "mce.h"
#include "mcebuttonbacklight.h"
#include "mceinterface.h"
#include "messagelog.h"
#include "metaobject.h"
#include "privatebus.h"

#include <QAbstractEventDispatcher>
#include <QDBusMetaType>
#include <QPointer>
#include <QSignalSpy>
#include <QTimerEvent>
#include <QtTest>

#include <limits>
#include <memory>
#include <thread>

namespace
{
const QString Service = QStringLiteral("com.nokia.mce");
const QString RequestPath = QStringLiteral("/com/nokia/mce/request");
const QString RequestInterface = QStringLiteral("com.nokia.mce.request");
const QString SignalPath = QStringLiteral("/com/nokia/mce/signal");
const QString SignalInterface = QStringLiteral("com.nokia.mce.signal");

const QString GetSuspendStats = QStringLiteral("get_suspend_stats");
const QString GetRadioStates = QStringLiteral("get_radio_states");
const QString RadioStatesInd = QStringLiteral("radio_states_ind");

constexpr uint NfcBit = 0x10;
constexpr uint FmtxBit = 0x20;

using NumberMap = QMap<int, QString>;
using TextMap = QMap<QString, QString>;
}
Q_DECLARE_METATYPE(NumberMap)
Q_DECLARE_METATYPE(TextMap)

class tst_Mce : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void interface();
    void buttonBacklightInterface();
    void proxyInterfaces();
    void proxiesReachTheService();
    void proxyBlocksForSuspendStats();

    void asksOnceAtConstruction();
    void startsAtZero();
    void storesSuspendStats_data();
    void storesSuspendStats();
    void signalsEveryAnswer();
    void pollsSuspendStatsOnly();
    void readsRadioStates_data();
    void readsRadioStates();
    void followsRadioBroadcasts();
    void ignoresOtherBroadcasts();

    void warnsWithoutService();
    void warnsOfErrors();
    void keepsValuesOnError();
    void survivesOddAnswers_data();
    void survivesOddAnswers();
    void survivesOddBroadcasts_data();
    void survivesOddBroadcasts();
    void ignoresStrangers();
    void neverStartsTheService();
    void survivesDeathOfTheService();
    void followsRestartedService();
    void destroyedWhileWaiting();
    void destroyedInItsOwnSignal();

private:
    void startDaemon();
    void broadcast(const QString &member, const QVariantList &values);
    void broadcastStates(uint states) { broadcast(RadioStatesInd, {states}); }

    PrivateBus m_bus{PrivateBus::System};
    std::unique_ptr<FakeDaemon> m_daemon;
};

void tst_Mce::initTestCase()
{
    QVERIFY(!m_bus.address().isEmpty());
    qDBusRegisterMetaType<NumberMap>();
    qDBusRegisterMetaType<TextMap>();
    QVERIFY(QDBusConnection::systemBus().isConnected());
}

void tst_Mce::init()
{
    startDaemon();
}

void tst_Mce::cleanup()
{
    m_daemon.reset();
}

void tst_Mce::startDaemon()
{
    m_daemon = std::make_unique<FakeDaemon>(m_bus.address(), Service);
    m_daemon->answer(GetSuspendStats, {qlonglong(1000), qlonglong(400)});
    m_daemon->answer(GetRadioStates, {0u});
}

void tst_Mce::broadcast(const QString &member, const QVariantList &values)
{
    m_daemon->emitSignal(SignalPath, SignalInterface, member, values);
}

void tst_Mce::interface()
{
    const QStringList expected{
        QStringLiteral("property qlonglong uptime notify uptimeChanged"),
        QStringLiteral("property qlonglong suspend notify suspendChanged"),
        QStringLiteral("property bool nfcEnabled notify nfcEnabledChanged"),
        QStringLiteral("property bool fmtxEnabled notify fmtxEnabledChanged"),
        QStringLiteral("signal uptimeChanged()"),
        QStringLiteral("signal suspendChanged()"),
        QStringLiteral("signal nfcEnabledChanged()"),
        QStringLiteral("signal fmtxEnabledChanged()"),
        QStringLiteral("private slot onGetSuspendStatsFinished(QDBusPendingCallWatcher*)"),
        QStringLiteral("private slot onGetRadioStatesFinished(QDBusPendingCallWatcher*)"),
        QStringLiteral("private slot configChange(QString,QDBusVariant)"),
        QStringLiteral("private slot updateRadioStates(uint)"),
    };
    QCOMPARE(ownInterface(Mce::staticMetaObject), expected);
    QCOMPARE(Mce::staticMetaObject.superClass(), &QObject::staticMetaObject);
}

void tst_Mce::buttonBacklightInterface()
{
    const QStringList expected{QStringLiteral("enum Mode: ForceOff=0, ForceOn=1, Policy=2")};
    QCOMPARE(ownInterface(MceButtonBacklight::staticMetaObject), expected);
    QCOMPARE(MceButtonBacklight::staticMetaObject.superClass(), &QObject::staticMetaObject);
}

void tst_Mce::proxyInterfaces()
{
    const QStringList request{
        QStringLiteral("slot QDBusPendingReply<QDBusVariant> get_config(QDBusObjectPath)"),
        QStringLiteral("slot QDBusPendingReply<uint> get_radio_states()"),
        QStringLiteral("slot QDBusPendingReply<qlonglong,qlonglong> get_suspend_stats()"),
        QStringLiteral("slot QDBusReply<qlonglong> get_suspend_stats(qlonglong&)"),
        QStringLiteral("slot QDBusPendingReply<> req_radio_states_change(uint,uint)"),
        QStringLiteral("slot QDBusPendingReply<bool> set_config(QDBusObjectPath,QDBusVariant)"),
    };
    QCOMPARE(ownInterface(ComNokiaMceRequestInterface::staticMetaObject), request);
    QCOMPARE(ComNokiaMceRequestInterface::staticMetaObject.superClass(), &QDBusAbstractInterface::staticMetaObject);
    QCOMPARE(ComNokiaMceRequestInterface::staticInterfaceName(), "com.nokia.mce.request");

    const QStringList broadcasts{
        QStringLiteral("signal config_change_ind(QString,QDBusVariant)"),
        QStringLiteral("signal display_status_ind(QString)"),
        QStringLiteral("signal radio_states_ind(uint)"),
    };
    QCOMPARE(ownInterface(ComNokiaMceSignalInterface::staticMetaObject), broadcasts);
    QCOMPARE(ComNokiaMceSignalInterface::staticMetaObject.superClass(), &QDBusAbstractInterface::staticMetaObject);
    QCOMPARE(ComNokiaMceSignalInterface::staticInterfaceName(), "com.nokia.mce.signal");
}

void tst_Mce::proxiesReachTheService()
{
    m_daemon->answer(QStringLiteral("get_config"), {QVariant::fromValue(QDBusVariant(7))});
    m_daemon->answer(GetRadioStates, {5u});
    m_daemon->answer(QStringLiteral("req_radio_states_change"), {});
    m_daemon->answer(QStringLiteral("set_config"), {true});
    const QDBusObjectPath key(QStringLiteral("/system/osso/dsm/leds"));

    ComNokiaMceRequestInterface request(Service, RequestPath, QDBusConnection::systemBus());
    const QDBusPendingReply<QDBusVariant> config = request.get_config(key);
    const QDBusPendingReply<uint> states = request.get_radio_states();
    const QDBusPendingReply<qlonglong, qlonglong> times = request.get_suspend_stats();
    const QDBusPendingReply<> change = request.req_radio_states_change(1, 3);
    const QDBusPendingReply<bool> set = request.set_config(key, QDBusVariant(QStringLiteral("on")));
    QTRY_VERIFY(set.isFinished());

    QVERIFY(!config.isError() && !states.isError() && !times.isError() && !change.isError() && !set.isError());
    QCOMPARE(config.value().variant(), QVariant(7));
    QCOMPARE(states.value(), 5u);
    QCOMPARE(times.argumentAt<0>(), 1000);
    QCOMPARE(times.argumentAt<1>(), 400);
    QVERIFY(set.value());

    QStringList seen;
    for (const QDBusMessage &call : m_daemon->calls()) {
        QCOMPARE(call.path(), RequestPath);
        QCOMPARE(call.interface(), RequestInterface);
        seen << call.member() + QLatin1Char(' ') + call.signature();
    }
    QCOMPARE(seen,
             QStringList({QStringLiteral("get_config o"), QStringLiteral("get_radio_states "),
                          QStringLiteral("get_suspend_stats "), QStringLiteral("req_radio_states_change uu"),
                          QStringLiteral("set_config ov")}));
    QCOMPARE(m_daemon->calls().at(3).arguments(), QVariantList({1u, 3u}));

    ComNokiaMceSignalInterface broadcasts(Service, SignalPath, QDBusConnection::systemBus());
    QSignalSpy displaySpy(&broadcasts, &ComNokiaMceSignalInterface::display_status_ind);
    FakeDaemon::synchronise(QDBusConnection::systemBus());
    broadcast(QStringLiteral("display_status_ind"), {QStringLiteral("dimmed")});
    QTRY_COMPARE(displaySpy.count(), 1);
    QCOMPARE(displaySpy.first().first().toString(), QStringLiteral("dimmed"));
}

void tst_Mce::proxyBlocksForSuspendStats()
{
    QDBusReply<qlonglong> reply;
    qlonglong suspend = -1;
    std::atomic_bool finished{false};
    // The daemon lives in this thread, so another has to wait for it.
    std::thread caller([&] {
        ComNokiaMceRequestInterface request(Service, RequestPath, QDBusConnection::systemBus());
        reply = request.get_suspend_stats(suspend);
        finished = true;
    });
    QTRY_VERIFY(finished);
    caller.join();
    QVERIFY2(reply.isValid(), qPrintable(reply.error().message()));
    QCOMPARE(reply.value(), 1000);
    QCOMPARE(suspend, 400);
}

void tst_Mce::asksOnceAtConstruction()
{
    Mce mce;
    QCOMPARE(mce.parent(), nullptr);
    QVERIFY(mce.findChild<ComNokiaMceRequestInterface *>(QString(), Qt::FindDirectChildrenOnly));
    QVERIFY(mce.findChild<ComNokiaMceSignalInterface *>(QString(), Qt::FindDirectChildrenOnly));
    QCOMPARE(mce.findChildren<QDBusPendingCallWatcher *>().count(), 2);

    QSignalSpy spy(&mce, &Mce::suspendChanged);
    QTRY_COMPARE(spy.count(), 1);
    broadcastStates(NfcBit);
    QTRY_VERIFY(mce.nfcEnabled());

    QCOMPARE(m_daemon->members(), QStringList({GetSuspendStats, GetRadioStates}));
    for (const QDBusMessage &call : m_daemon->calls()) {
        QCOMPARE(call.path(), RequestPath);
        QCOMPARE(call.interface(), RequestInterface);
        QVERIFY(call.arguments().isEmpty());
    }
    // Answered watchers go.
    QTRY_VERIFY(mce.findChildren<QDBusPendingCallWatcher *>().isEmpty());
}

void tst_Mce::startsAtZero()
{
    m_daemon->hold(GetSuspendStats);
    m_daemon->hold(GetRadioStates);
    const Mce mce;
    QCOMPARE(mce.uptime(), 0);
    QCOMPARE(mce.suspend(), 0);
    QVERIFY(!mce.nfcEnabled());
    QVERIFY(!mce.fmtxEnabled());
    QTRY_COMPARE(m_daemon->calls().count(), 2);
    QCOMPARE(mce.uptime(), 0);
}

void tst_Mce::storesSuspendStats_data()
{
    QTest::addColumn<qlonglong>("uptime");
    QTest::addColumn<qlonglong>("suspend");
    QTest::newRow("usual") << 123456789LL << 98765LL;
    QTest::newRow("zero") << 0LL << 0LL;
    QTest::newRow("negative") << -1LL << -2LL;
    QTest::newRow("widest") << std::numeric_limits<qlonglong>::max() << std::numeric_limits<qlonglong>::min();
}

void tst_Mce::storesSuspendStats()
{
    QFETCH(qlonglong, uptime);
    QFETCH(qlonglong, suspend);
    m_daemon->answer(GetSuspendStats, {uptime, suspend});
    Mce mce;
    QStringList order;
    // Both values are there before either signal.
    connect(&mce, &Mce::uptimeChanged, this,
            [&] { order << QStringLiteral("uptime %1 %2").arg(mce.uptime()).arg(mce.suspend()); });
    connect(&mce, &Mce::suspendChanged, this,
            [&] { order << QStringLiteral("suspend %1 %2").arg(mce.uptime()).arg(mce.suspend()); });
    QTRY_COMPARE(order.count(), 2);
    QCOMPARE(order.at(0), QStringLiteral("uptime %1 %2").arg(uptime).arg(suspend));
    QCOMPARE(order.at(1), QStringLiteral("suspend %1 %2").arg(uptime).arg(suspend));
}

namespace
{
/*! The only timer of the object. */
QAbstractEventDispatcher::TimerInfo timerOf(QObject *object)
{
    const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(object);
    return timers.count() == 1 ? timers.first() : QAbstractEventDispatcher::TimerInfo(-1, -1, Qt::CoarseTimer);
}

void letTimerExpire(QObject *object)
{
    QTimerEvent event(timerOf(object).timerId);
    QCoreApplication::sendEvent(object, &event);
}
}

void tst_Mce::signalsEveryAnswer()
{
    Mce mce;
    QSignalSpy uptimeSpy(&mce, &Mce::uptimeChanged);
    QSignalSpy suspendSpy(&mce, &Mce::suspendChanged);
    QTRY_COMPARE(suspendSpy.count(), 1);
    for (int round = 2; round < 4; ++round) {
        letTimerExpire(&mce);
        QTRY_COMPARE(suspendSpy.count(), round);
        QCOMPARE(uptimeSpy.count(), round);
        QCOMPARE(mce.uptime(), 1000);
        QCOMPARE(mce.suspend(), 400);
    }
}

void tst_Mce::pollsSuspendStatsOnly()
{
    Mce mce;
    QSignalSpy spy(&mce, &Mce::suspendChanged);
    QTRY_COMPARE(spy.count(), 1);
    const auto timer = timerOf(&mce);
    QCOMPARE(timer.interval, 60000);

    for (const int other : {timer.timerId + 1, timer.timerId - 1, 0, -1}) {
        QTimerEvent event(other);
        QCoreApplication::sendEvent(&mce, &event);
    }
    m_daemon->answer(GetSuspendStats, {qlonglong(61000), qlonglong(500)});
    letTimerExpire(&mce);
    QTRY_COMPARE(spy.count(), 2);
    QCOMPARE(mce.uptime(), 61000);
    QCOMPARE(mce.suspend(), 500);
    QCOMPARE(m_daemon->members(), QStringList({GetSuspendStats, GetRadioStates, GetSuspendStats}));
}

void tst_Mce::readsRadioStates_data()
{
    QTest::addColumn<uint>("states");
    QTest::addColumn<bool>("nfc");
    QTest::addColumn<bool>("fmtx");
    QTest::newRow("none") << 0u << false << false;
    QTest::newRow("nfc") << 0x10u << true << false;
    QTest::newRow("fmtx") << 0x20u << false << true;
    QTest::newRow("both") << 0x30u << true << true;
    QTest::newRow("others") << 0xffffffcfu << false << false;
    QTest::newRow("all") << 0xffffffffu << true << true;
}

void tst_Mce::readsRadioStates()
{
    QFETCH(uint, states);
    QFETCH(bool, nfc);
    QFETCH(bool, fmtx);
    m_daemon->answer(GetRadioStates, {states});
    Mce mce;
    QSignalSpy nfcSpy(&mce, &Mce::nfcEnabledChanged);
    QSignalSpy fmtxSpy(&mce, &Mce::fmtxEnabledChanged);
    QTRY_VERIFY(mce.findChildren<QDBusPendingCallWatcher *>().isEmpty());
    QCOMPARE(mce.nfcEnabled(), nfc);
    QCOMPARE(mce.fmtxEnabled(), fmtx);
    QCOMPARE(nfcSpy.count(), int(nfc));
    QCOMPARE(fmtxSpy.count(), int(fmtx));
}

void tst_Mce::followsRadioBroadcasts()
{
    Mce mce;
    QStringList order;
    connect(&mce, &Mce::nfcEnabledChanged, this, [&] { order << QStringLiteral("nfc"); });
    connect(&mce, &Mce::fmtxEnabledChanged, this, [&] { order << QStringLiteral("fmtx"); });
    QTRY_VERIFY(mce.findChildren<QDBusPendingCallWatcher *>().isEmpty());

    broadcastStates(NfcBit | FmtxBit);
    QTRY_COMPARE(order.count(), 2);
    QCOMPARE(order, QStringList({QStringLiteral("nfc"), QStringLiteral("fmtx")}));
    QVERIFY(mce.nfcEnabled());
    QVERIFY(mce.fmtxEnabled());

    // Neither the same word again nor other bits are a change; the last one is, and shows that the others were seen.
    order.clear();
    broadcastStates(NfcBit | FmtxBit);
    broadcastStates(NfcBit | FmtxBit | 0xffffff0f);
    broadcastStates(FmtxBit | 0x1);
    QTRY_COMPARE(order.count(), 1);
    QCOMPARE(order, QStringList(QStringLiteral("nfc")));
    QVERIFY(!mce.nfcEnabled());
    QVERIFY(mce.fmtxEnabled());

    order.clear();
    broadcastStates(NfcBit);
    QTRY_COMPARE(order.count(), 2);
    QCOMPARE(order, QStringList({QStringLiteral("nfc"), QStringLiteral("fmtx")}));
}

void tst_Mce::ignoresOtherBroadcasts()
{
    Mce mce;
    QSignalSpy uptimeSpy(&mce, &Mce::uptimeChanged);
    QSignalSpy suspendSpy(&mce, &Mce::suspendChanged);
    QSignalSpy nfcSpy(&mce, &Mce::nfcEnabledChanged);
    QSignalSpy fmtxSpy(&mce, &Mce::fmtxEnabledChanged);
    QTRY_VERIFY(mce.findChildren<QDBusPendingCallWatcher *>().isEmpty());
    QCOMPARE(uptimeSpy.count(), 1);

    broadcast(QStringLiteral("config_change_ind"),
              {QStringLiteral("/system/osso/dsm/leds"), QVariant::fromValue(QDBusVariant(0x30u))});
    broadcast(QStringLiteral("display_status_ind"), {QStringLiteral("on")});
    m_daemon->emitSignal(SignalPath, QStringLiteral("com.nokia.mce.other"), RadioStatesInd, {0x30u});
    m_daemon->emitSignal(RequestPath, SignalInterface, RadioStatesInd, {0x30u});
    broadcastStates(FmtxBit);
    QTRY_COMPARE(fmtxSpy.count(), 1);
    QCOMPARE(nfcSpy.count(), 0);
    QCOMPARE(uptimeSpy.count(), 1);
    QCOMPARE(suspendSpy.count(), 1);
    QCOMPARE(m_daemon->calls().count(), 2);
}

void tst_Mce::warnsWithoutService()
{
    m_daemon.reset();
    MessageLog log;
    Mce mce;
    QSignalSpy uptimeSpy(&mce, &Mce::uptimeChanged);
    QTRY_COMPARE(log.all().count(), 2);
    letTimerExpire(&mce);
    QTRY_COMPARE(log.all().count(), 3);
    QCOMPARE(log.warnings().count(), 3);
    for (const QString &warning : log.warnings()) {
        QCOMPARE(warning,
                 QStringLiteral("QDBusError(\"org.freedesktop.DBus.Error.NameHasNoOwner\", "
                                "\"Name \\\"com.nokia.mce\\\" does not exist\")"));
    }
    QVERIFY(uptimeSpy.isEmpty());
    QCOMPARE(mce.uptime(), 0);
    QCOMPARE(mce.suspend(), 0);
    QVERIFY(!mce.nfcEnabled());
    QVERIFY(!mce.fmtxEnabled());

    // The service comes late: its broadcasts count, but it is only asked at the next poll.
    startDaemon();
    m_daemon->answer(GetRadioStates, {NfcBit});
    broadcastStates(FmtxBit);
    QTRY_VERIFY(mce.fmtxEnabled());
    QVERIFY(m_daemon->calls().isEmpty());
    letTimerExpire(&mce);
    QTRY_COMPARE(mce.uptime(), 1000);
    QCOMPARE(m_daemon->members(), QStringList(GetSuspendStats));
    QVERIFY(!mce.nfcEnabled());
    QCOMPARE(log.all().count(), 3);
}

void tst_Mce::warnsOfErrors()
{
    m_daemon->answerWithError(GetSuspendStats, QStringLiteral("com.nokia.mce.Error.Sleepy"),
                              QStringLiteral("no \"stats\" today"));
    m_daemon->answerWithError(GetRadioStates, QStringLiteral("com.nokia.mce.Error.Deaf"), QString());
    MessageLog log;
    const Mce mce;
    QTRY_COMPARE(log.all().count(), 2);
    QCOMPARE(log.warnings(),
             QStringList({QStringLiteral("QDBusError(\"com.nokia.mce.Error.Sleepy\", \"no \\\"stats\\\" today\")"),
                          QStringLiteral("QDBusError(\"com.nokia.mce.Error.Deaf\", \"\")")}));
    QTRY_VERIFY(mce.findChildren<QDBusPendingCallWatcher *>().isEmpty());
    QCOMPARE(m_daemon->calls().count(), 2);
}

void tst_Mce::keepsValuesOnError()
{
    m_daemon->answer(GetRadioStates, {NfcBit});
    Mce mce;
    QSignalSpy uptimeSpy(&mce, &Mce::uptimeChanged);
    QSignalSpy suspendSpy(&mce, &Mce::suspendChanged);
    QTRY_VERIFY(mce.nfcEnabled());
    QTRY_COMPARE(suspendSpy.count(), 1);

    m_daemon->answerWithError(GetSuspendStats, QStringLiteral("com.nokia.mce.Error"), QStringLiteral("77"));
    MessageLog log;
    letTimerExpire(&mce);
    QTRY_COMPARE(log.warnings().count(), 1);
    QCOMPARE(mce.uptime(), 1000);
    QCOMPARE(mce.suspend(), 400);
    QVERIFY(mce.nfcEnabled());
    QCOMPARE(uptimeSpy.count(), 1);
    QCOMPARE(suspendSpy.count(), 1);
}

void tst_Mce::survivesOddAnswers_data()
{
    QTest::addColumn<QVariantList>("values");
    QTest::addColumn<qlonglong>("uptime");
    QTest::addColumn<qlonglong>("suspend");
    QTest::addColumn<bool>("nfc");

    QVariantList many;
    for (int i = 0; i < 100000; ++i)
        many << i;
    const NumberMap numbers{{16, QStringLiteral("sixteen")}};
    const TextMap texts{{QStringLiteral("uptime"), QStringLiteral("16")}};

    QTest::newRow("nothing") << QVariantList() << 0LL << 0LL << false;
    QTest::newRow("one value") << QVariantList{16LL} << 16LL << 0LL << true;
    QTest::newRow("three values") << QVariantList{16LL, 2LL, 3LL} << 16LL << 2LL << true;
    QTest::newRow("32 bits") << QVariantList{16u, 17} << 16LL << 17LL << true;
    QTest::newRow("number as text") << QVariantList{QStringLiteral("16"), QStringLiteral("17")} << 16LL << 17LL << true;
    QTest::newRow("text") << QVariantList{QStringLiteral("long"), QString()} << 0LL << 0LL << false;
    QTest::newRow("variant") << QVariantList{QVariant::fromValue(QDBusVariant(16LL))} << 0LL << 0LL << false;
    QTest::newRow("object path") << QVariantList{QVariant::fromValue(QDBusObjectPath(QStringLiteral("/x")))} << 0LL
                                 << 0LL << false;
    QTest::newRow("huge array") << QVariantList{QVariant(many)} << 0LL << 0LL << false;
    QTest::newRow("map") << QVariantList{QVariantMap{{QStringLiteral("uptime"), 16}}} << 0LL << 0LL << false;
    QTest::newRow("map of numbers") << QVariantList{QVariant::fromValue(numbers)} << 0LL << 0LL << false;
    QTest::newRow("map of texts") << QVariantList{QVariant::fromValue(texts), QVariant::fromValue(texts)} << 0LL << 0LL
                                  << false;
    QTest::newRow("bytes") << QVariantList{QByteArray("\0\xff", 2)} << 0LL << 0LL << false;
}

void tst_Mce::survivesOddAnswers()
{
    QFETCH(QVariantList, values);
    m_daemon->answer(GetSuspendStats, values);
    m_daemon->answer(GetRadioStates, values);
    Mce mce;
    QSignalSpy uptimeSpy(&mce, &Mce::uptimeChanged);
    QSignalSpy suspendSpy(&mce, &Mce::suspendChanged);
    QTRY_VERIFY(mce.findChildren<QDBusPendingCallWatcher *>().isEmpty());
    QCOMPARE(uptimeSpy.count(), 1);
    QCOMPARE(suspendSpy.count(), 1);
    QTEST(mce.uptime(), "uptime");
    QTEST(mce.suspend(), "suspend");
    QTEST(mce.nfcEnabled(), "nfc");
    QVERIFY(!mce.fmtxEnabled());
}

void tst_Mce::survivesOddBroadcasts_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<QVariantList>("values");
    const NumberMap numbers{{48, QString()}};
    const QVariantList shapes[]{
        {},
        {48},
        {QStringLiteral("48")},
        {48u, 48u},
        {QVariant::fromValue(QDBusVariant(48u))},
        {QVariantList{48u}},
        {QVariantMap{{QStringLiteral("states"), 48u}}},
        {QVariant::fromValue(numbers)},
        {QVariant::fromValue(numbers), QVariant::fromValue(QDBusVariant(48u))},
        {QStringLiteral("key"), QVariant::fromValue(numbers)},
    };
    for (const QVariantList &shape : shapes) {
        for (const QString &member : {RadioStatesInd, QStringLiteral("config_change_ind")}) {
            QByteArray types;
            for (const QVariant &value : shape)
                types += QByteArray(" ") + value.typeName();
            QTest::newRow(member.toLatin1() + types) << member << shape;
        }
    }
}

void tst_Mce::survivesOddBroadcasts()
{
    QFETCH(QString, member);
    QFETCH(QVariantList, values);
    Mce mce;
    QSignalSpy nfcSpy(&mce, &Mce::nfcEnabledChanged);
    QSignalSpy fmtxSpy(&mce, &Mce::fmtxEnabledChanged);
    QTRY_VERIFY(mce.findChildren<QDBusPendingCallWatcher *>().isEmpty());
    broadcast(member, values);
    broadcastStates(FmtxBit);
    QTRY_COMPARE(fmtxSpy.count(), 1);
    QCOMPARE(nfcSpy.count(), 0);
    QVERIFY(!mce.nfcEnabled());
}

void tst_Mce::ignoresStrangers()
{
    const QString own = QDBusConnection::systemBus().baseService();
    FakeDaemon stranger(m_bus.address());
    Mce mce;
    QSignalSpy nfcSpy(&mce, &Mce::nfcEnabledChanged);
    QSignalSpy fmtxSpy(&mce, &Mce::fmtxEnabledChanged);
    QTRY_VERIFY(mce.findChildren<QDBusPendingCallWatcher *>().isEmpty());

    // What is sent to this program alone passes the bus's own filter.
    stranger.emitSignal(SignalPath, SignalInterface, RadioStatesInd, {NfcBit});
    stranger.emitSignal(SignalPath, SignalInterface, RadioStatesInd, {NfcBit}, own);
    broadcastStates(FmtxBit);
    QTRY_COMPARE(fmtxSpy.count(), 1);
    QCOMPARE(nfcSpy.count(), 0);

    // Nor may anybody step in while the service is away.
    m_daemon->disown(Service);
    FakeDaemon::synchronise(QDBusConnection::systemBus());
    stranger.emitSignal(SignalPath, SignalInterface, RadioStatesInd, {NfcBit | FmtxBit});
    stranger.emitSignal(SignalPath, SignalInterface, RadioStatesInd, {NfcBit | FmtxBit}, own);
    m_daemon->own(Service);
    FakeDaemon::synchronise(QDBusConnection::systemBus());
    broadcastStates(0);
    QTRY_COMPARE(fmtxSpy.count(), 2);
    QCOMPARE(nfcSpy.count(), 0);
}

void tst_Mce::neverStartsTheService()
{
    m_daemon.reset();
    QVERIFY(m_bus.makeStartable(Service));
    MessageLog log;
    {
        Mce mce;
        QTRY_COMPARE(log.warnings().count(), 2);
        letTimerExpire(&mce);
        QTRY_COMPARE(log.warnings().count(), 3);
        QVERIFY(log.warnings().first().contains(QStringLiteral("NameHasNoOwner")));
    }
    QVERIFY(!m_bus.hasStarted(Service));

    // An ordinary call would have.
    ComNokiaMceRequestInterface request(Service, RequestPath, QDBusConnection::systemBus());
    const QDBusPendingReply<uint> ordinary = request.get_radio_states();
    QTRY_VERIFY(ordinary.isFinished());
    QVERIFY(m_bus.hasStarted(Service));
    QVERIFY(m_bus.makeUnstartable(Service));
}

void tst_Mce::survivesDeathOfTheService()
{
    m_daemon->hold(GetSuspendStats);
    m_daemon->hold(GetRadioStates);
    MessageLog log;
    Mce mce;
    QTRY_COMPARE(m_daemon->calls().count(), 2);
    m_daemon->die();
    QTRY_COMPARE(log.all().count(), 2);
    QCOMPARE(log.warnings().count(), 2);
    QVERIFY2(log.warnings().first().startsWith(QStringLiteral("QDBusError(\"org.freedesktop.DBus.Error.NoReply\"")),
             qPrintable(log.warnings().first()));
    QCOMPARE(mce.uptime(), 0);
}

void tst_Mce::followsRestartedService()
{
    m_daemon->answer(GetRadioStates, {NfcBit});
    Mce mce;
    QSignalSpy nfcSpy(&mce, &Mce::nfcEnabledChanged);
    QSignalSpy fmtxSpy(&mce, &Mce::fmtxEnabledChanged);
    QTRY_VERIFY(mce.nfcEnabled());
    m_daemon->die();
    startDaemon();
    broadcastStates(NfcBit | FmtxBit);
    QTRY_COMPARE(fmtxSpy.count(), 1);
    // What it said before it died stands.
    QCOMPARE(nfcSpy.count(), 1);
    QVERIFY(mce.nfcEnabled());
    QCOMPARE(mce.uptime(), 1000);
    QVERIFY(m_daemon->calls().isEmpty());
}

void tst_Mce::destroyedWhileWaiting()
{
    m_daemon->hold(GetSuspendStats);
    m_daemon->hold(GetRadioStates);
    MessageLog log;
    QList<QPointer<QDBusPendingCallWatcher>> watchers;
    for (int round = 0; round < 30; ++round) {
        Mce mce;
        for (QDBusPendingCallWatcher *watcher : mce.findChildren<QDBusPendingCallWatcher *>())
            watchers << watcher;
        if (round % 2)
            QTRY_COMPARE(m_daemon->calls().count(), 2 * (round + 1));
    }
    QCOMPARE(watchers.count(), 60);
    for (const auto &watcher : qAsConst(watchers))
        QVERIFY(watcher.isNull());
    m_daemon->answerHeld();
    broadcastStates(NfcBit);

    // Whoever comes next is served after all of that.
    Mce next;
    QSignalSpy spy(&next, &Mce::suspendChanged);
    QTRY_COMPARE(spy.count(), 1);
    QVERIFY2(log.all().isEmpty(), qPrintable(log.all().join(QLatin1Char('\n'))));
}

void tst_Mce::destroyedInItsOwnSignal()
{
    m_daemon->answer(GetRadioStates, {NfcBit | FmtxBit});
    for (const auto signal :
         {&Mce::uptimeChanged, &Mce::suspendChanged, &Mce::nfcEnabledChanged, &Mce::fmtxEnabledChanged}) {
        auto *later = new Mce;
        connect(later, signal, later, &QObject::deleteLater);
        QSignalSpy destroyedLater(later, &QObject::destroyed);
        QTRY_COMPARE(destroyedLater.count(), 1);

        auto *atOnce = new Mce;
        connect(atOnce, signal, this, [atOnce] { delete atOnce; });
        QSignalSpy destroyedAtOnce(atOnce, &QObject::destroyed);
        QTRY_COMPARE(destroyedAtOnce.count(), 1);
    }
}

QTEST_GUILESS_MAIN(tst_Mce)

#include "tst_mce.moc"
