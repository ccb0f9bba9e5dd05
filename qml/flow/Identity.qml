// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0

/*! Which phone this is. */
QtObject {
    /*! Empty where the address cannot be read. */
    readonly property string wlan: addresses.getMac("wireless")
    readonly property string bluetooth: addresses.getMac("bluetooth")
    /*! Whether production left the mark of a calibrated phone. */
    readonly property bool calibrated: calibration.calibrationFlag

    readonly property var addresses: MacValidator {}
    readonly property var calibration: CalibrationTest {}
}
