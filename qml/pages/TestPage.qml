// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import Kiv 1.0
import "../controls"

/*!
 * What every test page is made of. The frame shows instructions, the page's own content and its readings, and asks for a
 * verdict; a page that can measure its verdict calls judge().
 *
 * A page touches hardware in onOpened, when it is on the screen, and puts back what it changed in onClosing, which comes
 * exactly once on every way out, the end of the program included.
 */
Item {
    id: page

    /*! The frame; null where a page is shown alone. */
    property var frame: null
    /*! The page's row in the table of tests. */
    property var row: null

    /*! What the operator has to do. */
    property string instructions
    /*! A list of Measurement. */
    property var measurements: []
    /*! Why the test cannot be done here, in a sentence; empty where it can. */
    property string missing
    /*! Whether enough has been seen for a pass, and what is still missing. */
    property bool evidence: true
    property string evidenceHint
    /*! What is going wrong on a page that otherwise the operator judges: a player's error, a camera without pictures. It
     *  is shown, and where nobody watches, in the run-in, it fails the test. */
    property string trouble
    /*! The page needs the volume and power keys itself; elsewhere they give verdicts. */
    property bool ownsKeys: false
    /*! Nobody watches: the page starts by itself what it tests, and asks nothing. */
    readonly property bool unattended: frame !== null && frame.unattended === true
    /*! Where nobody watches a guided page: whether what is tested has really been at work. */
    property bool exercised: false
    /*! The page wants the whole screen. */
    property bool fullScreen: false
    /*! Drawn over the whole screen while fullScreen. */
    property Component cover: null

    /*! The page's own verdict, one of FactoryUtils' codes, and why; empty while it has none. */
    readonly property alias verdict: state.verdict
    readonly property alias reason: state.reason
    readonly property alias isOpen: state.isOpen

    default property alias content: column.data

    signal opened()
    signal closing()

    /*! The first verdict stands. */
    function judge(code, why) {
        if (state.verdict !== "")
            return;
        state.reason = why;
        state.verdict = code;
    }

    /*! Passes if all decisive readings are good, else fails; says which. Readings that are missing fail. */
    function judgeReadings(goodReason) {
        var decisive = measurements.filter(function(reading) { return reading.decisive; });
        var bad = decisive.filter(function(reading) { return !reading.good; });
        if (bad.length === 0 && decisive.length > 0) {
            judge(FactoryUtils.Pass, goodReason);
            return;
        }
        judge(FactoryUtils.Fail, bad.map(function(reading) {
            //: A reading that is not as it should be: its name, its value, what it should be
            //% "%1: %2 (%3)"
            return qsTrId("kiv-reason-reading").arg(reading.name).arg(reading.valueText)
                                               .arg(reading.limitsText || reading.resultText);
        }).join("\n"));
    }

    function open() {
        if (state.isOpen)
            return;
        state.isOpen = true;
        opened();
    }

    function close() {
        if (!state.isOpen)
            return;
        state.isOpen = false;
        closing();
    }

    /*! Runs a job that blocks the interface behind a screen that says so. */
    function blocking(text, job) {
        if (frame)
            frame.blocking(text, function() {
                // The page may have been left meanwhile.
                if (page.isOpen)
                    job();
            });
        else
            job();
    }

    implicitHeight: column.height
    height: implicitHeight

    Component.onDestruction: close()

    QtObject {
        id: state
        property string verdict
        property string reason
        property bool isOpen: false
    }

    Column {
        id: column
        width: parent.width
        spacing: Theme.margin
    }
}
