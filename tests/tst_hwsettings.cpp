// SPDX-License-Identifier: BSD-3-Clause
#include "files.h"
#include "hwsettings.h"
#include "messagelog.h"
#include "metaobject.h"

#include <QPointer>
#include <QQmlEngine>
#include <QtTest>

#include <cmath>

namespace
{
const QString Installed = QStringLiteral("/usr/share/kiv/settings.d/");
const QString RunTime = QStringLiteral("/run/kiv/settings.d/");
const QString SettingsFile = Installed + QStringLiteral("10-hw-settings.ini");
constexpr int Megabyte = 1024 * 1024;
constexpr int VolumeUp = 0x01000072;
constexpr int VolumeDown = 0x01000070;

/*! A number as it comes out of a float. */
QVariant real(float value)
{
    return QVariant(double(value));
}
}

class tst_HwSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void interface();
    void hasDefaults_data();
    void hasDefaults();
    void slotsReturnTheProperties();
    void saysNothingWithoutFiles();

    void readsKeys_data();
    void readsKeys();
    void logsInFixedOrder();
    void absentKeysKeepTheirDefaults();
    void singleColorWins_data();
    void singleColorWins();
    void listsHardwareKeys_data();
    void listsHardwareKeys();

    void runTimeFilesWin();
    void usesOnlyItsFiles();

    void realValue_data();
    void realValue();
    void intValue_data();
    void intValue();
    void stringValue_data();
    void stringValue();
    void looksUpNothingWithoutFiles();
    void namesKeys_data();
    void namesKeys();

    void isLoadedOnce();
    void instancesAreIndependent();
    void leavesFilesAlone();
    void survivesBrokenFiles_data();
    void survivesBrokenFiles();
    void servesScripts();
};

void tst_HwSettings::init()
{
    emptyFolder(QStringLiteral("/usr/share/kiv"));
    emptyFolder(QStringLiteral("/run/kiv"));
}

void tst_HwSettings::interface()
{
    const QStringList expected = {
        QStringLiteral("property bool backCameraFlash constant"),
        QStringLiteral("property QString ledType constant"),
        QStringLiteral("property int modemCount constant"),
        QStringLiteral("property double defaultFmRadioFrequency constant"),
        QStringLiteral("property QString audioInputSource constant"),
        QStringLiteral("property double gSensorMinY constant"),
        QStringLiteral("property double gSensorMaxY constant"),
        QStringLiteral("property double gSensorMinX constant"),
        QStringLiteral("property double gSensorMaxX constant"),
        QStringLiteral("property double gSensorMinZ constant"),
        QStringLiteral("property double gSensorMaxZ constant"),
        QStringLiteral("property double gyroMin constant"),
        QStringLiteral("property double gyroMax constant"),
        QStringLiteral("property QString recordTopDevice constant"),
        QStringLiteral("property QString recordBottomDevice constant"),
        QStringLiteral("property QString recordTopDeviceChannel constant"),
        QStringLiteral("property QString recordBottomDeviceChannel constant"),
        QStringLiteral("property QVariantList keys constant"),
        QStringLiteral("property bool batteryVoltageTest constant"),
        QStringLiteral("property int runInTestLength constant"),
        QStringLiteral("slot bool backCameraFlash()"),
        QStringLiteral("slot QString ledType()"),
        QStringLiteral("slot int modemCount()"),
        QStringLiteral("slot double defaultFmRadioFrequency()"),
        QStringLiteral("slot QString audioInputSource()"),
        QStringLiteral("slot double gSensorMinY()"),
        QStringLiteral("slot double gSensorMaxY()"),
        QStringLiteral("slot double gSensorMinX()"),
        QStringLiteral("slot double gSensorMaxX()"),
        QStringLiteral("slot double gSensorMinZ()"),
        QStringLiteral("slot double gSensorMaxZ()"),
        QStringLiteral("slot double gyroMin()"),
        QStringLiteral("slot double gyroMax()"),
        QStringLiteral("slot QString recordTopDevice()"),
        QStringLiteral("slot QString recordBottomDevice()"),
        QStringLiteral("slot QString recordTopDeviceChannel()"),
        QStringLiteral("slot QString recordBottomDeviceChannel()"),
        QStringLiteral("slot QVariantList keys()"),
        QStringLiteral("slot bool batteryVoltageTest()"),
        QStringLiteral("slot int runInTestLength()"),
        QStringLiteral("invokable float realValue(QString,float)"),
        QStringLiteral("invokable int intValue(QString,int)"),
        QStringLiteral("invokable QString stringValue(QString)"),
        QStringLiteral("invokable QString keyName(Qt::Key)"),
    };
    QCOMPARE(ownInterface(HwSettings::staticMetaObject), expected);
}

void tst_HwSettings::hasDefaults_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("backCameraFlash") << QVariant(true);
    QTest::newRow("ledType") << QVariant(QStringLiteral("RGB"));
    QTest::newRow("modemCount") << QVariant(1);
    QTest::newRow("defaultFmRadioFrequency") << QVariant(90.0);
    QTest::newRow("audioInputSource") << QVariant(QString());
    QTest::newRow("gSensorMinY") << QVariant(-1.0);
    QTest::newRow("gSensorMaxY") << QVariant(1.0);
    QTest::newRow("gSensorMinX") << QVariant(-1.0);
    QTest::newRow("gSensorMaxX") << QVariant(1.0);
    QTest::newRow("gSensorMinZ") << real(8.8F);
    QTest::newRow("gSensorMaxZ") << real(10.8F);
    QTest::newRow("gyroMin") << real(-1.3F);
    QTest::newRow("gyroMax") << real(1.3F);
    QTest::newRow("recordTopDevice") << QVariant(QStringLiteral("input-back_mic"));
    QTest::newRow("recordBottomDevice") << QVariant(QStringLiteral("input-builtin_mic"));
    QTest::newRow("recordTopDeviceChannel") << QVariant(QStringLiteral("stereo"));
    QTest::newRow("recordBottomDeviceChannel") << QVariant(QStringLiteral("stereo"));
    QTest::newRow("keys") << QVariant(QVariantList{VolumeUp, VolumeDown});
    QTest::newRow("batteryVoltageTest") << QVariant(true);
    QTest::newRow("runInTestLength") << QVariant(2);
}

void tst_HwSettings::hasDefaults()
{
    QFETCH(QVariant, value);
    const HwSettings noFile;
    QCOMPARE(noFile.property(QTest::currentDataTag()), value);

    writeFile(SettingsFile, "[Other]\nKey=1\n");
    const HwSettings noKey;
    QCOMPARE(noKey.property(QTest::currentDataTag()), value);

    writeFile(SettingsFile, "");
    const HwSettings emptyFile;
    QCOMPARE(emptyFile.property(QTest::currentDataTag()), value);
}

void tst_HwSettings::slotsReturnTheProperties()
{
    writeFile(SettingsFile,
              "[GSensor]\nMinY=1\nMaxY=2\nMinX=3\nMaxX=4\nMinZ=5\nMaxZ=6\n[Gyro]\nMin=7\nMax=8\n"
              "[SIM]\nModemCount=9\n[RunInTest]\nLength=10\n[Audio]\nRecordTopDevice=a\n"
              "RecordBottomDevice=b\nRecordTopDeviceChannel=c\nRecordBottomDeviceChannel=d\n");
    HwSettings settings;
    const QMetaObject &meta = HwSettings::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        const QMetaMethod slot = meta.method(meta.indexOfSlot(QByteArray(property.name()) + "()"));
        QVariant value(property.userType(), nullptr);
        QVERIFY2(slot.invoke(&settings, QGenericReturnArgument(property.typeName(), value.data())), property.name());
        QCOMPARE(value, property.read(&settings));
    }
}

void tst_HwSettings::saysNothingWithoutFiles()
{
    writeFile(Installed + QStringLiteral("other.ini"), "[SIM]\nModemCount=2\n");
    const MessageLog log;
    const HwSettings settings;
    QCOMPARE(settings.modemCount(), 1);
    QCOMPARE(log.all(), QStringList());
}

void tst_HwSettings::readsKeys_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QStringList>("log");

    const auto row = [](const char *tag, const char *group, const char *key, const QByteArray &text, const char *name,
                        const QVariant &value, const QStringList &lines) {
        QStringList log;
        for (const QString &line : lines)
            log << QStringLiteral("\"%1/%2\" variable %3").arg(QLatin1String(group), QLatin1String(key), line);
        QTest::newRow(tag) << QByteArray("[") + group + "]\n" + key + "=" + text + "\n"
                           << QByteArray(name) << value << log;
    };
    const auto other = [&row](const char *tag, const char *group, const char *key, const QByteArray &text,
                              const char *name, const QVariant &value, const char *printed) {
        row(tag, group, key, text, name, value, {QStringLiteral("found, value: ") + QLatin1String(printed)});
    };
    const auto number = [&row](const char *tag, const char *group, const char *key, const QByteArray &text,
                               const char *name, float value, const char *printed) {
        row(tag, group, key, text, name, real(value),
            {QStringLiteral("found, value: ") + QLatin1String(printed),
             QStringLiteral("valid: ") + QLatin1String(printed)});
    };
    const auto rejected = [&row](const char *tag, const char *group, const char *key, const QByteArray &text,
                                 const char *name, float value, const char *printed) {
        row(tag, group, key, text, name, real(value), {QStringLiteral("found, value: ") + QLatin1String(printed)});
    };

    other("flash", "BackCamera", "Flash", "false", "backCameraFlash", false, "false");
    other("flash on", "BackCamera", "Flash", "true", "backCameraFlash", true, "true");
    other("flash 0", "BackCamera", "Flash", "0", "backCameraFlash", false, "false");
    other("flash 1", "BackCamera", "Flash", "1", "backCameraFlash", true, "true");
    other("flash FALSE", "BackCamera", "Flash", "FALSE", "backCameraFlash", false, "false");
    other("flash empty", "BackCamera", "Flash", "", "backCameraFlash", false, "false");
    other("flash number", "BackCamera", "Flash", "2", "backCameraFlash", true, "true");
    other("flash text", "BackCamera", "Flash", "perhaps", "backCameraFlash", false, "false");
    other("flash list", "BackCamera", "Flash", "true, true", "backCameraFlash", false, "false");
    other("LED", "LED", "LedType", "White", "ledType", QStringLiteral("White"), "\"White\"");
    other("LED empty", "LED", "LedType", "", "ledType", QString(), "\"\"");
    other("LED list", "LED", "LedType", "Red, Green", "ledType", QString(), "\"\"");
    other("LED quoted", "LED", "LedType", "\"Red, Green\"", "ledType", QStringLiteral("Red, Green"), "\"Red, Green\"");
    other("modems", "SIM", "ModemCount", "2", "modemCount", 2, "2");
    other("modems negative", "SIM", "ModemCount", "-2147483648", "modemCount", std::numeric_limits<int>::min(),
          "-2147483648");
    other("modems text", "SIM", "ModemCount", "two", "modemCount", 0, "0");
    other("modems empty", "SIM", "ModemCount", "", "modemCount", 0, "0");
    other("modems list", "SIM", "ModemCount", "1, 2", "modemCount", 0, "0");
    other("modems fraction", "SIM", "ModemCount", "2.5", "modemCount", 0, "0");
    other("modems hexadecimal", "SIM", "ModemCount", "0x2", "modemCount", 0, "0");
    other("modems beyond 32 bits", "SIM", "ModemCount", "4294967298", "modemCount", 0, "0");
    other("modems beyond 31 bits", "SIM", "ModemCount", "2147483648", "modemCount", 0, "0");
    number("radio", "FmRadio", "DefaultFrequency", "101.7", "defaultFmRadioFrequency", 101.7F, "101.7");
    number("radio whole", "FmRadio", "DefaultFrequency", "88", "defaultFmRadioFrequency", 88.0F, "88");
    rejected("radio text", "FmRadio", "DefaultFrequency", "loud", "defaultFmRadioFrequency", 90.0F, "0");
    rejected("radio comma", "FmRadio", "DefaultFrequency", "101,7", "defaultFmRadioFrequency", 90.0F, "0");
    rejected("radio beyond float", "FmRadio", "DefaultFrequency", "1e300", "defaultFmRadioFrequency", 90.0F, "inf");
    number("min Y", "GSensor", "MinY", "-2.25", "gSensorMinY", -2.25F, "-2.25");
    number("max Y", "GSensor", "MaxY", "2.1", "gSensorMaxY", 2.1F, "2.1");
    number("min X", "GSensor", "MinX", "-3.1", "gSensorMinX", -3.1F, "-3.1");
    number("max X", "GSensor", "MaxX", "3.1", "gSensorMaxX", 3.1F, "3.1");
    number("min Z", "GSensor", "MinZ", "9.1", "gSensorMinZ", 9.1F, "9.1");
    number("max Z", "GSensor", "MaxZ", "1.01e1", "gSensorMaxZ", 10.1F, "10.1");
    number("gyro min", "Gyro", "Min", "-0.7", "gyroMin", -0.7F, "-0.7");
    number("gyro max", "Gyro", "Max", "+0.7", "gyroMax", 0.7F, "0.7");
    rejected("min Y rejected", "GSensor", "MinY", "x", "gSensorMinY", -1.0F, "0");
    rejected("max Y rejected", "GSensor", "MaxY", "x", "gSensorMaxY", 1.0F, "0");
    rejected("min X rejected", "GSensor", "MinX", "x", "gSensorMinX", -1.0F, "0");
    rejected("max X rejected", "GSensor", "MaxX", "x", "gSensorMaxX", 1.0F, "0");
    rejected("min Z rejected", "GSensor", "MinZ", "x", "gSensorMinZ", 8.8F, "0");
    rejected("max Z rejected", "GSensor", "MaxZ", "x", "gSensorMaxZ", 10.8F, "0");
    rejected("gyro min rejected", "Gyro", "Min", "x", "gyroMin", -1.3F, "0");
    rejected("gyro max rejected", "Gyro", "Max", "", "gyroMax", 1.3F, "0");
    other("voltage", "Battery", "VoltageTest", "false", "batteryVoltageTest", false, "false");
    other("voltage text", "Battery", "VoltageTest", "mV", "batteryVoltageTest", false, "false");
    other("source", "Audio", "InputSource", "droid", "audioInputSource", QStringLiteral("droid"), "\"droid\"");
    other("top", "Audio", "RecordTopDevice", "t", "recordTopDevice", QStringLiteral("t"), "\"t\"");
    other("bottom", "Audio", "RecordBottomDevice", "b", "recordBottomDevice", QStringLiteral("b"), "\"b\"");
    other("top channel", "Audio", "RecordTopDeviceChannel", "left", "recordTopDeviceChannel", QStringLiteral("left"),
          "\"left\"");
    other("bottom channel", "Audio", "RecordBottomDeviceChannel", "right", "recordBottomDeviceChannel",
          QStringLiteral("right"), "\"right\"");
    other("run-in", "RunInTest", "Length", "24", "runInTestLength", 24, "24");
    other("run-in text", "RunInTest", "Length", "long", "runInTestLength", 0, "0");
}

void tst_HwSettings::readsKeys()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, name);
    QFETCH(QVariant, value);
    QFETCH(QStringList, log);
    writeFile(SettingsFile, content);
    const MessageLog messages;
    const HwSettings settings;
    QCOMPARE(settings.property(name.constData()), value);
    log.prepend(QStringLiteral("Load settings from \"10-hw-settings.ini\""));
    QCOMPARE(messages.all(), log);
    QCOMPARE(messages.debugs(), log);
}

void tst_HwSettings::logsInFixedOrder()
{
    writeFile(SettingsFile,
              "[RunInTest]\nLength=3\n[Audio]\nRecordBottomDeviceChannel=4\nRecordTopDeviceChannel=5\n"
              "RecordBottomDevice=6\nRecordTopDevice=7\nInputSource=8\n[Battery]\nVoltageTest=true\n"
              "[Keys]\nKeys=0x01000072, 0x01000070\n[Gyro]\nMax=9\nMin=10\n[GSensor]\nMaxZ=11\nMinZ=12\n"
              "MaxX=13\nMinX=14\nMaxY=15\nMinY=16\n[FmRadio]\nDefaultFrequency=17\n[SIM]\n"
              "ModemCount=18\n[LED]\nSingleColor=false\nLedType=19\n[BackCamera]\nFlash=true\n");
    const MessageLog log;
    const HwSettings settings;
    QStringList expected = {
        QStringLiteral("Load settings from \"10-hw-settings.ini\""),
        QStringLiteral("\"BackCamera/Flash\" variable found, value: true"),
        QStringLiteral("\"LED/LedType\" variable found, value: \"19\""),
        QStringLiteral("\"LED/SingleColor\" variable found, value: false"),
        QStringLiteral("\"SIM/ModemCount\" variable found, value: 18"),
    };
    const char *const numbers[] = {"FmRadio/DefaultFrequency",
                                   "GSensor/MinY",
                                   "GSensor/MaxY",
                                   "GSensor/MinX",
                                   "GSensor/MaxX",
                                   "GSensor/MinZ",
                                   "GSensor/MaxZ",
                                   "Gyro/Min",
                                   "Gyro/Max"};
    int value = 17;
    for (const char *const key : numbers) {
        expected << QStringLiteral("\"%1\" variable found, value: %2").arg(QLatin1String(key)).arg(value)
                 << QStringLiteral("\"%1\" variable valid: %2").arg(QLatin1String(key)).arg(value);
        --value;
    }
    expected << QStringLiteral("\"Keys/Keys\" variable found, value: (\"0x01000072\", \"0x01000070\")")
             << QStringLiteral("\"Battery/VoltageTest\" variable found, value: true")
             << QStringLiteral("\"Audio/InputSource\" variable found, value: \"8\"")
             << QStringLiteral("\"Audio/RecordTopDevice\" variable found, value: \"7\"")
             << QStringLiteral("\"Audio/RecordBottomDevice\" variable found, value: \"6\"")
             << QStringLiteral("\"Audio/RecordTopDeviceChannel\" variable found, value: \"5\"")
             << QStringLiteral("\"Audio/RecordBottomDeviceChannel\" variable found, value: \"4\"")
             << QStringLiteral("\"RunInTest/Length\" variable found, value: 3");
    QCOMPARE(log.all(), expected);
    QCOMPARE(log.debugs(), expected);
}

void tst_HwSettings::absentKeysKeepTheirDefaults()
{
    writeFile(SettingsFile, "[GSensor]\nMinX=-2\n[Audio]\nRecordTopDevice=input-top\n");
    const MessageLog log;
    const HwSettings settings;
    QCOMPARE(settings.gSensorMinX(), -2.0);
    QCOMPARE(settings.gSensorMaxX(), 1.0);
    QCOMPARE(settings.gSensorMinZ(), double(8.8F));
    QCOMPARE(settings.recordTopDevice(), QStringLiteral("input-top"));
    QCOMPARE(settings.recordBottomDevice(), QStringLiteral("input-builtin_mic"));
    QCOMPARE(log.all().size(), 4);
}

void tst_HwSettings::singleColorWins_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QString>("type");
    QTest::newRow("type, single") << QByteArray("LedType=RGB\nSingleColor=true\n") << QStringLiteral("Binary");
    QTest::newRow("single, type") << QByteArray("SingleColor=true\nLedType=RGB\n") << QStringLiteral("Binary");
    QTest::newRow("single alone") << QByteArray("SingleColor=true\n") << QStringLiteral("Binary");
    QTest::newRow("not single") << QByteArray("SingleColor=false\nLedType=White\n") << QStringLiteral("White");
    QTest::newRow("not single, no type") << QByteArray("SingleColor=false\n") << QStringLiteral("RGB");
    QTest::newRow("unknown") << QByteArray("SingleColor=perhaps\nLedType=White\n") << QStringLiteral("White");
    QTest::newRow("empty") << QByteArray("SingleColor=\nLedType=White\n") << QStringLiteral("White");
}

void tst_HwSettings::singleColorWins()
{
    QFETCH(QByteArray, lines);
    QFETCH(QString, type);
    writeFile(SettingsFile, "[LED]\n" + lines);
    const HwSettings settings;
    QCOMPARE(settings.ledType(), type);
}

void tst_HwSettings::listsHardwareKeys_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QVariantList>("keys");
    QTest::addColumn<QString>("printed");
    QTest::addColumn<QStringList>("rejected");
    const auto row = [](const char *tag, const char *text, const QVariantList &keys, const char *printed,
                        const QStringList &rejected) {
        QTest::newRow(tag) << QByteArray(text) << keys << QString::fromLatin1(printed) << rejected;
    };
    const QVariantList usual = {VolumeUp, VolumeDown};
    const QVariantList none;
    const auto text = [](const char *element) { return QString::fromLatin1(element); };

    row("one", "0x01000072", {VolumeUp}, "(\"0x01000072\")", {});
    row("two in their order", "0x01000070, 0x01000072", {VolumeDown, VolumeUp}, "(\"0x01000070\", \"0x01000072\")", {});
    row("twice", "0x01000070,0x01000070", {VolumeDown, VolumeDown}, "(\"0x01000070\", \"0x01000070\")", {});
    row("character", "0x01000072, 0x41", {VolumeUp}, "(\"0x01000072\", \"0x41\")", {text("0x41")});
    row("character alone", "0x41", none, "(\"0x41\")", {text("0x41")});
    row("no prefix", "1000072", {VolumeUp}, "(\"1000072\")", {});
    row("capital prefix", "0X01000072", {VolumeUp}, "(\"0X01000072\")", {});
    row("capitals", "0x0100001B", {0x0100001b}, "(\"0x0100001B\")", {});
    row("first", "0x01000000", {0x01000000}, "(\"0x01000000\")", {});
    row("before first", "0x00ffffff", none, "(\"0x00ffffff\")", {text("0x00ffffff")});
    row("last", "0x01FFFFFE", {0x01fffffe}, "(\"0x01FFFFFE\")", {});
    row("after last", "0x01ffffff", none, "(\"0x01ffffff\")", {text("0x01ffffff")});
    row("beyond 32 bits", "0x101000072", none, "(\"0x101000072\")", {text("0x101000072")});
    row("negative", "-0x01000072", none, "(\"-0x01000072\")", {text("-0x01000072")});
    row("no number", "VolumeUp, 0x01000070", {VolumeDown}, "(\"VolumeUp\", \"0x01000070\")", {text("VolumeUp")});
    row("prefix alone", "0x", none, "(\"0x\")", {text("0x")});
    row("all wrong", "1, 2, x", none, "(\"1\", \"2\", \"x\")", {text("1"), text("2"), text("x")});
    row("empty element", "0x01000072,", {VolumeUp}, "(\"0x01000072\", \"\")", {QString()});
    row("empty elements", ",", none, "(\"\", \"\")", {QString(), QString()});
    row("quoted commas", "\"0x01000072,0x01000070\"", none, "(\"0x01000072,0x01000070\")",
        {text("0x01000072,0x01000070")});
    row("no element", "", usual, "()", {});
    row("no element, quoted", "\"\"", usual, "()", {});
    // What QSettings itself writes for a list without elements.
    row("no element, as Qt writes it", "@Invalid()", usual, "()", {});
}

void tst_HwSettings::listsHardwareKeys()
{
    QFETCH(QByteArray, text);
    QFETCH(QVariantList, keys);
    QFETCH(QString, printed);
    QFETCH(QStringList, rejected);
    writeFile(SettingsFile, "[Keys]\nKeys=" + text + "\n");
    const MessageLog log;
    const HwSettings settings;
    const QVariantList actual = settings.keys();
    QCOMPARE(actual, keys);
    for (const QVariant &key : actual)
        QCOMPARE(key.userType(), int(QMetaType::Int));

    QStringList warnings;
    for (const QString &element : qAsConst(rejected)) {
        warnings
            << QStringLiteral("Invalid key code defined in hwsettings.ini Keys settings array: \"%1\"").arg(element);
    }
    QCOMPARE(log.warnings(), warnings);
    QCOMPARE(log.debugs(),
             (QStringList{QStringLiteral("Load settings from \"10-hw-settings.ini\""),
                          QStringLiteral("\"Keys/Keys\" variable found, value: ") + printed}));
}

void tst_HwSettings::runTimeFilesWin()
{
    writeFile(SettingsFile, "[SIM]\nModemCount=2\n[LED]\nLedType=White\n");
    writeFile(RunTime + QStringLiteral("50-hw-settings.ini"), "[SIM]\nModemCount=1\n");
    const HwSettings settings;
    QCOMPARE(settings.modemCount(), 1);
    QCOMPARE(settings.ledType(), QStringLiteral("White"));
}

void tst_HwSettings::usesOnlyItsFiles()
{
    writeFile(Installed + QStringLiteral("hw-settings.conf"), "[SIM]\nModemCount=2\n");
    writeFile(Installed + QStringLiteral("other.ini"), "[SIM]\nModemCount=3\n");
    writeFile(Installed + QStringLiteral("factory-tests.ini"), "[SIM]\nModemCount=4\n");
    const HwSettings unused;
    QCOMPARE(unused.modemCount(), 1);
    writeFile(Installed + QStringLiteral("my-hw-settings-extra.ini"), "[SIM]\nModemCount=5\n");
    const HwSettings used;
    QCOMPARE(used.modemCount(), 5);
}

void tst_HwSettings::realValue_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<float>("value");
    QTest::addColumn<QString>("printed");
    QTest::addColumn<bool>("valid");
    const auto row = [](const char *tag, const char *text, float value, const char *printed, bool valid) {
        QTest::newRow(tag) << QByteArray(text) << value << QString::fromLatin1(printed) << valid;
    };
    row("number", "2.5", 2.5F, "2.5", true);
    row("rounded to float", "0.1", 0.1F, "0.1", true);
    row("zero", "0", 0.0F, "0", true);
    row("exponent", "-1.5e-3", -0.0015F, "-0.0015", true);
    row("text", "abc", 5.0F, "0", false);
    row("text after number", "2.5 m/s", 5.0F, "0", false);
    row("empty", "", 5.0F, "0", false);
    row("list", "1, 2", 5.0F, "0", false);
    row("beyond float", "-1e39", 5.0F, "-inf", false);
    row("beyond double", "1e999", 5.0F, "inf", false);
}

void tst_HwSettings::realValue()
{
    QFETCH(QByteArray, text);
    QFETCH(float, value);
    QFETCH(QString, printed);
    QFETCH(bool, valid);
    writeFile(SettingsFile, "[Some]\nNumber=" + text + "\n");
    const HwSettings settings;
    MessageLog log;
    QCOMPARE(settings.realValue(QStringLiteral("Some/Number"), 5.0F), value);
    QStringList expected = {QStringLiteral("\"Some/Number\" variable found, value: ") + printed};
    if (valid)
        expected << QStringLiteral("\"Some/Number\" variable valid: ") + printed;
    QCOMPARE(log.all(), expected);
    QCOMPARE(log.debugs(), expected);

    log.clear();
    QCOMPARE(settings.realValue(QStringLiteral("Some/Other"), 5.0F), 5.0F);
    QCOMPARE(settings.realValue(QStringLiteral("Some"), -1.25F), -1.25F);
    QVERIFY(std::isnan(settings.realValue(QStringLiteral("Number"), std::numeric_limits<float>::quiet_NaN())));
    QCOMPARE(log.all(), QStringList());
}

void tst_HwSettings::intValue_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("printed");
    QTest::addColumn<bool>("valid");
    const auto row = [](const char *tag, const char *text, int value, const char *printed, bool valid) {
        QTest::newRow(tag) << QByteArray(text) << value << QString::fromLatin1(printed) << valid;
    };
    row("number", "42", 42, "42", true);
    row("negative", "-42", -42, "-42", true);
    row("zero", "0", 0, "0", true);
    row("largest", "2147483647", 2147483647, "2147483647", true);
    row("beyond largest", "2147483648", 7, "0", false);
    row("beyond 32 bits", "4294967297", 7, "0", false);
    row("beyond 64 bits", "18446744073709551617", 7, "0", false);
    row("fraction", "1.0", 7, "0", false);
    row("hexadecimal", "0x10", 7, "0", false);
    row("text", "abc", 7, "0", false);
    row("empty", "", 7, "0", false);
    row("list", "1, 2", 7, "0", false);
    row("leading zero", "010", 10, "10", true);
}

void tst_HwSettings::intValue()
{
    QFETCH(QByteArray, text);
    QFETCH(int, value);
    QFETCH(QString, printed);
    QFETCH(bool, valid);
    writeFile(SettingsFile, "[Some]\nNumber=" + text + "\n");
    const HwSettings settings;
    MessageLog log;
    QCOMPARE(settings.intValue(QStringLiteral("Some/Number"), 7), value);
    QStringList expected = {QStringLiteral("\"Some/Number\" variable found, value: ") + printed};
    if (valid)
        expected << QStringLiteral("\"Some/Number\" variable valid: ") + printed;
    QCOMPARE(log.all(), expected);
    QCOMPARE(log.debugs(), expected);

    log.clear();
    QCOMPARE(settings.intValue(QStringLiteral("Some/Other"), -7), -7);
    QCOMPARE(log.all(), QStringList());
}

void tst_HwSettings::stringValue_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("value");
    QTest::newRow("text") << QByteArray("some text") << QStringLiteral("some text");
    QTest::newRow("number as written") << QByteArray("007") << QStringLiteral("007");
    QTest::newRow("empty") << QByteArray("") << QString();
    QTest::newRow("quoted") << QByteArray("\" a, b \"") << QStringLiteral(" a, b ");
    QTest::newRow("expression") << QByteArray("\"^([0-9a-f]{2}:){5}\\\\d\"") << QStringLiteral("^([0-9a-f]{2}:){5}\\d");
    QTest::newRow("list") << QByteArray("a, b") << QString();
    QTest::newRow("invalid") << QByteArray("@Invalid()") << QString();
}

void tst_HwSettings::stringValue()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, value);
    writeFile(SettingsFile, "[Some]\nText=" + text + "\n");
    const HwSettings settings;
    const MessageLog log;
    QCOMPARE(settings.stringValue(QStringLiteral("Some/Text")), value);
    QCOMPARE(settings.stringValue(QStringLiteral("Some/Other")), QString());
    QCOMPARE(settings.stringValue(QStringLiteral("Text")), QString());
    QCOMPARE(log.all(), QStringList());
}

void tst_HwSettings::looksUpNothingWithoutFiles()
{
    const HwSettings settings;
    const MessageLog log;
    QCOMPARE(settings.realValue(QStringLiteral("GSensor/MinX"), 5.5F), 5.5F);
    QCOMPARE(settings.intValue(QStringLiteral("SIM/ModemCount"), 5), 5);
    QCOMPARE(settings.stringValue(QStringLiteral("LED/LedType")), QString());
    QCOMPARE(log.all(), QStringList());
}

void tst_HwSettings::namesKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("name");
    QTest::newRow("volume up") << VolumeUp << QStringLiteral("Volume Up");
    QTest::newRow("volume down") << VolumeDown << QStringLiteral("Volume Down");
    QTest::newRow("power") << int(Qt::Key_PowerOff) << QStringLiteral("Power Off");
    QTest::newRow("camera") << int(Qt::Key_Camera) << QKeySequence(Qt::Key_Camera).toString();
    QTest::newRow("letter") << int(Qt::Key_A) << QStringLiteral("A");
    QTest::newRow("none") << 0 << QString();
}

void tst_HwSettings::namesKeys()
{
    QFETCH(int, key);
    QFETCH(QString, name);
    const HwSettings settings;
    QCOMPARE(settings.keyName(Qt::Key(key)), name);
}

void tst_HwSettings::isLoadedOnce()
{
    writeFile(SettingsFile, "[SIM]\nModemCount=2\n");
    const HwSettings settings;
    writeFile(SettingsFile, "[SIM]\nModemCount=3\n");
    writeFile(RunTime + QStringLiteral("hw-settings.ini"), "[SIM]\nModemCount=4\n[LED]\nLedType=White\n");
    QCoreApplication::processEvents();
    QCOMPARE(settings.modemCount(), 2);
    QCOMPARE(settings.intValue(QStringLiteral("SIM/ModemCount"), 0), 2);
    QCOMPARE(settings.stringValue(QStringLiteral("LED/LedType")), QString());

    emptyFolder(QStringLiteral("/usr/share/kiv"));
    emptyFolder(QStringLiteral("/run/kiv"));
    QCOMPARE(settings.stringValue(QStringLiteral("SIM/ModemCount")), QStringLiteral("2"));
}

void tst_HwSettings::instancesAreIndependent()
{
    writeFile(SettingsFile, "[SIM]\nModemCount=2\n");
    auto first = std::make_unique<HwSettings>();
    writeFile(SettingsFile, "[SIM]\nModemCount=3\n");
    const HwSettings second;
    QCOMPARE(first->intValue(QStringLiteral("SIM/ModemCount"), 0), 2);
    QCOMPARE(second.intValue(QStringLiteral("SIM/ModemCount"), 0), 3);
    first.reset();
    QCOMPARE(second.intValue(QStringLiteral("SIM/ModemCount"), 0), 3);

    QObject parent;
    const QPointer<HwSettings> child = new HwSettings(&parent);
    QCOMPARE(child->parent(), &parent);
}

void tst_HwSettings::leavesFilesAlone()
{
    const QByteArray content = "; ours\n[Z]\nb=1\n[A]\na=1\n";
    writeFile(SettingsFile, content);
    writeFile(RunTime + QStringLiteral("hw-settings.ini"), "[SIM]\nModemCount=4\n");
    const auto before = QFileInfo(SettingsFile).lastModified();
    {
        const HwSettings settings;
        QCOMPARE(settings.modemCount(), 4);
        QCoreApplication::processEvents();
    }
    QCoreApplication::processEvents();
    QCOMPARE(readFile(SettingsFile), content);
    QCOMPARE(QFileInfo(SettingsFile).lastModified(), before);
    QCOMPARE(QDir(Installed).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot),
             QStringList{QStringLiteral("10-hw-settings.ini")});
    QCOMPARE(QDir(RunTime).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot),
             QStringList{QStringLiteral("hw-settings.ini")});
}

void tst_HwSettings::survivesBrokenFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("NULs") << QByteArray(1000, '\0');
    QTest::newRow("invalid UTF-8") << QByteArray("[LED]\nLedType\xff=\xc3\x28\n\xfe\n");
    QTest::newRow("one long value") << "[Keys]\nKey=" + QByteArray(4 * Megabyte, 'x') + "\n";
    QTest::newRow("no key") << QByteArray("[SIM]\nModemCount\n[LED]\nLedType White\n");
}

void tst_HwSettings::survivesBrokenFiles()
{
    QFETCH(QByteArray, content);
    writeFile(SettingsFile, content);
    const HwSettings settings;
    QCOMPARE(settings.ledType(), QStringLiteral("RGB"));
    QCOMPARE(settings.modemCount(), 1);
    QCOMPARE(settings.keys(), (QVariantList{VolumeUp, VolumeDown}));
    writeFile(SettingsFile, "[Keys]\nKeys=" + QByteArray(4 * Megabyte, 'x') + "\n");
    const MessageLog log;
    const HwSettings noKeys;
    QCOMPARE(noKeys.keys(), QVariantList());
    QCOMPARE(log.warnings().size(), 1);
}

void tst_HwSettings::servesScripts()
{
    writeFile(SettingsFile, "[GSensor]\nMinX=-2.5\n[Some]\nText=abc\nNumber=3\n");
    HwSettings settings;
    QQmlEngine engine;
    QQmlEngine::setObjectOwnership(&settings, QQmlEngine::CppOwnership);
    engine.globalObject().setProperty(QStringLiteral("hw"), engine.newQObject(&settings));
    const auto evaluate = [&engine](const char *script) {
        return engine.evaluate(QString::fromLatin1(script)).toVariant();
    };
    QCOMPARE(evaluate("hw.gSensorMinX"), QVariant(-2.5));
    QCOMPARE(evaluate("hw.keys.length + ' ' + hw.keys[0]").toString(), QStringLiteral("2 %1").arg(VolumeUp));
    QCOMPARE(evaluate("hw.keys.map(function(key) { return hw.keyName(key) }).join()").toString(),
             QStringLiteral("Volume Up,Volume Down"));
    QCOMPARE(evaluate("hw.realValue('GSensor/MinX', 1)").toDouble(), -2.5);
    QCOMPARE(evaluate("hw.realValue('GSensor/None', 1.5)").toDouble(), 1.5);
    QCOMPARE(evaluate("hw.intValue('Some/Number', 1)").toInt(), 3);
    QCOMPARE(evaluate("hw.intValue('Some/Text', 1)").toInt(), 1);
    QCOMPARE(evaluate("hw.stringValue('Some/Text')").toString(), QStringLiteral("abc"));
}

QTEST_MAIN(tst_HwSettings)
#include "tst_hwsettings.moc"
