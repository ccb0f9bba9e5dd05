# SPDX-License-Identifier: BSD-3-Clause
"""Commands for the radio switches and the sleep of the phone, both in the hands of the mode-control service."""

from commands import Command, Failure


def show(phone):
    return '\n'.join('%-10s %s' % (name, 'on' if on else 'off') for name, on in phone.daemon('mce').call('Radios'))


def switch(phone, name, position):
    if position not in ('on', 'off'):
        raise Failure('say on or off')
    phone.daemon('mce').call('SwitchRadio', name, position == 'on')


def sleep(phone, seconds):
    try:
        value = float(seconds)
    except ValueError:
        value = -1
    if not 0 <= value <= 1e9:
        raise Failure('%s is no number of seconds' % seconds)
    phone.daemon('mce').call('Sleep', value)


COMMANDS = [
    Command('radio', '', 'show the radio switches', show),
    Command('radio switch', 'NAME on|off', 'switch a radio: master, cellular, wlan, bluetooth, nfc or fmtx', switch),
    Command('sleep', 'SECONDS', 'the phone has been suspended for so long', sleep),
]
