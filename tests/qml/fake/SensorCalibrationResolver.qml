// SPDX-License-Identifier: BSD-3-Clause
pragma Singleton
import QtQuick 2.15
import KivFake 1.0

QtObject {
    function exists(sensor) { return Phone.calibrated.indexOf(sensor) >= 0; }
}
