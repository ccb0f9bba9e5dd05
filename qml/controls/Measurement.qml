// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15

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
    /*! Inclusive; NaN where there is none. */
    property real minimum: NaN
    property real maximum: NaN
    /*! Texts or yes/no that are good; undefined where any is. */
    property var accepted
    /*! Whether the verdict rests on it. */
    property bool decisive: limited

    readonly property bool limited: !isNaN(minimum) || !isNaN(maximum) || accepted !== undefined
    readonly property bool missing: value === undefined || value === null || value === ""
                                    || (typeof value === "number" && !isFinite(value))
    /*! "missing", "none" (nothing to meet), "fail", "near" (a pass close to a limit) or "pass". */
    readonly property string result: judge()
    readonly property bool good: result === "pass" || result === "near"

    readonly property string valueText: {
        if (missing)
            //% "no reading"
            return qsTrId("kiv-reading-missing");
        if (typeof value === "number")
            return number(value) + (unit === "" ? "" : "\u00a0" + unit);
        return word(value);
    }
    readonly property string limitsText: {
        if (accepted !== undefined)
            return accepted.map(word).join(", ");
        if (!isNaN(minimum) && !isNaN(maximum))
            //: Limits of a reading: the lowest, the highest, the unit
            //% "%1 to %2 %3"
            return qsTrId("kiv-limits-range").arg(number(minimum)).arg(number(maximum)).arg(unit).trim();
        if (!isNaN(minimum))
            //% "at least %1 %2"
            return qsTrId("kiv-limits-minimum").arg(number(minimum)).arg(unit).trim();
        if (!isNaN(maximum))
            //% "at most %1 %2"
            return qsTrId("kiv-limits-maximum").arg(number(maximum)).arg(unit).trim();
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
        return String(something);
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
        if (accepted !== undefined)
            return accepted.indexOf(value) >= 0 ? "pass" : "fail";
        if (typeof value !== "number" || value < minimum || value > maximum)
            return "fail";
        var span = isNaN(minimum) || isNaN(maximum) ? Math.abs(isNaN(minimum) ? maximum : minimum) : maximum - minimum;
        return value - minimum < 0.05 * span || maximum - value < 0.05 * span ? "near" : "pass";
    }
}
