// SPDX-License-Identifier: BSD-3-Clause
.pragma library

// What leaves the phone: lines of JSON for the message log, and the text of the QR code. Their form is documented for
// those who read them in docs/results.md; a change of it takes another number here.
var version = 1;

var modes = ["factory", "run-in", "all"];

function modeWord(mode) {
    return modes[mode] || "";
}

// The message log may write in any encoding: what is not ASCII goes as an escape.
function line(object) {
    return JSON.stringify(object).replace(/[\u007f-\uffff]/g, function(character) {
        return "\\u" + ("000" + character.charCodeAt(0).toString(16)).slice(-4);
    });
}

function numberOrNull(number) {
    return typeof number === "number" && isFinite(number) ? number : null;
}

function reading(measurement) {
    return { name: measurement.name, value: measurement.missing ? null : measurement.value, unit: measurement.unit,
             minimum: numberOrNull(measurement.minimum), maximum: numberOrNull(measurement.maximum),
             result: measurement.result };
}

function verdict(mode, name, result, time) {
    return line({ kiv: version, event: "verdict", time: time, mode: modeWord(mode), test: name, code: result.code,
                  attempt: result.attempts, seconds: result.seconds, decided: result.decided || null,
                  overruled: !!result.overruled, why: result.why || null, reason: result.reason || null,
                  timedOut: !!result.timedOut, readings: result.readings || [] });
}

// identity: {wlan, bluetooth, calibrated}, an address being empty where there is none.
function run(flow, identity, time) {
    var results = {};
    flow.entries.forEach(function(entry) { results[entry.row.name] = flow.entryCode(entry); });
    var counts = {};
    ["00", "01", "02", "03"].forEach(function(code) { counts[code] = flow.count(code); });
    return line({ kiv: version, event: "run", time: time, mode: modeWord(flow.mode), code: flow.overallCode(),
                  end: flow.ending ? flow.ending.why : null,
                  failedLoops: flow.ending ? flow.ending.failedLoops || {} : null,
                  wlan: identity.wlan || null, bluetooth: identity.bluetooth || null, calibrated: identity.calibrated,
                  counts: counts, attempts: flow.total("attempts"), seconds: flow.total("spent"), results: results });
}

// An address is read from a file that may hold anything: a code has no room for that, and its lines must stay lines.
function address(text) {
    return String(text || "").replace(/[^\x21-\x7e]/g, "?").slice(0, 40) || "-";
}

// A line for each fact, so that a person can read what a scanner shows. The codes stand in the order of the sequence;
// the failed tests are named too, for whoever has no list at hand.
function codeText(flow, identity) {
    var failed = flow.entries.filter(function(entry) { return flow.entryCode(entry) === "02"; })
                             .map(function(entry) { return entry.row.name; });
    var lines = ["KIV " + version, "WLAN " + address(identity.wlan), "BT " + address(identity.bluetooth),
                 "CAL " + (identity.calibrated ? "1" : "0"), "MODE " + modeWord(flow.mode),
                 "RESULT " + flow.overallCode(),
                 "CODES " + flow.entries.map(function(entry) { return flow.entryCode(entry); }).join("")];
    if (failed.length > 0)
        lines.push("FAILED " + failed.join(" "));
    return lines.join("\n");
}
