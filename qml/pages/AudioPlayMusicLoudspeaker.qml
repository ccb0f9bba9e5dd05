// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import "../controls"

SoundPage {
    port: "output-speaker"
    //% "Play the tune and listen to the loudspeaker: every tone must be clear, without rattling."
    guidance: qsTrId("kiv-speaker-music-instructions")
    //% "Play the tune"
    sounds: [{ name: "tune", text: qsTrId("kiv-sound-tune"), file: "tune.wav", ms: 4000 }]
}
