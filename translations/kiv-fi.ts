<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi" sourcelanguage="en">
<context>
    <name></name>
    <message id="kiv-back">
        <source>Back</source>
        <translation>Takaisin</translation>
    </message>
    <message id="kiv-reading-missing">
        <source>no reading</source>
        <translation>ei lukemaa</translation>
    </message>
    <message id="kiv-limits-accepted">
        <source>must be %1</source>
        <extracomment>The value that a reading must have</extracomment>
        <translation>oltava ”%1”</translation>
    </message>
    <message id="kiv-limits-range">
        <source>%1 to %2 %3</source>
        <extracomment>Limits of a reading: the lowest, the highest, the unit</extracomment>
        <translation>%1 … %2 %3</translation>
    </message>
    <message id="kiv-limits-minimum">
        <source>at least %1 %2</source>
        <translation>vähintään %1 %2</translation>
    </message>
    <message id="kiv-limits-maximum">
        <source>at most %1 %2</source>
        <translation>enintään %1 %2</translation>
    </message>
    <message id="kiv-reading-pass">
        <source>in order</source>
        <translation>kunnossa</translation>
    </message>
    <message id="kiv-reading-near">
        <source>close to the limit</source>
        <translation>lähellä rajaa</translation>
    </message>
    <message id="kiv-reading-fail">
        <source>out of limits</source>
        <translation>rajojen ulkopuolella</translation>
    </message>
    <message id="kiv-yes">
        <source>yes</source>
        <translation>kyllä</translation>
    </message>
    <message id="kiv-no">
        <source>no</source>
        <translation>ei</translation>
    </message>
    <message id="kiv-step-done">
        <source>done</source>
        <translation>tehty</translation>
    </message>
    <message id="kiv-verdict-passed">
        <source>Passed</source>
        <translation>Hyväksytty</translation>
    </message>
    <message id="kiv-verdict-failed">
        <source>Failed</source>
        <translation>Hylätty</translation>
    </message>
    <message id="kiv-verdict-not-applicable">
        <source>Not applicable</source>
        <translation>Ei koske</translation>
    </message>
    <message id="kiv-verdict-not-tested">
        <source>Not tested</source>
        <translation>Ei testattu</translation>
    </message>
    <message id="kiv-test-touch-self">
        <source>Touch panel self-test</source>
        <translation>Kosketusnäytön itsetesti</translation>
    </message>
    <message id="kiv-test-touch">
        <source>Touch panel</source>
        <translation>Kosketusnäyttö</translation>
    </message>
    <message id="kiv-test-multi-touch">
        <source>Several fingers</source>
        <translation>Monta sormea</translation>
    </message>
    <message id="kiv-test-lcd">
        <source>Display</source>
        <translation>Näyttö</translation>
    </message>
    <message id="kiv-test-lcd-backlight">
        <source>Display backlight</source>
        <translation>Näytön taustavalo</translation>
    </message>
    <message id="kiv-test-light">
        <source>Light sensor</source>
        <translation>Valoanturi</translation>
    </message>
    <message id="kiv-test-prox">
        <source>Proximity sensor</source>
        <translation>Läheisyysanturi</translation>
    </message>
    <message id="kiv-test-gyro">
        <source>Gyroscope and accelerometer</source>
        <translation>Gyroskooppi ja kiihtyvyysanturi</translation>
    </message>
    <message id="kiv-test-ecompass">
        <source>Compass</source>
        <translation>Kompassi</translation>
    </message>
    <message id="kiv-test-hall">
        <source>Cover magnet switch</source>
        <translation>Kannen magneettikytkin</translation>
    </message>
    <message id="kiv-test-fingerprint">
        <source>Fingerprint reader</source>
        <translation>Sormenjälkilukija</translation>
    </message>
    <message id="kiv-test-mic-1">
        <source>Microphone 1</source>
        <translation>Mikrofoni 1</translation>
    </message>
    <message id="kiv-test-mic-2">
        <source>Microphone 2</source>
        <translation>Mikrofoni 2</translation>
    </message>
    <message id="kiv-test-speaker-music">
        <source>Loudspeaker music</source>
        <translation>Kaiutin: musiikki</translation>
    </message>
    <message id="kiv-test-speaker-stereo">
        <source>Loudspeaker left and right</source>
        <translation>Kaiutin: vasen ja oikea</translation>
    </message>
    <message id="kiv-test-receiver">
        <source>Earpiece</source>
        <translation>Kuulokaiutin</translation>
    </message>
    <message id="kiv-test-headset-buttons">
        <source>Headset buttons</source>
        <translation>Kuulokemikrofonin painikkeet</translation>
    </message>
    <message id="kiv-test-headset">
        <source>Headset socket</source>
        <translation>Kuulokeliitäntä</translation>
    </message>
    <message id="kiv-test-headset-music">
        <source>Headset music</source>
        <translation>Kuulokkeet: musiikki</translation>
    </message>
    <message id="kiv-test-front-camera">
        <source>Front camera</source>
        <translation>Etukamera</translation>
    </message>
    <message id="kiv-test-back-camera">
        <source>Back camera</source>
        <translation>Takakamera</translation>
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
        <translation>Älykansi</translation>
    </message>
    <message id="kiv-test-gps">
        <source>Satellite positioning</source>
        <translation>Satelliittipaikannus</translation>
    </message>
    <message id="kiv-test-fm-radio">
        <source>FM radio</source>
        <translation>FM-radio</translation>
    </message>
    <message id="kiv-test-battery">
        <source>Battery</source>
        <translation>Akku</translation>
    </message>
    <message id="kiv-test-usb-charging">
        <source>USB charging</source>
        <translation>Lataus USB:llä</translation>
    </message>
    <message id="kiv-test-led">
        <source>Notification light</source>
        <translation>Ilmoitusvalo</translation>
    </message>
    <message id="kiv-test-button-backlight">
        <source>Key illumination</source>
        <translation>Painikkeiden valo</translation>
    </message>
    <message id="kiv-test-vibrator">
        <source>Vibrator</source>
        <translation>Värinämoottori</translation>
    </message>
    <message id="kiv-test-sim">
        <source>SIM card</source>
        <translation>SIM-kortti</translation>
    </message>
    <message id="kiv-test-sd-card">
        <source>Memory card</source>
        <translation>Muistikortti</translation>
    </message>
    <message id="kiv-test-key">
        <source>Keys</source>
        <translation>Painikkeet</translation>
    </message>
    <message id="kiv-test-usb-otg">
        <source>USB host</source>
        <translation>USB-isäntä</translation>
    </message>
    <message id="kiv-test-video">
        <source>Video playback</source>
        <translation>Videon toisto</translation>
    </message>
    <message id="kiv-test-battery-resistance">
        <source>Battery resistance</source>
        <translation>Akun sisäinen vastus</translation>
    </message>
    <message id="kiv-test-suspend">
        <source>Suspend</source>
        <translation>Lepotila</translation>
    </message>
    <message id="kiv-test-reboot">
        <source>Restart</source>
        <translation>Uudelleenkäynnistys</translation>
    </message>
    <message id="kiv-test-cellular-voice">
        <source>Phone call</source>
        <translation>Puhelu</translation>
    </message>
    <message id="kiv-test-cellular-data">
        <source>Mobile data</source>
        <translation>Mobiilidata</translation>
    </message>
    <message id="kiv-test-mac-addresses">
        <source>Network addresses</source>
        <translation>Verkko-osoitteet</translation>
    </message>
    <message id="kiv-test-calibration">
        <source>Calibration record</source>
        <translation>Kalibrointitiedot</translation>
    </message>
    <message id="kiv-test-sensor-calibration">
        <source>Sensor calibration</source>
        <translation>Anturien kalibrointi</translation>
    </message>
    <message id="kiv-test-system">
        <source>System state</source>
        <translation>Järjestelmän tila</translation>
    </message>
    <message id="kiv-battery-charging">
        <source>Charging</source>
        <translation>Latautuu</translation>
    </message>
    <message id="kiv-battery-discharging">
        <source>Discharging</source>
        <translation>Purkautuu</translation>
    </message>
    <message id="kiv-battery-not-charging">
        <source>Not charging</source>
        <translation>Ei lataudu</translation>
    </message>
    <message id="kiv-battery-full">
        <source>Full</source>
        <translation>Täynnä</translation>
    </message>
    <message id="kiv-battery-unknown">
        <source>Unknown</source>
        <translation>Tuntematon</translation>
    </message>
    <message id="kiv-battery-health-good">
        <source>Good</source>
        <translation>Hyvä</translation>
    </message>
    <message id="kiv-battery-health-overheat">
        <source>Overheated</source>
        <translation>Ylikuumentunut</translation>
    </message>
    <message id="kiv-battery-health-dead">
        <source>Dead</source>
        <translation>Käyttökelvoton</translation>
    </message>
    <message id="kiv-battery-health-over-voltage">
        <source>Over voltage</source>
        <translation>Ylijännite</translation>
    </message>
    <message id="kiv-battery-health-failure">
        <source>Unspecified failure</source>
        <translation>Määrittelemätön vika</translation>
    </message>
    <message id="kiv-battery-health-cold">
        <source>Cold</source>
        <translation>Kylmä</translation>
    </message>
    <message id="kiv-calibration-instructions">
        <source>The calibration record that production wrote is compared with what is asked of this product.</source>
        <translation>Valmistuksessa kirjoitettuja kalibrointitietoja verrataan tämän mallin vaatimuksiin.</translation>
    </message>
    <message id="kiv-calibration-hint">
        <source>Pass unlocks when the record has been read.</source>
        <translation>Hyväksyminen avautuu, kun tiedot on luettu.</translation>
    </message>
    <message id="kiv-calibration-any">
        <source>must not be empty</source>
        <translation>ei saa olla tyhjä</translation>
    </message>
    <message id="kiv-mac-criteria">
        <source>must match %1</source>
        <extracomment>A pattern that an address has to match</extracomment>
        <translation>oltava muotoa %1</translation>
    </message>
    <message id="kiv-calibration-good">
        <source>The record is as it must be.</source>
        <translation>Tiedot ovat niin kuin pitää.</translation>
    </message>
    <message id="kiv-calibration-flag">
        <source>Calibration flag</source>
        <translation>Kalibrointimerkki</translation>
    </message>
    <message id="kiv-calibration-text">
        <source>Calibration text</source>
        <translation>Kalibrointiteksti</translation>
    </message>
    <message id="kiv-mac-instructions">
        <source>The addresses that production gave to the radios are compared with what is asked of this product.</source>
        <translation>Valmistuksessa radioille annettuja osoitteita verrataan tämän mallin vaatimuksiin.</translation>
    </message>
    <message id="kiv-mac-hint">
        <source>Pass unlocks when the addresses have been read.</source>
        <translation>Hyväksyminen avautuu, kun osoitteet on luettu.</translation>
    </message>
    <message id="kiv-mac-missing">
        <source>This phone has neither Bluetooth nor Wi-Fi.</source>
        <translation>Tässä puhelimessa ei ole Bluetoothia eikä WLANia.</translation>
    </message>
    <message id="kiv-mac-good">
        <source>Every address matches its pattern.</source>
        <translation>Jokainen osoite on oikeaa muotoa.</translation>
    </message>
    <message id="kiv-mac-bluetooth">
        <source>Bluetooth address</source>
        <translation>Bluetooth-osoite</translation>
    </message>
    <message id="kiv-mac-wireless">
        <source>Wi-Fi address</source>
        <translation>WLAN-osoite</translation>
    </message>
    <message id="kiv-sensor-accelerometer">
        <source>Accelerometer</source>
        <translation>Kiihtyvyysanturi</translation>
    </message>
    <message id="kiv-sensor-als">
        <source>Ambient light</source>
        <translation>Ympäristön valo</translation>
    </message>
    <message id="kiv-sensor-compass">
        <source>Compass</source>
        <translation>Kompassi</translation>
    </message>
    <message id="kiv-sensor-gyroscope">
        <source>Gyroscope</source>
        <translation>Gyroskooppi</translation>
    </message>
    <message id="kiv-sensor-humidity">
        <source>Humidity</source>
        <translation>Kosteus</translation>
    </message>
    <message id="kiv-sensor-lid">
        <source>Lid</source>
        <translation>Kansi</translation>
    </message>
    <message id="kiv-sensor-magnetometer">
        <source>Magnetometer</source>
        <translation>Magnetometri</translation>
    </message>
    <message id="kiv-sensor-orientation">
        <source>Orientation</source>
        <translation>Asento</translation>
    </message>
    <message id="kiv-sensor-pressure">
        <source>Air pressure</source>
        <translation>Ilmanpaine</translation>
    </message>
    <message id="kiv-sensor-proximity">
        <source>Proximity</source>
        <translation>Läheisyys</translation>
    </message>
    <message id="kiv-sensor-rotation">
        <source>Rotation</source>
        <translation>Kierto</translation>
    </message>
    <message id="kiv-sensor-stepcounter">
        <source>Step counter</source>
        <translation>Askelmittari</translation>
    </message>
    <message id="kiv-sensor-tap">
        <source>Tap</source>
        <translation>Napautus</translation>
    </message>
    <message id="kiv-sensor-temperature">
        <source>Temperature</source>
        <translation>Lämpötila</translation>
    </message>
    <message id="kiv-sensor-instructions">
        <source>Calibrate a sensor, load its stored calibration, or return to the factory&apos;s. Then judge by its values.</source>
        <translation>Kalibroi anturi, lataa sen tallennettu kalibrointi tai palauta tehdasarvot. Arvioi sitten anturin arvot.</translation>
    </message>
    <message id="kiv-sensor-hint">
        <source>Pass unlocks when a sensor has been calibrated.</source>
        <translation>Hyväksyminen avautuu, kun jokin anturi on kalibroitu.</translation>
    </message>
    <message id="kiv-sensor-working">
        <source>Asking the sensors for their calibration</source>
        <translation>Antureilta kysytään kalibrointia</translation>
    </message>
    <message id="kiv-sensor-missing">
        <source>No sensor of this phone can be calibrated.</source>
        <translation>Mitään tämän puhelimen anturia ei voi kalibroida.</translation>
    </message>
    <message id="kiv-sensor-running">
        <source>Calibrating: %1</source>
        <translation>Kalibroidaan: %1</translation>
    </message>
    <message id="kiv-sensor-done">
        <source>Done</source>
        <translation>Valmis</translation>
    </message>
    <message id="kiv-sensor-failed">
        <source>The calibration helper failed. It is not asked again until this page is opened anew.</source>
        <translation>Kalibrointiohjelma epäonnistui. Sitä ei ajeta uudelleen, ennen kuin tämä sivu avataan uudestaan.</translation>
    </message>
    <message id="kiv-sensor-calibrate">
        <source>Calibrate</source>
        <translation>Kalibroi</translation>
    </message>
    <message id="kiv-sensor-restore">
        <source>Stored values</source>
        <translation>Tallennetut arvot</translation>
    </message>
    <message id="kiv-sensor-reset">
        <source>Factory values</source>
        <translation>Tehdasarvot</translation>
    </message>
    <message id="kiv-sensor-type">
        <source>Kind</source>
        <translation>Laji</translation>
    </message>
    <message id="kiv-sensor-representation">
        <source>Values</source>
        <translation>Arvot</translation>
    </message>
    <message id="kiv-system-instructions">
        <source>What the system is busy with. The list of processes appears after five seconds.</source>
        <translation>Mitä järjestelmä tekee. Prosessit näkyvät viiden sekunnin kuluttua.</translation>
    </message>
    <message id="kiv-system-start">
        <source>Running since</source>
        <translation>Käynnissä alkaen</translation>
    </message>
    <message id="kiv-system-load-1">
        <source>Load, 1 minute</source>
        <translation>Kuorma, 1 minuutti</translation>
    </message>
    <message id="kiv-system-load-5">
        <source>Load, 5 minutes</source>
        <translation>Kuorma, 5 minuuttia</translation>
    </message>
    <message id="kiv-system-load-15">
        <source>Load, 15 minutes</source>
        <translation>Kuorma, 15 minuuttia</translation>
    </message>
    <message id="kiv-system-process">
        <source>%1 (%2)</source>
        <extracomment>A process: its name and its number</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message id="kiv-reason-reading">
        <source>%1: %2 (%3)</source>
        <extracomment>A reading that is not as it should be: its name, its value, what it should be</extracomment>
        <translation>%1: %2 (%3)</translation>
    </message>
    <message id="kiv-touch-self-instructions">
        <source>The touch controller tests itself. Keep fingers off the panel.</source>
        <translation>Kosketusnäyttö testaa itsensä. Älä koske siihen.</translation>
    </message>
    <message id="kiv-touch-self-hint">
        <source>Pass unlocks when the controller has answered.</source>
        <translation>Hyväksyminen avautuu, kun kosketusnäyttö on vastannut.</translation>
    </message>
    <message id="kiv-touch-self-missing">
        <source>The touch controller of this phone has no self-test.</source>
        <translation>Tämän puhelimen kosketusnäytössä ei ole itsetestiä.</translation>
    </message>
    <message id="kiv-touch-self-good">
        <source>The controller reports that it is in order.</source>
        <translation>Kosketusnäyttö ilmoittaa olevansa kunnossa.</translation>
    </message>
    <message id="kiv-touch-self-bad">
        <source>The controller reports a fault or gives no report.</source>
        <translation>Kosketusnäyttö ilmoittaa viasta tai ei vastaa.</translation>
    </message>
    <message id="kiv-touch-self-outcome">
        <source>Self-test in order</source>
        <translation>Itsetesti kunnossa</translation>
    </message>
    <message id="kiv-battery-missing">
        <source>No battery was found.</source>
        <translation>Akkua ei löytynyt.</translation>
    </message>
    <message id="kiv-battery-instructions">
        <source>Nothing to do: the phone reads its battery.</source>
        <translation>Mitään ei tarvitse tehdä: puhelin lukee akkunsa tiedot.</translation>
    </message>
    <message id="kiv-battery-hint">
        <source>Pass unlocks when the battery has been read.</source>
        <translation>Hyväksyminen avautuu, kun akku on luettu.</translation>
    </message>
    <message id="kiv-battery-good">
        <source>Every reading with a limit is within it.</source>
        <translation>Jokainen rajattu lukema on rajoissaan.</translation>
    </message>
    <message id="kiv-battery-present">
        <source>Battery in place</source>
        <translation>Akku paikallaan</translation>
    </message>
    <message id="kiv-battery-status">
        <source>State</source>
        <translation>Tila</translation>
    </message>
    <message id="kiv-battery-health">
        <source>Health</source>
        <translation>Kunto</translation>
    </message>
    <message id="kiv-battery-voltage">
        <source>Voltage</source>
        <translation>Jännite</translation>
    </message>
    <message id="kiv-battery-current">
        <source>Current</source>
        <translation>Virta</translation>
    </message>
    <message id="kiv-battery-temperature">
        <source>Temperature</source>
        <translation>Lämpötila</translation>
    </message>
    <message id="kiv-battery-energy">
        <source>Energy left</source>
        <translation>Energiaa jäljellä</translation>
    </message>
    <message id="kiv-battery-wear">
        <source>Capacity compared to new</source>
        <translation>Kapasiteetti uuteen verrattuna</translation>
    </message>
    <message id="kiv-ecompass-good">
        <source>The compass followed a whole turn.</source>
        <translation>Kompassi seurasi täyttä kierrosta.</translation>
    </message>
    <message id="kiv-ecompass-instructions">
        <source>Keep the phone level and turn around once. If it sticks, draw a large eight in the air with the phone first.</source>
        <translation>Pidä puhelin vaakasuorassa ja käänny kerran ympäri. Jos kompassi jumittaa, piirrä puhelimella ensin suuri kahdeksikko ilmaan.</translation>
    </message>
    <message id="kiv-ecompass-hint">
        <source>Pass unlocks when the compass followed a whole turn.</source>
        <translation>Hyväksyminen avautuu, kun kompassi on seurannut täyttä kierrosta.</translation>
    </message>
    <message id="kiv-ecompass-missing">
        <source>No compass was found.</source>
        <translation>Kompassia ei löytynyt.</translation>
    </message>
    <message id="kiv-ecompass-heading">
        <source>Heading</source>
        <translation>Suunta</translation>
    </message>
    <message id="kiv-ecompass-directions">
        <source>Directions seen</source>
        <translation>Havaitut suunnat</translation>
    </message>
    <message id="kiv-ecompass-level">
        <source>Calibration level</source>
        <translation>Kalibroinnin taso</translation>
    </message>
    <message id="kiv-gyro-good">
        <source>Averages of 32 samples are within their limits.</source>
        <translation>32 mittauksen keskiarvot ovat rajoissa.</translation>
    </message>
    <message id="kiv-gyro-instructions">
        <source>Lay the phone flat on a table, the display up, and do not touch the table.</source>
        <translation>Aseta puhelin pöydälle näyttö ylöspäin äläkä koske pöytään.</translation>
    </message>
    <message id="kiv-gyro-hint">
        <source>Pass unlocks when the sensors have been measured.</source>
        <translation>Hyväksyminen avautuu, kun anturit on mitattu.</translation>
    </message>
    <message id="kiv-gyro-missing">
        <source>This phone has neither an accelerometer nor a gyroscope.</source>
        <translation>Tässä puhelimessa ei ole kiihtyvyysanturia eikä gyroskooppia.</translation>
    </message>
    <message id="kiv-gyro-measure">
        <source>It lies flat: measure now</source>
        <translation>Se on vaakasuorassa: mittaa nyt</translation>
    </message>
    <message id="kiv-gyro-progress">
        <source>Measuring: %1 of %2</source>
        <translation>Mitataan: %1/%2</translation>
    </message>
    <message id="kiv-gyro-acceleration-x">
        <source>Acceleration X</source>
        <translation>Kiihtyvyys X</translation>
    </message>
    <message id="kiv-gyro-acceleration-y">
        <source>Acceleration Y</source>
        <translation>Kiihtyvyys Y</translation>
    </message>
    <message id="kiv-gyro-acceleration-z">
        <source>Acceleration Z</source>
        <translation>Kiihtyvyys Z</translation>
    </message>
    <message id="kiv-gyro-rotation-x">
        <source>Rotation X</source>
        <translation>Kierto X</translation>
    </message>
    <message id="kiv-gyro-rotation-y">
        <source>Rotation Y</source>
        <translation>Kierto Y</translation>
    </message>
    <message id="kiv-gyro-rotation-z">
        <source>Rotation Z</source>
        <translation>Kierto Z</translation>
    </message>
    <message id="kiv-gyro-rotation">
        <source>Gyroscope in order</source>
        <translation>Gyroskooppi kunnossa</translation>
    </message>
    <message id="kiv-hall-good">
        <source>The switch saw the magnet come and go.</source>
        <translation>Kytkin havaitsi magneetin tulon ja lähdön.</translation>
    </message>
    <message id="kiv-hall-hint">
        <source>Pass unlocks when the magnet was seen to come and go.</source>
        <translation>Hyväksyminen avautuu, kun magneetti on tullut ja lähtenyt.</translation>
    </message>
    <message id="kiv-hall-missing">
        <source>This phone has no magnet switch.</source>
        <translation>Tässä puhelimessa ei ole magneettikytkintä.</translation>
    </message>
    <message id="kiv-hall-step-close">
        <source>Hold a magnet or a closed cover to the phone</source>
        <translation>Pidä magneettia tai suljettua kantta puhelinta vasten</translation>
    </message>
    <message id="kiv-hall-step-open">
        <source>Take it away</source>
        <translation>Ota se pois</translation>
    </message>
    <message id="kiv-hall-magnet">
        <source>Magnet at the switch</source>
        <translation>Magneetti kytkimellä</translation>
    </message>
    <message id="kiv-headset-headset">
        <source>Headset</source>
        <translation>Kuulokemikrofoni</translation>
    </message>
    <message id="kiv-headset-headphones">
        <source>Headphones without microphone</source>
        <translation>Kuulokkeet ilman mikrofonia</translation>
    </message>
    <message id="kiv-headset-microphone">
        <source>Microphone only</source>
        <translation>Vain mikrofoni</translation>
    </message>
    <message id="kiv-headset-empty">
        <source>Empty</source>
        <translation>Tyhjä</translation>
    </message>
    <message id="kiv-headset-good">
        <source>The socket was seen empty and with a headset.</source>
        <translation>Liitäntä nähtiin tyhjänä ja kuulokemikrofonin kanssa.</translation>
    </message>
    <message id="kiv-headset-hint">
        <source>Pass unlocks when the socket was seen empty and with a headset.</source>
        <translation>Hyväksyminen avautuu, kun liitäntä on nähty tyhjänä ja kuulokemikrofonin kanssa.</translation>
    </message>
    <message id="kiv-headset-missing">
        <source>No headset socket was found.</source>
        <translation>Kuulokeliitäntää ei löytynyt.</translation>
    </message>
    <message id="kiv-headset-step-empty">
        <source>Take everything out of the headset socket</source>
        <translation>Irrota kaikki kuulokeliitännästä</translation>
    </message>
    <message id="kiv-headset-step-plug">
        <source>Plug a headset with a microphone in</source>
        <translation>Kytke kuulokkeet, joissa on mikrofoni</translation>
    </message>
    <message id="kiv-headset-socket">
        <source>Headset socket</source>
        <translation>Kuulokeliitäntä</translation>
    </message>
    <message id="kiv-headset-buttons-media">
        <source>Media</source>
        <extracomment>A key of a headset</extracomment>
        <translation>Media</translation>
    </message>
    <message id="kiv-headset-buttons-play">
        <source>Play/Pause</source>
        <extracomment>A key of a headset</extracomment>
        <translation>Toisto/tauko</translation>
    </message>
    <message id="kiv-headset-buttons-good">
        <source>Every button that the phone knows was pressed and let go.</source>
        <translation>Jokaista puhelimen tuntemaa painiketta painettiin ja se vapautettiin.</translation>
    </message>
    <message id="kiv-headset-buttons-instructions">
        <source>Plug the headset in and press each of its buttons once.</source>
        <translation>Kytke kuulokemikrofoni ja paina sen jokaista painiketta kerran.</translation>
    </message>
    <message id="kiv-headset-buttons-hint">
        <source>Pass unlocks when a button was pressed and let go.</source>
        <translation>Hyväksyminen avautuu, kun jotakin painiketta on painettu ja se on vapautettu.</translation>
    </message>
    <message id="kiv-headset-buttons-missing">
        <source>No headset buttons were found.</source>
        <translation>Kuulokemikrofonin painikkeita ei löytynyt.</translation>
    </message>
    <message id="kiv-headset-buttons-pressed">
        <source>Buttons pressed</source>
        <translation>Painetut painikkeet</translation>
    </message>
    <message id="kiv-headset-buttons-known">
        <source>the phone knows %1</source>
        <extracomment>How many buttons the phone can tell apart</extracomment>
        <translation>puhelin tuntee %1</translation>
    </message>
    <message id="kiv-key-good">
        <source>Every key was pressed and let go.</source>
        <translation>Jokaista painiketta painettiin ja se vapautettiin.</translation>
    </message>
    <message id="kiv-key-instructions">
        <source>Press each key once and let it go.</source>
        <translation>Paina jokaista painiketta kerran ja vapauta se.</translation>
    </message>
    <message id="kiv-key-hint">
        <source>Pass unlocks when every key was pressed and let go.</source>
        <translation>Hyväksyminen avautuu, kun jokaista painiketta on painettu ja se on vapautettu.</translation>
    </message>
    <message id="kiv-key-missing">
        <source>No key of this phone is configured for the test.</source>
        <translation>Tälle puhelimelle ei ole määritetty testattavia painikkeita.</translation>
    </message>
    <message id="kiv-key-held">
        <source>held</source>
        <translation>painettuna</translation>
    </message>
    <message id="kiv-key-waiting">
        <source>not yet pressed</source>
        <translation>ei vielä painettu</translation>
    </message>
    <message id="kiv-light-good">
        <source>The sensor told dark from bright.</source>
        <translation>Anturi erotti pimeän valoisasta.</translation>
    </message>
    <message id="kiv-light-instructions">
        <source>Cover the sensor above the display with a finger, then hold it to the light.</source>
        <translation>Peitä näytön yläpuolella oleva anturi sormella ja pidä sitä sitten valoa kohti.</translation>
    </message>
    <message id="kiv-light-hint">
        <source>Pass unlocks when the sensor told dark from bright.</source>
        <translation>Hyväksyminen avautuu, kun anturi on erottanut pimeän valoisasta.</translation>
    </message>
    <message id="kiv-light-missing">
        <source>No light sensor was found.</source>
        <translation>Valoanturia ei löytynyt.</translation>
    </message>
    <message id="kiv-light-now">
        <source>Brightness</source>
        <translation>Kirkkaus</translation>
    </message>
    <message id="kiv-light-darkest">
        <source>Darkest</source>
        <translation>Pimeimmillään</translation>
    </message>
    <message id="kiv-light-brightest">
        <source>Brightest</source>
        <translation>Kirkkaimmillaan</translation>
    </message>
    <message id="kiv-multi-touch-good">
        <source>The panel told %1 fingers apart.</source>
        <translation>Kosketusnäyttö erotti %1 sormea.</translation>
    </message>
    <message id="kiv-multi-touch-bad">
        <source>The panel did not tell two fingers apart.</source>
        <translation>Kosketusnäyttö ei erottanut kahta sormea.</translation>
    </message>
    <message id="kiv-multi-touch-instructions">
        <source>Put five fingers on the panel at once.</source>
        <translation>Aseta viisi sormea yhtä aikaa näytölle.</translation>
    </message>
    <message id="kiv-multi-touch-hint">
        <source>Pass unlocks when two fingers have been told apart.</source>
        <translation>Hyväksyminen avautuu, kun kaksi sormea on erotettu.</translation>
    </message>
    <message id="kiv-multi-touch-count">
        <source>%1 of %2</source>
        <extracomment>How many fingers were seen, and how many are wanted</extracomment>
        <translation>%1/%2</translation>
    </message>
    <message id="kiv-multi-touch-patience">
        <source>Ends in %1 s without a touch</source>
        <translation>Päättyy %1 s kuluttua ilman kosketusta</translation>
    </message>
    <message id="kiv-multi-touch-seen">
        <source>Fingers at once</source>
        <translation>Sormia yhtä aikaa</translation>
    </message>
    <message id="kiv-prox-good">
        <source>The sensor saw the hand come and go.</source>
        <translation>Anturi havaitsi käden tulon ja lähdön.</translation>
    </message>
    <message id="kiv-prox-hint">
        <source>Pass unlocks when the hand was seen to come and go.</source>
        <translation>Hyväksyminen avautuu, kun käsi on tullut ja lähtenyt.</translation>
    </message>
    <message id="kiv-prox-missing">
        <source>No proximity sensor was found.</source>
        <translation>Läheisyysanturia ei löytynyt.</translation>
    </message>
    <message id="kiv-prox-step-near">
        <source>Hold a hand over the top of the display</source>
        <translation>Pidä kättä näytön yläosan päällä</translation>
    </message>
    <message id="kiv-prox-step-far">
        <source>Take the hand away</source>
        <translation>Ota käsi pois</translation>
    </message>
    <message id="kiv-prox-near">
        <source>Something near</source>
        <translation>Jotakin lähellä</translation>
    </message>
    <message id="kiv-sd-card-none">
        <source>No card</source>
        <translation>Ei korttia</translation>
    </message>
    <message id="kiv-sd-card-unmounted">
        <source>Not mounted</source>
        <translation>Ei liitetty</translation>
    </message>
    <message id="kiv-sd-card-mounting">
        <source>Being mounted</source>
        <translation>Liitetään</translation>
    </message>
    <message id="kiv-sd-card-mounted">
        <source>Mounted</source>
        <translation>Liitetty</translation>
    </message>
    <message id="kiv-sd-card-unmounting">
        <source>Being unmounted</source>
        <translation>Irrotetaan</translation>
    </message>
    <message id="kiv-sd-card-not-created">
        <source>No file could be created on the card.</source>
        <translation>Kortille ei voitu luoda tiedostoa.</translation>
    </message>
    <message id="kiv-sd-card-differs">
        <source>What was read is not what was written.</source>
        <translation>Luettu ei ole sama kuin kirjoitettu.</translation>
    </message>
    <message id="kiv-sd-card-good">
        <source>A file was written, read back and removed.</source>
        <translation>Tiedosto kirjoitettiin, luettiin takaisin ja poistettiin.</translation>
    </message>
    <message id="kiv-sd-card-working">
        <source>Writing and reading the card</source>
        <translation>Korttia kirjoitetaan ja luetaan</translation>
    </message>
    <message id="kiv-sd-card-failed">
        <source>failed</source>
        <translation>epäonnistui</translation>
    </message>
    <message id="kiv-sd-card-instructions-insert">
        <source>Put a memory card into the slot.</source>
        <translation>Aseta muistikortti paikalleen.</translation>
    </message>
    <message id="kiv-sd-card-instructions">
        <source>The card is tested as soon as it is mounted.</source>
        <translation>Kortti testataan heti, kun se on liitetty.</translation>
    </message>
    <message id="kiv-sd-card-hint">
        <source>Pass unlocks when the card has been written and read.</source>
        <translation>Hyväksyminen avautuu, kun kortti on kirjoitettu ja luettu.</translation>
    </message>
    <message id="kiv-sd-card-missing">
        <source>There is no card in the slot.</source>
        <translation>Korttipaikassa ei ole korttia.</translation>
    </message>
    <message id="kiv-page-missing-advice">
        <source>If this model is not meant to have it, choose Skip and say so.</source>
        <translation>Jos tässä mallissa ei kuulu olla tätä osaa, valitse ”Ohita” ja kerro se.</translation>
    </message>
    <message id="kiv-sd-card-mount-failed">
        <source>A card could not be mounted: it may be damaged or have no file system.</source>
        <translation>Korttia ei voitu liittää: se voi olla vioittunut tai ilman tiedostojärjestelmää.</translation>
    </message>
    <message id="kiv-sd-card-state">
        <source>Card</source>
        <translation>Kortti</translation>
    </message>
    <message id="kiv-sd-card-outcome">
        <source>Write and read</source>
        <translation>Kirjoitus ja luku</translation>
    </message>
    <message id="kiv-touch-good">
        <source>Every part of the panel has reacted.</source>
        <translation>Näytön jokainen kohta reagoi.</translation>
    </message>
    <message id="kiv-touch-bad">
        <source>Parts of the panel did not react: %1 of %2</source>
        <translation>Osa näytöstä ei reagoinut: %1/%2</translation>
    </message>
    <message id="kiv-touch-instructions">
        <source>Wipe over the whole panel until no cell is left.</source>
        <translation>Pyyhi koko näyttöä, kunnes ruutuja ei ole jäljellä.</translation>
    </message>
    <message id="kiv-touch-hint">
        <source>Pass unlocks when every cell has been wiped.</source>
        <translation>Hyväksyminen avautuu, kun jokainen ruutu on pyyhitty.</translation>
    </message>
    <message id="kiv-touch-patience">
        <source>Ends in %1 s without a new cell</source>
        <translation>Päättyy %1 s kuluttua ilman uutta ruutua</translation>
    </message>
    <message id="kiv-touch-reacted">
        <source>Cells that reacted</source>
        <translation>Reagoineet ruudut</translation>
    </message>
    <message id="kiv-charging-missing">
        <source>No battery was found, so charging cannot be observed.</source>
        <translation>Akkua ei löytynyt, joten latausta ei voi seurata.</translation>
    </message>
    <message id="kiv-charging-switching-off">
        <source>Switching the charger off</source>
        <translation>Lataus kytketään pois</translation>
    </message>
    <message id="kiv-charging-switching-on">
        <source>Switching the charger on</source>
        <translation>Lataus kytketään päälle</translation>
    </message>
    <message id="kiv-charging-good">
        <source>Charging stopped and resumed as it was switched.</source>
        <translation>Lataus loppui ja jatkui, kuten kytkettiin.</translation>
    </message>
    <message id="kiv-charging-hint">
        <source>Pass unlocks when the charger has been switched off and on.</source>
        <translation>Hyväksyminen avautuu, kun lataus on kytketty pois ja päälle.</translation>
    </message>
    <message id="kiv-charging-step-plug">
        <source>Plug a charger into the USB socket</source>
        <translation>Kytke laturi USB-liitäntään</translation>
    </message>
    <message id="kiv-charging-step-on">
        <source>The phone charges: wait</source>
        <translation>Puhelin latautuu: odota</translation>
    </message>
    <message id="kiv-charging-step-off">
        <source>Kiv switches the charger off: charging stops</source>
        <translation>Kiv kytkee latauksen pois: se loppuu</translation>
    </message>
    <message id="kiv-charging-step-again">
        <source>Kiv switches the charger on: charging resumes</source>
        <translation>Kiv kytkee latauksen päälle: se jatkuu</translation>
    </message>
    <message id="kiv-charging-current-on">
        <source>Current, charger on</source>
        <translation>Virta, lataus päällä</translation>
    </message>
    <message id="kiv-charging-current-off">
        <source>Current, charger off</source>
        <translation>Virta, lataus pois</translation>
    </message>
    <message id="kiv-charging-stops">
        <source>Charging stops</source>
        <translation>Lataus loppuu</translation>
    </message>
    <message id="kiv-charging-resumes">
        <source>Charging resumes</source>
        <translation>Lataus jatkuu</translation>
    </message>
    <message id="kiv-vibrator-good">
        <source>The operator felt as many pulses as were given.</source>
        <translation>Testaaja tunsi yhtä monta värähdystä kuin annettiin.</translation>
    </message>
    <message id="kiv-vibrator-instructions">
        <source>Hold the phone in the hand and count the pulses.</source>
        <translation>Pidä puhelinta kädessä ja laske värähdykset.</translation>
    </message>
    <message id="kiv-vibrator-hint">
        <source>Pass unlocks when you have said how many pulses you felt.</source>
        <translation>Hyväksyminen avautuu, kun olet kertonut, montako värähdystä tunsit.</translation>
    </message>
    <message id="kiv-vibrator-missing">
        <source>No vibrator was found.</source>
        <translation>Värinämoottoria ei löytynyt.</translation>
    </message>
    <message id="kiv-vibrator-question">
        <source>How many pulses did you feel?</source>
        <translation>Montako värähdystä tunsit?</translation>
    </message>
    <message id="kiv-vibrator-again">
        <source>Give the pulses again</source>
        <translation>Toista värähdykset</translation>
    </message>
    <message id="kiv-disclaimer-title">
        <source>Before you begin</source>
        <translation>Ennen kuin aloitat</translation>
    </message>
    <message id="kiv-quit">
        <source>Quit</source>
        <translation>Lopeta</translation>
    </message>
    <message id="kiv-disclaimer-accept">
        <source>I have read this</source>
        <translation>Olen lukenut tämän</translation>
    </message>
    <message id="kiv-ap-name">
        <source>Kiv</source>
        <translation>Kiv</translation>
    </message>
    <message id="kiv-home-subtitle">
        <source>Hardware tests</source>
        <translation>Laitteistotestit</translation>
    </message>
    <message id="kiv-home-settings">
        <source>This phone and settings</source>
        <translation>Tämä puhelin ja asetukset</translation>
    </message>
    <message id="kiv-home-question">
        <source>Which tests do you want to run?</source>
        <translation>Mitkä testit haluat ajaa?</translation>
    </message>
    <message id="kiv-mode-factory">
        <source>Factory sequence</source>
        <translation>Tehdastestit</translation>
    </message>
    <message id="kiv-mode-factory-detail">
        <source>Every part of the phone once, in a fixed order</source>
        <translation>Puhelimen jokainen osa kerran, määrätyssä järjestyksessä</translation>
    </message>
    <message id="kiv-mode-run-in">
        <source>Run-in</source>
        <translation>Sisäänajo</translation>
    </message>
    <message id="kiv-mode-run-in-detail">
        <source>Endurance tests for a new phone</source>
        <translation>Kestotestit uudelle puhelimelle</translation>
    </message>
    <message id="kiv-mode-all">
        <source>All tests</source>
        <translation>Kaikki testit</translation>
    </message>
    <message id="kiv-mode-all-detail">
        <source>Everything this phone has, one by one or in a row</source>
        <translation>Kaikki, mitä tässä puhelimessa on, yksitellen tai peräkkäin</translation>
    </message>
    <message id="kiv-list-subtitle">
        <source>%1 of %2 tests can run here</source>
        <extracomment>How many of the tests of the sequence can be run on this phone</extracomment>
        <translation>%1/%2 testiä voidaan ajaa</translation>
    </message>
    <message id="kiv-list-absent">
        <source>Not on this phone</source>
        <translation>Ei tässä puhelimessa</translation>
    </message>
    <message id="kiv-list-unwritten">
        <source>Not available yet</source>
        <translation>Ei vielä saatavilla</translation>
    </message>
    <message id="kiv-summary">
        <source>Summary</source>
        <translation>Yhteenveto</translation>
    </message>
    <message id="kiv-list-continue">
        <source>Go on, %1 left</source>
        <translation>Jatka, %1 jäljellä</translation>
    </message>
    <message id="kiv-list-start">
        <source>Start</source>
        <translation>Aloita</translation>
    </message>
    <message id="kiv-settings-4g">
        <source>Modem prefers 4G</source>
        <translation>Modeemi suosii 4G:tä</translation>
    </message>
    <message id="kiv-settings-title">
        <source>This phone</source>
        <translation>Tämä puhelin</translation>
    </message>
    <message id="kiv-settings-light">
        <source>Light colours</source>
        <translation>Vaaleat värit</translation>
    </message>
    <message id="kiv-settings-dark">
        <source>Dark colours</source>
        <translation>Tummat värit</translation>
    </message>
    <message id="kiv-settings-disclaimer">
        <source>Read the notice again</source>
        <translation>Lue ilmoitus uudelleen</translation>
    </message>
    <message id="kiv-summary-overruled">
        <source>Overruled by the operator: %2. Verdict before: %1</source>
        <extracomment>The operator&apos;s verdict differs from the page&apos;s own, which follows, with his reason</extracomment>
        <translation>Testaaja päätti toisin: %2. Tulos sitä ennen: %1</translation>
    </message>
    <message id="kiv-summary-attempts">
        <source>Attempts: %1</source>
        <translation>Yrityksiä: %1</translation>
    </message>
    <message id="kiv-summary-incomplete">
        <source>Not complete</source>
        <translation>Kesken</translation>
    </message>
    <message id="kiv-summary-retest">
        <source>Retest failed</source>
        <translation>Testaa hylätyt uudelleen</translation>
    </message>
    <message id="kiv-summary-list">
        <source>Back to the list</source>
        <translation>Takaisin luetteloon</translation>
    </message>
    <message id="kiv-summary-next">
        <source>Next phone</source>
        <translation>Seuraava puhelin</translation>
    </message>
    <message id="kiv-page-broken">
        <source>This test cannot be opened on this phone.</source>
        <translation>Tätä testiä ei voi avata tässä puhelimessa.</translation>
    </message>
    <message id="kiv-test-leave">
        <source>Leave this test</source>
        <translation>Poistu testistä</translation>
    </message>
    <message id="kiv-test-progress">
        <source>%1 of %2, about %3 min left</source>
        <extracomment>Place in the sequence and the time it still takes</extracomment>
        <translation>%1/%2, vielä noin %3 min</translation>
    </message>
    <message id="kiv-test-retry">
        <source>Try again</source>
        <translation>Yritä uudelleen</translation>
    </message>
    <message id="kiv-page-guided">
        <source>You judge this one: the phone cannot see the result itself.</source>
        <translation>Tämän arvioit itse: puhelin ei näe tulosta.</translation>
    </message>
    <message id="kiv-verdict-fail">
        <source>Fail</source>
        <translation>Hylkää</translation>
    </message>
    <message id="kiv-verdict-pass">
        <source>Pass</source>
        <translation>Hyväksy</translation>
    </message>
    <message id="kiv-verdict-hold">
        <source>Hold Pass until it has filled up</source>
        <translation>Pidä Hyväksy painettuna, kunnes se täyttyy</translation>
    </message>
    <message id="kiv-working-probing">
        <source>Checking what this phone has</source>
        <translation>Selvitetään, mitä tässä puhelimessa on</translation>
    </message>
    <message id="kiv-settings-modems">
        <source>Modems</source>
        <translation>Modeemeja</translation>
    </message>
    <message id="kiv-settings-keys">
        <source>Keys to test</source>
        <translation>Testattavat painikkeet</translation>
    </message>
    <message id="kiv-settings-flash">
        <source>Flash of the back camera</source>
        <translation>Takakameran salama</translation>
    </message>
    <message id="kiv-settings-frequency">
        <source>FM frequency of the test</source>
        <translation>Testin FM-taajuus</translation>
    </message>
    <message id="kiv-settings-run-in">
        <source>Length of the run-in</source>
        <translation>Sisäänajon pituus</translation>
    </message>
    <message id="kiv-settings-microphone-top">
        <source>Upper microphone</source>
        <translation>Ylämikrofoni</translation>
    </message>
    <message id="kiv-settings-microphone">
        <source>%1, channel %2</source>
        <extracomment>A microphone of the sound server and its channel</extracomment>
        <translation>%1, kanava %2</translation>
    </message>
    <message id="kiv-settings-microphone-bottom">
        <source>Lower microphone</source>
        <translation>Alamikrofoni</translation>
    </message>
    <message id="kiv-settings-configured">
        <source>As its makers configured it:</source>
        <translation>Valmistajan asetukset:</translation>
    </message>
    <message id="kiv-headset-music-instructions">
        <source>Play each sound and listen to the headset: it must come from the side that its button names.</source>
        <translation>Soita jokainen ääni ja kuuntele kuulokkeita: sen on kuuluttava siltä puolelta, jonka painike nimeää.</translation>
    </message>
    <message id="kiv-headset-music-instructions-plug">
        <source>Plug a headset in.</source>
        <translation>Kytke kuulokkeet.</translation>
    </message>
    <message id="kiv-sound-left">
        <source>Left: low tone</source>
        <translation>Vasen: matala ääni</translation>
    </message>
    <message id="kiv-sound-right">
        <source>Right: high tone</source>
        <translation>Oikea: korkea ääni</translation>
    </message>
    <message id="kiv-sound-tune">
        <source>Play the tune</source>
        <translation>Soita sävelmä</translation>
    </message>
    <message id="kiv-headset-music-plugged">
        <source>Headset</source>
        <translation>Kuulokkeet</translation>
    </message>
    <message id="kiv-speaker-music-instructions">
        <source>Play the tune and listen to the loudspeaker: every tone must be clear, without rattling.</source>
        <translation>Soita sävelmä ja kuuntele kaiutinta: jokaisen äänen on oltava puhdas, eikä se saa säristä.</translation>
    </message>
    <message id="kiv-receiver-instructions">
        <source>Play the tune and hold the phone to your ear: it must come from the earpiece only.</source>
        <translation>Soita sävelmä ja pidä puhelinta korvalla: sävelmä saa kuulua vain kuulokaiuttimesta.</translation>
    </message>
    <message id="kiv-speaker-stereo-instructions">
        <source>Play each sound: it must come from the side that its button names.</source>
        <translation>Soita jokainen ääni: sen on kuuluttava siltä puolelta, jonka painike nimeää.</translation>
    </message>
    <message id="kiv-sound-both">
        <source>Both sides</source>
        <translation>Molemmat puolet</translation>
    </message>
    <message id="kiv-microphone-missing">
        <source>The sound server has no built-in microphone, or its tool does not answer.</source>
        <translation>Äänipalvelulla ei ole sisäistä mikrofonia, tai sen työkalu ei vastaa.</translation>
    </message>
    <message id="kiv-microphone-hint">
        <source>Pass unlocks when a recording has been played back.</source>
        <translation>Hyväksyminen avautuu, kun nauhoitus on toistettu.</translation>
    </message>
    <message id="kiv-microphone-working">
        <source>Looking for the microphone</source>
        <translation>Mikrofonia etsitään</translation>
    </message>
    <message id="kiv-microphone-recording">
        <source>Recording: speak now.</source>
        <translation>Nauhoitetaan: puhu nyt.</translation>
    </message>
    <message id="kiv-microphone-playing">
        <source>Playing what was recorded.</source>
        <translation>Nauhoitus toistetaan.</translation>
    </message>
    <message id="kiv-microphone-record">
        <source>Record four seconds</source>
        <translation>Nauhoita neljä sekuntia</translation>
    </message>
    <message id="kiv-microphone-play">
        <source>Play it again</source>
        <translation>Toista uudelleen</translation>
    </message>
    <message id="kiv-sound-missing">
        <source>The sound server has no main output, or its tool does not answer.</source>
        <translation>Äänipalvelulla ei ole päälähtöä, tai sen työkalu ei vastaa.</translation>
    </message>
    <message id="kiv-sound-hint">
        <source>Pass unlocks when every sound has been played.</source>
        <translation>Hyväksyminen avautuu, kun jokainen ääni on soitettu.</translation>
    </message>
    <message id="kiv-sound-working">
        <source>Setting up the sound output</source>
        <translation>Äänilähtöä asetetaan</translation>
    </message>
    <message id="kiv-system-streams">
        <source>What plays into the sound server</source>
        <translation>Mitä äänipalvelussa soi</translation>
    </message>
    <message id="kiv-system-stream-paused">
        <source>paused</source>
        <translation>tauolla</translation>
    </message>
    <message id="kiv-system-stream-muted">
        <source>muted</source>
        <translation>mykistetty</translation>
    </message>
    <message id="kiv-microphone-bottom">
        <source>Speak into the microphone at the bottom of the phone and listen to the recording.</source>
        <translation>Puhu puhelimen alareunan mikrofoniin ja kuuntele nauhoitus.</translation>
    </message>
    <message id="kiv-microphone-top">
        <source>Speak into the microphone at the top of the phone and listen to the recording.</source>
        <translation>Puhu puhelimen yläreunan mikrofoniin ja kuuntele nauhoitus.</translation>
    </message>
    <message id="kiv-fm-radio-instructions">
        <source>Plug a headset in, whose cable is the antenna, and switch the radio on. A station or at least noise must be heard.</source>
        <translation>Kytke kuulokkeet, joiden johto on antenni, ja kytke radio päälle. Aseman tai ainakin kohinan on kuuluttava.</translation>
    </message>
    <message id="kiv-fm-radio-hint">
        <source>Pass unlocks when the radio has been on.</source>
        <translation>Hyväksyminen avautuu, kun radio on ollut päällä.</translation>
    </message>
    <message id="kiv-fm-radio-antenna">
        <source>Headset as antenna</source>
        <translation>Kuulokkeet antennina</translation>
    </message>
    <message id="kiv-fm-radio-frequency">
        <source>Frequency</source>
        <translation>Taajuus</translation>
    </message>
    <message id="kiv-fm-radio-loop">
        <source>Radio switched to the headset</source>
        <translation>Radio kytketty kuulokkeisiin</translation>
    </message>
    <message id="kiv-fm-radio-off">
        <source>Switch the radio off</source>
        <translation>Kytke radio pois</translation>
    </message>
    <message id="kiv-fm-radio-on">
        <source>Switch the radio on</source>
        <translation>Kytke radio päälle</translation>
    </message>
    <message id="kiv-fm-radio-refused">
        <source>The radio could not be switched on: the audio policy does not answer or does not offer it.</source>
        <translation>Radiota ei voitu kytkeä päälle: ääniohjaus ei vastaa tai ei tarjoa sitä.</translation>
    </message>
    <message id="kiv-microphone-unplayed">
        <source>The sound server did not play the recording: it was restarted while Kiv was running. Restart Kiv.</source>
        <translation>Äänipalvelu ei toistanut nauhoitusta: se on käynnistynyt uudelleen Kivin käynnistyttyä. Käynnistä Kiv uudelleen.</translation>
    </message>
    <message id="kiv-sound-unreached">
        <source>The sound server does not answer. Try again once it runs. If that does not help, restart Kiv.</source>
        <translation>Äänipalvelu ei vastaa. Yritä uudelleen, kun se on käynnissä. Jos se ei auta, käynnistä Kiv uudelleen.</translation>
    </message>
    <message id="kiv-microphone-putting-back">
        <source>Putting the microphone back. This takes up to two minutes while the sound server does not answer.</source>
        <translation>Mikrofonia palautetaan. Se kestää jopa kaksi minuuttia, kun äänipalvelu ei vastaa.</translation>
    </message>
    <message id="kiv-microphone-no-level">
        <source>The phone shows no level. Listen to the recording afterwards.</source>
        <translation>Puhelin ei näytä äänitasoa. Kuuntele nauhoitus sen jälkeen.</translation>
    </message>
    <message id="kiv-microphone-silent">
        <source>Nothing heard? Then the microphone is deaf, or the folder /tmp is full: a recording takes about 800 kB there.</source>
        <translation>Etkö kuullut mitään? Silloin mikrofoni ei toimi tai kansio /tmp on täynnä: nauhoitus vie siellä noin 800 kB.</translation>
    </message>
    <message id="kiv-side-left">
        <source>Left</source>
        <translation>Vasen</translation>
    </message>
    <message id="kiv-side-right">
        <source>Right</source>
        <translation>Oikea</translation>
    </message>
    <message id="kiv-side-none">
        <source>Neither, or I cannot tell</source>
        <translation>Ei kumpikaan, tai en osaa sanoa</translation>
    </message>
    <message id="kiv-sides-wrong">
        <source>A tone played on the side &quot;%1&quot; was heard as &quot;%2&quot;</source>
        <extracomment>From which side a tone came, and from which the operator heard it</extracomment>
        <translation>Soitettu puoli: ”%1”, kuultu puoli: ”%2”</translation>
    </message>
    <message id="kiv-sides-good">
        <source>The operator heard every tone from its side: %1 of %1</source>
        <translation>Jokainen ääni kuultiin omalta puoleltaan: %1/%1</translation>
    </message>
    <message id="kiv-sides-question">
        <source>From which side does the tone come? Question %1 of %2</source>
        <extracomment>Number of this question and of all of them</extracomment>
        <translation>Kummalta puolelta ääni tulee? Kysymys %1/%2</translation>
    </message>
    <message id="kiv-sides-again">
        <source>Play the tone again</source>
        <translation>Soita ääni uudelleen</translation>
    </message>
    <message id="kiv-sides-play">
        <source>Play the tone</source>
        <translation>Soita ääni</translation>
    </message>
    <message id="kiv-sound-unswitched">
        <source>The sound server does not switch to the output %1.</source>
        <extracomment>The name of the output in the sound server</extracomment>
        <translation>Äänipalvelu ei vaihda lähtöön %1.</translation>
    </message>
    <message id="kiv-sides-hint">
        <source>Answer from which side each tone comes: the answers are the verdict.</source>
        <translation>Vastaa, kummalta puolelta kukin ääni tulee: vastaukset ratkaisevat.</translation>
    </message>
    <message id="kiv-fm-radio-working">
        <source>Waiting for the audio policy</source>
        <translation>Odotetaan ääniohjausta</translation>
    </message>
    <message id="kiv-gps-satellite">
        <source>Satellite %1, %2 dB</source>
        <extracomment>A satellite: its number, its strength in decibels</extracomment>
        <translation>Satelliitti %1, %2 dB</translation>
    </message>
    <message id="kiv-gps-used">
        <source>in use</source>
        <translation>käytössä</translation>
    </message>
    <message id="kiv-gps-more">
        <source>Weaker ones that are not shown: %1</source>
        <extracomment>How many satellites have no bar</extracomment>
        <translation>Heikompia, joita ei näytetä: %1</translation>
    </message>
    <message id="kiv-gps-sky">
        <source>Places of the satellites in the sky</source>
        <translation>Satelliittien paikat taivaalla</translation>
    </message>
    <message id="kiv-gps-north">
        <source>N</source>
        <extracomment>North, one or two letters</extracomment>
        <translation>P</translation>
    </message>
    <message id="kiv-gps-east">
        <source>E</source>
        <extracomment>East, one or two letters</extracomment>
        <translation>I</translation>
    </message>
    <message id="kiv-gps-south">
        <source>S</source>
        <extracomment>South, one or two letters</extracomment>
        <translation>E</translation>
    </message>
    <message id="kiv-gps-west">
        <source>W</source>
        <extracomment>West, one or two letters</extracomment>
        <translation>L</translation>
    </message>
    <message id="kiv-test-radios">
        <source>Radio switches</source>
        <translation>Radiokytkimet</translation>
    </message>
    <message id="kiv-bluetooth-off">
        <source>Bluetooth is switched off.</source>
        <translation>Bluetooth on pois päältä.</translation>
    </message>
    <message id="kiv-bluetooth-no-radio">
        <source>No Bluetooth radio was found.</source>
        <translation>Bluetooth-radiota ei löytynyt.</translation>
    </message>
    <message id="kiv-bluetooth-no-service">
        <source>The Bluetooth service is in trouble or not there.</source>
        <translation>Bluetooth-palvelussa on häiriö tai se puuttuu.</translation>
    </message>
    <message id="kiv-network-none">
        <source>no network</source>
        <translation>ei verkkoa</translation>
    </message>
    <message id="kiv-network-emergency">
        <source>emergency calls only</source>
        <translation>vain hätäpuhelut</translation>
    </message>
    <message id="kiv-network-searching">
        <source>searching</source>
        <translation>etsii</translation>
    </message>
    <message id="kiv-network-busy">
        <source>busy</source>
        <translation>varattu</translation>
    </message>
    <message id="kiv-network-denied">
        <source>refused by the network</source>
        <translation>verkko torjui</translation>
    </message>
    <message id="kiv-network-home">
        <source>connected</source>
        <translation>yhdistetty</translation>
    </message>
    <message id="kiv-network-roaming">
        <source>connected, roaming</source>
        <translation>yhdistetty, verkkovierailu</translation>
    </message>
    <message id="kiv-switch-on">
        <source>on</source>
        <translation>päällä</translation>
    </message>
    <message id="kiv-switch-off">
        <source>off</source>
        <translation>pois</translation>
    </message>
    <message id="kiv-radios-instructions">
        <source>Compare these with the phone&apos;s settings. A switch that is moved there must move here, too.</source>
        <translation>Vertaa näitä puhelimen asetuksiin. Siellä käännetyn kytkimen on käännyttävä myös tässä.</translation>
    </message>
    <message id="kiv-radios-hint">
        <source>Pass unlocks when the mode-control service has answered.</source>
        <translation>Hyväksyminen avautuu, kun tilanohjauspalvelu on vastannut.</translation>
    </message>
    <message id="kiv-radios-lost">
        <source>The mode-control service does not answer.</source>
        <translation>Tilanohjauspalvelu ei vastaa.</translation>
    </message>
    <message id="kiv-radios-service">
        <source>Mode-control service</source>
        <translation>Tilanohjauspalvelu</translation>
    </message>
    <message id="kiv-service-answers">
        <source>answers</source>
        <translation>vastaa</translation>
    </message>
    <message id="kiv-service-silent">
        <source>does not answer</source>
        <translation>ei vastaa</translation>
    </message>
    <message id="kiv-radios-nfc">
        <source>NFC</source>
        <translation>NFC</translation>
    </message>
    <message id="kiv-radios-fm-transmitter">
        <source>FM transmitter</source>
        <translation>FM-lähetin</translation>
    </message>
    <message id="kiv-radios-4g">
        <source>4G preferred by the modem settings</source>
        <translation>4G ensisijainen modeemin asetuksissa</translation>
    </message>
    <message id="kiv-system-duration">
        <source>%1 h %2 min %3 s</source>
        <extracomment>A duration: hours, minutes, seconds</extracomment>
        <translation>%1 h %2 min %3 s</translation>
    </message>
    <message id="kiv-system-up">
        <source>Switched on for</source>
        <translation>Päällä</translation>
    </message>
    <message id="kiv-system-asleep">
        <source>Asleep meanwhile</source>
        <translation>Siitä lepotilassa</translation>
    </message>
    <message id="kiv-bluetooth-working">
        <source>Asking for the Bluetooth radio</source>
        <translation>Kysytään Bluetooth-radiolta</translation>
    </message>
    <message id="kiv-bluetooth-good">
        <source>The address is in order, and the radio found a device: %1</source>
        <translation>Osoite on kunnossa, ja radio löysi laitteen: %1</translation>
    </message>
    <message id="kiv-bluetooth-instructions-blind">
        <source>The address is compared with its pattern. Then see in the phone&apos;s settings whether it finds devices.</source>
        <translation>Osoitetta verrataan kaavaansa. Katso sitten puhelimen asetuksista, löytääkö se laitteita.</translation>
    </message>
    <message id="kiv-bluetooth-instructions">
        <source>Put a device nearby that can be found, such as a headset that is being paired.</source>
        <translation>Aseta lähelle laite, joka voidaan löytää, kuten pariliitostilassa oleva kuuloke.</translation>
    </message>
    <message id="kiv-bluetooth-hint">
        <source>Pass unlocks when the address is in order and the radio has searched.</source>
        <translation>Hyväksyminen avautuu, kun osoite on kunnossa ja radio on etsinyt.</translation>
    </message>
    <message id="kiv-bluetooth-missing">
        <source>This phone has no Bluetooth.</source>
        <translation>Tässä puhelimessa ei ole Bluetoothia.</translation>
    </message>
    <message id="kiv-radio-blind">
        <source>This phone&apos;s system does not tell anything about the radio.</source>
        <translation>Tämän puhelimen järjestelmä ei kerro mitään radiosta.</translation>
    </message>
    <message id="kiv-bluetooth-nobody">
        <source>The radio searched, but no device answered.</source>
        <translation>Radio etsi, mutta mikään laite ei vastannut.</translation>
    </message>
    <message id="kiv-bluetooth-again">
        <source>Search again</source>
        <translation>Etsi uudelleen</translation>
    </message>
    <message id="kiv-bluetooth-searching">
        <source>Searching</source>
        <translation>Etsii</translation>
    </message>
    <message id="kiv-radio-found">
        <source>Radio found</source>
        <translation>Radio löytyi</translation>
    </message>
    <message id="kiv-bluetooth-devices">
        <source>Devices found</source>
        <translation>Löydettyjä laitteita</translation>
    </message>
    <message id="kiv-gps-status-error">
        <source>in trouble or not there</source>
        <translation>häiriössä tai poissa</translation>
    </message>
    <message id="kiv-gps-status-unavailable">
        <source>cannot position</source>
        <translation>ei voi paikantaa</translation>
    </message>
    <message id="kiv-gps-status-acquiring">
        <source>looking for the position</source>
        <translation>etsii sijaintia</translation>
    </message>
    <message id="kiv-gps-status-available">
        <source>knows the position</source>
        <translation>tietää sijainnin</translation>
    </message>
    <message id="kiv-gps-status-unknown">
        <source>unknown (%1)</source>
        <extracomment>The service reports a state that has no name</extracomment>
        <translation>tuntematon (%1)</translation>
    </message>
    <message id="kiv-gps-good">
        <source>A satellite was in use after %1 s.</source>
        <translation>Satelliitti oli käytössä %1 s kuluttua.</translation>
    </message>
    <message id="kiv-gps-instructions">
        <source>Go outdoors or to a window. The first satellite may take some minutes.</source>
        <translation>Mene ulos tai ikkunan ääreen. Ensimmäiseen satelliittiin voi kulua minuutteja.</translation>
    </message>
    <message id="kiv-gps-hint-position">
        <source>Pass unlocks when the positioning service knows the position.</source>
        <translation>Hyväksyminen avautuu, kun paikannuspalvelu tietää sijainnin.</translation>
    </message>
    <message id="kiv-gps-hint">
        <source>Pass unlocks when a satellite is in use.</source>
        <translation>Hyväksyminen avautuu, kun satelliitti on käytössä.</translation>
    </message>
    <message id="kiv-gps-missing">
        <source>This phone has no satellite receiver.</source>
        <translation>Tässä puhelimessa ei ole satelliittivastaanotinta.</translation>
    </message>
    <message id="kiv-gps-no-source">
        <source>The system offers no view of the satellites, only the state of the positioning service.</source>
        <translation>Järjestelmä ei näytä satelliitteja, vain paikannuspalvelun tilan.</translation>
    </message>
    <message id="kiv-gps-error">
        <source>The positioning service is in trouble or does not answer.</source>
        <translation>Paikannuspalvelussa on häiriö tai se ei vastaa.</translation>
    </message>
    <message id="kiv-gps-unavailable">
        <source>The positioning service cannot position. Is positioning switched on in the phone&apos;s settings?</source>
        <translation>Paikannuspalvelu ei voi paikantaa. Onko paikannus päällä puhelimen asetuksissa?</translation>
    </message>
    <message id="kiv-gps-source-error">
        <source>The receiver reports an error.</source>
        <translation>Vastaanotin ilmoittaa virheestä.</translation>
    </message>
    <message id="kiv-gps-silent">
        <source>The receiver has not reported for %1 s.</source>
        <translation>Vastaanotin ei ole ilmoittanut mitään %1 sekuntiin.</translation>
    </message>
    <message id="kiv-gps-legend">
        <source>in use for the position</source>
        <translation>käytössä sijaintia varten</translation>
    </message>
    <message id="kiv-gps-status">
        <source>Positioning service</source>
        <translation>Paikannuspalvelu</translation>
    </message>
    <message id="kiv-gps-in-view">
        <source>Satellites in view</source>
        <translation>Satelliitteja näkyvissä</translation>
    </message>
    <message id="kiv-gps-in-use">
        <source>Satellites in use</source>
        <translation>Satelliitteja käytössä</translation>
    </message>
    <message id="kiv-gps-first-seen">
        <source>First satellite in view after</source>
        <translation>Aika 1. satelliitin näkymiseen</translation>
    </message>
    <message id="kiv-gps-first-used">
        <source>First satellite in use after</source>
        <translation>Aika 1. satelliitin käyttöön</translation>
    </message>
    <message id="kiv-sim-working">
        <source>Asking the telephony service</source>
        <translation>Kysytään puhelupalvelulta</translation>
    </message>
    <message id="kiv-sim-silent">
        <source>The telephony service reports no modem, or does not answer.</source>
        <translation>Puhelupalvelu ei ilmoita modeemista tai ei vastaa.</translation>
    </message>
    <message id="kiv-sim-good">
        <source>Every SIM card could be read.</source>
        <translation>Jokainen SIM-kortti oli luettavissa.</translation>
    </message>
    <message id="kiv-sim-instructions-blind">
        <source>See in the phone&apos;s settings whether it knows its SIM card.</source>
        <translation>Katso puhelimen asetuksista, tunteeko se SIM-korttinsa.</translation>
    </message>
    <message id="kiv-sim-instructions">
        <source>Every SIM slot needs a card. One that is locked has to be unlocked first.</source>
        <translation>Jokaiseen SIM-paikkaan tarvitaan kortti. Lukittu kortti on ensin avattava.</translation>
    </message>
    <message id="kiv-sim-hint">
        <source>Pass unlocks when a SIM card has been read.</source>
        <translation>Hyväksyminen avautuu, kun SIM-kortti on luettu.</translation>
    </message>
    <message id="kiv-sim-missing">
        <source>This phone has no modem.</source>
        <translation>Tässä puhelimessa ei ole modeemia.</translation>
    </message>
    <message id="kiv-sim-cardless">
        <source>A SIM card is not there, is locked or cannot be read. Look after it, then ask again.</source>
        <translation>SIM-kortti puuttuu, on lukittu tai lukukelvoton. Tarkista se ja kysy sitten uudelleen.</translation>
    </message>
    <message id="kiv-sim-again">
        <source>Ask again</source>
        <translation>Kysy uudelleen</translation>
    </message>
    <message id="kiv-sim-card">
        <source>SIM card read</source>
        <translation>SIM-kortti luettu</translation>
    </message>
    <message id="kiv-sim-card-number">
        <source>SIM card %1 read</source>
        <translation>SIM-kortti %1 luettu</translation>
    </message>
    <message id="kiv-sim-home">
        <source>Network of the card</source>
        <extracomment>The country and the network, both as numbers, that a SIM card belongs to</extracomment>
        <translation>Kortin verkko</translation>
    </message>
    <message id="kiv-sim-state">
        <source>Mobile network</source>
        <translation>Matkapuhelinverkko</translation>
    </message>
    <message id="kiv-network-name">
        <source>Network</source>
        <translation>Verkko</translation>
    </message>
    <message id="kiv-network-strength">
        <source>Signal strength</source>
        <translation>Signaalin voimakkuus</translation>
    </message>
    <message id="kiv-sim-cards">
        <source>SIM cards read</source>
        <translation>Luettuja SIM-kortteja</translation>
    </message>
    <message id="kiv-usb-otg-good">
        <source>A drive was seen to come and go.</source>
        <translation>Asema havaittiin kytketyksi ja irrotetuksi.</translation>
    </message>
    <message id="kiv-usb-otg-hint">
        <source>Pass unlocks when a drive was seen to come and go.</source>
        <translation>Hyväksyminen avautuu, kun asema on kytketty ja irrotettu.</translation>
    </message>
    <message id="kiv-usb-otg-missing">
        <source>This phone cannot take USB devices.</source>
        <translation>Tähän puhelimeen ei voi liittää USB-laitteita.</translation>
    </message>
    <message id="kiv-usb-otg-step-plug">
        <source>Plug a USB drive in, with the adapter. If one is in already, pull it out first</source>
        <translation>Kytke USB-asema sovittimella. Jos asema on jo kytkettynä, irrota se ensin</translation>
    </message>
    <message id="kiv-usb-otg-step-pull">
        <source>Pull it out</source>
        <translation>Irrota se</translation>
    </message>
    <message id="kiv-usb-otg-late-gone">
        <source>The system has not announced that the drive is gone.</source>
        <translation>Järjestelmä ei ole ilmoittanut aseman irrottamisesta.</translation>
    </message>
    <message id="kiv-usb-otg-late">
        <source>The system has not announced any drive.</source>
        <translation>Järjestelmä ei ole ilmoittanut mistään asemasta.</translation>
    </message>
    <message id="kiv-usb-otg-drive">
        <source>USB drive</source>
        <translation>USB-asema</translation>
    </message>
    <message id="kiv-usb-otg-there">
        <source>plugged in</source>
        <translation>kytketty</translation>
    </message>
    <message id="kiv-usb-otg-none">
        <source>none seen</source>
        <translation>ei havaittu</translation>
    </message>
    <message id="kiv-wifi-good">
        <source>The address is in order, and the radio is connected to a network.</source>
        <translation>Osoite on kunnossa, ja radio on yhteydessä verkkoon.</translation>
    </message>
    <message id="kiv-wifi-instructions-blind">
        <source>The address is compared with its pattern. Then see in the phone&apos;s settings whether it finds networks.</source>
        <translation>Osoitetta verrataan kaavaansa. Katso sitten puhelimen asetuksista, löytääkö se verkkoja.</translation>
    </message>
    <message id="kiv-wifi-instructions">
        <source>Switch Wi-Fi on and connect the phone to a network: the test passes by itself.</source>
        <translation>Kytke WLAN päälle ja yhdistä puhelin verkkoon: testi hyväksytään itsestään.</translation>
    </message>
    <message id="kiv-wifi-hint">
        <source>Pass unlocks when the address is in order and the radio was found.</source>
        <translation>Hyväksyminen avautuu, kun osoite on kunnossa ja radio löytyi.</translation>
    </message>
    <message id="kiv-wifi-missing">
        <source>This phone has no Wi-Fi.</source>
        <translation>Tässä puhelimessa ei ole WLANia.</translation>
    </message>
    <message id="kiv-wifi-unconnected">
        <source>The radio is there, but not connected. Without a network in reach, judge by the networks that the settings list.</source>
        <translation>Radio on olemassa, mutta ei yhdistetty. Jos verkkoa ei ole lähellä, päätä asetusten luettelemien verkkojen perusteella.</translation>
    </message>
    <message id="kiv-wifi-connection">
        <source>Connection</source>
        <translation>Yhteys</translation>
    </message>
    <message id="kiv-zel-good">
        <source>The cover was seen to come and go. Its identifier: %1</source>
        <translation>Kansi havaittiin kiinnitetyksi ja irrotetuksi. Sen tunnus: %1</translation>
    </message>
    <message id="kiv-zel-nameless">
        <source>The cover was seen to come and go, but it did not tell its identifier.</source>
        <translation>Kansi havaittiin kiinnitetyksi ja irrotetuksi, mutta se ei kertonut tunnustaan.</translation>
    </message>
    <message id="kiv-zel-hint">
        <source>Pass unlocks when a cover was seen to come and go.</source>
        <translation>Hyväksyminen avautuu, kun kansi on kiinnitetty ja irrotettu.</translation>
    </message>
    <message id="kiv-zel-missing">
        <source>This phone has no smart-cover service.</source>
        <translation>Tässä puhelimessa ei ole älykansipalvelua.</translation>
    </message>
    <message id="kiv-zel-lost">
        <source>The smart-cover service does not answer.</source>
        <translation>Älykansipalvelu ei vastaa.</translation>
    </message>
    <message id="kiv-zel-not-ready">
        <source>The smart-cover service is not ready to recognise covers yet.</source>
        <translation>Älykansipalvelu ei ole vielä valmis tunnistamaan kansia.</translation>
    </message>
    <message id="kiv-zel-step-dock">
        <source>Put a smart cover on the phone</source>
        <translation>Kiinnitä älykansi puhelimeen</translation>
    </message>
    <message id="kiv-zel-step-remove">
        <source>Take it off again</source>
        <translation>Irrota se</translation>
    </message>
    <message id="kiv-zel-service">
        <source>Smart-cover service</source>
        <translation>Älykansipalvelu</translation>
    </message>
    <message id="kiv-zel-ready">
        <source>Ready for covers</source>
        <translation>Valmis kansille</translation>
    </message>
    <message id="kiv-zel-docked">
        <source>Cover on the phone</source>
        <translation>Kansi puhelimessa</translation>
    </message>
    <message id="kiv-zel-identifier">
        <source>Identifier of the cover</source>
        <translation>Kannen tunnus</translation>
    </message>
    <message id="kiv-sim-modem-count">
        <source>Modems</source>
        <translation>Modeemeja</translation>
    </message>
    <message id="kiv-challenge-mistake">
        <source>Shown: %1, answered: %2</source>
        <extracomment>A wrong answer: what was shown and what the operator said</extracomment>
        <translation>Näytetty: %1, vastattu: %2</translation>
    </message>
    <message id="kiv-challenge-second">
        <source>That was not right. You have one more try, with something new.</source>
        <translation>Se ei ollut oikein. Jäljellä on yksi yritys, uudella arvolla.</translation>
    </message>
    <message id="kiv-challenge-round">
        <source>Answer %1 of %2</source>
        <extracomment>How far the operator is with a question that is asked several times</extracomment>
        <translation>Vastaus %1/%2</translation>
    </message>
    <message id="kiv-checks-position">
        <source>Question %1 of %2</source>
        <extracomment>How far the operator is with a list of questions</extracomment>
        <translation>Kysymys %1/%2</translation>
    </message>
    <message id="kiv-checks-yes">
        <source>Yes</source>
        <translation>Kyllä</translation>
    </message>
    <message id="kiv-checks-no">
        <source>No</source>
        <translation>Ei</translation>
    </message>
    <message id="kiv-data-missing">
        <source>No modem was found, so there is no mobile data.</source>
        <translation>Modeemia ei löytynyt, joten mobiilidataa ei ole.</translation>
    </message>
    <message id="kiv-data-instructions">
        <source>Switch Wi-Fi off and mobile data on, open a web page that was not open before, and switch Wi-Fi on again.</source>
        <translation>Kytke WLAN pois ja mobiilidata päälle, avaa verkkosivu, joka ei ollut aiemmin auki, ja kytke WLAN takaisin päälle.</translation>
    </message>
    <message id="kiv-data-note">
        <source>Kiv cannot tell over which radio a page comes. Where the phone has two SIM cards, try each.</source>
        <translation>Kiv ei näe, minkä radion kautta sivu tulee. Jos SIM-kortteja on kaksi, kokeile kummallakin.</translation>
    </message>
    <message id="kiv-data-good">
        <source>The operator loaded a web page over mobile data.</source>
        <translation>Testaaja latasi verkkosivun mobiilidatalla.</translation>
    </message>
    <message id="kiv-data-loaded">
        <source>SIM card %1: did the web page load without Wi-Fi?</source>
        <translation>SIM-kortti %1: latautuiko verkkosivu ilman WLANia?</translation>
    </message>
    <message id="kiv-data-loaded-bad">
        <source>SIM card %1: nothing was loaded over mobile data.</source>
        <translation>SIM-kortti %1: mobiilidatalla ei latautunut mitään.</translation>
    </message>
    <message id="kiv-data-broke">
        <source>SIM card %1: did the connection break off meanwhile?</source>
        <translation>SIM-kortti %1: katkesiko yhteys sillä välin?</translation>
    </message>
    <message id="kiv-data-broke-bad">
        <source>SIM card %1: the mobile connection broke off.</source>
        <translation>SIM-kortti %1: mobiiliyhteys katkesi.</translation>
    </message>
    <message id="kiv-voice-heard">
        <source>SIM card %1: could you hear the other end?</source>
        <translation>SIM-kortti %1: kuulitko vastapuolen?</translation>
    </message>
    <message id="kiv-voice-heard-bad">
        <source>SIM card %1: the other end could not be heard.</source>
        <translation>SIM-kortti %1: vastapuolta ei kuulunut.</translation>
    </message>
    <message id="kiv-voice-clear">
        <source>SIM card %1: did the call break off, crackle or echo?</source>
        <translation>SIM-kortti %1: katkesiko, rätisikö tai kaikuiko puhelu?</translation>
    </message>
    <message id="kiv-voice-clear-bad">
        <source>SIM card %1: the call broke off, crackled or echoed.</source>
        <translation>SIM-kortti %1: puhelu katkesi, rätisi tai kaikui.</translation>
    </message>
    <message id="kiv-voice-spoke">
        <source>SIM card %1: could the other end hear you?</source>
        <translation>SIM-kortti %1: kuuliko vastapuoli sinut?</translation>
    </message>
    <message id="kiv-voice-spoke-bad">
        <source>SIM card %1: the other end heard nothing.</source>
        <translation>SIM-kortti %1: vastapuoli ei kuullut mitään.</translation>
    </message>
    <message id="kiv-voice-missing">
        <source>No modem was found, so no call can be made.</source>
        <translation>Modeemia ei löytynyt, joten puhelua ei voi soittaa.</translation>
    </message>
    <message id="kiv-voice-instructions">
        <source>Call a second phone or a test line with the phone&apos;s own dialler, speak for a moment, and hang up.</source>
        <translation>Soita puhelimen omalla puhelusovelluksella toiseen puhelimeen tai testinumeroon, puhu hetki ja lopeta puhelu.</translation>
    </message>
    <message id="kiv-voice-note">
        <source>Kiv makes no calls by itself. Where the phone has two SIM cards, call with each.</source>
        <translation>Kiv ei soita itse. Jos SIM-kortteja on kaksi, soita kummallakin.</translation>
    </message>
    <message id="kiv-voice-good">
        <source>The operator made a call and both ends heard each other.</source>
        <translation>Testaaja soitti puhelun, ja molemmat osapuolet kuulivat toisensa.</translation>
    </message>
    <message id="kiv-guided-hint">
        <source>Pass unlocks when you have answered the questions.</source>
        <translation>Hyväksyminen avautuu, kun olet vastannut kysymyksiin.</translation>
    </message>
    <message id="kiv-reboot-missing">
        <source>The system does not tell when it was started.</source>
        <translation>Järjestelmä ei kerro, milloin se käynnistettiin.</translation>
    </message>
    <message id="kiv-reboot-instructions">
        <source>Restart the phone with its power key or its menu. When it is up again, start Kiv and open this test anew.</source>
        <translation>Käynnistä puhelin uudelleen virtapainikkeella tai valikosta. Kun se on käynnissä, käynnistä Kiv ja avaa tämä testi uudelleen.</translation>
    </message>
    <message id="kiv-reboot-hint">
        <source>Pass unlocks when the phone was restarted a short while ago and you have answered the questions.</source>
        <translation>Hyväksyminen avautuu, kun puhelin on äskettäin käynnistetty uudelleen ja olet vastannut kysymyksiin.</translation>
    </message>
    <message id="kiv-reboot-note">
        <source>A restart ends Kiv, and the verdicts that are not kept elsewhere are gone: do this test first or by itself.</source>
        <translation>Uudelleenkäynnistys sulkee Kivin, ja muualle tallentamattomat tulokset katoavat: tee tämä testi ensin tai erikseen.</translation>
    </message>
    <message id="kiv-reboot-first">
        <source>Did the phone come up at the first try, up to its usual screen?</source>
        <translation>Käynnistyikö puhelin ensimmäisellä yrityksellä tavalliseen näkymäänsä asti?</translation>
    </message>
    <message id="kiv-reboot-first-bad">
        <source>The phone did not come up at the first try.</source>
        <translation>Puhelin ei käynnistynyt ensimmäisellä yrityksellä.</translation>
    </message>
    <message id="kiv-reboot-error">
        <source>Did it show an error, or ask for anything that it did not ask for before?</source>
        <translation>Näyttikö se virheen tai kysyikö se jotakin, mitä se ei ennen kysynyt?</translation>
    </message>
    <message id="kiv-reboot-error-bad">
        <source>The phone showed an error while it started.</source>
        <translation>Puhelin näytti virheen käynnistyessään.</translation>
    </message>
    <message id="kiv-reboot-good">
        <source>The phone was restarted and came up again.</source>
        <translation>Puhelin käynnistettiin uudelleen, ja se käynnistyi.</translation>
    </message>
    <message id="kiv-reboot-age">
        <source>Since the start</source>
        <translation>Käynnistyksestä</translation>
    </message>
    <message id="kiv-suspend-good">
        <source>The phone slept and woke up: %1 s</source>
        <translation>Puhelin nukkui ja heräsi: %1 s</translation>
    </message>
    <message id="kiv-suspend-instructions">
        <source>Unplug the charger and press the power key, so that the panel goes dark. Wait half a minute, then wake the phone.</source>
        <translation>Irrota laturi ja paina virtapainiketta niin, että näyttö pimenee. Odota puoli minuuttia ja herätä puhelin.</translation>
    </message>
    <message id="kiv-suspend-hint">
        <source>Pass unlocks when the phone has slept.</source>
        <translation>Hyväksyminen avautuu, kun puhelin on nukkunut.</translation>
    </message>
    <message id="kiv-suspend-missing">
        <source>The mode-control service does not answer, so nobody knows whether the phone has slept.</source>
        <translation>Tilanohjauspalvelu ei vastaa, joten kukaan ei tiedä, onko puhelin nukkunut.</translation>
    </message>
    <message id="kiv-suspend-step-sleep">
        <source>Let the phone sleep</source>
        <translation>Anna puhelimen nukkua</translation>
    </message>
    <message id="kiv-suspend-step-wake">
        <source>Wake it</source>
        <translation>Herätä se</translation>
    </message>
    <message id="kiv-suspend-note">
        <source>A phone that charges or that a computer is connected to stays awake behind its dark panel.</source>
        <translation>Latautuva tai tietokoneeseen liitetty puhelin pysyy hereillä pimeän näytön takana.</translation>
    </message>
    <message id="kiv-suspend-total">
        <source>Slept since the phone was started</source>
        <translation>Lepotilassa puhelimen käynnistyksestä</translation>
    </message>
    <message id="kiv-suspend-since">
        <source>Slept during this test</source>
        <translation>Lepotilassa tämän testin aikana</translation>
    </message>
    <message id="kiv-resistance-missing">
        <source>The battery&apos;s voltage and current cannot be read here.</source>
        <translation>Akun jännitettä ja virtaa ei voi lukea täällä.</translation>
    </message>
    <message id="kiv-resistance-good">
        <source>The battery&apos;s internal resistance is in order.</source>
        <translation>Akun sisäinen vastus on kunnossa.</translation>
    </message>
    <message id="kiv-resistance-hint">
        <source>Pass unlocks when the resistance has been measured.</source>
        <translation>Hyväksyminen avautuu, kun vastus on mitattu.</translation>
    </message>
    <message id="kiv-resistance-off">
        <source>The settings of this phone do not ask for this test.</source>
        <translation>Tämän puhelimen asetukset eivät pyydä tätä testiä.</translation>
    </message>
    <message id="kiv-resistance-step-on">
        <source>Measuring with the charger on: leave phone and charger alone</source>
        <translation>Mitataan lataus päällä: älä koske puhelimeen äläkä laturiin</translation>
    </message>
    <message id="kiv-resistance-step-off">
        <source>Measuring with the charger off</source>
        <translation>Mitataan lataus pois päältä</translation>
    </message>
    <message id="kiv-resistance-step-again">
        <source>Measuring with the charger on again</source>
        <translation>Mitataan lataus taas päällä</translation>
    </message>
    <message id="kiv-resistance-voltage-on">
        <source>Voltage, charger on</source>
        <translation>Jännite, lataus päällä</translation>
    </message>
    <message id="kiv-resistance-voltage-off">
        <source>Voltage, charger off</source>
        <translation>Jännite, lataus pois</translation>
    </message>
    <message id="kiv-resistance-step">
        <source>Step of the current</source>
        <translation>Virran muutos</translation>
    </message>
    <message id="kiv-resistance">
        <source>Internal resistance</source>
        <translation>Sisäinen vastus</translation>
    </message>
    <message id="kiv-keylight-instructions">
        <source>Look at the keys beside the panel. If they have no light, choose Skip.</source>
        <translation>Katso näytön viereisiä painikkeita. Jos niissä ei ole valoa, valitse ”Ohita”.</translation>
    </message>
    <message id="kiv-keylight-note">
        <source>Kiv cannot switch this light: the phone lights the keys after a touch and darkens them again.</source>
        <translation>Kiv ei voi kytkeä tätä valoa: puhelin valaisee painikkeet kosketuksen jälkeen ja pimentää ne taas.</translation>
    </message>
    <message id="kiv-keylight-step-touch">
        <source>Touch the field below</source>
        <translation>Kosketa alla olevaa kenttää</translation>
    </message>
    <message id="kiv-keylight-step-rest">
        <source>Keep your hands off: %1 s</source>
        <translation>Kädet irti: %1 s</translation>
    </message>
    <message id="kiv-keylight-touch">
        <source>Touch here</source>
        <translation>Kosketa tästä</translation>
    </message>
    <message id="kiv-keylight-lit">
        <source>Are the keys lit now?</source>
        <translation>Palavatko painikkeiden valot nyt?</translation>
    </message>
    <message id="kiv-keylight-lit-bad">
        <source>The keys do not light up after a touch.</source>
        <translation>Painikkeiden valot eivät syty kosketuksesta.</translation>
    </message>
    <message id="kiv-keylight-stayed">
        <source>Did the keys stay lit while you kept your hands off?</source>
        <translation>Jäivätkö valot palamaan, kun kädet olivat irti?</translation>
    </message>
    <message id="kiv-keylight-stayed-bad">
        <source>The keys stay lit.</source>
        <translation>Painikkeiden valot jäävät palamaan.</translation>
    </message>
    <message id="kiv-keylight-equal">
        <source>Were all of them lit equally bright?</source>
        <translation>Olivatko kaikki yhtä kirkkaita?</translation>
    </message>
    <message id="kiv-keylight-equal-bad">
        <source>Not all keys are lit equally bright.</source>
        <translation>Kaikki painikkeet eivät ole yhtä kirkkaita.</translation>
    </message>
    <message id="kiv-keylight-good">
        <source>The operator saw the keys light up and go out.</source>
        <translation>Testaaja näki painikkeiden valojen syttyvän ja sammuvan.</translation>
    </message>
    <message id="kiv-fingerprint-missing">
        <source>This phone has no fingerprint reader.</source>
        <translation>Tässä puhelimessa ei ole sormenjälkilukijaa.</translation>
    </message>
    <message id="kiv-fingerprint-instructions">
        <source>Open the fingerprints in the phone&apos;s settings. Enrol one finger, lock the phone, and touch the reader with this finger and with another one.</source>
        <translation>Avaa sormenjäljet puhelimen asetuksista. Tallenna yksi sormi, lukitse puhelin ja kosketa lukijaa sillä ja toisella sormella.</translation>
    </message>
    <message id="kiv-fingerprint-note">
        <source>Kiv cannot reach the reader: the phone keeps fingerprints to itself. Remove the finger from the settings afterwards.</source>
        <translation>Kiv ei pääse lukijaan: puhelin pitää sormenjäljet itsellään. Poista sormi asetuksista lopuksi.</translation>
    </message>
    <message id="kiv-fingerprint-good">
        <source>The operator saw the reader know one finger and refuse another.</source>
        <translation>Testaaja näki lukijan tuntevan yhden sormen ja torjuvan toisen.</translation>
    </message>
    <message id="kiv-fingerprint-enrolled">
        <source>Could the finger be enrolled?</source>
        <translation>Onnistuiko sormen tallennus?</translation>
    </message>
    <message id="kiv-fingerprint-enrolled-bad">
        <source>The finger could not be enrolled.</source>
        <translation>Sormen tallennus ei onnistunut.</translation>
    </message>
    <message id="kiv-fingerprint-other">
        <source>Did another finger unlock the phone?</source>
        <translation>Avasiko toinen sormi puhelimen?</translation>
    </message>
    <message id="kiv-fingerprint-other-bad">
        <source>A finger that was not enrolled unlocked the phone.</source>
        <translation>Tallentamaton sormi avasi puhelimen.</translation>
    </message>
    <message id="kiv-fingerprint-known">
        <source>Did the enrolled finger unlock the phone?</source>
        <translation>Avasiko tallennettu sormi puhelimen?</translation>
    </message>
    <message id="kiv-fingerprint-known-bad">
        <source>The enrolled finger did not unlock the phone.</source>
        <translation>Tallennettu sormi ei avannut puhelinta.</translation>
    </message>
    <message id="kiv-lcd-instructions">
        <source>Look at every picture for dots, lines and stains. Tap for the next one. At the end, count the dots.</source>
        <translation>Etsi jokaisesta kuvasta pisteitä, viivoja ja läiskiä. Seuraavaan pääset napauttamalla. Laske lopuksi pisteet.</translation>
    </message>
    <message id="kiv-lcd-hint">
        <source>Pass unlocks when you have seen the pictures, counted the dots and answered the questions.</source>
        <translation>Hyväksyminen avautuu, kun olet nähnyt kuvat, laskenut pisteet ja vastannut kysymyksiin.</translation>
    </message>
    <message id="kiv-lcd-next">
        <source>Next picture</source>
        <translation>Seuraava kuva</translation>
    </message>
    <message id="kiv-lcd-question">
        <source>How many dots were on the panel?</source>
        <translation>Montako pistettä näytöllä oli?</translation>
    </message>
    <message id="kiv-lcd-again">
        <source>Show the dots again</source>
        <translation>Näytä pisteet uudelleen</translation>
    </message>
    <message id="kiv-lcd-spot">
        <source>Was a dot, line or stain in a picture that does not belong there?</source>
        <translation>Oliko jossakin kuvassa piste, viiva tai läiskä, joka ei kuulu siihen?</translation>
    </message>
    <message id="kiv-lcd-spot-bad">
        <source>The panel has a dot, line or stain.</source>
        <translation>Näytössä on piste, viiva tai läiskä.</translation>
    </message>
    <message id="kiv-lcd-shades">
        <source>Were all colours and shades there, without steps?</source>
        <translation>Olivatko kaikki värit ja sävyt näkyvissä ilman portaita?</translation>
    </message>
    <message id="kiv-lcd-shades-bad">
        <source>Colours or shades were missing.</source>
        <translation>Värejä tai sävyjä puuttui.</translation>
    </message>
    <message id="kiv-lcd-good">
        <source>The operator counted the dots and found no fault in the pictures.</source>
        <translation>Testaaja laski pisteet eikä löytänyt kuvista vikaa.</translation>
    </message>
    <message id="kiv-lcd-pictures-again">
        <source>Show the pictures again</source>
        <translation>Näytä kuvat uudelleen</translation>
    </message>
    <message id="kiv-backlight-instructions">
        <source>Look at the white panel: is the light even up to the edges? Tap, and watch whether it becomes brighter or darker.</source>
        <translation>Katso valkoista: onko valo tasainen reunoihin asti? Napauta ja katso, muuttuuko se kirkkaammaksi vai tummemmaksi.</translation>
    </message>
    <message id="kiv-backlight-note">
        <source>Kiv cannot change the backlight. It is the picture that becomes brighter or darker: what it shows is that the panel is lit and that you looked.</source>
        <translation>Kiv ei voi muuttaa taustavaloa. Kuva kirkastuu tai tummuu; se osoittaa, että näyttö on valaistu ja että katsoit.</translation>
    </message>
    <message id="kiv-backlight-question">
        <source>What has the panel become?</source>
        <translation>Millaiseksi näyttö muuttui?</translation>
    </message>
    <message id="kiv-backlight-brighter">
        <source>Brighter</source>
        <translation>Kirkkaampi</translation>
    </message>
    <message id="kiv-backlight-darker">
        <source>Darker</source>
        <translation>Tummempi</translation>
    </message>
    <message id="kiv-backlight-again">
        <source>Show it again</source>
        <translation>Näytä uudelleen</translation>
    </message>
    <message id="kiv-backlight-uneven">
        <source>Was the white uneven, or did it flicker?</source>
        <translation>Oliko valkoinen epätasainen tai välkkyikö se?</translation>
    </message>
    <message id="kiv-backlight-uneven-bad">
        <source>The backlight is uneven or flickers.</source>
        <translation>Taustavalo on epätasainen tai välkkyy.</translation>
    </message>
    <message id="kiv-backlight-follows">
        <source>Set the brightness in the phone&apos;s own settings to the lowest and the highest. Does the light follow?</source>
        <translation>Säädä kirkkaus puhelimen asetuksista pienimmäksi ja suurimmaksi. Seuraako valo?</translation>
    </message>
    <message id="kiv-backlight-follows-bad">
        <source>The backlight does not follow the phone&apos;s brightness setting.</source>
        <translation>Taustavalo ei seuraa puhelimen kirkkausasetusta.</translation>
    </message>
    <message id="kiv-backlight-good">
        <source>The operator saw an even light that follows the brightness setting.</source>
        <translation>Testaaja näki tasaisen valon, joka seuraa kirkkausasetusta.</translation>
    </message>
    <message id="kiv-backlight-white-again">
        <source>Show the white panel again</source>
        <translation>Näytä valkoinen uudelleen</translation>
    </message>
    <message id="kiv-led-dark">
        <source>The light stayed dark while the phone was charging.</source>
        <translation>Valo pysyi pimeänä, kun puhelin latautui.</translation>
    </message>
    <message id="kiv-led-instructions">
        <source>Plug a charger in: the phone then lights its notification light.</source>
        <translation>Kytke laturi: silloin puhelin sytyttää ilmoitusvalonsa.</translation>
    </message>
    <message id="kiv-led-hint">
        <source>Pass unlocks when you have said what the light does.</source>
        <translation>Hyväksyminen avautuu, kun olet kertonut, mitä valo tekee.</translation>
    </message>
    <message id="kiv-led-colour">
        <source>Light while charging</source>
        <translation>Valo ladattaessa</translation>
    </message>
    <message id="kiv-led-note">
        <source>Kiv cannot switch this light: it shows what the phone wants to tell, such as that it charges.</source>
        <translation>Kiv ei voi kytkeä tätä valoa: se kertoo sen, mitä puhelin haluaa kertoa, kuten että se latautuu.</translation>
    </message>
    <message id="kiv-led-step-colour">
        <source>Say what the light does</source>
        <translation>Kerro, mitä valo tekee</translation>
    </message>
    <message id="kiv-led-step-unplug">
        <source>Unplug the charger</source>
        <translation>Irrota laturi</translation>
    </message>
    <message id="kiv-led-plugged">
        <source>The charger is plugged in</source>
        <translation>Laturi on kytketty</translation>
    </message>
    <message id="kiv-led-unplugged">
        <source>The charger is unplugged</source>
        <translation>Laturi on irrotettu</translation>
    </message>
    <message id="kiv-led-question">
        <source>What does the light show?</source>
        <translation>Mitä valo näyttää?</translation>
    </message>
    <message id="kiv-led-red">
        <source>Red</source>
        <translation>Punainen</translation>
    </message>
    <message id="kiv-led-orange">
        <source>Orange or yellow</source>
        <translation>Oranssi tai keltainen</translation>
    </message>
    <message id="kiv-led-green">
        <source>Green</source>
        <translation>Vihreä</translation>
    </message>
    <message id="kiv-led-blue">
        <source>Blue</source>
        <translation>Sininen</translation>
    </message>
    <message id="kiv-led-white">
        <source>White</source>
        <translation>Valkoinen</translation>
    </message>
    <message id="kiv-led-nothing">
        <source>Nothing</source>
        <translation>Ei mitään</translation>
    </message>
    <message id="kiv-led-lit">
        <source>It is lit</source>
        <translation>Se palaa</translation>
    </message>
    <message id="kiv-led-still">
        <source>Is the light still lit as before?</source>
        <translation>Palaako valo yhä kuten ennen?</translation>
    </message>
    <message id="kiv-led-still-bad">
        <source>The light does not change when the charger is unplugged.</source>
        <translation>Valo ei muutu, kun laturi irrotetaan.</translation>
    </message>
    <message id="kiv-led-good">
        <source>The operator saw the light while the phone charged (%1), and saw it go out.</source>
        <extracomment>What the operator saw of the notification light</extracomment>
        <translation>Testaaja näki valon ladattaessa (%1) ja sen sammuvan.</translation>
    </message>
    <message id="kiv-vibrator-none">
        <source>None</source>
        <translation>En yhtään</translation>
    </message>
    <message id="kiv-summary-code">
        <source>Code for the station</source>
        <translation>Koodi testipisteelle</translation>
    </message>
    <message id="kiv-code-copy">
        <source>Copy the text</source>
        <translation>Kopioi teksti</translation>
    </message>
    <message id="kiv-code-close">
        <source>Close</source>
        <translation>Sulje</translation>
    </message>
    <message id="kiv-plot-range">
        <source>%1 to %2</source>
        <extracomment>The least and the greatest reading so far</extracomment>
        <translation>%1 … %2</translation>
    </message>
    <message id="kiv-mode-engineer">
        <source>Engineer&apos;s view</source>
        <translation>Kehittäjän näkymä</translation>
    </message>
    <message id="kiv-engineer-raw">
        <source>Raw values</source>
        <translation>Raaka-arvot</translation>
    </message>
    <message id="kiv-engineer-settings">
        <source>Settings that were found</source>
        <translation>Löydetyt asetukset</translation>
    </message>
    <message id="kiv-engineer-probe">
        <source>Look what the phone has</source>
        <translation>Katso, mitä puhelimessa on</translation>
    </message>
    <message id="kiv-engineer-tests">
        <source>Tests</source>
        <translation>Testit</translation>
    </message>
    <message id="kiv-engineer-processes">
        <source>Processes</source>
        <translation>Prosessit</translation>
    </message>
    <message id="kiv-mode-engineer-detail">
        <source>Raw values, the settings that were found, sound streams and processes</source>
        <translation>Raaka-arvot, löydetyt asetukset, äänivirrat ja prosessit</translation>
    </message>
    <message id="kiv-run-in-stuck">
        <source>The test did not begin in time.</source>
        <translation>Testi ei alkanut ajoissa.</translation>
    </message>
    <message id="kiv-run-in-exercised">
        <source>It ran without trouble.</source>
        <translation>Se kävi häiriöttä.</translation>
    </message>
    <message id="kiv-run-in-timeout">
        <source>It came to no result in time.</source>
        <translation>Se ei tuottanut tulosta ajoissa.</translation>
    </message>
    <message id="kiv-run-in-end-time">
        <source>The time is up.</source>
        <translation>Aika on lopussa.</translation>
    </message>
    <message id="kiv-run-in-end-failure">
        <source>It stopped at the first failure.</source>
        <translation>Pysäytetty ensimmäiseen vikaan.</translation>
    </message>
    <message id="kiv-run-in-end-temperature">
        <source>The battery reached %1.</source>
        <extracomment>A temperature</extracomment>
        <translation>Akku lämpeni arvoon %1.</translation>
    </message>
    <message id="kiv-run-in-end-restart">
        <source>The phone&apos;s start time was %1 at the beginning and %2 at the end: it was restarted, or its clock was set.</source>
        <extracomment>Two times at which the phone was started</extracomment>
        <translation>Puhelimen käynnistysaika oli alussa %1 ja lopussa %2: puhelin käynnistyi uudelleen tai sen kelloa siirrettiin.</translation>
    </message>
    <message id="kiv-run-in-end-operator">
        <source>The operator ended it.</source>
        <translation>Testaaja lopetti sen.</translation>
    </message>
    <message id="kiv-run-in-progress">
        <source>Loop %1, test %2 of %3</source>
        <extracomment>The run-in: number of the loop, place of the test in it, number of tests</extracomment>
        <translation>Kierros %1, testi %2/%3</translation>
    </message>
    <message id="kiv-test-clock">
        <source>Time left: %1</source>
        <extracomment>Time until the operator is asked how to go on</extracomment>
        <translation>Jäljellä %1</translation>
    </message>
    <message id="kiv-run-in-intro">
        <source>Hours: %1. Meanwhile the phone repeats these tests and needs nobody:</source>
        <extracomment>A number of hours</extracomment>
        <translation>Tunteja: %1. Sen ajan puhelin toistaa näitä testejä itsekseen:</translation>
    </message>
    <message id="kiv-run-in-empty">
        <source>No test of the run-in can run on this phone.</source>
        <translation>Mitään sisäänajon testiä ei voi ajaa tällä puhelimella.</translation>
    </message>
    <message id="kiv-run-in-attended">
        <source>These need an operator and stay not tested: %1</source>
        <extracomment>Names of tests</extracomment>
        <translation>Nämä vaativat testaajan ja jäävät testaamatta: %1</translation>
    </message>
    <message id="kiv-run-in-stop-on-failure">
        <source>Stop at the first failure</source>
        <translation>Pysähdy ensimmäiseen vikaan</translation>
    </message>
    <message id="kiv-run-in-go-on">
        <source>Go on after a failure</source>
        <translation>Jatka vian jälkeen</translation>
    </message>
    <message id="kiv-run-in-limit">
        <source>Stop when the battery reaches %1</source>
        <extracomment>A temperature</extracomment>
        <translation>Pysähdy, kun akku saavuttaa arvon %1</translation>
    </message>
    <message id="kiv-run-in-no-limit">
        <source>Do not stop for the battery&apos;s temperature</source>
        <translation>Älä pysähdy akun lämpötilan vuoksi</translation>
    </message>
    <message id="kiv-run-in-machine-start">
        <source>This phone was started on %1. A run-in that began earlier and left no result was ended by that start.</source>
        <extracomment>A date and time</extracomment>
        <translation>Tämä puhelin käynnistettiin %1. Jos sitä ennen alkanut sisäänajo jäi ilman tulosta, tämä käynnistys päätti sen.</translation>
    </message>
    <message id="kiv-run-in-total">
        <source>Loops: %1, time: %2</source>
        <extracomment>How far the run-in came: loops and time</extracomment>
        <translation>Kierroksia: %1, aika: %2</translation>
    </message>
    <message id="kiv-run-in-failure">
        <source>%1, loop %2</source>
        <extracomment>A test that failed, and the number of the loop</extracomment>
        <translation>%1, kierros %2</translation>
    </message>
    <message id="kiv-run-in-stop">
        <source>End the run-in</source>
        <translation>Lopeta sisäänajo</translation>
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
        <translation>Ei tässä puhelimessa: %1</translation>
    </message>
    <message id="kiv-summary-timed-out">
        <source>The time had run out</source>
        <translation>Aika oli loppunut</translation>
    </message>
    <message id="kiv-summary-totals">
        <source>Attempts: %1, time: %2</source>
        <extracomment>Totals of a sequence: how many attempts, how long</extracomment>
        <translation>Yrityksiä: %1, aika: %2</translation>
    </message>
    <message id="kiv-overrule-title">
        <source>Why against this verdict?</source>
        <translation>Miksi tätä tulosta vastaan?</translation>
    </message>
    <message id="kiv-overrule-text">
        <source>Verdict so far: %1. The summary will show that you decided otherwise.</source>
        <extracomment>The page&apos;s own verdict, from what it measured or what the operator answered</extracomment>
        <translation>Tulos tähän asti: %1. Yhteenveto näyttää, että päätit toisin.</translation>
    </message>
    <message id="kiv-overrule-equipment">
        <source>A tool or an accessory was at fault</source>
        <translation>Väline tai lisälaite oli viallinen</translation>
    </message>
    <message id="kiv-overrule-limits">
        <source>The limits do not suit this model</source>
        <translation>Rajat eivät sovi tähän malliin</translation>
    </message>
    <message id="kiv-overrule-perceived">
        <source>I saw, heard or felt it otherwise</source>
        <translation>Näin, kuulin tai tunsin toisin</translation>
    </message>
    <message id="kiv-overrule-supervisor">
        <source>A supervisor decided so</source>
        <translation>Esimies päätti niin</translation>
    </message>
    <message id="kiv-overrule-cancel">
        <source>Keep this verdict</source>
        <translation>Pidä tämä tulos</translation>
    </message>
    <message id="kiv-skip-title">
        <source>Why is this test skipped?</source>
        <translation>Miksi tämä testi ohitetaan?</translation>
    </message>
    <message id="kiv-skip-text">
        <source>It stays not tested unless the phone is not meant to have this part.</source>
        <translation>Se jää testaamatta, paitsi jos tätä osaa ei kuulu olla puhelimessa.</translation>
    </message>
    <message id="kiv-skip-equipment">
        <source>An accessory or a tool is missing</source>
        <translation>Lisälaite tai väline puuttuu</translation>
    </message>
    <message id="kiv-skip-repair">
        <source>The phone has to be repaired first</source>
        <translation>Puhelin on ensin korjattava</translation>
    </message>
    <message id="kiv-skip-later">
        <source>It is tested elsewhere or later</source>
        <translation>Se testataan muualla tai myöhemmin</translation>
    </message>
    <message id="kiv-skip-not-fitted">
        <source>This model is not meant to have this part</source>
        <translation>Tässä mallissa ei kuulu olla tätä osaa</translation>
    </message>
    <message id="kiv-skip-cancel">
        <source>Go on testing</source>
        <translation>Jatka testausta</translation>
    </message>
    <message id="kiv-timeout-title">
        <source>Time is up</source>
        <translation>Aika on lopussa</translation>
    </message>
    <message id="kiv-timeout-text">
        <source>%1 has no verdict yet.</source>
        <extracomment>Name of a test</extracomment>
        <translation>%1: ei vielä tulosta.</translation>
    </message>
    <message id="kiv-timeout-wait">
        <source>Give it more time</source>
        <translation>Anna lisää aikaa</translation>
    </message>
    <message id="kiv-verdict-skip">
        <source>Skip</source>
        <translation>Ohita</translation>
    </message>
    <message id="kiv-camera-dark">
        <source>The camera delivers no picture.</source>
        <translation>Kamera ei anna kuvaa.</translation>
    </message>
    <message id="kiv-camera-instructions">
        <source>Move the phone a little and watch the picture. Tap it to see it large.</source>
        <translation>Liikuta puhelinta hieman ja katso kuvaa. Napauta sitä, niin näet sen suurena.</translation>
    </message>
    <message id="kiv-camera-working">
        <source>Looking for the camera</source>
        <translation>Kameraa etsitään</translation>
    </message>
    <message id="kiv-camera-question">
        <source>What does the picture do when you move the phone?</source>
        <translation>Mitä kuva tekee, kun liikutat puhelinta?</translation>
    </message>
    <message id="kiv-camera-live">
        <source>It follows</source>
        <translation>Se seuraa</translation>
    </message>
    <message id="kiv-camera-still">
        <source>It stands still</source>
        <translation>Se pysyy paikallaan</translation>
    </message>
    <message id="kiv-camera-light">
        <source>Is the light beside the camera on?</source>
        <translation>Palaako kameran vieressä valo?</translation>
    </message>
    <message id="kiv-camera-stains">
        <source>Are there stains, stripes or wrong colours in the picture?</source>
        <translation>Onko kuvassa läiskiä, raitoja tai vääriä värejä?</translation>
    </message>
    <message id="kiv-camera-stains-bad">
        <source>The picture has stains, stripes or wrong colours.</source>
        <translation>Kuvassa on läiskiä, raitoja tai vääriä värejä.</translation>
    </message>
    <message id="kiv-camera-sharp">
        <source>Is it sharp?</source>
        <translation>Onko se terävä?</translation>
    </message>
    <message id="kiv-camera-sharp-bad">
        <source>The picture is not sharp.</source>
        <translation>Kuva ei ole terävä.</translation>
    </message>
    <message id="kiv-camera-flash">
        <source>The camera lets nobody switch its light. Take a picture with flash in the phone&apos;s own camera program: does it flash?</source>
        <translation>Kameran valoa ei voi kytkeä. Ota puhelimen omalla kamerasovelluksella kuva salaman kanssa: välähtääkö se?</translation>
    </message>
    <message id="kiv-camera-flash-bad">
        <source>The camera does not flash.</source>
        <translation>Kamera ei välähdä.</translation>
    </message>
    <message id="kiv-camera-good">
        <source>The operator saw a live picture without faults.</source>
        <translation>Testaaja näki elävän kuvan ilman vikoja.</translation>
    </message>
    <message id="kiv-camera-back-missing">
        <source>No back camera was found.</source>
        <translation>Takakameraa ei löytynyt.</translation>
    </message>
    <message id="kiv-camera-front-missing">
        <source>No front camera was found.</source>
        <translation>Etukameraa ei löytynyt.</translation>
    </message>
    <message id="kiv-video-stopped">
        <source>The video stopped: %1</source>
        <translation>Video pysähtyi: %1</translation>
    </message>
    <message id="kiv-video-missing">
        <source>The system has no decoder for the test video (%1): install one, or test with a video of the phone&apos;s own.</source>
        <extracomment>The names of the codecs that were tried</extracomment>
        <translation>Järjestelmä ei osaa purkaa testivideota (%1): asenna purkaja tai testaa puhelimen omalla videolla.</translation>
    </message>
    <message id="kiv-video-instructions">
        <source>Watch the video and count the squares that cross the picture.</source>
        <translation>Katso video ja laske kuvan poikki kulkevat neliöt.</translation>
    </message>
    <message id="kiv-video-question">
        <source>How many squares crossed the picture?</source>
        <translation>Montako neliötä kulki kuvan poikki?</translation>
    </message>
    <message id="kiv-video-jerk">
        <source>Did the picture jerk, tear or show blocks?</source>
        <translation>Nykikö kuva, repeilikö se tai näkyikö siinä palikoita?</translation>
    </message>
    <message id="kiv-video-jerk-bad">
        <source>The video jerks, tears or shows blocks.</source>
        <translation>Video nykii, repeilee tai näyttää palikoita.</translation>
    </message>
    <message id="kiv-video-good">
        <source>The operator saw the video run smoothly.</source>
        <translation>Testaaja näki videon sujuvana.</translation>
    </message>
    <message id="kiv-video-format">
        <source>Decoder</source>
        <translation>Purkaja</translation>
    </message>
    <message id="kiv-video-played">
        <source>Played</source>
        <translation>Toistettu</translation>
    </message>
    <message id="kiv-bluetooth-searched">
        <source>The address is in order, and the radio searched.</source>
        <translation>Osoite on kunnossa, ja radio etsi.</translation>
    </message>
    <message id="kiv-wifi-found">
        <source>The address is in order, and the radio was found.</source>
        <translation>Osoite on kunnossa, ja radio löytyi.</translation>
    </message>
    <message id="kiv-layout-direction">
        <source>LTR</source>
        <extracomment>&quot;LTR&quot;, or &quot;RTL&quot; for a language that is written from right to left</extracomment>
        <translation>LTR</translation>
    </message>
    <message id="kiv-wifi-working">
        <source>Asking for the Wi-Fi radio</source>
        <translation>Kysytään WLAN-radiolta</translation>
    </message>
    <message id="kiv-run-in-heat-unknown">
        <source>The battery&apos;s temperature cannot be read: heat will not stop the run-in.</source>
        <translation>Akun lämpötilaa ei voi lukea: kuumuus ei pysäytä sisäänajoa.</translation>
    </message>
    <message id="kiv-run-in-again">
        <source>A test failed meanwhile: the run-in has to be done again.</source>
        <translation>Testi hylättiin sen aikana: sisäänajo on tehtävä uudelleen.</translation>
    </message>
    <message id="kiv-summary-failed-loops">
        <source>Failed in the run-in, loop %1</source>
        <extracomment>Numbers of loops</extracomment>
        <translation>Hylätty sisäänajossa, kierros %1</translation>
    </message>
    <message id="kiv-summary-failed-attempts">
        <source>Attempts that failed: %1</source>
        <translation>Hylättyjä yrityksiä: %1</translation>
    </message>
    <message id="kiv-led-switching">
        <source>Switching charging</source>
        <translation>Latausta kytketään</translation>
    </message>
    <message id="kiv-led-step-switch">
        <source>Say what it does while Kiv switches charging off and on</source>
        <translation>Kerro, mitä valo näyttää, kun Kiv kytkee latauksen pois ja päälle</translation>
    </message>
    <message id="kiv-led-good-switched">
        <source>The operator saw the light while the phone charged (%1), and dark whenever Kiv had switched charging off.</source>
        <extracomment>What the operator saw of the notification light</extracomment>
        <translation>Testaaja näki valon puhelimen latautuessa (%1) ja pimeänä aina, kun Kiv oli kytkenyt latauksen pois.</translation>
    </message>
    <message id="kiv-led-by-hand">
        <source>The answers do not fit: perhaps this light does not follow the charging. Look again, and unplug the charger yourself.</source>
        <translation>Vastaukset eivät sovi yhteen: ehkä tämä valo ei seuraa latausta. Katso uudelleen ja irrota laturi itse.</translation>
    </message>
    <message id="kiv-key-volume-up">
        <source>Volume up</source>
        <translation>Äänenvoimakkuus ylös</translation>
    </message>
    <message id="kiv-key-volume-down">
        <source>Volume down</source>
        <translation>Äänenvoimakkuus alas</translation>
    </message>
    <message id="kiv-key-power">
        <source>Power key</source>
        <translation>Virtapainike</translation>
    </message>
    <message id="kiv-key-camera">
        <source>Camera key</source>
        <translation>Kamerapainike</translation>
    </message>
    <message id="kiv-key-focus">
        <source>Camera key, half pressed</source>
        <translation>Kamerapainike puoliksi painettuna</translation>
    </message>
    <message id="kiv-key-home">
        <source>Home key</source>
        <translation>Kotipainike</translation>
    </message>
    <message id="kiv-key-back">
        <source>Back key</source>
        <translation>Takaisin-painike</translation>
    </message>
    <message id="kiv-key-menu">
        <source>Menu key</source>
        <translation>Valikkopainike</translation>
    </message>
    <message id="kiv-key-search">
        <source>Search key</source>
        <translation>Hakupainike</translation>
    </message>
    <message id="kiv-list-separator">
        <source>, </source>
        <extracomment>Between the words of a list, with its blank</extracomment>
        <translation>, </translation>
    </message>
    <message id="kiv-charging-round">
        <source>Round %1 of %2</source>
        <extracomment>How many times something has been tried, of how many</extracomment>
        <translation>Kierros %1/%2</translation>
    </message>
</context>
</TS>
