// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

/*! Every cell of a grid over the whole panel must report a touch of its own; nothing is filled in between two reports. */
TestPage {
    id: page

    readonly property int columns: 9
    readonly property int rows: 16
    readonly property int total: columns * rows
    readonly property int patience: 15

    /*! Which cells have been touched, by index; replaced as a whole only at the beginning. */
    property var touched: ({})
    property int remaining: total
    property int idle: 0

    signal cellTouched(int index)

    function touch(x, y, width, height) {
        if (verdict !== "" || x < 0 || y < 0 || x >= width || y >= height)
            return;
        var index = Math.floor(y / height * rows) * columns + Math.floor(x / width * columns);
        if (touched[index])
            return;
        touched[index] = true;
        idle = 0;
        --remaining;
        cellTouched(index);
        if (remaining === 0)
            whole.start();
    }

    function finish() {
        patienceTimer.stop();
        fullScreen = false;
        reacted.value = total - remaining;
        if (remaining === 0)
            //% "Every part of the panel has reacted."
            judge(FactoryUtils.Pass, qsTrId("kiv-touch-good"));
        else
            //% "Parts of the panel did not react: %1 of %2"
            judge(FactoryUtils.Fail, qsTrId("kiv-touch-bad").arg(remaining).arg(total));
    }

    //% "Wipe over the whole panel until no cell is left."
    instructions: qsTrId("kiv-touch-instructions")
    measurements: [reacted]
    evidence: false
    //% "Pass unlocks when every cell has been wiped."
    evidenceHint: qsTrId("kiv-touch-hint")

    onOpened: {
        fullScreen = true;
        patienceTimer.start();
    }
    onClosing: {
        patienceTimer.stop();
        whole.stop();
    }

    cover: Rectangle {
        color: Theme.background

        Repeater {
            model: page.total

            Rectangle {
                id: cell
                property bool done: false
                x: Math.round((index % page.columns) * parent.width / page.columns)
                y: Math.round(Math.floor(index / page.columns) * parent.height / page.rows)
                width: Math.round((index % page.columns + 1) * parent.width / page.columns) - x
                height: Math.round((Math.floor(index / page.columns) + 1) * parent.height / page.rows) - y
                color: done ? Theme.pass : Theme.surface
                border.width: Theme.hairline
                border.color: Theme.line

                Connections {
                    target: page
                    function onCellTouched(touchedIndex) {
                        if (touchedIndex === index)
                            cell.done = true;
                    }
                }
            }
        }
        Rectangle {
            anchors.centerIn: parent
            width: 0.86 * parent.width
            height: words.height + 2 * Theme.margin
            radius: Theme.radius
            color: Theme.neutralTint
            opacity: 0.9

            Column {
                id: words
                x: Theme.margin
                y: Theme.margin
                width: parent.width - 2 * Theme.margin

                Words {
                    width: parent.width
                    horizontalAlignment: Text.AlignHCenter
                    text: page.instructions
                }
                Words {
                    width: parent.width
                    horizontalAlignment: Text.AlignHCenter
                    font.pixelSize: Theme.display
                    font.weight: Font.Bold
                    text: page.remaining
                }
                Words {
                    width: parent.width
                    horizontalAlignment: Text.AlignHCenter
                    color: Theme.muted
                    font.pixelSize: Theme.small
                    //% "Ends in %1 s without a new cell"
                    text: qsTrId("kiv-touch-patience").arg(page.patience - page.idle)
                }
            }
        }
        MultiPointTouchArea {
            anchors.fill: parent
            onTouchUpdated: {
                for (var i = 0; i < touchPoints.length; ++i)
                    page.touch(touchPoints[i].x, touchPoints[i].y, width, height);
            }
        }
    }

    // Not while the touch is being delivered: Qt gives its other end to the grid, which would be gone.
    Timer {
        id: whole
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
        id: reacted
        //% "Cells that reacted"
        name: qsTrId("kiv-touch-reacted")
        minimum: page.total
        counted: true
        settled: page.verdict !== ""
    }
}
