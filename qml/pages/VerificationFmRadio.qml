// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtMultimedia 5.15
import Kiv 1.0
import "../controls"

/*! Loops the radio back to the output. The route manager is told to end that when the page goes. */
TestPage {
    id: page

    property bool refused: false
    readonly property real megahertz: KivHwSettings.defaultFmRadioFrequency

    function toggle() {
        var on = !route.fmRadio;
        refused = false;
        if (on) {
            tuner.frequency = Math.round(megahertz * 1000000);
            tuner.start();
        } else {
            tuner.stop();
        }
        // Waits for the answer, half a minute at most.
        route.fmRadio = on;
        if (on)
            patience.restart();
    }

    //% "Plug a headset in, whose cable is the antenna, and switch the radio on. A station or at least noise must be heard."
    instructions: qsTrId("kiv-fm-radio-instructions")
    measurements: [plugged, frequency, loop]
    evidence: loop.seen
    //% "Pass unlocks when the radio has been on."
    evidenceHint: qsTrId("kiv-fm-radio-hint")

    onClosing: {
        patience.stop();
        tuner.stop();
        if (route.fmRadio)
            route.fmRadio = false;
    }

    AudioRoute {
        id: route
        onFmRadioChanged: if (fmRadio) loop.seen = true
    }
    Radio {
        id: tuner
        band: Radio.FM
    }

    Measurement {
        id: plugged
        //% "Headset as antenna"
        name: qsTrId("kiv-fm-radio-antenna")
        value: route.wiredOutputConnected
    }
    Measurement {
        id: frequency
        //% "Frequency"
        name: qsTrId("kiv-fm-radio-frequency")
        value: page.megahertz
        decimals: 1
        unit: "MHz"
    }
    Measurement {
        id: loop
        property bool seen: false
        //% "Radio switched to the headset"
        name: qsTrId("kiv-fm-radio-loop")
        value: route.fmRadio
    }
    PushButton {
        objectName: "radio"
        width: parent.width
        enabled: page.isOpen
        glyph: "fm"
        //% "Switch the radio off"
        text: route.fmRadio ? qsTrId("kiv-fm-radio-off")
                            //% "Switch the radio on"
                            : qsTrId("kiv-fm-radio-on")
        //% "Waiting for the audio policy"
        onClicked: page.blocking(qsTrId("kiv-fm-radio-working"), page.toggle)
    }
    Notice {
        width: parent.width
        visible: page.refused && !route.fmRadio
        kind: "fail"
        //% "The radio could not be switched on: the audio policy does not answer or does not offer it."
        text: qsTrId("kiv-fm-radio-refused")
    }
    // The answer comes as a signal after the call.
    Timer {
        id: patience
        interval: 1000
        onTriggered: page.refused = !route.fmRadio
    }
}
