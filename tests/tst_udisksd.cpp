// SPDX-License-Identifier: BSD-3-Clause
#include "messagelog.h"
#include "privatebus.h"
#include "sdcardtest.h"

#include <QDBusPendingCall>
#include <QDBusPendingReply>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QtTest>

#include <memory>

#include <sys/mount.h>

namespace
{
const QString CardPath = QStringLiteral("/org/freedesktop/UDisks2/block_devices/mmcblk1p1");
const QString CardDevice = QStringLiteral("/dev/mmcblk1p1");
constexpr int Patience = 60000;

// Waits for what the daemon tells. It can be slow where others keep the machine busy.
#define QTRY_LONG(value, expected) QTRY_COMPARE_WITH_TIMEOUT(value, expected, Patience)
}

/*! The SD card test with the storage daemon of this machine, a card that is imaginary, and a file system that is not.
 */
class tst_Udisksd : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void knowsCardAtConstruction();
    void followsCard();
    void readsAndWritesCard();
    void followsForeignMount();
    void reportsFailedMount();
    void reportsFailedUnmount();
    void noticesCardPulledWhileMounted();
    void followsDaemonThatRestarts();

private:
    bool slot(const char *command);
    QDBusPendingCall call(const QString &method) const;
    QStringList statuses() { return std::exchange(m_statuses, {}); }

    std::unique_ptr<PrivateBus> m_bus;
    QProcess m_slot;
    std::unique_ptr<MessageLog> m_log;
    std::unique_ptr<SdCardTest> m_test;
    QStringList m_statuses;
};

void tst_Udisksd::initTestCase()
{
    m_bus = std::make_unique<PrivateBus>(PrivateBus::System);
    QVERIFY(!m_bus->address().isEmpty());
    m_slot.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_slot.start(QStringLiteral(KIV_CARD_SLOT), {m_bus->address()});
    QVERIFY(m_slot.waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT(m_slot.canReadLine() || m_slot.state() == QProcess::NotRunning, Patience);
    const QByteArray answer = m_slot.readLine().trimmed();
    if (answer.startsWith("impossible"))
        QSKIP(answer.constData());
    QCOMPARE(answer, QByteArray("ready"));
    QTRY_VERIFY_WITH_TIMEOUT(QDBusConnection::systemBus()
                                 .interface()
                                 ->isServiceRegistered(QStringLiteral("org.freedesktop.UDisks2"))
                                 .value(),
                             Patience);
}

void tst_Udisksd::cleanupTestCase()
{
    m_slot.closeWriteChannel();
    QVERIFY(m_slot.waitForFinished());
    QCOMPARE(m_slot.exitStatus(), QProcess::NormalExit);
}

void tst_Udisksd::init()
{
    m_log = std::make_unique<MessageLog>();
    m_test = std::make_unique<SdCardTest>();
    QCOMPARE(m_test->status(), SdCardTest::NoCard);
    m_statuses.clear();
    connect(m_test.get(), &SdCardTest::statusChanged, this, [this] {
        m_statuses << QLatin1String(QMetaEnum::fromType<SdCardTest::Status>().valueToKey(m_test->status()));
    });
}

void tst_Udisksd::cleanup()
{
    // A card that is pulled while it is mounted, and comes back before the daemon has cleaned up, is still mounted.
    QProcess::execute(
        QStringLiteral("umount"),
        {QStringLiteral("--all-targets"), QStringLiteral("--quiet"), QStringLiteral("--lazy"), CardDevice});
    if (m_test && m_test->status() != SdCardTest::NoCard) {
        slot("remove");
        QTRY_LONG(m_test->status(), SdCardTest::NoCard);
    }
    m_test.reset();
    const QStringList messages = m_log->all();
    m_log.reset();
    QCOMPARE(messages, QStringList());
}

// Tells the card slot what to do; this process goes on meanwhile.
bool tst_Udisksd::slot(const char *command)
{
    m_slot.write(QByteArray(command) + '\n');
    return QTest::qWaitFor([this] { return m_slot.canReadLine(); }, Patience) && m_slot.readLine() == "done\n";
}

QDBusPendingCall tst_Udisksd::call(const QString &method) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.UDisks2"), CardPath,
                                                          QStringLiteral("org.freedesktop.UDisks2.Filesystem"), method);
    message << QVariantMap();
    return QDBusConnection::systemBus().asyncCall(message, 2 * Patience);
}

void tst_Udisksd::knowsCardAtConstruction()
{
    QVERIFY(slot("insert"));
    QTRY_LONG(m_test->status(), SdCardTest::Unmounted);
    {
        const SdCardTest other;
        QTRY_LONG(other.status(), SdCardTest::Unmounted);
    }

    const QDBusPendingReply<QString> mount = call(QStringLiteral("Mount"));
    QTRY_LONG(m_test->status(), SdCardTest::Mounted);
    SdCardTest late;
    QTRY_LONG(late.status(), SdCardTest::Mounted);
    QVERIFY(!late.mountFailed());
    QCOMPARE(late.sdCardIOTest(), 3);
    QTRY_VERIFY_WITH_TIMEOUT(mount.isFinished(), Patience);
}

void tst_Udisksd::followsCard()
{
    QVERIFY(slot("insert"));
    QTRY_LONG(m_statuses, QStringList({QStringLiteral("Unmounted")}));
    m_statuses.clear();

    // The daemon brings its mount table up to date either before the job is over or shortly after that.
    const QDBusPendingReply<QString> mount = call(QStringLiteral("Mount"));
    QTRY_LONG(m_test->status(), SdCardTest::Mounted);
    QCOMPARE(m_statuses.takeFirst(), QStringLiteral("Mounting"));
    m_statuses.removeOne(QStringLiteral("Unmounted"));
    QCOMPARE(statuses(), QStringList({QStringLiteral("Mounted")}));
    QTRY_VERIFY_WITH_TIMEOUT(mount.isFinished(), Patience);
    QVERIFY2(!mount.isError(), qPrintable(mount.error().message()));

    const QDBusPendingReply<> unmount = call(QStringLiteral("Unmount"));
    QTRY_LONG(m_test->status(), SdCardTest::Unmounted);
    QCOMPARE(m_statuses.takeFirst(), QStringLiteral("Unmounting"));
    m_statuses.removeOne(QStringLiteral("Mounted"));
    QCOMPARE(statuses(), QStringList({QStringLiteral("Unmounted")}));
    QTRY_VERIFY_WITH_TIMEOUT(unmount.isFinished(), Patience);
    QVERIFY2(!unmount.isError(), qPrintable(unmount.error().message()));
    QVERIFY(!m_test->mountFailed());

    QVERIFY(slot("remove"));
    QTRY_LONG(m_statuses, QStringList({QStringLiteral("NoCard")}));
}

void tst_Udisksd::readsAndWritesCard()
{
    QVERIFY(slot("insert"));
    QTRY_LONG(m_test->status(), SdCardTest::Unmounted);
    QCOMPARE(m_test->sdCardIOTest(), 0);
    const QDBusPendingReply<QString> mount = call(QStringLiteral("Mount"));
    QTRY_VERIFY_WITH_TIMEOUT(mount.isFinished(), Patience);
    QVERIFY2(!mount.isError(), qPrintable(mount.error().message()));
    QTRY_LONG(m_test->status(), SdCardTest::Mounted);
    QCOMPARE(m_test->sdCardIOTest(), 3);
    QVERIFY(!QFile::exists(mount.value() + QStringLiteral("/test.tmp")));

    // It is that very card which is written to.
    const QByteArray path = mount.value().toLocal8Bit();
    QCOMPARE(::mount(nullptr, path.constData(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr), 0);
    QCOMPARE(m_test->sdCardIOTest(), 1);
    QCOMPARE(::mount(nullptr, path.constData(), nullptr, MS_REMOUNT, nullptr), 0);
    QCOMPARE(m_test->sdCardIOTest(), 3);

    QFile filler(mount.value() + QStringLiteral("/filler"));
    QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    for (int size : {65536, 1024, 1}) {
        while (filler.write(QByteArray(size, 'x')) == size) { }
    }
    QCOMPARE(m_test->sdCardIOTest(), 2);
    QVERIFY(filler.remove());
    QCOMPARE(m_test->sdCardIOTest(), 3);
}

void tst_Udisksd::followsForeignMount()
{
    QVERIFY(slot("insert"));
    QTRY_LONG(m_test->status(), SdCardTest::Unmounted);
    m_statuses.clear();
    const QByteArray place = "/run/media/käse und brot";
    QVERIFY(QDir().mkpath(QString::fromUtf8(place)));
    QCOMPARE(::mount(CardDevice.toLatin1().constData(), place.constData(), "ext4", 0, nullptr), 0);
    QTRY_LONG(m_test->status(), SdCardTest::Mounted);
    QCOMPARE(m_test->sdCardIOTest(), 3);
    QCOMPARE(::umount(place.constData()), 0);
    QTRY_LONG(m_test->status(), SdCardTest::Unmounted);
    QCOMPARE(statuses(), QStringList({QStringLiteral("Mounted"), QStringLiteral("Unmounted")}));
}

void tst_Udisksd::reportsFailedMount()
{
    QVERIFY(slot("insert"));
    QTRY_LONG(m_test->status(), SdCardTest::Unmounted);
    m_statuses.clear();
    QVERIFY(slot("ruin"));
    QDBusPendingReply<QString> mount = call(QStringLiteral("Mount"));
    QTRY_VERIFY_WITH_TIMEOUT(mount.isFinished(), Patience);
    QVERIFY(mount.isError());
    QTRY_VERIFY_WITH_TIMEOUT(m_test->mountFailed(), Patience);
    QCOMPARE(m_test->status(), SdCardTest::Unmounted);
    QCOMPARE(statuses(), QStringList({QStringLiteral("Mounting"), QStringLiteral("Unmounted")}));
    // Who comes later has not seen it.
    QVERIFY(!SdCardTest().mountFailed());

    QVERIFY(slot("mend"));
    mount = call(QStringLiteral("Mount"));
    QTRY_LONG(m_test->status(), SdCardTest::Mounted);
    QVERIFY(!m_test->mountFailed());
    QTRY_VERIFY_WITH_TIMEOUT(mount.isFinished(), Patience);
}

void tst_Udisksd::reportsFailedUnmount()
{
    QVERIFY(slot("insert"));
    QTRY_LONG(m_test->status(), SdCardTest::Unmounted);
    const QDBusPendingReply<QString> mount = call(QStringLiteral("Mount"));
    QTRY_VERIFY_WITH_TIMEOUT(mount.isFinished(), Patience);
    QTRY_LONG(m_test->status(), SdCardTest::Mounted);
    m_statuses.clear();

    QFile inUse(mount.value() + QStringLiteral("/in-use"));
    QVERIFY(inUse.open(QIODevice::WriteOnly));
    QDBusPendingReply<> unmount = call(QStringLiteral("Unmount"));
    QTRY_VERIFY_WITH_TIMEOUT(unmount.isFinished(), Patience);
    QVERIFY(unmount.isError());
    QTRY_LONG(m_statuses, QStringList({QStringLiteral("Unmounting"), QStringLiteral("Mounted")}));
    QVERIFY(!m_test->mountFailed());
    inUse.close();
    unmount = call(QStringLiteral("Unmount"));
    QTRY_LONG(m_test->status(), SdCardTest::Unmounted);
    QTRY_VERIFY_WITH_TIMEOUT(unmount.isFinished(), Patience);
}

void tst_Udisksd::noticesCardPulledWhileMounted()
{
    QVERIFY(slot("insert"));
    QTRY_LONG(m_test->status(), SdCardTest::Unmounted);
    const QDBusPendingReply<QString> mount = call(QStringLiteral("Mount"));
    QTRY_VERIFY_WITH_TIMEOUT(mount.isFinished(), Patience);
    QTRY_LONG(m_test->status(), SdCardTest::Mounted);
    QVERIFY(slot("remove"));
    QTRY_LONG(m_test->status(), SdCardTest::NoCard);
    QCOMPARE(m_test->sdCardIOTest(), 0);

    ::umount2(CardDevice.toLatin1().constData(), MNT_DETACH);
    ::umount2(mount.value().toLocal8Bit().constData(), MNT_DETACH);
    QVERIFY(slot("insert"));
    QTRY_LONG(m_test->status(), SdCardTest::Unmounted);
}

void tst_Udisksd::followsDaemonThatRestarts()
{
    QVERIFY(slot("insert"));
    QTRY_LONG(m_test->status(), SdCardTest::Unmounted);
    const QDBusPendingReply<QString> mount = call(QStringLiteral("Mount"));
    QTRY_VERIFY_WITH_TIMEOUT(mount.isFinished(), Patience);
    QTRY_LONG(m_test->status(), SdCardTest::Mounted);

    QVERIFY(slot("stop"));
    QTRY_LONG(m_test->status(), SdCardTest::NoCard);
    QVERIFY(slot("start"));
    QTRY_LONG(m_test->status(), SdCardTest::Mounted);
    QCOMPARE(m_test->sdCardIOTest(), 3);
    const QDBusPendingReply<> unmount = call(QStringLiteral("Unmount"));
    QTRY_LONG(m_test->status(), SdCardTest::Unmounted);
    QTRY_VERIFY_WITH_TIMEOUT(unmount.isFinished(), Patience);
}

QTEST_GUILESS_MAIN(tst_Udisksd)
#include "tst_udisksd.moc"
