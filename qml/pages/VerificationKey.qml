// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

TestPage {
    id: page

    readonly property var codes: KivHwSettings.keys
    property var held: []
    property var seen: []

    function press(code) {
        if (held.indexOf(code) < 0)
            held = held.concat([code]);
    }

    function release(code) {
        if (held.indexOf(code) < 0)
            return;
        held = held.filter(function(other) { return other !== code; });
        if (seen.indexOf(code) < 0)
            seen = seen.concat([code]);
        if (codes.every(function(wanted) { return page.seen.indexOf(wanted) >= 0; }))
            //% "Every key was pressed and let go."
            judge(FactoryUtils.Pass, qsTrId("kiv-key-good"));
    }

    //% "Press each key once and let it go."
    instructions: qsTrId("kiv-key-instructions")
    ownsKeys: missing === ""
    evidence: false
    //% "Pass unlocks when every key was pressed and let go."
    evidenceHint: qsTrId("kiv-key-hint")

    onOpened: {
        //% "No key of this phone is configured for the test."
        missing = codes.length > 0 ? "" : qsTrId("kiv-key-missing");
        forceActiveFocus();
    }

    // A key that is not asked for does nothing either: elsewhere it would move the focus, and with it the other keys.
    Keys.onPressed: {
        if (!ownsKeys)
            return;
        event.accepted = true;
        if (!event.isAutoRepeat && codes.indexOf(event.key) >= 0)
            press(event.key);
    }
    Keys.onReleased: {
        if (!ownsKeys)
            return;
        event.accepted = true;
        if (!event.isAutoRepeat && codes.indexOf(event.key) >= 0)
            release(event.key);
    }

    KeyWords {
        id: keyWords
    }
    Repeater {
        model: page.codes

        Rectangle {
            id: line
            readonly property bool isHeld: page.held.indexOf(modelData) >= 0
            readonly property bool isSeen: page.seen.indexOf(modelData) >= 0
            readonly property color ink: isHeld ? Theme.accentInk : isSeen ? Theme.pass : Theme.text
            width: parent.width
            height: Math.max(7 * Theme.unit, column.height + Theme.margin)
            radius: Theme.radius
            color: isHeld ? Theme.accent : isSeen ? Theme.passTint : Theme.surface
            border.width: Theme.hairline
            border.color: Theme.line
            Accessible.role: Accessible.StaticText
            Accessible.name: words.text + ", " + stateWords.text

            Icon {
                id: mark
                anchors.left: parent.left
                anchors.leftMargin: Theme.margin
                anchors.verticalCenter: parent.verticalCenter
                name: line.isSeen && !line.isHeld ? "pass" : "key"
                color: line.ink
            }
            Column {
                id: column
                anchors.left: mark.right
                anchors.right: parent.right
                anchors.margins: Theme.margin
                anchors.verticalCenter: parent.verticalCenter

                FittedWords {
                    id: words
                    width: parent.width
                    text: keyWords.name(modelData)
                    color: line.ink
                    largest: Theme.lead
                    font.weight: Font.DemiBold
                    Accessible.ignored: true
                }
                Words {
                    id: stateWords
                    width: parent.width
                    color: line.ink
                    font.pixelSize: Theme.small
                    text: line.isHeld ? //% "held"
                                        qsTrId("kiv-key-held")
                          : line.isSeen ? //% "in order"
                                          qsTrId("kiv-reading-pass")
                          : //% "not yet pressed"
                            qsTrId("kiv-key-waiting")
                    Accessible.ignored: true
                }
            }
        }
    }
}
