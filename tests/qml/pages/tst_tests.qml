// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtTest 1.15
import Kiv 1.0
import KivFake 1.0

/*! Each page through pass, failure and missing hardware. */
Driver {
    name: "Tests"

    function verdictIs(code, reason) {
        tryVerify(function() { return page !== null && page.verdict !== ""; }, 20000);
        compare(page.verdict, code, page.reason);
        if (reason)
            verify(page.reason.indexOf(reason) >= 0, page.reason);
    }

    function missingIs(sentence) {
        tryVerify(function() { return page.missing !== ""; }, 5000);
        verify(page.missing.toLowerCase().indexOf(sentence.toLowerCase()) >= 0, page.missing);
        verify(frame.absent);
        verify(!find("pass").enabled);
        verify(find("fail").suggested);
        compare(page.verdict, "");
    }

    function value(title) {
        var found = page.measurements.filter(function(reading) { return reading.name === title; });
        compare(found.length, 1, title);
        return found[0].valueText.replace("\u00a0", " ");
    }

    function result(title) {
        return page.measurements.filter(function(reading) { return reading.name === title; })[0].result;
    }

    function test_batteryPasses() {
        openTest("VerificationBattery");
        verdictIs(FactoryUtils.Pass);
        compare(value("Voltage"), "3.921 V");
        compare(value("Current"), "412 mA");
        compare(value("Temperature"), "28.4 °C");
        compare(value("Energy left"), "6.12 Wh");
        compare(value("Capacity compared to new"), "96 %");
    }

    function test_batteryFails_data() {
        return [
            { tag: "voltage", change: { voltageNow: 3000000 }, reason: "Voltage: 3.000" },
            { tag: "no voltage", change: { voltageNow: undefined }, reason: "Voltage: no reading" },
            { tag: "no health", change: { health: undefined }, reason: "Health: no reading" },
            { tag: "health", change: { health: "Dead" }, reason: "Health: Dead" },
            { tag: "taken out", change: { present: false }, reason: "Battery in place: no" }
        ];
    }

    function test_batteryFails(data) {
        Phone.setBattery(data.change);
        openTest("VerificationBattery");
        verdictIs(FactoryUtils.Fail, data.reason);
    }

    function test_batteryWithoutLimitsIsNotJudgedByThem() {
        Phone.batteryVoltageTest = false;
        Phone.setBattery({ voltageNow: 3000000 });
        openTest("VerificationBattery");
        verdictIs(FactoryUtils.Pass);
        compare(result("Voltage"), "none");
    }

    function test_batteryMissing() {
        Phone.battery = {};
        openTest("VerificationBattery");
        missingIs("no battery");
        wait(5000);
        compare(page.verdict, "");
    }

    function test_chargingPasses() {
        Phone.setBattery({ status: "Discharging", currentNow: -250000 });
        openTest("VerificationUsbCharging");
        compare(page.phase, "plug");
        Phone.setBattery({ status: "Charging", currentNow: 900000 });
        tryVerify(function() { return Phone.log.indexOf("disableCharger") >= 0; }, 10000);
        Phone.setBattery({ status: "Discharging", currentNow: -250000 });
        tryVerify(function() { return Phone.log.indexOf("enableCharger") >= 0; }, 10000);
        Phone.setBattery({ status: "Charging", currentNow: 880000 });
        tryVerify(function() { return Phone.log.length === 3; }, 10000);
        compare(page.verdict, "");
        Phone.setBattery({ status: "Discharging", currentNow: -250000 });
        tryVerify(function() { return Phone.log.length === 4; }, 10000);
        Phone.setBattery({ status: "Charging", currentNow: 900000 });
        verdictIs(FactoryUtils.Pass);
        compare(value("Current, charger on"), "880 mA");
        compare(value("Current, charger off"), "-250 mA");
        compare(Phone.log, ["disableCharger", "enableCharger", "disableCharger", "enableCharger"]);
    }

    /*! A switch without effect, and a cable that is pulled and put back meanwhile. */
    function test_aPulledCableIsNoSwitch() {
        openTest("VerificationUsbCharging");
        tryVerify(function() { return page.phase === "off"; }, 10000);
        Phone.setBattery({ status: "Discharging", currentNow: -250000 });
        tryVerify(function() { return page.phase === "again"; }, 10000);
        Phone.setBattery({ status: "Charging", currentNow: 900000 });
        verdictIs(FactoryUtils.Fail, "Charging stops: no");
    }

    function test_chargingThatDoesNotStopFails() {
        openTest("VerificationUsbCharging");
        verdictIs(FactoryUtils.Fail, "Charging stops: no");
        compare(Phone.log, ["disableCharger", "enableCharger"]);
    }

    function test_chargingThatDoesNotResumeFails() {
        openTest("VerificationUsbCharging");
        tryVerify(function() { return Phone.log.indexOf("disableCharger") >= 0; }, 10000);
        Phone.setBattery({ status: "Not charging", currentNow: 0 });
        verdictIs(FactoryUtils.Fail, "Charging resumes: no");
    }

    function test_chargerIsPutBackOnEveryWayOut_data() {
        return [{ tag: "leave" }, { tag: "fail" }, { tag: "retry" }, { tag: "destroy" }];
    }

    function test_chargerIsPutBackOnEveryWayOut(data) {
        openTest("VerificationUsbCharging");
        tryVerify(function() { return page.phase === "off"; }, 10000);
        compare(Phone.log, ["disableCharger"]);
        switch (data.tag) {
        case "leave": shell.leaveTest(); break;
        case "fail": tap("fail"); break;
        case "retry": mouseClick(find("retry")); break;
        case "destroy": shell.destroy(); shell = null; wait(50); break;
        }
        compare(Phone.log, ["disableCharger", "enableCharger"]);
    }

    function test_chargingWithoutBattery() {
        Phone.battery = {};
        openTest("VerificationUsbCharging");
        missingIs("no battery");
        compare(Phone.log, []);
    }

    function test_macAddresses() {
        openTest("MacAddresses");
        verdictIs(FactoryUtils.Pass);
        compare(value("Bluetooth address"), "00:11:22:aa:bb:cc");
    }

    function test_macAddressThatDoesNotMatch() {
        Phone.validAddresses = ["bluetooth"];
        openTest("MacAddresses");
        verdictIs(FactoryUtils.Fail, "Wi-Fi address: 00:11:22:aa:bb:cd");
        compare(page.reason.indexOf("Bluetooth"), -1);
    }

    function test_macAddressThatIsEmpty() {
        Phone.addresses = { wireless: "00:11:22:aa:bb:cd" };
        openTest("MacAddresses");
        verdictIs(FactoryUtils.Fail, "Bluetooth address: no reading");
    }

    function test_macAddressesOfAPhoneWithoutRadios() {
        Phone.unsupported = ["Wifi", "Bluetooth"];
        openTest("MacAddresses");
        missingIs("neither Bluetooth nor Wi-Fi");
    }

    function test_macAddressOfTheOneRadio() {
        Phone.unsupported = ["Wifi"];
        Phone.validAddresses = ["bluetooth"];
        openTest("MacAddresses");
        verdictIs(FactoryUtils.Pass);
        compare(page.measurements.length, 1);
    }

    function test_calibration() {
        openTest("Calibration");
        verdictIs(FactoryUtils.Pass);
        compare(value("Calibration flag"), "1");
        compare(value("Calibration text"), "K-2207");
    }

    function test_calibrationFails() {
        Phone.calibrationFlagOk = false;
        Phone.settings = { "CalibrationInfo/String": "K-2207", "CalibrationCheck/Flag": "2" };
        openTest("Calibration");
        verdictIs(FactoryUtils.Fail, "Calibration flag: no reading");
        compare(page.measurements[0].limitsText, "must be 2");
    }

    function test_touchSelfTest() {
        openTest("TouchSelfTest");
        verdictIs(FactoryUtils.Pass);
    }

    function test_touchSelfTestFails() {
        Phone.touchSelfTest = false;
        openTest("TouchSelfTest");
        verdictIs(FactoryUtils.Fail);
    }

    function test_touchSelfTestMissing() {
        Phone.unsupported = ["TouchAuto"];
        openTest("TouchSelfTest");
        missingIs("no self-test");
    }

    function test_touchEveryCell() {
        openTest("VerificationTouch");
        verify(frame.fullScreen);
        compare(page.remaining, 144);
        for (var row = 0; row < page.rows; ++row) {
            for (var column = 0; column < page.columns; ++column)
                mouseClick(shell, (column + 0.5) * shell.width / page.columns, (row + 0.5) * shell.height / page.rows);
            compare(page.remaining, 144 - 9 * (row + 1));
        }
        verdictIs(FactoryUtils.Pass);
        verify(!frame.fullScreen);
    }

    function test_touchWithADeadCell() {
        openTest("VerificationTouch");
        for (var row = 0; row < page.rows; ++row) {
            for (var column = 0; column < page.columns; ++column) {
                if (row !== 7 || column !== 4)
                    page.touch((column + 0.5) * 40, (row + 0.5) * 40, 360, 640);
            }
        }
        compare(page.remaining, 1);
        compare(page.verdict, "");
        page.idle = page.patience - 1;
        verdictIs(FactoryUtils.Fail, "1 of 144");
        verify(!frame.fullScreen);
    }

    function test_touchOutsideCountsNothing() {
        openTest("VerificationTouch");
        page.touch(-1, 5, 360, 640);
        page.touch(360, 5, 360, 640);
        page.touch(5, 640, 360, 640);
        compare(page.remaining, 144);
    }

    function test_fingers_data() {
        return [
            { tag: "five", fingers: 5, verdict: FactoryUtils.Pass },
            { tag: "one", fingers: 1, verdict: FactoryUtils.Fail },
            { tag: "two", fingers: 2, verdict: "" }
        ];
    }

    function test_fingers(data) {
        openTest("VerificationMultiTouch");
        var touch = touchEvent(shell);
        for (var finger = 0; finger < data.fingers; ++finger)
            touch.press(finger, shell, 40 + 60 * finger, 300);
        touch.commit();
        tryVerify(function() { return page.most === data.fingers; });
        for (finger = 0; finger < data.fingers; ++finger)
            touch.release(finger, shell, 40 + 60 * finger, 300);
        touch.commit();
        if (data.fingers < 5)
            page.idle = page.patience - 1;
        tryVerify(function() { return !frame.fullScreen; }, 3000);
        compare(page.verdict, data.verdict);
        compare(find("pass").enabled, data.verdict !== "" || data.fingers >= 2);
    }

    function test_headset() {
        openTest("VerificationHeadset");
        compare(value("Headset socket"), "Empty");
        Phone.headphones = true;
        compare(value("Headset socket"), "Headphones without microphone");
        compare(page.verdict, "");
        Phone.microphone = true;
        verdictIs(FactoryUtils.Pass);
    }

    function test_headsetThatWasInBefore() {
        Phone.headphones = true;
        Phone.microphone = true;
        openTest("VerificationHeadset");
        compare(value("Headset socket"), "Headset");
        wait(50);
        compare(page.verdict, "", "it must be seen to leave");
        Phone.microphone = false;
        Phone.headphones = false;
        verdictIs(FactoryUtils.Pass);
    }

    function test_headsetMissing() {
        Phone.jackFound = false;
        openTest("VerificationHeadset");
        missingIs("no headset socket");
    }

    function test_headsetButtons() {
        openTest("VerificationHeadsetButtons");
        compare(value("Headset socket"), "Empty");
        Phone.headphones = Phone.microphone = true;
        compare(value("Headset socket"), "Headset");
        [HeadsetDetect.ButtonMisc, HeadsetDetect.Button1].forEach(function(button) {
            Phone.buttonsPressed = button;
            Phone.buttonsPressed = 0;
        });
        compare(value("Buttons pressed"), "2");
        Phone.buttonsPressed = HeadsetDetect.KeyMedia;
        compare(page.verdict, "", "it has not been let go");
        Phone.buttonsPressed = 0;
        verdictIs(FactoryUtils.Pass);
    }

    function test_headsetButtonsMissing() {
        Phone.buttonsFound = false;
        openTest("VerificationHeadsetButtons");
        missingIs("no headset buttons");
    }

    function test_hall() {
        openTest("VerificationHallDetect");
        compare(page.verdict, "");
        Phone.hall = true;
        compare(page.verdict, "");
        Phone.hall = false;
        verdictIs(FactoryUtils.Pass);
        tap("fail");
        answer("perceived");
        compare(Phone.log, ["openFile", "closeFile"]);
    }

    function test_hallMissing() {
        Phone.unsupported = ["Hall"];
        openTest("VerificationHallDetect");
        missingIs("no magnet switch");
        compare(Phone.log, []);
    }

    function test_gyroscopeIsAskedThirtyTwoTimes() {
        Phone.unsupported = ["GSensor"];
        openTest("VerificationGyroAndGSensor");
        page.measuring = true;
        verdictIs(FactoryUtils.Pass);
        compare(page.samples, 32);
        compare(value("Rotation X"), "0.10 °/s");
        compare(page.measurements.length, 4);
    }

    function test_gyroscopeFails() {
        Phone.unsupported = ["GSensor"];
        Phone.rotation = [0.1, 4.5, 0];
        Phone.rotationGood = false;
        openTest("VerificationGyroAndGSensor");
        page.measuring = true;
        verdictIs(FactoryUtils.Fail, "Rotation Y: 4.50");
        verify(page.reason.indexOf("Rotation Z: no reading") >= 0, "an exact zero is no measurement");
    }

    function test_gyroAndGSensorMissing() {
        Phone.unsupported = ["GSensor", "Gyro"];
        openTest("VerificationGyroAndGSensor");
        missingIs("neither an accelerometer nor a gyroscope");
    }

    function test_memoryCard() {
        openTest("VerificationSdCard");
        compare(value("Card"), "No card");
        Phone.cardStatus = SdCardTest.Mounting;
        compare(value("Card"), "Being mounted");
        compare(Phone.log, []);
        Phone.cardStatus = SdCardTest.Mounted;
        verdictIs(FactoryUtils.Pass, "written, read back and removed");
        compare(Phone.log, ["sdCardIOTest"]);
    }

    function test_memoryCardFails_data() {
        return [{ tag: "read only", outcome: 1, reason: "No file could be created" },
                { tag: "differs", outcome: 2, reason: "not what was written" }];
    }

    function test_memoryCardFails(data) {
        Phone.cardOutcome = data.outcome;
        Phone.cardStatus = SdCardTest.Mounted;
        openTest("VerificationSdCard");
        verdictIs(FactoryUtils.Fail, data.reason);
        // The next card has not been tested.
        Phone.cardStatus = SdCardTest.NoCard;
        compare(value("Card"), "Mounted");
        compare(page.instructions, "");
    }

    function test_memoryCardThatVanishesIsTestedAgain() {
        Phone.cardOutcome = 0;
        Phone.cardStatus = SdCardTest.Mounted;
        openTest("VerificationSdCard");
        tryVerify(function() { return Phone.log.length === 1; });
        compare(page.verdict, "");
        compare(value("Write and read"), "no reading");
        Phone.cardStatus = SdCardTest.NoCard;
        Phone.cardOutcome = 3;
        Phone.cardStatus = SdCardTest.Mounted;
        verdictIs(FactoryUtils.Pass);
        compare(Phone.log.length, 2);
    }

    function test_keys() {
        openTest("VerificationKey");
        keyPress(Qt.Key_VolumeUp);
        compare(page.held, [Qt.Key_VolumeUp]);
        keyRelease(Qt.Key_VolumeUp);
        compare(page.seen, [Qt.Key_VolumeUp]);
        compare(page.verdict, "");
        keyClick(Qt.Key_A);
        compare(page.seen.length, 1);
        keyPress(Qt.Key_VolumeDown);
        compare(page.verdict, "");
        keyRelease(Qt.Key_VolumeDown);
        verdictIs(FactoryUtils.Pass);
    }

    function test_keysMissing() {
        Phone.keys = [];
        openTest("VerificationKey");
        missingIs("No key");
    }

    function test_sensorCalibration() {
        openTest("SensorCalibration");
        tryVerify(function() { return page.offered.length === 2; });
        compare(page.offered.map(function(entry) { return entry.sensor; }), ["compass", "gyroscope"]);
        verify(!find("pass").enabled);
        find("calibrate-gyroscope").clicked();
        tryVerify(function() { return Phone.log.length === 1; });
        compare(Phone.log, ["calibrate gyroscope"]);
        tryVerify(function() { return find("pass").enabled; });
        find("restore-gyroscope").clicked();
        tryVerify(function() { return Phone.log.length === 2; });
        find("reset-gyroscope").clicked();
        tryVerify(function() { return Phone.log.length === 3; });
        compare(Phone.log, ["calibrate gyroscope", "restore gyroscope", "reset gyroscope"]);
    }

    function test_sensorCalibrationFails() {
        Phone.calibrationWorks = false;
        openTest("SensorCalibration");
        tryVerify(function() { return page.offered.length === 2; });
        find("calibrate-compass").clicked();
        verdictIs(FactoryUtils.Fail, "Compass");
        verify(!find("calibrate-compass").enabled);
    }

    function test_sensorCalibrationMissing() {
        Phone.calibrated = [];
        openTest("SensorCalibration");
        missingIs("No sensor");
    }

    function test_systemState() {
        openTest("SystemState");
        compare(value("Load, 1 minute"), "0.52");
        verify(find("pass").enabled);
        holdPass();
        compare(kept("SystemState").code, FactoryUtils.Pass);
    }

    function test_pagesWhoseSensorIsAbsent_data() {
        return [
            { tag: "VerificationLightSensor", sentence: "no light sensor" },
            { tag: "VerificationProxSensor", sentence: "no proximity sensor" },
            { tag: "VerificationEcompass", sentence: "no compass" },
            { tag: "VerificationVibrator", sentence: "no vibrator" }
        ];
    }

    function test_pagesWhoseSensorIsAbsent(data) {
        openTest(data.tag);
        missingIs(data.sentence);
        tap("skip");
        answer("not-fitted");
        compare(kept(data.tag).code, FactoryUtils.NA);
        verify(kept(data.tag).reason.toLowerCase().indexOf(data.sentence) >= 0);
    }
}
