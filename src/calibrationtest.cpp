// SPDX-License-Identifier: BSD-3-Clause
#include "calibrationtest.h"

#include "hwsettings.h"

#include <QRegularExpression>

namespace
{
const QString InfoFlag = QStringLiteral("CalibrationInfo/Flag");
const QString InfoString = QStringLiteral("CalibrationInfo/String");
const QString CheckFlag = QStringLiteral("CalibrationCheck/Flag");
const QString CheckString = QStringLiteral("CalibrationCheck/String");

constexpr int UncalibratedFlag = 0;
constexpr int DefaultRequiredFlag = 1;
}

CalibrationTest::CalibrationTest(QObject *parent) : QObject(parent), m_settings(new HwSettings(this))
{
}

bool CalibrationTest::calibrationFlag() const
{
    return m_settings->intValue(InfoFlag, UncalibratedFlag) != UncalibratedFlag;
}

QString CalibrationTest::calibrationString() const
{
    return m_settings->stringValue(InfoString);
}

QString CalibrationTest::calibrationStringCriteria() const
{
    return m_settings->stringValue(CheckString);
}

QString CalibrationTest::calibrationFlagCriteria() const
{
    return m_settings->stringValue(CheckFlag);
}

bool CalibrationTest::isCalibrationFlagOk() const
{
    return m_settings->intValue(InfoFlag, UncalibratedFlag) == m_settings->intValue(CheckFlag, DefaultRequiredFlag);
}

bool CalibrationTest::isCalibrationStringOk() const
{
    const QString text = calibrationString();
    if (text.isEmpty())
        return false;
    const QRegularExpression required(calibrationStringCriteria());
    // Asked to match, an invalid expression would only write a warning first.
    return required.isValid() && required.match(text).hasMatch();
}
