// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtQuick.Window 2.15
import Kiv 1.0
import "controls"
import "controls/Scrolling.js" as Scrolling
import "flow"
import "flow/TestTable.js" as TestTable

/*!
 * The whole interface: one screen at a time, and the unit under test, which outlives the screens.
 */
Item {
    id: shell

    /*! Where to begin: empty for the disclaimer and then home, or the name of a screen ("home", "disclaimer", "list",
     *  "summary", "settings", "runin", "engineer") or of a test. */
    property string startPage
    property bool dark: false

    readonly property alias flow: flow
    readonly property alias screen: screens.item
    /*! A call that blocks is about to be made or is being made. */
    readonly property bool busy: working.item !== null && working.item.visible
    /*! The pages of the chosen sequence that have not been closed yet: file to component, held so that the engine keeps
     *  them. */
    property var pages: ({})
    /*! Whether the present test was opened by itself from the list. */
    property bool single: false
    /*! The test of the chosen sequence that was open last. */
    property string lastTest
    property bool quitting: false

    /*! A page is gone; what it needed can be given back. */
    signal pageClosed()
    /*! A page has made Qt's NetworkInfo. */
    signal networkInformationMade(QtObject information)

    implicitWidth: 360
    implicitHeight: 640

    function show(name) {
        if (working.item)
            working.item.cancel();
        leaveScreen();
        Scene.changed();
        screens.setSource("screens/" + name + ".qml", { "shell": shell });
        if (screen)
            screen.focus = true;
    }

    /*! The old screen is deleted later; what its page changed is put back at once. */
    function leaveScreen() {
        if (screens.item && screens.item.leave)
            screens.item.leave();
    }

    /*! Runs a job that blocks, after a screen that says so has been drawn. */
    function blocking(text, job) {
        working.active = true;
        working.item.run(text, job);
    }

    function showHome() {
        show("HomeScreen");
    }

    function chooseSequence(mode) {
        //% "Checking what this phone has"
        blocking(qsTrId("kiv-working-probing"), function() {
            flow.choose(mode, shell.features());
            shell.lastTest = "";
            shell.preload();
            shell.show("ListScreen");
        });
    }

    /*! Loads the pages of a sequence, so that each opens at once and the sequence needs no more memory as it goes on. */
    function preload() {
        var held = {};
        pages = held;
        if (flow.mode === TestTable.AllTests)
            return;
        flow.ready.forEach(function(row) {
            [row.page, row.part].forEach(function(file) {
                if (file)
                    held[file] = Qt.createComponent("pages/" + file);
            });
        });
        cues.active = true;
    }

    /*! Lets go of a page that has been closed. The run-in keeps its pages, which come again. */
    function release(file) {
        // An object keeps what has been deleted from it.
        if (pages[file])
            pages[file] = null;
        pageClosed();
    }

    function startRun(rows) {
        single = false;
        flow.start(rows);
        showTest();
    }

    function openSingle(row) {
        single = true;
        flow.start([row]);
        showTest();
    }

    /*! The run-in tests over and over. */
    function startRunIn() {
        flow.start([]);
        show("RunInScreen");
    }

    function showTest() {
        if (flow.current) {
            lastTest = flow.current.name;
            show("TestScreen");
        } else if (single) {
            showList();
        } else {
            showSummary();
        }
    }

    /*! The end of a run. */
    function showSummary() {
        reportRun();
        cue(flow.overallCode() === FactoryUtils.Pass ? "pass" : "fail");
        show("SummaryScreen");
    }

    function showList() {
        // A test that was the first thing on the screen belongs to no sequence yet.
        if (flow.mode < 0)
            chooseSequence(TestTable.AllTests);
        else
            show("ListScreen");
    }

    /*! Goes on after a verdict, which stays visible for a moment. */
    function nextTest(code) {
        flow.advance();
        if (!single && flow.current)
            showVerdict(code);
        showTest();
    }

    function showVerdict(code) {
        flash.active = true;
        flash.item.show(code);
    }

    /*! A short sound: "pass", "fail" or "attention". */
    function cue(name) {
        if (quitting)
            return;
        cues.active = true;
        cues.item.play(name);
    }

    function reportVerdict(name, verdict) {
        reporter.reportVerdict(name, verdict);
    }

    function reportRun() {
        reporter.reportRun();
    }

    /*! The text of the result's QR code. */
    function codeText() {
        return reporter.codeText();
    }

    // A phone whose panel is dead still has keys at its side.
    function sideKeyOf(key) {
        switch (key) {
        case Qt.Key_VolumeUp:
            return "up";
        case Qt.Key_VolumeDown:
            return "down";
        case Qt.Key_PowerOff:
        case Qt.Key_PowerDown:
        case Qt.Key_Standby:
        case Qt.Key_Sleep:
        case Qt.Key_Suspend:
            return "power";
        }
        return "";
    }

    function pressFocused() {
        var item = Window.activeFocusItem;
        if (!item || !item.enabled || !item.visible)
            return;
        if (item.activated)
            item.activated();
        else if (item.clicked)
            item.clicked();
    }

    // Not to what a sheet covers: nobody would see it.
    function moveFocus(forward) {
        var sheet = screen.sheet && screen.sheet.isOpen ? screen.sheet : null;
        var first = Window.activeFocusItem || shell, item = first;
        if (first.turn && first.turn(forward))
            return;
        do {
            item = item.nextItemInFocusChain(forward);
        } while (item && item !== first && sheet && !isInside(item, sheet));
        if (!item)
            return;
        item.forceActiveFocus(Qt.TabFocusReason);
        if (item.enter)
            item.enter(forward);
        else
            Scrolling.reveal(item);
    }

    function isInside(item, other) {
        while (item && item !== other)
            item = item.parent;
        return item === other;
    }

    focus: true
    Keys.onPressed: {
        var key = sideKeyOf(event.key);
        if (key === "")
            return;
        event.accepted = true;
        if (event.isAutoRepeat || busy)
            return;
        if (flash.showing) {
            flash.item.stay();
            return;
        }
        if (screen.sideKey && screen.sideKey(key))
            return;
        if (key === "power")
            pressFocused();
        else
            moveFocus(key === "down");
    }
    Keys.onReleased: {
        var key = sideKeyOf(event.key);
        if (key === "" || event.isAutoRepeat)
            return;
        event.accepted = true;
        if (screen.sideKeyReleased)
            screen.sideKeyReleased(key);
    }

    /*! Leaves the present test. Without a verdict, unless the page has measured one. */
    function leaveTest() {
        if (screen.keepMeasured)
            screen.keepMeasured();
        leaveScreen();
        flow.start([]);
        showList();
    }

    function nextUnit() {
        flow.clear();
        showHome();
    }

    function features() {
        return Features;
    }

    function begin() {
        if (startPage === "" || startPage === "disclaimer") {
            if (startPage === "" && disclaimerText === "")
                showHome();
            else
                show("DisclaimerScreen");
        } else if (startPage === "home") {
            showHome();
        } else if (startPage === "settings") {
            show("SettingsScreen");
        } else if (startPage === "list") {
            showHome();
            chooseSequence(TestTable.FactoryTests);
        } else if (startPage === "summary") {
            flow.choose(TestTable.FactoryTests, features());
            show("SummaryScreen");
        } else if (startPage === "runin") {
            flow.choose(TestTable.RunInTests, features());
            startRunIn();
        } else if (startPage === "engineer") {
            show("EngineerScreen");
        } else {
            var row = TestTable.row(startPage);
            if (row)
                openSingle(row);
            else
                showHome();
        }
    }

    Component.onCompleted: begin()

    // What was measured is not lost, and the phone is put back while everything is still there.
    Connections {
        target: Qt.application
        function onAboutToQuit() {
            shell.quitting = true;
            if (shell.screen && shell.screen.keepMeasured)
                shell.screen.keepMeasured();
            shell.leaveScreen();
        }
    }

    LayoutMirroring.enabled: Theme.mirrored
    LayoutMirroring.childrenInherit: true

    Binding {
        target: Theme
        property: "width"
        value: shell.width
    }
    Binding {
        target: Theme
        property: "height"
        value: shell.height
    }
    Binding {
        target: Theme
        property: "dark"
        value: shell.dark
    }

    Flow {
        id: flow
        onRecorded: reporter.reportVerdict(name, verdict)
    }
    Reporter {
        id: reporter
        flow: flow
    }

    // A receiver takes minutes to find satellites: it begins with the sequence.
    Loader {
        objectName: "earlySatellites"
        active: !shell.single && flow.anyEarly(flow.ahead, "Satellites")
        source: "flow/Satellites.qml"
    }
    // What cameras and videos need is slow to load: it comes behind the screen that covers the choice of a sequence.
    Loader {
        objectName: "earlyPictures"
        active: flow.mode !== TestTable.AllTests && flow.anyEarly(flow.ready, "Pictures")
        source: "flow/Pictures.qml"
    }
    Loader {
        id: cues
        active: false
        source: "controls/Cue.qml"
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.background
    }

    Loader {
        id: screens
        anchors.fill: parent
        focus: true
    }

    // These two are made when they are first wanted.
    Loader {
        id: flash
        readonly property bool showing: item !== null && item.visible
        anchors.fill: parent
        active: false
        source: "controls/VerdictFlash.qml"
    }
    Loader {
        id: working
        anchors.fill: parent
        active: false
        source: "controls/Working.qml"
    }

    // A finger that trembles taps twice: what its first tap has brought must not take the second. Nor must a question that
    // comes by itself take the tap that was meant for what it covers.
    MouseArea {
        readonly property int quickMs: 300
        property real lastTime: 0
        property point lastPlace
        property int lastChanges: -1

        anchors.fill: parent
        onPressed: {
            var now = Date.now();
            var twice = now - lastTime >= 0 && now - lastTime < quickMs && lastChanges !== Scene.changes
                        && Math.abs(mouse.x - lastPlace.x) < Theme.target
                        && Math.abs(mouse.y - lastPlace.y) < Theme.target;
            // A clock that is set back must not make it deaf for years.
            mouse.accepted = twice || (now < Scene.deafUntil && Scene.deafUntil - now <= 400);
            lastTime = now;
            lastPlace = Qt.point(mouse.x, mouse.y);
            // However many more there are, until it holds still.
            if (!twice)
                lastChanges = Scene.changes;
        }
    }
}
