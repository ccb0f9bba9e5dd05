// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import KivFake 1.0

QtObject {
    id: gps
    enum Status { StatusError, StatusUnavailable, StatusAcquiring, StatusAvailable }
    readonly property int status: Phone.gpsStatus
    readonly property bool satelliteInfoAvailable: Phone.gpsSource
    readonly property bool satelliteInfoError: Phone.gpsError
    property int satellitesInView: 0
    property int satellitesInUse: 0
    property var satelliteInfo: []
    // Everything is stored before anything is signalled.
    function report() {
        if (!Phone.gpsSource)
            return;
        satellitesInUse = Phone.satellites.filter(function(satellite) { return satellite.inUse; }).length;
        satellitesInView = Phone.satellites.length;
        satelliteInfo = Phone.satellites;
    }
    property Timer first: Timer {
        interval: 10
        running: true
        onTriggered: gps.report()
    }
    property Connections follower: Connections {
        target: Phone
        function onSatellitesChanged() { gps.report(); }
    }
    Component.onCompleted: Phone.note("receiver on")
    Component.onDestruction: Phone.note("receiver off")
}
