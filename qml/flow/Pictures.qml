// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtMultimedia 5.15

/*! Loads what plays videos and finds cameras. It opens no camera. */
QtObject {
    readonly property int cameras: QtMultimedia.availableCameras.length
    readonly property MediaPlayer player: MediaPlayer {}
}
