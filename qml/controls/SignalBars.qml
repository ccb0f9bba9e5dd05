// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15

/*!
 * How strongly each satellite is received, a bar each: its strength in dB above, its number and, if it is in use, a mark
 * below. satellites: [{identifier, strength, inUse}]; those in use and then the strongest are shown.
 */
Item {
    id: bars

    property var satellites: []
    property int limit: 10
    /*! The strength that fills a bar. */
    readonly property int full: 50

    readonly property var shown: satellites.slice().sort(function(a, b) {
        return b.inUse - a.inUse || b.strength - a.strength || a.identifier - b.identifier;
    }).slice(0, limit).sort(function(a, b) { return a.identifier - b.identifier; })
    readonly property int hidden: satellites.length - shown.length

    implicitHeight: row.height + (more.visible ? more.height : 0)
    height: implicitHeight

    Row {
        id: row
        width: parent.width

        Repeater {
            model: bars.shown.length

            Item {
                id: place
                readonly property var satellite: bars.shown[index]
                readonly property bool known: satellite !== undefined && satellite.strength >= 0
                readonly property bool used: satellite !== undefined && satellite.inUse
                readonly property string strengthText: known ? Math.round(satellite.strength) : "–"
                width: bars.width / bars.limit
                height: 14.75 * Theme.unit
                Accessible.role: Accessible.StaticText
                Accessible.name: satellite === undefined ? "" :
                    //: A satellite: its number, its strength in decibels
                    //% "Satellite %1, %2 dB"
                    qsTrId("kiv-gps-satellite").arg(satellite.identifier).arg(strengthText)
                    //% "in use"
                    + (used ? ", " + qsTrId("kiv-gps-used") : "")

                Words {
                    anchors.horizontalCenter: parent.horizontalCenter
                    anchors.bottom: bar.top
                    text: place.strengthText
                    font.pixelSize: Theme.small
                    font.weight: place.used ? Font.Bold : Font.Normal
                    wrapMode: Text.NoWrap
                    Accessible.ignored: true
                }
                Rectangle {
                    id: bar
                    anchors.horizontalCenter: parent.horizontalCenter
                    anchors.bottom: number.top
                    width: 2 * Theme.unit
                    height: Math.max(Theme.unit / 2, 8 * Theme.unit * Math.min(1, (place.known ? place.satellite.strength : 0)
                                                                                   / bars.full))
                    radius: Theme.unit / 2
                    color: place.used ? Theme.pass : Theme.neutralTint
                    border.width: place.used ? 0 : 2 * Theme.hairline
                    border.color: Theme.muted
                }
                Words {
                    id: number
                    anchors.horizontalCenter: parent.horizontalCenter
                    anchors.bottom: mark.top
                    text: place.satellite === undefined ? "" : place.satellite.identifier
                    color: Theme.muted
                    font.pixelSize: Theme.small
                    wrapMode: Text.NoWrap
                    Accessible.ignored: true
                }
                Icon {
                    id: mark
                    anchors.horizontalCenter: parent.horizontalCenter
                    anchors.bottom: parent.bottom
                    size: 2.25 * Theme.unit
                    name: place.used ? "pass" : ""
                    color: Theme.pass
                }
            }
        }
    }
    Words {
        id: more
        anchors.top: row.bottom
        width: parent.width
        visible: bars.hidden > 0
        //: How many satellites have no bar
        //% "Weaker ones that are not shown: %1"
        text: qsTrId("kiv-gps-more").arg(bars.hidden)
        color: Theme.muted
        font.pixelSize: Theme.small
    }
}
