// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"
import "../controls/Lists.js" as Lists

/*! What is known of this phone without testing it, and how the screens look. */
Item {
    id: screen

    property var shell

    RadioPreference {
        id: radio
    }
    KeyWords {
        id: keyWords
    }

    Measurement {
        id: preference
        //% "Modem prefers 4G"
        name: qsTrId("kiv-settings-4g")
        Component.onCompleted: value = radio.getResult
    }
    Measurement {
        id: modems
        //% "Modems"
        name: qsTrId("kiv-settings-modems")
        value: KivHwSettings.modemCount
    }
    Measurement {
        id: keys
        //% "Keys to test"
        name: qsTrId("kiv-settings-keys")
        value: Lists.enumerate(KivHwSettings.keys.map(keyWords.name))
    }
    Measurement {
        id: led
        //% "Notification light"
        name: qsTrId("kiv-test-led")
        value: KivHwSettings.ledType
    }
    Measurement {
        id: flash
        //% "Flash of the back camera"
        name: qsTrId("kiv-settings-flash")
        value: KivHwSettings.backCameraFlash
    }
    Measurement {
        id: frequency
        //% "FM frequency of the test"
        name: qsTrId("kiv-settings-frequency")
        value: KivHwSettings.defaultFmRadioFrequency
        unit: "MHz"
        decimals: 1
    }
    Measurement {
        id: runInLength
        //% "Length of the run-in"
        name: qsTrId("kiv-settings-run-in")
        value: KivHwSettings.runInTestLength
        unit: "h"
    }
    Measurement {
        id: topMicrophone
        //% "Upper microphone"
        name: qsTrId("kiv-settings-microphone-top")
        //: A microphone of the sound server and its channel
        //% "%1, channel %2"
        value: qsTrId("kiv-settings-microphone").arg(KivHwSettings.recordTopDevice)
                                                .arg(KivHwSettings.recordTopDeviceChannel)
    }
    Measurement {
        id: bottomMicrophone
        //% "Lower microphone"
        name: qsTrId("kiv-settings-microphone-bottom")
        value: qsTrId("kiv-settings-microphone").arg(KivHwSettings.recordBottomDevice)
                                                .arg(KivHwSettings.recordBottomDeviceChannel)
    }

    Header {
        id: header
        width: parent.width
        //% "This phone"
        title: qsTrId("kiv-settings-title")
        onBack: screen.shell.showHome()
    }
    Scroller {
        anchors.top: header.bottom
        anchors.bottom: footer.top
        width: parent.width

        PushButton {
            width: parent.width
            glyph: screen.shell && screen.shell.dark ? "sun" : "moon"
            text: screen.shell && screen.shell.dark
                  ? //% "Light colours"
                    qsTrId("kiv-settings-light")
                  : //% "Dark colours"
                    qsTrId("kiv-settings-dark")
            onClicked: screen.shell.dark = !screen.shell.dark
        }
        PushButton {
            width: parent.width
            glyph: "info"
            //% "Read the notice again"
            text: qsTrId("kiv-settings-disclaimer")
            onClicked: screen.shell.show("DisclaimerScreen")
        }
        Words {
            width: parent.width
            //% "As its makers configured it:"
            text: qsTrId("kiv-settings-configured")
            color: Theme.muted
        }
        Card {
            width: parent.width
            padding: Theme.gap

            MeasurementTable {
                x: Theme.gap
                width: parent.width - 2 * Theme.gap
                readings: [preference, modems, keys, led, flash, frequency, runInLength, topMicrophone,
                           bottomMicrophone]
            }
        }
    }
    Footer {
        id: footer
        anchors.bottom: parent.bottom
        width: parent.width

        Row {
            width: parent.width
            spacing: Theme.gap

            PushButton {
                width: parent.width
                glyph: "power"
                text: qsTrId("kiv-quit")
                onClicked: Qt.quit()
            }
        }
    }
}
