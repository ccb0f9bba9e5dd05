// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import KivFake 1.0

QtObject {
    readonly property bool getResult: Phone.prefers4G
}
