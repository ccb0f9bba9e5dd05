// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import KivFake 1.0

/*! A search lasts half a second. Without a radio it ends before it begins, and with the running it had. */
QtObject {
    id: model
    enum DiscoveryMode { MinimalServiceDiscovery, FullServiceDiscovery, DeviceDiscovery }
    enum Error { NoError, InputOutputError, PoweredOffError, UnknownError, InvalidBluetoothAdapterError }
    signal deviceDiscovered(string device)
    property int error: BluetoothDiscoveryModel.NoError
    property int discoveryMode
    property bool running: false
    onRunningChanged: {
        Phone.note(running ? "search" : "search over");
        if (!running)
            return;
        error = Phone.bluetoothError;
        if (error !== BluetoothDiscoveryModel.NoError)
            running = false;
        else
            Phone.bluetoothDevices.forEach(function(device) { model.deviceDiscovered(device); });
    }
    property Timer end: Timer {
        interval: 500
        running: model.running
        onTriggered: model.running = false
    }
}
