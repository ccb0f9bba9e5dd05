// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtSystemInfo 5.0

/*!
 * What the system tells of its networks. In a file of its own, because not every phone has the module: pages load it, and
 * do without where that fails. When it is made, and for what it tells of modems, it waits for the telephony service.
 */
NetworkInfo {
    function wirelessCount() {
        return Math.max(0, networkInterfaceCount(NetworkInfo.WlanMode));
    }

    /*! The first wireless interface: {connected, word, name}. */
    function wireless() {
        var status = networkStatus(NetworkInfo.WlanMode, 0);
        var connected = isConnected(status);
        return { connected: connected, word: connected ? statusWord(status) : statusWord(NetworkInfo.NoNetworkAvailable),
                 name: connected ? networkName(NetworkInfo.WlanMode, 0).slice(0, 64) : "" };
    }

    /*! In percent; undefined where the driver does not tell. */
    function wirelessStrength() {
        var percent = networkSignalStrength(NetworkInfo.WlanMode, 0);
        return percent >= 0 ? percent : undefined;
    }

    function modemCount() {
        return Math.max(0, networkInterfaceCount(NetworkInfo.GsmMode));
    }

    /*! A modem: {card, home, word, connected, name, strength}; home is the card's own network, card whether it was read. */
    function modem(index) {
        var status = networkStatus(NetworkInfo.GsmMode, index);
        var percent = networkSignalStrength(NetworkInfo.GsmMode, index);
        return { card: imsi(index) !== "", home: (homeMobileCountryCode(index) + " " + homeMobileNetworkCode(index)).trim(),
                 word: statusWord(status), connected: isConnected(status),
                 name: networkName(NetworkInfo.GsmMode, index).slice(0, 64), strength: percent >= 0 ? percent : undefined };
    }

    function isConnected(status) {
        return status === NetworkInfo.HomeNetwork || status === NetworkInfo.Roaming;
    }

    function statusWord(status) {
        switch (status) {
        case NetworkInfo.NoNetworkAvailable:
            //% "no network"
            return qsTrId("kiv-network-none");
        case NetworkInfo.EmergencyOnly:
            //% "emergency calls only"
            return qsTrId("kiv-network-emergency");
        case NetworkInfo.Searching:
            //% "searching"
            return qsTrId("kiv-network-searching");
        case NetworkInfo.Busy:
            //% "busy"
            return qsTrId("kiv-network-busy");
        case NetworkInfo.Denied:
            //% "refused by the network"
            return qsTrId("kiv-network-denied");
        case NetworkInfo.HomeNetwork:
            //% "connected"
            return qsTrId("kiv-network-home");
        case NetworkInfo.Roaming:
            //% "connected, roaming"
            return qsTrId("kiv-network-roaming");
        }
        return "";
    }
}
