// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Kiv 1.0
import "../controls"
import "../controls/VerdictStyle.js" as Style
import "../flow/TestTable.js" as TestTable

/*! The tests of the chosen sequence with their verdicts. One can be run alone, or the rest of them in a row. */
Item {
    id: screen

    property var shell
    readonly property var flow: shell ? shell.flow : null
    readonly property var untested: flow ? flow.rowsWith(FactoryUtils.Untest) : []

    Header {
        id: header
        width: parent.width
        title: !screen.flow ? "" : screen.flow.mode === TestTable.FactoryTests ? qsTrId("kiv-mode-factory")
               : screen.flow.mode === TestTable.RunInTests ? qsTrId("kiv-mode-run-in") : qsTrId("kiv-mode-all")
        subtitle: !screen.flow ? ""
                  //: How many of the tests of the sequence can be run on this phone
                  //% "%1 of %2 tests can run here"
                  : qsTrId("kiv-list-subtitle").arg(screen.flow.ready.length).arg(screen.flow.entries.length)
        onBack: screen.shell.showHome()
    }

    ListView {
        id: list
        objectName: "tests"
        anchors.top: header.bottom
        anchors.bottom: footer.top
        width: parent.width
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        model: screen.flow ? screen.flow.entries : []
        // Back from a test, the list is where it was left.
        highlightMoveDuration: 0
        Component.onCompleted: currentIndex = screen.flow ? Math.max(0, screen.flow.entries.findIndex(isLast)) : 0

        function isLast(entry) {
            return entry.row.name === screen.shell.lastTest;
        }

        delegate: T.AbstractButton {
            id: line
            readonly property var entry: modelData
            readonly property bool ready: entry.state === "ready"
            readonly property string code: screen.flow.entryCode(entry)
            readonly property var look: Style.looks[code]
            //% "Not on this phone"
            readonly property string stateText: entry.state === "absent" ? qsTrId("kiv-list-absent")
                                                //% "Not available yet"
                                                : entry.state === "unwritten" ? qsTrId("kiv-list-unwritten")
                                                : code === FactoryUtils.Untest ? "" : Style.word(code)

            width: list.width
            height: Math.max(Theme.target, names.height + Theme.margin)
            enabled: ready
            text: qsTrId(entry.row.title)
            Accessible.name: text
            Accessible.description: stateText
            onClicked: screen.shell.openSingle(entry.row)

            background: Rectangle {
                color: line.down ? Theme.pressed : Theme.surface

                Rectangle {
                    anchors.bottom: parent.bottom
                    width: parent.width
                    height: Theme.hairline
                    color: Theme.line
                }
            }
            contentItem: Item {
                Icon {
                    id: glyph
                    anchors.left: parent.left
                    anchors.leftMargin: Theme.margin
                    anchors.verticalCenter: parent.verticalCenter
                    name: line.entry.row.glyph
                    size: 3.5 * Theme.unit
                    color: line.ready ? Theme.accent : Theme.muted
                }
                Column {
                    id: names
                    anchors.left: glyph.right
                    anchors.leftMargin: Theme.margin
                    anchors.right: mark.left
                    anchors.rightMargin: Theme.gap
                    anchors.verticalCenter: parent.verticalCenter

                    Words {
                        width: parent.width
                        text: line.text
                        color: line.ready ? Theme.text : Theme.muted
                        font.weight: Font.DemiBold
                        Accessible.ignored: true
                    }
                    Words {
                        width: parent.width
                        text: line.stateText
                        visible: text !== ""
                        color: line.ready ? Theme[line.look.ink] : Theme.muted
                        font.pixelSize: Theme.small
                        Accessible.ignored: true
                    }
                }
                Icon {
                    id: mark
                    anchors.right: parent.right
                    anchors.rightMargin: Theme.margin
                    anchors.verticalCenter: parent.verticalCenter
                    size: 2.75 * Theme.unit
                    name: line.entry.state === "unwritten" ? "unwritten"
                          : line.ready && line.code === FactoryUtils.Untest ? "next" : line.look.glyph
                    color: line.ready && line.code !== FactoryUtils.Untest ? Theme[line.look.ink] : Theme.muted
                }
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
                id: summaryButton
                objectName: "summary"
                readonly property bool useful: screen.flow !== null && screen.flow.anyResults
                width: useful ? (parent.width - parent.spacing) * 0.4 : 0
                visible: useful
                //% "Summary"
                text: qsTrId("kiv-summary")
                onClicked: {
                    screen.shell.reportRun();
                    screen.shell.show("SummaryScreen");
                }
            }
            PushButton {
                width: parent.width - (summaryButton.useful ? summaryButton.width + parent.spacing : 0)
                objectName: "start"
                fill: Theme.accent
                ink: Theme.accentInk
                visible: screen.untested.length > 0
                         || (screen.flow !== null && screen.flow.mode === TestTable.RunInTests)
                text: summaryButton.useful && screen.flow.mode !== TestTable.RunInTests
                      ? //% "Go on, %1 left"
                        qsTrId("kiv-list-continue").arg(screen.untested.length)
                      : //% "Start"
                        qsTrId("kiv-list-start")
                onClicked: {
                    if (screen.flow.mode === TestTable.RunInTests)
                        screen.shell.startRunIn();
                    else
                        screen.shell.startRun(screen.untested);
                }
            }
        }
    }
}
