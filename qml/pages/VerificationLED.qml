// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

/*!
 * A page cannot switch the notification light. The phone lights it while it charges, and the battery says when that is; the
 * operator names what he saw, instead of agreeing to it.
 */
TestPage {
    id: page

    readonly property bool colourful: KivHwSettings.ledType !== "Binary"
    /*! Whether the phone tells when it charges. Else the operator does. */
    property bool observed: false
    property bool chargingSeen: false
    property bool unpluggedSeen: false
    property string seen

    function sample() {
        var state = battery.status();
        status.value = state;
        observed = state !== "";
        if (state === "Charging" || state === "Full")
            chargingSeen = true;
        else if (state === "Discharging" && seen !== "")
            unpluggedSeen = true;
    }

    function say(choice) {
        if (seen !== "")
            return;
        seen = choice.text;
        if (choice.value === "none")
            //% "The light stayed dark while the phone was charging."
            judge(FactoryUtils.Fail, qsTrId("kiv-led-dark"));
        else
            sample();
    }

    //% "Plug a charger in: the phone then lights its notification light."
    instructions: qsTrId("kiv-led-instructions")
    measurements: [status, colour]
    evidence: false
    //% "Pass unlocks when you have said what the light does."
    evidenceHint: qsTrId("kiv-led-hint")

    onOpened: {
        sample();
        poll.start();
    }
    onClosing: poll.stop()

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
        id: status
        name: qsTrId("kiv-battery-status")
        words: batteryWords.states
    }
    Measurement {
        id: colour
        //% "Light while charging"
        name: qsTrId("kiv-led-colour")
        value: page.seen
        settled: page.seen !== ""
    }

    StepList {
        width: parent.width
        steps: [
            //% "Plug a charger into the USB socket"
            { text: qsTrId("kiv-charging-step-plug"), done: page.chargingSeen },
            //% "Say what the light does"
            { text: qsTrId("kiv-led-step-colour"), done: page.seen !== "" },
            //% "Unplug the charger"
            { text: qsTrId("kiv-led-step-unplug"), done: page.unpluggedSeen }
        ]
    }
    PushButton {
        objectName: "plugged"
        width: parent.width
        visible: page.isOpen && !page.observed && !page.chargingSeen
        //% "The charger is plugged in"
        text: qsTrId("kiv-led-plugged")
        onClicked: page.chargingSeen = true
    }
    PushButton {
        objectName: "unplugged"
        width: parent.width
        visible: page.isOpen && !page.observed && page.seen !== "" && !page.unpluggedSeen && page.verdict === ""
        //% "The charger is unplugged"
        text: qsTrId("kiv-led-unplugged")
        onClicked: page.unpluggedSeen = true
    }
    Column {
        width: parent.width
        spacing: Theme.gap
        visible: page.isOpen && page.chargingSeen && page.seen === ""

        Words {
            width: parent.width
            //% "What does the light show?"
            text: qsTrId("kiv-led-question")
            font.pixelSize: Theme.lead
            font.weight: Font.DemiBold
        }
        Grid {
            id: answers
            readonly property real columnWidth: Math.floor((width - spacing) / 2)
            width: parent.width
            columns: 2
            spacing: Theme.gap

            Repeater {
                // A light of one colour is lit or not.
                model: page.colourful ? [
                    //% "Red"
                    { value: "red", text: qsTrId("kiv-led-red") },
                    //% "Orange or yellow"
                    { value: "orange", text: qsTrId("kiv-led-orange") },
                    //% "Green"
                    { value: "green", text: qsTrId("kiv-led-green") },
                    //% "Blue"
                    { value: "blue", text: qsTrId("kiv-led-blue") },
                    //% "White"
                    { value: "white", text: qsTrId("kiv-led-white") },
                    //% "Nothing"
                    { value: "none", text: qsTrId("kiv-led-nothing") }
                ] : [
                    //% "It is lit"
                    { value: "lit", text: qsTrId("kiv-led-lit") },
                    { value: "none", text: qsTrId("kiv-led-nothing") }
                ]

                PushButton {
                    objectName: "light-" + modelData.value
                    width: answers.columnWidth
                    height: Theme.target + Theme.margin
                    text: modelData.text
                    onClicked: page.say(modelData)
                }
            }
        }
    }
    Checks {
        width: parent.width
        asking: page.isOpen && page.unpluggedSeen && page.verdict === ""
        questions: [
            //% "Is the light still lit as before?"
            { name: "out", text: qsTrId("kiv-led-still"), good: false,
              //% "The light does not change when the charger is unplugged."
              bad: qsTrId("kiv-led-still-bad") }
        ]
        //: What the operator saw of the notification light
        //% "The operator saw the light while the phone charged (%1), and saw it go out."
        onPassed: page.judge(FactoryUtils.Pass, qsTrId("kiv-led-good").arg(page.seen))
        onFailed: page.judge(FactoryUtils.Fail, reason)
    }
    Notice {
        width: parent.width
        visible: page.verdict === ""
        //% "Kiv cannot switch this light: it shows what the phone wants to tell, such as that it charges."
        text: qsTrId("kiv-led-note")
    }
}
