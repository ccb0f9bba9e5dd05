// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import KivFake 1.0

QtObject {
    id: detect
    property bool open: false
    property bool hall: false
    function openFile() { open = true; hall = Phone.hall; Phone.note("openFile"); }
    function closeFile() { open = false; Phone.note("closeFile"); }
    function readHallData(descriptor) { hall = Phone.hall; }
    property Connections follower: Connections {
        target: Phone
        function onHallChanged() {
            if (detect.open)
                detect.hall = Phone.hall;
        }
    }
}
