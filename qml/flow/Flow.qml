// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "TestTable.js" as TestTable

/*!
 * One unit under test: the sequence that was chosen, where it stands, and the verdicts so far. It knows nothing of
 * screens.
 */
QtObject {
    id: flow

    /*! One of Features.TestMode; -1 before a sequence is chosen. */
    property int mode: -1
    /*! The sequence in its order: [{row, state}], see TestTable.plan(). */
    property var entries: []
    /*! The rows that can be run. */
    readonly property var ready: entries.filter(function(entry) { return entry.state === "ready"; })
                                        .map(function(entry) { return entry.row; })
    /*! The rows of the present run; a retest runs a part of the sequence. */
    property var run: []
    /*! Place in run of the test that is shown; run.length at the end. */
    property int position: 0
    readonly property var current: position < run.length ? run[position] : null
    /*! Name to verdict, see record(). Replaced as a whole, so that bindings follow. */
    property var results: ({})

    readonly property int secondsLeft: {
        var seconds = 0;
        for (var i = position; i < run.length; ++i)
            seconds += run[i].seconds;
        return seconds;
    }

    /*! Verdicts stay: they are the unit's, whatever sequence they came from. */
    function choose(newMode, features) {
        mode = newMode;
        entries = TestTable.plan(newMode, features);
        run = [];
        position = 0;
    }

    function clear() {
        results = {};
        run = [];
        position = 0;
    }

    function start(rows) {
        run = rows;
        position = 0;
    }

    function advance() {
        if (position < run.length)
            ++position;
    }

    /*!
     * Keeps a verdict: {code, reason, decided (the page's own code or empty), overruled, seconds, readings}. The number
     * of attempts is counted here.
     */
    function record(name, verdict) {
        var earlier = results[name];
        verdict.attempts = (earlier ? earlier.attempts : 0) + 1;
        var all = {};
        for (var key in results)
            all[key] = results[key];
        all[name] = verdict;
        results = all;
    }

    function code(name) {
        return results[name] ? results[name].code : FactoryUtils.Untest;
    }

    function rowsWith(wanted) {
        return ready.filter(function(row) { return flow.code(row.name) === wanted; });
    }

    /*! How many tests of the sequence have this code. What the phone lacks counts as not applicable. */
    function count(wanted) {
        return entries.filter(function(entry) { return flow.entryCode(entry) === wanted; }).length;
    }

    function entryCode(entry) {
        return entry.state === "absent" ? FactoryUtils.NA : code(entry.row.name);
    }
}
