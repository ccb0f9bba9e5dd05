// SPDX-License-Identifier: BSD-3-Clause
#include "sensorcalibration.h"

#include "runchild.h"
#include "sensorcalibrationresolver.h"

#include <QDebug>
#include <QPointer>

namespace
{
const QString TypeArgument = QStringLiteral("--type");
const QString ShowArgument = QStringLiteral("--show");
const QString CalibrateArgument = QStringLiteral("--calibrate");
const QString RestoreArgument = QStringLiteral("--restore");
const QString ResetArgument = QStringLiteral("--reset");

/*! The first line without its newline; everything when the first line is empty. */
QString firstLineOf(QByteArray output)
{
    const int newline = output.indexOf('\n');
    if (newline > 0)
        output.truncate(newline);
    return QString::fromUtf8(output.constData()); // up to a NUL
}
}

SensorCalibration::SensorCalibration(QObject *parent) : QObject(parent)
{
}

SensorCalibration::SensorCalibration(const QString &sensor, QObject *parent) : QObject(parent)
{
    setSensor(sensor);
}

// Every signal may be answered by destroying this object.
void SensorCalibration::setSensor(const QString &sensor)
{
    if (m_sensor == sensor)
        return;
    const QPointer<SensorCalibration> alive(this);
    m_sensor = sensor;
    Q_EMIT sensorChanged();
    if (alive)
        setState(State::Unknown);
    if (alive)
        readType();
    if (alive)
        readRepresentation();
}

bool SensorCalibration::calibrate()
{
    return change(CalibrateArgument);
}

bool SensorCalibration::restore()
{
    return change(RestoreArgument);
}

bool SensorCalibration::reset()
{
    return change(ResetArgument);
}

bool SensorCalibration::change(const QString &argument)
{
    const QPointer<SensorCalibration> alive(this);
    const bool done = runHelper(argument);
    if (alive)
        readRepresentation();
    return done;
}

void SensorCalibration::readType()
{
    const QPointer<SensorCalibration> alive(this);
    QString type;
    runHelper(TypeArgument, &type);
    if (!alive || m_type == type)
        return;
    m_type = type;
    Q_EMIT typeChanged();
}

void SensorCalibration::readRepresentation()
{
    const QPointer<SensorCalibration> alive(this);
    QString representation;
    runHelper(ShowArgument, &representation);
    if (!alive || m_representation == representation)
        return;
    m_representation = representation;
    Q_EMIT representationChanged();
}

/*! Runs the helper unless it is known to fail, and remembers whether it did. */
bool SensorCalibration::runHelper(const QString &argument, QString *firstLine)
{
    if (m_state == State::Disabled)
        return false;
    if (tryHelper(argument, firstLine)) {
        setState(State::Enabled);
        return true;
    }
    qWarning() << m_sensor << " calibration disabled";
    setState(State::Disabled);
    return false;
}

bool SensorCalibration::tryHelper(const QString &argument, QString *firstLine)
{
    const QString path = SensorCalibrationResolver::helperPath(m_sensor);
    if (path.isEmpty()) {
        qDebug() << QStringLiteral("helper binary for ") + m_sensor + QStringLiteral(" does not exist");
        return false;
    }
    const ChildResult helper = runChild(path, {argument}, ChildTimeout, ChildErrors::Forwarded, ChildInput::Empty);
    if (!helper.succeeded()) {
        const QString problem = !helper.started ? QStringLiteral("did not start")
            : !helper.finished                  ? QStringLiteral("did not finish")
                                                : QStringLiteral("did error exit");
        qDebug() << QStringLiteral("helper binary ") + path + problem;
        return false;
    }
    if (firstLine)
        *firstLine = firstLineOf(helper.output);
    return true;
}

/*! From unknown to disabled nothing changes for those who only see whether the sensor is enabled. */
void SensorCalibration::setState(State state)
{
    const bool wasEnabled = enabled();
    m_state = state;
    if (enabled() != wasEnabled)
        Q_EMIT enabledChanged();
}
