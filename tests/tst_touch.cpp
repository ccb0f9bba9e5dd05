// SPDX-License-Identifier: BSD-3-Clause
#include "touch.h"

#include "files.h"
#include "messagelog.h"
#include "metaobject.h"

#include <QDir>
#include <QFile>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QtTest>

#include <atomic>
#include <memory>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>

namespace
{
const QString ChipFile = QStringLiteral("/proc/touchinfo/tp_chip");
const QString SelfTestDirectory = QStringLiteral("/sys/kernel/debug/tp_s3202_dbg");
const QString SelfTestFile = SelfTestDirectory + QStringLiteral("/tp_self_test");
constexpr int EndTimeoutMs = 20000;
constexpr int AtOnceMs = 1000; // a destructor that takes longer would be felt, unless all of the machine is held up

// A driver that is busy with its controller: reads of this file do not return as long as it is set.
std::atomic<ino_t> busyFile{0};
std::atomic<int> busyReads{0};
// A driver that turns away those who do not want to wait, or everybody.
std::atomic<ino_t> aloofFile{0};
std::atomic<bool> servesWhoWaits{true};

int entries(const char *directory)
{
    return QDir(QString::fromLatin1(directory)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size();
}

/*! How much of the process there is, which ended threads leave only a moment after they have been waited for. */
struct Footprint
{
    Footprint() : threads(entries("/proc/self/task")), descriptors(entries("/proc/self/fd")) { }
    bool operator==(Footprint other) const { return threads == other.threads && descriptors == other.descriptors; }

    int threads;
    int descriptors;
};

/*! The footprint once nothing of an earlier test is left. */
Footprint settledFootprint()
{
    Footprint last;
    for (int same = 0; same < 10; ++same) {
        QThread::msleep(5);
        const Footprint now;
        if (!(now == last))
            same = 0;
        last = now;
    }
    return last;
}

/*! Waits until the footprint is that again. */
bool shrinksTo(Footprint expected)
{
    QElapsedTimer clock;
    clock.start();
    Footprint now;
    while (!(now == expected) && clock.elapsed() < EndTimeoutMs) {
        QThread::usleep(200);
        now = Footprint();
    }
    if (!(now == expected))
        qWarning("%d threads instead of %d, %d descriptors instead of %d", now.threads, expected.threads,
                 now.descriptors, expected.descriptors);
    return now == expected;
}

void makeFifo(const QString &path)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
}

/*! The writing end of a FIFO, once something reads it. */
UniqueFd openForWriting(const QString &path)
{
    UniqueFd fd;
    QElapsedTimer clock;
    clock.start();
    while (!fd.isOpen() && clock.elapsed() < EndTimeoutMs) {
        fd.reset(::open(QFile::encodeName(path).constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC));
        QThread::usleep(200);
    }
    return fd;
}

QString said(const char *text)
{
    return QString::fromUtf8(text);
}
}

extern "C" ssize_t read(int fd, void *buffer, size_t size)
{
    struct stat status;
    if (busyFile != 0 && ::fstat(fd, &status) == 0 && status.st_ino == busyFile) {
        ++busyReads;
        while (busyFile != 0)
            QThread::usleep(200);
    }
    if (aloofFile != 0 && ::fstat(fd, &status) == 0 && status.st_ino == aloofFile
        && (!servesWhoWaits || (::fcntl(fd, F_GETFL) & O_NONBLOCK) != 0)) {
        errno = EAGAIN;
        return -1;
    }
    return ::syscall(SYS_read, fd, buffer, size);
}

class tst_Touch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void hasTheInterfaceOfItsPages();
    void isIdleUntilStarted();
    void judgesTheFirstLine_data();
    void judgesTheFirstLine();
    void tellsWhatItDoes();
    void failsWithoutChipAndSelfTest();
    void failsWhereTheFileIsADirectory();
    void failsWhereNothingCanBeRead();
    void waitsForADriverThatAsksForIt_data();
    void waitsForADriverThatAsksForIt();
    void failsWithoutFreeDescriptors();
    void endsAnEndlessLine();
    void neverTakesAPassBack();
    void signalsFromItsOwnThread();
    void waitsForASlowLine();
    void servesAPage();
    void canBeDestroyedAtOnce();
    void canBeDestroyedWhileItWaits_data();
    void canBeDestroyedWhileItWaits();
    void canBeDestroyedWhileTheDriverIsBusy();
    void canBeDestroyedAtAnyMoment();

private:
    void runTest(Touch *touch);
};

void tst_Touch::cleanup()
{
    busyFile = 0;
    busyReads = 0;
    aloofFile = 0;
    QDir(SelfTestDirectory).removeRecursively();
    QDir(QFileInfo(ChipFile).path()).removeRecursively();
}

void tst_Touch::runTest(Touch *touch)
{
    QSignalSpy spy(touch, &Touch::resultChanged);
    touch->start();
    QVERIFY(touch->wait(EndTimeoutMs));
    QTRY_COMPARE(spy.size(), 1);
}

void tst_Touch::hasTheInterfaceOfItsPages()
{
    QCOMPARE(ownInterface(Touch::staticMetaObject),
             QStringList({said("property bool result notify resultChanged"), said("signal resultChanged()")}));
    QVERIFY(Touch::staticMetaObject.inherits(&QThread::staticMetaObject));
}

void tst_Touch::isIdleUntilStarted()
{
    writeFile(SelfTestFile, "0\n");
    MessageLog log;
    const Touch touch;
    QTest::qWait(20);
    QVERIFY(!touch.isRunning());
    QVERIFY(!touch.result());
    QCOMPARE(log.all(), QStringList());
}

void tst_Touch::judgesTheFirstLine_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QString>("line");
    QTest::newRow("0") << QByteArray("0") << true << said("\"0\"");
    QTest::newRow("0 and newline") << QByteArray("0\n") << true << said("\"0\"");
    QTest::newRow("0 and more lines") << QByteArray("0\n1\n") << true << said("\"0\"");
    QTest::newRow("0 and carriage return") << QByteArray("0\r\n") << true << said("\"0\"");
    // Text mode drops them wherever they stand.
    QTest::newRow("0 between carriage returns") << QByteArray("\r0\r") << true << said("\"0\"");
    QTest::newRow("trailing blank") << QByteArray("0 \n") << false << said("\"0 \"");
    QTest::newRow("leading blank") << QByteArray(" 0") << false << said("\" 0\"");
    QTest::newRow("1") << QByteArray("1\n") << false << said("\"1\"");
    QTest::newRow("00") << QByteArray("00\n") << false << said("\"00\"");
    QTest::newRow("0 on the second line") << QByteArray("\n0\n") << false << said("\"\"");
    QTest::newRow("empty") << QByteArray() << false << said("\"\"");
    QTest::newRow("words") << QByteArray("self test \"bad\"\n") << false << said("\"self test \\\"bad\\\"\"");
    QTest::newRow("NUL") << QByteArray("0\0\n", 3) << false << said("\"0\\u0000\"");
    QTest::newRow("longer than a chunk") << QByteArray(10000, '0')
            + "\n1\n" << false << QLatin1Char('"') + QString(10000, QLatin1Char('0')) + QLatin1Char('"');
}

void tst_Touch::judgesTheFirstLine()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, result);
    QFETCH(QString, line);
    writeFile(SelfTestFile, content);
    MessageLog log;
    Touch touch;
    runTest(&touch);
    QCOMPARE(touch.result(), result);
    QCOMPARE(log.debugs(),
             QStringList({said("Read file"), said("Result =  ") + line,
                          said(result ? "resultChanged sent, value:  true" : "resultChanged sent, value:  false")}));
}

void tst_Touch::tellsWhatItDoes()
{
    writeFile(ChipFile, "S3202 \"B\"\nrevision 5\n");
    writeFile(SelfTestFile, "0\n");
    MessageLog log;
    Touch touch;
    runTest(&touch);
    QCOMPARE(log.all(),
             QStringList({said("Chip is  \"S3202 \\\"B\\\"\""), said("Read file"), said("Result =  \"0\""),
                          said("resultChanged sent, value:  true")}));
    QCOMPARE(log.debugs(), log.all());
}

void tst_Touch::failsWithoutChipAndSelfTest()
{
    MessageLog log;
    Touch touch;
    runTest(&touch);
    QVERIFY(!touch.result());
    QCOMPARE(log.all(), QStringList({said("resultChanged sent, value:  false")}));
}

void tst_Touch::failsWhereTheFileIsADirectory()
{
    QVERIFY(QDir().mkpath(ChipFile));
    QVERIFY(QDir().mkpath(SelfTestFile));
    MessageLog log;
    Touch touch;
    runTest(&touch);
    QVERIFY(!touch.result());
    QCOMPARE(log.all(), QStringList({said("resultChanged sent, value:  false")}));
}

void tst_Touch::failsWhereNothingCanBeRead()
{
    // The kernel opens this one, and refuses every read.
    QVERIFY(QDir().mkpath(SelfTestDirectory));
    QVERIFY(QFile::link(QStringLiteral("/proc/self/mem"), SelfTestFile));
    MessageLog log;
    Touch touch;
    runTest(&touch);
    QVERIFY(!touch.result());
    QCOMPARE(log.all(),
             QStringList({said("Read file"), said("Result =  \"\""), said("resultChanged sent, value:  false")}));
}

void tst_Touch::waitsForADriverThatAsksForIt_data()
{
    QTest::addColumn<bool>("serves");
    QTest::newRow("serves who waits") << true;
    QTest::newRow("serves nobody") << false;
}

void tst_Touch::waitsForADriverThatAsksForIt()
{
    QFETCH(bool, serves);
    writeFile(SelfTestFile, "0\n");
    struct stat status;
    QCOMPARE(::stat(QFile::encodeName(SelfTestFile).constData(), &status), 0);
    servesWhoWaits = serves;
    aloofFile = status.st_ino;
    const MessageLog log;
    Touch touch;
    runTest(&touch);
    QCOMPARE(touch.result(), serves);
}

void tst_Touch::failsWithoutFreeDescriptors()
{
    writeFile(SelfTestFile, "0\n");
    MessageLog log;
    Touch touch;
    std::vector<UniqueFd> all;
    do {
        all.emplace_back(::open("/dev/null", O_RDONLY | O_CLOEXEC));
    } while (all.back().isOpen());
    // Qt's own event loop of the thread takes one and does without nothing.
    all.resize(all.size() - 3);
    runTest(&touch);
    QCOMPARE(log.all(), QStringList({said("resultChanged sent, value:  false")}));
    all.clear();
    runTest(&touch);
    QVERIFY(touch.result());
}

void tst_Touch::endsAnEndlessLine()
{
    QVERIFY(QDir().mkpath(SelfTestDirectory));
    QVERIFY(QFile::link(QStringLiteral("/dev/zero"), SelfTestFile));
    MessageLog log;
    Touch touch;
    const Footprint before = settledFootprint();
    runTest(&touch);
    QVERIFY(!touch.result());
    QVERIFY(shrinksTo(before));
}

void tst_Touch::neverTakesAPassBack()
{
    MessageLog log;
    writeFile(SelfTestFile, "0\n");
    Touch touch;
    runTest(&touch);
    QVERIFY(touch.result());
    writeFile(SelfTestFile, "1\n");
    log.clear();
    runTest(&touch);
    QVERIFY(touch.result());
    QCOMPARE(log.all(),
             QStringList({said("Read file"), said("Result =  \"1\""), said("resultChanged sent, value:  true")}));
}

void tst_Touch::signalsFromItsOwnThread()
{
    MessageLog log;
    writeFile(SelfTestFile, "0\n");
    Touch touch;
    std::atomic<QThread *> direct{nullptr};
    QThread *queued = nullptr;
    bool resultSeen = false;
    connect(
        &touch, &Touch::resultChanged, &touch, [&] { direct = QThread::currentThread(); }, Qt::DirectConnection);
    connect(&touch, &Touch::resultChanged, this, [&] {
        queued = QThread::currentThread();
        resultSeen = touch.result();
    });
    touch.start();
    QVERIFY(touch.wait(EndTimeoutMs));
    QCOMPARE(direct.load(), static_cast<QThread *>(&touch));
    QVERIFY(!queued);
    QTRY_COMPARE(queued, thread());
    QVERIFY(resultSeen);
}

void tst_Touch::waitsForASlowLine()
{
    MessageLog log;
    makeFifo(SelfTestFile);
    Touch touch;
    int ends = 0;
    connect(&touch, &Touch::resultChanged, this, [&ends] { ++ends; });
    touch.start();
    UniqueFd driver = openForWriting(SelfTestFile);
    QVERIFY(driver.isOpen());
    QCOMPARE(::write(driver.get(), "0", 1), ssize_t(1));
    QTRY_COMPARE(log.all(), QStringList({said("Read file")}));
    QTest::qWait(100);
    QCOMPARE(ends, 0);
    QVERIFY(touch.isRunning());
    QCOMPARE(log.all(), QStringList({said("Read file")}));
    QCOMPARE(::write(driver.get(), "\n", 1), ssize_t(1));
    QTRY_COMPARE(ends, 1);
    QVERIFY(touch.result());
}

void tst_Touch::servesAPage()
{
    MessageLog log;
    writeFile(SelfTestFile, "0\n");
    qmlRegisterType<Touch>("Test", 1, 0, "Touch");
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQml 2.0\nimport Test 1.0\n"
                      "Touch { property bool passed: result; property int ends: 0; onResultChanged: ends += 1 }",
                      QUrl());
    const std::unique_ptr<QObject> page(component.create());
    QVERIFY2(page, qPrintable(component.errorString()));
    QVERIFY(QMetaObject::invokeMethod(page.get(), "start"));
    QTRY_COMPARE(page->property("ends").toInt(), 1);
    QCOMPARE(page->property("passed"), QVariant(true));

    // And the page is left while the next test runs.
    QVERIFY(qobject_cast<Touch *>(page.get())->wait(EndTimeoutMs));
    QVERIFY(QFile::remove(SelfTestFile));
    makeFifo(SelfTestFile);
    QVERIFY(QMetaObject::invokeMethod(page.get(), "start"));
}

void tst_Touch::canBeDestroyedAtOnce()
{
    makeFifo(SelfTestFile);
    const Footprint before = settledFootprint();
    MessageLog log;
    for (int i = 0; i < 1000; ++i) {
        Touch touch;
        touch.start();
    }
    QVERIFY(shrinksTo(before));
    QVERIFY(!log.all().join(QChar()).contains(QLatin1String("resultChanged")));
}

void tst_Touch::canBeDestroyedWhileItWaits_data()
{
    QTest::addColumn<QString>("fifo");
    QTest::newRow("for the chip") << ChipFile;
    QTest::newRow("for the self-test") << SelfTestFile;
}

void tst_Touch::canBeDestroyedWhileItWaits()
{
    QFETCH(QString, fifo);
    writeFile(ChipFile, "chip\n");
    writeFile(SelfTestFile, "0\n");
    QVERIFY(QFile::remove(fifo));
    makeFifo(fifo);
    const Footprint before = settledFootprint();
    MessageLog log;
    int slow = 0;
    for (int i = 0; i < 100; ++i) {
        auto touch = std::make_unique<Touch>();
        QSignalSpy spy(touch.get(), &Touch::resultChanged);
        touch->start();
        UniqueFd driver = openForWriting(fifo);
        QVERIFY(driver.isOpen());
        if (i % 2 == 0)
            QCOMPARE(::write(driver.get(), "0", 1), ssize_t(1));
        QElapsedTimer clock;
        clock.start();
        touch.reset();
        slow += clock.elapsed() >= AtOnceMs;
        QVERIFY(slow <= 5);
        QVERIFY(spy.isEmpty());
        driver.reset();
        QVERIFY(shrinksTo(before)); // or the next round would write to this one's reader
    }
    QVERIFY(!log.all().join(QChar()).contains(QLatin1String("resultChanged")));
}

void tst_Touch::canBeDestroyedWhileTheDriverIsBusy()
{
    writeFile(SelfTestFile, "0\n");
    struct stat status;
    QCOMPARE(::stat(QFile::encodeName(SelfTestFile).constData(), &status), 0);
    const Footprint before = settledFootprint();
    MessageLog log;
    std::unique_ptr<Touch> touch;
    for (int attempt = 0;; ++attempt) {
        busyReads = 0;
        busyFile = status.st_ino;
        touch = std::make_unique<Touch>();
        QSignalSpy spy(touch.get(), &Touch::resultChanged);
        touch->start();
        QTRY_COMPARE(busyReads.load(), 1);
        QElapsedTimer clock;
        clock.start();
        touch.reset();
        const qint64 took = clock.elapsed();
        QVERIFY(spy.isEmpty());
        Footprint busy = before;
        busy.threads += 1;
        busy.descriptors += 2; // the file, and the way back to nobody
        QVERIFY(shrinksTo(busy));
        if (took < AtOnceMs)
            break;
        QVERIFY2(attempt < 5, qPrintable(QString::number(took)));
        busyFile = 0;
        QVERIFY(shrinksTo(before));
    }

    // The next page gets a result of its own as soon as the driver is done.
    touch = std::make_unique<Touch>();
    touch->start();
    QTRY_COMPARE(busyReads.load(), 2);
    QVERIFY(!touch->result());
    busyFile = 0;
    QVERIFY(touch->wait(EndTimeoutMs));
    QVERIFY(touch->result());
    touch.reset();
    QVERIFY(shrinksTo(before));
}

void tst_Touch::canBeDestroyedAtAnyMoment()
{
    writeFile(ChipFile, "chip\n");
    writeFile(SelfTestFile, "0\n");
    const Footprint before = settledFootprint();
    MessageLog log;
    int ended = 0;
    for (int i = 0; i < 1000; ++i) {
        Touch touch;
        connect(
            &touch, &Touch::resultChanged, &touch, [&ended] { ++ended; }, Qt::DirectConnection);
        touch.start();
        QThread::usleep(ulong(i % 100) * 20);
    }
    QVERIFY(ended > 0);
    QVERIFY(shrinksTo(before));
}

QTEST_GUILESS_MAIN(tst_Touch)
#include "tst_touch.moc"
