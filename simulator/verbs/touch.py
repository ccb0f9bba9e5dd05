# SPDX-License-Identifier: BSD-3-Clause
"""Commands for the touch controller."""

import os
import stat

from commands import Command, Failure

SELF_TEST = '/sys/kernel/debug/tp_s3202_dbg/tp_self_test'
RESULTS = {'pass': '0', 'fail': '1'}


def remove():
    if os.path.lexists(SELF_TEST):
        os.unlink(SELF_TEST)


def waiting_readers():
    """A descriptor to those who read while the controller is busy; None if it is not. Opened for both ways, so that it
    also reaches those who come only now."""
    if not os.path.exists(SELF_TEST) or not stat.S_ISFIFO(os.stat(SELF_TEST).st_mode):
        return None
    return os.open(SELF_TEST, os.O_RDWR | os.O_NONBLOCK)


def self_test(phone, result):
    if result not in (*RESULTS, 'busy', 'missing'):
        raise Failure('say pass, fail, busy or missing')
    phone.check_is_phones(SELF_TEST)
    if result in RESULTS:
        readers = waiting_readers()
        phone.write(SELF_TEST, RESULTS[result])
        if readers is not None:
            os.write(readers, RESULTS[result].encode() + b'\n')
            os.close(readers)
        return
    remove()
    if result == 'busy':
        os.makedirs(os.path.dirname(SELF_TEST), exist_ok=True)
        os.mkfifo(SELF_TEST)
        os.chmod(SELF_TEST, 0o644)


COMMANDS = [
    Command('touch self-test', 'pass|fail|busy|missing', 'what the self-test of the touch controller finds; while '
            'busy, it has no answer yet', self_test),
]
