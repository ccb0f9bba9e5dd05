// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import "../controls"

SoundPage {
    port: "output-speaker"
    //% "Play each sound: it must come from the side that its button names."
    instructions: qsTrId("kiv-speaker-stereo-instructions")
    sounds: [
        //% "Left: low tone"
        { name: "left", text: qsTrId("kiv-sound-left"), file: "left.wav" },
        //% "Right: high tone"
        { name: "right", text: qsTrId("kiv-sound-right"), file: "right.wav" },
        //% "Both sides"
        { name: "both", text: qsTrId("kiv-sound-both"), file: "both.wav" }
    ]
}
