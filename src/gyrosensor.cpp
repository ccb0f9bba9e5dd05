// SPDX-License-Identifier: BSD-3-Clause
#include "gyrosensor.h"

#include "hwsettings.h"

#include <QDebug>
#include <QGyroscope>

namespace
{
constexpr float SampleShare = 0.03125F; // of 32 samples
}

GyroSensor::GyroSensor(QObject *parent)
    : QObject(parent), m_settings(new HwSettings(this)), m_gyroscope(new QGyroscope(this))
{
    m_gyroscope->connectToBackend();
    if (!m_gyroscope->isActive())
        m_gyroscope->start();
    if (!m_gyroscope->isActive())
        qWarning() << "Failed to start Gyro Sensor";
}

GyroSensor::~GyroSensor()
{
    if (m_gyroscope->isActive())
        m_gyroscope->stop();
}

void GyroSensor::updateGyroSensor()
{
    const QGyroscopeReading *const reading = m_gyroscope->reading();
    if (!reading)
        return;
    m_sumX = float(m_sumX + reading->x());
    m_sumY = float(m_sumY + reading->y());
    m_sumZ = float(m_sumZ + reading->z());
}

bool GyroSensor::getResult()
{
    m_averageX = m_sumX * SampleShare;
    m_averageY = m_sumY * SampleShare;
    m_averageZ = m_sumZ * SampleShare;
    return isPlausible(m_averageX) && isPlausible(m_averageY) && isPlausible(m_averageZ);
}

bool GyroSensor::isPlausible(float average) const
{
    return average > m_settings->gyroMin() && average < m_settings->gyroMax() && average != 0;
}
