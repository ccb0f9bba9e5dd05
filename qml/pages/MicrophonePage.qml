// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

/*!
 * Records from one microphone and plays the recording back. The recorder itself puts the microphone's port back.
 *
 * There is no level meter: the recorder gives no samples while it records, and a second listener at the sound server
 * would hear another stream than the one that is judged. The page says so, and the playback is what is judged.
 */
TestPage {
    id: page

    property alias inputSource: recorder.inputSource
    readonly property int recordingMs: 4000

    /*! "idle", "recording" or "playing". */
    property string phase: "idle"
    /*! What is to be done once the sound server has answered: "look", "record", "play" or "conclude". */
    property string asked
    property bool found: false
    property bool recorded: false
    property bool heard: false

    // Qt waits for ever for a server that hangs, so nothing is begun before it has answered.
    function ask(what) {
        asked = what;
        link.ask();
    }

    function look() {
        //% "The sound server has no built-in microphone, or its tool does not answer."
        missing = sound.builtinSourceName() === "" ? qsTrId("kiv-microphone-missing") : "";
        found = missing === "";
    }

    function record() {
        recorder.stop();
        recorder.record();
        phase = "recording";
        clock.restart();
    }

    function play() {
        // An output that stands at the end of the last recording does not go back by itself.
        recorder.stop();
        recorder.play();
        recorded = true;
        phase = "playing";
        streams.active = true;
        clock.restart();
    }

    function conclude() {
        phase = "idle";
        // The server's own list, which has Kiv's stream in it as long as the recorder plays. Silent effects are paused in it.
        heard = streams.item.anyPlays();
        if (!heard)
            //% "The sound server did not play the recording: it was restarted while Kiv was running. Restart Kiv."
            trouble = qsTrId("kiv-microphone-unplayed");
        streams.active = false;
        recorder.stop();
    }

    function halt() {
        asked = "";
        link.stop();
        clock.stop();
        streams.active = false;
        recorder.stop();
        phase = "idle";
    }

    evidence: missing === "" && trouble === "" && heard
    //% "Pass unlocks when a recording has been played back."
    evidenceHint: qsTrId("kiv-microphone-hint")

    onOpened: ask("look")
    onClosing: halt()

    PaCmd {
        id: sound
    }
    Recorder {
        id: recorder
        kivMode: true
    }
    SoundLink {
        id: link
        onReached: {
            var what = page.asked;
            page.asked = "";
            if (what === "look")
                //% "Looking for the microphone"
                page.blocking(qsTrId("kiv-microphone-working"), page.look);
            else if (what === "record")
                page.record();
            else if (what === "play")
                page.play();
            else
                page.conclude();
        }
        onLost: {
            if (page.asked === "look") {
                page.missing = qsTrId("kiv-sound-unreached");
                return;
            }
            page.trouble = qsTrId("kiv-sound-unreached");
            page.heard = false;
            // The commands of a server that hangs are waited for.
            //% "Putting the microphone back. This takes up to two minutes while the sound server does not answer."
            page.blocking(qsTrId("kiv-microphone-putting-back"), page.halt);
        }
    }
    Loader {
        id: streams
        active: false
        sourceComponent: Component {
            Item {
                function anyPlays() {
                    for (var i = 0; i < rows.count; ++i) {
                        if (!rows.itemAt(i).corked)
                            return true;
                    }
                    return false;
                }

                Repeater {
                    id: rows
                    model: PulseAudio {}

                    Item {
                        readonly property bool corked: model.corked
                    }
                }
            }
        }
    }
    Timer {
        id: clock
        interval: page.recordingMs
        onTriggered: page.ask(page.phase === "recording" ? "play" : "conclude")
    }

    Notice {
        objectName: "phase"
        width: parent.width
        visible: page.phase !== "idle"
        text: page.phase === "recording"
              //% "Recording: speak now."
              ? qsTrId("kiv-microphone-recording")
              //% "Playing what was recorded."
              : qsTrId("kiv-microphone-playing")
        detail: page.phase === "recording"
                //% "The phone shows no level. Listen to the recording afterwards."
                ? qsTrId("kiv-microphone-no-level") : ""

        Rectangle {
            id: progress
            anchors.bottom: parent.bottom
            height: Math.round(Theme.unit / 2)
            radius: height / 2
            color: Theme.accent
            width: 0
        }
        NumberAnimation {
            target: progress
            property: "width"
            running: page.phase !== "idle" && clock.running
            from: 0
            to: progress.parent.width
            duration: page.recordingMs
        }
    }
    PushButton {
        objectName: "record"
        width: parent.width
        visible: page.missing === ""
        enabled: page.isOpen && page.found && page.phase !== "recording" && page.asked === ""
        glyph: "microphone"
        //% "Record four seconds"
        text: qsTrId("kiv-microphone-record")
        onClicked: {
            clock.stop();
            streams.active = false;
            page.trouble = "";
            page.phase = "idle";
            page.ask("record");
        }
    }
    PushButton {
        objectName: "play"
        width: parent.width
        visible: page.missing === ""
        enabled: page.isOpen && page.recorded && page.phase === "idle" && page.asked === ""
        glyph: "speaker"
        //% "Play it again"
        text: qsTrId("kiv-microphone-play")
        onClicked: {
            page.trouble = "";
            page.ask("play");
        }
    }
    Words {
        objectName: "silent"
        width: parent.width
        visible: page.heard && page.phase === "idle"
        //% "Nothing heard? Then the microphone is deaf, or the folder /tmp is full: a recording takes about 800 kB there."
        text: qsTrId("kiv-microphone-silent")
        color: Theme.muted
        font.pixelSize: Theme.small
    }
}
