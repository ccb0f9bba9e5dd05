// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0

GuidedPage {
    id: page

    feature: "CellularData"
    //% "No modem was found, so there is no mobile data."
    featureMissing: qsTrId("kiv-data-missing")
    //% "Switch Wi-Fi off and mobile data on, open a web page that was not open before, and switch Wi-Fi on again."
    instructions: qsTrId("kiv-data-instructions")
    //% "Kiv cannot tell over which radio a page comes. Where the phone has two SIM cards, try each."
    note: qsTrId("kiv-data-note")
    //% "The operator loaded a web page over mobile data."
    goodReason: qsTrId("kiv-data-good")

    onOpened: {
        var all = [];
        for (var sim = 1; sim <= Math.max(1, KivHwSettings.modemCount); ++sim) {
            //% "SIM card %1: did the web page load without Wi-Fi?"
            all.push({ name: "loaded" + sim, text: qsTrId("kiv-data-loaded").arg(sim),
                       //% "SIM card %1: nothing was loaded over mobile data."
                       bad: qsTrId("kiv-data-loaded-bad").arg(sim) });
            //% "SIM card %1: did the connection break off meanwhile?"
            all.push({ name: "broke" + sim, text: qsTrId("kiv-data-broke").arg(sim), good: false,
                       //% "SIM card %1: the mobile connection broke off."
                       bad: qsTrId("kiv-data-broke-bad").arg(sim) });
        }
        questions = all;
    }
}
