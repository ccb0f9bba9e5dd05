# SPDX-License-Identifier: BSD-3-Clause
"""The device-state daemon: tells everybody when the phone is about to shut down."""

BUS_NAME = 'com.nokia.dsme'
MAIN_OBJ = '/com/nokia/dsme/signal'
MAIN_IFACE = 'com.nokia.dsme.signal'
SYSTEM_BUS = True


def load(mock, parameters):
    pass
