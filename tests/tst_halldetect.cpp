// SPDX-License-Identifier: BSD-3-Clause
#include "halldetect.h"

#include "inputdevice.h"
#include "messagelog.h"
#include "metaobject.h"

#include <QDir>
#include <QFile>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QSocketNotifier>
#include <QTest>

#include <cerrno>
#include <functional>
#include <memory>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>

namespace
{
InputDevice lidSwitch(const char *node, bool closed = false)
{
    InputDevice device(node);
    device.add(EV_SW, {SW_LID}).preset(EV_SW, SW_LID, closed).publish();
    return device;
}

QByteArray lid(int value)
{
    return inputRecord(EV_SW, SW_LID, value);
}
}

class tst_HallDetect : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void hasExactlyItsInterface();
    void opensNothingByItself();
    void asksTheKernelNoMoreThanNeeded();
    void opensForBlockingReadsWithoutInheritance();

    void takesFirstLidSwitchByName_data();
    void takesFirstLidSwitchByName();
    void skipsWhatIsNoLidSwitch_data();
    void skipsWhatIsNoLidSwitch();
    void warnsOfNodesThatDoNotOpen();
    void looksAtFilesButNotAtFolders();
    void doesNotWaitForTheWriterOfAFifo();
    void keepsValueWithoutDevice();
    void closesDeviceThatQualifiesNoMore();
    void survivesMissingFolder();

    void tellsClosedCoverWhileOpening();
    void followsTheCover();
    void decodesBatches_data();
    void decodesBatches();
    void readsLongStreamsInWholeRecords();
    void staysOpenAfterEndOfFile();
    void staysOpenAfterReadError();
    void bearsUnplugging();
    void warnsWhenReadWithoutDevice();
    void ignoresTheSlotsArgument();

    void closesDeviceAndNotifier();
    void keepsQuietWhenReopenedUnchanged();
    void tellsWhatChangedWhileClosed();
    void readsNothingStaleAfterReopening();
    void reopeningClosesFirst();
    void closesWithObject();
    void leaksNoDescriptor();

    void handlerMayDoAnything_data();
    void handlerMayDoAnything();
    void destroyedWhileEventsArePending();
    void bindsInQml();
};

void tst_HallDetect::cleanup()
{
    const QDir folder(QStringLiteral("/dev/input"));
    QCOMPARE(folder.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot), QStringList());
}

void tst_HallDetect::hasExactlyItsInterface()
{
    const QStringList expected = {
        QStringLiteral("property bool hall notify hallChanged"),
        QStringLiteral("signal hallChanged()"),
        QStringLiteral("slot openFile()"),
        QStringLiteral("slot closeFile()"),
        QStringLiteral("slot bool hall()"),
        QStringLiteral("slot readHallData(int)"),
    };
    QCOMPARE(ownInterface(HallDetect::staticMetaObject), expected);
    QCOMPARE(HallDetect::staticMetaObject.superClass(), &QObject::staticMetaObject);
}

void tst_HallDetect::opensNothingByItself()
{
    InputDevice device = lidSwitch("event0", true);
    HallDetect hall;
    QCOMPARE(hall.hall(), false);
    QCOMPARE(device.opens(), 0);
    QVERIFY(hall.children().isEmpty());
    hall.closeFile();
    QCOMPARE(device.opens(), 0);
}

void tst_HallDetect::asksTheKernelNoMoreThanNeeded()
{
    InputDevice device = lidSwitch("event0");
    HallDetect hall;
    hall.openFile();
    const QVector<ulong> expected = {EVIOCGBIT(0, 32), EVIOCGBIT(EV_SW, 16), EVIOCGSW(16)};
    QCOMPARE(device.requests(), expected);
    QCOMPARE(device.opens(), 1);
    QCOMPARE(device.reads(), 0);
    device.send({{EV_SW, SW_LID, 1}});
    QTRY_COMPARE(device.reads(), 1);
    QCOMPARE(device.readLength(), 4096);
}

void tst_HallDetect::opensForBlockingReadsWithoutInheritance()
{
    InputDevice device = lidSwitch("event0");
    HallDetect hall;
    hall.openFile();
    const auto *const notifier = hall.findChild<QSocketNotifier *>();
    QVERIFY(notifier);
    QCOMPARE(notifier->type(), QSocketNotifier::Read);
    QVERIFY(notifier->isEnabled());
    const int fd = int(notifier->socket());
    QCOMPARE(fcntl(fd, F_GETFL) & O_NONBLOCK, 0);
    QCOMPARE(fcntl(fd, F_GETFD) & FD_CLOEXEC, FD_CLOEXEC);
}

void tst_HallDetect::takesFirstLidSwitchByName_data()
{
    QTest::addColumn<QByteArrayList>("nodes");
    QTest::addColumn<QByteArray>("taken");
    QTest::newRow("only one") << QByteArrayList{"event7"} << QByteArray("event7");
    QTest::newRow("two") << QByteArrayList{"event1", "event0"} << QByteArray("event0");
    QTest::newRow("ten before two") << QByteArrayList{"event2", "event10"} << QByteArray("event10");
    QTest::newRow("without regard to case") << QByteArrayList{"Event2", "event1", "EVENT3"} << QByteArray("event1");
    QTest::newRow("another name") << QByteArrayList{"event0", "cover"} << QByteArray("cover");
}

void tst_HallDetect::takesFirstLidSwitchByName()
{
    QFETCH(QByteArrayList, nodes);
    QFETCH(QByteArray, taken);
    std::vector<InputDevice> devices;
    for (const QByteArray &node : qAsConst(nodes))
        devices.push_back(lidSwitch(node.constData()));

    MessageLog log;
    HallDetect hall;
    hall.openFile();
    QCOMPARE(log.all(), QStringList());
    for (const InputDevice &device : devices) {
        QCOMPARE(device.readers(), taken == device.node() ? 1 : 0);
        // The scan stops at the first.
        QCOMPARE(device.opens(), taken == device.node() ? 1 : 0);
    }
}

using Prepare = std::function<void(InputDevice &)>;
Q_DECLARE_METATYPE(Prepare)

void tst_HallDetect::skipsWhatIsNoLidSwitch_data()
{
    QTest::addColumn<Prepare>("prepare");
    QTest::addColumn<QString>("message");
    QTest::addColumn<int>("requests");
    QTest::newRow("keys only") << Prepare([](InputDevice &device) {
        device.add(EV_KEY, {KEY_POWER, SW_LID});
    }) << QString() << 1;
    QTest::newRow("nothing at all") << Prepare([](InputDevice &) {}) << QString() << 1;
    QTest::newRow("switches without lid") << Prepare([](InputDevice &device) {
        device.add(EV_SW, {SW_TABLET_MODE, SW_HEADPHONE_INSERT, SW_MICROPHONE_INSERT, SW_DOCK, SW_MAX});
    }) << QString() << 2;
    const auto failing = [](unsigned long request) {
        return Prepare([request](InputDevice &device) {
            device.add(EV_SW, {SW_LID}).preset(EV_SW, SW_LID);
            device.failIoctl(request, EIO);
        });
    };
    QTest::newRow("types fail") << failing(EVIOCGBIT(0, 0))
                                << QStringLiteral("^EVIOCGBIT\\(\\d+\\): Input/output error$") << 1;
    QTest::newRow("switches fail") << failing(EVIOCGBIT(EV_SW, 0))
                                   << QStringLiteral("^EVIOCGBIT\\(\\d+\\): Input/output error$") << 2;
    QTest::newRow("states fail") << failing(EVIOCGSW(0)) << QStringLiteral("^EVIOCGSW\\(\\d+\\): Input/output error$")
                                 << 3;
}

void tst_HallDetect::skipsWhatIsNoLidSwitch()
{
    QFETCH(Prepare, prepare);
    QFETCH(QString, message);
    QFETCH(int, requests);
    InputDevice unsuitable("event0");
    prepare(unsuitable);
    unsuitable.publish();
    HallDetect hall;
    {
        MessageLog log;
        QSignalSpy spy(&hall, &HallDetect::hallChanged);
        const int before = openDescriptors();
        hall.openFile();
        QCOMPARE(openDescriptors(), before);
        QVERIFY(!hall.findChild<QSocketNotifier *>());
        QCOMPARE(hall.hall(), false);
        QCOMPARE(spy.count(), 0);
        QCOMPARE(unsuitable.readers(), 0);
        QCOMPARE(unsuitable.requests().size(), requests);
        QCOMPARE(log.all().size(), message.isEmpty() ? 0 : 1);
        QCOMPARE(log.all(), log.warnings());
    }

    InputDevice suitable = lidSwitch("event1", true);
    MessageLog log;
    hall.openFile();
    QCOMPARE(suitable.readers(), 1);
    QCOMPARE(unsuitable.readers(), 0);
    QVERIFY(hall.hall());
    for (const QString &text : log.all())
        QVERIFY2(QRegularExpression(message).match(text).hasMatch(), qPrintable(text));
}

void tst_HallDetect::warnsOfNodesThatDoNotOpen()
{
    InputDevice refusing = lidSwitch("event0");
    refusing.failOpen(EACCES);
    InputDevice absent = lidSwitch("event1");
    absent.failOpen(ENODEV);
    InputDevice suitable = lidSwitch("event2", true);
    QVERIFY(QFile::link(QStringLiteral("/nowhere"), QStringLiteral("/dev/input/event \"3\"")));

    MessageLog log;
    HallDetect hall;
    hall.openFile();
    const QStringList expected = {
        QStringLiteral("\"/dev/input/event \\\"3\\\"\" is not a valid device."),
        QStringLiteral("\"/dev/input/event0\" is not a valid device."),
        QStringLiteral("\"/dev/input/event1\" is not a valid device."),
    };
    QFile::remove(QStringLiteral("/dev/input/event \"3\""));
    QCOMPARE(log.warnings(), expected);
    QCOMPARE(log.all(), expected);
    QCOMPARE(suitable.readers(), 1);
}

void tst_HallDetect::looksAtFilesButNotAtFolders()
{
    QDir folder(QStringLiteral("/dev/input"));
    QVERIFY(folder.mkdir(QStringLiteral("by-path")));
    QFile file(QStringLiteral("/dev/input/a-file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    // Everything that claims to be a device without being one, here with the kernel's own answer.
    QVERIFY(QFile::link(QStringLiteral("/dev/null"), QStringLiteral("/dev/input/b-null")));
    QVERIFY(QFile::link(QStringLiteral("/etc"), QStringLiteral("/dev/input/c-folder")));
    InputDevice mice("mice", false);
    mice.publish();

    MessageLog log;
    HallDetect hall;
    hall.openFile();
    const QStringList messages = log.all();
    file.remove();
    QFile::remove(QStringLiteral("/dev/input/b-null"));
    QFile::remove(QStringLiteral("/dev/input/c-folder"));
    folder.rmdir(QStringLiteral("by-path"));
    QCOMPARE(messages.size(), 3);
    for (const QString &text : messages) {
        static const QRegularExpression notEvent(
            QStringLiteral("^EVIOCGBIT\\(\\d+\\): Inappropriate ioctl for device$"));
        QVERIFY2(notEvent.match(text).hasMatch(), qPrintable(text));
    }
    QCOMPARE(mice.opens(), 1);
    QCOMPARE(mice.readers(), 0);
}

void tst_HallDetect::doesNotWaitForTheWriterOfAFifo()
{
    QCOMPARE(mkfifo("/dev/input/event0", 0600), 0);
    InputDevice suitable = lidSwitch("event1");
    MessageLog log;
    HallDetect hall;
    hall.openFile();
    QFile::remove(QStringLiteral("/dev/input/event0"));
    QCOMPARE(suitable.readers(), 1);
    QCOMPARE(log.warnings().size(), 1);
}

void tst_HallDetect::keepsValueWithoutDevice()
{
    HallDetect hall;
    QSignalSpy spy(&hall, &HallDetect::hallChanged);
    {
        InputDevice device = lidSwitch("event0", true);
        hall.openFile();
        QCOMPARE(spy.count(), 1);
        hall.closeFile();
        QVERIFY(hall.hall());
    }
    MessageLog log;
    hall.openFile();
    QVERIFY(hall.hall());
    QCOMPARE(spy.count(), 1);
    QVERIFY(!hall.findChild<QSocketNotifier *>());
    QCOMPARE(log.all(), QStringList());
}

void tst_HallDetect::closesDeviceThatQualifiesNoMore()
{
    InputDevice device = lidSwitch("event0", true);
    HallDetect hall;
    hall.openFile();
    QVERIFY(hall.hall());
    device.failIoctl(EVIOCGBIT(0, 0), EIO);
    MessageLog log;
    hall.openFile();
    QCOMPARE(log.warnings().size(), 1);
    QCOMPARE(device.readers(), 0);
    QVERIFY(hall.children().isEmpty());
    QVERIFY(hall.hall());
}

void tst_HallDetect::survivesMissingFolder()
{
    QCOMPARE(rename("/dev/input", "/dev/elsewhere"), 0);
    HallDetect hall;
    hall.openFile();
    QCOMPARE(rename("/dev/elsewhere", "/dev/input"), 0);
    QVERIFY(!hall.hall());
}

void tst_HallDetect::tellsClosedCoverWhileOpening()
{
    InputDevice device = lidSwitch("event0", true);
    HallDetect hall;
    QVector<bool> seen;
    connect(&hall, &HallDetect::hallChanged, this, [&] { seen.append(hall.hall()); });
    hall.openFile();
    QCOMPARE(seen, QVector<bool>{true});
    QCOMPARE(device.reads(), 0);
}

void tst_HallDetect::followsTheCover()
{
    InputDevice device = lidSwitch("event0");
    HallDetect hall;
    QSignalSpy spy(&hall, &HallDetect::hallChanged);
    hall.openFile();
    QCOMPARE(spy.count(), 0);
    for (int round = 1; round <= 4; ++round) {
        const bool closed = round % 2;
        QCOMPARE(device.send({{EV_SW, SW_LID, closed}}), 2);
        QTRY_COMPARE(spy.count(), round);
        QCOMPARE(hall.hall(), closed);
        QCOMPARE(hall.property("hall").toBool(), closed);
    }
}

void tst_HallDetect::decodesBatches_data()
{
    QTest::addColumn<bool>("before");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("after");
    const QByteArray syn = inputRecord(EV_SYN, SYN_REPORT, 0);
    QTest::newRow("on") << false << lid(1) + syn << true;
    QTest::newRow("off") << true << lid(0) + syn << false;
    QTest::newRow("on again") << true << lid(1) + syn << true;
    QTest::newRow("off again") << false << lid(0) + syn << false;
    QTest::newRow("on and off") << false << lid(1) + syn + lid(0) + syn << false;
    QTest::newRow("off and on") << true << lid(0) + syn + lid(1) + syn << true;
    QTest::newRow("on, off, on") << false << lid(1) + lid(0) + lid(1) + syn << true;
    QTest::newRow("value 2") << false << lid(2) << true;
    QTest::newRow("negative value") << false << lid(-1) << true;
    QTest::newRow("high bits only") << false << lid(0x10000) << true;
    QTest::newRow("another switch on") << false << inputRecord(EV_SW, SW_DOCK, 1) << true;
    QTest::newRow("another switch off last") << true << lid(1) + inputRecord(EV_SW, 0xffff, 0) << false;
    QTest::newRow("key") << false << inputRecord(EV_KEY, SW_LID, 1) << false;
    QTest::newRow("type with the same low byte") << false << inputRecord(0x105, SW_LID, 1) << false;
    QTest::newRow("report only") << true << syn << true;
    QTest::newRow("records lost") << true << inputRecord(EV_SYN, SYN_DROPPED, 0) + syn << true;
    QTest::newRow("cut short") << false << lid(1).chopped(1) << false;
    QTest::newRow("one byte") << false << QByteArray(1, '\5') << false;
    QTest::newRow("whole, then cut short") << false << lid(1) + lid(0).chopped(1) << true;
    QTest::newRow("whole, then one byte") << true << lid(0) + QByteArray(1, '\0') << false;
    QTest::newRow("garbage") << true << QByteArray(20 * int(sizeof(input_event)), '\xff') << true;
    QTest::newRow("full batch") << false << lid(0).repeated(4096 / int(sizeof(input_event)) - 1) + lid(1) << true;
}

void tst_HallDetect::decodesBatches()
{
    QFETCH(bool, before);
    QFETCH(QByteArray, bytes);
    QFETCH(bool, after);
    InputDevice device = lidSwitch("event0", before);
    HallDetect hall;
    hall.openFile();
    QCOMPARE(hall.hall(), before);

    MessageLog log;
    QVector<bool> seen;
    connect(&hall, &HallDetect::hallChanged, this, [&] { seen.append(hall.hall()); });
    device.deliver(bytes);
    QTRY_COMPARE(device.reads(), 1);
    QCOMPARE(hall.hall(), after);
    QCOMPARE(seen, before == after ? QVector<bool>{} : QVector<bool>{after});
    QCoreApplication::processEvents();
    QCOMPARE(device.reads(), 1);
    QCOMPARE(log.all(), QStringList());
}

void tst_HallDetect::readsLongStreamsInWholeRecords()
{
    const int perRead = 4096 / int(sizeof(input_event));
    InputDevice device = lidSwitch("event0");
    HallDetect hall;
    QSignalSpy spy(&hall, &HallDetect::hallChanged);
    hall.openFile();
    // Only the last record of each read counts: on, off, on.
    device.deliver(lid(0).repeated(perRead - 1) + lid(1) + lid(1).repeated(perRead - 1) + lid(0) + lid(1));
    QTRY_COMPARE(device.reads(), 3);
    QCOMPARE(spy.count(), 3);
    QVERIFY(hall.hall());
}

void tst_HallDetect::staysOpenAfterEndOfFile()
{
    InputDevice device = lidSwitch("event0");
    HallDetect hall;
    hall.openFile();
    QSignalSpy spy(&hall, &HallDetect::hallChanged);
    {
        MessageLog log;
        device.failRead(EVDEV_END_OF_FILE);
        QTRY_VERIFY(device.reads() >= 3);
        // One warning each time.
        QCOMPARE(log.all().size(), device.reads());
        QCOMPARE(log.warnings(), QStringList(QVector<QString>(device.reads(), QStringLiteral("file error!")).toList()));
        device.failRead(0);
    }
    QCOMPARE(spy.count(), 0);
    QCOMPARE(device.readers(), 1);
    device.send({{EV_SW, SW_LID, 1}});
    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(device.opens(), 1);
}

void tst_HallDetect::staysOpenAfterReadError()
{
    InputDevice device = lidSwitch("event0", true);
    HallDetect hall;
    hall.openFile();
    QSignalSpy spy(&hall, &HallDetect::hallChanged);
    {
        MessageLog log;
        device.failRead(EIO);
        QTRY_VERIFY(device.reads() >= 3);
        QCOMPARE(log.all(), QStringList(QVector<QString>(device.reads(), QStringLiteral("file error!")).toList()));
        device.failRead(0);
    }
    QVERIFY(hall.hall());
    QCOMPARE(device.readers(), 1);
    device.send({{EV_SW, SW_LID, 0}});
    QTRY_COMPARE(spy.count(), 1);
}

void tst_HallDetect::bearsUnplugging()
{
    HallDetect hall;
    InputDevice old = lidSwitch("event0", true);
    hall.openFile();
    MessageLog log;
    old.unplug();
    QTRY_VERIFY(log.warnings().size() >= 2);
    QCOMPARE(log.warnings().first(), QStringLiteral("file error!"));
    QVERIFY(hall.hall());
    QVERIFY(hall.findChild<QSocketNotifier *>());

    InputDevice again = lidSwitch("event0", false);
    hall.openFile();
    QVERIFY(!hall.hall());
    again.send({{EV_SW, SW_LID, 1}});
    QTRY_VERIFY(hall.hall());
}

void tst_HallDetect::warnsWhenReadWithoutDevice()
{
    MessageLog log;
    HallDetect hall;
    hall.readHallData(0);
    QCOMPARE(log.all(), QStringList{QStringLiteral("file error!")});
    QCOMPARE(log.warnings().size(), 1);
}

void tst_HallDetect::ignoresTheSlotsArgument()
{
    InputDevice device = lidSwitch("event0");
    HallDetect hall;
    hall.openFile();
    device.send({{EV_SW, SW_LID, 1}});
    QVERIFY(QMetaObject::invokeMethod(&hall, "readHallData", Q_ARG(int, -1)));
    QVERIFY(hall.hall());
}

void tst_HallDetect::closesDeviceAndNotifier()
{
    InputDevice device = lidSwitch("event0");
    HallDetect hall;
    const int before = openDescriptors();
    hall.openFile();
    QCOMPARE(openDescriptors(), before + 1);
    hall.closeFile();
    QCOMPARE(openDescriptors(), before);
    QVERIFY(hall.children().isEmpty());
    QCOMPARE(device.readers(), 0);
    hall.closeFile();
    device.send({{EV_SW, SW_LID, 1}});
    QCoreApplication::processEvents();
    QCOMPARE(device.reads(), 0);
    QVERIFY(!hall.hall());
}

void tst_HallDetect::keepsQuietWhenReopenedUnchanged()
{
    InputDevice device = lidSwitch("event0", true);
    HallDetect hall;
    hall.openFile();
    QSignalSpy spy(&hall, &HallDetect::hallChanged);
    hall.closeFile();
    hall.openFile();
    hall.openFile();
    QCOMPARE(spy.count(), 0);
    QVERIFY(hall.hall());
    QCOMPARE(device.readers(), 1);
    QCOMPARE(hall.children().size(), 1);
}

void tst_HallDetect::tellsWhatChangedWhileClosed()
{
    InputDevice device = lidSwitch("event0", true);
    HallDetect hall;
    hall.openFile();
    hall.closeFile();
    QSignalSpy spy(&hall, &HallDetect::hallChanged);
    device.send({{EV_SW, SW_LID, 0}});
    QCoreApplication::processEvents();
    QCOMPARE(spy.count(), 0);
    hall.openFile();
    QCOMPARE(spy.count(), 1);
    QVERIFY(!hall.hall());
}

void tst_HallDetect::readsNothingStaleAfterReopening()
{
    InputDevice device = lidSwitch("event0");
    HallDetect hall;
    hall.openFile();
    // Waits in the queue of the descriptor that is closed now; the notifier has not delivered it yet.
    device.send({{EV_SW, SW_LID, 1}});
    device.send({{EV_SW, SW_LID, 0}});
    device.send({{EV_SW, SW_LID, 1}});
    QSignalSpy spy(&hall, &HallDetect::hallChanged);
    hall.openFile();
    QCOMPARE(spy.count(), 1);
    QVERIFY(hall.hall());
    QCoreApplication::processEvents();
    QCOMPARE(device.reads(), 0);
    QCOMPARE(spy.count(), 1);
}

void tst_HallDetect::reopeningClosesFirst()
{
    InputDevice device = lidSwitch("event0");
    HallDetect hall;
    hall.openFile();
    const auto watched = [&hall] { return int(hall.findChild<QSocketNotifier *>()->socket()); };
    const int descriptor = watched();
    hall.openFile();
    // The lowest number that is free is the old one, if that is closed by then.
    QCOMPARE(watched(), descriptor);
}

void tst_HallDetect::closesWithObject()
{
    InputDevice device = lidSwitch("event0");
    const int before = openDescriptors();
    {
        HallDetect hall;
        hall.openFile();
        QCOMPARE(device.readers(), 1);
    }
    QCOMPARE(device.readers(), 0);
    QCOMPARE(openDescriptors(), before);
}

void tst_HallDetect::leaksNoDescriptor()
{
    InputDevice first("event0");
    first.add(EV_SW, {SW_TABLET_MODE}).publish();
    InputDevice second("event1");
    second.add(EV_SW, {SW_LID}).publish();
    second.failIoctl(EVIOCGSW(0), EIO);
    InputDevice device = lidSwitch("event2");
    HallDetect hall;
    MessageLog log;
    hall.openFile();
    const int open = openDescriptors();
    for (int round = 0; round < 1000; ++round) {
        if (round % 3 == 0)
            hall.closeFile();
        if (round % 5 == 0)
            device.send({{EV_SW, SW_LID, round % 2}});
        hall.openFile();
        if (round % 7 == 0)
            QCoreApplication::processEvents();
    }
    QCOMPARE(openDescriptors(), open);
    QCOMPARE(device.opens(), 1001);
    QCOMPARE(device.readers(), 1);
    QCOMPARE(hall.children().size(), 1);
}

using Handler = std::function<void(std::unique_ptr<HallDetect> &)>;
Q_DECLARE_METATYPE(Handler)

void tst_HallDetect::handlerMayDoAnything_data()
{
    QTest::addColumn<bool>("whileOpening");
    QTest::addColumn<Handler>("handler");
    QTest::addColumn<int>("readers");
    const struct
    {
        const char *name;
        Handler handler;
        int readers;
    } handlers[] = {
        {"closes", [](std::unique_ptr<HallDetect> &hall) { hall->closeFile(); }, 0},
        {"reopens", [](std::unique_ptr<HallDetect> &hall) { hall->openFile(); }, 1},
        {"closes and reopens",
         [](std::unique_ptr<HallDetect> &hall) {
             hall->closeFile();
             hall->openFile();
             hall->closeFile();
             hall->openFile();
         },
         1},
        {"destroys", [](std::unique_ptr<HallDetect> &hall) { hall.reset(); }, 0},
        {"has it destroyed later", [](std::unique_ptr<HallDetect> &hall) { hall.release()->deleteLater(); }, 0},
        {"reopens and destroys",
         [](std::unique_ptr<HallDetect> &hall) {
             hall->openFile();
             hall.reset();
         },
         0},
        {"runs the event loop",
         [](std::unique_ptr<HallDetect> &hall) {
             hall->openFile();
             QCoreApplication::processEvents();
             hall->closeFile();
             QCoreApplication::processEvents();
         },
         0},
    };
    for (const auto &row : handlers) {
        QTest::addRow("%s while opening", row.name) << true << row.handler << row.readers;
        QTest::addRow("%s while reading", row.name) << false << row.handler << row.readers;
    }
}

void tst_HallDetect::handlerMayDoAnything()
{
    QFETCH(bool, whileOpening);
    QFETCH(Handler, handler);
    QFETCH(int, readers);
    InputDevice device = lidSwitch("event0", whileOpening);
    const int before = openDescriptors();
    auto hall = std::make_unique<HallDetect>();
    if (!whileOpening)
        hall->openFile();
    int calls = 0;
    connect(hall.get(), &HallDetect::hallChanged, this, [&] {
        ++calls;
        handler(hall);
    });
    if (whileOpening)
        hall->openFile();
    else
        device.send({{EV_SW, SW_LID, 1}});
    QTRY_COMPARE(calls, 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QCOMPARE(calls, 1);
    QCOMPARE(device.readers(), readers);
    QCOMPARE(openDescriptors(), before + readers);
    if (hall)
        QCOMPARE(hall->children().size(), readers);
}

void tst_HallDetect::destroyedWhileEventsArePending()
{
    InputDevice device = lidSwitch("event0");
    for (int round = 0; round < 20; ++round) {
        auto hall = std::make_unique<HallDetect>();
        hall->openFile();
        device.send({{EV_SW, SW_LID, 1}});
        device.send({{EV_SW, SW_LID, 0}});
        hall.reset();
        QCoreApplication::processEvents();
    }
    QCOMPARE(device.reads(), 0);
    QCOMPARE(device.readers(), 0);
}

void tst_HallDetect::bindsInQml()
{
    qmlRegisterType<HallDetect>("Probe", 1, 0, "HallDetect");
    InputDevice device = lidSwitch("event0", true);
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQml 2.15\n"
                      "import Probe 1.0\n"
                      "HallDetect {\n"
                      "    property bool seen: hall\n"
                      "    property int changes: 0\n"
                      "    onHallChanged: { ++changes; if (changes === 3) closeFile() }\n"
                      "    Component.onCompleted: openFile()\n"
                      "}\n",
                      QUrl());
    const std::unique_ptr<QObject> page(component.create());
    QVERIFY2(page, qPrintable(component.errorString()));
    QCOMPARE(page->property("seen").toBool(), true);
    QCOMPARE(page->property("changes").toInt(), 1);
    device.send({{EV_SW, SW_LID, 0}});
    QTRY_COMPARE(page->property("changes").toInt(), 2);
    QCOMPARE(page->property("seen").toBool(), false);
    device.send({{EV_SW, SW_LID, 1}});
    QTRY_COMPARE(page->property("changes").toInt(), 3);
    QCOMPARE(device.readers(), 0);
}

QTEST_GUILESS_MAIN(tst_HallDetect)

#include "tst_halldetect.moc"
