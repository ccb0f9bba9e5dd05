# SPDX-License-Identifier: BSD-3-Clause
"""Commands for the positioning provider and the satellites above the phone."""

from commands import Command, Failure

STATUSES = ('error', 'unavailable', 'acquiring', 'available')
RANGES = (('identifier', 1, 999), ('elevation', 0, 90), ('azimuth', 0, 359), ('strength', 0, 99))


def hybris(phone):
    return phone.daemon('hybris')


def show(phone):
    number = hybris(phone).call('Status')
    lines = ['status    %s' % (STATUSES[number] if 0 <= number < len(STATUSES) else number)]
    for identifier, elevation, azimuth, strength, used in hybris(phone).call('Satellites'):
        lines.append('satellite %d: elevation %d, azimuth %d, strength %d%s'
                     % (identifier, elevation, azimuth, strength, ', in use' if used else ''))
    return '\n'.join(lines)


def status(phone, text):
    if text in STATUSES:
        number = STATUSES.index(text)
    else:
        try:
            number = int(text)
        except ValueError:
            number = None
        if number is None or not -1 << 31 <= number < 1 << 31:
            raise Failure('say %s, or the number of a status' % ', '.join(STATUSES))
    hybris(phone).call('ChangeStatus', number)


def numbers(*texts):
    values = []
    for text, (name, smallest, largest) in zip(texts, RANGES):
        try:
            value = int(text)
        except ValueError:
            value = smallest - 1
        if not smallest <= value <= largest:
            raise Failure('%s is no %s from %d to %d' % (text, name, smallest, largest))
        values.append(value)
    return values


def rise(phone, identifier, elevation='45', azimuth='180', strength='35'):
    hybris(phone).call('RaiseSatellite', *numbers(identifier, elevation, azimuth, strength))


def use(phone, identifier, answer='yes'):
    if answer not in ('yes', 'no'):
        raise Failure('say yes or no')
    hybris(phone).call('UseSatellite', *numbers(identifier), answer == 'yes')


COMMANDS = [
    Command('gps', '', 'show what the positioning provider reports', show),
    Command('gps status', 'STATUS', 'error, unavailable, acquiring or available', status),
    Command('satellite rise', 'ID [ELEVATION] [AZIMUTH] [STRENGTH]',
            'let a satellite appear, or move, in degrees, degrees and dB', rise),
    Command('satellite set', 'ID', 'let it vanish below the horizon',
            lambda phone, identifier: hybris(phone).call('SetSatellite', *numbers(identifier))),
    Command('satellite use', 'ID [yes|no]', 'whether the position is made of it', use),
]
