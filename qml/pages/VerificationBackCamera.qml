// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtMultimedia 5.15
import Kiv 1.0

CameraPage {
    position: Camera.BackFace
    //% "No back camera was found."
    absentText: qsTrId("kiv-camera-back-missing")
    lightWanted: KivHwSettings.backCameraFlash && Features.supported("BackCameraFlash", "VerificationBackCamera")
}
