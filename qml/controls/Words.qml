// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15

/*! Running text: it wraps and is never cut off. */
Text {
    color: Theme.text
    font.pixelSize: Theme.body
    // Said outright, it is the side where reading begins; else a text without letters would stand on the other.
    horizontalAlignment: Text.AlignLeft
    wrapMode: Text.Wrap
    textFormat: Text.PlainText
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
