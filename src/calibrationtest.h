// SPDX-License-Identifier: BSD-3-Clause
#ifndef CALIBRATIONTEST_H
#define CALIBRATIONTEST_H

#include <QObject>
#include <QString>

class HwSettings;

/*!
 * Checks the calibration record of the production line against what the line requires. Both stand in the hardware
 * settings (see HwSettings): the record in the group CalibrationInfo, the requirements in CalibrationCheck.
 */
class CalibrationTest : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool calibrationFlag READ calibrationFlag CONSTANT)
    Q_PROPERTY(QString calibrationString READ calibrationString CONSTANT)
    Q_PROPERTY(QString calibrationStringCriteria READ calibrationStringCriteria CONSTANT)
    Q_PROPERTY(QString calibrationFlagCriteria READ calibrationFlagCriteria CONSTANT)

public:
    explicit CalibrationTest(QObject *parent = nullptr);

    /*! Whether the record's flag is not 0; false when there is none. Key: CalibrationInfo/Flag. */
    bool calibrationFlag() const;
    /*! The record's text, empty when there is none. Key: CalibrationInfo/String. */
    QString calibrationString() const;
    /*! The regular expression required, empty when there is none. Key: CalibrationCheck/String. */
    QString calibrationStringCriteria() const;
    /*! The flag required, as written; empty when there is none. Key: CalibrationCheck/Flag. */
    QString calibrationFlagCriteria() const;

    /*! Whether the record's flag, 0 if it has none, is the one required, 1 if nothing is. */
    Q_INVOKABLE bool isCalibrationFlagOk() const;
    /*! Whether the regular expression required matches anywhere in the record's text. An empty text never passes, an
     *  invalid expression matches nothing. */
    Q_INVOKABLE bool isCalibrationStringOk() const;

private:
    HwSettings *m_settings;
};

#endif
