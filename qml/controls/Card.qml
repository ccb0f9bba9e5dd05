// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15

/*! A raised surface that grows with the column of items in it. */
Rectangle {
    default property alias content: column.data
    property real padding: Theme.margin
    property alias spacing: column.spacing

    implicitHeight: column.height + 2 * padding
    height: implicitHeight
    radius: Theme.radius
    color: Theme.surface
    border.width: Theme.hairline
    border.color: Theme.line

    Column {
        id: column
        x: parent.padding
        y: parent.padding
        width: parent.width - 2 * parent.padding
        spacing: Theme.gap
    }
}
