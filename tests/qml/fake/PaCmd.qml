// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import KivFake 1.0

QtObject {
    function primarySinkName() { return Phone.sinkName; }
    function primarySinkActivePort() { return Phone.sinkPort; }
    function sourceName(type) { return Phone.sourceName; }
    function sourceActivePort(type) { return Phone.sourcePort; }
    function builtinSourceName() { return Phone.sourceName; }
    function externalSourceName() { return ""; }
    function builtinSourceActivePort() { return Phone.sourcePort; }
    function externalSourceActivePort() { return ""; }
    function sourceIsCombined() { return true; }
    function setSinkPort(sink, port) {
        if (sink !== Phone.sinkName)
            return;
        Phone.note("port " + port);
        if (Phone.sinkPorts.indexOf(port) >= 0)
            Phone.sinkPort = port;
    }
    function setPrimarySinkPort(port) { setSinkPort(Phone.sinkName, port); }
    function setPrimarySinkProperty(value) { Phone.note("sink property " + value); }
    function setSourcePort(source, port) { Phone.sourcePort = port; Phone.note("source port " + port); }
    function setBuiltinSourcePort(port) { setSourcePort(Phone.sourceName, port); }
    function setExternalSourcePort(port) { setSourcePort("", port); }
}
