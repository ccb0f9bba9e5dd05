# SPDX-License-Identifier: BSD-3-Clause
"""The Bluetooth service with one radio, hci0.

Settings in daemons.ini: radio, yes or no; powered, yes or no; devices, those nearby, separated by blanks, each as
NAME=ADDRESS. A search finds them at once.
"""

import dbus
import dbusmock
from dbusmock import OBJECT_MANAGER_IFACE, mockobject

BUS_NAME = 'org.bluez'
MAIN_OBJ = '/'
MAIN_IFACE = 'org.bluez.Mock'
SYSTEM_BUS = True
IS_OBJECT_MANAGER = True

ADAPTER = '/org/bluez/hci0'
ADAPTER_IFACE = 'org.bluez.Adapter1'
DEVICE_IFACE = 'org.bluez.Device1'
ADDRESS = '02:5A:00:3C:91:E8'


def is_on(parameters, name):
    return parameters.get(name, 'yes').lower() in ('yes', 'true', '1')


def load(mock, parameters):
    mock.nearby = dict(text.split('=', 1) for text in parameters.get('devices', '').split())
    if is_on(parameters, 'radio'):
        add_radio(mock, is_on(parameters, 'powered'))


def announce(mock, member, signature, *arguments):
    mock.EmitSignal(OBJECT_MANAGER_IFACE, member, signature, list(arguments))


def adapter():
    if ADAPTER not in mockobject.objects:
        raise dbus.exceptions.DBusException('there is no radio', name='org.bluez.Error.NotReady')
    return mockobject.objects[ADAPTER]


def add_radio(mock, powered):
    properties = {'Address': dbus.String(ADDRESS), 'AddressType': dbus.String('public'), 'Name': dbus.String('phone'),
                  'Alias': dbus.String('phone'), 'Class': dbus.UInt32(0x5a020c), 'Powered': dbus.Boolean(powered),
                  'Discoverable': dbus.Boolean(False), 'Pairable': dbus.Boolean(False),
                  'Discovering': dbus.Boolean(False), 'UUIDs': dbus.Array([], signature='s')}
    mock.AddObject(ADAPTER, ADAPTER_IFACE, properties, [
        ('SetDiscoveryFilter', 'a{sv}', '', ''),
        ('StartDiscovery', '', '', start_search),
        ('StopDiscovery', '', '', stop_search)])
    mockobject.objects[ADAPTER].manager = mock
    announce(mock, 'InterfacesAdded', 'oa{sa{sv}}', dbus.ObjectPath(ADAPTER), {ADAPTER_IFACE: properties})


def start_search(radio):
    if not radio.props[ADAPTER_IFACE]['Powered']:
        raise dbus.exceptions.DBusException('switched off', name='org.bluez.Error.NotReady')
    radio.UpdateProperties(ADAPTER_IFACE, {'Discovering': dbus.Boolean(True)})
    for name in radio.manager.nearby:
        find(radio.manager, name)


def stop_search(radio):
    if not radio.props[ADAPTER_IFACE]['Discovering']:
        raise dbus.exceptions.DBusException('no search is on', name='org.bluez.Error.Failed')
    radio.UpdateProperties(ADAPTER_IFACE, {'Discovering': dbus.Boolean(False)})


def device_path(mock, name):
    return '%s/dev_%s' % (ADAPTER, mock.nearby[name].replace(':', '_'))


def find(mock, name):
    path = device_path(mock, name)
    if path in mockobject.objects:
        return
    properties = {'Address': dbus.String(mock.nearby[name]), 'AddressType': dbus.String('public'),
                  'Name': dbus.String(name), 'Alias': dbus.String(name), 'Class': dbus.UInt32(0x240404),
                  'Adapter': dbus.ObjectPath(ADAPTER), 'RSSI': dbus.Int16(-58), 'Paired': dbus.Boolean(False),
                  'Connected': dbus.Boolean(False), 'Trusted': dbus.Boolean(False), 'Blocked': dbus.Boolean(False),
                  'LegacyPairing': dbus.Boolean(False), 'UUIDs': dbus.Array([], signature='s')}
    mock.AddObject(path, DEVICE_IFACE, properties, [])
    announce(mock, 'InterfacesAdded', 'oa{sa{sv}}', dbus.ObjectPath(path), {DEVICE_IFACE: properties})


def forget(mock, name):
    path = device_path(mock, name)
    if path in mockobject.objects:
        mock.RemoveObject(path)
        announce(mock, 'InterfacesRemoved', 'oas', dbus.ObjectPath(path), [DEVICE_IFACE])


# What the one who simulates the phone calls

@dbus.service.method(dbusmock.MOCK_IFACE, out_signature='bbba(ss)')
def State(self):
    """Whether there is a radio, it is switched on, and searches; the devices nearby."""
    radio = mockobject.objects.get(ADAPTER)
    states = [bool(radio and radio.props[ADAPTER_IFACE][name]) for name in ('Powered', 'Discovering')]
    return (radio is not None, *states, dbus.Array(self.nearby.items(), signature='(ss)'))


@dbus.service.method(dbusmock.MOCK_IFACE, in_signature='b')
def SwitchRadio(self, on):
    adapter().UpdateProperties(ADAPTER_IFACE, {'Powered': dbus.Boolean(on), 'Discovering': dbus.Boolean(
        on and adapter().props[ADAPTER_IFACE]['Discovering'])})


@dbus.service.method(dbusmock.MOCK_IFACE)
def RemoveRadio(self):
    adapter()
    for name in self.nearby:
        forget(self, name)
    self.RemoveObject(ADAPTER)
    announce(self, 'InterfacesRemoved', 'oas', dbus.ObjectPath(ADAPTER), [ADAPTER_IFACE])


@dbus.service.method(dbusmock.MOCK_IFACE)
def InsertRadio(self):
    if ADAPTER in mockobject.objects:
        raise dbus.exceptions.DBusException('there is a radio already', name='org.bluez.Error.AlreadyExists')
    add_radio(self, True)


@dbus.service.method(dbusmock.MOCK_IFACE, in_signature='ss')
def AddDevice(self, name, address):
    if name in self.nearby or address in self.nearby.values():
        raise dbus.exceptions.DBusException('%s is nearby already' % name, name='org.bluez.Error.AlreadyExists')
    self.nearby[name] = address
    if ADAPTER in mockobject.objects and mockobject.objects[ADAPTER].props[ADAPTER_IFACE]['Discovering']:
        find(self, name)


@dbus.service.method(dbusmock.MOCK_IFACE, in_signature='s')
def RemoveDevice(self, name):
    if name not in self.nearby:
        raise dbus.exceptions.DBusException('there is no ' + name, name='org.bluez.Error.DoesNotExist')
    forget(self, name)
    del self.nearby[name]
