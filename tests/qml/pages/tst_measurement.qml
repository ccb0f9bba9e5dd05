// SPDX-License-Identifier: BSD-3-Clause
import QtQuick 2.15
import QtTest 1.15
import "../../../qml/controls"

TestCase {
    name: "Measurement"

    Component {
        id: component
        Measurement { name: "x" }
    }

    function make(properties) {
        return createTemporaryObject(component, this, properties);
    }

    function test_missingIsNeverANumberNorAPass_data() {
        return [
            { tag: "undefined", value: undefined },
            { tag: "null", value: null },
            { tag: "empty", value: "" },
            { tag: "NaN", value: NaN },
            { tag: "infinite", value: Infinity },
            { tag: "minus infinite", value: -Infinity }
        ];
    }

    function test_missingIsNeverANumberNorAPass(data) {
        var reading = make({ value: data.value, minimum: -1, maximum: 1 });
        compare(reading.valueText, "no reading");
        compare(reading.result, "missing");
        verify(!reading.good);
        reading = make({ value: data.value });
        compare(reading.result, "missing");
        reading = make({ value: data.value, accepted: [data.value] });
        compare(reading.result, "missing");
        reading = make({ value: data.value, meets: true });
        compare(reading.result, "missing");
    }

    function test_limits_data() {
        return [
            { tag: "below", value: 2.999, result: "fail" },
            { tag: "at the lower limit", value: 3, result: "near" },
            { tag: "close to the lower limit", value: 3.04, result: "near" },
            { tag: "well inside", value: 3.5, result: "pass" },
            { tag: "close to the upper limit", value: 3.96, result: "near" },
            { tag: "at the upper limit", value: 4, result: "near" },
            { tag: "above", value: 4.001, result: "fail" },
            { tag: "a text", value: "3.5", result: "fail" }
        ];
    }

    function test_limits(data) {
        compare(make({ value: data.value, minimum: 3, maximum: 4 }).result, data.result);
    }

    function test_oneLimit() {
        compare(make({ value: 144, minimum: 144 }).result, "near");
        compare(make({ value: 144, minimum: 144, counted: true }).result, "pass");
        compare(make({ value: 143, minimum: 144, counted: true }).result, "fail");
        compare(make({ value: 143, minimum: 144 }).result, "fail");
        compare(make({ value: 100, maximum: 50 }).result, "fail");
        compare(make({ value: 10, maximum: 50 }).result, "pass");
    }

    function test_accepted() {
        compare(make({ value: "Good", accepted: ["Good"] }).result, "pass");
        compare(make({ value: "Dead", accepted: ["Good"] }).result, "fail");
        compare(make({ value: true, accepted: [true] }).result, "pass");
        compare(make({ value: false, accepted: [true] }).result, "fail");
        compare(make({ value: false, accepted: [true] }).valueText, "no");
    }

    function test_withoutLimitsThereIsNothingToMeet() {
        compare(make({ value: 5 }).result, "none");
        verify(!make({ value: 5 }).decisive);
    }

    function test_notSettledIsNotYetAFailure() {
        compare(make({ value: 0, minimum: 8, settled: false }).result, "none");
        compare(make({ value: 8, minimum: 8, settled: false }).result, "near");
        compare(make({ minimum: 8, settled: false }).result, "missing");
        verify(!make({ minimum: 8, settled: false }).wanting);
        verify(make({ minimum: 8 }).wanting);
    }

    function test_texts() {
        var locale = Qt.locale();
        compare(make({ value: 3.9214, unit: "V", decimals: 3 }).valueText, (3.921).toLocaleString(locale, "f", 3) + "\u00a0V");
        compare(make({ value: -0.0004, decimals: 2 }).valueText, (0).toLocaleString(locale, "f", 2));
        compare(make({ value: 1, minimum: 1, maximum: 2, unit: "V" }).limitsText, "1 to 2 V");
        compare(make({ value: 1, minimum: 1 }).limitsText, "at least 1");
        compare(make({ value: 1, maximum: 2, unit: "A" }).limitsText, "at most 2 A");
    }
}
