// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import KivFake 1.0

QtObject {
    function isMacValid(type) { return Phone.validAddresses.indexOf(type) >= 0; }
    function getMac(type) { return Phone.addresses[type] || ""; }
    function getMacCriteria(type) { return "(([0-9a-f]){2}:){5}([0-9a-f]){2}"; }
}
