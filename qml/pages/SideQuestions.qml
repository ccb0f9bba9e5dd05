// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import "../controls"

/*!
 * Beeps on one side and asks on which, several times. Both sides come, at random places, so that who answers without
 * listening is found out. The two beeps have the same pitch: nothing but their side tells them apart.
 */
Column {
    id: questions

    readonly property int rounds: 4
    property var sides: []
    property int round: 0
    property bool beeped: false

    signal playRequested(string file)
    /*! All answers were right, or one was wrong, and what to say of it. */
    signal right(string reason)
    signal wrong(string reason)

    function draw() {
        var drawn;
        do {
            drawn = [];
            while (drawn.length < rounds)
                drawn.push(Math.random() < 0.5 ? "left" : "right");
        } while (drawn.indexOf("left") < 0 || drawn.indexOf("right") < 0);
        return drawn;
    }

    function beep() {
        beeped = true;
        playRequested("beep-" + sides[round] + ".wav");
    }

    function word(side) {
        return side === "left" ? qsTrId("kiv-side-left") : side === "right" ? qsTrId("kiv-side-right")
                                                                           : qsTrId("kiv-side-none");
    }

    function answer(side) {
        Scene.changed();
        if (side !== sides[round]) {
            //: From which side a tone came, and from which the operator heard it
            //% "A tone played on the side \"%1\" was heard as \"%2\""
            wrong(qsTrId("kiv-sides-wrong").arg(word(sides[round])).arg(word(side)));
            return;
        }
        beeped = false;
        if (round + 1 < rounds) {
            ++round;
            beep();
        } else {
            //% "The operator heard every tone from its side: %1 of %1"
            right(qsTrId("kiv-sides-good").arg(rounds));
        }
    }

    spacing: Theme.gap

    Component.onCompleted: sides = draw()

    Words {
        width: parent.width
        //: Number of this question and of all of them
        //% "From which side does the tone come? Question %1 of %2"
        text: qsTrId("kiv-sides-question").arg(questions.round + 1).arg(questions.rounds)
        font.pixelSize: Theme.lead
        font.weight: Font.DemiBold
    }
    PushButton {
        objectName: "beep"
        width: parent.width
        glyph: "speaker"
        //% "Play the tone again"
        text: questions.beeped ? qsTrId("kiv-sides-again")
                               //% "Play the tone"
                               : qsTrId("kiv-sides-play")
        onClicked: questions.beep()
    }
    Row {
        width: parent.width
        spacing: Theme.gap
        // The buttons stand where the sounds come from, in every language.
        layoutDirection: Qt.LeftToRight
        LayoutMirroring.enabled: false

        PushButton {
            objectName: "side-left"
            width: (parent.width - parent.spacing) / 2
            height: Math.max(implicitHeight, rightSide.implicitHeight)
            enabled: questions.beeped
            //% "Left"
            text: qsTrId("kiv-side-left")
            onClicked: questions.answer("left")
        }
        PushButton {
            id: rightSide
            objectName: "side-right"
            width: (parent.width - parent.spacing) / 2
            height: Math.max(implicitHeight, parent.children[0].implicitHeight)
            enabled: questions.beeped
            //% "Right"
            text: qsTrId("kiv-side-right")
            onClicked: questions.answer("right")
        }
    }
    PushButton {
        objectName: "side-none"
        width: parent.width
        enabled: questions.beeped
        //% "Neither, or I cannot tell"
        text: qsTrId("kiv-side-none")
        onClicked: questions.answer("none")
    }
}
