// SPDX-License-Identifier: BSD-3-Clause
#include "messagelog.h"
#include "metaobject.h"
#include "privatebus.h"
#include "zel.h"

#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

namespace
{
const QString Service = QStringLiteral("com.orvel.zeld");
const QString Path = QStringLiteral("/com/orvel/zeld");
const QString Properties = QStringLiteral("org.freedesktop.DBus.Properties");
const QString GetAll = QStringLiteral("GetAll");
const QString PropertiesChanged = QStringLiteral("PropertiesChanged");

const QString Ready = QStringLiteral("Ready");
const QString Docked = QStringLiteral("Docked");
const QString Id = QStringLiteral("ZELID");

using NumberMap = QMap<int, QDBusVariant>;
using TextMap = QMap<QString, QString>;
using PathMap = QMap<QDBusObjectPath, QDBusVariant>;

/*! The element and, in order, what it has signalled, each with the value it had at that moment. */
struct Watched
{
    Watched()
    {
        QObject::connect(&zel, &Zel::readyChanged, &zel,
                         [this] { seen << QStringLiteral("ready %1").arg(zel.ready()); });
        QObject::connect(&zel, &Zel::dockedChanged, &zel,
                         [this] { seen << QStringLiteral("docked %1").arg(zel.docked()); });
        QObject::connect(&zel, &Zel::zelIdChanged, &zel,
                         [this] { seen << QStringLiteral("id '%1'").arg(zel.zelId()); });
        QObject::connect(&zel, &Zel::errorChanged, &zel,
                         [this] { seen << QStringLiteral("error %1").arg(zel.error()); });
    }
    bool waits() const { return zel.findChild<QDBusPendingCallWatcher *>(); }

    Zel zel;
    QStringList seen;
};
}
Q_DECLARE_METATYPE(NumberMap)
Q_DECLARE_METATYPE(TextMap)
Q_DECLARE_METATYPE(PathMap)
Q_DECLARE_METATYPE(QList<QVariantMap>)

class tst_Zel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void interface();
    void asksOnceAndOnlyForTheProperties();
    void startsNeutral();
    void takesAllProperties();
    void takesPropertiesThatAreNotMarshalled();
    void appliesInKeyOrder();
    void convertsValues_data();
    void convertsValues();
    void signalsRepeatedValues();
    void appliesInvalidatedLast();
    void ignoresOtherInterfaces();
    void logsUnknownProperties();

    void errorWithoutDaemon();
    void errorStays();
    void survivesOddAnswers_data();
    void survivesOddAnswers();
    void survivesOddBroadcasts_data();
    void survivesOddBroadcasts();
    void ignoresStrangers();
    void neverStartsTheDaemon();
    void survivesDeathOfTheDaemon();
    void followsRestartedDaemon();
    void doesNotWaitForFrozenDaemon();
    void destroyedWhileWaiting();
    void destroyedInItsOwnSignal();

private:
    void startDaemon();
    void broadcast(const QVariantMap &changed, const QStringList &invalidated = QStringList(),
                   const QString &interface = Service);

    PrivateBus m_bus{PrivateBus::System};
    std::unique_ptr<FakeDaemon> m_daemon;
};

void tst_Zel::initTestCase()
{
    QVERIFY(!m_bus.address().isEmpty());
    qDBusRegisterMetaType<NumberMap>();
    qDBusRegisterMetaType<TextMap>();
    qDBusRegisterMetaType<PathMap>();
    qDBusRegisterMetaType<QList<QVariantMap>>();
    QVERIFY(QDBusConnection::systemBus().isConnected());
}

void tst_Zel::init()
{
    startDaemon();
}

void tst_Zel::cleanup()
{
    m_daemon.reset();
}

void tst_Zel::startDaemon()
{
    m_daemon = std::make_unique<FakeDaemon>(m_bus.address(), Service);
    m_daemon->answer(GetAll, {QVariantMap()});
}

void tst_Zel::broadcast(const QVariantMap &changed, const QStringList &invalidated, const QString &interface)
{
    m_daemon->emitSignal(Path, Properties, PropertiesChanged, {interface, changed, invalidated});
}

void tst_Zel::interface()
{
    const QStringList expected{
        QStringLiteral("property bool ready notify readyChanged"),
        QStringLiteral("property bool docked notify dockedChanged"),
        QStringLiteral("property QString zelId notify zelIdChanged"),
        QStringLiteral("property bool error notify errorChanged"),
        QStringLiteral("signal readyChanged()"),
        QStringLiteral("signal dockedChanged()"),
        QStringLiteral("signal zelIdChanged()"),
        QStringLiteral("signal errorChanged()"),
        QStringLiteral("private slot getPropertiesFinished(QDBusPendingCallWatcher*)"),
        QStringLiteral("private slot propertiesChanged(QString,QVariantMap,QStringList)"),
    };
    QCOMPARE(ownInterface(Zel::staticMetaObject), expected);
    QCOMPARE(Zel::staticMetaObject.superClass(), &QObject::staticMetaObject);
}

void tst_Zel::asksOnceAndOnlyForTheProperties()
{
    Watched watched;
    QTRY_VERIFY(!watched.waits());
    broadcast({{Ready, true}});
    QTRY_VERIFY(watched.zel.ready());
    QCOMPARE(m_daemon->members(), QStringList(GetAll));
    const QDBusMessage call = m_daemon->calls().first();
    QCOMPARE(call.path(), Path);
    QCOMPARE(call.interface(), Properties);
    QCOMPARE(call.arguments(), QVariantList({Service}));
}

void tst_Zel::startsNeutral()
{
    m_daemon->hold(GetAll);
    Watched watched;
    QTRY_COMPARE(m_daemon->calls().count(), 1);
    QVERIFY(!watched.zel.ready());
    QVERIFY(!watched.zel.docked());
    QCOMPARE(watched.zel.zelId(), QString());
    QVERIFY(!watched.zel.error());
    QVERIFY(watched.seen.isEmpty());

    // A broadcast does not have to wait for the answer.
    broadcast({{Docked, true}});
    QTRY_COMPARE(watched.seen, QStringList(QStringLiteral("docked 1")));
}

void tst_Zel::takesAllProperties()
{
    m_daemon->answer(GetAll, {QVariantMap{{Ready, true}, {Docked, true}, {Id, QStringLiteral("4711")}}});
    Watched watched;
    QTRY_VERIFY(!watched.waits());
    QVERIFY(watched.zel.ready());
    QVERIFY(watched.zel.docked());
    QCOMPARE(watched.zel.zelId(), QStringLiteral("4711"));
    QVERIFY(!watched.zel.error());
}

void tst_Zel::takesPropertiesThatAreNotMarshalled()
{
    // Over the bus they always are; a call within the process is answered with the map itself.
    const QDBusMessage call = QDBusMessage::createMethodCall(Service, Path, Properties, GetAll);
    const QVariantMap cover{{Ready, 1}, {Docked, true}, {Id, QStringLiteral("cover")}};
    Watched watched;
    QTRY_VERIFY(!watched.waits());
    watched.seen.clear();
    const QPointer<QDBusPendingCallWatcher> watcher =
        new QDBusPendingCallWatcher(QDBusPendingCall::fromCompletedCall(call.createReply(QVariant(cover))));
    QVERIFY(QMetaObject::invokeMethod(&watched.zel, "getPropertiesFinished",
                                      Q_ARG(QDBusPendingCallWatcher *, watcher.data())));
    QCOMPARE(watched.seen,
             QStringList({QStringLiteral("docked 1"), QStringLiteral("ready 1"), QStringLiteral("id 'cover'")}));
    QVERIFY(!watched.zel.error());
    QTRY_VERIFY(!watcher);
}

void tst_Zel::appliesInKeyOrder()
{
    m_daemon->answer(GetAll, {QVariantMap{{Id, QStringLiteral("a")}, {Ready, 1}, {Docked, 0}}});
    Watched watched;
    QTRY_COMPARE(watched.seen,
                 QStringList({QStringLiteral("docked 0"), QStringLiteral("ready 1"), QStringLiteral("id 'a'")}));
    watched.seen.clear();
    broadcast({{Ready, 0}, {Id, QStringLiteral("b")}, {Docked, 1}});
    QTRY_COMPARE(watched.seen,
                 QStringList({QStringLiteral("docked 1"), QStringLiteral("ready 0"), QStringLiteral("id 'b'")}));
}

void tst_Zel::convertsValues_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("flag");
    QTest::addColumn<QString>("text");
    QTest::newRow("true") << QVariant(true) << true << QStringLiteral("true");
    QTest::newRow("false") << QVariant(false) << false << QStringLiteral("false");
    QTest::newRow("2") << QVariant(2) << true << QStringLiteral("2");
    QTest::newRow("-1") << QVariant(-1) << true << QStringLiteral("-1");
    QTest::newRow("byte") << QVariant::fromValue(uchar('1')) << true << QStringLiteral("1");
    QTest::newRow("64 bits") << QVariant(5ull) << true << QStringLiteral("5");
    QTest::newRow("beyond 32 bits") << QVariant(1ull << 32) << false << QStringLiteral("4294967296");
    QTest::newRow("double") << QVariant(1.0) << true << QStringLiteral("1");
    QTest::newRow("less than a half") << QVariant(0.25) << false << QStringLiteral("0.25");
    QTest::newRow("text 0") << QVariant(QStringLiteral("0")) << false << QStringLiteral("0");
    QTest::newRow("text 1") << QVariant(QStringLiteral("1")) << true << QStringLiteral("1");
    QTest::newRow("text -1") << QVariant(QStringLiteral("-1")) << true << QStringLiteral("-1");
    QTest::newRow("text true") << QVariant(QStringLiteral("true")) << false << QStringLiteral("true");
    QTest::newRow("empty text") << QVariant(QString()) << false << QString();
    QTest::newRow("object path") << QVariant::fromValue(QDBusObjectPath(QStringLiteral("/zel"))) << false << QString();
    QTest::newRow("variant") << QVariant::fromValue(QDBusVariant(1)) << false << QString();
    QTest::newRow("list") << QVariant(QVariantList{1, 2}) << false << QString();
    QTest::newRow("map") << QVariant(QVariantMap{{Ready, 1}}) << false << QString();
    QTest::newRow("map of numbers") << QVariant::fromValue(NumberMap{{1, QDBusVariant(1)}}) << false << QString();
    const QString wide = QString::fromUtf8("\xe2\x82\xac \xf0\x9f\x93\xb1\n\"");
    QTest::newRow("wide text") << QVariant(wide) << false << wide;
    const QString huge(1 << 20, QLatin1Char('z'));
    QTest::newRow("huge text") << QVariant(huge) << false << huge;
}

void tst_Zel::convertsValues()
{
    QFETCH(QVariant, value);
    QFETCH(bool, flag);
    QFETCH(QString, text);
    m_daemon->answer(GetAll, {QVariantMap{{Ready, value}, {Docked, value}, {Id, value}}});
    Watched watched;
    QTRY_COMPARE(watched.seen.count(), 3);
    QCOMPARE(watched.zel.ready(), flag);
    QCOMPARE(watched.zel.docked(), flag);
    QCOMPARE(watched.zel.zelId(), text);

    broadcast({{Ready, true}, {Docked, true}, {Id, QStringLiteral("other")}});
    QTRY_COMPARE(watched.seen.count(), 6);
    broadcast({{Ready, value}, {Docked, value}, {Id, value}});
    QTRY_COMPARE(watched.seen.count(), 9);
    QCOMPARE(watched.zel.ready(), flag);
    QCOMPARE(watched.zel.docked(), flag);
    QCOMPARE(watched.zel.zelId(), text);
}

void tst_Zel::signalsRepeatedValues()
{
    m_daemon->answer(GetAll, {QVariantMap{{Ready, true}}});
    Watched watched;
    QTRY_COMPARE(watched.seen.count(), 1);
    broadcast({{Ready, true}});
    broadcast({{Ready, true}});
    broadcast({{Id, QString()}});
    QTRY_COMPARE(watched.seen,
                 QStringList({QStringLiteral("ready 1"), QStringLiteral("ready 1"), QStringLiteral("ready 1"),
                              QStringLiteral("id ''")}));
}

void tst_Zel::appliesInvalidatedLast()
{
    m_daemon->answer(GetAll, {QVariantMap{{Ready, true}, {Docked, true}, {Id, QStringLiteral("4711")}}});
    Watched watched;
    QTRY_COMPARE(watched.seen.count(), 3);
    watched.seen.clear();
    broadcast({{Id, QStringLiteral("4712")}, {Docked, 1}}, {Id, Ready, Docked});
    QTRY_COMPARE(watched.seen,
                 QStringList({QStringLiteral("docked 1"), QStringLiteral("id '4712'"), QStringLiteral("id ''"),
                              QStringLiteral("ready 0"), QStringLiteral("docked 0")}));
    QVERIFY(!watched.zel.ready());
    QVERIFY(!watched.zel.docked());
    QCOMPARE(watched.zel.zelId(), QString());
}

void tst_Zel::ignoresOtherInterfaces()
{
    Watched watched;
    QTRY_VERIFY(!watched.waits());
    broadcast({{Ready, true}}, {Docked}, QStringLiteral("com.orvel.zeld.other"));
    broadcast({{Ready, true}}, {}, QString());
    broadcast({{Ready, true}}, {}, QStringLiteral("COM.ORVEL.ZELD"));
    m_daemon->emitSignal(QStringLiteral("/com/orvel/other"), Properties, PropertiesChanged,
                         {Service, QVariantMap{{Ready, true}}, QStringList()});
    m_daemon->emitSignal(Path, Service, PropertiesChanged, {Service, QVariantMap{{Ready, true}}, QStringList()});
    broadcast({{Docked, true}});
    QTRY_COMPARE(watched.seen, QStringList(QStringLiteral("docked 1")));
    QVERIFY(!watched.zel.ready());
}

void tst_Zel::logsUnknownProperties()
{
    m_daemon->answer(GetAll, {QVariantMap{{QStringLiteral("Colour"), QStringLiteral("red")}, {Ready, true}}});
    MessageLog log;
    Watched watched;
    QTRY_COMPARE(watched.seen.count(), 1);
    QVariantList many;
    for (int i = 0; i < 10000; ++i)
        many << i;
    broadcast({{QStringLiteral("ready"), 1}, {QStringLiteral("Many"), many}, {QString(), 2}},
              {QStringLiteral("Size"), Docked});
    QTRY_COMPARE(watched.seen.count(), 2);
    QCOMPARE(log.all(),
             QStringList({QStringLiteral("Unknown property \"Colour\" QVariant(QString, \"red\")"),
                          QStringLiteral("Unknown property \"\" QVariant(int, 2)"),
                          QStringLiteral("Unknown property \"Many\" QVariant(QDBusArgument, )"),
                          QStringLiteral("Unknown property \"ready\" QVariant(int, 1)"),
                          QStringLiteral("Unknown property \"Size\" QVariant(Invalid)")}));
    QCOMPARE(log.debugs().count(), 5);
}

void tst_Zel::errorWithoutDaemon()
{
    m_daemon.reset();
    MessageLog log;
    Watched watched;
    QVERIFY(!watched.zel.error());
    QTRY_COMPARE(watched.seen, QStringList(QStringLiteral("error 1")));
    QVERIFY(!watched.zel.ready());
    QVERIFY(!watched.zel.docked());
    QCOMPARE(watched.zel.zelId(), QString());

    // The daemon comes late: it is not asked, but heard.
    startDaemon();
    broadcast({{Ready, true}});
    QTRY_VERIFY(watched.zel.ready());
    QVERIFY(watched.zel.error());
    QCOMPARE(watched.seen, QStringList({QStringLiteral("error 1"), QStringLiteral("ready 1")}));
    QVERIFY(m_daemon->calls().isEmpty());
    QVERIFY2(log.all().isEmpty(), qPrintable(log.all().join(QLatin1Char('\n'))));
}

void tst_Zel::errorStays()
{
    m_daemon->answerWithError(GetAll, QStringLiteral("com.orvel.zeld.Error"), QStringLiteral("1"));
    MessageLog log;
    Watched watched;
    QTRY_COMPARE(watched.seen, QStringList(QStringLiteral("error 1")));
    QTRY_VERIFY(!watched.waits());
    broadcast({{Docked, true}});
    QTRY_COMPARE(watched.seen.count(), 2);
    QVERIFY(watched.zel.error());
    QVERIFY(log.all().isEmpty());
}

void tst_Zel::survivesOddAnswers_data()
{
    QTest::addColumn<QVariantList>("values");
    QTest::addColumn<bool>("ready");
    const QVariantMap properties{{Ready, true}};
    QTest::newRow("nothing") << QVariantList() << false;
    QTest::newRow("text") << QVariantList{Ready} << false;
    QTest::newRow("number") << QVariantList{1} << false;
    QTest::newRow("texts") << QVariantList{QStringList{Ready, Docked}} << false;
    QTest::newRow("bytes") << QVariantList{QByteArray("Ready")} << false;
    QTest::newRow("list") << QVariantList{QVariant(QVariantList{Ready, true})} << false;
    QTest::newRow("variant") << QVariantList{QVariant::fromValue(QDBusVariant(properties))} << false;
    QTest::newRow("map of texts") << QVariantList{QVariant::fromValue(TextMap{{Ready, QStringLiteral("1")}})} << false;
    QTest::newRow("map of numbers") << QVariantList{QVariant::fromValue(NumberMap{{1, QDBusVariant(true)}})} << false;
    QTest::newRow("map of paths") << QVariantList{QVariant::fromValue(
        PathMap{{QDBusObjectPath(QStringLiteral("/Ready")), QDBusVariant(true)}})}
                                  << false;
    QTest::newRow("list of maps") << QVariantList{QVariant::fromValue(QList<QVariantMap>{properties})} << false;
    QTest::newRow("map second") << QVariantList{1, properties} << false;
    QTest::newRow("map and more") << QVariantList{properties, QStringList{Ready}, 7} << true;
    QVariantMap many{{Ready, true}};
    for (int i = 0; i < 20000; ++i)
        many.insert(QString::number(i), i);
    QTest::newRow("huge map") << QVariantList{many} << true;
}

void tst_Zel::survivesOddAnswers()
{
    QFETCH(QVariantList, values);
    QFETCH(bool, ready);
    m_daemon->answer(GetAll, values);
    MessageLog log;
    Watched watched;
    QTRY_VERIFY(!watched.waits());
    QCOMPARE(watched.zel.ready(), ready);
    QCOMPARE(watched.seen.count(), int(ready));
    QVERIFY(!watched.zel.error());
}

void tst_Zel::survivesOddBroadcasts_data()
{
    QTest::addColumn<QVariantList>("values");
    const QVariantMap properties{{Ready, true}};
    const QStringList none;
    QTest::newRow("nothing") << QVariantList();
    QTest::newRow("interface only") << QVariantList{Service};
    QTest::newRow("no invalidated") << QVariantList{Service, properties};
    QTest::newRow("more") << QVariantList{Service, properties, none, 1};
    QTest::newRow("map first") << QVariantList{properties, Service, none};
    QTest::newRow("numbers") << QVariantList{1, 2, 3};
    QTest::newRow("text for map") << QVariantList{Service, Ready, none};
    QTest::newRow("list for map") << QVariantList{Service, QVariant(QVariantList{Ready, true}), none};
    QTest::newRow("map of texts") << QVariantList{Service, QVariant::fromValue(TextMap{{Ready, QStringLiteral("1")}}),
                                                  none};
    QTest::newRow("map of numbers") << QVariantList{Service, QVariant::fromValue(NumberMap{{1, QDBusVariant(true)}}),
                                                    none};
    QTest::newRow("map for interface") << QVariantList{properties, properties, none};
    QTest::newRow("map for invalidated") << QVariantList{Service, properties, properties};
    QTest::newRow("variants for invalidated") << QVariantList{Service, properties, QVariant(QVariantList{Ready})};
    QTest::newRow("variant for map") << QVariantList{Service, QVariant::fromValue(QDBusVariant(properties)), none};
}

void tst_Zel::survivesOddBroadcasts()
{
    QFETCH(QVariantList, values);
    Watched watched;
    QTRY_VERIFY(!watched.waits());
    m_daemon->emitSignal(Path, Properties, PropertiesChanged, values);
    broadcast({{Docked, true}});
    QTRY_COMPARE(watched.seen, QStringList(QStringLiteral("docked 1")));
    QVERIFY(!watched.zel.ready());
}

void tst_Zel::ignoresStrangers()
{
    const QString own = QDBusConnection::systemBus().baseService();
    const QVariantList forged{Service, QVariantMap{{Ready, true}}, QStringList()};
    FakeDaemon stranger(m_bus.address());
    Watched watched;
    QTRY_VERIFY(!watched.waits());

    stranger.emitSignal(Path, Properties, PropertiesChanged, forged);
    stranger.emitSignal(Path, Properties, PropertiesChanged, forged, own);
    broadcast({{Docked, true}});
    QTRY_COMPARE(watched.seen, QStringList(QStringLiteral("docked 1")));

    m_daemon->disown(Service);
    FakeDaemon::synchronise(QDBusConnection::systemBus());
    stranger.emitSignal(Path, Properties, PropertiesChanged, forged);
    stranger.emitSignal(Path, Properties, PropertiesChanged, forged, own);
    m_daemon->own(Service);
    broadcast({{Docked, false}});
    QTRY_COMPARE(watched.seen, QStringList({QStringLiteral("docked 1"), QStringLiteral("docked 0")}));
}

void tst_Zel::neverStartsTheDaemon()
{
    m_daemon.reset();
    QVERIFY(m_bus.makeStartable(Service));
    {
        Watched watched;
        QTRY_VERIFY(watched.zel.error());
    }
    QVERIFY(!m_bus.hasStarted(Service));

    // An ordinary call would have.
    const QDBusPendingCall ordinary =
        QDBusConnection::systemBus().asyncCall(QDBusMessage::createMethodCall(Service, Path, Properties, GetAll));
    QTRY_VERIFY(ordinary.isFinished());
    QVERIFY(m_bus.hasStarted(Service));
    QVERIFY(m_bus.makeUnstartable(Service));
}

void tst_Zel::survivesDeathOfTheDaemon()
{
    m_daemon->hold(GetAll);
    Watched watched;
    QTRY_COMPARE(m_daemon->calls().count(), 1);
    m_daemon->die();
    QTRY_COMPARE(watched.seen, QStringList(QStringLiteral("error 1")));
}

void tst_Zel::followsRestartedDaemon()
{
    m_daemon->answer(GetAll, {QVariantMap{{Ready, true}, {Id, QStringLiteral("4711")}}});
    Watched watched;
    QTRY_COMPARE(watched.seen.count(), 2);
    m_daemon->die();
    startDaemon();
    broadcast({{Docked, true}});
    QTRY_COMPARE(watched.seen.count(), 3);
    // What it said before it died stands.
    QVERIFY(watched.zel.ready());
    QCOMPARE(watched.zel.zelId(), QStringLiteral("4711"));
    QVERIFY(!watched.zel.error());
    QVERIFY(m_daemon->calls().isEmpty());
}

void tst_Zel::doesNotWaitForFrozenDaemon()
{
    // The daemon lives in this thread, so that a constructor that waited for it would wait for its own time-out, which
    // is 25 s.
    QElapsedTimer clock;
    clock.start();
    const Watched watched;
    QVERIFY2(clock.elapsed() < 20000, qPrintable(QString::number(clock.elapsed())));
}

void tst_Zel::destroyedWhileWaiting()
{
    m_daemon->hold(GetAll);
    m_daemon->answer(GetAll, {QVariantMap{{Ready, true}}});
    MessageLog log;
    QList<QPointer<QDBusPendingCallWatcher>> watchers;
    for (int round = 0; round < 40; ++round) {
        const Zel zel;
        watchers << zel.findChild<QDBusPendingCallWatcher *>();
        QVERIFY(watchers.last());
        if (round % 2)
            QTRY_COMPARE(m_daemon->calls().count(), round + 1);
    }
    for (const auto &watcher : qAsConst(watchers))
        QVERIFY(watcher.isNull());
    m_daemon->answerHeld();
    broadcast({{Docked, true}});

    Watched next;
    QTRY_COMPARE(next.seen, QStringList(QStringLiteral("ready 1")));
    QVERIFY2(log.all().isEmpty(), qPrintable(log.all().join(QLatin1Char('\n'))));
}

void tst_Zel::destroyedInItsOwnSignal()
{
    m_daemon->answer(GetAll, {QVariantMap{{Ready, true}, {Docked, true}, {Id, QStringLiteral("4711")}}});
    for (const auto signal : {&Zel::readyChanged, &Zel::dockedChanged, &Zel::zelIdChanged}) {
        auto *later = new Zel;
        connect(later, signal, later, &QObject::deleteLater);
        QSignalSpy destroyedLater(later, &QObject::destroyed);
        QTRY_COMPARE(destroyedLater.count(), 1);

        auto *atOnce = new Zel;
        connect(atOnce, signal, this, [atOnce] { delete atOnce; });
        QSignalSpy destroyedAtOnce(atOnce, &QObject::destroyed);
        QTRY_COMPARE(destroyedAtOnce.count(), 1);
    }
    // Among the invalidated ones, too.
    m_daemon->answer(GetAll, {QVariantMap()});
    auto *zel = new Zel;
    QTRY_VERIFY(zel->findChildren<QDBusPendingCallWatcher *>().isEmpty());
    connect(zel, &Zel::dockedChanged, this, [zel] { delete zel; });
    QSignalSpy destroyed(zel, &QObject::destroyed);
    broadcast({}, {Ready, Docked, Id});
    QTRY_COMPARE(destroyed.count(), 1);
}

QTEST_GUILESS_MAIN(tst_Zel)

#include "tst_zel.moc"
