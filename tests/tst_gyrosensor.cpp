// SPDX-License-Identifier: BSD-3-Clause
#include "gyrosensor.h"

#include "files.h"
#include "messagelog.h"
#include "metaobject.h"

#include <QGyroscope>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

namespace
{
// What the simulated phone's gyroscope measures.
const QString SensorFile = QStringLiteral("/run/kiv-phone/sensors/gyroscope");
const QString SettingsFile = QStringLiteral("/usr/share/kiv/settings.d/10-hw-settings.ini");
const QString Warning = QStringLiteral("Failed to start Gyro Sensor");
constexpr int Samples = 32;

QGyroscope *gyroscopeOf(GyroSensor *sensor)
{
    return sensor->findChild<QGyroscope *>(QString(), Qt::FindDirectChildrenOnly);
}

/*! Lets the sensor measure these numbers, and waits until it has. */
void measure(GyroSensor *sensor, const QByteArray &numbers)
{
    writeFile(SensorFile + QLatin1Char('~'), numbers);
    QCOMPARE(::rename(QFile::encodeName(SensorFile + QLatin1Char('~')).constData(),
                      QFile::encodeName(SensorFile).constData()),
             0);
    // The first of these may be from before.
    QSignalSpy spy(gyroscopeOf(sensor), &QGyroscope::readingChanged);
    QTRY_VERIFY(spy.size() >= 2);
}

void sample(GyroSensor *sensor, int times)
{
    for (int i = 0; i < times; ++i)
        QVERIFY(QMetaObject::invokeMethod(sensor, "updateGyroSensor", Qt::DirectConnection));
}
}

class tst_GyroSensor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void hasTheInterfaceOfItsPages();
    void startsTheSensor();
    void stopsTheSensor();
    void warnsWithoutSensor();
    void failsWithoutSensor();
    void failsWithoutSamples();
    void failsWhenTheSensorIsStuck();
    void averagesThirtyTwoSamples();
    void averagesDifferentSamples();
    void neverForgets();
    void keepsAveragesUntilAsked();
    void judgesByTheLimits_data();
    void judgesByTheLimits();
    void limitsThemselvesAreOutside();
    void takesLimitsFromTheSettings();
    void survivesASensorThatVanishes();
    void leaksNothing();
};

void tst_GyroSensor::init()
{
    writeFile(SensorFile, "0.25 -0.5 0.125\n");
}

void tst_GyroSensor::cleanup()
{
    emptyFolder(QFileInfo(SensorFile).path());
    emptyFolder(QFileInfo(SettingsFile).path());
}

void tst_GyroSensor::hasTheInterfaceOfItsPages()
{
    QCOMPARE(ownInterface(GyroSensor::staticMetaObject),
             QStringList({QStringLiteral("property bool getResult"), QStringLiteral("property float getXResult"),
                          QStringLiteral("property float getYResult"), QStringLiteral("property float getZResult"),
                          QStringLiteral("slot updateGyroSensor()")}));
}

void tst_GyroSensor::startsTheSensor()
{
    MessageLog log;
    GyroSensor sensor;
    QVERIFY(gyroscopeOf(&sensor));
    QVERIFY(gyroscopeOf(&sensor)->isActive());
    QCOMPARE(log.warnings(), QStringList());
}

void tst_GyroSensor::stopsTheSensor()
{
    auto sensor = std::make_unique<GyroSensor>();
    QSignalSpy spy(gyroscopeOf(sensor.get()), &QGyroscope::activeChanged);
    sensor.reset();
    QCOMPARE(spy.size(), 1);

    sensor = std::make_unique<GyroSensor>();
    gyroscopeOf(sensor.get())->stop();
    QSignalSpy none(gyroscopeOf(sensor.get()), &QGyroscope::activeChanged);
    sensor.reset();
    QVERIFY(none.isEmpty());
}

void tst_GyroSensor::warnsWithoutSensor()
{
    QVERIFY(QFile::remove(SensorFile));
    MessageLog log;
    GyroSensor sensor;
    QVERIFY(!gyroscopeOf(&sensor)->isActive());
    QCOMPARE(log.warnings(), QStringList({Warning}));
}

void tst_GyroSensor::failsWithoutSensor()
{
    QVERIFY(QFile::remove(SensorFile));
    MessageLog log;
    GyroSensor sensor;
    sample(&sensor, Samples);
    QCOMPARE(sensor.property("getResult"), QVariant(false));
    QCOMPARE(sensor.getXResult(), 0.0F);
    QCOMPARE(sensor.getYResult(), 0.0F);
    QCOMPARE(sensor.getZResult(), 0.0F);
}

void tst_GyroSensor::failsWithoutSamples()
{
    GyroSensor sensor;
    measure(&sensor, "0.25 -0.5 0.125");
    QVERIFY(!sensor.getResult());
    QCOMPARE(sensor.getXResult(), 0.0F);
}

void tst_GyroSensor::failsWhenTheSensorIsStuck()
{
    writeFile(SensorFile, "");
    GyroSensor sensor;
    QVERIFY(gyroscopeOf(&sensor)->isActive());
    QSignalSpy spy(gyroscopeOf(&sensor), &QGyroscope::readingChanged);
    QVERIFY(!spy.wait(200));
    sample(&sensor, Samples);
    QVERIFY(!sensor.getResult());
}

void tst_GyroSensor::averagesThirtyTwoSamples()
{
    GyroSensor sensor;
    measure(&sensor, "0.25 -0.5 0.125");
    sample(&sensor, Samples);
    const QVariant result = sensor.property("getResult");
    QCOMPARE(result, QVariant(true));
    QCOMPARE(sensor.property("getXResult").toFloat(), 0.25F);
    QCOMPARE(sensor.property("getYResult").toFloat(), -0.5F);
    QCOMPARE(sensor.property("getZResult").toFloat(), 0.125F);
}

void tst_GyroSensor::averagesDifferentSamples()
{
    GyroSensor sensor;
    for (int i = 0; i < 4; ++i) {
        measure(&sensor, QByteArray::number(i) + " -" + QByteArray::number(2 * i) + " 0.5");
        sample(&sensor, Samples / 4);
    }
    QVERIFY(!sensor.getResult());
    QCOMPARE(sensor.getXResult(), 1.5F);
    QCOMPARE(sensor.getYResult(), -3.0F);
    QCOMPARE(sensor.getZResult(), 0.5F);
}

void tst_GyroSensor::neverForgets()
{
    GyroSensor sensor;
    measure(&sensor, "0.75 0.25 0.5");
    sample(&sensor, Samples);
    QVERIFY(sensor.getResult());
    QVERIFY(sensor.getResult());
    QCOMPARE(sensor.getXResult(), 0.75F);
    sample(&sensor, Samples);
    QVERIFY(!sensor.getResult()); // 1.5 is beyond the limit
    QCOMPARE(sensor.getXResult(), 1.5F);
    QCOMPARE(sensor.getYResult(), 0.5F);
    QCOMPARE(sensor.getZResult(), 1.0F);
}

void tst_GyroSensor::keepsAveragesUntilAsked()
{
    GyroSensor sensor;
    measure(&sensor, "0.25 -0.5 0.125");
    sample(&sensor, Samples);
    QCOMPARE(sensor.getXResult(), 0.0F);
    sensor.getResult();
    sample(&sensor, Samples);
    QCOMPARE(sensor.getXResult(), 0.25F);
}

void tst_GyroSensor::judgesByTheLimits_data()
{
    QTest::addColumn<QByteArray>("numbers");
    QTest::addColumn<bool>("result");
    QTest::newRow("inside") << QByteArray("1.25 -1.25 0.5") << true;
    QTest::newRow("barely inside") << QByteArray("1.2998 -1.2998 0.001") << true;
    QTest::newRow("x above") << QByteArray("1.4 0.5 0.5") << false;
    QTest::newRow("x below") << QByteArray("-1.4 0.5 0.5") << false;
    QTest::newRow("y above") << QByteArray("0.5 1.4 0.5") << false;
    QTest::newRow("y below") << QByteArray("0.5 -1.4 0.5") << false;
    QTest::newRow("z above") << QByteArray("0.5 0.5 1.4") << false;
    QTest::newRow("z below") << QByteArray("0.5 0.5 -1.4") << false;
    QTest::newRow("x zero") << QByteArray("0 0.5 0.5") << false;
    QTest::newRow("y zero") << QByteArray("0.5 0 0.5") << false;
    QTest::newRow("z zero") << QByteArray("0.5 0.5 0") << false;
    QTest::newRow("z negative zero") << QByteArray("0.5 0.5 -0") << false;
    QTest::newRow("not a number") << QByteArray("nan 0.5 0.5") << false;
    QTest::newRow("infinite") << QByteArray("0.5 inf 0.5") << false;
}

void tst_GyroSensor::judgesByTheLimits()
{
    QFETCH(QByteArray, numbers);
    QFETCH(bool, result);
    GyroSensor sensor;
    measure(&sensor, numbers);
    sample(&sensor, Samples);
    QCOMPARE(sensor.getResult(), result);
}

void tst_GyroSensor::limitsThemselvesAreOutside()
{
    // Numbers that a float holds exactly, also as a sum of 32.
    writeFile(SettingsFile, "[Gyro]\nMin=-1.25\nMax=0.75\n");
    const QPair<QByteArray, bool> cases[] = {
        {"0.75 0.5 0.5", false}, {"0.5 0.5 0.75", false}, {"0.5 -1.25 0.5", false}, {"0.7421875 -1.2421875 0.5", true}};
    for (const auto &[numbers, result] : cases) {
        GyroSensor sensor;
        measure(&sensor, numbers);
        sample(&sensor, Samples);
        QCOMPARE(sensor.getResult(), result);
    }
}

void tst_GyroSensor::takesLimitsFromTheSettings()
{
    writeFile(SettingsFile, "[Gyro]\nMin=2\nMax=4.5\n");
    {
        GyroSensor sensor;
        measure(&sensor, "2.25 3 4.25");
        sample(&sensor, Samples);
        QVERIFY(sensor.getResult());
        sample(&sensor, 1);
        QVERIFY(sensor.getResult());
    }
    GyroSensor sensor;
    writeFile(SettingsFile, "[Gyro]\nMin=-10\nMax=10\n"); // too late
    measure(&sensor, "1.75 3 4.25");
    sample(&sensor, Samples);
    QVERIFY(!sensor.getResult());
}

void tst_GyroSensor::survivesASensorThatVanishes()
{
    GyroSensor sensor;
    measure(&sensor, "0.25 -0.5 0.125");
    sample(&sensor, Samples);
    QVERIFY(QFile::remove(SensorFile));
    QTRY_VERIFY(!gyroscopeOf(&sensor)->isActive());
    QVERIFY(sensor.getResult());
}

void tst_GyroSensor::leaksNothing()
{
    const auto descriptors = [] {
        return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size();
    };
    const int before = descriptors();
    for (int i = 0; i < 200; ++i)
        GyroSensor();
    QCOMPARE(descriptors(), before);
}

QTEST_GUILESS_MAIN(tst_GyroSensor)
#include "tst_gyrosensor.moc"
