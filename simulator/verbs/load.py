# SPDX-License-Identifier: BSD-3-Clause
"""Commands for what the kernel tells about time, load and processes."""

import math
import os
import subprocess

from commands import Command, Failure

UPTIME = '/proc/uptime'
LOAD = '/proc/loadavg'
KERNEL = 'kernel'
# How a process of that kind spends its time. It is seen by the name that it is given.
KINDS = {'busy': 'while :; do :; done', 'idle': 'read nothing'}

processes = {}


def numbers(texts):
    try:
        values = [float(text) for text in texts]
    except ValueError:
        values = [math.nan]
    if not all(0 <= value < math.inf for value in values):
        raise Failure('%s: no numbers from 0 on' % ' '.join(texts))
    return values


def replace(phone, path, text):
    """Puts the text, or the kernel's own file again, at the place of a file of the kernel's."""
    link = '.kernel/' + os.path.basename(path)
    if not os.path.isdir('/proc/.kernel'):
        raise Failure("this phone's /proc is the kernel's and cannot be changed; a phone with a file of its own at the "
                      'top of /proc can')
    if text is None:
        os.unlink(path)
        os.symlink(link, path)
        return
    if os.path.islink(path):
        os.unlink(path)
    phone.write(path, text)


def load(phone, *given):
    if not given:
        return phone.read(LOAD)
    if given == (KERNEL,):
        return replace(phone, LOAD, None)
    averages = numbers(given)
    averages += averages[-1:] * (3 - len(averages))
    return replace(phone, LOAD, '%.2f %.2f %.2f 1/100 1000' % tuple(averages))


def uptime(phone, seconds=None):
    if seconds is None:
        return phone.read(UPTIME)
    if seconds == KERNEL:
        return replace(phone, UPTIME, None)
    return replace(phone, UPTIME, '%.2f 0.00' % numbers([seconds])[0])


def start_process(_, name, kind='busy'):
    if kind not in KINDS:
        raise Failure('say busy or idle')
    if name in processes and processes[name].poll() is None:
        raise Failure('%s is running already' % name)
    # Idle ones wait for an input that never comes; the pipe's other end stays open with the process object.
    processes[name] = subprocess.Popen([name, '-c', KINDS[kind]], executable='/bin/sh', stdin=subprocess.PIPE,
                                       start_new_session=True)


def stop_process(_, name):
    if name not in processes or processes[name].poll() is not None:
        raise Failure('no process was started by the name %s' % name)
    process = processes.pop(name)
    process.kill()
    process.communicate()


COMMANDS = [
    Command('load', '[ONE] [FIVE] [FIFTEEN]', "show or set the load averages; kernel: this machine's", load),
    Command('uptime', '[SECONDS]', "show or set for how long the phone has been running; kernel: this machine's",
            uptime),
    Command('process start', 'NAME [busy|idle]', 'run a process that is seen by this name', start_process),
    Command('process stop', 'NAME', 'end it', stop_process),
]
