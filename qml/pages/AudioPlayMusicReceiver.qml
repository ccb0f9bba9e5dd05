// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import "../controls"

SoundPage {
    port: "output-earpiece"
    //% "Play the tune and hold the phone to your ear: it must come from the earpiece only."
    guidance: qsTrId("kiv-receiver-instructions")
    //% "Play the tune"
    sounds: [{ name: "tune", text: qsTrId("kiv-sound-tune"), file: "tune.wav", ms: 4000 }]
}
