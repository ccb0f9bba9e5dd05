// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import "Glyphs.js" as Glyphs

/*! A drawn icon of Glyphs.js, in one colour at any size. It is decoration: the text beside it says the same. */
Item {
    id: icon

    property string name
    property color color: Theme.text
    property real size: 3 * Theme.unit
    readonly property real stroke: 2 * scaling
    readonly property real scaling: size / 24

    implicitWidth: size
    implicitHeight: size
    Accessible.ignored: true

    Repeater {
        model: Glyphs.glyphs[icon.name] || []

        Rectangle {
            readonly property var part: modelData
            readonly property string kind: part[0]
            readonly property bool round: kind === "c" || kind === "d"
            readonly property real dx: kind === "l" ? (part[3] - part[1]) * icon.scaling : 0
            readonly property real dy: kind === "l" ? (part[4] - part[2]) * icon.scaling : 0
            readonly property real length: Math.sqrt(dx * dx + dy * dy)

            width: kind === "l" ? length + icon.stroke : round ? 2 * part[3] * icon.scaling : part[3] * icon.scaling
            height: kind === "l" ? icon.stroke : round ? width : part[4] * icon.scaling
            x: kind === "l" ? (part[1] * icon.scaling + dx / 2 - width / 2)
                            : (part[1] - (round ? part[3] : 0)) * icon.scaling
            y: kind === "l" ? (part[2] * icon.scaling + dy / 2 - height / 2)
                            : (part[2] - (round ? part[3] : 0)) * icon.scaling
            rotation: kind === "l" ? Math.atan2(dy, dx) * 180 / Math.PI : 0
            radius: kind === "l" ? height / 2 : round ? width / 2 : part[5] * icon.scaling
            color: kind === "r" || kind === "c" ? "transparent" : icon.color
            border.width: kind === "r" || kind === "c" ? icon.stroke : 0
            border.color: icon.color
            antialiasing: true
        }
    }
}
