// SPDX-License-Identifier: BSD-3-Clause
#include "runchild.h"

#include <QProcess>

ChildResult runChild(const QString &program, const QStringList &arguments, std::chrono::milliseconds timeout)
{
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, arguments, QIODevice::ReadOnly);

    ChildResult result;
    result.finished = process.waitForFinished(int(timeout.count()));
    result.output = process.readAllStandardOutput();
    if (result.finished) {
        result.exitedNormally = process.exitStatus() == QProcess::NormalExit;
        result.exitCode = process.exitCode();
        return result;
    }
    if (process.state() != QProcess::NotRunning) {
        process.kill();
        process.waitForFinished(-1);
    }
    return result;
}
