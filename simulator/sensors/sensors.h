// SPDX-License-Identifier: BSD-3-Clause
#ifndef SENSORS_H
#define SENSORS_H

#include <QSensorBackend>
#include <QSensorPluginInterface>
#include <QTimer>
#include <QVector>

/*!
 * A sensor of the simulated phone. What it measures stands in a file below /run/kiv-phone/sensors: the numbers of a
 * reading in Qt's units, divided by blanks. No file is no such sensor, and one that vanishes stops; a file without
 * enough numbers is a sensor that is stuck and delivers nothing.
 */
class SimulatedSensor : public QSensorBackend
{
    Q_OBJECT

public:
    SimulatedSensor(const QString &path, bool onlyChanges, QSensor *sensor);

    void start() override;
    void stop() override;

protected:
    /*! Puts the numbers into the reading; false when they are too few. */
    virtual bool take(const QVector<qreal> &numbers, quint64 timestamp) = 0;

private:
    void measure();

    const QString m_path;
    const bool m_onlyChanges; // light and proximity sensors say nothing while nothing happens
    QVector<qreal> m_last;
    QTimer m_timer;
};

class SimulatedSensors : public QObject, public QSensorPluginInterface, public QSensorBackendFactory
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.qt-project.Qt.QSensorPluginInterface/1.0" FILE "sensors.json")
    Q_INTERFACES(QSensorPluginInterface)

public:
    void registerSensors() override;
    /*! Null when the phone has no such sensor. */
    QSensorBackend *createBackend(QSensor *sensor) override;
};

#endif
