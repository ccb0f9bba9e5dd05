<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
    <message id="kiv-back">
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-reading-missing">
        <source>no reading</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-limits-range">
        <source>%1 to %2 %3</source>
        <extracomment>Limits of a reading: the lowest, the highest, the unit</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-limits-minimum">
        <source>at least %1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-limits-maximum">
        <source>at most %1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-reading-pass">
        <source>in order</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-reading-near">
        <source>close to the limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-reading-fail">
        <source>out of limits</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-yes">
        <source>yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-no">
        <source>no</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-verdict-passed">
        <source>Passed</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-verdict-failed">
        <source>Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-verdict-not-applicable">
        <source>Not applicable</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-verdict-not-tested">
        <source>Not tested</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-touch-self">
        <source>Touch panel self-test</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-touch">
        <source>Touch panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-multi-touch">
        <source>Several fingers</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-lcd">
        <source>Display</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-lcd-backlight">
        <source>Display backlight</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-light">
        <source>Light sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-prox">
        <source>Proximity sensor</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-gyro">
        <source>Gyroscope and accelerometer</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-ecompass">
        <source>Compass</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-hall">
        <source>Cover magnet switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-fingerprint">
        <source>Fingerprint reader</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-mic-1">
        <source>Microphone 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-mic-2">
        <source>Microphone 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-speaker-music">
        <source>Loudspeaker music</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-speaker-stereo">
        <source>Loudspeaker left and right</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-receiver">
        <source>Earpiece</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-headset-buttons">
        <source>Headset buttons</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-headset">
        <source>Headset socket</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-headset-music">
        <source>Headset music</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-front-camera">
        <source>Front camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-back-camera">
        <source>Back camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-wifi">
        <source>Wi-Fi</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-bluetooth">
        <source>Bluetooth</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-zel">
        <source>Smart cover</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-gps">
        <source>Satellite positioning</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-fm-radio">
        <source>FM radio</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-battery">
        <source>Battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-usb-charging">
        <source>USB charging</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-led">
        <source>Notification light</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-button-backlight">
        <source>Key illumination</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-vibrator">
        <source>Vibrator</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-sim">
        <source>SIM card</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-sd-card">
        <source>Memory card</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-key">
        <source>Keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-usb-otg">
        <source>USB host</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-video">
        <source>Video playback</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-battery-resistance">
        <source>Battery resistance</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-suspend">
        <source>Suspend</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-reboot">
        <source>Restart</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-cellular-voice">
        <source>Phone call</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-cellular-data">
        <source>Mobile data</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-mac-addresses">
        <source>Network addresses</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-calibration">
        <source>Calibration record</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-sensor-calibration">
        <source>Sensor calibration</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-system">
        <source>System state</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-reason-reading">
        <source>%1: %2 (%3)</source>
        <extracomment>A reading that is not as it should be: its name, its value, what is wrong with it</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-battery-instructions">
        <source>Nothing to do: the phone reads its battery.</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-battery-hint">
        <source>Pass unlocks when the battery has been read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-battery-good">
        <source>Every reading with a limit is within it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-battery-present">
        <source>Battery in place</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-battery-status">
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-battery-health">
        <source>Health</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-battery-voltage">
        <source>Voltage</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-battery-current">
        <source>Current</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-battery-temperature">
        <source>Temperature</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-battery-energy">
        <source>Energy left</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-battery-wear">
        <source>Capacity of its design</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-disclaimer-title">
        <source>Before you begin</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-quit">
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-disclaimer-accept">
        <source>I have read this</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-ap-name">
        <source>Kiv</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-home-subtitle">
        <source>Hardware tests</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-home-settings">
        <source>This phone and settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-home-question">
        <source>Which tests shall run?</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-mode-factory">
        <source>Factory sequence</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-mode-factory-detail">
        <source>Every part of the phone once, in a fixed order</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-mode-run-in">
        <source>Run-in</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-mode-run-in-detail">
        <source>The tests that warm a new phone up</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-mode-all">
        <source>All tests</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-mode-all-detail">
        <source>Everything that this phone has, singly or in a row</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-list-subtitle">
        <source>%1 of %2 tests can run here</source>
        <extracomment>How many of the tests of the sequence can be run on this phone</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-list-absent">
        <source>Not on this phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-list-unwritten">
        <source>Not available yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-summary">
        <source>Summary</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-list-continue">
        <source>Go on, %1 left</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-list-start">
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-settings-4g">
        <source>Modem prefers 4G</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-settings-title">
        <source>This phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-settings-light">
        <source>Light colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-settings-dark">
        <source>Dark colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-settings-disclaimer">
        <source>Read the notice again</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-summary-overruled">
        <source>Overruled by the operator; measured: %1</source>
        <extracomment>The operator&apos;s verdict differs from the page&apos;s own, which follows</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-summary-attempts">
        <source>Attempts: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-summary-incomplete">
        <source>Not complete</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-summary-retest">
        <source>Retest the failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-summary-list">
        <source>Back to the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-summary-next">
        <source>Next phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-page-broken">
        <source>This test cannot be opened on this phone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-leave">
        <source>Leave this test</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-progress">
        <source>%1 of %2, about %3 min left</source>
        <extracomment>Place in the sequence and the time it still takes</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-test-retry">
        <source>Try again</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-page-missing-advice">
        <source>If the phone is meant to be without it, choose Not applicable.</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-page-guided">
        <source>You judge this one: the phone cannot see the result itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-verdict-fail">
        <source>Fail</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-verdict-pass">
        <source>Pass</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-verdict-hold">
        <source>Hold Pass until it fills</source>
        <translation type="unfinished"></translation>
    </message>
    <message id="kiv-working-probing">
        <source>Looking at what this phone has</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
