// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtQuick.Window 2.15

/*!
 * Covers the screen while a call blocks the whole interface. run() draws the cover first, so that what is frozen on the
 * screen says why. It stays for a moment afterwards: whatever was tapped on a frozen screen arrives only then, and was
 * not meant for what is there now.
 */
Rectangle {
    id: working
    objectName: "working"

    property string text
    property var job: null
    property int framesToDraw: 0
    /*! The job is being done, or has just been done. */
    readonly property alias settling: state.settling

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
        if (!todo)
            return;
        state.settling = true;
        job = null;
        try {
            todo();
        } finally {
            settle.restart();
        }
    }

    visible: job !== null || settling
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
    Timer {
        id: settle
        interval: 150
        onTriggered: state.settling = false
    }
    QtObject {
        id: state
        property bool settling: false
    }
}
