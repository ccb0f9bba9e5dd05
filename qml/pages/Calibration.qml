// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

TestPage {
    id: page

    //% "The calibration record that production wrote is compared with what is asked of this product."
    instructions: qsTrId("kiv-calibration-instructions")
    measurements: [flag, text]
    evidence: false
    //% "Pass unlocks when the record has been read."
    evidenceHint: qsTrId("kiv-calibration-hint")

    onOpened: {
        flag.value = KivHwSettings.stringValue("CalibrationInfo/Flag");
        flag.meets = calibration.isCalibrationFlagOk();
        flag.criteria = qsTrId("kiv-limits-accepted").arg(calibration.calibrationFlagCriteria || "1");
        text.value = calibration.calibrationString;
        text.meets = calibration.isCalibrationStringOk();
        text.criteria = calibration.calibrationStringCriteria === ""
                        //% "must not be empty"
                        ? qsTrId("kiv-calibration-any")
                        : qsTrId("kiv-mac-criteria").arg(calibration.calibrationStringCriteria);
        //% "The record is as it must be."
        judgeReadings(qsTrId("kiv-calibration-good"));
    }

    CalibrationTest {
        id: calibration
    }
    Measurement {
        id: flag
        //% "Calibration flag"
        name: qsTrId("kiv-calibration-flag")
    }
    Measurement {
        id: text
        //% "Calibration text"
        name: qsTrId("kiv-calibration-text")
    }
}
