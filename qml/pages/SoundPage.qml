// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtMultimedia 5.15
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
    /*! A list of {name, text, file}; the operator must have played all of them. */
    property var sounds: []
    /*! The page is ready to play: a headset is plugged in. */
    property bool ready: true

    property string portBefore
    property string playing
    property var played: []

    function prepare() {
        //% "The sound server does not answer, or it has no main output."
        missing = sound.primarySinkName() === "" ? qsTrId("kiv-sound-missing") : "";
        if (missing !== "")
            return;
        portBefore = sound.primarySinkActivePort();
        sound.setPrimarySinkPort(port);
    }

    function play(entry) {
        player.stop();
        playing = entry.name;
        player.source = Qt.resolvedUrl("../sounds/" + entry.file);
        player.play();
        heard.restart();
    }

    function hush() {
        heard.stop();
        player.stop();
        playing = "";
    }

    evidence: missing === "" && played.length >= sounds.length
    //% "Pass unlocks when every sound has been played."
    evidenceHint: qsTrId("kiv-sound-hint")

    //% "Setting up the sound output"
    onOpened: blocking(qsTrId("kiv-sound-working"), prepare)
    onClosing: {
        hush();
        if (portBefore !== "" && portBefore !== port)
            sound.setPrimarySinkPort(portBefore);
    }
    onReadyChanged: if (!ready) hush()

    PaCmd {
        id: sound
    }
    SoundEffect {
        id: player
        loops: SoundEffect.Infinite
        category: "kiv"
    }
    // What was cut short has not been heard.
    Timer {
        id: heard
        interval: 1000
        onTriggered: {
            if (page.played.indexOf(page.playing) < 0)
                page.played = page.played.concat([page.playing]);
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
                enabled: page.isOpen && page.ready
                text: modelData.text
                glyph: "speaker"
                fill: page.playing === modelData.name ? Theme.accent : Theme.surface
                ink: page.playing === modelData.name ? Theme.accentInk : Theme.text
                onClicked: page.playing === modelData.name ? page.hush() : page.play(modelData)
            }
        }
    }
}
