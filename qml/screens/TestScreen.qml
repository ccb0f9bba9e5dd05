// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"
import "../controls/VerdictStyle.js" as Style

/*!
 * The frame that every test shares: where one is, what to do, the page's readings, and the verdict. It makes the page
 * anew for every attempt.
 */
Item {
    id: screen

    property var shell
    readonly property var flow: shell ? shell.flow : null
    readonly property var row: flow ? flow.current : null
    readonly property var page: loader.item
    readonly property bool broken: loader.status === Loader.Error
    readonly property bool absent: page !== null && page.missing !== ""
    readonly property bool fullScreen: page !== null && page.fullScreen
    readonly property string decided: page ? page.verdict : ""
    readonly property bool passUnlocked: decided !== "" || (page !== null && !absent && page.evidence)
    property real started: 0
    property bool recorded: false

    function blocking(text, job) {
        shell.blocking(text, job);
    }

    function leave() {
        if (page)
            page.close();
    }

    function load() {
        leave();
        hint.text = "";
        advance.stop();
        started = Date.now();
        loader.source = "";
        loader.setSource("../pages/" + row.page, { "frame": screen, "row": row });
    }

    function record(code) {
        // A second tap on the way out is not a second verdict.
        if (recorded)
            return;
        recorded = true;
        advance.stop();
        leave();
        flow.record(row.name, {
            "code": code,
            "decided": decided,
            "overruled": decided !== "" && decided !== code,
            "reason": broken ? qsTrId("kiv-page-broken") : absent ? page.missing : page ? page.reason : "",
            "seconds": Math.round((Date.now() - started) / 1000)
        });
        shell.nextTest();
    }

    Component.onCompleted: load()

    onDecidedChanged: {
        hint.text = "";
        // A pass that was measured needs nobody; a failure waits for a look at it.
        if (decided === FactoryUtils.Pass)
            advance.start();
    }

    Header {
        id: header
        objectName: "header"
        width: parent.width
        visible: !screen.fullScreen
        //% "Leave this test"
        backText: qsTrId("kiv-test-leave")
        title: screen.row ? qsTrId(screen.row.title) : ""
        subtitle: !screen.flow || screen.flow.run.length < 2 ? ""
                  //: Place in the sequence and the time it still takes
                  //% "%1 of %2, about %3 min left"
                  : qsTrId("kiv-test-progress").arg(screen.flow.position + 1).arg(screen.flow.run.length)
                                               .arg(Math.max(1, Math.round(screen.flow.secondsLeft / 60)))
        onBack: screen.shell.leaveTest()
        trailing: PushButton {
            width: Theme.target
            height: Theme.target
            outlined: false
            fill: "transparent"
            objectName: "retry"
            glyph: "retry"
            //% "Try again"
            Accessible.name: qsTrId("kiv-test-retry")
            onClicked: screen.load()
        }
    }
    Rectangle {
        id: progress
        anchors.top: header.bottom
        width: parent.width
        height: Math.round(Theme.unit / 2)
        color: Theme.line
        visible: header.visible && header.subtitle !== ""

        Rectangle {
            width: parent.width * (screen.flow ? screen.flow.position / Math.max(1, screen.flow.run.length) : 0)
            height: parent.height
            color: Theme.accent
        }
    }

    Scroller {
        id: scroller
        anchors.top: progress.bottom
        anchors.bottom: footer.top
        width: parent.width
        visible: !screen.fullScreen

        Words {
            width: parent.width
            text: screen.page ? screen.page.instructions : ""
            visible: text !== "" && !screen.absent
            font.pixelSize: Theme.lead
        }
        Notice {
            width: parent.width
            visible: screen.broken
            kind: "fail"
            //% "This test cannot be opened on this phone."
            text: qsTrId("kiv-page-broken")
        }
        Notice {
            width: parent.width
            visible: screen.absent
            kind: "near"
            text: screen.absent ? screen.page.missing : ""
            //% "If the phone is meant to be without it, choose Not applicable."
            detail: qsTrId("kiv-page-missing-advice")
        }
        Loader {
            id: loader
            width: parent.width
            onLoaded: openWhenDrawn.restart()
        }
        Card {
            width: parent.width
            visible: table.readings.length > 0
            padding: Theme.gap

            MeasurementTable {
                id: table
                x: Theme.gap
                width: parent.width - 2 * Theme.gap
                readings: screen.page ? screen.page.measurements : []
            }
        }
        Words {
            width: parent.width
            visible: screen.row !== null && screen.row.kind === "guided" && screen.page !== null && !screen.absent
            //% "You judge this one: the phone cannot see the result itself."
            text: qsTrId("kiv-page-guided")
            color: Theme.muted
            font.pixelSize: Theme.small
        }
    }

    // The page is on the screen before it touches any hardware.
    Timer {
        id: openWhenDrawn
        interval: 30
        onTriggered: {
            if (screen.page)
                screen.page.open();
        }
    }

    Footer {
        id: footer
        anchors.bottom: parent.bottom
        width: parent.width
        visible: !screen.fullScreen

        Notice {
            width: parent.width
            visible: screen.decided !== ""
            kind: screen.decided === "" ? "info" : Style.looks[screen.decided].glyph
            text: screen.decided === "" ? "" : Style.word(screen.decided)
            detail: screen.page ? screen.page.reason : ""

            Rectangle {
                id: countdown
                anchors.bottom: parent.bottom
                height: Math.round(Theme.unit / 2)
                width: 0
                radius: height / 2
                color: Theme.pass
            }
            NumberAnimation {
                id: advance
                target: countdown
                property: "width"
                from: footer.width - 2 * Theme.margin
                to: 0
                duration: 3000
                onFinished: screen.record(FactoryUtils.Pass)
            }
        }
        Words {
            id: hint
            width: parent.width
            visible: text !== ""
            horizontalAlignment: Text.AlignHCenter
            color: Theme.muted
            font.pixelSize: Theme.small
        }
        Words {
            width: parent.width
            visible: text !== "" && hint.text === "" && screen.decided === ""
            text: screen.page && !screen.absent && !screen.page.evidence ? screen.page.evidenceHint : ""
            horizontalAlignment: Text.AlignHCenter
            color: Theme.muted
            font.pixelSize: Theme.small
        }
        Row {
            width: parent.width
            spacing: Theme.gap

            VerdictButton {
                id: failButton
                objectName: "fail"
                readonly property bool suggested: screen.decided === FactoryUtils.Fail
                width: (parent.width - 2 * parent.spacing) * 0.29
                height: passButton.tallest
                glyph: "fail"
                fill: suggested ? Theme.fail : Theme.failTint
                ink: suggested ? Theme.failInk : Theme.fail
                //% "Fail"
                text: qsTrId("kiv-verdict-fail")
                onClicked: screen.record(FactoryUtils.Fail)
            }
            VerdictButton {
                id: naButton
                objectName: "na"
                readonly property bool suggested: screen.absent
                width: (parent.width - 2 * parent.spacing) * 0.35
                height: passButton.tallest
                glyph: "na"
                fill: suggested ? Theme.neutral : Theme.neutralTint
                ink: suggested ? Theme.neutralInk : Theme.neutral
                text: qsTrId("kiv-verdict-not-applicable")
                onClicked: screen.record(FactoryUtils.NA)
            }
            HoldButton {
                id: passButton
                objectName: "pass"
                readonly property real tallest: Math.max(Theme.target + 2 * Theme.unit, failButton.implicitHeight,
                                                         naButton.implicitHeight, implicitHeight)
                width: (parent.width - 2 * parent.spacing) * 0.36
                height: tallest
                glyph: "pass"
                enabled: screen.passUnlocked
                fill: screen.decided === FactoryUtils.Fail ? Theme.passTint : Theme.pass
                ink: screen.decided === FactoryUtils.Fail ? Theme.pass : Theme.passInk
                //% "Pass"
                text: qsTrId("kiv-verdict-pass")
                //% "Hold Pass until it has filled up"
                onTooShort: hint.text = qsTrId("kiv-verdict-hold")
                onActivated: screen.record(FactoryUtils.Pass)
            }
        }
    }

    Loader {
        anchors.fill: parent
        sourceComponent: screen.fullScreen ? screen.page.cover : null
    }
}
