// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtSensors 5.15
import Kiv 1.0
import "../controls"

/*!
 * The phone lies flat and still while both sensors are averaged. GyroSensor divides by 32, so it is asked exactly 32
 * times.
 */
TestPage {
    id: page

    readonly property int samplesNeeded: 32
    readonly property bool wantsAcceleration: row === null || Features.supported("GSensor", row.name)
    readonly property bool wantsRotation: row === null || Features.supported("Gyro", row.name)

    /*! Ticks of the clock for which the phone has been lying flat. */
    property int flatFor: 0
    property bool measuring: false
    property int samples: 0
    property bool measured: false
    property var sums: [0, 0, 0]

    readonly property bool flat: wantsAcceleration && liveX.good && liveY.good && liveZ.good

    function tick() {
        if (!measuring) {
            flatFor = flat ? flatFor + 1 : 0;
            if (flatFor >= 20)
                measuring = true;
            return;
        }
        if (samples < samplesNeeded)
            sample();
        if (samples === samplesNeeded)
            finish();
    }

    function sample() {
        if (wantsRotation)
            gyroscope.updateGyroSensor();
        if (!liveX.missing)
            sums = [sums[0] + liveX.value, sums[1] + liveY.value, sums[2] + liveZ.value];
        ++samples;
    }

    function finish() {
        clock.stop();
        measured = true;
        if (wantsRotation) {
            // The averages are worked out by reading the result. An exact 0 is a sensor that does not measure.
            var good = gyroscope.getResult;
            var averages = [gyroscope.getXResult, gyroscope.getYResult, gyroscope.getZResult];
            [turnX, turnY, turnZ].forEach(function(reading, axis) {
                reading.value = averages[axis] === 0 ? undefined : averages[axis];
            });
            rotation.value = good;
        }
        if (!liveX.missing) {
            liveX.value = sums[0] / samples;
            liveY.value = sums[1] / samples;
            liveZ.value = sums[2] / samples;
        }
        //% "Averages of 32 samples are within their limits."
        judgeReadings(qsTrId("kiv-gyro-good"));
    }

    //% "Lay the phone flat on a table, the display up, and do not touch the table."
    instructions: qsTrId("kiv-gyro-instructions")
    measurements: (wantsAcceleration ? [liveX, liveY, liveZ] : [])
                  .concat(wantsRotation ? [turnX, turnY, turnZ, rotation] : [])
    evidence: false
    //% "Pass unlocks when the sensors have been measured."
    evidenceHint: qsTrId("kiv-gyro-hint")

    onOpened: {
        //% "This phone has neither an accelerometer nor a gyroscope."
        missing = wantsAcceleration || wantsRotation ? "" : qsTrId("kiv-gyro-missing");
        if (missing === "")
            clock.start();
    }
    onClosing: clock.stop()

    Accelerometer {
        id: accelerometer
        active: page.isOpen && page.wantsAcceleration && !page.measured
        // Before its first measurement a sensor already has a reading, of zeros.
        onReadingChanged: {
            liveX.value = reading.x;
            liveY.value = reading.y;
            liveZ.value = reading.z;
        }
    }
    Gyroscope {
        // GyroSensor tells nothing but the averages in the end.
        active: page.isOpen && page.wantsRotation && !page.measured
        onReadingChanged: {
            turnX.value = reading.x;
            turnY.value = reading.y;
            turnZ.value = reading.z;
        }
    }
    GyroSensor {
        id: gyroscope
    }
    Timer {
        id: clock
        interval: 50
        repeat: true
        onTriggered: page.tick()
    }

    PushButton {
        width: parent.width
        visible: page.missing === "" && page.verdict === "" && !page.measuring
        //% "It lies flat: measure now"
        text: qsTrId("kiv-gyro-measure")
        onClicked: page.measuring = true
    }
    Words {
        width: parent.width
        visible: page.measuring && page.verdict === ""
        //% "Measuring: %1 of %2"
        text: qsTrId("kiv-gyro-progress").arg(page.samples).arg(page.samplesNeeded)
        color: Theme.accent
        font.weight: Font.DemiBold
    }

    Measurement {
        id: liveX
        settled: page.measured
        //% "Acceleration X"
        name: qsTrId("kiv-gyro-acceleration-x")
        unit: "m/s²"
        decimals: 2
        minimum: KivHwSettings.gSensorMinX
        maximum: KivHwSettings.gSensorMaxX
    }
    Measurement {
        id: liveY
        settled: page.measured
        //% "Acceleration Y"
        name: qsTrId("kiv-gyro-acceleration-y")
        unit: "m/s²"
        decimals: 2
        minimum: KivHwSettings.gSensorMinY
        maximum: KivHwSettings.gSensorMaxY
    }
    Measurement {
        id: liveZ
        settled: page.measured
        //% "Acceleration Z"
        name: qsTrId("kiv-gyro-acceleration-z")
        unit: "m/s²"
        decimals: 2
        minimum: KivHwSettings.gSensorMinZ
        maximum: KivHwSettings.gSensorMaxZ
    }
    Measurement {
        id: turnX
        settled: page.measured
        //% "Rotation X"
        name: qsTrId("kiv-gyro-rotation-x")
        unit: "°/s"
        decimals: 2
        minimum: KivHwSettings.gyroMin
        maximum: KivHwSettings.gyroMax
    }
    Measurement {
        id: turnY
        settled: page.measured
        //% "Rotation Y"
        name: qsTrId("kiv-gyro-rotation-y")
        unit: "°/s"
        decimals: 2
        minimum: KivHwSettings.gyroMin
        maximum: KivHwSettings.gyroMax
    }
    Measurement {
        id: turnZ
        settled: page.measured
        //% "Rotation Z"
        name: qsTrId("kiv-gyro-rotation-z")
        unit: "°/s"
        decimals: 2
        minimum: KivHwSettings.gyroMin
        maximum: KivHwSettings.gyroMax
    }
    Measurement {
        id: rotation
        settled: page.measured
        //% "Gyroscope in order"
        name: qsTrId("kiv-gyro-rotation")
        accepted: [true]
    }
}
