// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15

ListModel {
    property int limit: -1
    ListElement { pid: 2110; name: "/usr/bin/kiv"; percentCpu: 12.5 }
    ListElement { pid: 812; name: "/usr/bin/compositor"; percentCpu: 7.25 }
    ListElement { pid: 33; name: "kworker/u8:2"; percentCpu: 0.4 }
}
