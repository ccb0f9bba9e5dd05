// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

/*! A smart cover is put on the phone, says who it is, and is taken off again. */
TestPage {
    id: page

    // As the service said last; undefined as long as it has said nothing.
    property var ready
    property var docked
    property string identifier
    property bool seenDocked: false
    property bool seenRemoved: false

    // No real one is that long; a text of a megabyte would freeze the screen.
    function shortened(text) {
        return text.length > 64 ? text.slice(0, 64) + "…" : text;
    }

    function takeDocked(newDocked) {
        docked = newDocked;
        if (docked)
            seenDocked = true;
        // Before a cover was on the phone, its absence proves nothing.
        else if (seenDocked)
            seenRemoved = true;
        if (!seenRemoved)
            return;
        if (identifier !== "")
            //% "The cover was seen to come and go. Its identifier: %1"
            judge(FactoryUtils.Pass, qsTrId("kiv-zel-good").arg(identifier));
        else
            //% "The cover was seen to come and go, but it did not tell its identifier."
            judge(FactoryUtils.Fail, qsTrId("kiv-zel-nameless"));
    }

    measurements: missing === "" ? [service, readiness, cover, name] : []
    evidence: false
    //% "Pass unlocks when a cover was seen to come and go."
    evidenceHint: qsTrId("kiv-zel-hint")
    //% "The smart-cover service does not answer."
    trouble: watch.lost && verdict === "" ? qsTrId("kiv-zel-lost") : ""

    onOpened: {
        //% "This phone has no smart-cover service."
        missing = Features.supported("ZEL", row.name) ? "" : qsTrId("kiv-zel-missing");
        watch.active = missing === "";
    }
    onClosing: {
        watch.active = false;
        patience.stop();
    }

    ServiceWatch {
        id: watch
        element: Component {
            Zel {
                onReadyChanged: {
                    watch.heard();
                    page.ready = ready;
                }
                onDockedChanged: {
                    watch.heard();
                    page.takeDocked(docked);
                }
                onZelIdChanged: {
                    watch.heard();
                    // It is withdrawn together with the cover.
                    if (zelId !== "")
                        page.identifier = page.shortened(zelId);
                }
                onErrorChanged: watch.refused()
            }
        }
        onLostChanged: {
            if (lost)
                patience.restart();
            else
                patience.stop();
        }
    }
    // A service that is just being started again gets its chance.
    Timer {
        id: patience
        interval: 8000
        onTriggered: page.judge(FactoryUtils.Fail, qsTrId("kiv-zel-lost"))
    }

    Notice {
        objectName: "notReady"
        width: parent.width
        visible: !watch.lost && page.ready === false && page.verdict === ""
        kind: "near"
        //% "The smart-cover service is not ready to recognise covers yet."
        text: qsTrId("kiv-zel-not-ready")
    }
    StepList {
        width: parent.width
        visible: page.missing === ""
        steps: [
            //% "Put a smart cover on the phone"
            { text: qsTrId("kiv-zel-step-dock"), done: page.seenDocked },
            //% "Take it off again"
            { text: qsTrId("kiv-zel-step-remove"), done: page.seenRemoved }
        ]
    }
    Measurement {
        id: service
        //% "Smart-cover service"
        name: qsTrId("kiv-zel-service")
        value: watch.standing === "answers"
               //% "answers"
               ? qsTrId("kiv-service-answers")
               //% "does not answer"
               : watch.lost ? qsTrId("kiv-service-silent") : undefined
        meets: watch.standing === "answers"
        settled: watch.standing !== "asking"
    }
    Measurement {
        id: readiness
        //% "Ready for covers"
        name: qsTrId("kiv-zel-ready")
        value: watch.lost ? undefined : page.ready
    }
    Measurement {
        id: cover
        //% "Cover on the phone"
        name: qsTrId("kiv-zel-docked")
        value: watch.lost ? undefined : page.docked
    }
    Measurement {
        id: name
        //% "Identifier of the cover"
        name: qsTrId("kiv-zel-identifier")
        value: page.identifier
    }
}
