// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

/*! Records from one microphone and plays the recording back. The recorder itself puts the microphone's port back. */
TestPage {
    id: page

    property alias inputSource: recorder.inputSource
    readonly property int recordingMs: 4000

    /*! "idle", "recording" or "playing". */
    property string phase: "idle"
    property bool found: false
    property bool recorded: false
    property bool heard: false

    function look() {
        //% "The sound server does not answer, or it knows no built-in microphone."
        missing = sound.builtinSourceName() === "" ? qsTrId("kiv-microphone-missing") : "";
        found = missing === "";
    }

    function record() {
        clock.stop();
        recorder.stop();
        recorder.record();
        phase = "recording";
        clock.restart();
    }

    function play() {
        clock.stop();
        // An output that stands at the end of the last recording does not go back by itself.
        recorder.stop();
        recorder.play();
        recorded = true;
        phase = "playing";
        clock.restart();
    }

    function finish() {
        if (phase === "recording") {
            play();
            return;
        }
        recorder.stop();
        heard = true;
        phase = "idle";
    }

    evidence: missing === "" && heard
    //% "Pass unlocks when a recording has been played back."
    evidenceHint: qsTrId("kiv-microphone-hint")

    //% "Looking for the microphone"
    onOpened: blocking(qsTrId("kiv-microphone-working"), look)
    onClosing: {
        clock.stop();
        recorder.stop();
        phase = "idle";
    }

    PaCmd {
        id: sound
    }
    Recorder {
        id: recorder
        kivMode: true
    }
    Timer {
        id: clock
        interval: page.recordingMs
        onTriggered: page.finish()
    }

    Notice {
        width: parent.width
        visible: page.phase !== "idle"
        text: page.phase === "recording"
              //% "Recording: speak now."
              ? qsTrId("kiv-microphone-recording")
              //% "Playing what was recorded."
              : qsTrId("kiv-microphone-playing")
    }
    PushButton {
        objectName: "record"
        width: parent.width
        visible: page.missing === ""
        enabled: page.isOpen && page.found && page.phase !== "recording"
        glyph: "microphone"
        //% "Record four seconds"
        text: qsTrId("kiv-microphone-record")
        onClicked: page.record()
    }
    PushButton {
        objectName: "play"
        width: parent.width
        visible: page.missing === ""
        enabled: page.isOpen && page.recorded && page.phase === "idle"
        glyph: "speaker"
        //% "Play it again"
        text: qsTrId("kiv-microphone-play")
        onClicked: page.play()
    }
}
