# SPDX-License-Identifier: BSD-3-Clause
"""Commands for the smart cover."""

from commands import Command, Failure


def show(phone):
    ready, docked, identifier = phone.daemon('zeld').call('State')
    return 'daemon  %s\ncover   %s' % ('ready' if ready else 'not ready', identifier if docked else 'none')


def dock(phone, identifier='ZEL-0001'):
    phone.daemon('zeld').call('Dock', identifier)


def remove(phone):
    phone.daemon('zeld').call('Undock')


def ready(phone, answer):
    if answer not in ('yes', 'no'):
        raise Failure('say yes or no')
    phone.daemon('zeld').call('ChangeReady', answer == 'yes')


COMMANDS = [
    Command('cover', '', 'show what the smart-cover daemon reports', show),
    Command('cover dock', '[IDENTIFIER]', 'put a cover on the phone (ZEL-0001)', dock),
    Command('cover remove', '', 'take it off', remove),
    Command('cover ready', 'yes|no', 'whether the daemon is ready to recognise covers', ready),
]
