# SPDX-License-Identifier: BSD-3-Clause
"""The command that tells how the phone is."""

from commands import Command


def show(phone):
    lines = ['phone    %s (%s)' % (phone.identifier, phone.folder)]
    battery = phone.power_supply('Battery')
    if battery:
        values = (phone.read(battery + '/capacity'), phone.read(battery + '/status'))
        lines.append('battery  ' + ', '.join(text for text in (values[0] and values[0] + ' %', values[1]) if text))
    usb = phone.power_supply('USB')
    if usb:
        lines.append('charger  %s, charging %s' % (
            'plugged' if phone.read(usb + '/online') == '1' else 'unplugged',
            'enabled' if phone.read(usb + '/charger_disable') in ('0', None) else 'disabled'))
    for name, daemon in sorted(phone.daemons.items()):
        lines.append('daemon   %s %s' % (name, daemon.state()))
    return '\n'.join(lines)


COMMANDS = [
    Command('status', '', 'how the phone is', show),
]
