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

    ProcessList {
        width: parent.width
    }

    Words {
        width: parent.width
        visible: streams.count > 0
        //% "What plays into the sound server"
        text: qsTrId("kiv-system-streams")
        font.weight: Font.DemiBold
    }
    StreamList {
        id: streams
        width: parent.width
    }
}
