// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

TestPage {
    id: page

    readonly property int wanted: 5
    readonly property int enough: 2
    readonly property int patience: 12

    property int most: 0
    property int idle: 0

    function finish() {
        patienceTimer.stop();
        fullScreen = false;
        seen.value = most;
        if (most >= wanted)
            //% "The panel told %1 fingers apart."
            judge(FactoryUtils.Pass, qsTrId("kiv-multi-touch-good").arg(most));
        else if (most < enough)
            //% "The panel did not tell two fingers apart."
            judge(FactoryUtils.Fail, qsTrId("kiv-multi-touch-bad"));
    }

    //% "Put five fingers on the panel at once."
    instructions: qsTrId("kiv-multi-touch-instructions")
    measurements: [seen]
    evidence: most >= enough
    //% "Pass unlocks when two fingers have been told apart."
    evidenceHint: qsTrId("kiv-multi-touch-hint")

    onOpened: {
        fullScreen = true;
        patienceTimer.start();
    }
    onClosing: {
        patienceTimer.stop();
        allSeen.stop();
    }

    cover: Rectangle {
        color: Theme.background

        Column {
            x: Theme.margin
            y: 2 * Theme.margin
            width: parent.width - 2 * Theme.margin
            spacing: Theme.gap

            Words {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                font.pixelSize: Theme.lead
                text: page.instructions
            }
            Words {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                font.pixelSize: Theme.display
                font.weight: Font.Bold
                //: How many fingers were seen, and how many are wanted
                //% "%1 of %2"
                text: qsTrId("kiv-multi-touch-count").arg(page.most).arg(page.wanted)
            }
            Words {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                color: Theme.muted
                font.pixelSize: Theme.small
                //% "Ends in %1 s without a touch"
                text: qsTrId("kiv-multi-touch-patience").arg(page.patience - page.idle)
            }
        }

        MultiPointTouchArea {
            id: area
            property var down: []
            anchors.fill: parent
            maximumTouchPoints: 10
            onTouchUpdated: {
                down = touchPoints.map(function(point) { return { x: point.x, y: point.y, id: point.pointId }; });
                page.idle = 0;
                page.most = Math.max(page.most, down.length);
                if (down.length === 0 && page.most >= page.wanted)
                    allSeen.start();
            }

            Repeater {
                model: area.down

                Rectangle {
                    width: 12 * Theme.unit
                    height: width
                    radius: width / 2
                    x: modelData.x - width / 2
                    y: modelData.y - height / 2
                    color: "transparent"
                    border.width: Theme.unit
                    border.color: Theme.accent
                }
            }
        }
    }

    // Not while the touch is being delivered, which would leave Qt with an area that is gone.
    Timer {
        id: allSeen
        interval: 0
        onTriggered: page.finish()
    }
    Timer {
        id: patienceTimer
        interval: 1000
        repeat: true
        onTriggered: {
            if (++page.idle >= page.patience)
                page.finish();
        }
    }
    Measurement {
        id: seen
        //% "Fingers at once"
        name: qsTrId("kiv-multi-touch-seen")
        minimum: page.enough
        counted: true
        settled: page.verdict !== ""
    }
}
