// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

/*!
 * The keys' light follows the phone's own policy: lit by a touch, out again when nobody touches. A page cannot switch it, so
 * the page lets the operator wait as long as it takes.
 */
TestPage {
    id: page

    /*! Longer than any phone leaves its keys lit, shorter than any dims its panel. */
    readonly property int restSeconds: 8
    property int rested: 0
    property bool touched: false
    readonly property bool hasRested: rested >= restSeconds

    //% "Look at the keys beside the panel. If they have no light, choose Skip."
    instructions: qsTrId("kiv-keylight-instructions")
    evidence: false
    //% "Pass unlocks when you have answered the questions."
    evidenceHint: qsTrId("kiv-guided-hint")

    onClosing: rest.stop()

    Timer {
        id: rest
        interval: 1000
        repeat: true
        onTriggered: {
            if (++page.rested >= page.restSeconds)
                stop();
        }
    }

    StepList {
        width: parent.width
        steps: [
            //% "Touch the field below"
            { text: qsTrId("kiv-keylight-step-touch"), done: page.touched },
            //% "Keep your hands off: %1 s"
            { text: qsTrId("kiv-keylight-step-rest").arg(Math.max(0, page.restSeconds - page.rested)),
              done: page.touched && page.hasRested }
        ]
    }
    PushButton {
        objectName: "field"
        width: parent.width
        height: 2 * Theme.target
        visible: page.verdict === "" && !lit.complete
        enabled: page.isOpen && !page.touched
        glyph: "touch"
        //% "Touch here"
        text: qsTrId("kiv-keylight-touch")
        onClicked: page.touched = true
    }
    Checks {
        id: lit
        width: parent.width
        asking: page.isOpen && page.touched && page.verdict === ""
        questions: [
            //% "Are the keys lit now?"
            { name: "lit", text: qsTrId("kiv-keylight-lit"),
              //% "The keys do not light up after a touch."
              bad: qsTrId("kiv-keylight-lit-bad") }
        ]
        onPassed: rest.start()
        onFailed: page.judge(FactoryUtils.Fail, reason)
    }
    Checks {
        width: parent.width
        asking: page.isOpen && page.hasRested && page.verdict === ""
        questions: [
            //% "Did the keys stay lit while you kept your hands off?"
            { name: "dark", text: qsTrId("kiv-keylight-stayed"), good: false,
              //% "The keys stay lit."
              bad: qsTrId("kiv-keylight-stayed-bad") },
            //% "Were all of them lit equally bright?"
            { name: "equal", text: qsTrId("kiv-keylight-equal"),
              //% "Not all keys are lit equally bright."
              bad: qsTrId("kiv-keylight-equal-bad") }
        ]
        //% "The operator saw the keys light up and go out."
        onPassed: page.judge(FactoryUtils.Pass, qsTrId("kiv-keylight-good"))
        onFailed: page.judge(FactoryUtils.Fail, reason)
    }
    Notice {
        width: parent.width
        visible: page.verdict === ""
        //% "Kiv cannot switch this light: the phone lights the keys after a touch and darkens them again."
        text: qsTrId("kiv-keylight-note")
    }
}
