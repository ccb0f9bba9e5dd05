// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtQuick.Window 2.15
import QtTest 1.15
import Kiv 1.0
import KivFake 1.0
import "../../../qml/controls"
import "../../../qml/flow/Report.js" as Report
import "../../../qml/flow/TestTable.js" as TestTable

/*! What tired, hurried and gloved hands do to the flow, and what must come out all the same. */
Driver {
    id: driver
    name: "Misuse"

    readonly property var identity: ({ wlan: "", bluetooth: "", calibrated: false })

    function screenName() {
        return shell.screen ? String(shell.screen).replace(/_QMLTYPE.*/, "") : "";
    }

    function choose(mode) {
        shell.chooseSequence(mode);
        verify(shell.busy);
        tryVerify(function() { return !shell.busy && screenName() === "ListScreen"; });
    }

    function toList(mode, names) {
        Phone.factoryTests = names;
        Phone.runInTests = names;
        start("home");
        choose(mode);
    }

    function startSequence(names) {
        toList(TestTable.FactoryTests, names);
        mouseClick(find("start"));
        tryVerify(function() { return page && page.isOpen; });
    }

    /*! Taps as quick as they are where a finger trembles; all but the first meet what the first has brought. False where
     *  the machine made them slower. */
    function tapQuickly(times, x, y) {
        var finger = touchEvent(shell), quick = true, former;
        for (var i = 0; i < times; ++i) {
            var now = Date.now();
            finger.press(0, shell, x, y).commit();
            finger.release(0, shell, x, y).commit();
            quick = quick && (i === 0 || Date.now() - former < 300);
            former = now;
            wait(60);
        }
        return quick;
    }

    function tapItemQuickly(times, item) {
        var middle = item.mapToItem(shell, item.width / 2, item.height / 2);
        return tapQuickly(times, middle.x, middle.y);
    }

    function howOften() {
        return [{ tag: "twice", times: 2 }, { tag: "three times", times: 3 }, { tag: "five times", times: 5 }];
    }

    /*! A run-in of which nothing but the end is of interest here. */
    function runIn(outcomes, end) {
        choose(TestTable.RunInTests);
        mouseClick(find("start"));
        var run = frame.runIn;
        run.stopOnFailure = false;
        run.running = true;
        run.loop = 1;
        run.elapsed = -1000;
        outcomes.forEach(function(code) { run.finish(code, "because", 3); });
        run.stop(end);
    }

    function summaryCode() {
        shell.show("SummaryScreen");
        return frame.code;
    }

    function test_aRunInIsNoPassOfTheFactorySequence() {
        toList(TestTable.FactoryTests, ["VerificationLcd", "VerificationWifi"]);
        runIn(["01", "01"], "time");
        compare(summaryCode(), FactoryUtils.Pass);
        choose(TestTable.FactoryTests);
        compare(shell.flow.rowsWith(FactoryUtils.Untest).length, 2, "nobody has looked at the panel");
        compare(summaryCode(), FactoryUtils.Untest);
        verify(Report.codeText(shell.flow, identity).indexOf("CODES 0000") > 0);
        compare(shell.flow.total("attempts"), 0);
        choose(TestTable.RunInTests);
        compare(summaryCode(), FactoryUtils.Pass, "it is still the run-in's");
    }

    function test_aRunInTakesBackNoFailureThatWasSeen() {
        toList(TestTable.FactoryTests, ["VerificationLcd"]);
        shell.flow.record("VerificationLcd", { code: FactoryUtils.Fail, decided: "", reason: "A dead pixel", seconds: 2 });
        runIn(["01", "01"], "time");
        compare(kept("VerificationLcd").reason, "A dead pixel");
        compare(summaryCode(), FactoryUtils.Fail);
        choose(TestTable.FactoryTests);
        compare(summaryCode(), FactoryUtils.Fail);
        shell.flow.record("VerificationLcd", { code: FactoryUtils.Pass, decided: "", reason: "", seconds: 2 });
        compare(summaryCode(), FactoryUtils.Pass);
        compare(kept("VerificationLcd").attempts, 2);
    }

    function test_aFailureOfTheRunInIsOneEverywhere() {
        toList(TestTable.FactoryTests, ["MacAddresses"]);
        shell.flow.record("MacAddresses", { code: FactoryUtils.Pass, decided: "01", reason: "", seconds: 2 });
        runIn(["01", "02", "01"], "time");
        choose(TestTable.FactoryTests);
        compare(summaryCode(), FactoryUtils.Fail);
        // A skip takes nothing back.
        shell.flow.record("MacAddresses", { code: FactoryUtils.Untest, decided: "", reason: "", seconds: 1 });
        compare(shell.flow.code("MacAddresses"), FactoryUtils.Fail);
    }

    function test_factoryPassesAreNoRunIn() {
        toList(TestTable.FactoryTests, ["MacAddresses"]);
        shell.flow.record("MacAddresses", { code: FactoryUtils.Pass, decided: "01", reason: "", seconds: 2 });
        compare(summaryCode(), FactoryUtils.Pass);
        choose(TestTable.RunInTests);
        compare(summaryCode(), FactoryUtils.Untest, "there was no run-in");
        verify(Report.codeText(shell.flow, identity).indexOf("RESULT 00") > 0);
    }

    function test_theEndOfTheRunInOutlivesAnotherSequence() {
        toList(TestTable.FactoryTests, ["MacAddresses"]);
        runIn(["01"], "temperature");
        compare(summaryCode(), FactoryUtils.Fail);
        choose(TestTable.FactoryTests);
        compare(JSON.parse(Report.run(shell.flow, identity, "")).end, null);
        choose(TestTable.RunInTests);
        compare(summaryCode(), FactoryUtils.Fail);
        mouseClick(find("next"));
        choose(TestTable.RunInTests);
        compare(summaryCode(), FactoryUtils.Untest);
    }

    function test_aRetestDoesNotHideAFailureInALoop() {
        toList(TestTable.FactoryTests, ["MacAddresses", "VerificationBattery"]);
        runIn(["01", "01", "02", "01", "01", "01"], "time");
        compare(summaryCode(), FactoryUtils.Fail);
        mouseClick(find("retest"));
        compare(frame.row.name, "VerificationBattery");
        tryVerify(function() { return screenName() === "SummaryScreen"; }, 15000);
        compare(kept("VerificationBattery").code, FactoryUtils.Pass);
        compare(kept("VerificationBattery").attempts, 4);
        compare(frame.code, FactoryUtils.Untest, "not green");
        verify(find("totals").text.indexOf("the run-in has to be done again") >= 0, find("totals").text);
        var entry = shell.flow.entries.filter(function(entry) { return entry.row.name === "VerificationBattery"; })[0];
        var remark = frame.remark(entry);
        verify(remark.indexOf("Failed in the run-in, loop 2") >= 0, remark);
        var run = JSON.parse(Report.run(shell.flow, identity, ""));
        compare(run.code, FactoryUtils.Untest);
        compare(run.failedLoops, { VerificationBattery: [2] });
        choose(TestTable.FactoryTests);
        shell.show("SummaryScreen");
        remark = frame.remark(entry);
        verify(remark.indexOf("Attempts that failed: 1") >= 0, remark);
        choose(TestTable.RunInTests);
        verify(Report.codeText(shell.flow, identity).indexOf("RESULT 00") > 0);
    }

    function test_aTestThatFailsForHoursFillsNoMemory() {
        toList(TestTable.RunInTests, ["MacAddresses"]);
        var codes = [];
        for (var i = 0; i < 40; ++i)
            codes.push("02");
        runIn(codes, "time");
        var failures = frame.runIn.failures;
        compare(failures.length, 1);
        compare(failures[0].times, 40);
        compare(failures[0].loop, 1);
        compare(frame.failureText(failures[0]), "Network addresses, loop 1, 2, 3, 4, 5 …");
    }

    function test_pagesThatCannotBeOpenedHoldUpNoRunIn() {
        TestTable.rows.push({ name: "Broken", title: "kiv-test-battery", needs: [], page: "Broken.qml", glyph: "battery",
                              kind: "measured", seconds: 1, timeout: 60, alone: true });
        ignoreWarning(/Broken.qml.*No such file/);
        ignoreWarning(/Broken.qml.*No such file/);
        toList(TestTable.RunInTests, ["Broken"]);
        TestTable.rows.pop();
        mouseClick(find("start"));
        var run = frame.runIn;
        run.stopOnFailure = false;
        mouseClick(find("runInStart"));
        verify(run.running);
        tryVerify(function() { return run.loop === 2; }, 5000);
        run.stop("operator");
        compare(run.code, FactoryUtils.Fail);
    }

    function test_heatThatNobodyCanMeasureIsSaid() {
        Phone.setBattery({ temperature: undefined });
        toList(TestTable.RunInTests, ["Calibration"]);
        mouseClick(find("start"));
        verify(find("heatUnknown").visible);
        mouseClick(find("runInStart"));
        verify(frame.heatUnknown);
        Phone.setBattery({ temperature: 30 });
        frame.runIn.sample();
        verify(!frame.heatUnknown);
    }

    function test_aMeasuredFailureIsNotLostByLeaving() {
        Phone.setBattery({ health: "Dead" });
        startSequence(["VerificationBattery", "MacAddresses"]);
        shell.flow.record("VerificationBattery", { code: FactoryUtils.Pass, decided: "01", reason: "", seconds: 2 });
        tryVerify(function() { return page.verdict === FactoryUtils.Fail; }, 10000);
        shell.leaveTest();
        compare(screenName(), "ListScreen");
        compare(kept("VerificationBattery").code, FactoryUtils.Fail);
        compare(kept("VerificationBattery").attempts, 2);
    }

    function test_aMeasuredFailureIsNotLostByRetrying() {
        Phone.setBattery({ health: "Dead" });
        startSequence(["VerificationBattery", "MacAddresses"]);
        tryVerify(function() { return page.verdict === FactoryUtils.Fail; }, 10000);
        var before = page;
        mouseClick(find("retry"));
        tryVerify(function() { return page && page !== before && page.isOpen; });
        shell.leaveTest();
        compare(kept("VerificationBattery").code, FactoryUtils.Fail);
        compare(kept("VerificationBattery").attempts, 1);
        // What passes then has still failed once.
        Phone.setBattery({ health: "Good" });
        shell.openSingle(TestTable.row("VerificationBattery"));
        tryVerify(function() { return screenName() === "ListScreen"; }, 15000);
        compare(kept("VerificationBattery").code, FactoryUtils.Pass);
        shell.show("SummaryScreen");
        verify(frame.remark(frame.sorted.filter(function(entry) {
            return entry.row.name === "VerificationBattery";
        })[0]).indexOf("Attempts that failed: 1") >= 0);
    }

    function test_nothingPassesALockedPage() {
        openTest("VerificationHallDetect");
        // As a screen reader presses it, or a key: without a look at whether it can be pressed.
        find("pass").activated();
        verify(!kept("VerificationHallDetect"));
        frame.choose(FactoryUtils.Pass);
        verify(!kept("VerificationHallDetect"));
    }

    function test_whoGoesOnAfterATimeOutIsAskedAgain() {
        startSequence(["VerificationHallDetect", "VerificationBattery"]);
        for (var i = 0; i < 2; ++i) {
            frame.secondsLeft = 1;
            tryVerify(function() { return find("sheet").isOpen; }, 3000);
            answer("skip");
            answer("cancel");
            verify(!find("sheet").isOpen);
            verify(frame.secondsLeft > 30, "the clock runs again");
        }
    }

    function test_theKeyTestHasItsKeysAgainAfterAQuestion() {
        startSequence(["VerificationKey"]);
        frame.secondsLeft = 1;
        tryVerify(function() { return find("sheet").isOpen; }, 3000);
        answer("wait");
        Phone.keys.forEach(function(key) { keyClick(key); });
        compare(page.verdict, FactoryUtils.Pass);
    }

    function test_aKeyThatIsNotAskedForDoesNotTakeTheOthers() {
        Phone.keys = [Qt.Key_VolumeUp];
        startSequence(["VerificationKey"]);
        keyClick(Qt.Key_VolumeDown);
        keyClick(Qt.Key_VolumeDown);
        keyClick(Qt.Key_Standby);
        verify(!kept("VerificationKey"));
        compare(screenName(), "TestScreen");
        keyClick(Qt.Key_VolumeUp);
        compare(page.verdict, FactoryUtils.Pass);
    }

    function test_withoutKeysToTestTheKeysJudge() {
        Phone.keys = [];
        startSequence(["VerificationKey", "MacAddresses"]);
        verify(frame.absent);
        keyClick(Qt.Key_VolumeDown);
        compare(kept("VerificationKey").code, FactoryUtils.Fail);
    }

    function test_keysStayOnTheSheet() {
        startSequence(["VerificationHallDetect", "MacAddresses"]);
        frame.secondsLeft = 1;
        tryVerify(function() { return find("sheet").isOpen; }, 3000);
        var seen = {};
        for (var i = 0; i < 12; ++i) {
            seen[shell.Window.activeFocusItem.objectName] = true;
            keyClick(Qt.Key_VolumeDown);
        }
        compare(Object.keys(seen).sort(), ["choice-fail", "choice-retry", "choice-skip", "choice-wait"]);
    }

    function test_keysDoNotReachTheSummaryBehindItsCode() {
        toList(TestTable.FactoryTests, ["MacAddresses"]);
        shell.flow.record("MacAddresses", { code: FactoryUtils.Pass, decided: "01", reason: "", seconds: 2 });
        shell.show("SummaryScreen");
        mouseClick(find("code"));
        for (var i = 0; i < 6; ++i) {
            verify(["copy", "close"].indexOf(shell.Window.activeFocusItem.objectName) >= 0,
                   shell.Window.activeFocusItem.objectName);
            keyClick(Qt.Key_VolumeDown);
        }
    }

    function test_tapsOnAFrozenScreenReachNothing() {
        startSequence(["VerificationHallDetect", "MacAddresses"]);
        var button = find("fail"), middle = button.mapToItem(shell, button.width / 2, button.height / 2);
        frame.blocking("Waiting", function() {
            var begin = Date.now();
            while (Date.now() - begin < 1000) {}
        });
        tryVerify(function() { return findChild(shell, "working").settling; });
        // They were waiting for the screen, so they come before anything that was planned meanwhile.
        mouseClick(shell, middle.x, middle.y);
        verify(!kept("VerificationHallDetect"));
        tryVerify(function() { return !shell.busy; });
        mouseClick(shell, middle.x, middle.y);
        compare(kept("VerificationHallDetect").code, FactoryUtils.Fail);
    }

    function test_aQuestionThatComesByItselfTakesNoTap() {
        inTime(function() {
            startSequence(["VerificationFingerprint", "MacAddresses"]);
            var before = Date.now();
            frame.secondsLeft = 1;
            tryVerify(function() { return find("sheet").isOpen; }, 3000);
            verify(Scene.deafUntil >= before + 400);
            var button = find("choice-fail"), middle = button.mapToItem(shell, button.width / 2, button.height / 2);
            mousePress(shell, middle.x, middle.y);
            mouseRelease(shell, middle.x, middle.y);
            if (Date.now() >= Scene.deafUntil)
                return false;
            verify(!kept("VerificationFingerprint"));
            verify(find("sheet").isOpen);
            mouseClick(button);
            compare(kept("VerificationFingerprint").code, FactoryUtils.Fail);
            return true;
        });
    }

    function test_thePowerKeyAloneEndsNoRunIn() {
        toList(TestTable.RunInTests, ["VerificationLcd"]);
        mouseClick(find("start"));
        mouseClick(find("runInStart"));
        var run = frame.runIn;
        tryVerify(function() { return frame.fullScreen; });
        keyClick(Qt.Key_Standby);
        verify(run.running, "it only wakes the panel");
        // Who has gone to the button means it.
        keyClick(Qt.Key_VolumeDown);
        mouseClick(shell, 100, 100);
        keyClick(Qt.Key_VolumeDown);
        compare(shell.Window.activeFocusItem.objectName, "runInStart");
        keyClick(Qt.Key_Standby);
        compare(run.end, "operator");
    }

    function test_aTremblingFingerFailsNoTest_data() {
        return howOften();
    }
    function test_aTremblingFingerFailsNoTest(data) {
        inTime(function() {
            toList(TestTable.FactoryTests, ["VerificationHallDetect", "MacAddresses"]);
            var start = find("start");
            var fail = Qt.point(start.mapToItem(shell, 0, 0).x + 40, start.mapToItem(shell, 0, start.height / 2).y);
            if (!tapQuickly(data.times, fail.x, fail.y))
                return false;
            compare(screenName(), "TestScreen");
            verify(!kept("VerificationHallDetect"));
            return true;
        });
    }

    function test_aTremblingFingerSkipsWithoutAReason_data() {
        return howOften();
    }
    function test_aTremblingFingerSkipsWithoutAReason(data) {
        inTime(function() {
            startSequence(["VerificationHallDetect", "MacAddresses"]);
            frame.secondsLeft = 1;
            tryVerify(function() { return find("sheet").isOpen; }, 3000);
            wait(Math.max(0, Scene.deafUntil - Date.now()));
            if (!tapItemQuickly(data.times, find("choice-skip")))
                return false;
            verify(find("sheet").isOpen);
            verify(find("sheet").cancelText !== "", "the first of them counts");
            verify(!kept("VerificationHallDetect"), "it would be said that the phone is not meant to have it");
            return true;
        });
    }

    function test_aTremblingFingerForgetsNoResults_data() {
        return howOften();
    }
    function test_aTremblingFingerForgetsNoResults(data) {
        inTime(function() {
            toList(TestTable.FactoryTests, ["MacAddresses"]);
            shell.flow.record("MacAddresses", { code: FactoryUtils.Pass, decided: "01", reason: "", seconds: 2 });
            shell.show("SummaryScreen");
            mouseClick(find("code"));
            if (!tapItemQuickly(data.times, find("close")))
                return false;
            compare(screenName(), "SummaryScreen");
            compare(kept("MacAddresses").code, FactoryUtils.Pass);
            return true;
        });
    }

    function test_aTremblingFingerAnswersOneQuestion_data() {
        return howOften();
    }
    function test_aTremblingFingerAnswersOneQuestion(data) {
        inTime(function() {
            openTest("VerificationFingerprint");
            if (!tapItemQuickly(data.times, find("yes")))
                return false;
            compare(page.verdict, "", "the second question is another one");
            return true;
        });
    }

    function test_theGridOutlivesItsLastTouch() {
        openTest("VerificationTouch");
        tryVerify(function() { return page.fullScreen; });
        for (var index = 0; index < page.total; ++index)
            page.touch(index % page.columns + 0.5, Math.floor(index / page.columns) + 0.5, page.columns, page.rows);
        compare(page.remaining, 0);
        verify(page.fullScreen, "the touch is still being delivered");
        tryCompare(page, "verdict", FactoryUtils.Pass);
        verify(!page.fullScreen);
    }

    function test_theLastCellMayBeTapped() {
        openTest("VerificationTouch");
        tryVerify(function() { return page.fullScreen; });
        for (var index = 0; index < page.total - 1; ++index)
            page.touch(index % page.columns + 0.5, Math.floor(index / page.columns) + 0.5, page.columns, page.rows);
        compare(page.remaining, 1);
        var finger = touchEvent(shell);
        // A grid that goes while the press is being delivered would get the release, and Kiv would crash.
        finger.press(0, shell, shell.width - 10, shell.height - 10).commit();
        finger.release(0, shell, shell.width - 10, shell.height - 10).commit();
        tryCompare(page, "verdict", FactoryUtils.Pass);
        verify(!page.fullScreen);
    }

    function test_aClockThatIsSetTakesNoTime() {
        openTest("VerificationHallDetect");
        frame.lastTick -= 40 * 365 * 86400000;
        tap("fail");
        verify(kept("VerificationHallDetect").seconds <= 70, kept("VerificationHallDetect").seconds);
        verify(kept("VerificationHallDetect").seconds >= 0);
    }

    function test_anAddressThatIsNoneFitsTheCode() {
        toList(TestTable.FactoryTests, ["MacAddresses"]);
        var text = Report.codeText(shell.flow, { wlan: "a\rRESULT 01", calibrated: false,
                                                 bluetooth: new Array(5000).join("é") });
        compare(text.split(/[\r\n]/).length, 7);
        compare(text.split("\n")[1], "WLAN a?RESULT?01");
        verify(text.length < 300);
    }

    function test_remarksOfAnyKindStayOneLine() {
        toList(TestTable.FactoryTests, ["MacAddresses"]);
        var reason = "\"quoted\"\n\\ \t\u2028 %1 %n \ud83d\ude00";
        shell.flow.record("MacAddresses", { code: FactoryUtils.Fail, decided: "02", reason: reason, seconds: 2 });
        var line = Report.verdict(0, "MacAddresses", kept("MacAddresses"), "");
        verify(/^[\x20-\x7e]+$/.test(line), line);
        compare(JSON.parse(line).reason, reason);
        shell.show("SummaryScreen");
        verify(frame.remark(frame.sorted[0]).indexOf(reason) >= 0);
    }
}
