// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

/*! The address is compared with its pattern, and the radio proves itself by a device that it finds. */
TestPage {
    id: page

    readonly property var search: module.item
    readonly property bool blind: module.status === Loader.Error
    property bool searching: false
    /*! The radio searched without an error. */
    property bool searched: false
    property var found: []

    // A new one each time: a search keeps its error, and does not notice when the service goes.
    function withSearch(job) {
        //% "Asking for the Bluetooth radio"
        blocking(qsTrId("kiv-bluetooth-working"), function() {
            searching = false;
            module.active = false;
            module.active = true;
            if (!blind)
                job();
            else if (!address.good)
                judgeReadings("");
        });
    }

    function begin() {
        withSearch(function() {
            searched = false;
            found = [];
            searching = true;
            search.running = true;
            follow();
        });
    }

    // That a search found nothing counts if the radio would search again.
    function confirm() {
        if (!isOpen)
            return;
        withSearch(function() {
            search.running = true;
            searched = search.trouble === "";
            follow();
            search.running = false;
        });
    }

    function follow() {
        if (!isOpen || search === null || verdict !== "")
            return;
        radio.value = search.trouble === "" || search.off;
        searching = searching && search.trouble === "";
        if (!address.good)
            judgeReadings("");
        // One that is only switched off can be switched on.
        else if (!radio.value)
            judge(FactoryUtils.Fail, search.trouble);
        else if (found.length > 0)
            //% "The address is in order, and the radio found a device: %1"
            judgeReadings(qsTrId("kiv-bluetooth-good").arg(found[0]));
        // Where nobody can put a device nearby, a search must do.
        else if (unattended && searched)
            //% "The address is in order, and the radio searched."
            judgeReadings(qsTrId("kiv-bluetooth-searched"));
        else if (searching && !search.running) {
            searching = false;
            Qt.callLater(confirm);
        }
    }

    function add(device) {
        if (found.indexOf(device) < 0)
            found = found.concat([device]);
        follow();
    }

    instructions: blind
                  //% "The address is compared with its pattern. Then see in the phone's settings whether it finds devices."
                  ? qsTrId("kiv-bluetooth-instructions-blind")
                  //% "Put a device nearby that can be found, such as a headset that is being paired."
                  : qsTrId("kiv-bluetooth-instructions")
    measurements: missing !== "" ? [] : blind ? [address] : [address, radio, devices]
    // Where no device is in reach, the operator says how it is.
    evidence: address.good && (blind || searched)
    //% "Pass unlocks when the address is in order and the radio has searched."
    evidenceHint: qsTrId("kiv-bluetooth-hint")
    trouble: search === null || verdict !== "" ? "" : search.trouble

    onOpened: {
        //% "This phone has no Bluetooth."
        missing = Features.supported("Bluetooth", row.name) ? "" : qsTrId("kiv-bluetooth-missing");
        if (missing !== "")
            return;
        address.value = validator.getMac("bluetooth");
        address.meets = validator.isMacValid("bluetooth");
        address.criteria = qsTrId("kiv-mac-criteria").arg(validator.getMacCriteria("bluetooth"));
        begin();
    }
    onClosing: {
        if (search !== null)
            search.running = false;
        module.active = false;
    }

    MacValidator {
        id: validator
    }
    Loader {
        id: module
        active: false
        visible: false
        source: "BluetoothSearch.qml"
    }
    Connections {
        target: page.search
        function onErrorChanged() { page.follow(); }
        function onRunningChanged() { page.follow(); }
        function onDeviceDiscovered(device) { page.add(device); }
    }

    Notice {
        objectName: "blind"
        width: parent.width
        visible: page.blind
        kind: "near"
        text: qsTrId("kiv-radio-blind")
    }
    Notice {
        objectName: "nobody"
        width: parent.width
        visible: page.searched && page.found.length === 0 && page.verdict === ""
        kind: "info"
        //% "The radio searched, but no device answered."
        text: qsTrId("kiv-bluetooth-nobody")
    }
    PushButton {
        objectName: "search"
        width: parent.width
        visible: page.search !== null && page.verdict === ""
        enabled: page.isOpen && !page.searching
        glyph: "retry"
        text: enabled
              //% "Search again"
              ? qsTrId("kiv-bluetooth-again")
              //% "Searching"
              : qsTrId("kiv-bluetooth-searching")
        onClicked: page.begin()
    }
    Measurement {
        id: address
        name: qsTrId("kiv-mac-bluetooth")
    }
    Measurement {
        id: radio
        name: qsTrId("kiv-radio-found")
        accepted: [true]
        settled: value !== undefined
    }
    Measurement {
        id: devices
        //% "Devices found"
        name: qsTrId("kiv-bluetooth-devices")
        value: page.search === null ? undefined : page.found.length
    }
}
