// SPDX-License-Identifier: BSD-3-Clause
#include "sensors.h"

#include <QAccelerometer>
#include <QCompass>
#include <QFile>
#include <QGyroscope>
#include <QLightSensor>
#include <QMagnetometer>
#include <QProximitySensor>

#include <time.h>

namespace
{
const QString Folder = QStringLiteral("/run/kiv-phone/sensors/");
constexpr int UsualRate = 20; // readings a second where nobody asks for another rate
constexpr int HighestRate = 200;

quint64 microseconds()
{
    timespec now;
    ::clock_gettime(CLOCK_MONOTONIC, &now);
    return quint64(now.tv_sec) * 1000000 + quint64(now.tv_nsec) / 1000;
}

template<typename Reading>
void takeAxes(Reading *reading, const QVector<qreal> &numbers)
{
    reading->setX(numbers.at(0));
    reading->setY(numbers.at(1));
    reading->setZ(numbers.at(2));
}

void set(QAccelerometerReading *reading, const QVector<qreal> &numbers)
{
    takeAxes(reading, numbers);
}

void set(QGyroscopeReading *reading, const QVector<qreal> &numbers)
{
    takeAxes(reading, numbers);
}

void set(QMagnetometerReading *reading, const QVector<qreal> &numbers)
{
    takeAxes(reading, numbers);
    reading->setCalibrationLevel(numbers.at(3));
}

void set(QCompassReading *reading, const QVector<qreal> &numbers)
{
    reading->setAzimuth(numbers.at(0));
    reading->setCalibrationLevel(numbers.at(1));
}

void set(QLightReading *reading, const QVector<qreal> &numbers)
{
    reading->setLux(numbers.at(0));
}

void set(QProximityReading *reading, const QVector<qreal> &numbers)
{
    reading->setClose(numbers.at(0) != 0);
}

template<typename Reading>
class Backend : public SimulatedSensor
{
public:
    Backend(const QString &path, int numbers, bool onlyChanges, QSensor *sensor)
        : SimulatedSensor(path, onlyChanges, sensor), m_numbers(numbers)
    {
        setReading<Reading>(&m_reading);
    }

protected:
    bool take(const QVector<qreal> &numbers, quint64 timestamp) override
    {
        if (numbers.size() < m_numbers)
            return false;
        set(&m_reading, numbers);
        m_reading.setTimestamp(timestamp);
        return true;
    }

private:
    const int m_numbers;
    Reading m_reading;
};

template<typename Reading, int Numbers, bool OnlyChanges>
QSensorBackend *create(const QString &path, QSensor *sensor)
{
    return new Backend<Reading>(path, Numbers, OnlyChanges, sensor);
}

struct Kind
{
    const char *type; // for Qt
    const char *file;
    QSensorBackend *(*create)(const QString &path, QSensor *sensor);
};

const Kind Kinds[] = {
    {QAccelerometer::type, "accelerometer", create<QAccelerometerReading, 3, false>},
    {QCompass::type, "compass", create<QCompassReading, 2, false>},
    {QGyroscope::type, "gyroscope", create<QGyroscopeReading, 3, false>},
    {QLightSensor::type, "light", create<QLightReading, 1, true>},
    {QMagnetometer::type, "magnetometer", create<QMagnetometerReading, 4, false>},
    {QProximitySensor::type, "proximity", create<QProximityReading, 1, true>},
};

QByteArray identifierOf(const Kind &kind)
{
    return QByteArrayLiteral("kiv.") + kind.file;
}
}

SimulatedSensor::SimulatedSensor(const QString &path, bool onlyChanges, QSensor *sensor)
    : QSensorBackend(sensor), m_path(path), m_onlyChanges(onlyChanges)
{
    addDataRate(1, HighestRate);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &SimulatedSensor::measure);
}

void SimulatedSensor::start()
{
    m_last.clear();
    const int rate = sensor()->dataRate() > 0 ? qMin(sensor()->dataRate(), HighestRate) : UsualRate;
    m_timer.start(1000 / rate);
}

void SimulatedSensor::stop()
{
    m_timer.stop();
}

void SimulatedSensor::measure()
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly)) {
        m_timer.stop();
        sensorStopped();
        return;
    }
    QVector<qreal> numbers;
    const QList<QByteArray> words = file.readAll().simplified().split(' ');
    for (const QByteArray &word : words) {
        bool ok = false;
        numbers << word.toDouble(&ok);
        if (!ok)
            return;
    }
    if (m_onlyChanges && numbers == m_last)
        return;
    if (!take(numbers, microseconds()))
        return;
    m_last = numbers;
    newReadingAvailable();
}

void SimulatedSensors::registerSensors()
{
    for (const Kind &kind : Kinds) {
        QSensorManager::registerBackend(kind.type, identifierOf(kind), this);
        QSensorManager::setDefaultBackend(kind.type, identifierOf(kind));
    }
}

QSensorBackend *SimulatedSensors::createBackend(QSensor *sensor)
{
    for (const Kind &kind : Kinds) {
        const QString path = Folder + QLatin1String(kind.file);
        if (sensor->identifier() == identifierOf(kind) && QFile::exists(path))
            return kind.create(path, sensor);
    }
    return nullptr;
}
