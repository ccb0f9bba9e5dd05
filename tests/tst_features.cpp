// SPDX-License-Identifier: BSD-3-Clause
#include "features.h"
#include "files.h"
#include "messagelog.h"
#include "metaobject.h"
#include "privatebus.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QtTest>

#include <cstdio>

#include <unistd.h>

struct Modem
{
    QDBusObjectPath path;
    QVariantMap properties;
};
Q_DECLARE_METATYPE(Modem)

static QDBusArgument &operator<<(QDBusArgument &argument, const Modem &modem)
{
    argument.beginStructure();
    argument << modem.path << modem.properties;
    argument.endStructure();
    return argument;
}

static const QDBusArgument &operator>>(const QDBusArgument &argument, Modem &modem)
{
    argument.beginStructure();
    argument >> modem.path >> modem.properties;
    argument.endStructure();
    return argument;
}

namespace
{
using Table = QMap<QString, bool>;

const QString Installed = QStringLiteral("/usr/share/kiv/settings.d/");
const QString RunTime = QStringLiteral("/run/kiv/settings.d/");
const QString Tools = QStringLiteral("/run/kiv/bin/");
const QString Record = QStringLiteral("/run/kiv/record");
const QString Service = QStringLiteral("org.ofono");
const QString GetModems = QStringLiteral("GetModems");
const QString ProbeArgument = QStringLiteral("--probe");

const char NoInterface[] = "No ofono interface registered";
const char NoAnswer[] = "Failed to GetModems";
const char NoModems[] = "No modems found";

// How much later than its limit something may end on a busy machine; not so much that it could be waited for twice.
constexpr int Slack = 25000;

const QStringList BaseFeatures = {
    QStringLiteral("Battery"),
    QStringLiteral("Touch"),
    QStringLiteral("Wifi"),
    QStringLiteral("Bluetooth"),
    QStringLiteral("UsbCharging"),
    QStringLiteral("BackCamera"),
    QStringLiteral("FrontCamera"),
    QStringLiteral("BackCameraFlash"),
    QStringLiteral("FrontCameraFlash"),
    QStringLiteral("Headset"),
    QStringLiteral("Key"),
    QStringLiteral("LCD"),
    QStringLiteral("Backlight"),
    QStringLiteral("LED"),
    QStringLiteral("Loudspeaker"),
    QStringLiteral("Receiver"),
    QStringLiteral("ECompass"),
    QStringLiteral("GSensor"),
    QStringLiteral("Gyro"),
    QStringLiteral("LightSensor"),
    QStringLiteral("ProxSensor"),
    QStringLiteral("SDCard"),
    QStringLiteral("AudioMic1"),
    QStringLiteral("AudioMic2"),
    QStringLiteral("UsbOtg"),
};
const QStringList CellularFeatures = {QStringLiteral("SIM"), QStringLiteral("CellularVoice"),
                                      QStringLiteral("CellularData")};
const QStringList SystemFeatures = {QStringLiteral("VideoPlayback"), QStringLiteral("Suspend"),
                                    QStringLiteral("Reboot"), QStringLiteral("MacAddresses")};
const QStringList FactoryTests = {
    QStringLiteral("TouchSelfTest"),
    QStringLiteral("VerificationTouch"),
    QStringLiteral("VerificationMultiTouch"),
    QStringLiteral("VerificationLcd"),
    QStringLiteral("VerificationLcdBacklight"),
    QStringLiteral("VerificationLightSensor"),
    QStringLiteral("VerificationProxSensor"),
    QStringLiteral("VerificationGyroAndGSensor"),
    QStringLiteral("VerificationEcompass"),
    QStringLiteral("VerificationHallDetect"),
    QStringLiteral("VerificationFingerprint"),
    QStringLiteral("VerificationAudio1Mic"),
    QStringLiteral("VerificationAudio2Mic"),
    QStringLiteral("AudioPlayMusicLoudspeaker"),
    QStringLiteral("AudioPlayStereoLoudspeaker"),
    QStringLiteral("AudioPlayMusicReceiver"),
    QStringLiteral("VerificationHeadsetButtons"),
    QStringLiteral("VerificationHeadset"),
    QStringLiteral("AudioPlayMusicHeadset"),
    QStringLiteral("VerificationFrontCamera"),
    QStringLiteral("VerificationBackCamera"),
    QStringLiteral("VerificationWifi"),
    QStringLiteral("VerificationBluetooth"),
    QStringLiteral("VerificationZel"),
    QStringLiteral("VerificationGpsRadio"),
    QStringLiteral("VerificationFmRadio"),
    QStringLiteral("VerificationBattery"),
    QStringLiteral("VerificationUsbCharging"),
    QStringLiteral("VerificationLED"),
    QStringLiteral("VerificationButtonBacklight"),
    QStringLiteral("VerificationVibrator"),
    QStringLiteral("VerificationSim"),
    QStringLiteral("VerificationSdCard"),
    QStringLiteral("VerificationKey"),
    QStringLiteral("VerificationUsbOtg"),
};
const QStringList RunInTests = {
    QStringLiteral("VerificationLcdBacklight"),  QStringLiteral("VerificationBackCamera"),
    QStringLiteral("VerificationLcd"),           QStringLiteral("AudioPlayMusicLoudspeaker"),
    QStringLiteral("VerificationVideoPlayback"),
};

Table enabled(const QStringList &names)
{
    Table table;
    for (const QString &name : names)
        table.insert(name, true);
    return table;
}

/*! All that there is without settings, plus what was detected. */
Table featureTable(const QStringList &detected = {})
{
    Table table = enabled(BaseFeatures + SystemFeatures + detected);
    table.insert(QStringLiteral("Battery.VerificationBatteryResistance"), false);
    return table;
}

/*! What settings said, and what holds regardless. */
Table configuredFeatures(Table table)
{
    for (const QString &name : SystemFeatures)
        table.insert(name, true);
    const QString resistance = QStringLiteral("Battery.VerificationBatteryResistance");
    if (!table.contains(resistance))
        table.insert(resistance, false);
    return table;
}

Table testTable(Table table)
{
    const QString resistance = QStringLiteral("VerificationBatteryResistance");
    if (!table.contains(resistance))
        table.insert(resistance, false);
    return table;
}

QString line(const char *text, const Table &table)
{
    QString result;
    QDebug(&result) << text << table;
    return result.trimmed();
}

/*! The last three lines of every start. */
QStringList tableLines(const Table &features, const Table &factoryTests = testTable(enabled(FactoryTests)),
                       const Table &runInTests = testTable(enabled(RunInTests)))
{
    return {line("Supported hardware features:", features), line("Enabled factory tests:", factoryTests),
            line("Enabled run-in tests:", runInTests)};
}

/*! Creates Features in a process of its own, with the test's tools first in PATH; log() is what it logged. */
class Probe
{
public:
    explicit Probe(const QString &pluginFolder = QString(), const QString &tools = Tools)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        // Without the folders where a real modprobe may stand.
        environment.insert(QStringLiteral("PATH"), tools + QStringLiteral(":/usr/bin:/bin"));
        if (!pluginFolder.isEmpty())
            environment.insert(QStringLiteral("QT_PLUGIN_PATH"), pluginFolder);
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_elapsed.start();
        m_process.start(QCoreApplication::applicationFilePath(), {ProbeArgument});
    }

    bool wait(int timeout = 30000)
    {
        // The daemon it asks may live in this process.
        return QTest::qWaitFor([this] { return m_process.state() == QProcess::NotRunning; }, timeout)
            && m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
    }
    qint64 elapsed() const { return m_elapsed.elapsed(); }

    QStringList log()
    {
        QStringList lines = QString::fromUtf8(m_process.readAllStandardOutput()).split(QLatin1Char('\n'));
        lines.removeLast();
        return lines;
    }

private:
    QProcess m_process;
    QElapsedTimer m_elapsed;
};

/*! The telephony daemon as far as the probe sees it. */
class FakeOfono : public FakeDaemon
{
public:
    explicit FakeOfono(const PrivateBus &bus) : FakeDaemon(bus.address(), Service) { }
    FakeOfono(const PrivateBus &bus, const QVariantList &modems) : FakeOfono(bus) { answer(GetModems, modems); }
};

QVariant modems(int count)
{
    QDBusArgument list;
    list.beginArray(qMetaTypeId<Modem>());
    for (int i = 0; i < count; ++i) {
        list << Modem{QDBusObjectPath(QStringLiteral("/ril_%1").arg(i)),
                      {{QStringLiteral("Online"), true},
                       {QStringLiteral("Interfaces"), QStringList{QStringLiteral("org.ofono.SimManager")}}}};
    }
    list.endArray();
    return QVariant::fromValue(list);
}

/*! A tool that writes its name and arguments down and then does the rest. */
void writeTool(const char *name, const QByteArray &rest, const QString &folder = Tools)
{
    writeScript(folder + QLatin1String(name), QByteArray("echo ") + name + " \"$@\" >> /run/kiv/record\n" + rest);
}

QStringList recorded()
{
    return QString::fromUtf8(readFile(Record)).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

/*! Everything that detection can find, but for modem and vibrator. */
void equipPhone()
{
    writeTool("modprobe", "exit 0\n");
    writeTool("getprop", "[ \"$1\" = ro.hardware ] && echo qcom\n");
    writeFile(QStringLiteral("/usr/lib/zeld"), "");
    writeFile(QStringLiteral("/proc/touchinfo/tp_chip"), "");
    writeFile(QStringLiteral("/proc/irq/396/sensor_hall"), "");
    QDir().mkpath(QStringLiteral("/var/lib/kestrane-fpd"));
    writeFile(QStringLiteral("/system/lib/hw/gps.qcom.so"), "");
}

void removeAnything(const QString &path)
{
    const QFileInfo entry(path);
    if (entry.isDir() && !entry.isSymLink())
        QDir(path).removeRecursively();
    else
        QFile::remove(path);
}
}

class tst_Features : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void interface();
    void testModes();

    void bareDevice();
    void fullDevice();

    void findsFmRadio_data();
    void findsFmRadio();
    void findsFiles_data();
    void findsFiles();
    void findsVibrator();
    void findsGps_data();
    void findsGps();
    void looksForGpsInOrder();

    void asksForModems_data();
    void asksForModems();
    void survivesFailingOfono_data();
    void survivesFailingOfono();
    void neverActivatesOfono();
    void givesUpWhatHangs();

    void settingsReplaceDetection();
    void readsValues_data();
    void readsValues();
    void emptyGroupIsNoSetting_data();
    void emptyGroupIsNoSetting();
    void mergesFiles();
    void presetsAreOff();
    void systemFeaturesCannotBeSwitchedOff();
    void sequencesComeFromTheirFiles();

    void answersQueries();
    void servesScripts();
};

void tst_Features::initTestCase()
{
    qDBusRegisterMetaType<Modem>();
}

void tst_Features::init()
{
    emptyFolder(QStringLiteral("/usr/share/kiv"));
    emptyFolder(QStringLiteral("/run/kiv"));
    emptyFolder(QStringLiteral("/run/dbus"));
    emptyFolder(QStringLiteral("/system/lib/hw"));
    emptyFolder(QStringLiteral("/proc/irq"));
    const QString others[] = {QStringLiteral("/usr/lib/zeld"), QStringLiteral("/proc/touchinfo"),
                              QStringLiteral("/var/lib/kestrane-fpd")};
    for (const QString &path : others)
        removeAnything(path);
    // Where the bus of the last test was.
    qunsetenv("DBUS_SYSTEM_BUS_ADDRESS");
    // What this process finds in PATH when it creates Features itself.
    QDir().mkpath(Tools);
    qputenv("PATH", "/run/kiv/bin:/usr/bin:/bin");
}

void tst_Features::cleanup()
{
    if (QTest::currentTestFailed())
        qWarning() << "The tools ran as" << recorded();
}

void tst_Features::interface()
{
    const QStringList expected = {
        QStringLiteral("enum TestMode: FactoryTests=0, RunInTests=1, AllTests=2"),
        QStringLiteral("invokable bool supported(QString,QString)"),
        QStringLiteral("invokable bool supported(QString)"),
        QStringLiteral("invokable bool factoryTestEnabled(QString)"),
        QStringLiteral("invokable bool runInTestEnabled(QString)"),
    };
    QCOMPARE(ownInterface(Features::staticMetaObject), expected);
}

void tst_Features::testModes()
{
    QCOMPARE(int(Features::FactoryTests), 0);
    QCOMPARE(int(Features::RunInTests), 1);
    QCOMPARE(int(Features::AllTests), 2);
}

void tst_Features::bareDevice()
{
    Probe probe;
    QVERIFY(probe.wait());
    QCOMPARE(probe.log(), QStringList{QLatin1String(NoInterface)} + tableLines(featureTable()));
}

void tst_Features::fullDevice()
{
    equipPhone();
    const PrivateBus bus(PrivateBus::System);
    const FakeOfono ofono(bus, {modems(1)});
    Probe probe(QStringLiteral(KIV_TEST_PLUGINS));
    QVERIFY(probe.wait());
    QCOMPARE(probe.log(),
             tableLines(featureTable(CellularFeatures
                                     + QStringList{QStringLiteral("FmRadio"), QStringLiteral("ZEL"),
                                                   QStringLiteral("Vibrator"), QStringLiteral("TouchAuto"),
                                                   QStringLiteral("Hall"), QStringLiteral("Fingerprint"),
                                                   QStringLiteral("GPS")})));
}

void tst_Features::findsFmRadio_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<bool>("found");
    QTest::newRow("module") << QByteArray("exit 0\n") << true;
    QTest::newRow("module, with output") << QByteArray("echo insmod radio; echo warning >&2; exit 0\n") << true;
    QTest::newRow("no module") << QByteArray("echo not found >&2; exit 1\n") << false;
    QTest::newRow("another status") << QByteArray("exit 255\n") << false;
    QTest::newRow("killed") << QByteArray("kill -9 $$\n") << false;
}

void tst_Features::findsFmRadio()
{
    QFETCH(QByteArray, script);
    QFETCH(bool, found);
    writeTool("modprobe", script);
    Probe probe;
    QVERIFY(probe.wait());
    QCOMPARE(recorded(), QStringList{QStringLiteral("modprobe -n radio-iris-transport")});
    const QStringList detected = found ? QStringList{QStringLiteral("FmRadio")} : QStringList();
    QCOMPARE(probe.log(), QStringList{QLatin1String(NoInterface)} + tableLines(featureTable(detected)));
}

void tst_Features::findsFiles_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("feature");
    const auto row = [](const char *tag, const char *path, const char *kind, const char *feature) {
        QTest::newRow(tag) << QString::fromLatin1(path) << QString::fromLatin1(kind) << QString::fromLatin1(feature);
    };
    row("smart cover", "/usr/lib/zeld", "file", "ZEL");
    row("smart cover link", "/usr/lib/zeld", "link", "ZEL");
    row("smart cover dangling link", "/usr/lib/zeld", "dangling", "");
    row("smart cover folder", "/usr/lib/zeld", "folder", "");
    row("touch", "/proc/touchinfo/tp_chip", "file", "TouchAuto");
    row("touch folder", "/proc/touchinfo/tp_chip", "folder", "");
    row("touch parent", "/proc/touchinfo", "folder", "");
    row("hall", "/proc/irq/396/sensor_hall", "file", "Hall");
    row("hall folder", "/proc/irq/396/sensor_hall", "folder", "");
    row("another interrupt", "/proc/irq/395/sensor_hall", "file", "");
    row("fingerprint", "/var/lib/kestrane-fpd", "folder", "Fingerprint");
    row("fingerprint file", "/var/lib/kestrane-fpd", "file", "Fingerprint");
    row("fingerprint link", "/var/lib/kestrane-fpd", "link", "Fingerprint");
    row("fingerprint dangling link", "/var/lib/kestrane-fpd", "dangling", "");
}

void tst_Features::findsFiles()
{
    QFETCH(QString, path);
    QFETCH(QString, kind);
    QFETCH(QString, feature);
    QDir().mkpath(QFileInfo(path).path());
    if (kind == QLatin1String("file")) {
        writeFile(path, "");
    } else if (kind == QLatin1String("folder")) {
        QVERIFY(QDir().mkpath(path));
    } else if (kind == QLatin1String("link")) {
        writeFile(QStringLiteral("/run/kiv/there"), "");
        QVERIFY(QFile::link(QStringLiteral("/run/kiv/there"), path));
    } else {
        QVERIFY(QFile::link(QStringLiteral("/run/kiv/nowhere"), path));
    }
    Probe probe;
    QVERIFY(probe.wait());
    const QStringList detected = feature.isEmpty() ? QStringList() : QStringList{feature};
    QCOMPARE(probe.log(), QStringList{QLatin1String(NoInterface)} + tableLines(featureTable(detected)));
}

void tst_Features::findsVibrator()
{
    Probe probe(QStringLiteral(KIV_TEST_PLUGINS));
    QVERIFY(probe.wait());
    QCOMPARE(probe.log(),
             QStringList{QLatin1String(NoInterface)} + tableLines(featureTable({QStringLiteral("Vibrator")})));
}

void tst_Features::findsGps_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QStringList>("libraries");
    QTest::addColumn<bool>("found");
    QTest::addColumn<int>("asked");
    const QStringList qcom = {QStringLiteral("gps.qcom.so")};
    const QStringList fallback = {QStringLiteral("gps.default.so")};

    const auto row = [](const char *tag, const char *script, const QStringList &libraries, bool found, int asked) {
        QTest::newRow(tag) << QByteArray(script) << libraries << found << asked;
    };
    row("first property", "[ $1 = ro.hardware ] && echo qcom\n", qcom, true, 1);
    row("second property", "[ $1 = ro.product.board ] && echo qcom\n", qcom, true, 2);
    row("third property", "[ $1 = ro.board.platform ] && echo qcom\n", qcom, true, 3);
    row("fourth property", "[ $1 = ro.arch ] && echo qcom\n", qcom, true, 4);
    row("another property", "[ $1 = ro.chip ] && echo qcom\n", qcom, false, 4);
    row("default", "echo qcom\n", fallback, true, 4);
    row("no property, default", "", fallback, true, 4);
    row("blanks around", "printf ' \\t qcom \\r\\n\\n'\n", qcom, true, 1);
    row("no newline", "printf qcom\n", qcom, true, 1);
    row("blanks only", "printf ' \\n'\n", {QStringLiteral("gps. .so"), QStringLiteral("gps..so")}, false, 4);
    row("errors are no value", "echo qcom >&2\n", qcom, false, 4);
    row("value of a failing tool", "echo qcom; exit 1\n", qcom, true, 1);
    row("nothing of a failing tool", "exit 1\n", qcom, false, 4);
    row("another library", "echo qcom\n", {QStringLiteral("gps.msm8974.so"), QStringLiteral("camera.qcom.so")}, false,
        4);
    row("another case", "echo QCOM\n", qcom, false, 4);
    row("percent", "echo %1\n", {QStringLiteral("gps.%1.so")}, true, 1);
    row("UTF-8", "printf '\\303\\251\\n'\n", {QStringLiteral("gps.\u00e9.so")}, true, 1);
    row("noise", "head -c 300000 /dev/urandom\n", qcom, false, 4);
    row("NUL", "head -c 100 /dev/zero\n", qcom, false, 4);
    row("folder", "echo qcom\n", {QStringLiteral("gps.qcom.so/")}, false, 4);
    QTest::newRow("no tool") << QByteArray() << qcom << false << 0;
    QTest::newRow("no tool, default") << QByteArray() << fallback << true << 0;
}

void tst_Features::findsGps()
{
    QFETCH(QByteArray, script);
    QFETCH(QStringList, libraries);
    QFETCH(bool, found);
    QFETCH(int, asked);
    if (!script.isNull())
        writeTool("getprop", script);
    for (const QString &library : qAsConst(libraries)) {
        const QString path = QStringLiteral("/system/lib/hw/") + library;
        if (path.endsWith(QLatin1Char('/')))
            QDir().mkpath(path);
        else
            writeFile(path, "");
    }
    Probe probe;
    QVERIFY(probe.wait());
    const QStringList detected = found ? QStringList{QStringLiteral("GPS")} : QStringList();
    QCOMPARE(probe.log(), QStringList{QLatin1String(NoInterface)} + tableLines(featureTable(detected)));
    const QStringList properties = {QStringLiteral("getprop ro.hardware"), QStringLiteral("getprop ro.product.board"),
                                    QStringLiteral("getprop ro.board.platform"), QStringLiteral("getprop ro.arch")};
    QCOMPARE(recorded(), properties.mid(0, asked));
}

void tst_Features::looksForGpsInOrder()
{
    // A library for the last property does not keep the earlier ones from being asked, and one match is enough.
    writeTool("getprop", "case $1 in ro.hardware) echo a;; ro.product.board) echo b;; *) echo c;; esac\n");
    writeFile(QStringLiteral("/system/lib/hw/gps.b.so"), "");
    writeFile(QStringLiteral("/system/lib/hw/gps.c.so"), "");
    writeFile(QStringLiteral("/system/lib/hw/gps.default.so"), "");
    Probe probe;
    QVERIFY(probe.wait());
    QCOMPARE(recorded(),
             (QStringList{QStringLiteral("getprop ro.hardware"), QStringLiteral("getprop ro.product.board")}));
}

void tst_Features::asksForModems_data()
{
    QTest::addColumn<QVariantList>("answer");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *tag, const QVariantList &answer, const char *message) {
        QTest::newRow(tag) << answer << QString::fromLatin1(message);
    };
    row("one modem", {modems(1)}, "");
    row("two modems", {modems(2)}, "");
    row("one modem and more", {modems(1), 7}, "");
    row("no modem", {modems(0)}, NoModems);
    row("no modem and more", {modems(0), modems(1)}, NoModems);
    // What no daemon should answer.
    row("nothing", {}, NoAnswer);
    row("text", {QStringLiteral("/ril_0")}, NoAnswer);
    row("number", {1}, NoAnswer);
    row("true", {true}, NoAnswer);
    row("map", {QVariantMap{{QStringLiteral("/ril_0"), true}}}, NoAnswer);
    row("texts", {QStringList{QStringLiteral("/ril_0")}}, NoAnswer);
    row("no texts", {QStringList()}, NoAnswer);
    row("bytes", {QByteArray("/ril_0")}, NoAnswer);
    row("paths", {QVariant::fromValue(QList<QDBusObjectPath>{QDBusObjectPath(QStringLiteral("/ril_0"))})}, NoAnswer);
    row("variants", {QVariant(QVariantList{1, 2})}, NoAnswer);
    row("one structure", {QVariant::fromValue(Modem{QDBusObjectPath(QStringLiteral("/ril_0")), {}})}, NoAnswer);
    row("variant", {QVariant::fromValue(QDBusVariant(modems(1)))}, NoAnswer);
    row("modems second", {1, modems(1)}, NoAnswer);
}

void tst_Features::asksForModems()
{
    QFETCH(QVariantList, answer);
    QFETCH(QString, message);
    const PrivateBus bus(PrivateBus::System);
    const FakeOfono ofono(bus, answer);
    Probe probe;
    QVERIFY(probe.wait());
    const QStringList detected = message.isEmpty() ? CellularFeatures : QStringList();
    const QStringList first = message.isEmpty() ? QStringList() : QStringList{message};
    QCOMPARE(probe.log(), first + tableLines(featureTable(detected)));

    const QList<QDBusMessage> calls = ofono.calls();
    QCOMPARE(calls.size(), 1);
    QCOMPARE(calls.constFirst().path(), QStringLiteral("/"));
    QCOMPARE(calls.constFirst().interface(), QStringLiteral("org.ofono.Manager"));
    QCOMPARE(calls.constFirst().member(), GetModems);
    QCOMPARE(calls.constFirst().signature(), QString());
}

void tst_Features::survivesFailingOfono_data()
{
    QTest::addColumn<QString>("failure");
    QTest::newRow("error") << QStringLiteral("org.ofono.Error.Failed");
    QTest::newRow("error that the bus has, too") << QStringLiteral("org.freedesktop.DBus.Error.ServiceUnknown");
    QTest::newRow("unknown method") << QStringLiteral("unknown");
    QTest::newRow("death before the answer") << QStringLiteral("death");
    QTest::newRow("end of the bus before the answer") << QStringLiteral("bus");
}

void tst_Features::survivesFailingOfono()
{
    QFETCH(QString, failure);
    PrivateBus bus(PrivateBus::System);
    FakeOfono ofono(bus);
    if (failure.startsWith(QLatin1String("org.")))
        ofono.answerWithError(GetModems, failure, QStringLiteral("Failed"));
    else if (failure != QLatin1String("unknown"))
        ofono.hold(GetModems);
    Probe probe;
    QTRY_COMPARE_WITH_TIMEOUT(ofono.calls().size(), 1, 30000);
    if (failure == QLatin1String("death"))
        ofono.die();
    else if (failure == QLatin1String("bus"))
        bus.kill();
    QVERIFY(probe.wait());
    QCOMPARE(probe.log(), QStringList{QLatin1String(NoAnswer)} + tableLines(featureTable()));
}

void tst_Features::neverActivatesOfono()
{
    PrivateBus bus(PrivateBus::System);
    QVERIFY(bus.makeStartable(Service));
    Probe probe;
    QVERIFY(probe.wait());
    QCOMPARE(probe.log(), QStringList{QLatin1String(NoInterface)} + tableLines(featureTable()));
    QVERIFY(!bus.hasStarted(Service));

    // It could have been started.
    const QString name = QStringLiteral("caller");
    QDBusConnection::connectToBus(bus.address(), name)
        .call(QDBusMessage::createMethodCall(Service, QStringLiteral("/"), QStringLiteral("org.ofono.Manager"),
                                             GetModems));
    QDBusConnection::disconnectFromBus(name);
    QVERIFY(bus.hasStarted(Service));
}

void tst_Features::givesUpWhatHangs()
{
    // All at once, for each takes its time. The first two have no bus.
    writeFile(QStringLiteral("/system/lib/hw/gps.qcom.so"), "");

    const QString slowModprobe = QStringLiteral("/run/kiv/slow-modprobe/");
    writeScript(slowModprobe + QStringLiteral("modprobe"), "exec sleep 300\n");
    writeScript(slowModprobe + QStringLiteral("getprop"), "echo qcom\n");
    Probe hangingModprobe(QString(), slowModprobe);

    const QString slowGetprop = QStringLiteral("/run/kiv/slow-getprop/");
    writeScript(slowGetprop + QStringLiteral("getprop"),
                "[ $1 = ro.arch ] && echo qcom && exit\n"
                "[ $1 = ro.hardware ] && exec sleep 300\n");
    Probe hangingGetprop(QString(), slowGetprop);

    const PrivateBus bus(PrivateBus::System);
    FakeOfono ofono(bus);
    ofono.hold(GetModems);
    Probe silentOfono;

    constexpr int CallTimeout = 25000;
    constexpr int ToolTimeout = 30000;
    QVERIFY(silentOfono.wait(CallTimeout + Slack));
    // The D-Bus library's timer may run a twentieth fast.
    QVERIFY(silentOfono.elapsed() >= CallTimeout * 9 / 10);
    QCOMPARE(silentOfono.log(), QStringList{QLatin1String(NoAnswer)} + tableLines(featureTable()));

    const QStringList gpsOnly =
        QStringList{QLatin1String(NoInterface)} + tableLines(featureTable({QStringLiteral("GPS")}));
    QVERIFY(hangingModprobe.wait(ToolTimeout + Slack));
    QVERIFY(hangingModprobe.elapsed() >= ToolTimeout);
    QCOMPARE(hangingModprobe.log(), gpsOnly);
    QVERIFY(hangingGetprop.wait(ToolTimeout + Slack));
    QVERIFY(hangingGetprop.elapsed() >= ToolTimeout);
    QCOMPARE(hangingGetprop.log(), gpsOnly);
}

void tst_Features::settingsReplaceDetection()
{
    equipPhone();
    writeFile(Installed + QStringLiteral("10-hw-settings.ini"), "[features]\nHall=true\nWifi=false\n");
    const PrivateBus bus(PrivateBus::System);
    const FakeOfono ofono(bus, {modems(1)});
    Probe probe(QStringLiteral(KIV_TEST_PLUGINS));
    QVERIFY(probe.wait());
    const Table features = configuredFeatures({{QStringLiteral("Hall"), true}, {QStringLiteral("Wifi"), false}});
    QCOMPARE(probe.log(),
             QStringList{QStringLiteral("Load settings from \"10-hw-settings.ini\"")} + tableLines(features));
    QCOMPARE(recorded(), QStringList());
    QVERIFY(ofono.calls().isEmpty());
}

void tst_Features::readsValues_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("value");
    QTest::newRow("true") << QByteArray("true") << true;
    QTest::newRow("false") << QByteArray("false") << false;
    QTest::newRow("True") << QByteArray("True") << true;
    QTest::newRow("FALSE") << QByteArray("FALSE") << false;
    QTest::newRow("quoted") << QByteArray("\"true\"") << true;
    QTest::newRow("1") << QByteArray("1") << true;
    QTest::newRow("0") << QByteArray("0") << false;
    QTest::newRow("another number") << QByteArray("2") << true;
    QTest::newRow("missing") << QByteArray("") << false;
    QTest::newRow("unknown") << QByteArray("perhaps") << false;
    QTest::newRow("list") << QByteArray("true, true") << false;
    QTest::newRow("invalid") << QByteArray("@Invalid()") << false;
    QTest::newRow("more than true") << QByteArray("true story") << false;
}

void tst_Features::readsValues()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, value);
    writeFile(Installed + QStringLiteral("hw-settings.ini"), "[features]\nHall=" + text + "\n");
    writeFile(Installed + QStringLiteral("factory-tests.ini"), "[tests]\nVerificationTouch=" + text + "\n");
    writeFile(Installed + QStringLiteral("run-in-tests.ini"), "[tests]\nVerificationLcd=" + text + "\n");
    const MessageLog log;
    const Features features;
    QCOMPARE(log.all(),
             (QStringList{QStringLiteral("Load settings from \"hw-settings.ini\""),
                          QStringLiteral("Load settings from \"factory-tests.ini\""),
                          QStringLiteral("Load settings from \"run-in-tests.ini\"")}
              + tableLines(configuredFeatures({{QStringLiteral("Hall"), value}}),
                           testTable({{QStringLiteral("VerificationTouch"), value}}),
                           testTable({{QStringLiteral("VerificationLcd"), value}}))));
    QCOMPARE(log.debugs(), log.all());
    QCOMPARE(features.supported(QStringLiteral("Hall")), value);
    QCOMPARE(features.factoryTestEnabled(QStringLiteral("VerificationTouch")), value);
    QCOMPARE(features.runInTestEnabled(QStringLiteral("VerificationLcd")), value);
}

void tst_Features::emptyGroupIsNoSetting_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty file") << QByteArray("");
    QTest::newRow("other groups") << QByteArray("[SIM]\nModemCount=2\n[Features]\nHall=true\n[Tests]\nA=true\n");
    QTest::newRow("empty groups") << QByteArray("[features]\n[tests]\n");
    QTest::newRow("top level") << QByteArray("features=true\ntests=true\nHall=true\n");
    QTest::newRow("keys of deeper groups") << QByteArray("[features/more]\nHall=true\n[tests/more]\nA=true\n");
}

void tst_Features::emptyGroupIsNoSetting()
{
    QFETCH(QByteArray, content);
    writeFile(Installed + QStringLiteral("hw-settings.ini"), content);
    writeFile(Installed + QStringLiteral("factory-tests.ini"), content);
    writeFile(Installed + QStringLiteral("run-in-tests.ini"), content);
    Probe probe;
    QVERIFY(probe.wait());
    QCOMPARE(probe.log(),
             (QStringList{QStringLiteral("Load settings from \"hw-settings.ini\""), QLatin1String(NoInterface),
                          QStringLiteral("Load settings from \"factory-tests.ini\""),
                          QStringLiteral("Load settings from \"run-in-tests.ini\"")}
              + tableLines(featureTable())));
}

void tst_Features::mergesFiles()
{
    writeFile(Installed + QStringLiteral("10-hw-settings.ini"), "[features]\nHall=true\nGyro=true\nLED/Red=true\n");
    writeFile(RunTime + QStringLiteral("10-hw-settings.ini"), "[features]\nGyro=false\n");
    const MessageLog log;
    const Features features;
    QVERIFY(features.supported(QStringLiteral("Hall")));
    QVERIFY(!features.supported(QStringLiteral("Gyro")));
    QVERIFY(log.all().contains(
        line("Supported hardware features:",
             configuredFeatures({{QStringLiteral("Hall"), true}, {QStringLiteral("Gyro"), false}}))));
}

void tst_Features::presetsAreOff()
{
    const QString test = QStringLiteral("VerificationBatteryResistance");
    const QString battery = QStringLiteral("Battery");
    {
        const MessageLog log;
        const Features detected;
        QVERIFY(detected.supported(battery));
        QVERIFY(!detected.supported(battery, test));
        QVERIFY(!detected.factoryTestEnabled(test));
        QVERIFY(!detected.runInTestEnabled(test));
    }
    writeFile(Installed + QStringLiteral("hw-settings.ini"), "[features]\nBattery=true\n");
    writeFile(Installed + QStringLiteral("factory-tests.ini"), "[tests]\nVerificationTouch=true\n");
    writeFile(Installed + QStringLiteral("run-in-tests.ini"), "[tests]\nVerificationTouch=true\n");
    {
        const MessageLog log;
        const Features configured;
        QVERIFY(configured.supported(battery));
        QVERIFY(!configured.supported(battery, test));
        QVERIFY(!configured.factoryTestEnabled(test));
        QVERIFY(!configured.runInTestEnabled(test));
    }
    writeFile(RunTime + QStringLiteral("hw-settings.ini"), "[features]\nBattery.VerificationBatteryResistance=true\n");
    writeFile(RunTime + QStringLiteral("factory-tests.ini"), "[tests]\nVerificationBatteryResistance=true\n");
    writeFile(RunTime + QStringLiteral("run-in-tests.ini"), "[tests]\nVerificationBatteryResistance=true\n");
    const MessageLog log;
    const Features switchedOn;
    QVERIFY(switchedOn.supported(battery, test));
    QVERIFY(switchedOn.factoryTestEnabled(test));
    QVERIFY(switchedOn.runInTestEnabled(test));
}

void tst_Features::systemFeaturesCannotBeSwitchedOff()
{
    writeFile(Installed + QStringLiteral("hw-settings.ini"),
              "[features]\nVideoPlayback=false\nSuspend=false\nReboot=false\nMacAddresses=false\nHall=true\n");
    const MessageLog log;
    const Features features;
    for (const QString &name : SystemFeatures)
        QVERIFY2(features.supported(name), qPrintable(name));
    QVERIFY(!features.supported(QStringLiteral("Wifi")));
}

void tst_Features::sequencesComeFromTheirFiles()
{
    writeFile(Installed + QStringLiteral("50-factory-tests.ini"),
              "[tests]\nVerificationTouch=true\n[features]\nHall=true\n");
    {
        Probe probe;
        QVERIFY(probe.wait());
        QCOMPARE(probe.log(),
                 (QStringList{QLatin1String(NoInterface), QStringLiteral("Load settings from \"50-factory-tests.ini\"")}
                  + tableLines(featureTable(), testTable({{QStringLiteral("VerificationTouch"), true}}))));
    }
    emptyFolder(QStringLiteral("/usr/share/kiv"));
    writeFile(Installed + QStringLiteral("50-run-in-tests.ini"), "[tests]\nVerificationTouch=true\n");
    {
        Probe probe;
        QVERIFY(probe.wait());
        QCOMPARE(probe.log(),
                 (QStringList{QLatin1String(NoInterface), QStringLiteral("Load settings from \"50-run-in-tests.ini\"")}
                  + tableLines(featureTable(), testTable(enabled(FactoryTests)),
                               testTable({{QStringLiteral("VerificationTouch"), true}}))));
    }
    // The groups of the other files mean nothing.
    emptyFolder(QStringLiteral("/usr/share/kiv"));
    writeFile(Installed + QStringLiteral("hw-settings.ini"), "[tests]\nVerificationTouch=true\n");
    Probe probe;
    QVERIFY(probe.wait());
    QCOMPARE(probe.log(),
             (QStringList{QStringLiteral("Load settings from \"hw-settings.ini\""), QLatin1String(NoInterface)}
              + tableLines(featureTable())));
}

void tst_Features::answersQueries()
{
    writeFile(Installed + QStringLiteral("hw-settings.ini"),
              "[features]\nGyro=true\nLED=true\nLED.VerificationLED=false\nKey=false\nKey.VerificationKey=true\n"
              "Only.VerificationOnly=true\nGPS.=true\n");
    const MessageLog log;
    const Features features;
    const auto supported = [&features](const char *feature, const char *test) {
        return features.supported(QLatin1String(feature), QLatin1String(test));
    };
    QVERIFY(supported("Gyro", ""));
    QVERIFY(supported("Gyro", "VerificationGyroAndGSensor"));
    QVERIFY(supported("LED", ""));
    QVERIFY(supported("LED", "VerificationOther"));
    QVERIFY(!supported("LED", "VerificationLED"));
    QVERIFY(!supported("Key", ""));
    QVERIFY(supported("Key", "VerificationKey"));
    QVERIFY(!supported("Only", ""));
    QVERIFY(supported("Only", "VerificationOnly"));
    QVERIFY(supported("LED.VerificationOther", "") == false);
    QVERIFY(supported("Key.VerificationKey", ""));
    QVERIFY(!supported("GPS", ""));
    QVERIFY(!supported("gyro", ""));
    QVERIFY(!supported("", ""));
    QVERIFY(!supported("", "Gyro"));
    QVERIFY(!supported("Unknown", "VerificationLED"));
    QVERIFY(features.supported(QStringLiteral("Gyro")));

    QVERIFY(features.factoryTestEnabled(QStringLiteral("VerificationZel")));
    QVERIFY(!features.factoryTestEnabled(QStringLiteral("VerificationVideoPlayback")));
    QVERIFY(!features.factoryTestEnabled(QStringLiteral("verificationzel")));
    QVERIFY(!features.factoryTestEnabled(QString()));
    QVERIFY(features.runInTestEnabled(QStringLiteral("VerificationVideoPlayback")));
    QVERIFY(!features.runInTestEnabled(QStringLiteral("VerificationTouch")));
    QVERIFY(!features.runInTestEnabled(QString()));

    // Nothing of what was asked for has come into the tables.
    QVERIFY(log.all().contains(line("Enabled run-in tests:", testTable(enabled(RunInTests)))));
    QVERIFY(!supported("Unknown", ""));
}

void tst_Features::servesScripts()
{
    writeFile(Installed + QStringLiteral("hw-settings.ini"), "[features]\nLED=true\nLED.VerificationLED=false\n");
    const MessageLog log;
    Features features;
    QQmlEngine engine;
    QQmlEngine::setObjectOwnership(&features, QQmlEngine::CppOwnership);
    engine.globalObject().setProperty(QStringLiteral("features"), engine.newQObject(&features));
    const auto evaluate = [&engine](const char *script) {
        return engine.evaluate(QString::fromLatin1(script)).toVariant();
    };
    QCOMPARE(evaluate("features.supported('LED')"), QVariant(true));
    QCOMPARE(evaluate("features.supported('LED', 'VerificationLED')"), QVariant(false));
    QCOMPARE(evaluate("features.supported('LED', '')"), QVariant(true));
    QCOMPARE(evaluate("features.factoryTestEnabled('VerificationLED')"), QVariant(true));
    QCOMPARE(evaluate("features.runInTestEnabled('VerificationLED')"), QVariant(false));
}

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    if (QCoreApplication::arguments().contains(ProbeArgument)) {
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
            std::fprintf(type == QtDebugMsg ? stdout : stderr, "%s\n", qPrintable(text));
            // Anything but a debug message fails the probe.
            if (type != QtDebugMsg)
                ::_exit(1);
        });
        const Features features;
        std::fflush(stdout);
        return 0;
    }
    tst_Features test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_features.moc"
