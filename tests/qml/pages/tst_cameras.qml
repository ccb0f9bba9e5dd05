// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtTest 1.15
import Kiv 1.0
import KivFake 1.0

/*! Cameras with their light, and the video. */
Driver {
    name: "Cameras"

    function verdictIs(code, reason) {
        tryVerify(function() { return page !== null && page.verdict !== ""; }, 20000);
        compare(page.verdict, code, page.reason);
        if (reason)
            verify(page.reason.indexOf(reason) >= 0, page.reason);
    }

    /*! The right answer, or a wrong one, to what a challenge asks now. */
    function reply(challenge, right) {
        tryVerify(function() { return challenge.running && challenge.ready; });
        if (challenge.expected === "still")
            compare(find("still").status, Image.Ready);
        var wanted = challenge.choices.filter(function(choice) {
            return (choice.value === challenge.expected) === right;
        })[0];
        challenge.answer(wanted.value);
    }

    function solve(name) {
        var challenge = find(name);
        for (var i = 0; i < 10 && !challenge.solved; ++i)
            reply(challenge, true);
        verify(challenge.solved);
    }

    function test_aCameraPasses_data() {
        return [{ tag: "VerificationFrontCamera" }, { tag: "VerificationBackCamera" }];
    }

    function test_aCameraPasses(data) {
        openTest(data.tag);
        solve("motion");
        if (data.tag === "VerificationBackCamera") {
            tryVerify(function() { return find("light").running; });
            compare(Phone.cameraLight, find("light").expected === "on", "the light is what is asked for");
            solve("light");
            verify(!Phone.cameraLight);
        }
        tap("no");
        tap("yes");
        verdictIs(FactoryUtils.Pass, "live picture");
        shell.leaveTest();
        tryVerify(function() { return Phone.log.length === 2; });
        compare(Phone.log, ["camera on", "camera off"], "it is let go");
    }

    function test_theAnswersStandBesideThePicture() {
        openTest("VerificationBackCamera");
        ["motion", "light"].forEach(function(name) {
            tryVerify(function() { return find(name).running; });
            find(name).choices.forEach(function(choice) {
                tryVerify(function() { return isOnScreen("answer-" + choice.value); }, 2000, choice.value);
            });
            solve(name);
        });
        tryVerify(function() { return isOnScreen("yes") && isOnScreen("no"); });
    }

    function test_aWrongAnswerCanBeASlip() {
        openTest("VerificationFrontCamera");
        reply(find("motion"), false);
        compare(page.verdict, "");
        reply(find("motion"), false);
        verdictIs(FactoryUtils.Fail);
    }

    /*! What was said about the slip must not push them out of sight. */
    function test_theAnswersCanBeSeenAfterASlip() {
        openTest("VerificationBackCamera");
        reply(find("motion"), false);
        find("motion").choices.forEach(function(choice) {
            tryVerify(function() { return isOnScreen("answer-" + choice.value); }, 2000, choice.value);
        });
    }

    function test_aBadPictureFails() {
        openTest("VerificationFrontCamera");
        solve("motion");
        tap("yes");
        verdictIs(FactoryUtils.Fail, "stains");
    }

    function test_withoutALightTheOperatorIsAsked() {
        Phone.cameraLightModes = [2];
        openTest("VerificationBackCamera");
        solve("motion");
        tap("no");
        tap("yes");
        compare(page.verdict, "");
        tap("no");
        verdictIs(FactoryUtils.Fail, "does not flash");
    }

    function test_theLightGoesOutWithThePage() {
        openTest("VerificationBackCamera");
        solve("motion");
        page.setLight(true);
        verify(Phone.cameraLight);
        shell.leaveTest();
        verify(!Phone.cameraLight);
    }

    function test_noCamera() {
        Phone.cameras = [];
        openTest("VerificationBackCamera");
        tryCompare(page, "missing", "No back camera was found.");
        openOther("VerificationFrontCamera");
        tryVerify(function() { return page.missing.indexOf("front camera") >= 0; });
    }

    function openOther(name) {
        cleanup();
        openTest(name);
    }

    function test_aCameraInTrouble() {
        Phone.cameraError = "Device busy";
        openTest("VerificationFrontCamera");
        verdictIs(FactoryUtils.Fail, "Device busy");
    }

    function test_aCameraThatShowsNothing() {
        Phone.cameraDelivers = false;
        openTest("VerificationFrontCamera");
        verdictIs(FactoryUtils.Fail, "no picture");
    }

    function challenge() {
        return find("squares");
    }

    function test_videoPasses_data() {
        return [{ tag: "H.264", decoders: ["mp4", "webm"] }, { tag: "VP8", decoders: ["webm"] }];
    }

    function test_videoPasses(data) {
        Phone.decoders = data.decoders;
        openTest("VerificationVideoPlayback");
        verify(!challenge().ready, "not before the video has been seen");
        solve("squares");
        compare(page.measurements[0].valueText, data.tag);
        tap("no");
        verdictIs(FactoryUtils.Pass);
    }

    function test_noDecoder() {
        Phone.decoders = [];
        openTest("VerificationVideoPlayback");
        tryVerify(function() { return page.missing.indexOf("no decoder") >= 0; });
        verify(page.measurements[0].missing);
    }

    function test_aVideoThatBreaksOff() {
        openTest("VerificationVideoPlayback");
        tryVerify(function() { return page.started; });
        Phone.videoBreaks = "Decoder crashed";
        verdictIs(FactoryUtils.Fail, "Decoder crashed");
    }

    function test_wrongNumberOfSquares() {
        openTest("VerificationVideoPlayback");
        reply(challenge(), false);
        reply(challenge(), false);
        verdictIs(FactoryUtils.Fail);
    }

    function runAlone(name) {
        Phone.runInTests = [name];
        start("home");
        shell.chooseSequence(1);
        tryVerify(function() { return shell.screen && shell.screen.untested !== undefined; });
        mouseClick(find("start"));
        mouseClick(find("runInStart"));
        tryVerify(function() { return page && page.isOpen; });
        return frame.runIn;
    }

    function test_unattended_data() {
        return [{ tag: "VerificationBackCamera" }, { tag: "VerificationVideoPlayback" }];
    }

    function test_unattended(data) {
        var runIn = runAlone(data.tag);
        tryVerify(function() { return page.exercised; }, 10000);
        frame.testSeconds = runIn.row.seconds;
        runIn.elapsed = runIn.lengthSeconds;
        tryCompare(runIn, "end", "time");
        compare(runIn.code, FactoryUtils.Pass);
    }

    function test_unattendedTrouble_data() {
        return [
            { tag: "VerificationBackCamera", property: "cameraError" },
            { tag: "VerificationVideoPlayback", property: "videoBreaks" }
        ];
    }

    function test_unattendedTrouble(data) {
        Phone[data.property] = "It broke";
        var runIn = runAlone(data.tag);
        tryCompare(runIn, "end", "failure", 10000);
        verify(runIn.failures[0].reason.indexOf("It broke") >= 0, runIn.failures[0].reason);
    }
}
