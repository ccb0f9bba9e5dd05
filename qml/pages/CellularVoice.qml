// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0

GuidedPage {
    id: page

    function questionsOf(sim) {
        return [
            //% "SIM card %1: could you hear the other end?"
            { name: "heard" + sim, text: qsTrId("kiv-voice-heard").arg(sim),
              //% "SIM card %1: the other end could not be heard."
              bad: qsTrId("kiv-voice-heard-bad").arg(sim) },
            //% "SIM card %1: did the call break off, crackle or echo?"
            { name: "clear" + sim, text: qsTrId("kiv-voice-clear").arg(sim), good: false,
              //% "SIM card %1: the call broke off, crackled or echoed."
              bad: qsTrId("kiv-voice-clear-bad").arg(sim) },
            //% "SIM card %1: could the other end hear you?"
            { name: "spoke" + sim, text: qsTrId("kiv-voice-spoke").arg(sim),
              //% "SIM card %1: the other end heard nothing."
              bad: qsTrId("kiv-voice-spoke-bad").arg(sim) }
        ];
    }

    feature: "CellularVoice"
    //% "No modem was found, so no call can be made."
    featureMissing: qsTrId("kiv-voice-missing")
    //% "Call a second phone or a test line with the phone's own dialler, speak for a moment, and hang up."
    instructions: qsTrId("kiv-voice-instructions")
    //% "Kiv makes no calls by itself. Where the phone has two SIM cards, call with each."
    note: qsTrId("kiv-voice-note")
    //% "The operator made a call and both ends heard each other."
    goodReason: qsTrId("kiv-voice-good")

    onOpened: {
        var all = [];
        for (var sim = 1; sim <= Math.max(1, KivHwSettings.modemCount); ++sim)
            all = all.concat(questionsOf(sim));
        questions = all;
    }
}
