// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15

/*! The result as a QR code over the whole screen, with the text that is in it, to scan or to copy. */
Rectangle {
    id: sheet
    objectName: "codeSheet"

    property string text
    readonly property bool isOpen: visible

    function open(newText) {
        text = newText;
        visible = true;
        closeButton.forceActiveFocus(Qt.TabFocusReason);
    }

    visible: false
    color: Theme.background
    Accessible.role: Accessible.Dialog
    Accessible.name: qsTrId("kiv-summary-code")

    onVisibleChanged: Scene.changed()

    MouseArea {
        anchors.fill: parent
    }
    Scroller {
        anchors.top: parent.top
        anchors.bottom: footer.top
        width: parent.width

        QrImage {
            objectName: "qr"
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(parent.width, 60 * Theme.unit)
            height: width
            text: sheet.text
        }
        // Codes are read from left to right in any language.
        TextEdit {
            id: words
            objectName: "codeText"
            width: parent.width
            text: sheet.text
            readOnly: true
            activeFocusOnPress: false
            wrapMode: TextEdit.WrapAnywhere
            horizontalAlignment: TextEdit.AlignLeft
            LayoutMirroring.enabled: false
            color: Theme.text
            font.pixelSize: Theme.small
            Accessible.ignored: true
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
                width: (parent.width - parent.spacing) / 2
                objectName: "copy"
                //% "Copy the text"
                text: qsTrId("kiv-code-copy")
                onClicked: {
                    words.selectAll();
                    words.copy();
                    words.deselect();
                }
            }
            PushButton {
                id: closeButton
                width: (parent.width - parent.spacing) / 2
                objectName: "close"
                fill: Theme.accent
                ink: Theme.accentInk
                //% "Close"
                text: qsTrId("kiv-code-close")
                onClicked: sheet.visible = false
            }
        }
    }
}
