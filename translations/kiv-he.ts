<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en">
<context>
    <name></name>
    <message id="kiv-back">
        <source>Back</source>
        <translation>חזרה</translation>
    </message>
    <message id="kiv-reading-missing">
        <source>no reading</source>
        <translation>אין ערך</translation>
    </message>
    <message id="kiv-limits-range">
        <source>%1 to %2 %3</source>
        <extracomment>Limits of a reading: the lowest, the highest, the unit</extracomment>
        <translation>%1 עד ⁦%2 %3⁩</translation>
    </message>
    <message id="kiv-limits-minimum">
        <source>at least %1 %2</source>
        <translation>לפחות ⁦%1 %2⁩</translation>
    </message>
    <message id="kiv-limits-maximum">
        <source>at most %1 %2</source>
        <translation>לכל היותר ⁦%1 %2⁩</translation>
    </message>
    <message id="kiv-reading-pass">
        <source>in order</source>
        <translation>תקין</translation>
    </message>
    <message id="kiv-reading-near">
        <source>close to the limit</source>
        <translation>קרוב לגבול</translation>
    </message>
    <message id="kiv-reading-fail">
        <source>out of limits</source>
        <translation>מחוץ לגבולות</translation>
    </message>
    <message id="kiv-yes">
        <source>yes</source>
        <translation>כן</translation>
    </message>
    <message id="kiv-no">
        <source>no</source>
        <translation>לא</translation>
    </message>
    <message id="kiv-verdict-passed">
        <source>Passed</source>
        <translation>עבר</translation>
    </message>
    <message id="kiv-verdict-failed">
        <source>Failed</source>
        <translation>נכשל</translation>
    </message>
    <message id="kiv-verdict-not-applicable">
        <source>Not applicable</source>
        <translation>לא רלוונטי</translation>
    </message>
    <message id="kiv-verdict-not-tested">
        <source>Not tested</source>
        <translation>לא נבדק</translation>
    </message>
    <message id="kiv-test-touch-self">
        <source>Touch panel self-test</source>
        <translation>בדיקה עצמית של מסך המגע</translation>
    </message>
    <message id="kiv-test-touch">
        <source>Touch panel</source>
        <translation>מסך המגע</translation>
    </message>
    <message id="kiv-test-multi-touch">
        <source>Several fingers</source>
        <translation>מגע רב־אצבעי</translation>
    </message>
    <message id="kiv-test-lcd">
        <source>Display</source>
        <translation>צג</translation>
    </message>
    <message id="kiv-test-lcd-backlight">
        <source>Display backlight</source>
        <translation>תאורת הצג</translation>
    </message>
    <message id="kiv-test-light">
        <source>Light sensor</source>
        <translation>חיישן אור</translation>
    </message>
    <message id="kiv-test-prox">
        <source>Proximity sensor</source>
        <translation>חיישן קרבה</translation>
    </message>
    <message id="kiv-test-gyro">
        <source>Gyroscope and accelerometer</source>
        <translation>ג׳ירוסקופ ומד תאוצה</translation>
    </message>
    <message id="kiv-test-ecompass">
        <source>Compass</source>
        <translation>מצפן</translation>
    </message>
    <message id="kiv-test-hall">
        <source>Cover magnet switch</source>
        <translation>מתג מגנטי של הכיסוי</translation>
    </message>
    <message id="kiv-test-fingerprint">
        <source>Fingerprint reader</source>
        <translation>קורא טביעות אצבע</translation>
    </message>
    <message id="kiv-test-mic-1">
        <source>Microphone 1</source>
        <translation>מיקרופון 1</translation>
    </message>
    <message id="kiv-test-mic-2">
        <source>Microphone 2</source>
        <translation>מיקרופון 2</translation>
    </message>
    <message id="kiv-test-speaker-music">
        <source>Loudspeaker music</source>
        <translation>מוזיקה ברמקול</translation>
    </message>
    <message id="kiv-test-speaker-stereo">
        <source>Loudspeaker left and right</source>
        <translation>רמקול שמאל וימין</translation>
    </message>
    <message id="kiv-test-receiver">
        <source>Earpiece</source>
        <translation>אפרכסת</translation>
    </message>
    <message id="kiv-test-headset-buttons">
        <source>Headset buttons</source>
        <translation>לחצני האוזניות</translation>
    </message>
    <message id="kiv-test-headset">
        <source>Headset socket</source>
        <translation>שקע האוזניות</translation>
    </message>
    <message id="kiv-test-headset-music">
        <source>Headset music</source>
        <translation>מוזיקה באוזניות</translation>
    </message>
    <message id="kiv-test-front-camera">
        <source>Front camera</source>
        <translation>מצלמה קדמית</translation>
    </message>
    <message id="kiv-test-back-camera">
        <source>Back camera</source>
        <translation>מצלמה אחורית</translation>
    </message>
    <message id="kiv-test-wifi">
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message id="kiv-test-bluetooth">
        <source>Bluetooth</source>
        <translation>Bluetooth</translation>
    </message>
    <message id="kiv-test-zel">
        <source>Smart cover</source>
        <translation>כיסוי חכם</translation>
    </message>
    <message id="kiv-test-gps">
        <source>Satellite positioning</source>
        <translation>איתור לווייני</translation>
    </message>
    <message id="kiv-test-fm-radio">
        <source>FM radio</source>
        <translation>רדיו FM</translation>
    </message>
    <message id="kiv-test-battery">
        <source>Battery</source>
        <translation>סוללה</translation>
    </message>
    <message id="kiv-test-usb-charging">
        <source>USB charging</source>
        <translation>טעינה ב־USB</translation>
    </message>
    <message id="kiv-test-led">
        <source>Notification light</source>
        <translation>נורית התראות</translation>
    </message>
    <message id="kiv-test-button-backlight">
        <source>Key illumination</source>
        <translation>תאורת המקשים</translation>
    </message>
    <message id="kiv-test-vibrator">
        <source>Vibrator</source>
        <translation>מנוע רטט</translation>
    </message>
    <message id="kiv-test-sim">
        <source>SIM card</source>
        <translation>כרטיס SIM</translation>
    </message>
    <message id="kiv-test-sd-card">
        <source>Memory card</source>
        <translation>כרטיס זיכרון</translation>
    </message>
    <message id="kiv-test-key">
        <source>Keys</source>
        <translation>מקשים</translation>
    </message>
    <message id="kiv-test-usb-otg">
        <source>USB host</source>
        <translation>מארח USB</translation>
    </message>
    <message id="kiv-test-video">
        <source>Video playback</source>
        <translation>ניגון וידאו</translation>
    </message>
    <message id="kiv-test-battery-resistance">
        <source>Battery resistance</source>
        <translation>התנגדות הסוללה</translation>
    </message>
    <message id="kiv-test-suspend">
        <source>Suspend</source>
        <translation>שינה</translation>
    </message>
    <message id="kiv-test-reboot">
        <source>Restart</source>
        <translation>הפעלה מחדש</translation>
    </message>
    <message id="kiv-test-cellular-voice">
        <source>Phone call</source>
        <translation>שיחת טלפון</translation>
    </message>
    <message id="kiv-test-cellular-data">
        <source>Mobile data</source>
        <translation>נתונים סלולריים</translation>
    </message>
    <message id="kiv-test-mac-addresses">
        <source>Network addresses</source>
        <translation>כתובות רשת</translation>
    </message>
    <message id="kiv-test-calibration">
        <source>Calibration record</source>
        <translation>רשומת הכיול</translation>
    </message>
    <message id="kiv-test-sensor-calibration">
        <source>Sensor calibration</source>
        <translation>כיול חיישנים</translation>
    </message>
    <message id="kiv-test-system">
        <source>System state</source>
        <translation>מצב המערכת</translation>
    </message>
    <message id="kiv-reason-reading">
        <source>%1: %2 (%3)</source>
        <extracomment>A reading that is not as it should be: its name, its value, what it should be</extracomment>
        <translation>⁨%1⁩: ⁨%2⁩ (⁨%3⁩)</translation>
    </message>
    <message id="kiv-battery-instructions">
        <source>Nothing to do: the phone reads its battery.</source>
        <translation>אין מה לעשות: הטלפון קורא את נתוני הסוללה שלו.</translation>
    </message>
    <message id="kiv-battery-hint">
        <source>Pass unlocks when the battery has been read.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר קריאת נתוני הסוללה.</translation>
    </message>
    <message id="kiv-battery-good">
        <source>Every reading with a limit is within it.</source>
        <translation>כל הערכים שיש להם גבולות נמצאים בתוכם.</translation>
    </message>
    <message id="kiv-battery-present">
        <source>Battery in place</source>
        <translation>סוללה מותקנת</translation>
    </message>
    <message id="kiv-battery-status">
        <source>State</source>
        <translation>מצב</translation>
    </message>
    <message id="kiv-battery-health">
        <source>Health</source>
        <translation>תקינות</translation>
    </message>
    <message id="kiv-battery-voltage">
        <source>Voltage</source>
        <translation>מתח</translation>
    </message>
    <message id="kiv-battery-current">
        <source>Current</source>
        <translation>זרם</translation>
    </message>
    <message id="kiv-battery-temperature">
        <source>Temperature</source>
        <translation>טמפרטורה</translation>
    </message>
    <message id="kiv-battery-energy">
        <source>Energy left</source>
        <translation>אנרגיה שנותרה</translation>
    </message>
    <message id="kiv-battery-wear">
        <source>Capacity compared to new</source>
        <translation>קיבולת ביחס לסוללה חדשה</translation>
    </message>
    <message id="kiv-disclaimer-title">
        <source>Before you begin</source>
        <translation>לפני שמתחילים</translation>
    </message>
    <message id="kiv-quit">
        <source>Quit</source>
        <translation>יציאה</translation>
    </message>
    <message id="kiv-disclaimer-accept">
        <source>I have read this</source>
        <translation>קראתי</translation>
    </message>
    <message id="kiv-ap-name">
        <source>Kiv</source>
        <translation>Kiv</translation>
    </message>
    <message id="kiv-home-subtitle">
        <source>Hardware tests</source>
        <translation>בדיקות חומרה</translation>
    </message>
    <message id="kiv-home-settings">
        <source>This phone and settings</source>
        <translation>הטלפון הזה והגדרות</translation>
    </message>
    <message id="kiv-home-question">
        <source>Which tests do you want to run?</source>
        <translation>אילו בדיקות להריץ?</translation>
    </message>
    <message id="kiv-mode-factory">
        <source>Factory sequence</source>
        <translation>רצף המפעל</translation>
    </message>
    <message id="kiv-mode-factory-detail">
        <source>Every part of the phone once, in a fixed order</source>
        <translation>כל חלק של הטלפון פעם אחת, בסדר קבוע</translation>
    </message>
    <message id="kiv-mode-run-in">
        <source>Run-in</source>
        <translation>הרצה</translation>
    </message>
    <message id="kiv-mode-run-in-detail">
        <source>Endurance tests for a new phone</source>
        <translation>בדיקות עמידות לטלפון חדש</translation>
    </message>
    <message id="kiv-mode-all">
        <source>All tests</source>
        <translation>כל הבדיקות</translation>
    </message>
    <message id="kiv-mode-all-detail">
        <source>Everything this phone has, one by one or in a row</source>
        <translation>כל מה שיש בטלפון, אחת אחת או ברצף</translation>
    </message>
    <message id="kiv-list-subtitle">
        <source>%1 of %2 tests can run here</source>
        <extracomment>How many of the tests of the sequence can be run on this phone</extracomment>
        <translation>אפשר להריץ כאן %1 מתוך %2 בדיקות</translation>
    </message>
    <message id="kiv-list-absent">
        <source>Not on this phone</source>
        <translation>לא קיים בטלפון הזה</translation>
    </message>
    <message id="kiv-list-unwritten">
        <source>Not available yet</source>
        <translation>עדיין לא זמין</translation>
    </message>
    <message id="kiv-summary">
        <source>Summary</source>
        <translation>סיכום</translation>
    </message>
    <message id="kiv-list-continue">
        <source>Go on, %1 left</source>
        <translation>המשך, נותרו %1</translation>
    </message>
    <message id="kiv-list-start">
        <source>Start</source>
        <translation>התחלה</translation>
    </message>
    <message id="kiv-settings-4g">
        <source>Modem prefers 4G</source>
        <translation>המודם מעדיף 4G</translation>
    </message>
    <message id="kiv-settings-title">
        <source>This phone</source>
        <translation>הטלפון הזה</translation>
    </message>
    <message id="kiv-settings-light">
        <source>Light colours</source>
        <translation>צבעים בהירים</translation>
    </message>
    <message id="kiv-settings-dark">
        <source>Dark colours</source>
        <translation>צבעים כהים</translation>
    </message>
    <message id="kiv-settings-disclaimer">
        <source>Read the notice again</source>
        <translation>קריאה חוזרת של ההודעה</translation>
    </message>
    <message id="kiv-summary-overruled">
        <source>Overruled by the operator: %2. Verdict before: %1</source>
        <extracomment>The operator&apos;s verdict differs from the page&apos;s own, which follows, with his reason</extracomment>
        <translation>המפעיל הכריע אחרת: ⁨%2⁩. התוצאה לפני כן: ⁨%1⁩</translation>
    </message>
    <message id="kiv-summary-attempts">
        <source>Attempts: %1</source>
        <translation>ניסיונות: %1</translation>
    </message>
    <message id="kiv-summary-incomplete">
        <source>Not complete</source>
        <translation>לא הושלם</translation>
    </message>
    <message id="kiv-summary-retest">
        <source>Retest failed</source>
        <translation>בדיקה חוזרת לנכשלות</translation>
    </message>
    <message id="kiv-summary-list">
        <source>Back to the list</source>
        <translation>חזרה לרשימה</translation>
    </message>
    <message id="kiv-summary-next">
        <source>Next phone</source>
        <translation>הטלפון הבא</translation>
    </message>
    <message id="kiv-page-broken">
        <source>This test cannot be opened on this phone.</source>
        <translation>אי אפשר לפתוח את הבדיקה הזאת בטלפון הזה.</translation>
    </message>
    <message id="kiv-test-leave">
        <source>Leave this test</source>
        <translation>יציאה מהבדיקה</translation>
    </message>
    <message id="kiv-test-progress">
        <source>%1 of %2, about %3 min left</source>
        <extracomment>Place in the sequence and the time it still takes</extracomment>
        <translation>%1 מתוך %2, נותרו כ־%3 דק׳</translation>
    </message>
    <message id="kiv-test-retry">
        <source>Try again</source>
        <translation>ניסיון נוסף</translation>
    </message>
    <message id="kiv-page-missing-advice">
        <source>If this model is not meant to have it, choose Skip and say so.</source>
        <translation>אם החלק לא אמור להיות בדגם הזה, בחרו &quot;דילוג&quot; וציינו זאת.</translation>
    </message>
    <message id="kiv-page-guided">
        <source>You judge this one: the phone cannot see the result itself.</source>
        <translation>כאן ההכרעה שלכם: הטלפון אינו יכול לראות את התוצאה בעצמו.</translation>
    </message>
    <message id="kiv-verdict-fail">
        <source>Fail</source>
        <translation>נכשל</translation>
    </message>
    <message id="kiv-verdict-pass">
        <source>Pass</source>
        <translation>עבר</translation>
    </message>
    <message id="kiv-verdict-hold">
        <source>Hold Pass until it has filled up</source>
        <translation>החזיקו את &quot;עבר&quot; עד שיתמלא</translation>
    </message>
    <message id="kiv-working-probing">
        <source>Checking what this phone has</source>
        <translation>בודק מה יש בטלפון הזה</translation>
    </message>
    <message id="kiv-step-done">
        <source>done</source>
        <translation>בוצע</translation>
    </message>
    <message id="kiv-calibration-instructions">
        <source>The calibration record that production wrote is compared with what is asked of this product.</source>
        <translation>רשומת הכיול שנכתבה בייצור מושווית לנדרש מהמוצר הזה.</translation>
    </message>
    <message id="kiv-calibration-hint">
        <source>Pass unlocks when the record has been read.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר קריאת הרשומה.</translation>
    </message>
    <message id="kiv-calibration-any">
        <source>must not be empty</source>
        <translation>אסור שיהיה ריק</translation>
    </message>
    <message id="kiv-mac-criteria">
        <source>must match %1</source>
        <extracomment>A pattern that an address has to match</extracomment>
        <translation>חייב להתאים ל־⁦%1⁩</translation>
    </message>
    <message id="kiv-calibration-good">
        <source>The record is as it must be.</source>
        <translation>הרשומה היא כנדרש.</translation>
    </message>
    <message id="kiv-calibration-flag">
        <source>Calibration flag</source>
        <translation>דגל הכיול</translation>
    </message>
    <message id="kiv-calibration-text">
        <source>Calibration text</source>
        <translation>טקסט הכיול</translation>
    </message>
    <message id="kiv-mac-instructions">
        <source>The addresses that production gave to the radios are compared with what is asked of this product.</source>
        <translation>הכתובות שניתנו לרכיבי הרדיו בייצור מושוות לנדרש מהמוצר הזה.</translation>
    </message>
    <message id="kiv-mac-hint">
        <source>Pass unlocks when the addresses have been read.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר קריאת הכתובות.</translation>
    </message>
    <message id="kiv-mac-missing">
        <source>This phone has neither Bluetooth nor Wi-Fi.</source>
        <translation>אין בטלפון הזה Bluetooth או Wi-Fi.</translation>
    </message>
    <message id="kiv-mac-good">
        <source>Every address matches its pattern.</source>
        <translation>כל הכתובות תואמות לתבנית.</translation>
    </message>
    <message id="kiv-mac-bluetooth">
        <source>Bluetooth address</source>
        <translation>כתובת Bluetooth</translation>
    </message>
    <message id="kiv-mac-wireless">
        <source>Wi-Fi address</source>
        <translation>כתובת Wi-Fi</translation>
    </message>
    <message id="kiv-sensor-accelerometer">
        <source>Accelerometer</source>
        <translation>מד תאוצה</translation>
    </message>
    <message id="kiv-sensor-als">
        <source>Ambient light</source>
        <translation>אור הסביבה</translation>
    </message>
    <message id="kiv-sensor-compass">
        <source>Compass</source>
        <translation>מצפן</translation>
    </message>
    <message id="kiv-sensor-gyroscope">
        <source>Gyroscope</source>
        <translation>ג׳ירוסקופ</translation>
    </message>
    <message id="kiv-sensor-humidity">
        <source>Humidity</source>
        <translation>לחות</translation>
    </message>
    <message id="kiv-sensor-lid">
        <source>Lid</source>
        <translation>מכסה</translation>
    </message>
    <message id="kiv-sensor-magnetometer">
        <source>Magnetometer</source>
        <translation>מגנטומטר</translation>
    </message>
    <message id="kiv-sensor-orientation">
        <source>Orientation</source>
        <translation>מנח</translation>
    </message>
    <message id="kiv-sensor-pressure">
        <source>Air pressure</source>
        <translation>לחץ אוויר</translation>
    </message>
    <message id="kiv-sensor-proximity">
        <source>Proximity</source>
        <translation>קרבה</translation>
    </message>
    <message id="kiv-sensor-rotation">
        <source>Rotation</source>
        <translation>סיבוב</translation>
    </message>
    <message id="kiv-sensor-stepcounter">
        <source>Step counter</source>
        <translation>מונה צעדים</translation>
    </message>
    <message id="kiv-sensor-tap">
        <source>Tap</source>
        <translation>הקשה</translation>
    </message>
    <message id="kiv-sensor-temperature">
        <source>Temperature</source>
        <translation>טמפרטורה</translation>
    </message>
    <message id="kiv-sensor-instructions">
        <source>Calibrate a sensor, load its stored calibration, or return to the factory&apos;s. Then judge by its values.</source>
        <translation>כיילו חיישן, טענו את הכיול השמור שלו או חזרו לערכי המפעל. אחר כך שפטו לפי ערכיו.</translation>
    </message>
    <message id="kiv-sensor-hint">
        <source>Pass unlocks when a sensor has been calibrated.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר כיול של חיישן.</translation>
    </message>
    <message id="kiv-sensor-working">
        <source>Asking the sensors for their calibration</source>
        <translation>שואל את החיישנים על כיולם</translation>
    </message>
    <message id="kiv-sensor-missing">
        <source>No sensor of this phone can be calibrated.</source>
        <translation>אין בטלפון הזה חיישן שניתן לכייל.</translation>
    </message>
    <message id="kiv-sensor-running">
        <source>Calibrating: %1</source>
        <translation>מכייל: %1</translation>
    </message>
    <message id="kiv-sensor-done">
        <source>Done</source>
        <translation>בוצע</translation>
    </message>
    <message id="kiv-sensor-failed">
        <source>The calibration helper failed. It is not asked again until this page is opened anew.</source>
        <translation>תוכנית הכיול נכשלה. לא ייעשה בה שימוש עד שהדף ייפתח מחדש.</translation>
    </message>
    <message id="kiv-sensor-calibrate">
        <source>Calibrate</source>
        <translation>כיול</translation>
    </message>
    <message id="kiv-sensor-restore">
        <source>Stored values</source>
        <translation>ערכים שמורים</translation>
    </message>
    <message id="kiv-sensor-reset">
        <source>Factory values</source>
        <translation>ערכי מפעל</translation>
    </message>
    <message id="kiv-sensor-type">
        <source>Kind</source>
        <translation>סוג</translation>
    </message>
    <message id="kiv-sensor-representation">
        <source>Values</source>
        <translation>ערכים</translation>
    </message>
    <message id="kiv-system-instructions">
        <source>What the system is busy with. The list of processes appears after five seconds.</source>
        <translation>במה המערכת עסוקה. רשימת התהליכים מופיעה אחרי חמש שניות.</translation>
    </message>
    <message id="kiv-system-start">
        <source>Running since</source>
        <translation>פועל מאז</translation>
    </message>
    <message id="kiv-system-load-1">
        <source>Load, 1 minute</source>
        <translation>עומס, דקה אחת</translation>
    </message>
    <message id="kiv-system-load-5">
        <source>Load, 5 minutes</source>
        <translation>עומס, 5 דקות</translation>
    </message>
    <message id="kiv-system-load-15">
        <source>Load, 15 minutes</source>
        <translation>עומס, 15 דקות</translation>
    </message>
    <message id="kiv-system-process">
        <source>%1 (%2)</source>
        <extracomment>A process: its name and its number</extracomment>
        <translation>⁦%1⁩ (⁦%2⁩)</translation>
    </message>
    <message id="kiv-touch-self-instructions">
        <source>The touch controller tests itself. Keep fingers off the panel.</source>
        <translation>בקר המגע בודק את עצמו. אין לגעת במסך.</translation>
    </message>
    <message id="kiv-touch-self-hint">
        <source>Pass unlocks when the controller has answered.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר תשובת הבקר.</translation>
    </message>
    <message id="kiv-touch-self-missing">
        <source>The touch controller of this phone has no self-test.</source>
        <translation>לבקר המגע של הטלפון הזה אין בדיקה עצמית.</translation>
    </message>
    <message id="kiv-touch-self-good">
        <source>The controller reports that it is in order.</source>
        <translation>הבקר מדווח שהוא תקין.</translation>
    </message>
    <message id="kiv-touch-self-bad">
        <source>The controller reports a fault or gives no report.</source>
        <translation>הבקר מדווח על תקלה או אינו מדווח כלל.</translation>
    </message>
    <message id="kiv-touch-self-outcome">
        <source>Self-test in order</source>
        <translation>בדיקה עצמית תקינה</translation>
    </message>
    <message id="kiv-battery-missing">
        <source>No battery was found.</source>
        <translation>לא נמצאה סוללה.</translation>
    </message>
    <message id="kiv-ecompass-good">
        <source>The compass followed a whole turn.</source>
        <translation>המצפן עקב אחר סיבוב שלם.</translation>
    </message>
    <message id="kiv-ecompass-instructions">
        <source>Keep the phone level and turn around once. If it sticks, draw a large eight in the air with the phone first.</source>
        <translation>החזיקו את הטלפון אופקית והסתובבו סיבוב שלם. אם המצפן נתקע, ציירו קודם באוויר ספרה 8 גדולה עם הטלפון.</translation>
    </message>
    <message id="kiv-ecompass-hint">
        <source>Pass unlocks when the compass followed a whole turn.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר שהמצפן יעקוב אחר סיבוב שלם.</translation>
    </message>
    <message id="kiv-ecompass-missing">
        <source>No compass was found.</source>
        <translation>לא נמצא מצפן.</translation>
    </message>
    <message id="kiv-ecompass-heading">
        <source>Heading</source>
        <translation>אזימוט</translation>
    </message>
    <message id="kiv-ecompass-directions">
        <source>Directions seen</source>
        <translation>כיוונים שנראו</translation>
    </message>
    <message id="kiv-ecompass-level">
        <source>Calibration level</source>
        <translation>רמת הכיול</translation>
    </message>
    <message id="kiv-gyro-good">
        <source>Averages of 32 samples are within their limits.</source>
        <translation>הממוצעים של 32 דגימות נמצאים בגבולות.</translation>
    </message>
    <message id="kiv-gyro-instructions">
        <source>Lay the phone flat on a table, the display up, and do not touch the table.</source>
        <translation>הניחו את הטלפון על שולחן, הצג כלפי מעלה, ואל תיגעו בשולחן.</translation>
    </message>
    <message id="kiv-gyro-hint">
        <source>Pass unlocks when the sensors have been measured.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר מדידת החיישנים.</translation>
    </message>
    <message id="kiv-gyro-missing">
        <source>This phone has neither an accelerometer nor a gyroscope.</source>
        <translation>אין בטלפון הזה מד תאוצה או ג׳ירוסקופ.</translation>
    </message>
    <message id="kiv-gyro-measure">
        <source>It lies flat: measure now</source>
        <translation>הטלפון מונח: מדידה</translation>
    </message>
    <message id="kiv-gyro-progress">
        <source>Measuring: %1 of %2</source>
        <translation>מודד: %1 מתוך %2</translation>
    </message>
    <message id="kiv-gyro-acceleration-x">
        <source>Acceleration X</source>
        <translation>תאוצה X</translation>
    </message>
    <message id="kiv-gyro-acceleration-y">
        <source>Acceleration Y</source>
        <translation>תאוצה Y</translation>
    </message>
    <message id="kiv-gyro-acceleration-z">
        <source>Acceleration Z</source>
        <translation>תאוצה Z</translation>
    </message>
    <message id="kiv-gyro-rotation-x">
        <source>Rotation X</source>
        <translation>סיבוב X</translation>
    </message>
    <message id="kiv-gyro-rotation-y">
        <source>Rotation Y</source>
        <translation>סיבוב Y</translation>
    </message>
    <message id="kiv-gyro-rotation-z">
        <source>Rotation Z</source>
        <translation>סיבוב Z</translation>
    </message>
    <message id="kiv-gyro-rotation">
        <source>Gyroscope in order</source>
        <translation>ג׳ירוסקופ תקין</translation>
    </message>
    <message id="kiv-hall-good">
        <source>The switch saw the magnet come and go.</source>
        <translation>המתג זיהה את המגנט מתקרב ומתרחק.</translation>
    </message>
    <message id="kiv-hall-hint">
        <source>Pass unlocks when the magnet was seen to come and go.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר זיהוי מגנט מתקרב ומתרחק.</translation>
    </message>
    <message id="kiv-hall-missing">
        <source>This phone has no magnet switch.</source>
        <translation>אין בטלפון הזה מתג מגנטי.</translation>
    </message>
    <message id="kiv-hall-step-close">
        <source>Hold a magnet or a closed cover to the phone</source>
        <translation>הצמידו לטלפון מגנט או כיסוי סגור</translation>
    </message>
    <message id="kiv-hall-step-open">
        <source>Take it away</source>
        <translation>הרחיקו אותו</translation>
    </message>
    <message id="kiv-hall-magnet">
        <source>Magnet at the switch</source>
        <translation>מגנט ליד המתג</translation>
    </message>
    <message id="kiv-headset-headset">
        <source>Headset</source>
        <translation>אוזניות עם מיקרופון</translation>
    </message>
    <message id="kiv-headset-headphones">
        <source>Headphones without microphone</source>
        <translation>אוזניות בלי מיקרופון</translation>
    </message>
    <message id="kiv-headset-microphone">
        <source>Microphone only</source>
        <translation>מיקרופון בלבד</translation>
    </message>
    <message id="kiv-headset-empty">
        <source>Empty</source>
        <translation>ריק</translation>
    </message>
    <message id="kiv-headset-good">
        <source>The socket was seen empty and with a headset.</source>
        <translation>השקע נראה ריק וגם עם אוזניות.</translation>
    </message>
    <message id="kiv-headset-hint">
        <source>Pass unlocks when the socket was seen empty and with a headset.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר שהשקע ייראה ריק וגם עם אוזניות.</translation>
    </message>
    <message id="kiv-headset-missing">
        <source>No headset socket was found.</source>
        <translation>לא נמצא שקע אוזניות.</translation>
    </message>
    <message id="kiv-headset-step-empty">
        <source>Take everything out of the headset socket</source>
        <translation>הוציאו הכול משקע האוזניות</translation>
    </message>
    <message id="kiv-headset-step-plug">
        <source>Plug a headset with a microphone in</source>
        <translation>חברו אוזניות עם מיקרופון</translation>
    </message>
    <message id="kiv-headset-socket">
        <source>Headset socket</source>
        <translation>שקע האוזניות</translation>
    </message>
    <message id="kiv-headset-buttons-media">
        <source>Media</source>
        <extracomment>A key of a headset</extracomment>
        <translation>מדיה</translation>
    </message>
    <message id="kiv-headset-buttons-play">
        <source>Play/Pause</source>
        <extracomment>A key of a headset</extracomment>
        <translation>נגן/השהה</translation>
    </message>
    <message id="kiv-headset-buttons-good">
        <source>Every button that the phone knows was pressed and let go.</source>
        <translation>כל לחצן שהטלפון מכיר נלחץ ושוחרר.</translation>
    </message>
    <message id="kiv-headset-buttons-instructions">
        <source>Plug the headset in and press each of its buttons once.</source>
        <translation>חברו את האוזניות ולחצו פעם אחת על כל אחד מלחצניהן.</translation>
    </message>
    <message id="kiv-headset-buttons-hint">
        <source>Pass unlocks when a button was pressed and let go.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר לחיצה על לחצן ושחרורו.</translation>
    </message>
    <message id="kiv-headset-buttons-missing">
        <source>No headset buttons were found.</source>
        <translation>לא נמצאו לחצני אוזניות.</translation>
    </message>
    <message id="kiv-headset-buttons-pressed">
        <source>Buttons pressed</source>
        <translation>לחצנים שנלחצו</translation>
    </message>
    <message id="kiv-headset-buttons-known">
        <source>the phone knows %1</source>
        <extracomment>How many buttons the phone can tell apart</extracomment>
        <translation>הטלפון מכיר %1</translation>
    </message>
    <message id="kiv-key-good">
        <source>Every key was pressed and let go.</source>
        <translation>כל מקש נלחץ ושוחרר.</translation>
    </message>
    <message id="kiv-key-instructions">
        <source>Press each key once and let it go.</source>
        <translation>לחצו על כל מקש פעם אחת ושחררו אותו.</translation>
    </message>
    <message id="kiv-key-hint">
        <source>Pass unlocks when every key was pressed and let go.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר שכל מקש יילחץ וישוחרר.</translation>
    </message>
    <message id="kiv-key-missing">
        <source>No key of this phone is configured for the test.</source>
        <translation>לא הוגדר בטלפון הזה אף מקש לבדיקה.</translation>
    </message>
    <message id="kiv-key-held">
        <source>held</source>
        <translation>לחוץ</translation>
    </message>
    <message id="kiv-key-waiting">
        <source>not yet pressed</source>
        <translation>טרם נלחץ</translation>
    </message>
    <message id="kiv-light-good">
        <source>The sensor told dark from bright.</source>
        <translation>החיישן הבחין בין חושך לאור.</translation>
    </message>
    <message id="kiv-light-instructions">
        <source>Cover the sensor above the display with a finger, then hold it to the light.</source>
        <translation>כסו באצבע את החיישן שמעל הצג, ואז הפנו אותו אל האור.</translation>
    </message>
    <message id="kiv-light-hint">
        <source>Pass unlocks when the sensor told dark from bright.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר שהחיישן יבחין בין חושך לאור.</translation>
    </message>
    <message id="kiv-light-missing">
        <source>No light sensor was found.</source>
        <translation>לא נמצא חיישן אור.</translation>
    </message>
    <message id="kiv-light-now">
        <source>Brightness</source>
        <translation>בהירות</translation>
    </message>
    <message id="kiv-light-darkest">
        <source>Darkest</source>
        <translation>הכהה ביותר</translation>
    </message>
    <message id="kiv-light-brightest">
        <source>Brightest</source>
        <translation>הבהיר ביותר</translation>
    </message>
    <message id="kiv-multi-touch-good">
        <source>The panel told %1 fingers apart.</source>
        <translation>המסך הבחין בין %1 אצבעות.</translation>
    </message>
    <message id="kiv-multi-touch-bad">
        <source>The panel did not tell two fingers apart.</source>
        <translation>המסך לא הבחין בין שתי אצבעות.</translation>
    </message>
    <message id="kiv-multi-touch-instructions">
        <source>Put five fingers on the panel at once.</source>
        <translation>הניחו חמש אצבעות על המסך בבת אחת.</translation>
    </message>
    <message id="kiv-multi-touch-hint">
        <source>Pass unlocks when two fingers have been told apart.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר הבחנה בין שתי אצבעות.</translation>
    </message>
    <message id="kiv-multi-touch-count">
        <source>%1 of %2</source>
        <extracomment>How many fingers were seen, and how many are wanted</extracomment>
        <translation>%1 מתוך %2</translation>
    </message>
    <message id="kiv-multi-touch-patience">
        <source>Ends in %1 s without a touch</source>
        <translation>מסתיים בעוד %1 שנ׳ ללא מגע</translation>
    </message>
    <message id="kiv-multi-touch-seen">
        <source>Fingers at once</source>
        <translation>אצבעות בבת אחת</translation>
    </message>
    <message id="kiv-prox-good">
        <source>The sensor saw the hand come and go.</source>
        <translation>החיישן זיהה את היד מתקרבת ומתרחקת.</translation>
    </message>
    <message id="kiv-prox-hint">
        <source>Pass unlocks when the hand was seen to come and go.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר זיהוי יד מתקרבת ומתרחקת.</translation>
    </message>
    <message id="kiv-prox-missing">
        <source>No proximity sensor was found.</source>
        <translation>לא נמצא חיישן קרבה.</translation>
    </message>
    <message id="kiv-prox-step-near">
        <source>Hold a hand over the top of the display</source>
        <translation>החזיקו יד מעל ראש הצג</translation>
    </message>
    <message id="kiv-prox-step-far">
        <source>Take the hand away</source>
        <translation>הרחיקו את היד</translation>
    </message>
    <message id="kiv-prox-near">
        <source>Something near</source>
        <translation>משהו קרוב</translation>
    </message>
    <message id="kiv-sd-card-none">
        <source>No card</source>
        <translation>אין כרטיס</translation>
    </message>
    <message id="kiv-sd-card-unmounted">
        <source>Not mounted</source>
        <translation>לא מעוגן</translation>
    </message>
    <message id="kiv-sd-card-mounting">
        <source>Being mounted</source>
        <translation>בתהליך עיגון</translation>
    </message>
    <message id="kiv-sd-card-mounted">
        <source>Mounted</source>
        <translation>מעוגן</translation>
    </message>
    <message id="kiv-sd-card-unmounting">
        <source>Being unmounted</source>
        <translation>העיגון מבוטל</translation>
    </message>
    <message id="kiv-sd-card-not-created">
        <source>No file could be created on the card.</source>
        <translation>לא היה אפשר ליצור קובץ בכרטיס.</translation>
    </message>
    <message id="kiv-sd-card-differs">
        <source>What was read is not what was written.</source>
        <translation>מה שנקרא אינו מה שנכתב.</translation>
    </message>
    <message id="kiv-sd-card-good">
        <source>A file was written, read back and removed.</source>
        <translation>קובץ נכתב, נקרא בחזרה ונמחק.</translation>
    </message>
    <message id="kiv-sd-card-working">
        <source>Writing and reading the card</source>
        <translation>כותב לכרטיס וקורא ממנו</translation>
    </message>
    <message id="kiv-sd-card-instructions-insert">
        <source>Put a memory card into the slot.</source>
        <translation>הכניסו כרטיס זיכרון לחריץ.</translation>
    </message>
    <message id="kiv-sd-card-instructions">
        <source>The card is tested as soon as it is mounted.</source>
        <translation>הכרטיס נבדק מיד כשהוא מעוגן.</translation>
    </message>
    <message id="kiv-sd-card-hint">
        <source>Pass unlocks when the card has been written and read.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר כתיבה לכרטיס וקריאה ממנו.</translation>
    </message>
    <message id="kiv-sd-card-missing">
        <source>There is no card in the slot.</source>
        <translation>אין כרטיס בחריץ.</translation>
    </message>
    <message id="kiv-sd-card-mount-failed">
        <source>A card could not be mounted: it may be damaged or have no file system.</source>
        <translation>לא היה אפשר לעגן כרטיס: ייתכן שהוא פגום או שאין בו מערכת קבצים.</translation>
    </message>
    <message id="kiv-sd-card-state">
        <source>Card</source>
        <translation>כרטיס</translation>
    </message>
    <message id="kiv-sd-card-outcome">
        <source>Write and read</source>
        <translation>כתיבה וקריאה</translation>
    </message>
    <message id="kiv-touch-good">
        <source>Every part of the panel has reacted.</source>
        <translation>כל חלקי המסך הגיבו.</translation>
    </message>
    <message id="kiv-touch-bad">
        <source>Parts of the panel did not react: %1 of %2</source>
        <translation>חלקים במסך שלא הגיבו: %1 מתוך %2</translation>
    </message>
    <message id="kiv-touch-instructions">
        <source>Wipe over the whole panel until no cell is left.</source>
        <translation>העבירו אצבע על כל המסך עד שלא יישאר אף תא.</translation>
    </message>
    <message id="kiv-touch-hint">
        <source>Pass unlocks when every cell has been wiped.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר מעבר על כל התאים.</translation>
    </message>
    <message id="kiv-touch-patience">
        <source>Ends in %1 s without a new cell</source>
        <translation>מסתיים בעוד %1 שנ׳ ללא תא חדש</translation>
    </message>
    <message id="kiv-touch-reacted">
        <source>Cells that reacted</source>
        <translation>תאים שהגיבו</translation>
    </message>
    <message id="kiv-charging-missing">
        <source>No battery was found, so charging cannot be observed.</source>
        <translation>לא נמצאה סוללה, ולכן אי אפשר לעקוב אחר הטעינה.</translation>
    </message>
    <message id="kiv-charging-switching-off">
        <source>Switching the charger off</source>
        <translation>מכבה את הטעינה</translation>
    </message>
    <message id="kiv-charging-switching-on">
        <source>Switching the charger on</source>
        <translation>מדליק את הטעינה</translation>
    </message>
    <message id="kiv-charging-good">
        <source>Charging stopped and resumed as it was switched.</source>
        <translation>הטעינה נפסקה והתחדשה לפי המתג.</translation>
    </message>
    <message id="kiv-charging-hint">
        <source>Pass unlocks when the charger has been switched off and on.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר כיבוי הטעינה והדלקתה.</translation>
    </message>
    <message id="kiv-charging-step-plug">
        <source>Plug a charger into the USB socket</source>
        <translation>חברו מטען לשקע ה־USB</translation>
    </message>
    <message id="kiv-charging-step-on">
        <source>The phone charges: wait</source>
        <translation>הטלפון נטען: המתינו</translation>
    </message>
    <message id="kiv-charging-step-off">
        <source>Kiv switches the charger off: charging stops</source>
        <translation>‏Kiv מכבה את הטעינה: היא נפסקת</translation>
    </message>
    <message id="kiv-charging-step-again">
        <source>Kiv switches the charger on: charging resumes</source>
        <translation>‏Kiv מדליק את הטעינה: היא מתחדשת</translation>
    </message>
    <message id="kiv-charging-current-on">
        <source>Current, charger on</source>
        <translation>זרם, טעינה דולקת</translation>
    </message>
    <message id="kiv-charging-current-off">
        <source>Current, charger off</source>
        <translation>זרם, טעינה כבויה</translation>
    </message>
    <message id="kiv-charging-stops">
        <source>Charging stops</source>
        <translation>הטעינה נפסקת</translation>
    </message>
    <message id="kiv-charging-resumes">
        <source>Charging resumes</source>
        <translation>הטעינה מתחדשת</translation>
    </message>
    <message id="kiv-vibrator-good">
        <source>The operator felt as many pulses as were given.</source>
        <translation>המפעיל הרגיש בדיוק את מספר הרטטים שניתנו.</translation>
    </message>
    <message id="kiv-vibrator-instructions">
        <source>Hold the phone in the hand and count the pulses.</source>
        <translation>החזיקו את הטלפון ביד וספרו את הרטטים.</translation>
    </message>
    <message id="kiv-vibrator-hint">
        <source>Pass unlocks when you have said how many pulses you felt.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר שתאמרו כמה רטטים הרגשתם.</translation>
    </message>
    <message id="kiv-vibrator-missing">
        <source>No vibrator was found.</source>
        <translation>לא נמצא מנוע רטט.</translation>
    </message>
    <message id="kiv-vibrator-question">
        <source>How many pulses did you feel?</source>
        <translation>כמה רטטים הרגשתם?</translation>
    </message>
    <message id="kiv-vibrator-again">
        <source>Give the pulses again</source>
        <translation>רטט חוזר</translation>
    </message>
    <message id="kiv-limits-accepted">
        <source>must be %1</source>
        <extracomment>The value that a reading must have</extracomment>
        <translation>חייב להיות ⁨%1⁩</translation>
    </message>
    <message id="kiv-sd-card-failed">
        <source>failed</source>
        <translation>נכשל</translation>
    </message>
    <message id="kiv-battery-charging">
        <source>Charging</source>
        <translation>נטענת</translation>
    </message>
    <message id="kiv-battery-discharging">
        <source>Discharging</source>
        <translation>מתרוקנת</translation>
    </message>
    <message id="kiv-battery-not-charging">
        <source>Not charging</source>
        <translation>לא נטענת</translation>
    </message>
    <message id="kiv-battery-full">
        <source>Full</source>
        <translation>מלאה</translation>
    </message>
    <message id="kiv-battery-unknown">
        <source>Unknown</source>
        <translation>לא ידוע</translation>
    </message>
    <message id="kiv-battery-health-good">
        <source>Good</source>
        <translation>טובה</translation>
    </message>
    <message id="kiv-battery-health-overheat">
        <source>Overheated</source>
        <translation>חמה מדי</translation>
    </message>
    <message id="kiv-battery-health-dead">
        <source>Dead</source>
        <translation>מתה</translation>
    </message>
    <message id="kiv-battery-health-over-voltage">
        <source>Over voltage</source>
        <translation>מתח יתר</translation>
    </message>
    <message id="kiv-battery-health-failure">
        <source>Unspecified failure</source>
        <translation>תקלה לא מוגדרת</translation>
    </message>
    <message id="kiv-battery-health-cold">
        <source>Cold</source>
        <translation>קרה מדי</translation>
    </message>
    <message id="kiv-settings-modems">
        <source>Modems</source>
        <translation>מודמים</translation>
    </message>
    <message id="kiv-settings-keys">
        <source>Keys to test</source>
        <translation>מקשים לבדיקה</translation>
    </message>
    <message id="kiv-settings-flash">
        <source>Flash of the back camera</source>
        <translation>מבזק המצלמה האחורית</translation>
    </message>
    <message id="kiv-settings-frequency">
        <source>FM frequency of the test</source>
        <translation>תדר ה־FM לבדיקה</translation>
    </message>
    <message id="kiv-settings-run-in">
        <source>Length of the run-in</source>
        <translation>משך ההרצה</translation>
    </message>
    <message id="kiv-settings-microphone-top">
        <source>Upper microphone</source>
        <translation>מיקרופון עליון</translation>
    </message>
    <message id="kiv-settings-microphone">
        <source>%1, channel %2</source>
        <extracomment>A microphone of the sound server and its channel</extracomment>
        <translation>‏⁦%1⁩, ערוץ ⁦%2⁩</translation>
    </message>
    <message id="kiv-settings-microphone-bottom">
        <source>Lower microphone</source>
        <translation>מיקרופון תחתון</translation>
    </message>
    <message id="kiv-settings-configured">
        <source>As its makers configured it:</source>
        <translation>כפי שהגדירו היצרנים:</translation>
    </message>
    <message id="kiv-headset-music-instructions">
        <source>Play each sound and listen to the headset: it must come from the side that its button names.</source>
        <translation>נגנו כל צליל והאזינו באוזניות: הוא חייב לבוא מהצד שרשום על הלחצן.</translation>
    </message>
    <message id="kiv-headset-music-instructions-plug">
        <source>Plug a headset in.</source>
        <translation>חברו אוזניות.</translation>
    </message>
    <message id="kiv-sound-left">
        <source>Left: low tone</source>
        <translation>שמאל: צליל נמוך</translation>
    </message>
    <message id="kiv-sound-right">
        <source>Right: high tone</source>
        <translation>ימין: צליל גבוה</translation>
    </message>
    <message id="kiv-sound-tune">
        <source>Play the tune</source>
        <translation>ניגון המנגינה</translation>
    </message>
    <message id="kiv-headset-music-plugged">
        <source>Headset</source>
        <translation>אוזניות</translation>
    </message>
    <message id="kiv-speaker-music-instructions">
        <source>Play the tune and listen to the loudspeaker: every tone must be clear, without rattling.</source>
        <translation>נגנו את המנגינה והאזינו לרמקול: כל צליל חייב להיות נקי, בלי רעשים.</translation>
    </message>
    <message id="kiv-receiver-instructions">
        <source>Play the tune and hold the phone to your ear: it must come from the earpiece only.</source>
        <translation>נגנו את המנגינה והצמידו את הטלפון לאוזן: היא חייבת לבוא מהאפרכסת בלבד.</translation>
    </message>
    <message id="kiv-speaker-stereo-instructions">
        <source>Play each sound: it must come from the side that its button names.</source>
        <translation>נגנו כל צליל: הוא חייב לבוא מהצד שרשום על הלחצן.</translation>
    </message>
    <message id="kiv-sound-both">
        <source>Both sides</source>
        <translation>שני הצדדים</translation>
    </message>
    <message id="kiv-microphone-missing">
        <source>The sound server has no built-in microphone, or its tool does not answer.</source>
        <translation>לשרת הקול אין מיקרופון מובנה, או שהכלי שלו אינו עונה.</translation>
    </message>
    <message id="kiv-microphone-hint">
        <source>Pass unlocks when a recording has been played back.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר השמעת הקלטה.</translation>
    </message>
    <message id="kiv-microphone-working">
        <source>Looking for the microphone</source>
        <translation>מחפש את המיקרופון</translation>
    </message>
    <message id="kiv-microphone-recording">
        <source>Recording: speak now.</source>
        <translation>מקליט: דברו עכשיו.</translation>
    </message>
    <message id="kiv-microphone-playing">
        <source>Playing what was recorded.</source>
        <translation>משמיע את מה שהוקלט.</translation>
    </message>
    <message id="kiv-microphone-record">
        <source>Record four seconds</source>
        <translation>הקלטה של ארבע שניות</translation>
    </message>
    <message id="kiv-microphone-play">
        <source>Play it again</source>
        <translation>השמעה חוזרת</translation>
    </message>
    <message id="kiv-sound-missing">
        <source>The sound server has no main output, or its tool does not answer.</source>
        <translation>לשרת הקול אין יציאה ראשית, או שהכלי שלו אינו עונה.</translation>
    </message>
    <message id="kiv-sound-hint">
        <source>Pass unlocks when every sound has been played.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר ניגון כל הצלילים.</translation>
    </message>
    <message id="kiv-sound-working">
        <source>Setting up the sound output</source>
        <translation>מכין את יציאת הקול</translation>
    </message>
    <message id="kiv-system-streams">
        <source>What plays into the sound server</source>
        <translation>מה מושמע דרך שרת הקול</translation>
    </message>
    <message id="kiv-system-stream-paused">
        <source>paused</source>
        <translation>מושהה</translation>
    </message>
    <message id="kiv-system-stream-muted">
        <source>muted</source>
        <translation>מושתק</translation>
    </message>
    <message id="kiv-microphone-bottom">
        <source>Speak into the microphone at the bottom of the phone and listen to the recording.</source>
        <translation>דברו אל המיקרופון שבתחתית הטלפון והאזינו להקלטה.</translation>
    </message>
    <message id="kiv-microphone-top">
        <source>Speak into the microphone at the top of the phone and listen to the recording.</source>
        <translation>דברו אל המיקרופון שבראש הטלפון והאזינו להקלטה.</translation>
    </message>
    <message id="kiv-fm-radio-instructions">
        <source>Plug a headset in, whose cable is the antenna, and switch the radio on. A station or at least noise must be heard.</source>
        <translation>חברו אוזניות, שהכבל שלהן הוא האנטנה, והדליקו את הרדיו. צריך להישמע שידור, או לפחות רעש.</translation>
    </message>
    <message id="kiv-fm-radio-hint">
        <source>Pass unlocks when the radio has been on.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר שהרדיו יידלק.</translation>
    </message>
    <message id="kiv-fm-radio-antenna">
        <source>Headset as antenna</source>
        <translation>האוזניות כאנטנה</translation>
    </message>
    <message id="kiv-fm-radio-frequency">
        <source>Frequency</source>
        <translation>תדר</translation>
    </message>
    <message id="kiv-fm-radio-loop">
        <source>Radio switched to the headset</source>
        <translation>הרדיו מנותב לאוזניות</translation>
    </message>
    <message id="kiv-fm-radio-off">
        <source>Switch the radio off</source>
        <translation>כיבוי הרדיו</translation>
    </message>
    <message id="kiv-fm-radio-on">
        <source>Switch the radio on</source>
        <translation>הדלקת הרדיו</translation>
    </message>
    <message id="kiv-fm-radio-refused">
        <source>The radio could not be switched on: the audio policy does not answer or does not offer it.</source>
        <translation>לא היה אפשר להדליק את הרדיו: שירות ניתוב הקול אינו עונה או אינו מציע אותו.</translation>
    </message>
    <message id="kiv-microphone-unplayed">
        <source>The sound server did not play the recording: it was restarted while Kiv was running. Restart Kiv.</source>
        <translation>שרת הקול לא השמיע את ההקלטה: הוא הופעל מחדש בזמן ש־Kiv פעל. הפעילו מחדש את Kiv.</translation>
    </message>
    <message id="kiv-sound-unreached">
        <source>The sound server does not answer. Try again once it runs. If that does not help, restart Kiv.</source>
        <translation>שרת הקול אינו עונה. נסו שוב כשיפעל. אם זה לא עוזר, הפעילו מחדש את Kiv.</translation>
    </message>
    <message id="kiv-microphone-putting-back">
        <source>Putting the microphone back. This takes up to two minutes while the sound server does not answer.</source>
        <translation>מחזיר את המיקרופון למצבו. זה נמשך עד שתי דקות כששרת הקול אינו עונה.</translation>
    </message>
    <message id="kiv-microphone-no-level">
        <source>The phone shows no level. Listen to the recording afterwards.</source>
        <translation>הטלפון אינו מראה עוצמה. האזינו אחר כך להקלטה.</translation>
    </message>
    <message id="kiv-microphone-silent">
        <source>Nothing heard? Then the microphone is deaf, or the folder /tmp is full: a recording takes about 800 kB there.</source>
        <translation>לא שמעתם דבר? אז המיקרופון אינו קולט, או שהתיקייה ⁦/tmp⁩ מלאה: הקלטה תופסת בה בערך ⁦800 kB⁩.</translation>
    </message>
    <message id="kiv-side-left">
        <source>Left</source>
        <translation>שמאל</translation>
    </message>
    <message id="kiv-side-right">
        <source>Right</source>
        <translation>ימין</translation>
    </message>
    <message id="kiv-side-none">
        <source>Neither, or I cannot tell</source>
        <translation>אף צד, או שאי אפשר לדעת</translation>
    </message>
    <message id="kiv-sides-wrong">
        <source>A tone played on the side &quot;%1&quot; was heard as &quot;%2&quot;</source>
        <extracomment>From which side a tone came, and from which the operator heard it</extracomment>
        <translation>צליל שנוגן בצד &quot;%1&quot; נשמע כ&quot;%2&quot;</translation>
    </message>
    <message id="kiv-sides-good">
        <source>The operator heard every tone from its side: %1 of %1</source>
        <translation>המפעיל שמע כל צליל מהצד שלו: %1 מתוך %1</translation>
    </message>
    <message id="kiv-sides-question">
        <source>From which side does the tone come? Question %1 of %2</source>
        <extracomment>Number of this question and of all of them</extracomment>
        <translation>מאיזה צד בא הצליל? שאלה %1 מתוך %2</translation>
    </message>
    <message id="kiv-sides-again">
        <source>Play the tone again</source>
        <translation>השמעה חוזרת של הצליל</translation>
    </message>
    <message id="kiv-sides-play">
        <source>Play the tone</source>
        <translation>השמעת הצליל</translation>
    </message>
    <message id="kiv-sound-unswitched">
        <source>The sound server does not switch to the output %1.</source>
        <extracomment>The name of the output in the sound server</extracomment>
        <translation>שרת הקול אינו עובר ליציאה ⁨%1⁩.</translation>
    </message>
    <message id="kiv-sides-hint">
        <source>Answer from which side each tone comes: the answers are the verdict.</source>
        <translation>ענו מאיזה צד בא כל צליל: התשובות הן ההכרעה.</translation>
    </message>
    <message id="kiv-fm-radio-working">
        <source>Waiting for the audio policy</source>
        <translation>ממתין לשירות ניתוב הקול</translation>
    </message>
    <message id="kiv-gps-satellite">
        <source>Satellite %1, %2 dB</source>
        <extracomment>A satellite: its number, its strength in decibels</extracomment>
        <translation>לוויין %1, ⁦%2 dB⁩</translation>
    </message>
    <message id="kiv-gps-used">
        <source>in use</source>
        <translation>בשימוש</translation>
    </message>
    <message id="kiv-gps-more">
        <source>Weaker ones that are not shown: %1</source>
        <extracomment>How many satellites have no bar</extracomment>
        <translation>חלשים יותר שאינם מוצגים: %1</translation>
    </message>
    <message id="kiv-gps-sky">
        <source>Places of the satellites in the sky</source>
        <translation>מקומות הלוויינים בשמיים</translation>
    </message>
    <message id="kiv-gps-north">
        <source>N</source>
        <extracomment>North, one or two letters</extracomment>
        <translation>צפ׳</translation>
    </message>
    <message id="kiv-gps-east">
        <source>E</source>
        <extracomment>East, one or two letters</extracomment>
        <translation>מז׳</translation>
    </message>
    <message id="kiv-gps-south">
        <source>S</source>
        <extracomment>South, one or two letters</extracomment>
        <translation>דר׳</translation>
    </message>
    <message id="kiv-gps-west">
        <source>W</source>
        <extracomment>West, one or two letters</extracomment>
        <translation>מע׳</translation>
    </message>
    <message id="kiv-test-radios">
        <source>Radio switches</source>
        <translation>מתגי הרדיו</translation>
    </message>
    <message id="kiv-bluetooth-off">
        <source>Bluetooth is switched off.</source>
        <translation>ה־Bluetooth כבוי.</translation>
    </message>
    <message id="kiv-bluetooth-no-radio">
        <source>No Bluetooth radio was found.</source>
        <translation>לא נמצא רכיב Bluetooth.</translation>
    </message>
    <message id="kiv-bluetooth-no-service">
        <source>The Bluetooth service is in trouble or not there.</source>
        <translation>שירות ה־Bluetooth תקול או לא קיים.</translation>
    </message>
    <message id="kiv-network-none">
        <source>no network</source>
        <translation>אין רשת</translation>
    </message>
    <message id="kiv-network-emergency">
        <source>emergency calls only</source>
        <translation>שיחות חירום בלבד</translation>
    </message>
    <message id="kiv-network-searching">
        <source>searching</source>
        <translation>מחפש</translation>
    </message>
    <message id="kiv-network-busy">
        <source>busy</source>
        <translation>תפוס</translation>
    </message>
    <message id="kiv-network-denied">
        <source>refused by the network</source>
        <translation>נדחה על ידי הרשת</translation>
    </message>
    <message id="kiv-network-home">
        <source>connected</source>
        <translation>מחובר</translation>
    </message>
    <message id="kiv-network-roaming">
        <source>connected, roaming</source>
        <translation>מחובר, בנדידה</translation>
    </message>
    <message id="kiv-switch-on">
        <source>on</source>
        <translation>דולק</translation>
    </message>
    <message id="kiv-switch-off">
        <source>off</source>
        <translation>כבוי</translation>
    </message>
    <message id="kiv-radios-instructions">
        <source>Compare these with the phone&apos;s settings. A switch that is moved there must move here, too.</source>
        <translation>השוו להגדרות הטלפון. מתג שמוזז שם חייב לזוז גם כאן.</translation>
    </message>
    <message id="kiv-radios-hint">
        <source>Pass unlocks when the mode-control service has answered.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר תשובת שירות בקרת המצב.</translation>
    </message>
    <message id="kiv-radios-lost">
        <source>The mode-control service does not answer.</source>
        <translation>שירות בקרת המצב אינו עונה.</translation>
    </message>
    <message id="kiv-radios-service">
        <source>Mode-control service</source>
        <translation>שירות בקרת המצב</translation>
    </message>
    <message id="kiv-service-answers">
        <source>answers</source>
        <translation>עונה</translation>
    </message>
    <message id="kiv-service-silent">
        <source>does not answer</source>
        <translation>אינו עונה</translation>
    </message>
    <message id="kiv-radios-nfc">
        <source>NFC</source>
        <translation>NFC</translation>
    </message>
    <message id="kiv-radios-fm-transmitter">
        <source>FM transmitter</source>
        <translation>משדר FM</translation>
    </message>
    <message id="kiv-radios-4g">
        <source>4G preferred by the modem settings</source>
        <translation>הגדרות המודם מעדיפות 4G</translation>
    </message>
    <message id="kiv-system-duration">
        <source>%1 h %2 min %3 s</source>
        <extracomment>A duration: hours, minutes, seconds</extracomment>
        <translation>%1 שע׳ %2 דק׳ %3 שנ׳</translation>
    </message>
    <message id="kiv-system-up">
        <source>Switched on for</source>
        <translation>דולק כבר</translation>
    </message>
    <message id="kiv-system-asleep">
        <source>Asleep meanwhile</source>
        <translation>מתוכן בשינה</translation>
    </message>
    <message id="kiv-bluetooth-working">
        <source>Asking for the Bluetooth radio</source>
        <translation>שואל על רכיב ה־Bluetooth</translation>
    </message>
    <message id="kiv-bluetooth-good">
        <source>The address is in order, and the radio found a device: %1</source>
        <translation>הכתובת תקינה, ורכיב הרדיו מצא התקן: ⁦%1⁩</translation>
    </message>
    <message id="kiv-bluetooth-instructions-blind">
        <source>The address is compared with its pattern. Then see in the phone&apos;s settings whether it finds devices.</source>
        <translation>הכתובת מושווית לתבנית. אחר כך בדקו בהגדרות הטלפון אם הוא מוצא התקנים.</translation>
    </message>
    <message id="kiv-bluetooth-instructions">
        <source>Put a device nearby that can be found, such as a headset that is being paired.</source>
        <translation>הניחו בקרבת מקום התקן שאפשר למצוא, כגון אוזניות במצב צימוד.</translation>
    </message>
    <message id="kiv-bluetooth-hint">
        <source>Pass unlocks when the address is in order and the radio has searched.</source>
        <translation>&quot;עבר&quot; ייפתח כשהכתובת תקינה ורכיב הרדיו סיים לחפש.</translation>
    </message>
    <message id="kiv-bluetooth-missing">
        <source>This phone has no Bluetooth.</source>
        <translation>אין בטלפון הזה Bluetooth.</translation>
    </message>
    <message id="kiv-radio-blind">
        <source>This phone&apos;s system does not tell anything about the radio.</source>
        <translation>המערכת של הטלפון הזה אינה מספרת דבר על רכיב הרדיו.</translation>
    </message>
    <message id="kiv-bluetooth-nobody">
        <source>The radio searched, but no device answered.</source>
        <translation>רכיב הרדיו חיפש, אך אף התקן לא ענה.</translation>
    </message>
    <message id="kiv-bluetooth-again">
        <source>Search again</source>
        <translation>חיפוש נוסף</translation>
    </message>
    <message id="kiv-bluetooth-searching">
        <source>Searching</source>
        <translation>מחפש</translation>
    </message>
    <message id="kiv-radio-found">
        <source>Radio found</source>
        <translation>נמצא רכיב רדיו</translation>
    </message>
    <message id="kiv-bluetooth-devices">
        <source>Devices found</source>
        <translation>התקנים שנמצאו</translation>
    </message>
    <message id="kiv-gps-status-error">
        <source>in trouble or not there</source>
        <translation>תקול או לא קיים</translation>
    </message>
    <message id="kiv-gps-status-unavailable">
        <source>cannot position</source>
        <translation>אינו יכול לאתר</translation>
    </message>
    <message id="kiv-gps-status-acquiring">
        <source>looking for the position</source>
        <translation>מחפש את המיקום</translation>
    </message>
    <message id="kiv-gps-status-available">
        <source>knows the position</source>
        <translation>יודע את המיקום</translation>
    </message>
    <message id="kiv-gps-status-unknown">
        <source>unknown (%1)</source>
        <extracomment>The service reports a state that has no name</extracomment>
        <translation>לא ידוע (⁨%1⁩)</translation>
    </message>
    <message id="kiv-gps-good">
        <source>A satellite was in use after %1 s.</source>
        <translation>לוויין היה בשימוש אחרי %1 שנ׳.</translation>
    </message>
    <message id="kiv-gps-instructions">
        <source>Go outdoors or to a window. The first satellite may take some minutes.</source>
        <translation>צאו החוצה או גשו לחלון. הלוויין הראשון עשוי להופיע רק אחרי כמה דקות.</translation>
    </message>
    <message id="kiv-gps-hint-position">
        <source>Pass unlocks when the positioning service knows the position.</source>
        <translation>&quot;עבר&quot; ייפתח כששירות המיקום ידע את המיקום.</translation>
    </message>
    <message id="kiv-gps-hint">
        <source>Pass unlocks when a satellite is in use.</source>
        <translation>&quot;עבר&quot; ייפתח כשלוויין יהיה בשימוש.</translation>
    </message>
    <message id="kiv-gps-missing">
        <source>This phone has no satellite receiver.</source>
        <translation>אין בטלפון הזה מקלט לוויינים.</translation>
    </message>
    <message id="kiv-gps-no-source">
        <source>The system offers no view of the satellites, only the state of the positioning service.</source>
        <translation>המערכת אינה מציגה את הלוויינים אלא רק את מצב שירות המיקום.</translation>
    </message>
    <message id="kiv-gps-error">
        <source>The positioning service is in trouble or does not answer.</source>
        <translation>שירות המיקום תקול או אינו עונה.</translation>
    </message>
    <message id="kiv-gps-unavailable">
        <source>The positioning service cannot position. Is positioning switched on in the phone&apos;s settings?</source>
        <translation>שירות המיקום אינו יכול לאתר. האם המיקום מופעל בהגדרות הטלפון?</translation>
    </message>
    <message id="kiv-gps-source-error">
        <source>The receiver reports an error.</source>
        <translation>המקלט מדווח על שגיאה.</translation>
    </message>
    <message id="kiv-gps-silent">
        <source>The receiver has not reported for %1 s.</source>
        <translation>המקלט לא דיווח כבר %1 שנ׳.</translation>
    </message>
    <message id="kiv-gps-legend">
        <source>in use for the position</source>
        <translation>בשימוש למיקום</translation>
    </message>
    <message id="kiv-gps-status">
        <source>Positioning service</source>
        <translation>שירות המיקום</translation>
    </message>
    <message id="kiv-gps-in-view">
        <source>Satellites in view</source>
        <translation>לוויינים בשדה הראייה</translation>
    </message>
    <message id="kiv-gps-in-use">
        <source>Satellites in use</source>
        <translation>לוויינים בשימוש</translation>
    </message>
    <message id="kiv-gps-first-seen">
        <source>First satellite in view after</source>
        <translation>לוויין ראשון נראה אחרי</translation>
    </message>
    <message id="kiv-gps-first-used">
        <source>First satellite in use after</source>
        <translation>לוויין ראשון בשימוש אחרי</translation>
    </message>
    <message id="kiv-sim-working">
        <source>Asking the telephony service</source>
        <translation>שואל את שירות הטלפוניה</translation>
    </message>
    <message id="kiv-sim-silent">
        <source>The telephony service reports no modem, or does not answer.</source>
        <translation>שירות הטלפוניה אינו מדווח על מודם, או אינו עונה.</translation>
    </message>
    <message id="kiv-sim-good">
        <source>Every SIM card could be read.</source>
        <translation>היה אפשר לקרוא את כל כרטיסי ה־SIM.</translation>
    </message>
    <message id="kiv-sim-instructions-blind">
        <source>See in the phone&apos;s settings whether it knows its SIM card.</source>
        <translation>בדקו בהגדרות הטלפון אם הוא מכיר את כרטיס ה־SIM שלו.</translation>
    </message>
    <message id="kiv-sim-instructions">
        <source>Every SIM slot needs a card. One that is locked has to be unlocked first.</source>
        <translation>בכל חריץ SIM צריך להיות כרטיס. כרטיס נעול יש לפתוח קודם.</translation>
    </message>
    <message id="kiv-sim-hint">
        <source>Pass unlocks when a SIM card has been read.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר קריאת כרטיס SIM.</translation>
    </message>
    <message id="kiv-sim-missing">
        <source>This phone has no modem.</source>
        <translation>אין בטלפון הזה מודם.</translation>
    </message>
    <message id="kiv-sim-cardless">
        <source>A SIM card is not there, is locked or cannot be read. Look after it, then ask again.</source>
        <translation>כרטיס SIM חסר, נעול או לא קריא. טפלו בו ושאלו שוב.</translation>
    </message>
    <message id="kiv-sim-again">
        <source>Ask again</source>
        <translation>שאילתה נוספת</translation>
    </message>
    <message id="kiv-sim-card">
        <source>SIM card read</source>
        <translation>כרטיס SIM נקרא</translation>
    </message>
    <message id="kiv-sim-card-number">
        <source>SIM card %1 read</source>
        <translation>כרטיס SIM %1 נקרא</translation>
    </message>
    <message id="kiv-sim-home">
        <source>Network of the card</source>
        <extracomment>The country and the network, both as numbers, that a SIM card belongs to</extracomment>
        <translation>הרשת של הכרטיס</translation>
    </message>
    <message id="kiv-sim-state">
        <source>Mobile network</source>
        <translation>רשת סלולרית</translation>
    </message>
    <message id="kiv-network-name">
        <source>Network</source>
        <translation>רשת</translation>
    </message>
    <message id="kiv-network-strength">
        <source>Signal strength</source>
        <translation>עוצמת האות</translation>
    </message>
    <message id="kiv-sim-cards">
        <source>SIM cards read</source>
        <translation>כרטיסי SIM שנקראו</translation>
    </message>
    <message id="kiv-usb-otg-good">
        <source>A drive was seen to come and go.</source>
        <translation>כונן זוהה מתחבר ומתנתק.</translation>
    </message>
    <message id="kiv-usb-otg-hint">
        <source>Pass unlocks when a drive was seen to come and go.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר זיהוי כונן מתחבר ומתנתק.</translation>
    </message>
    <message id="kiv-usb-otg-missing">
        <source>This phone cannot take USB devices.</source>
        <translation>הטלפון הזה אינו מקבל התקני USB.</translation>
    </message>
    <message id="kiv-usb-otg-step-plug">
        <source>Plug a USB drive in, with the adapter. If one is in already, pull it out first</source>
        <translation>חברו כונן USB בעזרת המתאם. אם כבר מחובר אחד, נתקו אותו קודם</translation>
    </message>
    <message id="kiv-usb-otg-step-pull">
        <source>Pull it out</source>
        <translation>נתקו אותו</translation>
    </message>
    <message id="kiv-usb-otg-late-gone">
        <source>The system has not announced that the drive is gone.</source>
        <translation>המערכת לא הודיעה שהכונן נותק.</translation>
    </message>
    <message id="kiv-usb-otg-late">
        <source>The system has not announced any drive.</source>
        <translation>המערכת לא הודיעה על שום כונן.</translation>
    </message>
    <message id="kiv-usb-otg-drive">
        <source>USB drive</source>
        <translation>כונן USB</translation>
    </message>
    <message id="kiv-usb-otg-there">
        <source>plugged in</source>
        <translation>מחובר</translation>
    </message>
    <message id="kiv-usb-otg-none">
        <source>none seen</source>
        <translation>לא נראה</translation>
    </message>
    <message id="kiv-wifi-good">
        <source>The address is in order, and the radio is connected to a network.</source>
        <translation>הכתובת תקינה, ורכיב הרדיו מחובר לרשת.</translation>
    </message>
    <message id="kiv-wifi-instructions-blind">
        <source>The address is compared with its pattern. Then see in the phone&apos;s settings whether it finds networks.</source>
        <translation>הכתובת מושווית לתבנית. אחר כך בדקו בהגדרות הטלפון אם הוא מוצא רשתות.</translation>
    </message>
    <message id="kiv-wifi-instructions">
        <source>Switch Wi-Fi on and connect the phone to a network: the test passes by itself.</source>
        <translation>הדליקו Wi-Fi וחברו את הטלפון לרשת: הבדיקה עוברת מעצמה.</translation>
    </message>
    <message id="kiv-wifi-hint">
        <source>Pass unlocks when the address is in order and the radio was found.</source>
        <translation>&quot;עבר&quot; ייפתח כשהכתובת תקינה ורכיב הרדיו נמצא.</translation>
    </message>
    <message id="kiv-wifi-missing">
        <source>This phone has no Wi-Fi.</source>
        <translation>אין בטלפון הזה Wi-Fi.</translation>
    </message>
    <message id="kiv-wifi-unconnected">
        <source>The radio is there, but not connected. Without a network in reach, judge by the networks that the settings list.</source>
        <translation>רכיב הרדיו קיים אך אינו מחובר. אם אין רשת בטווח, שפטו לפי הרשתות שמופיעות בהגדרות.</translation>
    </message>
    <message id="kiv-wifi-connection">
        <source>Connection</source>
        <translation>חיבור</translation>
    </message>
    <message id="kiv-zel-good">
        <source>The cover was seen to come and go. Its identifier: %1</source>
        <translation>הכיסוי זוהה מתחבר ומוסר. המזהה שלו: ⁦%1⁩</translation>
    </message>
    <message id="kiv-zel-nameless">
        <source>The cover was seen to come and go, but it did not tell its identifier.</source>
        <translation>הכיסוי זוהה מתחבר ומוסר, אך לא מסר את המזהה שלו.</translation>
    </message>
    <message id="kiv-zel-hint">
        <source>Pass unlocks when a cover was seen to come and go.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר זיהוי כיסוי מתחבר ומוסר.</translation>
    </message>
    <message id="kiv-zel-missing">
        <source>This phone has no smart-cover service.</source>
        <translation>אין בטלפון הזה שירות לכיסוי חכם.</translation>
    </message>
    <message id="kiv-zel-lost">
        <source>The smart-cover service does not answer.</source>
        <translation>שירות הכיסוי החכם אינו עונה.</translation>
    </message>
    <message id="kiv-zel-not-ready">
        <source>The smart-cover service is not ready to recognise covers yet.</source>
        <translation>שירות הכיסוי החכם עדיין אינו מוכן לזהות כיסויים.</translation>
    </message>
    <message id="kiv-zel-step-dock">
        <source>Put a smart cover on the phone</source>
        <translation>שימו כיסוי חכם על הטלפון</translation>
    </message>
    <message id="kiv-zel-step-remove">
        <source>Take it off again</source>
        <translation>הסירו אותו</translation>
    </message>
    <message id="kiv-zel-service">
        <source>Smart-cover service</source>
        <translation>שירות הכיסוי החכם</translation>
    </message>
    <message id="kiv-zel-ready">
        <source>Ready for covers</source>
        <translation>מוכן לכיסויים</translation>
    </message>
    <message id="kiv-zel-docked">
        <source>Cover on the phone</source>
        <translation>כיסוי על הטלפון</translation>
    </message>
    <message id="kiv-zel-identifier">
        <source>Identifier of the cover</source>
        <translation>מזהה הכיסוי</translation>
    </message>
    <message id="kiv-sim-modem-count">
        <source>Modems</source>
        <translation>מודמים</translation>
    </message>
    <message id="kiv-challenge-mistake">
        <source>Shown: %1, answered: %2</source>
        <extracomment>A wrong answer: what was shown and what the operator said</extracomment>
        <translation>הוצג: ⁨%1⁩, נענה: ⁨%2⁩</translation>
    </message>
    <message id="kiv-challenge-second">
        <source>That was not right. You have one more try, with something new.</source>
        <translation>זה לא היה נכון. יש לכם ניסיון אחד נוסף, עם משהו חדש.</translation>
    </message>
    <message id="kiv-challenge-round">
        <source>Answer %1 of %2</source>
        <extracomment>How far the operator is with a question that is asked several times</extracomment>
        <translation>תשובה %1 מתוך %2</translation>
    </message>
    <message id="kiv-checks-position">
        <source>Question %1 of %2</source>
        <extracomment>How far the operator is with a list of questions</extracomment>
        <translation>שאלה %1 מתוך %2</translation>
    </message>
    <message id="kiv-checks-yes">
        <source>Yes</source>
        <translation>כן</translation>
    </message>
    <message id="kiv-checks-no">
        <source>No</source>
        <translation>לא</translation>
    </message>
    <message id="kiv-data-missing">
        <source>No modem was found, so there is no mobile data.</source>
        <translation>לא נמצא מודם, ולכן אין נתונים סלולריים.</translation>
    </message>
    <message id="kiv-data-instructions">
        <source>Switch Wi-Fi off and mobile data on, open a web page that was not open before, and switch Wi-Fi on again.</source>
        <translation>כבו את ה־Wi-Fi והדליקו נתונים סלולריים, פתחו דף אינטרנט שלא נפתח קודם, והדליקו שוב את ה־Wi-Fi.</translation>
    </message>
    <message id="kiv-data-note">
        <source>Kiv cannot tell over which radio a page comes. Where the phone has two SIM cards, try each.</source>
        <translation>‏Kiv אינו יכול לדעת דרך איזה חיבור הגיע הדף. בטלפון עם שני כרטיסי SIM נסו את שניהם.</translation>
    </message>
    <message id="kiv-data-good">
        <source>The operator loaded a web page over mobile data.</source>
        <translation>המפעיל טען דף אינטרנט דרך נתונים סלולריים.</translation>
    </message>
    <message id="kiv-data-loaded">
        <source>SIM card %1: did the web page load without Wi-Fi?</source>
        <translation>כרטיס SIM %1: האם הדף נטען בלי Wi-Fi?</translation>
    </message>
    <message id="kiv-data-loaded-bad">
        <source>SIM card %1: nothing was loaded over mobile data.</source>
        <translation>כרטיס SIM %1: דבר לא נטען דרך נתונים סלולריים.</translation>
    </message>
    <message id="kiv-data-broke">
        <source>SIM card %1: did the connection break off meanwhile?</source>
        <translation>כרטיס SIM %1: האם החיבור נותק בינתיים?</translation>
    </message>
    <message id="kiv-data-broke-bad">
        <source>SIM card %1: the mobile connection broke off.</source>
        <translation>כרטיס SIM %1: החיבור הסלולרי נותק.</translation>
    </message>
    <message id="kiv-voice-heard">
        <source>SIM card %1: could you hear the other end?</source>
        <translation>כרטיס SIM %1: האם שמעתם את הצד השני?</translation>
    </message>
    <message id="kiv-voice-heard-bad">
        <source>SIM card %1: the other end could not be heard.</source>
        <translation>כרטיס SIM %1: הצד השני לא נשמע.</translation>
    </message>
    <message id="kiv-voice-clear">
        <source>SIM card %1: did the call break off, crackle or echo?</source>
        <translation>כרטיס SIM %1: האם השיחה נקטעה, רעשה או הדהדה?</translation>
    </message>
    <message id="kiv-voice-clear-bad">
        <source>SIM card %1: the call broke off, crackled or echoed.</source>
        <translation>כרטיס SIM %1: השיחה נקטעה, רעשה או הדהדה.</translation>
    </message>
    <message id="kiv-voice-spoke">
        <source>SIM card %1: could the other end hear you?</source>
        <translation>כרטיס SIM %1: האם הצד השני שמע אתכם?</translation>
    </message>
    <message id="kiv-voice-spoke-bad">
        <source>SIM card %1: the other end heard nothing.</source>
        <translation>כרטיס SIM %1: הצד השני לא שמע דבר.</translation>
    </message>
    <message id="kiv-voice-missing">
        <source>No modem was found, so no call can be made.</source>
        <translation>לא נמצא מודם, ולכן אי אפשר להתקשר.</translation>
    </message>
    <message id="kiv-voice-instructions">
        <source>Call a second phone or a test line with the phone&apos;s own dialler, speak for a moment, and hang up.</source>
        <translation>התקשרו לטלפון שני או לקו בדיקה בחייגן של הטלפון, דברו רגע ונתקו.</translation>
    </message>
    <message id="kiv-voice-note">
        <source>Kiv makes no calls by itself. Where the phone has two SIM cards, call with each.</source>
        <translation>‏Kiv אינו מתקשר בעצמו. בטלפון עם שני כרטיסי SIM התקשרו מכל אחד מהם.</translation>
    </message>
    <message id="kiv-voice-good">
        <source>The operator made a call and both ends heard each other.</source>
        <translation>המפעיל קיים שיחה, ושני הצדדים שמעו זה את זה.</translation>
    </message>
    <message id="kiv-guided-hint">
        <source>Pass unlocks when you have answered the questions.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר שתענו על השאלות.</translation>
    </message>
    <message id="kiv-reboot-missing">
        <source>The system does not tell when it was started.</source>
        <translation>המערכת אינה אומרת מתי הופעלה.</translation>
    </message>
    <message id="kiv-reboot-instructions">
        <source>Restart the phone with its power key or its menu. When it is up again, start Kiv and open this test anew.</source>
        <translation>הפעילו מחדש את הטלפון במקש ההפעלה או בתפריט. כשיעלה, הפעילו את Kiv ופתחו שוב את הבדיקה הזאת.</translation>
    </message>
    <message id="kiv-reboot-hint">
        <source>Pass unlocks when the phone was restarted a short while ago and you have answered the questions.</source>
        <translation>&quot;עבר&quot; ייפתח כשהטלפון הופעל מחדש לפני זמן קצר ועניתם על השאלות.</translation>
    </message>
    <message id="kiv-reboot-note">
        <source>A restart ends Kiv, and the verdicts that are not kept elsewhere are gone: do this test first or by itself.</source>
        <translation>הפעלה מחדש סוגרת את Kiv, והכרעות שלא נשמרו במקום אחר אובדות: בצעו את הבדיקה הזאת ראשונה או לבדה.</translation>
    </message>
    <message id="kiv-reboot-first">
        <source>Did the phone come up at the first try, up to its usual screen?</source>
        <translation>האם הטלפון עלה בניסיון הראשון, עד למסך הרגיל?</translation>
    </message>
    <message id="kiv-reboot-first-bad">
        <source>The phone did not come up at the first try.</source>
        <translation>הטלפון לא עלה בניסיון הראשון.</translation>
    </message>
    <message id="kiv-reboot-error">
        <source>Did it show an error, or ask for anything that it did not ask for before?</source>
        <translation>האם הוא הציג שגיאה או שאל משהו שלא שאל קודם?</translation>
    </message>
    <message id="kiv-reboot-error-bad">
        <source>The phone showed an error while it started.</source>
        <translation>הטלפון הציג שגיאה בזמן העלייה.</translation>
    </message>
    <message id="kiv-reboot-good">
        <source>The phone was restarted and came up again.</source>
        <translation>הטלפון הופעל מחדש ועלה שוב.</translation>
    </message>
    <message id="kiv-reboot-age">
        <source>Since the start</source>
        <translation>מאז ההפעלה</translation>
    </message>
    <message id="kiv-suspend-good">
        <source>The phone slept and woke up: %1 s</source>
        <translation>הטלפון ישן והתעורר: %1 שנ׳</translation>
    </message>
    <message id="kiv-suspend-instructions">
        <source>Unplug the charger and press the power key, so that the panel goes dark. Wait half a minute, then wake the phone.</source>
        <translation>נתקו את המטען ולחצו על מקש ההפעלה כדי שהצג יחשיך. המתינו חצי דקה ואז העירו את הטלפון.</translation>
    </message>
    <message id="kiv-suspend-hint">
        <source>Pass unlocks when the phone has slept.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר שהטלפון ישן.</translation>
    </message>
    <message id="kiv-suspend-missing">
        <source>The mode-control service does not answer, so nobody knows whether the phone has slept.</source>
        <translation>שירות בקרת המצב אינו עונה, ולכן אין לדעת אם הטלפון ישן.</translation>
    </message>
    <message id="kiv-suspend-step-sleep">
        <source>Let the phone sleep</source>
        <translation>תנו לטלפון לישון</translation>
    </message>
    <message id="kiv-suspend-step-wake">
        <source>Wake it</source>
        <translation>העירו אותו</translation>
    </message>
    <message id="kiv-suspend-note">
        <source>A phone that charges or that a computer is connected to stays awake behind its dark panel.</source>
        <translation>טלפון שנטען או שמחובר למחשב נשאר ער מאחורי הצג החשוך.</translation>
    </message>
    <message id="kiv-suspend-total">
        <source>Slept since the phone was started</source>
        <translation>ישן מאז ההפעלה</translation>
    </message>
    <message id="kiv-suspend-since">
        <source>Slept during this test</source>
        <translation>ישן במהלך הבדיקה</translation>
    </message>
    <message id="kiv-resistance-missing">
        <source>The battery&apos;s voltage and current cannot be read here.</source>
        <translation>אי אפשר לקרוא כאן את המתח והזרם של הסוללה.</translation>
    </message>
    <message id="kiv-resistance-good">
        <source>The battery&apos;s internal resistance is in order.</source>
        <translation>ההתנגדות הפנימית של הסוללה תקינה.</translation>
    </message>
    <message id="kiv-resistance-hint">
        <source>Pass unlocks when the resistance has been measured.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר מדידת ההתנגדות.</translation>
    </message>
    <message id="kiv-resistance-off">
        <source>The settings of this phone do not ask for this test.</source>
        <translation>הגדרות הטלפון הזה אינן דורשות את הבדיקה.</translation>
    </message>
    <message id="kiv-resistance-step-on">
        <source>Measuring with the charger on: leave phone and charger alone</source>
        <translation>מודד כשהטעינה דולקת: אל תיגעו בטלפון ובמטען</translation>
    </message>
    <message id="kiv-resistance-step-off">
        <source>Measuring with the charger off</source>
        <translation>מודד כשהטעינה כבויה</translation>
    </message>
    <message id="kiv-resistance-step-again">
        <source>Measuring with the charger on again</source>
        <translation>מודד כשהטעינה שוב דולקת</translation>
    </message>
    <message id="kiv-resistance-voltage-on">
        <source>Voltage, charger on</source>
        <translation>מתח, טעינה דולקת</translation>
    </message>
    <message id="kiv-resistance-voltage-off">
        <source>Voltage, charger off</source>
        <translation>מתח, טעינה כבויה</translation>
    </message>
    <message id="kiv-resistance-step">
        <source>Step of the current</source>
        <translation>שינוי הזרם</translation>
    </message>
    <message id="kiv-resistance">
        <source>Internal resistance</source>
        <translation>התנגדות פנימית</translation>
    </message>
    <message id="kiv-keylight-instructions">
        <source>Look at the keys beside the panel. If they have no light, choose Skip.</source>
        <translation>הביטו במקשים שליד הצג. אם אין להם תאורה, בחרו &quot;דילוג&quot;.</translation>
    </message>
    <message id="kiv-keylight-note">
        <source>Kiv cannot switch this light: the phone lights the keys after a touch and darkens them again.</source>
        <translation>‏Kiv אינו יכול להדליק את התאורה: הטלפון מאיר את המקשים אחרי נגיעה ומכבה אותם שוב.</translation>
    </message>
    <message id="kiv-keylight-step-touch">
        <source>Touch the field below</source>
        <translation>געו בשדה שלמטה</translation>
    </message>
    <message id="kiv-keylight-step-rest">
        <source>Keep your hands off: %1 s</source>
        <translation>אל תיגעו: %1 שנ׳</translation>
    </message>
    <message id="kiv-keylight-touch">
        <source>Touch here</source>
        <translation>געו כאן</translation>
    </message>
    <message id="kiv-keylight-lit">
        <source>Are the keys lit now?</source>
        <translation>האם המקשים מוארים עכשיו?</translation>
    </message>
    <message id="kiv-keylight-lit-bad">
        <source>The keys do not light up after a touch.</source>
        <translation>המקשים אינם נדלקים אחרי נגיעה.</translation>
    </message>
    <message id="kiv-keylight-stayed">
        <source>Did the keys stay lit while you kept your hands off?</source>
        <translation>האם המקשים נשארו מוארים כשלא נגעתם?</translation>
    </message>
    <message id="kiv-keylight-stayed-bad">
        <source>The keys stay lit.</source>
        <translation>המקשים נשארים מוארים.</translation>
    </message>
    <message id="kiv-keylight-equal">
        <source>Were all of them lit equally bright?</source>
        <translation>האם כולם האירו באותה עוצמה?</translation>
    </message>
    <message id="kiv-keylight-equal-bad">
        <source>Not all keys are lit equally bright.</source>
        <translation>לא כל המקשים מאירים באותה עוצמה.</translation>
    </message>
    <message id="kiv-keylight-good">
        <source>The operator saw the keys light up and go out.</source>
        <translation>המפעיל ראה את המקשים נדלקים ונכבים.</translation>
    </message>
    <message id="kiv-fingerprint-missing">
        <source>This phone has no fingerprint reader.</source>
        <translation>אין בטלפון הזה קורא טביעות אצבע.</translation>
    </message>
    <message id="kiv-fingerprint-instructions">
        <source>Open the fingerprints in the phone&apos;s settings. Enrol one finger, lock the phone, and touch the reader with this finger and with another one.</source>
        <translation>פתחו את טביעות האצבע בהגדרות הטלפון. רשמו אצבע אחת, נעלו את הטלפון, וגעו בקורא באצבע הזאת ובאצבע אחרת.</translation>
    </message>
    <message id="kiv-fingerprint-note">
        <source>Kiv cannot reach the reader: the phone keeps fingerprints to itself. Remove the finger from the settings afterwards.</source>
        <translation>‏Kiv אינו מגיע אל הקורא: הטלפון שומר את טביעות האצבע לעצמו. בסיום הסירו את האצבע מההגדרות.</translation>
    </message>
    <message id="kiv-fingerprint-good">
        <source>The operator saw the reader know one finger and refuse another.</source>
        <translation>המפעיל ראה שהקורא מזהה אצבע אחת ודוחה אחרת.</translation>
    </message>
    <message id="kiv-fingerprint-enrolled">
        <source>Could the finger be enrolled?</source>
        <translation>האם היה אפשר לרשום את האצבע?</translation>
    </message>
    <message id="kiv-fingerprint-enrolled-bad">
        <source>The finger could not be enrolled.</source>
        <translation>לא היה אפשר לרשום את האצבע.</translation>
    </message>
    <message id="kiv-fingerprint-other">
        <source>Did another finger unlock the phone?</source>
        <translation>האם אצבע אחרת פתחה את הטלפון?</translation>
    </message>
    <message id="kiv-fingerprint-other-bad">
        <source>A finger that was not enrolled unlocked the phone.</source>
        <translation>אצבע שלא נרשמה פתחה את הטלפון.</translation>
    </message>
    <message id="kiv-fingerprint-known">
        <source>Did the enrolled finger unlock the phone?</source>
        <translation>האם האצבע הרשומה פתחה את הטלפון?</translation>
    </message>
    <message id="kiv-fingerprint-known-bad">
        <source>The enrolled finger did not unlock the phone.</source>
        <translation>האצבע הרשומה לא פתחה את הטלפון.</translation>
    </message>
    <message id="kiv-lcd-instructions">
        <source>Look at every picture for dots, lines and stains. Tap for the next one. At the end, count the dots.</source>
        <translation>חפשו בכל תמונה נקודות, קווים וכתמים. הקישו כדי לעבור לבאה. בסוף ספרו את הנקודות.</translation>
    </message>
    <message id="kiv-lcd-hint">
        <source>Pass unlocks when you have seen the pictures, counted the dots and answered the questions.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר שתראו את התמונות, תספרו את הנקודות ותענו על השאלות.</translation>
    </message>
    <message id="kiv-lcd-next">
        <source>Next picture</source>
        <translation>התמונה הבאה</translation>
    </message>
    <message id="kiv-lcd-question">
        <source>How many dots were on the panel?</source>
        <translation>כמה נקודות היו על הצג?</translation>
    </message>
    <message id="kiv-lcd-again">
        <source>Show the dots again</source>
        <translation>הצגה חוזרת של הנקודות</translation>
    </message>
    <message id="kiv-lcd-spot">
        <source>Was a dot, line or stain in a picture that does not belong there?</source>
        <translation>האם הייתה בתמונה נקודה, קו או כתם שאינם שייכים לה?</translation>
    </message>
    <message id="kiv-lcd-spot-bad">
        <source>The panel has a dot, line or stain.</source>
        <translation>בצג יש נקודה, קו או כתם.</translation>
    </message>
    <message id="kiv-lcd-shades">
        <source>Were all colours and shades there, without steps?</source>
        <translation>האם היו כל הצבעים והגוונים, בלי מדרגות?</translation>
    </message>
    <message id="kiv-lcd-shades-bad">
        <source>Colours or shades were missing.</source>
        <translation>חסרו צבעים או גוונים.</translation>
    </message>
    <message id="kiv-lcd-good">
        <source>The operator counted the dots and found no fault in the pictures.</source>
        <translation>המפעיל ספר את הנקודות ולא מצא פגם בתמונות.</translation>
    </message>
    <message id="kiv-lcd-pictures-again">
        <source>Show the pictures again</source>
        <translation>הצגה חוזרת של התמונות</translation>
    </message>
    <message id="kiv-backlight-instructions">
        <source>Look at the white panel: is the light even up to the edges? Tap, and watch whether it becomes brighter or darker.</source>
        <translation>הביטו בצג הלבן: האם האור אחיד עד הקצוות? הקישו, וראו אם הוא נעשה בהיר יותר או כהה יותר.</translation>
    </message>
    <message id="kiv-backlight-note">
        <source>Kiv cannot change the backlight. It is the picture that becomes brighter or darker: what it shows is that the panel is lit and that you looked.</source>
        <translation>‏Kiv אינו יכול לשנות את תאורת הצג. התמונה היא שנעשית בהירה או כהה: כך רואים שהצג מואר ושהבטתם בו.</translation>
    </message>
    <message id="kiv-backlight-question">
        <source>What has the panel become?</source>
        <translation>איך השתנה הצג?</translation>
    </message>
    <message id="kiv-backlight-brighter">
        <source>Brighter</source>
        <translation>בהיר יותר</translation>
    </message>
    <message id="kiv-backlight-darker">
        <source>Darker</source>
        <translation>כהה יותר</translation>
    </message>
    <message id="kiv-backlight-again">
        <source>Show it again</source>
        <translation>הצגה חוזרת</translation>
    </message>
    <message id="kiv-backlight-uneven">
        <source>Was the white uneven, or did it flicker?</source>
        <translation>האם היו הבדלי בהירות בלבן, או שהוא הבהב?</translation>
    </message>
    <message id="kiv-backlight-uneven-bad">
        <source>The backlight is uneven or flickers.</source>
        <translation>בתאורת הצג יש הבדלי בהירות, או שהיא מהבהבת.</translation>
    </message>
    <message id="kiv-backlight-follows">
        <source>Set the brightness in the phone&apos;s own settings to the lowest and the highest. Does the light follow?</source>
        <translation>העבירו את הבהירות בהגדרות הטלפון לנמוכה ביותר ולגבוהה ביותר. האם האור משתנה בהתאם?</translation>
    </message>
    <message id="kiv-backlight-follows-bad">
        <source>The backlight does not follow the phone&apos;s brightness setting.</source>
        <translation>תאורת הצג אינה מגיבה להגדרת הבהירות.</translation>
    </message>
    <message id="kiv-backlight-good">
        <source>The operator saw an even light that follows the brightness setting.</source>
        <translation>המפעיל ראה אור אחיד שמגיב להגדרת הבהירות.</translation>
    </message>
    <message id="kiv-backlight-white-again">
        <source>Show the white panel again</source>
        <translation>הצגה חוזרת של הצג הלבן</translation>
    </message>
    <message id="kiv-led-dark">
        <source>The light stayed dark while the phone was charging.</source>
        <translation>הנורית נשארה כבויה בזמן שהטלפון נטען.</translation>
    </message>
    <message id="kiv-led-instructions">
        <source>Plug a charger in: the phone then lights its notification light.</source>
        <translation>חברו מטען: הטלפון מדליק אז את נורית ההתראות.</translation>
    </message>
    <message id="kiv-led-hint">
        <source>Pass unlocks when you have said what the light does.</source>
        <translation>&quot;עבר&quot; ייפתח לאחר שתאמרו מה הנורית עושה.</translation>
    </message>
    <message id="kiv-led-colour">
        <source>Light while charging</source>
        <translation>האור בזמן הטעינה</translation>
    </message>
    <message id="kiv-led-note">
        <source>Kiv cannot switch this light: it shows what the phone wants to tell, such as that it charges.</source>
        <translation>‏Kiv אינו יכול להדליק את הנורית: היא מראה מה שהטלפון רוצה להודיע, כגון שהוא נטען.</translation>
    </message>
    <message id="kiv-led-step-colour">
        <source>Say what the light does</source>
        <translation>אמרו מה הנורית עושה</translation>
    </message>
    <message id="kiv-led-step-unplug">
        <source>Unplug the charger</source>
        <translation>נתקו את המטען</translation>
    </message>
    <message id="kiv-led-plugged">
        <source>The charger is plugged in</source>
        <translation>המטען מחובר</translation>
    </message>
    <message id="kiv-led-unplugged">
        <source>The charger is unplugged</source>
        <translation>המטען מנותק</translation>
    </message>
    <message id="kiv-led-question">
        <source>What does the light show?</source>
        <translation>מה הנורית מראה?</translation>
    </message>
    <message id="kiv-led-red">
        <source>Red</source>
        <translation>אדום</translation>
    </message>
    <message id="kiv-led-orange">
        <source>Orange or yellow</source>
        <translation>כתום או צהוב</translation>
    </message>
    <message id="kiv-led-green">
        <source>Green</source>
        <translation>ירוק</translation>
    </message>
    <message id="kiv-led-blue">
        <source>Blue</source>
        <translation>כחול</translation>
    </message>
    <message id="kiv-led-white">
        <source>White</source>
        <translation>לבן</translation>
    </message>
    <message id="kiv-led-nothing">
        <source>Nothing</source>
        <translation>כלום</translation>
    </message>
    <message id="kiv-led-lit">
        <source>It is lit</source>
        <translation>דולקת</translation>
    </message>
    <message id="kiv-led-still">
        <source>Is the light still lit as before?</source>
        <translation>האם הנורית עדיין דולקת כמו קודם?</translation>
    </message>
    <message id="kiv-led-still-bad">
        <source>The light does not change when the charger is unplugged.</source>
        <translation>הנורית אינה משתנה כשמנתקים את המטען.</translation>
    </message>
    <message id="kiv-led-good">
        <source>The operator saw the light while the phone charged (%1), and saw it go out.</source>
        <extracomment>What the operator saw of the notification light</extracomment>
        <translation>המפעיל ראה את הנורית בזמן הטעינה (⁨%1⁩) וראה אותה נכבית.</translation>
    </message>
    <message id="kiv-vibrator-none">
        <source>None</source>
        <translation>אף רטט</translation>
    </message>
    <message id="kiv-summary-code">
        <source>Code for the station</source>
        <translation>קוד לעמדה</translation>
    </message>
    <message id="kiv-code-copy">
        <source>Copy the text</source>
        <translation>העתקת הטקסט</translation>
    </message>
    <message id="kiv-code-close">
        <source>Close</source>
        <translation>סגירה</translation>
    </message>
    <message id="kiv-plot-range">
        <source>%1 to %2</source>
        <extracomment>The least and the greatest reading so far</extracomment>
        <translation>‏⁨%1⁩ עד ⁨%2⁩</translation>
    </message>
    <message id="kiv-mode-engineer">
        <source>Engineer&apos;s view</source>
        <translation>תצוגת מהנדס</translation>
    </message>
    <message id="kiv-engineer-raw">
        <source>Raw values</source>
        <translation>ערכים גולמיים</translation>
    </message>
    <message id="kiv-engineer-settings">
        <source>Settings that were found</source>
        <translation>הגדרות שנמצאו</translation>
    </message>
    <message id="kiv-engineer-probe">
        <source>Look what the phone has</source>
        <translation>בדיקה מה יש בטלפון</translation>
    </message>
    <message id="kiv-engineer-tests">
        <source>Tests</source>
        <translation>בדיקות</translation>
    </message>
    <message id="kiv-engineer-processes">
        <source>Processes</source>
        <translation>תהליכים</translation>
    </message>
    <message id="kiv-mode-engineer-detail">
        <source>Raw values, the settings that were found, sound streams and processes</source>
        <translation>ערכים גולמיים, ההגדרות שנמצאו, זרמי קול ותהליכים</translation>
    </message>
    <message id="kiv-run-in-stuck">
        <source>The test did not begin in time.</source>
        <translation>הבדיקה לא התחילה בזמן.</translation>
    </message>
    <message id="kiv-run-in-exercised">
        <source>It ran without trouble.</source>
        <translation>רצה בלי תקלות.</translation>
    </message>
    <message id="kiv-run-in-timeout">
        <source>It came to no result in time.</source>
        <translation>לא הגיעה לתוצאה בזמן.</translation>
    </message>
    <message id="kiv-run-in-end-time">
        <source>The time is up.</source>
        <translation>הזמן תם.</translation>
    </message>
    <message id="kiv-run-in-end-failure">
        <source>It stopped at the first failure.</source>
        <translation>נעצרה בכישלון הראשון.</translation>
    </message>
    <message id="kiv-run-in-end-temperature">
        <source>The battery reached %1.</source>
        <extracomment>A temperature</extracomment>
        <translation>הסוללה הגיעה ל־⁨%1⁩.</translation>
    </message>
    <message id="kiv-run-in-end-restart">
        <source>The phone&apos;s start time was %1 at the beginning and %2 at the end: it was restarted, or its clock was set.</source>
        <extracomment>Two times at which the phone was started</extracomment>
        <translation>בתחילה היה זמן ההפעלה של הטלפון ⁨%1⁩ ובסוף ⁨%2⁩: הוא הופעל מחדש, או שהשעון שלו כוון.</translation>
    </message>
    <message id="kiv-run-in-end-operator">
        <source>The operator ended it.</source>
        <translation>המפעיל עצר אותה.</translation>
    </message>
    <message id="kiv-run-in-progress">
        <source>Loop %1, test %2 of %3</source>
        <extracomment>The run-in: number of the loop, place of the test in it, number of tests</extracomment>
        <translation>סבב %1, בדיקה %2 מתוך %3</translation>
    </message>
    <message id="kiv-test-clock">
        <source>Time left: %1</source>
        <extracomment>Time until the operator is asked how to go on</extracomment>
        <translation>זמן שנותר: %1</translation>
    </message>
    <message id="kiv-run-in-intro">
        <source>Hours: %1. Meanwhile the phone repeats these tests and needs nobody:</source>
        <extracomment>A number of hours</extracomment>
        <translation>שעות: %1. בזמן הזה הטלפון חוזר על הבדיקות האלה ואינו זקוק לאיש:</translation>
    </message>
    <message id="kiv-run-in-empty">
        <source>No test of the run-in can run on this phone.</source>
        <translation>אף בדיקה של ההרצה אינה יכולה לרוץ בטלפון הזה.</translation>
    </message>
    <message id="kiv-run-in-attended">
        <source>These need an operator and stay not tested: %1</source>
        <extracomment>Names of tests</extracomment>
        <translation>הבדיקות האלה דורשות מפעיל ונשארות לא בדוקות: ⁨%1⁩</translation>
    </message>
    <message id="kiv-run-in-stop-on-failure">
        <source>Stop at the first failure</source>
        <translation>עצירה בכישלון הראשון</translation>
    </message>
    <message id="kiv-run-in-go-on">
        <source>Go on after a failure</source>
        <translation>המשך אחרי כישלון</translation>
    </message>
    <message id="kiv-run-in-limit">
        <source>Stop when the battery reaches %1</source>
        <extracomment>A temperature</extracomment>
        <translation>עצירה כשהסוללה מגיעה ל־⁨%1⁩</translation>
    </message>
    <message id="kiv-run-in-no-limit">
        <source>Do not stop for the battery&apos;s temperature</source>
        <translation>בלי עצירה בגלל חום הסוללה</translation>
    </message>
    <message id="kiv-run-in-machine-start">
        <source>This phone was started on %1. A run-in that began earlier and left no result was ended by that start.</source>
        <extracomment>A date and time</extracomment>
        <translation>הטלפון הזה הופעל ב־⁨%1⁩. הרצה שהתחילה לפני כן ולא השאירה תוצאה נקטעה בהפעלה הזאת.</translation>
    </message>
    <message id="kiv-run-in-total">
        <source>Loops: %1, time: %2</source>
        <extracomment>How far the run-in came: loops and time</extracomment>
        <translation>סבבים: %1, זמן: %2</translation>
    </message>
    <message id="kiv-run-in-failure">
        <source>%1, loop %2</source>
        <extracomment>A test that failed, and the number of the loop</extracomment>
        <translation>‏%1, סבב %2</translation>
    </message>
    <message id="kiv-run-in-stop">
        <source>End the run-in</source>
        <translation>סיום ההרצה</translation>
    </message>
    <message id="kiv-duration-seconds">
        <source>%1 s</source>
        <extracomment>A duration</extracomment>
        <translation>%1 שנ׳</translation>
    </message>
    <message id="kiv-duration-minutes">
        <source>%1 min %2 s</source>
        <extracomment>A duration: minutes and seconds</extracomment>
        <translation>%1 דק׳ %2 שנ׳</translation>
    </message>
    <message id="kiv-summary-absent">
        <source>Not on this phone: %1</source>
        <extracomment>The features that the phone&apos;s configuration and a look at its hardware rule out</extracomment>
        <translation>לא קיים בטלפון הזה: ⁨%1⁩</translation>
    </message>
    <message id="kiv-summary-timed-out">
        <source>The time had run out</source>
        <translation>הזמן אזל</translation>
    </message>
    <message id="kiv-summary-totals">
        <source>Attempts: %1, time: %2</source>
        <extracomment>Totals of a sequence: how many attempts, how long</extracomment>
        <translation>ניסיונות: %1, זמן: %2</translation>
    </message>
    <message id="kiv-overrule-title">
        <source>Why against this verdict?</source>
        <translation>מדוע בניגוד לתוצאה הזו?</translation>
    </message>
    <message id="kiv-overrule-text">
        <source>Verdict so far: %1. The summary will show that you decided otherwise.</source>
        <extracomment>The page&apos;s own verdict, from what it measured or what the operator answered</extracomment>
        <translation>התוצאה עד כה: ⁨%1⁩. בסיכום יופיע שהחלטתם אחרת.</translation>
    </message>
    <message id="kiv-overrule-equipment">
        <source>A tool or an accessory was at fault</source>
        <translation>כלי או אביזר לא היו תקינים</translation>
    </message>
    <message id="kiv-overrule-limits">
        <source>The limits do not suit this model</source>
        <translation>הגבולות אינם מתאימים לדגם הזה</translation>
    </message>
    <message id="kiv-overrule-perceived">
        <source>I saw, heard or felt it otherwise</source>
        <translation>ראיתי, שמעתי או הרגשתי אחרת</translation>
    </message>
    <message id="kiv-overrule-supervisor">
        <source>A supervisor decided so</source>
        <translation>מנהל החליט כך</translation>
    </message>
    <message id="kiv-overrule-cancel">
        <source>Keep this verdict</source>
        <translation>השארת התוצאה הזו</translation>
    </message>
    <message id="kiv-skip-title">
        <source>Why is this test skipped?</source>
        <translation>מדוע מדלגים על הבדיקה?</translation>
    </message>
    <message id="kiv-skip-text">
        <source>It stays not tested unless the phone is not meant to have this part.</source>
        <translation>היא נשארת לא בדוקה, אלא אם החלק לא אמור להיות בטלפון.</translation>
    </message>
    <message id="kiv-skip-equipment">
        <source>An accessory or a tool is missing</source>
        <translation>חסר אביזר או כלי</translation>
    </message>
    <message id="kiv-skip-repair">
        <source>The phone has to be repaired first</source>
        <translation>צריך קודם לתקן את הטלפון</translation>
    </message>
    <message id="kiv-skip-later">
        <source>It is tested elsewhere or later</source>
        <translation>הבדיקה נעשית במקום אחר או מאוחר יותר</translation>
    </message>
    <message id="kiv-skip-not-fitted">
        <source>This model is not meant to have this part</source>
        <translation>החלק לא אמור להיות בדגם הזה</translation>
    </message>
    <message id="kiv-skip-cancel">
        <source>Go on testing</source>
        <translation>המשך הבדיקה</translation>
    </message>
    <message id="kiv-timeout-title">
        <source>Time is up</source>
        <translation>הזמן תם</translation>
    </message>
    <message id="kiv-timeout-text">
        <source>%1 has no verdict yet.</source>
        <extracomment>Name of a test</extracomment>
        <translation>ל&quot;%1&quot; אין עדיין הכרעה.</translation>
    </message>
    <message id="kiv-timeout-wait">
        <source>Give it more time</source>
        <translation>עוד זמן</translation>
    </message>
    <message id="kiv-verdict-skip">
        <source>Skip</source>
        <translation>דילוג</translation>
    </message>
    <message id="kiv-camera-dark">
        <source>The camera delivers no picture.</source>
        <translation>המצלמה אינה מוסרת תמונה.</translation>
    </message>
    <message id="kiv-camera-instructions">
        <source>Move the phone a little and watch the picture. Tap it to see it large.</source>
        <translation>הזיזו מעט את הטלפון והביטו בתמונה. הקישו עליה כדי להגדיל אותה.</translation>
    </message>
    <message id="kiv-camera-working">
        <source>Looking for the camera</source>
        <translation>מחפש את המצלמה</translation>
    </message>
    <message id="kiv-camera-question">
        <source>What does the picture do when you move the phone?</source>
        <translation>מה קורה לתמונה כשמזיזים את הטלפון?</translation>
    </message>
    <message id="kiv-camera-live">
        <source>It follows</source>
        <translation>היא זזה איתו</translation>
    </message>
    <message id="kiv-camera-still">
        <source>It stands still</source>
        <translation>היא קפואה</translation>
    </message>
    <message id="kiv-camera-light">
        <source>Is the light beside the camera on?</source>
        <translation>האם האור שליד המצלמה דולק?</translation>
    </message>
    <message id="kiv-camera-stains">
        <source>Are there stains, stripes or wrong colours in the picture?</source>
        <translation>האם יש בתמונה כתמים, פסים או צבעים שגויים?</translation>
    </message>
    <message id="kiv-camera-stains-bad">
        <source>The picture has stains, stripes or wrong colours.</source>
        <translation>יש בתמונה כתמים, פסים או צבעים שגויים.</translation>
    </message>
    <message id="kiv-camera-sharp">
        <source>Is it sharp?</source>
        <translation>האם היא חדה?</translation>
    </message>
    <message id="kiv-camera-sharp-bad">
        <source>The picture is not sharp.</source>
        <translation>התמונה אינה חדה.</translation>
    </message>
    <message id="kiv-camera-flash">
        <source>The camera lets nobody switch its light. Take a picture with flash in the phone&apos;s own camera program: does it flash?</source>
        <translation>המצלמה אינה מאפשרת להדליק את האור שלה. צלמו תמונה עם מבזק ביישום המצלמה של הטלפון: האם הוא מבזיק?</translation>
    </message>
    <message id="kiv-camera-flash-bad">
        <source>The camera does not flash.</source>
        <translation>המבזק אינו פועל.</translation>
    </message>
    <message id="kiv-camera-good">
        <source>The operator saw a live picture without faults.</source>
        <translation>המפעיל ראה תמונה חיה בלי פגמים.</translation>
    </message>
    <message id="kiv-camera-back-missing">
        <source>No back camera was found.</source>
        <translation>לא נמצאה מצלמה אחורית.</translation>
    </message>
    <message id="kiv-camera-front-missing">
        <source>No front camera was found.</source>
        <translation>לא נמצאה מצלמה קדמית.</translation>
    </message>
    <message id="kiv-video-stopped">
        <source>The video stopped: %1</source>
        <translation>הסרטון נעצר: ⁨%1⁩</translation>
    </message>
    <message id="kiv-video-missing">
        <source>The system has no decoder for the test video (%1): install one, or test with a video of the phone&apos;s own.</source>
        <extracomment>The names of the codecs that were tried</extracomment>
        <translation>אין במערכת מפענח לסרטון הבדיקה (⁨%1⁩): התקינו אחד, או בדקו עם סרטון של הטלפון עצמו.</translation>
    </message>
    <message id="kiv-video-instructions">
        <source>Watch the video and count the squares that cross the picture.</source>
        <translation>צפו בסרטון וספרו את הריבועים שחוצים את התמונה.</translation>
    </message>
    <message id="kiv-video-question">
        <source>How many squares crossed the picture?</source>
        <translation>כמה ריבועים חצו את התמונה?</translation>
    </message>
    <message id="kiv-video-jerk">
        <source>Did the picture jerk, tear or show blocks?</source>
        <translation>האם התמונה קפצה, נקרעה או הראתה ריבועים פגומים?</translation>
    </message>
    <message id="kiv-video-jerk-bad">
        <source>The video jerks, tears or shows blocks.</source>
        <translation>הסרטון קופץ, נקרע או מראה ריבועים פגומים.</translation>
    </message>
    <message id="kiv-video-good">
        <source>The operator saw the video run smoothly.</source>
        <translation>המפעיל ראה את הסרטון רץ חלק.</translation>
    </message>
    <message id="kiv-video-format">
        <source>Decoder</source>
        <translation>מפענח</translation>
    </message>
    <message id="kiv-video-played">
        <source>Played</source>
        <translation>נוגן</translation>
    </message>
    <message id="kiv-bluetooth-searched">
        <source>The address is in order, and the radio searched.</source>
        <translation>הכתובת תקינה, ורכיב הרדיו סיים לחפש.</translation>
    </message>
    <message id="kiv-wifi-found">
        <source>The address is in order, and the radio was found.</source>
        <translation>הכתובת תקינה, ורכיב הרדיו נמצא.</translation>
    </message>
    <message id="kiv-layout-direction">
        <source>LTR</source>
        <extracomment>&quot;LTR&quot;, or &quot;RTL&quot; for a language that is written from right to left</extracomment>
        <translation>RTL</translation>
    </message>
    <message id="kiv-wifi-working">
        <source>Asking for the Wi-Fi radio</source>
        <translation>שואל על רכיב ה־Wi-Fi</translation>
    </message>
    <message id="kiv-run-in-heat-unknown">
        <source>The battery&apos;s temperature cannot be read: heat will not stop the run-in.</source>
        <translation>לא ניתן לקרוא את חום הסוללה: החום לא יעצור את ההרצה.</translation>
    </message>
    <message id="kiv-run-in-again">
        <source>A test failed meanwhile: the run-in has to be done again.</source>
        <translation>בדיקה נכשלה בינתיים: יש לבצע את ההרצה מחדש.</translation>
    </message>
    <message id="kiv-summary-failed-loops">
        <source>Failed in the run-in, loop %1</source>
        <extracomment>Numbers of loops</extracomment>
        <translation>נכשלה בהרצה, סבב %1</translation>
    </message>
    <message id="kiv-summary-failed-attempts">
        <source>Attempts that failed: %1</source>
        <translation>ניסיונות שנכשלו: %1</translation>
    </message>
    <message id="kiv-led-switching">
        <source>Switching charging</source>
        <translation>מחליף את מצב הטעינה</translation>
    </message>
    <message id="kiv-led-step-switch">
        <source>Say what it does while Kiv switches charging off and on</source>
        <translation>אמרו מה הנורית מראה בזמן ש־Kiv מכבה ומדליק את הטעינה</translation>
    </message>
    <message id="kiv-led-good-switched">
        <source>The operator saw the light while the phone charged (%1), and dark whenever Kiv had switched charging off.</source>
        <extracomment>What the operator saw of the notification light</extracomment>
        <translation>המפעיל ראה את הנורית בזמן הטעינה (⁨%1⁩), וכבויה בכל פעם ש־Kiv כיבה את הטעינה.</translation>
    </message>
    <message id="kiv-led-by-hand">
        <source>The answers do not fit: perhaps this light does not follow the charging. Look again, and unplug the charger yourself.</source>
        <translation>התשובות אינן מתיישבות: אולי הנורית הזאת אינה עוקבת אחרי הטעינה. הסתכלו שוב, ונתקו את המטען בעצמכם.</translation>
    </message>
    <message id="kiv-key-volume-up">
        <source>Volume up</source>
        <translation>הגברת עוצמה</translation>
    </message>
    <message id="kiv-key-volume-down">
        <source>Volume down</source>
        <translation>הנמכת עוצמה</translation>
    </message>
    <message id="kiv-key-power">
        <source>Power key</source>
        <translation>מקש ההפעלה</translation>
    </message>
    <message id="kiv-key-camera">
        <source>Camera key</source>
        <translation>מקש המצלמה</translation>
    </message>
    <message id="kiv-key-focus">
        <source>Camera key, half pressed</source>
        <translation>מקש המצלמה, לחיצה חלקית</translation>
    </message>
    <message id="kiv-key-home">
        <source>Home key</source>
        <translation>מקש הבית</translation>
    </message>
    <message id="kiv-key-back">
        <source>Back key</source>
        <translation>מקש החזרה</translation>
    </message>
    <message id="kiv-key-menu">
        <source>Menu key</source>
        <translation>מקש התפריט</translation>
    </message>
    <message id="kiv-key-search">
        <source>Search key</source>
        <translation>מקש החיפוש</translation>
    </message>
    <message id="kiv-list-separator">
        <source>, </source>
        <extracomment>Between the words of a list, with its blank</extracomment>
        <translation>, </translation>
    </message>
    <message id="kiv-charging-round">
        <source>Round %1 of %2</source>
        <extracomment>How many times something has been tried, of how many</extracomment>
        <translation>סבב %1 מתוך %2</translation>
    </message>
</context>
</TS>
