// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import "Report.js" as Report

/*!
 * Tells the outside what came out: a line of JSON on the message log for every verdict and every run, in a category of
 * their own by which a station script finds them, and the text of the QR code.
 */
QtObject {
    id: reporter

    property var flow

    function reportVerdict(name, verdict) {
        console.info(results, Report.verdict(flow.mode, name, verdict, new Date().toISOString()));
    }

    function reportRun() {
        console.info(results, Report.run(flow, identity(), new Date().toISOString()));
    }

    function codeText() {
        return Report.codeText(flow, identity());
    }

    // Asked anew each time: the phone's addresses can be written while Kiv runs.
    function identity() {
        var phone = identityComponent.createObject(reporter);
        var found = { wlan: phone.wlan, bluetooth: phone.bluetooth, calibrated: phone.calibrated };
        phone.destroy();
        return found;
    }

    readonly property Component identityComponent: Component {
        Identity {}
    }
    readonly property LoggingCategory results: LoggingCategory {
        name: "com.orvel.kiv.results"
        defaultLogLevel: LoggingCategory.Info
    }
}
