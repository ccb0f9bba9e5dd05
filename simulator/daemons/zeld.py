# SPDX-License-Identifier: BSD-3-Clause
"""The smart-cover daemon. Settings in daemons.ini: ready, yes or no; cover, the identifier of the cover that is on the
phone, none if it is empty or left out."""

import dbus
import dbusmock

BUS_NAME = 'com.orvel.zeld'
MAIN_OBJ = '/com/orvel/zeld'
MAIN_IFACE = 'com.orvel.zeld'
SYSTEM_BUS = True


def load(mock, parameters):
    cover = parameters.get('cover', '')
    mock.AddProperties(MAIN_IFACE, {
        'Ready': dbus.Boolean(parameters.get('ready', 'yes').lower() in ('yes', 'true', '1')),
        'Docked': dbus.Boolean(bool(cover)),
        'ZELID': dbus.String(cover),
    })


@dbus.service.method(dbusmock.MOCK_IFACE, out_signature='bbs')
def State(self):
    return tuple(self.props[MAIN_IFACE][name] for name in ('Ready', 'Docked', 'ZELID'))


@dbus.service.method(dbusmock.MOCK_IFACE, in_signature='b')
def ChangeReady(self, ready):
    self.UpdateProperties(MAIN_IFACE, {'Ready': dbus.Boolean(ready)})


@dbus.service.method(dbusmock.MOCK_IFACE, in_signature='s')
def Dock(self, identifier):
    self.UpdateProperties(MAIN_IFACE, {'Docked': dbus.Boolean(True), 'ZELID': dbus.String(identifier)})


@dbus.service.method(dbusmock.MOCK_IFACE)
def Undock(self):
    """The identifier is not told to be empty but withdrawn: there is no cover that could have one."""
    self.props[MAIN_IFACE].update({'Docked': dbus.Boolean(False), 'ZELID': dbus.String('')})
    self.EmitSignal(dbus.PROPERTIES_IFACE, 'PropertiesChanged', 'sa{sv}as', [
        MAIN_IFACE, dbus.Dictionary({'Docked': dbus.Boolean(False)}, signature='sv'),
        dbus.Array(['ZELID'], signature='s')])
