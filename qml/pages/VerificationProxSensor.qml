// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtSensors 5.15
import Kiv 1.0
import "../controls"

TestPage {
    id: page

    property bool seenNear: false
    property bool seenFar: false

    function follow() {
        if (!isOpen)
            return;
        near.value = sensor.reading.near;
        if (sensor.reading.near)
            seenNear = true;
        else if (seenNear)
            seenFar = true;
        if (seenNear && seenFar)
            //% "The sensor saw the hand come and go."
            judge(FactoryUtils.Pass, qsTrId("kiv-prox-good"));
    }

    measurements: [near]
    evidence: false
    //% "Pass unlocks when the hand was seen to come and go."
    evidenceHint: qsTrId("kiv-prox-hint")

    onOpened: {
        //% "No proximity sensor was found."
        missing = sensor.connectedToBackend ? "" : qsTrId("kiv-prox-missing");
    }

    ProximitySensor {
        id: sensor
        active: page.isOpen
        alwaysOn: true
        // Before its first measurement a sensor already has a reading, of zeros.
        onReadingChanged: page.follow()
    }
    StepList {
        width: parent.width
        visible: page.missing === ""
        steps: [
            //% "Hold a hand over the top of the display"
            { text: qsTrId("kiv-prox-step-near"), done: page.seenNear },
            //% "Take the hand away"
            { text: qsTrId("kiv-prox-step-far"), done: page.seenFar }
        ]
    }
    Measurement {
        id: near
        //% "Something near"
        name: qsTrId("kiv-prox-near")
    }
}
