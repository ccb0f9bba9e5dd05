// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import "../controls"
import "../flow/TestTable.js" as TestTable

/*! The three sequences, and the engineer's view. It is the first screen, so it asks the phone nothing. */
Item {
    id: screen

    property var shell

    Header {
        id: header
        width: parent.width
        backVisible: false
        //% "Kiv"
        title: qsTrId("kiv-ap-name")
        //% "Hardware tests"
        subtitle: qsTrId("kiv-home-subtitle")
        trailing: PushButton {
            width: Theme.target
            height: Theme.target
            outlined: false
            fill: "transparent"
            glyph: "settings"
            //% "This phone and settings"
            Accessible.name: qsTrId("kiv-home-settings")
            onClicked: screen.shell.show("SettingsScreen")
        }
    }
    Scroller {
        anchors.top: header.bottom
        anchors.bottom: parent.bottom
        width: parent.width

        Words {
            width: parent.width
            //% "Which tests do you want to run?"
            text: qsTrId("kiv-home-question")
            color: Theme.muted
        }
        ModeButton {
            width: parent.width
            glyph: "factory"
            //% "Factory sequence"
            text: qsTrId("kiv-mode-factory")
            //% "Every part of the phone once, in a fixed order"
            detail: qsTrId("kiv-mode-factory-detail")
            onClicked: screen.shell.chooseSequence(TestTable.FactoryTests)
        }
        ModeButton {
            width: parent.width
            glyph: "runin"
            //% "Run-in"
            text: qsTrId("kiv-mode-run-in")
            //% "Endurance tests for a new phone"
            detail: qsTrId("kiv-mode-run-in-detail")
            onClicked: screen.shell.chooseSequence(TestTable.RunInTests)
        }
        ModeButton {
            width: parent.width
            glyph: "list"
            //% "All tests"
            text: qsTrId("kiv-mode-all")
            //% "Everything this phone has, one by one or in a row"
            detail: qsTrId("kiv-mode-all-detail")
            onClicked: screen.shell.chooseSequence(TestTable.AllTests)
        }
        ModeButton {
            width: parent.width
            objectName: "engineer"
            glyph: "engineer"
            //% "Engineer's view"
            text: qsTrId("kiv-mode-engineer")
            //% "Raw values, the settings that were found, sound streams and processes"
            detail: qsTrId("kiv-mode-engineer-detail")
            onClicked: screen.shell.show("EngineerScreen")
        }
    }
}
