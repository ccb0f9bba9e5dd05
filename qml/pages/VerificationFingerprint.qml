// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15

GuidedPage {
    feature: "Fingerprint"
    //% "This phone has no fingerprint reader."
    featureMissing: qsTrId("kiv-fingerprint-missing")
    //% "Open the fingerprints in the phone's settings. Enrol one finger, lock the phone, and touch the reader "
    //% "with this finger and with another one."
    instructions: qsTrId("kiv-fingerprint-instructions")
    //% "Kiv cannot reach the reader: the phone keeps fingerprints to itself. Remove the finger from the settings "
    //% "afterwards."
    note: qsTrId("kiv-fingerprint-note")
    //% "The operator saw the reader know one finger and refuse another."
    goodReason: qsTrId("kiv-fingerprint-good")
    questions: [
        //% "Could the finger be enrolled?"
        { name: "enrolled", text: qsTrId("kiv-fingerprint-enrolled"),
          //% "The finger could not be enrolled."
          bad: qsTrId("kiv-fingerprint-enrolled-bad") },
        //% "Did another finger unlock the phone?"
        { name: "other", text: qsTrId("kiv-fingerprint-other"), good: false,
          //% "A finger that was not enrolled unlocked the phone."
          bad: qsTrId("kiv-fingerprint-other-bad") },
        //% "Did the enrolled finger unlock the phone?"
        { name: "known", text: qsTrId("kiv-fingerprint-known"),
          //% "The enrolled finger did not unlock the phone."
          bad: qsTrId("kiv-fingerprint-known-bad") }
    ]
}
