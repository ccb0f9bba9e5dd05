// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0

/*! The names of keys in the operator's language; of one that phones rarely have, Qt's own. */
QtObject {
    readonly property var names: {
        var words = {};
        //% "Volume up"
        words[Qt.Key_VolumeUp] = qsTrId("kiv-key-volume-up");
        //% "Volume down"
        words[Qt.Key_VolumeDown] = qsTrId("kiv-key-volume-down");
        //% "Power key"
        words[Qt.Key_PowerOff] = words[Qt.Key_PowerDown] = qsTrId("kiv-key-power");
        //% "Camera key"
        words[Qt.Key_Camera] = qsTrId("kiv-key-camera");
        //% "Camera key, half pressed"
        words[Qt.Key_CameraFocus] = qsTrId("kiv-key-focus");
        //% "Home key"
        words[Qt.Key_HomePage] = qsTrId("kiv-key-home");
        //% "Back key"
        words[Qt.Key_Back] = qsTrId("kiv-key-back");
        //% "Menu key"
        words[Qt.Key_Menu] = qsTrId("kiv-key-menu");
        //% "Search key"
        words[Qt.Key_Search] = qsTrId("kiv-key-search");
        return words;
    }

    function name(code) {
        return names[code] || KivHwSettings.keyName(code);
    }
}
