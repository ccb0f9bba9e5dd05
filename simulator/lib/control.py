# SPDX-License-Identifier: BSD-3-Clause
"""Where running phones are found: one socket each in a directory of the user's own.

A request is one line of JSON, a list of words; the answer one line of JSON with status, output and error.
"""

import errno
import itertools
import json
import os
import socket
import stat
import tempfile

REQUEST_LIMIT = 1 << 20


class NoPhone(Exception):
    pass


def directory():
    return '/tmp/kiv-phones-%d' % os.getuid()


def make_directory():
    path = directory()
    try:
        os.mkdir(path, 0o700)
    except FileExistsError:
        pass
    status = os.lstat(path)
    # Somebody else may have been here first: /tmp is everybody's.
    if not stat.S_ISDIR(status.st_mode) or status.st_uid != os.getuid() or status.st_mode & 0o077:
        raise NoPhone('%s is not a directory of your own' % path)
    return path


def connect(path):
    """A connection to the phone behind the socket; None, and the socket is removed, if that phone is gone."""
    connection = socket.socket(socket.AF_UNIX)
    try:
        connection.connect(path)
        return connection
    except OSError as error:
        connection.close()
        if error.errno == errno.ECONNREFUSED:
            try:
                os.unlink(path)
            except OSError:
                pass
        return None


def claim(name, identifier=None):
    """A listening socket for a new phone, and its id: the identifier, or the phone's name with a free number."""
    home = make_directory()
    listener = socket.socket(socket.AF_UNIX)
    # Linked to its name only once it listens: whoever finds the name then finds a phone.
    unnamed = tempfile.mktemp(prefix='.new-', dir=home)
    listener.bind(unnamed)
    listener.listen()
    try:
        names = [identifier] if identifier else \
            itertools.chain([name], ('%s-%d' % (name, number) for number in itertools.count(2)))
        for candidate in names:
            path = os.path.join(home, candidate)
            for _ in range(2):
                try:
                    os.link(unnamed, path)
                    return listener, candidate, path
                except FileExistsError:
                    connection = connect(path)
                    if connection:
                        connection.close()
                        break
        raise NoPhone('a phone named %s is running already' % identifier)
    finally:
        os.unlink(unnamed)


def running():
    """Ids of the running phones, the latest first."""
    home = directory()
    try:
        names = [name for name in os.listdir(home) if not name.startswith('.')]
    except OSError:
        return []
    found = []
    for name in names:
        path = os.path.join(home, name)
        try:
            started = os.lstat(path).st_mtime_ns
        except OSError:
            continue
        connection = connect(path)
        if connection:
            connection.close()
            found.append((started, name))
    return [name for _, name in sorted(found, reverse=True)]


def request(path, words, timeout=None):
    """What the phone behind the socket answers: (status, output, error)."""
    connection = connect(path)
    if not connection:
        raise NoPhone('no phone answers at %s' % path)
    with connection:
        connection.settimeout(timeout)
        connection.sendall(json.dumps(words).encode() + b'\n')
        answer = b''
        while not answer.endswith(b'\n'):
            part = connection.recv(65536)
            if not part:
                raise NoPhone('the phone ended before it answered')
            answer += part
    fields = json.loads(answer)
    return fields['status'], fields['output'], fields['error']
