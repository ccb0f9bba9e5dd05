# SPDX-License-Identifier: BSD-3-Clause
"""An operator at a simulated phone: fingers on its touch panel and its other parts in his hands by way of phonectl,
eyes on its screen. The installed program runs unchanged; its first page also says what is to be seen where."""

import itertools
import json
import os
import re
import shutil
import subprocess
import sys
import tempfile
import threading
import time

HERE = os.path.dirname(os.path.abspath(__file__))
SIMULATOR = os.path.join(os.path.dirname(HERE), 'simulator')
sys.path.insert(0, os.path.join(SIMULATOR, 'lib'))

import control
from display import Display

STAGE = os.environ['KIV_STAGE']
# A folder for a picture of every step, for people who want to look at them.
PICTURES = os.environ.get('KIV_PICTURES')
SIZE = (540, 960)
TIMEOUT = 90
RESULTS = 'com.orvel.kiv.results: '
STATE = 'state: '
ENDED = 'kiv-ended: '
DONE = 'shell-done: '
# How long something must stand still on the screen before a finger goes for it.
STILL = 0.35
# How long a page that was drawn along may take to follow, before it is drawn once more.
MOVED = 3
SERIAL = itertools.count()

PASSED, FAILED = '01', '02'

# The whole interface, and what an operator sees of it: where buttons are, what he is asked, how the page stands. He
# knows the answers from the hardware; where the simulated phone has none, from here.
MAIN = '''import QtQuick 2.15
Shell {
    id: shell
    property string said
    property var seen
    function onScreen(item, x, y) {
        for (var view = item.parent; view; view = view.parent) {
            if (view.contentY === undefined)
                continue
            var at = view.mapFromItem(null, x, y)
            if (at.y < 0 || at.y >= view.height) {
                var place = view.mapToItem(null, 0, 0)
                return [place.x, place.y, view.width, view.height]
            }
        }
        return null
    }
    function look(item) {
        if (!item.visible)
            return
        if (item.clicked !== undefined && item.down !== undefined && item.width > 0) {
            var middle = item.mapToItem(null, item.width / 2, item.height / 2)
            seen.buttons[item.objectName || item.text] = {
                at: [Math.round(middle.x), Math.round(middle.y)], enabled: item.enabled,
                hidden: onScreen(item, middle.x, middle.y) }
        } else if (item.questions !== undefined && item.answered !== undefined) {
            var question = item.questions[item.answered]
            seen.ask = { question: question.name, answer: question.good !== false ? "yes" : "no" }
        } else if (item.expected !== undefined && item.rounds !== undefined) {
            seen.ask = { question: item.question, answer: "answer-" + item.expected, ready: item.ready,
                         round: item.round, mistakes: item.mistakes.length }
        } else if (item.sides !== undefined && item.beeped !== undefined) {
            seen.ask = { question: "side", round: item.round, ready: item.beeped }
        } else if (item.objectName === "qr") {
            seen.code = item.text
        } else if (item.objectName === "endWord") {
            seen.end = item.text
        }
        for (var i = 0; i < item.children.length; ++i)
            look(item.children[i])
    }
    function describe() {
        var page = screen && screen.page ? screen.page : null
        var sheet = screen && screen.sheet && screen.sheet.isOpen ? screen.sheet : null
        var covered = busy || Array.prototype.some.call(shell.children, function(child) {
            return child.item && child.item.objectName === "flash" && child.item.visible
        })
        seen = { screen: String(screen).replace(/_QML.*/, ""), covered: covered, buttons: {}, ask: null,
                 test: flow.current ? flow.current.name : "", started: screen && screen.started ? screen.started : 0,
                 sheet: sheet ? sheet.title : "" }
        if (page) {
            ["isOpen", "missing", "verdict", "reason", "trouble", "evidence", "fullScreen", "phase", "picture", "most",
             "remaining", "prepared", "heard"].forEach(function(name) {
                if (page[name] !== undefined)
                    seen[name] = page[name]
            })
            // Once the sound server has answered, what it is asked then covers the screen.
            seen.looking = page.missing === "" && (page.asked === "look" || page.prepared === false)
            seen.values = page.measurements.map(function(reading) { return reading.valueText })
            if (page.touched && page.columns)
                seen.left = Array.from({ length: page.total }, function(_, i) { return i })
                                 .filter(function(i) { return !page.touched[i] })
        }
        if (screen && screen.runIn && screen.over !== undefined)
            seen.runIn = { running: screen.runIn.running, loop: screen.runIn.loop, end: screen.runIn.end }
        if (!covered) {
            var codeSheet = screen ? screen.children[screen.children.length - 1] : null
            if (sheet)
                look(sheet)
            else if (codeSheet && codeSheet.objectName === "codeSheet" && codeSheet.visible)
                look(codeSheet)
            else if (screen)
                look(screen)
        }
        return JSON.stringify(seen)
    }
    function tell() {
        var text = shell.describe()
        if (text !== shell.said)
            console.warn("state: " + text)
        shell.said = text
    }
    // What may be over before the next look is told at once.
    readonly property var shownPage: screen && screen.page ? screen.page : null
    readonly property string moment: shownPage ? [screen.started, shownPage.isOpen, shownPage.verdict,
                                                  shownPage.phase, shownPage.picture].join() : ""
    onMomentChanged: Qt.callLater(tell)
    Timer {
        interval: 60
        running: true
        repeat: true
        onTriggered: shell.tell()
    }
}
'''


class Phone:
    """A simulated phone with a screen. It is there before Kiv starts on it, and after Kiv has ended."""

    def __init__(self, name='full', files=None, opengl=False):
        self.identifier = 'operator-%d-%d' % (os.getpid(), next(SERIAL))
        self.folder = tempfile.mkdtemp(prefix='kiv-operator-')
        self.display = None
        self.lines = []
        self.news = threading.Condition()
        self.state = None
        # All states, in their order: an operator who was held up looks through what he has missed.
        self.history = []
        self.picture_count = 0
        self.ended = False
        try:
            for path, text in {'/usr/share/kiv/main.qml': MAIN, **(files or {})}.items():
                os.makedirs(os.path.dirname(self.folder + path), exist_ok=True)
                with open(self.folder + path, 'w', encoding='utf-8') as file:
                    file.write(text)
            self.display = Display(SIZE)
            environment = {key: value for key, value in os.environ.items()
                           if not key.startswith('LC_') and key not in ('LANG', 'LANGUAGE', 'QT_SCALE_FACTOR')}
            environment.update(self.display.environment, QT_QPA_PLATFORM='xcb',
                               QT_QUICK_BACKEND='' if opengl else 'software',
                               LC_ALL='C.UTF-8', QT_LOGGING_RULES='default.debug=false',
                               QT_QPA_GENERIC_PLUGINS='evdevtouch:/dev/input/event2')
            self.process = subprocess.Popen(
                [SIMULATOR + '/start', '--phone', name, '--phone-id', self.identifier, '--install', STAGE, '--layer',
                 self.folder, '--absent', '/usr/share/kiv/main.qmlc', '--', '/bin/sh'], env=environment,
                stdin=subprocess.PIPE, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True, errors='replace')
        except BaseException:
            self.close_display()
            raise
        self.reader = threading.Thread(target=self.read, daemon=True)
        self.reader.start()
        # The phone answers once its shell does.
        self.shell('mkdir "$HOME/scratch"')

    def close_display(self):
        if self.display:
            self.display.close()
        shutil.rmtree(self.folder)

    def close(self):
        self.process.stdin.close()
        try:
            self.process.wait(TIMEOUT)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
        self.reader.join()
        self.process.stderr.close()
        self.close_display()

    # What the phone says

    def read(self):
        for line in self.process.stderr:
            line = line.rstrip('\n')
            with self.news:
                place = line.find(STATE)
                if place >= 0:
                    self.state = json.loads(line[place + len(STATE):])
                    self.history.append(self.state)
                else:
                    self.lines.append(line)
                self.news.notify_all()
        with self.news:
            self.ended = True
            self.news.notify_all()

    def until(self, condition, what, timeout=TIMEOUT):
        """Waits until the condition holds of what the phone has said, and returns its value."""
        end = time.monotonic() + timeout
        with self.news:
            while True:
                value = condition()
                if value:
                    return value
                left = end - time.monotonic()
                if left <= 0 or self.ended:
                    self.picture('in-vain')
                    raise AssertionError('waited in vain for %s; %s\n%s' % (what, json.dumps(self.state, indent=1),
                                                                           '\n'.join(self.lines[-30:])))
                self.news.wait(min(left, 0.05))

    def find(self, prefix, start=0):
        return [line[line.index(prefix) + len(prefix):] for line in self.lines[start:] if prefix in line]

    def reports(self, start=0):
        return [json.loads(text) for text in self.find(RESULTS, start)]

    # The shell on the phone

    def tell_shell(self, command):
        self.process.stdin.write(command + '\n')
        self.process.stdin.flush()

    def shell(self, command):
        """Runs a command on the phone and returns what it wrote."""
        start = len(self.lines)
        mark = '%s%d' % (DONE, next(SERIAL))
        self.tell_shell('{ %s; } 2>&1 | sed "s/^/shell-said: /" >&2; echo "%s" >&2' % (command, mark))
        self.until(lambda: any(mark in line for line in self.lines[start:]), command)
        return self.find('shell-said: ', start)

    def start(self):
        self.state = None
        self.tell_shell('TMPDIR="$HOME/scratch" /usr/bin/kiv </dev/null & kiv=$!')
        self.until(lambda: self.state, 'the first screen')

    def terminate(self):
        """Ends Kiv by a signal; returns its exit status."""
        start = len(self.lines)
        self.tell_shell('kill -TERM $kiv; wait $kiv; echo "%s$?" >&2' % ENDED)
        return int(self.until(lambda: self.find(ENDED, start), 'the end of Kiv')[0])

    # Hands

    def control(self, *words):
        status, output, error = control.request(os.path.join(control.directory(), self.identifier),
                                                [str(word) for word in words], TIMEOUT)
        if status != 0:
            raise AssertionError('phonectl %s: %s' % (' '.join(map(str, words)), error))
        return output

    def see(self, condition, what, timeout=TIMEOUT):
        """Waits until the condition holds of what is to be seen; returns that."""
        return self.until(lambda: self.state and condition(self.state) and self.state, what, timeout)

    def wait(self, timeout=TIMEOUT, **conditions):
        """Waits until the screen is such that all the conditions hold; returns what is to be seen then."""
        return self.see(lambda state: all(
            condition(state.get(name)) if callable(condition) else state.get(name) == condition
            for name, condition in conditions.items()), conditions, timeout)

    def been(self, start, condition, what):
        """Waits until the condition holds of one of the states from that place on, though it be past; returns the first
        such place in the history."""
        return self.until(lambda: [at for at in range(start, len(self.history)) if condition(self.history[at])],
                          what)[0]

    def find_button(self, name, unless=lambda state: False):
        """Where the button is, once it has come to rest and can be pressed; None if the other holds before that."""
        def place(state):
            button = None if unless(state) else state['buttons'].get(name)
            return button if button and button['enabled'] else None
        last = time.monotonic() + TIMEOUT
        while True:
            button = place(self.see(lambda state: unless(state) or place(state), 'the button ' + name))
            if not button:
                return None
            if time.monotonic() > last:
                raise AssertionError('the button %s does not come to rest: %s' % (name, button))
            if button['hidden']:
                self.scroll(button)
                continue
            end = time.monotonic() + STILL
            with self.news:
                while place(self.state) == button and time.monotonic() < end:
                    self.news.wait(max(0.001, end - time.monotonic()))
                if place(self.state) == button:
                    return button['at']

    def scroll(self, button):
        """Draws the page along, at its margin, where there are no buttons."""
        left, top, _, height = button['hidden']
        before = self.state
        x, middle = int(left) + 4, int(top + height / 2)
        far = int(max(60, min(height * 0.4, abs(button['at'][1] - middle))))
        far = -far if button['at'][1] > middle else far
        for step in range(11):
            self.control('finger', 'put', 0, x, middle - far // 2 + far * min(step, 8) // 8)
            time.sleep(0.02)  # the pace of a hand; a throw would slide on
        self.control('finger', 'lift')
        # A busy phone has seen where the finger came down and where it was lifted, and may have taken that for a tap.
        end = time.monotonic() + MOVED
        with self.news:
            while self.state is before and time.monotonic() < end:
                self.news.wait(max(0.001, end - time.monotonic()))

    def tap(self, name):
        self.control('finger', 'tap', *self.find_button(name))

    def hold(self, name, until):
        """Holds a button down until the screen has changed so, if it does not do so by itself."""
        place = self.find_button(name, until)
        if not place:
            return
        self.control('finger', 'put', 0, *place)
        try:
            self.see(until, 'what holding %s does' % name)
        finally:
            self.control('finger', 'lift')

    def tap_screen(self):
        self.control('finger', 'tap', SIZE[0] // 2, SIZE[1] * 3 // 4)

    # Eyes

    def picture(self, name, path=None):
        if path is None:
            if not PICTURES:
                return
            self.picture_count += 1
            path = os.path.join(PICTURES, '%s-%02d-%s.png' % (self.identifier, self.picture_count, name))
        self.display.screenshot(path)

    def pixels(self, width, height):
        """The screen's colours, row by row, as if it had so many pixels."""
        path = os.path.join(self.folder, 'pixels.png')
        self.display.screenshot(path)
        pixels = subprocess.run(['convert', path, '-filter', 'box', '-resize', '%dx%d!' % (width, height), '-depth',
                                 '8', 'rgb:-'], capture_output=True, check=True).stdout
        return [pixels[at:at + 3] for at in range(0, len(pixels), 3)]

    def count_spots(self):
        """How many spots of one colour are on the screen, on ground of another."""
        width, height = SIZE[0] // 2, SIZE[1] // 2
        colours = self.pixels(width, height)
        ground = max(set(colours), key=colours.count)
        spots = {at for at, colour in enumerate(colours) if sum(abs(a - b) for a, b in zip(colour, ground)) > 250}
        count = 0
        while spots:
            count += 1
            edge = [spots.pop()]
            while edge:
                at = edge.pop()
                for neighbour in at - 1, at + 1, at - width, at + width:
                    if neighbour in spots:
                        spots.remove(neighbour)
                        edge.append(neighbour)
        return count

    def scan(self):
        """What a scanner reads from the QR code on the screen, once it is drawn."""
        path = os.path.join(self.folder, 'code.png')

        def text():
            self.picture('', path)
            return subprocess.run(['zbarimg', '--quiet', '--raw', '-Sdisable', '-Sqrcode.enable', path],
                                  capture_output=True, text=True).stdout.strip()
        return dict(line.split(' ', 1) for line in self.until(text, 'a code on the screen').split('\n'))
