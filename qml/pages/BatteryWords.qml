// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15

/*! The kernel's words for a battery in the operator's language. */
QtObject {
    readonly property var states: ({
        //% "Charging"
        "Charging": qsTrId("kiv-battery-charging"),
        //% "Discharging"
        "Discharging": qsTrId("kiv-battery-discharging"),
        //% "Not charging"
        "Not charging": qsTrId("kiv-battery-not-charging"),
        //% "Full"
        "Full": qsTrId("kiv-battery-full"),
        //% "Unknown"
        "Unknown": qsTrId("kiv-battery-unknown")
    })
    readonly property var healths: ({
        //% "Good"
        "Good": qsTrId("kiv-battery-health-good"),
        //% "Overheated"
        "Overheat": qsTrId("kiv-battery-health-overheat"),
        //% "Dead"
        "Dead": qsTrId("kiv-battery-health-dead"),
        //% "Over voltage"
        "Over voltage": qsTrId("kiv-battery-health-over-voltage"),
        //% "Unspecified failure"
        "Unspecified failure": qsTrId("kiv-battery-health-failure"),
        //% "Cold"
        "Cold": qsTrId("kiv-battery-health-cold"),
        "Unknown": qsTrId("kiv-battery-unknown")
    })
}
