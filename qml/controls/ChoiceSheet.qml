// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtQuick.Window 2.15

/*!
 * A question over the whole screen, with its answers as large buttons. Nothing beneath can be pressed meanwhile. The keys
 * at the side of a phone choose, too: the shell moves the focus among the answers.
 */
Rectangle {
    id: sheet
    objectName: "sheet"

    property string title
    property string text
    property string glyph
    /*! [{id, text, glyph}] */
    property var options: []
    /*! The words of the answer that changes nothing; empty where there is none. */
    property string cancelText
    readonly property bool isOpen: visible
    property var answer: null
    /*! Who had the keys before: the key test needs them again. */
    property Item focusBefore: null

    /*! Calls then(option) with the option that was chosen; nothing is called for the answer that changes nothing. */
    function ask(question, then) {
        title = question.title;
        text = question.text || "";
        glyph = question.glyph || "";
        options = question.options;
        cancelText = question.cancelText || "";
        answer = then;
        if (!visible)
            focusBefore = Window.activeFocusItem;
        visible = true;
        if (buttons.count > 0)
            buttons.itemAt(0).forceActiveFocus(Qt.TabFocusReason);
    }

    function close() {
        if (visible && focusBefore)
            focusBefore.forceActiveFocus();
        focusBefore = null;
        visible = false;
        answer = null;
    }

    function choose(option) {
        var then = answer;
        close();
        if (then)
            then(option);
    }

    visible: false
    color: Theme.background
    Accessible.role: Accessible.Dialog
    Accessible.name: title

    onVisibleChanged: Scene.changed()
    onOptionsChanged: Scene.changed()

    MouseArea {
        anchors.fill: parent
    }

    Scroller {
        anchors.top: parent.top
        anchors.bottom: footer.visible ? footer.top : parent.bottom
        width: parent.width

        Row {
            width: parent.width
            spacing: Theme.margin

            Icon {
                id: mark
                name: sheet.glyph
                size: name === "" ? 0 : 4 * Theme.unit
                color: Theme.accent
                anchors.verticalCenter: parent.verticalCenter
            }
            FittedWords {
                width: parent.width - mark.width - Theme.margin
                text: sheet.title
                largest: Theme.title
                font.weight: Font.Bold
                anchors.verticalCenter: parent.verticalCenter
            }
        }
        Words {
            width: parent.width
            visible: text !== ""
            text: sheet.text
        }
        Repeater {
            id: buttons
            model: sheet.options

            PushButton {
                objectName: "choice-" + modelData.id
                width: parent.width
                glyph: modelData.glyph || ""
                text: modelData.text
                onClicked: sheet.choose(modelData)
            }
        }
    }
    Footer {
        id: footer
        anchors.bottom: parent.bottom
        width: parent.width
        visible: sheet.cancelText !== ""

        PushButton {
            objectName: "choice-cancel"
            width: parent.width
            text: sheet.cancelText
            onClicked: sheet.close()
        }
    }
}
