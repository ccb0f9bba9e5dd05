// SPDX-License-Identifier: BSD-3-Clause
#ifndef UPTIME_H
#define UPTIME_H

#include <QBasicTimer>
#include <QDateTime>
#include <QObject>

/*!
 * When the phone booted, and how busy it has been since: the kernel's three load averages, read at construction and
 * every 10 seconds from then on.
 */
class Uptime : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QDateTime machineStart READ machineStart CONSTANT)
    Q_PROPERTY(double loadAverage1 READ loadAverage1 NOTIFY loadAverageChanged)
    Q_PROPERTY(double loadAverage5 READ loadAverage5 NOTIFY loadAverageChanged)
    Q_PROPERTY(double loadAverage15 READ loadAverage15 NOTIFY loadAverageChanged)

public:
    explicit Uptime(QObject *parent = nullptr);

    /*! Local date and time of boot, to the second; invalid where the kernel does not tell. Source: /proc/uptime. */
    QDateTime machineStart() const { return m_machineStart; }
    /*! Mean number of runnable processes in the last minute; 0 when unreadable. Source: /proc/loadavg. */
    double loadAverage1() const { return m_loadAverage1; }
    /*! The same over five minutes. */
    double loadAverage5() const { return m_loadAverage5; }
    /*! The same over fifteen minutes. */
    double loadAverage15() const { return m_loadAverage15; }

Q_SIGNALS:
    /*! Sent after every reading, also one that found the same values. */
    void loadAverageChanged();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void updateLoadAverages();

    QDateTime m_machineStart;
    QBasicTimer m_refreshTimer;
    double m_loadAverage1 = 0;
    double m_loadAverage5 = 0;
    double m_loadAverage15 = 0;
};

#endif
