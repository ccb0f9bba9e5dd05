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

    /*!
     * How the run-in of this sequence ended, null where there was none: {why, code, text}. Its code is the best that the
     * sequence can have, whatever its tests have: an end before its time is no pass.
     */
    property var ending: null

    /*! A verdict was kept. */
    signal recorded(string name, var verdict)

    readonly property int secondsLeft: {
        var seconds = 0;
        for (var i = position; i < run.length; ++i)
            seconds += run[i].seconds;
        return seconds;
    }

    /*! Verdicts stay: they are the unit's, whatever sequence they came from. */
    function choose(newMode, features) {
        mode = newMode;
        ending = null;
        entries = TestTable.plan(newMode, features);
        run = [];
        position = 0;
    }

    function clear() {
        results = {};
        ending = null;
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

    /*! The rows that are still to come in this run, the present one included. */
    readonly property var ahead: run.slice(position)

    /*! Whether one of the rows has something slow that begins early, see TestTable. */
    function anyEarly(rows, name) {
        return rows.some(function(row) { return row.early === name; });
    }

    /*!
     * Keeps a verdict:
     *   code       one of FactoryUtils' codes
     *   decided    the page's own code, empty if it had none
     *   overruled  whether the operator decided against it
     *   why, whyText   the operator's reason for overruling or skipping, as a word for machines and in his language
     *   reason     the page's reason
     *   timedOut   whether the time had run out
     *   seconds    how long it took
     *   readings   the measurements at that moment
     * attempts and spent, the seconds of all attempts together, are counted here.
     */
    function record(name, verdict) {
        keep(name, verdict, verdict);
        recorded(name, results[name]);
    }

    /*! An attempt that was broken off to try again: it is counted, and the verdict so far stands. */
    function noteAttempt(name, attempt) {
        keep(name, attempt, results[name] || copyOf(attempt, { code: FactoryUtils.Untest, decided: "", reason: "" }));
    }

    /*! Takes a verdict over as it stands, with its own numbers of attempts and seconds. */
    function adopt(name, verdict) {
        var adopted = {};
        adopted[name] = copyOf(verdict, { history: [] });
        results = copyOf(results, adopted);
    }

    function keep(name, attempt, verdict) {
        var earlier = results[name];
        var kept = {};
        kept[name] = copyOf(verdict, {
            attempts: (earlier ? earlier.attempts : 0) + 1,
            spent: (earlier ? earlier.spent : 0) + (attempt.seconds || 0),
            history: (earlier ? earlier.history : []).concat([attempt])
        });
        results = copyOf(results, kept);
    }

    function copyOf(object, changes) {
        var copy = {};
        for (var key in object)
            copy[key] = object[key];
        for (var change in changes)
            copy[change] = changes[change];
        return copy;
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

    /*! Failed if a test or the run-in failed; passed only if none failed, none is left and one passed at all. */
    function overallCode() {
        var best = ending ? ending.code : FactoryUtils.Pass;
        return count(FactoryUtils.Fail) > 0 || best === FactoryUtils.Fail ? FactoryUtils.Fail
               : count(FactoryUtils.Untest) > 0 || count(FactoryUtils.Pass) === 0 || best === FactoryUtils.Untest
               ? FactoryUtils.Untest : FactoryUtils.Pass;
    }

    /*! The sum of a number, "attempts" or "spent", over the tests of the sequence. */
    function total(number) {
        return entries.reduce(function(sum, entry) {
            var result = flow.results[entry.row.name];
            return sum + (result ? result[number] : 0);
        }, 0);
    }
}
