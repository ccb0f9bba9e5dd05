// SPDX-License-Identifier: BSD-3-Clause
#ifndef MCE_H
#define MCE_H

#include <QBasicTimer>
#include <QObject>

class ComNokiaMceRequestInterface;
class ComNokiaMceSignalInterface;
class QDBusPendingCall;
class QDBusPendingCallWatcher;
class QDBusVariant;

/*!
 * What the mode-control service com.nokia.mce on the system bus tells of the phone: how long it has been up and how
 * long suspended, and which of its radios are switched on.
 *
 * The times are asked for at construction and every 60 s from then on. The radios are asked for once, at construction,
 * and followed by the service's broadcasts afterwards. Whatever is not known yet reads as 0 or false; a call that fails
 * changes nothing and logs the D-Bus error as a warning.
 */
class Mce : public QObject
{
    Q_OBJECT
    Q_PROPERTY(qlonglong uptime READ uptime NOTIFY uptimeChanged)
    Q_PROPERTY(qlonglong suspend READ suspend NOTIFY suspendChanged)
    Q_PROPERTY(bool nfcEnabled READ nfcEnabled NOTIFY nfcEnabledChanged)
    Q_PROPERTY(bool fmtxEnabled READ fmtxEnabled NOTIFY fmtxEnabledChanged)

public:
    explicit Mce(QObject *parent = nullptr);

    /*! Time since start-up in the service's own unit. Source: get_suspend_stats, first value. */
    qlonglong uptime() const;
    /*! Time spent suspended in the service's own unit. Source: get_suspend_stats, second value. */
    qlonglong suspend() const;
    /*! Whether NFC is switched on. Source: get_radio_states and radio_states_ind, bit 0x10. */
    bool nfcEnabled() const;
    /*! Whether the FM transmitter is switched on. Source: get_radio_states and radio_states_ind, bit 0x20. */
    bool fmtxEnabled() const;

Q_SIGNALS:
    /*! After every answer, changed or not. */
    void uptimeChanged();
    /*! After every answer, changed or not. */
    void suspendChanged();
    void nfcEnabledChanged();
    void fmtxEnabledChanged();

protected:
    void timerEvent(QTimerEvent *event) override;

private Q_SLOTS:
    void onGetSuspendStatsFinished(QDBusPendingCallWatcher *watcher);
    void onGetRadioStatesFinished(QDBusPendingCallWatcher *watcher);
    void configChange(const QString &key, const QDBusVariant &value);
    void updateRadioStates(uint newStates);

private:
    QDBusPendingCall callRequest(const QString &method) const;
    void requestSuspendStats();
    void requestRadioStates();

    ComNokiaMceRequestInterface *m_request;
    ComNokiaMceSignalInterface *m_signal = nullptr;
    QBasicTimer m_pollTimer;
    qint64 m_uptime = 0;
    qint64 m_suspend = 0;
    quint32 m_radioStates = 0;
};

#endif
