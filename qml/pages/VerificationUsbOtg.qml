// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

/*! A USB drive is plugged into the phone and pulled out. Only drives that come while the page is open are announced. */
TestPage {
    id: page

    property bool seenDrive: false
    property bool seenRemoved: false
    property bool late: false

    function follow() {
        if (!isOpen || missing !== "")
            return;
        if (otg.massStorage)
            seenDrive = true;
        else if (seenDrive)
            seenRemoved = true;
        late = false;
        if (seenRemoved)
            //% "A drive was seen to come and go."
            judge(FactoryUtils.Pass, qsTrId("kiv-usb-otg-good"));
        else
            patience.restart();
    }

    measurements: missing === "" ? [drive] : []
    evidence: false
    //% "Pass unlocks when a drive was seen to come and go."
    evidenceHint: qsTrId("kiv-usb-otg-hint")
    trouble: !late || verdict !== "" ? ""
             //% "The system has not announced that the drive is gone."
             : seenDrive ? qsTrId("kiv-usb-otg-late-gone")
             //% "The system has not announced any drive."
             : qsTrId("kiv-usb-otg-late")

    onOpened: {
        //% "This phone cannot take USB devices."
        missing = Features.supported("UsbOtg", row.name) ? "" : qsTrId("kiv-usb-otg-missing");
        follow();
    }
    onClosing: patience.stop()

    UsbOtg {
        id: otg
        onMassStorageChanged: page.follow()
    }
    // There is nothing to ask: a service manager that has gone is as silent as one without drives.
    Timer {
        id: patience
        interval: 20000
        onTriggered: page.late = true
    }

    StepList {
        width: parent.width
        visible: page.missing === ""
        steps: [
            //% "Plug a USB drive in, with the adapter. If one is in already, pull it out first"
            { text: qsTrId("kiv-usb-otg-step-plug"), done: page.seenDrive },
            //% "Pull it out"
            { text: qsTrId("kiv-usb-otg-step-pull"), done: page.seenRemoved }
        ]
    }
    Measurement {
        id: drive
        //% "USB drive"
        name: qsTrId("kiv-usb-otg-drive")
        value: otg.massStorage
               //% "plugged in"
               ? qsTrId("kiv-usb-otg-there")
               //% "none seen"
               : qsTrId("kiv-usb-otg-none")
    }
}
