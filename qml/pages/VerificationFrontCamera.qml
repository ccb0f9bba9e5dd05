// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtMultimedia 5.15
import Kiv 1.0

CameraPage {
    position: Camera.FrontFace
    //% "No front camera was found."
    absentText: qsTrId("kiv-camera-front-missing")
    // Few phones have one at the front, though all are taken to: only where the camera offers it.
    lightWanted: Features.supported("FrontCameraFlash", "VerificationFrontCamera") && frontLight
    readonly property bool frontLight: camera !== null && camera.flash.ready
}
