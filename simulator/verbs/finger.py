# SPDX-License-Identifier: BSD-3-Clause
"""Commands for fingers on the touch panel. Kiv sees them where it reads the panel's device itself, as on a phone:
QT_QPA_GENERIC_PLUGINS=evdevtouch:/dev/input/event2."""

from commands import Command, Failure

CONTACT = ('ABS_MT_SLOT', 'ABS_MT_TRACKING_ID', 'ABS_MT_POSITION_X', 'ABS_MT_POSITION_Y')


class Fingers:
    """Where they are, by number, and the contacts' identifiers."""

    def __init__(self):
        self.down = {}
        self.contacts = 0


fingers = Fingers()


def panel(phone):
    device = phone.input.first_with(*CONTACT)
    if device is None:
        raise Failure('this phone has no touch panel')
    return device


def number(text, what, smallest, largest):
    try:
        value = int(text)
    except ValueError:
        value = smallest - 1
    if not smallest <= value <= largest:
        raise Failure('%s is no %s from %d to %d' % (text, what, smallest, largest))
    return value


def limits(device, axis):
    return device.axes[axis][1:3]


def put(phone, finger, x, y):
    device = panel(phone)
    slot = number(finger, 'finger', *limits(device, 'ABS_MT_SLOT'))
    place = (number(x, 'x', *limits(device, 'ABS_MT_POSITION_X')), number(y, 'y', *limits(device, 'ABS_MT_POSITION_Y')))
    changes = [('ABS_MT_SLOT', slot)]
    if slot not in fingers.down:
        fingers.contacts = (fingers.contacts + 1) % (limits(device, 'ABS_MT_TRACKING_ID')[1] + 1)
        changes.append(('ABS_MT_TRACKING_ID', fingers.contacts))
    changes += [('ABS_MT_POSITION_X', place[0]), ('ABS_MT_POSITION_Y', place[1])]
    if not fingers.down and 'BTN_TOUCH' in device.codes:
        changes.append(('BTN_TOUCH', 1))
    fingers.down[slot] = place
    device.send(changes)


def lift(phone, *which):
    device = panel(phone)
    changes = []
    for slot in [number(finger, 'finger', *limits(device, 'ABS_MT_SLOT')) for finger in which] or sorted(fingers.down):
        if fingers.down.pop(slot, None) is not None:
            changes += [('ABS_MT_SLOT', slot), ('ABS_MT_TRACKING_ID', -1)]
    if changes and not fingers.down and 'BTN_TOUCH' in device.codes:
        changes.append(('BTN_TOUCH', 0))
    if changes:
        device.send(changes)


def tap(phone, x, y, times='1'):
    if 0 in fingers.down:
        raise Failure('finger 0 is on the panel already')
    for _ in range(number(times, 'number of taps', 1, 10)):
        put(phone, '0', x, y)
        lift(phone, '0')


def show(phone):
    panel(phone)
    return '\n'.join('%d  %d %d' % (slot, *place) for slot, place in sorted(fingers.down.items())) or 'none'


COMMANDS = [
    Command('finger', '', 'show the fingers on the touch panel', show),
    Command('finger put', 'FINGER X Y', 'put a finger down, or move it; fingers count from 0, X and Y are of the panel',
            put),
    Command('finger lift', '[FINGER...]', 'lift it, or all', lift),
    Command('finger tap', 'X Y [TIMES]', 'put finger 0 down and lift it, as often as that without a pause', tap),
]
