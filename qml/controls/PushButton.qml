// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtQuick.Templates 2.15 as T

/*! A button at least as large as a gloved finger. The caller gives it a width; its text wraps. */
T.AbstractButton {
    id: button

    property string glyph
    property color fill: Theme.surface
    property color ink: Theme.text
    property bool outlined: true

    implicitWidth: Math.max(Theme.target, whole.advanceWidth + icon.width + 5 * Theme.unit)
    implicitHeight: Math.max(Theme.target, label.height + 2 * Theme.unit)
    padding: Theme.gap
    opacity: enabled ? 1 : 0.45
    Accessible.name: text

    background: Rectangle {
        radius: Theme.radius
        color: button.down ? Qt.darker(button.fill, Theme.dark ? 0.8 : 1.15) : button.fill
        border.width: button.outlined ? Theme.hairline : 0
        border.color: Theme.line

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

    TextMetrics {
        id: whole
        font: label.font
        text: button.text
    }

    contentItem: Item {
        Row {
            anchors.centerIn: parent
            spacing: Theme.gap

            Icon {
                id: icon
                name: button.glyph
                color: button.ink
                size: name === "" ? 0 : 3 * Theme.unit
                anchors.verticalCenter: parent.verticalCenter
            }
            FittedWords {
                id: label
                room: button.availableWidth - icon.width - (icon.width > 0 ? Theme.gap : 0)
                width: Math.min(Math.ceil(whole.advanceWidth) + 1, room)
                text: button.text
                visible: text !== ""
                color: button.ink
                font.weight: Font.DemiBold
                horizontalAlignment: Text.AlignHCenter
                anchors.verticalCenter: parent.verticalCenter
                Accessible.ignored: true
            }
        }
    }
}
