// SPDX-License-Identifier: BSD-3-Clause
#include "headsetdetect.h"

#include "inputdevice.h"
#include "messagelog.h"
#include "metaobject.h"
#include "ordinaryuser.h"

#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QSocketNotifier>
#include <QTest>

#include <cerrno>
#include <functional>
#include <memory>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
const QByteArray Report = inputRecord(EV_SYN, SYN_REPORT, 0);

InputDevice jack(const char *node, bool headphone = false, bool microphone = false)
{
    InputDevice device(node);
    device.add(EV_SW, {SW_HEADPHONE_INSERT, SW_MICROPHONE_INSERT});
    device.preset(EV_SW, SW_HEADPHONE_INSERT, headphone).preset(EV_SW, SW_MICROPHONE_INSERT, microphone).publish();
    return device;
}

InputDevice buttons(const char *node)
{
    InputDevice device(node);
    device.add(EV_KEY, {KEY_MEDIA, KEY_VOLUMEUP, BTN_MISC, BTN_1, KEY_PLAYPAUSE}).publish();
    return device;
}

QByteArray headphone(int value)
{
    return inputRecord(EV_SW, SW_HEADPHONE_INSERT, value);
}

QByteArray microphone(int value)
{
    return inputRecord(EV_SW, SW_MICROPHONE_INSERT, value);
}

QByteArray key(int code, int value)
{
    return inputRecord(EV_KEY, code, value);
}

/*! Shows the debug messages of the class while it exists. */
class DebugShown
{
public:
    DebugShown() { QLoggingCategory::setFilterRules(QStringLiteral("com.orvel.kiv.headsetdetect.debug=true")); }
    ~DebugShown() { QLoggingCategory::setFilterRules(QString()); }
};

/*! Writes down the names of the change signals in the order in which they come. */
QStringList *recordSignals(HeadsetDetect *detect, QStringList *names)
{
    QObject::connect(detect, &HeadsetDetect::headphoneInsertedChanged, detect,
                     [names] { *names << QStringLiteral("headphone"); });
    QObject::connect(detect, &HeadsetDetect::microphoneInsertedChanged, detect,
                     [names] { *names << QStringLiteral("microphone"); });
    QObject::connect(detect, &HeadsetDetect::headsetInsertedChanged, detect,
                     [names] { *names << QStringLiteral("headset"); });
    QObject::connect(detect, &HeadsetDetect::buttonsPressedChanged, detect,
                     [names] { *names << QStringLiteral("buttons"); });
    return names;
}

/*! The state of the jack as the three properties tell it: at most one of 1 headphone, 2 microphone, 3 headset. */
int jackState(const HeadsetDetect &detect)
{
    int state = 0;
    int set = 0;
    const bool values[] = {detect.headphoneInserted(), detect.microphoneInserted(), detect.headsetInserted()};
    const char *const names[] = {"headphoneInserted", "microphoneInserted", "headsetInserted"};
    for (int i = 0; i < 3; ++i) {
        if (detect.property(names[i]).toBool() != values[i])
            return -1;
        if (values[i]) {
            state = i + 1;
            ++set;
        }
    }
    return set > 1 ? -1 : state;
}

QStringList texts(std::initializer_list<const char *> list)
{
    QStringList all;
    for (const char *text : list)
        all << QString::fromUtf8(text);
    return all;
}

const char *const StateNames[] = {"nothing", "headphone", "microphone", "headset"};
}

class tst_HeadsetDetect : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void hasExactlyItsInterface();
    void opensNothingByItself();
    void asksTheKernelForTheJack();
    void asksTheKernelForTheButtons();
    void opensForBlockingReadsWithoutInheritance();

    void takesFirstSuitableByName_data();
    void takesFirstSuitableByName();
    void oneDeviceMayBeBoth();
    void looksAtReadableSystemEntriesOnly();
    void leavesOutUnreadableNodes();
    void doesNotWaitForTheWriterOfAFifo();
    void survivesMissingFolder();

    void tellsWhyJackIsTaken();
    void tellsWhyJackIsTakenWithPlugs_data();
    void tellsWhyJackIsTakenWithPlugs();
    void tellsWhyNoJackIsTaken_data();
    void tellsWhyNoJackIsTaken();
    void opensJackWhoseStatesCannotBeRead();
    void tellsWhyButtonsAreTaken();
    void tellsTheNameOfEveryButton();
    void tellsWhyNoButtonsAreTaken_data();
    void tellsWhyNoButtonsAreTaken();
    void showsWarningsOnlyByDefault();

    void countsButtons_data();
    void countsButtons();

    void announcesWhatIsPluggedInWhileOpening_data();
    void announcesWhatIsPluggedInWhileOpening();
    void changesJackState_data();
    void changesJackState();
    void decodesJackBatches_data();
    void decodesJackBatches();
    void tellsPlugging();
    void jackReadFailures_data();
    void jackReadFailures();

    void setsTheButtonsBit_data();
    void setsTheButtonsBit();
    void decodesButtonBatches_data();
    void decodesButtonBatches();
    void knowsTheSameButtonByTwoNames();
    void tellsPressing();
    void buttonReadFailures_data();
    void buttonReadFailures();
    void readsLongStreamsInWholeRecords();

    void reopeningForgetsSilently();
    void reopeningClosesFirst();
    void reopeningReadsNothingStale();
    void reopeningWithoutDevice();
    void jackAndButtonsAreIndependent();
    void bearsUnplugging();
    void closesWithObject();
    void leaksNoDescriptor();

    void handlerMayDoAnything_data();
    void handlerMayDoAnything();
    void destroyedBetweenTwoSignals();
    void destroyedWhileEventsArePending();
    void worksFromQml();
};

void tst_HeadsetDetect::cleanup()
{
    QLoggingCategory::setFilterRules(QString());
    const QDir folder(QStringLiteral("/dev/input"));
    QCOMPARE(folder.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot), QStringList());
}

void tst_HeadsetDetect::hasExactlyItsInterface()
{
    const QStringList expected = texts({
        "enum HeadsetButton: ButtonMisc=1, Button0=1, Button1=2, Button2=4, Button3=8, Button4=16, Button5=32, "
        "Button6=64, Button7=128, Button8=256, Button9=512, KeyMedia=1024, KeyPlayPause=2048",
        "property bool headphoneInserted notify headphoneInsertedChanged",
        "property bool microphoneInserted notify microphoneInsertedChanged",
        "property bool headsetInserted notify headsetInsertedChanged",
        "property uint buttonsPressed notify buttonsPressedChanged",
        "signal headphoneInsertedChanged()",
        "signal microphoneInsertedChanged()",
        "signal headsetInsertedChanged()",
        "signal buttonsPressedChanged()",
        "slot openDevice()",
        "slot openButtonDevice()",
        "slot bool deviceFound()",
        "slot bool headphoneInserted()",
        "slot bool microphoneInserted()",
        "slot bool headsetInserted()",
        "slot bool buttonsFound()",
        "slot int buttonCount()",
        "slot uint buttonsPressed()",
        "slot bool buttonPressed(HeadsetButton)",
        "private slot readHeadsetData(int)",
        "private slot readButtonData(int)",
    });
    QCOMPARE(ownInterface(HeadsetDetect::staticMetaObject), expected);
    QCOMPARE(HeadsetDetect::staticMetaObject.superClass(), &QObject::staticMetaObject);
}

void tst_HeadsetDetect::opensNothingByItself()
{
    InputDevice device = jack("event0", true, true);
    InputDevice keys = buttons("event1");
    const HeadsetDetect detect;
    QVERIFY(!detect.deviceFound());
    QVERIFY(!detect.buttonsFound());
    QCOMPARE(jackState(detect), 0);
    QCOMPARE(detect.buttonCount(), 0);
    QCOMPARE(detect.buttonsPressed(), 0u);
    QVERIFY(detect.children().isEmpty());
    QCOMPARE(device.opens(), 0);
    QCOMPARE(keys.opens(), 0);
}

void tst_HeadsetDetect::asksTheKernelForTheJack()
{
    InputDevice device = jack("event0");
    HeadsetDetect detect;
    detect.openDevice();
    // 768 is the kernel's KEY_CNT, asked for although the switches need a few bytes.
    const QVector<ulong> expected = {EVIOCGVERSION, EVIOCGBIT(0, 32), EVIOCGBIT(EV_SW, 768), EVIOCGSW(16)};
    QCOMPARE(device.requests(), expected);
    QCOMPARE(device.opens(), 1);
    device.send({{EV_SW, SW_HEADPHONE_INSERT, 1}});
    QTRY_COMPARE(device.reads(), 1);
    QCOMPARE(device.readLength(), 4096);
}

void tst_HeadsetDetect::asksTheKernelForTheButtons()
{
    InputDevice device = buttons("event0");
    HeadsetDetect detect;
    detect.openButtonDevice();
    const QVector<ulong> expected = {EVIOCGVERSION, EVIOCGBIT(0, 32), EVIOCGBIT(EV_KEY, 768)};
    QCOMPARE(device.requests(), expected);
    QCOMPARE(device.opens(), 1);
    device.send({{EV_KEY, KEY_MEDIA, 1}});
    QTRY_COMPARE(device.reads(), 1);
    QCOMPARE(device.readLength(), 4096);
}

void tst_HeadsetDetect::opensForBlockingReadsWithoutInheritance()
{
    InputDevice device = jack("event0");
    InputDevice keys = buttons("event1");
    HeadsetDetect detect;
    detect.openDevice();
    detect.openButtonDevice();
    const auto notifiers = detect.findChildren<QSocketNotifier *>();
    QCOMPARE(notifiers.size(), 2);
    for (const QSocketNotifier *notifier : notifiers) {
        QCOMPARE(notifier->type(), QSocketNotifier::Read);
        QVERIFY(notifier->isEnabled());
        const int fd = int(notifier->socket());
        QCOMPARE(fcntl(fd, F_GETFL) & O_NONBLOCK, 0);
        QCOMPARE(fcntl(fd, F_GETFD) & FD_CLOEXEC, FD_CLOEXEC);
    }
}

void tst_HeadsetDetect::takesFirstSuitableByName_data()
{
    QTest::addColumn<QByteArrayList>("nodes");
    QTest::addColumn<QByteArray>("taken");
    QTest::newRow("only one") << QByteArrayList{"event7"} << QByteArray("event7");
    QTest::newRow("two") << QByteArrayList{"event1", "event0"} << QByteArray("event0");
    QTest::newRow("ten before two") << QByteArrayList{"event2", "event10"} << QByteArray("event10");
    QTest::newRow("without regard to case") << QByteArrayList{"Event2", "event1", "EVENT3"} << QByteArray("event1");
    QTest::newRow("another name") << QByteArrayList{"jack", "headset"} << QByteArray("headset");
}

void tst_HeadsetDetect::takesFirstSuitableByName()
{
    QFETCH(QByteArrayList, nodes);
    QFETCH(QByteArray, taken);
    std::vector<InputDevice> devices;
    for (const QByteArray &node : qAsConst(nodes)) {
        devices.emplace_back(node.constData());
        devices.back().add(EV_SW, {SW_HEADPHONE_INSERT, SW_MICROPHONE_INSERT}).add(EV_KEY, {KEY_MEDIA}).publish();
    }
    HeadsetDetect detect;
    detect.openDevice();
    for (const InputDevice &device : devices) {
        QCOMPARE(device.readers(), taken == device.node() ? 1 : 0);
        // The scan stops at the first.
        QCOMPARE(device.opens(), taken == device.node() ? 1 : 0);
    }
    detect.openButtonDevice();
    for (const InputDevice &device : devices)
        QCOMPARE(device.readers(), taken == device.node() ? 2 : 0);
}

void tst_HeadsetDetect::oneDeviceMayBeBoth()
{
    InputDevice device("event0");
    device.add(EV_SW, {SW_HEADPHONE_INSERT, SW_MICROPHONE_INSERT}).add(EV_KEY, {KEY_MEDIA}).publish();
    HeadsetDetect detect;
    QStringList names;
    recordSignals(&detect, &names);
    detect.openDevice();
    detect.openButtonDevice();
    QVERIFY(detect.deviceFound());
    QVERIFY(detect.buttonsFound());
    device.send({{EV_SW, SW_HEADPHONE_INSERT, 1}, {EV_KEY, KEY_MEDIA, 1}});
    // Each descriptor has the whole frame.
    QTRY_COMPARE(device.reads(), 2);
    QCOMPARE(jackState(detect), 1);
    QCOMPARE(detect.buttonsPressed(), uint(HeadsetDetect::KeyMedia));
    names.sort();
    QCOMPARE(names, texts({"buttons", "headphone"}));
}

void tst_HeadsetDetect::looksAtReadableSystemEntriesOnly()
{
    const DebugShown shown;
    QDir folder(QStringLiteral("/dev/input"));
    QVERIFY(folder.mkdir(QStringLiteral("by-path")));
    QFile file(QStringLiteral("/dev/input/a-file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    QVERIFY(QFile::link(QStringLiteral("/nowhere"), QStringLiteral("/dev/input/b-dangling")));
    QVERIFY(QFile::link(QStringLiteral("/dev/null"), QStringLiteral("/dev/input/c-null")));
    InputDevice mice("mice", false);
    mice.publish();
    QVERIFY(QFile::link(QStringLiteral("/dev/null"), QStringLiteral("/dev/input/.hidden")));

    MessageLog log;
    HeadsetDetect detect;
    detect.openDevice();
    detect.openButtonDevice();
    const QStringList messages = log.all();
    file.remove();
    QFile::remove(QStringLiteral("/dev/input/b-dangling"));
    QFile::remove(QStringLiteral("/dev/input/c-null"));
    QFile::remove(QStringLiteral("/dev/input/.hidden"));
    folder.rmdir(QStringLiteral("by-path"));

    QStringList expected;
    for (int scan = 0; scan < 2; ++scan) {
        expected << texts(
            {"Device \"/dev/input/c-null\" is not event device", "Device \"/dev/input/mice\" is not event device"});
    }
    QCOMPARE(messages, expected);
    QCOMPARE(mice.opens(), 2);
    QCOMPARE(mice.readers(), 0);
    QVERIFY(!detect.deviceFound());
    QVERIFY(!detect.buttonsFound());
}

void tst_HeadsetDetect::leavesOutUnreadableNodes()
{
    InputDevice unreadable("event0");
    unreadable.add(EV_SW, {SW_HEADPHONE_INSERT, SW_MICROPHONE_INSERT}).publish(0);
    InputDevice refusing = jack("event1");
    refusing.failOpen(EBUSY);
    InputDevice readable("event2");
    readable.add(EV_SW, {SW_HEADPHONE_INSERT, SW_MICROPHONE_INSERT}).publish(0444);

    const Verdict verdict = asOrdinaryUser([&] {
        HeadsetDetect detect;
        detect.openDevice();
        return detect.deviceFound() && unreadable.opens() == 0 && readable.opens() == 1;
    });
    if (verdict == Verdict::NoSuchUser)
        QSKIP("another user is needed");
    QCOMPARE(verdict, Verdict::True);
    QCOMPARE(unreadable.requests().size(), 0);
    QCOMPARE(refusing.requests().size(), 0);
}

void tst_HeadsetDetect::doesNotWaitForTheWriterOfAFifo()
{
    const DebugShown shown;
    QCOMPARE(mkfifo("/dev/input/event0", 0600), 0);
    MessageLog log;
    HeadsetDetect detect;
    detect.openDevice();
    QFile::remove(QStringLiteral("/dev/input/event0"));
    QCOMPARE(log.all(), texts({"Device \"/dev/input/event0\" is not event device"}));
}

void tst_HeadsetDetect::survivesMissingFolder()
{
    QCOMPARE(rename("/dev/input", "/dev/elsewhere"), 0);
    HeadsetDetect detect;
    detect.openDevice();
    detect.openButtonDevice();
    QCOMPARE(rename("/dev/elsewhere", "/dev/input"), 0);
    QVERIFY(!detect.deviceFound());
    QVERIFY(!detect.buttonsFound());
}

void tst_HeadsetDetect::tellsWhyJackIsTaken()
{
    const DebugShown shown;
    InputDevice device = jack("event0");
    MessageLog log;
    HeadsetDetect detect;
    detect.openDevice();
    QCOMPARE(log.debugs(),
             texts({
                 "Device \"/dev/input/event0\" is of type EV_SW",
                 "Device \"/dev/input/event0\" has capability SW_HEADPHONE_INSERT",
                 "Device \"/dev/input/event0\" has capability SW_MICROPHONE_INSERT",
                 "Found headset device \"/dev/input/event0\"",
             }));
    QCOMPARE(log.all(), log.debugs());
    QVERIFY(detect.deviceFound());
}

void tst_HeadsetDetect::tellsWhyJackIsTakenWithPlugs_data()
{
    QTest::addColumn<bool>("headphone");
    QTest::addColumn<bool>("microphone");
    QTest::addColumn<QStringList>("messages");
    QTest::newRow("headphone") << true << false << texts({"Device \"/dev/input/event0\" headphone inserted"});
    QTest::newRow("microphone") << false << true << texts({"Device \"/dev/input/event0\" microphone inserted"});
    QTest::newRow("headset") << true << true
                             << texts({"Device \"/dev/input/event0\" headphone inserted",
                                       "Device \"/dev/input/event0\" microphone inserted"});
}

void tst_HeadsetDetect::tellsWhyJackIsTakenWithPlugs()
{
    QFETCH(bool, headphone);
    QFETCH(bool, microphone);
    QFETCH(QStringList, messages);
    const DebugShown shown;
    InputDevice device = jack("event0", headphone, microphone);
    MessageLog log;
    HeadsetDetect detect;
    detect.openDevice();
    QCOMPARE(log.all().mid(4), messages);
    QCOMPARE(log.all().at(3), QStringLiteral("Found headset device \"/dev/input/event0\""));
}

using Prepare = std::function<void(InputDevice &)>;
Q_DECLARE_METATYPE(Prepare)

void tst_HeadsetDetect::tellsWhyNoJackIsTaken_data()
{
    QTest::addColumn<Prepare>("prepare");
    QTest::addColumn<QStringList>("debugs");
    QTest::addColumn<QStringList>("warnings");
    const QString isSwitch = QStringLiteral("Device \"/dev/input/event0\" is of type EV_SW");
    const QString isNot = QStringLiteral("Device \"/dev/input/event0\" is not headset device");
    const auto failing = [](unsigned long request) {
        return Prepare([request](InputDevice &device) {
            device.add(EV_SW, {SW_HEADPHONE_INSERT, SW_MICROPHONE_INSERT}).preset(EV_SW, SW_HEADPHONE_INSERT);
            device.failIoctl(request, EIO);
        });
    };
    QTest::newRow("keys only") << Prepare([](InputDevice &device) {
        device.add(EV_KEY, {SW_HEADPHONE_INSERT, SW_MICROPHONE_INSERT});
    }) << texts({"Device \"/dev/input/event0\" is not of type 5"})
                               << QStringList();
    QTest::newRow("headphone alone") << Prepare([](InputDevice &device) { device.add(EV_SW, {SW_HEADPHONE_INSERT}); })
                                     << (QStringList{
                                            isSwitch,
                                            QStringLiteral(
                                                "Device \"/dev/input/event0\" has capability SW_HEADPHONE_INSERT"),
                                            isNot,
                                        })
                                     << QStringList();
    QTest::newRow("microphone alone")
        << Prepare([](InputDevice &device) { device.add(EV_SW, {SW_MICROPHONE_INSERT}); })
        << (QStringList{isSwitch, QStringLiteral("Device \"/dev/input/event0\" has capability SW_MICROPHONE_INSERT"),
                        isNot})
        << QStringList();
    QTest::newRow("other switches") << Prepare([](InputDevice &device) {
        device.add(EV_SW, {SW_LID, SW_TABLET_MODE, SW_RFKILL_ALL, SW_DOCK, SW_LINEOUT_INSERT, SW_JACK_PHYSICAL_INSERT});
    }) << QStringList{isSwitch, isNot}
                                    << QStringList();
    QTest::newRow("version fails") << failing(EVIOCGVERSION)
                                   << texts({"Device \"/dev/input/event0\" is not event device"}) << QStringList();
    QTest::newRow("types fail") << failing(EVIOCGBIT(0, 0)) << QStringList()
                                << texts({"Device \"/dev/input/event0\" EVIOCGBIT(0, EV_CNT) failed."});
    QTest::newRow("switches fail") << failing(EVIOCGBIT(EV_SW, 0)) << QStringList{isSwitch}
                                   << texts({"Device \"/dev/input/event0\" EVIOCGBIT(EV_SW, KEY_CNT) failed."});
}

void tst_HeadsetDetect::tellsWhyNoJackIsTaken()
{
    QFETCH(Prepare, prepare);
    QFETCH(QStringList, debugs);
    QFETCH(QStringList, warnings);
    const DebugShown shown;
    InputDevice unsuitable("event0");
    prepare(unsuitable);
    unsuitable.publish();
    HeadsetDetect detect;
    QStringList names;
    recordSignals(&detect, &names);
    const int before = openDescriptors();
    MessageLog log;
    detect.openDevice();
    QCOMPARE(log.debugs(), debugs);
    QCOMPARE(log.warnings(), warnings);
    QCOMPARE(log.all().size(), debugs.size() + warnings.size());
    QVERIFY(!detect.deviceFound());
    QVERIFY(detect.children().isEmpty());
    QCOMPARE(openDescriptors(), before);
    QCOMPARE(unsuitable.readers(), 0);
    QCOMPARE(names, QStringList());

    InputDevice suitable = jack("event1", true, true);
    detect.openDevice();
    QVERIFY(detect.deviceFound());
    QCOMPARE(suitable.readers(), 1);
    QCOMPARE(unsuitable.readers(), 0);
    QCOMPARE(names, texts({"headset"}));
}

void tst_HeadsetDetect::opensJackWhoseStatesCannotBeRead()
{
    InputDevice device = jack("event0", true, true);
    device.failIoctl(EVIOCGSW(0), EIO);
    HeadsetDetect detect;
    QStringList names;
    recordSignals(&detect, &names);
    MessageLog log;
    detect.openDevice();
    QVERIFY(detect.deviceFound());
    QCOMPARE(jackState(detect), 0);
    QCOMPARE(names, QStringList());
    QCOMPARE(log.all(), QStringList());
    device.send({{EV_SW, SW_MICROPHONE_INSERT, 0}});
    device.send({{EV_SW, SW_MICROPHONE_INSERT, 1}});
    QTRY_COMPARE(names, texts({"microphone"}));
}

void tst_HeadsetDetect::tellsWhyButtonsAreTaken()
{
    const DebugShown shown;
    InputDevice device = buttons("event0");
    MessageLog log;
    HeadsetDetect detect;
    detect.openButtonDevice();
    QCOMPARE(log.debugs(),
             texts({
                 "Device \"/dev/input/event0\" is of type EV_KEY",
                 "Device \"/dev/input/event0\" has capability BTN_MISC",
                 "Device \"/dev/input/event0\" has capability BTN_1",
                 "Device \"/dev/input/event0\" has capability KEY_MEDIA",
                 "Device \"/dev/input/event0\" has capability KEY_PLAYPAUSE",
                 "Device \"/dev/input/event0\" has max 4 buttons.",
                 "Found button device \"/dev/input/event0\"",
             }));
    QCOMPARE(log.all(), log.debugs());
}

void tst_HeadsetDetect::tellsTheNameOfEveryButton()
{
    const DebugShown shown;
    InputDevice device("event0");
    // By number, as the kernel and its drivers have them.
    device.add(EV_KEY, {164, 226, 265, 264, 263, 262, 261, 260, 259, 258, 257, 256}).publish();
    MessageLog log;
    HeadsetDetect detect;
    detect.openButtonDevice();
    QStringList expected = texts({"Device \"/dev/input/event0\" is of type EV_KEY"});
    for (const char *const name : {"BTN_MISC", "BTN_1", "BTN_2", "BTN_3", "BTN_4", "BTN_5", "BTN_6", "BTN_7", "BTN_8",
                                   "BTN_9", "KEY_MEDIA", "KEY_PLAYPAUSE"})
        expected << QStringLiteral("Device \"/dev/input/event0\" has capability ") + QLatin1String(name);
    expected << texts(
        {"Device \"/dev/input/event0\" has max 12 buttons.", "Found button device \"/dev/input/event0\""});
    QCOMPARE(log.debugs(), expected);
    QCOMPARE(log.all(), expected);
}

void tst_HeadsetDetect::tellsWhyNoButtonsAreTaken_data()
{
    QTest::addColumn<Prepare>("prepare");
    QTest::addColumn<QStringList>("debugs");
    QTest::addColumn<QStringList>("warnings");
    const QString isKey = QStringLiteral("Device \"/dev/input/event0\" is of type EV_KEY");
    const auto failing = [](unsigned long request) {
        return Prepare([request](InputDevice &device) {
            device.add(EV_KEY, {KEY_MEDIA, BTN_MISC}).failIoctl(request, EIO);
        });
    };
    QTest::newRow("switches only") << Prepare([](InputDevice &device) { device.add(EV_SW, {SW_HEADPHONE_INSERT}); })
                                   << texts({"Device \"/dev/input/event0\" is not of type 1"}) << QStringList();
    QTest::newRow("other keys") << Prepare([](InputDevice &device) {
        device.add(EV_KEY, {KEY_POWER, KEY_VOLUMEUP, KEY_VOLUMEDOWN, BTN_LEFT, BTN_9 + 1, KEY_PLAYPAUSE - 1});
    }) << QStringList{isKey, QStringLiteral("Device \"/dev/input/event0\" is not button device")}
                                << QStringList();
    QTest::newRow("version fails") << failing(EVIOCGVERSION)
                                   << texts({"Device \"/dev/input/event0\" is not event device"}) << QStringList();
    QTest::newRow("types fail") << failing(EVIOCGBIT(0, 0)) << QStringList()
                                << texts({"Device \"/dev/input/event0\" EVIOCGBIT(0, EV_CNT) failed."});
    QTest::newRow("keys fail") << failing(EVIOCGBIT(EV_KEY, 0)) << QStringList{isKey}
                               << texts({"Device \"/dev/input/event0\" EVIOCGBIT(EV_KEY, KEY_CNT) failed."});
}

void tst_HeadsetDetect::tellsWhyNoButtonsAreTaken()
{
    QFETCH(Prepare, prepare);
    QFETCH(QStringList, debugs);
    QFETCH(QStringList, warnings);
    const DebugShown shown;
    InputDevice unsuitable("event0");
    prepare(unsuitable);
    unsuitable.publish();
    HeadsetDetect detect;
    const int before = openDescriptors();
    MessageLog log;
    detect.openButtonDevice();
    QCOMPARE(log.debugs(), debugs);
    QCOMPARE(log.warnings(), warnings);
    QCOMPARE(log.all().size(), debugs.size() + warnings.size());
    QVERIFY(!detect.buttonsFound());
    QCOMPARE(detect.buttonCount(), 0);
    QVERIFY(detect.children().isEmpty());
    QCOMPARE(openDescriptors(), before);
    QCOMPARE(unsuitable.readers(), 0);

    InputDevice suitable = buttons("event1");
    detect.openButtonDevice();
    QVERIFY(detect.buttonsFound());
    QCOMPARE(suitable.readers(), 1);
    QCOMPARE(detect.buttonCount(), 4);
}

void tst_HeadsetDetect::showsWarningsOnlyByDefault()
{
    InputDevice failing("event0");
    failing.add(EV_SW, {SW_HEADPHONE_INSERT}).add(EV_KEY, {KEY_MEDIA}).publish();
    failing.failIoctl(EVIOCGBIT(0, 0), EIO);
    InputDevice device = jack("event1", true);
    InputDevice keys = buttons("event2");
    MessageLog log;
    HeadsetDetect detect;
    detect.openDevice();
    detect.openButtonDevice();
    device.send({{EV_SW, SW_MICROPHONE_INSERT, 1}});
    keys.send({{EV_KEY, BTN_1, 1}});
    QTRY_COMPARE(device.reads() + keys.reads(), 2);
    const QString warning = QStringLiteral("Device \"/dev/input/event0\" EVIOCGBIT(0, EV_CNT) failed.");
    QCOMPARE(log.all(), (QStringList{warning, warning}));
    QCOMPARE(log.warnings(), log.all());

    // The rule of another category does not concern it, its own switches it on and the warnings off.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=true\ncom.orvel.kiv.headset.debug=true"));
    log.clear();
    detect.openDevice();
    QCOMPARE(log.all(), QStringList{warning});
    QLoggingCategory::setFilterRules(QStringLiteral("com.orvel.kiv.headsetdetect.warning=false"));
    log.clear();
    detect.openDevice();
    QCOMPARE(log.all(), QStringList());
}

void tst_HeadsetDetect::countsButtons_data()
{
    QTest::addColumn<QVector<int>>("codes");
    QTest::addColumn<int>("count");
    const QVector<int> all = {BTN_MISC, BTN_1, BTN_2, BTN_3, BTN_4,     BTN_5,
                              BTN_6,    BTN_7, BTN_8, BTN_9, KEY_MEDIA, KEY_PLAYPAUSE};
    QTest::newRow("all") << all << 12;
    for (int code : all)
        QTest::addRow("0x%x", code) << QVector<int>{code} << 1;
    QTest::newRow("some among others") << QVector<int>{KEY_VOLUMEUP, BTN_3, BTN_LEFT, KEY_MEDIA} << 2;
}

void tst_HeadsetDetect::countsButtons()
{
    QFETCH(QVector<int>, codes);
    QFETCH(int, count);
    InputDevice device("event0");
    for (int code : qAsConst(codes))
        device.add(EV_KEY, {code});
    device.publish();
    HeadsetDetect detect;
    QSignalSpy spy(&detect, &HeadsetDetect::buttonsPressedChanged);
    for (int round = 0; round < 3; ++round) {
        detect.openButtonDevice();
        QVERIFY(detect.buttonsFound());
        QCOMPARE(detect.buttonCount(), count);
    }
    QCOMPARE(spy.count(), 0);
}

void tst_HeadsetDetect::announcesWhatIsPluggedInWhileOpening_data()
{
    QTest::addColumn<int>("state");
    for (int state = 0; state <= 3; ++state)
        QTest::newRow(StateNames[state]) << state;
}

void tst_HeadsetDetect::announcesWhatIsPluggedInWhileOpening()
{
    QFETCH(int, state);
    InputDevice device = jack("event0", state & 1, state & 2);
    HeadsetDetect detect;
    QStringList names;
    recordSignals(&detect, &names);
    bool found = true;
    int seen = state;
    const auto look = [&] {
        found = detect.deviceFound();
        seen = jackState(detect);
    };
    connect(&detect, &HeadsetDetect::headphoneInsertedChanged, this, look);
    connect(&detect, &HeadsetDetect::microphoneInsertedChanged, this, look);
    connect(&detect, &HeadsetDetect::headsetInsertedChanged, this, look);
    detect.openDevice();
    QCOMPARE(names, state ? texts({StateNames[state]}) : QStringList());
    QCOMPARE(jackState(detect), state);
    QCOMPARE(seen, state);
    QVERIFY(found);
    QCOMPARE(device.reads(), 0);
}

void tst_HeadsetDetect::changesJackState_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    for (int before = 0; before <= 3; ++before) {
        for (int after = 0; after <= 3; ++after)
            QTest::addRow("%s to %s", StateNames[before], StateNames[after]) << before << after;
    }
}

void tst_HeadsetDetect::changesJackState()
{
    QFETCH(int, before);
    QFETCH(int, after);
    InputDevice device = jack("event0", before & 1, before & 2);
    HeadsetDetect detect;
    detect.openDevice();
    QStringList names;
    recordSignals(&detect, &names);
    // One batch, however many plugs move.
    device.deliver(headphone(after & 1) + microphone((after & 2) / 2) + Report);
    QTRY_COMPARE(device.reads(), 1);
    QCOMPARE(jackState(detect), after);
    QStringList expected;
    if (before != after) {
        for (int state : {before, after}) {
            if (state)
                expected << QLatin1String(StateNames[state]);
        }
    }
    QCOMPARE(names, expected);
}

void tst_HeadsetDetect::decodesJackBatches_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("after");
    QTest::newRow("on and off") << 0 << headphone(1) + Report + headphone(0) + Report << 0;
    QTest::newRow("off and on") << 3 << headphone(0) + microphone(0) + headphone(1) + microphone(1) << 3;
    QTest::newRow("value 2 is off") << 1 << headphone(2) << 0;
    QTest::newRow("value -1 is off") << 3 << microphone(-1) << 1;
    QTest::newRow("value 257 is off") << 3 << headphone(257) << 2;
    QTest::newRow("other switches") << 1
                                    << inputRecord(EV_SW, SW_LID, 1) + inputRecord(EV_SW, SW_LINEOUT_INSERT, 1)
            + inputRecord(EV_SW, 3, 0) + inputRecord(EV_SW, 0x0102, 0)
                                    << 1;
    QTest::newRow("other types") << 0
                                 << inputRecord(EV_KEY, SW_HEADPHONE_INSERT, 1)
            + inputRecord(EV_SYN, SW_HEADPHONE_INSERT, 1) + inputRecord(0x0105, SW_MICROPHONE_INSERT, 1)
                                 << 0;
    QTest::newRow("cut short") << 0 << headphone(1).chopped(1) << 0;
    QTest::newRow("one byte") << 1 << QByteArray(1, '\0') << 1;
    QTest::newRow("whole, then cut short") << 0 << headphone(1) + microphone(1).chopped(1) << 1;
    QTest::newRow("whole, then one byte") << 3 << microphone(0) + QByteArray(1, '\0') << 1;
    QTest::newRow("garbage") << 3 << QByteArray(20 * int(sizeof(input_event)), '\xff') << 3;
    QTest::newRow("full batch") << 0 << headphone(0).repeated(4096 / int(sizeof(input_event)) - 1) + microphone(1) << 2;
}

void tst_HeadsetDetect::decodesJackBatches()
{
    QFETCH(int, before);
    QFETCH(QByteArray, bytes);
    QFETCH(int, after);
    InputDevice device = jack("event0", before & 1, before & 2);
    HeadsetDetect detect;
    detect.openDevice();
    QStringList names;
    recordSignals(&detect, &names);
    MessageLog log;
    device.deliver(bytes);
    QTRY_COMPARE(device.reads(), 1);
    QCOMPARE(jackState(detect), after);
    QStringList expected;
    if (before != after) {
        for (int state : {before, after}) {
            if (state)
                expected << QLatin1String(StateNames[state]);
        }
    }
    QCOMPARE(names, expected);
    QCoreApplication::processEvents();
    QCOMPARE(device.reads(), 1);
    QCOMPARE(log.all(), QStringList());
}

void tst_HeadsetDetect::tellsPlugging()
{
    InputDevice device = jack("event0");
    HeadsetDetect detect;
    detect.openDevice();
    const DebugShown shown;
    MessageLog log;
    device.deliver(headphone(1) + microphone(1) + inputRecord(EV_SW, SW_LID, 1) + Report + headphone(0) + microphone(0)
                   + headphone(2) + Report);
    QTRY_COMPARE(device.reads(), 1);
    QCOMPARE(log.debugs(),
             texts({"headphone inserted", "microphone inserted", "headphone removed", "microphone removed",
                    "headphone removed"}));
    QCOMPARE(log.all(), log.debugs());
}

void tst_HeadsetDetect::jackReadFailures_data()
{
    QTest::addColumn<int>("error");
    QTest::addColumn<QString>("message");
    QTest::newRow("end of file") << EVDEV_END_OF_FILE << QStringLiteral("EOF");
    QTest::newRow("error") << EIO << QStringLiteral("Couldn't read");
    QTest::newRow("interrupted") << EINTR << QStringLiteral("Couldn't read");
}

void tst_HeadsetDetect::jackReadFailures()
{
    QFETCH(int, error);
    QFETCH(QString, message);
    InputDevice device = jack("event0", true, true);
    HeadsetDetect detect;
    detect.openDevice();
    QStringList names;
    recordSignals(&detect, &names);
    {
        MessageLog log;
        device.failRead(error);
        QTRY_VERIFY(device.reads() >= 3);
        // One warning each time.
        QCOMPARE(log.warnings().size(), device.reads());
        QCOMPARE(log.all(), log.warnings());
        QStringList different = log.warnings();
        different.removeDuplicates();
        QCOMPARE(different, QStringList{message});
        device.failRead(0);
    }
    QCOMPARE(names, QStringList());
    QCOMPARE(jackState(detect), 3);
    QVERIFY(detect.deviceFound());
    QCOMPARE(detect.children().size(), 1);
    QCOMPARE(device.readers(), 1);
    device.send({{EV_SW, SW_MICROPHONE_INSERT, 0}});
    QTRY_COMPARE(names, texts({"headset", "headphone"}));
    QCOMPARE(device.opens(), 1);
}

void tst_HeadsetDetect::setsTheButtonsBit_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("button");
    QTest::addColumn<QString>("hexadecimal");
    const struct
    {
        int code;
        HeadsetDetect::HeadsetButton button;
        const char *hexadecimal;
    } rows[] = {
        {256, HeadsetDetect::ButtonMisc, "0x100"}, {257, HeadsetDetect::Button1, "0x101"},
        {258, HeadsetDetect::Button2, "0x102"},    {259, HeadsetDetect::Button3, "0x103"},
        {260, HeadsetDetect::Button4, "0x104"},    {261, HeadsetDetect::Button5, "0x105"},
        {262, HeadsetDetect::Button6, "0x106"},    {263, HeadsetDetect::Button7, "0x107"},
        {264, HeadsetDetect::Button8, "0x108"},    {265, HeadsetDetect::Button9, "0x109"},
        {226, HeadsetDetect::KeyMedia, "0xe2"},    {164, HeadsetDetect::KeyPlayPause, "0xa4"},
    };
    for (const auto &row : rows)
        QTest::newRow(row.hexadecimal) << row.code << int(row.button) << QString::fromUtf8(row.hexadecimal);
}

void tst_HeadsetDetect::setsTheButtonsBit()
{
    QFETCH(int, code);
    QFETCH(int, button);
    QFETCH(QString, hexadecimal);
    InputDevice device("event0");
    device.add(EV_KEY, {code}).publish();
    HeadsetDetect detect;
    detect.openButtonDevice();
    QSignalSpy spy(&detect, &HeadsetDetect::buttonsPressedChanged);
    const DebugShown shown;
    MessageLog log;
    for (int round = 1; round <= 4; ++round) {
        const bool down = round % 2;
        device.send({{EV_KEY, quint16(code), down}});
        QTRY_COMPARE(spy.count(), round);
        QCOMPARE(detect.buttonsPressed(), down ? uint(button) : 0u);
        QCOMPARE(detect.property("buttonsPressed"), QVariant(down ? uint(button) : 0u));
        for (uint bit = 1; bit <= HeadsetDetect::KeyPlayPause; bit <<= 1)
            QCOMPARE(detect.buttonPressed(HeadsetDetect::HeadsetButton(bit)), down && bit == uint(button));
    }
    const QString pressed = QStringLiteral("Button \"%1\" pressed").arg(hexadecimal);
    const QString released = QStringLiteral("Button \"%1\" released").arg(hexadecimal);
    QCOMPARE(log.all(), (QStringList{pressed, released, pressed, released}));
}

void tst_HeadsetDetect::decodesButtonBatches_data()
{
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<uint>("before");
    QTest::addColumn<QByteArray>("second");
    QTest::addColumn<uint>("after");
    const QByteArray media = key(KEY_MEDIA, 1);
    QTest::newRow("two at once") << Report << 0u << media + key(BTN_2, 1) + Report << 1028u;
    QTest::newRow("press and release") << Report << 0u << media + Report + key(KEY_MEDIA, 0) + Report << 0u;
    QTest::newRow("release and press") << media << 1024u << key(KEY_MEDIA, 0) + media << 1024u;
    QTest::newRow("one for another") << media << 1024u << key(KEY_MEDIA, 0) + key(KEY_PLAYPAUSE, 1) << 2048u;
    QTest::newRow("auto-repeat clears") << media << 1024u << key(KEY_MEDIA, 2) + Report << 0u;
    QTest::newRow("value -1 clears") << media + key(BTN_9, 1) << 1536u << key(BTN_9, -1) << 1024u;
    QTest::newRow("value 257 clears") << media << 1024u << key(KEY_MEDIA, 257) << 0u;
    QTest::newRow("release of none") << Report << 0u << key(KEY_MEDIA, 0) << 0u;
    QTest::newRow("press again") << media << 1024u << media << 1024u;
    QTest::newRow("other keys") << media << 1024u
                                << key(KEY_VOLUMEUP, 1) + key(BTN_9 + 1, 1) + key(BTN_MISC - 1, 1) + key(0, 1)
            + key(KEY_MAX, 1) << 1024u;
    QTest::newRow("codes beyond all keys")
        << media << 1024u << key(KEY_CNT, 1) + key(0xffff, 1) + key(0x1000 + BTN_MISC, 1) << 1024u;
    QTest::newRow("other types") << media << 1024u
                                 << inputRecord(EV_SW, KEY_MEDIA, 0) + inputRecord(EV_SYN, KEY_MEDIA, 0)
            + inputRecord(0x0101, BTN_MISC, 1) + inputRecord(EV_MSC, BTN_1, 1)
                                 << 1024u;
    QTest::newRow("cut short") << media << 1024u << key(KEY_MEDIA, 0).chopped(1) << 1024u;
    QTest::newRow("one byte") << media << 1024u << QByteArray(1, '\0') << 1024u;
    QTest::newRow("whole, then cut short") << media << 1024u << key(BTN_MISC, 1) + key(BTN_1, 1).chopped(1) << 1025u;
    QTest::newRow("all twelve") << Report << 0u << [] {
        QByteArray bytes;
        for (int code = BTN_MISC; code <= BTN_9; ++code)
            bytes += key(code, 1);
        return bytes + key(KEY_MEDIA, 1) + key(KEY_PLAYPAUSE, 1) + Report;
    }() << 4095u;
    QTest::newRow("full batch") << media << 1024u
                                << key(KEY_MEDIA, 0).repeated(4096 / int(sizeof(input_event)) - 1) + key(BTN_5, 1)
                                << 32u;
}

void tst_HeadsetDetect::decodesButtonBatches()
{
    QFETCH(QByteArray, first);
    QFETCH(uint, before);
    QFETCH(QByteArray, second);
    QFETCH(uint, after);
    InputDevice device = buttons("event0");
    HeadsetDetect detect;
    detect.openButtonDevice();
    device.deliver(first);
    QTRY_COMPARE(device.reads(), 1);
    QCOMPARE(detect.buttonsPressed(), before);

    QStringList names;
    recordSignals(&detect, &names);
    MessageLog log;
    device.deliver(second);
    QTRY_COMPARE(device.reads(), 2);
    QCOMPARE(detect.buttonsPressed(), after);
    QCOMPARE(names, before == after ? QStringList() : texts({"buttons"}));
    QCoreApplication::processEvents();
    QCOMPARE(device.reads(), 2);
    QCOMPARE(log.all(), QStringList());
}

void tst_HeadsetDetect::knowsTheSameButtonByTwoNames()
{
    InputDevice device = buttons("event0");
    HeadsetDetect detect;
    detect.openButtonDevice();
    for (int down : {1, 0}) {
        device.send({{EV_KEY, BTN_0, down}});
        QTRY_COMPARE(detect.buttonPressed(HeadsetDetect::Button0), bool(down));
        QCOMPARE(detect.buttonPressed(HeadsetDetect::ButtonMisc), bool(down));
    }
}

void tst_HeadsetDetect::tellsPressing()
{
    InputDevice device = buttons("event0");
    HeadsetDetect detect;
    detect.openButtonDevice();
    const DebugShown shown;
    MessageLog log;
    device.deliver(key(KEY_MEDIA, 1) + key(KEY_VOLUMEUP, 1) + key(KEY_MEDIA, 2) + Report + key(KEY_MEDIA, 0));
    QTRY_COMPARE(device.reads(), 1);
    QCOMPARE(log.debugs(), texts({"Button \"0xe2\" pressed", "Button \"0xe2\" released", "Button \"0xe2\" released"}));
    QCOMPARE(log.all(), log.debugs());
}

void tst_HeadsetDetect::buttonReadFailures_data()
{
    jackReadFailures_data();
}

void tst_HeadsetDetect::buttonReadFailures()
{
    QFETCH(int, error);
    QFETCH(QString, message);
    InputDevice device = buttons("event0");
    HeadsetDetect detect;
    detect.openButtonDevice();
    device.send({{EV_KEY, KEY_MEDIA, 1}});
    QTRY_COMPARE(detect.buttonsPressed(), 1024u);
    const int reads = device.reads();
    QSignalSpy spy(&detect, &HeadsetDetect::buttonsPressedChanged);
    {
        MessageLog log;
        device.failRead(error);
        QTRY_VERIFY(device.reads() >= reads + 3);
        QCOMPARE(log.warnings().size(), device.reads() - reads);
        QCOMPARE(log.all(), log.warnings());
        QStringList different = log.warnings();
        different.removeDuplicates();
        QCOMPARE(different, QStringList{message});
        device.failRead(0);
    }
    QCOMPARE(spy.count(), 0);
    QCOMPARE(detect.buttonsPressed(), 1024u);
    QVERIFY(detect.buttonsFound());
    QCOMPARE(device.readers(), 1);
    device.send({{EV_KEY, KEY_MEDIA, 0}});
    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(device.opens(), 1);
}

void tst_HeadsetDetect::readsLongStreamsInWholeRecords()
{
    const int perRead = 4096 / int(sizeof(input_event));
    InputDevice device = buttons("event0");
    HeadsetDetect detect;
    detect.openButtonDevice();
    QSignalSpy spy(&detect, &HeadsetDetect::buttonsPressedChanged);
    device.deliver(key(BTN_1, 0).repeated(perRead - 1) + key(BTN_1, 1) + key(BTN_2, 1).repeated(perRead)
                   + key(BTN_1, 0));
    QTRY_COMPARE(device.reads(), 3);
    QCOMPARE(spy.count(), 3);
    QCOMPARE(detect.buttonsPressed(), 4u);
}

void tst_HeadsetDetect::reopeningForgetsSilently()
{
    InputDevice device = jack("event0", true, true);
    InputDevice keys = buttons("event1");
    HeadsetDetect detect;
    detect.openDevice();
    detect.openButtonDevice();
    keys.send({{EV_KEY, KEY_MEDIA, 1}});
    QTRY_COMPARE(detect.buttonsPressed(), 1024u);

    QStringList names;
    recordSignals(&detect, &names);
    detect.openButtonDevice();
    QCOMPARE(detect.buttonsPressed(), 0u);
    QCOMPARE(detect.buttonCount(), 4);
    QCOMPARE(names, QStringList());
    // What is plugged in was forgotten, so it is news again.
    detect.openDevice();
    QCOMPARE(names, texts({"headset"}));
    names.clear();
    device.send({{EV_SW, SW_HEADPHONE_INSERT, 0}, {EV_SW, SW_MICROPHONE_INSERT, 0}});
    detect.openDevice();
    QCOMPARE(names, QStringList());
    QCOMPARE(jackState(detect), 0);
    QCOMPARE(device.readers(), 1);
    QCOMPARE(keys.readers(), 1);
}

void tst_HeadsetDetect::reopeningClosesFirst()
{
    InputDevice device = jack("event0");
    InputDevice keys = buttons("event1");
    const auto watched = [](const HeadsetDetect &detect) {
        const auto notifiers = detect.findChildren<QSocketNotifier *>();
        return notifiers.size() == 1 ? int(notifiers.first()->socket()) : -1;
    };
    // Whatever is opened gets the lowest number that is free: the old one, if that is closed by then.
    HeadsetDetect jackOnly;
    jackOnly.openDevice();
    const int jackDescriptor = watched(jackOnly);
    QVERIFY(jackDescriptor >= 0);
    jackOnly.openDevice();
    QCOMPARE(watched(jackOnly), jackDescriptor);

    HeadsetDetect buttonsOnly;
    buttonsOnly.openButtonDevice();
    const int buttonDescriptor = watched(buttonsOnly);
    QVERIFY(buttonDescriptor >= 0);
    buttonsOnly.openButtonDevice();
    QCOMPARE(watched(buttonsOnly), buttonDescriptor);
}

void tst_HeadsetDetect::reopeningReadsNothingStale()
{
    InputDevice device = jack("event0");
    InputDevice keys = buttons("event1");
    HeadsetDetect detect;
    detect.openDevice();
    detect.openButtonDevice();
    // Wait in the queues of the descriptors that are closed now; the notifiers have not delivered them yet.
    device.send({{EV_SW, SW_HEADPHONE_INSERT, 1}});
    device.send({{EV_SW, SW_HEADPHONE_INSERT, 0}});
    keys.send({{EV_KEY, KEY_MEDIA, 1}});
    QStringList names;
    recordSignals(&detect, &names);
    detect.openDevice();
    detect.openButtonDevice();
    QCoreApplication::processEvents();
    QCOMPARE(device.reads(), 0);
    QCOMPARE(keys.reads(), 0);
    QCOMPARE(names, QStringList());
    QCOMPARE(detect.buttonsPressed(), 0u);
}

void tst_HeadsetDetect::reopeningWithoutDevice()
{
    HeadsetDetect detect;
    QStringList names;
    {
        InputDevice device = jack("event0", true, true);
        InputDevice keys = buttons("event1");
        detect.openDevice();
        detect.openButtonDevice();
        keys.send({{EV_KEY, KEY_MEDIA, 1}});
        QTRY_COMPARE(detect.buttonsPressed(), 1024u);
    }
    recordSignals(&detect, &names);
    MessageLog log;
    detect.openDevice();
    detect.openButtonDevice();
    QVERIFY(!detect.deviceFound());
    QVERIFY(!detect.buttonsFound());
    QCOMPARE(jackState(detect), 0);
    QCOMPARE(detect.buttonCount(), 0);
    QCOMPARE(detect.buttonsPressed(), 0u);
    QCOMPARE(names, QStringList());
    QVERIFY(detect.children().isEmpty());
    QCOMPARE(log.all(), QStringList());
}

void tst_HeadsetDetect::jackAndButtonsAreIndependent()
{
    InputDevice device = jack("event0", true);
    InputDevice keys = buttons("event1");
    HeadsetDetect detect;
    detect.openButtonDevice();
    QVERIFY(!detect.deviceFound());
    keys.send({{EV_KEY, BTN_1, 1}});
    QTRY_COMPARE(detect.buttonsPressed(), 2u);
    detect.openDevice();
    QCOMPARE(detect.buttonsPressed(), 2u);
    QVERIFY(detect.buttonsFound());
    detect.openButtonDevice();
    QVERIFY(detect.headphoneInserted());
    QVERIFY(detect.deviceFound());
}

void tst_HeadsetDetect::bearsUnplugging()
{
    HeadsetDetect detect;
    InputDevice old = jack("event0", true, true);
    detect.openDevice();
    QStringList names;
    recordSignals(&detect, &names);
    MessageLog log;
    old.unplug();
    QTRY_VERIFY(log.warnings().size() >= 2);
    QCOMPARE(log.warnings().first(), QStringLiteral("Couldn't read"));
    // It is not looked for again.
    InputDevice again = jack("event0", false, true);
    QCoreApplication::processEvents();
    QCOMPARE(again.opens(), 0);
    QCOMPARE(jackState(detect), 3);
    QVERIFY(detect.deviceFound());
    QCOMPARE(names, QStringList());
    detect.openDevice();
    QCOMPARE(names, texts({"microphone"}));
}

void tst_HeadsetDetect::closesWithObject()
{
    InputDevice device = jack("event0");
    InputDevice keys = buttons("event1");
    const int before = openDescriptors();
    {
        HeadsetDetect detect;
        detect.openDevice();
        detect.openButtonDevice();
        QCOMPARE(openDescriptors(), before + 2);
    }
    QCOMPARE(openDescriptors(), before);
    QCOMPARE(device.readers(), 0);
    QCOMPARE(keys.readers(), 0);
}

void tst_HeadsetDetect::leaksNoDescriptor()
{
    InputDevice lid("event0");
    lid.add(EV_SW, {SW_LID}).add(EV_KEY, {KEY_POWER}).publish();
    InputDevice failing = jack("event1");
    failing.failIoctl(EVIOCGBIT(EV_SW, 0), EIO);
    InputDevice device = jack("event2");
    InputDevice keys = buttons("event3");
    HeadsetDetect detect;
    MessageLog log;
    detect.openDevice();
    detect.openButtonDevice();
    const int open = openDescriptors();
    for (int round = 0; round < 1000; ++round) {
        if (round % 5 == 0) {
            device.send({{EV_SW, SW_HEADPHONE_INSERT, round % 2}});
            keys.send({{EV_KEY, KEY_MEDIA, round % 2}});
        }
        detect.openDevice();
        detect.openButtonDevice();
        if (round % 7 == 0)
            QCoreApplication::processEvents();
    }
    QCOMPARE(openDescriptors(), open);
    QCOMPARE(device.readers(), 1);
    QCOMPARE(keys.readers(), 1);
    QCOMPARE(detect.children().size(), 2);
}

using Handler = std::function<void(std::unique_ptr<HeadsetDetect> &)>;
Q_DECLARE_METATYPE(Handler)

void tst_HeadsetDetect::handlerMayDoAnything_data()
{
    QTest::addColumn<Handler>("handler");
    QTest::addColumn<bool>("whileOpening");
    QTest::addColumn<int>("readers");
    const struct
    {
        const char *name;
        Handler handler;
        int readers;
    } handlers[] = {
        {"reopens",
         [](std::unique_ptr<HeadsetDetect> &detect) {
             detect->openDevice();
             detect->openButtonDevice();
         },
         1},
        {"destroys", [](std::unique_ptr<HeadsetDetect> &detect) { detect.reset(); }, 0},
        {"has it destroyed later", [](std::unique_ptr<HeadsetDetect> &detect) { detect.release()->deleteLater(); }, 0},
        {"reopens and destroys",
         [](std::unique_ptr<HeadsetDetect> &detect) {
             detect->openDevice();
             detect.reset();
         },
         0},
        {"runs the event loop",
         [](std::unique_ptr<HeadsetDetect> &detect) {
             detect->openDevice();
             detect->openButtonDevice();
             QCoreApplication::processEvents();
         },
         1},
    };
    for (const auto &row : handlers) {
        QTest::addRow("%s while opening", row.name) << row.handler << true << row.readers;
        QTest::addRow("%s while reading", row.name) << row.handler << false << row.readers;
    }
}

void tst_HeadsetDetect::handlerMayDoAnything()
{
    QFETCH(Handler, handler);
    QFETCH(bool, whileOpening);
    QFETCH(int, readers);
    InputDevice device = jack("event0", true, whileOpening);
    InputDevice keys = buttons("event1");
    const int before = openDescriptors();
    auto detect = std::make_unique<HeadsetDetect>();
    int calls = 0;
    const auto handle = [&] {
        // Opening anew announces the headset anew.
        if (++calls == 1)
            handler(detect);
    };
    detect->openButtonDevice();
    if (whileOpening) {
        connect(detect.get(), &HeadsetDetect::headsetInsertedChanged, this, handle);
        detect->openDevice();
    } else {
        detect->openDevice();
        connect(detect.get(), &HeadsetDetect::headsetInsertedChanged, this, handle);
        connect(detect.get(), &HeadsetDetect::buttonsPressedChanged, this, handle);
        device.send({{EV_SW, SW_MICROPHONE_INSERT, 1}});
    }
    QTRY_VERIFY(calls >= 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QCOMPARE(device.readers(), readers);
    QCOMPARE(keys.readers(), readers);
    QCOMPARE(openDescriptors(), before + 2 * readers);
    if (detect) {
        QCOMPARE(detect->children().size(), 2);
        QCOMPARE(jackState(*detect), 3);
        device.send({{EV_SW, SW_HEADPHONE_INSERT, 0}});
        QTRY_COMPARE(jackState(*detect), 2);
    }
    if (!detect || whileOpening)
        return;

    // The same in answer to a button.
    calls = 0;
    keys.send({{EV_KEY, BTN_1, 1}});
    QTRY_VERIFY(calls >= 1);
    QCoreApplication::processEvents();
    QCOMPARE(openDescriptors(), before + 2 * readers);
}

void tst_HeadsetDetect::destroyedBetweenTwoSignals()
{
    InputDevice device = jack("event0", true);
    auto *detect = new HeadsetDetect;
    detect->openDevice();
    int later = 0;
    connect(detect, &HeadsetDetect::headsetInsertedChanged, this, [&] { ++later; });
    connect(detect, &HeadsetDetect::headphoneInsertedChanged, this, [&] {
        delete detect;
        detect = nullptr;
    });
    device.send({{EV_SW, SW_MICROPHONE_INSERT, 1}});
    QTRY_VERIFY(!detect);
    QCOMPARE(later, 0);
    QCOMPARE(device.readers(), 0);
}

void tst_HeadsetDetect::destroyedWhileEventsArePending()
{
    InputDevice device = jack("event0");
    InputDevice keys = buttons("event1");
    for (int round = 0; round < 20; ++round) {
        auto detect = std::make_unique<HeadsetDetect>();
        detect->openDevice();
        detect->openButtonDevice();
        device.send({{EV_SW, SW_HEADPHONE_INSERT, (round + 1) % 2}});
        keys.send({{EV_KEY, KEY_MEDIA, (round + 1) % 2}});
        detect.reset();
        QCoreApplication::processEvents();
    }
    QCOMPARE(device.reads(), 0);
    QCOMPARE(keys.reads(), 0);
    QCOMPARE(device.readers() + keys.readers(), 0);
}

void tst_HeadsetDetect::worksFromQml()
{
    qmlRegisterType<HeadsetDetect>("Probe", 1, 0, "HeadsetDetect");
    InputDevice device = jack("event0", true, true);
    InputDevice keys = buttons("event1");
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQml 2.15\n"
                      "import Probe 1.0\n"
                      "HeadsetDetect {\n"
                      "    property string seen: (headphoneInserted ? 'headphone' : '')\n"
                      "        + (microphoneInserted ? 'microphone' : '') + (headsetInserted ? 'headset' : '')\n"
                      "    property bool play: (buttonsPressed & HeadsetDetect.KeyPlayPause) !== 0\n"
                      "    function asks(button) { return buttonPressed(button) }\n"
                      "    function asksMisc() { return buttonPressed(HeadsetDetect.ButtonMisc)\n"
                      "        && buttonPressed(HeadsetDetect.Button0) }\n"
                      "    function found() { return deviceFound() && buttonsFound() && buttonCount() === 4 }\n"
                      "    Component.onCompleted: { openDevice(); openButtonDevice() }\n"
                      "}\n",
                      QUrl());
    const std::unique_ptr<QObject> page(component.create());
    QVERIFY2(page, qPrintable(component.errorString()));
    const auto call = [&page](const char *function) {
        QVariant result;
        return QMetaObject::invokeMethod(page.get(), function, Q_RETURN_ARG(QVariant, result)) && result.toBool();
    };
    QCOMPARE(page->property("seen").toString(), QStringLiteral("headset"));
    QVERIFY(call("found"));
    device.send({{EV_SW, SW_MICROPHONE_INSERT, 0}});
    QTRY_COMPARE(page->property("seen").toString(), QStringLiteral("headphone"));
    device.send({{EV_SW, SW_MICROPHONE_INSERT, 1}, {EV_SW, SW_HEADPHONE_INSERT, 0}});
    QTRY_COMPARE(page->property("seen").toString(), QStringLiteral("microphone"));
    QVERIFY(!call("asksMisc"));
    keys.send({{EV_KEY, KEY_PLAYPAUSE, 1}, {EV_KEY, BTN_MISC, 1}});
    QTRY_VERIFY(page->property("play").toBool());
    QVERIFY(call("asksMisc"));
}

QTEST_GUILESS_MAIN(tst_HeadsetDetect)

#include "tst_headsetdetect.moc"
