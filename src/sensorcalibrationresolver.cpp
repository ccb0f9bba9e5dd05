// SPDX-License-Identifier: BSD-3-Clause
#include "sensorcalibrationresolver.h"

#include <QDebug>
#include <QFile>

#include <algorithm>
#include <iterator>

namespace
{
const QString HelperPath = QStringLiteral("/usr/lib/sensor-calibration/calibrate_%1");
const QLatin1String KnownSensors[] = {
    QLatin1String("accelerometer"), QLatin1String("als"),         QLatin1String("compass"),
    QLatin1String("gyroscope"),     QLatin1String("humidity"),    QLatin1String("lid"),
    QLatin1String("magnetometer"),  QLatin1String("orientation"), QLatin1String("pressure"),
    QLatin1String("proximity"),     QLatin1String("rotation"),    QLatin1String("stepcounter"),
    QLatin1String("tap"),           QLatin1String("temperature"),
};
}

SensorCalibrationResolver::SensorCalibrationResolver(QObject *parent) : QObject(parent)
{
}

bool SensorCalibrationResolver::exists(const QString &sensor) const
{
    return !helperPath(sensor).isEmpty();
}

QString SensorCalibrationResolver::helperPath(const QString &sensor)
{
    if (sensor.isEmpty())
        return QString();
    if (std::find(std::begin(KnownSensors), std::end(KnownSensors), sensor) == std::end(KnownSensors)) {
        qWarning() << sensor << " is not a known sensor name";
        return QString();
    }
    const QString path = HelperPath.arg(sensor);
    return QFile::exists(path) ? path : QString();
}
