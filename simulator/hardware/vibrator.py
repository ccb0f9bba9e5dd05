# SPDX-License-Identifier: BSD-3-Clause
"""The phone's vibrator, as the Qt Feedback plugin of simulator/feedback moves it: there where the phone's folder has a
vibrator.ini."""

import glob
import os
import shutil

from phonefolder import SIMULATOR

FOLDER = '/run/kiv-phone/vibrator'
PLUGIN = 'kiv-feedback.so'
PLUGIN_FOLDERS = '/usr/lib/*/qt5/plugins/feedback'


def plugin_path():
    """The newest that a build has made; None if there is none."""
    pattern = os.path.join(glob.escape(os.path.dirname(SIMULATOR)), 'build', '*', 'simulator', 'plugins', 'feedback',
                           PLUGIN)
    return os.environ.get('KIV_FEEDBACK') or max(glob.glob(pattern), key=os.path.getmtime, default=None)


class Vibrator:
    def __init__(self, phone):
        self.phone = phone
        self.there = os.path.exists(os.path.join(phone.folder, 'vibrator.ini'))
        if not self.there:
            return
        os.makedirs(FOLDER)
        os.chmod(FOLDER, 0o777)  # the pulses are written by whoever runs Kiv
        self.set('works')
        built = plugin_path()
        if built:
            for folder in glob.glob(PLUGIN_FOLDERS):
                shutil.copy(built, folder)

    def set(self, state):
        self.phone.write(FOLDER + '/motor', state)

    def state(self):
        return self.phone.read(FOLDER + '/motor')

    def pulses(self):
        """[(milliseconds, duration, intensity)] since they were last forgotten."""
        try:
            with open(FOLDER + '/pulses') as file:
                return [tuple(float(number) for number in line.split()) for line in file]
        except FileNotFoundError:
            return []

    def forget(self):
        if os.path.exists(FOLDER + '/pulses'):
            os.unlink(FOLDER + '/pulses')

    def remove(self):
        if self.state() is not None:
            os.unlink(FOLDER + '/motor')


def start(phone):
    phone.vibrator = Vibrator(phone)
    return phone.vibrator
