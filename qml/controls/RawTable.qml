// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15

/*! Names and values as they are, under a title. They are no language, so they run from left to right in all. */
Column {
    id: table

    property string title
    /*! [{name, value}] */
    property var rows: []

    spacing: Theme.gap

    Words {
        width: parent.width
        text: table.title
        font.weight: Font.DemiBold
    }
    Card {
        width: parent.width
        padding: Theme.gap
        spacing: Math.round(Theme.unit / 2)
        LayoutMirroring.enabled: false
        LayoutMirroring.childrenInherit: true

        Repeater {
            model: table.rows

            // Below each other: the names are longer than half a line, and have no place to break.
            Column {
                width: parent.width

                Words {
                    width: parent.width
                    text: modelData.name
                    color: Theme.muted
                    font.pixelSize: Theme.small
                }
                Words {
                    width: parent.width
                    text: modelData.value
                    font.pixelSize: Theme.small
                    wrapMode: Text.WrapAnywhere
                }
            }
        }
    }
}
