// SPDX-License-Identifier: BSD-3-Clause
#include "gps.h"
#include "messagelog.h"
#include "metaobject.h"
#include "privatebus.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

#include <limits>
#include <memory>

namespace
{
const QString Service = QStringLiteral("org.freedesktop.Geoclue.Providers.Hybris");
const QString Path = QStringLiteral("/org/freedesktop/Geoclue/Providers/Hybris");
const QString Interface = QStringLiteral("org.freedesktop.Geoclue");
const QString SatelliteInterface = QStringLiteral("org.freedesktop.Geoclue.Satellite");
const QString GetStatus = QStringLiteral("GetStatus");
const QString GetSatellite = QStringLiteral("GetSatellite");
const QString StatusChanged = QStringLiteral("StatusChanged");

using NumberMap = QMap<int, QString>;

/*! One satellite of GeoClue's reports. */
struct Row
{
    int identifier;
    int elevation;
    int azimuth;
    int strength;
};
using Rows = QList<Row>;

QDBusArgument &operator<<(QDBusArgument &argument, const Row &row)
{
    argument.beginStructure();
    argument << row.identifier << row.elevation << row.azimuth << row.strength;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Row &row)
{
    argument.beginStructure();
    argument >> row.identifier >> row.elevation >> row.azimuth >> row.strength;
    argument.endStructure();
    return argument;
}

QVariantList report(const Rows &inView, const QList<int> &inUse)
{
    return {0, inUse.count(), inView.count(), QVariant::fromValue(inUse), QVariant::fromValue(inView)};
}

QGeoSatelliteInfo satellite(int identifier, int strength = 30, qreal elevation = 45, qreal azimuth = 180)
{
    QGeoSatelliteInfo info;
    info.setSatelliteIdentifier(identifier);
    info.setSignalStrength(strength);
    info.setAttribute(QGeoSatelliteInfo::Elevation, elevation);
    info.setAttribute(QGeoSatelliteInfo::Azimuth, azimuth);
    return info;
}

QVariantMap entry(int identifier, int strength, double elevation, double azimuth, bool inUse)
{
    return {{QStringLiteral("identifier"), identifier},
            {QStringLiteral("strength"), strength},
            {QStringLiteral("elevation"), elevation},
            {QStringLiteral("azimuth"), azimuth},
            {QStringLiteral("inUse"), inUse}};
}

/*! The element and, in order, what it has signalled, each with the value it had at that moment. */
struct Watched
{
    Watched()
    {
        QObject::connect(&gps, &Gps::statusChanged, &gps, [this] { statuses << int(gps.status()); });
        QObject::connect(&gps, &Gps::satelliteInfoErrorChanged, &gps,
                         [this] { seen << QStringLiteral("error %1").arg(gps.satelliteInfoError()); });
        QObject::connect(&gps, &Gps::satellitesInViewChanged, &gps,
                         [this] { seen << QStringLiteral("view %1").arg(gps.satellitesInView()); });
        QObject::connect(&gps, &Gps::satellitesInUseChanged, &gps,
                         [this] { seen << QStringLiteral("use %1").arg(gps.satellitesInUse()); });
        QObject::connect(&gps, &Gps::satelliteInfoChanged, &gps, [this] { seen << QStringLiteral("info"); });
    }
    bool waits() const { return gps.findChild<QDBusPendingCallWatcher *>(QString(), Qt::FindDirectChildrenOnly); }
    QGeoSatelliteInfoSource *source() const { return gps.findChild<QGeoSatelliteInfoSource *>(); }
    QStringList takeSeen() { return std::exchange(seen, QStringList()); }

    Gps gps;
    QList<int> statuses;
    QStringList seen;
};
}
Q_DECLARE_METATYPE(NumberMap)
Q_DECLARE_METATYPE(Row)
Q_DECLARE_METATYPE(Rows)

class tst_Gps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void interface();

    void asksOnceForTheStatus();
    void startsUnavailable();
    void takesStatus_data();
    void takesStatus();
    void followsStatusBroadcasts();
    void unavailableWhenProviderLeaves();
    void staysUnavailableSilently();
    void staysWhenAnotherServiceLeaves();
    void errorWithoutProvider();
    void errorWhateverTheErrorSays();
    void errorWhenProviderDiesInMidCall();
    void survivesOddBroadcasts_data();
    void survivesOddBroadcasts();
    void ignoresStrangers();
    void neverStartsTheProvider();
    void destroyedWhileWaiting();
    void destroyedInItsOwnSignal();

    void startsTheSource();
    void followsTheSky();
    void reportsSatellites();
    void sameNumberIsNoChangeOfCount();
    void comparesIdentifiersOnly();
    void missingAttributes();
    void reportsSourceErrors();
    void survivesManySatellites();
    void destroyedInSourceSignal();

private:
    void startProvider();
    void broadcastStatus(int status) { m_provider->emitSignal(Path, Interface, StatusChanged, {status}); }

    PrivateBus m_bus{PrivateBus::Session};
    std::unique_ptr<FakeDaemon> m_provider;
};

void tst_Gps::initTestCase()
{
    QVERIFY(!m_bus.address().isEmpty());
    qDBusRegisterMetaType<NumberMap>();
    qDBusRegisterMetaType<Row>();
    qDBusRegisterMetaType<Rows>();
    QVERIFY(QDBusConnection::sessionBus().isConnected());
    QCoreApplication::addLibraryPath(QStringLiteral(KIV_SIMULATED_PLUGINS));
    QCOMPARE(QGeoSatelliteInfoSource::availableSources(), QStringList(QStringLiteral("kiv-satellites")));
}

void tst_Gps::init()
{
    startProvider();
}

void tst_Gps::cleanup()
{
    m_provider.reset();
}

void tst_Gps::startProvider()
{
    m_provider = std::make_unique<FakeDaemon>(m_bus.address(), Service);
    m_provider->answer(GetStatus, {int(Gps::StatusAcquiring)});
    m_provider->answer(GetSatellite, report({}, {}));
}

void tst_Gps::interface()
{
    const QStringList expected{
        QStringLiteral("enum Status: StatusError=0, StatusUnavailable=1, StatusAcquiring=2, StatusAvailable=3"),
        QStringLiteral("property Status status notify statusChanged"),
        QStringLiteral("property bool satelliteInfoAvailable constant"),
        QStringLiteral("property bool satelliteInfoError notify satelliteInfoErrorChanged"),
        QStringLiteral("property int satellitesInView notify satellitesInViewChanged"),
        QStringLiteral("property int satellitesInUse notify satellitesInUseChanged"),
        QStringLiteral("property QVariantList satelliteInfo notify satelliteInfoChanged"),
        QStringLiteral("signal statusChanged()"),
        QStringLiteral("signal satelliteInfoErrorChanged()"),
        QStringLiteral("signal satellitesInViewChanged()"),
        QStringLiteral("signal satellitesInUseChanged()"),
        QStringLiteral("signal satelliteInfoChanged()"),
        QStringLiteral("private slot positionProviderStatusChanged(int)"),
        QStringLiteral("private slot serviceUnregistered(QString)"),
        QStringLiteral("private slot providerGetStatusFinished(QDBusPendingCallWatcher*)"),
        QStringLiteral("private slot satellitesInViewUpdated(QList<QGeoSatelliteInfo>)"),
        QStringLiteral("private slot satellitesInUseUpdated(QList<QGeoSatelliteInfo>)"),
        QStringLiteral("private slot satelliteSourceError(QGeoSatelliteInfoSource::Error)"),
    };
    QCOMPARE(ownInterface(Gps::staticMetaObject), expected);
    QCOMPARE(Gps::staticMetaObject.superClass(), &QObject::staticMetaObject);
}

void tst_Gps::asksOnceForTheStatus()
{
    Watched watched;
    QTRY_COMPARE(watched.gps.status(), Gps::StatusAcquiring);
    QTRY_VERIFY(!watched.waits());
    broadcastStatus(3);
    QTRY_COMPARE(watched.gps.status(), Gps::StatusAvailable);
    QCOMPARE(m_provider->members().count(GetStatus), 1);
    const QDBusMessage call = m_provider->calls().at(m_provider->members().indexOf(GetStatus));
    QCOMPARE(call.path(), Path);
    QCOMPARE(call.interface(), Interface);
    QVERIFY(call.arguments().isEmpty());
}

void tst_Gps::startsUnavailable()
{
    m_provider->hold(GetStatus);
    Watched watched;
    QTRY_VERIFY(m_provider->members().contains(GetStatus));
    QCOMPARE(watched.gps.status(), Gps::StatusUnavailable);
    // A broadcast does not have to wait for the answer, which has the last word here.
    broadcastStatus(3);
    QTRY_COMPARE(watched.statuses, QList<int>({3}));
    m_provider->answerHeld();
    QTRY_COMPARE(watched.statuses, QList<int>({3, 2}));
}

void tst_Gps::takesStatus_data()
{
    QTest::addColumn<QVariantList>("values");
    QTest::addColumn<int>("status");
    QTest::newRow("error") << QVariantList{0} << 0;
    QTest::newRow("unavailable") << QVariantList{1} << 1;
    QTest::newRow("acquiring") << QVariantList{2} << 2;
    QTest::newRow("available") << QVariantList{3} << 3;
    QTest::newRow("4") << QVariantList{4} << 4;
    QTest::newRow("-1") << QVariantList{-1} << -1;
    QTest::newRow("widest") << QVariantList{std::numeric_limits<int>::min()} << std::numeric_limits<int>::min();
    QTest::newRow("unsigned") << QVariantList{3u} << 3;
    QTest::newRow("64 bits") << QVariantList{3ll} << 3;
    QTest::newRow("number as text") << QVariantList{QStringLiteral("3")} << 3;
    QTest::newRow("two values") << QVariantList{3, QStringLiteral("more")} << 3;
    QTest::newRow("nothing") << QVariantList() << 0;
    QTest::newRow("text") << QVariantList{QStringLiteral("fixed")} << 0;
    QTest::newRow("empty text") << QVariantList{QString()} << 0;
    QTest::newRow("variant") << QVariantList{QVariant::fromValue(QDBusVariant(3))} << 0;
    QTest::newRow("array") << QVariantList{QVariant::fromValue(QList<int>{3})} << 0;
    QTest::newRow("map") << QVariantList{QVariantMap{{QStringLiteral("status"), 3}}} << 0;
    QTest::newRow("map of numbers") << QVariantList{QVariant::fromValue(NumberMap{{3, QString()}})} << 0;
    QTest::newRow("structures") << QVariantList{QVariant::fromValue(Rows{{3, 3, 3, 3}})} << 0;
}

void tst_Gps::takesStatus()
{
    QFETCH(QVariantList, values);
    QFETCH(int, status);
    m_provider->answer(GetStatus, values);
    MessageLog log;
    Watched watched;
    QTRY_VERIFY(!watched.waits());
    QCOMPARE(int(watched.gps.status()), status);
    QCOMPARE(watched.gps.property("status").toInt(), status);
    QCOMPARE(watched.statuses, status == 1 ? QList<int>() : QList<int>({status}));
    QVERIFY(log.all().isEmpty());
}

void tst_Gps::followsStatusBroadcasts()
{
    Watched watched;
    QTRY_COMPARE(watched.statuses, QList<int>({2}));
    for (const int status : {2, 3, 3, 0, 7, -5, 7, 1})
        broadcastStatus(status);
    QTRY_COMPARE(watched.statuses, QList<int>({2, 3, 0, 7, -5, 7, 1}));
}

void tst_Gps::unavailableWhenProviderLeaves()
{
    m_provider->answer(GetStatus, {3});
    Watched watched;
    QTRY_COMPARE(watched.statuses, QList<int>({3}));
    m_provider->die();
    QTRY_COMPARE(watched.statuses, QList<int>({3, 1}));

    // Back again, it is heard but not asked.
    startProvider();
    broadcastStatus(2);
    QTRY_COMPARE(watched.statuses, QList<int>({3, 1, 2}));
    QVERIFY(!m_provider->members().contains(GetStatus));

    // Only the name counts, not the process.
    m_provider->disown(Service);
    QTRY_COMPARE(watched.statuses, QList<int>({3, 1, 2, 1}));
}

void tst_Gps::staysUnavailableSilently()
{
    m_provider->answer(GetStatus, {1});
    Watched watched;
    QTRY_VERIFY(!watched.waits());
    m_provider->die();
    startProvider();
    broadcastStatus(2);
    QTRY_COMPARE(watched.statuses, QList<int>({2}));
}

void tst_Gps::staysWhenAnotherServiceLeaves()
{
    m_provider->answer(GetStatus, {3});
    Watched watched;
    QTRY_COMPARE(watched.statuses, QList<int>({3}));
    QVERIFY(QMetaObject::invokeMethod(&watched.gps, "serviceUnregistered",
                                      Q_ARG(QString, Service + QStringLiteral(".Other"))));
    QCOMPARE(watched.statuses, QList<int>({3}));
    QVERIFY(QMetaObject::invokeMethod(&watched.gps, "serviceUnregistered", Q_ARG(QString, Service)));
    QCOMPARE(watched.statuses, QList<int>({3, 1}));
}

void tst_Gps::errorWithoutProvider()
{
    m_provider.reset();
    MessageLog log;
    Watched watched;
    QCOMPARE(watched.gps.status(), Gps::StatusUnavailable);
    QTRY_COMPARE(watched.statuses, QList<int>({0}));
    QTRY_VERIFY(!watched.waits());
    startProvider();
    broadcastStatus(3);
    QTRY_COMPARE(watched.statuses, QList<int>({0, 3}));
    QVERIFY2(log.all().isEmpty(), qPrintable(log.all().join(QLatin1Char('\n'))));
}

void tst_Gps::errorWhateverTheErrorSays()
{
    m_provider->answerWithError(GetStatus, QStringLiteral("org.freedesktop.Geoclue.Error"), QStringLiteral("3"));
    MessageLog log;
    Watched watched;
    QTRY_COMPARE(watched.statuses, QList<int>({0}));
    QVERIFY(log.all().isEmpty());
}

void tst_Gps::errorWhenProviderDiesInMidCall()
{
    m_provider->hold(GetStatus);
    Watched watched;
    QTRY_VERIFY(m_provider->members().contains(GetStatus));
    m_provider->die();
    // The bus tells both, that the name is free, which is no news, and that there will be no answer.
    QTRY_COMPARE(watched.statuses, QList<int>({0}));
}

void tst_Gps::survivesOddBroadcasts_data()
{
    QTest::addColumn<QVariantList>("values");
    QTest::newRow("nothing") << QVariantList();
    QTest::newRow("unsigned") << QVariantList{3u};
    QTest::newRow("64 bits") << QVariantList{3ll};
    QTest::newRow("text") << QVariantList{QStringLiteral("3")};
    QTest::newRow("two values") << QVariantList{3, 3};
    QTest::newRow("variant") << QVariantList{QVariant::fromValue(QDBusVariant(3))};
    QTest::newRow("array") << QVariantList{QVariant::fromValue(QList<int>{3})};
    QTest::newRow("map") << QVariantList{QVariantMap{{QStringLiteral("status"), 3}}};
    QTest::newRow("map of numbers") << QVariantList{QVariant::fromValue(NumberMap{{3, QString()}})};
    QTest::newRow("structures") << QVariantList{QVariant::fromValue(Rows{{3, 3, 3, 3}})};
}

void tst_Gps::survivesOddBroadcasts()
{
    QFETCH(QVariantList, values);
    Watched watched;
    QTRY_COMPARE(watched.statuses, QList<int>({2}));
    m_provider->emitSignal(Path, Interface, StatusChanged, values);
    m_provider->emitSignal(QStringLiteral("/other"), Interface, StatusChanged, {3});
    m_provider->emitSignal(Path, SatelliteInterface, StatusChanged, {3});
    broadcastStatus(0);
    QTRY_COMPARE(watched.statuses, QList<int>({2, 0}));
}

void tst_Gps::ignoresStrangers()
{
    const QString own = QDBusConnection::sessionBus().baseService();
    FakeDaemon stranger(m_bus.address());
    Watched watched;
    QTRY_COMPARE(watched.statuses, QList<int>({2}));
    stranger.emitSignal(Path, Interface, StatusChanged, {3});
    stranger.emitSignal(Path, Interface, StatusChanged, {3}, own);
    broadcastStatus(0);
    QTRY_COMPARE(watched.statuses, QList<int>({2, 0}));

    m_provider->disown(Service);
    QTRY_COMPARE(watched.statuses, QList<int>({2, 0, 1}));
    stranger.emitSignal(Path, Interface, StatusChanged, {3});
    stranger.emitSignal(Path, Interface, StatusChanged, {3}, own);
    m_provider->own(Service);
    broadcastStatus(2);
    QTRY_COMPARE(watched.statuses, QList<int>({2, 0, 1, 2}));
}

void tst_Gps::neverStartsTheProvider()
{
    m_provider.reset();
    QVERIFY(m_bus.makeStartable(Service));
    {
        Watched watched;
        QTRY_COMPARE(watched.statuses, QList<int>({0}));
        QTRY_VERIFY(watched.gps.satelliteInfoError());
    }
    QVERIFY(!m_bus.hasStarted(Service));

    // An ordinary call would have.
    const QDBusPendingCall ordinary =
        QDBusConnection::sessionBus().asyncCall(QDBusMessage::createMethodCall(Service, Path, Interface, GetStatus));
    QTRY_VERIFY(ordinary.isFinished());
    QVERIFY(m_bus.hasStarted(Service));
    QVERIFY(m_bus.makeUnstartable(Service));
}

void tst_Gps::destroyedWhileWaiting()
{
    m_provider->hold(GetStatus);
    m_provider->hold(GetSatellite);
    MessageLog log;
    QList<QPointer<QObject>> watchers;
    for (int round = 0; round < 20; ++round) {
        const Gps gps;
        for (QDBusPendingCallWatcher *watcher : gps.findChildren<QDBusPendingCallWatcher *>())
            watchers << watcher;
        if (round % 2)
            QTRY_COMPARE(m_provider->calls().count(), 2 * (round + 1));
    }
    QCOMPARE(watchers.count(), 40);
    for (const auto &watcher : qAsConst(watchers))
        QVERIFY(watcher.isNull());
    m_provider->answerHeld();
    broadcastStatus(3);

    Watched next;
    QTRY_COMPARE(next.statuses, QList<int>({2}));
    QVERIFY2(log.all().isEmpty(), qPrintable(log.all().join(QLatin1Char('\n'))));
}

void tst_Gps::destroyedInItsOwnSignal()
{
    auto *gps = new Gps;
    connect(gps, &Gps::statusChanged, gps, &QObject::deleteLater);
    QSignalSpy destroyed(gps, &QObject::destroyed);
    QTRY_COMPARE(destroyed.count(), 1);
}

void tst_Gps::startsTheSource()
{
    Watched watched;
    QVERIFY(watched.source());
    QCOMPARE(watched.source()->parent(), &watched.gps);
    QCOMPARE(watched.source()->updateInterval(), 0);
    QVERIFY(watched.gps.satelliteInfoAvailable());
    QVERIFY(!watched.gps.satelliteInfoError());
    QCOMPARE(watched.gps.satelliteInfo(), QVariantList());
    QTRY_VERIFY(m_provider->members().contains(GetSatellite));
}

void tst_Gps::followsTheSky()
{
    m_provider->answer(GetSatellite, report({{5, 40, 83, 46}, {17, 12, 308, 41}}, {5}));
    Watched watched;
    QTRY_COMPARE(watched.seen.count(), 4);
    QCOMPARE(watched.takeSeen(),
             QStringList(
                 {QStringLiteral("info"), QStringLiteral("view 2"), QStringLiteral("info"), QStringLiteral("use 1")}));
    QCOMPARE(watched.gps.satelliteInfo(), QVariantList({entry(5, 46, 40, 83, true), entry(17, 41, 12, 308, false)}));

    m_provider->emitSignal(Path, SatelliteInterface, QStringLiteral("SatelliteChanged"),
                           report({{17, 13, 307, 40}, {5, 39, 84, 45}, {3, 1, 0, 9}}, {17, 5}));
    QTRY_COMPARE(watched.seen.count(), 4);
    QCOMPARE(watched.takeSeen(),
             QStringList(
                 {QStringLiteral("info"), QStringLiteral("view 3"), QStringLiteral("info"), QStringLiteral("use 2")}));
    QCOMPARE(watched.gps.satelliteInfo(),
             QVariantList({entry(17, 40, 13, 307, true), entry(5, 45, 39, 84, true), entry(3, 9, 1, 0, false)}));

    m_provider->die();
    QTRY_VERIFY(watched.gps.satelliteInfoError());
    QCOMPARE(watched.gps.satelliteInfo(), QVariantList());
    QCOMPARE(watched.gps.satellitesInView(), 0);
    QCOMPARE(watched.gps.satellitesInUse(), 0);
    startProvider();
    QTRY_VERIFY(!watched.gps.satelliteInfoError());
}

void tst_Gps::reportsSatellites()
{
    Watched watched;
    QTRY_COMPARE(watched.seen.count(), 2);
    watched.takeSeen();
    Q_EMIT watched.source()->satellitesInViewUpdated({satellite(9, -1, 0.5, 359.75), satellite(-2, 99)});
    Q_EMIT watched.source()->satellitesInUseUpdated({satellite(9), satellite(30)});
    QCOMPARE(watched.gps.satellitesInView(), 2);
    // Whatever is not in view does not appear, but counts.
    QCOMPARE(watched.gps.satellitesInUse(), 2);

    const QVariantList satellites = watched.gps.satelliteInfo();
    QCOMPARE(satellites, QVariantList({entry(9, -1, 0.5, 359.75, true), entry(-2, 99, 45, 180, false)}));
    QCOMPARE(watched.gps.satelliteInfo(), satellites);
    const QVariantMap first = satellites.first().toMap();
    QCOMPARE(first.value(QStringLiteral("identifier")).userType(), int(QMetaType::Int));
    QCOMPARE(first.value(QStringLiteral("strength")).userType(), int(QMetaType::Int));
    QCOMPARE(first.value(QStringLiteral("elevation")).userType(), qMetaTypeId<qreal>());
    QCOMPARE(first.value(QStringLiteral("azimuth")).userType(), qMetaTypeId<qreal>());
    QCOMPARE(first.value(QStringLiteral("inUse")).userType(), int(QMetaType::Bool));
}

void tst_Gps::sameNumberIsNoChangeOfCount()
{
    Watched watched;
    QTRY_COMPARE(watched.seen.count(), 2);
    watched.takeSeen();
    QGeoSatelliteInfoSource *source = watched.source();
    const QList<QGeoSatelliteInfo> one{satellite(1)};
    Q_EMIT source->satellitesInViewUpdated(one);
    Q_EMIT source->satellitesInUseUpdated(one);
    QCOMPARE(watched.takeSeen(),
             QStringList(
                 {QStringLiteral("info"), QStringLiteral("view 1"), QStringLiteral("info"), QStringLiteral("use 1")}));
    Q_EMIT source->satellitesInViewUpdated(one);
    Q_EMIT source->satellitesInUseUpdated(one);
    Q_EMIT source->satellitesInViewUpdated({satellite(2)});
    Q_EMIT source->satellitesInUseUpdated({satellite(2)});
    QCOMPARE(
        watched.takeSeen(),
        QStringList({QStringLiteral("info"), QStringLiteral("info"), QStringLiteral("info"), QStringLiteral("info")}));
    QCOMPARE(watched.gps.satelliteInfo(), QVariantList({entry(2, 30, 45, 180, true)}));
    Q_EMIT source->satellitesInUseUpdated({});
    Q_EMIT source->satellitesInViewUpdated({});
    QCOMPARE(watched.takeSeen(),
             QStringList(
                 {QStringLiteral("info"), QStringLiteral("use 0"), QStringLiteral("info"), QStringLiteral("view 0")}));
}

void tst_Gps::comparesIdentifiersOnly()
{
    Watched watched;
    QTRY_COMPARE(watched.seen.count(), 2);
    watched.takeSeen();
    QGeoSatelliteInfo other = satellite(7, 1, 2, 3);
    other.setSatelliteSystem(QGeoSatelliteInfo::GLONASS);
    Q_EMIT watched.source()->satellitesInUseUpdated({other});
    Q_EMIT watched.source()->satellitesInViewUpdated({satellite(7), satellite(8), satellite(7, 5)});
    QCOMPARE(watched.gps.satelliteInfo(),
             QVariantList({entry(7, 30, 45, 180, true), entry(8, 30, 45, 180, false), entry(7, 5, 45, 180, true)}));
}

void tst_Gps::missingAttributes()
{
    Watched watched;
    QTRY_COMPARE(watched.seen.count(), 2);
    watched.takeSeen();
    Q_EMIT watched.source()->satellitesInViewUpdated({QGeoSatelliteInfo()});
    QCOMPARE(watched.gps.satelliteInfo(), QVariantList({entry(-1, -1, -1, -1, false)}));
}

void tst_Gps::reportsSourceErrors()
{
    Watched watched;
    QTRY_COMPARE(watched.seen.count(), 2);
    watched.takeSeen();
    QGeoSatelliteInfoSource *source = watched.source();
    using Source = QGeoSatelliteInfoSource;
    Q_EMIT source->satellitesInViewUpdated({satellite(1)});
    watched.takeSeen();
    for (const Source::Error error : {Source::NoError, Source::AccessError, Source::AccessError, Source::ClosedError,
                                      Source::UnknownSourceError, Source::NoError, Source::NoError})
        Q_EMIT source->error(error);
    QCOMPARE(watched.takeSeen(),
             QStringList({QStringLiteral("error 1"), QStringLiteral("error 1"), QStringLiteral("error 1"),
                          QStringLiteral("error 0")}));
    // Nothing else moves, and the source goes on.
    QCOMPARE(watched.gps.satellitesInView(), 1);
    QVERIFY(watched.gps.satelliteInfoAvailable());
    m_provider->emitSignal(Path, SatelliteInterface, QStringLiteral("SatelliteChanged"), report({}, {}));
    QTRY_COMPARE(watched.gps.satellitesInView(), 0);
}

void tst_Gps::survivesManySatellites()
{
    Rows many;
    QList<int> used;
    for (int i = 0; i < 20000; ++i)
        many << Row{i, i, i, i};
    used << 19999;
    m_provider->answer(GetSatellite, report(many, used));
    Watched watched;
    QTRY_COMPARE(watched.gps.satellitesInView(), 20000);
    const QVariantList satellites = watched.gps.satelliteInfo();
    QCOMPARE(satellites.count(), 20000);
    QVERIFY(satellites.last().toMap().value(QStringLiteral("inUse")).toBool());
}

void tst_Gps::destroyedInSourceSignal()
{
    m_provider->answer(GetSatellite, report({{5, 40, 83, 46}}, {5}));
    for (const auto signal :
         {&Gps::satelliteInfoChanged, &Gps::satellitesInViewChanged, &Gps::satellitesInUseChanged}) {
        auto *gps = new Gps;
        connect(gps, signal, gps, &QObject::deleteLater);
        QSignalSpy destroyed(gps, &QObject::destroyed);
        QTRY_COMPARE(destroyed.count(), 1);
    }

    // At once, by a source that does not mind.
    for (const bool inView : {true, false}) {
        QGeoSatelliteInfoSource *source = nullptr;
        auto *gps = new Gps;
        source = gps->findChild<QGeoSatelliteInfoSource *>();
        source->setParent(nullptr);
        connect(gps, &Gps::satelliteInfoChanged, this, [gps] { delete gps; });
        QSignalSpy destroyed(gps, &QObject::destroyed);
        if (inView)
            Q_EMIT source->satellitesInViewUpdated({satellite(1)});
        else
            Q_EMIT source->satellitesInUseUpdated({satellite(1)});
        QCOMPARE(destroyed.count(), 1);
        delete source;
    }
}

QTEST_GUILESS_MAIN(tst_Gps)

#include "tst_gps.moc"
