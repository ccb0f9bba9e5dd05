// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import KivFake 1.0

QtObject {
    readonly property bool wiredOutputConnected: Phone.headphones
    readonly property bool wiredInputConnected: Phone.microphone
    property bool fmRadio: false
    onFmRadioChanged: {
        Phone.note("radio " + (fmRadio ? "on" : "off"));
        if (!Phone.offersRadio)
            fmRadio = false;
    }
}
