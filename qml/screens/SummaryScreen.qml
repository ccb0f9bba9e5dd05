// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtQuick.Layouts 1.15
import Kiv 1.0
import "../controls"
import "../controls/Lists.js" as Lists
import "../controls/VerdictStyle.js" as Style

/*! What came out, readable from two metres. It stays until the next phone. */
Item {
    id: screen

    property var shell
    readonly property var flow: shell ? shell.flow : null
    readonly property alias sheet: codeSheet
    readonly property string code: flow ? flow.overallCode() : FactoryUtils.Untest
    readonly property var look: Style.looks[code]
    /*! Why a run-in ended before its time. */
    readonly property string endText: flow && flow.ending && flow.ending.code !== FactoryUtils.Pass
                                      ? flow.ending.text + "\n" : ""
    readonly property var order: [FactoryUtils.Fail, FactoryUtils.Untest, FactoryUtils.NA, FactoryUtils.Pass]
    readonly property var sorted: {
        var all = [];
        for (var i = 0; flow && i < order.length; ++i)
            all = all.concat(flow.entries.filter(function(entry) { return flow.entryCode(entry) === order[i]; }));
        return all;
    }

    function duration(seconds) {
        return seconds < 60
               //: A duration
               //% "%1 s"
               ? qsTrId("kiv-duration-seconds").arg(seconds)
               //: A duration: minutes and seconds
               //% "%1 min %2 s"
               : qsTrId("kiv-duration-minutes").arg(Math.floor(seconds / 60)).arg(seconds % 60);
    }

    function remark(entry) {
        if (entry.state === "absent")
            //: The features that the phone's configuration and a look at its hardware rule out
            //% "Not on this phone: %1"
            return qsTrId("kiv-summary-absent").arg(Lists.enumerate(entry.row.needs));
        if (entry.state === "unwritten")
            return qsTrId("kiv-list-unwritten");
        var result = flow.verdict(entry.row.name);
        if (!result)
            return "";
        var parts = [];
        if (result.overruled)
            //: The operator's verdict differs from the page's own, which follows, with his reason
            //% "Overruled by the operator: %2. Verdict before: %1"
            parts.push(qsTrId("kiv-summary-overruled").arg(Style.word(result.decided)).arg(result.whyText || "-"));
        else if (result.whyText)
            parts.push(result.whyText);
        if (result.reason)
            parts.push(result.reason);
        if (result.timedOut)
            //% "The time had run out"
            parts.push(qsTrId("kiv-summary-timed-out"));
        if (result.attempts > 1)
            //% "Attempts: %1"
            parts.push(qsTrId("kiv-summary-attempts").arg(result.attempts));
        // A part that fails now and then is not hidden by an attempt at which it did not.
        var failures = result.history.filter(function(attempt) { return attempt.code === FactoryUtils.Fail; }).length;
        var loops = flow.ending && flow.ending.failedLoops ? flow.ending.failedLoops[entry.row.name] : undefined;
        if (loops)
            //: Numbers of loops
            //% "Failed in the run-in, loop %1"
            parts.push(qsTrId("kiv-summary-failed-loops").arg(Lists.enumerate(loops)));
        else if (failures > 0 && result.code !== FactoryUtils.Fail)
            //% "Attempts that failed: %1"
            parts.push(qsTrId("kiv-summary-failed-attempts").arg(failures));
        if (result.spent)
            parts.push(duration(result.spent));
        return parts.join("\n");
    }

    Rectangle {
        id: banner
        width: parent.width
        height: bannerColumn.height + 2 * Theme.margin
        color: Theme[screen.look.ink]

        Column {
            id: bannerColumn
            x: Theme.margin
            y: Theme.margin
            width: parent.width - 2 * Theme.margin
            spacing: Theme.gap

            Icon {
                anchors.horizontalCenter: parent.horizontalCenter
                name: screen.look.glyph
                color: Theme[screen.look.on]
                size: 9 * Theme.unit
            }
            FittedWords {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                color: Theme[screen.look.on]
                largest: Theme.display
                font.weight: Font.Bold
                text: screen.code === FactoryUtils.Untest
                      //% "Not complete"
                      ? qsTrId("kiv-summary-incomplete") : Style.word(screen.code)
            }
        }
    }
    RowLayout {
        id: counts
        anchors.top: banner.bottom
        width: parent.width
        spacing: 0

        Repeater {
            model: screen.order

            Rectangle {
                id: share
                readonly property var look: Style.looks[modelData]
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.preferredWidth: counts.width / 4
                implicitHeight: tally.height + Theme.margin
                color: Theme[share.look.tint]

                Column {
                    id: tally
                    anchors.centerIn: parent
                    width: parent.width - Theme.gap

                    Words {
                        width: parent.width
                        horizontalAlignment: Text.AlignHCenter
                        font.pixelSize: Theme.title
                        font.weight: Font.Bold
                        color: Theme[share.look.ink]
                        text: screen.flow ? screen.flow.count(modelData) : ""
                    }
                    FittedWords {
                        width: parent.width
                        horizontalAlignment: Text.AlignHCenter
                        largest: Theme.small
                        color: Theme[share.look.ink]
                        text: Style.word(modelData)
                    }
                }
            }
        }
    }
    Words {
        id: totals
        objectName: "totals"
        anchors.top: counts.bottom
        anchors.topMargin: Theme.gap
        x: Theme.margin
        width: parent.width - 2 * Theme.margin
        horizontalAlignment: Text.AlignHCenter
        color: Theme.muted
        font.pixelSize: Theme.small
        visible: screen.flow !== null && (screen.endText !== "" || screen.flow.total("attempts") > 0)
        height: visible ? implicitHeight + Theme.gap : 0
        text: screen.flow
              //: Totals of a sequence: how many attempts, how long
              //% "Attempts: %1, time: %2"
              ? screen.endText + qsTrId("kiv-summary-totals").arg(screen.flow.total("attempts"))
                                                             .arg(screen.duration(screen.flow.total("spent"))) : ""
    }
    ListView {
        id: list
        objectName: "results"
        anchors.top: totals.bottom
        anchors.bottom: footer.top
        width: parent.width
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        model: screen.sorted

        Reader {
            view: list
        }

        delegate: Rectangle {
            id: line
            readonly property var entry: modelData
            readonly property string code: screen.flow.entryCode(entry)
            readonly property var look: Style.looks[code]

            width: list.width
            height: Math.max(7 * Theme.unit, names.height + Theme.margin)
            color: Theme.surface
            Accessible.role: Accessible.ListItem
            Accessible.name: title.text + ", " + Style.word(code) + ", " + code + ", " + detail.text

            Icon {
                id: mark
                anchors.left: parent.left
                anchors.leftMargin: Theme.margin
                anchors.verticalCenter: parent.verticalCenter
                name: line.look.glyph
                color: Theme[line.look.ink]
            }
            Column {
                id: names
                anchors.left: mark.right
                anchors.leftMargin: Theme.margin
                anchors.right: codeText.left
                anchors.rightMargin: Theme.gap
                anchors.verticalCenter: parent.verticalCenter

                Words {
                    id: title
                    width: parent.width
                    text: qsTrId(line.entry.row.title)
                    font.weight: Font.DemiBold
                    Accessible.ignored: true
                }
                Words {
                    id: detail
                    width: parent.width
                    text: screen.remark(line.entry)
                    visible: text !== ""
                    color: Theme.muted
                    font.pixelSize: Theme.small
                    Accessible.ignored: true
                }
            }
            Words {
                id: codeText
                anchors.right: parent.right
                anchors.rightMargin: Theme.margin
                anchors.verticalCenter: parent.verticalCenter
                text: line.code
                color: Theme[line.look.ink]
                font.weight: Font.DemiBold
                Accessible.ignored: true
            }
            Rectangle {
                anchors.bottom: parent.bottom
                width: parent.width
                height: Theme.hairline
                color: Theme.line
            }
        }
    }
    Footer {
        id: footer
        anchors.bottom: parent.bottom
        width: parent.width

        PushButton {
            width: parent.width
            objectName: "code"
            glyph: "code"
            //% "Code for the station"
            text: qsTrId("kiv-summary-code")
            onClicked: codeSheet.open(screen.shell.codeText())
        }
        Row {
            width: parent.width
            spacing: Theme.gap

            PushButton {
                width: (parent.width - parent.spacing) / 2
                objectName: "retest"
                readonly property var failedRows: screen.flow ? screen.flow.rowsWith(FactoryUtils.Fail) : []
                text: failedRows.length > 0
                      ? //% "Retest failed"
                        qsTrId("kiv-summary-retest")
                      : //% "Back to the list"
                        qsTrId("kiv-summary-list")
                onClicked: {
                    if (failedRows.length > 0)
                        screen.shell.startRun(failedRows);
                    else
                        screen.shell.show("ListScreen");
                }
            }
            PushButton {
                width: (parent.width - parent.spacing) / 2
                objectName: "next"
                fill: Theme.accent
                ink: Theme.accentInk
                //% "Next phone"
                text: qsTrId("kiv-summary-next")
                onClicked: screen.shell.nextUnit()
            }
        }
    }

    CodeSheet {
        id: codeSheet
        anchors.fill: parent
    }
}
