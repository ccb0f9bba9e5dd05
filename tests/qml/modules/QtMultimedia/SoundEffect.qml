// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import KivFake 1.0

/*! An effect as Qt's, at a sound server that does what the phone says: one that is gone leaves effects loading, and takes
 *  nothing more of those that play, which does not end them. */
QtObject {
    id: effect

    enum Status { Null, Loading, Ready, Error }

    property url source
    property int loops: 1
    property string category
    property int status: SoundEffect.Loading
    property bool playing: false
    property int loopsRemaining: 0

    function play() {
        playing = true;
        loopsRemaining = loops;
        var file = source.toString().replace(/.*\//, "");
        // The cues of the screens belong to no test.
        if (file.indexOf("cue-") < 0)
            Phone.sounding = file;
    }

    function stop() {
        if (playing)
            Phone.sounding = "";
        playing = false;
        loopsRemaining = 0;
    }

    property Timer loader: Timer {
        interval: 20
        running: Phone.soundServer && effect.status === SoundEffect.Loading
        onTriggered: effect.status = SoundEffect.Ready
    }
    property Timer speaker: Timer {
        interval: 200
        repeat: true
        running: Phone.soundServer && effect.playing
        onTriggered: --effect.loopsRemaining
    }
}
