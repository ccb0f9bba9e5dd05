# SPDX-License-Identifier: BSD-3-Clause
"""oFono. Setting in daemons.ini: modems, the names of the modems, separated by blanks."""

import dbus

import dbusmock
from dbusmock.templates import ofono

BUS_NAME = ofono.BUS_NAME
MAIN_OBJ = ofono.MAIN_OBJ
MAIN_IFACE = ofono.MAIN_IFACE
SYSTEM_BUS = ofono.SYSTEM_BUS

SIM_IFACE = 'org.ofono.SimManager'
NETWORK_IFACE = 'org.ofono.NetworkRegistration'
# What a card brings.
CARD = {SIM_IFACE: ('CardIdentifier', 'MobileCountryCode', 'MobileNetworkCode', 'SubscriberIdentity',
                    'SubscriberNumbers'),
        NETWORK_IFACE: ('MobileCountryCode', 'MobileNetworkCode', 'Name', 'Strength', 'CellId', 'LocationAreaCode')}


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


def modem(self, name):
    path = '/' + name
    if path not in self.modems:
        raise dbus.exceptions.DBusException('there is no modem ' + name, name=MAIN_IFACE + '.Failed')
    return dbusmock.get_object(path)


def change(modem, interface, name, value):
    modem.props[interface][name] = value
    modem.EmitSignal(interface, 'PropertyChanged', 'sv', [name, value])


@dbus.service.method(dbusmock.MOCK_IFACE, in_signature='s')
def RemoveCard(self, name):
    slot = modem(self, name)
    if not slot.props[SIM_IFACE]['Present']:
        raise dbus.exceptions.DBusException('there is no card in it', name=MAIN_IFACE + '.Failed')
    slot.card = {interface: {name: slot.props[interface].pop(name) for name in names}
                 for interface, names in CARD.items()}
    change(slot, NETWORK_IFACE, 'Status', 'unregistered')
    change(slot, SIM_IFACE, 'Present', dbus.Boolean(False))


@dbus.service.method(dbusmock.MOCK_IFACE, in_signature='s')
def InsertCard(self, name):
    slot = modem(self, name)
    if slot.props[SIM_IFACE]['Present']:
        raise dbus.exceptions.DBusException('there is a card in it already', name=MAIN_IFACE + '.Failed')
    change(slot, SIM_IFACE, 'Present', dbus.Boolean(True))
    for interface, values in slot.card.items():
        for key, value in values.items():
            change(slot, interface, key, value)
    change(slot, NETWORK_IFACE, 'Status', 'registered')


@dbus.service.method(dbusmock.MOCK_IFACE, out_signature='a(sb)')
def Cards(self):
    return [(path[1:], bool(dbusmock.get_object(path).props[SIM_IFACE]['Present'])) for path in self.modems]


@dbus.service.method(dbusmock.MOCK_IFACE, out_signature='as')
def ModemNames(self):
    return [path[1:] for path in self.modems]
