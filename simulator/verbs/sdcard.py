# SPDX-License-Identifier: BSD-3-Clause
"""Commands for the memory card."""

from commands import Command, Usage


def daemon(phone):
    return phone.daemon('udisks2')


def seconds(text):
    try:
        value = float(text)
    except ValueError:
        value = -1
    if not 0 <= value < 86400:
        raise Usage('SECONDS is a number from 0 on, not ' + text)
    return value


def switched(fault):
    def set_fault(phone, state='on'):
        if state not in ('on', 'off'):
            raise Usage('usage: phonectl sdcard %s [on|off]' % fault)
        daemon(phone).call('SetCardFault', fault, state == 'on')
    return set_fault


def show(phone):
    return str(daemon(phone).call('CardState'))


COMMANDS = [
    Command('sdcard', '', 'show the memory card', show),
    Command('sdcard insert', '[NAME]', 'put a new, empty card in (CARD); it is not mounted by itself',
            lambda phone, name='CARD': daemon(phone).call('InsertCard', name)),
    Command('sdcard remove', '', 'pull the card out, mounted or not', lambda phone: daemon(phone).call('RemoveCard')),
    Command('sdcard mount', '[SECONDS]', 'mount it, which takes so long (0.3)',
            lambda phone, time='0.3': daemon(phone).call('MountCard', seconds(time))),
    Command('sdcard unmount', '[SECONDS]', 'unmount it, which takes so long (0.3)',
            lambda phone, time='0.3': daemon(phone).call('UnmountCard', seconds(time))),
    Command('sdcard fail-mount', '[SECONDS]', 'try to mount it in vain (0.3)',
            lambda phone, time='0.3': daemon(phone).call('FailToMountCard', seconds(time))),
    Command('sdcard full', '[on|off]', 'no more data fits on the card', switched('full')),
    Command('sdcard readonly', '[on|off]', 'the card is write-protected', switched('readonly')),
    Command('sdcard corrupt', '[on|off]', 'the card reads back other data than was written', switched('corrupt')),
]
