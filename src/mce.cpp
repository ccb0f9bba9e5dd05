// SPDX-License-Identifier: BSD-3-Clause
#include "mce.h"

#include "dbuscall.h"
#include "mceinterface.h"

#include <QDebug>
#include <QPointer>
#include <QTimerEvent>

#include <chrono>

namespace
{
const QString Service = QStringLiteral("com.nokia.mce");
const QString RequestPath = QStringLiteral("/com/nokia/mce/request");
const QString SignalPath = QStringLiteral("/com/nokia/mce/signal");

constexpr std::chrono::milliseconds PollInterval{60000};

constexpr quint32 NfcBit = 0x10;
constexpr quint32 FmtxBit = 0x20;
}

Mce::Mce(QObject *parent)
    : QObject(parent),
      m_request(new ComNokiaMceRequestInterface(Service, RequestPath, QDBusConnection::systemBus(), this))
{
    requestSuspendStats();
    requestRadioStates();

    m_signal = new ComNokiaMceSignalInterface(Service, SignalPath, QDBusConnection::systemBus(), this);
    // Qt ends the process over a subscription on a bus that has gone.
    if (m_signal->connection().isConnected()) {
        connect(m_signal, &ComNokiaMceSignalInterface::config_change_ind, this, &Mce::configChange);
        connect(m_signal, &ComNokiaMceSignalInterface::radio_states_ind, this, &Mce::updateRadioStates);
    }

    m_pollTimer.start(int(PollInterval.count()), this);
}

qlonglong Mce::uptime() const
{
    return m_uptime;
}

qlonglong Mce::suspend() const
{
    return m_suspend;
}

bool Mce::nfcEnabled() const
{
    return m_radioStates & NfcBit;
}

bool Mce::fmtxEnabled() const
{
    return m_radioStates & FmtxBit;
}

void Mce::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_pollTimer.timerId())
        requestSuspendStats();
}

// Not by the proxy's own methods: those would have the bus start the service, and never finish without a bus.
QDBusPendingCall Mce::callRequest(const QString &method) const
{
    return callRunningService(
        m_request->connection(),
        QDBusMessage::createMethodCall(m_request->service(), m_request->path(), m_request->interface(), method));
}

void Mce::requestSuspendStats()
{
    const auto *watcher = new QDBusPendingCallWatcher(callRequest(QStringLiteral("get_suspend_stats")), m_request);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, &Mce::onGetSuspendStatsFinished);
}

void Mce::requestRadioStates()
{
    const auto *watcher = new QDBusPendingCallWatcher(callRequest(QStringLiteral("get_radio_states")), m_request);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, &Mce::onGetRadioStatesFinished);
}

void Mce::onGetSuspendStatsFinished(QDBusPendingCallWatcher *watcher)
{
    watcher->deleteLater();
    if (watcher->isError()) {
        qWarning() << watcher->error();
        return;
    }
    const QVariantList values = watcher->reply().arguments();
    m_uptime = values.value(0).toLongLong();
    m_suspend = values.value(1).toLongLong();
    // Also without a change: each answer is news to a page that shows a running clock.
    // A page may be closed by the first signal.
    const QPointer<Mce> alive(this);
    Q_EMIT uptimeChanged();
    if (alive)
        Q_EMIT suspendChanged();
}

void Mce::onGetRadioStatesFinished(QDBusPendingCallWatcher *watcher)
{
    watcher->deleteLater();
    if (watcher->isError()) {
        qWarning() << watcher->error();
        return;
    }
    updateRadioStates(watcher->reply().arguments().value(0).toUInt());
}

void Mce::configChange(const QString &, const QDBusVariant &)
{
    // None of the service's settings are shown.
}

void Mce::updateRadioStates(uint newStates)
{
    const quint32 changed = m_radioStates ^ newStates;
    m_radioStates = newStates;
    const QPointer<Mce> alive(this);
    if (changed & NfcBit)
        Q_EMIT nfcEnabledChanged();
    if (alive && (changed & FmtxBit))
        Q_EMIT fmtxEnabledChanged();
}
