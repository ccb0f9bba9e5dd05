// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import KivFake 1.0

QtObject {
    function primarySinkName() { return Phone.sinkName; }
    function primarySinkActivePort() { return Phone.sinkPort; }
    function builtinSourceName() { return Phone.sourceName; }
    function setSinkPort(sink, port) {
        if (sink !== Phone.sinkName)
            return;
        Phone.note("port " + port);
        if (Phone.sinkPorts.indexOf(port) >= 0)
            Phone.sinkPort = port;
    }
}
