// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15

/*! A sentence that stands out: an icon, a tint and the words. kind is "info", "pass", "fail" or "near". */
Rectangle {
    id: notice

    property string kind: "info"
    property alias text: words.text
    property string detail
    readonly property color ink: kind === "pass" ? Theme.pass : kind === "fail" ? Theme.fail
                                 : kind === "near" ? Theme.warn : Theme.text

    implicitHeight: column.height + 2 * Theme.gap + Theme.unit
    height: implicitHeight
    radius: Theme.radius
    color: kind === "pass" ? Theme.passTint : kind === "fail" ? Theme.failTint
           : kind === "near" ? Theme.warnTint : Theme.neutralTint

    Icon {
        id: icon
        anchors.left: parent.left
        anchors.leftMargin: Theme.margin
        anchors.verticalCenter: parent.verticalCenter
        name: notice.kind
        color: notice.ink
    }
    Column {
        id: column
        anchors.left: icon.right
        anchors.leftMargin: Theme.margin
        anchors.right: parent.right
        anchors.rightMargin: Theme.margin
        anchors.verticalCenter: parent.verticalCenter

        Words {
            id: words
            width: parent.width
            color: notice.ink
            font.weight: notice.detail === "" ? Font.Normal : Font.DemiBold
        }
        Words {
            width: parent.width
            text: notice.detail
            visible: text !== ""
            font.pixelSize: Theme.small
        }
    }
}
