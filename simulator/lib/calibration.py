# SPDX-License-Identifier: BSD-3-Clause
"""What the calibration helpers of the shipped phones keep, and how they behave."""

import os

from commands import Failure

HELPERS = '/usr/lib/sensor-calibration'
PREFIX = 'calibrate_'
FOLDER = '/run/kiv-phone/calibration'
BEHAVIOURS = ('works', 'fails', 'hangs', 'crashes')
MISSING = 'missing'
FACTORY = '0.000 0.000 0.000'


class Calibration:
    def __init__(self, phone):
        self.phone = phone
        os.mkdir(FOLDER)
        for sensor in self.helpers():
            folder = os.path.join(FOLDER, sensor)
            os.mkdir(folder)
            for name, text in (('type', 'offset'), ('factory', FACTORY), ('values', FACTORY), ('behaviour', 'works')):
                phone.write(os.path.join(folder, name), text)
            # The helper runs as the phone's user.
            user = os.stat(os.environ['XDG_RUNTIME_DIR'])
            os.chown(folder, user.st_uid, user.st_gid)

    @staticmethod
    def helpers():
        if not os.path.isdir(HELPERS):
            return []
        return sorted(name[len(PREFIX):] for name in os.listdir(HELPERS) if name.startswith(PREFIX))

    @staticmethod
    def names():
        return sorted(os.listdir(FOLDER))

    def folder(self, sensor):
        if sensor not in self.names():
            raise Failure("this phone cannot calibrate '%s'; it can: %s"
                          % (sensor, ', '.join(self.names()) or 'nothing'))
        return os.path.join(FOLDER, sensor)

    def show(self, sensor):
        folder = self.folder(sensor)
        if sensor not in self.helpers():
            return MISSING
        return '%s, %s' % (self.phone.read(folder + '/behaviour'), self.phone.read(folder + '/values'))

    def set(self, sensor, behaviour):
        folder = self.folder(sensor)
        if behaviour not in (*BEHAVIOURS, MISSING):
            raise Failure('say %s or %s' % (', '.join(BEHAVIOURS), MISSING))
        there, away = os.path.join(HELPERS, PREFIX + sensor), os.path.join(HELPERS, '.' + sensor)
        if behaviour == MISSING:
            if os.path.lexists(there):
                os.rename(there, away)
            return
        self.phone.write(folder + '/behaviour', behaviour)
        if os.path.lexists(away):
            os.rename(away, there)
