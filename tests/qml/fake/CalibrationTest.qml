// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import KivFake 1.0

QtObject {
    readonly property bool calibrationFlag: Number(Phone.settings["CalibrationInfo/Flag"] || 0) !== 0
    readonly property string calibrationString: Phone.settings["CalibrationInfo/String"] || ""
    readonly property string calibrationStringCriteria: Phone.settings["CalibrationCheck/String"] || ""
    readonly property string calibrationFlagCriteria: Phone.settings["CalibrationCheck/Flag"] || ""
    function isCalibrationFlagOk() { return Phone.calibrationFlagOk; }
    function isCalibrationStringOk() { return Phone.calibrationTextOk; }
}
