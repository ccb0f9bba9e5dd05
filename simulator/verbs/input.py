# SPDX-License-Identifier: BSD-3-Clause
"""Commands for input devices: the headset jack, keys and buttons, the hall switch."""

import errno
import subprocess

import inputdevices
from commands import Command, Failure

PLUGS = {
    'nothing': (0, 0),
    'headphone': (1, 0),
    'microphone': (0, 1),
    'headset': (1, 1),
}
SWITCHES = ('SW_HEADPHONE_INSERT', 'SW_MICROPHONE_INSERT')
LID = 'SW_LID'

# What X makes of a phone's keys. On a phone it reads them from their device; here it has no devices.
KEY_SYMBOLS = {
    'KEY_BACK': 'XF86Back',
    'KEY_CAMERA': 'XF86WebCam',
    'KEY_HOME': 'Home',
    'KEY_MEDIA': 'XF86AudioMedia',
    'KEY_MENU': 'Menu',
    'KEY_MUTE': 'XF86AudioMute',
    'KEY_NEXTSONG': 'XF86AudioNext',
    'KEY_PLAYPAUSE': 'XF86AudioPlay',
    'KEY_POWER': 'XF86PowerOff',
    'KEY_PREVIOUSSONG': 'XF86AudioPrev',
    'KEY_VOLUMEDOWN': 'XF86AudioLowerVolume',
    'KEY_VOLUMEUP': 'XF86AudioRaiseVolume',
}
XDOTOOL_TIMEOUT_S = 30


# The jack

def jack(phone):
    device = phone.input.first_with(*SWITCHES)
    if device is None:
        raise Failure('this phone has no headset jack')
    return device


def show_jack(phone):
    device = jack(phone)
    state = tuple(int(device.is_on(name)) for name in SWITCHES)
    return next(word for word, switches in PLUGS.items() if switches == state)


def plug(phone, what):
    if what not in PLUGS:
        raise Failure('say headphone, microphone or headset')
    jack(phone).send(list(zip(SWITCHES, PLUGS[what])))
    # The audio policy looks at the same switches.
    if 'route' in phone.daemons and phone.daemon('route').state() == 'running':
        phone.daemon('route').call('Plug', *(bool(on) for on in PLUGS[what]))


# The cover

def lid(phone):
    device = phone.input.first_with(LID)
    if device is None:
        raise Failure('this phone has no hall switch')
    return device


# The nodes of hall switches that feel no magnet any more.
stuck_lids = set()


def show_lid(phone):
    device = lid(phone)
    return ('closed' if device.is_on(LID) else 'open') + (', stuck' if device.node in stuck_lids else '')


def move_lid(phone, closed):
    device = lid(phone)
    if device.node not in stuck_lids:
        device.send([(LID, closed)])


def stick_lid(phone, state='on'):
    if state not in ('on', 'off'):
        raise Failure('say on or off')
    (stuck_lids.add if state == 'on' else stuck_lids.discard)(lid(phone).node)


# Keys

def keys(phone):
    """Pairs of a key's name and its device. The touch of a panel is no key."""
    return [(name, device) for device in phone.input.all() if device.plugged() and not device.axes
            for name, (kind, _) in device.codes.items() if kind == inputdevices.EV_KEY]


def find_key(phone, word):
    """The first device that has the key, which may be given without KEY_ or BTN_."""
    wanted = word.upper()
    for name, device in keys(phone):
        if wanted in (name, name[len('KEY_'):]):
            return name, device
    raise Failure('this phone has no key %s; it has: %s'
                  % (word, ', '.join(sorted({name for name, _ in keys(phone)})) or 'no keys'))


def tell_x(phone, action, name):
    if name not in KEY_SYMBOLS or 'DISPLAY' not in phone.environment:
        return
    environment = dict(phone.environment)
    environment.pop('LD_PRELOAD', None)
    try:
        subprocess.run(['xdotool', action, KEY_SYMBOLS[name]], env=environment, stdin=subprocess.DEVNULL,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=XDOTOOL_TIMEOUT_S)
    except (OSError, subprocess.TimeoutExpired):
        pass  # a phone without a screen has its devices still


def key(phone, word, value, action):
    name, device = find_key(phone, word)
    device.send([(name, value)])
    tell_x(phone, action, name)


def press(phone, word):
    key(phone, word, 1, 'keydown')


def release(phone, word):
    key(phone, word, 0, 'keyup')


def click(phone, word):
    press(phone, word)
    release(phone, word)


def show_keys(phone):
    return '\n'.join('%-8s %-20s %s' % (device.node, name, 'down' if device.is_on(name) else 'up')
                     for name, device in keys(phone))


# Devices as such

def show_devices(phone):
    lines = []
    for device in phone.input.all():
        if device.plugged():
            state = ' '.join(name for name, (kind, _) in device.codes.items()
                             if kind in (inputdevices.EV_KEY, inputdevices.EV_SW) and device.is_on(name))
            readers = device.call('readers')
            state = '%s%s' % (state or '-', '  (%d reading)' % readers if readers else '')
        else:
            state = 'unplugged'
        lines.append('%-8s %-28s %s' % (device.node, device.settings.get('name', ''), state))
    return '\n'.join(lines)


def send(phone, node, *words):
    device = phone.input.device(node)
    if len(words) % 2:
        raise Failure('each code needs a value')
    changes = []
    for name, value in zip(words[::2], words[1::2]):
        if name not in device.codes:
            raise Failure('%s has no %s; it has: %s' % (node, name, ', '.join(device.codes) or 'no codes'))
        try:
            changes.append((name, int(value, 0)))
        except ValueError:
            raise Failure('%s is no value' % value)
    device.send(changes)


def fail(phone, node, what, how):
    device = phone.input.device(node)
    known = {'open': 'open', 'read': 'read', **inputdevices.REQUESTS}
    if what not in known:
        raise Failure('%s cannot fail; these can: %s' % (what, ', '.join(known)))
    if how == 'none':
        error = 0
    elif how == 'eof' and what == 'read':
        error = inputdevices.END_OF_FILE
    else:
        error = getattr(errno, how, None) if how.startswith('E') else None
        if not isinstance(error, int):
            raise Failure('say an error such as EIO%s or none' % (', eof' if what == 'read' else ''))
    if what in ('open', 'read'):
        device.call('fail_' + what, error)
    else:
        device.call('fail_ioctl', known[what], error)


def unplug_device(phone, node):
    phone.input.device(node).call('remove')


def plug_device(phone, node):
    device = phone.input.device(node)
    if device.plugged():
        raise Failure('%s is plugged in already' % node)
    device.plug()


COMMANDS = [
    Command('jack', '', 'show what is plugged into the headset jack', show_jack),
    Command('jack plug', 'headphone|microphone|headset', 'plug it into the headset jack', plug),
    Command('jack unplug', '', 'unplug it', lambda phone: plug(phone, 'nothing')),
    Command('hall', '', 'show the hall switch', show_lid),
    Command('hall close', '', 'close the cover', lambda phone: move_lid(phone, 1)),
    Command('hall open', '', 'open it', lambda phone: move_lid(phone, 0)),
    Command('hall stuck', '[on|off]', 'the switch does not feel the cover', stick_lid),
    Command('key', '', 'show the keys, those of the headset too', show_keys),
    Command('key press', 'NAME', 'press a key: volumeup, media, BTN_1', press),
    Command('key release', 'NAME', 'release it', release),
    Command('key click', 'NAME', 'press and release it', click),
    Command('input', '', 'show the input devices', show_devices),
    Command('input send', 'NODE CODE VALUE [MORE...]', 'send one frame, such as event3 SW_LID 1', send),
    Command('input fail', 'NODE WHAT ERROR', 'let open, read or an ioctl fail: EIO, eof, none', fail),
    Command('input unplug', 'NODE', 'remove a device', unplug_device),
    Command('input plug', 'NODE', 'bring it back', plug_device),
]
