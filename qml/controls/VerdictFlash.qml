// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import "VerdictStyle.js" as Style

/*!
 * The verdict that was just given, for a moment over the next test. It takes the taps of a hurried finger, which were meant
 * for the test before, and waits until it has come to rest. A failure stays longer: it takes one tap, and who has not
 * noticed that it counted taps once more.
 */
Rectangle {
    id: flash
    objectName: "flash"

    property string code: "00"
    readonly property var look: Style.looks[code]
    /*! How often it has waited for a finger; not for ever, for a faulty panel may press without one. */
    property int waits: 0

    function show(newCode) {
        code = newCode;
        waits = 0;
        visible = true;
        end.restart();
    }

    /*! Somebody is still in a hurry. */
    function stay() {
        if (++waits <= 5)
            end.restart();
    }

    visible: false
    color: Theme[look.ink]
    Accessible.role: Accessible.AlertMessage
    Accessible.name: Style.word(code)

    MouseArea {
        anchors.fill: parent
        onPressed: flash.stay()
    }
    Column {
        anchors.centerIn: parent
        width: parent.width - 2 * Theme.margin
        spacing: Theme.margin

        Icon {
            anchors.horizontalCenter: parent.horizontalCenter
            name: flash.look.glyph
            color: Theme[flash.look.on]
            size: 12 * Theme.unit
        }
        FittedWords {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            color: Theme[flash.look.on]
            largest: Theme.display
            font.weight: Font.Bold
            text: Style.word(flash.code)
        }
    }
    Timer {
        id: end
        interval: flash.code === "02" ? 1200 : 600
        onTriggered: flash.visible = false
    }
}
