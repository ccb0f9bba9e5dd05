// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtBluetooth 5.15

/*!
 * Searches for devices around. In a file of its own, because not every phone has the module: pages load it, and do without
 * where that fails. To begin a search it waits for the Bluetooth service.
 */
BluetoothDiscoveryModel {
    /*! Why there is no search; empty where nothing is wrong. */
    readonly property string trouble: {
        switch (error) {
        case BluetoothDiscoveryModel.NoError:
            return "";
        case BluetoothDiscoveryModel.PoweredOffError:
            //% "Bluetooth is switched off."
            return qsTrId("kiv-bluetooth-off");
        case BluetoothDiscoveryModel.InvalidBluetoothAdapterError:
            //% "No Bluetooth radio was found."
            return qsTrId("kiv-bluetooth-no-radio");
        }
        //% "The Bluetooth service is in trouble or not there."
        return qsTrId("kiv-bluetooth-no-service");
    }
    readonly property bool off: error === BluetoothDiscoveryModel.PoweredOffError

    discoveryMode: BluetoothDiscoveryModel.DeviceDiscovery
    running: false
}
