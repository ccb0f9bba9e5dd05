// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

/*!
 * Plays sounds through one port of the phone's output, and asks whether they were heard. The port that was active before
 * comes back when the page is left.
 */
TestPage {
    id: page

    /*! The output's port by its name in the sound server. */
    property string port
    /*! A list of {name, text, file, ms}; the operator must have played all of them. */
    property var sounds: []
    /*! What the operator has to do with them. */
    property string guidance
    /*! The page is ready to play: a headset is plugged in. */
    property bool ready: true
    /*! Whether the operator is asked from which side a tone comes. His answers are the verdict then. */
    property bool asksForSides: false

    property string sink
    property string portBefore
    property string playing
    property var played: []
    property bool prepared: false
    readonly property bool asking: asksForSides && missing === "" && allPlayed
    readonly property bool allPlayed: sounds.every(function(entry) { return played.indexOf(entry.name) >= 0; })

    function prepare() {
        sink = sound.primarySinkName();
        if (sink === "") {
            //% "The sound server has no main output, or its tool does not answer."
            missing = qsTrId("kiv-sound-missing");
            return;
        }
        portBefore = sound.primarySinkActivePort();
        sound.setSinkPort(sink, port);
        // A sound that comes from elsewhere would be judged for this output.
        if (sound.primarySinkActivePort() !== port) {
            //: The name of the output in the sound server
            //% "The sound server does not switch to the output %1."
            missing = qsTrId("kiv-sound-unswitched").arg(port);
            return;
        }
        prepared = true;
        if (unattended)
            playNext();
    }

    /*! One sound after the other, where nobody presses the buttons. */
    function playNext() {
        var place = sounds.map(function(entry) { return entry.name; }).indexOf(playing);
        var entry = sounds[(place + 1) % sounds.length];
        if (entry.name !== playing)
            play(entry.name, entry.file, entry.ms);
    }

    function play(name, file, ms) {
        trouble = "";
        playing = name;
        link.play(file, ms);
    }

    function hush() {
        link.stop();
        playing = "";
    }

    // The question takes its place.
    instructions: asking && ready ? "" : guidance
    exercised: prepared && allPlayed
    evidence: missing === "" && trouble === "" && !asksForSides && allPlayed
    evidenceHint: asking
                  //% "Answer from which side each tone comes: the answers are the verdict."
                  ? qsTrId("kiv-sides-hint")
                  //% "Pass unlocks when every sound has been played."
                  : qsTrId("kiv-sound-hint")

    onOpened: link.ask()
    onClosing: {
        hush();
        // By its name, so that a server that hangs holds up the leaving only once.
        if (portBefore !== "" && portBefore !== port)
            sound.setSinkPort(sink, portBefore);
    }
    onReadyChanged: if (!ready) hush()
    onVerdictChanged: hush()

    PaCmd {
        id: sound
    }
    SoundLink {
        id: link
        //% "Setting up the sound output"
        onReached: page.blocking(qsTrId("kiv-sound-working"), page.prepare)
        onLost: {
            page.playing = "";
            //% "The sound server does not answer. Try again once it runs. If that does not help, restart Kiv."
            var words = qsTrId("kiv-sound-unreached");
            if (page.prepared)
                page.trouble = words;
            else
                page.missing = words;
        }
        onTaken: {
            if (page.playing !== "" && page.played.indexOf(page.playing) < 0)
                page.played = page.played.concat([page.playing]);
            if (page.unattended)
                page.playNext();
        }
    }

    Loader {
        width: parent.width
        active: page.asksForSides
        visible: page.asking
        sourceComponent: SideQuestions {
            objectName: "sides"
            enabled: page.isOpen && page.ready && page.verdict === ""
            onPlayRequested: page.play("side", file, 800)
            onRight: page.judge(FactoryUtils.Pass, reason)
            onWrong: page.judge(FactoryUtils.Fail, reason)
        }
    }

    Column {
        width: parent.width
        spacing: Theme.gap
        visible: page.missing === ""

        Repeater {
            model: page.sounds

            PushButton {
                objectName: modelData.name
                width: parent.width
                enabled: page.prepared && page.isOpen && page.ready && page.verdict === ""
                text: modelData.text
                glyph: page.played.indexOf(modelData.name) >= 0 ? "pass" : "speaker"
                fill: page.playing === modelData.name ? Theme.accent : Theme.surface
                ink: page.playing === modelData.name ? Theme.accentInk : Theme.text
                onClicked: {
                    if (page.playing === modelData.name)
                        page.hush();
                    else
                        page.play(modelData.name, modelData.file, modelData.ms);
                }
            }
        }
    }
}
