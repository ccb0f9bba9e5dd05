// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import "Lists.js" as Lists

/*!
 * One live reading and what it must be. A value that is not there (undefined, null, NaN, infinite or an empty text) is "no
 * reading": it is shown so and meets no limit.
 */
QtObject {
    property string name
    /*! A number in the unit below, a text, or yes/no. */
    property var value
    property string unit
    property int decimals: 0
    /*! What to show in place of certain values. */
    property var words: ({})
    /*! Inclusive; NaN where there is none. */
    property real minimum: NaN
    property real maximum: NaN
    /*! A number of things: just enough is not close to a limit. */
    property bool counted: false
    /*! Texts or yes/no that are good; undefined where any is. */
    property var accepted
    /*! The judgement of a back end that judges by itself, and the words for what it asks; undefined where there is none. */
    property var meets
    property string criteria
    /*! False while the value is still on its way: it is not out of limits before it has arrived. */
    property bool settled: true
    /*! Whether the verdict rests on it. */
    property bool decisive: limited
    /*! Missing where it should be there, to be drawn as such. */
    readonly property bool wanting: missing && decisive && settled

    readonly property bool limited: !isNaN(minimum) || !isNaN(maximum) || accepted !== undefined || meets !== undefined
    readonly property bool missing: value === undefined || value === null || value === ""
                                    || (typeof value === "number" && !isFinite(value))
    /*! "missing", "none" (nothing to meet), "fail", "near" (a pass close to a limit) or "pass". */
    readonly property string result: {
        var judged = judge();
        return settled || (judged !== "fail" && judged !== "missing") ? judged : missing ? "missing" : "none";
    }
    readonly property bool good: result === "pass" || result === "near"

    readonly property string valueText: {
        if (missing)
            //% "no reading"
            return qsTrId("kiv-reading-missing");
        if (typeof value === "number")
            return whole(number(value) + (unit === "" ? "" : "\u00a0" + unit));
        return word(value);
    }
    readonly property string limitsText: {
        if (criteria !== "")
            return criteria;
        if (accepted !== undefined)
            //: The value that a reading must have
            //% "must be %1"
            return qsTrId("kiv-limits-accepted").arg(Lists.enumerate(accepted.map(word)));
        if (!isNaN(minimum) && !isNaN(maximum))
            //: Limits of a reading: the lowest, the highest, the unit
            //% "%1 to %2 %3"
            return qsTrId("kiv-limits-range").arg(whole(number(minimum))).arg(whole(number(maximum))).arg(unit).trim();
        if (!isNaN(minimum))
            //% "at least %1 %2"
            return qsTrId("kiv-limits-minimum").arg(whole(number(minimum))).arg(unit).trim();
        if (!isNaN(maximum))
            //% "at most %1 %2"
            return qsTrId("kiv-limits-maximum").arg(whole(number(maximum))).arg(unit).trim();
        return "";
    }
    readonly property string resultText: {
        switch (result) {
        case "pass":
            //% "in order"
            return qsTrId("kiv-reading-pass");
        case "near":
            //% "close to the limit"
            return qsTrId("kiv-reading-near");
        case "fail":
            //% "out of limits"
            return qsTrId("kiv-reading-fail");
        case "missing":
            return qsTrId("kiv-reading-missing");
        }
        return "";
    }

    function word(something) {
        if (something === true)
            //% "yes"
            return qsTrId("kiv-yes");
        if (something === false)
            //% "no"
            return qsTrId("kiv-no");
        return words[something] || String(something);
    }

    /*! Keeps sign, number and unit in their order among words that are written from right to left. */
    function whole(something) {
        return Theme.mirrored ? "\u2066" + something + "\u2069" : something;
    }

    function number(something) {
        var rounded = Number(something.toFixed(decimals));
        // There is no minus zero on a display.
        return (rounded === 0 ? 0 : rounded).toLocaleString(Qt.locale(), "f", decimals);
    }

    function judge() {
        if (missing)
            return "missing";
        if (!limited)
            return "none";
        if (meets !== undefined)
            return meets ? "pass" : "fail";
        if (accepted !== undefined)
            return accepted.indexOf(value) >= 0 ? "pass" : "fail";
        if (typeof value !== "number" || value < minimum || value > maximum)
            return "fail";
        if (counted)
            return "pass";
        var span = isNaN(minimum) || isNaN(maximum) ? Math.abs(isNaN(minimum) ? maximum : minimum) : maximum - minimum;
        return value - minimum < 0.05 * span || maximum - value < 0.05 * span ? "near" : "pass";
    }
}
