// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15

/*! The top of a screen: a way back, where one is, and room for one more button. */
Item {
    id: header

    property string title
    property string subtitle
    property color subtitleColor: Theme.muted
    property bool backVisible: true
    //% "Back"
    property string backText: qsTrId("kiv-back")
    property alias trailing: slot.data
    signal back()

    height: Math.max(Theme.target, titles.height + 2 * Theme.gap)

    PushButton {
        id: backButton
        objectName: "back"
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        width: Theme.target
        height: Theme.target
        visible: header.backVisible
        glyph: "back"
        outlined: false
        fill: "transparent"
        Accessible.name: header.backText
        onClicked: header.back()
    }
    Column {
        id: titles
        anchors.left: header.backVisible ? backButton.right : parent.left
        anchors.leftMargin: header.backVisible ? 0 : Theme.margin
        anchors.right: slot.left
        anchors.verticalCenter: parent.verticalCenter

        FittedWords {
            width: parent.width
            text: header.title
            largest: Theme.lead
            font.weight: Font.DemiBold
        }
        Words {
            width: parent.width
            text: header.subtitle
            visible: text !== ""
            color: header.subtitleColor
            font.pixelSize: Theme.small
        }
    }
    Row {
        id: slot
        anchors.right: parent.right
        anchors.rightMargin: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
    }
}
