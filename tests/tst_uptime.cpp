// SPDX-License-Identifier: BSD-3-Clause
#include "uptime.h"

#include "files.h"
#include "metaobject.h"
#include "ordinaryuser.h"

#include <QAbstractEventDispatcher>
#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QtTest>

namespace
{
const QString UptimeFile = QStringLiteral("/proc/uptime");
const QString LoadFile = QStringLiteral("/proc/loadavg");
const QString Kernel = QStringLiteral("/proc/.kernel/"); // where the kernel's own procfs is while a test changes /proc
constexpr int IntervalMs = 10000;

/*! The one timer of the object. */
QAbstractEventDispatcher::TimerInfo timerOf(Uptime *uptime)
{
    const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(uptime);
    return timers.size() == 1 ? timers.first() : QAbstractEventDispatcher::TimerInfo(0, 0, Qt::PreciseTimer);
}

void tick(Uptime *uptime)
{
    QTimerEvent event(timerOf(uptime).timerId);
    QCoreApplication::sendEvent(uptime, &event);
}
}

class tst_Uptime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void hasTheInterfaceOfItsPages();
    void readsTheKernel();
    void countsWholeSecondsBack_data();
    void countsWholeSecondsBack();
    void startIsInvalidWithoutUptime();
    void startNeverChanges();
    void readsLoads_data();
    void readsLoads();
    void loadsAreZeroWithoutFile();
    void readsNothingUnreadable();
    void refreshesEveryTenSeconds();
    void refreshFindsNewLoads();
    void signalsWithoutChange();
    void signalsWithoutFile();
    void leavesOtherTimersAlone();

private:
    void replace(const QString &path, const QByteArray &content);
    void remove(const QString &path);

    QStringList m_changed;
};

void tst_Uptime::init()
{
    QVERIFY2(QFile::exists(Kernel), "needs a /proc that can be changed");
}

void tst_Uptime::cleanup()
{
    for (const QString &path : qAsConst(m_changed)) {
        QDir().rmdir(path);
        QFile::remove(path);
        QVERIFY(QFile::link(Kernel + QFileInfo(path).fileName(), path));
    }
    m_changed.clear();
}

void tst_Uptime::remove(const QString &path)
{
    if (!m_changed.contains(path))
        m_changed << path;
    QVERIFY(QFile::remove(path));
}

void tst_Uptime::replace(const QString &path, const QByteArray &content)
{
    remove(path);
    writeFile(path, content);
}

void tst_Uptime::hasTheInterfaceOfItsPages()
{
    QCOMPARE(ownInterface(Uptime::staticMetaObject),
             QStringList({QStringLiteral("property QDateTime machineStart constant"),
                          QStringLiteral("property double loadAverage1 notify loadAverageChanged"),
                          QStringLiteral("property double loadAverage5 notify loadAverageChanged"),
                          QStringLiteral("property double loadAverage15 notify loadAverageChanged"),
                          QStringLiteral("signal loadAverageChanged()")}));
}

void tst_Uptime::readsTheKernel()
{
    QFile stat(QStringLiteral("/proc/stat"));
    QVERIFY(stat.open(QIODevice::ReadOnly));
    const auto match = QRegularExpression(QStringLiteral("^btime (\\d+)$"), QRegularExpression::MultilineOption)
                           .match(QString::fromLatin1(stat.readAll()));
    QVERIFY(match.hasMatch());
    QElapsedTimer clock;
    clock.start();
    const Uptime uptime;
    // The time and the time since the start are read one after the other.
    const qint64 between = clock.elapsed() / 1000;
    QVERIFY(qAbs(uptime.machineStart().toSecsSinceEpoch() - match.captured(1).toLongLong()) <= 2 + between);
    QVERIFY(uptime.loadAverage15() >= 0);
}

void tst_Uptime::countsWholeSecondsBack_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<qint64>("seconds");
    QTest::newRow("fraction is dropped") << QByteArray("100.9 150.25\n") << qint64(100);
    QTest::newRow("no fraction") << QByteArray("86400 1\n") << qint64(86400);
    QTest::newRow("years") << QByteArray("3000000000.99 1\n") << qint64(3000000000);
    QTest::newRow("just booted") << QByteArray("0.99 0.10\n") << qint64(0);
    QTest::newRow("one field") << QByteArray("12.5") << qint64(12);
    QTest::newRow("blanks around") << QByteArray(" \t 12.5  13 \n\n") << qint64(12);
    QTest::newRow("negative, toward zero") << QByteArray("-12.9 1\n") << qint64(-12);
    QTest::newRow("empty") << QByteArray() << qint64(0);
    QTest::newRow("garbage") << QByteArray("a lot\n") << qint64(0);
    QTest::newRow("NUL") << QByteArray("1\0002 3\n", 6) << qint64(0);
    QTest::newRow("beyond any date") << QByteArray("1e300 1\n") << qint64(0);
    QTest::newRow("beyond any date in milliseconds") << QByteArray("300000000000000000 1\n") << qint64(0);
    QTest::newRow("infinite") << QByteArray("inf 1\n") << qint64(0);
    QTest::newRow("not a number") << QByteArray("nan 1\n") << qint64(0);
    QTest::newRow("large file") << QByteArray("77.7 ") + QByteArray(1 << 20, '9') << qint64(77);
}

void tst_Uptime::countsWholeSecondsBack()
{
    QFETCH(QByteArray, content);
    QFETCH(qint64, seconds);
    replace(UptimeFile, content);
    const QDateTime before = QDateTime::currentDateTime();
    const Uptime uptime;
    const QDateTime after = QDateTime::currentDateTime();
    QCOMPARE(uptime.machineStart().timeSpec(), Qt::LocalTime);
    QVERIFY(uptime.machineStart() >= before.addSecs(-seconds));
    QVERIFY(uptime.machineStart() <= after.addSecs(-seconds));
}

void tst_Uptime::startIsInvalidWithoutUptime()
{
    remove(UptimeFile);
    replace(LoadFile, "1.5 2.5 3.5 1/100 999\n");
    {
        Uptime uptime;
        QVERIFY(!uptime.machineStart().isValid());
        QCOMPARE(uptime.loadAverage5(), 2.5);
        QCOMPARE(timerOf(&uptime).interval, IntervalMs);
    }
    QVERIFY(QDir().mkdir(UptimeFile));
    QVERIFY(!Uptime().machineStart().isValid());
}

void tst_Uptime::startNeverChanges()
{
    replace(UptimeFile, "100 1\n");
    Uptime uptime;
    const QDateTime start = uptime.machineStart();
    replace(UptimeFile, "900 1\n");
    tick(&uptime);
    QCOMPARE(uptime.machineStart(), start);
}

void tst_Uptime::readsLoads_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<double>("load1");
    QTest::addColumn<double>("load5");
    QTest::addColumn<double>("load15");
    QTest::newRow("kernel's line") << QByteArray("0.52 1.58 12.59 3/600 12345\n") << 0.52 << 1.58 << 12.59;
    QTest::newRow("no newline") << QByteArray("1 2 3") << 1.0 << 2.0 << 3.0;
    QTest::newRow("blanks around") << QByteArray("  1 2 3 \n") << 1.0 << 2.0 << 3.0;
    QTest::newRow("each blank divides") << QByteArray("1  2 3\n") << 1.0 << 0.0 << 2.0;
    QTest::newRow("garbage in one field") << QByteArray("1 two 3 4 5\n") << 1.0 << 0.0 << 3.0;
    QTest::newRow("comma") << QByteArray("0,5 1 1 1 1\n") << 0.0 << 1.0 << 1.0;
    QTest::newRow("two fields") << QByteArray("1 2\n") << 1.0 << 2.0 << 0.0;
    QTest::newRow("one field") << QByteArray("1\n") << 1.0 << 0.0 << 0.0;
    QTest::newRow("empty") << QByteArray() << 0.0 << 0.0 << 0.0;
    QTest::newRow("large") << QByteArray("1 2 3 ") + QByteArray(1 << 20, ' ') + "x" << 1.0 << 2.0 << 3.0;
}

void tst_Uptime::readsLoads()
{
    QFETCH(QByteArray, content);
    replace(LoadFile, content);
    const Uptime uptime;
    QTEST(uptime.loadAverage1(), "load1");
    QTEST(uptime.loadAverage5(), "load5");
    QTEST(uptime.loadAverage15(), "load15");
}

void tst_Uptime::loadsAreZeroWithoutFile()
{
    remove(LoadFile);
    const Uptime uptime;
    QCOMPARE(uptime.loadAverage1(), 0.0);
    QCOMPARE(uptime.loadAverage5(), 0.0);
    QCOMPARE(uptime.loadAverage15(), 0.0);
}

void tst_Uptime::readsNothingUnreadable()
{
    replace(UptimeFile, "100.9 50.0\n");
    replace(LoadFile, "1.5 2.5 3.5 1/100 999\n");
    Uptime uptime;
    QCOMPARE(uptime.loadAverage1(), 1.5);
    QVERIFY(QFile::setPermissions(UptimeFile, QFile::WriteOwner));
    QVERIFY(QFile::setPermissions(LoadFile, QFile::WriteOwner));
    const Verdict verdict = asOrdinaryUser([&uptime] {
        const QSignalSpy spy(&uptime, &Uptime::loadAverageChanged);
        tick(&uptime);
        return spy.size() == 1 && uptime.loadAverage1() == 0 && uptime.loadAverage5() == 0
            && uptime.loadAverage15() == 0 && uptime.machineStart().isValid() && !Uptime().machineStart().isValid();
    });
    if (verdict == Verdict::NoSuchUser)
        QSKIP("another user is needed");
    QCOMPARE(verdict, Verdict::True);
}

void tst_Uptime::refreshesEveryTenSeconds()
{
    Uptime uptime;
    QCOMPARE(timerOf(&uptime).interval, IntervalMs);
    QSignalSpy spy(&uptime, &Uptime::loadAverageChanged);
    QElapsedTimer clock;
    clock.start();
    QVERIFY(spy.wait(IntervalMs + 2000));
    QVERIFY(clock.elapsed() >= IntervalMs * 9 / 10); // the timer is a coarse one
    QCOMPARE(spy.size(), 1);
}

void tst_Uptime::refreshFindsNewLoads()
{
    replace(LoadFile, "1 2 3 4/5 6\n");
    Uptime uptime;
    replace(LoadFile, "4 5 6 4/5 6\n");
    QCOMPARE(uptime.loadAverage1(), 1.0);
    double seen = 0;
    connect(&uptime, &Uptime::loadAverageChanged, this,
            [&] { seen = uptime.loadAverage1() + uptime.loadAverage5() + uptime.loadAverage15(); });
    tick(&uptime);
    QCOMPARE(seen, 15.0);
}

void tst_Uptime::signalsWithoutChange()
{
    replace(LoadFile, "1 2 3 4/5 6\n");
    Uptime uptime;
    QSignalSpy spy(&uptime, &Uptime::loadAverageChanged);
    tick(&uptime);
    tick(&uptime);
    QCOMPARE(spy.size(), 2);
}

void tst_Uptime::signalsWithoutFile()
{
    replace(LoadFile, "1 2 3 4/5 6\n");
    Uptime uptime;
    QSignalSpy spy(&uptime, &Uptime::loadAverageChanged);
    remove(LoadFile);
    tick(&uptime);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(uptime.loadAverage1(), 0.0);
    QCOMPARE(uptime.loadAverage15(), 0.0);
}

void tst_Uptime::leavesOtherTimersAlone()
{
    Uptime uptime;
    QSignalSpy spy(&uptime, &Uptime::loadAverageChanged);
    QTimerEvent other(timerOf(&uptime).timerId + 1000);
    QCoreApplication::sendEvent(&uptime, &other);
    QVERIFY(spy.isEmpty());
}

QTEST_GUILESS_MAIN(tst_Uptime)
#include "tst_uptime.moc"
