// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtQuick.Templates 2.15 as T

/*! One tap, icon over word. */
T.AbstractButton {
    id: button

    property string glyph
    property color fill: Theme.surface
    property color ink: Theme.text

    implicitHeight: column.height + 2 * Theme.unit
    padding: Math.round(Theme.unit / 2)
    opacity: enabled ? 1 : 0.4
    Accessible.name: text

    background: Rectangle {
        radius: Theme.radius
        color: button.down ? Qt.darker(button.fill, Theme.dark ? 0.8 : 1.15) : button.fill
        border.width: Theme.hairline
        border.color: button.ink

        Rectangle {
            anchors.fill: parent
            anchors.margins: -2 * Theme.hairline
            radius: parent.radius + 2 * Theme.hairline
            visible: button.visualFocus
            color: "transparent"
            border.width: 2 * Theme.hairline
            border.color: Theme.accent
        }
    }

    contentItem: Item {
        Column {
            id: column
            anchors.centerIn: parent
            width: parent.width

            Icon {
                anchors.horizontalCenter: parent.horizontalCenter
                name: button.glyph
                color: button.ink
                size: 3.5 * Theme.unit
            }
            FittedWords {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: button.text
                color: button.ink
                largest: 2 * Theme.unit
                font.weight: Font.DemiBold
                Accessible.ignored: true
            }
        }
    }
}
