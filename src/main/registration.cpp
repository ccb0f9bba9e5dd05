// SPDX-License-Identifier: BSD-3-Clause
#include "registration.h"

#include "audioroute.h"
#include "battery.h"
#include "calibrationtest.h"
#include "factoryutils.h"
#include "features.h"
#include "gps.h"
#include "gyrosensor.h"
#include "halldetect.h"
#include "headsetdetect.h"
#include "hwsettings.h"
#include "kivutils.h"
#include "macvalidator.h"
#include "mce.h"
#include "mcebuttonbacklight.h"
#include "pacmd.h"
#include "processes.h"
#include "pulseaudio.h"
#include "radiopreference.h"
#include "recorder.h"
#include "sdcardtest.h"
#include "sensorcalibration.h"
#include "sensorcalibrationresolver.h"
#include "touch.h"
#include "uptime.h"
#include "usbotg.h"
#include "zel.h"

#include <QtQml>

namespace
{
const char Uri[] = "Kiv";
constexpr int Major = 1;
constexpr int Minor = 0;

template<typename Type>
void registerType(const char *name)
{
    qmlRegisterType<Type>(Uri, Major, Minor, name);
}

/*! The engine calls the provider once and owns what it returns. */
template<typename Type>
void registerSingleton(const char *name, QObject *(*provider)(QQmlEngine *, QJSEngine *))
{
    qmlRegisterSingletonType<Type>(Uri, Major, Minor, name, provider);
}

QObject *factoryUtilsProvider(QQmlEngine *, QJSEngine *)
{
    return new FactoryUtils(nullptr);
}

QObject *featuresProvider(QQmlEngine *, QJSEngine *)
{
    return new Features();
}

QObject *hwSettingsProvider(QQmlEngine *, QJSEngine *)
{
    return new HwSettings(nullptr);
}

QObject *sensorCalibrationResolverProvider(QQmlEngine *, QJSEngine *)
{
    return new SensorCalibrationResolver(nullptr);
}
}

// The order of the rows fixes the type ids.
void registerKivTypes()
{
    registerType<HeadsetDetect>("HeadsetDetect");
    registerType<HallDetect>("HallDetect");
    registerType<Recorder>("Recorder");
    registerType<PaCmd>("PaCmd");
    registerType<Battery>("Battery");
    registerType<GyroSensor>("GyroSensor");
    registerType<Touch>("Touch");
    registerType<SdCardTest>("SdCardTest");
    registerType<RadioPreference>("RadioPreference");
    registerType<Uptime>("Uptime");
    registerType<Zel>("Zel");
    registerType<UsbOtg>("UsbOtg");
    registerType<Gps>("Gps");
    registerType<KivUtils>("KivUtils");
    registerType<Processes>("Processes");
    registerType<Mce>("Mce");
    registerType<PulseAudio>("PulseAudio");
    registerType<CalibrationTest>("CalibrationTest");
    registerType<MacValidator>("MacValidator");
    registerType<AudioRoute>("AudioRoute");
    registerSingleton<FactoryUtils>("FactoryUtils", factoryUtilsProvider);
    registerSingleton<Features>("Features", featuresProvider);
    registerSingleton<HwSettings>("KivHwSettings", hwSettingsProvider);
    registerSingleton<SensorCalibrationResolver>("SensorCalibrationResolver", sensorCalibrationResolverProvider);
    registerType<SensorCalibration>("SensorCalibration");
    qmlRegisterUncreatableType<MceButtonBacklight>(Uri, Major, Minor, "MceButtonBacklight",
                                                   QStringLiteral("MceButtonBacklight class exists for enums only"));
}
