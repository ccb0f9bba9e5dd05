# SPDX-License-Identifier: BSD-3-Clause
"""What the tests of the installed program share. They run inside simulator/enter, with the installed tree laid over the
root, so that all paths here are the phone's and may be changed at will."""

import os
import queue
import re
import shutil
import signal
import stat
import subprocess
import tempfile
import threading
import time

KIV = '/usr/bin/kiv'
DATA = '/usr/share/kiv'
MAIN_PAGE = DATA + '/main.qml'
CATALOGUES = '/usr/share/translations'
SWITCH = '/sys/class/power_supply/usb/charger_disable'

IS_ROOT = os.geteuid() == 0
ORDINARY_ID = 54321
# Set by ctest
LRELEASE = os.environ.get('KIV_LRELEASE', 'lrelease')
LIBRARY = os.environ.get('KIV_LIBRARY', '/usr/lib/x86_64-linux-gnu/kiv/libkiv-application.so')
SANITIZED = os.environ.get('KIV_SANITIZED') == '1'

TIMEOUT = 60


def write(path, content='', mode=None):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, 'wb') as file:
        file.write(content if isinstance(content, bytes) else content.encode())
    if mode is not None:
        os.chmod(path, mode)
    return path


def change(path, content):
    """Writes a file that a running program reads: it finds the old content or the new one, never half of it."""
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path + '~', 'wb') as file:
        file.write(content.encode())
    os.rename(path + '~', path)


def read(path):
    with open(path, 'rb') as file:
        return file.read()


def mode_of(path):
    return stat.S_IMODE(os.stat(path).st_mode)


def remove(path):
    if os.path.isdir(path) and not os.path.islink(path):
        shutil.rmtree(path)
    elif os.path.lexists(path):
        os.unlink(path)


def environment(**changes):
    """This process's environment without a language, with a screen that is not there."""
    result = {name: value for name, value in os.environ.items()
              if name not in ('LANG', 'LANGUAGE', 'QT_LOGGING_RULES', 'DISPLAY', 'WAYLAND_DISPLAY')
              and not name.startswith('LC_')}
    result.update(QT_QPA_PLATFORM='offscreen', QT_QUICK_BACKEND='software', LC_ALL='C')
    for name, value in changes.items():
        if value is None:
            result.pop(name, None)
        else:
            result[name] = value
    return result


def run(*arguments, program=KIV, prefix=(), **keywords):
    keywords.setdefault('env', environment())
    return subprocess.run([*prefix, program, *arguments], capture_output=True, text=True, timeout=TIMEOUT,
                          stdin=subprocess.DEVNULL, **keywords)


def page(body, imports=''):
    """A main page. say(text) in it writes a line to standard error."""
    return write(MAIN_PAGE, '''import QtQuick 2.15
import QtQuick.Window 2.15
import Kiv 1.0
%s
Item {
    id: root
    function say(text) { console.warn("page: " + text) }
%s
}
''' % (imports, body))


# Once the event loop runs: sees the window, and stays.
REPORT_WHEN_RUNNING = 'Timer { interval: 1; running: true; onTriggered: { %s root.say("running") } }'


class App:
    """A running kiv whose standard error is read all the time."""

    def __init__(self, *arguments, program=KIV, prefix=(), **keywords):
        keywords.setdefault('env', environment())
        self.process = subprocess.Popen([*prefix, program, *arguments], stdin=subprocess.DEVNULL,
                                        stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True, errors='replace',
                                        **keywords)
        self.pid = self.process.pid
        self.lines = []
        self._queue = queue.Queue()
        self._reader = threading.Thread(target=self._read, daemon=True)
        self._reader.start()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait()
        self._reader.join()
        self.process.stderr.close()

    def _read(self):
        for line in self.process.stderr:
            self._queue.put(line.rstrip('\n'))
        self._queue.put(None)

    def expect(self, pattern, timeout=TIMEOUT):
        """Waits for a line that has the pattern, and returns the match."""
        end = time.monotonic() + timeout
        while True:
            try:
                line = self._queue.get(timeout=max(0, end - time.monotonic()))
            except queue.Empty:
                line = None
            if line is None:
                raise AssertionError('no line has "%s":\n%s' % (pattern, '\n'.join(self.lines)))
            self.lines.append(line)
            match = re.search(pattern, line)
            if match:
                return match

    def expect_running(self):
        return self.expect('page: running$')

    def wait(self, timeout=TIMEOUT):
        """Waits for the end and returns the status; the rest of the output is in lines then."""
        status = self.process.wait(timeout)
        self._reader.join()
        while True:
            line = self._queue.get()
            if line is None:
                return status
            self.lines.append(line)

    def is_running(self, after=0.0):
        try:
            self.process.wait(after) if after else self.process.poll()
        except subprocess.TimeoutExpired:
            pass
        return self.process.returncode is None

    def signal(self, number=signal.SIGTERM):
        self.process.send_signal(number)


class SystemBus:
    """A dbus-daemon where everybody looks for the system bus."""

    SOCKET = '/run/dbus/system_bus_socket'

    def __init__(self):
        configuration = write('/run/dbus/test.conf', '''<!DOCTYPE busconfig PUBLIC
 "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN" "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <listen>unix:path=%s</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow user="*"/>
    <allow own="*"/>
    <allow send_destination="*"/>
    <allow receive_sender="*"/>
  </policy>
</busconfig>
''' % self.SOCKET)
        self.process = subprocess.Popen(['dbus-daemon', '--nofork', '--nopidfile', '--config-file=' + configuration,
                                         '--print-address'], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                        stderr=subprocess.DEVNULL, text=True)
        # The socket is there a moment before anybody listens at it.
        with self.process.stdout as output:
            if not output.readline():
                raise AssertionError('no system bus')

    def stop(self):
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait()
        remove(self.SOCKET)


def wait_until(condition, timeout=TIMEOUT):
    end = time.monotonic() + timeout
    while time.monotonic() < end:
        result = condition()
        if result:
            return result
        time.sleep(0.02)
    raise AssertionError('waited in vain')


def catalogue(name, **texts):
    """Compiles a catalogue of the texts; kiv_ap_name stands for the id kiv-ap-name."""
    messages = ''.join('<message id="%s"><source></source><translation>%s</translation></message>'
                       % (key.replace('_', '-'), value) for key, value in texts.items())
    with tempfile.TemporaryDirectory() as folder:
        source = write(folder + '/source.ts', '<?xml version="1.0" encoding="utf-8"?><!DOCTYPE TS>'
                       '<TS version="2.1" language="en"><context><name></name>%s</context></TS>' % messages)
        os.makedirs(CATALOGUES, exist_ok=True)
        subprocess.run([LRELEASE, '-silent', '-idbased', source, '-qm', CATALOGUES + '/' + name], check=True,
                       stdout=subprocess.DEVNULL)
