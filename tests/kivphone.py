# SPDX-License-Identifier: BSD-3-Clause
"""The installed program on a simulated phone, seen from outside: phonectl is the operator's hands, and a page of the test
says what the operator would see."""

import itertools
import json
import os
import queue
import re
import shutil
import subprocess
import tempfile
import threading
import time

HERE = os.path.dirname(os.path.abspath(__file__))
SIMULATOR = os.path.join(os.path.dirname(HERE), 'simulator')
STAGE = os.environ['KIV_STAGE']
WANTED = '/run/kiv-phone/wanted-page'
TIMEOUT = 60

# phonectl's status while the phone is still being started
NO_PHONE = 3
SERIAL = itertools.count()

PASSED = '01'
FAILED = '02'

# Does what the file says, and says what becomes of it.
MAIN = '''import QtQuick 2.15
Shell {
    id: shell
    startPage: "home"
    property string wanted
    property string task
    property string pressing
    property string said
    property real last: Date.now()
    property real stall: 0
    function look() {
        var request = new XMLHttpRequest()
        request.onreadystatechange = function() {
            var text = request.responseText.trim()
            if (request.readyState !== XMLHttpRequest.DONE || text === "" || text === shell.task)
                return
            shell.task = text
            var words = text.split(" ")
            shell.pressing = words[1] === "press" ? words[2] : ""
            if (shell.pressing !== "")
                return
            shell.begun()
            if (words[1] === "open") {
                shell.startPage = words[2]
                shell.flow.clear()
                shell.begin()
            } else if (words[1] === "leave") {
                shell.leaveTest()
            } else if (words[1] === "quit") {
                Qt.quit()
            }
        }
        request.open("GET", "file://%s")
        request.send()
    }
    function begun() {
        wanted = task
        stall = 0
    }
    // Not before the button is there.
    function press() {
        var button = pressing === "" || busy ? null : find(shell, pressing)
        if (!button || !button.enabled)
            return
        pressing = ""
        begun()
        button.clicked()
    }
    // Nobody presses what he does not see.
    function find(item, name) {
        if (!item.visible)
            return null
        if (item.objectName === name)
            return item
        for (var i = 0; i < item.children.length; ++i) {
            var found = find(item.children[i], name)
            if (found)
                return found
        }
        return null
    }
    // What a challenge that can be answered shows.
    function asked(item) {
        if (!item || !item.visible)
            return ""
        if (item.expected !== undefined && item.mistakes !== undefined && item.ready)
            return String(item.expected)
        for (var i = 0; i < item.children.length; ++i) {
            var found = asked(item.children[i])
            if (found !== "")
                return found
        }
        return ""
    }
    function tell() {
        var state = { wanted: shell.wanted, open: !!page && page.isOpen, missing: page ? page.missing : "",
                      verdict: page ? page.verdict : "", reason: page ? page.reason : "",
                      left: page ? page.remaining : 0, due: page && page.phase !== undefined ? page.phase : "",
                      evidence: !!page && page.evidence, asked: shell.asked(page), stall: shell.stall,
                      passable: !!page && shell.screen.passUnlocked === true,
                      values: page ? page.measurements.map(function(m) { return m.valueText }) : [] }
        var more = ["prepared", "played", "playing", "found", "heard", "trouble", "refused",
                    "hasRested"]
        more.forEach(function(name) {
            if (page && page[name] !== undefined)
                state[name] = page[name]
        })
        var text = JSON.stringify(state)
        if (text !== said)
            console.warn("state: " + text)
        said = text
    }
    // What may be over, or keep the interface from telling more, before the next look is told at once.
    readonly property var page: screen && screen.page ? screen.page : null
    readonly property string moment: page ? [page.isOpen, page.verdict, page.phase, page.trouble].join() : ""
    onMomentChanged: Qt.callLater(tell)
    Timer {
        interval: 100
        running: true
        repeat: true
        onTriggered: {
            shell.look()
            shell.press()
            // How long the interface stood still at most, in whole seconds.
            shell.stall = Math.max(shell.stall, Math.floor((Date.now() - shell.last) / 1000))
            shell.last = Date.now()
            shell.tell()
        }
    }
}
''' % WANTED


def children(pid):
    found = []
    for name in filter(str.isdecimal, os.listdir('/proc')):
        try:
            with open('/proc/%s/stat' % name, encoding='utf-8', errors='replace') as file:
                text = file.read()
        except OSError:
            continue
        if int(text.rpartition(')')[2].split()[1]) == pid:
            found.append((int(name), text.partition('(')[2].rpartition(')')[0]))
    return found


def descendant(pid, name):
    for child, called in children(pid):
        found = child if called == name else descendant(child, name)
        if found:
            return found
    return None


class Phone:
    """A simulated phone that shows one page after the other. Further options are those of simulator/start."""

    def __init__(self, name, *options, command=('/usr/bin/kiv',), stdout=subprocess.DEVNULL):
        self.identifier = 'pages-%d-%d-%s' % (os.getpid(), next(SERIAL), name)
        self.folder = tempfile.mkdtemp()
        page = self.folder + '/usr/share/kiv/main.qml'
        os.makedirs(os.path.dirname(page))
        with open(page, 'w', encoding='utf-8') as file:
            file.write(MAIN)
        environment = dict(os.environ, QT_QPA_PLATFORM='offscreen', QT_QUICK_BACKEND='software', LC_ALL='C.UTF-8',
                           QML_XHR_ALLOW_FILE_READ='1', QT_LOGGING_RULES='default.debug=false',
                           # What a phone's platform plug-in does for the keys.
                           QT_QPA_GENERIC_PLUGINS='evdevkeyboard:/dev/input/event1')
        self.process = subprocess.Popen(
            [SIMULATOR + '/start', '--phone', name, '--phone-id', self.identifier, '--install', STAGE, '--layer',
             self.folder, '--absent', '/usr/share/kiv/main.qmlc', *options, '--', *command], env=environment,
            stdin=subprocess.DEVNULL, stdout=stdout, stderr=subprocess.PIPE, text=stdout == subprocess.DEVNULL)
        self.lines = []
        self.states = queue.Queue()
        self.counter = 0
        self.current = None
        self.wanted = ''
        self.reader = threading.Thread(target=self.read, daemon=True)
        self.reader.start()

    def read(self):
        for line in self.process.stderr:
            line = line if isinstance(line, str) else line.decode(errors='replace')
            self.lines.append(line.rstrip())
            match = re.search('state: (.*)', line)
            if match:
                self.states.put(json.loads(match.group(1)))
        self.states.put(None)

    def end(self):
        self.process.terminate()
        self.process.wait()
        self.reader.join()
        self.process.stderr.close()
        shutil.rmtree(self.folder)

    def control(self, *words):
        end = time.monotonic() + TIMEOUT
        while True:
            result = subprocess.run([SIMULATOR + '/phonectl', '--phone-id', self.identifier, *words],
                                    capture_output=True, text=True, timeout=TIMEOUT)
            if result.returncode == 0:
                return result.stdout
            if result.returncode != NO_PHONE or self.process.poll() is not None or time.monotonic() > end:
                raise AssertionError('phonectl %s: %s' % (' '.join(words), result.stderr))
            time.sleep(0.1)

    def program(self):
        return descendant(self.process.pid, 'kiv')

    def delay(self):
        """For how many seconds the program's interface has had something to do and no processor to do it, so far."""
        try:
            with open('/proc/%d/schedstat' % self.program(), encoding='utf-8') as file:
                return int(file.read().split()[1]) / 1e9
        except (OSError, TypeError, IndexError):
            return 0

    def do(self, *words):
        self.delay_before = self.delay()
        self.counter += 1
        self.wanted = ' '.join((str(self.counter), *words))
        self.current = None
        self.control('file', WANTED, self.wanted)

    def open(self, page):
        self.do('open', page)
        return self.wait(open=True)

    def press(self, button, timeout=TIMEOUT):
        """Presses the button of this name, wherever it is, once it is there."""
        self.do('press', button)
        self.wait(timeout)

    def holds(self, conditions):
        return self.current and all(condition(self.current.get(name)) if callable(condition)
                                    else self.current.get(name) == condition for name, condition in conditions.items())

    def been(self, **conditions):
        """Whether all the conditions hold in one of the states that were not looked at yet."""
        try:
            return self.wait(timeout=0, **conditions) is not None
        except AssertionError:
            return False

    def wait(self, timeout=TIMEOUT, **conditions):
        """Waits until the wanted page is in a state in which all the conditions hold."""
        end = time.monotonic() + timeout
        while True:
            if self.holds(conditions):
                return self.current
            try:
                state = self.states.get(timeout=max(0, end - time.monotonic()))
            except queue.Empty:
                state = None
            if state is None:
                raise AssertionError('%s: waited in vain for %s; %s\n%s' % (self.wanted, conditions, self.current,
                                                                           '\n'.join(self.lines[-20:])))
            if state['wanted'] == self.wanted:
                self.current = state
