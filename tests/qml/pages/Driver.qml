// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtQuick.Window 2.15
import QtTest 1.15
import Kiv 1.0
import KivFake 1.0
import "../../../qml"
import "../../../qml/controls"
import "../../../qml/controls/Scrolling.js" as Scrolling

/*! What the tests of the screens share: a shell in a window, and hands to work it. */
TestCase {
    id: driver

    property var shell: null
    readonly property var frame: shell ? shell.screen : null
    readonly property var page: frame && frame.page !== undefined ? frame.page : null

    when: windowShown
    visible: true
    width: 360
    height: 640

    Component {
        id: shellComponent
        Shell {
            width: 360
            height: 640
        }
    }

    Timer {
        id: eggTimer
        property bool over: false
        onTriggered: over = true
    }

    function init() {
        Phone.reset();
    }

    function cleanup() {
        if (shell)
            shell.destroy();
        shell = null;
        wait(0);
    }

    function start(startPage) {
        // Two of them would share the keys.
        cleanup();
        shell = shellComponent.createObject(driver, { startPage: startPage });
        verify(shell);
    }

    /*! Opens one test and waits until its page is on the screen. */
    function openTest(name) {
        start(name);
        tryVerify(function() { return page !== null; });
        tryVerify(function() { return page.isOpen; }, 5000, name);
        // A fake is as fast as the test wants, a page polls once a second.
        return page;
    }

    function find(name) {
        // What is tapped before that is meant for nothing.
        var working = findChild(shell, "working");
        if (working && working.settling)
            tryVerify(function() { return !working.settling; });
        var found = findChild(shell, name);
        verify(found, name);
        return found;
    }

    /*! All of it, on a small screen, without a finger that scrolls. */
    function isOnScreen(name) {
        var button = find(name), top = button.mapToItem(shell, 0, 0).y, view = button.parent;
        while (view.contentY === undefined)
            view = view.parent;
        var viewTop = view.mapToItem(shell, 0, 0).y;
        return button.visible && top >= viewTop && top + button.height <= viewTop + view.height;
    }

    property real lastClick: 0
    property int lastChanges: -1

    /*! Lets this time pass, for the screens as well: after a wait() that a busy machine held up, what they had planned for
     *  meanwhile may still be to come. */
    function letPass(ms) {
        eggTimer.over = false;
        eggTimer.interval = ms;
        eggTimer.restart();
        tryVerify(function() { return eggTimer.over; }, 2 * ms + 5000);
    }

    /*! Does what must be done sooner than the screens' clocks run out, and again, with a new shell, where the machine was
     *  too busy for that: the function returns false then, and has judged nothing. */
    function inTime(attempt) {
        for (var i = 0; i < 10; ++i) {
            if (attempt() !== false)
                return;
            cleanup();
            init();
        }
        skip("The machine is too busy for quick hands");
    }

    /*! A hand that sees what it taps: not so soon after a change that it would be a finger that trembles. */
    function mouseClick(item, x, y) {
        for (;;) {
            var due = Math.max(lastChanges !== Scene.changes ? lastClick + 320 : 0, Scene.deafUntil) - Date.now();
            if (due <= 0)
                break;
            wait(due);
        }
        if (shell && item !== shell)
            Scrolling.reveal(item);
        var middle = item.mapToItem(null, x === undefined ? item.width / 2 : x, y === undefined ? item.height / 2 : y);
        lastClick = Date.now();
        lastChanges = Scene.changes;
        var window = item.Window.window.contentItem;
        mousePress(window, middle.x, middle.y);
        mouseRelease(window, middle.x, middle.y);
    }

    function tap(name) {
        var button = find(name);
        mouseClick(button);
    }

    function holdPass() {
        var button = find("pass");
        var middle = button.mapToItem(shell, button.width / 2, button.height / 2);
        mousePress(shell, middle.x, middle.y);
        letPass(700);
        // The button is gone by now where it has acted.
        mouseRelease(shell, middle.x, middle.y);
    }

    /*! Waits until a verdict no longer covers the screen. */
    function afterFlash() {
        tryVerify(function() { return !find("flash").visible; });
    }

    /*! Answers the question that is on the screen. */
    function answer(id) {
        tryVerify(function() { return find("sheet").isOpen; });
        var button = find("choice-" + id);
        waitForRendering(button);
        mouseClick(button);
    }

    /*! The verdict that the flow keeps for a test. */
    function kept(name) {
        return shell.flow.verdict(name);
    }
}
