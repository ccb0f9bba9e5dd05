// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import KivFake 1.0

QtObject {
    property string sensor
    property bool enabled: sensor !== ""
    readonly property string type: "bias"
    property string representation: "0.012 -0.004 0.031"
    function run(what) {
        Phone.note(what + " " + sensor);
        enabled = Phone.calibrationWorks;
        representation = Phone.calibrationWorks ? "0 0 0" : "";
        return Phone.calibrationWorks;
    }
    function calibrate() { return run("calibrate"); }
    function restore() { return run("restore"); }
    function reset() { return run("reset"); }
}
