// SPDX-License-Identifier: BSD-3-Clause
#include "registration.h"

#include "battery.h"
#include "factoryutils.h"
#include "gps.h"
#include "halldetect.h"
#include "headsetdetect.h"
#include "kivutils.h"
#include "mce.h"
#include "mcebuttonbacklight.h"
#include "processes.h"
#include "radiopreference.h"
#include "uptime.h"
#include "usbotg.h"
#include "zel.h"
#include "sdcardtest.h"
#include "sensorcalibration.h"
#include "sensorcalibrationresolver.h"
#include "touch.h"

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

// The engine calls a provider once and owns what it returns.
QObject *factoryUtilsProvider(QQmlEngine *, QJSEngine *)
{
    return new FactoryUtils(nullptr);
}

QObject *sensorCalibrationResolverProvider(QQmlEngine *, QJSEngine *)
{
    return new SensorCalibrationResolver(nullptr);
}
}

// The order of the rows fixes the type ids. A class that is not built yet has no row:
//  1 HeadsetDetect   2 HallDetect   3 Recorder          4 PaCmd             5 Battery      6 GyroSensor
//  7 Touch           8 SdCardTest   9 RadioPreference  10 Uptime           11 Zel         12 UsbOtg
// 13 Gps            14 KivUtils    15 Processes        16 Mce              17 PulseAudio  18 CalibrationTest
// 19 MacValidator   20 AudioRoute  21 FactoryUtils     22 Features         23 KivHwSettings
// 24 SensorCalibrationResolver     25 SensorCalibration                    26 MceButtonBacklight
void registerKivTypes()
{
    registerType<HeadsetDetect>("HeadsetDetect");
    registerType<HallDetect>("HallDetect");
    registerType<Battery>("Battery");
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
    qmlRegisterSingletonType<FactoryUtils>(Uri, Major, Minor, "FactoryUtils", factoryUtilsProvider);
    qmlRegisterSingletonType<SensorCalibrationResolver>(Uri, Major, Minor, "SensorCalibrationResolver",
                                                        sensorCalibrationResolverProvider);
    registerType<SensorCalibration>("SensorCalibration");
    qmlRegisterUncreatableType<MceButtonBacklight>(Uri, Major, Minor, "MceButtonBacklight",
                                                   QStringLiteral("MceButtonBacklight class exists for enums only"));
}
