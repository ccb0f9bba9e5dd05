# SPDX-License-Identifier: BSD-3-Clause
"""Commands for USB drives on the phone's socket: the units by which systemd tells of them."""

import re

from commands import Command, Failure


def show(phone):
    return '\n'.join(phone.daemon('systemd').call('Units')) or 'no drives'


def units(name):
    """A drive with one partition."""
    if not re.fullmatch(r'sd[a-z]+', name):
        raise Failure('%s is no name of a drive such as sda' % name)
    return ['dev-%s.device' % name, 'dev-%s1.device' % name]


def attach(phone, name='sda'):
    for unit in units(name):
        phone.daemon('systemd').call('AddUnit', unit)


def detach(phone, name='sda'):
    for unit in reversed(units(name)):
        phone.daemon('systemd').call('RemoveUnit', unit)


COMMANDS = [
    Command('drive', '', 'show the USB drives by their systemd units', show),
    Command('drive attach', '[NAME]', 'plug a USB drive in (sda)', attach),
    Command('drive detach', '[NAME]', 'pull it out', detach),
]
