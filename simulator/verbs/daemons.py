# SPDX-License-Identifier: BSD-3-Clause
"""Commands for the simulated daemons' processes."""

import signal

from commands import Command


def show(phone):
    return '\n'.join('%-10s %s' % (name, daemon.state()) for name, daemon in sorted(phone.daemons.items()))


def freeze(phone, name):
    daemon = phone.daemon(name)
    daemon.signal(signal.SIGSTOP)
    daemon.frozen = True


def thaw(phone, name):
    daemon = phone.daemon(name)
    daemon.signal(signal.SIGCONT)
    daemon.frozen = False


COMMANDS = [
    Command('daemon', '', 'show the daemons', show),
    Command('daemon start', 'NAME', 'start a daemon in its first state',
            lambda phone, name: phone.daemon(name).start()),
    Command('daemon stop', 'NAME', 'end it in an orderly way',
            lambda phone, name: phone.daemon(name).end(signal.SIGTERM)),
    Command('daemon kill', 'NAME', 'let it crash', lambda phone, name: phone.daemon(name).end(signal.SIGKILL)),
    Command('daemon freeze', 'NAME', 'keep it from answering', freeze),
    Command('daemon thaw', 'NAME', 'let it answer again', thaw),
]
