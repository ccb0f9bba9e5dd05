# SPDX-License-Identifier: BSD-3-Clause
"""The charging circuit: the battery follows the cable and the switch charger_disable, as it does on a phone."""

CHARGING_MICROAMPERES = 1100000
DRAIN_MICROAMPERES = 240000
LOOK_EVERY_MS = 50
# What a battery of middle age has, with its contacts.
MILLIOHMS = 140


class Charger:
    def __init__(self, phone):
        self.phone = phone
        self.milliohms = MILLIOHMS
        self.seen = self.inputs()
        phone.every(LOOK_EVERY_MS, self.look)

    def inputs(self):
        """What decides about charging: None for a file that this phone has not."""
        battery, usb = self.phone.power_supply('Battery'), self.phone.power_supply('USB')
        capacity = battery and self.phone.read(battery + '/capacity')
        return (battery, battery and self.phone.read(battery + '/present'), capacity == '100',
                usb and self.phone.read(usb + '/online'), usb and self.phone.read(usb + '/charger_disable'))

    def follow(self, battery, current):
        try:
            before = int(self.phone.read(battery + '/current_now'))
            voltage = int(self.phone.read(battery + '/voltage_now'))
        except (TypeError, ValueError):
            return
        if voltage > 0:
            self.phone.write(battery + '/voltage_now', str(voltage + (current - before) * self.milliohms // 1000))

    def look(self):
        now = self.inputs()
        if now == self.seen:
            return
        before, self.seen = self.seen, now
        battery, present, full, online, disabled = now
        if battery is None or present == '0':
            return
        if online != '1' or (disabled or '0').strip() not in ('', '0'):
            status, current = 'Discharging', -DRAIN_MICROAMPERES
        elif full:
            status, current = 'Full', 0
        else:
            status, current = 'Charging', CHARGING_MICROAMPERES
        # Whoever waits for the status finds the current that goes with it, and the voltage that goes with that.
        # Whoever sets the level has set the voltage that is read at it.
        if now[3:] != before[3:]:
            self.follow(battery, current)
        self.phone.write_if_there(battery + '/current_now', str(current))
        self.phone.write_if_there(battery + '/status', status)


def start(phone):
    phone.charger = Charger(phone)
    return phone.charger
