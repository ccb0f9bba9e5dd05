// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "controls"
import "flow"
import "flow/TestTable.js" as TestTable

/*!
 * The whole interface: one screen at a time, and the unit under test, which outlives the screens.
 */
Item {
    id: shell

    /*! Where to begin: empty for the disclaimer and then home, or the name of a screen ("home", "disclaimer", "list",
     *  "summary", "settings") or of a test. */
    property string startPage
    property bool dark: false

    readonly property alias flow: flow
    readonly property alias screen: screens.item
    /*! Whether the present test was opened by itself from the list. */
    property bool single: false

    implicitWidth: 360
    implicitHeight: 640

    function show(name) {
        if (working.item)
            working.item.cancel();
        leaveScreen();
        screens.setSource("screens/" + name + ".qml", { "shell": shell });
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
            shell.show("ListScreen");
        });
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

    function showTest() {
        if (flow.current)
            show("TestScreen");
        else if (single)
            showList();
        else
            show("SummaryScreen");
    }

    function showList() {
        // A test that was the first thing on the screen belongs to no sequence yet.
        if (flow.mode < 0)
            chooseSequence(TestTable.AllTests);
        else
            show("ListScreen");
    }

    function nextTest() {
        flow.advance();
        showTest();
    }

    /*! Leaves the present test without a verdict. */
    function leaveTest() {
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
        } else {
            var row = TestTable.row(startPage);
            if (row)
                openSingle(row);
            else
                showHome();
        }
    }

    Component.onCompleted: begin()

    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
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

    // Made when it is first wanted.
    Loader {
        id: working
        anchors.fill: parent
        active: false
        source: "controls/Working.qml"
    }
}
