# SPDX-License-Identifier: BSD-3-Clause
"""oFono. Setting in daemons.ini: modems, the names of the modems, separated by blanks."""

import dbus

import dbusmock
from dbusmock.templates import ofono

BUS_NAME = ofono.BUS_NAME
MAIN_OBJ = ofono.MAIN_OBJ
MAIN_IFACE = ofono.MAIN_IFACE
SYSTEM_BUS = ofono.SYSTEM_BUS


def load(mock, parameters):
    ofono.load(mock, {'no_modem': True})
    for name in parameters.get('modems', '').split():
        ofono.AddModem(mock, name, {})


@dbus.service.method(dbusmock.MOCK_IFACE, in_signature='s', out_signature='s')
def AddModem(self, name):
    return ofono.AddModem(self, name, {})


@dbus.service.method(dbusmock.MOCK_IFACE, in_signature='s')
def RemoveModem(self, name):
    path = '/' + name
    if path not in self.modems:
        raise dbus.exceptions.DBusException('there is no modem ' + name, name=MAIN_IFACE + '.Failed')
    self.modems.remove(path)
    self.EmitSignal(MAIN_IFACE, 'ModemRemoved', 'o', [path])
    # With what hangs below it: operators, contexts.
    for name in [name for name in dbusmock.get_objects() if name == path or name.startswith(path + '/')]:
        self.RemoveObject(name)


@dbus.service.method(dbusmock.MOCK_IFACE, out_signature='as')
def ModemNames(self):
    return [path[1:] for path in self.modems]
