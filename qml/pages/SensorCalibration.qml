// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0 as Kiv
import "../controls"

/*! Runs the platform's calibration helpers, for those sensors that have one. */
TestPage {
    id: page

    readonly property var known: [
        //% "Accelerometer"
        { sensor: "accelerometer", title: qsTrId("kiv-sensor-accelerometer") },
        //% "Ambient light"
        { sensor: "als", title: qsTrId("kiv-sensor-als") },
        //% "Compass"
        { sensor: "compass", title: qsTrId("kiv-sensor-compass") },
        //% "Gyroscope"
        { sensor: "gyroscope", title: qsTrId("kiv-sensor-gyroscope") },
        //% "Humidity"
        { sensor: "humidity", title: qsTrId("kiv-sensor-humidity") },
        //% "Lid"
        { sensor: "lid", title: qsTrId("kiv-sensor-lid") },
        //% "Magnetometer"
        { sensor: "magnetometer", title: qsTrId("kiv-sensor-magnetometer") },
        //% "Orientation"
        { sensor: "orientation", title: qsTrId("kiv-sensor-orientation") },
        //% "Air pressure"
        { sensor: "pressure", title: qsTrId("kiv-sensor-pressure") },
        //% "Proximity"
        { sensor: "proximity", title: qsTrId("kiv-sensor-proximity") },
        //% "Rotation"
        { sensor: "rotation", title: qsTrId("kiv-sensor-rotation") },
        //% "Step counter"
        { sensor: "stepcounter", title: qsTrId("kiv-sensor-stepcounter") },
        //% "Tap"
        { sensor: "tap", title: qsTrId("kiv-sensor-tap") },
        //% "Temperature"
        { sensor: "temperature", title: qsTrId("kiv-sensor-temperature") }
    ]
    property var offered: []
    property bool used: false

    //% "Calibrate a sensor, load its stored calibration, or return to the factory's. Then judge by its values."
    instructions: qsTrId("kiv-sensor-instructions")
    evidence: used
    //% "Pass unlocks when a sensor has been calibrated."
    evidenceHint: qsTrId("kiv-sensor-hint")

    onOpened: {
        //% "Asking the sensors for their calibration"
        blocking(qsTrId("kiv-sensor-working"), function() {
            page.offered = page.known.filter(function(entry) {
                return Kiv.SensorCalibrationResolver.exists(entry.sensor);
            });
            //% "No sensor of this phone can be calibrated."
            page.missing = page.offered.length > 0 ? "" : qsTrId("kiv-sensor-missing");
        });
    }

    Repeater {
        model: page.offered

        Card {
            id: card

            property string outcome
            property bool good: false

            function run(operation) {
                //% "Calibrating: %1"
                page.blocking(qsTrId("kiv-sensor-running").arg(modelData.title), function() {
                    card.good = calibration[operation]();
                    card.outcome = card.good
                            //% "Done"
                            ? qsTrId("kiv-sensor-done")
                            //% "The calibration helper failed. It is not asked again until this page is opened anew."
                            : qsTrId("kiv-sensor-failed");
                    if (operation === "calibrate" && card.good)
                        page.used = true;
                    if (!card.good)
                        page.judge(Kiv.FactoryUtils.Fail, modelData.title + ": " + card.outcome);
                });
            }

            width: parent.width

            Words {
                width: parent.width
                text: modelData.title
                font.pixelSize: Theme.lead
                font.weight: Font.DemiBold
            }
            MeasurementTable {
                width: parent.width
                readings: [kind, values]
            }
            Notice {
                width: parent.width
                visible: card.outcome !== ""
                kind: card.good ? "pass" : "fail"
                text: card.outcome
            }
            PushButton {
                width: parent.width
                enabled: calibration.enabled
                objectName: "calibrate-" + modelData.sensor
                fill: Theme.accent
                ink: Theme.accentInk
                //% "Calibrate"
                text: qsTrId("kiv-sensor-calibrate")
                onClicked: card.run("calibrate")
            }
            Row {
                width: parent.width
                spacing: Theme.gap

                PushButton {
                    width: (parent.width - parent.spacing) / 2
                    objectName: "restore-" + modelData.sensor
                    enabled: calibration.enabled
                    //% "Stored values"
                    text: qsTrId("kiv-sensor-restore")
                    onClicked: card.run("restore")
                }
                PushButton {
                    width: (parent.width - parent.spacing) / 2
                    objectName: "reset-" + modelData.sensor
                    enabled: calibration.enabled
                    //% "Factory values"
                    text: qsTrId("kiv-sensor-reset")
                    onClicked: card.run("reset")
                }
            }

            Kiv.SensorCalibration {
                id: calibration
                sensor: modelData.sensor
            }
            Measurement {
                id: kind
                //% "Kind"
                name: qsTrId("kiv-sensor-type")
                value: calibration.type
            }
            Measurement {
                id: values
                //% "Values"
                name: qsTrId("kiv-sensor-representation")
                value: calibration.representation
            }
        }
    }
}
