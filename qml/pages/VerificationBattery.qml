// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

TestPage {
    id: page

    readonly property int samplesNeeded: 4
    property int samples: 0

    function sample() {
        status.value = battery.status();
        health.value = battery.health();
        present.value = battery.present();
        voltage.value = battery.voltageNow() / 1e6;
        current.value = battery.currentNow() / 1e3;
        temperature.value = battery.temperature();
        energy.value = battery.energyNow() / 1e6;
        // What it still holds when full, against what it was made for.
        wear.value = 100 * battery.maximumEnergy() / battery.maximumDesignEnergy();
        // The kernel's answer to "present" is no also where there is nobody to ask.
        var silent = measurements.every(function(reading) { return reading === present || reading.missing; });
        //% "No battery was found."
        missing = silent && !present.value ? qsTrId("kiv-battery-missing") : "";
        ++samples;
    }

    //% "Nothing to do: the phone reads its battery."
    instructions: qsTrId("kiv-battery-instructions")
    measurements: [present, status, health, voltage, current, temperature, energy, wear]
    evidence: false
    //% "Pass unlocks when the battery has been read."
    evidenceHint: qsTrId("kiv-battery-hint")

    onOpened: {
        if (KivHwSettings.batteryVoltageTest) {
            voltage.minimum = battery.minimumVoltage() / 1e6;
            voltage.maximum = battery.maximumVoltage() / 1e6;
        }
        sample();
        poll.start();
    }
    onClosing: poll.stop()
    onSamplesChanged: {
        if (samples >= samplesNeeded && missing === "")
            //% "Every reading with a limit is within it."
            judgeReadings(qsTrId("kiv-battery-good"));
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
        onTriggered: page.sample()
    }

    Measurement {
        id: present
        //% "Battery in place"
        name: qsTrId("kiv-battery-present")
        accepted: [true]
    }
    Measurement {
        id: status
        //% "State"
        name: qsTrId("kiv-battery-status")
        words: batteryWords.states
    }
    Measurement {
        id: health
        //% "Health"
        name: qsTrId("kiv-battery-health")
        words: batteryWords.healths
        accepted: ["Good"]
    }
    Measurement {
        id: voltage
        //% "Voltage"
        name: qsTrId("kiv-battery-voltage")
        unit: "V"
        decimals: 3
        decisive: KivHwSettings.batteryVoltageTest
    }
    Measurement {
        id: current
        //% "Current"
        name: qsTrId("kiv-battery-current")
        unit: "mA"
    }
    Measurement {
        id: temperature
        //% "Temperature"
        name: qsTrId("kiv-battery-temperature")
        unit: "°C"
        decimals: 1
    }
    Measurement {
        id: energy
        //% "Energy left"
        name: qsTrId("kiv-battery-energy")
        unit: "Wh"
        decimals: 2
    }
    Measurement {
        id: wear
        //% "Capacity compared to new"
        name: qsTrId("kiv-battery-wear")
        unit: "%"
    }
}
