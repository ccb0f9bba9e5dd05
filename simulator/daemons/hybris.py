# SPDX-License-Identifier: BSD-3-Clause
"""The positioning provider of GeoClue that reaches the phone's GPS receiver.

Settings in daemons.ini: status, one of error, unavailable, acquiring and available; satellites, those that are up,
separated by blanks, each as IDENTIFIER:ELEVATION:AZIMUTH:STRENGTH (degrees, degrees, dB), with :used behind if the
position is made of it.
"""

import time

import dbus
import dbusmock
from gi.repository import GLib

BUS_NAME = 'org.freedesktop.Geoclue.Providers.Hybris'
MAIN_OBJ = '/org/freedesktop/Geoclue/Providers/Hybris'
MAIN_IFACE = 'org.freedesktop.Geoclue'
SYSTEM_BUS = False

SATELLITE_IFACE = 'org.freedesktop.Geoclue.Satellite'
STATUSES = ('error', 'unavailable', 'acquiring', 'available')


def load(mock, parameters):
    mock.status = STATUSES.index(parameters.get('status', 'acquiring'))
    mock.satellites = {}  # identifier: [elevation, azimuth, strength]
    mock.used = set()
    for text in parameters.get('satellites', '').split():
        numbers, _, used = text.partition(':used')
        identifier, *rest = [int(number) for number in numbers.split(':')]
        mock.satellites[identifier] = rest
        if text.endswith(':used'):
            mock.used.add(identifier)
    # A receiver reports once a second, whether anything has changed or not.
    GLib.timeout_add_seconds(1, lambda: announce(mock) or True)


def report(mock):
    """What GetSatellite answers and SatelliteChanged carries."""
    up = mock.satellites
    used = [identifier for identifier in up if identifier in mock.used]
    return (dbus.Int32(time.time()), dbus.Int32(len(used)), dbus.Int32(len(up)), dbus.Array(used, signature='i'),
            dbus.Array([dbus.Struct((identifier, *up[identifier]), signature='iiii') for identifier in up],
                       signature='(iiii)'))


def announce(mock):
    mock.EmitSignal(SATELLITE_IFACE, 'SatelliteChanged', 'iiiaia(iiii)', report(mock))


def known(mock, identifier):
    if identifier not in mock.satellites:
        raise dbus.exceptions.DBusException('satellite %d is not up' % identifier, name=MAIN_IFACE + '.Failed')


# What the programs on the phone call

@dbus.service.method(MAIN_IFACE, out_signature='i')
def GetStatus(self):
    return self.status


@dbus.service.method(MAIN_IFACE, out_signature='ss')
def GetProviderInfo(self):
    return 'Hybris', 'Satellite positioning'


@dbus.service.method(MAIN_IFACE)
def AddReference(self):
    pass


@dbus.service.method(MAIN_IFACE)
def RemoveReference(self):
    pass


@dbus.service.method(MAIN_IFACE, in_signature='a{sv}')
def SetOptions(self, options):
    pass


@dbus.service.method(SATELLITE_IFACE, out_signature='iiiaia(iiii)')
def GetSatellite(self):
    return report(self)


@dbus.service.method(SATELLITE_IFACE, out_signature='iiiaia(iiii)')
def GetLastSatellite(self):
    return report(self)


# What the one who simulates the phone calls

@dbus.service.method(dbusmock.MOCK_IFACE, out_signature='i')
def Status(self):
    return self.status


@dbus.service.method(dbusmock.MOCK_IFACE, in_signature='i')
def ChangeStatus(self, status):
    self.status = status
    self.EmitSignal(MAIN_IFACE, 'StatusChanged', 'i', [status])


@dbus.service.method(dbusmock.MOCK_IFACE, out_signature='a(iiiib)')
def Satellites(self):
    return [(identifier, *where, identifier in self.used) for identifier, where in self.satellites.items()]


@dbus.service.method(dbusmock.MOCK_IFACE, in_signature='iiii')
def RaiseSatellite(self, identifier, elevation, azimuth, strength):
    self.satellites[identifier] = [elevation, azimuth, strength]
    announce(self)


@dbus.service.method(dbusmock.MOCK_IFACE, in_signature='i')
def SetSatellite(self, identifier):
    known(self, identifier)
    del self.satellites[identifier]
    self.used.discard(identifier)
    announce(self)


@dbus.service.method(dbusmock.MOCK_IFACE, in_signature='ib')
def UseSatellite(self, identifier, use):
    known(self, identifier)
    if use:
        self.used.add(identifier)
    else:
        self.used.discard(identifier)
    announce(self)
