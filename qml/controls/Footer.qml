// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15

/*! The bottom of a screen, where a thumb reaches: its content in a column, apart from what scrolls above. */
Rectangle {
    default property alias content: column.data

    height: column.height + 2 * Theme.margin
    color: Theme.surface

    Rectangle {
        width: parent.width
        height: Theme.hairline
        color: Theme.line
    }
    Column {
        id: column
        x: Theme.margin
        y: Theme.margin
        width: parent.width - 2 * Theme.margin
        spacing: Theme.gap
    }
}
