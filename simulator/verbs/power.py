# SPDX-License-Identifier: BSD-3-Clause
"""Commands that end the phone's day."""

from commands import Command


def shutdown(phone):
    phone.daemon('dsme').emit('com.nokia.dsme.signal', 'shutdown_ind')


COMMANDS = [
    Command('shutdown', '', 'the device-state daemon announces that the phone shuts down', shutdown),
]
