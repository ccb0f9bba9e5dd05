// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

/*! There must be as many modems as the phone's settings say, each with a card that can be read. */
TestPage {
    id: page

    readonly property bool blind: module.status === Loader.Error
    readonly property int expected: Math.max(1, KivHwSettings.modemCount)
    readonly property string atLeast: qsTrId("kiv-limits-minimum").arg(expected).arg("").trim()
    readonly property int most: 4
    property bool asked: false
    property var modems: []
    readonly property int cards: modems.filter(function(modem) { return modem.card; }).length

    function read() {
        //% "Asking the telephony service"
        blocking(qsTrId("kiv-sim-working"), function() {
            module.active = true;
            if (blind)
                return;
            var count = module.item.modemCount();
            var found = [];
            for (var i = 0; i < Math.min(count, most); ++i)
                found.push(module.item.modem(i));
            // The next time it asks anew, also a service that has come back.
            module.active = false;
            asked = true;
            modems = found;
            modemReading.value = count;
            cardReading.value = cards;
            if (count === 0)
                //% "The telephony service reports no modem, or does not answer."
                judge(FactoryUtils.Fail, qsTrId("kiv-sim-silent"));
            else if (count < expected || cards === found.length)
                //% "Every SIM card could be read."
                judgeReadings(qsTrId("kiv-sim-good"));
        });
    }

    instructions: blind
                  //% "See in the phone's settings whether it knows its SIM card."
                  ? qsTrId("kiv-sim-instructions-blind")
                  //% "Every SIM slot needs a card. One that is locked has to be unlocked first."
                  : qsTrId("kiv-sim-instructions")
    measurements: missing !== "" || blind ? [] : [modemReading, cardReading]
    evidence: blind || cards > 0
    //% "Pass unlocks when a SIM card has been read."
    evidenceHint: qsTrId("kiv-sim-hint")
    //% "A SIM card is not there, is locked or cannot be read. Look after it, then ask again."
    trouble: asked && verdict === "" && cards < modems.length ? qsTrId("kiv-sim-cardless") : ""

    onOpened: {
        //% "This phone has no modem."
        missing = Features.supported("SIM", row.name) ? "" : qsTrId("kiv-sim-missing");
        if (missing === "")
            read();
    }
    onClosing: module.active = false

    NetworkLoader {
        id: module
        frame: page.frame
    }

    Notice {
        objectName: "blind"
        width: parent.width
        visible: page.blind
        kind: "near"
        text: qsTrId("kiv-radio-blind")
    }
    PushButton {
        objectName: "again"
        width: parent.width
        visible: page.asked && page.verdict === ""
        enabled: page.isOpen
        glyph: "retry"
        //% "Ask again"
        text: qsTrId("kiv-sim-again")
        onClicked: page.read()
    }
    Repeater {
        model: page.modems

        Card {
            width: page.width
            padding: Theme.gap

            Measurement {
                id: card
                name: page.modems.length === 1
                      //% "SIM card read"
                      ? qsTrId("kiv-sim-card")
                      //% "SIM card %1 read"
                      : qsTrId("kiv-sim-card-number").arg(index + 1)
                value: modelData.card
            }
            Measurement {
                id: home
                //: The country and the network, both as numbers, that a SIM card belongs to
                //% "Network of the card"
                name: qsTrId("kiv-sim-home")
                value: modelData.home
            }
            Measurement {
                id: state
                //% "Mobile network"
                name: qsTrId("kiv-sim-state")
                value: modelData.word
            }
            Measurement {
                id: network
                name: qsTrId("kiv-network-name")
                value: modelData.name
            }
            Measurement {
                id: strength
                name: qsTrId("kiv-network-strength")
                value: modelData.strength
                unit: "%"
            }
            MeasurementTable {
                x: Theme.gap
                width: parent.width - 2 * Theme.gap
                readings: [card, home, state, network, strength]
            }
        }
    }
    Measurement {
        id: modemReading
        //% "Modems"
        name: qsTrId("kiv-sim-modem-count")
        meets: value >= page.expected
        criteria: page.atLeast
        settled: page.asked
    }
    Measurement {
        id: cardReading
        //% "SIM cards read"
        name: qsTrId("kiv-sim-cards")
        meets: value >= page.expected
        criteria: page.atLeast
        settled: page.verdict !== ""
    }
}
