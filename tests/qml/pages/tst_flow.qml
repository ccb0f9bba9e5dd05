// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtQuick.Window 2.15
import QtTest 1.15
import Kiv 1.0
import KivFake 1.0
import "../../../qml/flow/QrCode.js" as QrCode
import "../../../qml/flow/Report.js" as Report
import "../../../qml/flow/TestTable.js" as TestTable

/*! Time-outs, skips, retries, keys, the reports and the run-in. */
Driver {
    id: driver
    name: "Flow"

    function screenName() {
        return shell.screen ? String(shell.screen).replace(/_QMLTYPE.*/, "") : "";
    }

    function toSequence(mode, names) {
        Phone.factoryTests = names;
        Phone.runInTests = names;
        start("home");
        shell.chooseSequence(mode);
        tryVerify(function() { return screenName() === "ListScreen"; });
    }

    function startSequence(names) {
        toSequence(TestTable.FactoryTests, names);
        mouseClick(find("start"));
        tryVerify(function() { return page && page.isOpen; });
    }

    /*! As if the time had passed. */
    function runOut() {
        frame.secondsLeft = 1;
        tryVerify(function() { return find("sheet").isOpen; }, 3000);
    }

    SignalSpy {
        id: recorded
        signalName: "recorded"
    }

    function test_timeOutAsksAndNeverPasses() {
        startSequence(["VerificationHallDetect", "VerificationBattery"]);
        var left = frame.secondsLeft;
        tryVerify(function() { return frame.secondsLeft < left; }, 3000);
        runOut();
        compare(find("sheet").title, "Time is up");
        verify(!kept("VerificationHallDetect"));
        keyPress(Qt.Key_VolumeUp);
        letPass(700);
        keyRelease(Qt.Key_VolumeUp);
        verify(!kept("VerificationHallDetect"), "nothing passes here");
        // What the page finds out meanwhile decides nothing until the operator has answered.
        Phone.hall = true;
        Phone.hall = false;
        compare(page.verdict, FactoryUtils.Pass);
        letPass(3500);
        verify(!kept("VerificationHallDetect"));
        answer("wait");
        tryVerify(function() { return kept("VerificationHallDetect"); }, 8000);
        compare(kept("VerificationHallDetect").code, FactoryUtils.Pass);
        verify(kept("VerificationHallDetect").timedOut);
    }

    function test_timeOutAnswers_data() {
        return [
            { tag: "fail", answers: ["fail"], code: "02", why: "" },
            { tag: "skip", answers: ["skip", "later"], code: "00", why: "later" },
            { tag: "not fitted", answers: ["skip", "not-fitted"], code: "03", why: "not-fitted" }
        ];
    }

    function test_timeOutAnswers(data) {
        startSequence(["VerificationHallDetect", "VerificationBattery"]);
        runOut();
        data.answers.forEach(answer);
        var verdict = kept("VerificationHallDetect");
        compare(verdict.code, data.code);
        compare(verdict.why, data.why);
        verify(verdict.timedOut);
        compare(frame.row.name, "VerificationBattery");
    }

    function test_timeOutRetries() {
        startSequence(["VerificationHallDetect", "VerificationBattery"]);
        var before = page;
        runOut();
        answer("retry");
        compare(frame.row.name, "VerificationHallDetect");
        tryVerify(function() { return page && page.isOpen && page !== before; });
        compare(frame.secondsLeft, 60);
        compare(shell.flow.code("VerificationHallDetect"), FactoryUtils.Untest);
        compare(kept("VerificationHallDetect").attempts, 1);
        tap("fail");
        compare(kept("VerificationHallDetect").attempts, 2);
        compare(kept("VerificationHallDetect").history.map(function(attempt) { return attempt.code; }), ["00", "02"]);
    }

    function test_theClockRestsWhileTheInterfaceWaits() {
        startSequence(["VerificationHallDetect"]);
        frame.blocking("Waiting", function() {});
        verify(shell.busy);
        var left = frame.secondsLeft;
        var before = Date.now();
        while (Date.now() - before < 2500) {}
        tryVerify(function() { return !shell.busy; });
        verify(frame.secondsLeft >= left - 1, frame.secondsLeft + " of " + left);
    }

    function test_skipNeedsAReasonAndStaysUntested() {
        startSequence(["VerificationHallDetect", "VerificationBattery"]);
        tap("skip");
        answer("cancel");
        verify(!kept("VerificationHallDetect"));
        tap("skip");
        answer("repair");
        compare(kept("VerificationHallDetect").code, FactoryUtils.Untest);
        compare(kept("VerificationHallDetect").why, "repair");
        shell.show("SummaryScreen");
        compare(frame.code, FactoryUtils.Untest);
        verify(frame.remark(frame.sorted[0]).indexOf("The phone has to be repaired first") === 0);
    }

    function test_aHurriedTapDoesNotReachTheNextTest() {
        inTime(function() {
            startSequence(["VerificationHallDetect", "VerificationHeadset"]);
            var button = find("fail");
            var middle = button.mapToItem(shell, button.width / 2, button.height / 2);
            mouseClick(shell, middle.x, middle.y);
            compare(frame.row.name, "VerificationHeadset");
            mouseClick(shell, middle.x, middle.y);
            if (!find("flash").visible)
                return false;
            wait(50);
            verify(!kept("VerificationHeadset"));
            afterFlash();
            tryVerify(function() { return page && page.isOpen; });
            mouseClick(shell, middle.x, middle.y);
            compare(kept("VerificationHeadset").code, FactoryUtils.Fail);
            return true;
        });
    }

    function test_anImpatientFingerFailsOneTest_data() {
        return [{ tag: "on the screen", press: function(at) { mouseClick(shell, at.x, at.y); } },
                { tag: "on a key", press: function() { keyClick(Qt.Key_VolumeDown); } }];
    }

    function test_anImpatientFingerFailsOneTest(data) {
        inTime(function() {
            startSequence(["VerificationHallDetect", "VerificationHeadset"]);
            var button = find("fail");
            var middle = button.mapToItem(shell, button.width / 2, button.height / 2);
            data.press(middle);
            for (var i = 0; i < 3; ++i) {
                var before = Date.now();
                letPass(800);
                if (Date.now() - before > 1100)
                    return false;
                data.press(middle);
            }
            compare(kept("VerificationHallDetect").code, FactoryUtils.Fail);
            verify(!kept("VerificationHeadset"));
            return true;
        });
    }

    function test_aPanelThatPressesByItselfHidesNothingForEver() {
        startSequence(["VerificationHallDetect", "VerificationHeadset"]);
        tap("fail");
        for (var i = 0; i < 100 && find("flash").visible; ++i) {
            mousePress(shell, 180, 100);
            mouseRelease(shell, 180, 100);
            letPass(100);
        }
        verify(!find("flash").visible);
        verify(!kept("VerificationHeadset"));
    }

    function test_sideKeysGiveVerdicts() {
        startSequence(["VerificationHallDetect", "VerificationHeadset", "VerificationBattery"]);
        keyClick(Qt.Key_VolumeDown);
        compare(kept("VerificationHallDetect").code, FactoryUtils.Fail);
        keyClick(Qt.Key_VolumeDown);
        verify(!kept("VerificationHeadset"), "not while the last verdict is shown");
        afterFlash();
        tryVerify(function() { return page && page.isOpen; });
        keyPress(Qt.Key_VolumeUp);
        letPass(700);
        keyRelease(Qt.Key_VolumeUp);
        verify(!kept("VerificationHeadset"), "locked");
        page.evidence = true;
        keyClick(Qt.Key_VolumeUp);
        verify(!kept("VerificationHeadset"), "too short");
        keyPress(Qt.Key_VolumeUp);
        letPass(700);
        keyRelease(Qt.Key_VolumeUp);
        compare(kept("VerificationHeadset").code, FactoryUtils.Pass);
        afterFlash();
        keyClick(Qt.Key_Standby);
        tryVerify(function() { return find("sheet").isOpen; });
        // Down to the second answer.
        keyClick(Qt.Key_VolumeDown);
        keyClick(Qt.Key_Standby);
        compare(kept("VerificationBattery").why, "repair");
    }

    function test_theKeyTestKeepsItsKeys() {
        startSequence(["VerificationKey"]);
        keyClick(Qt.Key_VolumeDown);
        keyClick(Qt.Key_Standby);
        wait(50);
        verify(!find("sheet").isOpen);
        verify(!kept("VerificationKey"));
        compare(page.seen, [Qt.Key_VolumeDown]);
    }

    function test_withoutATouchPanel() {
        start("home");
        function focused() {
            return shell.Window.activeFocusItem;
        }
        for (var i = 0; i < 10 && focused().objectName !== "engineer"; ++i)
            keyClick(Qt.Key_VolumeDown);
        compare(focused().objectName, "engineer");
        keyClick(Qt.Key_Standby);
        tryVerify(function() { return screenName() === "EngineerScreen"; });
    }

    function test_keysReachTheWholeSummary() {
        start("summary");
        var list = find("results"), focused = function() { return shell.Window.activeFocusItem; };
        verify(list.contentHeight > 2 * list.height, "longer than the screen");
        keyClick(Qt.Key_VolumeDown);
        var first = focused(), last = list.count - 1, at = -1;
        verify(first.view === list);
        compare(list.indexAt(10, list.contentY + 1), 0);
        // Page by page: nothing is left out, and nothing stands still before the end.
        while (at < last) {
            var bottom = list.indexAt(10, list.contentY + list.height - 1);
            verify(bottom > at, "row " + bottom);
            verify(list.indexAt(10, list.contentY + 1) <= at + 1);
            at = bottom;
            keyClick(Qt.Key_VolumeDown);
            verify(at === last || focused() === first);
        }
        compare(focused().objectName, "code");
        keyClick(Qt.Key_VolumeUp);
        verify(focused() === first);
        compare(list.indexAt(10, list.contentY + list.height - 1), last);
        while (focused() === first)
            keyClick(Qt.Key_VolumeUp);
        compare(list.indexAt(10, list.contentY + 1), 0);
    }

    function test_theSatelliteReceiverStartsWithTheSequence() {
        startSequence(["VerificationHallDetect", "VerificationGpsRadio", "VerificationBattery"]);
        verify(find("earlySatellites").item, "long before its page");
        tap("fail");
        compare(frame.row.name, "VerificationGpsRadio");
        verify(find("earlySatellites").item);
        afterFlash();
        tap("fail");
        compare(frame.row.name, "VerificationBattery");
        verify(!find("earlySatellites").item);
    }

    function test_whatCamerasNeedIsLoadedWithTheSequence() {
        toSequence(TestTable.FactoryTests, ["VerificationHallDetect", "VerificationBackCamera"]);
        verify(find("earlyPictures").item);
        compare(Phone.log, [], "no camera is opened");
        shell.showHome();
        Phone.factoryTests = ["VerificationHallDetect"];
        shell.chooseSequence(TestTable.FactoryTests);
        tryVerify(function() { return screenName() === "ListScreen"; });
        verify(!find("earlyPictures").item);
    }

    function test_noReceiverWhereNothingAsksForIt() {
        startSequence(["VerificationHallDetect", "VerificationBattery"]);
        verify(!find("earlySatellites").item);
    }

    function test_linesForTheStation() {
        Phone.unsupported = ["Key"];
        Phone.addresses = { bluetooth: "00:11:22:aa:bb:cc", wireless: "" };
        startSequence(["VerificationHallDetect", "VerificationKey"]);
        recorded.target = shell.flow;
        tap("fail");
        tryVerify(function() { return screenName() === "SummaryScreen"; });
        compare(recorded.count, 1);
        recorded.target = null;

        var verdict = kept("VerificationHallDetect");
        verdict.reason = "Größe 中";
        var line = Report.verdict(0, "VerificationHallDetect", verdict, "2026-01-02T03:04:05.678Z");
        verify(/^[\x20-\x7e]+$/.test(line), line);
        var read = JSON.parse(line);
        compare(read.event, "verdict");
        compare(read.mode, "factory");
        compare(read.test, "VerificationHallDetect");
        compare(read.code, "02");
        compare(read.attempt, 1);
        compare(read.reason, "Größe 中");
        compare(read.readings.length, 1);
        compare(read.readings[0].value, false);
        compare(read.readings[0].minimum, null);

        var run = JSON.parse(Report.run(shell.flow, { wlan: "", bluetooth: "00:11:22:aa:bb:cc", calibrated: true }, ""));
        compare(run.results, { VerificationHallDetect: "02", VerificationKey: "03" });
        compare(run.counts, { "00": 0, "01": 0, "02": 1, "03": 1 });
        compare(run.code, "02");
        compare(run.wlan, null);
        compare(run.attempts, 1);

        mouseClick(find("code"));
        var text = find("codeText").text;
        compare(text, ["KIV 1", "WLAN -", "BT 00:11:22:aa:bb:cc", "CAL 1", "MODE factory", "RESULT 02", "CODES 0203",
                       "FAILED VerificationHallDetect"].join("\n"));
        compare(find("qr").rows.length, 41);
        mouseClick(find("copy"));
        mouseClick(find("close"));
        verify(!find("codeSheet").visible);
    }

    function test_runInThatEndedEarly_data() {
        return [
            { tag: "time", ending: FactoryUtils.Pass, code: FactoryUtils.Pass },
            { tag: "operator", ending: FactoryUtils.Untest, code: FactoryUtils.Untest },
            { tag: "temperature", ending: FactoryUtils.Fail, code: FactoryUtils.Fail }
        ];
    }

    function test_runInThatEndedEarly(data) {
        toSequence(TestTable.RunInTests, ["MacAddresses"]);
        shell.flow.adopt("MacAddresses", { code: FactoryUtils.Pass, attempts: 3, spent: 3 });
        compare(shell.flow.overallCode(), FactoryUtils.Untest, "there was no run-in");
        shell.flow.runInEnding = { why: data.tag, code: data.ending, text: "Over." };
        compare(shell.flow.overallCode(), data.code);
        var run = JSON.parse(Report.run(shell.flow, { wlan: "", bluetooth: "", calibrated: false }, ""));
        compare(run.code, data.code);
        compare(run.end, data.tag);
        verify(Report.codeText(shell.flow, { wlan: "", bluetooth: "", calibrated: false })
               .indexOf("RESULT " + data.code) > 0);
        shell.flow.clear();
        compare(shell.flow.ending, null);
    }

    function test_qrSizes_data() {
        // Lengths in bytes at which a code of level M grows; the modules of a side.
        return [
            { tag: "1", length: 1, side: 21 }, { tag: "14", length: 14, side: 21 }, { tag: "15", length: 15, side: 25 },
            { tag: "213", length: 213, side: 57 }, { tag: "2331", length: 2331, side: 177 },
            { tag: "too long", length: 2332, side: 0 }
        ];
    }

    function test_qrSizes(data) {
        compare(QrCode.encode(new Array(data.length + 1).join("x")).length, data.side);
    }

    function openRunIn(names) {
        toSequence(TestTable.RunInTests, names);
        mouseClick(find("start"));
        compare(screenName(), "RunInScreen");
        return frame.runIn;
    }

    function test_runInGoesRoundUntilItsTimeIsUp() {
        var runIn = openRunIn(["Calibration", "VerificationBattery", "VerificationHallDetect"]);
        compare(runIn.rows.map(function(row) { return row.name; }), ["VerificationBattery", "Calibration"]);
        compare(frame.attended.map(function(row) { return row.name; }), ["VerificationHallDetect"]);
        compare(runIn.lengthSeconds, 7200, "the settings count hours");
        runIn.lengthSeconds = 90;
        mouseClick(find("runInStart"));
        tryVerify(function() { return runIn.loop === 2; }, 15000);
        verify(runIn.secondsLeft < 90);
        compare(find("runInClock").text, "00:0" + Math.floor(runIn.secondsLeft / 60) + ":"
                                         + ("0" + runIn.secondsLeft % 60).slice(-2));
        // The rest of the loops that a quick machine does in that time.
        runIn.lengthSeconds = runIn.elapsed + 3;
        tryVerify(function() { return runIn.end !== ""; }, 20000);
        compare(runIn.end, "time");
        verify(runIn.elapsed >= runIn.lengthSeconds);
        compare(runIn.code, FactoryUtils.Pass);
        compare(runIn.temperature.minimum, 28.4);
        compare(runIn.temperature.maximum, 28.4);
        verify(runIn.temperature.points.length >= 2);
        compare(find("endWord").text, "The time is up.");
        mouseClick(find("runInSummary"));
        compare(screenName(), "SummaryScreen");
        compare(kept("VerificationBattery").code, FactoryUtils.Pass);
        verify(kept("VerificationBattery").attempts >= 2);
        compare(frame.code, FactoryUtils.Untest, "the test that needs hands is not tested");
    }

    function test_runInStopsAtAFailure() {
        var runIn = openRunIn(["VerificationBattery", "Calibration"]);
        Phone.setBattery({ health: "Dead" });
        mouseClick(find("runInStart"));
        tryVerify(function() { return runIn.end !== ""; }, 15000);
        compare(runIn.end, "failure");
        compare(runIn.code, FactoryUtils.Fail);
        compare(runIn.failures.length, 1);
        compare(runIn.failures[0].row.name, "VerificationBattery");
        compare(runIn.failures[0].loop, 1);
        verify(runIn.failures[0].reason.indexOf("Dead") >= 0);
        verify(!frame.page, "the page is closed");
        compare(kept("VerificationBattery").code, FactoryUtils.Fail);
        verify(!kept("Calibration"));
    }

    function test_runInCanGoOnAfterAFailure() {
        var runIn = openRunIn(["VerificationBattery", "Calibration"]);
        mouseClick(find("stopOnFailure"));
        Phone.setBattery({ health: "Dead" });
        runIn.lengthSeconds = 1;
        mouseClick(find("runInStart"));
        tryVerify(function() { return runIn.end !== ""; }, 15000);
        compare(runIn.end, "time");
        compare(runIn.code, FactoryUtils.Fail);
        compare(runIn.outcomes["Calibration"].code, FactoryUtils.Pass);
    }

    function test_aTestThatFailedOnceHasFailed() {
        var runIn = openRunIn(["VerificationBattery", "Calibration"]);
        runIn.stopOnFailure = false;
        runIn.running = true;
        runIn.loop = 1;
        runIn.elapsed = -1000;
        ["02", "01", "01", "01"].forEach(function(code) { runIn.finish(code, "because", 3); });
        compare(runIn.loop, 3);
        compare(runIn.outcomes["VerificationBattery"], { code: "02", reason: "because", loops: 2, seconds: 6 });
        compare(runIn.outcomes["Calibration"].code, "01");
        runIn.stop("operator");
        compare(runIn.code, FactoryUtils.Fail);
    }

    function test_runInStopsForTheTemperature() {
        var runIn = openRunIn(["VerificationBattery", "Calibration"]);
        Phone.setBattery({ temperature: 55.5 });
        mouseClick(find("runInStart"));
        compare(runIn.end, "temperature");
        compare(runIn.code, FactoryUtils.Fail);
        compare(find("endWord").text, "The battery reached 55.5\u00a0°C.");
    }

    function test_aMissingTemperatureStopsNothing() {
        var runIn = openRunIn(["Calibration"]);
        Phone.setBattery({ temperature: undefined });
        mouseClick(find("runInStart"));
        verify(runIn.running);
        verify(isNaN(runIn.temperature.maximum));
        compare(runIn.temperature.text(runIn.temperature.now), "no reading");
    }

    function test_leavingEndsTheRunIn() {
        var runIn = openRunIn(["VerificationBattery", "Calibration"]);
        mouseClick(find("runInStart"));
        tryVerify(function() { return page && page.isOpen; });
        mouseClick(find("runInStart"));
        compare(runIn.end, "operator");
        compare(runIn.code, FactoryUtils.Untest);
        verify(!frame.page);
    }

    function test_runInSaysThatThePhoneWasRestarted() {
        var runIn = openRunIn(["Calibration"]);
        runIn.lengthSeconds = 1;
        mouseClick(find("runInStart"));
        runIn.machineStart = new Date(2024, 2, 5, 8, 20);
        tryVerify(function() { return runIn.end !== ""; }, 15000);
        compare(runIn.end, "restart");
        compare(runIn.code, FactoryUtils.Fail);
    }

    function test_aClockThatIsSetIsNoRestart_data() {
        return [
            { tag: "set by a network", clock: 3 * 3600e3, start: 3 * 3600e3, end: "time" },
            { tag: "set back", clock: -40 * 60e3, start: -40 * 60e3, end: "time" },
            { tag: "set while a test blocked", clock: 3600e3 + 45e3, start: 3600e3, end: "time" },
            { tag: "slept", clock: 3600e3, start: 0, end: "time" },
            { tag: "restarted", clock: 0, start: 95e3, end: "restart" },
            { tag: "restarted and set", clock: 3600e3, start: 3600e3 + 95e3, end: "restart" }
        ];
    }
    function test_aClockThatIsSetIsNoRestart(data) {
        var runIn = openRunIn(["Calibration"]), before = Phone.machineStart;
        runIn.lengthSeconds = 3600 * 24;
        mouseClick(find("runInStart"));
        Phone.machineStart = new Date(before.getTime() + data.start);
        // As if the clock had been so much behind at the last look.
        runIn.lastTick -= data.clock;
        runIn.tick();
        runIn.stop("time");
        compare(runIn.end, data.end);
        verify(runIn.elapsed <= 120, runIn.elapsed);
    }

    function test_aPageThatDoesNothingFailsTheRunIn() {
        var runIn = openRunIn(["AudioPlayMusicReceiver", "Calibration"]);
        Phone.soundServer = false;
        mouseClick(find("runInStart"));
        tryVerify(function() { return page && page.isOpen; });
        frame.testSeconds = runIn.row.timeout - 1;
        tryVerify(function() { return runIn.end === "failure"; }, 5000);
    }

    function test_runInPlaysSounds() {
        var runIn = openRunIn(["AudioPlayStereoLoudspeaker"]);
        mouseClick(find("runInStart"));
        tryVerify(function() { return page && page.exercised; }, 10000);
        compare(page.played.length, page.sounds.length);
        frame.testSeconds = runIn.row.seconds;
        runIn.elapsed = runIn.lengthSeconds;
        tryVerify(function() { return runIn.end === "time"; }, 5000);
        compare(runIn.code, FactoryUtils.Pass);
        compare(Phone.sinkPort, "output-before");
        compare(Phone.sounding, "");
    }

    function test_theRunInShowsItselfToWhoeverTaps() {
        openRunIn(["VerificationLcd"]);
        mouseClick(find("runInStart"));
        tryVerify(function() { return frame.fullScreen; });
        mouseClick(shell, 100, 100);
        verify(!frame.fullScreen);
        verify(find("runInClock").visible);
        verify(page.fullScreen);
    }

    function test_traceKeepsABoundedNumberOfPoints() {
        var component = Qt.createComponent("../../../qml/flow/Trace.qml");
        var trace = component.createObject(driver);
        for (var i = 0; i < 1000; ++i)
            trace.add(i === 500 ? NaN : i);
        verify(trace.points.length <= trace.capacity);
        verify(trace.points.length > trace.capacity / 3);
        compare(trace.minimum, 0);
        compare(trace.maximum, 999);
        trace.destroy();
    }

    function test_theEngineersView() {
        start("engineer");
        verify(frame.raw.length > 15);
        compare(frame.raw.filter(function(row) { return row.name === "voltage_now"; })[0].value, "3921000");
        find("probe").clicked();
        tryVerify(function() { return frame.features.length === TestTable.rows.length; });
    }
}
