// SPDX-License-Identifier: BSD-3-Clause
#ifndef SENSORCALIBRATION_H
#define SENSORCALIBRATION_H

#include <QObject>
#include <QString>

/*!
 * Calibrates one sensor by running the platform's helper program for it, and shows what that tells.
 *
 * Every operation blocks until the helper ends, or has been given up after 30 seconds. The first helper that fails
 * disables the sensor: no further one runs until another sensor is set.
 */
class SensorCalibration : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString sensor READ sensor WRITE setSensor NOTIFY sensorChanged)
    Q_PROPERTY(bool enabled READ enabled NOTIFY enabledChanged)
    Q_PROPERTY(QString type READ type NOTIFY typeChanged)
    Q_PROPERTY(QString representation READ representation NOTIFY representationChanged)

public:
    explicit SensorCalibration(QObject *parent = nullptr);
    /*! Begins with the sensor of that name. */
    explicit SensorCalibration(const QString &sensor, QObject *parent = nullptr);

    QString sensor() const { return m_sensor; }
    /*! Also reads the type and the representation of the new sensor. */
    void setSensor(const QString &sensor);

    /*! Whether a helper has run for this sensor and none has failed. */
    bool enabled() const { return m_state == State::Enabled; }
    /*! The kind of calibration, the first line of "calibrate_<sensor> --type"; empty when that failed. */
    QString type() const { return m_type; }
    /*! The values in force, the first line of "calibrate_<sensor> --show"; empty when that failed. */
    QString representation() const { return m_representation; }

    /*! Measures and stores new values, then reads the representation anew. Whether the helper did so. */
    Q_INVOKABLE bool calibrate();
    /*! Puts stored values into force, otherwise as calibrate(). */
    Q_INVOKABLE bool restore();
    /*! Goes back to the values of the factory, otherwise as calibrate(). */
    Q_INVOKABLE bool reset();

Q_SIGNALS:
    void enabledChanged();
    void sensorChanged();
    void typeChanged();
    void representationChanged();

private:
    enum class State
    {
        Unknown,
        Disabled,
        Enabled,
    };

    bool runHelper(const QString &argument, QString *firstLine = nullptr);
    bool tryHelper(const QString &argument, QString *firstLine);
    bool change(const QString &argument);
    void setState(State state);
    void readType();
    void readRepresentation();

    State m_state = State::Unknown;
    QString m_sensor;
    QString m_type;
    QString m_representation;
};

#endif
