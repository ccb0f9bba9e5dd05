// SPDX-License-Identifier: BSD-3-Clause
#include "sensorcalibrationresolver.h"

#include "files.h"
#include "messagelog.h"
#include "metaobject.h"

#include <QDir>
#include <QFile>
#include <QtTest>

namespace
{
const QString Directory = QStringLiteral("/usr/lib/sensor-calibration");
const QString Helper = Directory + QStringLiteral("/calibrate_%1");
}

class tst_SensorCalibrationResolver : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void hasTheInterfaceOfItsPages();
    void findsHelpersOfKnownSensors_data();
    void findsHelpersOfKnownSensors();
    void warnsOfUnknownSensors_data();
    void warnsOfUnknownSensors();
    void hasNothingForNoName();
    void seesHelpersComeAndGo();
    void leavesItToTheHelperWhetherItRuns();
};

void tst_SensorCalibrationResolver::init()
{
    QVERIFY(QDir(Directory).isEmpty());
}

void tst_SensorCalibrationResolver::cleanup()
{
    emptyFolder(Directory);
}

void tst_SensorCalibrationResolver::hasTheInterfaceOfItsPages()
{
    QCOMPARE(ownInterface(SensorCalibrationResolver::staticMetaObject),
             QStringList({QStringLiteral("invokable bool exists(QString)")}));
}

void tst_SensorCalibrationResolver::findsHelpersOfKnownSensors_data()
{
    QTest::addColumn<QString>("sensor");
    for (const char *sensor : {"accelerometer", "als", "compass", "gyroscope", "humidity", "lid", "magnetometer",
                               "orientation", "pressure", "proximity", "rotation", "stepcounter", "tap", "temperature"})
        QTest::newRow(sensor) << QString::fromLatin1(sensor);
}

void tst_SensorCalibrationResolver::findsHelpersOfKnownSensors()
{
    QFETCH(QString, sensor);
    MessageLog log;
    const SensorCalibrationResolver resolver;
    QVERIFY(!resolver.exists(sensor));
    writeFile(Helper.arg(sensor), "");
    QVERIFY(resolver.exists(sensor));
    bool found = false;
    QVERIFY(QMetaObject::invokeMethod(const_cast<SensorCalibrationResolver *>(&resolver), "exists",
                                      Q_RETURN_ARG(bool, found), Q_ARG(QString, sensor)));
    QVERIFY(found);
    QCOMPARE(log.all(), QStringList());
}

void tst_SensorCalibrationResolver::warnsOfUnknownSensors_data()
{
    QTest::addColumn<QString>("sensor");
    QTest::addColumn<QString>("warning");
    QTest::newRow("unknown") << QStringLiteral("foo") << QStringLiteral("\"foo\"  is not a known sensor name");
    QTest::newRow("capital letter") << QStringLiteral("Gyroscope")
                                    << QStringLiteral("\"Gyroscope\"  is not a known sensor name");
    QTest::newRow("blank") << QStringLiteral("tap ") << QStringLiteral("\"tap \"  is not a known sensor name");
    QTest::newRow("beginning") << QStringLiteral("gyro") << QStringLiteral("\"gyro\"  is not a known sensor name");
    QTest::newRow("placeholder") << QStringLiteral("%1") << QStringLiteral("\"%1\"  is not a known sensor name");
    QTest::newRow("path") << QStringLiteral("/../../../bin/sh")
                          << QStringLiteral("\"/../../../bin/sh\"  is not a known sensor name");
    QTest::newRow("quotes") << QStringLiteral("a\"b\n") << QStringLiteral("\"a\\\"b\\n\"  is not a known sensor name");
}

void tst_SensorCalibrationResolver::warnsOfUnknownSensors()
{
    QFETCH(QString, sensor);
    QFETCH(QString, warning);
    writeFile(Directory + QStringLiteral("/calibrate_foo"), ""); // a helper alone makes no sensor
    MessageLog log;
    QVERIFY(!SensorCalibrationResolver().exists(sensor));
    QCOMPARE(log.all(), QStringList({warning}));
    QCOMPARE(log.warnings(), log.all());
}

void tst_SensorCalibrationResolver::hasNothingForNoName()
{
    writeFile(Helper.arg(QString()), "");
    MessageLog log;
    QVERIFY(!SensorCalibrationResolver().exists(QString()));
    QVERIFY(!SensorCalibrationResolver().exists(QStringLiteral("")));
    QCOMPARE(log.all(), QStringList());
}

void tst_SensorCalibrationResolver::seesHelpersComeAndGo()
{
    const SensorCalibrationResolver resolver;
    const QString sensor = QStringLiteral("lid");
    writeFile(Helper.arg(sensor), "");
    QVERIFY(resolver.exists(sensor));
    QVERIFY(QFile::remove(Helper.arg(sensor)));
    QVERIFY(!resolver.exists(sensor));
    QVERIFY(QFile::link(QStringLiteral("/nowhere"), Helper.arg(sensor)));
    QVERIFY(!resolver.exists(sensor));
}

void tst_SensorCalibrationResolver::leavesItToTheHelperWhetherItRuns()
{
    const QString sensor = QStringLiteral("tap");
    writeFile(Helper.arg(sensor), "");
    QVERIFY(QFile::setPermissions(Helper.arg(sensor), QFile::Permissions()));
    QVERIFY(SensorCalibrationResolver().exists(sensor));
}

QTEST_GUILESS_MAIN(tst_SensorCalibrationResolver)
#include "tst_sensorcalibrationresolver.moc"
