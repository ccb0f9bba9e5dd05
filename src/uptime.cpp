// SPDX-License-Identifier: BSD-3-Clause
#include "uptime.h"

#include "sysfile.h"

#include <QTimerEvent>

#include <cmath>

namespace
{
const QString UptimeFile = QStringLiteral("/proc/uptime");
const QString LoadFile = QStringLiteral("/proc/loadavg");
constexpr int RefreshIntervalMs = 10000;
constexpr double MaximumUptimeSeconds = 1e12; // beyond it dates overflow

QDateTime readMachineStart()
{
    const QByteArray content = readWholeFile(UptimeFile);
    if (content.isNull())
        return QDateTime();
    const double seconds = content.trimmed().split(' ').first().toDouble();
    // An impossible number counts as one that cannot be parsed, which is 0; NaN fails the comparison.
    const bool possible = std::fabs(seconds) <= MaximumUptimeSeconds;
    return QDateTime::currentDateTime().addSecs(possible ? qint64(-seconds) : 0);
}
}

Uptime::Uptime(QObject *parent) : QObject(parent), m_machineStart(readMachineStart())
{
    updateLoadAverages();
    m_refreshTimer.start(RefreshIntervalMs, this);
}

void Uptime::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_refreshTimer.timerId())
        updateLoadAverages();
    else
        QObject::timerEvent(event);
}

void Uptime::updateLoadAverages()
{
    const QList<QByteArray> fields = readWholeFile(LoadFile).trimmed().split(' ');
    // A missing field is empty, and what is no number counts as 0.
    m_loadAverage1 = fields.value(0).toDouble();
    m_loadAverage5 = fields.value(1).toDouble();
    m_loadAverage15 = fields.value(2).toDouble();
    Q_EMIT loadAverageChanged();
}
