# SPDX-License-Identifier: BSD-3-Clause
"""The phone's cameras, as the Qt Multimedia plugin of simulator/cameras plays them: those that the phone's folder names in
cameras.ini."""

import glob
import os
import shutil

from commands import Failure
from phonefolder import SIMULATOR, BadPhone, read_ini

FOLDER = '/run/kiv-phone/cameras'
# Beside those of the machine, which play videos.
PLUGINS = '/run/kiv-phone/plugins'
PLUGIN = 'kiv-cameras.so'
NAMES = ('back', 'front')
STATES = ('works', 'frozen', 'dark')


def plugin_path():
    """The newest that a build has made; None if there is none."""
    pattern = os.path.join(glob.escape(os.path.dirname(SIMULATOR)), 'build', '*', 'simulator', 'plugins',
                           'mediaservice', PLUGIN)
    return os.environ.get('KIV_CAMERAS') or max(glob.glob(pattern), key=os.path.getmtime, default=None)


class Cameras:
    def __init__(self, phone):
        self.phone = phone
        os.makedirs(FOLDER)
        os.chmod(FOLDER, 0o777)  # the light is written by whoever runs Kiv
        path = os.path.join(phone.folder, 'cameras.ini')
        if not os.path.exists(path):
            return
        try:
            sections = read_ini(path)
        except BadPhone as error:
            raise Failure(str(error))
        for name, state in sections.get('cameras', {}).items():
            self.set(name, state)
        built = plugin_path()
        if built:
            os.makedirs(PLUGINS + '/mediaservice')
            shutil.copy(built, PLUGINS + '/mediaservice')
            others = phone.environment.get('QT_PLUGIN_PATH')
            phone.environment['QT_PLUGIN_PATH'] = ':'.join([PLUGINS] + ([others] if others else []))

    def set(self, name, state):
        if name not in NAMES or state not in STATES:
            raise Failure('say %s and %s' % (' or '.join(NAMES), ' or '.join(STATES)))
        self.phone.write(os.path.join(FOLDER, name), state)

    def remove(self, name):
        if name not in NAMES or not os.path.exists(os.path.join(FOLDER, name)):
            raise Failure('this phone has no camera %s' % name)
        os.unlink(os.path.join(FOLDER, name))

    def show(self):
        lines = []
        for name in NAMES:
            state = self.phone.read(os.path.join(FOLDER, name))
            # Nobody has switched the back one's light as long as there is no word of it; the front one has none.
            light = self.phone.read(os.path.join(FOLDER, 'light-' + name)) or (name == 'back' and state and 'off')
            lines.append('%-6s %s%s' % (name, state or 'removed', ', light %s' % light if light else ''))
        return '\n'.join(lines)


def start(phone):
    phone.cameras = Cameras(phone)
    return phone.cameras
