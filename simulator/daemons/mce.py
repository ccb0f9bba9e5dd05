# SPDX-License-Identifier: BSD-3-Clause
"""The mode-control service: radio switches, settings, and how long the phone has been up and asleep.

Settings in daemons.ini: radios, those that are switched on, separated by blanks (master, cellular, wlan, bluetooth,
nfc, fmtx); uptime and suspend, seconds at the start.
"""

import time

import dbus
import dbusmock

BUS_NAME = 'com.nokia.mce'
MAIN_OBJ = '/com/nokia/mce/request'
MAIN_IFACE = 'com.nokia.mce.request'
SYSTEM_BUS = True

SIGNAL_OBJ = '/com/nokia/mce/signal'
SIGNAL_IFACE = 'com.nokia.mce.signal'

# The bits of the radio-state word, from the lowest.
RADIOS = ('master', 'cellular', 'wlan', 'bluetooth', 'nfc', 'fmtx')


def bit(name):
    if name not in RADIOS:
        raise dbus.exceptions.DBusException('there is no radio %s; there are: %s' % (name, ', '.join(RADIOS)),
                                            name=BUS_NAME + '.error')
    return 1 << RADIOS.index(name)


def load(mock, parameters):
    mock.AddObject(SIGNAL_OBJ, SIGNAL_IFACE, {}, [])
    mock.signals = dbusmock.mockobject.objects[SIGNAL_OBJ]
    mock.states = sum(bit(name) for name in set(parameters.get('radios', 'master').split()))
    # On the clock of this machine, which is the phone's as well.
    mock.started = time.monotonic() - float(parameters.get('uptime', 0))
    mock.suspended = float(parameters.get('suspend', 0))
    mock.config = {}


def set_states(mock, states):
    if states == mock.states:
        return
    mock.states = states
    mock.signals.EmitSignal(SIGNAL_IFACE, 'radio_states_ind', 'u', [dbus.UInt32(states)])


# What the programs on the phone call

@dbus.service.method(MAIN_IFACE, out_signature='u')
def get_radio_states(self):
    return self.states


@dbus.service.method(MAIN_IFACE, in_signature='uu')
def req_radio_states_change(self, states, mask):
    set_states(self, self.states & ~mask | states & mask)


@dbus.service.method(MAIN_IFACE, out_signature='xx')
def get_suspend_stats(self):
    """Milliseconds."""
    return round((time.monotonic() - self.started) * 1000), round(self.suspended * 1000)


@dbus.service.method(MAIN_IFACE, in_signature='o', out_signature='v')
def get_config(self, path):
    if path not in self.config:
        raise dbus.exceptions.DBusException('no such setting: ' + path, name=BUS_NAME + '.error')
    return self.config[path]


@dbus.service.method(MAIN_IFACE, in_signature='ov', out_signature='b')
def set_config(self, path, value):
    if self.config.get(path) != value:
        self.config[path] = value
        self.signals.EmitSignal(SIGNAL_IFACE, 'config_change_ind', 'sv', [path, value])
    return True


# What the one who simulates the phone calls

@dbus.service.method(dbusmock.MOCK_IFACE, out_signature='a(sb)')
def Radios(self):
    return [(name, bool(self.states & bit(name))) for name in RADIOS]


@dbus.service.method(dbusmock.MOCK_IFACE, in_signature='sb')
def SwitchRadio(self, name, on):
    set_states(self, self.states | bit(name) if on else self.states & ~bit(name))


@dbus.service.method(dbusmock.MOCK_IFACE, in_signature='d')
def Sleep(self, seconds):
    """As if the phone had been suspended for so long."""
    self.started -= seconds
    self.suspended += seconds
