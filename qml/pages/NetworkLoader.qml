// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15

/*! Makes a NetworkInformation while it is active, where the phone has Qt's module for it. */
Loader {
    property var frame

    active: false
    visible: false
    source: "NetworkInformation.qml"
    onLoaded: {
        // Who shows the pages lets it end safely.
        if (frame)
            frame.shell.networkInformationMade(item);
    }
}
