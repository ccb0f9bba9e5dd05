// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"
import "../flow/TestTable.js" as TestTable

/*! What the phone says, unjudged and in the kernel's own units, for whoever adapts Kiv to a phone or looks for a fault. */
Item {
    id: screen

    property var shell
    property var raw: []
    property var features: []

    function row(name, value) {
        return { name: name, value: value === undefined || value === "" || value !== value ? "-" : String(value) };
    }

    function read() {
        raw = [
            row("status", battery.status()), row("health", battery.health()), row("present", battery.present()),
            row("voltage_now", battery.voltageNow()), row("voltage_min_design", battery.minimumVoltage()),
            row("voltage_max_design", battery.maximumVoltage()), row("current_now", battery.currentNow()),
            row("temp / 10", battery.temperature()), row("energy_now", battery.energyNow()),
            row("energy_full", battery.maximumEnergy()), row("energy_full_design", battery.maximumDesignEnergy()),
            row("loadavg", [uptime.loadAverage1, uptime.loadAverage5, uptime.loadAverage15].join(" ")),
            row("machineStart", isNaN(uptime.machineStart.getTime()) ? "" : uptime.machineStart.toISOString()),
            row("bluetooth", addresses.getMac("bluetooth")),
            row("bluetooth criteria", addresses.getMacCriteria("bluetooth")),
            row("wireless", addresses.getMac("wireless")),
            row("wireless criteria", addresses.getMacCriteria("wireless")),
            row("CalibrationInfo/Flag", calibration.calibrationFlag),
            row("CalibrationInfo/String", calibration.calibrationString),
            row("CalibrationCheck/Flag", calibration.calibrationFlagCriteria),
            row("CalibrationCheck/String", calibration.calibrationStringCriteria)
        ];
    }

    readonly property var settings: [
        row("modemCount", KivHwSettings.modemCount), row("ledType", KivHwSettings.ledType),
        row("keys", KivHwSettings.keys.map(function(key) { return KivHwSettings.keyName(key); }).join(", ")),
        row("backCameraFlash", KivHwSettings.backCameraFlash),
        row("defaultFmRadioFrequency", KivHwSettings.defaultFmRadioFrequency),
        row("audioInputSource", KivHwSettings.audioInputSource),
        row("recordTopDevice", KivHwSettings.recordTopDevice),
        row("recordTopDeviceChannel", KivHwSettings.recordTopDeviceChannel),
        row("recordBottomDevice", KivHwSettings.recordBottomDevice),
        row("recordBottomDeviceChannel", KivHwSettings.recordBottomDeviceChannel),
        row("gSensor X", KivHwSettings.gSensorMinX + " .. " + KivHwSettings.gSensorMaxX),
        row("gSensor Y", KivHwSettings.gSensorMinY + " .. " + KivHwSettings.gSensorMaxY),
        row("gSensor Z", KivHwSettings.gSensorMinZ + " .. " + KivHwSettings.gSensorMaxZ),
        row("gyro", KivHwSettings.gyroMin + " .. " + KivHwSettings.gyroMax),
        row("batteryVoltageTest", KivHwSettings.batteryVoltageTest),
        row("runInTestLength", KivHwSettings.runInTestLength)
    ]

    function probe() {
        features = TestTable.plan(TestTable.AllTests, Features).map(function(entry) {
            var runs = [];
            if (Features.factoryTestEnabled(entry.row.name))
                runs.push("factory");
            if (Features.runInTestEnabled(entry.row.name))
                runs.push("run-in");
            return row(entry.row.name, [entry.state].concat(runs).join(", "));
        });
    }

    Component.onCompleted: read()

    Battery {
        id: battery
    }
    Uptime {
        id: uptime
    }
    MacValidator {
        id: addresses
    }
    CalibrationTest {
        id: calibration
    }
    Timer {
        interval: 2000
        repeat: true
        running: true
        onTriggered: screen.read()
    }

    Header {
        id: header
        width: parent.width
        title: qsTrId("kiv-mode-engineer")
        onBack: screen.shell.showHome()
    }
    Scroller {
        readable: true
        anchors.top: header.bottom
        anchors.bottom: parent.bottom
        width: parent.width

        RawTable {
            width: parent.width
            //% "Raw values"
            title: qsTrId("kiv-engineer-raw")
            rows: screen.raw
        }
        RawTable {
            width: parent.width
            //% "Settings that were found"
            title: qsTrId("kiv-engineer-settings")
            rows: screen.settings
        }
        PushButton {
            width: parent.width
            objectName: "probe"
            visible: screen.features.length === 0
            //% "Look what the phone has"
            text: qsTrId("kiv-engineer-probe")
            onClicked: screen.shell.blocking(qsTrId("kiv-working-probing"), screen.probe)
        }
        RawTable {
            width: parent.width
            visible: rows.length > 0
            //% "Tests"
            title: qsTrId("kiv-engineer-tests")
            rows: screen.features
        }
        Words {
            width: parent.width
            text: qsTrId("kiv-system-streams")
            font.weight: Font.DemiBold
        }
        StreamList {
            width: parent.width
        }
        Words {
            width: parent.width
            //% "Processes"
            text: qsTrId("kiv-engineer-processes")
            font.weight: Font.DemiBold
        }
        ProcessList {
            width: parent.width
            limit: 20
        }
    }
}
