// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import "Scrolling.js" as Scrolling

/*!
 * A question that only the hardware answers: the page shows a random value on it and the operator says which.
 *
 * start() draws the values of all rounds at once, each as likely as any other and independent of the one before, so that
 * nobody can work out the next; a value may come twice. Where there are at least as many rounds as values, every value
 * comes at least once: a lamp that is always dark must not pass because it was never switched on.
 *
 * A wrong answer may be a slip of the finger. After the first the rounds begin again with new values, after the second
 * the challenge is lost.
 */
Column {
    id: challenge

    /*! May be left out where the page asks by itself. */
    property string question
    /*! What can be answered: [{value, text, glyph}]; the glyph may be left out. */
    property var choices: []
    /*! The values that may be shown; an answer that is never right may be among the choices. */
    property var values: choices.map(function(choice) { return choice.value; })
    /*! How many right answers in a row it takes. With two values, one alone would be a coin tossed. */
    property int rounds: 1
    /*! Whether the operator has had the chance to see it: answers wait until then. */
    property bool ready: true
    property int columns: choices.length > 4 ? 3 : 2
    /*! The button that shows the same value again; without a text there is none. */
    property string againText

    /*! What the hardware shows now; undefined before the start and after the end. */
    readonly property alias expected: state.expected
    readonly property bool running: expected !== undefined
    /*! How many rounds have been answered. */
    readonly property alias round: state.round
    readonly property alias solved: state.solved
    readonly property alias lost: state.lost
    /*! The wrong answers so far, in a sentence each. */
    readonly property alias mistakes: state.mistakes

    /*! The hardware has to show the value from now on. */
    signal posed(var value)
    signal passed()
    signal failed(string reason)

    function draw() {
        var drawn;
        do {
            drawn = [];
            for (var i = 0; i < rounds; ++i)
                drawn.push(values[Math.floor(Math.random() * values.length)]);
        } while (rounds >= values.length && values.some(function(value) { return drawn.indexOf(value) < 0; }));
        return drawn;
    }

    function start() {
        state.solved = false;
        state.lost = false;
        state.mistakes = [];
        begin();
    }

    /*! Ends it without an outcome. */
    function stop() {
        state.expected = undefined;
    }

    function again() {
        if (running)
            posed(expected);
    }

    function answer(value) {
        if (!running || !ready)
            return;
        if (value !== expected) {
            //: A wrong answer: what was shown and what the operator said
            //% "Shown: %1, answered: %2"
            state.mistakes = state.mistakes.concat([qsTrId("kiv-challenge-mistake").arg(word(expected)).arg(word(value))]);
            if (state.mistakes.length < 2) {
                begin();
                return;
            }
            state.lost = true;
            stop();
            failed(state.mistakes.join("\n"));
        } else if (state.round + 1 < rounds) {
            pose(state.round + 1);
        } else {
            state.solved = true;
            stop();
            passed();
        }
    }

    function begin() {
        state.drawn = draw();
        pose(0);
    }

    function pose(round) {
        Scene.changed();
        state.round = round;
        state.expected = state.drawn[round];
        posed(state.expected);
    }

    function word(value) {
        var found = choices.filter(function(choice) { return choice.value === value; });
        return found.length > 0 ? found[0].text : String(value);
    }

    spacing: Theme.gap
    visible: running

    QtObject {
        id: state
        property var expected
        property var drawn: []
        property int round: 0
        property bool solved: false
        property bool lost: false
        property var mistakes: []
    }

    Notice {
        width: parent.width
        visible: challenge.mistakes.length > 0
        kind: "near"
        //% "That was not right. You have one more try, with something new."
        text: qsTrId("kiv-challenge-second")
    }
    Words {
        width: parent.width
        visible: text !== ""
        text: challenge.question
        font.pixelSize: Theme.lead
        font.weight: Font.DemiBold
    }
    Words {
        width: parent.width
        visible: challenge.rounds > 1
        //: How far the operator is with a question that is asked several times
        //% "Answer %1 of %2"
        text: qsTrId("kiv-challenge-round").arg(state.round + 1).arg(challenge.rounds)
        color: Theme.muted
    }
    Grid {
        id: answers
        readonly property real columnWidth: Math.floor((width - (columns - 1) * spacing) / columns)
        readonly property real rowHeight: {
            var tallest = Theme.target + Theme.margin;
            for (var i = 0; i < buttons.count; ++i)
                tallest = Math.max(tallest, buttons.itemAt(i) ? buttons.itemAt(i).implicitHeight : 0);
            return tallest;
        }

        width: parent.width
        columns: challenge.columns
        spacing: Theme.gap
        // What was said about a mistake pushes them down.
        onYChanged: {
            if (challenge.mistakes.length > 0)
                Scrolling.reveal(answers);
        }

        Repeater {
            id: buttons
            model: challenge.choices

            PushButton {
                objectName: "answer-" + modelData.value
                width: answers.columnWidth
                height: answers.rowHeight
                enabled: challenge.ready
                glyph: modelData.glyph || ""
                text: modelData.text
                onClicked: challenge.answer(modelData.value)
            }
        }
    }
    PushButton {
        objectName: "again"
        width: parent.width
        visible: text !== ""
        enabled: challenge.ready
        glyph: "retry"
        text: challenge.againText
        onClicked: challenge.again()
    }
}
