# SPDX-License-Identifier: BSD-3-Clause
"""What the tests of the pages on the simulated phone share: a phone that shows one page after the other."""

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

# Shows the page that the file names, and says what becomes of it.
MAIN = '''import QtQuick 2.15
Shell {
    id: shell
    startPage: "home"
    property string wanted
    property string said
    property real last: Date.now()
    property real stall: 0
    function look() {
        var request = new XMLHttpRequest()
        request.onreadystatechange = function() {
            var text = request.responseText.trim()
            if (request.readyState !== XMLHttpRequest.DONE || text === "" || text === shell.wanted)
                return
            shell.wanted = text
            shell.startPage = text.split(" ")[1]
            shell.flow.clear()
            shell.begin()
            shell.stall = 0
        }
        request.open("GET", "file://%s")
        request.send()
    }
    Timer {
        interval: 100
        running: true
        repeat: true
        onTriggered: {
            shell.look()
            // How long the interface stood still at most, in whole seconds.
            shell.stall = Math.max(shell.stall, Math.floor((Date.now() - shell.last) / 1000))
            shell.last = Date.now()
            var page = shell.screen ? shell.screen.page : null
            var text = JSON.stringify({ wanted: shell.wanted, open: !!page && page.isOpen,
                                        missing: page ? page.missing : "", verdict: page ? page.verdict : "",
                                        reason: page ? page.reason : "", left: page ? page.remaining : 0,
                                        trouble: page ? page.trouble : "", stall: shell.stall,
                                        passable: !!page && shell.screen.passUnlocked,
                                        due: page && page.phase !== undefined ? page.phase : "",
                                        values: page ? page.measurements.map(function(m) { return m.valueText }) : [] })
            if (text !== said)
                console.warn("state: " + text)
            said = text
        }
    }
}
''' % WANTED


class Phone:
    """A simulated phone that shows one page after the other. Further options are those of simulator/start."""

    def __init__(self, name, *options):
        self.identifier = 'pages-%d-%s' % (os.getpid(), name)
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
             self.folder, '--absent', '/usr/share/kiv/main.qmlc', *options, '--', '/usr/bin/kiv'], env=environment,
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True, errors='replace')
        self.lines = []
        self.states = queue.Queue()
        self.counter = 0
        threading.Thread(target=self.read, daemon=True).start()
        # Before that, phonectl may not find it.
        if self.states.get(timeout=TIMEOUT) is None:
            self.end()
            raise AssertionError('the phone did not start:\n' + '\n'.join(self.lines))

    def read(self):
        for line in self.process.stderr:
            self.lines.append(line.rstrip())
            match = re.search('state: (.*)', line)
            if match:
                self.states.put(json.loads(match.group(1)))
        self.states.put(None)

    def end(self):
        self.process.terminate()
        self.process.wait()
        shutil.rmtree(self.folder)

    def control(self, *words):
        result = subprocess.run([SIMULATOR + '/phonectl', '--phone-id', self.identifier, *words], capture_output=True,
                                text=True, timeout=TIMEOUT)
        if result.returncode != 0:
            raise AssertionError('phonectl %s: %s' % (' '.join(words), result.stderr))
        return result.stdout

    def open(self, page):
        self.counter += 1
        self.wanted = '%d %s' % (self.counter, page)
        self.current = None
        self.control('file', WANTED, self.wanted)
        return self.wait(open=True)

    def wait(self, **conditions):
        """Waits until the wanted page is in a state in which all the conditions hold."""
        end = time.monotonic() + TIMEOUT
        while True:
            if self.current and all(condition(self.current[name]) if callable(condition)
                                    else self.current[name] == condition for name, condition in conditions.items()):
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


PASSED = '01'
FAILED = '02'
