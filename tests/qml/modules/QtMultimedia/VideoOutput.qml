// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15

/*! Its pictures are plain, and come as fast as a camera's. */
Rectangle {
    id: output

    property var source: null
    property bool autoOrientation: false
    property int fillMode: 0
    property int pictures: 0
    readonly property rect sourceRect: pictures > 0 ? Qt.rect(0, 0, 640, 480) : Qt.rect(0, 0, 0, 0)

    color: pictures % 2 ? "#102030" : "#203040"

    onSourceChanged: pictures = 0

    Timer {
        interval: 40
        repeat: true
        running: output.source !== null && output.source.delivers === true
        onTriggered: ++output.pictures
    }
}
