// SPDX-License-Identifier: BSD-3-Clause
#ifndef RUNCHILD_H
#define RUNCHILD_H

#include <QByteArray>
#include <QProcessEnvironment>
#include <QStringList>

#include <chrono>

/*! What became of a child process. */
struct ChildResult
{
    bool started = false; //!< the program could be executed
    bool finished = false; //!< it ended by itself within the time; false also when it could not be started
    bool exitedNormally = false; //!< it was not killed by a signal
    int exitCode = -1; //!< meaningful only when exitedNormally
    QByteArray output; //!< its standard output up to that moment, at most MaximumChildOutput bytes of it

    bool succeeded() const { return finished && exitedNormally && exitCode == 0; }
};

/*! How long a program of the platform may take before it is given up. */
constexpr std::chrono::milliseconds ChildTimeout{30000};

/*! What a child prints beyond that is thrown away, so that one that never stops printing does not fill the memory. */
constexpr int MaximumChildOutput = 1 << 24;

/*! What becomes of a child's standard error. */
enum class ChildErrors
{
    Discarded,
    Forwarded, //!< to this program's own
};

/*! What a child finds in its standard input. */
enum class ChildInput
{
    Silent, //!< a pipe into which nothing is written
    Empty,
};

/*!
 * What every tool of the platform is started with: this program's environment, in which the tool speaks English
 * whatever the user's language is, because this program reads what it prints.
 */
QProcessEnvironment toolEnvironment();

/*!
 * Runs the program with the arguments and blocks until it ends, at most for the time given, and before that as long
 * until it has started; if it still runs then it is killed with all the processes of its pipeline.
 */
ChildResult runChild(const QString &program, const QStringList &arguments,
                     std::chrono::milliseconds timeout = ChildTimeout, ChildErrors errors = ChildErrors::Discarded,
                     ChildInput input = ChildInput::Silent);

#endif
