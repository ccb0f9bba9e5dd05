// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtFeedback 5.0
import Kiv 1.0
import "../controls"

/*! The phone gives a random number of pulses, and the operator says how many he felt. */
TestPage {
    id: page

    readonly property var choices: [1, 2, 3]
    readonly property int pulseMs: 350
    readonly property int pauseMs: 450
    property bool motor: false

    property int given: 0
    property int sent: 0
    property bool felt: false

    function play() {
        sent = 0;
        pulses.start();
    }

    function pulse() {
        if (motor)
            haptics.start();
        else
            theme.play();
        if (++sent >= given)
            pulses.stop();
    }

    function answer(count) {
        felt = true;
        if (count === given)
            //% "The operator felt the pulses that were given: %1"
            judge(FactoryUtils.Pass, qsTrId("kiv-vibrator-good").arg(given));
        else
            //% "Pulses given: %1, felt: %2"
            judge(FactoryUtils.Fail, qsTrId("kiv-vibrator-bad").arg(given).arg(count));
    }

    //% "Hold the phone in the hand and count the pulses."
    instructions: qsTrId("kiv-vibrator-instructions")
    evidence: false
    //% "Pass unlocks when you have said how many pulses you felt."
    evidenceHint: qsTrId("kiv-vibrator-hint")

    onOpened: {
        motor = haptics.availableActuators.length > 0;
        //% "No vibrator was found."
        missing = motor || theme.supported ? "" : qsTrId("kiv-vibrator-missing");
        if (missing !== "")
            return;
        given = choices[Math.floor(Math.random() * choices.length)];
        play();
    }
    onClosing: {
        pulses.stop();
        haptics.stop();
    }

    HapticsEffect {
        id: haptics
        duration: page.pulseMs
        intensity: 1.0
    }
    ThemeEffect {
        id: theme
        effect: ThemeEffect.PressStrong
    }
    Timer {
        id: pulses
        interval: page.pulseMs + page.pauseMs
        repeat: true
        triggeredOnStart: true
        onTriggered: page.pulse()
    }

    Column {
        width: parent.width
        spacing: Theme.margin
        visible: page.missing === ""

        Words {
            width: parent.width
            //% "How many pulses did you feel?"
            text: qsTrId("kiv-vibrator-question")
            font.weight: Font.DemiBold
        }
        Row {
            width: parent.width
            spacing: Theme.gap

            Repeater {
                model: [0].concat(page.choices)

                PushButton {
                    objectName: "felt" + modelData
                    width: (page.width - 3 * Theme.gap) / 4
                    implicitWidth: width
                    enabled: page.isOpen && !page.felt
                    text: modelData
                    onClicked: page.answer(modelData)
                }
            }
        }
        PushButton {
            width: parent.width
            enabled: page.isOpen && !page.felt && !pulses.running
            glyph: "retry"
            //% "Give the pulses again"
            text: qsTrId("kiv-vibrator-again")
            onClicked: page.play()
        }
    }
}
