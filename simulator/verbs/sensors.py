# SPDX-License-Identifier: BSD-3-Clause
"""Commands for what the sensors measure."""

from commands import Command


def change(phone, name=None, *values):
    if name is None:
        return '\n'.join('%-13s  %s' % (name, phone.sensors.show(name)) for name in phone.sensors.names())
    if not values:
        return phone.sensors.show(name)
    if values == ('stuck',):
        phone.sensors.stick(name)
    elif values == ('remove',):
        phone.sensors.remove(name)
    else:
        phone.sensors.set(name, values)
    return None


COMMANDS = [
    Command('sensor', '[NAME] [VALUE...]', 'show what the sensors measure; change that of one: its numbers, near or '
            'far, stuck (delivers nothing more) or remove', change),
]
