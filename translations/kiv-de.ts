<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name></name>
    <message id="kiv-back">
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message id="kiv-reading-missing">
        <source>no reading</source>
        <translation>kein Messwert</translation>
    </message>
    <message id="kiv-limits-range">
        <source>%1 to %2 %3</source>
        <extracomment>Limits of a reading: the lowest, the highest, the unit</extracomment>
        <translation>%1 bis %2 %3</translation>
    </message>
    <message id="kiv-limits-minimum">
        <source>at least %1 %2</source>
        <translation>mindestens %1 %2</translation>
    </message>
    <message id="kiv-limits-maximum">
        <source>at most %1 %2</source>
        <translation>höchstens %1 %2</translation>
    </message>
    <message id="kiv-reading-pass">
        <source>in order</source>
        <translation>in Ordnung</translation>
    </message>
    <message id="kiv-reading-near">
        <source>close to the limit</source>
        <translation>nahe an der Grenze</translation>
    </message>
    <message id="kiv-reading-fail">
        <source>out of limits</source>
        <translation>außerhalb der Grenzen</translation>
    </message>
    <message id="kiv-yes">
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message id="kiv-no">
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message id="kiv-verdict-passed">
        <source>Passed</source>
        <translation>Bestanden</translation>
    </message>
    <message id="kiv-verdict-failed">
        <source>Failed</source>
        <translation>Nicht bestanden</translation>
    </message>
    <message id="kiv-verdict-not-applicable">
        <source>Not applicable</source>
        <translation>Entfällt</translation>
    </message>
    <message id="kiv-verdict-not-tested">
        <source>Not tested</source>
        <translation>Nicht geprüft</translation>
    </message>
    <message id="kiv-test-touch-self">
        <source>Touch panel self-test</source>
        <translation>Selbsttest des Touchscreens</translation>
    </message>
    <message id="kiv-test-touch">
        <source>Touch panel</source>
        <translation>Touchscreen</translation>
    </message>
    <message id="kiv-test-multi-touch">
        <source>Several fingers</source>
        <translation>Mehrere Finger</translation>
    </message>
    <message id="kiv-test-lcd">
        <source>Display</source>
        <translation>Bildschirm</translation>
    </message>
    <message id="kiv-test-lcd-backlight">
        <source>Display backlight</source>
        <translation>Bildschirmbeleuchtung</translation>
    </message>
    <message id="kiv-test-light">
        <source>Light sensor</source>
        <translation>Lichtsensor</translation>
    </message>
    <message id="kiv-test-prox">
        <source>Proximity sensor</source>
        <translation>Näherungssensor</translation>
    </message>
    <message id="kiv-test-gyro">
        <source>Gyroscope and accelerometer</source>
        <translation>Gyroskop und G‑Sensor</translation>
    </message>
    <message id="kiv-test-ecompass">
        <source>Compass</source>
        <translation>Kompass</translation>
    </message>
    <message id="kiv-test-hall">
        <source>Cover magnet switch</source>
        <translation>Magnetschalter der Hülle</translation>
    </message>
    <message id="kiv-test-fingerprint">
        <source>Fingerprint reader</source>
        <translation>Fingerabdruckleser</translation>
    </message>
    <message id="kiv-test-mic-1">
        <source>Microphone 1</source>
        <translation>Mikrofon 1</translation>
    </message>
    <message id="kiv-test-mic-2">
        <source>Microphone 2</source>
        <translation>Mikrofon 2</translation>
    </message>
    <message id="kiv-test-speaker-music">
        <source>Loudspeaker music</source>
        <translation>Lautsprecher: Musik</translation>
    </message>
    <message id="kiv-test-speaker-stereo">
        <source>Loudspeaker left and right</source>
        <translation>Lautsprecher: links und rechts</translation>
    </message>
    <message id="kiv-test-receiver">
        <source>Earpiece</source>
        <translation>Hörmuschel</translation>
    </message>
    <message id="kiv-test-headset-buttons">
        <source>Headset buttons</source>
        <translation>Headset-Tasten</translation>
    </message>
    <message id="kiv-test-headset">
        <source>Headset socket</source>
        <translation>Headset-Buchse</translation>
    </message>
    <message id="kiv-test-headset-music">
        <source>Headset music</source>
        <translation>Headset: Musik</translation>
    </message>
    <message id="kiv-test-front-camera">
        <source>Front camera</source>
        <translation>Frontkamera</translation>
    </message>
    <message id="kiv-test-back-camera">
        <source>Back camera</source>
        <translation>Rückkamera</translation>
    </message>
    <message id="kiv-test-wifi">
        <source>Wi-Fi</source>
        <translation>WLAN</translation>
    </message>
    <message id="kiv-test-bluetooth">
        <source>Bluetooth</source>
        <translation>Bluetooth</translation>
    </message>
    <message id="kiv-test-zel">
        <source>Smart cover</source>
        <translation>Intelligente Hülle</translation>
    </message>
    <message id="kiv-test-gps">
        <source>Satellite positioning</source>
        <translation>Satellitenortung</translation>
    </message>
    <message id="kiv-test-fm-radio">
        <source>FM radio</source>
        <translation>UKW-Radio</translation>
    </message>
    <message id="kiv-test-battery">
        <source>Battery</source>
        <translation>Akku</translation>
    </message>
    <message id="kiv-test-usb-charging">
        <source>USB charging</source>
        <translation>Laden über USB</translation>
    </message>
    <message id="kiv-test-led">
        <source>Notification light</source>
        <translation>Benachrichtigungsleuchte</translation>
    </message>
    <message id="kiv-test-button-backlight">
        <source>Key illumination</source>
        <translation>Tastenbeleuchtung</translation>
    </message>
    <message id="kiv-test-vibrator">
        <source>Vibrator</source>
        <translation>Vibrationsmotor</translation>
    </message>
    <message id="kiv-test-sim">
        <source>SIM card</source>
        <translation>SIM-Karte</translation>
    </message>
    <message id="kiv-test-sd-card">
        <source>Memory card</source>
        <translation>Speicherkarte</translation>
    </message>
    <message id="kiv-test-key">
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message id="kiv-test-usb-otg">
        <source>USB host</source>
        <translation>USB-Host</translation>
    </message>
    <message id="kiv-test-video">
        <source>Video playback</source>
        <translation>Videowiedergabe</translation>
    </message>
    <message id="kiv-test-battery-resistance">
        <source>Battery resistance</source>
        <translation>Innenwiderstand des Akkus</translation>
    </message>
    <message id="kiv-test-suspend">
        <source>Suspend</source>
        <translation>Ruhezustand</translation>
    </message>
    <message id="kiv-test-reboot">
        <source>Restart</source>
        <translation>Neustart</translation>
    </message>
    <message id="kiv-test-cellular-voice">
        <source>Phone call</source>
        <translation>Telefongespräch</translation>
    </message>
    <message id="kiv-test-cellular-data">
        <source>Mobile data</source>
        <translation>Mobile Daten</translation>
    </message>
    <message id="kiv-test-mac-addresses">
        <source>Network addresses</source>
        <translation>Netzwerkadressen</translation>
    </message>
    <message id="kiv-test-calibration">
        <source>Calibration record</source>
        <translation>Kalibrierprotokoll</translation>
    </message>
    <message id="kiv-test-sensor-calibration">
        <source>Sensor calibration</source>
        <translation>Sensoren kalibrieren</translation>
    </message>
    <message id="kiv-test-system">
        <source>System state</source>
        <translation>Systemzustand</translation>
    </message>
    <message id="kiv-reason-reading">
        <source>%1: %2 (%3)</source>
        <extracomment>A reading that is not as it should be: its name, its value, what it should be</extracomment>
        <translation>%1: %2 (%3)</translation>
    </message>
    <message id="kiv-battery-instructions">
        <source>Nothing to do: the phone reads its battery.</source>
        <translation>Nichts zu tun: Das Telefon liest seinen Akku aus.</translation>
    </message>
    <message id="kiv-battery-hint">
        <source>Pass unlocks when the battery has been read.</source>
        <translation>„Bestanden“ ist gesperrt, bis der Akku ausgelesen ist.</translation>
    </message>
    <message id="kiv-battery-good">
        <source>Every reading with a limit is within it.</source>
        <translation>Jeder Messwert mit Grenzen liegt innerhalb.</translation>
    </message>
    <message id="kiv-battery-present">
        <source>Battery in place</source>
        <translation>Akku eingelegt</translation>
    </message>
    <message id="kiv-battery-status">
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message id="kiv-battery-health">
        <source>Health</source>
        <translation>Gesundheit</translation>
    </message>
    <message id="kiv-battery-voltage">
        <source>Voltage</source>
        <translation>Spannung</translation>
    </message>
    <message id="kiv-battery-current">
        <source>Current</source>
        <translation>Strom</translation>
    </message>
    <message id="kiv-battery-temperature">
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message id="kiv-battery-energy">
        <source>Energy left</source>
        <translation>Restenergie</translation>
    </message>
    <message id="kiv-battery-wear">
        <source>Capacity compared to new</source>
        <translation>Kapazität im Vergleich zu neu</translation>
    </message>
    <message id="kiv-disclaimer-title">
        <source>Before you begin</source>
        <translation>Bevor Sie beginnen</translation>
    </message>
    <message id="kiv-quit">
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message id="kiv-disclaimer-accept">
        <source>I have read this</source>
        <translation>Ich habe das gelesen</translation>
    </message>
    <message id="kiv-ap-name">
        <source>Kiv</source>
        <translation>Kiv</translation>
    </message>
    <message id="kiv-home-subtitle">
        <source>Hardware tests</source>
        <translation>Hardwaretests</translation>
    </message>
    <message id="kiv-home-settings">
        <source>This phone and settings</source>
        <translation>Dieses Telefon und Einstellungen</translation>
    </message>
    <message id="kiv-home-question">
        <source>Which tests do you want to run?</source>
        <translation>Welche Tests möchten Sie ausführen?</translation>
    </message>
    <message id="kiv-mode-factory">
        <source>Factory sequence</source>
        <translation>Werksprüfung</translation>
    </message>
    <message id="kiv-mode-factory-detail">
        <source>Every part of the phone once, in a fixed order</source>
        <translation>Jedes Teil des Telefons einmal, in fester Reihenfolge</translation>
    </message>
    <message id="kiv-mode-run-in">
        <source>Run-in</source>
        <translation>Dauerlauf</translation>
    </message>
    <message id="kiv-mode-run-in-detail">
        <source>Endurance tests for a new phone</source>
        <translation>Belastungstests für ein neues Telefon</translation>
    </message>
    <message id="kiv-mode-all">
        <source>All tests</source>
        <translation>Alle Tests</translation>
    </message>
    <message id="kiv-mode-all-detail">
        <source>Everything this phone has, one by one or in a row</source>
        <translation>Alles, was dieses Telefon hat, einzeln oder nacheinander</translation>
    </message>
    <message id="kiv-list-subtitle">
        <source>%1 of %2 tests can run here</source>
        <extracomment>How many of the tests of the sequence can be run on this phone</extracomment>
        <translation>%1 von %2 Tests sind hier möglich</translation>
    </message>
    <message id="kiv-list-absent">
        <source>Not on this phone</source>
        <translation>Nicht in diesem Telefon</translation>
    </message>
    <message id="kiv-list-unwritten">
        <source>Not available yet</source>
        <translation>Noch nicht verfügbar</translation>
    </message>
    <message id="kiv-summary">
        <source>Summary</source>
        <translation>Übersicht</translation>
    </message>
    <message id="kiv-list-continue">
        <source>Go on, %1 left</source>
        <translation>Weiter, noch %1</translation>
    </message>
    <message id="kiv-list-start">
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message id="kiv-settings-4g">
        <source>Modem prefers 4G</source>
        <translation>Modem bevorzugt 4G</translation>
    </message>
    <message id="kiv-settings-title">
        <source>This phone</source>
        <translation>Dieses Telefon</translation>
    </message>
    <message id="kiv-settings-light">
        <source>Light colours</source>
        <translation>Helle Farben</translation>
    </message>
    <message id="kiv-settings-dark">
        <source>Dark colours</source>
        <translation>Dunkle Farben</translation>
    </message>
    <message id="kiv-settings-disclaimer">
        <source>Read the notice again</source>
        <translation>Hinweis noch einmal lesen</translation>
    </message>
    <message id="kiv-summary-overruled">
        <source>Overruled by the operator: %2. Verdict before: %1</source>
        <extracomment>The operator&apos;s verdict differs from the page&apos;s own, which follows, with his reason</extracomment>
        <translation>Vom Prüfer überstimmt: %2. Urteil vorher: %1</translation>
    </message>
    <message id="kiv-summary-attempts">
        <source>Attempts: %1</source>
        <translation>Versuche: %1</translation>
    </message>
    <message id="kiv-summary-incomplete">
        <source>Not complete</source>
        <translation>Unvollständig</translation>
    </message>
    <message id="kiv-summary-retest">
        <source>Retest failed</source>
        <translation>Fehler erneut prüfen</translation>
    </message>
    <message id="kiv-summary-list">
        <source>Back to the list</source>
        <translation>Zurück zur Liste</translation>
    </message>
    <message id="kiv-summary-next">
        <source>Next phone</source>
        <translation>Nächstes Telefon</translation>
    </message>
    <message id="kiv-page-broken">
        <source>This test cannot be opened on this phone.</source>
        <translation>Dieser Test lässt sich auf diesem Telefon nicht öffnen.</translation>
    </message>
    <message id="kiv-test-leave">
        <source>Leave this test</source>
        <translation>Test verlassen</translation>
    </message>
    <message id="kiv-test-progress">
        <source>%1 of %2, about %3 min left</source>
        <extracomment>Place in the sequence and the time it still takes</extracomment>
        <translation>%1 von %2, noch etwa %3 min</translation>
    </message>
    <message id="kiv-test-retry">
        <source>Try again</source>
        <translation>Noch einmal</translation>
    </message>
    <message id="kiv-page-missing-advice">
        <source>If this model is not meant to have it, choose Skip and say so.</source>
        <translation>Wenn dieses Modell ohne dieses Teil gebaut wird, wählen Sie „Auslassen“ und geben Sie das an.</translation>
    </message>
    <message id="kiv-page-guided">
        <source>You judge this one: the phone cannot see the result itself.</source>
        <translation>Hier urteilen Sie: Das Telefon kann das Ergebnis nicht selbst sehen.</translation>
    </message>
    <message id="kiv-verdict-fail">
        <source>Fail</source>
        <translation>Fehler</translation>
    </message>
    <message id="kiv-verdict-pass">
        <source>Pass</source>
        <translation>Bestanden</translation>
    </message>
    <message id="kiv-verdict-hold">
        <source>Hold Pass until it has filled up</source>
        <translation>„Bestanden“ gedrückt halten, bis es voll ist</translation>
    </message>
    <message id="kiv-working-probing">
        <source>Checking what this phone has</source>
        <translation>Es wird geprüft, was dieses Telefon hat</translation>
    </message>
    <message id="kiv-step-done">
        <source>done</source>
        <translation>erledigt</translation>
    </message>
    <message id="kiv-calibration-instructions">
        <source>The calibration record that production wrote is compared with what is asked of this product.</source>
        <translation>Das Kalibrierprotokoll aus der Fertigung wird mit den Vorgaben für dieses Modell verglichen.</translation>
    </message>
    <message id="kiv-calibration-hint">
        <source>Pass unlocks when the record has been read.</source>
        <translation>„Bestanden“ ist gesperrt, bis das Protokoll gelesen ist.</translation>
    </message>
    <message id="kiv-calibration-any">
        <source>must not be empty</source>
        <translation>darf nicht leer sein</translation>
    </message>
    <message id="kiv-mac-criteria">
        <source>must match %1</source>
        <extracomment>A pattern that an address has to match</extracomment>
        <translation>muss auf %1 passen</translation>
    </message>
    <message id="kiv-calibration-good">
        <source>The record is as it must be.</source>
        <translation>Das Protokoll ist so, wie es sein muss.</translation>
    </message>
    <message id="kiv-calibration-flag">
        <source>Calibration flag</source>
        <translation>Kalibriermerker</translation>
    </message>
    <message id="kiv-calibration-text">
        <source>Calibration text</source>
        <translation>Kalibriertext</translation>
    </message>
    <message id="kiv-mac-instructions">
        <source>The addresses that production gave to the radios are compared with what is asked of this product.</source>
        <translation>Die Adressen, die die Fertigung vergeben hat, werden mit den Vorgaben für dieses Modell verglichen.</translation>
    </message>
    <message id="kiv-mac-hint">
        <source>Pass unlocks when the addresses have been read.</source>
        <translation>„Bestanden“ ist gesperrt, bis die Adressen gelesen sind.</translation>
    </message>
    <message id="kiv-mac-missing">
        <source>This phone has neither Bluetooth nor Wi-Fi.</source>
        <translation>Dieses Telefon hat weder Bluetooth noch WLAN.</translation>
    </message>
    <message id="kiv-mac-good">
        <source>Every address matches its pattern.</source>
        <translation>Jede Adresse passt auf ihr Muster.</translation>
    </message>
    <message id="kiv-mac-bluetooth">
        <source>Bluetooth address</source>
        <translation>Bluetooth-Adresse</translation>
    </message>
    <message id="kiv-mac-wireless">
        <source>Wi-Fi address</source>
        <translation>WLAN-Adresse</translation>
    </message>
    <message id="kiv-sensor-accelerometer">
        <source>Accelerometer</source>
        <translation>Beschleunigungssensor</translation>
    </message>
    <message id="kiv-sensor-als">
        <source>Ambient light</source>
        <translation>Umgebungslicht</translation>
    </message>
    <message id="kiv-sensor-compass">
        <source>Compass</source>
        <translation>Kompass</translation>
    </message>
    <message id="kiv-sensor-gyroscope">
        <source>Gyroscope</source>
        <translation>Gyroskop</translation>
    </message>
    <message id="kiv-sensor-humidity">
        <source>Humidity</source>
        <translation>Luftfeuchtigkeit</translation>
    </message>
    <message id="kiv-sensor-lid">
        <source>Lid</source>
        <translation>Klappe</translation>
    </message>
    <message id="kiv-sensor-magnetometer">
        <source>Magnetometer</source>
        <translation>Magnetometer</translation>
    </message>
    <message id="kiv-sensor-orientation">
        <source>Orientation</source>
        <translation>Lage</translation>
    </message>
    <message id="kiv-sensor-pressure">
        <source>Air pressure</source>
        <translation>Luftdruck</translation>
    </message>
    <message id="kiv-sensor-proximity">
        <source>Proximity</source>
        <translation>Näherung</translation>
    </message>
    <message id="kiv-sensor-rotation">
        <source>Rotation</source>
        <translation>Drehung</translation>
    </message>
    <message id="kiv-sensor-stepcounter">
        <source>Step counter</source>
        <translation>Schrittzähler</translation>
    </message>
    <message id="kiv-sensor-tap">
        <source>Tap</source>
        <translation>Klopfen</translation>
    </message>
    <message id="kiv-sensor-temperature">
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message id="kiv-sensor-instructions">
        <source>Calibrate a sensor, load its stored calibration, or return to the factory&apos;s. Then judge by its values.</source>
        <translation>Kalibrieren Sie einen Sensor, laden Sie seine gespeicherte Kalibrierung oder kehren Sie zu den Werkswerten zurück. Urteilen Sie dann nach seinen Werten.</translation>
    </message>
    <message id="kiv-sensor-hint">
        <source>Pass unlocks when a sensor has been calibrated.</source>
        <translation>„Bestanden“ ist gesperrt, bis ein Sensor kalibriert ist.</translation>
    </message>
    <message id="kiv-sensor-working">
        <source>Asking the sensors for their calibration</source>
        <translation>Die Sensoren werden nach ihrer Kalibrierung gefragt</translation>
    </message>
    <message id="kiv-sensor-missing">
        <source>No sensor of this phone can be calibrated.</source>
        <translation>Kein Sensor dieses Telefons lässt sich kalibrieren.</translation>
    </message>
    <message id="kiv-sensor-running">
        <source>Calibrating: %1</source>
        <translation>Kalibrierung läuft: %1</translation>
    </message>
    <message id="kiv-sensor-done">
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message id="kiv-sensor-failed">
        <source>The calibration helper failed. It is not asked again until this page is opened anew.</source>
        <translation>Das Kalibrierprogramm ist gescheitert. Es wird erst wieder gefragt, wenn diese Seite neu geöffnet wird.</translation>
    </message>
    <message id="kiv-sensor-calibrate">
        <source>Calibrate</source>
        <translation>Kalibrieren</translation>
    </message>
    <message id="kiv-sensor-restore">
        <source>Stored values</source>
        <translation>Gespeicherte Werte</translation>
    </message>
    <message id="kiv-sensor-reset">
        <source>Factory values</source>
        <translation>Werkswerte</translation>
    </message>
    <message id="kiv-sensor-type">
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message id="kiv-sensor-representation">
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message id="kiv-system-instructions">
        <source>What the system is busy with. The list of processes appears after five seconds.</source>
        <translation>Womit das System beschäftigt ist. Die Liste der Prozesse erscheint nach fünf Sekunden.</translation>
    </message>
    <message id="kiv-system-start">
        <source>Running since</source>
        <translation>Läuft seit</translation>
    </message>
    <message id="kiv-system-load-1">
        <source>Load, 1 minute</source>
        <translation>Last, 1 Minute</translation>
    </message>
    <message id="kiv-system-load-5">
        <source>Load, 5 minutes</source>
        <translation>Last, 5 Minuten</translation>
    </message>
    <message id="kiv-system-load-15">
        <source>Load, 15 minutes</source>
        <translation>Last, 15 Minuten</translation>
    </message>
    <message id="kiv-system-process">
        <source>%1 (%2)</source>
        <extracomment>A process: its name and its number</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message id="kiv-touch-self-instructions">
        <source>The touch controller tests itself. Keep fingers off the panel.</source>
        <translation>Der Touchscreen prüft sich selbst. Berühren Sie ihn nicht.</translation>
    </message>
    <message id="kiv-touch-self-hint">
        <source>Pass unlocks when the controller has answered.</source>
        <translation>„Bestanden“ ist gesperrt, bis der Touchscreen geantwortet hat.</translation>
    </message>
    <message id="kiv-touch-self-missing">
        <source>The touch controller of this phone has no self-test.</source>
        <translation>Der Touchscreen dieses Telefons hat keinen Selbsttest.</translation>
    </message>
    <message id="kiv-touch-self-good">
        <source>The controller reports that it is in order.</source>
        <translation>Der Touchscreen meldet, dass er in Ordnung ist.</translation>
    </message>
    <message id="kiv-touch-self-bad">
        <source>The controller reports a fault or gives no report.</source>
        <translation>Der Touchscreen meldet einen Fehler oder gar nichts.</translation>
    </message>
    <message id="kiv-touch-self-outcome">
        <source>Self-test in order</source>
        <translation>Selbsttest in Ordnung</translation>
    </message>
    <message id="kiv-battery-missing">
        <source>No battery was found.</source>
        <translation>Es wurde kein Akku gefunden.</translation>
    </message>
    <message id="kiv-ecompass-good">
        <source>The compass followed a whole turn.</source>
        <translation>Der Kompass ist einer ganzen Drehung gefolgt.</translation>
    </message>
    <message id="kiv-ecompass-instructions">
        <source>Keep the phone level and turn around once. If it sticks, draw a large eight in the air with the phone first.</source>
        <translation>Halten Sie das Telefon waagerecht und drehen Sie sich einmal um sich selbst. Wenn der Kompass hängt, zeichnen Sie mit dem Telefon zuerst eine große Acht in die Luft.</translation>
    </message>
    <message id="kiv-ecompass-hint">
        <source>Pass unlocks when the compass followed a whole turn.</source>
        <translation>„Bestanden“ ist gesperrt, bis der Kompass einer ganzen Drehung gefolgt ist.</translation>
    </message>
    <message id="kiv-ecompass-missing">
        <source>No compass was found.</source>
        <translation>Es wurde kein Kompass gefunden.</translation>
    </message>
    <message id="kiv-ecompass-heading">
        <source>Heading</source>
        <translation>Richtung</translation>
    </message>
    <message id="kiv-ecompass-directions">
        <source>Directions seen</source>
        <translation>Erkannte Richtungen</translation>
    </message>
    <message id="kiv-ecompass-level">
        <source>Calibration level</source>
        <translation>Güte der Kalibrierung</translation>
    </message>
    <message id="kiv-gyro-good">
        <source>Averages of 32 samples are within their limits.</source>
        <translation>Die Mittelwerte aus 32 Messungen liegen innerhalb der Grenzen.</translation>
    </message>
    <message id="kiv-gyro-instructions">
        <source>Lay the phone flat on a table, the display up, and do not touch the table.</source>
        <translation>Legen Sie das Telefon mit dem Bildschirm nach oben flach auf einen Tisch und berühren Sie den Tisch nicht.</translation>
    </message>
    <message id="kiv-gyro-hint">
        <source>Pass unlocks when the sensors have been measured.</source>
        <translation>„Bestanden“ ist gesperrt, bis die Sensoren gemessen sind.</translation>
    </message>
    <message id="kiv-gyro-missing">
        <source>This phone has neither an accelerometer nor a gyroscope.</source>
        <translation>Dieses Telefon hat weder einen Beschleunigungssensor noch ein Gyroskop.</translation>
    </message>
    <message id="kiv-gyro-measure">
        <source>It lies flat: measure now</source>
        <translation>Es liegt flach: jetzt messen</translation>
    </message>
    <message id="kiv-gyro-progress">
        <source>Measuring: %1 of %2</source>
        <translation>Messung: %1 von %2</translation>
    </message>
    <message id="kiv-gyro-acceleration-x">
        <source>Acceleration X</source>
        <translation>Beschleunigung X</translation>
    </message>
    <message id="kiv-gyro-acceleration-y">
        <source>Acceleration Y</source>
        <translation>Beschleunigung Y</translation>
    </message>
    <message id="kiv-gyro-acceleration-z">
        <source>Acceleration Z</source>
        <translation>Beschleunigung Z</translation>
    </message>
    <message id="kiv-gyro-rotation-x">
        <source>Rotation X</source>
        <translation>Drehung X</translation>
    </message>
    <message id="kiv-gyro-rotation-y">
        <source>Rotation Y</source>
        <translation>Drehung Y</translation>
    </message>
    <message id="kiv-gyro-rotation-z">
        <source>Rotation Z</source>
        <translation>Drehung Z</translation>
    </message>
    <message id="kiv-gyro-rotation">
        <source>Gyroscope in order</source>
        <translation>Gyroskop in Ordnung</translation>
    </message>
    <message id="kiv-hall-good">
        <source>The switch saw the magnet come and go.</source>
        <translation>Der Schalter hat den Magneten kommen und gehen sehen.</translation>
    </message>
    <message id="kiv-hall-hint">
        <source>Pass unlocks when the magnet was seen to come and go.</source>
        <translation>„Bestanden“ ist gesperrt, bis der Magnet kam und ging.</translation>
    </message>
    <message id="kiv-hall-missing">
        <source>This phone has no magnet switch.</source>
        <translation>Dieses Telefon hat keinen Magnetschalter.</translation>
    </message>
    <message id="kiv-hall-step-close">
        <source>Hold a magnet or a closed cover to the phone</source>
        <translation>Einen Magneten oder eine geschlossene Hülle ans Telefon halten</translation>
    </message>
    <message id="kiv-hall-step-open">
        <source>Take it away</source>
        <translation>Wieder wegnehmen</translation>
    </message>
    <message id="kiv-hall-magnet">
        <source>Magnet at the switch</source>
        <translation>Magnet am Schalter</translation>
    </message>
    <message id="kiv-headset-headset">
        <source>Headset</source>
        <translation>Headset</translation>
    </message>
    <message id="kiv-headset-headphones">
        <source>Headphones without microphone</source>
        <translation>Kopfhörer ohne Mikrofon</translation>
    </message>
    <message id="kiv-headset-microphone">
        <source>Microphone only</source>
        <translation>Nur Mikrofon</translation>
    </message>
    <message id="kiv-headset-empty">
        <source>Empty</source>
        <translation>Leer</translation>
    </message>
    <message id="kiv-headset-good">
        <source>The socket was seen empty and with a headset.</source>
        <translation>Die Buchse wurde leer und mit Headset erkannt.</translation>
    </message>
    <message id="kiv-headset-hint">
        <source>Pass unlocks when the socket was seen empty and with a headset.</source>
        <translation>„Bestanden“ ist gesperrt, bis die Buchse leer und mit Headset erkannt wurde.</translation>
    </message>
    <message id="kiv-headset-missing">
        <source>No headset socket was found.</source>
        <translation>Es wurde keine Headset-Buchse gefunden.</translation>
    </message>
    <message id="kiv-headset-step-empty">
        <source>Take everything out of the headset socket</source>
        <translation>Alles aus der Headset-Buchse ziehen</translation>
    </message>
    <message id="kiv-headset-step-plug">
        <source>Plug a headset with a microphone in</source>
        <translation>Ein Headset mit Mikrofon einstecken</translation>
    </message>
    <message id="kiv-headset-socket">
        <source>Headset socket</source>
        <translation>Headset-Buchse</translation>
    </message>
    <message id="kiv-headset-buttons-media">
        <source>Media</source>
        <extracomment>A key of a headset</extracomment>
        <translation>Medien</translation>
    </message>
    <message id="kiv-headset-buttons-play">
        <source>Play/Pause</source>
        <extracomment>A key of a headset</extracomment>
        <translation>Wiedergabe/Pause</translation>
    </message>
    <message id="kiv-headset-buttons-good">
        <source>Every button that the phone knows was pressed and let go.</source>
        <translation>Jede Taste, die das Telefon kennt, wurde gedrückt und losgelassen.</translation>
    </message>
    <message id="kiv-headset-buttons-instructions">
        <source>Plug the headset in and press each of its buttons once.</source>
        <translation>Stecken Sie das Headset ein und drücken Sie jede seiner Tasten einmal.</translation>
    </message>
    <message id="kiv-headset-buttons-hint">
        <source>Pass unlocks when a button was pressed and let go.</source>
        <translation>„Bestanden“ ist gesperrt, bis eine Taste gedrückt und losgelassen wurde.</translation>
    </message>
    <message id="kiv-headset-buttons-missing">
        <source>No headset buttons were found.</source>
        <translation>Es wurden keine Headset-Tasten gefunden.</translation>
    </message>
    <message id="kiv-headset-buttons-pressed">
        <source>Buttons pressed</source>
        <translation>Gedrückte Tasten</translation>
    </message>
    <message id="kiv-headset-buttons-known">
        <source>the phone knows %1</source>
        <extracomment>How many buttons the phone can tell apart</extracomment>
        <translation>das Telefon kennt %1</translation>
    </message>
    <message id="kiv-key-good">
        <source>Every key was pressed and let go.</source>
        <translation>Jede Taste wurde gedrückt und losgelassen.</translation>
    </message>
    <message id="kiv-key-instructions">
        <source>Press each key once and let it go.</source>
        <translation>Drücken Sie jede Taste einmal und lassen Sie sie los.</translation>
    </message>
    <message id="kiv-key-hint">
        <source>Pass unlocks when every key was pressed and let go.</source>
        <translation>„Bestanden“ ist gesperrt, bis jede Taste gedrückt und losgelassen wurde.</translation>
    </message>
    <message id="kiv-key-missing">
        <source>No key of this phone is configured for the test.</source>
        <translation>Für dieses Telefon ist keine Taste zum Testen eingestellt.</translation>
    </message>
    <message id="kiv-key-held">
        <source>held</source>
        <translation>gehalten</translation>
    </message>
    <message id="kiv-key-waiting">
        <source>not yet pressed</source>
        <translation>noch nicht gedrückt</translation>
    </message>
    <message id="kiv-light-good">
        <source>The sensor told dark from bright.</source>
        <translation>Der Sensor hat Hell und Dunkel unterschieden.</translation>
    </message>
    <message id="kiv-light-instructions">
        <source>Cover the sensor above the display with a finger, then hold it to the light.</source>
        <translation>Decken Sie den Sensor über dem Bildschirm mit einem Finger ab und halten Sie ihn dann ins Licht.</translation>
    </message>
    <message id="kiv-light-hint">
        <source>Pass unlocks when the sensor told dark from bright.</source>
        <translation>„Bestanden“ ist gesperrt, bis der Sensor Hell und Dunkel unterschieden hat.</translation>
    </message>
    <message id="kiv-light-missing">
        <source>No light sensor was found.</source>
        <translation>Es wurde kein Lichtsensor gefunden.</translation>
    </message>
    <message id="kiv-light-now">
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message id="kiv-light-darkest">
        <source>Darkest</source>
        <translation>Am dunkelsten</translation>
    </message>
    <message id="kiv-light-brightest">
        <source>Brightest</source>
        <translation>Am hellsten</translation>
    </message>
    <message id="kiv-multi-touch-good">
        <source>The panel told %1 fingers apart.</source>
        <translation>Der Touchscreen hat %1 Finger unterschieden.</translation>
    </message>
    <message id="kiv-multi-touch-bad">
        <source>The panel did not tell two fingers apart.</source>
        <translation>Der Touchscreen hat keine zwei Finger unterschieden.</translation>
    </message>
    <message id="kiv-multi-touch-instructions">
        <source>Put five fingers on the panel at once.</source>
        <translation>Legen Sie fünf Finger zugleich auf den Bildschirm.</translation>
    </message>
    <message id="kiv-multi-touch-hint">
        <source>Pass unlocks when two fingers have been told apart.</source>
        <translation>„Bestanden“ ist gesperrt, bis zwei Finger unterschieden wurden.</translation>
    </message>
    <message id="kiv-multi-touch-count">
        <source>%1 of %2</source>
        <extracomment>How many fingers were seen, and how many are wanted</extracomment>
        <translation>%1 von %2</translation>
    </message>
    <message id="kiv-multi-touch-patience">
        <source>Ends in %1 s without a touch</source>
        <translation>Endet in %1 s ohne Berührung</translation>
    </message>
    <message id="kiv-multi-touch-seen">
        <source>Fingers at once</source>
        <translation>Finger zugleich</translation>
    </message>
    <message id="kiv-prox-good">
        <source>The sensor saw the hand come and go.</source>
        <translation>Der Sensor hat die Hand kommen und gehen sehen.</translation>
    </message>
    <message id="kiv-prox-hint">
        <source>Pass unlocks when the hand was seen to come and go.</source>
        <translation>„Bestanden“ ist gesperrt, bis die Hand kam und ging.</translation>
    </message>
    <message id="kiv-prox-missing">
        <source>No proximity sensor was found.</source>
        <translation>Es wurde kein Näherungssensor gefunden.</translation>
    </message>
    <message id="kiv-prox-step-near">
        <source>Hold a hand over the top of the display</source>
        <translation>Eine Hand über das obere Ende des Bildschirms halten</translation>
    </message>
    <message id="kiv-prox-step-far">
        <source>Take the hand away</source>
        <translation>Die Hand wegnehmen</translation>
    </message>
    <message id="kiv-prox-near">
        <source>Something near</source>
        <translation>Etwas in der Nähe</translation>
    </message>
    <message id="kiv-sd-card-none">
        <source>No card</source>
        <translation>Keine Karte</translation>
    </message>
    <message id="kiv-sd-card-unmounted">
        <source>Not mounted</source>
        <translation>Nicht eingehängt</translation>
    </message>
    <message id="kiv-sd-card-mounting">
        <source>Being mounted</source>
        <translation>Wird eingehängt</translation>
    </message>
    <message id="kiv-sd-card-mounted">
        <source>Mounted</source>
        <translation>Eingehängt</translation>
    </message>
    <message id="kiv-sd-card-unmounting">
        <source>Being unmounted</source>
        <translation>Wird ausgehängt</translation>
    </message>
    <message id="kiv-sd-card-not-created">
        <source>No file could be created on the card.</source>
        <translation>Auf der Karte ließ sich keine Datei anlegen.</translation>
    </message>
    <message id="kiv-sd-card-differs">
        <source>What was read is not what was written.</source>
        <translation>Gelesen wurde etwas anderes als geschrieben.</translation>
    </message>
    <message id="kiv-sd-card-good">
        <source>A file was written, read back and removed.</source>
        <translation>Eine Datei wurde geschrieben, zurückgelesen und entfernt.</translation>
    </message>
    <message id="kiv-sd-card-working">
        <source>Writing and reading the card</source>
        <translation>Die Karte wird beschrieben und gelesen</translation>
    </message>
    <message id="kiv-sd-card-instructions-insert">
        <source>Put a memory card into the slot.</source>
        <translation>Stecken Sie eine Speicherkarte ein.</translation>
    </message>
    <message id="kiv-sd-card-instructions">
        <source>The card is tested as soon as it is mounted.</source>
        <translation>Die Karte wird geprüft, sobald sie eingehängt ist.</translation>
    </message>
    <message id="kiv-sd-card-hint">
        <source>Pass unlocks when the card has been written and read.</source>
        <translation>„Bestanden“ ist gesperrt, bis die Karte beschrieben und gelesen ist.</translation>
    </message>
    <message id="kiv-sd-card-missing">
        <source>There is no card in the slot.</source>
        <translation>Es steckt keine Karte.</translation>
    </message>
    <message id="kiv-sd-card-mount-failed">
        <source>A card could not be mounted: it may be damaged or have no file system.</source>
        <translation>Eine Karte ließ sich nicht einhängen: Vielleicht ist sie beschädigt oder hat kein Dateisystem.</translation>
    </message>
    <message id="kiv-sd-card-state">
        <source>Card</source>
        <translation>Karte</translation>
    </message>
    <message id="kiv-sd-card-outcome">
        <source>Write and read</source>
        <translation>Schreiben und lesen</translation>
    </message>
    <message id="kiv-touch-good">
        <source>Every part of the panel has reacted.</source>
        <translation>Jeder Teil des Bildschirms hat reagiert.</translation>
    </message>
    <message id="kiv-touch-bad">
        <source>Parts of the panel did not react: %1 of %2</source>
        <translation>Teile des Bildschirms haben nicht reagiert: %1 von %2</translation>
    </message>
    <message id="kiv-touch-instructions">
        <source>Wipe over the whole panel until no cell is left.</source>
        <translation>Wischen Sie über den ganzen Bildschirm, bis kein Feld übrig ist.</translation>
    </message>
    <message id="kiv-touch-hint">
        <source>Pass unlocks when every cell has been wiped.</source>
        <translation>„Bestanden“ ist gesperrt, bis jedes Feld berührt wurde.</translation>
    </message>
    <message id="kiv-touch-patience">
        <source>Ends in %1 s without a new cell</source>
        <translation>Endet in %1 s ohne neues Feld</translation>
    </message>
    <message id="kiv-touch-reacted">
        <source>Cells that reacted</source>
        <translation>Felder mit Reaktion</translation>
    </message>
    <message id="kiv-charging-missing">
        <source>No battery was found, so charging cannot be observed.</source>
        <translation>Es wurde kein Akku gefunden; das Laden ist nicht zu beobachten.</translation>
    </message>
    <message id="kiv-charging-switching-off">
        <source>Switching the charger off</source>
        <translation>Das Laden wird abgeschaltet</translation>
    </message>
    <message id="kiv-charging-switching-on">
        <source>Switching the charger on</source>
        <translation>Das Laden wird eingeschaltet</translation>
    </message>
    <message id="kiv-charging-good">
        <source>Charging stopped and resumed as it was switched.</source>
        <translation>Das Laden hörte auf und begann wieder, wie geschaltet.</translation>
    </message>
    <message id="kiv-charging-hint">
        <source>Pass unlocks when the charger has been switched off and on.</source>
        <translation>„Bestanden“ ist gesperrt, bis das Laden ab- und wieder eingeschaltet wurde.</translation>
    </message>
    <message id="kiv-charging-step-plug">
        <source>Plug a charger into the USB socket</source>
        <translation>Ein Ladegerät in die USB-Buchse stecken</translation>
    </message>
    <message id="kiv-charging-step-on">
        <source>The phone charges: wait</source>
        <translation>Das Telefon lädt: warten</translation>
    </message>
    <message id="kiv-charging-step-off">
        <source>Kiv switches the charger off: charging stops</source>
        <translation>Kiv schaltet das Laden ab: Es hört auf</translation>
    </message>
    <message id="kiv-charging-step-again">
        <source>Kiv switches the charger on: charging resumes</source>
        <translation>Kiv schaltet das Laden ein: Es beginnt wieder</translation>
    </message>
    <message id="kiv-charging-current-on">
        <source>Current, charger on</source>
        <translation>Strom, Laden an</translation>
    </message>
    <message id="kiv-charging-current-off">
        <source>Current, charger off</source>
        <translation>Strom, Laden aus</translation>
    </message>
    <message id="kiv-charging-stops">
        <source>Charging stops</source>
        <translation>Laden hört auf</translation>
    </message>
    <message id="kiv-charging-resumes">
        <source>Charging resumes</source>
        <translation>Laden beginnt wieder</translation>
    </message>
    <message id="kiv-vibrator-good">
        <source>The operator felt as many pulses as were given.</source>
        <translation>Der Prüfer hat so viele Stöße gespürt, wie gegeben wurden.</translation>
    </message>
    <message id="kiv-vibrator-instructions">
        <source>Hold the phone in the hand and count the pulses.</source>
        <translation>Nehmen Sie das Telefon in die Hand und zählen Sie die Stöße.</translation>
    </message>
    <message id="kiv-vibrator-hint">
        <source>Pass unlocks when you have said how many pulses you felt.</source>
        <translation>„Bestanden“ ist gesperrt, bis Sie gesagt haben, wie viele Stöße Sie gespürt haben.</translation>
    </message>
    <message id="kiv-vibrator-missing">
        <source>No vibrator was found.</source>
        <translation>Es wurde kein Vibrationsmotor gefunden.</translation>
    </message>
    <message id="kiv-vibrator-question">
        <source>How many pulses did you feel?</source>
        <translation>Wie viele Stöße haben Sie gespürt?</translation>
    </message>
    <message id="kiv-vibrator-again">
        <source>Give the pulses again</source>
        <translation>Stöße wiederholen</translation>
    </message>
    <message id="kiv-limits-accepted">
        <source>must be %1</source>
        <extracomment>The value that a reading must have</extracomment>
        <translation>muss „%1“ sein</translation>
    </message>
    <message id="kiv-sd-card-failed">
        <source>failed</source>
        <translation>fehlgeschlagen</translation>
    </message>
    <message id="kiv-battery-charging">
        <source>Charging</source>
        <translation>Lädt</translation>
    </message>
    <message id="kiv-battery-discharging">
        <source>Discharging</source>
        <translation>Entlädt sich</translation>
    </message>
    <message id="kiv-battery-not-charging">
        <source>Not charging</source>
        <translation>Lädt nicht</translation>
    </message>
    <message id="kiv-battery-full">
        <source>Full</source>
        <translation>Voll</translation>
    </message>
    <message id="kiv-battery-unknown">
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message id="kiv-battery-health-good">
        <source>Good</source>
        <translation>Gut</translation>
    </message>
    <message id="kiv-battery-health-overheat">
        <source>Overheated</source>
        <translation>Überhitzt</translation>
    </message>
    <message id="kiv-battery-health-dead">
        <source>Dead</source>
        <translation>Tot</translation>
    </message>
    <message id="kiv-battery-health-over-voltage">
        <source>Over voltage</source>
        <translation>Überspannung</translation>
    </message>
    <message id="kiv-battery-health-failure">
        <source>Unspecified failure</source>
        <translation>Unbestimmter Fehler</translation>
    </message>
    <message id="kiv-battery-health-cold">
        <source>Cold</source>
        <translation>Kalt</translation>
    </message>
    <message id="kiv-settings-modems">
        <source>Modems</source>
        <translation>Modems</translation>
    </message>
    <message id="kiv-settings-keys">
        <source>Keys to test</source>
        <translation>Zu prüfende Tasten</translation>
    </message>
    <message id="kiv-settings-flash">
        <source>Flash of the back camera</source>
        <translation>Blitz der Rückkamera</translation>
    </message>
    <message id="kiv-settings-frequency">
        <source>FM frequency of the test</source>
        <translation>UKW-Frequenz des Tests</translation>
    </message>
    <message id="kiv-settings-run-in">
        <source>Length of the run-in</source>
        <translation>Länge des Dauerlaufs</translation>
    </message>
    <message id="kiv-settings-microphone-top">
        <source>Upper microphone</source>
        <translation>Oberes Mikrofon</translation>
    </message>
    <message id="kiv-settings-microphone">
        <source>%1, channel %2</source>
        <extracomment>A microphone of the sound server and its channel</extracomment>
        <translation>%1, Kanal %2</translation>
    </message>
    <message id="kiv-settings-microphone-bottom">
        <source>Lower microphone</source>
        <translation>Unteres Mikrofon</translation>
    </message>
    <message id="kiv-settings-configured">
        <source>As its makers configured it:</source>
        <translation>So hat der Hersteller es eingerichtet:</translation>
    </message>
    <message id="kiv-headset-music-instructions">
        <source>Play each sound and listen to the headset: it must come from the side that its button names.</source>
        <translation>Spielen Sie jeden Ton und hören Sie ihn im Headset: Er muss von der Seite kommen, die sein Knopf nennt.</translation>
    </message>
    <message id="kiv-headset-music-instructions-plug">
        <source>Plug a headset in.</source>
        <translation>Stecken Sie ein Headset ein.</translation>
    </message>
    <message id="kiv-sound-left">
        <source>Left: low tone</source>
        <translation>Links: tiefer Ton</translation>
    </message>
    <message id="kiv-sound-right">
        <source>Right: high tone</source>
        <translation>Rechts: hoher Ton</translation>
    </message>
    <message id="kiv-sound-tune">
        <source>Play the tune</source>
        <translation>Melodie spielen</translation>
    </message>
    <message id="kiv-headset-music-plugged">
        <source>Headset</source>
        <translation>Headset</translation>
    </message>
    <message id="kiv-speaker-music-instructions">
        <source>Play the tune and listen to the loudspeaker: every tone must be clear, without rattling.</source>
        <translation>Spielen Sie die Melodie und achten Sie auf den Lautsprecher: Jeder Ton muss klar sein, ohne Schnarren.</translation>
    </message>
    <message id="kiv-receiver-instructions">
        <source>Play the tune and hold the phone to your ear: it must come from the earpiece only.</source>
        <translation>Spielen Sie die Melodie und halten Sie das Telefon ans Ohr: Sie darf nur aus der Hörmuschel kommen.</translation>
    </message>
    <message id="kiv-speaker-stereo-instructions">
        <source>Play each sound: it must come from the side that its button names.</source>
        <translation>Spielen Sie jeden Ton: Er muss von der Seite kommen, die sein Knopf nennt.</translation>
    </message>
    <message id="kiv-sound-both">
        <source>Both sides</source>
        <translation>Beide Seiten</translation>
    </message>
    <message id="kiv-microphone-missing">
        <source>The sound server has no built-in microphone, or its tool does not answer.</source>
        <translation>Der Tondienst hat kein eingebautes Mikrofon, oder sein Werkzeug antwortet nicht.</translation>
    </message>
    <message id="kiv-microphone-hint">
        <source>Pass unlocks when a recording has been played back.</source>
        <translation>„Bestanden“ ist gesperrt, bis eine Aufnahme abgespielt wurde.</translation>
    </message>
    <message id="kiv-microphone-working">
        <source>Looking for the microphone</source>
        <translation>Mikrofon wird gesucht</translation>
    </message>
    <message id="kiv-microphone-recording">
        <source>Recording: speak now.</source>
        <translation>Aufnahme läuft: Sprechen Sie jetzt.</translation>
    </message>
    <message id="kiv-microphone-playing">
        <source>Playing what was recorded.</source>
        <translation>Die Aufnahme wird abgespielt.</translation>
    </message>
    <message id="kiv-microphone-record">
        <source>Record four seconds</source>
        <translation>Vier Sekunden aufnehmen</translation>
    </message>
    <message id="kiv-microphone-play">
        <source>Play it again</source>
        <translation>Noch einmal abspielen</translation>
    </message>
    <message id="kiv-sound-missing">
        <source>The sound server has no main output, or its tool does not answer.</source>
        <translation>Der Tondienst hat keinen Hauptausgang, oder sein Werkzeug antwortet nicht.</translation>
    </message>
    <message id="kiv-sound-hint">
        <source>Pass unlocks when every sound has been played.</source>
        <translation>„Bestanden“ ist gesperrt, bis jeder Ton gespielt wurde.</translation>
    </message>
    <message id="kiv-sound-working">
        <source>Setting up the sound output</source>
        <translation>Tonausgang wird eingestellt</translation>
    </message>
    <message id="kiv-system-streams">
        <source>What plays into the sound server</source>
        <translation>Was über den Tondienst spielt</translation>
    </message>
    <message id="kiv-system-stream-paused">
        <source>paused</source>
        <translation>angehalten</translation>
    </message>
    <message id="kiv-system-stream-muted">
        <source>muted</source>
        <translation>stumm</translation>
    </message>
    <message id="kiv-microphone-bottom">
        <source>Speak into the microphone at the bottom of the phone and listen to the recording.</source>
        <translation>Sprechen Sie in das Mikrofon an der Unterseite des Telefons und hören Sie sich die Aufnahme an.</translation>
    </message>
    <message id="kiv-microphone-top">
        <source>Speak into the microphone at the top of the phone and listen to the recording.</source>
        <translation>Sprechen Sie in das Mikrofon an der Oberseite des Telefons und hören Sie sich die Aufnahme an.</translation>
    </message>
    <message id="kiv-fm-radio-instructions">
        <source>Plug a headset in, whose cable is the antenna, and switch the radio on. A station or at least noise must be heard.</source>
        <translation>Stecken Sie ein Headset ein, dessen Kabel die Antenne ist, und schalten Sie das Radio ein. Ein Sender oder wenigstens Rauschen muss zu hören sein.</translation>
    </message>
    <message id="kiv-fm-radio-hint">
        <source>Pass unlocks when the radio has been on.</source>
        <translation>„Bestanden“ ist gesperrt, bis das Radio an war.</translation>
    </message>
    <message id="kiv-fm-radio-antenna">
        <source>Headset as antenna</source>
        <translation>Headset als Antenne</translation>
    </message>
    <message id="kiv-fm-radio-frequency">
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message id="kiv-fm-radio-loop">
        <source>Radio switched to the headset</source>
        <translation>Radio auf das Headset geschaltet</translation>
    </message>
    <message id="kiv-fm-radio-off">
        <source>Switch the radio off</source>
        <translation>Radio ausschalten</translation>
    </message>
    <message id="kiv-fm-radio-on">
        <source>Switch the radio on</source>
        <translation>Radio einschalten</translation>
    </message>
    <message id="kiv-fm-radio-refused">
        <source>The radio could not be switched on: the audio policy does not answer or does not offer it.</source>
        <translation>Das Radio ließ sich nicht einschalten: Die Tonsteuerung antwortet nicht oder bietet es nicht an.</translation>
    </message>
    <message id="kiv-microphone-unplayed">
        <source>The sound server did not play the recording: it was restarted while Kiv was running. Restart Kiv.</source>
        <translation>Der Tondienst hat die Aufnahme nicht abgespielt: Er wurde neu gestartet, während Kiv lief. Starten Sie Kiv neu.</translation>
    </message>
    <message id="kiv-sound-unreached">
        <source>The sound server does not answer. Try again once it runs. If that does not help, restart Kiv.</source>
        <translation>Der Tondienst antwortet nicht. Versuchen Sie es noch einmal, sobald er läuft. Hilft das nicht, starten Sie Kiv neu.</translation>
    </message>
    <message id="kiv-microphone-putting-back">
        <source>Putting the microphone back. This takes up to two minutes while the sound server does not answer.</source>
        <translation>Das Mikrofon wird zurückgestellt. Solange der Tondienst nicht antwortet, dauert das bis zu zwei Minuten.</translation>
    </message>
    <message id="kiv-microphone-no-level">
        <source>The phone shows no level. Listen to the recording afterwards.</source>
        <translation>Das Telefon zeigt keinen Pegel. Hören Sie sich danach die Aufnahme an.</translation>
    </message>
    <message id="kiv-microphone-silent">
        <source>Nothing heard? Then the microphone is deaf, or the folder /tmp is full: a recording takes about 800 kB there.</source>
        <translation>Nichts gehört? Dann ist das Mikrofon taub, oder der Ordner /tmp ist voll: Eine Aufnahme braucht dort etwa 800 kB.</translation>
    </message>
    <message id="kiv-side-left">
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message id="kiv-side-right">
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message id="kiv-side-none">
        <source>Neither, or I cannot tell</source>
        <translation>Weder noch, oder nicht zu erkennen</translation>
    </message>
    <message id="kiv-sides-wrong">
        <source>A tone played on the side &quot;%1&quot; was heard as &quot;%2&quot;</source>
        <extracomment>From which side a tone came, and from which the operator heard it</extracomment>
        <translation>Gespielte Seite: „%1“, gehörte Seite: „%2“</translation>
    </message>
    <message id="kiv-sides-good">
        <source>The operator heard every tone from its side: %1 of %1</source>
        <translation>Jeder Ton wurde von seiner Seite gehört: %1 von %1</translation>
    </message>
    <message id="kiv-sides-question">
        <source>From which side does the tone come? Question %1 of %2</source>
        <extracomment>Number of this question and of all of them</extracomment>
        <translation>Von welcher Seite kommt der Ton? Frage %1 von %2</translation>
    </message>
    <message id="kiv-sides-again">
        <source>Play the tone again</source>
        <translation>Ton noch einmal spielen</translation>
    </message>
    <message id="kiv-sides-play">
        <source>Play the tone</source>
        <translation>Ton spielen</translation>
    </message>
    <message id="kiv-sound-unswitched">
        <source>The sound server does not switch to the output %1.</source>
        <extracomment>The name of the output in the sound server</extracomment>
        <translation>Der Tondienst schaltet nicht auf den Ausgang %1 um.</translation>
    </message>
    <message id="kiv-sides-hint">
        <source>Answer from which side each tone comes: the answers are the verdict.</source>
        <translation>Antworten Sie, von welcher Seite jeder Ton kommt: Die Antworten sind das Urteil.</translation>
    </message>
    <message id="kiv-fm-radio-working">
        <source>Waiting for the audio policy</source>
        <translation>Warten auf die Tonsteuerung</translation>
    </message>
    <message id="kiv-gps-satellite">
        <source>Satellite %1, %2 dB</source>
        <extracomment>A satellite: its number, its strength in decibels</extracomment>
        <translation>Satellit %1, %2 dB</translation>
    </message>
    <message id="kiv-gps-used">
        <source>in use</source>
        <translation>benutzt</translation>
    </message>
    <message id="kiv-gps-more">
        <source>Weaker ones that are not shown: %1</source>
        <extracomment>How many satellites have no bar</extracomment>
        <translation>Schwächere, die nicht gezeigt werden: %1</translation>
    </message>
    <message id="kiv-gps-sky">
        <source>Places of the satellites in the sky</source>
        <translation>Positionen der Satelliten am Himmel</translation>
    </message>
    <message id="kiv-gps-north">
        <source>N</source>
        <extracomment>North, one or two letters</extracomment>
        <translation>N</translation>
    </message>
    <message id="kiv-gps-east">
        <source>E</source>
        <extracomment>East, one or two letters</extracomment>
        <translation>O</translation>
    </message>
    <message id="kiv-gps-south">
        <source>S</source>
        <extracomment>South, one or two letters</extracomment>
        <translation>S</translation>
    </message>
    <message id="kiv-gps-west">
        <source>W</source>
        <extracomment>West, one or two letters</extracomment>
        <translation>W</translation>
    </message>
    <message id="kiv-test-radios">
        <source>Radio switches</source>
        <translation>Funkschalter</translation>
    </message>
    <message id="kiv-bluetooth-off">
        <source>Bluetooth is switched off.</source>
        <translation>Bluetooth ist ausgeschaltet.</translation>
    </message>
    <message id="kiv-bluetooth-no-radio">
        <source>No Bluetooth radio was found.</source>
        <translation>Es wurde kein Bluetooth-Funkmodul gefunden.</translation>
    </message>
    <message id="kiv-bluetooth-no-service">
        <source>The Bluetooth service is in trouble or not there.</source>
        <translation>Der Bluetooth-Dienst ist gestört oder fehlt.</translation>
    </message>
    <message id="kiv-network-none">
        <source>no network</source>
        <translation>kein Netz</translation>
    </message>
    <message id="kiv-network-emergency">
        <source>emergency calls only</source>
        <translation>nur Notrufe</translation>
    </message>
    <message id="kiv-network-searching">
        <source>searching</source>
        <translation>sucht</translation>
    </message>
    <message id="kiv-network-busy">
        <source>busy</source>
        <translation>ausgelastet</translation>
    </message>
    <message id="kiv-network-denied">
        <source>refused by the network</source>
        <translation>vom Netz abgewiesen</translation>
    </message>
    <message id="kiv-network-home">
        <source>connected</source>
        <translation>verbunden</translation>
    </message>
    <message id="kiv-network-roaming">
        <source>connected, roaming</source>
        <translation>verbunden, Roaming</translation>
    </message>
    <message id="kiv-switch-on">
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message id="kiv-switch-off">
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message id="kiv-radios-instructions">
        <source>Compare these with the phone&apos;s settings. A switch that is moved there must move here, too.</source>
        <translation>Vergleichen Sie mit den Einstellungen des Telefons. Was dort umgeschaltet wird, muss sich auch hier ändern.</translation>
    </message>
    <message id="kiv-radios-hint">
        <source>Pass unlocks when the mode-control service has answered.</source>
        <translation>„Bestanden“ ist gesperrt, bis der Mode-Control-Dienst geantwortet hat.</translation>
    </message>
    <message id="kiv-radios-lost">
        <source>The mode-control service does not answer.</source>
        <translation>Der Mode-Control-Dienst antwortet nicht.</translation>
    </message>
    <message id="kiv-radios-service">
        <source>Mode-control service</source>
        <translation>Mode-Control-Dienst</translation>
    </message>
    <message id="kiv-service-answers">
        <source>answers</source>
        <translation>antwortet</translation>
    </message>
    <message id="kiv-service-silent">
        <source>does not answer</source>
        <translation>antwortet nicht</translation>
    </message>
    <message id="kiv-radios-nfc">
        <source>NFC</source>
        <translation>NFC</translation>
    </message>
    <message id="kiv-radios-fm-transmitter">
        <source>FM transmitter</source>
        <translation>UKW-Sender</translation>
    </message>
    <message id="kiv-radios-4g">
        <source>4G preferred by the modem settings</source>
        <translation>4G laut Modemeinstellungen bevorzugt</translation>
    </message>
    <message id="kiv-system-duration">
        <source>%1 h %2 min %3 s</source>
        <extracomment>A duration: hours, minutes, seconds</extracomment>
        <translation>%1 h %2 min %3 s</translation>
    </message>
    <message id="kiv-system-up">
        <source>Switched on for</source>
        <translation>Eingeschaltet seit</translation>
    </message>
    <message id="kiv-system-asleep">
        <source>Asleep meanwhile</source>
        <translation>Davon im Ruhezustand</translation>
    </message>
    <message id="kiv-bluetooth-working">
        <source>Asking for the Bluetooth radio</source>
        <translation>Das Bluetooth-Funkmodul wird abgefragt</translation>
    </message>
    <message id="kiv-bluetooth-good">
        <source>The address is in order, and the radio found a device: %1</source>
        <translation>Die Adresse ist in Ordnung, und das Funkmodul hat ein Gerät gefunden: %1</translation>
    </message>
    <message id="kiv-bluetooth-instructions-blind">
        <source>The address is compared with its pattern. Then see in the phone&apos;s settings whether it finds devices.</source>
        <translation>Die Adresse wird mit ihrem Muster verglichen. Sehen Sie danach in den Einstellungen des Telefons nach, ob es Geräte findet.</translation>
    </message>
    <message id="kiv-bluetooth-instructions">
        <source>Put a device nearby that can be found, such as a headset that is being paired.</source>
        <translation>Legen Sie ein Gerät in die Nähe, das sich finden lässt, etwa ein Headset im Kopplungsmodus.</translation>
    </message>
    <message id="kiv-bluetooth-hint">
        <source>Pass unlocks when the address is in order and the radio has searched.</source>
        <translation>„Bestanden“ ist gesperrt, bis die Adresse in Ordnung ist und das Funkmodul gesucht hat.</translation>
    </message>
    <message id="kiv-bluetooth-missing">
        <source>This phone has no Bluetooth.</source>
        <translation>Dieses Telefon hat kein Bluetooth.</translation>
    </message>
    <message id="kiv-radio-blind">
        <source>This phone&apos;s system does not tell anything about the radio.</source>
        <translation>Das System dieses Telefons sagt nichts über das Funkmodul.</translation>
    </message>
    <message id="kiv-bluetooth-nobody">
        <source>The radio searched, but no device answered.</source>
        <translation>Das Funkmodul hat gesucht, aber kein Gerät hat geantwortet.</translation>
    </message>
    <message id="kiv-bluetooth-again">
        <source>Search again</source>
        <translation>Noch einmal suchen</translation>
    </message>
    <message id="kiv-bluetooth-searching">
        <source>Searching</source>
        <translation>Sucht</translation>
    </message>
    <message id="kiv-radio-found">
        <source>Radio found</source>
        <translation>Funkmodul gefunden</translation>
    </message>
    <message id="kiv-bluetooth-devices">
        <source>Devices found</source>
        <translation>Gefundene Geräte</translation>
    </message>
    <message id="kiv-gps-status-error">
        <source>in trouble or not there</source>
        <translation>gestört oder nicht da</translation>
    </message>
    <message id="kiv-gps-status-unavailable">
        <source>cannot position</source>
        <translation>kann nicht orten</translation>
    </message>
    <message id="kiv-gps-status-acquiring">
        <source>looking for the position</source>
        <translation>sucht die Position</translation>
    </message>
    <message id="kiv-gps-status-available">
        <source>knows the position</source>
        <translation>kennt die Position</translation>
    </message>
    <message id="kiv-gps-status-unknown">
        <source>unknown (%1)</source>
        <extracomment>The service reports a state that has no name</extracomment>
        <translation>unbekannt (%1)</translation>
    </message>
    <message id="kiv-gps-good">
        <source>A satellite was in use after %1 s.</source>
        <translation>Nach %1 s wurde ein Satellit benutzt.</translation>
    </message>
    <message id="kiv-gps-instructions">
        <source>Go outdoors or to a window. The first satellite may take some minutes.</source>
        <translation>Gehen Sie ins Freie oder an ein Fenster. Bis zum ersten Satelliten kann es einige Minuten dauern.</translation>
    </message>
    <message id="kiv-gps-hint-position">
        <source>Pass unlocks when the positioning service knows the position.</source>
        <translation>„Bestanden“ ist gesperrt, bis der Ortungsdienst die Position kennt.</translation>
    </message>
    <message id="kiv-gps-hint">
        <source>Pass unlocks when a satellite is in use.</source>
        <translation>„Bestanden“ ist gesperrt, bis ein Satellit benutzt wird.</translation>
    </message>
    <message id="kiv-gps-missing">
        <source>This phone has no satellite receiver.</source>
        <translation>Dieses Telefon hat keinen Satellitenempfänger.</translation>
    </message>
    <message id="kiv-gps-no-source">
        <source>The system offers no view of the satellites, only the state of the positioning service.</source>
        <translation>Das System zeigt keine Satelliten, nur den Zustand des Ortungsdienstes.</translation>
    </message>
    <message id="kiv-gps-error">
        <source>The positioning service is in trouble or does not answer.</source>
        <translation>Der Ortungsdienst ist gestört oder antwortet nicht.</translation>
    </message>
    <message id="kiv-gps-unavailable">
        <source>The positioning service cannot position. Is positioning switched on in the phone&apos;s settings?</source>
        <translation>Der Ortungsdienst kann nicht orten. Ist die Ortung in den Einstellungen des Telefons eingeschaltet?</translation>
    </message>
    <message id="kiv-gps-source-error">
        <source>The receiver reports an error.</source>
        <translation>Der Empfänger meldet einen Fehler.</translation>
    </message>
    <message id="kiv-gps-silent">
        <source>The receiver has not reported for %1 s.</source>
        <translation>Der Empfänger hat seit %1 s nichts gemeldet.</translation>
    </message>
    <message id="kiv-gps-legend">
        <source>in use for the position</source>
        <translation>für die Position benutzt</translation>
    </message>
    <message id="kiv-gps-status">
        <source>Positioning service</source>
        <translation>Ortungsdienst</translation>
    </message>
    <message id="kiv-gps-in-view">
        <source>Satellites in view</source>
        <translation>Satelliten in Sicht</translation>
    </message>
    <message id="kiv-gps-in-use">
        <source>Satellites in use</source>
        <translation>Benutzte Satelliten</translation>
    </message>
    <message id="kiv-gps-first-seen">
        <source>First satellite in view after</source>
        <translation>Erster Satellit in Sicht nach</translation>
    </message>
    <message id="kiv-gps-first-used">
        <source>First satellite in use after</source>
        <translation>Erster Satellit benutzt nach</translation>
    </message>
    <message id="kiv-sim-working">
        <source>Asking the telephony service</source>
        <translation>Der Telefoniedienst wird gefragt</translation>
    </message>
    <message id="kiv-sim-silent">
        <source>The telephony service reports no modem, or does not answer.</source>
        <translation>Der Telefoniedienst meldet kein Modem oder antwortet nicht.</translation>
    </message>
    <message id="kiv-sim-good">
        <source>Every SIM card could be read.</source>
        <translation>Jede SIM-Karte war lesbar.</translation>
    </message>
    <message id="kiv-sim-instructions-blind">
        <source>See in the phone&apos;s settings whether it knows its SIM card.</source>
        <translation>Sehen Sie in den Einstellungen des Telefons nach, ob es seine SIM-Karte kennt.</translation>
    </message>
    <message id="kiv-sim-instructions">
        <source>Every SIM slot needs a card. One that is locked has to be unlocked first.</source>
        <translation>In jedes SIM-Fach gehört eine Karte. Eine gesperrte muss zuerst entsperrt werden.</translation>
    </message>
    <message id="kiv-sim-hint">
        <source>Pass unlocks when a SIM card has been read.</source>
        <translation>„Bestanden“ ist gesperrt, bis eine SIM-Karte gelesen wurde.</translation>
    </message>
    <message id="kiv-sim-missing">
        <source>This phone has no modem.</source>
        <translation>Dieses Telefon hat kein Modem.</translation>
    </message>
    <message id="kiv-sim-cardless">
        <source>A SIM card is not there, is locked or cannot be read. Look after it, then ask again.</source>
        <translation>Eine SIM-Karte fehlt, ist gesperrt oder nicht lesbar. Sehen Sie nach und fragen Sie dann noch einmal.</translation>
    </message>
    <message id="kiv-sim-again">
        <source>Ask again</source>
        <translation>Noch einmal fragen</translation>
    </message>
    <message id="kiv-sim-card">
        <source>SIM card read</source>
        <translation>SIM-Karte gelesen</translation>
    </message>
    <message id="kiv-sim-card-number">
        <source>SIM card %1 read</source>
        <translation>SIM-Karte %1 gelesen</translation>
    </message>
    <message id="kiv-sim-home">
        <source>Network of the card</source>
        <extracomment>The country and the network, both as numbers, that a SIM card belongs to</extracomment>
        <translation>Netz der Karte</translation>
    </message>
    <message id="kiv-sim-state">
        <source>Mobile network</source>
        <translation>Mobilfunknetz</translation>
    </message>
    <message id="kiv-network-name">
        <source>Network</source>
        <translation>Netz</translation>
    </message>
    <message id="kiv-network-strength">
        <source>Signal strength</source>
        <translation>Signalstärke</translation>
    </message>
    <message id="kiv-sim-cards">
        <source>SIM cards read</source>
        <translation>Gelesene SIM-Karten</translation>
    </message>
    <message id="kiv-usb-otg-good">
        <source>A drive was seen to come and go.</source>
        <translation>Das System sah ein Laufwerk kommen und gehen.</translation>
    </message>
    <message id="kiv-usb-otg-hint">
        <source>Pass unlocks when a drive was seen to come and go.</source>
        <translation>„Bestanden“ ist gesperrt, bis ein Laufwerk kam und ging.</translation>
    </message>
    <message id="kiv-usb-otg-missing">
        <source>This phone cannot take USB devices.</source>
        <translation>Dieses Telefon kann keine USB-Geräte aufnehmen.</translation>
    </message>
    <message id="kiv-usb-otg-step-plug">
        <source>Plug a USB drive in, with the adapter. If one is in already, pull it out first</source>
        <translation>Ein USB-Laufwerk mit dem Adapter anstecken. Steckt schon eines, dieses zuerst abziehen</translation>
    </message>
    <message id="kiv-usb-otg-step-pull">
        <source>Pull it out</source>
        <translation>Abziehen</translation>
    </message>
    <message id="kiv-usb-otg-late-gone">
        <source>The system has not announced that the drive is gone.</source>
        <translation>Das System hat nicht gemeldet, dass das Laufwerk weg ist.</translation>
    </message>
    <message id="kiv-usb-otg-late">
        <source>The system has not announced any drive.</source>
        <translation>Das System hat kein Laufwerk gemeldet.</translation>
    </message>
    <message id="kiv-usb-otg-drive">
        <source>USB drive</source>
        <translation>USB-Laufwerk</translation>
    </message>
    <message id="kiv-usb-otg-there">
        <source>plugged in</source>
        <translation>angesteckt</translation>
    </message>
    <message id="kiv-usb-otg-none">
        <source>none seen</source>
        <translation>keines gesehen</translation>
    </message>
    <message id="kiv-wifi-good">
        <source>The address is in order, and the radio is connected to a network.</source>
        <translation>Die Adresse ist in Ordnung, und das Funkmodul ist mit einem Netz verbunden.</translation>
    </message>
    <message id="kiv-wifi-instructions-blind">
        <source>The address is compared with its pattern. Then see in the phone&apos;s settings whether it finds networks.</source>
        <translation>Die Adresse wird mit ihrem Muster verglichen. Sehen Sie danach in den Einstellungen des Telefons nach, ob es Netze findet.</translation>
    </message>
    <message id="kiv-wifi-instructions">
        <source>Switch Wi-Fi on and connect the phone to a network: the test passes by itself.</source>
        <translation>Schalten Sie WLAN ein und verbinden Sie das Telefon mit einem Netz: Der Test ist dann von selbst bestanden.</translation>
    </message>
    <message id="kiv-wifi-hint">
        <source>Pass unlocks when the address is in order and the radio was found.</source>
        <translation>„Bestanden“ ist gesperrt, bis die Adresse in Ordnung ist und das Funkmodul gefunden wurde.</translation>
    </message>
    <message id="kiv-wifi-missing">
        <source>This phone has no Wi-Fi.</source>
        <translation>Dieses Telefon hat kein WLAN.</translation>
    </message>
    <message id="kiv-wifi-unconnected">
        <source>The radio is there, but not connected. Without a network in reach, judge by the networks that the settings list.</source>
        <translation>Das Funkmodul ist da, aber nicht verbunden. Ist kein Netz erreichbar, urteilen Sie nach den Netzen, die in den Einstellungen stehen.</translation>
    </message>
    <message id="kiv-wifi-connection">
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message id="kiv-zel-good">
        <source>The cover was seen to come and go. Its identifier: %1</source>
        <translation>Der Dienst sah die Hülle kommen und gehen. Ihre Kennung: %1</translation>
    </message>
    <message id="kiv-zel-nameless">
        <source>The cover was seen to come and go, but it did not tell its identifier.</source>
        <translation>Der Dienst sah die Hülle kommen und gehen, aber sie nannte ihre Kennung nicht.</translation>
    </message>
    <message id="kiv-zel-hint">
        <source>Pass unlocks when a cover was seen to come and go.</source>
        <translation>„Bestanden“ ist gesperrt, bis eine Hülle kam und ging.</translation>
    </message>
    <message id="kiv-zel-missing">
        <source>This phone has no smart-cover service.</source>
        <translation>Dieses Telefon hat keinen Dienst für intelligente Hüllen.</translation>
    </message>
    <message id="kiv-zel-lost">
        <source>The smart-cover service does not answer.</source>
        <translation>Der Dienst für die Hülle antwortet nicht.</translation>
    </message>
    <message id="kiv-zel-not-ready">
        <source>The smart-cover service is not ready to recognise covers yet.</source>
        <translation>Der Dienst für die Hülle ist noch nicht bereit, eine zu erkennen.</translation>
    </message>
    <message id="kiv-zel-step-dock">
        <source>Put a smart cover on the phone</source>
        <translation>Eine intelligente Hülle anlegen</translation>
    </message>
    <message id="kiv-zel-step-remove">
        <source>Take it off again</source>
        <translation>Sie wieder abnehmen</translation>
    </message>
    <message id="kiv-zel-service">
        <source>Smart-cover service</source>
        <translation>Dienst für die Hülle</translation>
    </message>
    <message id="kiv-zel-ready">
        <source>Ready for covers</source>
        <translation>Bereit für eine Hülle</translation>
    </message>
    <message id="kiv-zel-docked">
        <source>Cover on the phone</source>
        <translation>Hülle am Telefon</translation>
    </message>
    <message id="kiv-zel-identifier">
        <source>Identifier of the cover</source>
        <translation>Kennung der Hülle</translation>
    </message>
    <message id="kiv-sim-modem-count">
        <source>Modems</source>
        <translation>Modems</translation>
    </message>
    <message id="kiv-challenge-mistake">
        <source>Shown: %1, answered: %2</source>
        <extracomment>A wrong answer: what was shown and what the operator said</extracomment>
        <translation>Gezeigt: %1, geantwortet: %2</translation>
    </message>
    <message id="kiv-challenge-second">
        <source>That was not right. You have one more try, with something new.</source>
        <translation>Das war nicht richtig. Ein Versuch bleibt, mit etwas Neuem.</translation>
    </message>
    <message id="kiv-challenge-round">
        <source>Answer %1 of %2</source>
        <extracomment>How far the operator is with a question that is asked several times</extracomment>
        <translation>Antwort %1 von %2</translation>
    </message>
    <message id="kiv-checks-position">
        <source>Question %1 of %2</source>
        <extracomment>How far the operator is with a list of questions</extracomment>
        <translation>Frage %1 von %2</translation>
    </message>
    <message id="kiv-checks-yes">
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message id="kiv-checks-no">
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message id="kiv-data-missing">
        <source>No modem was found, so there is no mobile data.</source>
        <translation>Es wurde kein Modem gefunden, also gibt es keine mobilen Daten.</translation>
    </message>
    <message id="kiv-data-instructions">
        <source>Switch Wi-Fi off and mobile data on, open a web page that was not open before, and switch Wi-Fi on again.</source>
        <translation>Schalten Sie WLAN aus und mobile Daten ein, öffnen Sie eine Webseite, die noch nicht geöffnet war, und schalten Sie WLAN wieder ein.</translation>
    </message>
    <message id="kiv-data-note">
        <source>Kiv cannot tell over which radio a page comes. Where the phone has two SIM cards, try each.</source>
        <translation>Kiv erkennt nicht, über welche Verbindung eine Seite kommt. Bei zwei SIM-Karten versuchen Sie es mit jeder.</translation>
    </message>
    <message id="kiv-data-good">
        <source>The operator loaded a web page over mobile data.</source>
        <translation>Der Prüfer hat über mobile Daten eine Webseite geladen.</translation>
    </message>
    <message id="kiv-data-loaded">
        <source>SIM card %1: did the web page load without Wi-Fi?</source>
        <translation>SIM-Karte %1: Wurde die Webseite ohne WLAN geladen?</translation>
    </message>
    <message id="kiv-data-loaded-bad">
        <source>SIM card %1: nothing was loaded over mobile data.</source>
        <translation>SIM-Karte %1: Über mobile Daten wurde nichts geladen.</translation>
    </message>
    <message id="kiv-data-broke">
        <source>SIM card %1: did the connection break off meanwhile?</source>
        <translation>SIM-Karte %1: Brach die Verbindung dabei ab?</translation>
    </message>
    <message id="kiv-data-broke-bad">
        <source>SIM card %1: the mobile connection broke off.</source>
        <translation>SIM-Karte %1: Die mobile Verbindung brach ab.</translation>
    </message>
    <message id="kiv-voice-heard">
        <source>SIM card %1: could you hear the other end?</source>
        <translation>SIM-Karte %1: Konnten Sie die Gegenseite hören?</translation>
    </message>
    <message id="kiv-voice-heard-bad">
        <source>SIM card %1: the other end could not be heard.</source>
        <translation>SIM-Karte %1: Die Gegenseite war nicht zu hören.</translation>
    </message>
    <message id="kiv-voice-clear">
        <source>SIM card %1: did the call break off, crackle or echo?</source>
        <translation>SIM-Karte %1: Brach das Gespräch ab, knackte es oder hallte es?</translation>
    </message>
    <message id="kiv-voice-clear-bad">
        <source>SIM card %1: the call broke off, crackled or echoed.</source>
        <translation>SIM-Karte %1: Das Gespräch brach ab, knackte oder hallte.</translation>
    </message>
    <message id="kiv-voice-spoke">
        <source>SIM card %1: could the other end hear you?</source>
        <translation>SIM-Karte %1: Konnte die Gegenseite Sie hören?</translation>
    </message>
    <message id="kiv-voice-spoke-bad">
        <source>SIM card %1: the other end heard nothing.</source>
        <translation>SIM-Karte %1: Die Gegenseite hörte nichts.</translation>
    </message>
    <message id="kiv-voice-missing">
        <source>No modem was found, so no call can be made.</source>
        <translation>Es wurde kein Modem gefunden, also ist kein Anruf möglich.</translation>
    </message>
    <message id="kiv-voice-instructions">
        <source>Call a second phone or a test line with the phone&apos;s own dialler, speak for a moment, and hang up.</source>
        <translation>Rufen Sie mit der Telefon-App ein zweites Telefon oder eine Testnummer an, sprechen Sie kurz und legen Sie auf.</translation>
    </message>
    <message id="kiv-voice-note">
        <source>Kiv makes no calls by itself. Where the phone has two SIM cards, call with each.</source>
        <translation>Kiv ruft selbst niemanden an. Bei zwei SIM-Karten rufen Sie mit jeder an.</translation>
    </message>
    <message id="kiv-voice-good">
        <source>The operator made a call and both ends heard each other.</source>
        <translation>Der Prüfer hat telefoniert, und beide Seiten haben einander gehört.</translation>
    </message>
    <message id="kiv-guided-hint">
        <source>Pass unlocks when you have answered the questions.</source>
        <translation>„Bestanden“ ist gesperrt, bis Sie die Fragen beantwortet haben.</translation>
    </message>
    <message id="kiv-reboot-missing">
        <source>The system does not tell when it was started.</source>
        <translation>Das System sagt nicht, wann es gestartet wurde.</translation>
    </message>
    <message id="kiv-reboot-instructions">
        <source>Restart the phone with its power key or its menu. When it is up again, start Kiv and open this test anew.</source>
        <translation>Starten Sie das Telefon mit der Ein-/Aus-Taste oder über sein Menü neu. Starten Sie danach Kiv und öffnen Sie diesen Test erneut.</translation>
    </message>
    <message id="kiv-reboot-hint">
        <source>Pass unlocks when the phone was restarted a short while ago and you have answered the questions.</source>
        <translation>„Bestanden“ ist gesperrt, bis das Telefon vor Kurzem neu gestartet wurde und Sie die Fragen beantwortet haben.</translation>
    </message>
    <message id="kiv-reboot-note">
        <source>A restart ends Kiv, and the verdicts that are not kept elsewhere are gone: do this test first or by itself.</source>
        <translation>Ein Neustart beendet Kiv, und Ergebnisse, die nirgends sonst festgehalten sind, gehen verloren: Führen Sie diesen Test zuerst oder für sich aus.</translation>
    </message>
    <message id="kiv-reboot-first">
        <source>Did the phone come up at the first try, up to its usual screen?</source>
        <translation>Ist das Telefon beim ersten Versuch bis zu seinem üblichen Bildschirm hochgefahren?</translation>
    </message>
    <message id="kiv-reboot-first-bad">
        <source>The phone did not come up at the first try.</source>
        <translation>Das Telefon ist beim ersten Versuch nicht hochgefahren.</translation>
    </message>
    <message id="kiv-reboot-error">
        <source>Did it show an error, or ask for anything that it did not ask for before?</source>
        <translation>Hat es einen Fehler gezeigt oder etwas gefragt, was es vorher nicht gefragt hat?</translation>
    </message>
    <message id="kiv-reboot-error-bad">
        <source>The phone showed an error while it started.</source>
        <translation>Das Telefon hat beim Hochfahren einen Fehler gezeigt.</translation>
    </message>
    <message id="kiv-reboot-good">
        <source>The phone was restarted and came up again.</source>
        <translation>Das Telefon wurde neu gestartet und ist wieder hochgefahren.</translation>
    </message>
    <message id="kiv-reboot-age">
        <source>Since the start</source>
        <translation>Seit dem Start</translation>
    </message>
    <message id="kiv-suspend-good">
        <source>The phone slept and woke up: %1 s</source>
        <translation>Das Telefon hat geschlafen und ist aufgewacht: %1 s</translation>
    </message>
    <message id="kiv-suspend-instructions">
        <source>Unplug the charger and press the power key, so that the panel goes dark. Wait half a minute, then wake the phone.</source>
        <translation>Ziehen Sie das Ladegerät ab und drücken Sie die Ein-/Aus-Taste, sodass der Bildschirm dunkel wird. Warten Sie eine halbe Minute und wecken Sie das Telefon.</translation>
    </message>
    <message id="kiv-suspend-hint">
        <source>Pass unlocks when the phone has slept.</source>
        <translation>„Bestanden“ ist gesperrt, bis das Telefon geschlafen hat.</translation>
    </message>
    <message id="kiv-suspend-missing">
        <source>The mode-control service does not answer, so nobody knows whether the phone has slept.</source>
        <translation>Der Mode-Control-Dienst antwortet nicht; niemand weiß also, ob das Telefon geschlafen hat.</translation>
    </message>
    <message id="kiv-suspend-step-sleep">
        <source>Let the phone sleep</source>
        <translation>Das Telefon schlafen lassen</translation>
    </message>
    <message id="kiv-suspend-step-wake">
        <source>Wake it</source>
        <translation>Es wecken</translation>
    </message>
    <message id="kiv-suspend-note">
        <source>A phone that charges or that a computer is connected to stays awake behind its dark panel.</source>
        <translation>Ein Telefon, das lädt oder mit einem Computer verbunden ist, bleibt hinter dem dunklen Bildschirm wach.</translation>
    </message>
    <message id="kiv-suspend-total">
        <source>Slept since the phone was started</source>
        <translation>Schlaf seit dem Start des Telefons</translation>
    </message>
    <message id="kiv-suspend-since">
        <source>Slept during this test</source>
        <translation>Schlaf während dieses Tests</translation>
    </message>
    <message id="kiv-resistance-missing">
        <source>The battery&apos;s voltage and current cannot be read here.</source>
        <translation>Spannung und Strom des Akkus sind hier nicht zu lesen.</translation>
    </message>
    <message id="kiv-resistance-good">
        <source>The battery&apos;s internal resistance is in order.</source>
        <translation>Der Innenwiderstand des Akkus ist in Ordnung.</translation>
    </message>
    <message id="kiv-resistance-hint">
        <source>Pass unlocks when the resistance has been measured.</source>
        <translation>„Bestanden“ ist gesperrt, bis der Widerstand gemessen ist.</translation>
    </message>
    <message id="kiv-resistance-off">
        <source>The settings of this phone do not ask for this test.</source>
        <translation>Die Einstellungen dieses Telefons verlangen diesen Test nicht.</translation>
    </message>
    <message id="kiv-resistance-step-on">
        <source>Measuring with the charger on: leave phone and charger alone</source>
        <translation>Messung bei eingeschaltetem Laden: Telefon und Ladegerät in Ruhe lassen</translation>
    </message>
    <message id="kiv-resistance-step-off">
        <source>Measuring with the charger off</source>
        <translation>Messung bei abgeschaltetem Laden</translation>
    </message>
    <message id="kiv-resistance-step-again">
        <source>Measuring with the charger on again</source>
        <translation>Messung bei wieder eingeschaltetem Laden</translation>
    </message>
    <message id="kiv-resistance-voltage-on">
        <source>Voltage, charger on</source>
        <translation>Spannung, Laden an</translation>
    </message>
    <message id="kiv-resistance-voltage-off">
        <source>Voltage, charger off</source>
        <translation>Spannung, Laden aus</translation>
    </message>
    <message id="kiv-resistance-step">
        <source>Step of the current</source>
        <translation>Stromsprung</translation>
    </message>
    <message id="kiv-resistance">
        <source>Internal resistance</source>
        <translation>Innenwiderstand</translation>
    </message>
    <message id="kiv-keylight-instructions">
        <source>Look at the keys beside the panel. If they have no light, choose Skip.</source>
        <translation>Sehen Sie auf die Tasten neben dem Bildschirm. Haben sie kein Licht, wählen Sie „Auslassen“.</translation>
    </message>
    <message id="kiv-keylight-note">
        <source>Kiv cannot switch this light: the phone lights the keys after a touch and darkens them again.</source>
        <translation>Kiv kann dieses Licht nicht schalten: Das Telefon beleuchtet die Tasten nach einer Berührung und verdunkelt sie wieder.</translation>
    </message>
    <message id="kiv-keylight-step-touch">
        <source>Touch the field below</source>
        <translation>Das Feld unten berühren</translation>
    </message>
    <message id="kiv-keylight-step-rest">
        <source>Keep your hands off: %1 s</source>
        <translation>Hände weg: %1 s</translation>
    </message>
    <message id="kiv-keylight-touch">
        <source>Touch here</source>
        <translation>Hier berühren</translation>
    </message>
    <message id="kiv-keylight-lit">
        <source>Are the keys lit now?</source>
        <translation>Leuchten die Tasten jetzt?</translation>
    </message>
    <message id="kiv-keylight-lit-bad">
        <source>The keys do not light up after a touch.</source>
        <translation>Die Tasten leuchten nach einer Berührung nicht auf.</translation>
    </message>
    <message id="kiv-keylight-stayed">
        <source>Did the keys stay lit while you kept your hands off?</source>
        <translation>Haben die Tasten weiter geleuchtet, während die Hände weg waren?</translation>
    </message>
    <message id="kiv-keylight-stayed-bad">
        <source>The keys stay lit.</source>
        <translation>Die Tasten leuchten ständig.</translation>
    </message>
    <message id="kiv-keylight-equal">
        <source>Were all of them lit equally bright?</source>
        <translation>Waren alle gleich hell?</translation>
    </message>
    <message id="kiv-keylight-equal-bad">
        <source>Not all keys are lit equally bright.</source>
        <translation>Nicht alle Tasten sind gleich hell.</translation>
    </message>
    <message id="kiv-keylight-good">
        <source>The operator saw the keys light up and go out.</source>
        <translation>Der Prüfer hat die Tasten aufleuchten und dunkel werden sehen.</translation>
    </message>
    <message id="kiv-fingerprint-missing">
        <source>This phone has no fingerprint reader.</source>
        <translation>Dieses Telefon hat keinen Fingerabdruckleser.</translation>
    </message>
    <message id="kiv-fingerprint-instructions">
        <source>Open the fingerprints in the phone&apos;s settings. Enrol one finger, lock the phone, and touch the reader with this finger and with another one.</source>
        <translation>Öffnen Sie in den Einstellungen des Telefons die Fingerabdrücke. Nehmen Sie einen Finger auf, sperren Sie das Telefon und berühren Sie den Leser mit diesem und mit einem anderen Finger.</translation>
    </message>
    <message id="kiv-fingerprint-note">
        <source>Kiv cannot reach the reader: the phone keeps fingerprints to itself. Remove the finger from the settings afterwards.</source>
        <translation>Kiv erreicht den Leser nicht: Das Telefon behält Fingerabdrücke für sich. Löschen Sie den Finger danach aus den Einstellungen.</translation>
    </message>
    <message id="kiv-fingerprint-good">
        <source>The operator saw the reader know one finger and refuse another.</source>
        <translation>Der Prüfer hat gesehen, dass der Leser einen Finger kennt und einen anderen abweist.</translation>
    </message>
    <message id="kiv-fingerprint-enrolled">
        <source>Could the finger be enrolled?</source>
        <translation>Ließ sich der Finger aufnehmen?</translation>
    </message>
    <message id="kiv-fingerprint-enrolled-bad">
        <source>The finger could not be enrolled.</source>
        <translation>Der Finger ließ sich nicht aufnehmen.</translation>
    </message>
    <message id="kiv-fingerprint-other">
        <source>Did another finger unlock the phone?</source>
        <translation>Hat ein anderer Finger das Telefon entsperrt?</translation>
    </message>
    <message id="kiv-fingerprint-other-bad">
        <source>A finger that was not enrolled unlocked the phone.</source>
        <translation>Ein nicht aufgenommener Finger hat das Telefon entsperrt.</translation>
    </message>
    <message id="kiv-fingerprint-known">
        <source>Did the enrolled finger unlock the phone?</source>
        <translation>Hat der aufgenommene Finger das Telefon entsperrt?</translation>
    </message>
    <message id="kiv-fingerprint-known-bad">
        <source>The enrolled finger did not unlock the phone.</source>
        <translation>Der aufgenommene Finger hat das Telefon nicht entsperrt.</translation>
    </message>
    <message id="kiv-lcd-instructions">
        <source>Look at every picture for dots, lines and stains. Tap for the next one. At the end, count the dots.</source>
        <translation>Suchen Sie jedes Bild nach Punkten, Linien und Flecken ab. Tippen Sie für das nächste. Am Ende zählen Sie die Punkte.</translation>
    </message>
    <message id="kiv-lcd-hint">
        <source>Pass unlocks when you have seen the pictures, counted the dots and answered the questions.</source>
        <translation>„Bestanden“ ist gesperrt, bis Sie die Bilder gesehen, die Punkte gezählt und die Fragen beantwortet haben.</translation>
    </message>
    <message id="kiv-lcd-next">
        <source>Next picture</source>
        <translation>Nächstes Bild</translation>
    </message>
    <message id="kiv-lcd-question">
        <source>How many dots were on the panel?</source>
        <translation>Wie viele Punkte waren auf dem Bildschirm?</translation>
    </message>
    <message id="kiv-lcd-again">
        <source>Show the dots again</source>
        <translation>Punkte noch einmal zeigen</translation>
    </message>
    <message id="kiv-lcd-spot">
        <source>Was a dot, line or stain in a picture that does not belong there?</source>
        <translation>War in einem Bild ein Punkt, eine Linie oder ein Fleck, der dort nicht hingehört?</translation>
    </message>
    <message id="kiv-lcd-spot-bad">
        <source>The panel has a dot, line or stain.</source>
        <translation>Der Bildschirm hat einen Punkt, eine Linie oder einen Fleck.</translation>
    </message>
    <message id="kiv-lcd-shades">
        <source>Were all colours and shades there, without steps?</source>
        <translation>Waren alle Farben und Abstufungen da, ohne Sprünge?</translation>
    </message>
    <message id="kiv-lcd-shades-bad">
        <source>Colours or shades were missing.</source>
        <translation>Farben oder Abstufungen fehlten.</translation>
    </message>
    <message id="kiv-lcd-good">
        <source>The operator counted the dots and found no fault in the pictures.</source>
        <translation>Der Prüfer hat die Punkte gezählt und in den Bildern keinen Fehler gefunden.</translation>
    </message>
    <message id="kiv-lcd-pictures-again">
        <source>Show the pictures again</source>
        <translation>Bilder noch einmal zeigen</translation>
    </message>
    <message id="kiv-backlight-instructions">
        <source>Look at the white panel: is the light even up to the edges? Tap, and watch whether it becomes brighter or darker.</source>
        <translation>Sehen Sie auf den weißen Bildschirm: Ist das Licht bis an die Ränder gleichmäßig? Tippen Sie und achten Sie darauf, ob es heller oder dunkler wird.</translation>
    </message>
    <message id="kiv-backlight-note">
        <source>Kiv cannot change the backlight. It is the picture that becomes brighter or darker: what it shows is that the panel is lit and that you looked.</source>
        <translation>Kiv kann die Beleuchtung nicht ändern. Das Bild wird heller oder dunkler; das zeigt, dass der Bildschirm leuchtet und dass Sie hingesehen haben.</translation>
    </message>
    <message id="kiv-backlight-question">
        <source>What has the panel become?</source>
        <translation>Wie ist der Bildschirm geworden?</translation>
    </message>
    <message id="kiv-backlight-brighter">
        <source>Brighter</source>
        <translation>Heller</translation>
    </message>
    <message id="kiv-backlight-darker">
        <source>Darker</source>
        <translation>Dunkler</translation>
    </message>
    <message id="kiv-backlight-again">
        <source>Show it again</source>
        <translation>Noch einmal zeigen</translation>
    </message>
    <message id="kiv-backlight-uneven">
        <source>Was the white uneven, or did it flicker?</source>
        <translation>War das Weiß ungleichmäßig oder hat es geflackert?</translation>
    </message>
    <message id="kiv-backlight-uneven-bad">
        <source>The backlight is uneven or flickers.</source>
        <translation>Die Beleuchtung ist ungleichmäßig oder flackert.</translation>
    </message>
    <message id="kiv-backlight-follows">
        <source>Set the brightness in the phone&apos;s own settings to the lowest and the highest. Does the light follow?</source>
        <translation>Stellen Sie die Helligkeit in den Einstellungen des Telefons auf den kleinsten und den größten Wert. Folgt das Licht?</translation>
    </message>
    <message id="kiv-backlight-follows-bad">
        <source>The backlight does not follow the phone&apos;s brightness setting.</source>
        <translation>Die Beleuchtung folgt der Helligkeitseinstellung des Telefons nicht.</translation>
    </message>
    <message id="kiv-backlight-good">
        <source>The operator saw an even light that follows the brightness setting.</source>
        <translation>Der Prüfer hat ein gleichmäßiges Licht gesehen, das der Helligkeitseinstellung folgt.</translation>
    </message>
    <message id="kiv-backlight-white-again">
        <source>Show the white panel again</source>
        <translation>Das Weiß noch einmal zeigen</translation>
    </message>
    <message id="kiv-led-dark">
        <source>The light stayed dark while the phone was charging.</source>
        <translation>Die Leuchte blieb dunkel, während das Telefon lud.</translation>
    </message>
    <message id="kiv-led-instructions">
        <source>Plug a charger in: the phone then lights its notification light.</source>
        <translation>Stecken Sie ein Ladegerät ein: Das Telefon schaltet dann seine Benachrichtigungsleuchte ein.</translation>
    </message>
    <message id="kiv-led-hint">
        <source>Pass unlocks when you have said what the light does.</source>
        <translation>„Bestanden“ ist gesperrt, bis Sie gesagt haben, was die Leuchte tut.</translation>
    </message>
    <message id="kiv-led-colour">
        <source>Light while charging</source>
        <translation>Leuchte beim Laden</translation>
    </message>
    <message id="kiv-led-note">
        <source>Kiv cannot switch this light: it shows what the phone wants to tell, such as that it charges.</source>
        <translation>Kiv kann diese Leuchte nicht schalten: Sie zeigt, was das Telefon mitteilen will, etwa dass es lädt.</translation>
    </message>
    <message id="kiv-led-step-colour">
        <source>Say what the light does</source>
        <translation>Angeben, was die Leuchte tut</translation>
    </message>
    <message id="kiv-led-step-unplug">
        <source>Unplug the charger</source>
        <translation>Das Ladegerät abziehen</translation>
    </message>
    <message id="kiv-led-plugged">
        <source>The charger is plugged in</source>
        <translation>Das Ladegerät ist eingesteckt</translation>
    </message>
    <message id="kiv-led-unplugged">
        <source>The charger is unplugged</source>
        <translation>Das Ladegerät ist abgezogen</translation>
    </message>
    <message id="kiv-led-question">
        <source>What does the light show?</source>
        <translation>Was zeigt die Leuchte?</translation>
    </message>
    <message id="kiv-led-red">
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message id="kiv-led-orange">
        <source>Orange or yellow</source>
        <translation>Orange oder gelb</translation>
    </message>
    <message id="kiv-led-green">
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message id="kiv-led-blue">
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message id="kiv-led-white">
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message id="kiv-led-nothing">
        <source>Nothing</source>
        <translation>Nichts</translation>
    </message>
    <message id="kiv-led-lit">
        <source>It is lit</source>
        <translation>Sie leuchtet</translation>
    </message>
    <message id="kiv-led-still">
        <source>Is the light still lit as before?</source>
        <translation>Ist die Leuchte noch an wie vorher?</translation>
    </message>
    <message id="kiv-led-still-bad">
        <source>The light does not change when the charger is unplugged.</source>
        <translation>Die Leuchte ändert sich nicht, wenn das Ladegerät abgezogen wird.</translation>
    </message>
    <message id="kiv-led-good">
        <source>The operator saw the light while the phone charged (%1), and saw it go out.</source>
        <extracomment>What the operator saw of the notification light</extracomment>
        <translation>Der Prüfer hat die Leuchte beim Laden gesehen (%1) und wie sie ausging.</translation>
    </message>
    <message id="kiv-vibrator-none">
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message id="kiv-summary-code">
        <source>Code for the station</source>
        <translation>Code für den Prüfplatz</translation>
    </message>
    <message id="kiv-code-copy">
        <source>Copy the text</source>
        <translation>Text kopieren</translation>
    </message>
    <message id="kiv-code-close">
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message id="kiv-plot-range">
        <source>%1 to %2</source>
        <extracomment>The least and the greatest reading so far</extracomment>
        <translation>%1 bis %2</translation>
    </message>
    <message id="kiv-mode-engineer">
        <source>Engineer&apos;s view</source>
        <translation>Ansicht für Entwickler</translation>
    </message>
    <message id="kiv-engineer-raw">
        <source>Raw values</source>
        <translation>Rohwerte</translation>
    </message>
    <message id="kiv-engineer-settings">
        <source>Settings that were found</source>
        <translation>Gefundene Einstellungen</translation>
    </message>
    <message id="kiv-engineer-probe">
        <source>Look what the phone has</source>
        <translation>Nachsehen, was das Telefon hat</translation>
    </message>
    <message id="kiv-engineer-tests">
        <source>Tests</source>
        <translation>Tests</translation>
    </message>
    <message id="kiv-engineer-processes">
        <source>Processes</source>
        <translation>Prozesse</translation>
    </message>
    <message id="kiv-mode-engineer-detail">
        <source>Raw values, the settings that were found, sound streams and processes</source>
        <translation>Rohwerte, gefundene Einstellungen, Tonströme und Prozesse</translation>
    </message>
    <message id="kiv-run-in-stuck">
        <source>The test did not begin in time.</source>
        <translation>Der Test begann nicht rechtzeitig.</translation>
    </message>
    <message id="kiv-run-in-exercised">
        <source>It ran without trouble.</source>
        <translation>Er lief ohne Störung.</translation>
    </message>
    <message id="kiv-run-in-timeout">
        <source>It came to no result in time.</source>
        <translation>Er kam nicht rechtzeitig zu einem Ergebnis.</translation>
    </message>
    <message id="kiv-run-in-end-time">
        <source>The time is up.</source>
        <translation>Die Zeit ist um.</translation>
    </message>
    <message id="kiv-run-in-end-failure">
        <source>It stopped at the first failure.</source>
        <translation>Beim ersten Fehler angehalten.</translation>
    </message>
    <message id="kiv-run-in-end-temperature">
        <source>The battery reached %1.</source>
        <extracomment>A temperature</extracomment>
        <translation>Der Akku erreichte %1.</translation>
    </message>
    <message id="kiv-run-in-end-restart">
        <source>The phone&apos;s start time was %1 at the beginning and %2 at the end: it was restarted, or its clock was set.</source>
        <extracomment>Two times at which the phone was started</extracomment>
        <translation>Die Startzeit des Telefons war am Anfang %1 und am Ende %2: Es wurde neu gestartet, oder seine Uhr wurde gestellt.</translation>
    </message>
    <message id="kiv-run-in-end-operator">
        <source>The operator ended it.</source>
        <translation>Der Prüfer hat ihn beendet.</translation>
    </message>
    <message id="kiv-run-in-progress">
        <source>Loop %1, test %2 of %3</source>
        <extracomment>The run-in: number of the loop, place of the test in it, number of tests</extracomment>
        <translation>Durchgang %1, Test %2 von %3</translation>
    </message>
    <message id="kiv-test-clock">
        <source>Time left: %1</source>
        <extracomment>Time until the operator is asked how to go on</extracomment>
        <translation>Noch %1</translation>
    </message>
    <message id="kiv-run-in-intro">
        <source>Hours: %1. Meanwhile the phone repeats these tests and needs nobody:</source>
        <extracomment>A number of hours</extracomment>
        <translation>Stunden: %1. So lange wiederholt das Telefon diese Tests und braucht niemanden:</translation>
    </message>
    <message id="kiv-run-in-empty">
        <source>No test of the run-in can run on this phone.</source>
        <translation>Kein Test des Dauerlaufs kann auf diesem Telefon laufen.</translation>
    </message>
    <message id="kiv-run-in-attended">
        <source>These need an operator and stay not tested: %1</source>
        <extracomment>Names of tests</extracomment>
        <translation>Diese brauchen einen Prüfer und bleiben ungeprüft: %1</translation>
    </message>
    <message id="kiv-run-in-stop-on-failure">
        <source>Stop at the first failure</source>
        <translation>Beim ersten Fehler anhalten</translation>
    </message>
    <message id="kiv-run-in-go-on">
        <source>Go on after a failure</source>
        <translation>Nach einem Fehler weitermachen</translation>
    </message>
    <message id="kiv-run-in-limit">
        <source>Stop when the battery reaches %1</source>
        <extracomment>A temperature</extracomment>
        <translation>Anhalten, wenn der Akku %1 erreicht</translation>
    </message>
    <message id="kiv-run-in-no-limit">
        <source>Do not stop for the battery&apos;s temperature</source>
        <translation>Nicht wegen der Akkutemperatur anhalten</translation>
    </message>
    <message id="kiv-run-in-machine-start">
        <source>This phone was started on %1. A run-in that began earlier and left no result was ended by that start.</source>
        <extracomment>A date and time</extracomment>
        <translation>Dieses Telefon wurde am %1 gestartet. Ein Dauerlauf, der davor begann und kein Ergebnis hinterließ, wurde durch diesen Start beendet.</translation>
    </message>
    <message id="kiv-run-in-total">
        <source>Loops: %1, time: %2</source>
        <extracomment>How far the run-in came: loops and time</extracomment>
        <translation>Durchgänge: %1, Zeit: %2</translation>
    </message>
    <message id="kiv-run-in-failure">
        <source>%1, loop %2</source>
        <extracomment>A test that failed, and the number of the loop</extracomment>
        <translation>%1, Durchgang %2</translation>
    </message>
    <message id="kiv-run-in-stop">
        <source>End the run-in</source>
        <translation>Dauerlauf beenden</translation>
    </message>
    <message id="kiv-duration-seconds">
        <source>%1 s</source>
        <extracomment>A duration</extracomment>
        <translation>%1 s</translation>
    </message>
    <message id="kiv-duration-minutes">
        <source>%1 min %2 s</source>
        <extracomment>A duration: minutes and seconds</extracomment>
        <translation>%1 min %2 s</translation>
    </message>
    <message id="kiv-summary-absent">
        <source>Not on this phone: %1</source>
        <extracomment>The features that the phone&apos;s configuration and a look at its hardware rule out</extracomment>
        <translation>Nicht in diesem Telefon: %1</translation>
    </message>
    <message id="kiv-summary-timed-out">
        <source>The time had run out</source>
        <translation>Die Zeit war abgelaufen</translation>
    </message>
    <message id="kiv-summary-totals">
        <source>Attempts: %1, time: %2</source>
        <extracomment>Totals of a sequence: how many attempts, how long</extracomment>
        <translation>Versuche: %1, Zeit: %2</translation>
    </message>
    <message id="kiv-overrule-title">
        <source>Why against this verdict?</source>
        <translation>Warum gegen dieses Urteil?</translation>
    </message>
    <message id="kiv-overrule-text">
        <source>Verdict so far: %1. The summary will show that you decided otherwise.</source>
        <extracomment>The page&apos;s own verdict, from what it measured or what the operator answered</extracomment>
        <translation>Urteil bisher: %1. Die Übersicht wird zeigen, dass Sie anders entschieden haben.</translation>
    </message>
    <message id="kiv-overrule-equipment">
        <source>A tool or an accessory was at fault</source>
        <translation>Ein Werkzeug oder Zubehör war schuld</translation>
    </message>
    <message id="kiv-overrule-limits">
        <source>The limits do not suit this model</source>
        <translation>Die Grenzen passen nicht zu diesem Modell</translation>
    </message>
    <message id="kiv-overrule-perceived">
        <source>I saw, heard or felt it otherwise</source>
        <translation>Ich habe es anders gesehen, gehört oder gefühlt</translation>
    </message>
    <message id="kiv-overrule-supervisor">
        <source>A supervisor decided so</source>
        <translation>Ein Vorgesetzter hat so entschieden</translation>
    </message>
    <message id="kiv-overrule-cancel">
        <source>Keep this verdict</source>
        <translation>Bei diesem Urteil bleiben</translation>
    </message>
    <message id="kiv-skip-title">
        <source>Why is this test skipped?</source>
        <translation>Warum wird dieser Test ausgelassen?</translation>
    </message>
    <message id="kiv-skip-text">
        <source>It stays not tested unless the phone is not meant to have this part.</source>
        <translation>Er gilt als „Nicht geprüft“, außer wenn das Telefon dieses Teil gar nicht haben soll.</translation>
    </message>
    <message id="kiv-skip-equipment">
        <source>An accessory or a tool is missing</source>
        <translation>Ein Zubehör oder Werkzeug fehlt</translation>
    </message>
    <message id="kiv-skip-repair">
        <source>The phone has to be repaired first</source>
        <translation>Das Telefon muss erst repariert werden</translation>
    </message>
    <message id="kiv-skip-later">
        <source>It is tested elsewhere or later</source>
        <translation>Er findet woanders oder später statt</translation>
    </message>
    <message id="kiv-skip-not-fitted">
        <source>This model is not meant to have this part</source>
        <translation>Dieses Modell soll dieses Teil nicht haben</translation>
    </message>
    <message id="kiv-skip-cancel">
        <source>Go on testing</source>
        <translation>Weiter testen</translation>
    </message>
    <message id="kiv-timeout-title">
        <source>Time is up</source>
        <translation>Die Zeit ist um</translation>
    </message>
    <message id="kiv-timeout-text">
        <source>%1 has no verdict yet.</source>
        <extracomment>Name of a test</extracomment>
        <translation>%1 hat noch kein Urteil.</translation>
    </message>
    <message id="kiv-timeout-wait">
        <source>Give it more time</source>
        <translation>Mehr Zeit geben</translation>
    </message>
    <message id="kiv-verdict-skip">
        <source>Skip</source>
        <translation>Auslassen</translation>
    </message>
    <message id="kiv-camera-dark">
        <source>The camera delivers no picture.</source>
        <translation>Die Kamera liefert kein Bild.</translation>
    </message>
    <message id="kiv-camera-instructions">
        <source>Move the phone a little and watch the picture. Tap it to see it large.</source>
        <translation>Bewegen Sie das Telefon ein wenig und beobachten Sie das Bild. Tippen Sie darauf, um es groß zu sehen.</translation>
    </message>
    <message id="kiv-camera-working">
        <source>Looking for the camera</source>
        <translation>Kamera wird gesucht</translation>
    </message>
    <message id="kiv-camera-question">
        <source>What does the picture do when you move the phone?</source>
        <translation>Was tut das Bild, wenn Sie das Telefon bewegen?</translation>
    </message>
    <message id="kiv-camera-live">
        <source>It follows</source>
        <translation>Es bewegt sich mit</translation>
    </message>
    <message id="kiv-camera-still">
        <source>It stands still</source>
        <translation>Es steht still</translation>
    </message>
    <message id="kiv-camera-light">
        <source>Is the light beside the camera on?</source>
        <translation>Leuchtet das Licht neben der Kamera?</translation>
    </message>
    <message id="kiv-camera-stains">
        <source>Are there stains, stripes or wrong colours in the picture?</source>
        <translation>Sind im Bild Flecken, Streifen oder falsche Farben?</translation>
    </message>
    <message id="kiv-camera-stains-bad">
        <source>The picture has stains, stripes or wrong colours.</source>
        <translation>Das Bild hat Flecken, Streifen oder falsche Farben.</translation>
    </message>
    <message id="kiv-camera-sharp">
        <source>Is it sharp?</source>
        <translation>Ist es scharf?</translation>
    </message>
    <message id="kiv-camera-sharp-bad">
        <source>The picture is not sharp.</source>
        <translation>Das Bild ist nicht scharf.</translation>
    </message>
    <message id="kiv-camera-flash">
        <source>The camera lets nobody switch its light. Take a picture with flash in the phone&apos;s own camera program: does it flash?</source>
        <translation>Die Kamera lässt ihr Licht nicht schalten. Machen Sie mit der Kamera-App des Telefons ein Bild mit Blitz: Blitzt es?</translation>
    </message>
    <message id="kiv-camera-flash-bad">
        <source>The camera does not flash.</source>
        <translation>Die Kamera blitzt nicht.</translation>
    </message>
    <message id="kiv-camera-good">
        <source>The operator saw a live picture without faults.</source>
        <translation>Der Prüfer hat ein fehlerfreies Livebild gesehen.</translation>
    </message>
    <message id="kiv-camera-back-missing">
        <source>No back camera was found.</source>
        <translation>Es wurde keine Rückkamera gefunden.</translation>
    </message>
    <message id="kiv-camera-front-missing">
        <source>No front camera was found.</source>
        <translation>Es wurde keine Frontkamera gefunden.</translation>
    </message>
    <message id="kiv-video-stopped">
        <source>The video stopped: %1</source>
        <translation>Das Video blieb stehen: %1</translation>
    </message>
    <message id="kiv-video-missing">
        <source>The system has no decoder for the test video (%1): install one, or test with a video of the phone&apos;s own.</source>
        <extracomment>The names of the codecs that were tried</extracomment>
        <translation>Das System kann das Testvideo nicht dekodieren (%1): Installieren Sie einen Decoder oder prüfen Sie mit einem eigenen Video des Telefons.</translation>
    </message>
    <message id="kiv-video-instructions">
        <source>Watch the video and count the squares that cross the picture.</source>
        <translation>Sehen Sie das Video an und zählen Sie die Quadrate, die durch das Bild laufen.</translation>
    </message>
    <message id="kiv-video-question">
        <source>How many squares crossed the picture?</source>
        <translation>Wie viele Quadrate liefen durch das Bild?</translation>
    </message>
    <message id="kiv-video-jerk">
        <source>Did the picture jerk, tear or show blocks?</source>
        <translation>Hat das Bild geruckelt, war es zerrissen oder zeigte es Klötzchen?</translation>
    </message>
    <message id="kiv-video-jerk-bad">
        <source>The video jerks, tears or shows blocks.</source>
        <translation>Das Video ruckelt, ist zerrissen oder zeigt Klötzchen.</translation>
    </message>
    <message id="kiv-video-good">
        <source>The operator saw the video run smoothly.</source>
        <translation>Der Prüfer hat das Video flüssig laufen sehen.</translation>
    </message>
    <message id="kiv-video-format">
        <source>Decoder</source>
        <translation>Decoder</translation>
    </message>
    <message id="kiv-video-played">
        <source>Played</source>
        <translation>Abgespielt</translation>
    </message>
    <message id="kiv-bluetooth-searched">
        <source>The address is in order, and the radio searched.</source>
        <translation>Die Adresse ist in Ordnung, und das Funkmodul hat gesucht.</translation>
    </message>
    <message id="kiv-wifi-found">
        <source>The address is in order, and the radio was found.</source>
        <translation>Die Adresse ist in Ordnung, und das Funkmodul wurde gefunden.</translation>
    </message>
    <message id="kiv-layout-direction">
        <source>LTR</source>
        <extracomment>&quot;LTR&quot;, or &quot;RTL&quot; for a language that is written from right to left</extracomment>
        <translation>LTR</translation>
    </message>
    <message id="kiv-wifi-working">
        <source>Asking for the Wi-Fi radio</source>
        <translation>Das WLAN-Funkmodul wird abgefragt</translation>
    </message>
    <message id="kiv-run-in-heat-unknown">
        <source>The battery&apos;s temperature cannot be read: heat will not stop the run-in.</source>
        <translation>Die Akkutemperatur ist nicht lesbar: Hitze hält den Dauerlauf nicht an.</translation>
    </message>
    <message id="kiv-run-in-again">
        <source>A test failed meanwhile: the run-in has to be done again.</source>
        <translation>Unterdessen wurde ein Test nicht bestanden: Der Dauerlauf muss wiederholt werden.</translation>
    </message>
    <message id="kiv-summary-failed-loops">
        <source>Failed in the run-in, loop %1</source>
        <extracomment>Numbers of loops</extracomment>
        <translation>Im Dauerlauf nicht bestanden, Durchgang %1</translation>
    </message>
    <message id="kiv-summary-failed-attempts">
        <source>Attempts that failed: %1</source>
        <translation>Nicht bestandene Versuche: %1</translation>
    </message>
    <message id="kiv-led-switching">
        <source>Switching charging</source>
        <translation>Das Laden wird geschaltet</translation>
    </message>
    <message id="kiv-led-step-switch">
        <source>Say what it does while Kiv switches charging off and on</source>
        <translation>Angeben, was sie zeigt, während Kiv das Laden ab- und einschaltet</translation>
    </message>
    <message id="kiv-led-good-switched">
        <source>The operator saw the light while the phone charged (%1), and dark whenever Kiv had switched charging off.</source>
        <extracomment>What the operator saw of the notification light</extracomment>
        <translation>Der Prüfer hat die Leuchte beim Laden gesehen (%1), und dunkel, sooft Kiv das Laden abgeschaltet hatte.</translation>
    </message>
    <message id="kiv-led-by-hand">
        <source>The answers do not fit: perhaps this light does not follow the charging. Look again, and unplug the charger yourself.</source>
        <translation>Die Antworten passen nicht zusammen: Vielleicht folgt diese Leuchte dem Laden nicht. Sehen Sie noch einmal hin und ziehen Sie das Ladegerät selbst ab.</translation>
    </message>
    <message id="kiv-key-volume-up">
        <source>Volume up</source>
        <translation>Lauter-Taste</translation>
    </message>
    <message id="kiv-key-volume-down">
        <source>Volume down</source>
        <translation>Leiser-Taste</translation>
    </message>
    <message id="kiv-key-power">
        <source>Power key</source>
        <translation>Ein-/Aus-Taste</translation>
    </message>
    <message id="kiv-key-camera">
        <source>Camera key</source>
        <translation>Kamerataste</translation>
    </message>
    <message id="kiv-key-focus">
        <source>Camera key, half pressed</source>
        <translation>Kamerataste, halb gedrückt</translation>
    </message>
    <message id="kiv-key-home">
        <source>Home key</source>
        <translation>Home-Taste</translation>
    </message>
    <message id="kiv-key-back">
        <source>Back key</source>
        <translation>Zurück-Taste</translation>
    </message>
    <message id="kiv-key-menu">
        <source>Menu key</source>
        <translation>Menütaste</translation>
    </message>
    <message id="kiv-key-search">
        <source>Search key</source>
        <translation>Suchtaste</translation>
    </message>
    <message id="kiv-list-separator">
        <source>, </source>
        <extracomment>Between the words of a list, with its blank</extracomment>
        <translation>, </translation>
    </message>
    <message id="kiv-charging-round">
        <source>Round %1 of %2</source>
        <extracomment>How many times something has been tried, of how many</extracomment>
        <translation>Durchgang %1 von %2</translation>
    </message>
</context>
</TS>
