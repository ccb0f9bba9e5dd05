// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import "../controls"

SoundPage {
    port: "output-speaker"
    //% "Play each sound: it must come from the side that its button names."
    guidance: qsTrId("kiv-speaker-stereo-instructions")
    asksForSides: true
    sounds: [
        //% "Left: low tone"
        { name: "left", text: qsTrId("kiv-sound-left"), file: "left.wav", ms: 800 },
        //% "Right: high tone"
        { name: "right", text: qsTrId("kiv-sound-right"), file: "right.wav", ms: 800 },
        //% "Both sides"
        { name: "both", text: qsTrId("kiv-sound-both"), file: "both.wav", ms: 800 }
    ]
}
