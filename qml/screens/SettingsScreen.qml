// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

/*! What is known of this phone without testing it, and how the screens look. */
Item {
    id: screen

    property var shell

    RadioPreference {
        id: radio
    }

    Measurement {
        id: preference
        //% "Modem prefers 4G"
        name: qsTrId("kiv-settings-4g")
        Component.onCompleted: value = radio.getResult
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

        Card {
            width: parent.width
            padding: Theme.gap

            MeasurementTable {
                x: Theme.gap
                width: parent.width - 2 * Theme.gap
                readings: [preference]
            }
        }
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
