// SPDX-License-Identifier: BSD-3-Clause
#include "pacmd.h"

#include "runchild.h"

#include <QDebug>

namespace
{
const QString BuiltinSource = QStringLiteral("droid.input.builtin");
const QString ExternalSource = QStringLiteral("droid.input.external");

const QString PrimarySinkNameCommand =
    QStringLiteral(R"(pactl list sinks | grep -e "Name: " -e "droid.output.primary")"
                   R"( | grep -e "= \"true\"" -B 1 | head -n 1 | awk '{ printf "%s", $2 }')");
const QString PrimarySinkActivePortCommand =
    QStringLiteral(R"(pactl list sinks | grep -e "Name: " -e "droid.output.primary" -e "Active Port: ")"
                   R"( | grep -e "= \"true\"" -A 1 | tail -n 1 | awk '{ printf "%s", $3 }')");
// The source type goes between the first and one of the other two.
const QString SourceCommandStart = QStringLiteral(R"(pactl list sources | grep -e "Name: " -e ")");
const QString SourceNameCommandEnd =
    QStringLiteral(R"(" | grep -e "= \"true\"" -B 1 | head -n 1 | awk '{ printf "%s", $2 }')");
const QString SourceActivePortCommandEnd =
    QStringLiteral(R"(" -e "Active Port: " | grep -e "= \"true\"" -A 1 | tail -n 1 | awk '{ printf "%s", $3 }')");
const QString SetSinkPortCommand = QStringLiteral("pactl set-sink-port ");
const QString SetSinkPropertyCommand = QStringLiteral("pacmd update-sink-proplist ");
const QString SetSourcePortCommand = QStringLiteral("pactl set-source-port ");
}

PaCmd::PaCmd(QObject *parent) : QObject(parent)
{
}

QString PaCmd::primarySinkName() const
{
    return runCommand(PrimarySinkNameCommand, false);
}

QString PaCmd::primarySinkActivePort() const
{
    return runCommand(PrimarySinkActivePortCommand, false);
}

QString PaCmd::sourceName(const QString &sourceType) const
{
    return runCommand(SourceCommandStart + sourceType + SourceNameCommandEnd, false);
}

QString PaCmd::sourceActivePort(const QString &sourceType) const
{
    return runCommand(SourceCommandStart + sourceType + SourceActivePortCommandEnd, false);
}

QString PaCmd::builtinSourceName() const
{
    return sourceName(BuiltinSource);
}

QString PaCmd::externalSourceName() const
{
    return sourceName(ExternalSource);
}

QString PaCmd::builtinSourceActivePort() const
{
    return sourceActivePort(BuiltinSource);
}

QString PaCmd::externalSourceActivePort() const
{
    return sourceActivePort(ExternalSource);
}

bool PaCmd::sourceIsCombined() const
{
    const QString builtin = builtinSourceName();
    return builtin == externalSourceName();
}

void PaCmd::setSinkPort(const QString &sink, const QString &port)
{
    runCommand(SetSinkPortCommand + sink + QLatin1Char(' ') + port, true);
}

void PaCmd::setPrimarySinkPort(const QString &port)
{
    setSinkPort(primarySinkName(), port);
}

void PaCmd::setPrimarySinkProperty(const QString &value)
{
    runCommand(SetSinkPropertyCommand + primarySinkName() + QLatin1Char(' ') + value, true);
}

void PaCmd::setSourcePort(const QString &source, const QString &port)
{
    runCommand(SetSourcePortCommand + source + QLatin1Char(' ') + port, true);
}

void PaCmd::setBuiltinSourcePort(const QString &port)
{
    setSourcePort(builtinSourceName(), port);
}

void PaCmd::setExternalSourcePort(const QString &port)
{
    setSourcePort(externalSourceName(), port);
}

QString PaCmd::runCommand(const QString &command, bool log)
{
    if (log)
        qDebug() << "pacmd:" << command;
    const ChildResult result = runChild(QStringLiteral("sh"), {QStringLiteral("-c"), command});
    return QString::fromLatin1(result.output.constData());
}
