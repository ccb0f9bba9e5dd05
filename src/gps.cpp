// SPDX-License-Identifier: BSD-3-Clause
#include "gps.h"

#include "dbuscall.h"

#include <QDBusPendingCallWatcher>
#include <QPointer>

namespace
{
const QString Service = QStringLiteral("org.freedesktop.Geoclue.Providers.Hybris");
const QString Path = QStringLiteral("/org/freedesktop/Geoclue/Providers/Hybris");
const QString Interface = QStringLiteral("org.freedesktop.Geoclue");
}

Gps::Gps(QObject *parent)
    : QObject(parent),
      m_serviceWatcher(new QDBusServiceWatcher(this)),
      m_satelliteSource(QGeoSatelliteInfoSource::createDefaultSource(this))
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    m_serviceWatcher->setConnection(bus);
    connect(m_serviceWatcher, &QDBusServiceWatcher::serviceUnregistered, this, &Gps::serviceUnregistered);
    m_serviceWatcher->addWatchedService(Service);

    const QDBusMessage call = QDBusMessage::createMethodCall(Service, Path, Interface, QStringLiteral("GetStatus"));
    const auto *watcher = new QDBusPendingCallWatcher(callRunningService(bus, call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, &Gps::providerGetStatusFinished);

    subscribe(bus, Service, Path, Interface, QStringLiteral("StatusChanged"), QStringLiteral("i"), this,
              SLOT(positionProviderStatusChanged(int)));

    if (m_satelliteSource) {
        connect(m_satelliteSource, &QGeoSatelliteInfoSource::satellitesInViewUpdated, this,
                &Gps::satellitesInViewUpdated);
        connect(m_satelliteSource, &QGeoSatelliteInfoSource::satellitesInUseUpdated, this,
                &Gps::satellitesInUseUpdated);
        connect(m_satelliteSource, qOverload<QGeoSatelliteInfoSource::Error>(&QGeoSatelliteInfoSource::error), this,
                &Gps::satelliteSourceError);
        m_satelliteSource->startUpdates();
    }
}

Gps::Status Gps::status() const
{
    return static_cast<Status>(m_providerStatus);
}

bool Gps::satelliteInfoAvailable() const
{
    return m_satelliteSource;
}

bool Gps::satelliteInfoError() const
{
    return m_satelliteError != QGeoSatelliteInfoSource::NoError;
}

int Gps::satellitesInView() const
{
    return m_satellitesInView.count();
}

int Gps::satellitesInUse() const
{
    return m_satellitesInUse.count();
}

QVariantList Gps::satelliteInfo() const
{
    QList<int> inUse;
    inUse.reserve(m_satellitesInUse.count());
    for (const QGeoSatelliteInfo &satellite : m_satellitesInUse)
        inUse.append(satellite.satelliteIdentifier());

    QVariantList satellites;
    satellites.reserve(m_satellitesInView.count());
    for (const QGeoSatelliteInfo &satellite : m_satellitesInView) {
        const int identifier = satellite.satelliteIdentifier();
        satellites.append(QVariantMap{
            {QStringLiteral("identifier"), identifier},
            {QStringLiteral("strength"), satellite.signalStrength()},
            {QStringLiteral("elevation"), satellite.attribute(QGeoSatelliteInfo::Elevation)},
            {QStringLiteral("azimuth"), satellite.attribute(QGeoSatelliteInfo::Azimuth)},
            {QStringLiteral("inUse"), inUse.contains(identifier)},
        });
    }
    return satellites;
}

void Gps::positionProviderStatusChanged(int status)
{
    if (m_providerStatus == status)
        return;
    m_providerStatus = status;
    Q_EMIT statusChanged();
}

void Gps::serviceUnregistered(const QString &service)
{
    if (service == Service)
        positionProviderStatusChanged(StatusUnavailable);
}

void Gps::providerGetStatusFinished(QDBusPendingCallWatcher *watcher)
{
    watcher->deleteLater();
    // An error's text can look like a number, but the provider that sent it is in trouble all the same.
    positionProviderStatusChanged(watcher->isError() ? int(StatusError)
                                                     : watcher->reply().arguments().value(0).toInt());
}

void Gps::satellitesInViewUpdated(const QList<QGeoSatelliteInfo> &satellites)
{
    const int oldCount = m_satellitesInView.count();
    m_satellitesInView = satellites;
    // A page may be closed by the first signal.
    const QPointer<Gps> alive(this);
    Q_EMIT satelliteInfoChanged();
    if (alive && m_satellitesInView.count() != oldCount)
        Q_EMIT satellitesInViewChanged();
}

void Gps::satellitesInUseUpdated(const QList<QGeoSatelliteInfo> &satellites)
{
    const int oldCount = m_satellitesInUse.count();
    m_satellitesInUse = satellites;
    const QPointer<Gps> alive(this);
    Q_EMIT satelliteInfoChanged();
    if (alive && m_satellitesInUse.count() != oldCount)
        Q_EMIT satellitesInUseChanged();
}

void Gps::satelliteSourceError(QGeoSatelliteInfoSource::Error error)
{
    if (m_satelliteError == error)
        return;
    m_satelliteError = error;
    Q_EMIT satelliteInfoErrorChanged();
}
