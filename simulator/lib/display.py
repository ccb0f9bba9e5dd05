# SPDX-License-Identifier: BSD-3-Clause
"""The simulated phone's screen: an X server of the phone's own, with a window manager made for phones."""

import ctypes
import os
import secrets
import shutil
import signal
import socket
import struct
import subprocess
import tempfile
import time

PR_SET_PDEATHSIG = 1
START_TIMEOUT_S = 60
FIRST_VNC_PORT = 5900

libc = ctypes.CDLL(None)


class NoDisplay(Exception):
    pass


def end_with_parent():
    libc.prctl(PR_SET_PDEATHSIG, signal.SIGTERM, 0, 0, 0)


class Display:
    """A screen of width x height; nested shows it in a window on the user's own display."""

    def __init__(self, size, nested=False, title='Phone'):
        self.processes = []
        self.folder = tempfile.mkdtemp(prefix='kiv-display-')
        self.size = size
        try:
            self.start_server(nested, title)
            self.start_window_manager()
        except BaseException:
            self.close()
            raise

    def launch(self, command, **keywords):
        """Starts a helper that a Ctrl-C in the terminal does not reach, but that does not outlive this process."""
        log = open(os.path.join(self.folder, os.path.basename(command[0]) + '.log'), 'w')
        with log:
            try:
                process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stderr=log,
                                           stdout=keywords.pop('stdout', log), start_new_session=True,
                                           preexec_fn=end_with_parent, **keywords)
            except OSError as error:
                raise NoDisplay('%s: %s' % (command[0], error.strerror))
        self.processes.append(process)
        return process

    def log(self, program):
        try:
            with open(os.path.join(self.folder, program + '.log'), errors='replace') as file:
                return ' '.join(file.read().split())
        except OSError:
            return ''

    def start_server(self, nested, title):
        authority = os.path.join(self.folder, 'authority')
        with open(authority, 'wb') as file:
            os.fchmod(file.fileno(), 0o600)
            cookie = secrets.token_bytes(16)
            # One entry for any address and display: family, address, display, name, data (see Xauth).
            file.write(struct.pack('>HHH', 0xffff, 0, 0))
            for field in b'MIT-MAGIC-COOKIE-1', cookie:
                file.write(struct.pack('>H', len(field)) + field)
        reading, writing = os.pipe()
        size = '%dx%d' % self.size
        command = ['Xephyr', '-screen', size, '-title', title, '-no-host-grab'] if nested else \
            ['Xvfb', '-screen', '0', size + 'x24']
        command += ['-displayfd', str(writing), '-auth', authority, '-nolisten', 'tcp', '-noreset']
        try:
            self.launch(command, pass_fds=[writing])
        finally:
            os.close(writing)
        # The server writes its number when it is ready, or closes the pipe by ending.
        with os.fdopen(reading) as file:
            number = file.readline().strip()
        if not number:
            raise NoDisplay('%s does not start: %s' % (command[0], self.log(command[0])))
        self.name = ':' + number
        self.environment = {'DISPLAY': self.name, 'XAUTHORITY': authority}

    def start_window_manager(self):
        environment = dict(os.environ, **self.environment)
        manager = self.launch(['matchbox-window-manager', '-use_titlebar', 'no', '-use_desktop_mode', 'plain'],
                              env=environment)
        end = time.monotonic() + START_TIMEOUT_S
        while 'window id' not in subprocess.run(['xprop', '-root', '_NET_SUPPORTING_WM_CHECK'], env=environment,
                                                capture_output=True, text=True).stdout:
            if manager.poll() is not None or time.monotonic() > end:
                raise NoDisplay('the window manager does not start: %s' % self.log('matchbox-window-manager'))
            time.sleep(0.01)

    def has_opengl(self):
        return 'GLX' in subprocess.run(['xdpyinfo', '-queryExtensions'], env=dict(os.environ, **self.environment),
                                       capture_output=True, text=True).stdout

    def serve_vnc(self):
        """Serves the screen on the loopback address; returns the port."""
        port = FIRST_VNC_PORT
        while True:
            with socket.socket() as probe:
                try:
                    probe.bind(('127.0.0.1', port))
                    break
                except OSError:
                    port += 1
        server = self.launch(['x11vnc', '-display', self.name, '-auth', self.environment['XAUTHORITY'], '-rfbport',
                              str(port), '-localhost', '-no6', '-forever', '-shared', '-nopw', '-quiet'],
                             stdout=subprocess.PIPE, text=True)
        for line in server.stdout:
            if line.startswith('PORT='):
                return int(line[len('PORT='):])
        raise NoDisplay('x11vnc does not start: %s' % self.log('x11vnc'))

    def screenshot(self, path):
        result = subprocess.run(['import', '-window', 'root', 'png:' + path],
                                env=dict(os.environ, **self.environment), capture_output=True, text=True)
        if result.returncode:
            raise NoDisplay('import: %s' % result.stderr.strip())

    def close(self):
        for process in reversed(self.processes):
            process.terminate()
        for process in self.processes:
            try:
                process.wait(5)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()
            if process.stdout:
                process.stdout.close()
        shutil.rmtree(self.folder, ignore_errors=True)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()
