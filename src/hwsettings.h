// SPDX-License-Identifier: BSD-3-Clause
#ifndef HWSETTINGS_H
#define HWSETTINGS_H

#include <QObject>
#include <QSettings>
#include <QString>
#include <QVariantList>

#include <memory>

/*!
 * What the tests need to know about this model of phone and cannot ask its hardware.
 *
 * Source: the files "*hw-settings*.ini" of the device adaptation (see loadSettings()), read once, at construction. The
 * key that each value comes from stands with its accessor, and the value that holds when no file has the key. A value
 * that does not convert reads as false, 0 or empty; real numbers take their default then. Every value found is logged
 * at debug level.
 */
class HwSettings : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool backCameraFlash READ backCameraFlash CONSTANT)
    Q_PROPERTY(QString ledType READ ledType CONSTANT)
    Q_PROPERTY(int modemCount READ modemCount CONSTANT)
    Q_PROPERTY(double defaultFmRadioFrequency READ defaultFmRadioFrequency CONSTANT)
    Q_PROPERTY(QString audioInputSource READ audioInputSource CONSTANT)
    Q_PROPERTY(double gSensorMinY READ gSensorMinY CONSTANT)
    Q_PROPERTY(double gSensorMaxY READ gSensorMaxY CONSTANT)
    Q_PROPERTY(double gSensorMinX READ gSensorMinX CONSTANT)
    Q_PROPERTY(double gSensorMaxX READ gSensorMaxX CONSTANT)
    Q_PROPERTY(double gSensorMinZ READ gSensorMinZ CONSTANT)
    Q_PROPERTY(double gSensorMaxZ READ gSensorMaxZ CONSTANT)
    Q_PROPERTY(double gyroMin READ gyroMin CONSTANT)
    Q_PROPERTY(double gyroMax READ gyroMax CONSTANT)
    Q_PROPERTY(QString recordTopDevice READ recordTopDevice CONSTANT)
    Q_PROPERTY(QString recordBottomDevice READ recordBottomDevice CONSTANT)
    Q_PROPERTY(QString recordTopDeviceChannel READ recordTopDeviceChannel CONSTANT)
    Q_PROPERTY(QString recordBottomDeviceChannel READ recordBottomDeviceChannel CONSTANT)
    Q_PROPERTY(QVariantList keys READ keys CONSTANT)
    Q_PROPERTY(bool batteryVoltageTest READ batteryVoltageTest CONSTANT)
    Q_PROPERTY(int runInTestLength READ runInTestLength CONSTANT)

public:
    explicit HwSettings(QObject *parent = nullptr);

    /*! Any key's value as a real number; the default when it is absent, or not a number that a float can hold. */
    Q_INVOKABLE float realValue(const QString &key, float defaultValue) const;
    /*! Any key's value as a decimal integer; the default when it is absent or none. */
    Q_INVOKABLE int intValue(const QString &key, int defaultValue) const;
    /*! Any key's value as text; empty when it is absent. */
    Q_INVOKABLE QString stringValue(const QString &key) const;
    /*! What to call a hardware key, such as "Volume Up"; the same in every language. */
    Q_INVOKABLE QString keyName(Qt::Key key) const;

public Q_SLOTS:
    /*! BackCamera/Flash, else true. */
    bool backCameraFlash() const;
    /*! LED/LedType, else "RGB"; "Binary" for an LED that can only be on or off, as LED/SingleColor says. */
    QString ledType() const;
    /*! SIM/ModemCount, else 1. */
    int modemCount() const;
    /*! FmRadio/DefaultFrequency in MHz, else 90. */
    double defaultFmRadioFrequency() const;
    /*! Audio/InputSource, else empty. */
    QString audioInputSource() const;
    /*! GSensor/MinY in m/s² of a phone lying flat, else -1. */
    double gSensorMinY() const;
    /*! GSensor/MaxY in m/s², else 1. */
    double gSensorMaxY() const;
    /*! GSensor/MinX in m/s², else -1. */
    double gSensorMinX() const;
    /*! GSensor/MaxX in m/s², else 1. */
    double gSensorMaxX() const;
    /*! GSensor/MinZ in m/s², else 8.8. */
    double gSensorMinZ() const;
    /*! GSensor/MaxZ in m/s², else 10.8. */
    double gSensorMaxZ() const;
    /*! Gyro/Min, else -1.3. */
    double gyroMin() const;
    /*! Gyro/Max, else 1.3. */
    double gyroMax() const;
    /*! Audio/RecordTopDevice, else "input-back_mic". */
    QString recordTopDevice() const;
    /*! Audio/RecordBottomDevice, else "input-builtin_mic". */
    QString recordBottomDevice() const;
    /*! Audio/RecordTopDeviceChannel, else "stereo". */
    QString recordTopDeviceChannel() const;
    /*! Audio/RecordBottomDeviceChannel, else "stereo". */
    QString recordBottomDeviceChannel() const;
    /*! Keys/Keys: Qt key codes of the hardware keys to press, in the file hexadecimal and separated by commas; volume
     *  up and volume down when the file names none. Codes of other keys are left out, even if none remains. */
    QVariantList keys() const;
    /*! Battery/VoltageTest, else true. */
    bool batteryVoltageTest() const;
    /*! RunInTest/Length, else 2. */
    int runInTestLength() const;

private:
    template<typename Value>
    void read(const QString &key, Value *value);
    void readKeys();

    bool m_backCameraFlash = true;
    QString m_ledType = QStringLiteral("RGB");
    qint32 m_modemCount = 1;
    float m_defaultFmRadioFrequency = 90.0F;
    float m_gSensorMinY = -1.0F;
    float m_gSensorMaxY = 1.0F;
    float m_gSensorMinX = -1.0F;
    float m_gSensorMaxX = 1.0F;
    float m_gSensorMinZ = 8.8F;
    float m_gSensorMaxZ = 10.8F;
    float m_gyroMin = -1.3F;
    float m_gyroMax = 1.3F;
    QVariantList m_keys;
    bool m_batteryVoltageTest = true;
    QString m_audioInputSource;
    QString m_recordTopDevice = QStringLiteral("input-back_mic");
    QString m_recordBottomDevice = QStringLiteral("input-builtin_mic");
    QString m_recordTopDeviceChannel = QStringLiteral("stereo");
    QString m_recordBottomDeviceChannel = QStringLiteral("stereo");
    qint32 m_runInTestLength = 2;
    std::unique_ptr<QSettings> m_settings; // null without any file
};

#endif
