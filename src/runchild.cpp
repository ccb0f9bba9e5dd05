// SPDX-License-Identifier: BSD-3-Clause
#include "runchild.h"

#include <QProcess>

#include <signal.h>
#include <unistd.h>

namespace
{
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

ChildResult runChild(const QString &program, const QStringList &arguments, std::chrono::milliseconds timeout)
{
    GroupLeader process;
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, arguments, QIODevice::ReadWrite);

    ChildResult result;
    result.finished = process.waitForFinished(int(timeout.count()));
    result.output = process.readAllStandardOutput();
    if (result.finished) {
        result.exitedNormally = process.exitStatus() == QProcess::NormalExit;
        result.exitCode = process.exitCode();
        return result;
    }
    if (process.state() != QProcess::NotRunning) {
        process.killGroup();
        process.waitForFinished(-1);
    }
    return result;
}
