// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import KivFake 1.0

/*! A camera as Qt's, with the light and the faults that the phone says. */
QtObject {
    id: camera

    enum Position { UnspecifiedPosition, BackFace, FrontFace }
    enum CaptureMode { CaptureViewfinder, CaptureStillImage, CaptureVideo }
    enum FlashMode { FlashAuto = 1, FlashOff = 2, FlashOn = 4, FlashRedEyeReduction = 8, FlashFill = 16,
                     FlashTorch = 32, FlashVideoLight = 64 }

    property string deviceId
    property int captureMode
    property string errorString
    readonly property bool delivers: Phone.cameraDelivers
    readonly property QtObject flash: QtObject {
        readonly property var supportedModes: Phone.cameraLightModes
        readonly property bool ready: camera.deviceId === "back"
        property int mode: Camera.FlashOff
        onModeChanged: Phone.cameraLight = mode !== Camera.FlashOff
    }

    signal error(int errorCode, string errorString)

    property Timer trouble: Timer {
        interval: 20
        running: Phone.cameraError !== ""
        onTriggered: {
            camera.errorString = Phone.cameraError;
            camera.error(1, Phone.cameraError);
        }
    }

    Component.onCompleted: Phone.note("camera on")
    Component.onDestruction: Phone.note("camera off")
}
