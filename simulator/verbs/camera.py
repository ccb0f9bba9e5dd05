# SPDX-License-Identifier: BSD-3-Clause
"""Commands for the cameras."""

from commands import Command

COMMANDS = [
    Command('camera', '', 'show the cameras and whether their light burns', lambda phone: phone.cameras.show()),
    Command('camera add', 'front|back', 'a camera that works',
            lambda phone, name: phone.cameras.set(name, 'works')),
    Command('camera remove', 'front|back', 'take it out', lambda phone, name: phone.cameras.remove(name)),
    Command('camera freeze', 'front|back', 'it shows the same picture for ever',
            lambda phone, name: phone.cameras.set(name, 'frozen')),
    Command('camera darken', 'front|back', 'it delivers no picture',
            lambda phone, name: phone.cameras.set(name, 'dark')),
]
