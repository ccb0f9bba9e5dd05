// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtMultimedia 5.15

/*!
 * Kiv's way to the sound server, which never waits for it.
 *
 * An effect that has just been made becomes ready only when the server has made a stream for it, and counts its loops
 * down only as the server takes them. Nothing else tells of a server that is gone or hangs: an effect that has been
 * playing claims for ever that it still is, and a recording that is begun then never returns.
 */
QtObject {
    id: link

    /*! The server makes streams for Kiv. */
    signal reached()
    /*! It does not answer, or it takes no more of what is being played. */
    signal lost()
    /*! The server has taken the sound that is being played as a whole. */
    signal taken()

    /*! How long a server that works may take. */
    property int patienceMs: 3000

    property var effect: null
    property int soundMs: 0

    /*! Answers with reached() or lost(). */
    function ask() {
        make("silence.wav", 0);
    }

    /*! Plays a file of the sounds over and over; ms is how long it is. */
    function play(file, ms) {
        make(file, ms);
    }

    function stop() {
        patience.stop();
        if (!effect)
            return;
        var old = effect;
        effect = null;
        old.stop();
        old.destroy();
    }

    function make(file, ms) {
        stop();
        soundMs = ms;
        patience.interval = patienceMs;
        patience.start();
        effect = maker.createObject(link, { "source": Qt.resolvedUrl("../sounds/" + file) });
        look(effect);
    }

    function look(from) {
        // What is said while it is being made or taken down is not yet or no longer meant.
        if (from !== effect || !effect)
            return;
        if (effect.status === SoundEffect.Error) {
            give();
        } else if (effect.status === SoundEffect.Ready) {
            if (soundMs === 0) {
                stop();
                reached();
            } else if (!effect.playing) {
                patience.interval = soundMs + patienceMs;
                patience.restart();
                effect.play();
            }
        }
    }

    function count(from) {
        if (from !== effect || !effect || !effect.playing || effect.loopsRemaining >= effect.loops)
            return;
        patience.restart();
        taken();
    }

    function give() {
        stop();
        lost();
    }

    property Timer patience: Timer {
        onTriggered: link.give()
    }
    property Component maker: Component {
        SoundEffect {
            id: made
            // Endless loops would not be counted.
            loops: 10000
            category: "kiv"
            onStatusChanged: link.look(made)
            onLoopsRemainingChanged: link.count(made)
        }
    }
}
