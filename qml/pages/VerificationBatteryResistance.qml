// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

/*!
 * The battery's internal resistance: by how much its voltage gives way when the charging current is taken away,
 * R = dV / dI. Measured with the charger on, off and on again, so that the slow rise of the voltage while charging falls
 * out. The charger comes back on every way out.
 */
TestPage {
    id: page

    /*! One a second; the voltage still creeps for a few after the current has changed. */
    readonly property int settleSamples: 4
    readonly property int samplesWanted: 6
    /*! At the latest then, the charger must have been obeyed and enough been measured. */
    readonly property int phaseSamples: 24
    property int sampleMs: 1000
    /*! Below this step of the current, noise and rounding of the gauge would be the result, mA. */
    readonly property real leastStep: 200
    /*! In milliohms. A new cell with its protection has 50 to 200, a worn one several times as much. */
    readonly property real mostResistance: KivHwSettings.realValue("Battery/MaxResistance", 400)

    /*! "plug", then "on", "off", "again", and "done". */
    property string phase: "plug"
    property int ticks: 0
    property int steady: 0
    property bool chargerOff: false
    property var samples: ({ "on": [], "off": [], "again": [] })

    function enter(newPhase) {
        phase = newPhase;
        ticks = 0;
        steady = 0;
    }

    function putBack() {
        if (!chargerOff)
            return;
        chargerOff = false;
        battery.enableCharger();
    }

    function mean(list, key) {
        return list.reduce(function(sum, sample) { return sum + sample[key]; }, 0) / list.length;
    }

    function sample() {
        var state = battery.status();
        var reading = { current: battery.currentNow() / 1e3, voltage: battery.voltageNow() / 1e3 };
        var charging = state === "Charging" || state === "Full";
        status.value = state;
        ++ticks;

        if (phase === "plug") {
            voltageOn.value = voltageOff.value = currentOn.value = currentOff.value = undefined;
            //% "The battery's voltage and current cannot be read here."
            missing = isNaN(reading.current) || isNaN(reading.voltage) ? qsTrId("kiv-resistance-missing") : "";
            if (missing === "" && charging)
                enter("on");
            return;
        }
        if (phase === "done")
            return;
        if (ticks >= phaseSamples) {
            finish();
            return;
        }
        var list = samples[phase];
        if (charging !== (phase !== "off")) {
            // Whatever was measured before a cable fell out is worth nothing.
            list.length = 0;
            steady = 0;
            if (phase === "on")
                enter("plug");
            return;
        }
        if (++steady <= settleSamples)
            return;
        list.push(reading);
        if (list.length < samplesWanted)
            return;
        if (phase === "on")
            switchOff();
        else if (phase === "off")
            switchOn();
        else
            finish();
    }

    function switchOff() {
        blocking(qsTrId("kiv-charging-switching-off"), function() {
            page.chargerOff = true;
            battery.disableCharger();
            page.enter("off");
        });
    }

    function switchOn() {
        blocking(qsTrId("kiv-charging-switching-on"), function() {
            page.putBack();
            page.enter("again");
        });
    }

    /*!
     * The step of the current. Some kernels count a discharge as positive, some give no sign at all: to them the battery
     * seems to take more while it is charged than while it is drained, in the same direction.
     */
    function currentStep(on, off) {
        return on * off > 0 && Math.abs(on) > Math.abs(off) ? Math.abs(on) + Math.abs(off) : Math.abs(on - off);
    }

    function finish() {
        poll.stop();
        putBack();
        enter("done");
        var complete = ["on", "off", "again"].every(function(name) {
            return page.samples[name].length === page.samplesWanted;
        });
        if (complete) {
            voltageOn.value = (mean(samples.on, "voltage") + mean(samples.again, "voltage")) / 2;
            currentOn.value = (mean(samples.on, "current") + mean(samples.again, "current")) / 2;
            voltageOff.value = mean(samples.off, "voltage");
            currentOff.value = mean(samples.off, "current");
            step.value = currentStep(currentOn.value, currentOff.value);
            // Over a small step, anything could come out.
            if (step.good)
                resistance.value = (voltageOn.value - voltageOff.value) / step.value * 1000;
        }
        //% "The battery's internal resistance is in order."
        judgeReadings(qsTrId("kiv-resistance-good"));
    }

    measurements: [status, voltageOn, voltageOff, currentOn, currentOff, step, resistance]
    evidence: false
    //% "Pass unlocks when the resistance has been measured."
    evidenceHint: qsTrId("kiv-resistance-hint")

    onOpened: {
        if (!Features.supported("Battery", row.name)) {
            //% "The settings of this phone do not ask for this test."
            missing = qsTrId("kiv-resistance-off");
            return;
        }
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
        interval: page.sampleMs
        repeat: true
        onTriggered: page.sample()
    }

    StepList {
        width: parent.width
        visible: page.missing === ""
        steps: [
            { text: qsTrId("kiv-charging-step-plug"), done: page.phase !== "plug" },
            //% "Measuring with the charger on: leave phone and charger alone"
            { text: qsTrId("kiv-resistance-step-on"), done: ["off", "again", "done"].indexOf(page.phase) >= 0 },
            //% "Measuring with the charger off"
            { text: qsTrId("kiv-resistance-step-off"), done: ["again", "done"].indexOf(page.phase) >= 0 },
            //% "Measuring with the charger on again"
            { text: qsTrId("kiv-resistance-step-again"), done: page.phase === "done" }
        ]
    }

    Measurement {
        id: status
        name: qsTrId("kiv-battery-status")
        words: batteryWords.states
    }
    Measurement {
        id: voltageOn
        //% "Voltage, charger on"
        name: qsTrId("kiv-resistance-voltage-on")
        unit: "mV"
    }
    Measurement {
        id: voltageOff
        //% "Voltage, charger off"
        name: qsTrId("kiv-resistance-voltage-off")
        unit: "mV"
    }
    Measurement {
        id: currentOn
        name: qsTrId("kiv-charging-current-on")
        unit: "mA"
    }
    Measurement {
        id: currentOff
        name: qsTrId("kiv-charging-current-off")
        unit: "mA"
    }
    Measurement {
        id: step
        settled: page.phase === "done"
        //% "Step of the current"
        name: qsTrId("kiv-resistance-step")
        unit: "mA"
        minimum: page.leastStep
    }
    Measurement {
        id: resistance
        settled: page.phase === "done"
        //% "Internal resistance"
        name: qsTrId("kiv-resistance")
        unit: "mΩ"
        minimum: 1
        maximum: page.mostResistance
    }
}
