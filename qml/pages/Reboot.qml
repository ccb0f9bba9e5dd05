// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

/*!
 * A page cannot restart the phone, and nothing that it knows outlives a restart: the operator restarts the phone, and
 * this page, opened afterwards, tells by the moment of the start that he did.
 */
TestPage {
    id: page

    /*! Long enough for starting and for finding this page, too short for a phone that was merely switched on today. */
    readonly property int mostMinutes: 15

    function follow() {
        var start = uptime.machineStart.getTime();
        started.value = isNaN(start) ? undefined : uptime.machineStart.toLocaleString(Qt.locale(), Locale.ShortFormat);
        age.value = isNaN(start) ? undefined : Math.max(0, Math.floor((Date.now() - start) / 60000));
        //% "The system does not tell when it was started."
        missing = isNaN(start) ? qsTrId("kiv-reboot-missing") : "";
    }

    //% "Restart the phone with its power key or its menu. When it is up again, start Kiv and open this test anew."
    instructions: qsTrId("kiv-reboot-instructions")
    measurements: [started, age]
    evidence: false
    //% "Pass unlocks when the phone was restarted a short while ago and you have answered the questions."
    evidenceHint: qsTrId("kiv-reboot-hint")

    onOpened: {
        follow();
        minute.start();
    }
    onClosing: minute.stop()

    Uptime {
        id: uptime
    }
    Timer {
        id: minute
        interval: 10000
        repeat: true
        onTriggered: page.follow()
    }

    Notice {
        width: parent.width
        visible: page.isOpen && page.missing === "" && !age.good
        kind: "near"
        //% "A restart ends Kiv, and the verdicts that are not kept elsewhere are gone: do this test first or by itself."
        text: qsTrId("kiv-reboot-note")
    }
    Checks {
        width: parent.width
        asking: page.isOpen && page.missing === "" && age.good && page.verdict === ""
        questions: [
            //% "Did the phone come up at the first try, up to its usual screen?"
            { name: "first", text: qsTrId("kiv-reboot-first"),
              //% "The phone did not come up at the first try."
              bad: qsTrId("kiv-reboot-first-bad") },
            //% "Did it show an error, or ask for anything that it did not ask for before?"
            { name: "error", text: qsTrId("kiv-reboot-error"), good: false,
              //% "The phone showed an error while it started."
              bad: qsTrId("kiv-reboot-error-bad") }
        ]
        //% "The phone was restarted and came up again."
        onPassed: page.judge(FactoryUtils.Pass, qsTrId("kiv-reboot-good"))
        onFailed: page.judge(FactoryUtils.Fail, reason)
    }
    Measurement {
        id: started
        name: qsTrId("kiv-system-start")
    }
    Measurement {
        id: age
        //% "Since the start"
        name: qsTrId("kiv-reboot-age")
        unit: "min"
        maximum: page.mostMinutes
        settled: false
    }
}
