// SPDX-License-Identifier: BSD-3-Clause
#ifndef AUDIOROUTE_H
#define AUDIOROUTE_H

#include <QDBusConnection>
#include <QObject>

class QDBusArgument;
class QDBusPendingCallWatcher;

/*!
 * Whether something is plugged into the audio jack, and the switch of the FM radio's loop-back, as the audio policy's
 * route manager (org.nemomobile.Route.Manager on the system bus) reports them. Everything is false until it answers.
 */
class AudioRoute : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool wiredOutputConnected READ wiredOutputConnected NOTIFY wiredOutputConnectedChanged)
    Q_PROPERTY(bool wiredInputConnected READ wiredInputConnected NOTIFY wiredInputConnectedChanged)
    Q_PROPERTY(bool fmRadio READ fmRadio WRITE setFmRadio NOTIFY fmRadioChanged)

public:
    explicit AudioRoute(QObject *parent = nullptr);
    /*! Switches the loop-back off; blocks as setFmRadio() does. */
    ~AudioRoute() override;

    /*! Headphones, or a headset. */
    bool wiredOutputConnected() const;
    /*! The microphone of a headset. */
    bool wiredInputConnected() const;

    /*! Whether the radio is looped back to the audio output. */
    bool fmRadio() const;
    /*! Asks for the loop-back and blocks until the route manager has answered, 25 seconds at most. The property changes
     *  only when the route manager says that it has. */
    void setFmRadio(bool enable);

Q_SIGNALS:
    void wiredOutputConnectedChanged();
    void wiredInputConnectedChanged();
    void fmRadioChanged();

private Q_SLOTS:
    void handleAudioFeatureChanged(const QString &name, uint allowed, uint enabled);
    void handleAudioRouteChanged(const QString &device, uint deviceType);
    void handleGetAllReply(QDBusPendingCallWatcher *call);

private:
    void readFeatures(const QDBusArgument &features);

    bool m_fmRadioAllowed = false;
    bool m_fmRadio = false;
    bool m_wiredOutputConnected = false;
    bool m_wiredInputConnected = false;
    QDBusConnection m_bus;
};

#endif
