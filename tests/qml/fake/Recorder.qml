// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import KivFake 1.0

QtObject {
    enum InputSource { CurrentMicrophone, TopMicrophone, BottomMicrophone }
    property real volume: 0
    property bool kivMode: false
    property int inputSource: 0
    property string category
    property bool recording: false
    function record() { recording = true; Phone.note("record " + inputSource); }
    function stopRecord() { stop(); }
    function play() { recording = false; Phone.note("play"); }
    function stop() {
        if (recording)
            Phone.note("stop");
        recording = false;
    }
}
