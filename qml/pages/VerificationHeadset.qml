// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

TestPage {
    id: page

    property bool seenEmpty: false
    property bool seenHeadset: false

    function follow() {
        if (!isOpen || missing !== "")
            return;
        if (headset.headsetInserted) {
            //% "Headset"
            socket.value = qsTrId("kiv-headset-headset");
            seenHeadset = true;
        } else if (headset.headphoneInserted) {
            //% "Headphones without microphone"
            socket.value = qsTrId("kiv-headset-headphones");
        } else if (headset.microphoneInserted) {
            //% "Microphone only"
            socket.value = qsTrId("kiv-headset-microphone");
        } else {
            //% "Empty"
            socket.value = qsTrId("kiv-headset-empty");
            seenEmpty = true;
        }
        if (seenEmpty && seenHeadset)
            //% "The socket was seen empty and with a headset."
            judge(FactoryUtils.Pass, qsTrId("kiv-headset-good"));
    }

    measurements: [socket]
    evidence: false
    //% "Pass unlocks when the socket was seen empty and with a headset."
    evidenceHint: qsTrId("kiv-headset-hint")

    onOpened: {
        headset.openDevice();
        //% "No headset socket was found."
        missing = headset.deviceFound() ? "" : qsTrId("kiv-headset-missing");
        follow();
    }

    HeadsetDetect {
        id: headset
        onHeadphoneInsertedChanged: page.follow()
        onMicrophoneInsertedChanged: page.follow()
        onHeadsetInsertedChanged: page.follow()
    }
    StepList {
        width: parent.width
        visible: page.missing === ""
        steps: [
            //% "Take everything out of the headset socket"
            { text: qsTrId("kiv-headset-step-empty"), done: page.seenEmpty },
            //% "Plug a headset with a microphone in"
            { text: qsTrId("kiv-headset-step-plug"), done: page.seenHeadset }
        ]
    }
    Measurement {
        id: socket
        //% "Headset socket"
        name: qsTrId("kiv-headset-socket")
    }
}
