// SPDX-License-Identifier: BSD-3-Clause
#ifndef FACTORYUTILS_H
#define FACTORYUTILS_H

#include <QObject>
#include <QString>

/*! The two-character codes in which test results are written and compared. They sort in this order. */
class FactoryUtils : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString Untest READ untest CONSTANT)
    Q_PROPERTY(QString Pass READ pass CONSTANT)
    Q_PROPERTY(QString Fail READ fail CONSTANT)
    Q_PROPERTY(QString NA READ notApplicable CONSTANT)

public:
    explicit FactoryUtils(QObject *parent = nullptr);

    QString untest() const;
    QString pass() const;
    QString fail() const;
    QString notApplicable() const;
};

#endif
