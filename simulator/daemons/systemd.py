# SPDX-License-Identifier: BSD-3-Clause
"""systemd, as far as it tells of units that appear and vanish. It has no settings."""

import dbus
import dbusmock

BUS_NAME = 'org.freedesktop.systemd1'
MAIN_OBJ = '/org/freedesktop/systemd1'
MAIN_IFACE = 'org.freedesktop.systemd1.Manager'
SYSTEM_BUS = True


def load(mock, parameters):
    mock.units = []


def unit_path(name):
    return MAIN_OBJ + '/unit/' + ''.join(letter if letter.isascii() and letter.isalnum() else
                                         ''.join('_%02x' % byte for byte in letter.encode()) for letter in name)


@dbus.service.method(dbusmock.MOCK_IFACE, out_signature='as')
def Units(self):
    return self.units


@dbus.service.method(dbusmock.MOCK_IFACE, in_signature='s')
def AddUnit(self, name):
    if name in self.units:
        raise dbus.exceptions.DBusException('there is a unit %s already' % name, name=MAIN_IFACE + '.Failed')
    self.units.append(name)
    self.EmitSignal(MAIN_IFACE, 'UnitNew', 'so', [name, unit_path(name)])


@dbus.service.method(dbusmock.MOCK_IFACE, in_signature='s')
def RemoveUnit(self, name):
    if name not in self.units:
        raise dbus.exceptions.DBusException('there is no unit ' + name, name=MAIN_IFACE + '.Failed')
    self.units.remove(name)
    self.EmitSignal(MAIN_IFACE, 'UnitRemoved', 'so', [name, unit_path(name)])
