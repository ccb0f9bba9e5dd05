# SPDX-License-Identifier: BSD-3-Clause
"""Commands for the vibrator: what a hand would feel."""

from commands import Command, Failure


def vibrator(phone):
    if not phone.vibrator.there:
        raise Failure('this phone has no vibrator')
    return phone.vibrator


def show(phone):
    motor = vibrator(phone)
    pulses = motor.pulses()
    lines = ['motor: %s' % (motor.state() or 'removed'), 'pulses: %d' % len(pulses)]
    lines += ['  %.0f ms at %.0f %%, %s' % (duration, 100 * intensity,
                                            'first' if index == 0 else '%.0f ms after' % (at - pulses[index - 1][0]))
              for index, (at, duration, intensity) in enumerate(pulses)]
    return '\n'.join(lines)


def change(phone, state):
    if state == 'remove':
        vibrator(phone).remove()
    elif state in ('works', 'stuck'):
        vibrator(phone).set(state)
    else:
        raise Failure('say works, stuck or remove')


COMMANDS = [
    Command('vibrator', '', 'the pulses that a hand would have felt', show),
    Command('vibrator forget', '', 'begin to count them anew', lambda phone: vibrator(phone).forget()),
    Command('vibrator motor', 'works|stuck|remove', 'stuck: it is there and does not move', change),
]
