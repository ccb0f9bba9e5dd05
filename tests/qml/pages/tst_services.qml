// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtTest 1.15
import Kiv 1.0
import KivFake 1.0
import "../../../qml/controls"

/*! The pages that ask system services: pass, failure, and services that are not there or fall silent. */
Driver {
    id: driver
    name: "Services"

    function verdictIs(code, reason) {
        tryVerify(function() { return page !== null && page.verdict !== ""; }, 20000);
        compare(page.verdict, code, page.reason);
        if (reason)
            verify(page.reason.indexOf(reason) >= 0, page.reason);
    }

    function missingIs(sentence) {
        tryVerify(function() { return page.missing !== ""; });
        verify(page.missing.indexOf(sentence) >= 0, page.missing);
        verify(!find("pass").enabled);
        compare(page.measurements.length, 0);
        compare(page.verdict, "");
    }

    function reading(title) {
        var found = page.measurements.filter(function(reading) { return reading.name === title; });
        compare(found.length, 1, title);
        return found[0];
    }

    function value(title) {
        return reading(title).valueText.replace("\u00a0", " ");
    }

    function shown(name) {
        return find(name).visible;
    }

    function test_cover() {
        openTest("VerificationZel");
        tryVerify(function() { return value("Smart-cover service") === "answers"; });
        compare(value("Ready for covers"), "yes");
        compare(value("Cover on the phone"), "no");
        compare(value("Identifier of the cover"), "no reading");
        verify(!find("pass").enabled);
        Phone.coverDocked = true;
        Phone.coverId = "blue-7";
        compare(value("Cover on the phone"), "yes");
        compare(value("Identifier of the cover"), "blue-7");
        compare(page.verdict, "", "it must be seen to leave");
        Phone.coverId = "";
        Phone.coverDocked = false;
        verdictIs(FactoryUtils.Pass, "blue-7");
    }

    function test_coverThatWasOnBefore() {
        Phone.coverDocked = true;
        Phone.coverId = "blue-7";
        openTest("VerificationZel");
        tryVerify(function() { return page.seenDocked; });
        Phone.coverDocked = false;
        verdictIs(FactoryUtils.Pass, "blue-7");
    }

    function test_coverWithoutIdentifierFails() {
        openTest("VerificationZel");
        tryVerify(function() { return page.docked === false; });
        Phone.coverDocked = true;
        Phone.coverDocked = false;
        verdictIs(FactoryUtils.Fail, "did not tell its identifier");
    }

    function test_coverWithAnEndlessIdentifier() {
        Phone.coverDocked = true;
        Phone.coverId = "z".repeat(1 << 20);
        openTest("VerificationZel");
        tryVerify(function() { return page.seenDocked; });
        compare(value("Identifier of the cover"), "z".repeat(64) + "…");
    }

    function test_coverServiceThatIsNotReady() {
        Phone.coverReady = false;
        openTest("VerificationZel");
        tryVerify(function() { return shown("notReady"); });
        compare(value("Ready for covers"), "no");
    }

    function test_coverServiceThatIsNotThereFails() {
        Phone.coverService = "refuses";
        openTest("VerificationZel");
        tryVerify(function() { return page.trouble !== ""; });
        compare(value("Smart-cover service"), "does not answer");
        compare(value("Cover on the phone"), "no reading");
        verdictIs(FactoryUtils.Fail, "does not answer");
    }

    function test_coverServiceThatFallsSilentFails_data() {
        return [{ tag: "refuses" }, { tag: "silent" }];
    }

    function test_coverServiceThatFallsSilentFails(data) {
        openTest("VerificationZel");
        tryVerify(function() { return value("Smart-cover service") === "answers"; });
        verify(page.trouble === "");
        Phone.coverService = data.tag;
        tryVerify(function() { return page.trouble !== ""; }, 10000);
        compare(value("Cover on the phone"), "no reading");
        compare(page.verdict, "");
        verdictIs(FactoryUtils.Fail, "does not answer");
    }

    function test_coverServiceThatComesBackIsForgiven() {
        inTime(function() {
            Phone.coverService = "refuses";
            openTest("VerificationZel");
            tryVerify(function() { return page.trouble !== ""; });
            var lost = Date.now();
            Phone.coverService = "answers";
            tryVerify(function() { return value("Smart-cover service") === "answers"; }, 10000);
            // Its chance lasts eight seconds.
            if (Date.now() - lost > 7500)
                return false;
            verify(page.trouble === "");
            letPass(9000);
            compare(page.verdict, "");
            return true;
        });
    }

    function test_coverMissing() {
        Phone.unsupported = ["ZEL"];
        openTest("VerificationZel");
        missingIs("no smart-cover service");
    }

    function test_positioningStatusInWords_data() {
        return [
            { tag: "error", status: Gps.StatusError, word: "in trouble or not there", trouble: true },
            { tag: "unavailable", status: Gps.StatusUnavailable, word: "cannot position", trouble: true },
            { tag: "acquiring", status: Gps.StatusAcquiring, word: "looking for the position", trouble: false },
            { tag: "available", status: Gps.StatusAvailable, word: "knows the position", trouble: false },
            { tag: "nonsense", status: -7, word: "unknown (-7)", trouble: false }
        ];
    }

    function test_positioningStatusInWords(data) {
        Phone.gpsStatus = data.status;
        openTest("VerificationGpsRadio");
        compare(value("Positioning service"), data.word);
        compare(page.trouble !== "", data.trouble);
        verify(!find("pass").enabled, "satellites can be seen here");
        compare(page.verdict, "");
    }

    function test_satelliteInUse() {
        var begun = Date.now(), passed = function() { return (Date.now() - begun) / 1000; };
        openTest("VerificationGpsRadio");
        tryVerify(function() { return value("Satellites in view") === "3"; });
        compare(value("Satellites in use"), "0");
        compare(value("First satellite in use after"), "no reading");
        verify(reading("First satellite in view after").value <= passed());
        wait(1200);
        compare(page.verdict, "");
        Phone.satellites = [Phone.satellite(2, 61, 112, 41, true), Phone.satellite(5, 35, 48, 33, false)];
        verdictIs(FactoryUtils.Pass, "in use after");
        compare(value("Satellites in view"), "2");
        compare(value("Satellites in use"), "1");
        var after = reading("First satellite in use after").value;
        verify(after >= 1.2 && after <= passed(), after);
        wait(50);
        Phone.satellites = [Phone.satellite(2, 61, 112, 41, true)];
        compare(reading("First satellite in use after").value, after, "the first one counts");
    }

    function test_receiverRunsOnlyWhileThePageIsOpen() {
        openTest("VerificationGpsRadio");
        compare(Phone.log, ["receiver on"]);
        page.close();
        wait(50);
        compare(Phone.log, ["receiver on", "receiver off"]);
    }

    function test_receiverOfAPhoneWithoutOneIsNotTouched() {
        Phone.unsupported = ["GPS"];
        openTest("VerificationGpsRadio");
        missingIs("no satellite receiver");
        compare(Phone.log, []);
    }

    function test_positioningWithoutSatelliteSource() {
        Phone.gpsSource = false;
        openTest("VerificationGpsRadio");
        verify(shown("noSource"));
        compare(page.measurements.length, 1);
        verify(!find("pass").enabled);
        Phone.gpsStatus = Gps.StatusAvailable;
        tryVerify(function() { return find("pass").enabled; });
        compare(page.verdict, "");
    }

    function test_receiverInTrouble() {
        openTest("VerificationGpsRadio");
        compare(page.trouble, "");
        Phone.gpsError = true;
        verify(page.trouble.indexOf("reports an error") >= 0);
    }

    function test_receiverThatFallsSilent() {
        openTest("VerificationGpsRadio");
        tryVerify(function() { return page.reported > 0; });
        compare(page.trouble, "");
        page.reported -= 15500;
        tryVerify(function() { return /has not reported for (1[5-9]|[2-9]\d) s/.test(page.trouble); });
        Phone.satellites = [];
        tryCompare(page, "trouble", "");
    }

    SkyView {
        id: sky
        width: 300
    }
    SignalBars {
        id: bars
        width: 300
    }

    function marks() {
        var found = [];
        (function walk(item) {
            for (var i = 0; i < item.children.length; ++i) {
                if (item.children[i].satellite !== undefined && item.children[i].visible)
                    found.push(item.children[i]);
                walk(item.children[i]);
            }
        })(sky);
        return found;
    }

    function test_skyPutsSatellitesInTheirPlaces() {
        sky.satellites = [Phone.satellite(1, 90, 0, 40, false), Phone.satellite(2, 0, 90, 40, true),
                          Phone.satellite(3, 45, 180, 40, false)];
        var found = marks();
        compare(found.length, 3);
        function place(mark) {
            return [Math.round(mark.x + mark.width / 2 - sky.middle), Math.round(mark.y + mark.height / 2 - sky.middle)];
        }
        compare(place(found[0]), [0, 0], "straight above");
        compare(place(found[1]), [Math.round(sky.radius), 0], "in the east, at the horizon");
        compare(place(found[2]), [0, Math.round(sky.radius / 2)], "in the south, half way up");
        verify(!found[0].used && found[1].used);
        verify(!Qt.colorEqual(found[0].color, found[1].color));
        verify(found[0].border.width > 0 && found[1].border.width === 0, "not by colour alone");
    }

    function test_skyLeavesOutWhatHasNoPlace() {
        sky.satellites = [Phone.satellite(1, -1, 0, 40, false), Phone.satellite(2, 10, -1, 40, true),
                          Phone.satellite(3, NaN, 20, 40, false), Phone.satellite(4, 91, 20, 40, false),
                          Phone.satellite(5, undefined, undefined, 40, false)];
        compare(marks().length, 0);
        sky.satellites = [];
        compare(marks().length, 0);
    }

    function test_skyOfVeryManyKeepsThoseInUse() {
        var all = [];
        for (var i = 1; i <= 10000; ++i)
            all.push(Phone.satellite(i, 10, i % 360, i % 50, i === 9999));
        sky.satellites = all;
        compare(marks().length, sky.limit);
        verify(marks().some(function(mark) { return mark.used; }));
        sky.satellites = [];
    }

    function test_barsKeepThoseInUseAndTheStrongest() {
        var all = [];
        for (var i = 1; i <= 400; ++i)
            all.push(Phone.satellite(i, 10, 10, i % 50, i === 350));
        bars.satellites = all;
        compare(bars.shown.length, bars.limit);
        compare(bars.hidden, 390);
        verify(bars.shown.some(function(satellite) { return satellite.identifier === 350; }));
        bars.shown.forEach(function(satellite, index) {
            verify(satellite.inUse || satellite.strength === 49 || satellite.strength === 48);
            verify(index === 0 || bars.shown[index - 1].identifier < satellite.identifier, "they keep their order");
        });
        bars.satellites = [];
        compare(bars.shown.length, 0);
        compare(bars.hidden, 0);
    }

    function test_usbDrive() {
        openTest("VerificationUsbOtg");
        compare(value("USB drive"), "none seen");
        verify(!find("pass").enabled);
        Phone.drive = true;
        compare(value("USB drive"), "plugged in");
        compare(page.verdict, "", "it must be seen to leave");
        Phone.drive = false;
        verdictIs(FactoryUtils.Pass, "come and go");
    }

    function test_usbDriveThatWasInBefore() {
        Phone.drive = true;
        openTest("VerificationUsbOtg");
        compare(value("USB drive"), "none seen");
        Phone.drive = false;
        compare(page.verdict, "", "it was not seen to come");
        Phone.drive = true;
        Phone.drive = false;
        verdictIs(FactoryUtils.Pass);
    }

    function test_usbDriveThatIsNotAnnounced() {
        openTest("VerificationUsbOtg");
        compare(page.trouble, "");
        page.late = true;
        verify(page.trouble.indexOf("not announced any drive") >= 0);
        verify(!find("pass").enabled);
        Phone.drive = true;
        compare(page.trouble, "");
        page.late = true;
        verify(page.trouble.indexOf("is gone") >= 0);
    }

    function test_usbMissing() {
        Phone.unsupported = ["UsbOtg"];
        openTest("VerificationUsbOtg");
        missingIs("cannot take USB devices");
    }

    function test_wifiConnected() {
        Phone.wireless = [{ status: 6, name: "Workshop", strength: 72 }];
        openTest("VerificationWifi");
        verdictIs(FactoryUtils.Pass);
        compare(value("Wi-Fi address"), "00:11:22:aa:bb:cd");
        verify(reading("Wi-Fi address").limitsText.indexOf("{5}") > 0);
        compare(value("Radio found"), "yes");
        compare(value("Connection"), "connected");
        compare(value("Network"), "Workshop");
        compare(value("Signal strength"), "72 %");
    }

    function test_wifiIsConnectedLater() {
        openTest("VerificationWifi");
        tryVerify(function() { return shown("unconnected"); });
        compare(value("Connection"), "no network");
        compare(value("Signal strength"), "no reading");
        compare(page.verdict, "");
        verify(find("pass").enabled, "there may be no network in reach");
        Phone.wireless = [{ status: 6, name: "Workshop", strength: -1 }];
        verdictIs(FactoryUtils.Pass);
        compare(value("Signal strength"), "no reading");
        compare(Phone.log, ["strength"], "a driver that cannot tell is asked once");
    }

    function test_wifiFails_data() {
        return [
            { tag: "address", valid: [], wireless: [{ status: 6, name: "Workshop", strength: 72 }],
              reason: "Wi-Fi address: 00:11:22:aa:bb:cd", other: "Radio" },
            { tag: "no radio", valid: ["wireless"], wireless: [], reason: "Radio found: no", other: "address" }
        ];
    }

    function test_wifiFails(data) {
        Phone.validAddresses = data.valid;
        Phone.wireless = data.wireless;
        openTest("VerificationWifi");
        verdictIs(FactoryUtils.Fail, data.reason);
        compare(page.reason.indexOf(data.other), -1, page.reason);
    }

    function test_wifiWithoutAnOperator() {
        openTest("VerificationWifi");
        tryVerify(function() { return shown("unconnected"); });
        page.frame = { unattended: true, blocking: function(text, job) { job(); } };
        verdictIs(FactoryUtils.Pass, "radio was found");
    }

    function test_wifiMissing() {
        Phone.unsupported = ["Wifi"];
        openTest("VerificationWifi");
        missingIs("no Wi-Fi");
    }

    function test_bluetoothFindsADevice() {
        Phone.bluetoothDevices = ["Headset", "Headset", "Watch"];
        openTest("VerificationBluetooth");
        verdictIs(FactoryUtils.Pass, "Headset");
        compare(value("Bluetooth address"), "00:11:22:aa:bb:cc");
        compare(value("Devices found"), "2");
        shell.leaveTest();
        compare(Phone.log, ["search", "search over"]);
    }

    function test_bluetoothThatFindsNobody() {
        openTest("VerificationBluetooth");
        tryVerify(function() { return page.search !== null && page.search.running; });
        // Not by find(), which waits.
        verify(!findChild(shell, "pass").enabled);
        tryVerify(function() { return shown("nobody"); });
        verify(find("pass").enabled, "there may be no device in reach");
        compare(page.verdict, "");
        Phone.bluetoothDevices = ["Headset"];
        mouseClick(find("search"));
        verdictIs(FactoryUtils.Pass, "Headset");
    }

    function test_bluetoothThatIsSwitchedOff() {
        Phone.bluetoothError = 2;
        openTest("VerificationBluetooth");
        tryCompare(page, "trouble", "Bluetooth is switched off.");
        compare(page.verdict, "");
        verify(!find("pass").enabled);
        Phone.bluetoothError = 0;
        Phone.bluetoothDevices = ["Headset"];
        tryVerify(function() { return find("search").enabled; });
        mouseClick(find("search"));
        verdictIs(FactoryUtils.Pass, "Headset");
    }

    function test_bluetoothFails_data() {
        return [
            { tag: "no radio", error: 4, valid: ["bluetooth"], reason: "No Bluetooth radio" },
            { tag: "no service", error: 1, valid: ["bluetooth"], reason: "The Bluetooth service" },
            { tag: "address", error: 0, valid: [], reason: "Bluetooth address: 00:11:22:aa:bb:cc" }
        ];
    }

    function test_bluetoothFails(data) {
        Phone.bluetoothError = data.error;
        Phone.validAddresses = data.valid;
        Phone.bluetoothDevices = ["Headset"];
        openTest("VerificationBluetooth");
        verdictIs(FactoryUtils.Fail, data.reason);
    }

    function test_bluetoothWithoutAnOperator() {
        openTest("VerificationBluetooth");
        tryVerify(function() { return page.search !== null && page.search.running; });
        page.frame = { unattended: true, blocking: function(text, job) { job(); } };
        verdictIs(FactoryUtils.Pass, "radio searched");
    }

    function test_bluetoothMissing() {
        Phone.unsupported = ["Bluetooth"];
        openTest("VerificationBluetooth");
        missingIs("no Bluetooth");
        compare(Phone.log, []);
    }

    /*! What pages have Qt tell of networks is announced to whoever shows them, so that it can end safely. */
    function test_networkInformationIsAnnounced_data() {
        return [{ tag: "VerificationSim" }, { tag: "VerificationWifi" }];
    }

    function test_networkInformationIsAnnounced(data) {
        var kinds = [];
        start(data.tag);
        shell.networkInformationMade.connect(function(information) { kinds.push(typeof information.networkStatus); });
        tryVerify(function() { return page !== null && page.isOpen; });
        tryCompare(kinds, "length", 1);
        compare(kinds, ["function"]);
    }

    function test_simCard() {
        openTest("VerificationSim");
        verdictIs(FactoryUtils.Pass);
        compare(value("Modems"), "1");
        compare(value("SIM cards read"), "1");
        compare(reading("Modems").result, "pass");
    }

    function test_simCards_data() {
        var locked = Phone.modem("");
        locked.imsi = "";
        return [
            { tag: "two", expected: 2, modems: [Phone.modem("one"), Phone.modem("two")], verdict: FactoryUtils.Pass },
            { tag: "one too few", expected: 2, modems: [Phone.modem("one")], verdict: FactoryUtils.Fail,
              reason: "Modems: 1 (at least 2)" },
            { tag: "one too few, and locked", expected: 2, modems: [locked], verdict: FactoryUtils.Fail,
              reason: "Modems: 1 (at least 2)" },
            { tag: "none", expected: 1, modems: [], verdict: FactoryUtils.Fail, reason: "reports no modem" },
            { tag: "locked", expected: 1, modems: [locked], verdict: "", passes: false },
            { tag: "one of two locked", expected: 2, modems: [Phone.modem("one"), locked], verdict: "", passes: true }
        ];
    }

    function test_simCards(data) {
        Phone.modemCount = data.expected;
        Phone.modems = data.modems;
        openTest("VerificationSim");
        if (data.verdict !== "") {
            verdictIs(data.verdict, data.reason);
            return;
        }
        tryVerify(function() { return page.trouble !== ""; });
        compare(page.verdict, "");
        compare(find("pass").enabled, data.passes);
        Phone.modems = data.modems.map(function() { return Phone.modem("fake.tel"); });
        mouseClick(find("again"));
        verdictIs(FactoryUtils.Pass);
    }

    function test_simMissing() {
        Phone.unsupported = ["SIM"];
        openTest("VerificationSim");
        missingIs("no modem");
    }

    function test_radioSwitches() {
        Phone.prefers4G = true;
        openTest("RadioSwitches");
        tryVerify(function() { return value("NFC") === "on"; });
        tryVerify(function() { return value("FM transmitter") === "off"; });
        compare(value("4G preferred by the modem settings"), "yes");
        Phone.nfc = false;
        Phone.fmTransmitter = true;
        compare(value("NFC"), "off");
        compare(value("FM transmitter"), "on");
        verify(find("pass").enabled);
        compare(page.verdict, "");
    }

    function test_radioSwitchesThatAreAllOff() {
        Phone.nfc = false;
        openTest("RadioSwitches");
        compare(value("NFC"), "no reading");
        tryVerify(function() { return value("NFC") === "off"; });
    }

    function test_radioSwitchesOfASilentService() {
        openTest("RadioSwitches");
        tryVerify(function() { return value("NFC") === "on"; });
        Phone.modeControl = false;
        tryVerify(function() { return page.trouble !== ""; }, 10000);
        compare(value("NFC"), "no reading");
        compare(value("Mode-control service"), "does not answer");
        verify(!find("pass").enabled);
        Phone.modeControl = true;
        Phone.nfc = false;
        tryVerify(function() { return value("NFC") === "off"; }, 10000);
        verify(page.trouble === "");
    }

    function test_deviceTimes_data() {
        return [
            { tag: "days", times: [93784999, 61200000], up: "26 h 3 min 4 s", asleep: "17 h 0 min 0 s" },
            { tag: "just started", times: [0, 0], up: "0 h 0 min 0 s", asleep: "0 h 0 min 0 s" },
            { tag: "years", times: [315576000000, 59999], up: "87660 h 0 min 0 s", asleep: "0 h 0 min 59 s" },
            { tag: "nonsense", times: [-1, NaN], up: "no reading", asleep: "no reading" }
        ];
    }

    function test_deviceTimes(data) {
        Phone.deviceTimes = data.times;
        openTest("SystemState");
        tryVerify(function() { return value("Switched on for") === data.up; });
        compare(value("Asleep meanwhile"), data.asleep);
        verify(page.trouble === "");
    }

    function test_deviceTimesOfASilentService() {
        Phone.modeControl = false;
        openTest("SystemState");
        compare(value("Switched on for"), "no reading");
        tryVerify(function() { return page.trouble !== ""; }, 10000);
        compare(value("Asleep meanwhile"), "no reading");
    }
}
