# SPDX-License-Identifier: BSD-3-Clause
"""GeoClue's master, which tells its clients where the positioning provider is: only while that is on the bus."""

import dbus
import dbusmock

BUS_NAME = 'org.freedesktop.Geoclue.Master'
MAIN_OBJ = '/org/freedesktop/Geoclue/Master'
MAIN_IFACE = 'org.freedesktop.Geoclue.Master'
SYSTEM_BUS = False

CLIENT_IFACE = 'org.freedesktop.Geoclue.MasterClient'
PROVIDER = 'org.freedesktop.Geoclue.Providers.Hybris'
PROVIDER_PATH = '/org/freedesktop/Geoclue/Providers/Hybris'
NO_PROVIDER = ('', '', '', '')


def load(mock, parameters):
    mock.provider = NO_PROVIDER
    mock.clients = {}
    mock.connection.watch_name_owner(PROVIDER, lambda owner: on_provider(mock, owner))
    mock.connection.add_signal_receiver(lambda name, old, new: on_owner_changed(mock, name, new), 'NameOwnerChanged',
                                        dbus.BUS_DAEMON_IFACE, dbus.BUS_DAEMON_NAME, dbus.BUS_DAEMON_PATH)


def on_provider(mock, owner):
    provider = ('Hybris', 'Satellite positioning', PROVIDER, PROVIDER_PATH) if owner else NO_PROVIDER
    if provider == mock.provider:
        return
    mock.provider = provider
    for path in mock.clients:
        client = dbusmock.mockobject.objects[path]
        client.provider = provider
        client.EmitSignal(CLIENT_IFACE, 'PositionProviderChanged', 'ssss', provider)


def on_owner_changed(mock, name, owner):
    """Forgets the clients of a program that has left the bus."""
    if owner:
        return
    for path in [path for path, creator in mock.clients.items() if creator == name]:
        del mock.clients[path]
        mock.RemoveObject(path)


@dbus.service.method(MAIN_IFACE, out_signature='o', sender_keyword='sender')
def Create(self, sender=None):
    self.created = getattr(self, 'created', 0) + 1
    path = '%s/client%d' % (MAIN_OBJ, self.created)
    self.AddObject(path, CLIENT_IFACE, {}, [
        ('SetRequirements', 'iibi', '', ''),
        ('PositionStart', '', '', ''),
        ('AddressStart', '', '', ''),
        ('GetPositionProvider', '', 'ssss', 'ret = self.provider'),
        ('GetAddressProvider', '', 'ssss', 'ret = ("", "", "", "")'),
    ])
    client = dbusmock.mockobject.objects[path]
    client.provider = self.provider
    client.AddMethods('org.freedesktop.Geoclue', [('AddReference', '', '', ''), ('RemoveReference', '', '', '')])
    self.clients[path] = sender
    return dbus.ObjectPath(path)
