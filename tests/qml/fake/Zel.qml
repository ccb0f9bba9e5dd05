// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import KivFake 1.0

/*! Asks once, after which it is only told; Phone.coverService says how it is answered. */
QtObject {
    id: zel
    property bool ready: false
    property bool docked: false
    property string zelId: ""
    property bool error: false
    // What differs not signals as well.
    function report() {
        if (Phone.coverService !== "answers")
            return;
        docked = Phone.coverDocked;
        dockedChanged();
        ready = Phone.coverReady;
        readyChanged();
        zelId = Phone.coverId;
        zelIdChanged();
    }
    property Timer answer: Timer {
        interval: 10
        running: true
        onTriggered: {
            if (Phone.coverService === "refuses")
                zel.error = true;
            else
                zel.report();
        }
    }
    property Connections follower: Connections {
        target: Phone
        function onCoverDockedChanged() { zel.report(); }
        function onCoverReadyChanged() { zel.report(); }
        function onCoverIdChanged() { zel.report(); }
    }
}
