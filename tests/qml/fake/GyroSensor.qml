// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import KivFake 1.0

QtObject {
    property int samples: 0
    readonly property bool getResult: Phone.rotationGood && samples === 32
    readonly property double getXResult: Phone.rotation[0] * samples / 32
    readonly property double getYResult: Phone.rotation[1] * samples / 32
    readonly property double getZResult: Phone.rotation[2] * samples / 32
    function updateGyroSensor() { ++samples; }
}
