// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtQuick.Window 2.15
import "flow/TestTable.js" as TestTable

/*!
 * Stands in for Kiv's first page: begins with one screen, and tells on the message log when that has been drawn.
 */
Shell {
    id: shell

    readonly property var screens: ["", "home", "disclaimer", "list", "summary", "settings", "runin", "engineer"]
    property int frames: 0

    startPage: "@PAGE@"

    Component.onCompleted: {
        if (screens.indexOf(startPage) < 0 && !TestTable.row(startPage))
            console.info("kiv-screenshot: unknown page");
    }

    // The first frame may still lack what is loaded a moment later.
    Connections {
        target: shell.Window.window
        function onFrameSwapped() {
            if (++shell.frames === 2)
                console.info("kiv-screenshot: drawn");
        }
    }

    Timer {
        interval: 100
        repeat: true
        running: shell.frames < 2
        onTriggered: if (shell.Window.window) shell.Window.window.update()
    }
}
