// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15

/*! A column that scrolls where it is longer than the screen, with a bar that shows so. */
Flickable {
    id: scroller

    default property alias content: column.data
    property alias spacing: column.spacing
    property real padding: Theme.margin
    /*! Whether it holds more than buttons: something to be read. */
    property bool readable: false

    clip: true
    contentWidth: width
    contentHeight: column.height + 2 * padding
    boundsBehavior: Flickable.StopAtBounds
    interactive: contentHeight > height

    Column {
        id: column
        x: scroller.padding
        y: scroller.padding
        width: scroller.width - 2 * scroller.padding
        spacing: Theme.margin
    }

    Rectangle {
        parent: scroller
        anchors.right: parent.right
        anchors.rightMargin: Theme.hairline
        width: Math.round(Theme.unit / 2)
        radius: width / 2
        visible: scroller.interactive
        color: Theme.muted
        opacity: 0.6
        y: scroller.visibleArea.yPosition * scroller.height
        height: scroller.visibleArea.heightRatio * scroller.height
    }
    Reader {
        view: scroller
        enabled: scroller.readable
    }
}
