// SPDX-License-Identifier: BSD-3-Clause
#include "factoryutils.h"
#include "metaobject.h"

#include <QtTest>

class tst_FactoryUtils : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void interface();
    void codes();
    void codesSortInOrder();
};

void tst_FactoryUtils::interface()
{
    const QStringList expected = {
        QStringLiteral("property QString Untest constant"),
        QStringLiteral("property QString Pass constant"),
        QStringLiteral("property QString Fail constant"),
        QStringLiteral("property QString NA constant"),
    };
    QCOMPARE(ownInterface(FactoryUtils::staticMetaObject), expected);
}

void tst_FactoryUtils::codes()
{
    const FactoryUtils utils;
    QCOMPARE(utils.property("Untest").toString(), QStringLiteral("00"));
    QCOMPARE(utils.property("Pass").toString(), QStringLiteral("01"));
    QCOMPARE(utils.property("Fail").toString(), QStringLiteral("02"));
    QCOMPARE(utils.property("NA").toString(), QStringLiteral("03"));
}

void tst_FactoryUtils::codesSortInOrder()
{
    const FactoryUtils utils;
    QVERIFY(utils.untest() < utils.pass());
    QVERIFY(utils.pass() < utils.fail());
    QVERIFY(utils.fail() < utils.notApplicable());
}

QTEST_GUILESS_MAIN(tst_FactoryUtils)
#include "tst_factoryutils.moc"
