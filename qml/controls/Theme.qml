// SPDX-License-Identifier: BSD-3-Clause
pragma Singleton
import QtQuick 2.15

/*!
 * One scale and one palette for all screens. Everything is a multiple of `unit`, which follows the window: 45 units are
 * the width of a phone held upright, so that one unit is about 1.4 mm on a 5 inch panel of any resolution.
 */
QtObject {
    /*! Set by the shell to the window's size. Until it has one, the panel's is the best guess. */
    property real width: panel ? panel.width : 360
    property real height: panel ? panel.height : 640
    readonly property var panel: Qt.application.screens[0]
    /*! Whether reading begins at the right; the catalogue that is in use says so. */
    //: "LTR", or "RTL" for a language that is written from right to left
    //% "LTR"
    readonly property bool mirrored: qsTrId("kiv-layout-direction") === "RTL"
    property bool dark: false

    readonly property int unit: Math.max(4, Math.floor(Math.min(width / 45, height / 72)))

    readonly property int hairline: Math.max(1, Math.round(unit / 8))
    readonly property int gap: unit
    readonly property int margin: 2 * unit
    readonly property int radius: Math.round(1.5 * unit)
    /*! The smallest side of anything that is touched: 12 mm, for gloves. */
    readonly property int target: 9 * unit

    readonly property int small: Math.round(1.75 * unit)
    readonly property int body: Math.round(2.125 * unit)
    readonly property int lead: Math.round(2.5 * unit)
    readonly property int title: Math.round(3.25 * unit)
    readonly property int display: 5 * unit

    readonly property color background: dark ? "#0d1115" : "#eef1f4"
    readonly property color surface: dark ? "#1a2129" : "#ffffff"
    readonly property color pressed: dark ? "#2a343f" : "#dde4ea"
    readonly property color line: dark ? "#36414d" : "#c9d1d9"
    readonly property color text: dark ? "#f3f6f9" : "#10161d"
    readonly property color muted: dark ? "#b3bec9" : "#46525e"
    readonly property color accent: dark ? "#6cb2ff" : "#0a55a3"
    readonly property color accentInk: dark ? "#04182d" : "#ffffff"

    readonly property color pass: dark ? "#4fca80" : "#0f6b35"
    readonly property color passInk: dark ? "#03210f" : "#ffffff"
    readonly property color passTint: dark ? "#12301f" : "#dcf2e3"
    readonly property color fail: dark ? "#ff8379" : "#ae1b1a"
    readonly property color failInk: dark ? "#2c0504" : "#ffffff"
    readonly property color failTint: dark ? "#3d1816" : "#fbe1df"
    readonly property color warn: dark ? "#f4bd55" : "#7d4e00"
    readonly property color warnInk: dark ? "#2a1b00" : "#ffffff"
    readonly property color warnTint: dark ? "#382a0f" : "#faeac8"
    readonly property color neutral: dark ? "#b3bec9" : "#46525e"
    readonly property color neutralInk: dark ? "#10161d" : "#ffffff"
    readonly property color neutralTint: dark ? "#28313a" : "#e1e6eb"
}
