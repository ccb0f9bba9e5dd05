// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtTest 1.15
import Kiv 1.0
import KivFake 1.0

/*! The pages that play and record, at a sound server that works, is gone, or goes meanwhile. */
Driver {
    name: "Audio"

    readonly property var sided: ["AudioPlayStereoLoudspeaker", "AudioPlayMusicHeadset"]

    function missingIs(sentence) {
        tryVerify(function() { return page.missing !== ""; }, 5000);
        verify(page.missing.indexOf(sentence) >= 0, page.missing);
        verify(!find("pass").enabled);
        compare(page.verdict, "");
    }

    function lostIs() {
        tryVerify(function() { return page.trouble.indexOf("restart Kiv") >= 0; }, 10000);
        verify(!page.evidence);
        compare(page.missing, "");
    }

    function visibleTo(item) {
        return item.visible && item.enabled;
    }

    function press(name) {
        tryVerify(function() { return visibleTo(find(name)); }, 8000, name);
        // What is below the fold is not hit by the pointer.
        find(name).clicked();
    }

    function playAll(names) {
        names.forEach(function(name) {
            verify(!page.evidence, name);
            press(name);
            tryVerify(function() { return Phone.sounding !== ""; });
            compare(page.playing, name);
            tryVerify(function() { return page.played.indexOf(name) >= 0; });
        });
    }

    Connections {
        id: sinkPort
        property var switched: null
        target: null
        function onSinkPortChanged() {
            sinkPort.switched();
        }
    }

    function openPlayed(name) {
        Phone.headphones = true;
        openTest(name);
        tryCompare(page, "prepared", true);
        playAll(page.sounds.map(function(entry) { return entry.name; }));
    }

    function sounds_data() {
        return [
            { tag: "AudioPlayMusicLoudspeaker", port: "output-speaker", sounds: ["tune"] },
            { tag: "AudioPlayStereoLoudspeaker", port: "output-speaker", sounds: ["left", "right", "both"] },
            { tag: "AudioPlayMusicReceiver", port: "output-earpiece", sounds: ["tune"] },
            { tag: "AudioPlayMusicHeadset", port: "output-wired_headphone", sounds: ["left", "right", "tune"] }
        ];
    }

    function test_goesThroughItsPort_data() {
        return sounds_data();
    }

    function test_goesThroughItsPort(data) {
        Phone.headphones = true;
        var covered;
        sinkPort.target = Phone;
        sinkPort.switched = function() {
            covered = shell.busy;
            sinkPort.target = null;
        };
        openTest(data.tag);
        tryCompare(Phone, "sinkPort", data.port);
        verify(covered, "behind the screen that says so");
        tryCompare(page, "prepared", true);
        playAll(data.sounds);
        compare(page.evidence, sided.indexOf(data.tag) < 0);
        compare(find("pass").enabled, page.evidence);
        shell.leaveTest();
        compare(Phone.sounding, "");
        compare(Phone.log, ["port " + data.port, "port output-before"]);
    }

    function test_pressingAgainHushes() {
        openTest("AudioPlayMusicLoudspeaker");
        press("tune");
        tryCompare(Phone, "sounding", "tune.wav");
        press("tune");
        compare(Phone.sounding, "");
        compare(page.playing, "");
        wait(500);
        compare(page.played, []);
    }

    function test_portThatIsActiveAlreadyIsLeftAlone() {
        Phone.sinkPort = "output-speaker";
        openTest("AudioPlayMusicLoudspeaker");
        tryCompare(page, "prepared", true);
        shell.leaveTest();
        compare(Phone.log, ["port output-speaker"]);
    }

    function test_playsByItselfWhereNobodyWatches() {
        openTest("AudioPlayMusicLoudspeaker");
        tryCompare(page, "prepared", true);
        verify(!page.exercised);
        compare(Phone.sounding, "");
        shell.leaveTest();
        Phone.soundServer = false;
        openTest("AudioPlayMusicLoudspeaker");
        page.frame = { unattended: true, blocking: function(text, job) { job(); } };
        Phone.soundServer = true;
        tryCompare(Phone, "sounding", "tune.wav");
        tryCompare(page, "exercised", true);
        Phone.soundServer = false;
        lostIs();
    }

    function test_noSoundServer_data() {
        return sounds_data().concat([{ tag: "VerificationAudio1Mic" }, { tag: "VerificationAudio2Mic" }]);
    }

    function test_noSoundServer(data) {
        Phone.soundServer = false;
        openTest(data.tag);
        missingIs("sound server does not answer");
        verify(page.missing.indexOf("restart Kiv") >= 0);
        shell.leaveTest();
        compare(Phone.log, []);
    }

    function test_tryAgainFindsTheServer() {
        Phone.soundServer = false;
        openTest("AudioPlayMusicReceiver");
        missingIs("sound server does not answer");
        Phone.soundServer = true;
        frame.load();
        tryVerify(function() { return page !== null && page.prepared; });
        compare(page.missing, "");
    }

    function test_noMainOutput() {
        Phone.sinkName = "";
        openTest("AudioPlayMusicReceiver");
        missingIs("no main output");
        shell.leaveTest();
        compare(Phone.log, []);
    }

    function test_outputThatIsNotThere() {
        Phone.sinkPorts = ["output-before", "output-speaker"];
        Phone.headphones = true;
        openTest("AudioPlayMusicHeadset");
        missingIs("output-wired_headphone");
        shell.leaveTest();
        compare(Phone.sinkPort, "output-before");
    }

    function test_serverThatGoesWhilePlaying() {
        openTest("AudioPlayStereoLoudspeaker");
        tryCompare(page, "prepared", true);
        press("left");
        tryCompare(page, "played", ["left"]);
        Phone.soundServer = false;
        lostIs();
        compare(page.playing, "");
        // It is asked again by playing, and forgotten when that works.
        press("right");
        tryCompare(page, "trouble", "");
        lostIs();
        Phone.soundServer = true;
        press("right");
        tryCompare(page, "played", ["left", "right"]);
        compare(page.trouble, "");
    }

    function test_headsetMusicWaitsForTheHeadset() {
        openTest("AudioPlayMusicHeadset");
        tryCompare(page, "prepared", true);
        verify(!find("tune").enabled);
        Phone.headphones = true;
        tryCompare(find("tune"), "enabled", true);
        press("tune");
        Phone.headphones = false;
        tryCompare(page, "playing", "");
        compare(Phone.sounding, "");
        wait(1200);
        compare(page.played, []);
    }

    function test_sidesAreAskedFor_data() {
        return sided.map(function(name) { return { tag: name }; });
    }

    function test_sidesAreAskedFor(data) {
        Phone.headphones = true;
        openTest(data.tag);
        verify(!find("sides").parent.visible);
        openPlayed(data.tag);
        verify(find("sides").parent.visible);
        // Nobody answers before anything was to be heard.
        ["side-left", "side-right", "side-none"].forEach(function(name) { verify(!find(name).enabled, name); });
        press("beep");
        var questions = find("sides");
        for (var i = 0; i < questions.rounds; ++i) {
            compare(questions.round, i);
            tryVerify(function() { return Phone.sounding.indexOf("beep-") === 0; });
            compare(page.verdict, "");
            // What sounds is all that the right answer is taken from.
            press(Phone.sounding === "beep-left.wav" ? "side-left" : "side-right");
        }
        compare(page.verdict, FactoryUtils.Pass);
        verify(page.reason.indexOf("4 of 4") >= 0, page.reason);
        verify(Phone.sounding.indexOf("beep-") < 0);
        compare(page.playing, "");
    }

    function test_wrongSideFails_data() {
        return [{ tag: "other side" }, { tag: "neither" }, { tag: "last question" }];
    }

    function test_wrongSideFails(data) {
        openPlayed("AudioPlayStereoLoudspeaker");
        press("beep");
        var questions = find("sides");
        var wrongRound = data.tag === "last question" ? questions.rounds - 1 : 0;
        for (var i = 0; i <= wrongRound; ++i) {
            tryVerify(function() { return Phone.sounding.indexOf("beep-") === 0; });
            var left = Phone.sounding === "beep-left.wav";
            press(i < wrongRound ? (left ? "side-left" : "side-right")
                                 : data.tag === "neither" ? "side-none" : (left ? "side-right" : "side-left"));
        }
        compare(page.verdict, FactoryUtils.Fail);
        verify(page.reason.indexOf(left ? "\"Left\" was heard" : "\"Right\" was heard") >= 0, page.reason);
    }

    function test_sidesCannotBeGuessed() {
        openPlayed("AudioPlayStereoLoudspeaker");
        var questions = find("sides");
        var seen = {};
        for (var i = 0; i < 400; ++i) {
            var drawn = questions.draw();
            compare(drawn.length, questions.rounds);
            verify(drawn.indexOf("left") >= 0 && drawn.indexOf("right") >= 0);
            seen[drawn.join()] = true;
        }
        // All of those that have both sides.
        compare(Object.keys(seen).length, Math.pow(2, questions.rounds) - 2);
    }

    function test_microphones_data() {
        return [{ tag: "VerificationAudio1Mic", source: 2 }, { tag: "VerificationAudio2Mic", source: 1 }];
    }

    function test_microphones(data) {
        openTest(data.tag);
        press("record");
        tryCompare(page, "phase", "recording");
        compare(Phone.log, ["record " + data.source]);
        verify(find("phase").detail.indexOf("no level") >= 0);
        verify(!page.evidence);
        tryCompare(page, "phase", "playing", 10000);
        verify(!page.evidence);
        verify(!find("silent").visible);
        tryCompare(page, "evidence", true, 10000);
        compare(Phone.log, ["record " + data.source, "stop", "play"]);
        verify(find("silent").visible);
        verify(find("silent").text.indexOf("/tmp") >= 0);
        press("play");
        tryCompare(page, "phase", "playing");
        compare(Phone.log.slice(3), ["play"]);
        press("record");
        tryCompare(page, "phase", "recording");
        shell.leaveTest();
        compare(Phone.log.slice(4), ["record " + data.source, "stop"]);
    }

    function test_noMicrophone() {
        Phone.sourceName = "";
        openTest("VerificationAudio1Mic");
        missingIs("no built-in microphone");
        shell.leaveTest();
        compare(Phone.log, []);
    }

    function test_serverThatGoesBeforeRecording() {
        openTest("VerificationAudio2Mic");
        tryCompare(page, "found", true);
        Phone.soundServer = false;
        press("record");
        tryVerify(function() { return page.trouble !== ""; }, 8000);
        // A recording that is begun at a server that hangs would hang, too.
        compare(Phone.log, []);
        Phone.soundServer = true;
        press("record");
        tryCompare(page, "phase", "recording");
        compare(page.trouble, "");
    }

    function test_serverThatGoesWhileRecording() {
        openTest("VerificationAudio2Mic");
        press("record");
        tryCompare(page, "phase", "recording");
        Phone.soundServer = false;
        tryVerify(function() { return page.trouble !== ""; }, 12000);
        tryCompare(page, "phase", "idle");
        compare(Phone.log, ["record 1", "stop"]);
        verify(!page.evidence);
    }

    function test_serverThatGoesWhilePlayingTheRecording() {
        openTest("VerificationAudio2Mic");
        press("record");
        tryCompare(page, "phase", "playing", 10000);
        Phone.soundServer = false;
        tryVerify(function() { return page.trouble !== ""; }, 12000);
        verify(!page.evidence);
    }

    function test_serverThatWasStartedAnew_data() {
        return [{ tag: "nothing" }, { tag: "paused", corked: true }];
    }

    function test_serverThatWasStartedAnew(data) {
        Phone.streams = data.corked ? [{ mediaName: "\"A song\"", applicationName: "\"Player\"", volumeInfo: "100% 80%",
                                         corked: true, muted: false }] : [];
        openTest("VerificationAudio2Mic");
        press("record");
        tryVerify(function() { return page.trouble !== ""; }, 15000);
        verify(page.trouble.indexOf("Restart Kiv") >= 0);
        verify(!page.evidence);
    }

    function test_radioIsSwitchedOffOnLeaving() {
        openTest("VerificationFmRadio");
        verify(!page.evidence);
        press("radio");
        tryCompare(page, "evidence", true);
        compare(Phone.log, ["tuner 90000000", "radio on"]);
        shell.leaveTest();
        compare(Phone.log.slice(2), ["tuner off", "radio off"]);
    }

    function test_radioThatIsNotOffered() {
        Phone.offersRadio = false;
        openTest("VerificationFmRadio");
        press("radio");
        tryCompare(page, "refused", true);
        verify(!page.evidence);
        verify(!find("pass").enabled);
    }

    function texts(item) {
        var found = item.visible && item.text ? [item.text] : [];
        for (var i = 0; i < item.children.length; ++i)
            found = found.concat(texts(item.children[i]));
        return found;
    }

    function test_streams() {
        Phone.streams = [
            { mediaName: "\"A song\"", applicationName: "\"Player\"", volumeInfo: "100% 80%", corked: false, muted: true },
            { mediaName: "\"Sink Input \"", applicationName: undefined, volumeInfo: "", corked: true, muted: false }
        ];
        openTest("SystemState");
        var seen = texts(page);
        verify(seen.indexOf("Player, A song, 100% 80%, muted") >= 0, seen.join("|"));
        verify(seen.indexOf("Sink Input , paused") >= 0 || seen.indexOf("Sink Input, paused") >= 0, seen.join("|"));
        shell.leaveTest();
    }

    function test_noStreams() {
        Phone.streams = [];
        openTest("SystemState");
        verify(texts(page).join("|").indexOf("sound server") < 0);
    }
}
