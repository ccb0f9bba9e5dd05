// SPDX-License-Identifier: BSD-3-Clause
#include "sensorcalibration.h"

#include "files.h"
#include "messagelog.h"
#include "metaobject.h"

#include <QDir>
#include <QFile>
#include <QTemporaryFile>
#include <QtTest>

#include <memory>

#include <fcntl.h>
#include <unistd.h>

namespace
{
const QString Directory = QStringLiteral("/usr/lib/sensor-calibration");
const QString Helper = Directory + QStringLiteral("/calibrate_%1");
const QString Calls = Directory + QStringLiteral("/calls"); // what the helpers were asked, a line each

QString said(const char *text)
{
    return QString::fromUtf8(text);
}

const QString Gyroscope = said("gyroscope");
const QString GyroscopePath = Helper.arg(Gyroscope);
const QString GyroscopeDisabled = said("\"gyroscope\"  calibration disabled");

/*! Everything that the object signals, in order, with what it then shows. */
class Events : public QObject
{
public:
    explicit Events(SensorCalibration *calibration)
    {
        connect(calibration, &SensorCalibration::sensorChanged, this,
                [=] { m_all << said("sensor=") + calibration->sensor(); });
        connect(calibration, &SensorCalibration::enabledChanged, this,
                [=] { m_all << said(calibration->enabled() ? "enabled" : "not enabled"); });
        connect(calibration, &SensorCalibration::typeChanged, this,
                [=] { m_all << said("type=") + calibration->type(); });
        connect(calibration, &SensorCalibration::representationChanged, this,
                [=] { m_all << said("representation=") + calibration->representation(); });
    }

    QStringList take() { return std::exchange(m_all, QStringList()); }

private:
    QStringList m_all;
};

/*! A helper with these branches of a shell's case. */
void writeHelper(const QString &sensor, const QByteArray &branches)
{
    writeScript(Helper.arg(sensor), "echo \"$@\" >>" + Calls.toUtf8() + "\ncase $1 in\n" + branches + "\nesac\n");
}

QStringList takeCalls()
{
    QFile file(Calls);
    if (!file.open(QIODevice::ReadOnly))
        return QStringList();
    const QStringList calls = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    file.remove();
    return calls;
}

/*! Collects what is written to the standard error. */
class StandardError
{
public:
    StandardError() : m_saved(::dup(STDERR_FILENO))
    {
        m_file.open();
        ::dup2(m_file.handle(), STDERR_FILENO);
    }
    ~StandardError() { restore(); }
    QByteArray take()
    {
        restore();
        m_file.seek(0);
        return m_file.readAll();
    }

private:
    void restore()
    {
        if (m_saved < 0)
            return;
        ::dup2(m_saved, STDERR_FILENO);
        ::close(std::exchange(m_saved, -1));
    }

    QTemporaryFile m_file;
    int m_saved;
};
}

class tst_SensorCalibration : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void hasTheInterfaceOfItsPages();
    void isNothingWithoutSensor();
    void readsTypeAndRepresentation();
    void takesASensorAtConstruction();
    void takesTheFirstLine_data();
    void takesTheFirstLine();
    void changesValues_data();
    void changesValues();
    void isDisabledWithoutHelper();
    void isDisabledForUnknownSensors();
    void isDisabledForNoName();
    void isDisabledWhenTheHelperCannotStart_data();
    void isDisabledWhenTheHelperCannotStart();
    void isDisabledWhenTheHelperFails_data();
    void isDisabledWhenTheHelperFails();
    void isDisabledWhenTheHelperHangs();
    void failureOfAnOperationEndsEverything();
    void failureOfTheRepresentationEndsEverything();
    void sameSensorDoesNothing();
    void otherSensorBeginsAnew();
    void showsErrorsOfTheHelper();
    void helperHasNothingToRead();
    void destroyedInHandler_data();
    void destroyedInHandler();
    void survivesMuchOutput_data();
    void survivesMuchOutput();
    void leaksNothing();
};

void tst_SensorCalibration::init()
{
    QVERIFY(QDir(Directory).isEmpty());
}

void tst_SensorCalibration::cleanup()
{
    emptyFolder(Directory);
}

void tst_SensorCalibration::hasTheInterfaceOfItsPages()
{
    QCOMPARE(ownInterface(SensorCalibration::staticMetaObject),
             QStringList({said("property QString sensor write notify sensorChanged"),
                          said("property bool enabled notify enabledChanged"),
                          said("property QString type notify typeChanged"),
                          said("property QString representation notify representationChanged"),
                          said("signal enabledChanged()"), said("signal sensorChanged()"), said("signal typeChanged()"),
                          said("signal representationChanged()"), said("invokable bool calibrate()"),
                          said("invokable bool restore()"), said("invokable bool reset()")}));
}

void tst_SensorCalibration::isNothingWithoutSensor()
{
    MessageLog log;
    SensorCalibration calibration;
    QVERIFY(calibration.sensor().isNull());
    QVERIFY(calibration.type().isNull());
    QVERIFY(calibration.representation().isNull());
    QVERIFY(!calibration.enabled());
    QCOMPARE(log.all(), QStringList());

    QVERIFY(!calibration.calibrate());
    QCOMPARE(log.all(),
             QStringList({said("\"helper binary for  does not exist\""), said("\"\"  calibration disabled")}));
    QVERIFY(!calibration.restore());
    QCOMPARE(log.all().size(), 2);
}

void tst_SensorCalibration::readsTypeAndRepresentation()
{
    writeHelper(Gyroscope, "--type) echo offset;;\n--show) echo 0.1 0.2 0.3;;");
    MessageLog log;
    SensorCalibration calibration;
    Events events(&calibration);
    QVERIFY(calibration.setProperty("sensor", Gyroscope));
    QCOMPARE(events.take(),
             QStringList(
                 {said("sensor=gyroscope"), said("enabled"), said("type=offset"), said("representation=0.1 0.2 0.3")}));
    QCOMPARE(takeCalls(), QStringList({said("--type"), said("--show")}));
    QCOMPARE(log.all(), QStringList());
}

void tst_SensorCalibration::takesASensorAtConstruction()
{
    writeHelper(Gyroscope, "--type) echo offset;;\n--show) echo 1;;");
    QObject parent;
    const auto *const calibration = new SensorCalibration(Gyroscope, &parent);
    QCOMPARE(calibration->parent(), &parent);
    QCOMPARE(calibration->sensor(), Gyroscope);
    QCOMPARE(calibration->type(), said("offset"));
    QCOMPARE(calibration->representation(), said("1"));
    QVERIFY(calibration->enabled());
    QCOMPARE(takeCalls(), QStringList({said("--type"), said("--show")}));
}

void tst_SensorCalibration::takesTheFirstLine_data()
{
    QTest::addColumn<QByteArray>("output"); // for printf
    QTest::addColumn<QString>("value");
    QTest::newRow("one line") << QByteArray("one\\n") << said("one");
    QTest::newRow("no newline") << QByteArray("one") << said("one");
    QTest::newRow("two lines") << QByteArray("one\\ntwo\\n") << said("one");
    QTest::newRow("nothing") << QByteArray() << QString();
    QTest::newRow("newline only") << QByteArray("\\n") << said("\n");
    QTest::newRow("newline first") << QByteArray("\\none\\ntwo\\n") << said("\none\ntwo\n");
    QTest::newRow("blanks stay") << QByteArray(" one \\r\\n") << said(" one \r");
    QTest::newRow("UTF-8") << QByteArray("\\303\\244\\n") << said("\u00e4");
    QTest::newRow("not UTF-8") << QByteArray("\\344\\n") << said("\ufffd");
    QTest::newRow("NUL") << QByteArray("one\\000two\\n") << said("one");
    QTest::newRow("NUL first") << QByteArray("\\000one\\n") << QString();
}

void tst_SensorCalibration::takesTheFirstLine()
{
    QFETCH(QByteArray, output);
    QFETCH(QString, value);
    writeHelper(Gyroscope, "--type) printf '" + output + "';;\n--show) printf '" + output + "';;");
    const SensorCalibration calibration(Gyroscope);
    QVERIFY(calibration.enabled());
    QCOMPARE(calibration.type(), value);
    QCOMPARE(calibration.representation(), value);
}

void tst_SensorCalibration::changesValues_data()
{
    QTest::addColumn<QByteArray>("method");
    QTest::addColumn<QByteArray>("argument");
    for (const char *method : {"calibrate", "restore", "reset"})
        QTest::newRow(method) << QByteArray(method) << QByteArray("--") + method;
}

void tst_SensorCalibration::changesValues()
{
    QFETCH(QByteArray, method);
    QFETCH(QByteArray, argument);
    const QByteArray value = Directory.toUtf8() + "/value";
    writeFile(QString::fromUtf8(value), "old\n");
    writeHelper(Gyroscope,
                "--type) ;;\n--show) cat " + value + ";;\n" + argument + ") echo new >" + value
                    + "; echo done;;\n*) exit 1;;");
    SensorCalibration calibration(Gyroscope);
    takeCalls();
    MessageLog log;
    Events events(&calibration);
    bool done = false;
    QVERIFY(QMetaObject::invokeMethod(&calibration, method.constData(), Q_RETURN_ARG(bool, done)));
    QVERIFY(done);
    QCOMPARE(events.take(), QStringList({said("representation=new")}));
    QCOMPARE(takeCalls(), QStringList({QString::fromUtf8(argument), said("--show")}));

    // The same values again are no news.
    QVERIFY(QMetaObject::invokeMethod(&calibration, method.constData(), Q_RETURN_ARG(bool, done)));
    QVERIFY(done);
    QCOMPARE(events.take(), QStringList());
    QCOMPARE(log.all(), QStringList());
}

void tst_SensorCalibration::isDisabledWithoutHelper()
{
    MessageLog log;
    SensorCalibration calibration;
    Events events(&calibration);
    calibration.setSensor(Gyroscope);
    QCOMPARE(events.take(), QStringList({said("sensor=gyroscope")}));
    QVERIFY(!calibration.enabled());
    QVERIFY(calibration.type().isEmpty());
    QVERIFY(calibration.representation().isEmpty());
    QCOMPARE(log.all(), QStringList({said("\"helper binary for gyroscope does not exist\""), GyroscopeDisabled}));
    QCOMPARE(log.warnings(), QStringList({GyroscopeDisabled}));

    // Too late for this sensor.
    writeHelper(Gyroscope, "*) ;;");
    QVERIFY(!calibration.calibrate());
    QCOMPARE(takeCalls(), QStringList());
    QCOMPARE(log.all().size(), 2);
}

void tst_SensorCalibration::isDisabledForUnknownSensors()
{
    writeHelper(said("foo"), "*) echo x;;");
    MessageLog log;
    SensorCalibration calibration;
    Events events(&calibration);
    calibration.setSensor(said("foo"));
    QCOMPARE(events.take(), QStringList({said("sensor=foo")}));
    QVERIFY(!calibration.enabled());
    QVERIFY(calibration.type().isEmpty());
    QVERIFY(calibration.representation().isEmpty());
    QCOMPARE(log.all(),
             QStringList({said("\"foo\"  is not a known sensor name"), said("\"helper binary for foo does not exist\""),
                          said("\"foo\"  calibration disabled")}));
    QVERIFY(!calibration.reset());
    QCOMPARE(log.all().size(), 3);
    QCOMPARE(takeCalls(), QStringList());
}

void tst_SensorCalibration::isDisabledForNoName()
{
    writeHelper(Gyroscope, "--type) echo offset;;\n--show) echo 1;;");
    SensorCalibration calibration(Gyroscope);
    MessageLog log;
    Events events(&calibration);
    calibration.setSensor(QString());
    QCOMPARE(events.take(),
             QStringList({said("sensor="), said("not enabled"), said("type="), said("representation=")}));
    QCOMPARE(log.all(),
             QStringList({said("\"helper binary for  does not exist\""), said("\"\"  calibration disabled")}));
}

void tst_SensorCalibration::isDisabledWhenTheHelperCannotStart_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("executable");
    QTest::newRow("not executable") << QByteArray("#!/bin/sh\necho x\n") << false;
    QTest::newRow("no interpreter") << QByteArray("#!/no/such/shell\necho x\n") << true;
    QTest::newRow("empty") << QByteArray() << true;
    QTest::newRow("garbage") << QByteArray("\x7f"
                                           "ELF garbage")
                             << true;
}

void tst_SensorCalibration::isDisabledWhenTheHelperCannotStart()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, executable);
    writeFile(GyroscopePath, content,
              executable ? QFile::ReadOwner | QFile::ExeOwner : QFile::ReadOwner | QFile::WriteOwner);
    MessageLog log;
    SensorCalibration calibration;
    Events events(&calibration);
    calibration.setSensor(Gyroscope);
    QCOMPARE(events.take(), QStringList({said("sensor=gyroscope")}));
    QCOMPARE(log.all(),
             QStringList({said("\"helper binary ") + GyroscopePath + said("did not start\""), GyroscopeDisabled}));
    QCOMPARE(log.warnings(), QStringList({GyroscopeDisabled}));
    QVERIFY(!calibration.calibrate());
    QCOMPARE(log.all().size(), 2);
}

void tst_SensorCalibration::isDisabledWhenTheHelperFails_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::newRow("exit code 1") << QByteArray("exit 1");
    QTest::newRow("exit code 255") << QByteArray("exit 255");
    QTest::newRow("crash") << QByteArray("kill -SEGV $$");
    QTest::newRow("killed") << QByteArray("kill -KILL $$");
}

void tst_SensorCalibration::isDisabledWhenTheHelperFails()
{
    QFETCH(QByteArray, command);
    writeHelper(Gyroscope, "--type) echo offset; " + command + ";;\n--show) echo 1;;");
    MessageLog log;
    SensorCalibration calibration;
    Events events(&calibration);
    calibration.setSensor(Gyroscope);
    QCOMPARE(events.take(), QStringList({said("sensor=gyroscope")}));
    QCOMPARE(log.all(),
             QStringList({said("\"helper binary ") + GyroscopePath + said("did error exit\""), GyroscopeDisabled}));
    QCOMPARE(takeCalls(), QStringList({said("--type")}));
    QVERIFY(!calibration.calibrate());
    QCOMPARE(takeCalls(), QStringList());
    QCOMPARE(log.all().size(), 2);
}

void tst_SensorCalibration::isDisabledWhenTheHelperHangs()
{
    writeHelper(Gyroscope, "--type) echo offset;;\n--show) echo 1;;\n--calibrate) exec sleep 1000;;");
    SensorCalibration calibration(Gyroscope);
    MessageLog log;
    Events events(&calibration);
    QElapsedTimer clock;
    clock.start();
    QVERIFY(!calibration.calibrate());
    QVERIFY(clock.elapsed() >= 30000);
    QVERIFY(clock.elapsed() < 60000); // and not waited for twice
    QCOMPARE(log.all(),
             QStringList({said("\"helper binary ") + GyroscopePath + said("did not finish\""), GyroscopeDisabled}));
    QCOMPARE(events.take(), QStringList({said("not enabled"), said("representation=")}));
    QProcess left;
    left.start(said("pgrep"), {said("-f"), said("sleep 1000")});
    QVERIFY(left.waitForFinished());
    QVERIFY2(left.exitCode() == 1, left.readAllStandardOutput().constData());
}

void tst_SensorCalibration::failureOfAnOperationEndsEverything()
{
    writeHelper(Gyroscope, "--type) echo offset;;\n--show) echo 1;;\n--calibrate) exit 3;;");
    SensorCalibration calibration(Gyroscope);
    takeCalls();
    MessageLog log;
    Events events(&calibration);
    QVERIFY(!calibration.calibrate());
    QCOMPARE(takeCalls(), QStringList({said("--calibrate")}));
    QCOMPARE(events.take(), QStringList({said("not enabled"), said("representation=")}));
    QCOMPARE(calibration.type(), said("offset"));
    QCOMPARE(log.all(),
             QStringList({said("\"helper binary ") + GyroscopePath + said("did error exit\""), GyroscopeDisabled}));

    log.clear();
    QVERIFY(!calibration.calibrate());
    QVERIFY(!calibration.restore());
    QVERIFY(!calibration.reset());
    QCOMPARE(takeCalls(), QStringList());
    QCOMPARE(events.take(), QStringList());
    QCOMPARE(log.all(), QStringList());
}

void tst_SensorCalibration::failureOfTheRepresentationEndsEverything()
{
    writeHelper(Gyroscope, "--type) echo offset;;\n--show) exit 1;;\n--calibrate) ;;");
    SensorCalibration calibration;
    Events events(&calibration);
    calibration.setSensor(Gyroscope);
    QCOMPARE(events.take(),
             QStringList({said("sensor=gyroscope"), said("enabled"), said("type=offset"), said("not enabled")}));
    takeCalls();
    QVERIFY(!calibration.calibrate());
    QCOMPARE(takeCalls(), QStringList());
}

void tst_SensorCalibration::sameSensorDoesNothing()
{
    writeHelper(Gyroscope, "--type) echo offset;;\n--show) echo 1;;");
    SensorCalibration calibration(Gyroscope);
    takeCalls();
    Events events(&calibration);
    calibration.setSensor(said("gyroscope"));
    QCOMPARE(events.take(), QStringList());
    QCOMPARE(takeCalls(), QStringList());

    SensorCalibration none;
    Events noEvents(&none);
    MessageLog log;
    none.setSensor(said(""));
    QCOMPARE(noEvents.take(), QStringList());
    QCOMPARE(log.all(), QStringList());
}

void tst_SensorCalibration::otherSensorBeginsAnew()
{
    writeHelper(Gyroscope, "--type) echo offset;;\n--show) echo 1;;");
    writeHelper(said("als"), "--type) echo offset;;\n--show) echo 2;;");
    SensorCalibration calibration(said("compass"));
    QVERIFY(!calibration.enabled());

    // From disabled, there is one change of what is seen.
    Events events(&calibration);
    calibration.setSensor(Gyroscope);
    QCOMPARE(events.take(),
             QStringList({said("sensor=gyroscope"), said("enabled"), said("type=offset"), said("representation=1")}));

    // From enabled, it is unknown for a moment. The type is the same and no news.
    calibration.setSensor(said("als"));
    QCOMPARE(events.take(),
             QStringList({said("sensor=als"), said("not enabled"), said("enabled"), said("representation=2")}));

    calibration.setSensor(said("compass"));
    QCOMPARE(events.take(),
             QStringList({said("sensor=compass"), said("not enabled"), said("type="), said("representation=")}));

    // And back to one that has failed before is a new chance.
    writeHelper(said("compass"), "--type) ;;\n--show) ;;");
    calibration.setSensor(said("als"));
    calibration.setSensor(said("compass"));
    QVERIFY(calibration.enabled());
}

void tst_SensorCalibration::showsErrorsOfTheHelper()
{
    writeHelper(Gyroscope, "--type) echo complaint >&2; echo offset;;\n--show) ;;");
    StandardError error;
    const SensorCalibration calibration(Gyroscope);
    QCOMPARE(error.take(), QByteArray("complaint\n"));
    QCOMPARE(calibration.type(), said("offset"));
}

void tst_SensorCalibration::helperHasNothingToRead()
{
    writeHelper(Gyroscope, "--type) cat; echo end;;\n--show) ;;");
    const SensorCalibration calibration(Gyroscope);
    QCOMPARE(calibration.type(), said("end"));
}

using Signal = void (SensorCalibration::*)();
Q_DECLARE_METATYPE(Signal)

void tst_SensorCalibration::destroyedInHandler_data()
{
    QTest::addColumn<Signal>("signal");
    QTest::addColumn<QStringList>("calls"); // before the end
    QTest::newRow("sensor") << Signal(&SensorCalibration::sensorChanged) << QStringList();
    QTest::newRow("enabled") << Signal(&SensorCalibration::enabledChanged) << QStringList();
    QTest::newRow("type") << Signal(&SensorCalibration::typeChanged) << QStringList({said("--type")});
    QTest::newRow("representation") << Signal(&SensorCalibration::representationChanged)
                                    << QStringList({said("--type"), said("--show")});
}

void tst_SensorCalibration::destroyedInHandler()
{
    QFETCH(Signal, signal);
    QFETCH(QStringList, calls);
    writeHelper(Gyroscope, "--type) echo offset;;\n--show) echo 1;;\n--reset) exit 1;;");
    writeHelper(said("als"), "--type) echo scale;;\n--show) echo 2;;");
    auto calibration = std::make_unique<SensorCalibration>(Gyroscope);
    takeCalls();
    connect(calibration.get(), signal, this, [&] { calibration.reset(); });
    calibration->setSensor(said("als"));
    QVERIFY(!calibration);
    QCOMPARE(takeCalls(), calls);

    // And in the middle of an operation.
    calibration = std::make_unique<SensorCalibration>(Gyroscope);
    takeCalls();
    connect(calibration.get(), &SensorCalibration::enabledChanged, this, [&] { calibration.reset(); });
    MessageLog log;
    QVERIFY(!calibration->reset());
    QVERIFY(!calibration);
    QCOMPARE(takeCalls(), QStringList({said("--reset")}));
}

void tst_SensorCalibration::survivesMuchOutput_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<int>("size");
    QTest::newRow("long line") << QByteArray("head -c 3000000 /dev/zero | tr '\\000' x") << 3000000;
    QTest::newRow("many lines") << QByteArray("yes | head -n 10000000") << 1;
    QTest::newRow("more than memory should hold")
        << QByteArray("head -c 300000000 /dev/zero | tr '\\000' x") << (1 << 24);
}

void tst_SensorCalibration::survivesMuchOutput()
{
    QFETCH(QByteArray, command);
    QFETCH(int, size);
    writeHelper(Gyroscope, "--type) " + command + ";;\n--show) ;;");
    const SensorCalibration calibration(Gyroscope);
    QVERIFY(calibration.enabled());
    QCOMPARE(calibration.type().size(), size);
}

void tst_SensorCalibration::leaksNothing()
{
    const auto descriptors = [] {
        return QDir(said("/proc/self/fd")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size();
    };
    writeHelper(Gyroscope, "--type) echo offset;;\n--show) echo 1;;\n--reset) exit 1;;");
    MessageLog log;
    SensorCalibration first(Gyroscope);
    const int before = descriptors();
    for (int i = 0; i < 100; ++i) {
        SensorCalibration calibration(Gyroscope);
        calibration.reset();
    }
    writeFile(GyroscopePath, "");
    for (int i = 0; i < 100; ++i)
        SensorCalibration calibration(Gyroscope);
    QCOMPARE(descriptors(), before);
}

QTEST_GUILESS_MAIN(tst_SensorCalibration)
#include "tst_sensorcalibration.moc"
