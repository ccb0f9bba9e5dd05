// SPDX-License-Identifier: BSD-3-Clause
#ifndef SENSORCALIBRATIONRESOLVER_H
#define SENSORCALIBRATIONRESOLVER_H

#include <QObject>
#include <QString>

/*! Tells for which sensors the platform has a calibration helper. */
class SensorCalibrationResolver : public QObject
{
    Q_OBJECT

public:
    explicit SensorCalibrationResolver(QObject *parent = nullptr);

    /*! Whether there is a helper for the sensor, such as "gyroscope". Warns when the name is none of a sensor. */
    Q_INVOKABLE bool exists(const QString &sensor) const;

    /*! The sensor's helper program; empty when there is none. Warns when the name is none of a sensor. */
    static QString helperPath(const QString &sensor);
};

#endif
