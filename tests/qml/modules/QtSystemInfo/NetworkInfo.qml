// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import KivFake 1.0

QtObject {
    enum NetworkMode { UnknownMode, GsmMode, CdmaMode, WcdmaMode, WlanMode }
    enum NetworkStatus { UnknownStatus, NoNetworkAvailable, EmergencyOnly, Searching, Busy, Denied, HomeNetwork, Roaming }

    function of(mode, index) {
        var all = mode === NetworkInfo.WlanMode ? Phone.wireless : mode === NetworkInfo.GsmMode ? Phone.modems : [];
        return all[index] || { status: NetworkInfo.UnknownStatus, name: "", strength: -1, imsi: "", home: ["", ""] };
    }
    // The real one says -1 where it cannot count.
    function networkInterfaceCount(mode) {
        return mode === NetworkInfo.WlanMode ? Phone.wireless.length : mode === NetworkInfo.GsmMode ? Phone.modems.length : -1;
    }
    function networkStatus(mode, index) { return of(mode, index).status; }
    function networkName(mode, index) { return of(mode, index).name; }
    function networkSignalStrength(mode, index) {
        Phone.note("strength");
        return of(mode, index).strength;
    }
    function imsi(index) { return of(NetworkInfo.GsmMode, index).imsi; }
    function homeMobileCountryCode(index) { return of(NetworkInfo.GsmMode, index).home[0]; }
    function homeMobileNetworkCode(index) { return of(NetworkInfo.GsmMode, index).home[1]; }
}
