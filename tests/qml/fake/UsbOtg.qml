// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import KivFake 1.0

/*! What is plugged in when it is made is not seen. */
QtObject {
    id: otg
    property bool massStorage: false
    property Connections follower: Connections {
        target: Phone
        function onDriveChanged() { otg.massStorage = Phone.drive; }
    }
}
