// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import KivFake 1.0

QtObject {
    enum HeadsetButton {
        ButtonMisc = 1, Button0 = 1, Button1 = 2, Button2 = 4, Button3 = 8, Button4 = 16, Button5 = 32, Button6 = 64,
        Button7 = 128, Button8 = 256, Button9 = 512, KeyMedia = 1024, KeyPlayPause = 2048
    }

    property bool open: false
    property bool buttonsOpen: false
    readonly property bool headphoneInserted: open && Phone.headphones && !Phone.microphone
    readonly property bool microphoneInserted: open && !Phone.headphones && Phone.microphone
    readonly property bool headsetInserted: open && Phone.headphones && Phone.microphone
    readonly property int buttonsPressed: buttonsOpen ? Phone.buttonsPressed : 0

    // What the calls below answer; no binding follows it.
    readonly property var found: ({ jack: false, buttons: false })

    function openDevice() { open = found.jack = Phone.jackFound; }
    function openButtonDevice() { buttonsOpen = found.buttons = Phone.buttonsFound; }
    function deviceFound() { return found.jack; }
    function buttonsFound() { return found.buttons; }
    function buttonCount() { return found.buttons ? Phone.buttonCount : 0; }
    function buttonPressed(button) { return (buttonsPressed & button) !== 0; }
}
