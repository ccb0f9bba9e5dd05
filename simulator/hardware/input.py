# SPDX-License-Identifier: BSD-3-Clause
"""The phone's event devices: there from the start, and changed by phonectl."""

from inputdevices import InputDevices


def start(phone):
    phone.input = InputDevices(phone)
    return phone.input
