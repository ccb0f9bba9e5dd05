// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

/*!
 * Switches the charger off and on again and watches whether the battery notices. Twice, for the battery notices as well
 * when the cable is pulled and put back, and nothing here tells the two apart.
 */
TestPage {
    id: page

    // Charging ICs take a few seconds to settle, and some batteries report once in five.
    readonly property int settleSeconds: 3
    readonly property int reactionSeconds: 12
    /*! A change of the current that is no longer noise, in mA. */
    readonly property real clearChange: 100

    /*! "plug", then "on", "off", "again", and "done". */
    property string phase: "plug"
    property int ticks: 0
    readonly property int rounds: 2
    property int round: 1
    property bool chargerOff: false
    readonly property bool charging: status.value === "Charging" || status.value === "Full"

    function enter(newPhase) {
        phase = newPhase;
        ticks = 0;
    }

    function putBack() {
        if (!chargerOff)
            return;
        chargerOff = false;
        battery.enableCharger();
    }

    function change(a, b) {
        return Math.abs(a - b) >= clearChange;
    }

    function sample() {
        status.value = battery.status();
        current.value = battery.currentNow() / 1e3;
        //% "No battery was found, so charging cannot be observed."
        missing = status.missing && current.missing ? qsTrId("kiv-charging-missing") : "";
        ++ticks;

        switch (phase) {
        case "plug":
            if (charging)
                enter("on");
            break;
        case "on":
            if (!charging) {
                enter("plug");
            } else if (ticks >= settleSeconds) {
                currentOn.value = current.value;
                switchOff();
            }
            break;
        case "off":
            if (!charging || change(current.value, currentOn.value)) {
                currentOff.value = current.value;
                stops.value = true;
                switchOn();
            } else if (ticks >= reactionSeconds) {
                currentOff.value = current.value;
                stops.value = false;
                switchOn();
            }
            break;
        case "again":
            if (charging && (!stops.value || currentOff.missing || currentOn.missing
                             || !change(currentOn.value, currentOff.value)
                             || change(current.value, currentOff.value)))
                goOn();
            else if (ticks >= reactionSeconds)
                finish(false);
            break;
        }
    }

    function switchOff() {
        //% "Switching the charger off"
        blocking(qsTrId("kiv-charging-switching-off"), function() {
            page.chargerOff = true;
            battery.disableCharger();
            page.enter("off");
        });
    }

    function switchOn() {
        //% "Switching the charger on"
        blocking(qsTrId("kiv-charging-switching-on"), function() {
            page.putBack();
            page.enter("again");
        });
    }

    function goOn() {
        if (!stops.value || round === rounds) {
            finish(true);
            return;
        }
        ++round;
        enter("on");
    }

    function finish(resumed) {
        resumes.value = resumed;
        enter("done");
        //% "Charging stopped and resumed as it was switched."
        judgeReadings(qsTrId("kiv-charging-good"));
    }

    measurements: [status, current, currentOn, currentOff, stops, resumes]
    evidence: false
    //% "Pass unlocks when the charger has been switched off and on."
    evidenceHint: qsTrId("kiv-charging-hint")

    onOpened: {
        sample();
        poll.start();
    }
    onClosing: {
        poll.stop();
        putBack();
    }

    Battery {
        id: battery
    }
    BatteryWords {
        id: batteryWords
    }

    Timer {
        id: poll
        interval: 1000
        repeat: true
        running: false
        onTriggered: page.sample()
    }

    StepList {
        width: parent.width
        visible: page.missing === ""
        steps: [
            //% "Plug a charger into the USB socket"
            { text: qsTrId("kiv-charging-step-plug"), done: page.phase !== "plug" },
            //% "The phone charges: wait"
            { text: qsTrId("kiv-charging-step-on"), done: ["off", "again", "done"].indexOf(page.phase) >= 0 },
            //% "Kiv switches the charger off: charging stops"
            { text: qsTrId("kiv-charging-step-off"), done: ["again", "done"].indexOf(page.phase) >= 0 },
            //% "Kiv switches the charger on: charging resumes"
            { text: qsTrId("kiv-charging-step-again"), done: page.phase === "done" }
        ]
    }

    Words {
        width: parent.width
        visible: ["on", "off", "again"].indexOf(page.phase) >= 0
        //: How many times something has been tried, of how many
        //% "Round %1 of %2"
        text: qsTrId("kiv-charging-round").arg(page.round).arg(page.rounds)
        color: Theme.muted
    }
    Measurement {
        id: status
        name: qsTrId("kiv-battery-status")
        words: batteryWords.states
    }
    Measurement {
        id: current
        name: qsTrId("kiv-battery-current")
        unit: "mA"
    }
    Measurement {
        id: currentOn
        //% "Current, charger on"
        name: qsTrId("kiv-charging-current-on")
        unit: "mA"
    }
    Measurement {
        id: currentOff
        //% "Current, charger off"
        name: qsTrId("kiv-charging-current-off")
        unit: "mA"
    }
    Measurement {
        id: stops
        settled: page.phase === "done"
        //% "Charging stops"
        name: qsTrId("kiv-charging-stops")
        accepted: [true]
    }
    Measurement {
        id: resumes
        settled: page.phase === "done"
        //% "Charging resumes"
        name: qsTrId("kiv-charging-resumes")
        accepted: [true]
    }
}
