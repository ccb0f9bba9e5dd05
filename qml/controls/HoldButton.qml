// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtQuick.Templates 2.15 as T

/*!
 * A button that acts when it has been held for half a second, so that nobody taps it by habit. While it cannot be pressed
 * it is an empty frame, with a text that can still be read.
 */
T.DelayButton {
    id: button

    property string glyph
    property color fill: Theme.pass
    property color ink: Theme.passInk
    readonly property color shownInk: enabled ? ink : Theme.muted
    /*! Tapped too shortly. */
    signal tooShort()

    implicitHeight: column.height + 2 * Theme.unit
    padding: Math.round(Theme.unit / 2)
    delay: 500
    Accessible.name: text
    // A screen reader's press has no length.
    Accessible.onPressAction: activated()

    onReleased: {
        if (progress < 1)
            tooShort();
    }

    transition: Transition {
        NumberAnimation {
            duration: button.delay * (button.pressed ? 1.0 - button.progress : 0.3 * button.progress)
        }
    }

    background: Rectangle {
        radius: Theme.radius
        color: button.enabled ? button.fill : "transparent"
        border.width: Theme.hairline
        border.color: button.enabled ? button.ink : Theme.line

        Rectangle {
            anchors.left: parent.left
            width: parent.width * button.progress
            height: parent.height
            radius: parent.radius
            color: button.ink
            opacity: 0.35
        }
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
                color: button.shownInk
                size: 3.5 * Theme.unit
            }
            FittedWords {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: button.text
                color: button.shownInk
                largest: 2 * Theme.unit
                font.weight: Font.DemiBold
                Accessible.ignored: true
            }
        }
    }
}
