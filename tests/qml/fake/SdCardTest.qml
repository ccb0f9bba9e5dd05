// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import KivFake 1.0

QtObject {
    enum Status { NoCard, Unmounted, Mounting, Mounted, Unmounting }
    readonly property int status: Phone.cardStatus
    readonly property bool mountFailed: Phone.cardMountFailed
    function sdCardIOTest() { Phone.note("sdCardIOTest"); return Phone.cardOutcome; }
}
