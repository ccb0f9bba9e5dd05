// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import "Breaks.js" as Breaks

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
                                         : result === "near" || (reading.wanting) ? Theme.warn
                                         : result === "pass" ? Theme.pass : Theme.text

            // What is too long to stand beside its name stands below it.
            readonly property real room: width - mark.width - Theme.gap
            readonly property bool stacked: valueWidth > 0.5 * room
                                            || valueWidth + longest.advanceWidth + 2 * Theme.gap > room

            width: table.width
            height: (stacked ? names.height + value.height : Math.max(names.height, value.height)) + 1.5 * Theme.unit
            Accessible.role: Accessible.StaticText
            Accessible.name: [reading.name, reading.valueText, reading.limitsText, reading.resultText]
                             .filter(function(part) { return part !== ""; }).join(", ")

            // A text whose own width followed its contents would lay itself out for the width before. A letter
            // may reach beyond its advance, a slanted Chinese one the most, and a text breaks rather than let it.
            readonly property real valueWidth: Math.ceil(metrics.advanceWidth
                                                         + (value.font.italic ? 0.5 : 0.1) * value.font.pixelSize)

            TextMetrics {
                id: metrics
                font: value.font
                text: value.text
            }
            // A name breaks between its words only.
            TextMetrics {
                id: longest
                font: title.font
                text: Breaks.longest(line.reading.name)
            }
            Column {
                id: names
                anchors.left: parent.left
                y: line.stacked ? 0.75 * Theme.unit : (parent.height - height) / 2
                width: line.stacked ? line.room : line.room - Theme.gap - value.width

                Words {
                    id: title
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
                anchors.right: mark.left
                anchors.rightMargin: Theme.gap
                width: line.stacked ? line.room : line.valueWidth
                y: line.stacked ? names.y + names.height : (parent.height - height) / 2
                horizontalAlignment: line.stacked ? Text.AlignLeft : Text.AlignRight
                text: line.reading.valueText
                font.pixelSize: line.result === "missing" ? Theme.body : Theme.lead
                font.weight: line.result === "missing" ? Font.Normal : Font.DemiBold
                font.italic: line.result === "missing"
                color: line.result === "missing" && !line.reading.wanting ? Theme.muted : line.ink
                Accessible.ignored: true
            }
            Icon {
                id: mark
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                size: 2.75 * Theme.unit
                name: line.result === "none" ? "" : line.result === "missing" ? (line.reading.wanting ? "untested" : "")
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
