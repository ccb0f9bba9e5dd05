# SPDX-License-Identifier: BSD-3-Clause
"""The command for any file of the phone."""

import os
import shutil

from commands import Command, Failure


def change(phone, path, text=None):
    if not path.startswith('/'):
        raise Failure('%s is no absolute path' % path)
    if text is None:
        try:
            with open(path, encoding='utf-8', errors='replace') as file:
                return file.read().rstrip('\n')
        except OSError as error:
            raise Failure('%s: %s' % (path, error.strerror))
    if text != '--remove':
        phone.write(path, text)
        return None
    parent, name = os.path.split(path.rstrip('/'))
    place = os.path.join(os.path.realpath(parent), name)
    if not os.path.lexists(place):
        raise Failure('there is no %s' % path)
    own = phone.own_file_systems()
    # Nothing of the machine's may lie below, either.
    for folder, folders, files in os.walk(place):
        for entry in [folder, *(os.path.join(folder, name) for name in folders + files)]:
            if os.lstat(entry).st_dev not in own:
                raise Failure("%s is not the phone's but this machine's" % entry)
    if os.lstat(place).st_dev not in own:
        raise Failure("%s is not the phone's but this machine's" % path)
    if os.path.isdir(place) and not os.path.islink(place):
        shutil.rmtree(place)
    else:
        os.unlink(place)
    return None


COMMANDS = [
    Command('file', 'PATH [TEXT|--remove]', "show, write (as one line) or remove any file of the phone's", change),
]
