// SPDX-License-Identifier: BSD-3-Clause
pragma Singleton
import QtQuick 2.15

/*! The phone behind the pretended types: what a test sets here, they report. */
QtObject {
    id: phone

    property var battery: ({})
    /*! Whether the battery notices at once when charging is switched. */
    property bool chargerFollows: false
    property var unsupported: []
    property var factoryTests: null
    property var runInTests: []
    property var settings: ({})
    property var keys: [0x01000072, 0x01000070]
    property bool batteryVoltageTest: true
    property string ledType: "RGB"
    property bool backCameraFlash: true
    property date machineStart: new Date(2024, 2, 5, 8, 30)
    property var addresses: ({})
    property var validAddresses: []
    property var calibrationFlagOk: false
    property var calibrationTextOk: false
    property bool jackFound: true
    property bool headphones: false
    property bool microphone: false
    property bool buttonsFound: true
    property int buttonCount: 3
    property int buttonsPressed: 0
    property bool hall: false
    property bool touchSelfTest: true
    property int cardStatus: 0
    property bool cardMountFailed: false
    property int cardOutcome: 3
    property var rotation: [0.1, -0.2, 0.05]
    property bool rotationGood: true
    property bool prefers4G: false
    property var calibrated: ["gyroscope", "compass"]
    property bool calibrationWorks: true
    property bool offersRadio: true
    property string sinkName: "sink.primary"
    property string sinkPort: "output-before"
    property var sinkPorts: []
    /*! Whether the sound server takes and gives anything, and the file that sounds. */
    property bool soundServer: true
    property string sounding
    property string sourceName: "source.builtin"
    property string sourcePort: "input-before"
    property bool modeControl: true
    property var deviceTimes: [93784000, 61200000]
    property bool nfc: true
    property bool fmTransmitter: false
    property int modemCount: 1
    property var streams: []

    property string coverService: "answers"
    property bool coverReady: true
    property bool coverDocked: false
    property string coverId: ""
    property int gpsStatus: 2
    property bool gpsSource: true
    property bool gpsError: false
    property var satellites: []
    property bool drive: false
    property var wireless: []
    property var modems: []
    property int bluetoothError: 0
    property var bluetoothDevices: []

    property var cameras: []
    property bool cameraDelivers: true
    property string cameraError
    property var cameraLightModes: []
    property bool cameraLight: false
    property var decoders: []
    property string videoBreaks

    /*! What the pages did to the phone, in order. */
    property var log: []

    function note(what) {
        log = log.concat([what]);
    }

    function reset() {
        battery = goodBattery();
        chargerFollows = false;
        unsupported = [];
        factoryTests = null;
        runInTests = ["VerificationLcdBacklight", "VerificationBackCamera", "VerificationLcd",
                      "AudioPlayMusicLoudspeaker", "VerificationVideoPlayback"];
        settings = { "CalibrationInfo/Flag": "1", "CalibrationInfo/String": "K-2207" };
        keys = [0x01000072, 0x01000070];
        batteryVoltageTest = true;
        ledType = "RGB";
        backCameraFlash = true;
        machineStart = new Date(2024, 2, 5, 8, 30);
        addresses = { "bluetooth": "00:11:22:aa:bb:cc", "wireless": "00:11:22:aa:bb:cd" };
        validAddresses = ["bluetooth", "wireless"];
        calibrationFlagOk = true;
        calibrationTextOk = true;
        jackFound = true;
        headphones = false;
        microphone = false;
        buttonsFound = true;
        buttonCount = 3;
        buttonsPressed = 0;
        hall = false;
        touchSelfTest = true;
        cardStatus = 0;
        cardMountFailed = false;
        cardOutcome = 3;
        rotation = [0.1, -0.2, 0.05];
        rotationGood = true;
        prefers4G = false;
        calibrated = ["gyroscope", "compass"];
        calibrationWorks = true;
        sinkName = "sink.primary";
        sinkPort = "output-before";
        sourceName = "source.builtin";
        sourcePort = "input-before";
        sinkPorts = ["output-before", "output-speaker", "output-earpiece", "output-wired_headphone"];
        soundServer = true;
        sounding = "";
        streams = [{ mediaName: "\"A song\"", applicationName: "\"Player\"", volumeInfo: "100% 80%", corked: false,
                     muted: true }];
        offersRadio = true;
        // Positions as in Qt: 1 is the back, 2 the front. Lights: off, and steadily on for a video.
        cameras = [{ deviceId: "back", displayName: "Back", position: 1 },
                   { deviceId: "front", displayName: "Front", position: 2 }];
        cameraDelivers = true;
        cameraError = "";
        cameraLightModes = [2, 64];
        cameraLight = false;
        decoders = ["mp4", "webm"];
        videoBreaks = "";
        coverService = "answers";
        coverReady = true;
        coverDocked = false;
        coverId = "";
        gpsStatus = 2;
        gpsSource = true;
        gpsError = false;
        satellites = [satellite(2, 61, 112, 41, false), satellite(5, 35, 48, 33, false), satellite(25, 9, 289, 19, false)];
        drive = false;
        modeControl = true;
        deviceTimes = [93784000, 61200000];
        nfc = true;
        fmTransmitter = false;
        wireless = [{ status: 1, name: "", strength: -1 }];
        modems = [modem("fake.tel")];
        modemCount = 1;
        bluetoothError = 0;
        bluetoothDevices = [];
        log = [];
    }

    /*! A phone in which nothing answers. */
    function removeEverything() {
        battery = {};
        settings = {};
        keys = [];
        addresses = {};
        validAddresses = [];
        calibrationFlagOk = false;
        calibrationTextOk = false;
        jackFound = false;
        buttonsFound = false;
        touchSelfTest = false;
        machineStart = new Date(NaN);
        modeControl = false;
        rotation = [0, 0, 0];
        rotationGood = false;
        calibrated = [];
        coverService = "refuses";
        gpsStatus = 0;
        gpsSource = false;
        satellites = [];
        modeControl = false;
        wireless = [];
        modems = [];
        bluetoothError = 4;
        cameras = [];
        decoders = [];
    }

    function satellite(identifier, elevation, azimuth, strength, inUse) {
        return { identifier: identifier, elevation: elevation, azimuth: azimuth, strength: strength, inUse: inUse };
    }

    function modem(network) {
        return { status: 6, name: network, strength: 80, imsi: "310150000000000", home: ["310", "150"] };
    }

    function goodBattery() {
        return { currentNow: 412000, minimumVoltage: 3400000, maximumVoltage: 4350000, voltageNow: 3921000,
                 minimumEnergy: 0, maximumEnergy: 9300000, energyNow: 6120000, minimumDesignEnergy: 0,
                 maximumDesignEnergy: 9700000, health: "Good", status: "Charging", temperature: 28.4, present: true };
    }

    function setBattery(changes) {
        var all = {};
        for (var key in battery)
            all[key] = battery[key];
        for (var change in changes)
            all[change] = changes[change];
        battery = all;
    }

    function switchCharger(on) {
        note(on ? "enableCharger" : "disableCharger");
        if (chargerFollows)
            setBattery({ status: on ? "Charging" : "Discharging" });
    }

    Component.onCompleted: reset()
}
