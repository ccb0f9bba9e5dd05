# SPDX-License-Identifier: BSD-3-Clause
"""The phone's event devices, as the library of simulator/evdev makes them."""

import ctypes
import errno
import functools
import glob
import os
import re
import shutil

from commands import Failure
from phonefolder import SIMULATOR, BadPhone, read_ini

CODES_HEADER = '/usr/include/linux/input-event-codes.h'
LIBRARY = 'libkiv-evdevsim.so'
# A directory in which the dynamic loader also looks for the libraries that a set-user-id kiv preloads.
LIBRARY_FOLDER = '/usr/lib'

EV_KEY, EV_ABS, EV_SW = 1, 3, 5
INPUT_PROP_DIRECT = 1
END_OF_FILE = -1
BUSES = {'usb': 0x03, 'bluetooth': 0x05, 'virtual': 0x06, 'i2c': 0x18, 'host': 0x19, 'spi': 0x1c}
# The kind of a code, by the section that lists it.
SECTIONS = {'keys': (EV_KEY, ('KEY_', 'BTN_')), 'switches': (EV_SW, ('SW_',)), 'absolute': (EV_ABS, ('ABS_',))}
SETTINGS = ('node', 'name', 'phys', 'uniq', 'bus', 'vendor', 'product', 'version', 'direct', 'event')

# _IOC_NR of the requests that Kiv makes.
REQUESTS = {'version': 0x01, 'id': 0x02, 'name': 0x06, 'types': 0x20, 'keys': 0x20 + EV_KEY, 'switches': 0x20 + EV_SW,
            'keys-down': 0x18, 'switches-on': 0x1b}


class Change(ctypes.Structure):
    _fields_ = [('type', ctypes.c_uint16), ('code', ctypes.c_uint16), ('value', ctypes.c_int32)]


@functools.lru_cache
def codes():
    """The numbers of the kernel's names for keys, switches and axes."""
    numbers = {}
    with open(CODES_HEADER) as file:
        for line in file:
            match = re.match(r'#define\s+((?:KEY|BTN|SW|ABS)_\w+)\s+(0x[0-9a-fA-F]+|\d+|\w+)', line)
            if match:
                name, value = match.groups()
                numbers[name] = numbers[value] if value in numbers else int(value, 0)
    return numbers


def library_path():
    """The newest that a build has made; None if there is none."""
    if os.environ.get('KIV_EVDEVSIM'):
        return os.environ['KIV_EVDEVSIM']
    pattern = os.path.join(glob.escape(os.path.dirname(SIMULATOR)), 'build', '*', 'simulator', 'evdev', LIBRARY)
    return max(glob.glob(pattern), key=os.path.getmtime, default=None)


class InputDevice:
    """A device as its file in the phone's folder input describes it."""

    def __init__(self, library, path):
        self.library = library
        self.path = path
        try:
            description = read_ini(path)
        except BadPhone as error:
            raise Failure(str(error))
        unknown = description.keys() - {'device'} - SECTIONS.keys()
        settings = description.pop('device', {})
        unknown |= settings.keys() - set(SETTINGS)
        if unknown:
            raise self.bad('unknown words: ' + ', '.join(sorted(unknown)))
        self.node = settings.get('node', '')
        if not re.fullmatch(r'[\w-][\w.-]*', self.node, re.ASCII):
            raise self.bad('node must be a name in /dev/input')
        self.settings = settings
        self.codes, self.on, self.axes = {}, [], {}
        for section, content in description.items():
            self.read_section(section, content)

    def bad(self, text):
        return Failure('%s: %s' % (self.path, text))

    def read_section(self, section, content):
        kind, prefixes = SECTIONS[section]
        if kind == EV_ABS:
            names, on = list(content), []
            for name, limits in content.items():
                try:
                    numbers = [int(number, 0) for number in limits.split()]
                    smallest, largest, *more = numbers
                    value, fuzz, flat, resolution = (more + [0] * 4)[:4]
                except ValueError:
                    raise self.bad('%s needs its smallest and its largest value' % name)
                self.axes[name] = (value, smallest, largest, fuzz, flat, resolution)
        else:
            if content.keys() - {'codes', 'on'}:
                raise self.bad('unknown words: ' + ', '.join(sorted(content.keys() - {'codes', 'on'})))
            names, on = content.get('codes', '').split(), content.get('on', '').split()
        for name in names:
            if not name.startswith(prefixes) or name not in codes():
                raise self.bad('%s is no code for %s' % (name, section))
            self.codes[name] = (kind, codes()[name])
        for name in on:
            if name not in names:
                raise self.bad('%s is on but not among the codes' % name)
        self.on += on

    def number(self, name, default='0'):
        text = self.settings.get(name, default)
        try:
            return BUSES[text] if name == 'bus' and text in BUSES else int(text, 0)
        except ValueError:
            raise self.bad('%s is no number for %s' % (text, name))

    def flag(self, name, default):
        return self.settings.get(name, default).lower() in ('yes', 'true', '1')

    def plug(self):
        texts = [os.fsencode(self.settings.get(name, '')) for name in ('name', 'phys', 'uniq')]
        self.call('create', int(self.flag('event', 'yes')), *texts)
        self.call('set_id', *(self.number(name) for name in ('bus', 'vendor', 'product', 'version')))
        if self.flag('direct', 'no'):
            self.call('add_property', INPUT_PROP_DIRECT)
        for name, code in self.codes.items():
            self.call('add_code', *code)
        for name in self.on:
            self.call('preset', *self.codes[name], 1)
        for name, limits in self.axes.items():
            self.call('set_axis', codes()[name], *limits)
        self.call('publish', 0o666)

    def call(self, function, *arguments):
        result = getattr(self.library, 'evdev_' + function)(self.node.encode(), *arguments)
        if result < 0:
            if -result in (errno.ENOENT, errno.ENODEV):
                raise Failure('%s is not plugged in' % self.node)
            raise Failure('%s: %s' % (self.node, os.strerror(-result)))
        return result

    def plugged(self):
        return self.library.evdev_readers(self.node.encode()) >= 0

    def is_on(self, name):
        return self.call('state', *self.codes[name]) == 1

    def send(self, changes):
        """One frame; changes are pairs of a code's name and its value."""
        records = [Change(*self.codes[name], value) for name, value in changes]
        return self.call('send', (Change * len(records))(*records), ctypes.c_size_t(len(records)))


class InputDevices:
    """All of the phone's event devices."""

    def __init__(self, phone):
        self.devices = []
        files = sorted(glob.glob(os.path.join(glob.escape(phone.folder), 'input', '*.ini')))
        built = library_path()
        self.available = built is not None
        if not files or not self.available:
            return
        library = os.path.join(LIBRARY_FOLDER, LIBRARY)
        shutil.copyfile(built, library)
        # The loader preloads nothing else into a set-user-id program.
        os.chmod(library, 0o4755)
        loaded = ctypes.CDLL(library)
        self.devices = [InputDevice(loaded, path) for path in files]
        nodes = [device.node for device in self.devices]
        for device in self.devices:
            if nodes.count(device.node) > 1:
                raise device.bad('there are two devices with the node ' + device.node)
            device.plug()
        phone.environment['LD_PRELOAD'] = ' '.join(filter(None, (LIBRARY, phone.environment.get('LD_PRELOAD'))))
        # A kiv built with the address sanitizer would rather have its runtime come first.
        phone.environment['ASAN_OPTIONS'] = ':'.join(
            filter(None, (phone.environment.get('ASAN_OPTIONS'), 'verify_asan_link_order=0')))

    def all(self):
        if not self.available:
            raise Failure('this phone was started without its input devices: cmake --build builds what they need')
        return self.devices

    def device(self, node):
        for device in self.all():
            if device.node == node:
                return device
        raise Failure('this phone has no %s; it has: %s'
                      % (node, ', '.join(device.node for device in self.devices) or 'no input devices'))

    def first_with(self, *names):
        """The device that Kiv would find by these codes; None if there is none."""
        for device in sorted(self.all(), key=lambda device: device.node.lower()):
            if all(name in device.codes for name in names) and device.plugged():
                return device
        return None
