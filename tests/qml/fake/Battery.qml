// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import KivFake 1.0

QtObject {
    function number(name) {
        return Phone.battery[name] === undefined ? NaN : Phone.battery[name];
    }
    function currentNow() { return number("currentNow"); }
    function minimumVoltage() { return number("minimumVoltage"); }
    function maximumVoltage() { return number("maximumVoltage"); }
    function voltageNow() { return number("voltageNow"); }
    function minimumEnergy() { return number("minimumEnergy"); }
    function maximumEnergy() { return number("maximumEnergy"); }
    function energyNow() { return number("energyNow"); }
    function minimumDesignEnergy() { return number("minimumDesignEnergy"); }
    function maximumDesignEnergy() { return number("maximumDesignEnergy"); }
    function health() { return Phone.battery.health || ""; }
    function status() { return Phone.battery.status || ""; }
    function temperature() { return number("temperature"); }
    function present() { return Phone.battery.present === true; }
    function enableCharger() { Phone.switchCharger(true); }
    function disableCharger() { Phone.switchCharger(false); }
}
