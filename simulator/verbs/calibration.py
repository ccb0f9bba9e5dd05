# SPDX-License-Identifier: BSD-3-Clause
"""Commands for the sensor calibration helpers."""

from commands import Command


def change(phone, sensor=None, behaviour=None):
    if sensor is None:
        return '\n'.join('%-13s  %s' % (name, phone.calibration.show(name)) for name in phone.calibration.names())
    if behaviour is None:
        return phone.calibration.show(sensor)
    return phone.calibration.set(sensor, behaviour)


COMMANDS = [
    Command('calibration', '[SENSOR] [STATE]', 'show how the calibration helpers are; one works, fails, hangs, crashes '
            'or is missing from now on', change),
]
