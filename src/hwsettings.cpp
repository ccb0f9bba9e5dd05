// SPDX-License-Identifier: BSD-3-Clause
#include "hwsettings.h"

#include "settingsloader.h"

#include <QDebug>
#include <QKeySequence>

namespace
{
const QString SettingsFilter = QStringLiteral("hw-settings");
const QString KeysKey = QStringLiteral("Keys/Keys");
const QString BinaryLed = QStringLiteral("Binary");

constexpr int Hexadecimal = 16;
// Qt's range of keys that are no characters; its last code stands for an unknown key.
constexpr uint FirstKeyCode = 0x01000000;
constexpr uint LastKeyCode = 0x01fffffe;

bool isKeyCode(uint code)
{
    return code >= FirstKeyCode && code <= LastKeyCode;
}

/*! The value as a decimal integer; 0 when it is none. */
int toInteger(const QVariant &value, bool *ok)
{
    // QVariant::toInt() cuts larger numbers to their lower half and calls that a success.
    const qlonglong number = value.toLongLong(ok);
    if (number == int(number))
        return int(number);
    *ok = false;
    return 0;
}

template<typename Value>
Value converted(const QVariant &value)
{
    return value.value<Value>();
}

template<>
bool converted<bool>(const QVariant &value)
{
    return saysYes(value);
}

template<>
qint32 converted<qint32>(const QVariant &value)
{
    bool ok = false;
    return toInteger(value, &ok);
}
}

HwSettings::HwSettings(QObject *parent) : QObject(parent), m_settings(loadSettings(SettingsFilter))
{
    read(QStringLiteral("BackCamera/Flash"), &m_backCameraFlash);
    read(QStringLiteral("LED/LedType"), &m_ledType);
    bool singleColor = false;
    read(QStringLiteral("LED/SingleColor"), &singleColor);
    if (singleColor)
        m_ledType = BinaryLed;
    read(QStringLiteral("SIM/ModemCount"), &m_modemCount);

    m_defaultFmRadioFrequency = realValue(QStringLiteral("FmRadio/DefaultFrequency"), m_defaultFmRadioFrequency);
    m_gSensorMinY = realValue(QStringLiteral("GSensor/MinY"), m_gSensorMinY);
    m_gSensorMaxY = realValue(QStringLiteral("GSensor/MaxY"), m_gSensorMaxY);
    m_gSensorMinX = realValue(QStringLiteral("GSensor/MinX"), m_gSensorMinX);
    m_gSensorMaxX = realValue(QStringLiteral("GSensor/MaxX"), m_gSensorMaxX);
    m_gSensorMinZ = realValue(QStringLiteral("GSensor/MinZ"), m_gSensorMinZ);
    m_gSensorMaxZ = realValue(QStringLiteral("GSensor/MaxZ"), m_gSensorMaxZ);
    m_gyroMin = realValue(QStringLiteral("Gyro/Min"), m_gyroMin);
    m_gyroMax = realValue(QStringLiteral("Gyro/Max"), m_gyroMax);

    readKeys();
    read(QStringLiteral("Battery/VoltageTest"), &m_batteryVoltageTest);
    read(QStringLiteral("Audio/InputSource"), &m_audioInputSource);
    read(QStringLiteral("Audio/RecordTopDevice"), &m_recordTopDevice);
    read(QStringLiteral("Audio/RecordBottomDevice"), &m_recordBottomDevice);
    read(QStringLiteral("Audio/RecordTopDeviceChannel"), &m_recordTopDeviceChannel);
    read(QStringLiteral("Audio/RecordBottomDeviceChannel"), &m_recordBottomDeviceChannel);
    read(QStringLiteral("RunInTest/Length"), &m_runInTestLength);
}

float HwSettings::realValue(const QString &key, float defaultValue) const
{
    if (!m_settings || !m_settings->contains(key))
        return defaultValue;
    bool ok = false;
    const float value = m_settings->value(key).toFloat(&ok);
    qDebug() << key << "variable found, value:" << value;
    if (!ok)
        return defaultValue;
    qDebug() << key << "variable valid:" << value;
    return value;
}

int HwSettings::intValue(const QString &key, int defaultValue) const
{
    if (!m_settings || !m_settings->contains(key))
        return defaultValue;
    bool ok = false;
    const int value = toInteger(m_settings->value(key), &ok);
    qDebug() << key << "variable found, value:" << value;
    if (!ok)
        return defaultValue;
    qDebug() << key << "variable valid:" << value;
    return value;
}

QString HwSettings::stringValue(const QString &key) const
{
    if (!m_settings || !m_settings->contains(key))
        return QString();
    return m_settings->value(key).toString();
}

QString HwSettings::keyName(Qt::Key key) const
{
    return QKeySequence(key).toString(QKeySequence::PortableText);
}

bool HwSettings::backCameraFlash() const
{
    return m_backCameraFlash;
}

QString HwSettings::ledType() const
{
    return m_ledType;
}

int HwSettings::modemCount() const
{
    return m_modemCount;
}

double HwSettings::defaultFmRadioFrequency() const
{
    return m_defaultFmRadioFrequency;
}

QString HwSettings::audioInputSource() const
{
    return m_audioInputSource;
}

double HwSettings::gSensorMinY() const
{
    return m_gSensorMinY;
}

double HwSettings::gSensorMaxY() const
{
    return m_gSensorMaxY;
}

double HwSettings::gSensorMinX() const
{
    return m_gSensorMinX;
}

double HwSettings::gSensorMaxX() const
{
    return m_gSensorMaxX;
}

double HwSettings::gSensorMinZ() const
{
    return m_gSensorMinZ;
}

double HwSettings::gSensorMaxZ() const
{
    return m_gSensorMaxZ;
}

double HwSettings::gyroMin() const
{
    return m_gyroMin;
}

double HwSettings::gyroMax() const
{
    return m_gyroMax;
}

QString HwSettings::recordTopDevice() const
{
    return m_recordTopDevice;
}

QString HwSettings::recordBottomDevice() const
{
    return m_recordBottomDevice;
}

QString HwSettings::recordTopDeviceChannel() const
{
    return m_recordTopDeviceChannel;
}

QString HwSettings::recordBottomDeviceChannel() const
{
    return m_recordBottomDeviceChannel;
}

QVariantList HwSettings::keys() const
{
    return m_keys;
}

bool HwSettings::batteryVoltageTest() const
{
    return m_batteryVoltageTest;
}

int HwSettings::runInTestLength() const
{
    return m_runInTestLength;
}

template<typename Value>
void HwSettings::read(const QString &key, Value *value)
{
    if (!m_settings || !m_settings->contains(key))
        return;
    *value = converted<Value>(m_settings->value(key));
    qDebug() << key << "variable found, value:" << *value;
}

void HwSettings::readKeys()
{
    QStringList elements;
    if (m_settings && m_settings->contains(KeysKey)) {
        const QVariant value = m_settings->value(KeysKey);
        // Qt makes one empty element of a value that holds nothing.
        if (value != QString())
            elements = value.toStringList();
        qDebug() << KeysKey << "variable found, value:" << elements;
    }
    if (elements.isEmpty()) {
        m_keys = {int(Qt::Key_VolumeUp), int(Qt::Key_VolumeDown)};
        return;
    }
    for (const QString &element : qAsConst(elements)) {
        bool ok = false;
        const uint code = element.toUInt(&ok, Hexadecimal);
        if (ok && isKeyCode(code))
            m_keys.append(int(code));
        else
            qWarning() << "Invalid key code defined in hwsettings.ini Keys settings array:" << element;
    }
}
