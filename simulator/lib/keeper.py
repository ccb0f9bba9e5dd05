# SPDX-License-Identifier: BSD-3-Clause
"""The phone's first process: starts buses, daemons and hardware, answers phonectl, and runs the command."""

import json
import os
import signal
import socket
import subprocess
import sys
import traceback

sys.dont_write_bytecode = True

from gi.repository import GLib

import commands
import control
from phone import Phone


class Connection:
    """One request of a phonectl."""

    def __init__(self, connection, answer):
        self.connection = connection
        self.connection.setblocking(False)
        self.answer = answer
        self.received = b''
        GLib.io_add_watch(connection.fileno(), GLib.PRIORITY_DEFAULT, GLib.IO_IN | GLib.IO_HUP | GLib.IO_ERR,
                          self.on_readable)

    def on_readable(self, *_):
        try:
            part = self.connection.recv(65536)
        except BlockingIOError:
            return True
        except OSError:
            part = b''
        self.received += part
        if part and not self.received.endswith(b'\n') and len(self.received) < control.REQUEST_LIMIT:
            return True
        if self.received.endswith(b'\n'):
            self.reply()
        self.connection.close()
        return False

    def reply(self):
        try:
            words = json.loads(self.received)
            if not isinstance(words, list) or not all(isinstance(word, str) for word in words):
                raise ValueError
        except ValueError:
            return
        try:
            status, output, error = self.answer(words)
        except Exception as problem:  # the simulator's own fault; nobody shall wait for an answer
            traceback.print_exc()
            status, output, error = 1, '', repr(problem)
        self.connection.settimeout(2)
        try:
            self.connection.sendall(json.dumps({'status': status, 'output': output, 'error': error}).encode() + b'\n')
        except OSError:
            pass  # the asker has gone


class Keeper:
    def __init__(self, settings):
        self.settings = settings
        self.commands = commands.load()
        self.phone = Phone(settings['identifier'], settings['folder'], settings['daemons'], settings['pactl'],
                           settings['uid'])
        self.loop = GLib.MainLoop()
        self.status = 0
        self.listener = socket.socket(fileno=settings['listener'])
        GLib.io_add_watch(self.listener.fileno(), GLib.PRIORITY_DEFAULT, GLib.IO_IN, self.on_connection)

    def on_connection(self, *_):
        connection, _ = self.listener.accept()
        Connection(connection, lambda words: commands.run(self.commands, self.phone, words))
        return True

    def run(self, command):
        # Before the command can have told anybody that it runs.
        for number in signal.SIGHUP, signal.SIGINT, signal.SIGTERM, signal.SIGUSR1, signal.SIGUSR2:
            GLib.unix_signal_add(GLib.PRIORITY_HIGH, number, self.forward, number)
        uid = self.settings['uid']
        identity = {} if uid is None else {'user': uid, 'group': uid, 'extra_groups': []}
        try:
            self.process = subprocess.Popen(command, env=self.phone.environment, **identity)
        except OSError as error:
            print('start: %s: %s' % (command[0], error.strerror), file=sys.stderr)
            return 127 if isinstance(error, FileNotFoundError) else 126
        GLib.child_watch_add(GLib.PRIORITY_DEFAULT, self.process.pid, self.on_ended)
        self.loop.run()
        return self.status

    def forward(self, number):
        try:
            os.kill(self.process.pid, number)
        except ProcessLookupError:
            pass
        return True

    def on_ended(self, _, status):
        self.status = 128 + os.WTERMSIG(status) if os.WIFSIGNALED(status) else os.WEXITSTATUS(status)
        self.loop.quit()


def main():
    settings = json.loads(sys.argv[1])
    for descriptor in settings['listener'], settings['directory']:
        os.set_inheritable(descriptor, False)
    if settings['passwd']:
        with open('/etc/passwd', 'w', encoding='utf-8', errors='surrogateescape') as file:
            file.write(settings['passwd'])
    for path in os.environ['XDG_RUNTIME_DIR'], os.environ['HOME']:
        os.chmod(path, 0o700)
        if settings['uid'] is not None:
            os.chown(path, settings['uid'], settings['uid'])
    try:
        return Keeper(settings).run(sys.argv[2:])
    except commands.Failure as error:
        print('start: %s' % error, file=sys.stderr)
        return 1
    finally:
        # The directory is the machine's and not seen in here, but the descriptor still leads to it.
        try:
            os.unlink(settings['identifier'], dir_fd=settings['directory'])
        except OSError:
            pass


if __name__ == '__main__':
    sys.exit(main())
