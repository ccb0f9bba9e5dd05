// SPDX-License-Identifier: BSD-3-Clause
pragma Singleton
import QtQuick 2.15

/*!
 * Counts how often what can be pressed has become something else: another screen, another question. The second of two
 * quick taps at one place was meant for what was there before; the shell keeps it off.
 */
QtObject {
    property int changes: 0

    /*! Until then, in milliseconds since 1970, no tap counts. */
    property real deafUntil: 0

    function changed() {
        ++changes;
    }

    /*! It changes by itself, perhaps under a finger that is on its way to something else. */
    function surprise() {
        changed();
        deafUntil = Date.now() + 400;
    }
}
