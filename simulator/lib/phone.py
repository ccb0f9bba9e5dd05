# SPDX-License-Identifier: BSD-3-Clause
"""The running phone, as verbs and simulated hardware see it."""

import glob
import json
import os
import signal
import subprocess
import sys
import time

import dbus
import dbus.bus
from gi.repository import GLib

from commands import Failure, load_module
from phonefolder import SIMULATOR

SYSTEM_BUS_SOCKET = '/run/dbus/system_bus_socket'
RUNTIME_DIRECTORY = '/run/kiv-phone'
POWER_SUPPLIES = '/sys/class/power_supply'

MOCK = 'org.freedesktop.DBus.Mock'
# A simulated daemon answers at once, if the machine lets it; one that does not is frozen or stuck.
CALL_TIMEOUT_S = 20
START_TIMEOUT_S = 60

# The bus lets everybody do everything, and starts nothing by itself: a phone's daemons are there or are not.
BUS_CONFIGURATION = '''<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>%s</type>
  <listen>unix:path=%s</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow user="*"/>
    <allow own="*"/>
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
  </policy>
</busconfig>
'''


def start_bus(kind, socket):
    """Starts a dbus-daemon and returns its address once it listens."""
    configuration = os.path.join(RUNTIME_DIRECTORY, '%s-bus.conf' % kind)
    with open(configuration, 'w') as file:
        file.write(BUS_CONFIGURATION % (kind, socket))
    reading, writing = os.pipe()
    log = os.path.join(RUNTIME_DIRECTORY, '%s-bus.log' % kind)
    try:
        with open(log, 'w') as output:
            subprocess.Popen(['dbus-daemon', '--nofork', '--nopidfile', '--config-file=' + configuration,
                              '--print-address=%d' % writing], stdin=subprocess.DEVNULL, stdout=output, stderr=output,
                             pass_fds=[writing], start_new_session=True)
    except OSError as error:
        raise Failure('dbus-daemon does not start: %s' % error.strerror)
    finally:
        os.close(writing)
    with os.fdopen(reading) as file:
        address = file.readline().strip()
    if not address:
        with open(log) as output:
            raise Failure('the %s bus did not start: %s' % (kind, output.read().strip()))
    return address


class Daemon:
    """A simulated daemon: a process of python-dbusmock with a template of simulator/daemons."""

    def __init__(self, phone, name, settings):
        self.phone = phone
        self.name = name
        self.settings = dict(settings)
        self.process = None
        self.frozen = False
        path = os.path.join(SIMULATOR, 'daemons', name + '.py')
        if not os.path.exists(path):
            raise Failure('daemons.ini: no simulated daemon is named %s' % name)
        self.template = path
        self.module = load_module(path)

    @property
    def wanted(self):
        """Whether the daemon runs from the start."""
        return self.settings.get('running', 'true').lower() not in ('false', 'no', '0')

    def state(self):
        if self.process is None or self.process.poll() is not None:
            return 'stopped'
        return 'frozen' if self.frozen else 'running'

    def launch(self):
        if self.state() != 'stopped':
            raise Failure('%s is running already' % self.name)
        kind = '--system' if self.module.SYSTEM_BUS else '--session'
        self.frozen = False
        self.process = subprocess.Popen(
            [sys.executable, '-Es', '-m', 'dbusmock', kind, '--template', self.template, '--parameters',
             json.dumps(self.settings), '--logfile', os.path.join(RUNTIME_DIRECTORY, self.name + '.log')],
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, start_new_session=True)

    def wait_until_ready(self):
        bus = self.bus()
        end = time.monotonic() + START_TIMEOUT_S
        failure = Failure('the simulated %s does not start' % self.name)
        while not bus.name_has_owner(self.module.BUS_NAME):
            if self.process.poll() is not None or time.monotonic() > end:
                raise failure
            time.sleep(0.005)
        # It has its name before it has set itself up, and answers only after that.
        try:
            bus.call_blocking(self.module.BUS_NAME, '/', 'org.freedesktop.DBus.Peer', 'Ping', '', (),
                              timeout=START_TIMEOUT_S)
        except dbus.DBusException:
            raise failure

    def start(self):
        self.launch()
        self.wait_until_ready()

    def end(self, number):
        """Ends the daemon with the signal; it is gone from the bus afterwards."""
        self.signal(number)
        self.process.send_signal(signal.SIGCONT)
        try:
            self.process.wait(CALL_TIMEOUT_S)
        except subprocess.TimeoutExpired:
            raise Failure('%s does not end' % self.name)
        bus = self.bus()
        end = time.monotonic() + CALL_TIMEOUT_S
        while bus.name_has_owner(self.module.BUS_NAME) and time.monotonic() < end:
            time.sleep(0.005)

    def signal(self, number):
        if self.state() == 'stopped':
            raise Failure('%s is not running' % self.name)
        self.process.send_signal(number)

    def bus(self):
        return self.phone.system_bus if self.module.SYSTEM_BUS else self.phone.session_bus

    def call(self, method, *arguments, path=None, interface=MOCK):
        """Calls a method of the daemon, by default one that steers it."""
        if self.state() != 'running':
            raise Failure('%s is %s' % (self.name, self.state()))
        try:
            proxy = self.bus().get_object(self.module.BUS_NAME, path or self.module.MAIN_OBJ, introspect=False)
            return proxy.get_dbus_method(method, interface)(*arguments, timeout=CALL_TIMEOUT_S)
        except dbus.DBusException as error:
            raise Failure('%s: %s' % (self.name, error.get_dbus_message()))

    def emit(self, interface, signal_name, signature='', arguments=(), path=None):
        self.call('EmitSignal', interface, signal_name, signature, dbus.Array(arguments, signature='v'), path=path)


class Phone:
    def __init__(self, identifier, folder, daemons, pactl=None, uid=None):
        self.identifier = identifier
        self.folder = folder
        self.pactl = pactl  # a descriptor of this machine's
        self.uid = uid  # the command's; None if it is the caller's
        self.environment = dict(os.environ)  # of the command; hardware may add to it
        os.makedirs(os.path.dirname(SYSTEM_BUS_SOCKET), exist_ok=True)
        start_bus('system', SYSTEM_BUS_SOCKET)
        session = start_bus('session', os.path.join(RUNTIME_DIRECTORY, 'bus'))
        os.environ['DBUS_SESSION_BUS_ADDRESS'] = self.environment['DBUS_SESSION_BUS_ADDRESS'] = session
        self.system_bus = dbus.bus.BusConnection('unix:path=' + SYSTEM_BUS_SOCKET)
        self.session_bus = dbus.bus.BusConnection(session)
        for bus in self.system_bus, self.session_bus:
            bus.set_exit_on_disconnect(False)
        self.daemons = {name: Daemon(self, name, settings) for name, settings in daemons.items()}
        starting = [daemon for daemon in self.daemons.values() if daemon.wanted]
        for daemon in starting:
            daemon.launch()
        for daemon in starting:
            daemon.wait_until_ready()
        # What the hardware does by itself; kept so that it lives as long as the phone.
        self.hardware = [load_module(path).start(self) for path in
                         sorted(glob.glob(os.path.join(glob.escape(SIMULATOR), 'hardware', '*.py')))]

    def daemon(self, name):
        if name not in self.daemons:
            raise Failure('this phone has no %s; it has: %s' % (name, ', '.join(sorted(self.daemons)) or 'no daemons'))
        return self.daemons[name]

    @staticmethod
    def every(milliseconds, function):
        def tick():
            function()
            return True
        return GLib.timeout_add(milliseconds, tick)

    # Files of the phone

    @staticmethod
    def read(path):
        """The file's first line without its end; None when it cannot be read."""
        try:
            with open(path, encoding='utf-8', errors='replace') as file:
                return file.readline().rstrip('\n')
        except OSError:
            return None

    def write(self, path, text):
        """Writes the file as the kernel shows an attribute: one line. Readers see the old text or the new one."""
        self.check_is_phones(path)
        path = os.path.realpath(path)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        temporary = '%s/.%d~' % (os.path.dirname(path), os.getpid())
        with open(temporary, 'w', encoding='utf-8') as file:
            file.write(text + '\n')
        try:
            os.chmod(temporary, os.stat(path).st_mode & 0o7777)
        except FileNotFoundError:
            os.chmod(temporary, 0o644)
        os.rename(temporary, path)

    def write_if_there(self, path, text):
        if os.path.exists(path):
            self.write(path, text)

    def check_is_phones(self, path):
        """A mistyped path must not reach the machine's own files, which the phone shows between its own."""
        place = os.path.realpath(path)
        while not os.path.lexists(place):
            place = os.path.dirname(place)
        if os.stat(place).st_dev not in self.own_file_systems():
            raise Failure('%s is not the phone\'s but this machine\'s' % path)

    @staticmethod
    def own_file_systems():
        found = set()
        with open('/proc/self/mountinfo') as file:
            for line in file:
                left, _, right = line.partition(' - ')
                if right.split()[1] in ('phone', 'scaffold'):
                    major, minor = left.split()[2].split(':')
                    found.add(os.makedev(int(major), int(minor)))
        return found

    # Power supplies

    def power_supply(self, kind):
        """The directory of the first power supply of the kind; None when there is none."""
        try:
            names = sorted(os.listdir(POWER_SUPPLIES))
        except OSError:
            return None
        for name in names:
            path = os.path.join(POWER_SUPPLIES, name)
            if (self.read(path + '/type') or '').strip() == kind:
                return path
        return None
