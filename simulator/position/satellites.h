// SPDX-License-Identifier: BSD-3-Clause
#ifndef SATELLITES_H
#define SATELLITES_H

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QGeoPositionInfoSourceFactory>
#include <QGeoSatelliteInfoSource>
#include <QTimer>

class QDBusMessage;
class QDBusPendingCallWatcher;

/*!
 * The satellites that the phone's positioning provider org.freedesktop.Geoclue.Providers.Hybris reports on the session
 * bus, by way of org.freedesktop.Geoclue.Satellite. Qt's own GeoClue plugin cannot take its place: it connects
 * SatelliteChanged to a slot that it has not.
 *
 * While the provider is away there are no satellites and the error is ClosedError.
 */
class SatelliteSource : public QGeoSatelliteInfoSource
{
    Q_OBJECT

public:
    explicit SatelliteSource(QObject *parent);

    int minimumUpdateInterval() const override;
    Error error() const override;

public Q_SLOTS:
    void startUpdates() override;
    void stopUpdates() override;
    void requestUpdate(int timeout = 0) override;

private Q_SLOTS:
    void onSatelliteChanged(const QDBusMessage &message);

private:
    void ask();
    void onAnswered(QDBusPendingCallWatcher *watcher);
    void onProviderGone();
    void report(const QDBusMessage &message);
    void setError(Error error);

    QDBusConnection m_bus;
    QDBusServiceWatcher m_provider;
    QTimer m_request;
    Error m_error = NoError;
    bool m_running = false;
};

class SatelliteSourceFactory : public QObject, public QGeoPositionInfoSourceFactory
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.qt.position.sourcefactory/5.0" FILE "satellites.json")
    Q_INTERFACES(QGeoPositionInfoSourceFactory)

public:
    QGeoPositionInfoSource *positionInfoSource(QObject *parent) override;
    QGeoSatelliteInfoSource *satelliteInfoSource(QObject *parent) override;
    QGeoAreaMonitorSource *areaMonitor(QObject *parent) override;
};

#endif
