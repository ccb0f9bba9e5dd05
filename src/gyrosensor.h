// SPDX-License-Identifier: BSD-3-Clause
#ifndef GYROSENSOR_H
#define GYROSENSOR_H

#include <QObject>

class HwSettings;
class QGyroscope;

/*!
 * Checks that the gyroscope of a phone at rest delivers plausible values: the mean of 32 samples, which the user of
 * this class takes at its own pace, must lie between the limits of the hardware settings on every axis.
 *
 * The sums are never cleared, so every check needs an object of its own. Without a gyroscope all means stay 0.
 */
class GyroSensor : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool getResult READ getResult)
    Q_PROPERTY(float getXResult READ getXResult)
    Q_PROPERTY(float getYResult READ getYResult)
    Q_PROPERTY(float getZResult READ getZResult)

public:
    explicit GyroSensor(QObject *parent = nullptr);
    ~GyroSensor() override;

    /*! Works out the means and whether they are plausible; exactly 0 is not, for a real sensor always moves a little.
     */
    bool getResult();
    /*! Degrees per second around the x axis, as the last getResult() worked it out; 0 before. */
    float getXResult() const { return m_averageX; }
    /*! The same around the y axis. */
    float getYResult() const { return m_averageY; }
    /*! The same around the z axis. */
    float getZResult() const { return m_averageZ; }

public Q_SLOTS:
    /*! Takes one sample; none where the sensor has not delivered a reading yet. */
    void updateGyroSensor();

private:
    bool isPlausible(float average) const;

    HwSettings *m_settings;
    QGyroscope *m_gyroscope;
    float m_sumX = 0;
    float m_sumY = 0;
    float m_sumZ = 0;
    float m_averageX = 0;
    float m_averageY = 0;
    float m_averageZ = 0;
};

#endif
