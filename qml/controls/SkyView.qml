// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15

/*!
 * The sky from below: north is up, the rim is the horizon, the middle straight above. A satellite in use is a filled disc,
 * one that is only seen a ring. satellites: [{identifier, elevation, azimuth, inUse}], degrees; those whose place is not
 * known are left out, and the weakest of very many.
 */
Item {
    id: sky

    property var satellites: []
    property int limit: 60
    readonly property var shown: satellites.length <= limit ? satellites : satellites.slice().sort(function(a, b) {
        return b.inUse - a.inUse || b.strength - a.strength;
    }).slice(0, limit)
    readonly property real radius: Math.min(width / 2, 14 * Theme.unit) - 2.5 * Theme.unit
    readonly property real middle: radius + 2.5 * Theme.unit

    implicitHeight: 2 * middle
    height: implicitHeight
    Accessible.role: Accessible.Graphic
    //% "Places of the satellites in the sky"
    Accessible.name: qsTrId("kiv-gps-sky")

    function placed(satellite) {
        return satellite !== undefined && satellite.elevation >= 0 && satellite.elevation <= 90 && satellite.azimuth >= 0;
    }

    Item {
        id: dome
        anchors.horizontalCenter: parent.horizontalCenter
        width: 2 * sky.middle
        height: width

        Repeater {
            model: [0, 30, 60]

            Rectangle {
                anchors.centerIn: parent
                width: 2 * sky.radius * (90 - modelData) / 90
                height: width
                radius: width / 2
                color: modelData === 0 ? Theme.surface : "transparent"
                border.width: modelData === 0 ? 2 * Theme.hairline : Theme.hairline
                border.color: modelData === 0 ? Theme.muted : Theme.line
                antialiasing: true
            }
        }
        Rectangle {
            anchors.centerIn: parent
            width: 2 * sky.radius
            height: Theme.hairline
            color: Theme.line
        }
        Rectangle {
            anchors.centerIn: parent
            width: Theme.hairline
            height: 2 * sky.radius
            color: Theme.line
        }
        Repeater {
            model: [
                //: North, one or two letters
                //% "N"
                qsTrId("kiv-gps-north"),
                //: East, one or two letters
                //% "E"
                qsTrId("kiv-gps-east"),
                //: South, one or two letters
                //% "S"
                qsTrId("kiv-gps-south"),
                //: West, one or two letters
                //% "W"
                qsTrId("kiv-gps-west")
            ]

            Words {
                x: sky.middle + Math.sin(index * Math.PI / 2) * (sky.radius + 1.4 * Theme.unit) - width / 2
                y: sky.middle - Math.cos(index * Math.PI / 2) * (sky.radius + 1.4 * Theme.unit) - height / 2
                text: modelData
                color: Theme.muted
                font.pixelSize: Theme.small
                wrapMode: Text.NoWrap
                Accessible.ignored: true
            }
        }
        Repeater {
            // A number, so that a report moves the marks instead of making new ones.
            model: sky.shown.length

            Rectangle {
                id: mark
                readonly property var satellite: sky.shown[index]
                readonly property bool used: satellite !== undefined && satellite.inUse
                readonly property real distance: visible ? sky.radius * (90 - satellite.elevation) / 90 : 0
                readonly property real angle: visible ? satellite.azimuth * Math.PI / 180 : 0
                visible: sky.placed(satellite)
                x: sky.middle + distance * Math.sin(angle) - width / 2
                y: sky.middle - distance * Math.cos(angle) - height / 2
                z: used ? 1 : 0
                width: Math.max(height, number.width + Theme.unit)
                height: 3.5 * Theme.unit
                radius: height / 2
                antialiasing: true
                color: used ? Theme.pass : Theme.surface
                border.width: used ? 0 : 2 * Theme.hairline
                border.color: Theme.muted

                Words {
                    id: number
                    anchors.centerIn: parent
                    text: mark.satellite === undefined ? "" : mark.satellite.identifier
                    color: mark.used ? Theme.passInk : Theme.text
                    font.pixelSize: Theme.small
                    font.weight: mark.used ? Font.Bold : Font.Normal
                    wrapMode: Text.NoWrap
                    Accessible.ignored: true
                }
            }
        }
    }
}
