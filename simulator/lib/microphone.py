# SPDX-License-Identifier: BSD-3-Clause
"""What a microphone hears: microphone.py PIPE ACTIVE PORTS writes the tones of the active port into the pipe. PORTS is a
list of NAME:LEFT:RIGHT in Hertz; a port without tones hears nothing."""

import array
import fcntl
import math
import os
import sys

RATE = 48000
CHUNK = 4 * RATE // 50
LOUDNESS = 8000


def second(left, right):
    """Whole numbers of Hertz, so that a second of it can be repeated without a click."""
    frames = array.array('h')
    for at in range(RATE):
        for tone in left, right:
            frames.append(round(LOUDNESS * math.sin(2 * math.pi * tone * at / RATE)))
    if sys.byteorder == 'big':
        frames.byteswap()
    return frames.tobytes()


def main():
    pipe, active, ports = sys.argv[1:]
    heard = {}
    for port in ports.split():
        name, left, right = (port.split(':') + ['0', '0'])[:3]
        heard[name] = second(int(left), int(right))
    silence = bytes(4 * RATE)
    fd = os.open(pipe, os.O_WRONLY)
    fcntl.fcntl(fd, fcntl.F_SETPIPE_SZ, 4096)  # what was heard through another port is soon gone
    at = 0
    while True:
        try:
            with open(active) as file:
                frames = heard.get(file.read().strip(), silence)
        except OSError:
            frames = silence
        part = frames[at:at + CHUNK]
        while part:
            part = part[os.write(fd, part):]
        at = (at + CHUNK) % len(silence)


main()
