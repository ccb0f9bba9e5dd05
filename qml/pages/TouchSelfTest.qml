// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

TestPage {
    id: page

    //% "The touch controller tests itself. Keep fingers off the panel."
    instructions: qsTrId("kiv-touch-self-instructions")
    measurements: [outcome]
    evidence: false
    //% "Pass unlocks when the controller has answered."
    evidenceHint: qsTrId("kiv-touch-self-hint")

    onOpened: {
        //% "The touch controller of this phone has no self-test."
        missing = Features.supported("TouchAuto", row.name) ? "" : qsTrId("kiv-touch-self-missing");
        if (missing === "")
            touch.start();
    }

    Touch {
        id: touch
        onResultChanged: {
            outcome.value = result;
            if (result)
                //% "The controller reports that it is in order."
                page.judge(FactoryUtils.Pass, qsTrId("kiv-touch-self-good"));
            else
                //% "The controller reports a fault or gives no report."
                page.judge(FactoryUtils.Fail, qsTrId("kiv-touch-self-bad"));
        }
    }
    Measurement {
        id: outcome
        //% "Self-test in order"
        name: qsTrId("kiv-touch-self-outcome")
        accepted: [true]
    }
}
