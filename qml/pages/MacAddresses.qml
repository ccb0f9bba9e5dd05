// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

TestPage {
    id: page

    function read(reading, type) {
        reading.value = validator.getMac(type);
        reading.meets = validator.isMacValid(type);
        //: A pattern that an address has to match
        //% "must match %1"
        reading.criteria = qsTrId("kiv-mac-criteria").arg(validator.getMacCriteria(type));
    }

    //% "The addresses that production gave to the radios are compared with what is asked of this product."
    instructions: qsTrId("kiv-mac-instructions")
    measurements: []
    evidence: false
    //% "Pass unlocks when the addresses have been read."
    evidenceHint: qsTrId("kiv-mac-hint")

    onOpened: {
        var asked = [];
        if (Features.supported("Bluetooth", row.name)) {
            read(bluetooth, "bluetooth");
            asked.push(bluetooth);
        }
        if (Features.supported("Wifi", row.name)) {
            read(wireless, "wireless");
            asked.push(wireless);
        }
        measurements = asked;
        if (asked.length === 0)
            //% "This phone has neither Bluetooth nor Wi-Fi."
            missing = qsTrId("kiv-mac-missing");
        else
            //% "Every address matches its pattern."
            judgeReadings(qsTrId("kiv-mac-good"));
    }

    MacValidator {
        id: validator
    }
    Measurement {
        id: bluetooth
        //% "Bluetooth address"
        name: qsTrId("kiv-mac-bluetooth")
    }
    Measurement {
        id: wireless
        //% "Wi-Fi address"
        name: qsTrId("kiv-mac-wireless")
    }
}
