# SPDX-License-Identifier: BSD-3-Clause
"""The phone's sensors, as the Qt Sensors plugin of simulator/sensors reads them."""

import glob
import math
import os
import shutil
from dataclasses import dataclass

from commands import Failure
from phonefolder import SIMULATOR, BadPhone, read_ini

# One file for each sensor: the numbers of its reading in Qt's units. A sensor that is stuck has an empty file.
FOLDER = '/run/kiv-phone/sensors'
PLUGIN = 'kiv-sensors.so'
PLUGIN_FOLDERS = '/usr/lib/*/qt5/plugins/sensors'


@dataclass
class Kind:
    values: str            # as help text; BRACKETED ones may be left out
    defaults: tuple = ()   # for those
    scales: tuple = ()     # from the user's units to Qt's
    words: tuple = ()      # instead of numbers, for 0 and for 1

    def numbers(self, name, given):
        """What the user's words mean to Qt."""
        names = self.values.split()
        required = sum(not value.startswith('[') for value in names)
        if not required <= len(given) <= len(names):
            raise Failure('say %s %s' % (name, self.values))
        if self.words:
            if given[0] not in self.words:
                raise Failure('say %s %s' % (name, ' or '.join(self.words)))
            return [self.words.index(given[0])]
        try:
            numbers = [float(text) for text in given]
        except ValueError:
            numbers = [math.nan]
        if not all(math.isfinite(number) for number in numbers):
            raise Failure('%s is no set of numbers for %s' % (' '.join(given), name))
        numbers += self.defaults[len(numbers) - required:]
        scales = self.scales or [1] * len(numbers)
        return [number * scale for number, scale in zip(numbers, scales)]

    def text(self, content):
        """What the numbers mean to the user."""
        numbers = [float(text) for text in content.split()]
        if not numbers:
            return 'stuck'
        if self.words:
            return self.words[numbers[0] != 0]
        return ' '.join('%.6g' % (number / scale) for number, scale in zip(numbers, self.scales or [1] * len(numbers)))


KINDS = {
    'accelerometer': Kind('X Y Z'),                                              # m/s²
    'compass': Kind('DEGREES [LEVEL]', (1.0,)),                                  # calibration level from 0 to 1
    'gyroscope': Kind('X Y Z'),                                                  # degrees per second
    'light': Kind('LUX'),
    'magnetometer': Kind('X Y Z [LEVEL]', (1.0,), (1e-6, 1e-6, 1e-6, 1)),        # microteslas
    'proximity': Kind('far|near', words=('far', 'near')),
}


def plugin_path():
    """The newest that a build has made; None if there is none."""
    pattern = os.path.join(glob.escape(os.path.dirname(SIMULATOR)), 'build', '*', 'simulator', 'plugins', 'sensors',
                           PLUGIN)
    return os.environ.get('KIV_SENSORS') or max(glob.glob(pattern), key=os.path.getmtime, default=None)


class Sensors:
    def __init__(self, phone):
        self.phone = phone
        os.makedirs(FOLDER)
        path = os.path.join(phone.folder, 'sensors.ini')
        if not os.path.exists(path):
            return
        try:
            sections = read_ini(path)
        except BadPhone as error:
            raise Failure(str(error))
        if sections.keys() - {'sensors'}:
            raise Failure('%s: unknown words: %s' % (path, ', '.join(sorted(sections.keys() - {'sensors'}))))
        for name, value in sections.get('sensors', {}).items():
            try:
                self.set(name, value.split())
            except Failure as error:
                raise Failure('%s: %s' % (path, error))
        built = plugin_path()
        if built:
            for folder in glob.glob(PLUGIN_FOLDERS):
                shutil.copy(built, folder)

    @staticmethod
    def path(name):
        if name not in KINDS:
            raise Failure('%s is no sensor; there are: %s' % (name, ', '.join(KINDS)))
        return os.path.join(FOLDER, name)

    def names(self):
        return sorted(os.listdir(FOLDER))

    def set(self, name, words):
        path = self.path(name)
        self.phone.write(path, ' '.join('%.9g' % number for number in KINDS[name].numbers(name, words)))

    def show(self, name):
        content = self.phone.read(self.path(name))
        if content is None:
            raise Failure('this phone has no %s' % name)
        return KINDS[name].text(content)

    def stick(self, name):
        self.show(name)
        self.phone.write(self.path(name), '')

    def remove(self, name):
        self.show(name)
        os.unlink(self.path(name))
