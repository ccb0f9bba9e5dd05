# SPDX-License-Identifier: BSD-3-Clause
"""What the phone's sensor calibration helpers find at the start."""

from calibration import Calibration


def start(phone):
    phone.calibration = Calibration(phone)
    return phone.calibration
