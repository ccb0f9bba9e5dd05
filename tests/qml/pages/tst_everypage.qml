// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtTest 1.15
import Kiv 1.0
import KivFake 1.0
import "../../../qml/flow/TestTable.js" as TestTable

/*! What the frame promises of every page alike, tried on each. */
Driver {
    name: "EveryPage"

    function rows() {
        return TestTable.rows.filter(function(row) { return row.page !== ""; }).map(function(row) {
            return { tag: row.name };
        });
    }

    /*! Gives a verdict against whatever the page has found out. */
    function fail() {
        var measured = page.verdict !== "" && page.verdict !== FactoryUtils.Fail;
        frame.choose(FactoryUtils.Fail);
        if (measured)
            frame.sheet.choose({ id: "perceived", text: "" });
    }

    function test_timeOut_data() {
        return rows();
    }

    /*! The time runs out twice: the page is made anew, and then it fails. */
    function test_timeOut(data) {
        openTest(data.tag);
        var before = page, opened = 1;
        if (page.verdict === "") {
            frame.secondsLeft = 1;
            tryVerify(function() { return frame.sheet.isOpen || page.verdict !== ""; }, 5000);
        }
        // A page that has measured its verdict needs no more time.
        var asked = frame.sheet.isOpen;
        if (asked)
            frame.sheet.choose({ id: "retry" });
        else
            find("retry").clicked();
        tryVerify(function() { return page && page !== before && page.isOpen; }, 8000);
        verify(!kept(data.tag) || kept(data.tag).code === FactoryUtils.Untest, "a time-out is no verdict");
        compare(kept(data.tag).attempts, 1);
        compare(kept(data.tag).history[0].timedOut, asked);
        if (page.verdict === "") {
            frame.secondsLeft = 1;
            tryVerify(function() { return frame.sheet.isOpen || page.verdict !== ""; }, 5000);
        }
        if (frame.sheet.isOpen)
            frame.sheet.choose({ id: "fail" });
        else
            fail();
        tryVerify(function() { return kept(data.tag).code === FactoryUtils.Fail; });
        compare(kept(data.tag).attempts, 2);
    }

    function test_missingHardware_data() {
        return rows();
    }

    /*! Nothing answers: the page opens all the same, does not pass, and says why where it can know. */
    function test_missingHardware(data) {
        Phone.removeEverything();
        openTest(data.tag);
        wait(300);
        compare(page.verdict === FactoryUtils.Pass, false, page.reason);
        page.measurements.forEach(function(reading) {
            verify(reading.valueText.indexOf("NaN") < 0 && reading.valueText.indexOf("undefined") < 0, reading.name);
            if (reading.missing)
                verify(!reading.good, reading.name);
        });
        if (page.missing !== "")
            verify(!frame.passUnlocked, page.missing);
        fail();
        compare(kept(data.tag).code, FactoryUtils.Fail);
    }

    function test_skipped_data() {
        return rows();
    }

    function test_skipped(data) {
        openTest(data.tag);
        frame.askWhySkipped();
        frame.sheet.choose({ id: "later", text: "" });
        compare(kept(data.tag).code, FactoryUtils.Untest);
        compare(kept(data.tag).why, "later");
    }
}
