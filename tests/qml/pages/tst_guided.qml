// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtTest 1.15
import Kiv 1.0
import KivFake 1.0
import "../../../qml/controls"

/*! The pages that rest on the operator's eyes: what he may answer, in which order, and what becomes of it. */
Driver {
    id: driver
    name: "Guided"

    Component {
        id: checksComponent
        Checks {
            width: 360
            questions: [
                { name: "first", text: "Is it good?", bad: "It was not good." },
                { name: "second", text: "Is it bad?", good: false, bad: "It was bad." }
            ]
        }
    }
    SignalSpy {
        id: passed
        signalName: "passed"
    }
    SignalSpy {
        id: failed
        signalName: "failed"
    }

    function verdictIs(code, reason) {
        tryVerify(function() { return page !== null && page.verdict !== ""; }, 60000);
        compare(page.verdict, code, page.reason);
        if (reason)
            verify(page.reason.indexOf(reason) >= 0, page.reason);
    }

    function missingIs(sentence) {
        tryVerify(function() { return page.missing !== ""; }, 8000);
        verify(page.missing.indexOf(sentence) >= 0, page.missing);
        verify(!find("pass").enabled);
        compare(page.verdict, "");
    }

    function reading(title) {
        var found = page.measurements.filter(function(reading) { return reading.name === title; });
        compare(found.length, 1, title);
        return found[0];
    }

    function value(title) {
        return reading(title).valueText.replace("\u00a0", " ");
    }

    /*! What is visible of that name: several questions may wait for their turn. */
    function shown(name) {
        var found = [];
        (function look(item) {
            if (!item.visible)
                return;
            if (item.objectName === name)
                found.push(item);
            for (var i = 0; i < item.children.length; ++i)
                look(item.children[i]);
        })(shell);
        return found;
    }

    function press(name) {
        tryVerify(function() { return shown(name).length === 1; }, 5000, name);
        // The buttons may stand below what is on the screen.
        shown(name)[0].clicked();
    }

    function questionIs(text) {
        tryVerify(function() { return shown("question").length === 1; }, 5000, text);
        verify(shown("question")[0].text.indexOf(text) >= 0, shown("question")[0].text);
    }

    function answer(yes) {
        press(yes ? "yes" : "no");
    }

    /*! The challenge on the page, an item of no name. */
    function challenge() {
        return Array.prototype.filter.call(page.children[0].children, function(item) {
            return item.expected !== undefined || item.draw !== undefined;
        })[0];
    }

    function answerRight() {
        var asked = challenge();
        tryVerify(function() { return asked.running && asked.ready && asked.visible; }, 10000);
        press("answer-" + asked.expected);
    }

    function answerWrong() {
        var asked = challenge();
        tryVerify(function() { return asked.running && asked.ready && asked.visible; }, 10000);
        press("answer-" + asked.values.filter(function(value) { return value !== asked.expected; })[0]);
    }

    function panel() {
        tryVerify(function() { return shown("panel").length === 1; });
        return shown("panel")[0];
    }

    // Questions

    function test_rightAnswersPass() {
        var checks = createTemporaryObject(checksComponent, driver);
        passed.target = failed.target = checks;
        passed.clear();
        failed.clear();
        compare(findChild(checks, "question").text, "Is it good?");
        mouseClick(findChild(checks, "yes"));
        compare(findChild(checks, "question").text, "Is it bad?");
        compare(passed.count, 0);
        mouseClick(findChild(checks, "no"));
        compare(passed.count, 1);
        verify(checks.complete);
        checks.answer(false);
        compare(passed.count + failed.count, 1);
    }

    /*! Who taps the same button without reading is found out. */
    function test_theSameAnswerEveryTimeFails_data() {
        return [{ tag: "yes", yes: true, reason: "It was bad." }, { tag: "no", yes: false, reason: "It was not good." }];
    }

    function test_theSameAnswerEveryTimeFails(data) {
        var checks = createTemporaryObject(checksComponent, driver);
        passed.target = failed.target = checks;
        passed.clear();
        failed.clear();
        checks.answer(data.yes);
        checks.answer(data.yes);
        compare(passed.count, 0);
        compare(failed.count, 1);
        compare(failed.signalArguments[0][0], data.reason);
    }

    function test_questionsWaitForTheirTime() {
        var checks = createTemporaryObject(checksComponent, driver, { asking: false });
        verify(!checks.visible);
        checks.answer(true);
        compare(checks.answered, 0);
    }

    // Every page of questions alone

    function test_questions_data() {
        return [
            { tag: "VerificationFingerprint", right: [true, false, true] },
            { tag: "CellularVoice", right: [true, false, true] },
            { tag: "CellularData", right: [true, false] }
        ];
    }

    function test_questions(data) {
        openTest(data.tag);
        verify(!find("pass").enabled);
        compare(page.verdict, "");
        data.right.forEach(answer);
        verdictIs(FactoryUtils.Pass);
    }

    function test_everyWrongAnswerFails_data() {
        return test_questions_data();
    }

    function test_everyWrongAnswerFails(data) {
        for (var wrong = 0; wrong < data.right.length; ++wrong) {
            cleanup();
            openTest(data.tag);
            for (var i = 0; i < wrong; ++i)
                answer(data.right[i]);
            answer(!data.right[wrong]);
            verdictIs(FactoryUtils.Fail, page.questions[wrong].bad);
        }
    }

    function test_everySimCardIsAskedFor() {
        Phone.modemCount = 2;
        openTest("CellularVoice");
        [true, false, true].forEach(answer);
        compare(page.verdict, "");
        questionIs("SIM card 2");
        [true, false, true].forEach(answer);
        verdictIs(FactoryUtils.Pass);
    }

    function test_withoutTheHardware_data() {
        return [
            { tag: "VerificationFingerprint", feature: "Fingerprint", sentence: "no fingerprint reader" },
            { tag: "CellularVoice", feature: "CellularVoice", sentence: "No modem" },
            { tag: "CellularData", feature: "CellularData", sentence: "No modem" }
        ];
    }

    function test_withoutTheHardware(data) {
        Phone.unsupported = [data.feature];
        openTest(data.tag);
        missingIs(data.sentence);
        compare(shown("yes").length, 0);
    }

    // Display

    function test_display() {
        openTest("VerificationLcd");
        verify(page.fullScreen);
        var seen = [];
        for (var i = 0; i < page.pictures.length; ++i) {
            seen.push(panel().shown);
            mouseClick(panel());
        }
        compare(seen, page.pictures);
        compare(panel().shown, "dots");
        compare(page.verdict, "");
        verify(!challenge().visible);
        compare(shown("dot").length, challenge().expected);
        mouseClick(panel());
        verify(!page.fullScreen);
        answerRight();
        answer(false);
        answer(true);
        verdictIs(FactoryUtils.Pass);
    }

    function passDots() {
        for (var i = 0; i <= page.pictures.length; ++i)
            mouseClick(panel());
        answerRight();
    }

    function test_dotsThatWereNotCounted() {
        openTest("VerificationLcd");
        for (var i = 0; i <= page.pictures.length; ++i)
            mouseClick(panel());
        answerWrong();
        compare(page.verdict, "");
        // Others are drawn.
        compare(shown("dot").length, challenge().expected);
        mouseClick(panel());
        answerWrong();
        verdictIs(FactoryUtils.Fail, "Shown: ");
        compare(page.reason.split("\n").length, 2);
    }

    function test_dotsCanBeSeenAgain() {
        openTest("VerificationLcd");
        for (var i = 0; i <= page.pictures.length; ++i)
            mouseClick(panel());
        var before = challenge().expected;
        press("again");
        compare(shown("dot").length, before);
    }

    function test_dotsDoNotTouchAndStayOnThePanel() {
        openTest("VerificationLcd");
        for (var round = 0; round < 50; ++round) {
            var dots = page.scatter(page.mostDots);
            compare(dots.length, page.mostDots);
            for (var i = 0; i < dots.length; ++i) {
                verify(dots[i].x > 0.03 && dots[i].x < 0.97 && dots[i].y > 0.02 && dots[i].y < 0.98);
                for (var j = 0; j < i; ++j) {
                    var gap = Math.hypot((dots[i].x - dots[j].x) * 360, (dots[i].y - dots[j].y) * 640);
                    verify(gap > 2 * Theme.unit, gap);
                }
            }
        }
    }

    function test_displayFaults_data() {
        return [{ tag: "spot", answers: [true], reason: "dot, line or stain" },
                { tag: "shades", answers: [false, false], reason: "missing" }];
    }

    function test_displayFaults(data) {
        openTest("VerificationLcd");
        passDots();
        data.answers.forEach(answer);
        verdictIs(FactoryUtils.Fail, data.reason);
    }

    function test_picturesCanBeSeenAgainWithoutCountingAgain() {
        openTest("VerificationLcd");
        passDots();
        press("pictures");
        for (var i = 0; i < page.pictures.length; ++i)
            mouseClick(panel());
        verify(!page.fullScreen);
        questionIs("dot, line");
    }

    function test_whatThePicturesAre() {
        openTest("VerificationLcd");
        ["#ffffff", "#000000", "#ff0000", "#00ff00", "#0000ff"].forEach(function(colour) {
            verify(Qt.colorEqual(find("paper").color, colour), panel().shown);
            compare([find("paper").width, find("paper").height], [360, 640]);
            mouseClick(panel());
        });
        mouseClick(panel());
        mouseClick(panel());
        compare(panel().shown, "fine");
        tryCompare(find("checkers"), "status", Image.Ready);
        compare([find("checkers").width, find("checkers").height], [360, 640]);
    }

    // Backlight

    function test_backlight() {
        openTest("VerificationLcdBacklight");
        compare(panel().color, Qt.rgba(1, 1, 1, 1));
        mouseClick(panel());
        for (var round = 0; round < 3; ++round) {
            tryCompare(page, "phase", "before");
            var before = page.level;
            tryCompare(page, "phase", "after");
            compare(challenge().expected, page.level > before ? "brighter" : "darker");
            // A tap must not take away what has to be seen.
            mouseClick(panel());
            compare(page.phase, "after");
            answerRight();
        }
        questionIs("uneven");
        answer(false);
        answer(true);
        verdictIs(FactoryUtils.Pass);
    }

    function test_backlightThatNobodyLookedAt() {
        openTest("VerificationLcdBacklight");
        mouseClick(panel());
        answerWrong();
        compare(page.verdict, "");
        answerWrong();
        verdictIs(FactoryUtils.Fail, "Shown: ");
    }

    function test_backlightFaults_data() {
        return [{ tag: "uneven", answers: [true], reason: "uneven" },
                { tag: "fixed", answers: [false, false], reason: "does not follow" }];
    }

    function test_backlightFaults(data) {
        openTest("VerificationLcdBacklight");
        mouseClick(panel());
        for (var round = 0; round < 3; ++round)
            answerRight();
        data.answers.forEach(answer);
        verdictIs(FactoryUtils.Fail, data.reason);
    }

    // Key illumination

    function test_keyIllumination() {
        openTest("VerificationButtonBacklight");
        compare(shown("yes").length, 0);
        press("field");
        questionIs("lit now");
        answer(true);
        wait(300);
        compare(shown("yes").length, 0, "the operator has to keep his hands off first");
        page.rested = 6;
        tryVerify(function() { return page.hasRested; }, 12000);
        answer(false);
        answer(true);
        verdictIs(FactoryUtils.Pass);
    }

    function test_keyIlluminationFaults_data() {
        return [{ tag: "dark", answers: [false], reason: "do not light up" },
                { tag: "always lit", answers: [true, true], reason: "stay lit" },
                { tag: "unequal", answers: [true, false, false], reason: "equally bright" }];
    }

    function test_keyIlluminationFaults(data) {
        openTest("VerificationButtonBacklight");
        press("field");
        answer(data.answers[0]);
        page.rested = 7;
        if (data.answers.length > 1)
            tryVerify(function() { return page.hasRested; }, 12000);
        data.answers.slice(1).forEach(answer);
        verdictIs(FactoryUtils.Fail, data.reason);
    }

    // Notification light

    function lit() {
        return Phone.battery.status === "Charging";
    }

    /*! What a light says that shows this colour while the phone charges, until that has been asked often enough. */
    function tellTheLight(colour, rounds) {
        for (var round = 0; round < rounds; ++round) {
            tryVerify(function() { return find("answer-" + colour).enabled; }, 12000);
            press("answer-" + (lit() ? colour : "none"));
        }
    }

    function answerUntilChargingIsOff(colour) {
        function switchedOff() {
            return Phone.log.indexOf("disableCharger") >= 0;
        }
        for (;;) {
            tryVerify(function() { return switchedOff() || find("answer-" + colour).enabled; }, 12000);
            if (switchedOff())
                return;
            press("answer-" + colour);
        }
    }

    function test_notificationLight() {
        Phone.chargerFollows = true;
        Phone.setBattery({ status: "Discharging" });
        openTest("VerificationLED");
        compare(shown("light-red").length, 0);
        Phone.setBattery({ status: "Charging" });
        page.choices.forEach(function(choice) {
            tryVerify(function() { return isOnScreen("light-" + choice.value); }, 2000, choice.value);
        });
        press("light-orange");
        compare(page.verdict, "");
        compare(value("Light while charging"), "Orange or yellow");
        verify(!find("answer-orange").enabled, "the light needs time to follow");
        tellTheLight("orange", 3);
        verdictIs(FactoryUtils.Pass, "Orange or yellow");
        verify(Phone.log.indexOf("disableCharger") >= 0);
        shell.leaveTest();
        compare(Phone.battery.status, "Charging");
    }

    /*! Whoever always taps the same has to look once more, and at a light that he himself makes go out. */
    function test_notificationLightOfAnOperatorWhoDoesNotLook() {
        Phone.chargerFollows = true;
        openTest("VerificationLED");
        press("light-green");
        for (var mistakes = 0; mistakes < 2; ) {
            tryVerify(function() { return find("answer-green").enabled; }, 12000);
            if (!lit())
                ++mistakes;
            press("answer-green");
        }
        compare(page.verdict, "");
        compare(shown("answer-green").length, 0);
        tryVerify(lit, 5000);
        compare(value("Light while charging"), "no reading");
        verify(!find("pass").enabled);
        press("light-green");
        compare(shown("yes").length, 0);
        Phone.setBattery({ status: "Discharging" });
        answer(true);
        verdictIs(FactoryUtils.Fail, "does not change");
    }

    function test_notificationLightWhereChargingCannotBeSwitched() {
        openTest("VerificationLED");
        press("light-orange");
        answerUntilChargingIsOff("orange");
        compare(shown("yes").length, 0);
        tryVerify(function() { return shown("answer-orange").length === 0; }, 15000);
        tryVerify(function() { return Phone.log[Phone.log.length - 1] === "enableCharger"; });
        // The battery notices too late, and that charging is on again.
        Phone.setBattery({ status: "Discharging" });
        wait(1500);
        compare(shown("yes").length, 0);
        Phone.setBattery({ status: "Charging" });
        press("light-orange");
        compare(shown("yes").length, 0);
        Phone.setBattery({ status: "Discharging" });
        answer(false);
        verdictIs(FactoryUtils.Pass, "go out");
    }

    function test_notificationLightLeftWhileChargingIsOff() {
        Phone.chargerFollows = true;
        openTest("VerificationLED");
        press("light-green");
        answerUntilChargingIsOff("green");
        verify(!lit());
        shell.leaveTest();
        verify(lit());
    }

    function test_notificationLightThatStaysDark() {
        openTest("VerificationLED");
        press("light-none");
        verdictIs(FactoryUtils.Fail, "stayed dark");
    }

    function test_aLightOfOneColourHasNoColours() {
        Phone.ledType = "Binary";
        openTest("VerificationLED");
        tryVerify(function() { return shown("light-lit").length === 1; });
        compare(shown("light-red").length, 0);
    }

    function test_notificationLightWithoutABatteryToAsk() {
        Phone.battery = {};
        openTest("VerificationLED");
        compare(shown("light-red").length, 0);
        press("plugged");
        press("light-red");
        press("unplugged");
        answer(false);
        verdictIs(FactoryUtils.Pass);
    }

    // Suspend

    function test_suspend() {
        openTest("Suspend");
        tryVerify(function() { return value("Slept since the phone was started") === "61,200 s"; });
        compare(value("Slept during this test"), "0 s");
        verify(!find("pass").enabled);
        Phone.deviceTimes = [93800000, 61203000];
        tryVerify(function() { return value("Slept during this test") === "3 s"; }, 5000);
        compare(page.verdict, "", "three seconds may be a doze");
        Phone.deviceTimes = [93900000, 61231000];
        verdictIs(FactoryUtils.Pass, "31 s");
    }

    function test_suspendWithoutTheService() {
        Phone.modeControl = false;
        openTest("Suspend");
        missingIs("mode-control service");
        Phone.modeControl = true;
        tryCompare(page, "missing", "");
        compare(value("Slept during this test"), "0 s");
    }

    /*! A service that starts anew counts from nothing; that is no sleep, nor a reason never to see one. */
    function test_suspendAfterTheServiceStartedAnew() {
        openTest("Suspend");
        tryVerify(function() { return value("Slept during this test") === "0 s"; });
        Phone.deviceTimes = [1000, 0];
        tryVerify(function() { return value("Slept since the phone was started") === "0 s"; }, 5000);
        compare(page.verdict, "");
        Phone.deviceTimes = [20000, 9000];
        verdictIs(FactoryUtils.Pass, "9 s");
    }

    // Restart

    function test_restart() {
        Phone.machineStart = new Date(Date.now() - 4 * 60000);
        openTest("Reboot");
        compare(value("Since the start"), "4 min");
        verify(!find("pass").enabled);
        answer(true);
        answer(false);
        verdictIs(FactoryUtils.Pass);
    }

    function test_aPhoneThatWasNotRestarted() {
        Phone.machineStart = new Date(Date.now() - 17 * 60000);
        openTest("Reboot");
        compare(value("Since the start"), "17 min");
        compare(shown("yes").length, 0);
        verify(!find("pass").enabled);
    }

    function test_restartFaults_data() {
        return [{ tag: "not at once", answers: [false], reason: "first try" },
                { tag: "error", answers: [true, true], reason: "error" }];
    }

    function test_restartFaults(data) {
        Phone.machineStart = new Date();
        openTest("Reboot");
        data.answers.forEach(answer);
        verdictIs(FactoryUtils.Fail, data.reason);
    }

    function test_restartUnknown() {
        Phone.machineStart = new Date(NaN);
        openTest("Reboot");
        missingIs("does not tell");
    }

    // Battery resistance

    /*! A battery of 120 milliohms, at 3.8 V without a current, in front of a charger that obeys. */
    Timer {
        id: cell
        property real resistance: 0.12
        property real charging: 1.1e6
        property real draining: -240000
        property real sign: 1
        property bool obeys: true
        interval: 20
        repeat: true
        onTriggered: {
            var off = Phone.log.filter(function(word) { return /Charger$/.test(word); }).pop() === "disableCharger";
            var current = off && obeys ? draining : charging;
            Phone.setBattery({ status: off && obeys ? "Discharging" : "Charging",
                               currentNow: sign === 0 ? Math.abs(current) : sign * current,
                               voltageNow: 3.8e6 + current * resistance });
        }
    }

    function measure(changes) {
        cell.resistance = 0.12;
        cell.charging = 1.1e6;
        cell.draining = -240000;
        cell.sign = 1;
        cell.obeys = true;
        for (var name in changes || {})
            cell[name] = changes[name];
        cell.triggered();
        cell.start();
        openTest("VerificationBatteryResistance");
        // A second is a long time to a pretended battery.
        page.sampleMs = 100;
    }

    function test_resistance_data() {
        return [
            { tag: "signed", changes: {}, code: FactoryUtils.Pass, step: "1,340 mA", value: "120 mΩ" },
            { tag: "signed the other way", changes: { sign: -1 }, code: FactoryUtils.Pass, step: "1,340 mA", value: "120 mΩ" },
            { tag: "without a sign", changes: { sign: 0 }, code: FactoryUtils.Pass, step: "1,340 mA", value: "120 mΩ" },
            { tag: "worn out", changes: { resistance: 0.6 }, code: FactoryUtils.Fail, step: "1,340 mA", value: "600 mΩ",
              reason: "Internal resistance: 600" },
            { tag: "weak charger", changes: { charging: -100000 }, code: FactoryUtils.Fail, step: "140 mA", value: "no reading",
              reason: "Step of the current: 140" },
            { tag: "voltage the wrong way", changes: { resistance: -0.05 }, code: FactoryUtils.Fail, step: "1,340 mA",
              value: "-50 mΩ", reason: "Internal resistance" }
        ];
    }

    function test_resistance(data) {
        measure(data.changes);
        verdictIs(data.code, data.reason);
        compare(value("Step of the current"), data.step);
        compare(value("Internal resistance"), data.value);
        compare(Phone.log, ["disableCharger", "enableCharger"]);
        cell.stop();
    }

    function test_resistanceOfACharger_thatDoesNotObey() {
        measure({ obeys: false });
        verdictIs(FactoryUtils.Fail, "Internal resistance: no reading");
        compare(Phone.log, ["disableCharger", "enableCharger"]);
        cell.stop();
    }

    function test_resistanceWithReadingsThatFail() {
        measure();
        tryVerify(function() { return page.phase === "off"; }, 20000);
        cell.stop();
        Phone.setBattery({ status: "Discharging", voltageNow: NaN });
        tryVerify(function() { return page.phase === "again"; }, 20000);
        cell.start();
        verdictIs(FactoryUtils.Fail, "no reading");
        cell.stop();
    }

    function test_resistancePutsTheChargerBack_data() {
        return [{ tag: "leave" }, { tag: "skip" }, { tag: "retry" }, { tag: "destroy" }];
    }

    function test_resistancePutsTheChargerBack(data) {
        measure();
        tryVerify(function() { return page.phase === "off"; }, 20000);
        compare(Phone.log, ["disableCharger"]);
        cell.stop();
        switch (data.tag) {
        case "leave": shell.leaveTest(); break;
        case "skip": frame.record(FactoryUtils.Untest); break;
        case "retry": frame.retry(); break;
        case "destroy": shell.destroy(); shell = null; wait(50); break;
        }
        compare(Phone.log, ["disableCharger", "enableCharger"]);
    }

    function test_resistanceOnlyWhereTheSettingsAskForIt() {
        Phone.unsupported = ["Battery.VerificationBatteryResistance"];
        openTest("VerificationBatteryResistance");
        missingIs("settings");
        compare(Phone.log, []);
    }

    function test_resistanceWithoutReadings() {
        Phone.battery = { status: "Charging" };
        openTest("VerificationBatteryResistance");
        missingIs("cannot be read");
        compare(Phone.log, []);
    }

    function test_resistanceWaitsForACharger() {
        Phone.setBattery({ status: "Discharging" });
        openTest("VerificationBatteryResistance");
        wait(1500);
        compare(page.phase, "plug");
        compare(Phone.log, []);
    }

    // Where nobody watches

    Component {
        id: watchlessFrame
        QtObject {
            readonly property bool unattended: true
            function blocking(text, job) { job(); }
        }
    }

    function test_unattended_data() {
        return [{ tag: "VerificationLcd" }, { tag: "VerificationLcdBacklight" }];
    }

    function test_unattended(data) {
        var frame = createTemporaryObject(watchlessFrame, driver);
        var component = Qt.createComponent("../../../qml/pages/" + data.tag + ".qml");
        var page = createTemporaryObject(component, driver, { frame: frame, row: { name: data.tag } });
        page.open();
        verify(page.fullScreen);
        verify(!page.exercised);
        tryVerify(function() { return page.exercised; }, 30000);
        verify(page.fullScreen);
        compare(page.verdict, "");
        page.close();
        verify(!page.fullScreen);
    }
}
