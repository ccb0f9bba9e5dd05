// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import KivFake 1.0

QtObject {
    id: touch
    property bool result: false
    // A result of false is announced as well.
    property Timer worker: Timer {
        interval: 50
        onTriggered: {
            if (Phone.touchSelfTest)
                touch.result = true;
            else
                touch.resultChanged();
        }
    }
    function start() { worker.start(); }
}
