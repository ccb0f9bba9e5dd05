// SPDX-License-Identifier: BSD-3-Clause
#include "satellites.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

namespace
{
const QString Service = QStringLiteral("org.freedesktop.Geoclue.Providers.Hybris");
const QString Path = QStringLiteral("/org/freedesktop/Geoclue/Providers/Hybris");
const QString Interface = QStringLiteral("org.freedesktop.Geoclue.Satellite");
// Time, number of satellites in use, number in view, identifiers of those in use, and of each in view its identifier,
// elevation, azimuth and signal strength.
const QString ReportSignature = QStringLiteral("iiiaia(iiii)");

// GPS receivers report once a second.
constexpr int ReportIntervalMs = 1000;
}

SatelliteSource::SatelliteSource(QObject *parent)
    : QGeoSatelliteInfoSource(parent),
      m_bus(QDBusConnection::sessionBus()),
      m_provider(Service, m_bus,
                 QDBusServiceWatcher::WatchForRegistration | QDBusServiceWatcher::WatchForUnregistration)
{
    connect(&m_provider, &QDBusServiceWatcher::serviceRegistered, this, [this] {
        setError(NoError);
        if (m_running)
            ask();
    });
    connect(&m_provider, &QDBusServiceWatcher::serviceUnregistered, this, &SatelliteSource::onProviderGone);
    m_request.setSingleShot(true);
    connect(&m_request, &QTimer::timeout, this, &SatelliteSource::requestTimeout);
}

int SatelliteSource::minimumUpdateInterval() const
{
    return ReportIntervalMs;
}

QGeoSatelliteInfoSource::Error SatelliteSource::error() const
{
    return m_error;
}

void SatelliteSource::startUpdates()
{
    if (m_running)
        return;
    m_running = true;
    m_bus.connect(Service, Path, Interface, QStringLiteral("SatelliteChanged"), QStringList(), ReportSignature, this,
                  SLOT(onSatelliteChanged(QDBusMessage)));
    ask();
}

void SatelliteSource::stopUpdates()
{
    m_running = false;
    m_bus.disconnect(Service, Path, Interface, QStringLiteral("SatelliteChanged"), QStringList(), ReportSignature, this,
                     SLOT(onSatelliteChanged(QDBusMessage)));
}

void SatelliteSource::requestUpdate(int timeout)
{
    if (timeout != 0 && timeout < ReportIntervalMs) {
        Q_EMIT requestTimeout();
        return;
    }
    m_request.start(timeout ? timeout : 10 * ReportIntervalMs);
    ask();
}

void SatelliteSource::ask()
{
    QDBusMessage call = QDBusMessage::createMethodCall(Service, Path, Interface, QStringLiteral("GetSatellite"));
    call.setAutoStartService(false);
    const auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, &SatelliteSource::onAnswered);
}

void SatelliteSource::onAnswered(QDBusPendingCallWatcher *watcher)
{
    watcher->deleteLater();
    if (watcher->isError())
        onProviderGone();
    else
        report(watcher->reply());
}

void SatelliteSource::onProviderGone()
{
    Q_EMIT satellitesInViewUpdated({});
    Q_EMIT satellitesInUseUpdated({});
    setError(ClosedError);
}

void SatelliteSource::onSatelliteChanged(const QDBusMessage &message)
{
    report(message);
}

void SatelliteSource::report(const QDBusMessage &message)
{
    if (message.signature() != ReportSignature)
        return;
    m_request.stop();
    const QList<QVariant> values = message.arguments();
    const auto used = qdbus_cast<QList<int>>(values.at(3));

    QList<QGeoSatelliteInfo> inView;
    QList<QGeoSatelliteInfo> inUse;
    const auto satellites = values.at(4).value<QDBusArgument>();
    satellites.beginArray();
    while (!satellites.atEnd()) {
        int identifier = 0;
        int elevation = 0;
        int azimuth = 0;
        int strength = 0;
        satellites.beginStructure();
        satellites >> identifier >> elevation >> azimuth >> strength;
        satellites.endStructure();

        QGeoSatelliteInfo satellite;
        satellite.setSatelliteIdentifier(identifier);
        satellite.setSatelliteSystem(QGeoSatelliteInfo::GPS);
        satellite.setSignalStrength(strength);
        satellite.setAttribute(QGeoSatelliteInfo::Elevation, elevation);
        satellite.setAttribute(QGeoSatelliteInfo::Azimuth, azimuth);
        inView << satellite;
        if (used.contains(identifier))
            inUse << satellite;
    }
    satellites.endArray();

    setError(NoError);
    Q_EMIT satellitesInViewUpdated(inView);
    Q_EMIT satellitesInUseUpdated(inUse);
}

void SatelliteSource::setError(Error error)
{
    if (m_error == error)
        return;
    m_error = error;
    Q_EMIT QGeoSatelliteInfoSource::error(error);
}

QGeoPositionInfoSource *SatelliteSourceFactory::positionInfoSource(QObject *)
{
    return nullptr;
}

QGeoSatelliteInfoSource *SatelliteSourceFactory::satelliteInfoSource(QObject *parent)
{
    return new SatelliteSource(parent);
}

QGeoAreaMonitorSource *SatelliteSourceFactory::areaMonitor(QObject *)
{
    return nullptr;
}
