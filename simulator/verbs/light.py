# SPDX-License-Identifier: BSD-3-Clause
"""Commands for the notification light: what an eye would see. The phone lights it by what the battery reports."""

from commands import Command, Failure

COLOURS = {'Charging': 'orange', 'Full': 'green'}
FAULTS = ('dark', 'orange', 'green')


def show(phone):
    stuck = getattr(phone, 'stuck_light', None)
    if stuck:
        return stuck
    battery = phone.power_supply('Battery')
    return COLOURS.get(battery and phone.read(battery + '/status'), 'dark')


def change(phone, state):
    if state not in FAULTS + ('works',):
        raise Failure('say works, or for a light that never changes %s' % ', '.join(FAULTS))
    phone.stuck_light = None if state == 'works' else state


COMMANDS = [
    Command('light', '', 'what the notification light shows: dark, orange or green', show),
    Command('light lamp', 'works|dark|orange|green', 'one that shows the same whatever happens', change),
]
