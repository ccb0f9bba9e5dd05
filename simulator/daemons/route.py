# SPDX-License-Identifier: BSD-3-Clause
"""The audio policy's route manager. Settings in daemons.ini: fmradio, yes or no, whether it knows the feature."""

import dbus
import dbusmock

BUS_NAME = 'org.nemomobile.Route.Manager'
MAIN_OBJ = '/org/nemomobile/Route/Manager'
MAIN_IFACE = 'org.nemomobile.Route.Manager'
SYSTEM_BUS = True

OUTPUT, INPUT, BUILTIN, WIRED = 0x1, 0x2, 0x4, 0x8
FEATURE = 'fmradioloopback'


def load(mock, parameters):
    mock.headphone = mock.microphone = False
    mock.features = {FEATURE: False} if parameters.get('fmradio', 'no').lower() in ('yes', 'true', '1') else {}


def output(mock):
    if mock.headphone:
        return 'headset' if mock.microphone else 'headphone', dbus.UInt32(OUTPUT | WIRED)
    return 'speaker', dbus.UInt32(OUTPUT | BUILTIN)


def source(mock):
    if mock.microphone:
        return 'headset', dbus.UInt32(INPUT | WIRED)
    return 'microphone', dbus.UInt32(INPUT | BUILTIN)


def switch(mock, name, on):
    if name not in mock.features:
        raise dbus.exceptions.DBusException('no feature ' + name, name=MAIN_IFACE + '.Error')
    if mock.features[name] != on:
        mock.features[name] = on
        mock.EmitSignal(MAIN_IFACE, 'AudioFeatureChanged', 'suu', [name, dbus.UInt32(1), dbus.UInt32(on)])


# What the programs on the phone call

@dbus.service.method(MAIN_IFACE, out_signature='susua(suu)')
def GetAll(self):
    return (*output(self), *source(self), dbus.Array([(name, 1, on) for name, on in self.features.items()],
                                                     signature='(suu)'))


@dbus.service.method(MAIN_IFACE, in_signature='s')
def Enable(self, name):
    switch(self, name, True)


@dbus.service.method(MAIN_IFACE, in_signature='s')
def Disable(self, name):
    switch(self, name, False)


# What the one who simulates the phone calls

@dbus.service.method(dbusmock.MOCK_IFACE, in_signature='bb')
def Plug(self, headphone, microphone):
    before = output(self), source(self)
    self.headphone, self.microphone = bool(headphone), bool(microphone)
    for old, new in zip(before, (output(self), source(self))):
        if old != new:
            self.EmitSignal(MAIN_IFACE, 'AudioRouteChanged', 'su', list(new))


@dbus.service.method(dbusmock.MOCK_IFACE, out_signature='susub')
def State(self):
    return (*output(self), *source(self), self.features.get(FEATURE, False))
