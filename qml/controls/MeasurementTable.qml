// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15

/*! The readings of a page, one a line: name and limits, value and unit, result. */
Column {
    id: table

    property var readings: []

    Repeater {
        model: table.readings

        Item {
            id: line
            readonly property var reading: modelData
            readonly property string result: reading.result
            readonly property color ink: result === "fail" ? Theme.fail
                                         : result === "near" || (result === "missing" && reading.decisive) ? Theme.warn
                                         : result === "pass" ? Theme.pass : Theme.text

            width: table.width
            height: Math.max(names.height, value.height) + 1.5 * Theme.unit
            Accessible.role: Accessible.StaticText
            Accessible.name: [reading.name, reading.valueText, reading.limitsText, reading.resultText]
                             .filter(function(part) { return part !== ""; }).join(", ")

            Column {
                id: names
                anchors.left: parent.left
                anchors.verticalCenter: parent.verticalCenter
                width: (parent.width - mark.width) * 0.54

                Words {
                    width: parent.width
                    text: line.reading.name
                    Accessible.ignored: true
                }
                Words {
                    width: parent.width
                    text: line.reading.limitsText
                    visible: text !== ""
                    color: Theme.muted
                    font.pixelSize: Theme.small
                    Accessible.ignored: true
                }
            }
            Words {
                id: value
                anchors.left: names.right
                anchors.leftMargin: Theme.gap
                anchors.right: mark.left
                anchors.rightMargin: Theme.gap
                anchors.verticalCenter: parent.verticalCenter
                horizontalAlignment: Text.AlignRight
                text: line.reading.valueText
                font.pixelSize: line.result === "missing" ? Theme.body : Theme.lead
                font.weight: line.result === "missing" ? Font.Normal : Font.DemiBold
                font.italic: line.result === "missing"
                color: line.result === "missing" && !line.reading.decisive ? Theme.muted : line.ink
                Accessible.ignored: true
            }
            Icon {
                id: mark
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                size: 2.75 * Theme.unit
                name: line.result === "none" ? "" : line.result === "missing" ? (line.reading.decisive ? "untested" : "")
                                                                              : line.result
                color: line.ink
            }
            Rectangle {
                anchors.bottom: parent.bottom
                width: parent.width
                height: Theme.hairline
                color: Theme.line
                visible: index < table.readings.length - 1
            }
        }
    }
}
