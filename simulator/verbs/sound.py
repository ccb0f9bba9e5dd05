# SPDX-License-Identifier: BSD-3-Clause
"""Commands for the sound server and for what plays through it."""

from commands import Command
from sound import AUDIBLE


def show(phone):
    sound = phone.sound
    lines = ['server %s' % ('running' if sound.running() else 'stopped' if sound.objects else 'none')]
    for name in sound.objects:
        lines.append('%s %s' % (name, sound.active(name) or 'without ports'))
    if 'route' in phone.daemons and phone.daemon('route').state() == 'running':
        output, _, source, _, radio = phone.daemon('route').call('State')
        lines.append('route %s, %s, FM radio %s' % (output, source, 'on' if radio else 'off'))
    return '\n'.join(lines)


def show_streams(phone):
    phone.sound.drop_ended()
    return '\n'.join(sorted(phone.sound.streams)) or 'nothing plays'


def listen(phone):
    left, right = (peak >= AUDIBLE for peak in phone.sound.listen())
    return 'both sides' if left and right else 'left' if left else 'right' if right else 'nothing'


COMMANDS = [
    Command('sound', '', 'show the sound server, the active ports and the routes', show),
    Command('sound stop', '', 'let the sound server crash', lambda phone: phone.sound.stop()),
    Command('sound start', '', 'start it again', lambda phone: phone.sound.start()),
    Command('sound freeze', '', 'keep it from answering', lambda phone: phone.sound.freeze()),
    Command('sound thaw', '', 'let it answer again', lambda phone: phone.sound.thaw()),
    Command('sound listen', '', 'tell from which sides of the output sound comes now', listen),
    Command('stream', '', 'show the streams that play besides Kiv', show_streams),
    Command('stream start', '[NAME]', 'let a program play (Music)',
            lambda phone, name='Music': phone.sound.start_stream(name)),
    Command('stream stop', '[NAME]', 'end it', lambda phone, name='Music': phone.sound.stop_stream(name)),
]
