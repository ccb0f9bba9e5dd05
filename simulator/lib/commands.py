# SPDX-License-Identifier: BSD-3-Clause
"""The words that phonectl understands. Each file in simulator/verbs adds the commands of one area:

    from commands import Command, Failure

    def ring(phone, times='1'):
        ...
        return 'text for the user, or None'

    COMMANDS = [Command('bell ring', '[TIMES]', 'ring the bell', ring)]

The second field names the arguments: PLAIN ones are required, [BRACKETED] ones may be left out, and a last one with
dots takes all the rest. The function gets the phone (lib/phone.py) and the arguments as text.
"""

import glob
import importlib.util
import os
from dataclasses import dataclass
from typing import Callable

FOLDER = os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))), 'verbs')


class Failure(Exception):
    """The command could not be carried out."""


class Usage(Exception):
    """The words make no command."""


@dataclass
class Command:
    words: str
    arguments: str
    help: str
    function: Callable

    def check(self, given):
        names = self.arguments.split()
        required = sum(not name.startswith('[') for name in names)
        endless = bool(names) and names[-1].rstrip(']').endswith('...')
        if len(given) < required or (len(given) > len(names) and not endless):
            raise Usage('usage: phonectl ' + ' '.join([self.words, *names]))


def load_module(path):
    name = os.path.basename(path)[:-len('.py')]
    spec = importlib.util.spec_from_file_location('kiv_simulator_' + name, path)
    module = importlib.util.module_from_spec(spec)
    spec.loader.exec_module(module)
    return module


def load(folder=FOLDER):
    commands = []
    for path in sorted(glob.glob(os.path.join(glob.escape(folder), '*.py'))):
        commands += load_module(path).COMMANDS
    return commands


def find(commands, words):
    """The command that the words begin with, and the arguments that follow it."""
    best = None
    for command in commands:
        own = command.words.split()
        if words[:len(own)] == own and (best is None or len(own) > len(best.words.split())):
            best = command
    area = sorted({command.words.split()[1] for command in commands
                   if command.words.split()[0] == words[0] and ' ' in command.words})
    if best is None:
        if not area:
            raise Usage("unknown word '%s' (see phonectl help)" % words[0])
        if len(words) == 1:
            raise Usage('%s needs one of: %s' % (words[0], ', '.join(area)))
        raise Usage("%s: unknown word '%s'; known are: %s" % (words[0], words[1], ', '.join(area)))
    given = words[len(best.words.split()):]
    if area and best.words == words[0] and given and not best.arguments:
        raise Usage("%s: unknown word '%s'; known are: %s" % (words[0], given[0], ', '.join(area)))
    best.check(given)
    return best, given


def run(commands, phone, words):
    """Carries out a request; returns (status, output, error)."""
    try:
        if not words:
            raise Usage('nothing to do (see phonectl help)')
        command, arguments = find(commands, words)
        return 0, command.function(phone, *arguments) or '', ''
    except Usage as error:
        return 2, '', str(error)
    except Failure as error:
        return 1, '', str(error)
    except OSError as error:
        return 1, '', '%s: %s' % (error.filename or words[0], error.strerror)


def help_text(commands):
    lines = [(' '.join([command.words, command.arguments]).rstrip(), command.help) for command in commands]
    width = min(max(len(left) for left, _ in lines), 34)
    return '\n'.join('  %-*s  %s' % (width, left, right) for left, right in lines)
