// SPDX-License-Identifier: BSD-3-Clause
#include "files.h"
#include "messagelog.h"
#include "runchild.h"

#include <QElapsedTimer>
#include <QtTest>

#include <atomic>

#include <poll.h>
#include <signal.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{
const QString Shell = QStringLiteral("/bin/sh");

// On a busy phone, whoever else runs gets the processor before each look at the child.
std::atomic<bool> busyPhone{false};
// A driver does not let go of the child.
std::atomic<bool> immortalChild{false};

ChildResult shell(const char *script, std::chrono::milliseconds timeout = ChildTimeout)
{
    return runChild(Shell, {QStringLiteral("-c"), QString::fromUtf8(script)}, timeout);
}
}

extern "C" Q_DECL_EXPORT int ppoll(pollfd *watched, nfds_t count, const timespec *timeout, const sigset_t *signalMask)
{
    if (busyPhone)
        ::usleep(2000);
    timespec time = timeout ? *timeout : timespec();
    return int(::syscall(SYS_ppoll, watched, count, timeout ? &time : nullptr, signalMask, _NSIG / 8));
}

extern "C" Q_DECL_EXPORT int kill(pid_t pid, int signal)
{
    return immortalChild ? 0 : int(::syscall(SYS_kill, pid, signal));
}

class tst_RunChild : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reportsHowItEnded_data();
    void reportsHowItEnded();
    void passesArgumentsUntouched();
    void collectsAllOutput();
    void discardsStandardError();
    void speaksEnglish();
    void tellsWhatCannotBeStarted_data();
    void tellsWhatCannotBeStarted();
    void killsWhatTakesTooLong();
    void killsWhatNeverStopsPrinting();
    void givesUpWhatCannotBeKilled();
    void doesNotWaitForGrandchildren();
};

void tst_RunChild::reportsHowItEnded_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<bool>("exitedNormally");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("success") << QByteArray("true") << true << 0;
    QTest::newRow("failure") << QByteArray("exit 3") << true << 3;
    QTest::newRow("255") << QByteArray("exit 255") << true << 255;
    QTest::newRow("crash") << QByteArray("kill -SEGV $$") << false << -1;
    QTest::newRow("killed") << QByteArray("kill -KILL $$") << false << -1;
}

void tst_RunChild::reportsHowItEnded()
{
    QFETCH(QByteArray, script);
    QFETCH(bool, exitedNormally);
    QFETCH(int, exitCode);
    const ChildResult result = shell(script.prepend("printf begun; ").constData());
    QVERIFY(result.finished);
    QCOMPARE(result.exitedNormally, exitedNormally);
    if (exitedNormally)
        QCOMPARE(result.exitCode, exitCode);
    QCOMPARE(result.succeeded(), exitedNormally && exitCode == 0);
    QCOMPARE(result.output, QByteArray("begun"));
}

void tst_RunChild::passesArgumentsUntouched()
{
    const ChildResult result = runChild(QStringLiteral("printf"),
                                        {QStringLiteral("<%s>"), QStringLiteral("a b"), QString(),
                                         QStringLiteral("$HOME;'\""), QStringLiteral("\u00e4")});
    QVERIFY(result.succeeded());
    QCOMPARE(result.output, QByteArray("<a b><><$HOME;'\"><\xc3\xa4>"));
}

void tst_RunChild::collectsAllOutput()
{
    // Far more than a pipe holds.
    const ChildResult result = shell("head -c 3000000 /dev/zero");
    QVERIFY(result.succeeded());
    QCOMPARE(result.output.size(), 3000000);
}

void tst_RunChild::discardsStandardError()
{
    const ChildResult result = shell("printf out; head -c 300000 /dev/zero >&2; printf put");
    QVERIFY(result.succeeded());
    QCOMPARE(result.output, QByteArray("output"));
}

void tst_RunChild::speaksEnglish()
{
    qputenv("LANGUAGE", "fi:de");
    const auto back = qScopeGuard([] { qunsetenv("LANGUAGE"); });
    // The rest of the environment is this program's own.
    qputenv("KIV_TEST_WORD", "a b");
    QCOMPARE(shell("printf '%s %s %s' \"$LANGUAGE\" \"$KIV_TEST_WORD\" \"$HOME\"").output, "C a b " + qgetenv("HOME"));
    QCOMPARE(qgetenv("LANGUAGE"), QByteArray("fi:de"));
}

void tst_RunChild::tellsWhatCannotBeStarted_data()
{
    QTest::addColumn<QString>("program");
    writeFile(QStringLiteral("/run/kiv/plain"), "text", QFile::ReadOwner | QFile::WriteOwner);
    QTest::newRow("missing") << QStringLiteral("/run/kiv/nothing");
    QTest::newRow("missing in PATH") << QStringLiteral("kiv-no-such-program");
    QTest::newRow("no program") << QStringLiteral("/run/kiv/plain");
    QTest::newRow("folder") << QStringLiteral("/run/kiv");
}

void tst_RunChild::tellsWhatCannotBeStarted()
{
    QFETCH(QString, program);
    QElapsedTimer timer;
    timer.start();
    const ChildResult result = runChild(program, {});
    QVERIFY(!result.finished);
    QVERIFY(!result.succeeded());
    QVERIFY(result.output.isEmpty());
    QVERIFY(timer.elapsed() < ChildTimeout.count() / 2);
}

void tst_RunChild::killsWhatTakesTooLong()
{
    MessageLog log;
    QElapsedTimer timer;
    timer.start();
    // A stubborn one, too.
    const ChildResult result = shell("trap '' TERM; echo $$; exec sleep 60", std::chrono::milliseconds(1000));
    QVERIFY(timer.elapsed() >= 1000);
    QVERIFY(timer.elapsed() < 30000);
    QVERIFY(!result.finished);
    QVERIFY(!result.succeeded());
    const int child = result.output.trimmed().toInt();
    QVERIFY(child > 0);
    QCOMPARE(::kill(child, 0), -1); // gone and collected
    QVERIFY(log.all().isEmpty());
}

void tst_RunChild::killsWhatNeverStopsPrinting()
{
    QElapsedTimer timer;
    timer.start();
    busyPhone = true;
    const ChildResult result = shell("echo $$; exec cat /dev/zero", std::chrono::milliseconds(1000));
    busyPhone = false;
    QVERIFY(timer.elapsed() >= 1000);
    QVERIFY2(timer.elapsed() < 30000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(!result.finished);
    QVERIFY(!result.succeeded());
    QVERIFY(result.output.size() > 1 && result.output.size() <= MaximumChildOutput);
    const int child = result.output.left(result.output.indexOf('\n')).toInt();
    QVERIFY(child > 0);
    QCOMPARE(::kill(child, 0), -1);
}

void tst_RunChild::givesUpWhatCannotBeKilled()
{
    MessageLog log; // Qt says that it destroys a running process
    QElapsedTimer timer;
    timer.start();
    immortalChild = true;
    const ChildResult result = shell("echo $$; exec sleep 100", std::chrono::milliseconds(1000));
    immortalChild = false;
    QVERIFY2(timer.elapsed() < 60000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(!result.finished);
    const int child = result.output.trimmed().toInt();
    QVERIFY(child > 0);
    QCOMPARE(::kill(child, SIGKILL), 0);
}

void tst_RunChild::doesNotWaitForGrandchildren()
{
    QElapsedTimer timer;
    timer.start();
    const ChildResult result = shell("sleep 60 & printf done");
    QVERIFY(result.succeeded());
    QCOMPARE(result.output, QByteArray("done"));
    QVERIFY(timer.elapsed() < 30000);
}

QTEST_GUILESS_MAIN(tst_RunChild)
#include "tst_runchild.moc"
