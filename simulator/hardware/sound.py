# SPDX-License-Identifier: BSD-3-Clause
"""The sound server, its sinks and its microphones."""

from sound import Sound


def start(phone):
    phone.sound = Sound(phone, phone.pactl, phone.uid)
    return phone.sound
