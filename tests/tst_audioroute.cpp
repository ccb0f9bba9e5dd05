// SPDX-License-Identifier: BSD-3-Clause
#include "audioroute.h"
#include "messagelog.h"
#include "metaobject.h"
#include "privatebus.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QElapsedTimer>
#include <QPointer>
#include <QSignalSpy>
#include <QThread>
#include <QtTest>

#include <memory>

/*! One entry of the route manager's feature list. */
struct Feature
{
    QString name;
    uint allowed = 0;
    uint enabled = 0;
};
Q_DECLARE_METATYPE(Feature)
Q_DECLARE_METATYPE(QList<Feature>)

QDBusArgument &operator<<(QDBusArgument &argument, const Feature &feature)
{
    argument.beginStructure();
    argument << feature.name << feature.allowed << feature.enabled;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Feature &feature)
{
    argument.beginStructure();
    argument >> feature.name >> feature.allowed >> feature.enabled;
    argument.endStructure();
    return argument;
}

namespace
{
const QString Service = QStringLiteral("org.nemomobile.Route.Manager");
const QString Path = QStringLiteral("/org/nemomobile/Route/Manager");
const QString Interface = QStringLiteral("org.nemomobile.Route.Manager");
const QString GetAll = QStringLiteral("GetAll");
const QString FeatureChanged = QStringLiteral("AudioFeatureChanged");
const QString RouteChanged = QStringLiteral("AudioRouteChanged");
const QString Radio = QStringLiteral("fmradioloopback");

QVariantList state(QVariant outputType, QVariant inputType, const QVariant &features = QVariant())
{
    QVariantList values{QStringLiteral("out"), outputType, QStringLiteral("in"), inputType};
    if (features.isValid())
        values << features;
    return values;
}

QVariant features(const QList<Feature> &list)
{
    return QVariant::fromValue(list);
}

/*! Counts the change signals of all three properties. */
struct Spies
{
    explicit Spies(AudioRoute *route)
        : output(route, &AudioRoute::wiredOutputConnectedChanged),
          input(route, &AudioRoute::wiredInputConnectedChanged),
          radio(route, &AudioRoute::fmRadioChanged)
    {
    }
    QList<int> counts() const { return {output.count(), input.count(), radio.count()}; }

    QSignalSpy output;
    QSignalSpy input;
    QSignalSpy radio;
};
}

class tst_AudioRoute : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void interface();
    void startsDisconnected();
    void readsTheFirstState_data();
    void readsTheFirstState();
    void followsRoutes_data();
    void followsRoutes();
    void followsTheRadio();
    void equalValuesAreNoChange();
    void warnsOfTooFewArguments_data();
    void warnsOfTooFewArguments();
    void warnsOfErrors();
    void warnsWithoutService();
    void survivesOddBroadcasts_data();
    void survivesOddBroadcasts();
    void ignoresStrangers();
    void asksOnlyOnce();
    void switchesTheRadio();
    void radioStaysAsReported();
    void switchingWaitsForTheAnswer();
    void isSwitchedOffAtDestruction();
    void destroyedWhileWaiting();
    void destroyedInItsOwnSignal();
    void neverStartsTheService();
    void survivesTheBus();

private:
    void broadcast(const QString &member, const QVariantList &values)
    {
        m_daemon->emitSignal(Path, Interface, member, values);
    }
    void startDaemon(const QVariantList &state);
    /*! Lets the daemon answer calls that block this thread. */
    void runDaemonElsewhere();
    /*! Waits until the element has the first answer. */
    void settle(const AudioRoute &route)
    {
        QTRY_VERIFY(m_daemon->members().contains(GetAll));
        QTRY_VERIFY(route.findChildren<QDBusPendingCallWatcher *>().isEmpty());
    }
    /*! Waits until this process has worked off whatever was sent to it before. */
    static void catchUp()
    {
        FakeDaemon::synchronise(QDBusConnection::systemBus());
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

    std::unique_ptr<PrivateBus> m_bus = std::make_unique<PrivateBus>(PrivateBus::System);
    std::unique_ptr<FakeDaemon> m_daemon;
    QThread m_daemonThread;
};

void tst_AudioRoute::initTestCase()
{
    qDBusRegisterMetaType<Feature>();
    qDBusRegisterMetaType<QList<Feature>>();
    QVERIFY(QDBusConnection::systemBus().isConnected());
}

void tst_AudioRoute::init()
{
    startDaemon(state(0x1, 0x2));
}

void tst_AudioRoute::cleanup()
{
    if (m_daemonThread.isRunning()) {
        m_daemonThread.quit();
        m_daemonThread.wait();
    }
    m_daemon.reset();
}

void tst_AudioRoute::startDaemon(const QVariantList &state)
{
    m_daemon.reset();
    m_daemon = std::make_unique<FakeDaemon>(m_bus->address(), Service);
    m_daemon->answer(GetAll, state);
    m_daemon->answer(QStringLiteral("Enable"), {});
    m_daemon->answer(QStringLiteral("Disable"), {});
}

void tst_AudioRoute::runDaemonElsewhere()
{
    m_daemonThread.start();
    m_daemon->moveToThread(&m_daemonThread);
}

void tst_AudioRoute::interface()
{
    QCOMPARE(ownInterface(AudioRoute::staticMetaObject),
             QStringList({
                 QStringLiteral("property bool wiredOutputConnected notify wiredOutputConnectedChanged"),
                 QStringLiteral("property bool wiredInputConnected notify wiredInputConnectedChanged"),
                 QStringLiteral("property bool fmRadio write notify fmRadioChanged"),
                 QStringLiteral("signal wiredOutputConnectedChanged()"),
                 QStringLiteral("signal wiredInputConnectedChanged()"),
                 QStringLiteral("signal fmRadioChanged()"),
                 QStringLiteral("private slot handleAudioFeatureChanged(QString,uint,uint)"),
                 QStringLiteral("private slot handleAudioRouteChanged(QString,uint)"),
                 QStringLiteral("private slot handleGetAllReply(QDBusPendingCallWatcher*)"),
             }));
}

void tst_AudioRoute::startsDisconnected()
{
    m_daemon->hold(GetAll);
    AudioRoute route;
    QVERIFY(!route.wiredOutputConnected());
    QVERIFY(!route.wiredInputConnected());
    QVERIFY(!route.fmRadio());
    QTRY_COMPARE(m_daemon->members(), QStringList(GetAll));
    QCOMPARE(m_daemon->calls().first().arguments(), QVariantList());
    m_daemon->answerHeld();
    runDaemonElsewhere();
}

void tst_AudioRoute::readsTheFirstState_data()
{
    QTest::addColumn<QVariantList>("reply");
    QTest::addColumn<bool>("output");
    QTest::addColumn<bool>("input");
    QTest::addColumn<bool>("radio");
    QTest::newRow("nothing") << state(0x1, 0x2) << false << false << false;
    QTest::newRow("exactly four") << state(0x9, 0xa) << true << true << false;
    QTest::newRow("unsigned types") << state(0x9u, 0xau) << true << true << false;
    QTest::newRow("no features") << state(0x9, 0x2, features({})) << true << false << false;
    QTest::newRow("radio on") << state(0x1, 0x2, features({{Radio, 1, 1}})) << false << false << true;
    QTest::newRow("radio allowed") << state(0x1, 0x2, features({{Radio, 1, 0}})) << false << false << false;
    QTest::newRow("radio among others") << state(
        0x1, 0xa, features({{QStringLiteral("voice"), 1, 0}, {Radio, 0, 7}, {QStringLiteral("x"), 1, 0}}))
                                        << false << true << true;
    QTest::newRow("the last entry counts")
        << state(0x1, 0x2, features({{Radio, 1, 1}, {Radio, 1, 0}})) << false << false << false;
    QTest::newRow("both routes are outputs") << state(0x9, 0x1) << false << false << false;
    QTest::newRow("types as text") << state(QStringLiteral("9"), QStringLiteral("x")) << true << false << false;
    QTest::newRow("types as lists") << state(QStringList{QStringLiteral("9")}, QVariantList()) << false << false
                                    << false;
    QTest::newRow("features as text") << state(0x9, 0x2, QStringLiteral("a(suu)")) << true << false << false;
    QTest::newRow("features of another shape")
        << state(0x9, 0x2, QStringList{QStringLiteral("fmradioloopback")}) << true << false << false;
    QTest::newRow("features as a map") << state(0x9, 0x2, QVariantMap{{Radio, 1}}) << true << false << false;
    QTest::newRow("a feature that is no list")
        << state(0x9, 0x2, QVariant::fromValue(Feature{Radio, 1, 1})) << true << false << false;
    QTest::newRow("more than five") << state(0x9, 0x2, features({{Radio, 1, 1}})) + QVariantList{1, 2} << true << false
                                    << true;
}

void tst_AudioRoute::readsTheFirstState()
{
    QFETCH(QVariantList, reply);
    QFETCH(bool, output);
    QFETCH(bool, input);
    QFETCH(bool, radio);
    startDaemon(reply);
    AudioRoute route;
    settle(route);
    QCOMPARE(route.wiredOutputConnected(), output);
    QCOMPARE(route.wiredInputConnected(), input);
    QCOMPARE(route.fmRadio(), radio);
    runDaemonElsewhere();
}

void tst_AudioRoute::followsRoutes_data()
{
    QTest::addColumn<QList<uint>>("types");
    QTest::addColumn<bool>("output");
    QTest::addColumn<bool>("input");
    QTest::addColumn<QList<int>>("signalCounts");
    QTest::newRow("wired output") << QList<uint>{0x9} << true << false << QList<int>{1, 0, 0};
    QTest::newRow("output") << QList<uint>{0x9, 0x1} << false << false << QList<int>{2, 0, 0};
    QTest::newRow("wired input") << QList<uint>{0xa} << false << true << QList<int>{0, 1, 0};
    QTest::newRow("input") << QList<uint>{0xa, 0x2} << false << false << QList<int>{0, 2, 0};
    QTest::newRow("both is an output") << QList<uint>{0xb} << true << false << QList<int>{1, 0, 0};
    QTest::newRow("neither") << QList<uint>{0x8} << false << false << QList<int>{0, 0, 0};
    QTest::newRow("other bits") << QList<uint>{0xfffffff1, 0xfffffffd} << true << false << QList<int>{1, 0, 0};
    QTest::newRow("the same again") << QList<uint>{0x9, 0x9, 0xa, 0xa} << true << true << QList<int>{1, 1, 0};
}

void tst_AudioRoute::followsRoutes()
{
    QFETCH(QList<uint>, types);
    QFETCH(bool, output);
    QFETCH(bool, input);
    QFETCH(QList<int>, signalCounts);
    AudioRoute route;
    settle(route);
    const Spies spies(&route);
    for (const uint type : qAsConst(types))
        broadcast(RouteChanged, {QStringLiteral("whatever"), type});
    catchUp();
    QCOMPARE(route.wiredOutputConnected(), output);
    QCOMPARE(route.wiredInputConnected(), input);
    QCOMPARE(spies.counts(), signalCounts);
    runDaemonElsewhere();
}

void tst_AudioRoute::followsTheRadio()
{
    AudioRoute route;
    settle(route);
    const Spies spies(&route);
    broadcast(FeatureChanged, {QStringLiteral("FMRadioLoopback"), 1u, 1u});
    broadcast(FeatureChanged, {QStringLiteral("emergencycall"), 1u, 1u});
    broadcast(FeatureChanged, {Radio, 1u, 0u});
    catchUp();
    QCOMPARE(spies.counts(), (QList<int>{0, 0, 0}));
    broadcast(FeatureChanged, {Radio, 0u, 2u});
    QTRY_COMPARE(spies.radio.count(), 1);
    QVERIFY(route.fmRadio());
    broadcast(FeatureChanged, {Radio, 1u, 0u});
    QTRY_COMPARE(spies.radio.count(), 2);
    QVERIFY(!route.fmRadio());
    QCOMPARE(spies.counts(), (QList<int>{0, 0, 2}));
    runDaemonElsewhere();
}

void tst_AudioRoute::equalValuesAreNoChange()
{
    startDaemon(state(0x9, 0xa, features({{Radio, 1, 1}})));
    AudioRoute route;
    const Spies spies(&route);
    settle(route);
    QCOMPARE(spies.counts(), (QList<int>{1, 1, 1}));
    broadcast(RouteChanged, {QStringLiteral("x"), 0x9u});
    broadcast(RouteChanged, {QStringLiteral("y"), 0xau});
    broadcast(FeatureChanged, {Radio, 1u, 1u});
    broadcast(FeatureChanged, {Radio, 1u, 2u}); // no less enabled
    catchUp();
    QCOMPARE(spies.counts(), (QList<int>{1, 1, 1}));
    runDaemonElsewhere();
}

void tst_AudioRoute::warnsOfTooFewArguments_data()
{
    QTest::addColumn<QVariantList>("reply");
    QTest::newRow("none") << QVariantList();
    QTest::newRow("three") << QVariantList{QStringLiteral("out"), 0x9, QStringLiteral("in")};
}

void tst_AudioRoute::warnsOfTooFewArguments()
{
    QFETCH(QVariantList, reply);
    startDaemon(reply);
    const MessageLog log;
    AudioRoute route;
    QTRY_COMPARE(log.warnings(), QStringList(QStringLiteral("Audio route GetAll reply didn't have enough parameters")));
    QVERIFY(!route.wiredOutputConnected());
    runDaemonElsewhere();
}

void tst_AudioRoute::warnsOfErrors()
{
    m_daemon->answerWithError(GetAll, QStringLiteral("org.example.Error"), QStringLiteral("no"));
    const MessageLog log;
    AudioRoute route;
    QTRY_COMPARE(log.warnings(), QStringList(QStringLiteral("Audio route GetAll returned error")));
    runDaemonElsewhere();
}

void tst_AudioRoute::warnsWithoutService()
{
    m_daemon.reset();
    const MessageLog log;
    AudioRoute route;
    const Spies spies(&route);
    QTRY_COMPARE(log.warnings(), QStringList(QStringLiteral("Audio route GetAll returned error")));
    route.setFmRadio(true);
    QTest::qWait(50);
    QVERIFY(!route.fmRadio());
    QCOMPARE(spies.counts(), (QList<int>{0, 0, 0}));
    QCOMPARE(log.all().size(), 1);
}

void tst_AudioRoute::survivesOddBroadcasts_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<QVariantList>("values");
    QTest::newRow("feature, nothing") << FeatureChanged << QVariantList();
    QTest::newRow("feature, name only") << FeatureChanged << QVariantList{Radio};
    QTest::newRow("feature, signed") << FeatureChanged << QVariantList{Radio, 1, 1};
    QTest::newRow("feature, a list for the name") << FeatureChanged << QVariantList{QStringList{Radio}, 1u, 1u};
    QTest::newRow("feature, a map for a flag") << FeatureChanged << QVariantList{Radio, 1u, QVariantMap{{Radio, 1}}};
    QTest::newRow("feature, a structure") << FeatureChanged << QVariantList{QVariant::fromValue(Feature{Radio, 1, 1})};
    QTest::newRow("route, a list for the type") << RouteChanged << QVariantList{QStringLiteral("x"), QVariantList{9}};
    QTest::newRow("route, signed") << RouteChanged << QVariantList{QStringLiteral("x"), 9};
}

void tst_AudioRoute::survivesOddBroadcasts()
{
    QFETCH(QString, member);
    QFETCH(QVariantList, values);
    AudioRoute route;
    settle(route);
    const Spies spies(&route);
    broadcast(member, values);
    // A proper one afterwards is still heard.
    broadcast(RouteChanged, {QStringLiteral("x"), 0xau});
    QTRY_VERIFY(route.wiredInputConnected());
    QCOMPARE(spies.counts(), (QList<int>{0, 1, 0}));
    runDaemonElsewhere();
}

void tst_AudioRoute::ignoresStrangers()
{
    AudioRoute route;
    settle(route);
    const Spies spies(&route);
    FakeDaemon stranger(m_bus->address());
    stranger.emitSignal(Path, Interface, RouteChanged, {QStringLiteral("x"), 0x9u});
    stranger.emitSignal(Path, Interface, FeatureChanged, {Radio, 1u, 1u});
    m_daemon->emitSignal(QStringLiteral("/elsewhere"), Interface, RouteChanged, {QStringLiteral("x"), 0x9u});
    catchUp();
    QCOMPARE(spies.counts(), (QList<int>{0, 0, 0}));
    runDaemonElsewhere();
}

void tst_AudioRoute::asksOnlyOnce()
{
    AudioRoute route;
    settle(route);
    startDaemon(state(0x9, 0xa));
    QTest::qWait(100);
    QCOMPARE(m_daemon->members(), QStringList());
    QVERIFY(!route.wiredOutputConnected());
    // What a restarted route manager broadcasts is heard all the same.
    broadcast(RouteChanged, {QStringLiteral("x"), 0x9u});
    QTRY_VERIFY(route.wiredOutputConnected());
    runDaemonElsewhere();
}

void tst_AudioRoute::switchesTheRadio()
{
    AudioRoute route;
    settle(route);
    runDaemonElsewhere();
    route.setProperty("fmRadio", true);
    route.setProperty("fmRadio", false);
    const QList<QDBusMessage> calls = m_daemon->calls();
    QCOMPARE(m_daemon->members(), QStringList({GetAll, QStringLiteral("Enable"), QStringLiteral("Disable")}));
    QCOMPARE(calls.at(1).arguments(), QVariantList{Radio});
    QCOMPARE(calls.at(1).signature(), QStringLiteral("s"));
    QCOMPARE(calls.at(2).arguments(), QVariantList{Radio});
}

void tst_AudioRoute::radioStaysAsReported()
{
    AudioRoute route;
    settle(route);
    const Spies spies(&route);
    runDaemonElsewhere();
    route.setFmRadio(true);
    QTest::qWait(50);
    QVERIFY(!route.fmRadio());
    QCOMPARE(spies.counts(), (QList<int>{0, 0, 0}));
}

void tst_AudioRoute::switchingWaitsForTheAnswer()
{
    AudioRoute route;
    settle(route);
    m_daemon->hold(QStringLiteral("Enable"));
    runDaemonElsewhere();
    const MessageLog log;
    QElapsedTimer timer;
    timer.start();
    route.setFmRadio(true);
    // Of a route manager that never answers, the usual 25 seconds of Qt's coarse timers are the end, once.
    QVERIFY2(timer.elapsed() >= 23000 && timer.elapsed() < 46000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(!route.fmRadio());
    QCOMPARE(log.all(), QStringList());
}

void tst_AudioRoute::isSwitchedOffAtDestruction()
{
    auto route = std::make_unique<AudioRoute>();
    settle(*route);
    runDaemonElsewhere();
    route.reset();
    QCOMPARE(m_daemon->members(), QStringList({GetAll, QStringLiteral("Disable")}));
}

void tst_AudioRoute::destroyedWhileWaiting()
{
    m_daemon->hold(GetAll);
    auto route = std::make_unique<AudioRoute>();
    QTRY_COMPARE(m_daemon->members(), QStringList(GetAll));
    runDaemonElsewhere();
    route.reset();
    m_daemonThread.quit();
    m_daemonThread.wait();
    const MessageLog log;
    m_daemon->answerHeld();
    QTest::qWait(50);
    QCOMPARE(log.all(), QStringList());
}

void tst_AudioRoute::destroyedInItsOwnSignal()
{
    startDaemon(state(0x9, 0xa, features({{Radio, 1, 1}, {Radio, 1, 0}, {Radio, 1, 1}})));
    runDaemonElsewhere();
    for (const auto signal : {&AudioRoute::wiredOutputConnectedChanged, &AudioRoute::wiredInputConnectedChanged,
                              &AudioRoute::fmRadioChanged}) {
        auto *later = new AudioRoute;
        connect(later, signal, later, &QObject::deleteLater);
        const QSignalSpy destroyedLater(later, &QObject::destroyed);
        QTRY_COMPARE(destroyedLater.count(), 1);

        auto *atOnce = new AudioRoute;
        connect(atOnce, signal, this, [atOnce] { delete atOnce; });
        const QSignalSpy destroyedAtOnce(atOnce, &QObject::destroyed);
        QTRY_COMPARE(destroyedAtOnce.count(), 1);

        // By a broadcast.
        auto *settled = new AudioRoute;
        QTRY_VERIFY(settled->findChildren<QDBusPendingCallWatcher *>().isEmpty());
        connect(settled, signal, this, [settled] { delete settled; });
        const QSignalSpy destroyed(settled, &QObject::destroyed);
        broadcast(RouteChanged, {QStringLiteral("x"), 0x1u});
        broadcast(RouteChanged, {QStringLiteral("x"), 0x2u});
        broadcast(FeatureChanged, {Radio, 1u, 0u});
        QTRY_COMPARE(destroyed.count(), 1);
    }
}

void tst_AudioRoute::neverStartsTheService()
{
    m_daemon.reset();
    QVERIFY(m_bus->makeStartable(Service));
    const MessageLog log;
    {
        AudioRoute route;
        QTRY_COMPARE(log.warnings().size(), 1);
        route.setFmRadio(true);
    }
    QTest::qWait(200);
    QVERIFY(!m_bus->hasStarted(Service));
    QVERIFY(m_bus->makeUnstartable(Service));
}

// The last one: this process has no system bus any more afterwards.
void tst_AudioRoute::survivesTheBus()
{
    m_daemon->hold(GetAll);
    auto early = std::make_unique<AudioRoute>();
    QTRY_COMPARE(m_daemon->members(), QStringList(GetAll));
    const MessageLog log;
    m_bus->kill();
    QTRY_VERIFY(!QDBusConnection::systemBus().isConnected());
    QTRY_COMPARE(log.warnings(), QStringList(QStringLiteral("Audio route GetAll returned error")));
    AudioRoute late;
    QTRY_COMPARE(log.warnings().count(QStringLiteral("Audio route GetAll returned error")), 2);
    late.setFmRadio(true);
    QVERIFY(!late.fmRadio());
    early.reset();
}

QTEST_GUILESS_MAIN(tst_AudioRoute)
#include "tst_audioroute.moc"
