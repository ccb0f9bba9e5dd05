// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

/*! A test that rests on the operator's eyes alone: he is told what to do, asked what he saw, and that decides. */
TestPage {
    id: page

    /*! The feature that the phone must have, and the sentence where it has not. */
    property string feature
    property string featureMissing
    /*! Why Kiv itself cannot see or do it. */
    property string note
    property alias questions: checks.questions
    /*! What a pass rests on. */
    property string goodReason

    evidence: checks.complete
    //% "Pass unlocks when you have answered the questions."
    evidenceHint: qsTrId("kiv-guided-hint")

    onOpened: missing = feature === "" || Features.supported(feature, row.name) ? "" : featureMissing

    Checks {
        id: checks
        width: parent.width
        asking: page.isOpen && page.missing === "" && page.verdict === ""
        onPassed: page.judge(FactoryUtils.Pass, page.goodReason)
        onFailed: page.judge(FactoryUtils.Fail, reason)
    }
    Notice {
        width: parent.width
        visible: page.missing === "" && text !== ""
        text: page.note
    }
}
