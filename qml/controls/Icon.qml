// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import "Glyphs.js" as Glyphs

/*! A drawn icon of Glyphs.js, in one colour at any size. It is decoration: the text beside it says the same. */
Item {
    id: icon

    property string name
    property color color: Theme.text
    property real size: 3 * Theme.unit

    implicitWidth: size
    implicitHeight: size
    Accessible.ignored: true
    // What points the way points the other way where reading begins at the right.
    transform: Scale {
        origin.x: icon.size / 2
        xScale: Theme.mirrored && (icon.name === "back" || icon.name === "next") ? -1 : 1
    }

    Repeater {
        model: Glyphs.strokes(icon.name, icon.size)

        Rectangle {
            x: modelData.x
            y: modelData.y
            width: modelData.width
            height: modelData.height
            radius: modelData.radius
            rotation: modelData.rotation
            color: modelData.hollow ? "transparent" : icon.color
            border.width: modelData.hollow
            border.color: icon.color
            antialiasing: true
        }
    }
}
