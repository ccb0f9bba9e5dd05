// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import "Breaks.js" as Breaks

/*! Words that break between words only: one that is too long for the line makes the letters smaller. */
Words {
    id: words

    property real largest: Theme.body
    /*! Room for the letters; where the width itself follows the text, it cannot say. */
    property real room: width

    font.pixelSize: Math.max(Theme.small,
                             Math.min(largest, Math.floor(largest * room / Math.max(1, longest.advanceWidth))))

    TextMetrics {
        id: longest
        font.family: words.font.family
        font.weight: words.font.weight
        font.pixelSize: words.largest
        text: Breaks.longest(words.text) + "."
    }
}
