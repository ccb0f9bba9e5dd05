// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtQuick.Templates 2.15 as T

/*! A large choice: an icon, a title and what it means. */
T.AbstractButton {
    id: button

    property string glyph
    property string detail
    property color tint: Theme.accent

    implicitHeight: Math.max(Theme.target, texts.height + 2 * Theme.margin)
    Accessible.name: text
    Accessible.description: detail

    background: Rectangle {
        radius: Theme.radius
        color: button.down ? Theme.pressed : Theme.surface
        border.width: button.visualFocus ? 2 * Theme.hairline : Theme.hairline
        border.color: button.visualFocus ? Theme.accent : Theme.line
    }

    contentItem: Item {
        Rectangle {
            id: disc
            anchors.left: parent.left
            anchors.leftMargin: Theme.margin
            anchors.verticalCenter: parent.verticalCenter
            width: 6 * Theme.unit
            height: width
            radius: Theme.radius
            color: button.tint

            Icon {
                anchors.centerIn: parent
                name: button.glyph
                size: 3.5 * Theme.unit
                color: Theme.accentInk
            }
        }
        Column {
            id: texts
            anchors.left: disc.right
            anchors.leftMargin: Theme.margin
            anchors.right: chevron.left
            anchors.rightMargin: Theme.gap
            anchors.verticalCenter: parent.verticalCenter
            spacing: Math.round(Theme.unit / 4)

            Words {
                width: parent.width
                text: button.text
                font.pixelSize: Theme.lead
                font.weight: Font.DemiBold
                Accessible.ignored: true
            }
            Words {
                width: parent.width
                text: button.detail
                color: Theme.muted
                font.pixelSize: Theme.small
                Accessible.ignored: true
            }
        }
        Icon {
            id: chevron
            anchors.right: parent.right
            anchors.rightMargin: Theme.gap
            anchors.verticalCenter: parent.verticalCenter
            name: "next"
            color: Theme.muted
            size: 2.5 * Theme.unit
        }
    }
}
