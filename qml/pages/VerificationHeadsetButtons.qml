// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

TestPage {
    id: page

    readonly property var buttons: [
        { mask: HeadsetDetect.ButtonMisc, name: "0" },
        { mask: HeadsetDetect.Button1, name: "1" },
        { mask: HeadsetDetect.Button2, name: "2" },
        { mask: HeadsetDetect.Button3, name: "3" },
        { mask: HeadsetDetect.Button4, name: "4" },
        { mask: HeadsetDetect.Button5, name: "5" },
        { mask: HeadsetDetect.Button6, name: "6" },
        { mask: HeadsetDetect.Button7, name: "7" },
        { mask: HeadsetDetect.Button8, name: "8" },
        { mask: HeadsetDetect.Button9, name: "9" },
        //: A key of a headset
        //% "Media"
        { mask: HeadsetDetect.KeyMedia, name: qsTrId("kiv-headset-buttons-media") },
        //: A key of a headset
        //% "Play/Pause"
        { mask: HeadsetDetect.KeyPlayPause, name: qsTrId("kiv-headset-buttons-play") }
    ]
    /*! Masks of what is held, and of what has been pressed and let go. */
    property int held: 0
    property int seen: 0
    property int total: 0
    property bool jackFound: false
    readonly property int seenCount: buttons.filter(function(button) { return page.seen & button.mask; }).length

    function follow() {
        var now = headset.buttonsPressed;
        seen |= held & ~now;
        held = now;
        pressed.value = seenCount;
        if (isOpen && total > 0 && seenCount >= total)
            //% "Every button that the phone knows was pressed and let go."
            judge(FactoryUtils.Pass, qsTrId("kiv-headset-buttons-good"));
    }

    //% "Plug the headset in and press each of its buttons once."
    instructions: qsTrId("kiv-headset-buttons-instructions")
    measurements: [socket, pressed]
    ownsKeys: true
    evidence: seen !== 0
    //% "Pass unlocks when a button was pressed and let go."
    evidenceHint: qsTrId("kiv-headset-buttons-hint")

    onOpened: {
        headset.openDevice();
        headset.openButtonDevice();
        jackFound = headset.deviceFound();
        total = headset.buttonCount();
        //% "No headset buttons were found."
        missing = headset.buttonsFound() ? "" : qsTrId("kiv-headset-buttons-missing");
        follow();
    }

    HeadsetDetect {
        id: headset
        onButtonsPressedChanged: page.follow()
    }

    Flow {
        width: parent.width
        spacing: Theme.gap
        visible: page.missing === ""

        Repeater {
            model: page.buttons

            Rectangle {
                id: chip
                readonly property bool isHeld: page.held & modelData.mask
                readonly property bool isSeen: page.seen & modelData.mask
                visible: chip.isHeld || chip.isSeen
                width: label.width + 4 * Theme.unit
                height: 6 * Theme.unit
                radius: Theme.radius
                color: chip.isHeld ? Theme.accent : Theme.passTint
                border.width: Theme.hairline
                border.color: chip.isHeld ? Theme.accent : Theme.pass

                Row {
                    id: label
                    anchors.centerIn: parent
                    spacing: Theme.gap

                    Icon {
                        anchors.verticalCenter: parent.verticalCenter
                        name: chip.isHeld ? "touch" : "pass"
                        color: chip.isHeld ? Theme.accentInk : Theme.pass
                        size: 2.5 * Theme.unit
                    }
                    Words {
                        anchors.verticalCenter: parent.verticalCenter
                        text: modelData.name
                        font.weight: Font.DemiBold
                        color: chip.isHeld ? Theme.accentInk : Theme.pass
                    }
                }
            }
        }
    }
    Measurement {
        id: socket
        name: qsTrId("kiv-headset-socket")
        value: !page.jackFound ? undefined
               : headset.headsetInserted ? qsTrId("kiv-headset-headset")
               : headset.headphoneInserted ? qsTrId("kiv-headset-headphones")
               : headset.microphoneInserted ? qsTrId("kiv-headset-microphone") : qsTrId("kiv-headset-empty")
    }
    Measurement {
        id: pressed
        //% "Buttons pressed"
        name: qsTrId("kiv-headset-buttons-pressed")
        minimum: 1
        counted: true
        settled: page.verdict !== ""
        //: How many buttons the phone can tell apart
        //% "the phone knows %1"
        criteria: qsTrId("kiv-headset-buttons-known").arg(page.total)
    }
}
