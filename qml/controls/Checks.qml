// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15

/*!
 * What only the operator can see, asked as questions one after the other. The right answer of some should be No, so that
 * an operator who taps the same button every time is found out.
 */
Column {
    id: checks

    /*! [{name, text, bad}], and good: false where No is the right answer. bad is the sentence to keep for a wrong one. */
    property var questions: []
    /*! Whether it is time to ask. */
    property bool asking: true

    readonly property alias answered: state.answered
    readonly property bool complete: questions.length > 0 && state.answered >= questions.length

    signal passed()
    signal failed(string reason)

    function answer(yes) {
        if (!asking || state.failed || complete)
            return;
        var question = questions[state.answered];
        Scene.changed();
        if (yes !== (question.good !== false)) {
            state.failed = true;
            failed(question.bad);
            return;
        }
        ++state.answered;
        if (complete)
            passed();
    }

    spacing: Theme.gap
    visible: asking && !complete && !state.failed && questions.length > 0

    QtObject {
        id: state
        property int answered: 0
        property bool failed: false
    }

    Words {
        width: parent.width
        visible: checks.questions.length > 1
        //: How far the operator is with a list of questions
        //% "Question %1 of %2"
        text: qsTrId("kiv-checks-position").arg(Math.min(state.answered + 1, checks.questions.length))
                                           .arg(checks.questions.length)
        color: Theme.muted
    }
    Words {
        objectName: "question"
        width: parent.width
        text: checks.complete || checks.questions.length === 0 ? "" : checks.questions[state.answered].text
        font.pixelSize: Theme.lead
        font.weight: Font.DemiBold
    }
    Row {
        width: parent.width
        spacing: Theme.gap

        PushButton {
            objectName: "yes"
            width: (parent.width - parent.spacing) / 2
            height: Theme.target + Theme.margin
            //% "Yes"
            text: qsTrId("kiv-checks-yes")
            onClicked: checks.answer(true)
        }
        PushButton {
            objectName: "no"
            width: (parent.width - parent.spacing) / 2
            height: Theme.target + Theme.margin
            //% "No"
            text: qsTrId("kiv-checks-no")
            onClicked: checks.answer(false)
        }
    }
}
