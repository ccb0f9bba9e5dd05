// SPDX-License-Identifier: BSD-3-Clause
#ifndef FEATURES_H
#define FEATURES_H

#include <QMap>
#include <QObject>
#include <QString>

/*!
 * What hardware this phone has, and which tests belong to its test sequences.
 *
 * Each of the three tables comes from the device adaptation's settings (see loadSettings()), where the group holds
 * lines such as "Hall=true": the features from the group "features" of the files "*hw-settings*.ini", the sequences
 * from the group "tests" of the files "*factory-tests*.ini" and "*run-in-tests*.ini". A value counts as true
 * as saysYes() has it. Where there is no such group, the hardware is probed and the usual tests are enabled.
 *
 * Everything is decided at construction, which can block for minutes when the platform's tools hang.
 */
class Features : public QObject
{
    Q_OBJECT

public:
    /*! The sequences in which tests run. */
    enum TestMode
    {
        FactoryTests = 0,
        RunInTests = 1,
        AllTests = 2
    };
    Q_ENUM(TestMode)

    explicit Features(QObject *parent = nullptr);

    /*! Whether the phone has the feature and, where the table says something about that, the test makes sense on this
     *  phone. False for unknown names. */
    Q_INVOKABLE bool supported(const QString &feature, const QString &test = QString()) const;
    /*! Whether the test belongs to the factory sequence. False for unknown names. */
    Q_INVOKABLE bool factoryTestEnabled(const QString &test) const;
    /*! Whether the test belongs to the run-in sequence. False for unknown names. */
    Q_INVOKABLE bool runInTestEnabled(const QString &feature) const;

private:
    using Table = QMap<QString, bool>;

    void detect();

    Table m_features;
    Table m_factoryTests;
    Table m_runInTests;
};

#endif
