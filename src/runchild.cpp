// SPDX-License-Identifier: BSD-3-Clause
#include "runchild.h"

#include <QDeadlineTimer>
#include <QProcess>

#include <signal.h>
#include <unistd.h>

namespace
{
// A driver may hold a process beyond its death. QProcess waits once more for it when it goes, but not for ever either.
constexpr int DeathTimeoutMs = 5000;

/*! A child that leads a process group of its own, so that a shell goes together with the tools it has started. */
class GroupLeader : public QProcess
{
public:
    void killGroup()
    {
        ::kill(-static_cast<pid_t>(processId()), SIGKILL);
        kill();
    }

protected:
    void setupChildProcess() override { ::setpgid(0, 0); }
};
}

QProcessEnvironment toolEnvironment()
{
    // Not the locale, which also says how characters are coded.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("C"));
    return environment;
}

ChildResult runChild(const QString &program, const QStringList &arguments, std::chrono::milliseconds timeout,
                     ChildErrors errors, ChildInput input)
{
    GroupLeader process;
    process.setProcessEnvironment(toolEnvironment());
    if (input == ChildInput::Empty)
        process.setStandardInputFile(QProcess::nullDevice());
    if (errors == ChildErrors::Forwarded)
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    else
        process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, arguments, QIODevice::ReadWrite);

    ChildResult result;
    const auto takeOutput = [&] {
        const QByteArray output = process.readAllStandardOutput();
        result.output.append(output.constData(), qMin(output.size(), MaximumChildOutput - result.output.size()));
    };
    result.started = process.waitForStarted(int(timeout.count()));
    if (result.started) {
        const QDeadlineTimer deadline(timeout);
        // What is ready to be read is read even without any time left, so one that prints on and on must be told apart.
        while (!deadline.hasExpired() && process.waitForReadyRead(int(deadline.remainingTime())))
            takeOutput();
        result.finished = process.state() == QProcess::NotRunning
            || (!deadline.hasExpired() && process.waitForFinished(int(deadline.remainingTime())));
        takeOutput();
    }
    if (result.finished) {
        result.exitedNormally = process.exitStatus() == QProcess::NormalExit;
        result.exitCode = process.exitCode();
    } else if (process.state() != QProcess::NotRunning) {
        process.killGroup();
        process.waitForFinished(DeathTimeoutMs);
    }
    return result;
}
