// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

/*! Which radios the mode-control service has switched on, and whether the modem is to use 4G. */
TestPage {
    id: page

    // As the service said last; undefined as long as it has said nothing.
    property var nfc
    property var fmTransmitter
    property var prefers4G

    function word(on) {
        //% "on"
        return on === undefined ? undefined : on ? qsTrId("kiv-switch-on")
                                                 //% "off"
                                                 : qsTrId("kiv-switch-off");
    }

    //% "Compare these with the phone's settings. A switch that is moved there must move here, too."
    instructions: qsTrId("kiv-radios-instructions")
    measurements: [service, nfcSwitch, fmSwitch, preference]
    evidence: watch.standing === "answers" && nfc !== undefined
    //% "Pass unlocks when the mode-control service has answered."
    evidenceHint: qsTrId("kiv-radios-hint")

    //% "The mode-control service does not answer."
    trouble: watch.lost ? qsTrId("kiv-radios-lost") : ""

    onOpened: {
        prefers4G = radio.getResult;
        watch.active = true;
    }
    onClosing: watch.active = false

    RadioPreference {
        id: radio
    }
    ServiceWatch {
        id: watch
        element: Component {
            Mce {
                id: mode
                // Switches that are all off are answered without a signal; the answer follows that for the times.
                readonly property var settled: Timer {
                    interval: 300
                    onTriggered: {
                        page.nfc = mode.nfcEnabled;
                        page.fmTransmitter = mode.fmtxEnabled;
                    }
                }
                onUptimeChanged: {
                    watch.heard();
                    settled.restart();
                }
                onNfcEnabledChanged: page.nfc = nfcEnabled
                onFmtxEnabledChanged: page.fmTransmitter = fmtxEnabled
            }
        }
    }

    Measurement {
        id: service
        //% "Mode-control service"
        name: qsTrId("kiv-radios-service")
        value: watch.standing === "answers" ? qsTrId("kiv-service-answers")
                                            : watch.lost ? qsTrId("kiv-service-silent") : undefined
        meets: watch.standing === "answers"
        settled: watch.standing !== "asking"
    }
    Measurement {
        id: nfcSwitch
        //% "NFC"
        name: qsTrId("kiv-radios-nfc")
        value: watch.lost ? undefined : page.word(page.nfc)
    }
    Measurement {
        id: fmSwitch
        //% "FM transmitter"
        name: qsTrId("kiv-radios-fm-transmitter")
        value: watch.lost ? undefined : page.word(page.fmTransmitter)
    }
    Measurement {
        id: preference
        //% "4G preferred by the modem settings"
        name: qsTrId("kiv-radios-4g")
        value: page.prefers4G
    }
}
