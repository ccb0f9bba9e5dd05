// SPDX-License-Identifier: BSD-3-Clause
#include "features.h"

#include "dbuscall.h"
#include "runchild.h"
#include "settingsloader.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDebug>
#include <QFeedbackEffect>
#include <QFileInfo>
#include <QThread>

namespace
{
using Table = QMap<QString, bool>;

const QString BatteryFeature = QStringLiteral("Battery");
const QString BatteryResistanceTest = QStringLiteral("VerificationBatteryResistance");

const QString BaseFeatures[] = {
    BatteryFeature,
    QStringLiteral("Touch"),
    QStringLiteral("Wifi"),
    QStringLiteral("Bluetooth"),
    QStringLiteral("UsbCharging"),
    QStringLiteral("BackCamera"),
    QStringLiteral("BackCameraFlash"),
    QStringLiteral("FrontCamera"),
    QStringLiteral("FrontCameraFlash"),
    QStringLiteral("Headset"),
    QStringLiteral("Key"),
    QStringLiteral("LCD"),
    QStringLiteral("Backlight"),
    QStringLiteral("LED"),
    QStringLiteral("Loudspeaker"),
    QStringLiteral("Receiver"),
    QStringLiteral("ECompass"),
    QStringLiteral("GSensor"),
    QStringLiteral("Gyro"),
    QStringLiteral("LightSensor"),
    QStringLiteral("ProxSensor"),
    QStringLiteral("SDCard"),
    QStringLiteral("AudioMic1"),
    QStringLiteral("AudioMic2"),
};

const QString CellularFeatures[] = {
    QStringLiteral("SIM"),
    QStringLiteral("CellularVoice"),
    QStringLiteral("CellularData"),
};

// What every phone with this system can do, whatever the settings say.
const QString SystemFeatures[] = {
    QStringLiteral("VideoPlayback"),
    QStringLiteral("Suspend"),
    QStringLiteral("Reboot"),
    QStringLiteral("MacAddresses"),
};

const QString DefaultFactoryTests[] = {
    QStringLiteral("TouchSelfTest"),
    QStringLiteral("VerificationTouch"),
    QStringLiteral("VerificationMultiTouch"),
    QStringLiteral("VerificationLcd"),
    QStringLiteral("VerificationLcdBacklight"),
    QStringLiteral("VerificationLightSensor"),
    QStringLiteral("VerificationProxSensor"),
    QStringLiteral("VerificationGyroAndGSensor"),
    QStringLiteral("VerificationEcompass"),
    QStringLiteral("VerificationHallDetect"),
    QStringLiteral("VerificationFingerprint"),
    QStringLiteral("VerificationAudio1Mic"),
    QStringLiteral("VerificationAudio2Mic"),
    QStringLiteral("AudioPlayMusicLoudspeaker"),
    QStringLiteral("AudioPlayStereoLoudspeaker"),
    QStringLiteral("AudioPlayMusicReceiver"),
    QStringLiteral("VerificationHeadsetButtons"),
    QStringLiteral("VerificationHeadset"),
    QStringLiteral("AudioPlayMusicHeadset"),
    QStringLiteral("VerificationFrontCamera"),
    QStringLiteral("VerificationBackCamera"),
    QStringLiteral("VerificationWifi"),
    QStringLiteral("VerificationBluetooth"),
    QStringLiteral("VerificationZel"),
    QStringLiteral("VerificationGpsRadio"),
    QStringLiteral("VerificationFmRadio"),
    QStringLiteral("VerificationBattery"),
    QStringLiteral("VerificationUsbCharging"),
    QStringLiteral("VerificationLED"),
    QStringLiteral("VerificationButtonBacklight"),
    QStringLiteral("VerificationVibrator"),
    QStringLiteral("VerificationSim"),
    QStringLiteral("VerificationSdCard"),
    QStringLiteral("VerificationKey"),
    QStringLiteral("VerificationUsbOtg"),
};

const QString DefaultRunInTests[] = {
    QStringLiteral("VerificationLcdBacklight"),  QStringLiteral("VerificationBackCamera"),
    QStringLiteral("VerificationLcd"),           QStringLiteral("AudioPlayMusicLoudspeaker"),
    QStringLiteral("VerificationVideoPlayback"),
};

const QString SmartCoverDaemon = QStringLiteral("/usr/lib/zeld");
const QString TouchSelfTestFile = QStringLiteral("/proc/touchinfo/tp_chip");
const QString HallSensorFile = QStringLiteral("/proc/irq/396/sensor_hall");
const QString FingerprintState = QStringLiteral("/var/lib/kestrane-fpd");

const QString OfonoService = QStringLiteral("org.ofono");
const QString OfonoPath = QStringLiteral("/");
const QString OfonoManager = QStringLiteral("org.ofono.Manager");
constexpr unsigned long PollMicroseconds = 500;
const QString ModemListSignature = QStringLiteral("a(oa{sv})");

QString qualifiedName(const QString &feature, const QString &test)
{
    return feature + QLatin1Char('.') + test;
}

template<size_t Size>
void enable(const QString (&names)[Size], Table *table)
{
    for (const QString &name : names)
        table->insert(name, true);
}

/*! Takes the group's values over into the table. False when no file has anything in the group. */
bool readTable(const QString &filter, const QString &group, Table *table)
{
    const std::unique_ptr<QSettings> settings = loadSettings(filter);
    if (!settings)
        return false;
    settings->beginGroup(group);
    const QStringList names = settings->childKeys();
    for (const QString &name : names)
        table->insert(name, saysYes(settings->value(name)));
    return !names.isEmpty();
}

bool isFile(const QString &path)
{
    return QFileInfo(path).isFile();
}

bool hasFmRadio()
{
    // A dry run: whether there is a module to load.
    return runChild(QStringLiteral("modprobe"), {QStringLiteral("-n"), QStringLiteral("radio-iris-transport")})
        .succeeded();
}

/*! The reply or error; of type InvalidMessage when the bus went away before there was one. */
QDBusMessage callAndWait(const QDBusConnection &bus, const QDBusMessage &message)
{
    const QDBusPendingCall call = callRunningService(bus, message);
    // Qt's own blocking call never returns when the bus ends meanwhile. All else ends with the default timeout.
    while (!call.isFinished() && bus.isConnected())
        QThread::usleep(PollMicroseconds);
    return call.reply();
}

/*! Whether nobody got the call: an error of the bus or of the connection to it, not of a service. */
bool isAbsence(const QDBusMessage &reply)
{
    if (reply.service().startsWith(QLatin1Char(':')))
        return false;
    const QDBusError::ErrorType error = QDBusError(reply).type();
    return error == QDBusError::Disconnected || error == QDBusError::ServiceUnknown
        || reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.NameHasNoOwner");
}

bool hasModem()
{
    const QDBusMessage reply =
        callAndWait(QDBusConnection::systemBus(),
                    QDBusMessage::createMethodCall(OfonoService, OfonoPath, OfonoManager, QStringLiteral("GetModems")));
    if (isAbsence(reply)) {
        qDebug() << "No ofono interface registered";
        return false;
    }
    // Qt crashes on some replies that are taken apart as something else than they are.
    if (reply.type() != QDBusMessage::ReplyMessage || !reply.signature().startsWith(ModemListSignature)) {
        qDebug() << "Failed to GetModems";
        return false;
    }
    const auto modems = reply.arguments().constFirst().value<QDBusArgument>();
    modems.beginArray();
    const bool empty = modems.atEnd();
    modems.endArray();
    if (empty)
        qDebug() << "No modems found";
    return !empty;
}

bool isGpsModule(const QString &variant)
{
    return isFile(QStringLiteral("/system/lib/hw/%1.%2.so").arg(QStringLiteral("gps"), variant));
}

/*! Looks for the library in the order in which Android's loader does. */
bool hasGps()
{
    const QString properties[] = {
        QStringLiteral("ro.hardware"),
        QStringLiteral("ro.product.board"),
        QStringLiteral("ro.board.platform"),
        QStringLiteral("ro.arch"),
    };
    for (const QString &property : properties) {
        const QString variant =
            QString::fromLocal8Bit(runChild(QStringLiteral("getprop"), {property}).output).trimmed();
        if (!variant.isEmpty() && isGpsModule(variant))
            return true;
    }
    return isGpsModule(QStringLiteral("default"));
}
}

Features::Features(QObject *parent) : QObject(parent)
{
    // Only for phones whose settings say so.
    m_features.insert(qualifiedName(BatteryFeature, BatteryResistanceTest), false);
    m_factoryTests.insert(BatteryResistanceTest, false);
    m_runInTests.insert(BatteryResistanceTest, false);

    if (!readTable(QStringLiteral("hw-settings"), QStringLiteral("features"), &m_features))
        detect();
    enable(SystemFeatures, &m_features);

    if (!readTable(QStringLiteral("factory-tests"), QStringLiteral("tests"), &m_factoryTests))
        enable(DefaultFactoryTests, &m_factoryTests);
    if (!readTable(QStringLiteral("run-in-tests"), QStringLiteral("tests"), &m_runInTests))
        enable(DefaultRunInTests, &m_runInTests);

    qDebug() << "Supported hardware features:" << m_features;
    qDebug() << "Enabled factory tests:" << m_factoryTests;
    qDebug() << "Enabled run-in tests:" << m_runInTests;
}

bool Features::supported(const QString &feature, const QString &test) const
{
    if (!test.isEmpty()) {
        const auto qualified = m_features.constFind(qualifiedName(feature, test));
        if (qualified != m_features.constEnd())
            return *qualified;
    }
    return m_features.value(feature, false);
}

bool Features::factoryTestEnabled(const QString &test) const
{
    return m_factoryTests.value(test, false);
}

bool Features::runInTestEnabled(const QString &feature) const
{
    return m_runInTests.value(feature, false);
}

void Features::detect()
{
    enable(BaseFeatures, &m_features);
    const auto enableIf = [this](bool found, const QString &feature) {
        if (found)
            m_features.insert(feature, true);
    };
    enableIf(hasFmRadio(), QStringLiteral("FmRadio"));
    enableIf(isFile(SmartCoverDaemon), QStringLiteral("ZEL"));
    if (hasModem())
        enable(CellularFeatures, &m_features);
    enableIf(QFeedbackEffect::supportsThemeEffect(), QStringLiteral("Vibrator"));
    enableIf(isFile(TouchSelfTestFile), QStringLiteral("TouchAuto"));
    m_features.insert(QStringLiteral("UsbOtg"), true);
    enableIf(isFile(HallSensorFile), QStringLiteral("Hall"));
    enableIf(QFileInfo::exists(FingerprintState), QStringLiteral("Fingerprint"));
    enableIf(hasGps(), QStringLiteral("GPS"));
}
