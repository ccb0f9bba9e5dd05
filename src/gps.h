// SPDX-License-Identifier: BSD-3-Clause
#ifndef GPS_H
#define GPS_H

#include <QDBusServiceWatcher>
#include <QGeoSatelliteInfo>
#include <QGeoSatelliteInfoSource>
#include <QList>
#include <QObject>
#include <QVariantList>

class QDBusPendingCallWatcher;

/*!
 * How far the positioning provider has come, and which satellites the phone sees. The two are independent of each
 * other: the status comes from the GeoClue provider org.freedesktop.Geoclue.Providers.Hybris on the session bus, the
 * satellites from Qt Positioning's default satellite source, which is started at construction.
 */
class Gps : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Status status READ status NOTIFY statusChanged)
    Q_PROPERTY(bool satelliteInfoAvailable READ satelliteInfoAvailable CONSTANT)
    Q_PROPERTY(bool satelliteInfoError READ satelliteInfoError NOTIFY satelliteInfoErrorChanged)
    Q_PROPERTY(int satellitesInView READ satellitesInView NOTIFY satellitesInViewChanged)
    Q_PROPERTY(int satellitesInUse READ satellitesInUse NOTIFY satellitesInUseChanged)
    Q_PROPERTY(QVariantList satelliteInfo READ satelliteInfo NOTIFY satelliteInfoChanged)

public:
    /*! The provider's own codes. It may send others, which a fixed underlying type lets pass. */
    enum Status : int
    {
        StatusError = 0,
        StatusUnavailable = 1,
        StatusAcquiring = 2,
        StatusAvailable = 3
    };
    Q_ENUM(Status)

    explicit Gps(QObject *parent = nullptr);

    /*!
     * What the provider said last, also if it is none of the named values; StatusUnavailable before its first answer
     * and after it has left the bus, StatusError if it does not answer. Source: GetStatus, StatusChanged.
     */
    Status status() const;
    /*! Whether Qt Positioning has a satellite source at all. */
    bool satelliteInfoAvailable() const;
    /*! Whether the satellite source is in trouble. */
    bool satelliteInfoError() const;
    int satellitesInView() const;
    int satellitesInUse() const;
    /*!
     * One map for each satellite in view, in the source's order: "identifier" (int), "strength" (int, dB), "elevation"
     * and "azimuth" (real, degrees, -1 where unknown), "inUse" (bool).
     */
    QVariantList satelliteInfo() const;

Q_SIGNALS:
    void statusChanged();
    void satelliteInfoErrorChanged();
    void satellitesInViewChanged();
    void satellitesInUseChanged();
    /*! After every report of the source, changed or not. */
    void satelliteInfoChanged();

private Q_SLOTS:
    void positionProviderStatusChanged(int status);
    void serviceUnregistered(const QString &service);
    void providerGetStatusFinished(QDBusPendingCallWatcher *watcher);
    void satellitesInViewUpdated(const QList<QGeoSatelliteInfo> &satellites);
    void satellitesInUseUpdated(const QList<QGeoSatelliteInfo> &satellites);
    void satelliteSourceError(QGeoSatelliteInfoSource::Error error);

private:
    QDBusServiceWatcher *m_serviceWatcher;
    QGeoSatelliteInfoSource *m_satelliteSource;
    QGeoSatelliteInfoSource::Error m_satelliteError = QGeoSatelliteInfoSource::NoError;
    QList<QGeoSatelliteInfo> m_satellitesInView;
    QList<QGeoSatelliteInfo> m_satellitesInUse;
    int m_providerStatus = StatusUnavailable;
};

#endif
