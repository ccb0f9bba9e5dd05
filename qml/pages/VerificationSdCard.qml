// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

TestPage {
    id: page

    property bool tested: false

    function stateWord(status) {
        switch (status) {
        case SdCardTest.NoCard:
            //% "No card"
            return qsTrId("kiv-sd-card-none");
        case SdCardTest.Unmounted:
            //% "Not mounted"
            return qsTrId("kiv-sd-card-unmounted");
        case SdCardTest.Mounting:
            //% "Being mounted"
            return qsTrId("kiv-sd-card-mounting");
        case SdCardTest.Mounted:
            //% "Mounted"
            return qsTrId("kiv-sd-card-mounted");
        case SdCardTest.Unmounting:
            //% "Being unmounted"
            return qsTrId("kiv-sd-card-unmounting");
        }
        return "";
    }

    function outcomeWord(code) {
        switch (code) {
        case 1:
            //% "No file could be created on the card."
            return qsTrId("kiv-sd-card-not-created");
        case 2:
            //% "What was read is not what was written."
            return qsTrId("kiv-sd-card-differs");
        case 3:
            //% "A file was written, read back and removed."
            return qsTrId("kiv-sd-card-good");
        }
        return "";
    }

    function follow() {
        // A verdict is about the card that was tested, whatever is put into the slot then.
        if (verdict === "")
            state.value = stateWord(card.status);
        if (!isOpen)
            return;
        if (card.status === SdCardTest.Mounted && !tested) {
            tested = true;
            //% "Writing and reading the card"
            blocking(qsTrId("kiv-sd-card-working"), test);
        } else if (card.status !== SdCardTest.Mounted && verdict === "") {
            tested = false;
        }
    }

    function test() {
        var code = card.sdCardIOTest();
        //% "in order"
        outcome.value = code === 3 ? qsTrId("kiv-reading-pass")
                        //% "failed"
                        : code !== 0 ? qsTrId("kiv-sd-card-failed") : undefined;
        outcome.meets = code === 3;
        if (code !== 0)
            judge(code === 3 ? FactoryUtils.Pass : FactoryUtils.Fail, outcomeWord(code));
    }

    instructions: verdict !== "" ? "" : card.status === SdCardTest.NoCard
                  //% "Put a memory card into the slot."
                  ? qsTrId("kiv-sd-card-instructions-insert")
                  //% "The card is tested as soon as it is mounted."
                  : qsTrId("kiv-sd-card-instructions")
    measurements: [state, outcome]
    evidence: false
    //% "Pass unlocks when the card has been written and read."
    evidenceHint: qsTrId("kiv-sd-card-hint")

    onOpened: follow()

    SdCardTest {
        id: card
        onStatusChanged: page.follow()
    }

    Notice {
        width: parent.width
        visible: page.isOpen && card.status === SdCardTest.NoCard && page.verdict === ""
        kind: "near"
        //% "There is no card in the slot."
        text: qsTrId("kiv-sd-card-missing")
        detail: qsTrId("kiv-page-missing-advice")
    }
    Notice {
        width: parent.width
        visible: page.isOpen && card.mountFailed
        kind: "fail"
        //% "A card could not be mounted: it may be damaged or have no file system."
        text: qsTrId("kiv-sd-card-mount-failed")
    }
    Measurement {
        id: state
        //% "Card"
        name: qsTrId("kiv-sd-card-state")
    }
    Measurement {
        id: outcome
        //% "Write and read"
        name: qsTrId("kiv-sd-card-outcome")
        decisive: true
        settled: page.tested
    }
}
