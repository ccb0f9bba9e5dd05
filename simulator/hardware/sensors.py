# SPDX-License-Identifier: BSD-3-Clause
"""The phone's sensors: there from the start, and changed by phonectl."""

from sensors import Sensors


def start(phone):
    phone.sensors = Sensors(phone)
    return phone.sensors
