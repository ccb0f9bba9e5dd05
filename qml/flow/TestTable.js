// SPDX-License-Identifier: BSD-3-Clause
.pragma library

// Every test, in the order in which the factory sequence runs them. A test that has a page file is offered; one that has
// none yet is listed as not available.
//   needs:   features of which the phone must have at least one; none: every phone has it
//   kind:    "measured" decides by itself, "guided" is judged by the operator
//   seconds: how long a practised operator takes
//   timeout: seconds after which the operator is asked how to go on
//   alone:   runs without an operator, so that the run-in can repeat it
//   early:   what is slow to begin with and therefore begins with the sequence, a file of this folder
//   part:    a file that the page loads only where the system has what it imports
//   runIn:   place in the run-in sequence where that differs from this order
var rows = [
    //% "Touch panel self-test"
    { name: "TouchSelfTest", title: QT_TRID_NOOP("kiv-test-touch-self"), needs: ["TouchAuto"], page: "TouchSelfTest.qml",
      glyph: "touch", kind: "measured", seconds: 10, timeout: 60, alone: true },
    //% "Touch panel"
    { name: "VerificationTouch", title: QT_TRID_NOOP("kiv-test-touch"), needs: ["Touch"], page: "VerificationTouch.qml",
      glyph: "touch", kind: "measured", seconds: 30, timeout: 120 },
    //% "Several fingers"
    { name: "VerificationMultiTouch", title: QT_TRID_NOOP("kiv-test-multi-touch"), needs: ["Touch"], page: "VerificationMultiTouch.qml",
      glyph: "multitouch", kind: "measured", seconds: 15, timeout: 60 },
    //% "Display"
    { name: "VerificationLcd", title: QT_TRID_NOOP("kiv-test-lcd"), needs: ["LCD"], page: "VerificationLcd.qml",
      glyph: "display", kind: "guided", seconds: 25, timeout: 100, alone: true, runIn: 3 },
    //% "Display backlight"
    { name: "VerificationLcdBacklight", title: QT_TRID_NOOP("kiv-test-lcd-backlight"), needs: ["Backlight"], page: "VerificationLcdBacklight.qml",
      glyph: "light", kind: "guided", seconds: 15, timeout: 60, alone: true, runIn: 1 },
    //% "Light sensor"
    { name: "VerificationLightSensor", title: QT_TRID_NOOP("kiv-test-light"), needs: ["LightSensor"], page: "VerificationLightSensor.qml",
      glyph: "light", kind: "measured", seconds: 15, timeout: 60 },
    //% "Proximity sensor"
    { name: "VerificationProxSensor", title: QT_TRID_NOOP("kiv-test-prox"), needs: ["ProxSensor"], page: "VerificationProxSensor.qml",
      glyph: "proximity", kind: "measured", seconds: 15, timeout: 60 },
    //% "Gyroscope and accelerometer"
    { name: "VerificationGyroAndGSensor", title: QT_TRID_NOOP("kiv-test-gyro"), needs: ["GSensor", "Gyro"], page: "VerificationGyroAndGSensor.qml",
      glyph: "motion", kind: "measured", seconds: 20, timeout: 80 },
    //% "Compass"
    { name: "VerificationEcompass", title: QT_TRID_NOOP("kiv-test-ecompass"), needs: ["ECompass"], page: "VerificationEcompass.qml",
      glyph: "compass", kind: "measured", seconds: 25, timeout: 100 },
    //% "Cover magnet switch"
    { name: "VerificationHallDetect", title: QT_TRID_NOOP("kiv-test-hall"), needs: ["Hall"], page: "VerificationHallDetect.qml",
      glyph: "hall", kind: "measured", seconds: 15, timeout: 60 },
    //% "Fingerprint reader"
    { name: "VerificationFingerprint", title: QT_TRID_NOOP("kiv-test-fingerprint"), needs: ["Fingerprint"], page: "VerificationFingerprint.qml",
      glyph: "fingerprint", kind: "guided", seconds: 20, timeout: 80 },
    //% "Microphone 1"
    { name: "VerificationAudio1Mic", title: QT_TRID_NOOP("kiv-test-mic-1"), needs: ["AudioMic1"], page: "VerificationAudio1Mic.qml",
      glyph: "microphone", kind: "guided", seconds: 25, timeout: 100 },
    //% "Microphone 2"
    { name: "VerificationAudio2Mic", title: QT_TRID_NOOP("kiv-test-mic-2"), needs: ["AudioMic2"], page: "VerificationAudio2Mic.qml",
      glyph: "microphone", kind: "guided", seconds: 25, timeout: 100 },
    //% "Loudspeaker music"
    { name: "AudioPlayMusicLoudspeaker", title: QT_TRID_NOOP("kiv-test-speaker-music"), needs: ["Loudspeaker"], page: "AudioPlayMusicLoudspeaker.qml",
      glyph: "speaker", kind: "guided", seconds: 15, timeout: 60, alone: true, runIn: 4 },
    //% "Loudspeaker left and right"
    { name: "AudioPlayStereoLoudspeaker", title: QT_TRID_NOOP("kiv-test-speaker-stereo"), needs: ["Loudspeaker"], page: "AudioPlayStereoLoudspeaker.qml",
      glyph: "speaker", kind: "guided", seconds: 20, timeout: 80, alone: true },
    //% "Earpiece"
    { name: "AudioPlayMusicReceiver", title: QT_TRID_NOOP("kiv-test-receiver"), needs: ["Receiver"], page: "AudioPlayMusicReceiver.qml",
      glyph: "receiver", kind: "guided", seconds: 15, timeout: 60, alone: true },
    //% "Headset buttons"
    { name: "VerificationHeadsetButtons", title: QT_TRID_NOOP("kiv-test-headset-buttons"), needs: ["Headset"], page: "VerificationHeadsetButtons.qml",
      glyph: "headset", kind: "measured", seconds: 20, timeout: 80 },
    //% "Headset socket"
    { name: "VerificationHeadset", title: QT_TRID_NOOP("kiv-test-headset"), needs: ["Headset"], page: "VerificationHeadset.qml",
      glyph: "headset", kind: "measured", seconds: 20, timeout: 80 },
    //% "Headset music"
    { name: "AudioPlayMusicHeadset", title: QT_TRID_NOOP("kiv-test-headset-music"), needs: ["Headset"], page: "AudioPlayMusicHeadset.qml",
      glyph: "headset", kind: "guided", seconds: 20, timeout: 80 },
    //% "Front camera"
    { name: "VerificationFrontCamera", title: QT_TRID_NOOP("kiv-test-front-camera"), needs: ["FrontCamera"], page: "VerificationFrontCamera.qml",
      glyph: "camera", kind: "guided", seconds: 20, timeout: 80, early: "Pictures", alone: true },
    //% "Back camera"
    { name: "VerificationBackCamera", title: QT_TRID_NOOP("kiv-test-back-camera"), needs: ["BackCamera"], page: "VerificationBackCamera.qml",
      glyph: "camera", kind: "guided", seconds: 20, timeout: 80, early: "Pictures", alone: true, runIn: 2 },
    //% "Wi-Fi"
    { name: "VerificationWifi", title: QT_TRID_NOOP("kiv-test-wifi"), needs: ["Wifi"], page: "VerificationWifi.qml",
      glyph: "radio", kind: "measured", seconds: 20, timeout: 80, part: "NetworkInformation.qml", alone: true },
    //% "Bluetooth"
    { name: "VerificationBluetooth", title: QT_TRID_NOOP("kiv-test-bluetooth"), needs: ["Bluetooth"], page: "VerificationBluetooth.qml",
      glyph: "bluetooth", kind: "measured", seconds: 20, timeout: 80, part: "BluetoothSearch.qml", alone: true },
    //% "Smart cover"
    { name: "VerificationZel", title: QT_TRID_NOOP("kiv-test-zel"), needs: ["ZEL"], page: "VerificationZel.qml",
      glyph: "cover", kind: "measured", seconds: 30, timeout: 120 },
    //% "Satellite positioning"
    { name: "VerificationGpsRadio", title: QT_TRID_NOOP("kiv-test-gps"), needs: ["GPS"], page: "VerificationGpsRadio.qml",
      glyph: "gps", kind: "measured", seconds: 90, timeout: 360, early: "Satellites" },
    //% "FM radio"
    { name: "VerificationFmRadio", title: QT_TRID_NOOP("kiv-test-fm-radio"), needs: ["FmRadio"], page: "VerificationFmRadio.qml",
      glyph: "fm", kind: "guided", seconds: 30, timeout: 120 },
    //% "Battery"
    { name: "VerificationBattery", title: QT_TRID_NOOP("kiv-test-battery"), needs: ["Battery"], page: "VerificationBattery.qml",
      glyph: "battery", kind: "measured", seconds: 10, timeout: 60, alone: true },
    //% "USB charging"
    { name: "VerificationUsbCharging", title: QT_TRID_NOOP("kiv-test-usb-charging"), needs: ["UsbCharging"], page: "VerificationUsbCharging.qml",
      glyph: "charging", kind: "measured", seconds: 30, timeout: 120 },
    //% "Notification light"
    { name: "VerificationLED", title: QT_TRID_NOOP("kiv-test-led"), needs: ["LED"], page: "VerificationLED.qml",
      glyph: "led", kind: "guided", seconds: 35, timeout: 120 },
    //% "Key illumination"
    { name: "VerificationButtonBacklight", title: QT_TRID_NOOP("kiv-test-button-backlight"), needs: ["Backlight"], page: "VerificationButtonBacklight.qml",
      glyph: "light", kind: "guided", seconds: 15, timeout: 60 },
    //% "Vibrator"
    { name: "VerificationVibrator", title: QT_TRID_NOOP("kiv-test-vibrator"), needs: ["Vibrator"], page: "VerificationVibrator.qml",
      glyph: "vibrator", kind: "guided", seconds: 15, timeout: 60 },
    //% "SIM card"
    { name: "VerificationSim", title: QT_TRID_NOOP("kiv-test-sim"), needs: ["SIM"], page: "VerificationSim.qml",
      glyph: "sim", kind: "measured", seconds: 20, timeout: 80, part: "NetworkInformation.qml", alone: true },
    //% "Memory card"
    { name: "VerificationSdCard", title: QT_TRID_NOOP("kiv-test-sd-card"), needs: ["SDCard"], page: "VerificationSdCard.qml",
      glyph: "sdcard", kind: "measured", seconds: 20, timeout: 80, alone: true },
    //% "Keys"
    { name: "VerificationKey", title: QT_TRID_NOOP("kiv-test-key"), needs: ["Key"], page: "VerificationKey.qml",
      glyph: "key", kind: "measured", seconds: 15, timeout: 60 },
    //% "USB host"
    { name: "VerificationUsbOtg", title: QT_TRID_NOOP("kiv-test-usb-otg"), needs: ["UsbOtg"], page: "VerificationUsbOtg.qml",
      glyph: "usb", kind: "measured", seconds: 30, timeout: 120 },
    //% "Video playback"
    { name: "VerificationVideoPlayback", title: QT_TRID_NOOP("kiv-test-video"), needs: ["VideoPlayback"], page: "VerificationVideoPlayback.qml",
      glyph: "video", kind: "guided", seconds: 30, timeout: 120, early: "Pictures", alone: true, runIn: 5 },
    //% "Battery resistance"
    { name: "VerificationBatteryResistance", title: QT_TRID_NOOP("kiv-test-battery-resistance"), needs: ["Battery"], page: "VerificationBatteryResistance.qml",
      glyph: "battery", kind: "measured", seconds: 60, timeout: 240 },
    //% "Suspend"
    { name: "Suspend", title: QT_TRID_NOOP("kiv-test-suspend"), needs: ["Suspend"], page: "Suspend.qml",
      glyph: "sleep", kind: "measured", seconds: 30, timeout: 120 },
    //% "Restart"
    { name: "Reboot", title: QT_TRID_NOOP("kiv-test-reboot"), needs: ["Reboot"], page: "Reboot.qml",
      glyph: "power", kind: "guided", seconds: 60, timeout: 240 },
    //% "Phone call"
    { name: "CellularVoice", title: QT_TRID_NOOP("kiv-test-cellular-voice"), needs: ["CellularVoice"], page: "CellularVoice.qml",
      glyph: "call", kind: "guided", seconds: 60, timeout: 240 },
    //% "Mobile data"
    { name: "CellularData", title: QT_TRID_NOOP("kiv-test-cellular-data"), needs: ["CellularData"], page: "CellularData.qml",
      glyph: "data", kind: "guided", seconds: 60, timeout: 240 },
    //% "Network addresses"
    { name: "MacAddresses", title: QT_TRID_NOOP("kiv-test-mac-addresses"), needs: ["MacAddresses"], page: "MacAddresses.qml",
      glyph: "address", kind: "measured", seconds: 5, timeout: 60, alone: true },
    //% "Radio switches"
    { name: "RadioSwitches", title: QT_TRID_NOOP("kiv-test-radios"), needs: [], page: "RadioSwitches.qml",
      glyph: "radio", kind: "guided", seconds: 20, timeout: 80 },
    //% "Calibration record"
    { name: "Calibration", title: QT_TRID_NOOP("kiv-test-calibration"), needs: [], page: "Calibration.qml",
      glyph: "calibration", kind: "measured", seconds: 5, timeout: 60, alone: true },
    //% "Sensor calibration"
    { name: "SensorCalibration", title: QT_TRID_NOOP("kiv-test-sensor-calibration"), needs: [], page: "SensorCalibration.qml",
      glyph: "calibration", kind: "guided", seconds: 60, timeout: 240 },
    //% "System state"
    { name: "SystemState", title: QT_TRID_NOOP("kiv-test-system"), needs: [], page: "SystemState.qml",
      glyph: "system", kind: "guided", seconds: 20, timeout: 80 }
];

// The values of Features.TestMode.
var FactoryTests = 0;
var RunInTests = 1;
var AllTests = 2;

function row(name) {
    for (var i = 0; i < rows.length; ++i) {
        if (rows[i].name === name)
            return rows[i];
    }
    return null;
}

// The same question for a feature as a whole or, where the configuration names it, for one test of it.
function supported(row, features) {
    return row.needs.length === 0 || row.needs.some(function(feature) {
        return features.supported(feature, row.name);
    });
}

function enabled(row, mode, features) {
    if (mode === FactoryTests)
        return features.factoryTestEnabled(row.name);
    if (mode === RunInTests)
        return features.runInTestEnabled(row.name);
    return true;
}

// What a sequence consists of, in its order: [{row, state}] with state "ready", "absent" (the phone lacks the hardware)
// or "unwritten" (there is no page).
function plan(mode, features) {
    var chosen = rows.filter(function(row) { return enabled(row, mode, features); });
    if (mode === RunInTests) {
        chosen = chosen.filter(function(row) { return row.runIn; })
                       .sort(function(a, b) { return a.runIn - b.runIn; })
                       .concat(chosen.filter(function(row) { return !row.runIn; }));
    }
    return chosen.map(function(row) {
        var state = !supported(row, features) ? "absent" : row.page === "" ? "unwritten" : "ready";
        return { row: row, state: state };
    });
}
