# SPDX-License-Identifier: BSD-3-Clause
"""A phone as a folder of plain data (see simulator/README.md)."""

import configparser
import os

SIMULATOR = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
SHIPPED = os.path.join(SIMULATOR, 'phones')


class BadPhone(Exception):
    pass


def read_ini(path):
    parser = configparser.ConfigParser(interpolation=None, delimiters=('=',), comment_prefixes=('#', ';'))
    parser.optionxform = str
    try:
        with open(path, encoding='utf-8') as file:
            parser.read_file(file)
    except (configparser.Error, UnicodeDecodeError, OSError) as error:
        raise BadPhone('%s: %s' % (path, ' '.join(str(error).split())))
    return {section: dict(parser[section]) for section in parser.sections()}


class PhoneFolder:
    def __init__(self, path):
        self.path = os.path.realpath(path)
        self.name = os.path.basename(self.path)

    @property
    def files(self):
        return os.path.join(self.path, 'files')

    def description(self):
        try:
            with open(os.path.join(self.path, 'README'), encoding='utf-8') as file:
                return file.readline().strip()
        except (OSError, UnicodeDecodeError):
            return ''

    def daemons(self):
        """The sections of daemons.ini: what each simulated daemon is told at its start. A daemon without a section does
        not exist on this phone."""
        path = os.path.join(self.path, 'daemons.ini')
        return read_ini(path) if os.path.exists(path) else {}


def shipped():
    return [PhoneFolder(os.path.join(SHIPPED, name)) for name in sorted(os.listdir(SHIPPED))
            if os.path.isdir(os.path.join(SHIPPED, name, 'files'))]


def find(name):
    """The phone of that name among those shipped, or the phone in that folder."""
    folder = os.path.join(SHIPPED, name) if '/' not in name and name not in ('.', '..') else name
    if not os.path.isdir(folder):
        if '/' in name:
            raise BadPhone('there is no folder %s' % name)
        raise BadPhone('there is no phone named %s; there are: %s. Your own is given by its path, with a slash in it.'
                       % (name, ', '.join(phone.name for phone in shipped())))
    phone = PhoneFolder(folder)
    if not os.path.isdir(phone.files):
        raise BadPhone('%s is no phone: it has no folder named files' % folder)
    return phone
