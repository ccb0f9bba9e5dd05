// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtMultimedia 5.15
import Kiv 1.0
import "../controls"

/*!
 * One camera's live picture, or at random a still one that was taken from it a moment ago: who moves the phone sees which
 * it is. Then the camera's light, at random on or off. Pictures stay in memory; the camera is let go when the page is
 * left.
 */
TestPage {
    id: page

    /*! Camera.FrontFace or Camera.BackFace. */
    property int position
    property string absentText
    /*! Whether the phone is meant to have a light beside this camera. */
    property bool lightWanted: false

    readonly property int patienceMs: 8000
    property string device
    readonly property Camera camera: loader.item
    /*! The first picture has come. */
    readonly property bool seeing: view.sourceRect.width > 0
    /*! How the light can be made to burn steadily; -1 where it cannot. */
    property int steadyLight: -1
    /*! A picture that was taken from the camera covers the live one. */
    property bool stillShown: false

    function find() {
        if (!isOpen)
            return;
        var cameras = QtMultimedia.availableCameras.filter(function(camera) {
            return camera.position === page.position;
        });
        missing = cameras.length > 0 ? "" : absentText;
        if (missing !== "")
            return;
        device = cameras[0].deviceId;
        patience.start();
        loader.active = true;
    }

    function giveUp() {
        //% "The camera delivers no picture."
        trouble = qsTrId("kiv-camera-dark") + (camera && camera.errorString ? "\n" + camera.errorString : "");
        patience.stop();
        judge(FactoryUtils.Fail, trouble);
    }

    function begin() {
        patience.stop();
        exercised = true;
        if (unattended)
            return;
        if (lightWanted) {
            var modes = Array.prototype.slice.call(camera.flash.supportedModes);
            steadyLight = [Camera.FlashTorch, Camera.FlashVideoLight, Camera.FlashFill].filter(function(mode) {
                return modes.indexOf(mode) >= 0;
            }).concat([-1])[0];
        }
        motion.start();
    }

    function showStill(wanted) {
        stillShown = false;
        still.source = "";
        if (!wanted)
            return;
        view.grabToImage(function(picture) {
            // The next answer may have come before the picture.
            if (!page.isOpen || motion.expected !== "still")
                return;
            // The engine deletes the picture after this; the image keeps what it has taken from it.
            still.source = picture.url;
            page.stillShown = true;
        });
    }

    function setLight(on) {
        if (camera && steadyLight >= 0)
            camera.flash.mode = on ? steadyLight : Camera.FlashOff;
    }

    //% "Move the phone a little and watch the picture. Tap it to see it large."
    readonly property string advice: qsTrId("kiv-camera-instructions")

    // The questions take its place: on a small screen they would not fit below both.
    instructions: exercised && !unattended ? "" : advice
    evidence: false
    //% "Pass unlocks when you have answered the questions."
    evidenceHint: qsTrId("kiv-guided-hint")

    //% "Looking for the camera"
    onOpened: blocking(qsTrId("kiv-camera-working"), find)
    onClosing: {
        patience.stop();
        motion.stop();
        light.stop();
        setLight(false);
        fullScreen = false;
        showStill(false);
        loader.active = false;
    }
    onSeeingChanged: if (seeing && patience.running) begin()

    Loader {
        id: loader
        active: false
        sourceComponent: Camera {
            deviceId: page.device
            captureMode: Camera.CaptureViewfinder
            onError: page.giveUp()
        }
    }
    Timer {
        id: patience
        interval: page.patienceMs
        onTriggered: page.giveUp()
    }

    cover: Rectangle {
        color: "#000000"
        Component.onCompleted: picture.parent = this
        Component.onDestruction: picture.parent = place

        MouseArea {
            anchors.fill: parent
            Accessible.role: Accessible.Button
            Accessible.name: page.advice
            onClicked: page.fullScreen = false
        }
    }

    Item {
        id: place
        width: parent.width
        height: Math.round(Math.min(width * 0.66, Theme.height * 0.25))
        visible: page.isOpen && page.missing === ""

        Item {
            id: picture
            anchors.fill: parent

            Rectangle {
                anchors.fill: parent
                color: "#000000"
            }
            VideoOutput {
                id: view
                anchors.fill: parent
                source: page.camera
                autoOrientation: true
            }
            Image {
                id: still
                objectName: "still"
                anchors.fill: parent
                visible: page.stillShown
            }
        }
        MouseArea {
            anchors.fill: parent
            enabled: page.seeing
            Accessible.role: Accessible.Button
            Accessible.name: page.advice
            onClicked: page.fullScreen = true

            Rectangle {
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                width: 5 * Theme.unit
                height: width
                visible: page.seeing
                color: "#90000000"

                Icon {
                    anchors.centerIn: parent
                    name: "enlarge"
                    color: "#ffffff"
                }
            }
        }
    }
    Challenge {
        id: motion
        objectName: "motion"
        width: parent.width
        // A still picture has to be there before it can be told from a moving one.
        ready: page.stillShown || expected !== "still"
        rounds: 3
        //% "What does the picture do when you move the phone?"
        question: qsTrId("kiv-camera-question")
        choices: [
            //% "It follows"
            { value: "live", text: qsTrId("kiv-camera-live") },
            //% "It stands still"
            { value: "still", text: qsTrId("kiv-camera-still") }
        ]
        onPosed: page.showStill(value === "still")
        onPassed: {
            page.showStill(false);
            if (page.steadyLight >= 0)
                light.start();
        }
        onFailed: page.judge(FactoryUtils.Fail, reason)
    }
    Challenge {
        id: light
        objectName: "light"
        width: parent.width
        rounds: 3
        //% "Is the light beside the camera on?"
        question: qsTrId("kiv-camera-light")
        choices: [
            { value: "on", text: qsTrId("kiv-checks-yes") },
            { value: "off", text: qsTrId("kiv-checks-no") }
        ]
        onPosed: page.setLight(value === "on")
        onPassed: page.setLight(false)
        onFailed: {
            page.setLight(false);
            page.judge(FactoryUtils.Fail, reason);
        }
    }
    Checks {
        width: parent.width
        asking: page.isOpen && page.verdict === "" && motion.solved && (light.solved || page.steadyLight < 0)
        questions: [
            //% "Are there stains, stripes or wrong colours in the picture?"
            { name: "stains", text: qsTrId("kiv-camera-stains"), good: false,
              //% "The picture has stains, stripes or wrong colours."
              bad: qsTrId("kiv-camera-stains-bad") },
            //% "Is it sharp?"
            { name: "sharp", text: qsTrId("kiv-camera-sharp"),
              //% "The picture is not sharp."
              bad: qsTrId("kiv-camera-sharp-bad") }
        ].concat(!page.lightWanted || page.steadyLight >= 0 ? [] : [
            //% "The camera lets nobody switch its light. Take a picture with flash in the phone's own camera program: does it flash?"
            { name: "flash", text: qsTrId("kiv-camera-flash"),
              //% "The camera does not flash."
              bad: qsTrId("kiv-camera-flash-bad") }
        ])
        //% "The operator saw a live picture without faults."
        onPassed: page.judge(FactoryUtils.Pass, qsTrId("kiv-camera-good"))
        onFailed: page.judge(FactoryUtils.Fail, reason)
    }
}
