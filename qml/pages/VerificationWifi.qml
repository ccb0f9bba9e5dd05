// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

/*! The address is compared with its pattern, and the radio proves itself by a connection. */
TestPage {
    id: page

    readonly property var network: module.item
    readonly property bool blind: module.status === Loader.Error
    property bool connected: false

    function read() {
        var there = network.wirelessCount() > 0;
        radio.value = there;
        var wireless = there ? network.wireless() : { connected: false, word: undefined, name: undefined };
        connection.value = wireless.word;
        name.value = wireless.name;
        connected = wireless.connected;
        // A driver that cannot tell it complains of having been asked; connected, the page asks no more.
        strength.value = connected ? network.wirelessStrength() : undefined;
        if (connected || !there || !address.good)
            //% "The address is in order, and the radio is connected to a network."
            judgeReadings(qsTrId("kiv-wifi-good"));
        // Where nobody can see to a network, a radio must do.
        else if (unattended)
            //% "The address is in order, and the radio was found."
            judgeReadings(qsTrId("kiv-wifi-found"));
    }

    instructions: blind
                  //% "The address is compared with its pattern. Then see in the phone's settings whether it finds networks."
                  ? qsTrId("kiv-wifi-instructions-blind")
                  //% "Switch Wi-Fi on and connect the phone to a network: the test passes by itself."
                  : qsTrId("kiv-wifi-instructions")
    measurements: missing !== "" ? [] : blind ? [address] : [address, radio, connection, name, strength]
    // Where no network is in reach, the operator says how it is.
    evidence: address.good && (blind || radio.value === true)
    //% "Pass unlocks when the address is in order and the radio was found."
    evidenceHint: qsTrId("kiv-wifi-hint")

    onOpened: {
        //% "This phone has no Wi-Fi."
        missing = Features.supported("Wifi", row.name) ? "" : qsTrId("kiv-wifi-missing");
        if (missing !== "")
            return;
        address.value = validator.getMac("wireless");
        address.meets = validator.isMacValid("wireless");
        address.criteria = qsTrId("kiv-mac-criteria").arg(validator.getMacCriteria("wireless"));
        //% "Asking for the Wi-Fi radio"
        blocking(qsTrId("kiv-wifi-working"), function() {
            module.active = true;
            if (blind && !address.good)
                judgeReadings("");
        });
    }
    onClosing: module.active = false

    MacValidator {
        id: validator
    }
    NetworkLoader {
        id: module
        frame: page.frame
    }
    Timer {
        interval: 2000
        running: page.network !== null && page.verdict === ""
        repeat: true
        triggeredOnStart: true
        onTriggered: page.read()
    }

    Notice {
        objectName: "blind"
        width: parent.width
        visible: page.blind
        kind: "near"
        //% "This phone's system does not tell anything about the radio."
        text: qsTrId("kiv-radio-blind")
    }
    Notice {
        objectName: "unconnected"
        width: parent.width
        visible: radio.value === true && !page.connected && page.verdict === ""
        kind: "info"
        //% "The radio is there, but not connected. Without a network in reach, judge by the networks that the settings list."
        text: qsTrId("kiv-wifi-unconnected")
    }
    Measurement {
        id: address
        name: qsTrId("kiv-mac-wireless")
    }
    Measurement {
        id: radio
        //% "Radio found"
        name: qsTrId("kiv-radio-found")
        accepted: [true]
        settled: value !== undefined
    }
    Measurement {
        id: connection
        //% "Connection"
        name: qsTrId("kiv-wifi-connection")
    }
    Measurement {
        id: name
        //% "Network"
        name: qsTrId("kiv-network-name")
    }
    Measurement {
        id: strength
        //% "Signal strength"
        name: qsTrId("kiv-network-strength")
        unit: "%"
    }
}
