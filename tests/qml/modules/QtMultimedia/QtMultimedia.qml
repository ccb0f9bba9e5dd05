// SPDX-License-Identifier: BSD-3-Clause
pragma Singleton
import QtQuick 2.15
import KivFake 1.0

QtObject {
    readonly property var availableCameras: Phone.cameras
}
