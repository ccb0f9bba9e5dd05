# SPDX-License-Identifier: BSD-3-Clause
"""Commands for the battery's attributes. A command only writes what this phone's battery has."""

import os

from commands import Command, Failure

# Share of the way from the lowest to the highest design voltage at a charge level, as a lithium cell has it at rest.
VOLTAGE_CURVE = ((0, 0.0), (5, 0.30), (10, 0.38), (20, 0.44), (50, 0.54), (80, 0.76), (100, 1.0))
SHOWN = ('present', 'status', 'health', 'capacity', 'temp', 'voltage_now', 'current_now', 'energy_now', 'energy_full',
         'charge_now', 'charge_full')
SCALES = {'u': 1, 'm': 1000, '': 1000000}
# What a phone shows while no battery is in it.
REMOVED = {'present': '0', 'status': 'Unknown', 'health': 'Unknown', 'capacity': '0', 'current_now': '0',
           'voltage_now': '0', 'energy_now': '0', 'charge_now': '0'}


def battery(phone):
    path = phone.power_supply('Battery')
    if path is None:
        raise Failure('this phone has no battery')
    return path


def number(phone, attribute):
    try:
        return float(phone.read(os.path.join(battery(phone), attribute)))
    except (TypeError, ValueError):
        return None


def set_attribute(phone, attribute, text):
    path = os.path.join(battery(phone), attribute)
    if not os.path.exists(path):
        raise Failure("this phone's battery has no %s" % attribute)
    phone.write(path, text)


def micro(text, unit):
    """A number in the kernel's micro-units: 3700000, or with a unit such as 3.7V or 3700mV."""
    digits, scale = text, 1
    if text.endswith(unit):
        digits = text[:-len(unit)]
        prefix = digits[-1:] if digits[-1:] in ('u', 'm') else ''
        digits, scale = digits[:len(digits) - len(prefix)], SCALES[prefix]
    try:
        return str(round(float(digits) * scale))
    except (ValueError, OverflowError):
        raise Failure('%s is no number; say for example 3700000, 3700m%s or 3.7%s' % (text, unit, unit))


def show(phone):
    path = battery(phone)
    lines = [path]
    for name in SHOWN:
        text = phone.read(os.path.join(path, name))
        if text is not None:
            lines.append('  %-12s %s' % (name, text))
    return '\n'.join(lines)


def level(phone, percent):
    try:
        value = int(percent.rstrip('%'))
    except ValueError:
        value = -1
    if not 0 <= value <= 100:
        raise Failure('%s is no level from 0 to 100' % percent)
    path = battery(phone)
    phone.write_if_there(path + '/capacity', str(value))
    for kind in 'energy', 'charge':
        full = number(phone, kind + '_full')
        if full is not None:
            empty = number(phone, kind + '_empty') or 0
            phone.write_if_there(path + '/%s_now' % kind, str(round(empty + (full - empty) * value / 100)))
    low, high = number(phone, 'voltage_min_design'), number(phone, 'voltage_max_design')
    if low is not None and high is not None:
        for (left, below), (right, above) in zip(VOLTAGE_CURVE, VOLTAGE_CURVE[1:]):
            if left <= value <= right:
                share = below + (above - below) * (value - left) / (right - left)
        phone.write_if_there(path + '/voltage_now', str(round(low + (high - low) * share)))


def temperature(phone, degrees):
    try:
        tenths = round(float(degrees) * 10)
    except (ValueError, OverflowError):
        raise Failure('%s is no temperature in degrees Celsius' % degrees)
    set_attribute(phone, 'temp', str(tenths))


def present(phone, answer):
    if answer not in ('yes', 'no'):
        raise Failure('say yes or no')
    set_attribute(phone, 'present', '1' if answer == 'yes' else '0')


def remove(phone):
    path = battery(phone)
    if hasattr(phone, 'removed_battery'):
        raise Failure('the battery is out already')
    phone.removed_battery = {name: phone.read(os.path.join(path, name)) for name in REMOVED
                             if os.path.exists(os.path.join(path, name))}
    for name in phone.removed_battery:
        phone.write(os.path.join(path, name), REMOVED[name])


def insert(phone):
    if not hasattr(phone, 'removed_battery'):
        raise Failure('the battery is in already')
    path = battery(phone)
    for name, text in phone.removed_battery.items():
        phone.write(os.path.join(path, name), text)
    del phone.removed_battery


def resistance(phone, milliohms=None):
    battery(phone)
    if milliohms is None:
        return '%d mΩ' % phone.charger.milliohms
    try:
        phone.charger.milliohms = int(milliohms)
    except ValueError:
        raise Failure('%s is no number of milliohms' % milliohms)
    return None


COMMANDS = [
    Command('battery', '', 'show what the battery reports', show),
    Command('battery level', 'PERCENT', 'charge level, with the energy, charge and voltage that go with it', level),
    Command('battery temp', 'DEGREES', 'temperature in degrees Celsius', temperature),
    Command('battery health', 'TEXT', 'Good, Overheat, Dead, ...',
            lambda phone, text: set_attribute(phone, 'health', text)),
    Command('battery status', 'TEXT', 'Charging, Discharging, "Not charging", Full, Unknown',
            lambda phone, text: set_attribute(phone, 'status', text)),
    Command('battery present', 'yes|no', 'whether the kernel reports a battery', present),
    Command('battery current', 'VALUE', 'such as 450mA or -450000 (microamperes)',
            lambda phone, text: set_attribute(phone, 'current_now', micro(text, 'A'))),
    Command('battery voltage', 'VALUE', 'such as 3.7V or 3700000 (microvolts)',
            lambda phone, text: set_attribute(phone, 'voltage_now', micro(text, 'V'))),
    Command('battery resistance', '[MILLIOHMS]', 'by which the voltage follows the current when that changes',
            resistance),
    Command('battery set', 'ATTRIBUTE TEXT', "any attribute of the battery's directory, as the kernel writes it",
            set_attribute),
    Command('battery remove', '', 'take the battery out', remove),
    Command('battery insert', '', 'put it back', insert),
]
