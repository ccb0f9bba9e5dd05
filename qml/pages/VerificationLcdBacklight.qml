// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

/*!
 * The whole panel white, for what lies behind it, then a picture that becomes brighter or darker at random: that is drawn
 * and not the light's doing, which nothing that a page can reach may change; but only who sees the panel lit can tell.
 * The light's own range is the operator's to try.
 */
TestPage {
    id: page

    readonly property int whiteMs: 10000
    readonly property int unattendedMs: 3000
    readonly property int beforeMs: 1000
    readonly property int afterMs: 1500
    readonly property real middle: 0.55
    readonly property real step: 0.22

    /*! "white", "before", "after" or nothing. */
    property string phase
    property real level: 1

    function enter(newPhase, newLevel, time) {
        phase = newPhase;
        level = newLevel;
        fullScreen = true;
        wait.interval = time;
        wait.restart();
    }

    function advance() {
        if (!isOpen)
            return;
        if (unattended) {
            // From dark to bright and back, for as long as the panel is to work.
            exercised = exercised || level < 1;
            enter("white", level < 1 ? 1 : 0.1, unattendedMs);
        } else if (phase === "white") {
            if (challenge.solved)
                leaveFullScreen();
            else
                challenge.start();
        } else if (phase === "before") {
            enter("after", middle + (challenge.expected === "brighter" ? step : -step), afterMs);
        } else {
            leaveFullScreen();
        }
    }

    function leaveFullScreen() {
        wait.stop();
        phase = "";
        fullScreen = false;
    }

    //% "Look at the white panel: is the light even up to the edges? Tap, and watch whether it becomes brighter or darker."
    instructions: challenge.solved || phase === "" ? "" : qsTrId("kiv-backlight-instructions")
    evidence: false
    //% "Pass unlocks when you have answered the questions."
    evidenceHint: qsTrId("kiv-guided-hint")

    onOpened: enter("white", 1, unattended ? unattendedMs : whiteMs)
    onClosing: {
        challenge.stop();
        leaveFullScreen();
    }

    cover: Rectangle {
        objectName: "panel"
        color: Qt.rgba(page.level, page.level, page.level, 1)

        Rectangle {
            anchors.centerIn: parent
            width: 0.8 * parent.width
            height: words.height + 2 * Theme.margin
            radius: Theme.radius
            color: Theme.neutralTint
            visible: page.phase === "white" && brief.running

            Words {
                id: words
                x: Theme.margin
                y: Theme.margin
                width: parent.width - 2 * Theme.margin
                horizontalAlignment: Text.AlignHCenter
                text: qsTrId("kiv-backlight-instructions")
            }
        }
        Timer {
            id: brief
            interval: 3000
            running: true
        }
        MouseArea {
            anchors.fill: parent
            enabled: page.phase === "white"
            Accessible.role: Accessible.Button
            Accessible.name: qsTrId("kiv-backlight-instructions")
            onClicked: page.advance()
        }
    }

    Timer {
        id: wait
        onTriggered: page.advance()
    }

    Challenge {
        id: challenge
        width: parent.width
        visible: running && !page.fullScreen
        ready: !page.fullScreen
        rounds: 3
        //% "What has the panel become?"
        question: qsTrId("kiv-backlight-question")
        choices: [
            //% "Brighter"
            { value: "brighter", text: qsTrId("kiv-backlight-brighter"), glyph: "sun" },
            //% "Darker"
            { value: "darker", text: qsTrId("kiv-backlight-darker"), glyph: "moon" }
        ]
        //% "Show it again"
        againText: qsTrId("kiv-backlight-again")
        onPosed: page.enter("before", page.middle, page.beforeMs)
        onFailed: page.judge(FactoryUtils.Fail, reason)
    }
    Checks {
        id: checks
        width: parent.width
        asking: page.isOpen && challenge.solved && !page.fullScreen && page.verdict === ""
        questions: [
            //% "Was the white uneven, or did it flicker?"
            { name: "uneven", text: qsTrId("kiv-backlight-uneven"), good: false,
              //% "The backlight is uneven or flickers."
              bad: qsTrId("kiv-backlight-uneven-bad") },
            //% "Set the brightness in the phone's own settings to the lowest and the highest. Does the light follow?"
            { name: "follows", text: qsTrId("kiv-backlight-follows"),
              //% "The backlight does not follow the phone's brightness setting."
              bad: qsTrId("kiv-backlight-follows-bad") }
        ]
        //% "The operator saw an even light that follows the brightness setting."
        onPassed: page.judge(FactoryUtils.Pass, qsTrId("kiv-backlight-good"))
        onFailed: page.judge(FactoryUtils.Fail, reason)
    }
    PushButton {
        objectName: "white"
        width: parent.width
        visible: checks.visible
        glyph: "retry"
        //% "Show the white panel again"
        text: qsTrId("kiv-backlight-white-again")
        onClicked: page.enter("white", 1, page.whiteMs)
    }
    Notice {
        width: parent.width
        visible: page.isOpen && page.verdict === ""
        //% "Kiv cannot change the backlight. It is the picture that becomes brighter or darker: what it shows is that the panel is lit and that you looked."
        text: qsTrId("kiv-backlight-note")
    }
}
