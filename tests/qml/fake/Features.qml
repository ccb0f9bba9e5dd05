// SPDX-License-Identifier: BSD-3-Clause
pragma Singleton
import QtQuick 2.15
import KivFake 1.0

QtObject {
    enum TestMode { FactoryTests, RunInTests, AllTests }

    readonly property var factory: [
        "TouchSelfTest", "VerificationTouch", "VerificationMultiTouch", "VerificationLcd", "VerificationLcdBacklight",
        "VerificationLightSensor", "VerificationProxSensor", "VerificationGyroAndGSensor", "VerificationEcompass",
        "VerificationHallDetect", "VerificationFingerprint", "VerificationAudio1Mic", "VerificationAudio2Mic",
        "AudioPlayMusicLoudspeaker", "AudioPlayStereoLoudspeaker", "AudioPlayMusicReceiver",
        "VerificationHeadsetButtons", "VerificationHeadset", "AudioPlayMusicHeadset", "VerificationFrontCamera",
        "VerificationBackCamera", "VerificationWifi", "VerificationBluetooth", "VerificationZel",
        "VerificationGpsRadio", "VerificationFmRadio", "VerificationBattery", "VerificationUsbCharging",
        "VerificationLED", "VerificationButtonBacklight", "VerificationVibrator", "VerificationSim",
        "VerificationSdCard", "VerificationKey", "VerificationUsbOtg"
    ]

    function supported(feature, test) {
        if (test && Phone.unsupported.indexOf(feature + "." + test) >= 0)
            return false;
        return Phone.unsupported.indexOf(feature) < 0;
    }
    function factoryTestEnabled(test) {
        return (Phone.factoryTests || factory).indexOf(test) >= 0;
    }
    function runInTestEnabled(test) {
        return Phone.runInTests.indexOf(test) >= 0;
    }
}
