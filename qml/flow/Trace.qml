// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15

/*!
 * A reading over time, with its extremes. It keeps a bounded number of points for a plot: when they are full, every second
 * one goes and from then on half as many come.
 */
QtObject {
    id: trace

    property string name
    property string unit
    property int decimals: 0
    /*! NaN while there is no reading. */
    property real now: NaN
    property real minimum: NaN
    property real maximum: NaN
    /*! In order of time; NaN where a reading was missing. Replaced as a whole. */
    property var points: []

    readonly property int capacity: 120
    property int stride: 1
    property int skipped: 0

    function clear() {
        now = minimum = maximum = NaN;
        points = [];
        stride = 1;
        skipped = 0;
    }

    function add(value) {
        now = typeof value === "number" && isFinite(value) ? value : NaN;
        if (!isNaN(now)) {
            minimum = isNaN(minimum) ? now : Math.min(minimum, now);
            maximum = isNaN(maximum) ? now : Math.max(maximum, now);
        }
        if (++skipped < stride)
            return;
        skipped = 0;
        var kept = points.concat([now]);
        if (kept.length > capacity) {
            kept = kept.filter(function(point, place) { return place % 2 === 0; });
            stride *= 2;
        }
        points = kept;
    }

    function text(value) {
        return isNaN(value) ? qsTrId("kiv-reading-missing")
                            : value.toLocaleString(Qt.locale(), "f", decimals) + (unit === "" ? "" : "\u00a0" + unit);
    }
}
