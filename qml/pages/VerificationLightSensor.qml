// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtSensors 5.15
import Kiv 1.0
import "../controls"

TestPage {
    id: page

    // Dark is what remains under a finger, bright what any workplace has; between them a factor no noise bridges.
    readonly property real brightFrom: 30
    readonly property real factor: 4

    property real darkest: NaN
    property real brightest: NaN

    function follow() {
        if (!isOpen)
            return;
        var lux = sensor.reading.illuminance;
        now.value = lux;
        darkest = isNaN(darkest) ? lux : Math.min(darkest, lux);
        brightest = isNaN(brightest) ? lux : Math.max(brightest, lux);
        if (brightest >= brightFrom && brightest >= factor * darkest)
            //% "The sensor told dark from bright."
            judge(FactoryUtils.Pass, qsTrId("kiv-light-good"));
    }

    //% "Cover the sensor above the display with a finger, then hold it to the light."
    instructions: qsTrId("kiv-light-instructions")
    measurements: [now, dark, bright]
    evidence: false
    //% "Pass unlocks when the sensor told dark from bright."
    evidenceHint: qsTrId("kiv-light-hint")

    onOpened: {
        //% "No light sensor was found."
        missing = sensor.connectedToBackend ? "" : qsTrId("kiv-light-missing");
    }

    LightSensor {
        id: sensor
        active: page.isOpen
        alwaysOn: true
        // Before its first measurement a sensor already has a reading, of zeros.
        onReadingChanged: page.follow()
    }
    Measurement {
        id: now
        //% "Brightness"
        name: qsTrId("kiv-light-now")
        unit: "lx"
    }
    Measurement {
        id: dark
        settled: page.verdict !== ""
        //% "Darkest"
        name: qsTrId("kiv-light-darkest")
        unit: "lx"
        value: page.darkest
        maximum: isNaN(page.brightest) ? NaN : Math.max(page.brightest, page.brightFrom) / page.factor
    }
    Measurement {
        id: bright
        settled: page.verdict !== ""
        //% "Brightest"
        name: qsTrId("kiv-light-brightest")
        unit: "lx"
        value: page.brightest
        minimum: page.brightFrom
    }
}
