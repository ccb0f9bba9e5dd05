// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import KivFake 1.0

/*! Plays the kinds of files that the phone can decode, each for half a second. */
QtObject {
    id: player

    enum Status { NoMedia, Loading, Loaded, Buffering, Stalled, Buffered, EndOfMedia, InvalidMedia, UnknownStatus }

    property url source
    property int position: 0
    property int status: MediaPlayer.NoMedia
    property int notifyInterval: 1000
    property string errorString
    readonly property bool delivers: clock.running
    readonly property int length: 500

    signal error(int error, string errorString)

    function play() {
        var file = source.toString();
        position = 0;
        if (Phone.decoders.some(function(suffix) { return file.slice(-suffix.length) === suffix; })) {
            status = MediaPlayer.Buffered;
            clock.start();
        } else {
            refusal.start();
        }
    }

    function stop() {
        clock.stop();
        refusal.stop();
        position = 0;
        status = MediaPlayer.NoMedia;
    }

    property Timer clock: Timer {
        interval: 50
        repeat: true
        onTriggered: {
            if (Phone.videoBreaks !== "" && player.position > 0) {
                stop();
                player.errorString = Phone.videoBreaks;
                player.error(1, player.errorString);
                return;
            }
            player.position += interval;
            if (player.position >= player.length) {
                stop();
                player.status = MediaPlayer.EndOfMedia;
            }
        }
    }
    property Timer refusal: Timer {
        interval: 20
        onTriggered: player.status = MediaPlayer.InvalidMedia
    }
}
