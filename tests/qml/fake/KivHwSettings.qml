// SPDX-License-Identifier: BSD-3-Clause
pragma Singleton
import QtQuick 2.15
import KivFake 1.0

QtObject {
    readonly property bool backCameraFlash: true
    readonly property string ledType: "RGB"
    readonly property int modemCount: Phone.modemCount
    readonly property double defaultFmRadioFrequency: 90.0
    readonly property string audioInputSource: ""
    readonly property double gSensorMinY: -1.0
    readonly property double gSensorMaxY: 1.0
    readonly property double gSensorMinX: -1.0
    readonly property double gSensorMaxX: 1.0
    readonly property double gSensorMinZ: 8.8
    readonly property double gSensorMaxZ: 10.8
    readonly property double gyroMin: -1.3
    readonly property double gyroMax: 1.3
    readonly property string recordTopDevice: "input-back_mic"
    readonly property string recordBottomDevice: "input-builtin_mic"
    readonly property string recordTopDeviceChannel: "stereo"
    readonly property string recordBottomDeviceChannel: "stereo"
    readonly property var keys: Phone.keys
    readonly property bool batteryVoltageTest: Phone.batteryVoltageTest
    readonly property int runInTestLength: 2

    function realValue(key, fallback) { return key in Phone.settings ? Number(Phone.settings[key]) : fallback; }
    function intValue(key, fallback) { return key in Phone.settings ? Number(Phone.settings[key]) : fallback; }
    function stringValue(key) { return Phone.settings[key] || ""; }
    function keyName(key) {
        return key === Qt.Key_VolumeUp ? "Volume Up" : key === Qt.Key_VolumeDown ? "Volume Down" : "Key " + key;
    }
}
