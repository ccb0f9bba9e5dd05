// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtTest 1.15
import Kiv 1.0
import KivFake 1.0
import "../../../qml/flow/TestTable.js" as TestTable

Driver {
    name: "Shell"

    function screenName() {
        return shell.screen ? String(shell.screen).replace(/_QMLTYPE.*/, "") : "";
    }

    function toList(mode) {
        start("home");
        compare(screenName(), "HomeScreen");
        shell.chooseSequence(mode);
        tryVerify(function() { return screenName() === "ListScreen"; });
    }

    function test_disclaimerComesFirst() {
        start("");
        compare(screenName(), "DisclaimerScreen");
        mouseClick(find("accept"));
        compare(screenName(), "HomeScreen");
    }

    function test_unknownStartPageIsHome() {
        start("NoSuchTest");
        compare(screenName(), "HomeScreen");
    }

    function test_workingIsDrawnBeforeThePhoneIsAsked() {
        start("home");
        shell.chooseSequence(TestTable.FactoryTests);
        compare(screenName(), "HomeScreen", "nothing is asked in the tap itself");
        verify(findChild(shell, "working").visible);
        tryVerify(function() { return screenName() === "ListScreen"; });
        tryVerify(function() { return !findChild(shell, "working").visible; });
        compare(shell.flow.entries.length, 35);
    }

    function test_aWholeSequence() {
        Phone.factoryTests = ["VerificationHallDetect", "VerificationLcd", "VerificationBattery", "VerificationKey"];
        Phone.unsupported = ["Key"];
        var display = TestTable.row("VerificationLcd"), file = display.page;
        display.page = "";
        toList(TestTable.FactoryTests);
        display.page = file;
        compare(shell.flow.entries.map(function(entry) { return entry.state; }),
                ["unwritten", "ready", "ready", "absent"]);
        mouseClick(find("start"));
        compare(screenName(), "TestScreen");
        compare(frame.row.name, "VerificationHallDetect");
        compare(frame.progressText, "1 of 2, about 1 min left");
        compare(frame.clockText, "Time left: 1:00");
        compare(find("header").subtitle, "1 of 2, about 1 min left \u00b7 Time left: 1:00");
        tryVerify(function() { return page.isOpen; });
        tap("fail");
        compare(kept("VerificationHallDetect").code, FactoryUtils.Fail);
        compare(frame.row.name, "VerificationBattery");
        verify(find("flash").visible, "the verdict is seen");
        compare(find("flash").code, FactoryUtils.Fail);
        tryVerify(function() { return page && page.isOpen; });
        // The page measures a pass and goes on by itself.
        tryVerify(function() { return screenName() === "SummaryScreen"; }, 15000);
        var verdict = kept("VerificationBattery");
        compare(verdict.code, FactoryUtils.Pass);
        compare(verdict.decided, FactoryUtils.Pass);
        verify(!verdict.overruled);
        verify(verdict.seconds >= 3, verdict.seconds);

        compare(frame.code, FactoryUtils.Fail);
        compare(frame.sorted.map(function(entry) { return entry.row.name; }),
                ["VerificationHallDetect", "VerificationLcd", "VerificationKey", "VerificationBattery"]);
        compare(frame.sorted.map(function(entry) { return shell.flow.entryCode(entry); }), ["02", "00", "03", "01"]);
        compare(frame.remark(frame.sorted[1]), "Not available yet");
        compare(frame.remark(frame.sorted[2]), "Not on this phone: Key");
        compare([FactoryUtils.Fail, FactoryUtils.Untest, FactoryUtils.NA, FactoryUtils.Pass]
                .map(function(code) { return shell.flow.count(code); }), [1, 1, 1, 1]);

        // The failed one alone is tested again, and the number of attempts is kept.
        mouseClick(find("retest"));
        compare(frame.row.name, "VerificationHallDetect");
        compare(shell.flow.run.length, 1);
        tryVerify(function() { return page && page.isOpen; });
        Phone.hall = true;
        Phone.hall = false;
        tryVerify(function() { return screenName() === "SummaryScreen"; }, 10000);
        compare(kept("VerificationHallDetect").code, FactoryUtils.Pass);
        compare(kept("VerificationHallDetect").attempts, 2);
        compare(frame.code, FactoryUtils.Untest, "not green while a test is left");

        mouseClick(find("next"));
        compare(screenName(), "HomeScreen");
        compare(Object.keys(shell.flow.results).length, 0);
    }

    function test_greenOnlyWhenNothingIsFailedOrLeft() {
        Phone.factoryTests = ["VerificationHallDetect", "VerificationKey"];
        Phone.unsupported = ["Key"];
        toList(TestTable.FactoryTests);
        shell.show("SummaryScreen");
        compare(frame.code, FactoryUtils.Untest);
        shell.flow.record("VerificationHallDetect", { code: FactoryUtils.Pass, decided: "", reason: "" });
        compare(frame.code, FactoryUtils.Pass);
        shell.flow.record("VerificationHallDetect", { code: FactoryUtils.Fail, decided: "", reason: "" });
        compare(frame.code, FactoryUtils.Fail);
    }

    function test_anEmptySequenceIsNotGreen() {
        Phone.factoryTests = [];
        toList(TestTable.FactoryTests);
        shell.show("SummaryScreen");
        verify(frame.code !== FactoryUtils.Pass);
    }

    function test_aVerdictCountsOnce() {
        openTest("VerificationHallDetect");
        var first = frame;
        first.record(FactoryUtils.Fail);
        first.record(FactoryUtils.Pass);
        compare(kept("VerificationHallDetect").code, FactoryUtils.Fail);
        compare(kept("VerificationHallDetect").attempts, 1);
    }

    function test_passIsLockedUntilThereIsEvidenceAndThenHeld() {
        openTest("VerificationHeadsetButtons");
        verify(!find("pass").enabled);
        holdPass();
        verify(!kept("VerificationHeadsetButtons"));
        Phone.buttonsPressed = HeadsetDetect.Button1;
        Phone.buttonsPressed = 0;
        verify(find("pass").enabled);
        mouseClick(find("pass"));
        verify(!kept("VerificationHeadsetButtons"), "a short tap is not a pass");
        holdPass();
        compare(kept("VerificationHeadsetButtons").code, FactoryUtils.Pass);
        compare(kept("VerificationHeadsetButtons").decided, "");
    }

    function test_theOperatorCanOverruleTheMeasurement() {
        Phone.setBattery({ health: "Overheat" });
        openTest("VerificationBattery");
        tryVerify(function() { return page.verdict === FactoryUtils.Fail; }, 10000);
        verify(page.reason.indexOf("Overheated") >= 0, page.reason);
        letPass(3500);
        verify(!kept("VerificationBattery"), "a failure waits for a look at it");
        holdPass();
        verify(!kept("VerificationBattery"), "he has to say why");
        answer("cancel");
        verify(!kept("VerificationBattery"));
        holdPass();
        answer("limits");
        var verdict = kept("VerificationBattery");
        compare(verdict.code, FactoryUtils.Pass);
        compare(verdict.decided, FactoryUtils.Fail);
        verify(verdict.overruled);
        compare(verdict.why, "limits");
        verify(verdict.reason.indexOf("Overheated") >= 0);
        shell.show("SummaryScreen");
        var entry = { row: TestTable.row("VerificationBattery"), state: "ready" };
        verify(frame.remark(entry).indexOf("Overruled by the operator: The limits do not suit this model") === 0,
               frame.remark(entry));
    }

    function test_leavingKeepsNoVerdict() {
        Phone.factoryTests = ["VerificationHallDetect", "VerificationBattery"];
        toList(TestTable.FactoryTests);
        mouseClick(find("start"));
        tryVerify(function() { return page && page.isOpen; });
        shell.leaveTest();
        compare(screenName(), "ListScreen");
        verify(!kept("VerificationHallDetect"));
        compare(Phone.log, ["openFile", "closeFile"]);
        compare(find("start").text, "Start");
    }

    function test_theListStaysWhereItWas() {
        toList(TestTable.AllTests);
        compare(find("tests").contentY, 0);
        var row = TestTable.row("VerificationZel");
        var index = shell.flow.entries.findIndex(function(entry) { return entry.row === row; });
        verify(index > 20);
        shell.openSingle(row);
        tryVerify(function() { return page && page.isOpen; });
        shell.leaveTest();
        var list = find("tests");
        tryVerify(function() { return list.itemAtIndex(index) !== null; });
        var top = list.itemAtIndex(index).y - list.contentY;
        verify(top >= 0 && top < list.height, top);
        shell.showHome();
        toList(TestTable.AllTests);
        compare(find("tests").contentY, 0);
    }

    function test_aClosedPageIsLetGo() {
        Phone.factoryTests = ["VerificationHallDetect", "VerificationBattery"];
        toList(TestTable.FactoryTests);
        verify(!!shell.pages["VerificationHallDetect.qml"]);
        verify(!!shell.pages["VerificationBattery.qml"]);
        var closed = 0;
        shell.pageClosed.connect(function() { ++closed; });
        mouseClick(find("start"));
        tryVerify(function() { return page.isOpen; });
        compare(closed, 0);
        tap("fail");
        tryCompare(frame.row, "name", "VerificationBattery");
        verify(closed > 0);
        compare(shell.pages["VerificationHallDetect.qml"], null);
        verify(!!shell.pages["VerificationBattery.qml"], "the next one is still at hand");
    }

    function test_retryMakesThePageAnew() {
        openTest("VerificationHallDetect");
        Phone.hall = true;
        verify(page.seenClosed);
        mouseClick(find("retry"));
        Phone.hall = false;
        tryVerify(function() { return page && page.isOpen && !page.seenClosed; });
        compare(Phone.log, ["openFile", "closeFile", "openFile"]);
    }

    function test_everyTestWithAPageOpensAndSaysSomething() {
        TestTable.rows.forEach(function(row) {
            if (row.page === "")
                return;
            openTest(row.name);
            verify(!frame.broken, row.name);
            verify(page.instructions !== "" || page.content.length > 0 || page.missing !== "", row.name);
            cleanup();
        });
    }

    function test_aPageThatCannotBeLoadedIsSaidAndCanBeFailed() {
        TestTable.rows.push({ name: "Broken", title: "kiv-test-battery", needs: [], page: "Broken.qml", glyph: "battery",
                              kind: "measured", seconds: 1, timeout: 60 });
        ignoreWarning(/Broken.qml.*No such file/);
        start("Broken");
        TestTable.rows.pop();
        verify(frame.broken);
        verify(!find("pass").enabled);
        tap("fail");
        compare(kept("Broken").code, FactoryUtils.Fail);
        compare(kept("Broken").reason, "This test cannot be opened on this phone.");
    }
}
