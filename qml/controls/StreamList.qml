// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "Lists.js" as Lists

/*! What plays into the sound server. */
Card {
    readonly property alias count: streams.count

    visible: count > 0
    padding: Theme.gap
    spacing: Theme.gap

    Repeater {
        model: PulseAudio {
            id: streams
        }

        Words {
            width: parent.width
            // The tool prints quotes around both names.
            text: Lists.enumerate(
                      [model.applicationName, model.mediaName, model.volumeInfo,
                       //% "paused"
                       model.corked ? qsTrId("kiv-system-stream-paused") : "",
                       //% "muted"
                       model.muted ? qsTrId("kiv-system-stream-muted") : ""]
                      .filter(function(part) { return part !== undefined && part !== ""; })
                      .map(function(part) { return part.replace(/^"|"$/g, ""); }))
            font.pixelSize: Theme.small
        }
    }
}
