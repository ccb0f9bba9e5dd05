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
    /*! The same for what the run-in found out by itself; a later verdict of an operator takes its place. */
    property var unattended: ({})
    readonly property bool anyResults: Object.keys(results).length + Object.keys(unattended).length > 0

    /*!
     * How the unit's run-in ended, null where there was none: {why, code, text, failedLoops}. Its code is the best that
     * the sequence can have, whatever its tests have: neither an end before its time nor a run with a failure, even of a
     * test that passes when it is tried again, is a pass.
     */
    property var runInEnding: null
    /*! The same where the run-in is the sequence; the others know nothing of it. */
    readonly property var ending: mode === TestTable.RunInTests ? runInEnding : null

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
        entries = TestTable.plan(newMode, features);
        run = [];
        position = 0;
    }

    function clear() {
        results = {};
        unattended = {};
        runInEnding = null;
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
    function record(name, newVerdict) {
        keep(name, newVerdict, newVerdict);
        if (newVerdict.code !== FactoryUtils.Untest) {
            var others = copyOf(unattended, {});
            delete others[name];
            unattended = others;
        }
        recorded(name, results[name]);
    }

    /*! An attempt that was broken off to try again: it is counted, and the verdict so far stands. */
    function noteAttempt(name, attempt) {
        var standing = results[name] || copyOf(attempt, { code: FactoryUtils.Untest, decided: "", reason: "" });
        keep(name, attempt, standing);
    }

    /*!
     * Takes over what the run-in found out about a test while nobody watched, with its own numbers of attempts and
     * seconds.
     */
    function adopt(name, verdict) {
        var adopted = {};
        adopted[name] = copyOf(verdict, { history: [verdict] });
        unattended = copyOf(unattended, adopted);
    }

    /*!
     * The verdict that counts for a test in this sequence; undefined where there is none. A failure is one wherever it was
     * seen. But a pass that nobody watched, for which a page asks less, counts in the run-in alone, and takes back no
     * failure that an operator saw.
     */
    function verdict(name) {
        var watched = results[name], alone = unattended[name];
        if (!alone || alone.code === FactoryUtils.Fail)
            return alone || watched;
        return mode === TestTable.RunInTests && !(watched && watched.code === FactoryUtils.Fail) ? alone : watched;
    }

    function keep(name, attempt, newVerdict) {
        var earlier = results[name] ? [results[name]] : [], alone = unattended[name];
        // The loops of the run-in count once, and where they count at all.
        if (alone && alone === verdict(name) && !alone.counted) {
            earlier.push(alone);
            var counted = {};
            counted[name] = copyOf(alone, { counted: true });
            unattended = copyOf(unattended, counted);
        }
        var kept = {};
        kept[name] = copyOf(newVerdict, {
            attempts: earlier.reduce(function(sum, one) { return sum + one.attempts; }, 1),
            spent: earlier.reduce(function(sum, one) { return sum + one.spent; }, attempt.seconds || 0),
            history: earlier.reduce(function(all, one) { return all.concat(one.history); }, []).concat([attempt])
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
        var counting = verdict(name);
        return counting ? counting.code : FactoryUtils.Untest;
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
        var best = mode !== TestTable.RunInTests ? FactoryUtils.Pass : ending ? ending.code : FactoryUtils.Untest;
        return count(FactoryUtils.Fail) > 0 || best === FactoryUtils.Fail ? FactoryUtils.Fail
               : count(FactoryUtils.Untest) > 0 || count(FactoryUtils.Pass) === 0 || best === FactoryUtils.Untest
               ? FactoryUtils.Untest : FactoryUtils.Pass;
    }

    /*! The sum of a number, "attempts" or "spent", over the tests of the sequence. */
    function total(number) {
        return entries.reduce(function(sum, entry) {
            var result = flow.verdict(entry.row.name);
            return sum + (result ? result[number] : 0);
        }, 0);
    }
}
