// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

/*!
 * A page cannot switch the notification light, but the phone lights it while it charges, and charging can be switched.
 * So the operator names the colour, and then says what the light shows while charging is off or on by chance. Where
 * charging cannot be switched, or the light does not follow it, he unplugs the charger by hand.
 */
TestPage {
    id: page

    // As on the page of the charger: some batteries report once in five seconds.
    readonly property int reactionSeconds: 12
    /*! The light follows the battery's state, and fades. */
    readonly property int fadeSeconds: 2

    readonly property bool colourful: KivHwSettings.ledType !== "Binary"
    /*! Whether the phone tells when it charges. Else the operator does. */
    property bool observed: false
    readonly property bool charging: status.value === "Charging" || status.value === "Full"
    property bool pluggedSaid: false
    readonly property bool plugged: observed ? charging : pluggedSaid
    property bool unpluggedSeen: false
    /*! What the light shows while the phone charges: one of the choices. */
    property var seen: null
    /*! The operator is asked for it. */
    readonly property bool asking: isOpen && plugged && seen === null

    /*! Charging cannot be switched, or the light did not follow it. */
    property bool byHand: false
    property bool chargerOff: false
    /*! Seconds since charging was switched, and since the battery has noticed. */
    property int sinceSwitched: 0
    property int sinceNoticed: 0
    /*! The choices in an order of chance, new for every question. */
    property var mixed: []

    // A light of one colour is lit or not.
    readonly property var choices: colourful ? [
        //% "Red"
        { value: "red", text: qsTrId("kiv-led-red") },
        //% "Orange or yellow"
        { value: "orange", text: qsTrId("kiv-led-orange") },
        //% "Green"
        { value: "green", text: qsTrId("kiv-led-green") },
        //% "Blue"
        { value: "blue", text: qsTrId("kiv-led-blue") },
        //% "White"
        { value: "white", text: qsTrId("kiv-led-white") },
        //% "Nothing"
        { value: "none", text: qsTrId("kiv-led-nothing") }
    ] : [
        //% "It is lit"
        { value: "lit", text: qsTrId("kiv-led-lit") },
        { value: "none", text: qsTrId("kiv-led-nothing") }
    ]

    function shuffled(list) {
        var rest = list.slice(), drawn = [];
        while (rest.length > 0)
            drawn.push(rest.splice(Math.floor(Math.random() * rest.length), 1)[0]);
        return drawn;
    }

    function sample() {
        status.value = battery.status();
        observed = status.value !== "";
        if (challenge.running)
            watch();
        else if (byHand && seen !== null && observed && !charging)
            unpluggedSeen = true;
    }

    function watch() {
        if (charging === chargerOff) {
            sinceNoticed = 0;
            if (++sinceSwitched >= reactionSeconds)
                goOnByHand();
        } else {
            ++sinceNoticed;
        }
    }

    function say(choice) {
        if (seen !== null)
            return;
        seen = choice;
        if (choice.value === "none") {
            //% "The light stayed dark while the phone was charging."
            judge(FactoryUtils.Fail, qsTrId("kiv-led-dark"));
            return;
        }
        sample();
        if (!byHand && observed && charging)
            challenge.start();
        else
            byHand = true;
    }

    function show(value) {
        mixed = shuffled(choices);
        sinceSwitched = 0;
        sinceNoticed = 0;
        var off = value === "none";
        if (off !== chargerOff)
            //% "Switching charging"
            blocking(qsTrId("kiv-led-switching"), off ? switchOff : switchOn);
    }

    function switchOff() {
        chargerOff = true;
        battery.disableCharger();
    }

    function switchOn() {
        chargerOff = false;
        battery.enableCharger();
    }

    /*! From the start: the battery may notice only now what was switched, and that is nobody unplugging the charger. */
    function goOnByHand() {
        challenge.stop();
        byHand = true;
        seen = null;
        if (chargerOff)
            //% "Switching charging"
            blocking(qsTrId("kiv-led-switching"), switchOn);
    }

    //% "Plug a charger in: the phone then lights its notification light."
    instructions: plugged || seen !== null ? "" : qsTrId("kiv-led-instructions")
    measurements: [status, colour]
    evidence: false
    //% "Pass unlocks when you have said what the light does."
    evidenceHint: qsTrId("kiv-led-hint")

    onOpened: {
        mixed = shuffled(choices);
        sample();
        poll.start();
    }
    onClosing: {
        poll.stop();
        challenge.stop();
        if (chargerOff)
            switchOn();
    }

    Battery {
        id: battery
    }
    BatteryWords {
        id: batteryWords
    }
    Timer {
        id: poll
        interval: 1000
        repeat: true
        onTriggered: page.sample()
    }

    Measurement {
        id: status
        name: qsTrId("kiv-battery-status")
        words: batteryWords.states
    }
    Measurement {
        id: colour
        //% "Light while charging"
        name: qsTrId("kiv-led-colour")
        value: page.seen ? page.seen.text : ""
        settled: page.seen !== null
    }

    StepList {
        width: parent.width
        visible: !page.asking
        brief: challenge.running
        steps: [
            //% "Plug a charger into the USB socket"
            { text: qsTrId("kiv-charging-step-plug"), done: page.seen !== null || page.plugged },
            //% "Say what the light does"
            { text: qsTrId("kiv-led-step-colour"), done: page.seen !== null },
            page.byHand
            //% "Unplug the charger"
            ? { text: qsTrId("kiv-led-step-unplug"), done: page.unpluggedSeen }
            //% "Say what it does while Kiv switches charging off and on"
            : { text: qsTrId("kiv-led-step-switch"), done: challenge.solved }
        ]
    }
    PushButton {
        objectName: "plugged"
        width: parent.width
        visible: page.isOpen && !page.observed && !page.plugged
        //% "The charger is plugged in"
        text: qsTrId("kiv-led-plugged")
        onClicked: page.pluggedSaid = true
    }
    PushButton {
        objectName: "unplugged"
        width: parent.width
        visible: page.isOpen && !page.observed && page.byHand && page.seen !== null && !page.unpluggedSeen
                 && page.verdict === ""
        //% "The charger is unplugged"
        text: qsTrId("kiv-led-unplugged")
        onClicked: page.unpluggedSeen = true
    }
    Column {
        width: parent.width
        spacing: Theme.gap
        visible: page.asking

        Words {
            width: parent.width
            //% "What does the light show?"
            text: qsTrId("kiv-led-question")
            font.pixelSize: Theme.lead
            font.weight: Font.DemiBold
        }
        Grid {
            id: answers
            readonly property real columnWidth: Math.floor((width - spacing) / 2)
            width: parent.width
            columns: 2
            spacing: Theme.gap

            Repeater {
                model: page.mixed

                PushButton {
                    objectName: "light-" + modelData.value
                    width: answers.columnWidth
                    height: Theme.target + Theme.margin
                    text: modelData.text
                    onClicked: page.say(modelData)
                }
            }
        }
    }
    Challenge {
        id: challenge
        width: parent.width
        columns: 2
        choices: page.mixed
        values: page.seen ? [page.seen.value, "none"] : []
        rounds: 3
        ready: page.sinceNoticed > page.fadeSeconds
        onPosed: page.show(value)
        //: What the operator saw of the notification light
        //% "The operator saw the light while the phone charged (%1), and dark whenever Kiv had switched charging off."
        onPassed: page.judge(FactoryUtils.Pass, qsTrId("kiv-led-good-switched").arg(page.seen.text))
        // A slip of the finger, a light that shows something else, or a faulty one: by hand it is told from the start.
        onFailed: page.goOnByHand()
    }
    Checks {
        width: parent.width
        asking: page.isOpen && page.byHand && page.unpluggedSeen && page.verdict === ""
        questions: [
            //% "Is the light still lit as before?"
            { name: "out", text: qsTrId("kiv-led-still"), good: false,
              //% "The light does not change when the charger is unplugged."
              bad: qsTrId("kiv-led-still-bad") }
        ]
        //: What the operator saw of the notification light
        //% "The operator saw the light while the phone charged (%1), and saw it go out."
        onPassed: page.judge(FactoryUtils.Pass, qsTrId("kiv-led-good").arg(page.seen.text))
        onFailed: page.judge(FactoryUtils.Fail, reason)
    }
    Notice {
        width: parent.width
        visible: challenge.lost && page.verdict === ""
        kind: "near"
        //% "The answers do not fit: perhaps this light does not follow the charging. Look again, and unplug the charger yourself."
        text: qsTrId("kiv-led-by-hand")
    }
    Notice {
        width: parent.width
        visible: page.verdict === ""
        //% "Kiv cannot switch this light: it shows what the phone wants to tell, such as that it charges."
        text: qsTrId("kiv-led-note")
    }
}
