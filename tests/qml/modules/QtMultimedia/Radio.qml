// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import KivFake 1.0

QtObject {
    enum Band { AM, FM, SW, LW, FM2 }

    property int band: Radio.FM
    property int frequency: 0

    function start() { Phone.note("tuner " + frequency); }
    function stop() { Phone.note("tuner off"); }
}
