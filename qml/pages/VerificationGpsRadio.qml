// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

/*! The receiver is switched on while the page is open, and passes as soon as a position is made of a satellite. */
TestPage {
    id: page

    readonly property var gps: receiver.item
    readonly property bool receives: gps !== null && gps.satelliteInfoAvailable
    property var satellites: []
    property real started: 0
    property real reported: 0
    property real now: 0
    // Receivers report once a second.
    readonly property bool silent: receives && reported > 0 && now - reported > 15000
    readonly property string serviceTrouble: gps === null ? ""
        : gps.status === Gps.StatusError
        //% "The positioning service is in trouble or does not answer."
        ? qsTrId("kiv-gps-error")
        : gps.status === Gps.StatusUnavailable
        //% "The positioning service cannot position. Is positioning switched on in the phone's settings?"
        ? qsTrId("kiv-gps-unavailable") : ""
    readonly property string receiverTrouble: !receives ? ""
        : gps.satelliteInfoError
        //% "The receiver reports an error."
        ? qsTrId("kiv-gps-source-error")
        : silent
        //% "The receiver has not reported for %1 s."
        ? qsTrId("kiv-gps-silent").arg(Math.round((now - reported) / 1000)) : ""

    function statusWord(status) {
        switch (status) {
        case Gps.StatusError:
            //% "in trouble or not there"
            return qsTrId("kiv-gps-status-error");
        case Gps.StatusUnavailable:
            //% "cannot position"
            return qsTrId("kiv-gps-status-unavailable");
        case Gps.StatusAcquiring:
            //% "looking for the position"
            return qsTrId("kiv-gps-status-acquiring");
        case Gps.StatusAvailable:
            //% "knows the position"
            return qsTrId("kiv-gps-status-available");
        }
        //: The service reports a state that has no name
        //% "unknown (%1)"
        return qsTrId("kiv-gps-status-unknown").arg(status);
    }

    function seconds(since) {
        return Math.max(0, since - started) / 1000;
    }

    // What the source said before the page was ready for it is not a report.
    function follow() {
        if (!isOpen || gps === null)
            return;
        now = Date.now();
        reported = now;
        satellites = gps.satelliteInfo;
        inView.value = gps.satellitesInView;
        inUse.value = gps.satellitesInUse;
        if (gps.satellitesInView > 0 && firstSeen.value === undefined)
            firstSeen.value = seconds(now);
        if (gps.satellitesInUse === 0 || firstUsed.value !== undefined)
            return;
        firstUsed.value = seconds(now);
        //% "A satellite was in use after %1 s."
        judge(FactoryUtils.Pass, qsTrId("kiv-gps-good").arg(firstUsed.number(firstUsed.value)));
    }

    //% "Go outdoors or to a window. The first satellite may take some minutes."
    instructions: qsTrId("kiv-gps-instructions")
    measurements: missing !== "" ? [] : receives ? [status, inView, inUse, firstSeen, firstUsed] : [status]
    // Without satellites to see, a position is what shows that the receiver works.
    evidence: gps !== null && !gps.satelliteInfoAvailable && gps.status === Gps.StatusAvailable
    evidenceHint: gps !== null && !gps.satelliteInfoAvailable
                  //% "Pass unlocks when the positioning service knows the position."
                  ? qsTrId("kiv-gps-hint-position")
                  //% "Pass unlocks when a satellite is in use."
                  : qsTrId("kiv-gps-hint")
    trouble: verdict !== "" ? ""
             : [serviceTrouble, receiverTrouble].filter(function(text) { return text !== ""; }).join("\n")

    onOpened: {
        //% "This phone has no satellite receiver."
        missing = Features.supported("GPS", row.name) ? "" : qsTrId("kiv-gps-missing");
        if (missing !== "")
            return;
        started = Date.now();
        now = started;
        receiver.active = true;
    }
    // With it, the source stops.
    onClosing: receiver.active = false

    Loader {
        id: receiver
        active: false
        visible: false
        sourceComponent: Gps {
            onSatelliteInfoChanged: page.follow()
        }
    }
    Timer {
        interval: 1000
        running: page.isOpen && page.receives && page.verdict === ""
        repeat: true
        onTriggered: page.now = Date.now()
    }

    Notice {
        objectName: "noSource"
        width: parent.width
        visible: page.gps !== null && !page.gps.satelliteInfoAvailable
        kind: "near"
        //% "The system offers no view of the satellites, only the state of the positioning service."
        text: qsTrId("kiv-gps-no-source")
    }
    Card {
        width: parent.width
        visible: page.satellites.length > 0
        padding: Theme.gap

        SignalBars {
            width: parent.width
            satellites: page.satellites
        }
        Row {
            width: parent.width
            spacing: Theme.gap

            Icon {
                anchors.verticalCenter: parent.verticalCenter
                name: "pass"
                color: Theme.pass
                size: 2.25 * Theme.unit
            }
            Words {
                anchors.verticalCenter: parent.verticalCenter
                //% "in use for the position"
                text: qsTrId("kiv-gps-legend")
                color: Theme.muted
                font.pixelSize: Theme.small
            }
        }
        SkyView {
            width: parent.width
            satellites: page.satellites
        }
    }
    Measurement {
        id: status
        //% "Positioning service"
        name: qsTrId("kiv-gps-status")
        value: page.gps === null ? undefined : page.statusWord(page.gps.status)
    }
    Measurement {
        id: inView
        //% "Satellites in view"
        name: qsTrId("kiv-gps-in-view")
    }
    Measurement {
        id: inUse
        //% "Satellites in use"
        name: qsTrId("kiv-gps-in-use")
        meets: value > 0
        criteria: qsTrId("kiv-limits-minimum").arg(1).arg("").trim()
        settled: page.verdict !== ""
    }
    Measurement {
        id: firstSeen
        //% "First satellite in view after"
        name: qsTrId("kiv-gps-first-seen")
        unit: "s"
        decimals: 1
    }
    Measurement {
        id: firstUsed
        //% "First satellite in use after"
        name: qsTrId("kiv-gps-first-used")
        unit: "s"
        decimals: 1
    }
}
