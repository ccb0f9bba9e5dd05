// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtTest 1.15
import Kiv 1.0
import KivFake 1.0
import "../../../qml/flow/TestTable.js" as TestTable

TestCase {
    name: "TestTable"

    readonly property var features: [
        "Battery", "Touch", "Wifi", "Bluetooth", "UsbCharging", "BackCamera", "BackCameraFlash", "FrontCamera",
        "FrontCameraFlash", "Headset", "Key", "LCD", "Backlight", "LED", "Loudspeaker", "Receiver", "ECompass",
        "GSensor", "Gyro", "LightSensor", "ProxSensor", "SDCard", "AudioMic1", "AudioMic2", "UsbOtg", "Vibrator",
        "Fingerprint", "TouchAuto", "ZEL", "Hall", "SIM", "CellularVoice", "CellularData", "FmRadio", "GPS",
        "VideoPlayback", "Suspend", "Reboot", "MacAddresses"
    ]

    function init() {
        Phone.reset();
    }

    function names(mode) {
        return TestTable.plan(mode, Features).map(function(entry) { return entry.row.name; });
    }

    function test_factorySequenceIsTheDefaultOne() {
        compare(names(TestTable.FactoryTests), Features.factory);
    }

    function test_runInSequenceHasItsOwnOrder() {
        compare(names(TestTable.RunInTests), ["VerificationLcdBacklight", "VerificationBackCamera", "VerificationLcd",
                                              "AudioPlayMusicLoudspeaker", "VerificationVideoPlayback"]);
    }

    function test_configuredTestsJoinTheirSequence() {
        Phone.runInTests = ["VerificationBattery", "VerificationLcd"];
        compare(names(TestTable.RunInTests), ["VerificationLcd", "VerificationBattery"]);
        Phone.factoryTests = ["Reboot", "VerificationKey"];
        compare(names(TestTable.FactoryTests), ["VerificationKey", "Reboot"]);
    }

    function test_allTestsHaveEveryName() {
        var all = names(TestTable.AllTests);
        Features.factory.concat(Phone.runInTests, ["VerificationBatteryResistance", "Suspend", "Reboot", "CellularVoice",
                                                   "CellularData", "MacAddresses", "Calibration"])
                .forEach(function(name) { verify(all.indexOf(name) >= 0, name); });
        all.forEach(function(name, index) { compare(all.indexOf(name), index, name + " is there once"); });
    }

    function test_rowsAreComplete() {
        TestTable.rows.forEach(function(row) {
            verify(qsTrId(row.title) !== row.title, row.name + " has a title");
            verify(row.kind === "measured" || row.kind === "guided", row.name);
            verify(row.seconds > 0, row.name);
            verify(row.page === "" || row.page === row.name + ".qml", row.name);
            row.needs.forEach(function(feature) { verify(features.indexOf(feature) >= 0, feature); });
        });
    }

    function test_whatThePhoneLacksIsAbsent() {
        Phone.unsupported = ["Hall", "Battery.VerificationBattery", "Gyro"];
        var states = {};
        TestTable.plan(TestTable.FactoryTests, Features).forEach(function(entry) { states[entry.row.name] = entry.state; });
        compare(states.VerificationHallDetect, "absent");
        compare(states.VerificationBattery, "absent");
        compare(states.VerificationUsbCharging, "ready");
        compare(states.VerificationGyroAndGSensor, "ready", "the accelerometer is left");
        Phone.unsupported = ["GSensor", "Gyro"];
        TestTable.plan(TestTable.FactoryTests, Features).forEach(function(entry) { states[entry.row.name] = entry.state; });
        compare(states.VerificationGyroAndGSensor, "absent");
    }

    function test_aTestWithoutAPageIsNotHidden() {
        var row = { name: "X", title: "", needs: [], page: "", glyph: "", kind: "guided", seconds: 1 };
        TestTable.rows.push(row);
        var found = TestTable.plan(TestTable.AllTests, Features).filter(function(entry) { return entry.row === row; });
        TestTable.rows.pop();
        compare(found.length, 1);
        compare(found[0].state, "unwritten");
    }
}
