# SPDX-License-Identifier: BSD-3-Clause
"""Commands for the Bluetooth radio and the devices near the phone."""

import re

from commands import Command, Failure


def bluez(phone):
    return phone.daemon('bluez')


def show(phone):
    there, on, searches, devices = bluez(phone).call('State')
    lines = ['radio    %s' % ('none' if not there else 'off' if not on else 'searches' if searches else 'on')]
    return '\n'.join(lines + ['nearby   %s %s' % (name, address) for name, address in devices])


def switch(phone, position):
    if position not in ('on', 'off'):
        raise Failure('say on or off')
    bluez(phone).call('SwitchRadio', position == 'on')


def radio(phone, state):
    if state not in ('insert', 'remove'):
        raise Failure('say insert or remove')
    bluez(phone).call('InsertRadio' if state == 'insert' else 'RemoveRadio')


def near(phone, name='Headset', address='02:5A:10:00:00:01'):
    if not re.fullmatch('([0-9A-Fa-f]{2}:){5}[0-9A-Fa-f]{2}', address):
        raise Failure('%s is no address such as 02:5A:10:00:00:01' % address)
    bluez(phone).call('AddDevice', name, address.upper())


COMMANDS = [
    Command('bluetooth', '', 'show the Bluetooth radio and the devices nearby', show),
    Command('bluetooth switch', 'on|off', 'switch the radio', switch),
    Command('bluetooth radio', 'insert|remove', 'whether there is a radio at all', radio),
    Command('bluetooth near', '[NAME] [ADDRESS]', 'let a device come near that can be found (Headset)', near),
    Command('bluetooth away', '[NAME]', 'take it away (Headset)',
            lambda phone, name='Headset': bluez(phone).call('RemoveDevice', name)),
]
