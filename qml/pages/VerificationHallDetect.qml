// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

TestPage {
    id: page

    property bool seenClosed: false
    property bool seenOpen: false

    function follow() {
        if (!isOpen)
            return;
        magnet.value = hall.hall;
        // Without a device it is false for ever, so only a magnet that goes away proves anything.
        if (hall.hall)
            seenClosed = true;
        else if (seenClosed)
            seenOpen = true;
        if (seenClosed && seenOpen)
            //% "The switch saw the magnet come and go."
            judge(FactoryUtils.Pass, qsTrId("kiv-hall-good"));
    }

    measurements: [magnet]
    evidence: false
    //% "Pass unlocks when the magnet was seen to come and go."
    evidenceHint: qsTrId("kiv-hall-hint")

    onOpened: {
        //% "This phone has no magnet switch."
        missing = Features.supported("Hall", row.name) ? "" : qsTrId("kiv-hall-missing");
        if (missing !== "")
            return;
        hall.openFile();
        follow();
    }
    onClosing: hall.closeFile()

    HallDetect {
        id: hall
        onHallChanged: page.follow()
    }
    StepList {
        width: parent.width
        visible: page.missing === ""
        steps: [
            //% "Hold a magnet or a closed cover to the phone"
            { text: qsTrId("kiv-hall-step-close"), done: page.seenClosed },
            //% "Take it away"
            { text: qsTrId("kiv-hall-step-open"), done: page.seenOpen }
        ]
    }
    Measurement {
        id: magnet
        //% "Magnet at the switch"
        name: qsTrId("kiv-hall-magnet")
    }
}
