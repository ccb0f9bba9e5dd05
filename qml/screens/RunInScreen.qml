// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"
import "../controls/Lists.js" as Lists
import "../controls/VerdictStyle.js" as Style
import "../flow"
import "../flow/Report.js" as Report
import "../flow/TestTable.js" as TestTable

/*!
 * The run-in: before it, what will be done and when it is to stop; while it runs, the test and the battery's curves; after
 * it, what came out.
 */
Item {
    id: screen

    property var shell
    readonly property var flow: shell ? shell.flow : null
    readonly property alias runIn: runIn
    readonly property var page: loader.item
    /*! A page that fills the screen gives way for a while to whoever taps it. */
    readonly property bool fullScreen: page !== null && page.fullScreen && !peek.running
    /*! What a page looks for: nobody is there to judge it. */
    readonly property bool unattended: true
    readonly property bool over: runIn.end !== ""
    /*! Tests of the sequence that need hands or eyes. */
    readonly property var attended: flow ? flow.ready.filter(function(row) { return !row.alone; }) : []
    property int testSeconds: 0

    function blocking(text, job) {
        shell.blocking(text, job);
    }

    function leave() {
        runIn.stop("operator");
        closePage();
    }

    function closePage() {
        if (page)
            page.close();
        loader.source = "";
    }

    function openTest() {
        closePage();
        testSeconds = 0;
        // Whoever wakes the panel with the power key does not mean the button that ends the run-in.
        screen.forceActiveFocus();
        loader.setSource("../pages/" + runIn.row.page, { "frame": screen, "row": runIn.row });
    }

    function finish(code, reason) {
        var row = runIn.row;
        if (!row)
            return;
        var readings = page ? page.measurements.map(Report.reading) : [];
        shell.reportVerdict(row.name, { "code": code, "attempts": runIn.loop, "seconds": testSeconds, "reason": reason,
                                        "decided": code, "readings": readings });
        closePage();
        runIn.finish(code, reason, testSeconds);
    }

    /*! Looks once a second how the page is getting on. */
    function watch() {
        ++testSeconds;
        // Not where it is opened: one that cannot be opened after the other would be a loop without an end.
        if (loader.status === Loader.Error) {
            finish(FactoryUtils.Fail, qsTrId("kiv-page-broken"));
        } else if (!page || !page.isOpen) {
            if (testSeconds >= runIn.row.timeout)
                //% "The test did not begin in time."
                finish(FactoryUtils.Fail, qsTrId("kiv-run-in-stuck"));
        } else if (page.verdict !== "") {
            finish(page.verdict, page.reason);
        } else if (page.missing !== "") {
            finish(FactoryUtils.Fail, page.missing);
        } else if (page.trouble !== "") {
            finish(FactoryUtils.Fail, page.trouble);
        } else if (runIn.row.kind === "guided" && page.exercised && testSeconds >= runIn.row.seconds) {
            //% "It ran without trouble."
            finish(FactoryUtils.Pass, qsTrId("kiv-run-in-exercised"));
        } else if (testSeconds >= runIn.row.timeout) {
            //% "It came to no result in time."
            finish(FactoryUtils.Fail, qsTrId("kiv-run-in-timeout"));
        }
    }

    function endWord() {
        switch (runIn.end) {
        case "time":
            //% "The time is up."
            return qsTrId("kiv-run-in-end-time");
        case "failure":
            //% "It stopped at the first failure."
            return qsTrId("kiv-run-in-end-failure");
        case "temperature":
            //: A temperature
            //% "The battery reached %1."
            return qsTrId("kiv-run-in-end-temperature").arg(runIn.temperature.text(runIn.temperature.maximum));
        case "restart":
            //: Two times at which the phone was started
            //% "The phone's start time was %1 at the beginning and %2 at the end: it was restarted, or its clock was set."
            return qsTrId("kiv-run-in-end-restart").arg(timeText(runIn.machineStart))
                                                   .arg(timeText(runIn.machineStartNow));
        }
        //% "The operator ended it."
        return qsTrId("kiv-run-in-end-operator");
    }

    function failureText(failure) {
        //: A test that failed, and the number of the loop
        //% "%1, loop %2"
        return qsTrId("kiv-run-in-failure").arg(qsTrId(failure.row.title))
               .arg(Lists.enumerate(failure.loops) + (failure.times > failure.loops.length ? " …" : ""));
    }

    /*! Whether heat is to end it, but nobody can tell how hot the battery is. */
    readonly property bool heatUnknown: !over && limitButton.choice > 0 && isNaN(runIn.temperature.now)
    //% "The battery's temperature cannot be read: heat will not stop the run-in."
    readonly property string heatUnknownText: qsTrId("kiv-run-in-heat-unknown")

    function timeText(date) {
        return isNaN(date.getTime()) ? qsTrId("kiv-reading-missing")
                                     : date.toLocaleString(Qt.locale(), Locale.ShortFormat);
    }

    function clockText(seconds) {
        return [Math.floor(seconds / 3600), Math.floor(seconds / 60) % 60, seconds % 60].map(function(number) {
            return ("0" + number).slice(-2);
        }).join(":");
    }

    function summarize() {
        // A test that failed says so itself. When it passes again, mended or by chance, the run-in still has to be done.
        var failedLoops = {};
        runIn.failures.forEach(function(failure) { failedLoops[failure.row.name] = failure.loops; });
        flow.runInEnding = { "why": runIn.end, "failedLoops": failedLoops,
                             "text": endWord() + (runIn.failures.length === 0 ? ""
                                     //% "A test failed meanwhile: the run-in has to be done again."
                                     : "\n" + qsTrId("kiv-run-in-again")),
                             "code": runIn.end === "temperature" || runIn.end === "restart" ? FactoryUtils.Fail
                                     : runIn.end === "time" && runIn.failures.length === 0 ? FactoryUtils.Pass
                                     : FactoryUtils.Untest };
        for (var name in runIn.outcomes) {
            var outcome = runIn.outcomes[name];
            flow.adopt(name, { "code": outcome.code, "decided": "", "overruled": false, "reason": outcome.reason,
                               "attempts": outcome.loops, "spent": outcome.seconds, "seconds": outcome.seconds });
        }
    }

    Component.onCompleted: runIn.temperature.now = Number(runIn.battery.temperature())

    RunIn {
        id: runIn
        rows: screen.flow ? screen.flow.ready.filter(function(row) { return row.alone; }) : []
        onTestWanted: screen.openTest()
        onEnded: {
            screen.closePage();
            screen.summarize();
            screen.shell.reportRun();
            screen.shell.cue(runIn.code === FactoryUtils.Pass ? "pass" : "fail");
        }
    }
    Timer {
        interval: 1000
        repeat: true
        running: runIn.running && !screen.shell.busy
        onTriggered: screen.watch()
    }

    Header {
        id: header
        width: parent.width
        visible: !screen.fullScreen
        title: runIn.row ? qsTrId(runIn.row.title) : qsTrId("kiv-mode-run-in")
        subtitle: runIn.running
                  //: The run-in: number of the loop, place of the test in it, number of tests
                  //% "Loop %1, test %2 of %3"
                  ? qsTrId("kiv-run-in-progress").arg(runIn.loop).arg(runIn.position + 1).arg(runIn.rows.length) : ""
        backVisible: !runIn.running
        onBack: screen.shell.showList()
        trailing: Words {
            objectName: "runInClock"
            anchors.verticalCenter: parent.verticalCenter
            visible: runIn.running
            text: screen.clockText(runIn.secondsLeft)
            font.pixelSize: Theme.lead
            font.weight: Font.DemiBold
            Accessible.name: qsTrId("kiv-test-clock").arg(text)
        }
    }

    Scroller {
        anchors.top: header.bottom
        anchors.bottom: footer.top
        width: parent.width
        visible: !screen.fullScreen

        // Before it
        Column {
            width: parent.width
            spacing: Theme.margin
            visible: !runIn.running && !screen.over

            Words {
                width: parent.width
                font.pixelSize: Theme.lead
                //: A number of hours
                //% "Hours: %1. Meanwhile the phone repeats these tests and needs nobody:"
                text: qsTrId("kiv-run-in-intro").arg(runIn.lengthSeconds / 3600)
            }
            Repeater {
                model: runIn.rows

                Row {
                    width: parent.width
                    spacing: Theme.gap

                    Icon {
                        id: glyph
                        name: modelData.glyph
                        color: Theme.accent
                        anchors.verticalCenter: parent.verticalCenter
                    }
                    Words {
                        width: parent.width - glyph.width - parent.spacing
                        text: qsTrId(modelData.title)
                        anchors.verticalCenter: parent.verticalCenter
                    }
                }
            }
            Notice {
                width: parent.width
                visible: runIn.rows.length === 0
                kind: "near"
                //% "No test of the run-in can run on this phone."
                text: qsTrId("kiv-run-in-empty")
            }
            Notice {
                width: parent.width
                visible: screen.attended.length > 0
                kind: "near"
                //: Names of tests
                //% "These need an operator and stay not tested: %1"
                text: qsTrId("kiv-run-in-attended").arg(Lists.enumerate(screen.attended.map(function(row) {
                    return qsTrId(row.title);
                })))
            }
            PushButton {
                width: parent.width
                objectName: "stopOnFailure"
                glyph: runIn.stopOnFailure ? "pass" : "untested"
                text: runIn.stopOnFailure
                      ? //% "Stop at the first failure"
                        qsTrId("kiv-run-in-stop-on-failure")
                      : //% "Go on after a failure"
                        qsTrId("kiv-run-in-go-on")
                onClicked: runIn.stopOnFailure = !runIn.stopOnFailure
            }
            PushButton {
                id: limitButton
                readonly property var limits: [NaN, 45, 50, 55, 60]
                property int choice: 3
                width: parent.width
                objectName: "temperatureLimit"
                glyph: choice > 0 ? "pass" : "untested"
                text: choice > 0
                      //: A temperature
                      //% "Stop when the battery reaches %1"
                      ? qsTrId("kiv-run-in-limit").arg(runIn.temperature.text(limits[choice]))
                      //% "Do not stop for the battery's temperature"
                      : qsTrId("kiv-run-in-no-limit")
                onClicked: choice = (choice + 1) % limits.length
            }
            Notice {
                objectName: "heatUnknown"
                width: parent.width
                visible: screen.heatUnknown
                kind: "near"
                text: screen.heatUnknownText
            }
            Words {
                width: parent.width
                color: Theme.muted
                font.pixelSize: Theme.small
                //: A date and time
                //% "This phone was started on %1. A run-in that began earlier and left no result was ended by that start."
                text: qsTrId("kiv-run-in-machine-start").arg(screen.timeText(runIn.uptime.machineStart))
            }
        }

        // After it
        Column {
            width: parent.width
            spacing: Theme.margin
            visible: screen.over

            Rectangle {
                readonly property var look: Style.looks[runIn.code]
                width: parent.width
                height: verdict.height + 2 * Theme.margin
                radius: Theme.radius
                color: Theme[look.ink]

                Column {
                    id: verdict
                    x: Theme.margin
                    y: Theme.margin
                    width: parent.width - 2 * Theme.margin
                    spacing: Theme.gap

                    Icon {
                        anchors.horizontalCenter: parent.horizontalCenter
                        name: parent.parent.look.glyph
                        color: Theme[parent.parent.look.on]
                        size: 8 * Theme.unit
                    }
                    FittedWords {
                        width: parent.width
                        horizontalAlignment: Text.AlignHCenter
                        largest: Theme.display
                        font.weight: Font.Bold
                        color: Theme[parent.parent.look.on]
                        text: runIn.code === FactoryUtils.Untest ? qsTrId("kiv-summary-incomplete")
                                                                 : Style.word(runIn.code)
                    }
                }
            }
            Words {
                width: parent.width
                font.pixelSize: Theme.lead
                objectName: "endWord"
                text: screen.over ? screen.endWord() : ""
            }
            Words {
                width: parent.width
                //: How far the run-in came: loops and time
                //% "Loops: %1, time: %2"
                text: qsTrId("kiv-run-in-total").arg(runIn.loop).arg(screen.clockText(runIn.elapsed))
            }
            Repeater {
                model: runIn.failures

                Notice {
                    width: parent.width
                    kind: "fail"
                    text: screen.failureText(modelData)
                    detail: modelData.reason
                }
            }
        }

        Notice {
            width: parent.width
            visible: runIn.running && screen.heatUnknown
            kind: "near"
            text: screen.heatUnknownText
        }
        Loader {
            id: loader
            width: parent.width
            onLoaded: openWhenDrawn.restart()
        }
        Repeater {
            model: runIn.running || screen.over ? runIn.traces : []

            Plot {
                width: parent ? parent.width : 0
                trace: modelData
            }
        }
        Loader {
            width: parent.width
            active: runIn.running
            sourceComponent: Component {
                ProcessList {
                    limit: 3
                }
            }
        }
    }

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

        PushButton {
            width: parent.width
            visible: !screen.over
            objectName: "runInStart"
            enabled: runIn.running || runIn.rows.length > 0
            fill: runIn.running ? Theme.surface : Theme.accent
            ink: runIn.running ? Theme.text : Theme.accentInk
            text: runIn.running
                  ? //% "End the run-in"
                    qsTrId("kiv-run-in-stop")
                  : qsTrId("kiv-list-start")
            onClicked: {
                if (runIn.running) {
                    runIn.stop("operator");
                } else {
                    screen.flow.runInEnding = null;
                    runIn.temperatureLimit = limitButton.limits[limitButton.choice];
                    runIn.start();
                }
            }
        }
        PushButton {
            width: parent.width
            visible: screen.over
            objectName: "runInSummary"
            fill: Theme.accent
            ink: Theme.accentInk
            text: qsTrId("kiv-summary")
            onClicked: screen.shell.show("SummaryScreen")
        }
    }

    Loader {
        anchors.fill: parent
        sourceComponent: screen.fullScreen ? screen.page.cover : null
    }
    MouseArea {
        objectName: "peek"
        anchors.fill: parent
        enabled: screen.fullScreen
        Accessible.role: Accessible.Button
        Accessible.name: qsTrId("kiv-mode-run-in")
        onClicked: peek.start()
    }
    Timer {
        id: peek
        interval: 8000
    }
}
