// SPDX-License-Identifier: BSD-3-Clause
#include "processes.h"

#include "files.h"
#include "messagelog.h"
#include "metaobject.h"
#include "uniquefd.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QtTest>

#include <atomic>
#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <thread>

#include <fcntl.h>
#include <signal.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/wait.h>

namespace
{
constexpr int PidRole = 257;
constexpr int NameRole = 258;
constexpr int PercentCpuRole = 260;
constexpr int IntervalMs = 5000;

const QString Proc = QStringLiteral("/proc/");
const QString Kernel = QStringLiteral("/proc/.kernel/"); // where the kernel's own procfs is while a test changes /proc
constexpr int FakePid = 4000001; // beyond what the kernel gives out here

QString said(const char *text)
{
    return QString::fromUtf8(text);
}

void refresh(Processes *model)
{
    QVERIFY(QMetaObject::invokeMethod(model, "refresh", Qt::DirectConnection));
}

/*! Leaves the model without samples but those of the test, which may take longer than the time between two of its own.
 */
void stopPolling(const Processes &model)
{
    model.findChild<QTimer *>()->stop();
}

/*! One line of /proc/<pid>/stat as the kernel writes it. */
QByteArray statLine(const QByteArray &name, quint64 userTicks, quint64 systemTicks)
{
    return "4000001 (" + name + ") S 1 2 3 4 -1 4194560 110 111 112 113 " + QByteArray::number(userTicks) + ' '
        + QByteArray::number(systemTicks) + " 16 17 20 0 1 0 12345 2842624 305 18446744073709551615 1 1 0 0 0\n";
}

int rowOf(const Processes &model, int pid)
{
    for (int row = 0; row < model.rowCount(); ++row) {
        if (model.index(row).data(PidRole).toInt() == pid)
            return row;
    }
    return -1;
}

QVariant valueOf(const Processes &model, int pid, int role)
{
    return model.data(model.index(rowOf(model, pid)), role);
}

QString nameOf(const Processes &model, int pid)
{
    return valueOf(model, pid, NameRole).toString();
}

/*! The processor time of a process so far. */
int ticksOf(int pid)
{
    const QByteArray stat = readFile(Proc + QString::number(pid) + said("/stat"));
    const QByteArrayList fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
    return fields.value(11).toInt() + fields.value(12).toInt();
}

int descriptors()
{
    return QDir(said("/proc/self/fd")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size();
}

/*! A process that does nothing until it is ended. */
class Child
{
public:
    explicit Child(const std::function<void(int readyFd)> &prepare = {})
    {
        int ready[2];
        if (::pipe2(ready, O_CLOEXEC) != 0)
            return;
        m_pid = ::fork();
        if (m_pid == 0) {
            ::prctl(PR_SET_PDEATHSIG, SIGKILL);
            ::close(ready[0]);
            if (prepare)
                prepare(ready[1]);
            ::close(ready[1]);
            for (;;)
                ::pause();
        }
        ::close(ready[1]);
        // Ends when the child has closed its end, also by an exec() that succeeded.
        pid_t pid;
        while (::read(ready[0], &pid, sizeof(pid)) == sizeof(pid))
            m_grandchild = pid;
        ::close(ready[0]);
    }
    ~Child() { end(); }
    Q_DISABLE_COPY(Child)

    int pid() const { return m_pid; }
    /*! The process id that the child has written to readyFd. */
    int grandchild() const { return m_grandchild; }
    void end()
    {
        if (m_pid > 0) {
            ::kill(m_pid, SIGKILL);
            ::waitpid(m_pid, nullptr, 0);
        }
        m_pid = -1;
    }

private:
    pid_t m_pid = -1;
    pid_t m_grandchild = -1;
};

/*! Forks a process that does nothing but what is said. */
void forkGrandchild(int readyFd, const std::function<void()> &work)
{
    const pid_t pid = ::fork();
    if (pid == 0) {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        ::close(readyFd);
        work();
        ::_exit(0);
    }
    if (::write(readyFd, &pid, sizeof(pid)) != sizeof(pid))
        ::_exit(1);
}
}

class tst_Processes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    // The model, on any /proc
    void hasTheInterfaceOfItsPages();
    void passesTheModelTester();
    void listsEverythingButOnlyFromTheSecondSample();
    void rowsAppearAfterFiveSeconds();
    void servesThreeRoles();
    void signalsResetsAndCounts();
    void limitsRows();
    void limitChangesAreTold();
    void busiestComeFirst();
    void followsProcesses();
    void survivesProcessesThatComeAndGo();
    void namesRealProcesses_data();
    void namesRealProcesses();
    void namesZombies();
    void destroyedInHandler_data();
    void destroyedInHandler();
    void leaksNothing();

    // What the kernel may say, on a /proc that the test writes
    void computesShares_data();
    void computesShares();
    void countsNoTimeAsNoShare();
    void staysAsItIsWithoutTotals();
    void hidesItsRowsAgainAfterAnEmptyList();
    void namesFakeProcesses_data();
    void namesFakeProcesses();
    void namesFollowTheProcess();
    void firstParenthesisEndsTheName();
    void keepsValuesOfStrangeStat_data();
    void keepsValuesOfStrangeStat();
    void survivesVanishingFiles();
    void listsOnlyDirectoriesWithNumbers();

private:
    void write(const QString &path, const QByteArray &content);
    void fake(int pid, const QByteArray &commandLine, const QByteArray &stat);
    void setTotals(const QByteArray &firstLine);

    QStringList m_faked;
};

void tst_Processes::init()
{
    QVERIFY(m_faked.isEmpty());
}

void tst_Processes::cleanup()
{
    for (const QString &name : qAsConst(m_faked)) {
        QDir(Proc + name).removeRecursively();
        QFile::remove(Proc + name);
    }
    if (m_faked.contains(said("stat")))
        QVERIFY(QFile::link(Kernel + said("stat"), said("/proc/stat")));
    m_faked.clear();
}

void tst_Processes::write(const QString &path, const QByteArray &content)
{
    const QString name = path.section(QLatin1Char('/'), 0, 0);
    if (!m_faked.contains(name))
        m_faked << name;
    QFile::remove(Proc + path); // which may be a link to the kernel's
    writeFile(Proc + path, content);
}

void tst_Processes::fake(int pid, const QByteArray &commandLine, const QByteArray &stat)
{
    write(said("%1/cmdline").arg(pid), commandLine);
    write(said("%1/stat").arg(pid), stat);
}

void tst_Processes::setTotals(const QByteArray &firstLine)
{
    write(said("stat"), firstLine + "\ncpu0 1 2 3 4 5 6 7 0 0 0\nintr 1\n");
}

void tst_Processes::hasTheInterfaceOfItsPages()
{
    QCOMPARE(ownInterface(Processes::staticMetaObject),
             QStringList({said("property int count notify countChanged"),
                          said("property int limit write notify limitChanged"), said("signal limitChanged()"),
                          said("signal countChanged()"), said("private slot refresh()")}));
    const Processes model;
    const QHash<int, QByteArray> roles{{PidRole, "pid"}, {NameRole, "name"}, {PercentCpuRole, "percentCpu"}};
    QCOMPARE(model.roleNames(), roles);
    QCOMPARE(model.limit(), -1);
}

void tst_Processes::passesTheModelTester()
{
    Processes model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    refresh(&model);
    const Child child;
    refresh(&model);
    model.setLimit(1);
    refresh(&model);
    QCOMPARE(model.rowCount(model.index(0)), 0);
}

void tst_Processes::listsEverythingButOnlyFromTheSecondSample()
{
    const Child child;
    QTRY_VERIFY(QFile::exists(Proc + QString::number(child.pid())));
    Processes model;
    QCOMPARE(model.count(), 0);
    QCOMPARE(model.rowCount(), 0);
    refresh(&model);
    QCOMPARE(model.count(), model.rowCount());
    QStringList pids = QDir(Proc).entryList(QDir::Dirs);
    pids = pids.filter(QRegularExpression(said("^[0-9]+$")));
    QCOMPARE(model.count(), pids.size());
    QVERIFY(model.count() >= 2);
    for (const QString &pid : qAsConst(pids))
        QVERIFY(rowOf(model, pid.toInt()) >= 0);
}

void tst_Processes::rowsAppearAfterFiveSeconds()
{
    Processes model;
    const auto timers = model.findChildren<QTimer *>();
    QCOMPARE(timers.size(), 1);
    QCOMPARE(timers.first()->interval(), IntervalMs);
    QVERIFY(timers.first()->isActive());
    QVERIFY(!timers.first()->isSingleShot());
    QSignalSpy spy(&model, &Processes::countChanged);
    QElapsedTimer clock;
    clock.start();
    QVERIFY(spy.wait(IntervalMs + 2000));
    QVERIFY(clock.elapsed() >= IntervalMs * 9 / 10); // the timer is a coarse one
    QVERIFY(model.count() > 0);
}

void tst_Processes::servesThreeRoles()
{
    const Child child;
    QTRY_VERIFY(QFile::exists(Proc + QString::number(child.pid())));
    Processes model;
    refresh(&model);
    const QModelIndex index = model.index(rowOf(model, child.pid()));
    QVERIFY(index.isValid());
    QCOMPARE(index.data(PidRole), QVariant(child.pid()));
    QCOMPARE(index.data(NameRole).type(), QVariant::String);
    QCOMPARE(QMetaType::Type(index.data(PercentCpuRole).type()), QMetaType::Float);
    for (const int role : {int(Qt::DisplayRole), int(Qt::UserRole), PidRole + 2, PercentCpuRole + 1})
        QVERIFY(!index.data(role).isValid());
    QVERIFY(!model.data(QModelIndex(), PidRole).isValid());
    QVERIFY(!model.data(model.index(model.rowCount()), PidRole).isValid());
}

void tst_Processes::signalsResetsAndCounts()
{
    Processes model;
    stopPolling(model);
    QStringList events;
    connect(&model, &Processes::modelAboutToBeReset, this, [&] { events << said("begin"); });
    connect(&model, &Processes::modelReset, this, [&] { events << said("end %1").arg(model.count() > 0); });
    connect(&model, &Processes::countChanged, this, [&] { events << said("count"); });
    connect(&model, &Processes::limitChanged, this, [&] { events << said("limit"); });
    refresh(&model);
    QCOMPARE(events, QStringList({said("begin"), said("end 1"), said("count")}));

    events.clear();
    refresh(&model);
    QCOMPARE(events, QStringList({said("begin"), said("end 1")}));

    events.clear();
    const Child child;
    QTRY_VERIFY(QFile::exists(Proc + QString::number(child.pid())));
    refresh(&model);
    QCOMPARE(events, QStringList({said("begin"), said("end 1"), said("count")}));
}

void tst_Processes::limitsRows()
{
    std::vector<std::unique_ptr<Child>> children;
    for (int i = 0; i < 10; ++i)
        children.push_back(std::make_unique<Child>());
    QTRY_VERIFY(QFile::exists(Proc + QString::number(children.back()->pid())));
    Processes model;
    model.setLimit(3);
    QCOMPARE(model.count(), 0);
    refresh(&model);
    QCOMPARE(model.count(), 3);
    QVERIFY(!model.index(3).isValid());
    refresh(&model);
    QCOMPARE(model.count(), 3);
    // A view is not told of the limit, and has all its rows until the next sample.
    const QModelIndex shown = model.index(2);
    const QVariant pid = shown.data(PidRole);
    QVERIFY(pid.toInt() > 0);
    model.setLimit(0);
    QCOMPARE(model.count(), 0);
    QCOMPARE(shown.data(PidRole), pid);
    model.setLimit(-7);
    QVERIFY(model.count() >= 11);
    model.setLimit(1000000);
    QVERIFY(model.count() >= 11);
    QVERIFY(model.count() < 1000);
}

void tst_Processes::limitChangesAreTold()
{
    Processes model;
    QStringList events;
    connect(&model, &Processes::modelAboutToBeReset, this, [&] { events << said("begin"); });
    connect(&model, &Processes::countChanged, this, [&] { events << said("count %1").arg(model.count()); });
    connect(&model, &Processes::limitChanged, this, [&] { events << said("limit %1").arg(model.limit()); });
    model.setLimit(5); // still nothing to limit
    QCOMPARE(events, QStringList({said("limit 5")}));
    refresh(&model);
    events.clear();

    model.setLimit(5);
    QCOMPARE(events, QStringList());
    QVERIFY(model.setProperty("limit", 1));
    QCOMPARE(events, QStringList({said("limit 1"), said("count 1")}));
    events.clear();
    model.setLimit(-1);
    const int all = model.count();
    QCOMPARE(events, QStringList({said("limit -1"), said("count %1").arg(all)}));
    events.clear();
    model.setLimit(-2);
    model.setLimit(all);
    QCOMPARE(events, QStringList({said("limit -2"), said("limit %1").arg(all)}));
}

void tst_Processes::busiestComeFirst()
{
    const Child idle;
    const Child parent([](int readyFd) {
        forkGrandchild(readyFd, [] {
            for (volatile int i = 0;; i = i + 1) { }
        });
    });
    const int busy = parent.grandchild();
    QTRY_VERIFY(QFile::exists(Proc + QString::number(busy)));
    std::unique_ptr<Processes> sampled;
    for (int attempt = 0; !sampled; ++attempt) {
        QElapsedTimer clock;
        clock.start();
        auto model = std::make_unique<Processes>();
        stopPolling(*model);
        const qint64 first = clock.elapsed();
        const int before = ticksOf(busy);
        QTRY_VERIFY_WITH_TIMEOUT(ticksOf(busy) >= before + 30, 30000);
        const qint64 between = clock.restart();
        refresh(model.get());
        // A sample is no moment: the time of the whole and of each process are read one after the other, and do not
        // belong together where this process has to wait meanwhile.
        if (first + clock.elapsed() < between / 4)
            sampled = std::move(model);
        QVERIFY2(attempt < 20, "the machine is too busy");
    }
    const Processes &model = *sampled;
    float last = std::numeric_limits<float>::infinity();
    for (int row = 0; row < model.rowCount(); ++row) {
        const float share = model.index(row).data(PercentCpuRole).toFloat();
        QVERIFY(share <= last);
        QVERIFY(share >= 0);
        last = share;
    }
    QCOMPARE(rowOf(model, busy), 0);
    const float share = valueOf(model, busy, PercentCpuRole).toFloat();
    QVERIFY2(share > 1 && share < 150, qPrintable(QString::number(share)));
    QCOMPARE(valueOf(model, idle.pid(), PercentCpuRole).toFloat(), 0.0F);
}

void tst_Processes::followsProcesses()
{
    Processes model;
    stopPolling(model);
    refresh(&model);
    auto child = std::make_unique<Child>();
    const int pid = child->pid();
    QTRY_VERIFY(QFile::exists(Proc + QString::number(pid)));
    QCOMPARE(rowOf(model, pid), -1);
    refresh(&model);
    QVERIFY(rowOf(model, pid) >= 0);
    child.reset();
    QTRY_VERIFY(!QFile::exists(Proc + QString::number(pid)));
    QVERIFY(rowOf(model, pid) >= 0);
    refresh(&model);
    QCOMPARE(rowOf(model, pid), -1);
}

void tst_Processes::survivesProcessesThatComeAndGo()
{
    std::atomic<bool> ends{false};
    std::atomic<int> forks{0};
    std::thread churn([&] {
        while (!ends) {
            pid_t pids[20];
            for (pid_t &pid : pids) {
                pid = ::fork();
                if (pid == 0)
                    ::_exit(0);
                ++forks;
            }
            for (const pid_t pid : pids)
                ::waitpid(pid, nullptr, 0);
        }
    });
    Processes model;
    bool sane = true;
    for (int i = 0; i < 500 || forks < 1000; ++i) {
        refresh(&model);
        for (int row = 0; row < model.rowCount(); ++row) {
            const float share = model.index(row).data(PercentCpuRole).toFloat();
            sane = sane && std::isfinite(share);
        }
    }
    ends = true;
    churn.join();
    QVERIFY(sane);
}

void tst_Processes::namesRealProcesses_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QByteArray>("argument");
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << QByteArray("sleep") << QByteArray("sleep") << said("sleep");
    QTest::newRow("path") << QByteArray("sleep") << QByteArray("/usr/bin/sleep") << said("/usr/bin/sleep");
    QTest::newRow("blanks") << QByteArray("sleep") << QByteArray(" a b ") << said(" a b ");
    QTest::newRow("parentheses") << QByteArray("sleep") << QByteArray("(sd-pam)") << said("(sd-pam)");
    QTest::newRow("Latin-1, byte by byte") << QByteArray("sleep") << QByteArray("\xc3\xa4") << said("\u00c3\u00a4");
    QTest::newRow("newline") << QByteArray("sleep") << QByteArray("one\ntwo") << said("one\n");
    QTest::newRow("long") << QByteArray("sleep") << QByteArray(100000, 'n') << QString(100000, QLatin1Char('n'));
    QTest::newRow("4096") << QByteArray("sleep") << QByteArray(4096, 'n') << QString(4096, QLatin1Char('n'));
    QTest::newRow("4095") << QByteArray("sleep") << QByteArray(4095, 'n') << QString(4095, QLatin1Char('n'));
    // Without a command line it is the kernel's name, which that takes from the file.
    QTest::newRow("no name: blanks") << QByteArray("a b") << QByteArray() << said("a b");
    QTest::newRow("no name: UTF-8") << QByteArray("\xc3\xa4") << QByteArray() << said("\u00e4");
    QTest::newRow("no name: opened") << QByteArray("a(b") << QByteArray() << said("a(b");
    QTest::newRow("no name: closed") << QByteArray("a)b") << QByteArray() << said("a");
    QTest::newRow("no name: closed at once") << QByteArray(") S 1") << QByteArray() << QString();
    QTest::newRow("no name: tab") << QByteArray("a\tb") << QByteArray() << said("a\tb");
}

void tst_Processes::namesRealProcesses()
{
    QFETCH(QByteArray, file);
    QFETCH(QByteArray, argument);
    QFETCH(QString, name);
    const QTemporaryDir directory;
    const QByteArray program = QFile::encodeName(directory.path()) + '/' + file;
    QVERIFY(QFile::copy(said("/usr/bin/sleep"), QFile::decodeName(program)));
    const Child child([&](int) { ::execl(program.constData(), argument.constData(), "1000", nullptr); });
    // The kernel closes the descriptors and gives the process its new name before it gives it the new command line.
    QTRY_VERIFY(!readFile(Proc + QString::number(child.pid()) + said("/cmdline")).isEmpty());
    Processes model;
    refresh(&model);
    QVERIFY(rowOf(model, child.pid()) >= 0);
    QCOMPARE(nameOf(model, child.pid()), name);
    refresh(&model);
    QCOMPARE(nameOf(model, child.pid()), name);
}

void tst_Processes::namesZombies()
{
    const Child parent([](int readyFd) { forkGrandchild(readyFd, [] { ::prctl(PR_SET_NAME, "undead one"); }); });
    const int zombie = parent.grandchild();
    const QString file = Proc + QString::number(zombie) + said("/cmdline");
    QTRY_VERIFY(QFile::exists(file));
    Processes model;
    refresh(&model);
    QTRY_VERIFY((refresh(&model), nameOf(model, zombie) == said("undead one")));
}

void tst_Processes::destroyedInHandler_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("before a reset") << 0;
    QTest::newRow("after a reset") << 1;
    QTest::newRow("count") << 2;
    QTest::newRow("limit") << 3;
}

void tst_Processes::destroyedInHandler()
{
    QFETCH(int, signal);
    const int before = descriptors();
    auto model = std::make_unique<Processes>();
    const auto destroy = [&] { model.reset(); };
    if (signal == 0)
        connect(model.get(), &Processes::modelAboutToBeReset, this, destroy);
    else if (signal == 1)
        connect(model.get(), &Processes::modelReset, this, destroy);
    else if (signal == 2)
        connect(model.get(), &Processes::countChanged, this, destroy);
    else
        connect(model.get(), &Processes::limitChanged, this, destroy);
    refresh(model.get());
    if (signal == 3)
        model->setLimit(1);
    QVERIFY(!model);
    QCOMPARE(descriptors(), before);
}

void tst_Processes::leaksNothing()
{
    Processes model;
    const int before = descriptors();
    for (int i = 0; i < 1000; ++i)
        refresh(&model);
    QCOMPARE(descriptors(), before);
    for (int i = 0; i < 100; ++i)
        Processes();
    QCOMPARE(descriptors(), before);
}

void tst_Processes::computesShares_data()
{
    QTest::addColumn<QByteArray>("totals"); // after 1000 in all before
    QTest::addColumn<quint64>("userTicks"); // after 30 before
    QTest::addColumn<quint64>("systemTicks"); // after 20 before
    QTest::addColumn<quint64>("delta");
    QTest::addColumn<quint64>("totalDelta");
    QTest::newRow("half of the time") << QByteArray("cpu  700 300 400 600") << quint64(330) << quint64(220)
                                      << quint64(500) << quint64(1000);
    QTest::newRow("nothing") << QByteArray("cpu  700 300 400 600") << quint64(30) << quint64(20) << quint64(0)
                             << quint64(1000);
    QTest::newRow("waiting does not count") << QByteArray("cpu  1000 0 0 200 999 999 999 9 9 9") << quint64(40)
                                            << quint64(20) << quint64(10) << quint64(200);
    QTest::newRow("thirds") << QByteArray("cpu  1000 0 0 3") << quint64(31) << quint64(20) << quint64(1) << quint64(3);
    QTest::newRow("64 bits") << QByteArray("cpu  18000000000000000000 1 0 1000") << quint64(4000000000) << quint64(20)
                             << quint64(4000000000 - 30) << quint64(18000000000000000001U);
    QTest::newRow("missing columns are 0")
        << QByteArray("cpu  2000 100") << quint64(130) << quint64(20) << quint64(100) << quint64(1100);
    QTest::newRow("ticks of another process before")
        << QByteArray("cpu  2000 0 0 0") << quint64(0) << quint64(0) << quint64(0) - 50 << quint64(1000);
    QTest::newRow("total that went back")
        << QByteArray("cpu  990 0 0 0") << quint64(130) << quint64(20) << quint64(100) << quint64(0) - 10;
}

void tst_Processes::computesShares()
{
    QFETCH(QByteArray, totals);
    QFETCH(quint64, userTicks);
    QFETCH(quint64, systemTicks);
    QFETCH(quint64, delta);
    QFETCH(quint64, totalDelta);
    const auto processors = quint64(::sysconf(_SC_NPROCESSORS_ONLN));
    setTotals("cpu  100 200 300 400 50 60 70 0 0 0");
    fake(FakePid, "program", statLine("program", 30, 20));
    Processes model;
    setTotals(totals);
    fake(FakePid, "program", statLine("program", userTicks, systemTicks));
    refresh(&model);
    QCOMPARE(valueOf(model, FakePid, PercentCpuRole).toFloat(), float(delta * processors * 100) / float(totalDelta));
}

void tst_Processes::countsNoTimeAsNoShare()
{
    setTotals("cpu  100 200 300 400");
    fake(FakePid, "program", statLine("program", 30, 20));
    Processes model;
    fake(FakePid, "program", statLine("program", 35, 25));
    fake(FakePid + 1, "other", statLine("other", 1, 1));
    refresh(&model);
    for (int row = 0; row < model.rowCount(); ++row)
        QCOMPARE(model.index(row).data(PercentCpuRole).toFloat(), 0.0F);

    // The ticks are those of that sample all the same.
    setTotals("cpu  200 200 300 400");
    refresh(&model);
    QCOMPARE(valueOf(model, FakePid, PercentCpuRole).toFloat(), 0.0F);
}

void tst_Processes::staysAsItIsWithoutTotals()
{
    setTotals("cpu  100 200 300 400");
    fake(FakePid, "program", statLine("program", 30, 20));
    Processes model;
    stopPolling(model);
    setTotals("cpu  1100 200 300 400");
    fake(FakePid, "program", statLine("program", 130, 20));
    refresh(&model);
    const int count = model.count();
    const QVariant share = valueOf(model, FakePid, PercentCpuRole);
    QVERIFY(share.toFloat() > 0);

    QVERIFY(QFile::remove(said("/proc/stat")));
    QVERIFY(QDir(said("/proc/%1").arg(FakePid)).removeRecursively());
    const Child child;
    QTRY_VERIFY(QFile::exists(Proc + QString::number(child.pid())));
    MessageLog log;
    QSignalSpy resets(&model, &Processes::modelAboutToBeReset);
    QSignalSpy counts(&model, &Processes::countChanged);
    refresh(&model);
    QVERIFY(resets.isEmpty());
    QVERIFY(counts.isEmpty());
    QCOMPARE(model.count(), count);
    QCOMPARE(valueOf(model, FakePid, PercentCpuRole), share);
    QCOMPARE(log.all(), QStringList());

    setTotals("");
    refresh(&model);
    QCOMPARE(resets.size(), 1);
    QCOMPARE(rowOf(model, FakePid), -1);
    QVERIFY(rowOf(model, child.pid()) >= 0);
}

void tst_Processes::hidesItsRowsAgainAfterAnEmptyList()
{
    if (::mount("proc", "/proc", "tmpfs", MS_NOSUID, nullptr) != 0)
        QSKIP("A file system cannot be mounted here");
    const auto unmount = qScopeGuard([] { ::umount2("/proc", MNT_DETACH); });
    const auto add = [] {
        writeFile(said("/proc/77/cmdline"), "program");
        writeFile(said("/proc/77/stat"), statLine("program", 1, 1));
    };
    writeFile(said("/proc/stat"), "cpu  1 2 3 4\n");
    add();
    Processes model;
    refresh(&model);
    QCOMPARE(model.count(), 1);

    QSignalSpy resets(&model, &Processes::modelReset);
    QSignalSpy counts(&model, &Processes::countChanged);
    QVERIFY(QDir(said("/proc/77")).removeRecursively());
    refresh(&model);
    QCOMPARE(model.count(), 0);
    QCOMPARE(resets.size(), 1);
    QCOMPARE(counts.size(), 1);

    // It is the first sample of these processes again, and covers no interval.
    add();
    refresh(&model);
    QCOMPARE(model.count(), 0);
    QCOMPARE(resets.size(), 1);
    QCOMPARE(counts.size(), 1);
    refresh(&model);
    QCOMPARE(model.count(), 1);
    QCOMPARE(resets.size(), 2);
    QCOMPARE(counts.size(), 2);
}

void tst_Processes::namesFakeProcesses_data()
{
    QTest::addColumn<QByteArray>("commandLine");
    QTest::addColumn<QByteArray>("stat");
    QTest::addColumn<QString>("name");
    QTest::newRow("arguments") << QByteArray("prog\0--flag\0x\0", 14) << statLine("other", 1, 1) << said("prog");
    QTest::newRow("no end") << QByteArray("prog --flag") << statLine("other", 1, 1) << said("prog --flag");
    QTest::newRow("kernel thread") << QByteArray() << statLine("kworker/0:1H-kblockd", 1, 1)
                                   << said("kworker/0:1H-kblockd");
    QTest::newRow("newline in an argument")
        << QByteArray("prog\0two\nlines\0", 15) << statLine("other", 1, 1) << said("prog");
    QTest::newRow("newline in the name") << QByteArray("prog\nram\0x\0", 11) << statLine("other", 1, 1)
                                         << said("prog\n");
    QTest::newRow("beyond ASCII") << QByteArray("pr\xc3\xb6g\0", 6) << statLine("other", 1, 1)
                                  << said("pr\u00c3\u00b6g");
    QTest::newRow("beyond ASCII, long") << QByteArray(4096, '\xe4') << statLine("other", 1, 1)
                                        << QString(4096, QChar(0xe4));
    QTest::newRow("newline first") << QByteArray("\nprog\0", 6) << statLine("other", 1, 1) << said("\n");
    QTest::newRow("not UTF-8") << QByteArray() << statLine("\xff\xc3\xa4", 1, 1) << said("\ufffd\u00e4");
    QTest::newRow("empty stat name") << QByteArray() << statLine("", 1, 1) << QString();
    QTest::newRow("no opening parenthesis") << QByteArray() << QByteArray("77 name) S 1 2 (3") << QString();
    QTest::newRow("one end of a long line") << QByteArray(4095, 'a') + "\nb" << statLine("other", 1, 1)
                                            << QString(4095, QLatin1Char('a')) + QLatin1Char('\n');
    QTest::newRow("NUL after a chunk") << QByteArray(4096, 'a') + QByteArray("\0b", 2) << statLine("other", 1, 1)
                                       << QString(4096, QLatin1Char('a'));
    QTest::newRow("enormous") << QByteArray(5000000, 'a') << statLine("other", 1, 1)
                              << QString(5000000, QLatin1Char('a'));
}

void tst_Processes::namesFakeProcesses()
{
    QFETCH(QByteArray, commandLine);
    QFETCH(QByteArray, stat);
    QFETCH(QString, name);
    fake(FakePid, commandLine, stat);
    Processes model;
    refresh(&model);
    QVERIFY(rowOf(model, FakePid) >= 0);
    QVERIFY(nameOf(model, FakePid) == name);
}

void tst_Processes::namesFollowTheProcess()
{
    fake(FakePid, "shell", statLine("shell", 1, 1));
    Processes model;
    fake(FakePid, "program", statLine("program", 1, 1));
    refresh(&model);
    QCOMPARE(nameOf(model, FakePid), said("program"));
    fake(FakePid, "", statLine("zombie", 1, 1));
    refresh(&model);
    QCOMPARE(nameOf(model, FakePid), said("zombie"));
    fake(FakePid, "", statLine("renamed", 1, 1));
    refresh(&model);
    QCOMPARE(nameOf(model, FakePid), said("renamed"));
}

void tst_Processes::firstParenthesisEndsTheName()
{
    const auto processors = quint64(::sysconf(_SC_NPROCESSORS_ONLN));
    setTotals("cpu  0 0 0 1000");
    fake(FakePid, "", statLine("a) b c", 0, 0));
    Processes model;
    setTotals("cpu  0 0 0 2000");
    fake(FakePid, "", statLine("a) b c", 500, 7));
    refresh(&model);
    QCOMPARE(nameOf(model, FakePid), said("a"));
    // Two fields more, "b" and "c)": in place of the times stand 112 and 113, before and after.
    QCOMPARE(valueOf(model, FakePid, PercentCpuRole).toFloat(), 0.0F);

    fake(FakePid, "", statLine("a)", 500, 7));
    setTotals("cpu  0 0 0 3000");
    refresh(&model);
    // One field more, ")": 113 and the 500.
    QCOMPARE(valueOf(model, FakePid, PercentCpuRole).toFloat(),
             float((quint64(113) + 500 - 112 - 113) * processors * 100) / 1000.0F);
}

void tst_Processes::keepsValuesOfStrangeStat_data()
{
    QTest::addColumn<QByteArray>("stat");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no parenthesis") << QByteArray("77 (name S 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15\n");
    QTest::newRow("truncated") << QByteArray("77 (name) S 1 2 3 4 5 6 7 8 9 10 11");
    QTest::newRow("nothing after the name") << QByteArray("77 (name)");
    QTest::newRow("zeros") << QByteArray(10000, '\0');
}

void tst_Processes::keepsValuesOfStrangeStat()
{
    QFETCH(QByteArray, stat);
    setTotals("cpu  0 0 0 1000");
    fake(FakePid, "program", statLine("program", 100, 0));
    Processes model;
    setTotals("cpu  0 0 0 2000");
    fake(FakePid, "program", statLine("program", 200, 0));
    refresh(&model);
    const QVariant share = valueOf(model, FakePid, PercentCpuRole);
    QVERIFY(share.toFloat() > 0);

    setTotals("cpu  0 0 0 9000");
    fake(FakePid, "program", stat);
    refresh(&model);
    QCOMPARE(valueOf(model, FakePid, PercentCpuRole), share);

    // The next good line is measured against the last good one.
    setTotals("cpu  0 0 0 10000");
    fake(FakePid, "program", statLine("program", 300, 0));
    refresh(&model);
    QCOMPARE(valueOf(model, FakePid, PercentCpuRole), share);
}

void tst_Processes::survivesVanishingFiles()
{
    const QString directory = said("/proc/%1").arg(FakePid);
    setTotals("cpu  0 0 0 1000");
    fake(FakePid, "program", statLine("program", 100, 0));
    // Known only as a directory: gone between the listing and the reading.
    QVERIFY(QDir().mkpath(said("/proc/%1").arg(FakePid + 1)));
    // Gone a moment later.
    write(said("%1/cmdline").arg(FakePid + 2), "half");
    m_faked << QString::number(FakePid + 1);
    Processes model;
    setTotals("cpu  0 0 0 2000");
    fake(FakePid, "program", statLine("program", 200, 0));
    refresh(&model);
    QCOMPARE(rowOf(model, FakePid + 1), -1);
    QCOMPARE(nameOf(model, FakePid + 2), said("half"));
    QCOMPARE(valueOf(model, FakePid + 2, PercentCpuRole).toFloat(), 0.0F);
    const QVariant share = valueOf(model, FakePid, PercentCpuRole);

    // What is known stays until the directory is gone.
    QVERIFY(QFile::remove(directory + said("/stat")));
    QVERIFY(QFile::remove(directory + said("/cmdline")));
    setTotals("cpu  0 0 0 5000");
    refresh(&model);
    QCOMPARE(nameOf(model, FakePid), said("program"));
    QCOMPARE(valueOf(model, FakePid, PercentCpuRole), share);
    QVERIFY(QDir(directory).removeRecursively());
    refresh(&model);
    QCOMPARE(rowOf(model, FakePid), -1);
}

void tst_Processes::listsOnlyDirectoriesWithNumbers()
{
    write(said("7777777"), "a file");
    QVERIFY(QFile::link(said("/nowhere"), said("/proc/7777778")));
    m_faked << said("7777778");
    write(said("x5/cmdline"), "no number");
    write(said("8888888x/cmdline"), "no number all through");
    write(said("99999999999999/cmdline"), "no process id");
    fake(FakePid, "program", statLine("program", 1, 1));
    Processes model;
    refresh(&model);
    QCOMPARE(nameOf(model, FakePid), said("program"));
    const int real = QDir(Kernel).entryList(QDir::Dirs).filter(QRegularExpression(said("^[0-9]+$"))).size();
    QCOMPARE(model.count(), real + 1);
}

QTEST_GUILESS_MAIN(tst_Processes)
#include "tst_processes.moc"
