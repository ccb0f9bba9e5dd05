// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtMultimedia 5.15

/*! Short sounds for an operator who looks elsewhere. Everything they say is on the screen, too. */
QtObject {
    id: cue

    function play(name) {
        var effect = name === "pass" ? pass : name === "fail" ? fail : attention;
        effect.play();
    }

    readonly property var pass: SoundEffect { source: "../sounds/cue-pass.wav" }
    readonly property var fail: SoundEffect { source: "../sounds/cue-fail.wav" }
    readonly property var attention: SoundEffect { source: "../sounds/cue-attention.wav" }
}
