// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import KivFake 1.0

QtObject {
    id: mce
    property double uptime: 0
    property double suspend: 0
    property bool nfcEnabled: false
    property bool fmtxEnabled: false
    // What differs not signals as well.
    property Timer answer: Timer {
        interval: 10
        running: true
        onTriggered: {
            if (!Phone.modeControl)
                return;
            mce.uptime = Phone.deviceTimes[0];
            mce.uptimeChanged();
            mce.suspend = Phone.deviceTimes[1];
            mce.suspendChanged();
            mce.follow();
        }
    }
    function follow() {
        if (!Phone.modeControl)
            return;
        nfcEnabled = Phone.nfc;
        fmtxEnabled = Phone.fmTransmitter;
    }
    property Connections follower: Connections {
        target: Phone
        function onNfcChanged() { mce.follow(); }
        function onFmTransmitterChanged() { mce.follow(); }
    }
}
