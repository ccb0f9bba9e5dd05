// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15

/*! What the operator does one after the other, and how far he is: [{text, done}]. The first that is not done is due. */
Column {
    id: list

    property var steps: []
    /*! Only the due one is shown, where answers need the room. */
    property bool brief: false
    readonly property int due: {
        for (var i = 0; i < steps.length; ++i) {
            if (!steps[i].done)
                return i;
        }
        return -1;
    }

    spacing: Theme.gap

    Repeater {
        model: list.steps

        Item {
            id: step
            readonly property bool due: index === list.due
            visible: !list.brief || due
            width: list.width
            height: Math.max(disc.height, words.height) + Theme.unit / 2
            Accessible.role: Accessible.StaticText
            Accessible.name: modelData.text + (modelData.done ? ", " + done : "")
            //% "done"
            readonly property string done: qsTrId("kiv-step-done")

            Rectangle {
                id: disc
                anchors.left: parent.left
                anchors.verticalCenter: parent.verticalCenter
                width: 4 * Theme.unit
                height: width
                radius: width / 2
                color: modelData.done ? Theme.pass : step.due ? Theme.accent : "transparent"
                border.width: modelData.done || step.due ? 0 : 2 * Theme.hairline
                border.color: Theme.muted

                Icon {
                    anchors.centerIn: parent
                    visible: modelData.done
                    name: "pass"
                    size: 2.5 * Theme.unit
                    color: Theme.passInk
                }
                Words {
                    anchors.centerIn: parent
                    visible: !modelData.done
                    text: index + 1
                    font.weight: Font.Bold
                    color: step.due ? Theme.accentInk : Theme.muted
                    Accessible.ignored: true
                }
            }
            Words {
                id: words
                anchors.left: disc.right
                anchors.leftMargin: Theme.margin
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                text: modelData.text
                font.pixelSize: step.due ? Theme.lead : Theme.body
                font.weight: step.due ? Font.DemiBold : Font.Normal
                color: step.due || modelData.done ? Theme.text : Theme.muted
                Accessible.ignored: true
            }
        }
    }
}
