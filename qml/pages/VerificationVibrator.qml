// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtFeedback 5.0
import Kiv 1.0
import "../controls"

/*! The phone gives a random number of pulses, and the operator says how many he felt. */
TestPage {
    id: page

    readonly property int pulseMs: 350
    readonly property int pauseMs: 450
    property bool motor: false

    property int sent: 0

    function play() {
        sent = 0;
        pulses.restart();
    }

    /*! Once more than there are pulses: the last one has to be over before it can be counted. */
    function pulse() {
        if (++sent > challenge.expected)
            pulses.stop();
        else if (motor)
            haptics.start();
        else
            theme.play();
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
        challenge.start();
    }
    onClosing: {
        pulses.stop();
        challenge.stop();
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

    Challenge {
        id: challenge
        width: parent.width
        ready: !pulses.running
        // Once, somebody who always says the same would pass a dead motor nearly every second time.
        rounds: 2
        //% "How many pulses did you feel?"
        question: qsTrId("kiv-vibrator-question")
        values: [1, 2, 3, 4]
        choices: [
            //% "None"
            { value: 0, text: qsTrId("kiv-vibrator-none") }
        ].concat(values.map(function(count) {
            return { value: count, text: Number(count).toLocaleString(Qt.locale(), "f", 0) };
        }))
        //% "Give the pulses again"
        againText: qsTrId("kiv-vibrator-again")
        onPosed: page.play()
        //% "The operator felt as many pulses as were given."
        onPassed: page.judge(FactoryUtils.Pass, qsTrId("kiv-vibrator-good"))
        onFailed: page.judge(FactoryUtils.Fail, reason)
    }
}
