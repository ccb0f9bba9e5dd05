// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0

/*!
 * The run-in: its tests one after another, over and over, until its time is up, a test fails or the battery gets too hot.
 * It knows nothing of screens.
 */
QtObject {
    id: runIn

    property var rows: []
    property real lengthSeconds: 3600 * KivHwSettings.runInTestLength
    property bool stopOnFailure: true
    /*! Degrees Celsius at which it ends; NaN for never. */
    property real temperatureLimit: NaN

    property bool running: false
    /*! From 1. */
    property int loop: 0
    property int position: 0
    readonly property var row: running && position < rows.length ? rows[position] : null
    property int elapsed: 0
    readonly property int secondsLeft: Math.max(0, lengthSeconds - elapsed)
    /*! Why it ended: "time", "failure", "temperature", "restart" or "operator"; empty before. */
    property string end
    /*!
     * The tests that failed, in order of time: {row, loop, reason, times, loops}. The loop and the reason are those of the
     * first failure; loops are the first ones: what fails at every turn of a long run must not fill the memory.
     */
    property var failures: []
    readonly property int mostLoops: 5
    /*! Name to {code, reason, loops, seconds}. */
    property var outcomes: ({})
    /*! When the phone was started, as seen at the beginning and now. */
    property var machineStart: new Date(NaN)
    property var machineStartNow: new Date(NaN)

    readonly property Trace temperature: Trace {
        name: qsTrId("kiv-battery-temperature")
        unit: "°C"
        decimals: 1
    }
    readonly property Trace current: Trace {
        name: qsTrId("kiv-battery-current")
        unit: "mA"
    }
    readonly property Trace voltage: Trace {
        name: qsTrId("kiv-battery-voltage")
        unit: "V"
        decimals: 3
    }
    readonly property Trace load: Trace {
        name: qsTrId("kiv-system-load-1")
        decimals: 2
    }
    readonly property var traces: [temperature, current, voltage, load]

    /*! The next test is to be opened, or the same one anew. */
    signal testWanted()
    signal ended()

    function start() {
        traces.forEach(function(trace) { trace.clear(); });
        loop = 1;
        position = 0;
        elapsed = 0;
        end = "";
        failures = [];
        outcomes = {};
        lastTick = Date.now();
        machineStart = startOfMachine();
        machineStartNow = machineStart;
        running = true;
        sample();
        if (running)
            testWanted();
    }

    /*! A test of the run is over. */
    function finish(code, reason, seconds) {
        if (!running || !row)
            return;
        var name = row.name, earlier = outcomes[name], all = {};
        for (var key in outcomes)
            all[key] = outcomes[key];
        // A test that failed in one loop has failed, however many others it passed.
        var failedBefore = earlier && earlier.code === FactoryUtils.Fail;
        all[name] = { code: failedBefore ? earlier.code : code, reason: failedBefore ? earlier.reason : reason,
                      loops: (earlier ? earlier.loops : 0) + 1, seconds: (earlier ? earlier.seconds : 0) + seconds };
        outcomes = all;
        if (code === FactoryUtils.Fail) {
            noteFailure(reason);
            if (stopOnFailure) {
                stop("failure");
                return;
            }
        }
        if (position + 1 < rows.length) {
            ++position;
        } else {
            position = 0;
            ++loop;
        }
        // Every test has its turn, also where the time is shorter than one loop.
        if (secondsLeft === 0 && Object.keys(outcomes).length === rows.length) {
            if (position === 0)
                --loop;
            stop("time");
            return;
        }
        testWanted();
    }

    function noteFailure(reason) {
        var known = failures.filter(function(failure) { return failure.row === runIn.row; })[0];
        if (!known) {
            failures = failures.concat([{ row: row, loop: loop, reason: reason, times: 1, loops: [loop] }]);
            return;
        }
        var again = { row: row, loop: known.loop, reason: known.reason, times: known.times + 1,
                      loops: known.loops.concat([loop]).slice(0, mostLoops) };
        failures = failures.map(function(failure) { return failure === known ? again : failure; });
    }

    function stop(why) {
        if (!running)
            return;
        tick();
        machineStartNow = startOfMachine();
        end = why === "time" && restarted ? "restart" : why;
        running = false;
        ended();
    }

    /*! The system clock may be off by a few seconds against itself; a restart takes longer. */
    readonly property bool restarted: Math.abs(machineStartNow.getTime() - machineStart.getTime()) > 30000

    /*! One of FactoryUtils' codes for the whole run. */
    readonly property string code: failures.length > 0 || end === "temperature" || end === "restart" ? FactoryUtils.Fail
                                   : end === "time" ? FactoryUtils.Pass : FactoryUtils.Untest

    property real lastTick: 0

    function tick() {
        var now = Date.now(), passed = now - lastTick;
        // A clock that is set meanwhile neither prolongs the run nor ends it.
        elapsed += Math.max(0, Math.min(60, Math.round(passed / 1000)));
        lastTick = now;
        if (Math.abs(passed) > leastLeap)
            noteLeap(passed);
    }

    /*! Milliseconds between two ticks from which on the clock may have been set. */
    readonly property int leastLeap: 10000

    /*!
     * The clock has leapt. Where it was set, say by a network or a satellite, the start of the phone has moved along with it
     * and nothing was restarted; after a sleep or a test that blocked it stands where it was.
     */
    function noteLeap(leap) {
        var start = startOfMachine(), shift = start.getTime() - machineStartNow.getTime();
        // Not quite by as much: a test may have kept the interface from ticking meanwhile. NaN is no shift at all.
        if (!(Math.abs(shift - leap) <= 60000))
            return;
        machineStart = new Date(machineStart.getTime() + shift);
        machineStartNow = start;
    }

    function sample() {
        temperature.add(battery.temperature());
        current.add(battery.currentNow() / 1e3);
        voltage.add(battery.voltageNow() / 1e6);
        load.add(uptime.loadAverage1);
        if (running && temperature.now >= temperatureLimit)
            stop("temperature");
    }

    function startOfMachine() {
        var probe = uptimeComponent.createObject(runIn);
        var start = probe.machineStart;
        probe.destroy();
        return start;
    }

    readonly property Battery battery: Battery {}
    readonly property Uptime uptime: Uptime {}
    readonly property Component uptimeComponent: Component {
        Uptime {}
    }
    readonly property Timer clock: Timer {
        interval: 1000
        repeat: true
        running: runIn.running
        onTriggered: runIn.tick()
    }
    readonly property Timer sampler: Timer {
        interval: 5000
        repeat: true
        running: runIn.running
        onTriggered: runIn.sample()
    }
}
