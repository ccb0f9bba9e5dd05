// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtSensors 5.15
import Kiv 1.0
import "../controls"

/*! The phone is turned once around; each eighth of the circle must be reported. */
TestPage {
    id: page

    readonly property int sectors: 8
    property var seen: []
    property real heading: NaN

    function follow() {
        if (!isOpen)
            return;
        heading = sensor.reading.azimuth;
        azimuth.value = heading;
        // What is no number lies in no direction.
        if (!isFinite(heading))
            return;
        level.value = 100 * sensor.reading.calibrationLevel;
        var sector = Math.floor((((heading % 360) + 360) % 360) / (360 / sectors));
        if (seen.indexOf(sector) < 0)
            seen = seen.concat([sector]);
        directions.value = seen.length;
        if (seen.length === sectors)
            //% "The compass followed a whole turn."
            judge(FactoryUtils.Pass, qsTrId("kiv-ecompass-good"));
    }

    //% "Keep the phone level and turn around once. If it sticks, draw a large eight in the air with the phone first."
    instructions: qsTrId("kiv-ecompass-instructions")
    measurements: [azimuth, directions, level]
    evidence: false
    //% "Pass unlocks when the compass followed a whole turn."
    evidenceHint: qsTrId("kiv-ecompass-hint")

    onOpened: {
        //% "No compass was found."
        missing = sensor.connectedToBackend ? "" : qsTrId("kiv-ecompass-missing");
    }

    Compass {
        id: sensor
        active: page.isOpen
        alwaysOn: true
        // Before its first measurement a sensor already has a reading, of zeros.
        onReadingChanged: page.follow()
    }

    Item {
        id: rose
        width: parent.width
        height: 20 * Theme.unit
        visible: page.missing === ""
        Accessible.ignored: true

        Rectangle {
            anchors.centerIn: parent
            width: parent.height
            height: width
            radius: width / 2
            color: Theme.surface
            border.width: Theme.hairline
            border.color: Theme.line
        }
        Repeater {
            model: page.sectors

            Item {
                anchors.centerIn: parent
                width: rose.height
                height: width
                rotation: (index + 0.5) * 360 / page.sectors

                Rectangle {
                    readonly property bool done: page.seen.indexOf(index) >= 0
                    anchors.horizontalCenter: parent.horizontalCenter
                    y: Theme.unit
                    width: 4 * Theme.unit
                    height: 2 * Theme.unit
                    radius: Theme.unit / 2
                    antialiasing: true
                    color: done ? Theme.pass : "transparent"
                    border.width: 2 * Theme.hairline
                    border.color: done ? Theme.pass : Theme.muted
                }
            }
        }
        Item {
            anchors.centerIn: parent
            width: rose.height
            height: width
            rotation: -page.heading
            visible: !isNaN(page.heading)

            Rectangle {
                x: parent.width / 2 - width / 2
                y: 4 * Theme.unit
                width: Theme.unit
                height: 6 * Theme.unit
                radius: width / 2
                antialiasing: true
                color: Theme.fail
            }
            Rectangle {
                x: parent.width / 2 - width / 2
                y: 10 * Theme.unit
                width: Theme.unit
                height: 6 * Theme.unit
                radius: width / 2
                antialiasing: true
                color: Theme.muted
            }
        }
    }
    Measurement {
        id: azimuth
        //% "Heading"
        name: qsTrId("kiv-ecompass-heading")
        unit: "°"
    }
    Measurement {
        id: directions
        //% "Directions seen"
        name: qsTrId("kiv-ecompass-directions")
        value: 0
        minimum: page.sectors
        counted: true
        settled: page.verdict !== ""
    }
    Measurement {
        id: level
        //% "Calibration level"
        name: qsTrId("kiv-ecompass-level")
        unit: "%"
    }
}
