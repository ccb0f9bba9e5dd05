// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

/*! How long the system runs, how busy it is, and with what. */
TestPage {
    id: page

    function follow() {
        start.value = isNaN(uptime.machineStart.getTime()) ? undefined
                      : uptime.machineStart.toLocaleString(Qt.locale(), Locale.ShortFormat);
        minute.value = uptime.loadAverage1;
        fiveMinutes.value = uptime.loadAverage5;
        quarter.value = uptime.loadAverage15;
    }

    //% "What the system is busy with. The list of processes appears after five seconds."
    instructions: qsTrId("kiv-system-instructions")
    measurements: [start, minute, fiveMinutes, quarter]

    onOpened: follow()

    Uptime {
        id: uptime
        onLoadAverageChanged: page.follow()
    }
    Processes {
        id: processes
        limit: 8
    }

    Measurement {
        id: start
        //% "Running since"
        name: qsTrId("kiv-system-start")
    }
    Measurement {
        id: minute
        //% "Load, 1 minute"
        name: qsTrId("kiv-system-load-1")
        decimals: 2
    }
    Measurement {
        id: fiveMinutes
        //% "Load, 5 minutes"
        name: qsTrId("kiv-system-load-5")
        decimals: 2
    }
    Measurement {
        id: quarter
        //% "Load, 15 minutes"
        name: qsTrId("kiv-system-load-15")
        decimals: 2
    }

    Card {
        width: parent.width
        visible: processes.count > 0
        padding: Theme.gap
        spacing: 0

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

    Words {
        width: parent.width
        visible: streams.count > 0
        //% "What plays into the sound server"
        text: qsTrId("kiv-system-streams")
        font.weight: Font.DemiBold
    }
    Card {
        width: parent.width
        visible: streams.count > 0
        padding: Theme.gap
        spacing: Theme.gap

        Repeater {
            model: PulseAudio {
                id: streams
            }

            Words {
                width: parent.width
                // The tool prints quotes around both names.
                text: [model.applicationName, model.mediaName, model.volumeInfo,
                       //% "paused"
                       model.corked ? qsTrId("kiv-system-stream-paused") : "",
                       //% "muted"
                       model.muted ? qsTrId("kiv-system-stream-muted") : ""]
                      .filter(function(part) { return part !== undefined && part !== ""; })
                      .map(function(part) { return part.replace(/^"|"$/g, ""); }).join(", ")
                font.pixelSize: Theme.small
            }
        }
    }
}
