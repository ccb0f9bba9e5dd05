# SPDX-License-Identifier: BSD-3-Clause
"""Commands for oFono's modems and the SIM cards in them."""

from commands import Command


def show(phone):
    return '\n'.join(phone.daemon('ofono').call('ModemNames')) or 'no modems'


def add(phone, name='ril_0'):
    phone.daemon('ofono').call('AddModem', name)


def remove(phone, name='ril_0'):
    phone.daemon('ofono').call('RemoveModem', name)


def show_cards(phone):
    return '\n'.join('%-10s %s' % (name, 'card' if card else 'empty') for name, card in
                     phone.daemon('ofono').call('Cards')) or 'no modems'


COMMANDS = [
    Command('modem', '', 'show the modems that oFono reports', show),
    Command('modem add', '[NAME]', 'let a modem appear (ril_0)', add),
    Command('modem remove', '[NAME]', 'let a modem vanish (ril_0)', remove),
    Command('sim', '', 'show the SIM cards', show_cards),
    Command('sim insert', '[MODEM]', 'put the SIM card back in (ril_0)',
            lambda phone, name='ril_0': phone.daemon('ofono').call('InsertCard', name)),
    Command('sim remove', '[MODEM]', 'take the SIM card out (ril_0)',
            lambda phone, name='ril_0': phone.daemon('ofono').call('RemoveCard', name)),
]
