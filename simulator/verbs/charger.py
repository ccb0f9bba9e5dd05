# SPDX-License-Identifier: BSD-3-Clause
"""Commands for the USB charger."""

from commands import Command, Failure


def usb(phone):
    path = phone.power_supply('USB')
    if path is None:
        raise Failure('this phone has no USB power supply')
    return path


def show(phone):
    path = usb(phone)
    disabled = phone.read(path + '/charger_disable')
    battery = phone.power_supply('Battery')
    return '\n'.join((
        'cable     ' + ('plugged' if phone.read(path + '/online') == '1' else 'unplugged'),
        'charging  ' + {None: 'no switch on this phone', '0': 'enabled'}.get(disabled, 'disabled'),
        'battery   ' + (battery and phone.read(battery + '/status') or 'no status'),
    ))


def plug(phone, text):
    path = usb(phone)
    phone.write(path + '/online', text)
    phone.write_if_there(path + '/present', text)


COMMANDS = [
    Command('charger', '', 'show the cable and whether charging is disabled', show),
    Command('charger plug', '', 'plug the charger in', lambda phone: plug(phone, '1')),
    Command('charger unplug', '', 'unplug it', lambda phone: plug(phone, '0')),
]
