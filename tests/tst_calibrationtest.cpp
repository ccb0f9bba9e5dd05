// SPDX-License-Identifier: BSD-3-Clause
#include "calibrationtest.h"
#include "files.h"
#include "messagelog.h"
#include "metaobject.h"

#include <QQmlEngine>
#include <QtTest>

namespace
{
const QString SettingsFile = QStringLiteral("/usr/share/kiv/settings.d/hw-settings.ini");
}

class tst_CalibrationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void interface();
    void hasNoRecordWithoutSettings();
    void comparesFlags_data();
    void comparesFlags();
    void matchesStrings_data();
    void matchesStrings();
    void saysNothingOfItsOwn();
    void ownsItsSettings();
    void servesScripts();
};

void tst_CalibrationTest::init()
{
    emptyFolder(QStringLiteral("/usr/share/kiv"));
    emptyFolder(QStringLiteral("/run/kiv"));
}

void tst_CalibrationTest::interface()
{
    const QStringList expected = {
        QStringLiteral("property bool calibrationFlag constant"),
        QStringLiteral("property QString calibrationString constant"),
        QStringLiteral("property QString calibrationStringCriteria constant"),
        QStringLiteral("property QString calibrationFlagCriteria constant"),
        QStringLiteral("invokable bool isCalibrationFlagOk()"),
        QStringLiteral("invokable bool isCalibrationStringOk()"),
    };
    QCOMPARE(ownInterface(CalibrationTest::staticMetaObject), expected);
}

void tst_CalibrationTest::hasNoRecordWithoutSettings()
{
    for (int pass = 0; pass < 2; ++pass) {
        const CalibrationTest test;
        QCOMPARE(test.calibrationFlag(), false);
        QCOMPARE(test.calibrationString(), QString());
        QCOMPARE(test.calibrationStringCriteria(), QString());
        QCOMPARE(test.calibrationFlagCriteria(), QString());
        QCOMPARE(test.isCalibrationFlagOk(), false);
        QCOMPARE(test.isCalibrationStringOk(), false);
        writeFile(SettingsFile, "[SIM]\nModemCount=2\n");
    }
}

void tst_CalibrationTest::comparesFlags_data()
{
    QTest::addColumn<QByteArray>("info");
    QTest::addColumn<QByteArray>("check");
    QTest::addColumn<bool>("flag");
    QTest::addColumn<QString>("criteria");
    QTest::addColumn<bool>("ok");
    // A null text leaves the key out.
    const auto row = [](const char *tag, const char *info, const char *check, bool flag, const char *criteria,
                        bool ok) {
        QTest::newRow(tag) << QByteArray(info) << QByteArray(check) << flag << QString::fromLatin1(criteria) << ok;
    };
    row("1 and none", "1", nullptr, true, "", true);
    row("0 and none", "0", nullptr, false, "", false);
    row("2 and none", "2", nullptr, true, "", false);
    row("none and 0", nullptr, "0", false, "0", true);
    row("none and 1", nullptr, "1", false, "1", false);
    row("1 and 1", "1", "1", true, "1", true);
    row("2 and 2", "2", "2", true, "2", true);
    row("1 and 2", "1", "2", true, "2", false);
    row("0 and 0", "0", "0", false, "0", true);
    row("-1 and -1", "-1", "-1", true, "-1", true);
    row("as written", "3", "0003", true, "0003", true);
    row("text is 0", "yes", "0", false, "0", true);
    row("text is no 1", "true", "1", false, "1", false);
    row("text requires 1", "1", "any", true, "any", true);
    row("empty is 0", "", "0", false, "0", true);
    row("nothing required is 1", "1", "", true, "", true);
}

void tst_CalibrationTest::comparesFlags()
{
    QFETCH(QByteArray, info);
    QFETCH(QByteArray, check);
    QFETCH(bool, flag);
    QFETCH(QString, criteria);
    QFETCH(bool, ok);
    writeFile(SettingsFile,
              (info.isNull() ? QByteArray() : "[CalibrationInfo]\nFlag=" + info + "\n")
                  + (check.isNull() ? QByteArray() : "[CalibrationCheck]\nFlag=" + check + "\n"));
    const CalibrationTest test;
    QCOMPARE(test.calibrationFlag(), flag);
    QCOMPARE(test.calibrationFlagCriteria(), criteria);
    QCOMPARE(test.isCalibrationFlagOk(), ok);
}

void tst_CalibrationTest::matchesStrings_data()
{
    QTest::addColumn<QByteArray>("info");
    QTest::addColumn<QByteArray>("check");
    QTest::addColumn<QString>("criteria");
    QTest::addColumn<bool>("ok");
    const auto row = [](const char *tag, const char *info, const char *check, const char *criteria, bool ok) {
        QTest::newRow(tag) << QByteArray(info) << QByteArray(check) << QString::fromLatin1(criteria) << ok;
    };
    row("at the start", "ABC123", "^ABC", "^ABC", true);
    row("not at the start", "ABC123", "^123", "^123", false);
    row("anywhere", "ABC123", "123", "123", true);
    row("case", "ABC123", "abc", "abc", false);
    row("whole", "ABC123", "^[A-Z]+\\\\d{3}$", "^[A-Z]+\\d{3}$", true);
    row("not whole", "ABC1234", "^[A-Z]+\\\\d{3}$", "^[A-Z]+\\d{3}$", false);
    row("empty criteria", "ABC123", "", "", true);
    row("no criteria", "ABC123", nullptr, "", true);
    row("empty string", "", "", "", false);
    row("empty string, any", "", ".*", ".*", false);
    row("no string", nullptr, ".*", ".*", false);
    row("no string, no criteria", nullptr, nullptr, "", false);
    row("invalid expression", "ABC123", "(ABC", "(ABC", false);
    row("invalid everywhere", "ABC123", "[", "[", false);
    row("no options", "ABC123", "A B C", "A B C", false);
}

void tst_CalibrationTest::matchesStrings()
{
    QFETCH(QByteArray, info);
    QFETCH(QByteArray, check);
    QFETCH(QString, criteria);
    QFETCH(bool, ok);
    writeFile(SettingsFile,
              (info.isNull() ? QByteArray() : "[CalibrationInfo]\nString=" + info + "\n")
                  + (check.isNull() ? QByteArray() : "[CalibrationCheck]\nString=" + check + "\n"));
    const CalibrationTest test;
    QCOMPARE(test.calibrationString(), QString::fromLatin1(info));
    QCOMPARE(test.calibrationStringCriteria(), criteria);
    const MessageLog log;
    QCOMPARE(test.isCalibrationStringOk(), ok);
    QCOMPARE(log.all(), QStringList());
}

void tst_CalibrationTest::saysNothingOfItsOwn()
{
    {
        const MessageLog log;
        const CalibrationTest test;
        QVERIFY(!test.calibrationFlag());
        QVERIFY(!test.isCalibrationFlagOk());
        QVERIFY(!test.isCalibrationStringOk());
        QCOMPARE(log.all(), QStringList());
    }
    writeFile(SettingsFile, "[CalibrationInfo]\nFlag=2\n[CalibrationCheck]\nFlag=x\n");
    const CalibrationTest test;
    const MessageLog log;
    QVERIFY(!test.isCalibrationFlagOk());
    // What the look-ups of the settings say, in the order of the reading.
    QCOMPARE(log.all(),
             (QStringList{QStringLiteral("\"CalibrationInfo/Flag\" variable found, value: 2"),
                          QStringLiteral("\"CalibrationInfo/Flag\" variable valid: 2"),
                          QStringLiteral("\"CalibrationCheck/Flag\" variable found, value: 0")}));
}

void tst_CalibrationTest::ownsItsSettings()
{
    writeFile(SettingsFile, "[CalibrationInfo]\nFlag=1\n");
    QObject parent;
    const auto *const test = new CalibrationTest(&parent);
    QCOMPARE(test->parent(), &parent);
    QCOMPARE(test->children().size(), 1);
    QCOMPARE(QLatin1String(test->children().constFirst()->metaObject()->className()), QLatin1String("HwSettings"));
    // Read at construction, not when asked.
    writeFile(SettingsFile, "[CalibrationInfo]\nFlag=0\n");
    QVERIFY(test->calibrationFlag());
    const CalibrationTest later;
    QVERIFY(!later.calibrationFlag());
}

void tst_CalibrationTest::servesScripts()
{
    writeFile(SettingsFile, "[CalibrationInfo]\nFlag=1\nString=ABC\n[CalibrationCheck]\nString=B\n");
    CalibrationTest test;
    QQmlEngine engine;
    QQmlEngine::setObjectOwnership(&test, QQmlEngine::CppOwnership);
    engine.globalObject().setProperty(QStringLiteral("test"), engine.newQObject(&test));
    QCOMPARE(engine
                 .evaluate(QStringLiteral("[test.calibrationFlag, test.calibrationString, "
                                          "test.calibrationStringCriteria, test.calibrationFlagCriteria, "
                                          "test.isCalibrationFlagOk(), test.isCalibrationStringOk()].join()"))
                 .toString(),
             QStringLiteral("true,ABC,B,,true,true"));
}

QTEST_MAIN(tst_CalibrationTest)
#include "tst_calibrationtest.moc"
