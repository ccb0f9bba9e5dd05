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

    // The service counts in milliseconds.
    function duration(milliseconds) {
        if (!(milliseconds >= 0))
            return undefined;
        var seconds = Math.floor(milliseconds / 1000);
        //: A duration: hours, minutes, seconds
        //% "%1 h %2 min %3 s"
        return qsTrId("kiv-system-duration").arg(Math.floor(seconds / 3600)).arg(Math.floor(seconds / 60) % 60)
                                            .arg(seconds % 60);
    }

    //% "What the system is busy with. The list of processes appears after five seconds."
    instructions: qsTrId("kiv-system-instructions")
    measurements: [start, up, asleep, minute, fiveMinutes, quarter]
    trouble: patience.expired ? qsTrId("kiv-radios-lost") : ""

    onOpened: {
        follow();
        patience.start();
    }
    onClosing: patience.stop()

    Uptime {
        id: uptime
        onLoadAverageChanged: page.follow()
    }
    Mce {
        id: mode
        // The second of the two that each answer changes.
        onSuspendChanged: {
            up.value = page.duration(mode.uptime);
            asleep.value = page.duration(mode.suspend);
            patience.interval = patience.afterAnswer;
            if (page.isOpen)
                patience.restart();
        }
    }
    // The service is asked once a minute. Times of one that has stopped answering are no reading any more.
    Timer {
        id: patience
        readonly property int afterAnswer: 70000
        property bool expired: false
        interval: 5000
        onTriggered: {
            expired = true;
            up.value = undefined;
            asleep.value = undefined;
        }
        onRunningChanged: if (running) expired = false
    }

    Measurement {
        id: start
        //% "Running since"
        name: qsTrId("kiv-system-start")
    }
    Measurement {
        id: up
        //% "Switched on for"
        name: qsTrId("kiv-system-up")
    }
    Measurement {
        id: asleep
        //% "Asleep meanwhile"
        name: qsTrId("kiv-system-asleep")
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
