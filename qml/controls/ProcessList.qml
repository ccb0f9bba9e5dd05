// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0

/*! The busiest processes and their share of the processor; empty for the first five seconds. */
Card {
    property alias limit: processes.limit

    visible: processes.count > 0
    padding: Theme.gap
    spacing: 0

    Processes {
        id: processes
        limit: 8
    }

    Repeater {
        model: processes

        Item {
            width: parent.width
            height: Math.max(process.height, share.height) + Theme.unit
            Accessible.role: Accessible.StaticText
            Accessible.name: process.text + ", " + share.text

            Words {
                id: process
                anchors.left: parent.left
                anchors.leftMargin: Theme.gap
                anchors.right: share.left
                anchors.rightMargin: Theme.gap
                anchors.verticalCenter: parent.verticalCenter
                //: A process: its name and its number
                //% "%1 (%2)"
                text: qsTrId("kiv-system-process").arg(model.name).arg(model.pid)
                font.pixelSize: Theme.small
                Accessible.ignored: true
            }
            Words {
                id: share
                anchors.right: parent.right
                anchors.rightMargin: Theme.gap
                anchors.verticalCenter: parent.verticalCenter
                text: isFinite(model.percentCpu)
                      ? Number(model.percentCpu).toLocaleString(Qt.locale(), "f", 1) + "\u00a0%"
                      : qsTrId("kiv-reading-missing")
                font.weight: Font.DemiBold
                Accessible.ignored: true
            }
        }
    }
}
