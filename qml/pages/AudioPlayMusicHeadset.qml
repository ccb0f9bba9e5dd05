// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

SoundPage {
    id: page

    port: "output-wired_headphone"
    ready: route.wiredOutputConnected
    guidance: ready
              //% "Play each sound and listen to the headset: it must come from the side that its button names."
              ? qsTrId("kiv-headset-music-instructions")
              //% "Plug a headset in."
              : qsTrId("kiv-headset-music-instructions-plug")
    measurements: [plugged]
    asksForSides: true
    sounds: [
        { name: "left", text: qsTrId("kiv-sound-left"), file: "left.wav", ms: 800 },
        { name: "right", text: qsTrId("kiv-sound-right"), file: "right.wav", ms: 800 },
        { name: "tune", text: qsTrId("kiv-sound-tune"), file: "tune.wav", ms: 4000 }
    ]

    AudioRoute {
        id: route
    }
    Measurement {
        id: plugged
        //% "Headset"
        name: qsTrId("kiv-headset-music-plugged")
        value: route.wiredOutputConnected
    }
}
