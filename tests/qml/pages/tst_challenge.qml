// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtTest 1.15
import "../../../qml/controls"

TestCase {
    id: test

    property var shown: []

    name: "Challenge"
    when: windowShown
    visible: true
    width: 360
    height: 640

    Component {
        id: component
        Challenge {
            width: 360
            choices: [{ value: 1, text: "one" }, { value: 2, text: "two" }, { value: 3, text: "three" }]
            onPosed: test.shown.push(value)
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

    function make(properties) {
        var challenge = createTemporaryObject(component, this, properties || {});
        passed.target = failed.target = challenge;
        passed.clear();
        failed.clear();
        shown = [];
        return challenge;
    }

    function wrong(challenge) {
        return challenge.values.filter(function(value) { return value !== challenge.expected; })[0];
    }

    function test_itAsksNothingBeforeItIsStarted() {
        var challenge = make();
        verify(!challenge.running);
        challenge.answer(1);
        challenge.answer(undefined);
        compare(passed.count + failed.count + shown.length, 0);
        verify(!challenge.solved && !challenge.lost);
    }

    function test_theRightAnswerPasses() {
        var challenge = make();
        challenge.start();
        compare(shown, [challenge.expected]);
        mouseClick(findChild(challenge, "answer-" + challenge.expected));
        compare(passed.count, 1);
        verify(challenge.solved && !challenge.running);
        compare(challenge.mistakes, []);
        // A second tap on the way out is no second answer.
        challenge.answer(shown[0]);
        compare(passed.count, 1);
    }

    function test_aWrongAnswerGetsOneSecondChance() {
        var challenge = make();
        challenge.start();
        challenge.answer(wrong(challenge));
        compare(failed.count, 0);
        compare(shown.length, 2);
        challenge.answer(challenge.expected);
        compare(passed.count, 1);
        compare(challenge.mistakes.length, 1);
    }

    function test_twoWrongAnswersLose() {
        var challenge = make();
        challenge.start();
        challenge.answer(wrong(challenge));
        var expected = challenge.expected;
        var given = wrong(challenge);
        challenge.answer(given);
        compare(passed.count, 0);
        compare(failed.count, 1);
        verify(challenge.lost && !challenge.solved && !challenge.running);
        var word = ["one", "two", "three"];
        compare(failed.signalArguments[0][0].split("\n")[1],
                "Shown: " + word[expected - 1] + ", answered: " + word[given - 1]);
    }

    function test_allRoundsMustBeRightInARow() {
        var challenge = make({ rounds: 3 });
        challenge.start();
        challenge.answer(challenge.expected);
        challenge.answer(challenge.expected);
        compare(passed.count, 0);
        challenge.answer(wrong(challenge));
        for (var i = 0; i < 2; ++i) {
            challenge.answer(challenge.expected);
            compare(passed.count, 0);
        }
        challenge.answer(challenge.expected);
        compare(passed.count, 1);
        compare(shown.length, 6);
    }

    function test_answersWaitUntilItWasShown() {
        var challenge = make({ ready: false });
        challenge.start();
        verify(!findChild(challenge, "answer-1").enabled);
        challenge.answer(challenge.expected);
        compare(passed.count, 0);
        challenge.ready = true;
        challenge.answer(challenge.expected);
        compare(passed.count, 1);
    }

    function test_theSameValueCanBeShownAgain() {
        var challenge = make({ againText: "again" });
        challenge.start();
        mouseClick(findChild(challenge, "again"));
        compare(shown, [challenge.expected, challenge.expected]);
    }

    function test_anAnswerThatIsNeverRight() {
        var challenge = make({ values: [2] });
        challenge.start();
        compare(challenge.expected, 2);
        challenge.answer(1);
        challenge.answer(3);
        compare(failed.count, 1);
    }

    /*! Every value comes, any may follow any, and a second chance is not told by the first. */
    function test_nobodyCanTellWhatComes() {
        var challenge = make();
        var pairs = {};
        for (var i = 0; i < 600; ++i) {
            challenge.start();
            var first = challenge.expected;
            challenge.answer(wrong(challenge));
            var pair = first + " " + challenge.expected;
            pairs[pair] = (pairs[pair] || 0) + 1;
        }
        compare(Object.keys(pairs).length, 9);
        // 67 are expected of each; fewer than 20 or more than 150 come less than once in a million runs.
        for (var seen in pairs)
            verify(pairs[seen] > 20 && pairs[seen] < 150, seen + ": " + pairs[seen]);
    }

    /*! A lamp that is always dark, or always lit, must not get through. */
    function test_everyValueComesWhereThereAreRoundsEnough() {
        var challenge = make({ choices: [{ value: "on", text: "on" }, { value: "off", text: "off" }], rounds: 3 });
        var series = {};
        for (var i = 0; i < 200; ++i) {
            var drawn = challenge.draw();
            verify(drawn.indexOf("on") >= 0 && drawn.indexOf("off") >= 0, drawn);
            series[drawn] = true;
        }
        compare(Object.keys(series).length, 6);
    }

    function test_stoppedItHasNoOutcome() {
        var challenge = make();
        challenge.start();
        challenge.stop();
        verify(!challenge.running && !challenge.solved && !challenge.lost);
        challenge.answer(shown[0]);
        compare(passed.count + failed.count, 0);
    }
}
