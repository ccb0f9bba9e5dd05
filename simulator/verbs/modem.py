# SPDX-License-Identifier: BSD-3-Clause
"""Commands for oFono's modems."""

from commands import Command


def show(phone):
    return '\n'.join(phone.daemon('ofono').call('ModemNames')) or 'no modems'


def add(phone, name='ril_0'):
    phone.daemon('ofono').call('AddModem', name)


def remove(phone, name='ril_0'):
    phone.daemon('ofono').call('RemoveModem', name)


COMMANDS = [
    Command('modem', '', 'show the modems that oFono reports', show),
    Command('modem add', '[NAME]', 'let a modem appear (ril_0)', add),
    Command('modem remove', '[NAME]', 'let a modem vanish (ril_0)', remove),
]
