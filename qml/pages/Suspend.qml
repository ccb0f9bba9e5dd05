// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

/*!
 * The phone is put to sleep by its own power key; the mode-control service counts how long it has slept since it was
 * started, and that must grow.
 */
TestPage {
    id: page

    /*! Less may be a rounding, or a doze between two wake-ups. */
    readonly property int leastSeconds: 5
    readonly property int answerMs: 5000

    /*! In milliseconds, as the service counts; NaN before its first answer. */
    property real before: NaN
    property real now: NaN
    readonly property real slept: Math.floor((now - before) / 1000)

    function take(suspend) {
        if (!isOpen)
            return;
        patience.stop();
        missing = "";
        // The service counts anew when it is started anew.
        if (isNaN(before) || suspend < before)
            before = suspend;
        now = suspend;
        if (slept >= leastSeconds)
            //% "The phone slept and woke up: %1 s"
            judge(FactoryUtils.Pass, qsTrId("kiv-suspend-good").arg(slept));
    }

    //% "Unplug the charger and press the power key, so that the panel goes dark. Wait half a minute, then wake the phone."
    instructions: qsTrId("kiv-suspend-instructions")
    measurements: [total, since]
    evidence: false
    //% "Pass unlocks when the phone has slept."
    evidenceHint: qsTrId("kiv-suspend-hint")

    onOpened: {
        patience.start();
        asking.start();
    }
    onClosing: {
        patience.stop();
        asking.stop();
    }

    // It asks once when it is made and then once a minute, which is longer than an operator waits after he has woken the
    // phone.
    Loader {
        id: service
        sourceComponent: Mce {
            onSuspendChanged: page.take(suspend)
        }
        active: false
    }
    Timer {
        id: asking
        interval: 2000
        repeat: true
        triggeredOnStart: true
        onTriggered: {
            service.active = false;
            service.active = page.verdict === "";
        }
    }
    Timer {
        id: patience
        interval: page.answerMs
        //% "The mode-control service does not answer, so nobody knows whether the phone has slept."
        onTriggered: page.missing = qsTrId("kiv-suspend-missing")
    }

    StepList {
        width: parent.width
        visible: page.missing === ""
        steps: [
            //% "Let the phone sleep"
            { text: qsTrId("kiv-suspend-step-sleep"), done: page.slept >= page.leastSeconds },
            //% "Wake it"
            { text: qsTrId("kiv-suspend-step-wake"), done: page.slept >= page.leastSeconds }
        ]
    }
    Notice {
        width: parent.width
        visible: page.missing === "" && page.verdict === ""
        //% "A phone that charges or that a computer is connected to stays awake behind its dark panel."
        text: qsTrId("kiv-suspend-note")
    }
    Measurement {
        id: total
        //% "Slept since the phone was started"
        name: qsTrId("kiv-suspend-total")
        value: Math.floor(page.now / 1000)
        unit: "s"
    }
    Measurement {
        id: since
        //% "Slept during this test"
        name: qsTrId("kiv-suspend-since")
        value: page.slept
        unit: "s"
        minimum: page.leastSeconds
        settled: page.verdict !== ""
    }
}
