// SPDX-License-Identifier: BSD-3-Clause
#include "files.h"
#include "macvalidator.h"
#include "messagelog.h"
#include "metaobject.h"
#include "ordinaryuser.h"

#include <QQmlEngine>
#include <QtTest>

namespace
{
const QString SettingsFile = QStringLiteral("/usr/share/kiv/settings.d/hw-settings.ini");
const QString BoardAddress = QStringLiteral("/var/lib/bluetooth/board-address");
const QString Interfaces = QStringLiteral("/sys/class/net/");
const QString Bluetooth = QStringLiteral("bluetooth");
const QString Wireless = QStringLiteral("wireless");
const QString DefaultPattern = QStringLiteral("(([0-9a-f]){2}:){5}([0-9a-f]){2}");

QString defaultLine(const QString &type)
{
    return QStringLiteral("No regular expression defined for mac type: \"%1\" using default: \"%2\"")
        .arg(type, DefaultPattern);
}

QString emptyLine(const QString &type)
{
    return QStringLiteral("Mac of type: \"%1\" is empty/unspecified.").arg(type);
}

void writeWlanAddress(const QByteArray &content)
{
    writeFile(Interfaces + QStringLiteral("wlan0/address"), content);
    QDir().mkpath(Interfaces + QStringLiteral("wlan0/wireless"));
    QDir().mkpath(Interfaces + QStringLiteral("wlan0/phy80211"));
}
}

class tst_MacValidator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void interface();
    void readsBluetoothAddress_data();
    void readsBluetoothAddress();
    void hasNoBluetoothAddress();
    void cannotReadBluetoothAddress();
    void readsWirelessAddress_data();
    void readsWirelessAddress();
    void hasNoWirelessAddress();
    void readsAnewEachTime();
    void takesPatternsFromSettings_data();
    void takesPatternsFromSettings();
    void knowsTwoTypes_data();
    void knowsTwoTypes();
    void validates_data();
    void validates();
    void saysWhyNothingIsValid();
    void ownsItsSettings();
    void servesScripts();
};

void tst_MacValidator::init()
{
    emptyFolder(QStringLiteral("/usr/share/kiv"));
    emptyFolder(QStringLiteral("/run/kiv"));
    emptyFolder(QStringLiteral("/var/lib/bluetooth"));
    emptyFolder(Interfaces);
    writeFile(Interfaces + QStringLiteral("eth0/address"), "00:00:00:00:00:01\n");
}

void tst_MacValidator::interface()
{
    const QStringList expected = {
        QStringLiteral("invokable bool isMacValid(QString)"),
        QStringLiteral("invokable QString getMac(QString)"),
        QStringLiteral("invokable QString getMacCriteria(QString)"),
    };
    QCOMPARE(ownInterface(MacValidator::staticMetaObject), expected);
}

void tst_MacValidator::readsBluetoothAddress_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("address");
    QTest::newRow("usual") << QByteArray("00:11:22:AA:BB:CC\n") << QStringLiteral("00:11:22:aa:bb:cc");
    QTest::newRow("no newline") << QByteArray("00:11:22:AA:BB:CC") << QStringLiteral("00:11:22:aa:bb:cc");
    QTest::newRow("blanks") << QByteArray(" \t00:11\v \r\n") << QStringLiteral("00:11");
    QTest::newRow("carriage return inside") << QByteArray("00:11\r:22\r\n") << QStringLiteral("00:11\r:22");
    QTest::newRow("first line") << QByteArray("00:11\n22:33\n") << QStringLiteral("00:11");
    QTest::newRow("empty first line") << QByteArray("\n00:11\n") << QString();
    QTest::newRow("empty") << QByteArray("") << QString();
    QTest::newRow("blanks only") << QByteArray("  \n") << QString();
    QTest::newRow("Latin-1") << QByteArray("\xc9\xe9\xff\n") << QStringLiteral("\u00e9\u00e9\u00ff");
    QTest::newRow("UTF-8") << QByteArray("\xc3\x89\n") << QStringLiteral("\u00e3\u0089");
    QTest::newRow("up to a NUL") << QByteArray("00:11\0:22\n", 10) << QStringLiteral("00:11");
    QTest::newRow("NULs") << QByteArray(1000, '\0') << QString();
    QTest::newRow("megabytes") << QByteArray(4 << 20, 'X') << QString(4 << 20, QLatin1Char('x'));
}

void tst_MacValidator::readsBluetoothAddress()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, address);
    writeFile(BoardAddress, content);
    const MacValidator validator;
    const MessageLog log;
    QCOMPARE(validator.getMac(Bluetooth), address);
    QCOMPARE(log.all(), QStringList());
    QCOMPARE(readFile(BoardAddress), content);
}

void tst_MacValidator::hasNoBluetoothAddress()
{
    const MacValidator validator;
    const MessageLog log;
    QCOMPARE(validator.getMac(Bluetooth), QString());
    QVERIFY(!QFile::exists(BoardAddress));
    QVERIFY(QDir().mkpath(BoardAddress));
    QCOMPARE(validator.getMac(Bluetooth), QString());
    emptyFolder(QStringLiteral("/var/lib/bluetooth"));
    QVERIFY(QFile::link(QStringLiteral("/nowhere"), BoardAddress));
    QCOMPARE(validator.getMac(Bluetooth), QString());
    QCOMPARE(log.all(), QStringList());
}

void tst_MacValidator::cannotReadBluetoothAddress()
{
    writeFile(BoardAddress, "00:11:22:aa:bb:cc\n", QFile::WriteOwner);
    const Verdict verdict = asOrdinaryUser([] {
        const MacValidator validator;
        const MessageLog log;
        return validator.getMac(Bluetooth).isEmpty() && !validator.isMacValid(Bluetooth)
            && log.all() == QStringList{QStringLiteral("Mac of type: \"bluetooth\" is empty/unspecified.")};
    });
    if (verdict == Verdict::NoSuchUser)
        QSKIP("another user is needed");
    QCOMPARE(verdict, Verdict::True);
}

void tst_MacValidator::readsWirelessAddress_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("address");
    QTest::newRow("lower case") << QByteArray("00:11:22:aa:bb:cc\n") << QStringLiteral("00:11:22:aa:bb:cc");
    QTest::newRow("upper case") << QByteArray("00:11:22:AA:BB:CC\n") << QStringLiteral("00:11:22:aa:bb:cc");
    QTest::newRow("blanks") << QByteArray(" 00:11 \n") << QStringLiteral("00:11");
    QTest::newRow("empty") << QByteArray("\n") << QString();
}

void tst_MacValidator::readsWirelessAddress()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, address);
    writeWlanAddress(content);
    const MacValidator validator;
    const MessageLog log;
    QCOMPARE(validator.getMac(Wireless), address);
    QCOMPARE(log.all(), QStringList());
}

void tst_MacValidator::hasNoWirelessAddress()
{
    const MessageLog log;
    const MacValidator validator;
    QCOMPARE(validator.getMac(Wireless), QString());
    QCOMPARE(log.all(), QStringList());
}

void tst_MacValidator::readsAnewEachTime()
{
    const MacValidator validator;
    writeFile(BoardAddress, "1\n");
    writeWlanAddress("2\n");
    QCOMPARE(validator.getMac(Bluetooth), QStringLiteral("1"));
    QCOMPARE(validator.getMac(Wireless), QStringLiteral("2"));
    writeFile(BoardAddress, "3\n");
    writeWlanAddress("4\n");
    QCOMPARE(validator.getMac(Bluetooth), QStringLiteral("3"));
    QCOMPARE(validator.getMac(Wireless), QStringLiteral("4"));
    QVERIFY(QFile::remove(BoardAddress));
    QCOMPARE(validator.getMac(Bluetooth), QString());
}

void tst_MacValidator::takesPatternsFromSettings_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("bluetooth");
    QTest::addColumn<QString>("wireless");
    QTest::newRow("none") << QByteArray() << QString() << QString();
    QTest::newRow("others") << QByteArray("[BTMACCheck]\nPattern=a\n") << QString() << QString();
    QTest::newRow("bluetooth") << QByteArray("[BTMACCheck]\nRegex=^00:11\n") << QStringLiteral("^00:11") << QString();
    QTest::newRow("wireless") << QByteArray("[WLANMACCheck]\nRegex=^00:22\n") << QString() << QStringLiteral("^00:22");
    QTest::newRow("both") << QByteArray("[BTMACCheck]\nRegex=a\n[WLANMACCheck]\nRegex=b\n") << QStringLiteral("a")
                          << QStringLiteral("b");
    QTest::newRow("empty") << QByteArray("[BTMACCheck]\nRegex=\n[WLANMACCheck]\nRegex=\"\"\n") << QString()
                           << QString();
}

void tst_MacValidator::takesPatternsFromSettings()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, bluetooth);
    QFETCH(QString, wireless);
    if (!content.isNull())
        writeFile(SettingsFile, content);
    const MacValidator validator;
    MessageLog log;
    QCOMPARE(validator.getMacCriteria(Bluetooth), bluetooth.isEmpty() ? DefaultPattern : bluetooth);
    QCOMPARE(log.all(), bluetooth.isEmpty() ? QStringList{defaultLine(Bluetooth)} : QStringList());
    QCOMPARE(log.debugs(), log.all());
    log.clear();
    QCOMPARE(validator.getMacCriteria(Wireless), wireless.isEmpty() ? DefaultPattern : wireless);
    QCOMPARE(log.all(), wireless.isEmpty() ? QStringList{defaultLine(Wireless)} : QStringList());
    QCOMPARE(log.debugs(), log.all());
}

void tst_MacValidator::knowsTwoTypes_data()
{
    QTest::addColumn<QString>("type");
    QTest::newRow("usb") << QStringLiteral("usb");
    QTest::newRow("empty") << QString();
    QTest::newRow("Bluetooth") << QStringLiteral("Bluetooth");
    QTest::newRow("WIRELESS") << QStringLiteral("WIRELESS");
    QTest::newRow("blank") << QStringLiteral("bluetooth ");
}

void tst_MacValidator::knowsTwoTypes()
{
    QFETCH(QString, type);
    writeFile(BoardAddress, "00:11:22:aa:bb:cc\n");
    writeWlanAddress("00:11:22:aa:bb:cc\n");
    writeFile(SettingsFile, "[BTMACCheck]\nRegex=a\n[WLANMACCheck]\nRegex=a\n");
    const MacValidator validator;
    MessageLog log;
    QCOMPARE(validator.getMac(type), QString());
    QCOMPARE(validator.getMacCriteria(type), QString());
    QCOMPARE(log.all(), QStringList());
    QCOMPARE(validator.isMacValid(type), false);
    QCOMPARE(log.all(), QStringList{emptyLine(type)});
    QCOMPARE(log.debugs(), log.all());
}

void tst_MacValidator::validates_data()
{
    QTest::addColumn<QByteArray>("address");
    QTest::addColumn<QByteArray>("pattern");
    QTest::addColumn<bool>("valid");
    const auto row = [](const char *tag, const char *address, const char *pattern, bool valid) {
        QTest::newRow(tag) << QByteArray(address) << QByteArray(pattern) << valid;
    };
    row("default", "00:11:22:aa:bb:cc", nullptr, true);
    row("default, upper case", "00:11:22:AA:BB:CC", nullptr, true);
    row("default, zeros", "00:00:00:00:00:00", nullptr, true);
    row("default, not anchored", "xx 00:11:22:aa:bb:cc:dd yy", nullptr, true);
    row("default, five pairs", "00:11:22:aa:bb", nullptr, false);
    row("default, dashes", "00-11-22-aa-bb-cc", nullptr, false);
    row("default, no digits", "00:11:22:aa:bb:cg", nullptr, false);
    row("pattern", "00:11:22:aa:bb:cc", "^00:11:22:", true);
    row("pattern of another maker", "00:11:23:aa:bb:cc", "^00:11:22:", false);
    row("pattern, anywhere", "00:11:22:aa:bb:cc", "aa:bb", true);
    row("pattern, anchored", "00:11:22:aa:bb:cc", "^aa:bb", false);
    row("pattern, upper case", "00:11:22:AA:BB:CC", "AA:BB", false);
    row("pattern against zeros", "00:00:00:00:00:00", "^(?!00:00:00:00:00:00)", false);
    row("pattern, invalid", "00:11:22:aa:bb:cc", "(00", false);
}

void tst_MacValidator::validates()
{
    QFETCH(QByteArray, address);
    QFETCH(QByteArray, pattern);
    QFETCH(bool, valid);
    writeFile(BoardAddress, address + "\n");
    writeWlanAddress(address + "\n");
    if (!pattern.isNull()) {
        writeFile(SettingsFile,
                  "[BTMACCheck]\nRegex=" + pattern + "\n[WLANMACCheck]\nRegex=" + pattern + "\n[X]\nY=1\n");
    }
    const MacValidator validator;
    const QStringList types = {Bluetooth, Wireless};
    for (const QString &type : types) {
        const MessageLog log;
        QCOMPARE(validator.isMacValid(type), valid);
        QCOMPARE(log.all(), pattern.isNull() ? QStringList{defaultLine(type)} : QStringList());
    }
}

void tst_MacValidator::saysWhyNothingIsValid()
{
    writeFile(SettingsFile, "[X]\nY=1\n");
    const MacValidator validator;
    const QStringList types = {Bluetooth, Wireless};
    for (const QString &type : types) {
        const MessageLog log;
        QCOMPARE(validator.isMacValid(type), false);
        QCOMPARE(log.all(), QStringList{emptyLine(type)});
        QCOMPARE(log.debugs(), log.all());
    }
}

void tst_MacValidator::ownsItsSettings()
{
    writeFile(SettingsFile, "[BTMACCheck]\nRegex=a\n");
    QObject parent;
    const auto *const validator = new MacValidator(&parent);
    QCOMPARE(validator->parent(), &parent);
    QStringList companions;
    for (const QObject *const child : validator->children())
        companions << QLatin1String(child->metaObject()->className());
#ifdef QT_SYSTEMINFO_LIB
    QCOMPARE(companions, (QStringList{QStringLiteral("HwSettings"), QStringLiteral("QNetworkInfo")}));
#else
    QCOMPARE(companions, QStringList{QStringLiteral("HwSettings")});
#endif
    // Read at construction, not when asked.
    writeFile(SettingsFile, "[BTMACCheck]\nRegex=b\n");
    QCOMPARE(validator->getMacCriteria(Bluetooth), QStringLiteral("a"));
    const MacValidator later;
    QCOMPARE(later.getMacCriteria(Bluetooth), QStringLiteral("b"));
}

void tst_MacValidator::servesScripts()
{
    writeFile(BoardAddress, "00:11:22:AA:BB:CC\n");
    writeFile(SettingsFile, "[BTMACCheck]\nRegex=^00:11\n");
    MacValidator validator;
    QQmlEngine engine;
    QQmlEngine::setObjectOwnership(&validator, QQmlEngine::CppOwnership);
    engine.globalObject().setProperty(QStringLiteral("macs"), engine.newQObject(&validator));
    QCOMPARE(engine
                 .evaluate(QStringLiteral("[macs.getMac('bluetooth'), macs.getMacCriteria('bluetooth'), "
                                          "macs.isMacValid('bluetooth')].join()"))
                 .toString(),
             QStringLiteral("00:11:22:aa:bb:cc,^00:11,true"));
}

QTEST_MAIN(tst_MacValidator)
#include "tst_macvalidator.moc"
