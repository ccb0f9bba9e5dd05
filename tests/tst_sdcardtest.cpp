// SPDX-License-Identifier: BSD-3-Clause
#include "files.h"
#include "messagelog.h"
#include "metaobject.h"
#include "sdcardtest.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <cerrno>
#include <cstring>
#include <functional>
#include <memory>

#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
using Data = std::shared_ptr<Partition::Data>;

const QByteArray Written(2048, 'U');

Data makePartition(Partition::Status status, bool mountFailed = false, const QString &mountPath = QString())
{
    return std::make_shared<Partition::Data>(Partition::Data{Partition::External, status, mountFailed, mountPath});
}

void listPartitions(std::initializer_list<Data> partitions)
{
    PartitionManager::s_partitions.clear();
    for (const Data &partition : partitions)
        PartitionManager::s_partitions << Partition(partition);
}

/*! An SD card test, and its signals in words with the values that its properties have meanwhile. */
class Watched
{
public:
    Watched()
    {
        const auto note = [this](const QString &name) {
            m_log << QStringLiteral("%1 %2%3")
                         .arg(name)
                         .arg(test->status())
                         .arg(test->mountFailed() ? QStringLiteral(" failed") : QString());
        };
        QObject::connect(test.get(), &SdCardTest::statusChanged, [note] { note(QStringLiteral("status")); });
        QObject::connect(test.get(), &SdCardTest::mountFailedChanged, [note] { note(QStringLiteral("failed")); });
    }
    QStringList log() { return std::exchange(m_log, {}); }

    std::unique_ptr<SdCardTest> test = std::make_unique<SdCardTest>();

private:
    QStringList m_log;
};

void added(const Data &partition)
{
    Q_EMIT PartitionManager::s_latest->partitionAdded(Partition(partition));
}

void changed(const Data &partition)
{
    Q_EMIT PartitionManager::s_latest->partitionChanged(Partition(partition));
}

void removed(const Data &partition)
{
    Q_EMIT PartitionManager::s_latest->partitionRemoved(Partition(partition));
}

/*! A directory with a file system of its own. */
class Mount
{
public:
    explicit Mount(const QByteArray &options)
    {
        if (::mount("card", path().toLocal8Bit().constData(), "tmpfs", MS_NOSUID, options.constData()) != 0)
            m_error = QString::fromLocal8Bit(std::strerror(errno));
    }
    ~Mount()
    {
        if (m_error.isEmpty())
            ::umount2(path().toLocal8Bit().constData(), MNT_DETACH);
    }
    Q_DISABLE_COPY(Mount)

    QString error() const { return m_error; }
    QString path() const { return m_directory.path(); }
    QString file(const QString &name) const { return m_directory.filePath(name); }
    bool makeReadOnly() const
    {
        return ::mount(nullptr, path().toLocal8Bit().constData(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) == 0;
    }

private:
    QTemporaryDir m_directory;
    QString m_error;
};

#define MOUNT(name, options)                                                                                           \
    const Mount name(options);                                                                                         \
    if (!name.error().isEmpty())                                                                                       \
    QSKIP(qPrintable(QStringLiteral("A file system cannot be mounted here: ") + name.error()))

const QString TestFile = QStringLiteral("test.tmp");
}

class tst_SdCardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void interface();
    void asksForExternalPartitionsOnly();
    void startsWith_data();
    void startsWith();
    void mapsStatus_data();
    void mapsStatus();
    void takesFirstPartition();
    void ignoresInvalidPartition();
    void ignoresFurtherPartition();
    void takesPartitionThatIsAdded();
    void takesFirstOfListWhenAnotherIsAdded();
    void staysWithoutCardWhenListIsEmpty();
    void reportsFailureOfAnyPartition();
    void followsItsOwnStatusWhenAnotherChanges();
    void ignoresRemovalOfAnother();
    void noticesRemoval_data();
    void noticesRemoval();
    void takesNextPartitionAfterRemoval();
    void storesBeforeItSignals();
    void destroyedInHandler_data();
    void destroyedInHandler();
    void hearsNothingAfterItsEnd();

    void ioTestNeedsMountedCard_data();
    void ioTestNeedsMountedCard();
    void ioTestNeedsDirectory_data();
    void ioTestNeedsDirectory();
    void ioTestPasses();
    void ioTestWritesItsPattern();
    void ioTestWithLeftOver_data();
    void ioTestWithLeftOver();
    void ioTestDoesNotFollowLink();
    void ioTestWithLinkThatCannotBeTested_data();
    void ioTestWithLinkThatCannotBeTested();
    void ioTestDoesNotBlockOnPipe();
    void ioTestWithDirectoryInTheWay();
    void ioTestOnReadOnlyCard();
    void ioTestOnReadOnlyCardWithLeftOver_data();
    void ioTestOnReadOnlyCardWithLeftOver();
    void ioTestOnFullCard();
    void ioTestOnCardWithoutFreeEntries();
    void ioTestOnCorruptCard();
    void ioTestAtPathBeyondAscii();
    void ioTestLeavesNothingOpen();
    void ioTestUsesTheCardHeldNow();

private:
    std::unique_ptr<MessageLog> m_log;
};

void tst_SdCardTest::init()
{
    PartitionManager::s_partitions.clear();
    PartitionManager::s_asked.clear();
    m_log = std::make_unique<MessageLog>();
}

void tst_SdCardTest::cleanup()
{
    const QStringList messages = m_log->all();
    m_log.reset();
    QCOMPARE(messages, QStringList());
}

void tst_SdCardTest::interface()
{
    QCOMPARE(ownInterface(SdCardTest::staticMetaObject),
             QStringList({QStringLiteral("enum Status: NoCard=0, Unmounted=1, Mounting=2, Mounted=3, Unmounting=4"),
                          QStringLiteral("property Status status notify statusChanged"),
                          QStringLiteral("property bool mountFailed notify mountFailedChanged"),
                          QStringLiteral("signal statusChanged()"), QStringLiteral("signal mountFailedChanged()"),
                          QStringLiteral("slot int sdCardIOTest()")}));
}

void tst_SdCardTest::asksForExternalPartitionsOnly()
{
    listPartitions({makePartition(Partition::Mounted)});
    const SdCardTest test;
    QCOMPARE(PartitionManager::s_asked, QVector<int>({4104}));
}

void tst_SdCardTest::startsWith_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<bool>("mountFailed");
    QTest::addColumn<SdCardTest::Status>("expected");
    QTest::newRow("unmounted") << 0 << false << SdCardTest::Unmounted;
    QTest::newRow("unmounted, failed") << 0 << true << SdCardTest::Unmounted;
    QTest::newRow("mounting") << 1 << false << SdCardTest::Mounting;
    QTest::newRow("mounted") << 2 << false << SdCardTest::Mounted;
    QTest::newRow("mounted, failed") << 2 << true << SdCardTest::Mounted;
    QTest::newRow("unmounting") << 3 << false << SdCardTest::Unmounting;
    // Nothing was known before, so that it stays what it is at first.
    QTest::newRow("formatting") << 4 << false << SdCardTest::Unmounted;
    QTest::newRow("formatted") << 17 << true << SdCardTest::Unmounted;
}

void tst_SdCardTest::startsWith()
{
    QFETCH(int, status);
    QFETCH(bool, mountFailed);
    QFETCH(SdCardTest::Status, expected);
    listPartitions({makePartition(Partition::Status(status), mountFailed)});
    const SdCardTest test;
    QCOMPARE(test.status(), expected);
    QCOMPARE(test.mountFailed(), mountFailed);
    QCOMPARE(test.property("status").toInt(), int(expected));
    QCOMPARE(test.property("mountFailed"), QVariant(mountFailed));

    listPartitions({});
    const SdCardTest empty;
    QCOMPARE(empty.status(), SdCardTest::NoCard);
    QVERIFY(!empty.mountFailed());
}

void tst_SdCardTest::mapsStatus_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<bool>("failsFrom");
    QTest::addColumn<bool>("failsTo");
    const char *const names[] = {"unmounted", "mounting", "mounted", "unmounting", "formatting"};
    for (int from = 0; from < 5; ++from) {
        for (int to = 0; to < 5; ++to) {
            for (int fails = 0; fails < 4; ++fails) {
                QTest::addRow("%s%s to %s%s", names[from], fails & 1 ? " failed" : "", names[to],
                              fails & 2 ? " failed" : "")
                    << from << to << bool(fails & 1) << bool(fails & 2);
            }
        }
    }
}

void tst_SdCardTest::mapsStatus()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(bool, failsFrom);
    QFETCH(bool, failsTo);
    const SdCardTest::Status known[] = {SdCardTest::Unmounted, SdCardTest::Mounting, SdCardTest::Mounted,
                                        SdCardTest::Unmounting};
    const SdCardTest::Status before = from < 4 ? known[from] : SdCardTest::Unmounted;
    const SdCardTest::Status after = to < 4 ? known[to] : before;

    const Data card = makePartition(Partition::Status(from), failsFrom);
    listPartitions({card});
    Watched watched;
    QCOMPARE(watched.test->status(), before);

    card->status = Partition::Status(to);
    card->mountFailed = failsTo;
    changed(card);
    QCOMPARE(watched.test->status(), after);
    QCOMPARE(watched.test->mountFailed(), failsTo);
    const QString values = QString::number(after) + (failsTo ? QStringLiteral(" failed") : QString());
    QStringList expected;
    if (before != after)
        expected << QStringLiteral("status ") + values;
    if (failsFrom != failsTo)
        expected << QStringLiteral("failed ") + values;
    QCOMPARE(watched.log(), expected);

    changed(card);
    QCOMPARE(watched.log(), QStringList());
}

void tst_SdCardTest::takesFirstPartition()
{
    listPartitions({makePartition(Partition::Mounting), makePartition(Partition::Mounted)});
    const SdCardTest test;
    QCOMPARE(test.status(), SdCardTest::Mounting);
}

void tst_SdCardTest::ignoresInvalidPartition()
{
    const Data invalid = makePartition(Partition::Mounted, true);
    invalid->storageType = Partition::Invalid;
    listPartitions({invalid});
    Watched watched;
    QCOMPARE(watched.test->status(), SdCardTest::NoCard);
    QVERIFY(watched.test->mountFailed());

    invalid->storageType = Partition::Internal;
    changed(invalid);
    QCOMPARE(watched.log(), QStringList(QStringLiteral("status 3 failed")));
}

void tst_SdCardTest::ignoresFurtherPartition()
{
    const Data held = makePartition(Partition::Mounted);
    listPartitions({held});
    Watched watched;
    // It comes before the one held, and has even failed.
    const Data further = makePartition(Partition::Mounting, true);
    listPartitions({further, held});
    held->status = Partition::Unmounting;
    added(further);
    QCOMPARE(watched.log(), QStringList());
    QCOMPARE(watched.test->status(), SdCardTest::Mounted);
    QVERIFY(!watched.test->mountFailed());

    changed(held);
    QCOMPARE(watched.log(), QStringList(QStringLiteral("status 4")));
}

void tst_SdCardTest::takesPartitionThatIsAdded()
{
    Watched watched;
    QCOMPARE(watched.test->status(), SdCardTest::NoCard);
    const Data card = makePartition(Partition::Unmounted, true);
    listPartitions({card});
    added(card);
    QCOMPARE(watched.log(), QStringList({QStringLiteral("status 1 failed"), QStringLiteral("failed 1 failed")}));
    card->status = Partition::Mounted;
    card->mountFailed = false;
    changed(card);
    QCOMPARE(watched.log(), QStringList({QStringLiteral("status 3"), QStringLiteral("failed 3")}));
}

void tst_SdCardTest::takesFirstOfListWhenAnotherIsAdded()
{
    Watched watched;
    const Data first = makePartition(Partition::Mounting);
    const Data second = makePartition(Partition::Mounted, true);
    listPartitions({first, second});
    added(second);
    QCOMPARE(watched.log(), QStringList({QStringLiteral("status 2 failed"), QStringLiteral("failed 2 failed")}));
    added(first);
    QCOMPARE(watched.log(), QStringList());
    changed(first);
    QCOMPARE(watched.log(), QStringList(QStringLiteral("failed 2")));
}

void tst_SdCardTest::staysWithoutCardWhenListIsEmpty()
{
    Watched watched;
    added(makePartition(Partition::Mounted, true));
    QCOMPARE(watched.log(), QStringList(QStringLiteral("failed 0 failed")));
    removed(nullptr);
    QCOMPARE(watched.log(), QStringList(QStringLiteral("failed 0")));
}

void tst_SdCardTest::reportsFailureOfAnyPartition()
{
    const Data held = makePartition(Partition::Mounted);
    const Data other = makePartition(Partition::Unmounted, true);
    listPartitions({held, other});
    Watched watched;
    QVERIFY(!watched.test->mountFailed());
    changed(other);
    QCOMPARE(watched.log(), QStringList(QStringLiteral("failed 3 failed")));
    changed(held);
    QCOMPARE(watched.log(), QStringList(QStringLiteral("failed 3")));
}

void tst_SdCardTest::followsItsOwnStatusWhenAnotherChanges()
{
    const Data held = makePartition(Partition::Mounted);
    const Data other = makePartition(Partition::Unmounted);
    listPartitions({held, other});
    Watched watched;
    held->status = Partition::Unmounting;
    other->status = Partition::Mounting;
    changed(other);
    QCOMPARE(watched.log(), QStringList(QStringLiteral("status 4")));
}

void tst_SdCardTest::ignoresRemovalOfAnother()
{
    const Data held = makePartition(Partition::Mounted);
    const Data other = makePartition(Partition::Unmounted, true);
    listPartitions({held, other});
    Watched watched;
    listPartitions({});
    removed(other);
    QCOMPARE(watched.log(), QStringList());
    QCOMPARE(watched.test->status(), SdCardTest::Mounted);
}

void tst_SdCardTest::noticesRemoval_data()
{
    QTest::addColumn<int>("status");
    for (int status = 0; status < 5; ++status)
        QTest::addRow("%d", status) << status;
}

void tst_SdCardTest::noticesRemoval()
{
    QFETCH(int, status);
    const Data card = makePartition(Partition::Status(status));
    listPartitions({card});
    Watched watched;
    listPartitions({});
    removed(card);
    QCOMPARE(watched.log(), QStringList(QStringLiteral("status 0")));
    QCOMPARE(watched.test->sdCardIOTest(), 0);

    // It is no longer held: the next one is taken.
    listPartitions({makePartition(Partition::Mounting)});
    added(makePartition(Partition::Unmounted));
    QCOMPARE(watched.log(), QStringList(QStringLiteral("status 2")));
}

void tst_SdCardTest::takesNextPartitionAfterRemoval()
{
    const Data held = makePartition(Partition::Mounted, true);
    const Data next = makePartition(Partition::Unmounting);
    listPartitions({held, next});
    Watched watched;
    listPartitions({next});
    removed(held);
    // The failure is still that of the one that has gone.
    QCOMPARE(watched.log(), QStringList(QStringLiteral("status 4 failed")));
    changed(next);
    QCOMPARE(watched.log(), QStringList(QStringLiteral("failed 4")));
}

void tst_SdCardTest::storesBeforeItSignals()
{
    const Data card = makePartition(Partition::Unmounted);
    listPartitions({card});
    SdCardTest test;
    bool failedInHandler = false;
    connect(&test, &SdCardTest::statusChanged, this, [&] { failedInHandler = test.mountFailed(); });
    card->status = Partition::Mounting;
    card->mountFailed = true;
    changed(card);
    QVERIFY(failedInHandler);
}

void tst_SdCardTest::destroyedInHandler_data()
{
    QTest::addColumn<bool>("onStatus");
    QTest::addColumn<int>("kind");
    for (int kind = 0; kind < 3; ++kind) {
        QTest::addRow("status %d", kind) << true << kind;
        QTest::addRow("failed %d", kind) << false << kind;
    }
}

void tst_SdCardTest::destroyedInHandler()
{
    QFETCH(bool, onStatus);
    QFETCH(int, kind);
    const Data card = makePartition(Partition::Mounted);
    if (kind != 0)
        listPartitions({card});
    auto test = std::make_unique<SdCardTest>();
    int heard = 0;
    connect(test.get(), onStatus ? &SdCardTest::statusChanged : &SdCardTest::mountFailedChanged, this, [&] {
        ++heard;
        test.reset();
    });
    card->status = Partition::Mounting;
    card->mountFailed = true;
    if (kind == 0) {
        listPartitions({card});
        added(card);
    } else if (kind == 1) {
        changed(card);
    } else {
        listPartitions({});
        removed(card);
    }
    QCOMPARE(heard, 1);
    QVERIFY(!test);
}

void tst_SdCardTest::hearsNothingAfterItsEnd()
{
    const Data card = makePartition(Partition::Mounted);
    listPartitions({card});
    const Data weak = card;
    {
        const SdCardTest test;
    }
    QVERIFY(!PartitionManager::s_latest);
    listPartitions({});
    QCOMPARE(weak.use_count(), 2l); // the handle has been let go
}

void tst_SdCardTest::ioTestNeedsMountedCard_data()
{
    QTest::addColumn<int>("status");
    for (int status : {-1, 0, 1, 3, 4, 17})
        QTest::addRow("%d", status) << status;
}

void tst_SdCardTest::ioTestNeedsMountedCard()
{
    QFETCH(int, status);
    const QTemporaryDir directory;
    writeFile(directory.filePath(TestFile), "left over");
    if (status >= 0)
        listPartitions({makePartition(Partition::Status(status), false, directory.path())});
    SdCardTest test;
    QCOMPARE(test.sdCardIOTest(), 0);
    QCOMPARE(readFile(directory.filePath(TestFile)), QByteArray("left over"));
}

void tst_SdCardTest::ioTestNeedsDirectory_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("missing") << QStringLiteral("/run/kiv-test/no-card");
    QTest::newRow("below missing") << QStringLiteral("/run/kiv-test/no-card/at-all");
    QTest::newRow("file") << QStringLiteral("/etc/passwd");
    QTest::newRow("below file") << QStringLiteral("/etc/passwd/x");
    QTest::newRow("device") << QStringLiteral("/dev/null");
    QTest::newRow("much too long") << QString(5000, QLatin1Char('x')).prepend(QLatin1Char('/'));
}

void tst_SdCardTest::ioTestNeedsDirectory()
{
    QFETCH(QString, path);
    listPartitions({makePartition(Partition::Mounted, false, path)});
    SdCardTest test;
    QCOMPARE(test.status(), SdCardTest::Mounted);
    QCOMPARE(test.sdCardIOTest(), 0);
}

void tst_SdCardTest::ioTestPasses()
{
    const QTemporaryDir directory;
    writeFile(directory.filePath(QStringLiteral("photo")), "of value");
    listPartitions({makePartition(Partition::Mounted, false, directory.path())});
    SdCardTest test;
    int result = -1;
    QVERIFY(QMetaObject::invokeMethod(&test, "sdCardIOTest", Q_RETURN_ARG(int, result)));
    QCOMPARE(result, 3);
    QCOMPARE(test.sdCardIOTest(), 3);
    QCOMPARE(QDir(directory.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::Hidden),
             QStringList(QStringLiteral("photo")));
}

void tst_SdCardTest::ioTestWritesItsPattern()
{
    // A second name of the same file keeps what was in it.
    const QTemporaryDir directory;
    writeFile(directory.filePath(QStringLiteral("peek")), "");
    QVERIFY(QFile(directory.filePath(QStringLiteral("peek"))).exists());
    QCOMPARE(::link(qPrintable(directory.filePath(QStringLiteral("peek"))), qPrintable(directory.filePath(TestFile))),
             0);
    listPartitions({makePartition(Partition::Mounted, false, directory.path())});
    SdCardTest test;
    QCOMPARE(test.sdCardIOTest(), 3);
    QCOMPARE(readFile(directory.filePath(QStringLiteral("peek"))), Written);
    QVERIFY(!QFile::exists(directory.filePath(TestFile)));
}

void tst_SdCardTest::ioTestWithLeftOver_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("result");
    QTest::newRow("empty") << QByteArray() << 3;
    QTest::newRow("part of it") << QByteArray(100, 'U') << 3;
    QTest::newRow("all of it") << Written << 3;
    QTest::newRow("other bytes") << QByteArray(2048, 'x') << 3;
    QTest::newRow("zeros") << QByteArray(1000, '\0') << 3;
    // It is overwritten, not cut off.
    QTest::newRow("longer by a good pair") << QByteArray(2050, 'U') << 3;
    QTest::newRow("longer by one") << QByteArray(2049, 'U') << 2;
    QTest::newRow("longer by a bad pair") << Written + "UV" << 2;
    QTest::newRow("longer by a bad pair, second") << Written + "VU" << 2;
    QTest::newRow("longer by small letters") << Written + "uu" << 2;
    QTest::newRow("longer by a zero") << Written + QByteArray(1, '\0') << 2;
    QTest::newRow("longer by a carriage return, which text does not have") << Written + "\r" << 3;
    QTest::newRow("longer by a newline") << Written + "\n" << 2;
    QTest::newRow("much longer") << QByteArray(1 << 20, 'x') << 2;
}

void tst_SdCardTest::ioTestWithLeftOver()
{
    QFETCH(QByteArray, content);
    QFETCH(int, result);
    const QTemporaryDir directory;
    writeFile(directory.filePath(TestFile), content);
    listPartitions({makePartition(Partition::Mounted, false, directory.path())});
    SdCardTest test;
    QCOMPARE(test.sdCardIOTest(), result);
    QVERIFY(!QFile::exists(directory.filePath(TestFile)));
    QCOMPARE(test.sdCardIOTest(), 3);
}

void tst_SdCardTest::ioTestDoesNotFollowLink()
{
    const QTemporaryDir directory;
    const QTemporaryDir elsewhere;
    listPartitions({makePartition(Partition::Mounted, false, directory.path())});
    SdCardTest test;

    const QString diary = elsewhere.filePath(QStringLiteral("diary"));
    writeFile(diary, "dear diary");
    QVERIFY(QFile::link(diary, directory.filePath(TestFile)));
    QCOMPARE(test.sdCardIOTest(), 3);
    QCOMPARE(readFile(diary), QByteArray("dear diary"));
    QVERIFY(!QFileInfo(directory.filePath(TestFile)).isSymLink());

    const QString nothing = elsewhere.filePath(QStringLiteral("nothing"));
    QVERIFY(QFile::link(nothing, directory.filePath(TestFile)));
    QCOMPARE(test.sdCardIOTest(), 3);
    QVERIFY(!QFile::exists(nothing));
    QVERIFY(!QFileInfo(directory.filePath(TestFile)).isSymLink());
}

void tst_SdCardTest::ioTestWithLinkThatCannotBeTested_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<int>("result");
    QTest::newRow("device that takes nothing") << QStringLiteral("/dev/full") << 2;
    QTest::newRow("device that keeps nothing") << QStringLiteral("/dev/null") << 2;
    QTest::newRow("folder") << QStringLiteral("/dev") << 2;
    QTest::newRow("file that cannot be made") << QStringLiteral("/dev/kiv-test/no-folder/file") << 1;
}

void tst_SdCardTest::ioTestWithLinkThatCannotBeTested()
{
    QFETCH(QString, target);
    QFETCH(int, result);
    const QTemporaryDir directory;
    listPartitions({makePartition(Partition::Mounted, false, directory.path())});
    SdCardTest test;
    QVERIFY(QFile::link(target, directory.filePath(TestFile)));
    QCOMPARE(test.sdCardIOTest(), result);
    // Whatever came out, the next test finds a tidy card.
    QVERIFY(!QFileInfo(directory.filePath(TestFile)).isSymLink());
    QCOMPARE(test.sdCardIOTest(), 3);
}

void tst_SdCardTest::ioTestDoesNotBlockOnPipe()
{
    const QTemporaryDir directory;
    listPartitions({makePartition(Partition::Mounted, false, directory.path())});
    SdCardTest test;
    QCOMPARE(::mkfifo(qPrintable(directory.filePath(TestFile)), 0600), 0);
    QCOMPARE(test.sdCardIOTest(), 3);
    QVERIFY(!QFile::exists(directory.filePath(TestFile)));
}

void tst_SdCardTest::ioTestWithDirectoryInTheWay()
{
    const QTemporaryDir directory;
    listPartitions({makePartition(Partition::Mounted, false, directory.path())});
    SdCardTest test;
    QVERIFY(QDir(directory.path()).mkdir(TestFile));
    QCOMPARE(test.sdCardIOTest(), 2);
    QVERIFY(QFileInfo(directory.filePath(TestFile)).isDir());
}

void tst_SdCardTest::ioTestOnReadOnlyCard()
{
    MOUNT(card, "size=64k");
    QVERIFY(card.makeReadOnly());
    listPartitions({makePartition(Partition::Mounted, false, card.path())});
    SdCardTest test;
    QCOMPARE(test.sdCardIOTest(), 1);
    QCOMPARE(QDir(card.path()).count(), 2u);
}

void tst_SdCardTest::ioTestOnReadOnlyCardWithLeftOver_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("result");
    QTest::newRow("file") << QStringLiteral("file") << 2;
    QTest::newRow("pipe") << QStringLiteral("pipe") << 2;
    QTest::newRow("link to a file") << QStringLiteral("link") << 2;
    QTest::newRow("link to nothing") << QStringLiteral("dangling") << 1;
}

void tst_SdCardTest::ioTestOnReadOnlyCardWithLeftOver()
{
    QFETCH(QString, kind);
    QFETCH(int, result);
    MOUNT(card, "size=64k");
    const QTemporaryDir elsewhere;
    const QString diary = elsewhere.filePath(QStringLiteral("diary"));
    writeFile(diary, Written);
    if (kind == QLatin1String("file"))
        writeFile(card.file(TestFile), Written);
    else if (kind == QLatin1String("pipe"))
        QCOMPARE(::mkfifo(qPrintable(card.file(TestFile)), 0600), 0);
    else if (kind == QLatin1String("link"))
        QVERIFY(QFile::link(diary, card.file(TestFile)));
    else
        QVERIFY(QFile::link(elsewhere.filePath(QStringLiteral("nothing")), card.file(TestFile)));
    QVERIFY(card.makeReadOnly());
    listPartitions({makePartition(Partition::Mounted, false, card.path())});
    SdCardTest test;
    QCOMPARE(test.sdCardIOTest(), result);
    QCOMPARE(readFile(diary), Written);
    QVERIFY(!QFile::exists(elsewhere.filePath(QStringLiteral("nothing"))));
}

void tst_SdCardTest::ioTestOnFullCard()
{
    MOUNT(card, "size=64k");
    QFile filler(card.file(QStringLiteral("filler")));
    QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    while (filler.write(QByteArray(4096, 'x')) > 0) { }
    listPartitions({makePartition(Partition::Mounted, false, card.path())});
    SdCardTest test;
    // The file can be created, but nothing fits into it.
    QCOMPARE(test.sdCardIOTest(), 2);
    QVERIFY(!QFile::exists(card.file(TestFile)));
    QVERIFY(filler.remove());
    QCOMPARE(test.sdCardIOTest(), 3);
}

void tst_SdCardTest::ioTestOnCardWithoutFreeEntries()
{
    MOUNT(card, "size=64k,nr_inodes=2");
    writeFile(card.file(QStringLiteral("last")), "");
    listPartitions({makePartition(Partition::Mounted, false, card.path())});
    SdCardTest test;
    QCOMPARE(test.sdCardIOTest(), 1);
    QVERIFY(QFile::remove(card.file(QStringLiteral("last"))));
    QCOMPARE(test.sdCardIOTest(), 3);
}

void tst_SdCardTest::ioTestOnCorruptCard()
{
    // What is written reads back as something longer.
    MOUNT(card, "size=64k");
    writeFile(card.file(TestFile), "");
    const QTemporaryDir elsewhere;
    writeFile(elsewhere.filePath(QStringLiteral("bad")), QByteArray(3000, 'V'));
    QCOMPARE(::mount(qPrintable(elsewhere.filePath(QStringLiteral("bad"))), qPrintable(card.file(TestFile)), nullptr,
                     MS_BIND, nullptr),
             0);
    listPartitions({makePartition(Partition::Mounted, false, card.path())});
    SdCardTest test;
    QCOMPARE(test.sdCardIOTest(), 2);
    QCOMPARE(::umount(qPrintable(card.file(TestFile))), 0);
    QCOMPARE(test.sdCardIOTest(), 3);
}

void tst_SdCardTest::ioTestAtPathBeyondAscii()
{
    const QTemporaryDir directory;
    QVERIFY(QDir(directory.path()).mkdir(QStringLiteral("Käse, 10 % % ☃")));
    const QString path = directory.filePath(QStringLiteral("Käse, 10 % % ☃"));
    listPartitions({makePartition(Partition::Mounted, false, path)});
    SdCardTest test;
    QCOMPARE(test.sdCardIOTest(), 3);
    QCOMPARE(QDir(path).count(), 2u);
}

void tst_SdCardTest::ioTestLeavesNothingOpen()
{
    const auto descriptors = [] { return QDir(QStringLiteral("/proc/self/fd")).count(); };
    const QTemporaryDir directory;
    const Data card = makePartition(Partition::Mounted, false, directory.path());
    listPartitions({card});
    SdCardTest test;
    const uint before = descriptors();
    for (int i = 0; i < 1000; ++i)
        QCOMPARE(test.sdCardIOTest(), 3);
    writeFile(directory.filePath(TestFile), QByteArray(3000, 'x'));
    QCOMPARE(test.sdCardIOTest(), 2);
    QCOMPARE(descriptors(), before);
}

void tst_SdCardTest::ioTestUsesTheCardHeldNow()
{
    const QTemporaryDir first;
    const QTemporaryDir second;
    writeFile(first.filePath(TestFile), "first");
    writeFile(second.filePath(TestFile), "second");
    const Data card = makePartition(Partition::Mounted, false, first.path());
    listPartitions({card});
    SdCardTest test;
    card->mountPath = second.path();
    QCOMPARE(test.sdCardIOTest(), 3);
    QVERIFY(!QFile::exists(second.filePath(TestFile)));
    QCOMPARE(readFile(first.filePath(TestFile)), QByteArray("first"));

    // What was last reported decides, not what the handle would say now.
    card->status = Partition::Unmounting;
    QCOMPARE(test.sdCardIOTest(), 3);
    changed(card);
    QCOMPARE(test.sdCardIOTest(), 0);
}

QTEST_GUILESS_MAIN(tst_SdCardTest)
#include "tst_sdcardtest.moc"
