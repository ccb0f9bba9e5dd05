// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"
import "../controls/VerdictStyle.js" as Style
import "../flow/Report.js" as Report

/*!
 * The frame that every test shares: where one is, what to do, the page's readings, the time that is left, and the
 * verdict. It makes the page anew for every attempt.
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
    readonly property alias sheet: sheet
    readonly property string progressText: !flow || flow.run.length < 2 ? ""
        //: Place in the sequence and the time it still takes
        //% "%1 of %2, about %3 min left"
        : qsTrId("kiv-test-progress").arg(flow.position + 1).arg(flow.run.length)
                                     .arg(Math.max(1, Math.round(flow.secondsLeft / 60)))
    readonly property string clockText: decided !== "" || secondsLeft <= 0 ? ""
        //: Time until the operator is asked how to go on
        //% "Time left: %1"
        : qsTrId("kiv-test-clock").arg(Math.floor(secondsLeft / 60) + ":" + ("0" + secondsLeft % 60).slice(-2))
    /*! Seconds until the operator is asked how to go on. */
    property int secondsLeft: 0
    property bool timedOut: false
    property real started: 0
    /*! Milliseconds that this attempt has taken; see tick(). */
    property real spent: 0
    property real lastTick: 0
    property bool recorded: false

    function blocking(text, job) {
        shell.blocking(text, job);
    }

    function leave() {
        if (!page)
            return;
        page.close();
        // By its own row: the flow may be at the next one already.
        shell.release(page.row.page);
    }

    function load() {
        leave();
        sheet.close();
        hint.text = "";
        advance.stop();
        started = lastTick = Date.now();
        spent = 0;
        secondsLeft = row.timeout;
        timedOut = false;
        Scene.changed();
        loader.source = "";
        loader.setSource("../pages/" + row.page, { "frame": screen, "row": row });
    }

    /*! The page anew. A failure that was measured stands until there is another verdict; the attempt counts anyway. */
    function retry() {
        if (decided === FactoryUtils.Fail)
            flow.record(row.name, outcome(decided));
        else
            flow.noteAttempt(row.name, outcome(decided === "" ? FactoryUtils.Untest : decided));
        load();
    }

    /*! The operator leaves without a word: what the page has measured is its verdict. */
    function keepMeasured() {
        if (decided === "" || recorded)
            return;
        recorded = true;
        advance.stop();
        flow.record(row.name, outcome(decided));
    }

    // Satellites and networks set the clock meanwhile: a leap of it is not time that was spent.
    function tick() {
        var now = Date.now();
        spent += Math.max(0, Math.min(60000, now - lastTick));
        lastTick = now;
    }

    function outcome(code) {
        tick();
        return {
            "code": code,
            "decided": decided,
            "overruled": false,
            "reason": broken ? qsTrId("kiv-page-broken") : absent ? page.missing
                      : page ? page.reason || page.trouble : "",
            "timedOut": timedOut,
            "seconds": Math.round(spent / 1000),
            "readings": page ? page.measurements.map(Report.reading) : []
        };
    }

    /*! The operator's choice; against a measurement he has to say why. */
    function choose(code) {
        if (recorded || sheet.isOpen || (code === FactoryUtils.Pass && !passUnlocked))
            return;
        if (decided !== "" && decided !== code)
            askWhyOverruled(code);
        else
            record(code);
    }

    function record(code, why) {
        // A second tap on the way out is not a second verdict.
        if (recorded)
            return;
        recorded = true;
        advance.stop();
        var verdict = outcome(code);
        verdict.overruled = decided !== "" && decided !== code && code !== FactoryUtils.Untest;
        verdict.why = why ? why.id : "";
        verdict.whyText = why ? why.text : "";
        leave();
        flow.record(row.name, verdict);
        shell.nextTest(code);
    }

    function askWhyOverruled(code) {
        advance.stop();
        sheet.ask({
            //% "Why against this verdict?"
            title: qsTrId("kiv-overrule-title"),
            //: The page's own verdict, from what it measured or what the operator answered
            //% "Verdict so far: %1. The summary will show that you decided otherwise."
            text: qsTrId("kiv-overrule-text").arg(Style.word(decided)),
            glyph: Style.looks[code].glyph,
            options: [
                //% "A tool or an accessory was at fault"
                { id: "equipment", text: qsTrId("kiv-overrule-equipment") },
                //% "The limits do not suit this model"
                { id: "limits", text: qsTrId("kiv-overrule-limits") },
                //% "I saw, heard or felt it otherwise"
                { id: "perceived", text: qsTrId("kiv-overrule-perceived") },
                //% "A supervisor decided so"
                { id: "supervisor", text: qsTrId("kiv-overrule-supervisor") }
            ],
            //% "Keep this verdict"
            cancelText: qsTrId("kiv-overrule-cancel")
        }, function(option) { screen.record(code, option); });
    }

    function askWhySkipped() {
        if (recorded || sheet.isOpen)
            return;
        advance.stop();
        sheet.ask({
            //% "Why is this test skipped?"
            title: qsTrId("kiv-skip-title"),
            //% "It stays not tested unless the phone is not meant to have this part."
            text: qsTrId("kiv-skip-text"),
            glyph: "next",
            options: [
                //% "An accessory or a tool is missing"
                { id: "equipment", text: qsTrId("kiv-skip-equipment") },
                //% "The phone has to be repaired first"
                { id: "repair", text: qsTrId("kiv-skip-repair") },
                //% "It is tested elsewhere or later"
                { id: "later", text: qsTrId("kiv-skip-later") },
                //% "This model is not meant to have this part"
                { id: "not-fitted", text: qsTrId("kiv-skip-not-fitted"), glyph: "na", code: FactoryUtils.NA }
            ],
            //% "Go on testing"
            cancelText: qsTrId("kiv-skip-cancel")
        }, function(option) { screen.record(option.code || FactoryUtils.Untest, option); });
    }

    function askAfterTimeOut() {
        timedOut = true;
        Scene.surprise();
        shell.cue("attention");
        sheet.ask({
            //% "Time is up"
            title: qsTrId("kiv-timeout-title"),
            //: Name of a test
            //% "%1 has no verdict yet."
            text: qsTrId("kiv-timeout-text").arg(qsTrId(row.title)),
            glyph: "runin",
            options: [
                //% "Give it more time"
                { id: "wait", text: qsTrId("kiv-timeout-wait"), glyph: "runin" },
                { id: "retry", text: qsTrId("kiv-test-retry"), glyph: "retry" },
                { id: "fail", text: qsTrId("kiv-verdict-fail"), glyph: "fail" },
                //% "Skip"
                { id: "skip", text: qsTrId("kiv-verdict-skip"), glyph: "next" }
            ]
        }, function(option) {
            if (option.id === "wait")
                screen.secondsLeft = screen.row.timeout;
            else if (option.id === "retry")
                screen.retry();
            else if (option.id === "fail")
                screen.choose(FactoryUtils.Fail);
            else
                screen.askWhySkipped();
        });
    }

    /*! A key at the side of the phone was pressed; see Shell. */
    function sideKey(key) {
        if (sheet.isOpen || (page && page.ownsKeys))
            return false;
        if (key === "up")
            passByKey.restart();
        else if (key === "down")
            choose(FactoryUtils.Fail);
        else
            askWhySkipped();
        return true;
    }

    function sideKeyReleased(key) {
        if (key !== "up" || !passByKey.running)
            return;
        passByKey.stop();
        hint.text = passUnlocked ? qsTrId("kiv-verdict-hold") : page && !absent ? page.evidenceHint : "";
    }

    Component.onCompleted: load()
    onFullScreenChanged: Scene.changed()

    onDecidedChanged: {
        hint.text = "";
        if (decided === "")
            return;
        shell.cue(decided === FactoryUtils.Pass ? "pass" : "fail");
        goOn();
    }

    /*! A pass that was measured needs nobody; a failure waits for a look at it. Who goes on testing gets time anew. */
    function goOn() {
        if (secondsLeft <= 0)
            secondsLeft = row ? row.timeout : 0;
        if (decided === FactoryUtils.Pass && !sheet.isOpen && !recorded)
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
        subtitle: [screen.progressText, screen.clockText].filter(function(text) { return text !== ""; }).join(" \u00b7 ")
        subtitleColor: screen.clockText !== "" && screen.secondsLeft <= 15 ? Theme.warn : Theme.muted
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
            onClicked: screen.retry()
        }
    }
    Rectangle {
        id: progress
        anchors.top: header.bottom
        width: parent.width
        height: Math.round(Theme.unit / 2)
        color: Theme.line
        visible: header.visible && screen.progressText !== ""

        Rectangle {
            anchors.left: parent.left
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
            //% "If this model is not meant to have it, choose Skip and say so."
            detail: qsTrId("kiv-page-missing-advice")
        }
        Notice {
            width: parent.width
            visible: text !== "" && !screen.absent
            kind: "near"
            text: screen.page ? screen.page.trouble : ""
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

    // Counted, not read from a clock: a call that blocks the interface takes no time from the operator.
    Timer {
        interval: 1000
        repeat: true
        running: screen.page !== null && screen.page.isOpen && screen.decided === "" && !sheet.isOpen
                 && !screen.shell.busy && !screen.recorded && screen.secondsLeft > 0
        onTriggered: {
            if (--screen.secondsLeft === 0)
                screen.askAfterTimeOut();
        }
    }

    Timer {
        interval: 1000
        repeat: true
        running: !screen.recorded
        onTriggered: screen.tick()
    }

    Timer {
        id: passByKey
        interval: 500
        onTriggered: {
            if (screen.passUnlocked)
                screen.choose(FactoryUtils.Pass);
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
                readonly property bool suggested: screen.decided === FactoryUtils.Fail || screen.absent || screen.broken
                width: (parent.width - 2 * parent.spacing) / 3
                height: passButton.tallest
                glyph: "fail"
                fill: suggested ? Theme.fail : Theme.failTint
                ink: suggested ? Theme.failInk : Theme.fail
                //% "Fail"
                text: qsTrId("kiv-verdict-fail")
                onClicked: screen.choose(FactoryUtils.Fail)
            }
            VerdictButton {
                id: skipButton
                objectName: "skip"
                width: (parent.width - 2 * parent.spacing) / 3
                height: passButton.tallest
                glyph: "next"
                fill: Theme.neutralTint
                ink: Theme.neutral
                text: qsTrId("kiv-verdict-skip")
                onClicked: screen.askWhySkipped()
            }
            HoldButton {
                id: passButton
                objectName: "pass"
                readonly property real tallest: Math.max(Theme.target + 2 * Theme.unit, failButton.implicitHeight,
                                                         skipButton.implicitHeight, implicitHeight)
                width: (parent.width - 2 * parent.spacing) / 3
                height: tallest
                glyph: enabled ? "pass" : "locked"
                enabled: screen.passUnlocked
                fill: screen.decided === FactoryUtils.Fail ? Theme.passTint : Theme.pass
                ink: screen.decided === FactoryUtils.Fail ? Theme.pass : Theme.passInk
                //% "Pass"
                text: qsTrId("kiv-verdict-pass")
                //% "Hold Pass until it has filled up"
                onTooShort: hint.text = qsTrId("kiv-verdict-hold")
                onActivated: screen.choose(FactoryUtils.Pass)
            }
        }
    }

    Loader {
        anchors.fill: parent
        sourceComponent: screen.fullScreen ? screen.page.cover : null
    }

    ChoiceSheet {
        id: sheet
        anchors.fill: parent
        onIsOpenChanged: if (!isOpen) screen.goOn()
    }
}
