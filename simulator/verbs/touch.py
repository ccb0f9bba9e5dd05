# SPDX-License-Identifier: BSD-3-Clause
"""Commands for the touch controller."""

import os

from commands import Command, Failure

SELF_TEST = '/sys/kernel/debug/tp_s3202_dbg/tp_self_test'
RESULTS = {'pass': '0', 'fail': '1'}


def self_test(phone, result):
    if result in RESULTS:
        phone.write(SELF_TEST, RESULTS[result])
    elif result != 'missing':
        raise Failure('say pass, fail or missing')
    elif os.path.exists(SELF_TEST):
        phone.check_is_phones(SELF_TEST)
        os.unlink(SELF_TEST)


COMMANDS = [
    Command('touch self-test', 'pass|fail|missing', 'what the self-test of the touch controller finds', self_test),
]
