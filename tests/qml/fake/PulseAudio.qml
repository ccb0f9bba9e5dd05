// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import KivFake 1.0

ListModel {
    Component.onCompleted: Phone.streams.forEach(function(stream) { append(stream); })
}
