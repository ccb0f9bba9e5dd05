// SPDX-License-Identifier: BSD-3-Clause
#include "messagelog.h"
#include "metaobject.h"
#include "privatebus.h"
#include "usbotg.h"

#include <QDBusMetaType>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

namespace
{
const QString Service = QStringLiteral("org.freedesktop.systemd1");
const QString Path = QStringLiteral("/org/freedesktop/systemd1");
const QString Interface = QStringLiteral("org.freedesktop.systemd1.Manager");
const QString UnitNew = QStringLiteral("UnitNew");
const QString UnitRemoved = QStringLiteral("UnitRemoved");

const QString Drive = QStringLiteral("dev-sda.device");

using NumberMap = QMap<int, QString>;

QVariantList unit(const QString &name)
{
    return {name, QVariant::fromValue(QDBusObjectPath(QStringLiteral("/org/freedesktop/systemd1/unit/x")))};
}
}
Q_DECLARE_METATYPE(NumberMap)

class tst_UsbOtg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void interface();
    void callsNobody();
    void matchesDriveNames_data();
    void matchesDriveNames();
    void signalsOnChangeOnly();
    void isASwitchNotACount();
    void otherUnitsDoNotRemove();
    void ignoresOtherPlaces();
    void survivesOddBroadcasts_data();
    void survivesOddBroadcasts();
    void ignoresStrangers();
    void followsRestartedSystemd();
    void destroyedBetweenBroadcasts();

private:
    void add(const QString &name) { m_systemd->emitSignal(Path, Interface, UnitNew, unit(name)); }
    void remove(const QString &name) { m_systemd->emitSignal(Path, Interface, UnitRemoved, unit(name)); }

    PrivateBus m_bus{PrivateBus::System};
    std::unique_ptr<FakeDaemon> m_systemd;
    std::unique_ptr<UsbOtg> m_usbOtg;
};

void tst_UsbOtg::initTestCase()
{
    QVERIFY(!m_bus.address().isEmpty());
    qDBusRegisterMetaType<NumberMap>();
    QVERIFY(QDBusConnection::systemBus().isConnected());
}

void tst_UsbOtg::init()
{
    m_systemd = std::make_unique<FakeDaemon>(m_bus.address(), Service);
    MessageLog log;
    m_usbOtg = std::make_unique<UsbOtg>();
    QVERIFY(log.all().isEmpty());
    FakeDaemon::synchronise(QDBusConnection::systemBus());
}

void tst_UsbOtg::cleanup()
{
    m_usbOtg.reset();
    m_systemd.reset();
}

void tst_UsbOtg::interface()
{
    const QStringList expected{
        QStringLiteral("property bool massStorage notify massStorageChanged"),
        QStringLiteral("signal massStorageChanged()"),
        QStringLiteral("private slot newUnit(QString,QDBusObjectPath)"),
        QStringLiteral("private slot unitRemoved(QString,QDBusObjectPath)"),
    };
    QCOMPARE(ownInterface(UsbOtg::staticMetaObject), expected);
    QCOMPARE(UsbOtg::staticMetaObject.superClass(), &QObject::staticMetaObject);
}

void tst_UsbOtg::callsNobody()
{
    QVERIFY(!m_usbOtg->massStorage());
    add(Drive);
    QTRY_VERIFY(m_usbOtg->massStorage());
    QVERIFY(m_systemd->calls().isEmpty());
}

void tst_UsbOtg::matchesDriveNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("matches");
    QTest::newRow("disk") << Drive << true;
    QTest::newRow("partition") << QStringLiteral("dev-sdb1.device") << true;
    QTest::newRow("nothing between") << QStringLiteral("dev-sd.device") << true;
    QTest::newRow("dots between") << QStringLiteral("dev-sda.device.device") << true;
    QTest::newRow("escaped") << QStringLiteral("dev-sd\\x2da.device") << true;
    QTest::newRow("long") << QStringLiteral("dev-sd%1.device").arg(QString(100000, QLatin1Char('a'))) << true;
    QTest::newRow("more behind") << QStringLiteral("dev-sda.device.wants") << false;
    QTest::newRow("more before") << QStringLiteral("sys-dev-sda.device") << false;
    QTest::newRow("card") << QStringLiteral("dev-mmcblk0.device") << false;
    QTest::newRow("upper case") << QStringLiteral("DEV-SDA.device") << false;
    QTest::newRow("upper case type") << QStringLiteral("dev-sda.Device") << false;
    QTest::newRow("any character for the dot") << QStringLiteral("dev-sdaXdevice") << false;
    QTest::newRow("blank") << QStringLiteral(" dev-sda.device") << false;
    QTest::newRow("empty") << QString() << false;
}

void tst_UsbOtg::matchesDriveNames()
{
    QFETCH(QString, name);
    QFETCH(bool, matches);
    QSignalSpy spy(m_usbOtg.get(), &UsbOtg::massStorageChanged);
    const QString last = QStringLiteral("dev-sdz.device");
    add(name);
    if (!matches) {
        FakeDaemon::synchronise(QDBusConnection::systemBus());
        QCoreApplication::processEvents();
        QCOMPARE(spy.count(), 0);
        add(last);
    }
    QTRY_COMPARE(spy.count(), 1);
    QVERIFY(m_usbOtg->massStorage());
    remove(name);
    if (!matches) {
        FakeDaemon::synchronise(QDBusConnection::systemBus());
        QCoreApplication::processEvents();
        QCOMPARE(spy.count(), 1);
        remove(last);
    }
    QTRY_COMPARE(spy.count(), 2);
    QVERIFY(!m_usbOtg->massStorage());
}

void tst_UsbOtg::signalsOnChangeOnly()
{
    QList<bool> seen;
    connect(m_usbOtg.get(), &UsbOtg::massStorageChanged, this, [&] { seen << m_usbOtg->massStorage(); });
    remove(Drive);
    add(Drive);
    add(QStringLiteral("dev-sda1.device"));
    add(Drive);
    remove(QStringLiteral("dev-sda1.device"));
    remove(Drive);
    add(Drive);
    QTRY_COMPARE(seen.count(), 3);
    QCOMPARE(seen, QList<bool>({true, false, true}));
}

void tst_UsbOtg::isASwitchNotACount()
{
    QSignalSpy spy(m_usbOtg.get(), &UsbOtg::massStorageChanged);
    add(Drive);
    add(QStringLiteral("dev-sdb.device"));
    remove(QStringLiteral("dev-sdb.device"));
    QTRY_COMPARE(spy.count(), 2);
    QVERIFY(!m_usbOtg->massStorage());
}

void tst_UsbOtg::otherUnitsDoNotRemove()
{
    QSignalSpy spy(m_usbOtg.get(), &UsbOtg::massStorageChanged);
    add(Drive);
    remove(QStringLiteral("dev-mmcblk0.device"));
    remove(QStringLiteral("ofono.service"));
    FakeDaemon::synchronise(QDBusConnection::systemBus());
    QTRY_COMPARE(spy.count(), 1);
    remove(Drive);
    QTRY_COMPARE(spy.count(), 2);
}

void tst_UsbOtg::ignoresOtherPlaces()
{
    QSignalSpy spy(m_usbOtg.get(), &UsbOtg::massStorageChanged);
    m_systemd->emitSignal(QStringLiteral("/org/freedesktop/other"), Interface, UnitNew, unit(Drive));
    m_systemd->emitSignal(Path, QStringLiteral("org.freedesktop.systemd1.Unit"), UnitNew, unit(Drive));
    m_systemd->emitSignal(Path, Interface, QStringLiteral("JobNew"), unit(Drive));
    remove(Drive);
    FakeDaemon::synchronise(QDBusConnection::systemBus());
    add(Drive);
    QTRY_COMPARE(spy.count(), 1);
    QVERIFY(m_usbOtg->massStorage());
}

void tst_UsbOtg::survivesOddBroadcasts_data()
{
    QTest::addColumn<QVariantList>("values");
    const QVariant path = unit(Drive).last();
    QTest::newRow("nothing") << QVariantList();
    QTest::newRow("name only") << QVariantList{Drive};
    QTest::newRow("path as text") << QVariantList{Drive, QStringLiteral("/x")};
    QTest::newRow("more") << QVariantList{Drive, path, 1};
    QTest::newRow("path first") << QVariantList{path, Drive};
    QTest::newRow("number") << QVariantList{1, path};
    QTest::newRow("variant") << QVariantList{QVariant::fromValue(QDBusVariant(Drive)), path};
    QTest::newRow("texts") << QVariantList{QStringList{Drive}, path};
    QTest::newRow("map") << QVariantList{QVariantMap{{Drive, 1}}, path};
    QTest::newRow("map of numbers") << QVariantList{QVariant::fromValue(NumberMap{{1, Drive}}), path};
    QTest::newRow("map for path") << QVariantList{Drive, QVariant::fromValue(NumberMap{{1, Drive}})};
}

void tst_UsbOtg::survivesOddBroadcasts()
{
    QFETCH(QVariantList, values);
    QList<bool> seen;
    connect(m_usbOtg.get(), &UsbOtg::massStorageChanged, this, [&] { seen << m_usbOtg->massStorage(); });
    m_systemd->emitSignal(Path, Interface, UnitNew, values);
    remove(Drive);
    add(Drive);
    m_systemd->emitSignal(Path, Interface, UnitRemoved, values);
    add(Drive);
    remove(Drive);
    QTRY_COMPARE(seen.count(), 2);
    QCOMPARE(seen, QList<bool>({true, false}));
}

void tst_UsbOtg::ignoresStrangers()
{
    const QString own = QDBusConnection::systemBus().baseService();
    FakeDaemon stranger(m_bus.address());
    QList<bool> seen;
    connect(m_usbOtg.get(), &UsbOtg::massStorageChanged, this, [&] { seen << m_usbOtg->massStorage(); });
    const auto forge = [&] {
        for (const QString &member : {UnitNew, UnitRemoved, UnitNew}) {
            stranger.emitSignal(Path, Interface, member, unit(Drive));
            stranger.emitSignal(Path, Interface, member, unit(Drive), own);
        }
    };
    forge();
    add(Drive);
    QTRY_COMPARE(seen, QList<bool>({true}));
    m_systemd->disown(Service);
    FakeDaemon::synchronise(QDBusConnection::systemBus());
    forge();
    m_systemd->own(Service);
    remove(Drive);
    QTRY_COMPARE(seen, QList<bool>({true, false}));
}

void tst_UsbOtg::followsRestartedSystemd()
{
    add(Drive);
    QTRY_VERIFY(m_usbOtg->massStorage());
    m_systemd->die();
    m_systemd = std::make_unique<FakeDaemon>(m_bus.address(), Service);
    FakeDaemon::synchronise(QDBusConnection::systemBus());
    QVERIFY(m_usbOtg->massStorage());
    remove(Drive);
    QTRY_VERIFY(!m_usbOtg->massStorage());
    QVERIFY(m_systemd->calls().isEmpty());
}

void tst_UsbOtg::destroyedBetweenBroadcasts()
{
    for (int round = 0; round < 100; ++round) {
        add(Drive);
        m_usbOtg = std::make_unique<UsbOtg>();
        FakeDaemon::synchronise(QDBusConnection::systemBus());
        remove(Drive);
    }
    auto *usbOtg = m_usbOtg.release();
    connect(usbOtg, &UsbOtg::massStorageChanged, usbOtg, &QObject::deleteLater);
    QSignalSpy destroyed(usbOtg, &QObject::destroyed);
    add(Drive);
    QTRY_COMPARE(destroyed.count(), 1);
    remove(Drive);
}

QTEST_GUILESS_MAIN(tst_UsbOtg)

#include "tst_usbotg.moc"
