// SPDX-License-Identifier: BSD-3-Clause
#include "messagelog.h"
#include "metaobject.h"
#include "partitionmanager.h"
#include "privatebus.h"
#include "udisks2process.h"

#include <QDBusReply>
#include <QDir>
#include <QElapsedTimer>
#include <QtTest>

#include <ctime>
#include <memory>

namespace
{
const QString Service = QStringLiteral("org.freedesktop.UDisks2");
const QString ManagerPath = QStringLiteral("/org/freedesktop/UDisks2");
const Partition::StorageTypes Cards = Partition::External | Partition::ExcludeParents;

// So long a manager waits for the first answer, or a little less.
constexpr int WaitMs = 1900;

/*! A manager, and in words what it has signalled: "added mmcblk1p1 unmounted". */
class Watched
{
public:
    enum Daemon
    {
        Answers, //!< it answers the first query, as soon as it can
        Hangs
    };

    explicit Watched(Daemon daemon = Answers) : manager(make(daemon))
    {
        const auto listen = [this](void (PartitionManager::*signal)(const Partition &), const QString &word) {
            QObject::connect(manager.get(), signal, manager.get(), [this, word](const Partition &partition) {
                m_log << word + QLatin1Char(' ') + describe(partition);
            });
        };
        listen(&PartitionManager::partitionAdded, QStringLiteral("added"));
        listen(&PartitionManager::partitionChanged, QStringLiteral("changed"));
        listen(&PartitionManager::partitionRemoved, QStringLiteral("removed"));
    }

    static QString describe(const Partition &partition)
    {
        static const char *const Words[] = {"unmounted", "mounting", "mounted", "unmounting"};
        if (partition.storageType() != Partition::External)
            return QStringLiteral("none");
        QString text = QLatin1String(Words[partition.status()]);
        if (!partition.mountPath().isEmpty())
            text += QStringLiteral(" at ") + partition.mountPath();
        if (partition.mountFailed())
            text += QStringLiteral(" failed");
        return text;
    }

    QString list() const
    {
        QStringList texts;
        const auto partitions = manager->partitions(Cards);
        for (const Partition &partition : partitions)
            texts << describe(partition);
        return texts.join(QStringLiteral(", "));
    }
    int count() const { return manager->partitions(Cards).size(); }
    Partition first() const { return manager->partitions(Cards).value(0); }

    QString heard() const { return m_log.join(QStringLiteral(", ")); }
    /*! What was signalled since the last call. */
    QString log() { return std::exchange(m_log, {}).join(QStringLiteral(", ")); }

    std::unique_ptr<PartitionManager> manager;

private:
    /*! A manager does not wait for long. Where the machine is so busy that it went on without an answer which was on
     * its way, another one is made. */
    static std::unique_ptr<PartitionManager> make(Daemon daemon)
    {
        std::unique_ptr<PartitionManager> made;
        QElapsedTimer timer;
        for (int attempt = 0; attempt == 0 || (daemon == Answers && attempt < 5 && timer.elapsed() >= WaitMs);
             ++attempt) {
            timer.start();
            made = std::make_unique<PartitionManager>();
        }
        return made;
    }

    QStringList m_log;
};

// Waits for what is signalled next.
#define QTRY_LOG(watched, expected)                                                                                    \
    QTRY_COMPARE((watched).heard(), expected);                                                                         \
    (watched).log()

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}
}

class tst_PartitionManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void interface();
    void invalidPartition();
    void asksForOtherTypes();

    void recognisesCards_data();
    void recognisesCards();
    void listsByDevice();

    void followsChanges_data();
    void followsChanges();
    void survivesNonsense_data();
    void survivesNonsense();
    void takesNonsenseForAnEmptyList_data();
    void takesNonsenseForAnEmptyList();

    void handlesShowTheSamePartition();
    void partitionsAreDistinct();
    void removesAllBeforeItTells();

    void asksAnewForInvalidatedProperties();
    void asksOnceForManyInvalidations();
    void ignoresLateProperties();

    void waitsForServiceThatIsAbsent();
    void neverStartsTheService();
    void followsServiceThatComesLater();
    void forgetsServiceThatVanishes();
    void followsServiceThatRestarts();
    void followsServiceThatIsReplaced();
    void ignoresReplyOfFormerService();
    void waitsBoundedForServiceThatHangs();
    void asksOnlyOnceMore();
    void neverBlocksAfterConstruction();
    void knowsServiceThatCameWhileItAsked();

    void believesOnlyTheService();

    void destroyedBeforeReply();
    void destroyedBeforeSignals();
    void destroyedInHandler_data();
    void destroyedInHandler();
    void tellsInOrderThroughNestedLoop();
    void leavesNothingBehind();

    void handlesManyObjects();
    void losesTheBus();

private:
    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<Udisks2Process> m_udisks;
    std::unique_ptr<MessageLog> m_log;
};

void tst_PartitionManager::initTestCase()
{
    m_bus = std::make_unique<PrivateBus>(PrivateBus::System);
    QVERIFY(!m_bus->address().isEmpty());
    QVERIFY(QDBusConnection::systemBus().isConnected());
    m_udisks = std::make_unique<Udisks2Process>(m_bus->address());
    QVERIFY(m_udisks->start());
}

void tst_PartitionManager::init()
{
    m_udisks->reset();
    Udisks2Process::settle();
    m_log = std::make_unique<MessageLog>();
}

void tst_PartitionManager::cleanup()
{
    const QStringList messages = m_log->all();
    m_log.reset();
    QCOMPARE(messages, QStringList());
}

void tst_PartitionManager::interface()
{
    QStringList publicPart = ownInterface(PartitionManager::staticMetaObject);
    for (int i = publicPart.size() - 1; i >= 0; --i) {
        if (publicPart.at(i).startsWith(QLatin1String("private ")))
            publicPart.removeAt(i);
    }
    QCOMPARE(publicPart,
             QStringList({QStringLiteral("signal partitionAdded(Partition)"),
                          QStringLiteral("signal partitionChanged(Partition)"),
                          QStringLiteral("signal partitionRemoved(Partition)")}));
    QCOMPARE(int(Cards), 4104);
    QCOMPARE(int(Partition::Unmounted), 0);
    QCOMPARE(int(Partition::Mounting), 1);
    QCOMPARE(int(Partition::Mounted), 2);
    QCOMPARE(int(Partition::Unmounting), 3);
}

void tst_PartitionManager::invalidPartition()
{
    const Partition none;
    QCOMPARE(int(none.storageType()), 0);
    QCOMPARE(none.status(), Partition::Unmounted);
    QVERIFY(!none.mountFailed());
    QVERIFY(none.mountPath().isEmpty());
    QVERIFY(none == Partition());
    QVERIFY(!(none != Partition()));
}

void tst_PartitionManager::asksForOtherTypes()
{
    m_udisks->run(text("card()"));
    const PartitionManager manager;
    QCOMPARE(manager.partitions(Partition::External).size(), 1);
    QCOMPARE(manager.partitions(Partition::StorageTypes()).size(), 0);
    QCOMPARE(manager.partitions(Partition::ExcludeParents).size(), 0);
    QCOMPARE(manager.partitions(Partition::StorageTypes(QFlag(0x7))).size(), 0);
    QCOMPARE(manager.partitions(Partition::StorageTypes(QFlag(-1))).size(), 1);
}

void tst_PartitionManager::recognisesCards_data()
{
    QTest::addColumn<QString>("statements");
    QTest::addColumn<int>("count");

    const auto row = [](const char *name, const char *statements, int count) {
        QTest::newRow(name) << text(statements) << count;
    };
    row("nothing", "pass", 0);
    row("card", "card()", 1);
    row("mounted card", "card(P1, None, '/media')", 1);
    row("two cards", "card(); card(P2)", 2);
    row("HintSystem", "card(); tree.objects[P1][BLOCK]['HintSystem'] = True", 0);
    row("HintIgnore", "card(); tree.objects[P1][BLOCK]['HintIgnore'] = True", 0);
    row("no HintSystem", "card(); del tree.objects[P1][BLOCK]['HintSystem']", 1);
    row("no HintIgnore", "card(); del tree.objects[P1][BLOCK]['HintIgnore']", 1);
    row("HintSystem is text", "card(); tree.objects[P1][BLOCK]['HintSystem'] = 'true'", 1);
    row("HintSystem is a number", "card(); tree.objects[P1][BLOCK]['HintSystem'] = dbus.UInt32(1)", 1);

    row("no Filesystem", "card(); del tree.objects[P1][FILESYSTEM]", 0);
    row("no Block", "card(); del tree.objects[P1][BLOCK]", 0);
    row("no Partition", "card(); del tree.objects[P1][PARTITION]", 1);
    row("empty Filesystem", "card(); tree.objects[P1][FILESYSTEM] = {}", 1);
    row("empty Block", "card(); tree.objects[P1][BLOCK] = {}", 0);
    row("partition table", "card(); tree.objects[P1].update(partition_table())", 0);
    row("empty partition table", "card(); tree.objects[P1][PARTITION_TABLE] = {}", 0);
    row("partition table of another", "card(); tree.add(CARD_DISK, block('/dev/mmcblk1', D1), partition_table(P1))", 1);
    row("whole disk with a file system",
        "tree.add(D1, drive()); "
        "tree.add(CARD_DISK, block('/dev/mmcblk1', D1), filesystem())",
        1);

    row("no drive", "card(); del tree.objects[D1]", 0);
    row("loop device", "tree.add(BLOCKS + 'loop0', block('/dev/loop0', '/'), filesystem())", 0);
    row("drive without properties", "card(); tree.objects[D1][DRIVE] = {}", 0);
    row("drive without Drive", "card(); del tree.objects[D1][DRIVE]", 0);
    row("no Drive", "card(); del tree.objects[P1][BLOCK]['Drive']", 0);
    row("Drive is text", "card(); tree.objects[P1][BLOCK]['Drive'] = str(D1)", 0);
    row("Drive is empty text", "card(); tree.objects[P1][BLOCK]['Drive'] = ''", 0);
    row("Drive is another block", "card(); tree.objects[P1][BLOCK]['Drive'] = dbus.ObjectPath(P1)", 0);

    const auto onDrive = [](const char *name, const char *bus, bool removable, bool media, int count) {
        QTest::newRow(name) << QStringLiteral("tree.add(D1, drive('%1', %2, %3)); card()")
                                   .arg(QLatin1String(bus), QLatin1String(removable ? "True" : "False"),
                                        QLatin1String(media ? "True" : "False"))
                            << count;
    };
    onDrive("fixed", "", false, false, 0);
    onDrive("fixed on ata", "ata", false, false, 0);
    onDrive("fixed on sdio", "sdio", false, false, 1);
    onDrive("fixed on usb", "usb", false, false, 1);
    onDrive("fixed on SDIO", "SDIO", false, false, 0);
    onDrive("fixed on usb3", "usb3", false, false, 0);
    onDrive("fixed on ieee1394", "ieee1394", false, false, 0);
    onDrive("Removable", "", true, false, 1);
    onDrive("MediaRemovable", "", false, true, 1);
    onDrive("both", "ata", true, true, 1);
    row("ConnectionBus is bytes",
        "tree.add(D1, drive('', False, False)); card(); "
        "tree.objects[D1][DRIVE]['ConnectionBus'] = file_name('usb')",
        0);
    row("Removable is text",
        "tree.add(D1, drive('', False, False)); card(); "
        "tree.objects[D1][DRIVE]['Removable'] = 'true'",
        0);
    row("Removable is an array",
        "tree.add(D1, drive('', False, False)); card(); "
        "tree.objects[D1][DRIVE]['Removable'] = dbus.Array([True], signature='b')",
        0);
}

void tst_PartitionManager::recognisesCards()
{
    QFETCH(QString, statements);
    QFETCH(int, count);

    // Announced bit by bit; known completely only when the manager asks.
    Watched before;
    m_udisks->run(statements);
    const Watched after;
    QCOMPARE(after.count(), count);

    // Those changes that the rows make silently are told by a new list only.
    m_udisks->run(text("for path in list(tree.objects): tree.add(path, tree.objects[path])"));
    if (!statements.contains(QLatin1String("del ")))
        QCOMPARE(before.count(), count);
}

void tst_PartitionManager::listsByDevice()
{
    // Neither in order of their arrival nor of their paths.
    m_udisks->run(text("card(BLOCKS + 'a', '/dev/sdb1', '/3'); card(BLOCKS + 'b', '/dev/mmcblk1p2', '/2');"
                       "card(BLOCKS + 'c', '/dev/mmcblk1p1', '/1')"));
    Watched watched;
    QCOMPARE(watched.list(), text("mounted at /1, mounted at /2, mounted at /3"));

    m_udisks->run(text("card(BLOCKS + 'd', '/dev/mmcblk1p10', '/10')"));
    QCOMPARE(watched.list(), text("mounted at /1, mounted at /10, mounted at /2, mounted at /3"));

    m_udisks->run(text("tree.change(BLOCKS + 'c', BLOCK, Device=file_name('/dev/sdc1'))"));
    QCOMPARE(watched.list(), text("mounted at /10, mounted at /2, mounted at /3, mounted at /1"));
    QCOMPARE(watched.log(), text("added mounted at /10"));

    // The terminating NUL is no part of the name, nor is what follows it.
    m_udisks->run(text("tree.change(BLOCKS + 'a', BLOCK, Device=file_name('/dev/mmcblk1p1')[:-1])"));
    m_udisks->run(text("tree.change(BLOCKS + 'b', BLOCK, Device=file_name('/dev/mmcblk1p0\\0zzz'))"));
    QCOMPARE(watched.list(), text("mounted at /2, mounted at /3, mounted at /10, mounted at /1"));
    // Two of the same name stand by their paths.
    m_udisks->run(text("tree.change(BLOCKS + 'a', BLOCK, Device=file_name('/dev/mmcblk1p0\\0zzz'))"));
    m_udisks->run(text("tree.change(BLOCKS + 'b', BLOCK, Device=file_name('/dev/mmcblk1p0'))"));
    QCOMPARE(watched.list(), text("mounted at /3, mounted at /2, mounted at /10, mounted at /1"));
    m_udisks->run(text("tree.change(BLOCKS + 'a', BLOCK, Device=file_name('/dev/mmcblk1p1'))"));
    m_udisks->run(text("tree.change(BLOCKS + 'c', BLOCK, Device='a text')"));
    QCOMPARE(watched.list(), text("mounted at /1, mounted at /2, mounted at /3, mounted at /10"));
}

void tst_PartitionManager::followsChanges_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QStringList>("steps");

    // Each step: statements, what is signalled, how the list is then.
    struct Step
    {
        const char *statements;
        const char *signalled;
        const char *list;
    };
    const auto row = [](const char *name, const char *before, std::initializer_list<Step> steps) {
        QStringList texts;
        for (const Step &step : steps)
            texts << text(step.statements) << text(step.signalled) << text(step.list);
        QTest::newRow(name) << text(before) << texts;
    };

    row("card comes and goes", "pass",
        {{"tree.add(D1, drive())", "", ""},
         {"tree.add(CARD_DISK, block('/dev/mmcblk1', D1), partition_table(P1))", "", ""},
         {"card()", "added unmounted", "unmounted"},
         {"tree.remove(P1)", "removed unmounted", ""},
         {"tree.remove(CARD_DISK)", "", ""},
         {"tree.remove(D1)", "", ""}});
    row("mounted card comes", "pass",
        {{"card(P1, None, '/media/x')", "added mounted at /media/x", "mounted at /media/x"}});
    row("drive comes last", "card(); tree.remove(D1)",
        {{"tree.add(D1, drive())", "added unmounted", "unmounted"},
         {"tree.remove(D1)", "removed unmounted", ""},
         {"tree.remove(P1)", "", ""}});
    row("several cards on a drive", "card(); card(P2)",
        {{"tree.remove(D1)", "removed unmounted, removed unmounted", ""},
         {"tree.add(D1, drive())", "added unmounted, added unmounted", "unmounted, unmounted"}});
    row("drive becomes fixed", "tree.add(D1, drive('')); card()",
        {{"tree.change(D1, DRIVE, Removable=False)", "", "unmounted"},
         {"tree.change(D1, DRIVE, MediaRemovable=False)", "removed unmounted", ""},
         {"tree.change(D1, DRIVE, ConnectionBus='usb')", "added unmounted", "unmounted"}});
    row("interfaces come one by one", "tree.add(D1, drive())",
        {{"tree.add(P1, filesystem())", "", ""},
         {"tree.add(P1, partition(CARD_DISK))", "", ""},
         {"tree.add(P1, block('/dev/mmcblk1p1', D1))", "added unmounted", "unmounted"}});
    row("one interface goes", "card(P1, None, '/x')",
        {{"tree.remove(P1, PARTITION)", "", "mounted at /x"},
         {"tree.remove(P1, 'org.example.Unknown')", "", "mounted at /x"},
         {"tree.add(P1, partition(CARD_DISK))", "", "mounted at /x"},
         {"tree.change(P1, FILESYSTEM, MountPoints=file_names('/y'))", "changed mounted at /y", "mounted at /y"}});
    row("file system goes and comes", "card()",
        {{"tree.remove(P1, FILESYSTEM)", "removed unmounted", ""},
         {"tree.add(P1, filesystem('/x'))", "added mounted at /x", "mounted at /x"},
         {"tree.remove(P1, BLOCK, FILESYSTEM, PARTITION)", "removed mounted at /x", ""}});
    row("announced again", "card()",
        {{"tree.add(P1, tree.objects[P1])", "", "unmounted"},
         {"tree.add(P1, filesystem('/x'))", "changed mounted at /x", "mounted at /x"},
         {"tree.add(P1, {'org.example.Other': {}})", "", "mounted at /x"}});
    row("announced again without the property", "card(P1, None, '/x')",
        {{"tree.add(P1, {FILESYSTEM: {}})", "changed unmounted", "unmounted"}});
    row("announced empty", "card()", {{"tree.add(P1)", "", "unmounted"}});
    row("becomes a parent", "card()",
        {{"tree.add(P1, partition_table())", "removed unmounted", ""},
         {"tree.remove(P1, PARTITION_TABLE)", "added unmounted", "unmounted"}});
    row("hints change", "card()",
        {{"tree.change(P1, BLOCK, HintIgnore=True)", "removed unmounted", ""},
         {"tree.change(P1, BLOCK, HintIgnore=False)", "added unmounted", "unmounted"},
         {"tree.change(P1, BLOCK, HintSystem=True)", "removed unmounted", ""},
         {"tree.change(P1, BLOCK, HintSystem=False)", "added unmounted", "unmounted"}});
    row("drive changes", "card()",
        {{"tree.change(P1, BLOCK, Drive=dbus.ObjectPath('/'))", "removed unmounted", ""},
         {"tree.change(P1, BLOCK, Drive=dbus.ObjectPath(D1))", "added unmounted", "unmounted"}});
    row("nothing of interest changes", "card()",
        {{"tree.change(P1, BLOCK, ReadOnly=True)", "", "unmounted"},
         {"tree.change(P1, FILESYSTEM, Size=dbus.UInt64(7))", "", "unmounted"},
         {"tree.change(P1, PARTITION, Name='x')", "", "unmounted"},
         {"tree.change(P1, FILESYSTEM)", "", "unmounted"}});
    row("unknown object changes", "card()",
        {{"tree.emit(P2, PROPERTIES, 'PropertiesChanged', 'sa{sv}as', FILESYSTEM, {'MountPoints': file_names('/')}, "
          "[])",
          "", "unmounted"},
         {"tree.emit(MAIN_OBJ, OBJECT_MANAGER, 'InterfacesRemoved', 'oas', P2, [BLOCK])", "", "unmounted"}});
    row("interface that it has not changes", "card(); tree.remove(P1, FILESYSTEM)",
        {{"tree.emit(P1, PROPERTIES, 'PropertiesChanged', 'sa{sv}as', FILESYSTEM, {'MountPoints': file_names('/')}, "
          "[])",
          "", ""}});

    row("mount points", "card()",
        {{"tree.set_mount_points(P1, '/x')", "changed mounted at /x", "mounted at /x"},
         {"tree.set_mount_points(P1, '/x', '/y')", "", "mounted at /x"},
         {"tree.set_mount_points(P1, '/y')", "changed mounted at /y", "mounted at /y"},
         {"tree.set_mount_points(P1)", "changed unmounted", "unmounted"}});
    row("mount points without NUL", "card()",
        {{"tree.change(P1, FILESYSTEM, MountPoints=dbus.Array([file_name('/x')[:-1]], signature='ay'))",
          "changed mounted at /x", "mounted at /x"}});
    row("mount points with NUL inside", "card()",
        {{"tree.set_mount_points(P1, '/x\\0/y')", "changed mounted at /x", "mounted at /x"}});
    row("mount points beyond ASCII", "card()",
        {{"tree.set_mount_points(P1, '/Fotos Käse ☃')", "changed mounted at /Fotos Käse ☃",
          "mounted at /Fotos Käse ☃"}});
    row("empty mount point", "card()",
        {{"tree.set_mount_points(P1, '')", "changed mounted", "mounted"},
         {"tree.change(P1, FILESYSTEM, MountPoints=dbus.Array([dbus.Array([], signature='y')], signature='ay'))", "",
          "mounted"}});
    row("mount points of another type", "card(P1, None, '/x')",
        {{"tree.change(P1, FILESYSTEM, MountPoints=dbus.Array(['/y'], signature='s'))", "changed unmounted",
          "unmounted"},
         {"tree.change(P1, FILESYSTEM, MountPoints='/y')", "", "unmounted"},
         {"tree.change(P1, FILESYSTEM, MountPoints=file_name('/y'))", "", "unmounted"},
         {"tree.change(P1, FILESYSTEM, MountPoints=dbus.Array([[1]], signature='ai'))", "", "unmounted"},
         {"tree.change(P1, FILESYSTEM, MountPoints=dbus.Dictionary({}, signature='sv'))", "", "unmounted"}});

    row("mounting", "card()",
        {{"j = tree.start_job('filesystem-mount', P1)", "changed mounting", "mounting"},
         {"tree.end_job(j)", "changed unmounted", "unmounted"},
         {"tree.set_mount_points(P1, '/x')", "changed mounted at /x", "mounted at /x"}});
    row("mounting, mount table first", "card()",
        {{"j = tree.start_job('filesystem-mount', P1)", "changed mounting", "mounting"},
         {"tree.set_mount_points(P1, '/x')", "changed mounting at /x", "mounting at /x"},
         {"tree.end_job(j)", "changed mounted at /x", "mounted at /x"}});
    row("unmounting", "card(P1, None, '/x')",
        {{"j = tree.start_job('filesystem-unmount', P1)", "changed unmounting at /x", "unmounting at /x"},
         {"tree.set_mount_points(P1)", "changed unmounting", "unmounting"},
         {"tree.end_job(j)", "changed unmounted", "unmounted"}});
    row("unmounting, job first", "card(P1, None, '/x')",
        {{"j = tree.start_job('filesystem-unmount', P1)", "changed unmounting at /x", "unmounting at /x"},
         {"tree.end_job(j)", "changed mounted at /x", "mounted at /x"},
         {"tree.set_mount_points(P1)", "changed unmounted", "unmounted"}});
    row("unmounting fails", "card(P1, None, '/x')",
        {{"j = tree.start_job('filesystem-unmount', P1)", "changed unmounting at /x", "unmounting at /x"},
         {"tree.end_job(j, False, 'busy')", "changed mounted at /x", "mounted at /x"}});
    row("another job", "card()",
        {{"j = tree.start_job('filesystem-check', P1)", "", "unmounted"}, {"tree.end_job(j, False)", "", "unmounted"}});
    row("job of another", "card(); card(P2)",
        {{"j = tree.start_job('filesystem-mount', P2)", "changed mounting", "unmounted, mounting"},
         {"tree.end_job(j, False)", "changed unmounted failed", "unmounted, unmounted failed"}});
    row("job of several", "card(); card(P2)",
        {{"j = tree.start_job('filesystem-mount', P2, '/', P1)", "changed mounting, changed mounting",
          "mounting, mounting"},
         {"tree.end_job(j)", "changed unmounted, changed unmounted", "unmounted, unmounted"}});
    row("job of none", "card()",
        {{"j = tree.start_job('filesystem-mount')", "", "unmounted"}, {"tree.end_job(j, False)", "", "unmounted"}});
    row("job is over before it is removed", "card()",
        {{"j = tree.start_job('filesystem-mount', P1)", "changed mounting", "mounting"},
         {"tree.emit(j, JOB, 'Completed', 'bs', True, '')", "changed unmounted", "unmounted"},
         {"tree.change(j, JOB, Progress=dbus.Double(1))", "", "unmounted"},
         {"tree.add(j, tree.objects[j])", "", "unmounted"},
         {"tree.remove(j)", "", "unmounted"}});
    row("job is removed without a result", "card()",
        {{"j = tree.start_job('filesystem-mount', P1)", "changed mounting", "mounting"},
         {"tree.remove(j)", "changed unmounted", "unmounted"},
         {"tree.emit(j, JOB, 'Completed', 'bs', False, '')", "", "unmounted"}});
    row("job tells later what it does", "card()",
        {{"j = tree.start_job('', P1)", "", "unmounted"},
         {"tree.change(j, JOB, Operation='filesystem-mount')", "changed mounting", "mounting"},
         {"tree.change(j, JOB, Objects=paths())", "changed unmounted", "unmounted"},
         {"tree.change(j, JOB, Objects=paths(P1))", "changed mounting", "mounting"},
         {"tree.change(j, JOB, Operation='cleanup')", "changed unmounted", "unmounted"},
         {"tree.end_job(j, False)", "", "unmounted"}});
    row("jobs overlap", "card(P1, None, '/x')",
        {{"j = tree.start_job('filesystem-mount', P1)", "changed mounting at /x", "mounting at /x"},
         {"k = tree.start_job('filesystem-unmount', P1)", "changed unmounting at /x", "unmounting at /x"},
         {"tree.end_job(j)", "", "unmounting at /x"},
         {"tree.end_job(k)", "changed mounted at /x", "mounted at /x"}});
    row("later job ends first", "card()",
        {{"j = tree.start_job('filesystem-mount', P1)", "changed mounting", "mounting"},
         {"k = tree.start_job('filesystem-unmount', P1)", "changed unmounting", "unmounting"},
         {"tree.end_job(k)", "changed mounting", "mounting"},
         {"tree.end_job(j)", "changed unmounted", "unmounted"}});
    row("job before the card", "j = tree.start_job('filesystem-mount', P1)",
        {{"card()", "added mounting", "mounting"},
         {"tree.end_job(j, False)", "changed unmounted failed", "unmounted failed"}});
    row("job before the page", "card(); j = tree.start_job('filesystem-mount', P1)",
        {{"pass", "", "mounting"}, {"tree.end_job(j, False)", "changed unmounted failed", "unmounted failed"}});
    // Whichever comes first in the list, that one counts which was started later.
    row("jobs before the page, mounting later",
        "card(); tree.add(JOBS + '1', job('filesystem-mount', P1, StartTime=dbus.UInt64(2000)));"
        "tree.add(JOBS + '2', job('filesystem-unmount', P1, StartTime=dbus.UInt64(1000)))",
        {{"pass", "", "mounting"}, {"tree.end_job(JOBS + '1')", "changed unmounting", "unmounting"}});
    row("jobs before the page, unmounting later",
        "card(); tree.add(JOBS + '1', job('filesystem-mount', P1, StartTime=dbus.UInt64(1000)));"
        "tree.add(JOBS + '2', job('filesystem-unmount', P1, StartTime=dbus.UInt64(2000)))",
        {{"pass", "", "unmounting"}, {"tree.end_job(JOBS + '2')", "changed mounting", "mounting"}});

    row("mounting fails", "card()",
        {{"j = tree.start_job('filesystem-mount', P1)", "changed mounting", "mounting"},
         {"tree.end_job(j, False, 'wrong fs type')", "changed unmounted failed", "unmounted failed"},
         {"tree.change(P1, BLOCK, ReadOnly=True)", "", "unmounted failed"},
         {"j = tree.start_job('filesystem-mount', P1)", "changed mounting", "mounting"},
         {"tree.end_job(j, False)", "changed unmounted failed", "unmounted failed"},
         {"j = tree.start_job('filesystem-unmount', P1)", "changed unmounting failed", "unmounting failed"},
         {"tree.end_job(j, False)", "changed unmounted failed", "unmounted failed"},
         {"j = tree.start_job('filesystem-mount', P1)", "changed mounting", "mounting"},
         {"tree.end_job(j)", "changed unmounted", "unmounted"}});
    row("mounted after a failure", "card()",
        {{"tree.end_job(tree.start_job('filesystem-mount', P1), False)", "changed mounting, changed unmounted failed",
          "unmounted failed"},
         {"tree.set_mount_points(P1, '/x')", "changed mounted at /x", "mounted at /x"},
         {"tree.set_mount_points(P1)", "changed unmounted", "unmounted"}});
    row("fails while it is mounted", "card(P1, None, '/x')",
        {{"j = tree.start_job('filesystem-mount', P1)", "changed mounting at /x", "mounting at /x"},
         {"tree.end_job(j, False)", "changed mounted at /x failed", "mounted at /x failed"},
         {"tree.set_mount_points(P1, '/x', '/y')", "", "mounted at /x failed"},
         {"tree.set_mount_points(P1)", "changed unmounted failed", "unmounted failed"},
         {"tree.set_mount_points(P1, '/x')", "changed mounted at /x", "mounted at /x"}});
    row("fails and is told twice", "card()",
        {{"j = tree.start_job('filesystem-mount', P1); k = tree.start_job('filesystem-mount', P1)", "changed mounting",
          "mounting"},
         {"tree.emit(j, JOB, 'Completed', 'bs', False, '')", "changed mounting failed", "mounting failed"},
         {"tree.end_job(k)", "changed unmounted failed", "unmounted failed"},
         {"tree.set_mount_points(P1, '/x')", "changed mounted at /x", "mounted at /x"},
         {"tree.emit(j, JOB, 'Completed', 'bs', False, ''); tree.remove(j)", "", "mounted at /x"}});
    row("put in anew after a failure", "card()",
        {{"tree.end_job(tree.start_job('filesystem-mount', P1), False)", "changed mounting, changed unmounted failed",
          "unmounted failed"},
         {"tree.remove(P1)", "removed unmounted failed", ""},
         {"card()", "added unmounted", "unmounted"}});
    row("unknown job completes", "card()",
        {{"tree.emit(JOBS + '7', JOB, 'Completed', 'bs', False, '')", "", "unmounted"},
         {"tree.emit(P1, JOB, 'Completed', 'bs', False, '')", "", "unmounted"}});
    row("job fails for something else", "card(); tree.add(BLOCKS + 'sda1', block('/dev/sda1', '/'), filesystem())",
        {{"tree.end_job(tree.start_job('filesystem-mount', BLOCKS + 'sda1'), False)", "", "unmounted"}});
}

void tst_PartitionManager::followsChanges()
{
    QFETCH(QString, before);
    QFETCH(QStringList, steps);

    m_udisks->run(before);
    Watched watched;
    for (int i = 0; i < steps.size(); i += 3) {
        m_udisks->run(steps.at(i));
        QCOMPARE(watched.log(), steps.at(i + 1));
        QCOMPARE(watched.list(), steps.at(i + 2));
    }
    // Somebody who asks only now hears the same, but for what only those know who were there.
    QString list = watched.list();
    QCOMPARE(Watched().list(), list.remove(QStringLiteral(" failed")));
}

void tst_PartitionManager::survivesNonsense_data()
{
    QTest::addColumn<QString>("statements");

    const auto row = [](const char *name, const char *statements) { QTest::newRow(name) << text(statements); };
    row("InterfacesAdded without arguments", "tree.emit(MAIN_OBJ, OBJECT_MANAGER, 'InterfacesAdded', '')");
    row("InterfacesAdded with a text", "tree.emit(MAIN_OBJ, OBJECT_MANAGER, 'InterfacesAdded', 's', 'x')");
    row("InterfacesAdded with a path only", "tree.emit(MAIN_OBJ, OBJECT_MANAGER, 'InterfacesAdded', 'o', P1)");
    row("InterfacesAdded with a text for the path",
        "tree.emit(MAIN_OBJ, OBJECT_MANAGER, 'InterfacesAdded', 'sa{sa{sv}}', P2, block('/dev/x', D1))");
    row("InterfacesAdded with texts for variants",
        "tree.emit(MAIN_OBJ, OBJECT_MANAGER, 'InterfacesAdded', 'oa{sa{ss}}', P1, {FILESYSTEM: {'MountPoints': "
        "'/x'}})");
    row("InterfacesAdded with one more",
        "tree.emit(MAIN_OBJ, OBJECT_MANAGER, 'InterfacesAdded', 'oa{sa{sv}}i', P1, "
        "filesystem('/x'), 1)");
    row("InterfacesRemoved without arguments", "tree.emit(MAIN_OBJ, OBJECT_MANAGER, 'InterfacesRemoved', '')");
    row("InterfacesRemoved with a text", "tree.emit(MAIN_OBJ, OBJECT_MANAGER, 'InterfacesRemoved', 'os', P1, BLOCK)");
    row("InterfacesRemoved with a path only", "tree.emit(MAIN_OBJ, OBJECT_MANAGER, 'InterfacesRemoved', 'o', P1)");
    row("InterfacesRemoved of nothing", "tree.emit(MAIN_OBJ, OBJECT_MANAGER, 'InterfacesRemoved', 'oas', P1, [])");
    row("InterfacesRemoved elsewhere", "tree.emit('/', OBJECT_MANAGER, 'InterfacesRemoved', 'oas', P1, [BLOCK])");
    row("InterfacesAdded elsewhere",
        "tree.emit('/', OBJECT_MANAGER, 'InterfacesAdded', 'oa{sa{sv}}', P1, filesystem('/x'))");
    row("PropertiesChanged without arguments", "tree.emit(P1, PROPERTIES, 'PropertiesChanged', '')");
    row("PropertiesChanged with an interface only", "tree.emit(P1, PROPERTIES, 'PropertiesChanged', 's', FILESYSTEM)");
    row("PropertiesChanged without invalidated",
        "tree.emit(P1, PROPERTIES, 'PropertiesChanged', 'sa{sv}', FILESYSTEM, {'MountPoints': file_names('/x')})");
    row("PropertiesChanged with texts",
        "tree.emit(P1, PROPERTIES, 'PropertiesChanged', 'sa{ss}as', FILESYSTEM, "
        "{'MountPoints': '/x'}, [])");
    row("PropertiesChanged of an empty interface",
        "tree.emit(P1, PROPERTIES, 'PropertiesChanged', 'sa{sv}as', '', {'MountPoints': file_names('/x')}, [])");
    row("PropertiesChanged with an empty name",
        "tree.emit(P1, PROPERTIES, 'PropertiesChanged', 'sa{sv}as', FILESYSTEM, {'': file_names('/x')}, [''])");
    row("PropertiesChanged of the interface of another",
        "tree.emit(P1, PROPERTIES, 'PropertiesChanged', 'sa{sv}as', DRIVE, {'Removable': False}, [])");
    row("Completed without arguments", "tree.emit(j, JOB, 'Completed', '')");
    row("Completed with a text", "tree.emit(j, JOB, 'Completed', 's', 'no')");
    row("Completed with a number", "tree.emit(j, JOB, 'Completed', 'us', 0, '')");
    row("Completed with a flag only", "tree.emit(j, JOB, 'Completed', 'b', False)");
    row("Completed elsewhere", "tree.emit('/', JOB, 'Completed', 'bs', False, '')");
    row("Completed of another interface", "tree.emit(j, 'org.example.Job', 'Completed', 'bs', False, '')");
    row("job of texts", "tree.add(JOBS + '1', {JOB: {'Operation': dbus.UInt32(1), 'Objects': 'x', 'StartTime': ''}})");
    row("job with texts for paths",
        "tree.add(JOBS + '1', job('filesystem-unmount', "
        "Objects=dbus.Array([str(P1)], signature='s')))");
    row("job with a path for paths", "tree.add(JOBS + '1', job('filesystem-unmount', Objects=dbus.ObjectPath(P1)))");
    row("job of very many",
        "tree.add(JOBS + '1', job('filesystem-unmount', *(BLOCKS + str(i) for i in range(200000))))");
    row("very many mount points elsewhere",
        "tree.add(P2, filesystem(*('/%d' % i for i in range(100000))), block('/dev/x', '/'))");
    row("very long name", "tree.add(P2, block('/dev/' + 'x' * 4000000, '/'))");
    row("deep variant",
        "v = 1\nfor i in range(12): v = dbus.Struct([v], signature='v', variant_level=1)\n"
        "tree.change(P1, BLOCK, Deep=v)");
    row("everything on one object", "tree.add(JOBS + '1', drive(), block('/dev/z', JOBS + '1'), job('x'))");
    row("object that is its own drive", "tree.add(P2, block('/dev/z', P2), drive(), partition_table())");
}

void tst_PartitionManager::survivesNonsense()
{
    QFETCH(QString, statements);
    m_udisks->run(text("card(); j = tree.start_job('filesystem-mount', P1)"));
    Watched watched;
    QCOMPARE(watched.list(), text("mounting"));

    m_udisks->run(statements);
    QCOMPARE(watched.log(), QString());
    QCOMPARE(watched.list(), text("mounting"));

    m_udisks->run(text("tree.end_job(j)"));
    QCOMPARE(watched.log(), text("changed unmounted"));
}

void tst_PartitionManager::takesNonsenseForAnEmptyList_data()
{
    QTest::addColumn<QString>("statements");

    const auto row = [](const char *name, const char *statements) { QTest::newRow(name) << text(statements); };
    row("nothing", "answer('')");
    row("text", "answer('s', 'x')");
    row("other dictionary", "answer('a{sv}', {})");
    row("other values", "answer('a{oa{sa{ss}}}', {})");
    row("texts for paths", "answer('a{sa{sa{sv}}}', tree.objects)");
    row("two values", "answer('a{oa{sa{sv}}}s', tree.objects, '')");
    row("empty", "answer('a{oa{sa{sv}}}', {})");
    row("refused", "answer('error', 'org.freedesktop.DBus.Error.AccessDenied', 'no')");
    row("unknown method", "answer('error', 'org.freedesktop.DBus.Error.UnknownMethod', 'no')");
    row("no reply", "answer('error', 'org.freedesktop.DBus.Error.NoReply', 'no')");
}

void tst_PartitionManager::takesNonsenseForAnEmptyList()
{
    QFETCH(QString, statements);
    m_udisks->run(text("card(); ") + statements);
    Watched watched;
    QCOMPARE(watched.count(), 0);
    Udisks2Process::settle();
    QCOMPARE(watched.count(), 0);

    // What is announced afterwards counts nevertheless.
    m_udisks->run(text("card(P2, on=DRIVES + 'Other')"));
    QCOMPARE(watched.log(), text("added unmounted"));
}

void tst_PartitionManager::handlesShowTheSamePartition()
{
    m_udisks->run(text("card()"));
    Watched watched;
    const Partition card = watched.first();
    const Partition copy = card;
    QVERIFY(card == copy);
    QVERIFY(card == watched.first());
    QVERIFY(card != Partition());

    m_udisks->run(text("tree.set_mount_points(P1, '/x')"));
    QCOMPARE(Watched::describe(card), text("mounted at /x"));
    QCOMPARE(Watched::describe(copy), text("mounted at /x"));

    // The last state stays, but the one put in afterwards is another.
    m_udisks->run(text("tree.remove(P1); card()"));
    QCOMPARE(Watched::describe(card), text("mounted at /x"));
    QCOMPARE(watched.list(), text("unmounted"));
    QVERIFY(card != watched.first());
    watched.manager.reset();
    QCOMPARE(Watched::describe(card), text("mounted at /x"));
}

void tst_PartitionManager::partitionsAreDistinct()
{
    m_udisks->run(text("card(); card(P2)"));
    const Watched watched;
    const auto partitions = watched.manager->partitions(Cards);
    QCOMPARE(partitions.size(), 2);
    QVERIFY(partitions.at(0) != partitions.at(1));
}

void tst_PartitionManager::removesAllBeforeItTells()
{
    m_udisks->run(text("card(); card(P2)"));
    const Watched watched;
    QVector<int> counts;
    connect(watched.manager.get(), &PartitionManager::partitionRemoved, this, [&] { counts << watched.count(); });
    m_udisks->run(text("tree.remove(D1)"));
    QCOMPARE(counts, QVector<int>({0, 0}));
}

void tst_PartitionManager::asksAnewForInvalidatedProperties()
{
    const QString invalidate = text("tree.emit(%1, PROPERTIES, 'PropertiesChanged', 'sa{sv}as', %2, {}, ['%3'])");
    m_udisks->run(text("card()"));
    Watched watched;

    m_udisks->run(text("tree.objects[P1][FILESYSTEM] = filesystem('/x')[FILESYSTEM]; ")
                  + invalidate.arg(text("P1"), text("FILESYSTEM"), text("MountPoints")));
    QTRY_LOG(watched, text("changed mounted at /x"));

    m_udisks->run(text("del tree.objects[P1][FILESYSTEM]['MountPoints']; ")
                  + invalidate.arg(text("P1"), text("FILESYSTEM"), text("MountPoints")));
    QTRY_LOG(watched, text("changed unmounted"));

    m_udisks->run(text("tree.objects[P1][BLOCK]['HintIgnore'] = True; ")
                  + invalidate.arg(text("P1"), text("BLOCK"), text("HintIgnore")));
    QTRY_LOG(watched, text("removed unmounted"));
    m_udisks->run(text("tree.objects[P1][BLOCK]['HintIgnore'] = False; ")
                  + invalidate.arg(text("P1"), text("BLOCK"), text("HintIgnore")));
    QTRY_LOG(watched, text("added unmounted"));

    m_udisks->run(text("tree.objects[D1] = drive('', False, False); ")
                  + invalidate.arg(text("D1"), text("DRIVE"), text("Removable")));
    QTRY_LOG(watched, text("removed unmounted"));
    m_udisks->run(text("tree.objects[D1] = drive(); ") + invalidate.arg(text("D1"), text("DRIVE"), text("Removable")));
    QTRY_LOG(watched, text("added unmounted"));

    m_udisks->run(text("j = tree.start_job('', P1); tree.objects[j][JOB]['Operation'] = 'filesystem-mount'; ")
                  + invalidate.arg(text("j"), text("JOB"), text("Operation")));
    QTRY_LOG(watched, text("changed mounting"));

    // Nobody wants to know these.
    const QString asked = m_udisks->run(text("result = len(state['properties'])"));
    m_udisks->run(invalidate.arg(text("P1"), text("PARTITION"), text("Name")));
    m_udisks->run(invalidate.arg(text("P2"), text("FILESYSTEM"), text("MountPoints")));
    QCOMPARE(m_udisks->run(text("result = len(state['properties'])")), asked);
}

void tst_PartitionManager::asksOnceForManyInvalidations()
{
    m_udisks->run(text("card()"));
    Watched watched;
    m_udisks->run(text("hold()\n"
                       "for i in range(100): tree.emit(P1, PROPERTIES, 'PropertiesChanged', 'sa{sv}as', FILESYSTEM, "
                       "{}, ['MountPoints'])"));
    m_udisks->run(text("tree.objects[P1][FILESYSTEM] = filesystem('/x')[FILESYSTEM]"));
    QCOMPARE(m_udisks->run(text("result = len(state['held'])")), text("1"));
    QCOMPARE(m_udisks->run(text("result = state['properties']")),
             text("['/org/freedesktop/UDisks2/block_devices/mmcblk1p1 org.freedesktop.UDisks2.Filesystem']"));
    m_udisks->run(text("release()"));
    QTRY_LOG(watched, text("changed mounted at /x"));
}

void tst_PartitionManager::ignoresLateProperties()
{
    const QString invalidate =
        text("hold(); tree.emit(P1, PROPERTIES, 'PropertiesChanged', 'sa{sv}as', FILESYSTEM, {}, ['MountPoints'])");
    m_udisks->run(text("card()"));
    Watched watched;

    // The interface has gone.
    m_udisks->run(invalidate);
    m_udisks->run(text("tree.remove(P1, PARTITION)"));
    m_udisks->run(text("f = tree.objects[P1][FILESYSTEM]; tree.remove(P1, FILESYSTEM)"));
    QCOMPARE(watched.log(), text("removed unmounted"));
    m_udisks->run(text("tree.objects[P1][FILESYSTEM] = filesystem('/x')[FILESYSTEM]; release()"));
    QCOMPARE(watched.log(), QString());

    // An answer that is none.
    m_udisks->run(text("tree.add(P1, filesystem('/y')); answer('s', 'nonsense')"));
    QCOMPARE(watched.log(), text("added mounted at /y"));
    m_udisks->run(text("tree.emit(P1, PROPERTIES, 'PropertiesChanged', 'sa{sv}as', FILESYSTEM, {}, ['MountPoints'])"));
    m_udisks->run(text("answer('error', 'org.freedesktop.DBus.Error.UnknownMethod', 'gone')"));
    m_udisks->run(text("tree.emit(P1, PROPERTIES, 'PropertiesChanged', 'sa{sv}as', FILESYSTEM, {}, ['MountPoints'])"));
    Udisks2Process::settle();
    QCOMPARE(watched.log(), QString());
    QCOMPARE(watched.list(), text("mounted at /y"));
}

void tst_PartitionManager::waitsForServiceThatIsAbsent()
{
    m_udisks->kill();
    QElapsedTimer timer;
    timer.start();
    for (int attempt = 0; attempt < 5; ++attempt) {
        timer.start();
        const PartitionManager manager;
        if (timer.elapsed() < 1000)
            break;
    }
    QVERIFY2(timer.elapsed() < 1000, "it waits for what is not there");
    Watched watched;
    QCOMPARE(watched.count(), 0);
    Udisks2Process::settle();
    QCOMPARE(watched.log(), QString());
    QVERIFY(m_udisks->start());
}

void tst_PartitionManager::neverStartsTheService()
{
    m_udisks->kill();
    QVERIFY(m_bus->makeStartable(Service));
    {
        const Watched watched;
        Udisks2Process::settle();
        QCOMPARE(watched.count(), 0);
    }
    const bool started = m_bus->hasStarted(Service);
    QVERIFY(m_bus->makeUnstartable(Service));
    QVERIFY(!started);
    QVERIFY(m_udisks->start());
}

void tst_PartitionManager::followsServiceThatComesLater()
{
    m_udisks->kill();
    Watched watched;
    QVERIFY(m_udisks->start());
    m_udisks->run(text("card(P1, None, '/x')"));
    QTRY_LOG(watched, text("added mounted at /x"));

    // What it knew before it was asked.
    m_udisks->kill();
    QTRY_LOG(watched, text("removed mounted at /x"));
    QVERIFY(m_udisks->start(QStringLiteral("{\"card\": \"CARD\"}")));
    QTRY_COMPARE(watched.count(), 0);
}

void tst_PartitionManager::forgetsServiceThatVanishes()
{
    m_udisks->run(text("card(); card(P2, None, '/x'); tree.start_job('filesystem-mount', P1)"));
    Watched watched;
    QCOMPARE(watched.list(), text("mounting, mounted at /x"));
    m_udisks->kill();
    QTRY_LOG(watched, text("removed mounting, removed mounted at /x"));
    QCOMPARE(watched.count(), 0);
    QVERIFY(m_udisks->start());
}

void tst_PartitionManager::followsServiceThatRestarts()
{
    m_udisks->run(text("card(); tree.end_job(tree.start_job('filesystem-mount', P1), False)"));
    Watched watched;
    m_udisks->run(text("tree.end_job(tree.start_job('filesystem-mount', P1), False)"));
    QCOMPARE(watched.log(), text("changed mounting, changed unmounted failed"));
    for (int i = 0; i < 3; ++i) {
        m_udisks->kill();
        QTRY_LOG(watched, i == 0 ? text("removed unmounted failed") : text("removed unmounted"));
        QVERIFY(m_udisks->start());
        m_udisks->run(text("card()"));
        QTRY_LOG(watched, text("added unmounted"));
        m_udisks->run(text("tree.set_mount_points(P1, '/x')"));
        QCOMPARE(watched.log(), text("changed mounted at /x"));
        m_udisks->run(text("tree.set_mount_points(P1)"));
        QCOMPARE(watched.log(), text("changed unmounted"));
    }
}

void tst_PartitionManager::followsServiceThatIsReplaced()
{
    m_udisks->run(text("card(P1, None, '/old')"));
    Watched watched;

    // The name passes on directly, nobody is without it for a moment.
    Udisks2Process other(m_bus->address(), QStringLiteral("other"));
    QVERIFY(other.start());
    QTRY_LOG(watched, text("removed mounted at /old"));
    other.run(text("card(P1, None, '/new')"));
    QTRY_LOG(watched, text("added mounted at /new"));

    other.kill();
    QTRY_LOG(watched, text("removed mounted at /new"));
    m_udisks->kill();
    QVERIFY(m_udisks->start());
}

void tst_PartitionManager::ignoresReplyOfFormerService()
{
    // While it restarts, the first daemon hangs over its answer, which it sends after the name has passed on.
    m_udisks->kill();
    Watched watched;
    FakeDaemon former(m_bus->address(), Service);
    former.hold(QStringLiteral("GetManagedObjects"));
    QTRY_COMPARE(former.members(), QStringList(QStringLiteral("GetManagedObjects")));

    QVERIFY(former.disown(Service));
    QVERIFY(m_udisks->start());
    m_udisks->run(text("card(P1, None, '/x')"));
    QTRY_LOG(watched, text("added mounted at /x"));

    former.answer(QStringLiteral("GetManagedObjects"), {QStringLiteral("nothing")});
    former.answerHeld();
    FakeDaemon::synchronise(QDBusConnection::systemBus());
    Udisks2Process::settle();
    QCOMPARE(watched.log(), QString());
    QCOMPARE(watched.list(), text("mounted at /x"));
}

void tst_PartitionManager::waitsBoundedForServiceThatHangs()
{
    m_udisks->run(text("card(P1, None, '/x')"));
    qint64 waited = 0;
    m_udisks->freeze();
    // Longer than it means to only where this process has to wait, too.
    for (int attempt = 0; attempt < 5 && (attempt == 0 || waited >= 3000); ++attempt) {
        QElapsedTimer timer;
        timer.start();
        const PartitionManager manager;
        waited = timer.elapsed();
    }
    Watched watched(Watched::Hangs);
    QCOMPARE(watched.count(), 0);
    m_udisks->thaw();
    QVERIFY2(waited >= WaitMs && waited < 3000, qPrintable(QString::number(waited)));

    // What it answers in the end still counts, and so does what it tells after that.
    QTRY_LOG(watched, text("added mounted at /x"));
    m_udisks->run(text("tree.set_mount_points(P1)"));
    QCOMPARE(watched.log(), text("changed unmounted"));
}

void tst_PartitionManager::asksOnlyOnceMore()
{
    {
        const Watched watched;
        m_udisks->run(text("card(); tree.set_mount_points(P1, '/x')"));
        QCOMPARE(m_udisks->run(text("result = state['objects']")), text("1"));
    }
    m_udisks->run(text("hold()"));
    const Watched watched(Watched::Hangs);
    QCOMPARE(m_udisks->run(text("result = state['objects']")), text("3"));
    m_udisks->run(text("release(); tree.set_mount_points(P1)"));
    QTRY_COMPARE(watched.list(), text("unmounted"));
    QCOMPARE(m_udisks->run(text("result = state['objects']")), text("3"));
}

void tst_PartitionManager::neverBlocksAfterConstruction()
{
    qint64 took = 0;
    for (int attempt = 0; attempt < 5 && (attempt == 0 || took >= 1000); ++attempt) {
        m_udisks->reset();
        m_udisks->run(text("card()"));
        Watched watched;
        m_udisks->runUnseen(text("tree.emit(P1, PROPERTIES, 'PropertiesChanged', 'sa{sv}as', FILESYSTEM, {}, "
                                 "['MountPoints']); tree.set_mount_points(P1, '/x')"));
        m_udisks->freeze();
        QElapsedTimer timer;
        timer.start();
        Udisks2Process::settle();
        const QString log = watched.log();
        watched.manager.reset();
        took = timer.elapsed();
        m_udisks->thaw();
        QCOMPARE(log, text("changed mounted at /x"));
    }
    QVERIFY2(took < 1000, qPrintable(QString::number(took)));
}

void tst_PartitionManager::knowsServiceThatCameWhileItAsked()
{
    // The arrival of the daemon is still to be handled when the list has long been there.
    m_udisks->kill();
    std::unique_ptr<Watched> watched;
    QVERIFY(m_udisks->start());
    m_udisks->runUnseen(text("card()"));
    watched = std::make_unique<Watched>();
    QCOMPARE(watched->list(), text("unmounted"));
    Udisks2Process::settle();
    QCOMPARE(watched->log(), QString());
    QCOMPARE(m_udisks->run(text("result = state['objects']")), text("1"));
}

void tst_PartitionManager::believesOnlyTheService()
{
    m_udisks->run(text("card(); j = tree.start_job('filesystem-mount', P1)"));
    Watched watched;
    const QString path = m_udisks->run(text("result = P1"));
    const QString job = m_udisks->run(text("result = j"));

    const QStringList destinations{QString(), QDBusConnection::systemBus().baseService()};
    for (const QString &destination : destinations) {
        FakeDaemon stranger(m_bus->address());
        stranger.emitSignal(ManagerPath, QStringLiteral("org.freedesktop.DBus.ObjectManager"),
                            QStringLiteral("InterfacesRemoved"),
                            {QVariant::fromValue(QDBusObjectPath(path)),
                             QStringList(QStringLiteral("org.freedesktop.UDisks2.Filesystem"))},
                            destination);
        stranger.emitSignal(path, QStringLiteral("org.freedesktop.DBus.Properties"),
                            QStringLiteral("PropertiesChanged"),
                            {QStringLiteral("org.freedesktop.UDisks2.Block"),
                             QVariantMap{{QStringLiteral("HintIgnore"), true}}, QStringList()},
                            destination);
        stranger.emitSignal(job, QStringLiteral("org.freedesktop.UDisks2.Job"), QStringLiteral("Completed"),
                            {false, QString()}, destination);
        // The bus throws out who pretends this.
        stranger.emitSignal(QStringLiteral("/org/freedesktop/DBus/Local"), QStringLiteral("org.freedesktop.DBus.Local"),
                            QStringLiteral("Disconnected"), {}, destination);
    }
    Udisks2Process::settle();
    QCOMPARE(watched.log(), QString());
    QCOMPARE(watched.list(), text("mounting"));
}

void tst_PartitionManager::destroyedBeforeReply()
{
    m_udisks->run(text("card(); hold()"));
    {
        Watched watched(Watched::Hangs); // its first query times out, its second is on the way
        m_udisks->run(text("pass"));
    }
    m_udisks->run(text("release()"));
    {
        Watched watched;
        m_udisks->run(text("hold(); tree.emit(P1, PROPERTIES, 'PropertiesChanged', 'sa{sv}as', BLOCK, {}, ['Drive'])"));
        QCOMPARE(m_udisks->run(text("result = len(state['held'])")), text("1"));
    }
    m_udisks->run(text("release()"));
    Udisks2Process::settle();
}

void tst_PartitionManager::destroyedBeforeSignals()
{
    m_udisks->run(text("card()"));
    auto watched = std::make_unique<Watched>();
    m_udisks->runUnseen(text("tree.set_mount_points(P1, '/x'); tree.remove(P1)"));
    watched.reset();
    Udisks2Process::settle();
}

void tst_PartitionManager::destroyedInHandler_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("statements");
    QTest::newRow("added") << QStringLiteral("pass") << QStringLiteral("cards('a', 'b')");
    QTest::newRow("added together") << QStringLiteral("cards('a', 'b'); tree.remove(D1)")
                                    << QStringLiteral("tree.add(D1, drive())");
    QTest::newRow("changed") << QStringLiteral("cards('a', 'b')")
                             << QStringLiteral("tree.start_job('filesystem-mount', BLOCKS + 'a', BLOCKS + 'b')");
    QTest::newRow("removed") << QStringLiteral("cards('a', 'b')") << QStringLiteral("tree.remove(D1)");
    QTest::newRow("properties") << QStringLiteral("cards('a', 'b'); tree.objects[D1][DRIVE] = {}")
                                << QStringLiteral("tree.emit(D1, PROPERTIES, 'PropertiesChanged', 'sa{sv}as', DRIVE, "
                                                  "{'ConnectionBus': 'usb'}, ['Removable'])");
}

void tst_PartitionManager::destroyedInHandler()
{
    QFETCH(QString, before);
    QFETCH(QString, statements);
    m_udisks->run(before);
    int heard = 0;
    Watched watched;
    const auto destroy = [&] {
        ++heard;
        watched.manager.reset();
    };
    connect(watched.manager.get(), &PartitionManager::partitionAdded, this, destroy);
    connect(watched.manager.get(), &PartitionManager::partitionChanged, this, destroy);
    connect(watched.manager.get(), &PartitionManager::partitionRemoved, this, destroy);
    m_udisks->run(statements);
    Udisks2Process::settle();
    QCOMPARE(heard, 1);
}

void tst_PartitionManager::tellsInOrderThroughNestedLoop()
{
    m_udisks->run(text("cards('a', 'b'); tree.remove(D1)"));
    Watched watched;
    bool nested = false;
    connect(watched.manager.get(), &PartitionManager::partitionAdded, this, [&] {
        if (!std::exchange(nested, true))
            m_udisks->run(text("tree.remove(BLOCKS + 'b')"));
    });
    m_udisks->run(text("tree.add(D1, drive())"));
    QCOMPARE(watched.log(), text("added unmounted, added unmounted, removed unmounted"));
    QCOMPARE(watched.list(), text("unmounted"));
}

void tst_PartitionManager::leavesNothingBehind()
{
    const auto descriptors = [] { return QDir(QStringLiteral("/proc/self/fd")).count(); };
    // What the bus has been asked to pass on to this process.
    const auto matchRules = [] {
        const QDBusConnection bus = QDBusConnection::systemBus();
        QDBusMessage call = QDBusMessage::createMethodCall(
            QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
            QStringLiteral("org.freedesktop.DBus.Debug.Stats"), QStringLiteral("GetConnectionStats"));
        call << bus.baseService();
        const QDBusReply<QVariantMap> reply = bus.call(call);
        return reply.value().value(QStringLiteral("MatchRules")).toInt();
    };
    m_udisks->run(text("card()"));
    {
        const Watched warmUp;
    }
    Udisks2Process::settle();
    const uint before = descriptors();
    const int rulesBefore = matchRules();
    {
        const PartitionManager manager;
        QVERIFY(matchRules() > rulesBefore);
    }
    for (int i = 0; i < 1000; ++i) {
        const PartitionManager manager;
        QCOMPARE(manager.partitions(Cards).size(), 1);
    }
    Udisks2Process::settle();
    QCOMPARE(descriptors(), before);
    QCOMPARE(matchRules(), rulesBefore);
}

void tst_PartitionManager::handlesManyObjects()
{
    m_udisks->run(text("card(P1, None, '/x')\n"
                       "for i in range(5000): tree.objects[BLOCKS + 'x%d' % i] = {**block('/dev/x%d' % i, '/'), "
                       "**filesystem()}"));
    // What this process has to do for them, whoever else has the processor meanwhile.
    const auto milliseconds = [] { return qint64(std::clock()) * 1000 / CLOCKS_PER_SEC; };
    const qint64 begin = milliseconds();
    Watched watched(Watched::Hangs);
    const qint64 list = milliseconds() - begin;
    Udisks2Process::settle();
    QTRY_COMPARE(watched.list(), text("mounted at /x"));
    m_udisks->run(text("for i in range(500): tree.set_mount_points(P1, '/%d' % i)"));
    QCOMPARE(watched.list(), text("mounted at /499"));
    const qint64 changes = milliseconds() - begin - list;
#ifdef __SANITIZE_ADDRESS__
    const qint64 limit = 50000;
#else
    const qint64 limit = 5000;
#endif
    QVERIFY2(list < limit && changes < 4 * limit, qPrintable(QStringLiteral("%1 %2 ms").arg(list).arg(changes)));
}

// The last one: there is no bus in this process afterwards.
void tst_PartitionManager::losesTheBus()
{
    m_udisks->run(text("card(P1, None, '/x')"));
    Watched watched;
    Watched other;
    QCOMPARE(watched.list(), text("mounted at /x"));
    m_bus->kill();
    QTRY_LOG(watched, text("removed mounted at /x"));
    QTRY_LOG(other, text("removed mounted at /x"));
    QCOMPARE(watched.count(), 0);

    const Watched after;
    QCOMPARE(after.count(), 0);
}

QTEST_GUILESS_MAIN(tst_PartitionManager)
#include "tst_partitionmanager.moc"
