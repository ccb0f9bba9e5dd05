// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtQuick.Window 2.15

/*!
 * Covers the screen while a call blocks the whole interface. run() draws the cover first, so that what is frozen on the
 * screen says why.
 */
Rectangle {
    id: working
    objectName: "working"

    property string text
    property var job: null
    property int framesToDraw: 0

    function run(newText, newJob) {
        text = newText;
        job = newJob;
        // The frame that is under way may have been put together before the cover was visible.
        framesToDraw = 2;
        fallback.restart();
        if (Window.window)
            Window.window.update();
    }

    /*! Forgets a job that has not begun: whoever asked for it is gone. */
    function cancel() {
        fallback.stop();
        job = null;
    }

    function finish() {
        fallback.stop();
        var todo = job;
        job = null;
        if (todo)
            todo();
    }

    visible: job !== null
    color: Theme.background
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    Column {
        anchors.centerIn: parent
        width: parent.width - 4 * Theme.margin
        spacing: Theme.margin

        Icon {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "work"
            size: 6 * Theme.unit
            color: Theme.accent
        }
        Words {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            font.pixelSize: Theme.lead
            text: working.text
        }
    }

    // Nothing beneath may be pressed.
    MouseArea {
        anchors.fill: parent
        enabled: working.visible
    }

    Connections {
        target: working.job ? working.Window.window : null
        function onFrameSwapped() {
            if (--working.framesToDraw > 0)
                working.Window.window.update();
            else
                working.finish();
        }
    }

    // A window that is not shown draws no frames.
    Timer {
        id: fallback
        interval: 500
        onTriggered: working.finish()
    }
}
