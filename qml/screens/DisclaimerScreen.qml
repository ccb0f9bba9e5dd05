// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import "../controls"

/*! What the user has to know before anything is switched; shown once a start. */
Item {
    id: screen

    property var shell

    Header {
        id: header
        width: parent.width
        backVisible: false
        //% "Before you begin"
        title: qsTrId("kiv-disclaimer-title")
    }
    Scroller {
        readable: true
        anchors.top: header.bottom
        anchors.bottom: footer.top
        width: parent.width

        Card {
            width: parent.width

            Words {
                width: parent.width
                text: disclaimerText
                textFormat: Text.StyledText
                lineHeight: 1.15
            }
        }
    }
    Footer {
        id: footer
        anchors.bottom: parent.bottom
        width: parent.width

        Row {
            width: parent.width
            spacing: Theme.gap

            PushButton {
                width: (parent.width - parent.spacing) * 0.36
                //% "Quit"
                text: qsTrId("kiv-quit")
                onClicked: Qt.quit()
            }
            PushButton {
                objectName: "accept"
                width: (parent.width - parent.spacing) * 0.64
                fill: Theme.accent
                ink: Theme.accentInk
                //% "I have read this"
                text: qsTrId("kiv-disclaimer-accept")
                onClicked: screen.shell.showHome()
            }
        }
    }
}
