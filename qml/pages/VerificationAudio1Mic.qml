// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

MicrophonePage {
    inputSource: Recorder.BottomMicrophone
    //% "Speak into the microphone at the bottom of the phone and listen to the recording."
    instructions: qsTrId("kiv-microphone-bottom")
}
