// SPDX-License-Identifier: BSD-3-Clause
.pragma library

// How a verdict looks: the name of its icon and of its colours in the theme.
var looks = {
    "00": { glyph: "untested", ink: "warn", on: "warnInk", tint: "warnTint" },
    "01": { glyph: "pass", ink: "pass", on: "passInk", tint: "passTint" },
    "02": { glyph: "fail", ink: "fail", on: "failInk", tint: "failTint" },
    "03": { glyph: "na", ink: "neutral", on: "neutralInk", tint: "neutralTint" }
};

function word(code) {
    switch (code) {
    case "01":
        //% "Passed"
        return qsTrId("kiv-verdict-passed");
    case "02":
        //% "Failed"
        return qsTrId("kiv-verdict-failed");
    case "03":
        //% "Not applicable"
        return qsTrId("kiv-verdict-not-applicable");
    }
    //% "Not tested"
    return qsTrId("kiv-verdict-not-tested");
}
