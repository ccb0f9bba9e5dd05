// SPDX-License-Identifier: BSD-3-Clause
#ifndef RUNCHILD_H
#define RUNCHILD_H

#include <QByteArray>
#include <QStringList>

#include <chrono>

/*! What became of a child process. */
struct ChildResult
{
    bool finished = false; //!< it ended by itself within the time; false also when it could not be started
    bool exitedNormally = false; //!< it was not killed by a signal
    int exitCode = -1; //!< meaningful only when exitedNormally
    QByteArray output; //!< its standard output up to that moment

    bool succeeded() const { return finished && exitedNormally && exitCode == 0; }
};

/*! How long a program of the platform may take before it is given up. */
constexpr std::chrono::milliseconds ChildTimeout{30000};

/*!
 * Runs the program with the arguments and blocks until it ends, at most for the time given; if it still runs then it is
 * killed with all the processes of its pipeline. Its standard error is discarded.
 */
ChildResult runChild(const QString &program, const QStringList &arguments,
                     std::chrono::milliseconds timeout = ChildTimeout);

#endif
