// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtMultimedia 5.15
import Kiv 1.0
import "../controls"
import "../controls/Lists.js" as Lists

/*! A short video in which a random number of squares crosses the picture; in the codec that this phone can decode. */
TestPage {
    id: page

    /*! The first one that the phone can play is taken. */
    readonly property var codecs: [
        { suffix: "mp4", name: "H.264" },
        { suffix: "webm", name: "VP8" }
    ]
    readonly property int patienceMs: 8000
    property int codec: 0
    property int squares: 0
    /*! The video that is on the screen has been seen to its end. */
    property bool seen: false
    property bool started: false

    function play(count) {
        squares = count;
        seen = false;
        player.stop();
        // The same video is not opened anew by naming it again.
        player.source = "";
        player.source = Qt.resolvedUrl("../video/squares-" + count + "." + codecs[codec].suffix);
        player.play();
        patience.restart();
    }

    function nextCodec() {
        if (!isOpen || verdict !== "" || missing !== "")
            return;
        patience.stop();
        if (started) {
            //% "The video stopped: %1"
            trouble = qsTrId("kiv-video-stopped").arg(player.errorString);
            judge(FactoryUtils.Fail, trouble);
        } else if (codec + 1 < codecs.length) {
            ++codec;
            play(squares);
        } else {
            challenge.stop();
            //: The names of the codecs that were tried
            //% "The system has no decoder for the test video (%1): install one, or test with a video of the phone's own."
            missing = qsTrId("kiv-video-missing").arg(Lists.enumerate(codecs.map(function(codec) { return codec.name; })));
        }
    }

    //% "Watch the video and count the squares that cross the picture."
    instructions: seen ? "" : qsTrId("kiv-video-instructions")
    measurements: [format, played]
    evidence: false
    //% "Pass unlocks when you have answered the questions."
    evidenceHint: qsTrId("kiv-guided-hint")

    onOpened: {
        if (unattended)
            play(2);
        else
            challenge.start();
    }
    onClosing: {
        patience.stop();
        challenge.stop();
        player.stop();
        player.source = "";
    }

    MediaPlayer {
        id: player
        notifyInterval: 250
        onPositionChanged: {
            if (position > 0) {
                page.started = true;
                patience.restart();
            }
        }
        onError: page.nextCodec()
        onStatusChanged: {
            if (status === MediaPlayer.InvalidMedia) {
                page.nextCodec();
            } else if (status === MediaPlayer.EndOfMedia) {
                page.seen = page.exercised = page.started;
                patience.stop();
                if (page.unattended)
                    page.play(page.squares);
            }
        }
    }
    Timer {
        id: patience
        interval: page.patienceMs
        onTriggered: page.nextCodec()
    }

    Rectangle {
        width: parent.width
        height: Math.round(width * 9 / 16)
        visible: page.isOpen && page.missing === ""
        color: "#000000"

        VideoOutput {
            objectName: "view"
            anchors.fill: parent
            source: player
        }
    }
    Challenge {
        id: challenge
        objectName: "squares"
        width: parent.width
        ready: page.seen
        //% "How many squares crossed the picture?"
        question: qsTrId("kiv-video-question")
        choices: [2, 3, 4, 5].map(function(count) {
            return { value: count, text: Number(count).toLocaleString(Qt.locale(), "f", 0) };
        })
        columns: 4
        //% "Play it again"
        againText: qsTrId("kiv-microphone-play")
        onPosed: page.play(value)
        onFailed: page.judge(FactoryUtils.Fail, reason)
    }
    Checks {
        width: parent.width
        asking: page.isOpen && challenge.solved && page.verdict === ""
        questions: [
            //% "Did the picture jerk, tear or show blocks?"
            { name: "jerk", text: qsTrId("kiv-video-jerk"), good: false,
              //% "The video jerks, tears or shows blocks."
              bad: qsTrId("kiv-video-jerk-bad") }
        ]
        //% "The operator saw the video run smoothly."
        onPassed: page.judge(FactoryUtils.Pass, qsTrId("kiv-video-good"))
        onFailed: page.judge(FactoryUtils.Fail, reason)
    }
    Measurement {
        id: format
        //% "Decoder"
        name: qsTrId("kiv-video-format")
        value: page.started ? page.codecs[page.codec].name : undefined
    }
    Measurement {
        id: played
        //% "Played"
        name: qsTrId("kiv-video-played")
        value: page.started ? player.position / 1000 : undefined
        unit: "s"
        decimals: 1
    }
}
