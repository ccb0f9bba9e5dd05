// SPDX-License-Identifier: BSD-3-Clause
#include "audioroute.h"

#include "dbuscall.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDebug>
#include <QPointer>

namespace
{
const QString Service = QStringLiteral("org.nemomobile.Route.Manager");
const QString Path = QStringLiteral("/org/nemomobile/Route/Manager");
const QString Interface = QStringLiteral("org.nemomobile.Route.Manager");

const QString FmRadioFeature = QStringLiteral("fmradioloopback");
const QString FeaturesSignature = QStringLiteral("a(suu)");

enum DeviceType : uint
{
    Output = 0x1,
    Input = 0x2,
    Wired = 0x8,
};

QDBusMessage methodCall(const QString &method)
{
    return QDBusMessage::createMethodCall(Service, Path, Interface, method);
}
}

AudioRoute::AudioRoute(QObject *parent) : QObject(parent), m_bus(QDBusConnection::systemBus())
{
    subscribe(m_bus, Service, Path, Interface, QStringLiteral("AudioFeatureChanged"), QStringLiteral("suu"), this,
              SLOT(handleAudioFeatureChanged(QString, uint, uint)));
    subscribe(m_bus, Service, Path, Interface, QStringLiteral("AudioRouteChanged"), QStringLiteral("su"), this,
              SLOT(handleAudioRouteChanged(QString, uint)));

    const auto watcher =
        new QDBusPendingCallWatcher(callRunningService(m_bus, methodCall(QStringLiteral("GetAll"))), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, &AudioRoute::handleGetAllReply);
}

AudioRoute::~AudioRoute()
{
    if (m_bus.isConnected())
        setFmRadio(false);
}

bool AudioRoute::wiredOutputConnected() const
{
    return m_wiredOutputConnected;
}

bool AudioRoute::wiredInputConnected() const
{
    return m_wiredInputConnected;
}

bool AudioRoute::fmRadio() const
{
    return m_fmRadio;
}

void AudioRoute::setFmRadio(bool enable)
{
    QDBusMessage message = methodCall(enable ? QStringLiteral("Enable") : QStringLiteral("Disable"));
    message << FmRadioFeature;
    message.setAutoStartService(false);
    m_bus.call(message, QDBus::Block);
}

void AudioRoute::handleAudioFeatureChanged(const QString &name, uint allowed, uint enabled)
{
    if (name != FmRadioFeature)
        return;
    m_fmRadioAllowed = allowed != 0;
    if (m_fmRadio == (enabled != 0))
        return;
    m_fmRadio = enabled != 0;
    Q_EMIT fmRadioChanged();
}

void AudioRoute::handleAudioRouteChanged(const QString &device, uint deviceType)
{
    Q_UNUSED(device)
    const bool wired = (deviceType & Wired) != 0;
    if (deviceType & Output) {
        if (m_wiredOutputConnected == wired)
            return;
        m_wiredOutputConnected = wired;
        Q_EMIT wiredOutputConnectedChanged();
    } else if (deviceType & Input) {
        if (m_wiredInputConnected == wired)
            return;
        m_wiredInputConnected = wired;
        Q_EMIT wiredInputConnectedChanged();
    }
}

void AudioRoute::handleGetAllReply(QDBusPendingCallWatcher *call)
{
    call->deleteLater();
    if (call->isError()) {
        qWarning() << "Audio route GetAll returned error";
        return;
    }
    const QVariantList arguments = call->reply().arguments();
    if (arguments.size() < 4) {
        qWarning() << "Audio route GetAll reply didn't have enough parameters";
        return;
    }

    // A page may be closed by any of the signals.
    const QPointer<AudioRoute> alive(this);
    handleAudioRouteChanged(arguments.at(0).toString(), arguments.at(1).toUInt());
    if (alive)
        handleAudioRouteChanged(arguments.at(2).toString(), arguments.at(3).toUInt());
    // Older route managers leave the features out.
    if (alive && arguments.size() > 4)
        readFeatures(arguments.at(4).value<QDBusArgument>());
}

void AudioRoute::readFeatures(const QDBusArgument &features)
{
    // Reading a structure of another signature aborts the process.
    if (features.currentSignature() != FeaturesSignature)
        return;
    const QPointer<AudioRoute> alive(this);
    features.beginArray();
    while (alive && !features.atEnd()) {
        QString name;
        uint allowed = 0;
        uint enabled = 0;
        features.beginStructure();
        features >> name >> allowed >> enabled;
        features.endStructure();
        handleAudioFeatureChanged(name, allowed, enabled);
    }
    // Gives the array's reader back, which would leak otherwise.
    features.endArray();
}
