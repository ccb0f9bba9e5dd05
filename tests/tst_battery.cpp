// SPDX-License-Identifier: BSD-3-Clause
#include "battery.h"
#include "files.h"
#include "messagelog.h"
#include "metaobject.h"
#include "ordinaryuser.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QtTest>

#include <cmath>
#include <functional>
#include <memory>

#include <unistd.h>

namespace
{
const QString Supplies = QStringLiteral("/sys/class/power_supply");
const QString Supply = Supplies + QStringLiteral("/bms");
const QString Kiv = QStringLiteral("/usr/bin/kiv");
const QString Record = QStringLiteral("/run/kiv/record");
const QString NoBattery = QStringLiteral("Could not find suitable battery device");
const qint64 Megabyte = 1024 * 1024;

using Reading = std::function<double(const Battery &)>;
using Text = std::function<QString(const Battery &)>;
}
Q_DECLARE_METATYPE(Reading)
Q_DECLARE_METATYPE(Text)

class tst_Battery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void interface();

    void findsBatteryByType_data();
    void findsBatteryByType();
    void takesFirstBatteryOfTheFolder();
    void followsLinks();
    void looksOnlyOnceAndOnlyInFolders();
    void warnsWithoutFolder();

    void readsNumbersUnscaled_data();
    void readsNumbersUnscaled();
    void parsesNumbers_data();
    void parsesNumbers();
    void readsTexts_data();
    void readsTexts();
    void readsTemperature_data();
    void readsTemperature();
    void readsPresence_data();
    void readsPresence();
    void readsAnewEachTime();
    void survivesWhatIsNoFile();
    void passesOverUnreadableFiles();
    void survivesVeryLongLines();
    void hasNoValuesWithoutBattery();

    void runsChargerCommand_data();
    void runsChargerCommand();
    void blocksWhileCharging();
    void chargerFailsSilently_data();
    void chargerFailsSilently();

private:
    void battery(const char *attribute, const QByteArray &content)
    {
        writeFile(Supply + QStringLiteral("/type"), "Battery\n");
        writeFile(Supply + QLatin1Char('/') + QLatin1String(attribute), content);
    }
};

void tst_Battery::init()
{
    QDir().mkpath(Supplies);
    QFile::setPermissions(Supplies, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    emptyFolder(Supplies);
    QFile::remove(Kiv);
    QFile::remove(Record);
}

void tst_Battery::interface()
{
    const QStringList expected = {
        QStringLiteral("invokable double currentNow()"),
        QStringLiteral("invokable double minimumVoltage()"),
        QStringLiteral("invokable double maximumVoltage()"),
        QStringLiteral("invokable double voltageNow()"),
        QStringLiteral("invokable double minimumEnergy()"),
        QStringLiteral("invokable double maximumEnergy()"),
        QStringLiteral("invokable double energyNow()"),
        QStringLiteral("invokable double minimumDesignEnergy()"),
        QStringLiteral("invokable double maximumDesignEnergy()"),
        QStringLiteral("invokable QString health()"),
        QStringLiteral("invokable QString status()"),
        QStringLiteral("invokable double temperature()"),
        QStringLiteral("invokable bool present()"),
        QStringLiteral("invokable enableCharger()"),
        QStringLiteral("invokable disableCharger()"),
    };
    QCOMPARE(ownInterface(Battery::staticMetaObject), expected);
}

void tst_Battery::findsBatteryByType_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<bool>("found");
    QTest::newRow("line") << QByteArray("Battery\n") << true;
    QTest::newRow("no newline") << QByteArray("Battery") << true;
    QTest::newRow("blanks") << QByteArray(" \tBattery \t\n") << true;
    QTest::newRow("carriage return") << QByteArray("Battery\r\n") << true;
    QTest::newRow("first line counts") << QByteArray("Battery\nUSB\n") << true;
    QTest::newRow("only the first line counts") << QByteArray("USB\nBattery\n") << false;
    QTest::newRow("empty first line") << QByteArray("\nBattery\n") << false;
    QTest::newRow("lower case") << QByteArray("battery\n") << false;
    QTest::newRow("upper case") << QByteArray("BATTERY\n") << false;
    QTest::newRow("longer") << QByteArray("Battery2\n") << false;
    QTest::newRow("blank inside") << QByteArray("Bat tery\n") << false;
    QTest::newRow("NUL behind") << QByteArray("Battery\0\n", 9) << false;
    QTest::newRow("NUL before") << QByteArray("\0Battery\n", 9) << false;
    QTest::newRow("another type") << QByteArray("USB\n") << false;
    QTest::newRow("empty") << QByteArray("") << false;
    QTest::newRow("megabytes") << QByteArray(int(4 * Megabyte), 'B') << false;
    QTest::newRow("invalid UTF-8") << QByteArray("Batt\xff\xfe\n") << false;
}

void tst_Battery::findsBatteryByType()
{
    QFETCH(QByteArray, type);
    QFETCH(bool, found);
    writeFile(Supply + QStringLiteral("/type"), type);
    writeFile(Supply + QStringLiteral("/status"), "Full\n");
    MessageLog log;
    const Battery battery;
    QCOMPARE(battery.status(), found ? QStringLiteral("Full") : QString());
    QCOMPARE(log.all(), found ? QStringList() : QStringList(NoBattery));
}

void tst_Battery::takesFirstBatteryOfTheFolder()
{
    const QStringList names = {QStringLiteral("usb"),     QStringLiteral("zeta"), QStringLiteral("alpha"),
                               QStringLiteral("battery"), QStringLiteral("mid"),  QStringLiteral("ac")};
    for (const QString &name : names) {
        const QString path = Supplies + QLatin1Char('/') + name;
        writeFile(path + QStringLiteral("/type"), name.size() > 3 ? "Battery\n" : "Mains\n");
        writeFile(path + QStringLiteral("/status"), name.toLatin1());
    }
    QDir(Supplies).mkdir(QStringLiteral("without-type"));

    // The order of the folder itself, which no sort makes up.
    QString first;
    QDirIterator entries(Supplies, QDir::AllDirs | QDir::NoDotAndDotDot);
    while (first.isEmpty() && entries.hasNext()) {
        entries.next();
        if (readFile(entries.filePath() + QStringLiteral("/type")).startsWith("Battery"))
            first = entries.fileName();
    }
    MessageLog log;
    QCOMPARE(Battery().status(), first);
    QVERIFY(log.all().isEmpty());
}

void tst_Battery::followsLinks()
{
    // As sysfs has it.
    const QString device = QStringLiteral("/run/kiv/devices/bms");
    writeFile(device + QStringLiteral("/type"), "Battery\n");
    writeFile(device + QStringLiteral("/health"), "Good\n");
    QVERIFY(QFile::link(device, Supply));
    MessageLog log;
    const Battery battery;
    QCOMPARE(battery.health(), QStringLiteral("Good"));
    QVERIFY(log.all().isEmpty());

    QVERIFY(QFile::remove(Supply));
    QVERIFY(QFile::link(QStringLiteral("/run/kiv/nowhere"), Supply));
    QCOMPARE(Battery().health(), QString());
    QCOMPARE(log.all(), QStringList(NoBattery));
}

void tst_Battery::looksOnlyOnceAndOnlyInFolders()
{
    MessageLog log;
    writeFile(Supplies + QStringLiteral("/type"), "Battery\n");
    writeFile(Supplies + QStringLiteral("/file"), "Battery\n");
    writeFile(Supply + QStringLiteral("/deeper/type"), "Battery\n");
    const Battery before;
    QCOMPARE(log.all(), QStringList(NoBattery));
    log.clear();

    battery("status", "Full\n");
    QCOMPARE(before.status(), QString());
    const Battery after;
    QCOMPARE(after.status(), QStringLiteral("Full"));

    // The battery stays the chosen one, whatever becomes of its type.
    writeFile(Supply + QStringLiteral("/type"), "USB\n");
    QCOMPARE(after.status(), QStringLiteral("Full"));
    QVERIFY(log.all().isEmpty());
}

void tst_Battery::warnsWithoutFolder()
{
    QVERIFY(QDir().rmdir(Supplies) || QFile::rename(Supplies, QStringLiteral("/run/kiv/moved")));
    MessageLog log;
    const Battery battery;
    QCOMPARE(log.warnings(), QStringList(NoBattery));
    QCOMPARE(log.all().size(), 1);
    QVERIFY(std::isnan(battery.voltageNow()));
    QCOMPARE(log.all().size(), 1);
}

void tst_Battery::readsNumbersUnscaled_data()
{
    QTest::addColumn<QByteArray>("attribute");
    QTest::addColumn<Reading>("read");
    QTest::newRow("currentNow") << QByteArray("current_now") << Reading(&Battery::currentNow);
    QTest::newRow("minimumVoltage") << QByteArray("voltage_min_design") << Reading(&Battery::minimumVoltage);
    QTest::newRow("maximumVoltage") << QByteArray("voltage_max_design") << Reading(&Battery::maximumVoltage);
    QTest::newRow("voltageNow") << QByteArray("voltage_now") << Reading(&Battery::voltageNow);
    QTest::newRow("minimumEnergy") << QByteArray("energy_empty") << Reading(&Battery::minimumEnergy);
    QTest::newRow("maximumEnergy") << QByteArray("energy_full") << Reading(&Battery::maximumEnergy);
    QTest::newRow("energyNow") << QByteArray("energy_now") << Reading(&Battery::energyNow);
    QTest::newRow("minimumDesignEnergy") << QByteArray("energy_empty_design") << Reading(&Battery::minimumDesignEnergy);
    QTest::newRow("maximumDesignEnergy") << QByteArray("energy_full_design") << Reading(&Battery::maximumDesignEnergy);
}

void tst_Battery::readsNumbersUnscaled()
{
    QFETCH(QByteArray, attribute);
    QFETCH(Reading, read);
    battery(attribute.constData(), "-4213000\n");
    MessageLog log;
    const Battery battery;
    QCOMPARE(read(battery), -4213000.0);
    writeFile(Supply + QLatin1Char('/') + QLatin1String(attribute), "junk\n");
    QVERIFY(std::isnan(read(battery)));
    QVERIFY(QFile::remove(Supply + QLatin1Char('/') + QLatin1String(attribute)));
    QVERIFY(std::isnan(read(battery)));
    QVERIFY(log.all().isEmpty());
}

void tst_Battery::parsesNumbers_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<double>("value");
    const double none = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("integer") << QByteArray("3812500\n") << 3812500.0;
    QTest::newRow("no newline") << QByteArray("3812500") << 3812500.0;
    QTest::newRow("blanks") << QByteArray("  42\t \n") << 42.0;
    QTest::newRow("carriage return") << QByteArray("42\r\n") << 42.0;
    QTest::newRow("discharging") << QByteArray("-250000\n") << -250000.0;
    QTest::newRow("plus") << QByteArray("+5\n") << 5.0;
    QTest::newRow("fraction") << QByteArray("1.5\n") << 1.5;
    QTest::newRow("exponent") << QByteArray("1e3\n") << 1000.0;
    QTest::newRow("zero") << QByteArray("0\n") << 0.0;
    QTest::newRow("first line") << QByteArray("7\n8\n") << 7.0;
    QTest::newRow("comma") << QByteArray("1,5\n") << none;
    QTest::newRow("hexadecimal") << QByteArray("0x10\n") << none;
    QTest::newRow("unit behind") << QByteArray("42 uA\n") << none;
    QTest::newRow("letters") << QByteArray("abc\n") << none;
    QTest::newRow("empty") << QByteArray("") << none;
    QTest::newRow("empty line") << QByteArray("\n42\n") << none;
    QTest::newRow("blank line") << QByteArray("  \n") << none;
    QTest::newRow("NUL") << QByteArray("4\0002\n", 4) << none;
    QTest::newRow("invalid UTF-8") << QByteArray("\xff\xfe\n") << none;
}

void tst_Battery::parsesNumbers()
{
    QFETCH(QByteArray, content);
    QFETCH(double, value);
    battery("current_now", content);
    const double read = Battery().currentNow();
    if (std::isnan(value))
        QVERIFY2(std::isnan(read), QByteArray::number(read).constData());
    else
        QCOMPARE(read, value);
}

void tst_Battery::readsTexts_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("value");
    QTest::newRow("line") << QByteArray("Not charging\n") << QStringLiteral("Not charging");
    QTest::newRow("no newline") << QByteArray("Good") << QStringLiteral("Good");
    QTest::newRow("blanks") << QByteArray("\t Good \n") << QStringLiteral("Good");
    QTest::newRow("carriage returns") << QByteArray("\rGo\rod\r\r\n") << QStringLiteral("Good");
    QTest::newRow("case is kept") << QByteArray("gOOD\n") << QStringLiteral("gOOD");
    QTest::newRow("first line") << QByteArray("Good\nDead\n") << QStringLiteral("Good");
    QTest::newRow("empty") << QByteArray("") << QString();
    QTest::newRow("up to NUL") << QByteArray("Good\0xyz\n", 9) << QStringLiteral("Good");
    QTest::newRow("NUL first") << QByteArray("\0Good\n", 6) << QString();
    QTest::newRow("UTF-8") << QByteArray("hei\xc3\xa4\n") << QStringLiteral("hei\u00e4");
    QTest::newRow("invalid UTF-8") << QByteArray("a\xffz\n") << QStringLiteral("a\ufffdz");
}

void tst_Battery::readsTexts()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, value);
    battery("health", content);
    battery("status", content);
    const Battery battery;
    QCOMPARE(battery.health(), value);
    QCOMPARE(battery.status(), value);
}

void tst_Battery::readsTemperature_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<double>("degrees");
    QTest::newRow("warm") << QByteArray("305\n") << 30.5;
    QTest::newRow("frost") << QByteArray("-75\n") << -7.5;
    QTest::newRow("letters") << QByteArray("abc\n") << std::numeric_limits<double>::quiet_NaN();
}

void tst_Battery::readsTemperature()
{
    QFETCH(QByteArray, content);
    QFETCH(double, degrees);
    battery("temp", content);
    const Battery battery;
    QCOMPARE(std::isnan(battery.temperature()), std::isnan(degrees));
    if (!std::isnan(degrees))
        QCOMPARE(battery.temperature(), degrees);
    QVERIFY(QFile::remove(Supply + QStringLiteral("/temp")));
    QVERIFY(std::isnan(battery.temperature()));
}

void tst_Battery::readsPresence_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("present");
    QTest::newRow("one") << QByteArray("1\n") << true;
    QTest::newRow("two") << QByteArray("2\n") << true;
    QTest::newRow("negative") << QByteArray("-1\n") << true;
    QTest::newRow("blanks") << QByteArray(" 1 \n") << true;
    QTest::newRow("zero") << QByteArray("0\n") << false;
    QTest::newRow("zeros") << QByteArray("000\n") << false;
    QTest::newRow("empty") << QByteArray("") << false;
    QTest::newRow("word") << QByteArray("true\n") << false;
    QTest::newRow("fraction") << QByteArray("1.0\n") << false;
    QTest::newRow("hexadecimal") << QByteArray("0x1\n") << false;
    QTest::newRow("too large") << QByteArray("4294967297\n") << false;
    QTest::newRow("leading zero is no octal mark") << QByteArray("08\n") << true;
}

void tst_Battery::readsPresence()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, present);
    battery("present", content);
    const Battery battery;
    QCOMPARE(battery.present(), present);
    QVERIFY(QFile::remove(Supply + QStringLiteral("/present")));
    QCOMPARE(battery.present(), false);
}

void tst_Battery::readsAnewEachTime()
{
    battery("voltage_now", "1\n");
    const Battery battery;
    QCOMPARE(battery.voltageNow(), 1.0);
    writeFile(Supply + QStringLiteral("/voltage_now"), "2\n");
    QCOMPARE(battery.voltageNow(), 2.0);
}

void tst_Battery::survivesWhatIsNoFile()
{
    const QString current = Supply + QStringLiteral("/current_now");
    battery("status", "Full\n");
    QVERIFY(QDir().mkpath(current));
    QVERIFY(QDir().mkpath(Supply + QStringLiteral("/health")));
    QVERIFY(QDir().mkpath(Supplies + QStringLiteral("/a-folder-for-type/type")));
    QVERIFY(QFile::link(QStringLiteral("present"), Supply + QStringLiteral("/present"))); // a link to itself
    MessageLog log;
    const Battery battery;
    QCOMPARE(battery.status(), QStringLiteral("Full"));
    QVERIFY(std::isnan(battery.currentNow()));
    QVERIFY(battery.health().isNull());
    QVERIFY(!battery.present());

    QVERIFY(log.all().isEmpty());
}

void tst_Battery::passesOverUnreadableFiles()
{
    QFile::setPermissions(Supplies, QFile::Permissions(0x7755));
    battery("status", "Full\n");
    for (const char *const name : {"/voltage_now", "/temp", "/present", "/health"})
        writeFile(Supply + QLatin1String(name), "1\n", QFile::WriteOwner);
    const QString other = Supplies + QStringLiteral("/another");
    writeFile(other + QStringLiteral("/type"), "Battery\n", QFile::WriteOwner);
    writeFile(other + QStringLiteral("/status"), "Unknown\n");

    const Verdict verdict = asOrdinaryUser([] {
        const MessageLog log;
        const Battery battery;
        return battery.status() == QStringLiteral("Full") && std::isnan(battery.voltageNow())
            && std::isnan(battery.temperature()) && !battery.present() && battery.health().isNull()
            && log.all().isEmpty();
    });
    if (verdict == Verdict::NoSuchUser)
        QSKIP("another user is needed");
    QCOMPARE(verdict, Verdict::True);
}

void tst_Battery::survivesVeryLongLines()
{
    const QByteArray digits(int(3 * Megabyte), '1');
    battery("status", digits + "\nx");
    battery("current_now", digits);
    battery("present", digits);
    const Battery battery;
    QCOMPARE(battery.status().size(), digits.size());
    battery.currentNow();
    QVERIFY(!battery.present());
}

void tst_Battery::hasNoValuesWithoutBattery()
{
    MessageLog log;
    const Battery battery;
    QCOMPARE(log.warnings(), QStringList(NoBattery));
    // Nothing may be read from the root instead.
    writeFile(QStringLiteral("/present"), "1\n");
    QVERIFY(std::isnan(battery.currentNow()));
    QVERIFY(std::isnan(battery.minimumVoltage()));
    QVERIFY(std::isnan(battery.maximumVoltage()));
    QVERIFY(std::isnan(battery.voltageNow()));
    QVERIFY(std::isnan(battery.minimumEnergy()));
    QVERIFY(std::isnan(battery.maximumEnergy()));
    QVERIFY(std::isnan(battery.energyNow()));
    QVERIFY(std::isnan(battery.minimumDesignEnergy()));
    QVERIFY(std::isnan(battery.maximumDesignEnergy()));
    QVERIFY(std::isnan(battery.temperature()));
    QVERIFY(battery.health().isNull());
    QVERIFY(battery.status().isNull());
    QVERIFY(!battery.present());
    QCOMPARE(log.all().size(), 1);
}

void tst_Battery::runsChargerCommand_data()
{
    QTest::addColumn<bool>("withBattery");
    QTest::newRow("with a battery") << true;
    QTest::newRow("without one") << false;
}

void tst_Battery::runsChargerCommand()
{
    QFETCH(bool, withBattery);
    if (withBattery)
        battery("status", "Full\n");
    writeScript(Kiv, "{ echo $#; printf '<%s>' \"$@\"; } >>" + Record.toLatin1());
    MessageLog log;
    const Battery battery;
    log.clear();
    battery.disableCharger();
    QCOMPARE(readFile(Record), QByteArray("1\n<disable_charger>"));
    battery.enableCharger();
    QCOMPARE(readFile(Record), QByteArray("1\n<disable_charger>1\n<enable_charger>"));
    QVERIFY(log.all().isEmpty());
}

void tst_Battery::blocksWhileCharging()
{
    writeScript(Kiv, "sleep 1; echo done >" + Record.toLatin1());
    battery("status", "Full\n");
    const Battery battery;
    QElapsedTimer timer;
    timer.start();
    bool timerFired = false;
    QTimer::singleShot(0, this, [&timerFired] { timerFired = true; });
    battery.enableCharger();
    QVERIFY(timer.elapsed() >= 1000);
    QCOMPARE(readFile(Record), QByteArray("done\n"));
    QVERIFY(!timerFired);
}

void tst_Battery::chargerFailsSilently_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("fails") << QByteArray("exit 1");
    QTest::newRow("crashes") << QByteArray("kill -SEGV $$");
    QTest::newRow("no program") << QByteArray("plain");
    QTest::newRow("a folder") << QByteArray("folder");
}

void tst_Battery::chargerFailsSilently()
{
    QFETCH(QByteArray, script);
    battery("status", "Full\n");
    if (script == "folder")
        QVERIFY(QDir().mkdir(Kiv));
    else if (script == "plain")
        writeFile(Kiv, "plain", QFile::ReadOwner | QFile::WriteOwner);
    else if (!script.isEmpty())
        writeScript(Kiv, script);
    MessageLog log;
    auto battery = std::make_unique<Battery>();
    battery->enableCharger();
    battery->disableCharger();
    battery.reset();
    QVERIFY2(log.all().isEmpty(), qPrintable(log.all().join(QLatin1Char('\n'))));
    if (script == "folder")
        QVERIFY(QDir().rmdir(Kiv));
}

QTEST_GUILESS_MAIN(tst_Battery)
#include "tst_battery.moc"
