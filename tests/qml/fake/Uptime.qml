// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import KivFake 1.0

QtObject {
    readonly property date machineStart: Phone.machineStart
    property double loadAverage1: 0.52
    property double loadAverage5: 0.31
    property double loadAverage15: 0.2
    signal loadAverageChanged()
}
