// SPDX-License-Identifier: BSD-3-Clause
// What the simulated event devices owe to the kernel's.

#include "inputdevice.h"

#include "uniquefd.h"

#include <QFile>
#include <QProcess>
#include <QTest>
#include <QVector>

#include <cerrno>
#include <chrono>
#include <memory>
#include <thread>
#include <vector>

#include <dlfcn.h>
#include <fcntl.h>
#include <libevdev/libevdev.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/wait.h>

namespace
{
constexpr size_t RecordSize = sizeof(input_event);

UniqueFd open(const InputDevice &device, int flags = O_RDONLY | O_NONBLOCK)
{
    return UniqueFd(::open(QFile::encodeName(device.path()).constData(), flags | O_CLOEXEC));
}

struct Event
{
    int type;
    int code;
    int value;
    bool operator==(const Event &other) const
    {
        return type == other.type && code == other.code && value == other.value;
    }
};
const Event Report = {EV_SYN, SYN_REPORT, 0};

/*! All records that one read of so many of them returns; none, and errno is set, if it fails. */
QVector<Event> readEvents(int fd, size_t most = 1000)
{
    std::vector<input_event> records(most);
    errno = 0;
    const ssize_t size = ::read(fd, records.data(), most * RecordSize);
    QVector<Event> events;
    for (int i = 0; i < int(size / ssize_t(RecordSize)); ++i)
        events << Event{records[i].type, records[i].code, records[i].value};
    if (size > 0 && size % ssize_t(RecordSize) != 0)
        events << Event{-1, -1, -1};
    return events;
}

bool isReadable(int fd)
{
    pollfd poll = {fd, POLLIN, 0};
    return ::poll(&poll, 1, 0) == 1;
}
}

class tst_EvdevSim : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void copiesNoMoreThanTheKernelHas_data();
    void copiesNoMoreThanTheKernelHas();
    void answersWhoItIs();
    void answersAxes();
    void refusesOtherRequests();
    void isNoEventDeviceUnlessSaid();
    void countsAsSystemFileAndRefusesStrangers();

    void framesChanges();
    void dropsWhatChangesNothing();
    void statesFollowEvents();
    void askingForStatesDropsTheirEvents();
    void eachReaderHasItsOwnQueue();
    void readsWholeRecords();
    void waitsOnlyInBlockingMode();
    void tellsOfLostRecords();
    void readsKeepTheirOrder();

    void goneDevice();
    void provokedFailures();
    void leavesOtherDescriptorsAlone();
    void worksAcrossDescriptorsAndProcesses();
    void worksPreloaded();
    void worksWithLibevdev();
};

void tst_EvdevSim::copiesNoMoreThanTheKernelHas_data()
{
    QTest::addColumn<ulong>("request");
    QTest::addColumn<int>("longs");
    QTest::addColumn<int>("first");
    const int keyLongs = 96 / int(sizeof(long));
    const int byte = 1;
    QTest::newRow("types") << ulong(EVIOCGBIT(0, 0)) << 1
                           << (byte << EV_SYN | byte << EV_KEY | byte << EV_ABS | byte << EV_SW);
    QTest::newRow("keys") << ulong(EVIOCGBIT(EV_KEY, 0)) << keyLongs << (byte << KEY_ESC | byte << KEY_2);
    QTest::newRow("relative axes") << ulong(EVIOCGBIT(EV_REL, 0)) << 1 << 0;
    QTest::newRow("absolute axes") << ulong(EVIOCGBIT(EV_ABS, 0)) << 64 / int(8 * sizeof(long)) << (byte << ABS_X);
    QTest::newRow("switches") << ulong(EVIOCGBIT(EV_SW, 0)) << 1 << (byte << SW_HEADPHONE_INSERT);
    QTest::newRow("lights") << ulong(EVIOCGBIT(EV_LED, 0)) << 1 << (byte << LED_MUTE);
    QTest::newRow("properties") << ulong(EVIOCGPROP(0)) << 1 << (byte << INPUT_PROP_DIRECT);
    QTest::newRow("keys down") << ulong(EVIOCGKEY(0)) << keyLongs << (byte << KEY_2);
    QTest::newRow("switches on") << ulong(EVIOCGSW(0)) << 1 << (byte << SW_HEADPHONE_INSERT);
    QTest::newRow("lights on") << ulong(EVIOCGLED(0)) << 1 << (byte << LED_MUTE);
}

void tst_EvdevSim::copiesNoMoreThanTheKernelHas()
{
    QFETCH(ulong, request);
    QFETCH(int, longs);
    QFETCH(int, first);
    InputDevice device("event0");
    device.add(EV_KEY, {KEY_ESC, KEY_2}).add(EV_SW, {SW_HEADPHONE_INSERT}).add(EV_LED, {LED_MUTE});
    device.preset(EV_KEY, KEY_2).preset(EV_SW, SW_HEADPHONE_INSERT).preset(EV_LED, LED_MUTE);
    evdev_add_property("event0", INPUT_PROP_DIRECT);
    evdev_set_axis("event0", ABS_X, 5, 0, 10, 1, 2, 3);
    device.publish();
    const UniqueFd fd = open(device);
    const int kernel = longs * int(sizeof(long));
    for (int length : {0, 1, 2, kernel - 1, kernel, kernel + 1, 768, 4096}) {
        QByteArray bytes(5000, '\x55');
        const int copied = ioctl(fd.get(), _IOC(_IOC_READ, 'E', _IOC_NR(request), unsigned(length)), bytes.data());
        QCOMPARE(copied, qMin(length, kernel));
        QCOMPARE(bytes.mid(copied), QByteArray(5000 - copied, '\x55'));
        if (copied > 0)
            QCOMPARE(uchar(bytes.at(0)), uchar(first));
    }
}

void tst_EvdevSim::answersWhoItIs()
{
    evdev_create("event0", 1, "a name", nullptr, "serial");
    evdev_set_id("event0", BUS_HOST, 1, 2, 3);
    evdev_publish("event0", 0600);
    const UniqueFd fd(::open("/dev/input/event0", O_RDONLY | O_CLOEXEC));
    int version = 0;
    QCOMPARE(ioctl(fd.get(), EVIOCGVERSION, &version), 0);
    QCOMPARE(version, EV_VERSION);
    input_id id = {};
    QCOMPARE(ioctl(fd.get(), EVIOCGID, &id), 0);
    QCOMPARE(int(id.bustype), BUS_HOST);
    QCOMPARE(int(id.vendor * 100 + id.product * 10 + id.version), 123);
    char name[32] = "................";
    QCOMPARE(ioctl(fd.get(), EVIOCGNAME(sizeof(name)), name), 7);
    QCOMPARE(name, "a name");
    QCOMPARE(ioctl(fd.get(), EVIOCGUNIQ(3), name), 3);
    QCOMPARE(name, "serame");
    QCOMPARE(ioctl(fd.get(), EVIOCGPHYS(sizeof(name)), name), -1);
    QCOMPARE(errno, ENOENT);
    QCOMPARE(evdev_remove("event0"), 0);
}

void tst_EvdevSim::answersAxes()
{
    InputDevice device("event0");
    evdev_set_axis("event0", ABS_MT_POSITION_X, 5, -1, 539, 1, 2, 3);
    device.publish();
    const UniqueFd fd = open(device);
    input_absinfo axis = {};
    QCOMPARE(ioctl(fd.get(), EVIOCGABS(ABS_MT_POSITION_X), &axis), 0);
    QCOMPARE(axis.value, 5);
    QCOMPARE(axis.minimum, -1);
    QCOMPARE(axis.maximum, 539);
    QCOMPARE(device.send({{EV_ABS, ABS_MT_POSITION_X, 77}}), 2);
    QCOMPARE(ioctl(fd.get(), EVIOCGABS(ABS_MT_POSITION_X), &axis), 0);
    QCOMPARE(axis.value, 77);

    InputDevice without("event1");
    without.publish();
    QCOMPARE(ioctl(open(without).get(), EVIOCGABS(ABS_X), &axis), -1);
    QCOMPARE(errno, EINVAL);
}

void tst_EvdevSim::refusesOtherRequests()
{
    InputDevice device("event0");
    device.publish();
    const UniqueFd fd = open(device);
    char buffer[256] = {};
    for (unsigned type : {EV_REP, EV_PWR, EV_FF_STATUS, EV_MAX}) {
        QCOMPARE(ioctl(fd.get(), EVIOCGBIT(type, 8), buffer), -1);
        QCOMPARE(errno, EINVAL);
    }
    QCOMPARE(ioctl(fd.get(), _IOC(_IOC_READ, 'E', 0xff, 8), buffer), -1);
    QCOMPARE(errno, EINVAL);
    QCOMPARE(ioctl(fd.get(), EVIOCGREP, buffer), -1);
    QCOMPARE(errno, ENOSYS);
}

void tst_EvdevSim::isNoEventDeviceUnlessSaid()
{
    InputDevice mice("mice", false);
    mice.publish();
    const UniqueFd fd = open(mice);
    QVERIFY(fd.isOpen());
    int version = 0;
    QCOMPARE(ioctl(fd.get(), EVIOCGVERSION, &version), -1);
    QCOMPARE(errno, ENOTTY);
    QCOMPARE(mice.requests().size(), 0);
}

void tst_EvdevSim::countsAsSystemFileAndRefusesStrangers()
{
    InputDevice device("event0");
    device.publish(0640);
    struct stat status = {};
    QCOMPARE(stat("/dev/input/event0", &status), 0);
    QVERIFY(!S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode));
    QCOMPARE(status.st_mode & 07777, 0640u);
    // A program that does not know of the simulation gets an error at once.
    QProcess cat;
    cat.start(QStringLiteral("cat"), {device.path()});
    QVERIFY(cat.waitForFinished());
    QCOMPARE(cat.exitCode(), 1);
}

void tst_EvdevSim::framesChanges()
{
    InputDevice device("event0");
    device.add(EV_SW, {SW_LID, SW_DOCK}).add(EV_MSC, {MSC_SCAN}).publish();
    const UniqueFd fd = open(device);
    QVERIFY(!isReadable(fd.get()));
    QCOMPARE(device.send({{EV_SW, SW_LID, 1}, {EV_SW, SW_DOCK, 1}}), 3);
    QVERIFY(isReadable(fd.get()));
    QCOMPARE(readEvents(fd.get()), (QVector<Event>{{EV_SW, SW_LID, 1}, {EV_SW, SW_DOCK, 1}, Report}));
    QVERIFY(!isReadable(fd.get()));

    QCOMPARE(device.send({{EV_MSC, MSC_SCAN, 9}}), 2);
    QCOMPARE(device.send({{EV_SW, SW_LID, 0}}), 2);
    QCOMPARE(readEvents(fd.get()), (QVector<Event>{{EV_MSC, MSC_SCAN, 9}, Report, {EV_SW, SW_LID, 0}, Report}));

    device.send({{EV_SW, SW_LID, 1}});
    input_event record = {};
    QCOMPARE(::read(fd.get(), &record, RecordSize), ssize_t(RecordSize));
    QVERIFY(qAbs(time(nullptr) - time_t(record.input_event_sec)) < 60);
}

void tst_EvdevSim::dropsWhatChangesNothing()
{
    InputDevice device("event0");
    device.add(EV_SW, {SW_LID}).add(EV_KEY, {KEY_MEDIA}).preset(EV_SW, SW_LID).publish();
    const UniqueFd fd = open(device);
    QCOMPARE(device.send({{EV_SW, SW_LID, 1}}), 0);
    QCOMPARE(device.send({{EV_SW, SW_LID, 7}}), 0);
    QCOMPARE(device.send({{EV_KEY, KEY_MEDIA, 0}}), 0);
    QCOMPARE(device.send({}), 0);
    // Neither does what the device cannot send.
    QCOMPARE(device.send({{EV_SW, SW_DOCK, 1}, {EV_KEY, KEY_POWER, 1}, {EV_REL, REL_X, 1}, {0xffff, 0, 1}}), 0);
    QCOMPARE(device.send({{EV_SW, 0xffff, 1}}), 0);
    QVERIFY(!isReadable(fd.get()));
    // A key repeats itself as often as it likes.
    QCOMPARE(device.send({{EV_KEY, KEY_MEDIA, 1}}), 2);
    QCOMPARE(device.send({{EV_KEY, KEY_MEDIA, 2}}), 2);
    QCOMPARE(device.send({{EV_KEY, KEY_MEDIA, 2}, {EV_SW, SW_LID, 1}}), 2);
    QCOMPARE(readEvents(fd.get()),
             (QVector<Event>{
                 {EV_KEY, KEY_MEDIA, 1}, Report, {EV_KEY, KEY_MEDIA, 2}, Report, {EV_KEY, KEY_MEDIA, 2}, Report}));
}

void tst_EvdevSim::statesFollowEvents()
{
    InputDevice device("event0");
    device.add(EV_SW, {SW_LID, SW_DOCK}).publish();
    const UniqueFd fd = open(device);
    const auto states = [&fd] {
        unsigned long bits = 0;
        return ioctl(fd.get(), EVIOCGSW(sizeof(bits)), &bits) == sizeof(bits) ? int(bits) : -1;
    };
    QCOMPARE(states(), 0);
    device.send({{EV_SW, SW_LID, 1}, {EV_SW, SW_DOCK, 1}});
    QCOMPARE(states(), 1 << SW_LID | 1 << SW_DOCK);
    device.send({{EV_SW, SW_LID, 0}});
    QCOMPARE(states(), 1 << SW_DOCK);
    QCOMPARE(evdev_state("event0", EV_SW, SW_DOCK), 1);
    // Bytes of whatever kind are no event of the device.
    device.deliver(inputRecord(EV_SW, SW_DOCK, 0));
    QCOMPARE(states(), 1 << SW_DOCK);
}

void tst_EvdevSim::askingForStatesDropsTheirEvents()
{
    InputDevice device("event0");
    device.add(EV_SW, {SW_LID}).add(EV_KEY, {KEY_MEDIA}).publish();
    const UniqueFd fd = open(device);
    const UniqueFd other = open(device);
    device.send({{EV_SW, SW_LID, 1}});
    device.send({{EV_KEY, KEY_MEDIA, 1}, {EV_SW, SW_LID, 0}});
    device.send({{EV_SW, SW_LID, 1}});
    unsigned long bits = 0;
    QVERIFY(ioctl(fd.get(), EVIOCGSW(sizeof(bits)), &bits) > 0);
    QCOMPARE(readEvents(fd.get()), (QVector<Event>{{EV_KEY, KEY_MEDIA, 1}, Report}));
    QCOMPARE(readEvents(other.get()).size(), 7);
    // The mode of the descriptor has survived.
    QVERIFY(readEvents(fd.get()).isEmpty());
    QCOMPARE(errno, EAGAIN);
}

void tst_EvdevSim::eachReaderHasItsOwnQueue()
{
    InputDevice device("event0");
    device.add(EV_SW, {SW_LID}).publish();
    const UniqueFd first = open(device);
    device.send({{EV_SW, SW_LID, 1}});
    UniqueFd second = open(device);
    QCOMPARE(device.readers(), 2);
    device.send({{EV_SW, SW_LID, 0}});
    QCOMPARE(readEvents(first.get()).size(), 4);
    // What happened before the open is none of its business.
    QCOMPARE(readEvents(second.get()), (QVector<Event>{{EV_SW, SW_LID, 0}, Report}));
    second.reset();
    QCOMPARE(device.readers(), 1);
    QCOMPARE(device.opens(), 2);
}

void tst_EvdevSim::readsWholeRecords()
{
    InputDevice device("event0");
    device.publish();
    const UniqueFd fd = open(device);
    device.deliver(inputRecord(EV_KEY, 1, 1).repeated(400));
    char buffer[8192];
    QCOMPARE(::read(fd.get(), buffer, RecordSize - 1), ssize_t(-1));
    QCOMPARE(errno, EINVAL);
    QCOMPARE(::read(fd.get(), buffer, RecordSize), ssize_t(RecordSize));
    QCOMPARE(::read(fd.get(), buffer, 2 * RecordSize - 1), ssize_t(RecordSize));
    // 4080 bytes where a record has 24.
    QCOMPARE(::read(fd.get(), buffer, 4096), ssize_t(4096 / RecordSize * RecordSize));
    QCOMPARE(::read(fd.get(), buffer, sizeof(buffer)), ssize_t((398 - 4096 / RecordSize) * RecordSize));
}

void tst_EvdevSim::waitsOnlyInBlockingMode()
{
    InputDevice device("event0");
    device.add(EV_SW, {SW_LID}).publish();
    const UniqueFd fd = open(device);
    QVERIFY(readEvents(fd.get()).isEmpty());
    QCOMPARE(errno, EAGAIN);

    const UniqueFd blocking = open(device, O_RDONLY);
    std::atomic<bool> hasRead{false};
    std::thread later([&device, &hasRead] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        device.send({{EV_SW, SW_LID, 1}});
        while (!hasRead)
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        device.failRead(EIO);
    });
    const QVector<Event> events = readEvents(blocking.get());
    hasRead = true;
    const QVector<Event> failed = readEvents(blocking.get());
    const int error = errno;
    later.join();
    QCOMPARE(events, (QVector<Event>{{EV_SW, SW_LID, 1}, Report}));
    QVERIFY(failed.isEmpty());
    QCOMPARE(error, EIO);
}

void tst_EvdevSim::tellsOfLostRecords()
{
    InputDevice device("event0");
    device.add(EV_SW, {SW_LID}).publish();
    const UniqueFd slow = open(device);
    const UniqueFd quick = open(device);
    int sent = 0;
    for (int i = 0; i < 3000; ++i) {
        device.send({{EV_SW, SW_LID, (i + 1) % 2}});
        sent += 2;
        if (i % 100 == 0)
            QVERIFY(!readEvents(quick.get()).isEmpty());
    }
    int received = 0;
    int lost = 0;
    QVector<Event> last;
    while (isReadable(slow.get())) {
        last = readEvents(slow.get());
        received += last.size();
        lost += last.count(Event{EV_SYN, SYN_DROPPED, 0});
    }
    QCOMPARE(lost, 1);
    QVERIFY(received < sent);
    QCOMPARE(last.mid(last.size() - 2), (QVector<Event>{{EV_SW, SW_LID, 0}, Report}));
}

void tst_EvdevSim::readsKeepTheirOrder()
{
    InputDevice device("event0");
    device.add(EV_REL, {REL_X}).publish();
    const UniqueFd fd = open(device);
    std::thread writer([&device] {
        for (int i = 1; i <= 2000; ++i)
            device.send({{EV_REL, REL_X, i}});
    });
    int next = 1;
    bool ordered = true;
    while (next <= 2000 && ordered) {
        pollfd poll = {fd.get(), POLLIN, 0};
        ordered = ::poll(&poll, 1, 10000) == 1;
        const QVector<Event> events = readEvents(fd.get(), 170);
        for (const Event &event : events) {
            if (event.type == EV_REL)
                ordered = ordered && event.value == next++;
        }
    }
    writer.join();
    QVERIFY(ordered);
}

void tst_EvdevSim::goneDevice()
{
    InputDevice device("event0");
    device.add(EV_SW, {SW_LID}).publish();
    const UniqueFd fd = open(device);
    const UniqueFd blocking = open(device, O_RDONLY);
    device.send({{EV_SW, SW_LID, 1}});
    device.unplug();
    QVERIFY(!QFile::exists(device.path()));
    QVERIFY(!QFile::exists(QStringLiteral("/dev/input/.evdev/event0")));
    for (int round = 0; round < 3; ++round) {
        QVERIFY(isReadable(fd.get()));
        QVERIFY(readEvents(fd.get()).isEmpty());
        QCOMPARE(errno, ENODEV);
        QVERIFY(readEvents(blocking.get()).isEmpty());
        QCOMPARE(errno, ENODEV);
    }
    int version = 0;
    QCOMPARE(ioctl(fd.get(), EVIOCGVERSION, &version), -1);
    QCOMPARE(errno, ENODEV);
    QVERIFY(!open(device).isOpen());
    QCOMPARE(errno, ENOENT);

    // Another device of the same name does not bring the old one back.
    InputDevice again("event0");
    again.add(EV_SW, {SW_LID}).publish();
    const UniqueFd fresh = open(again);
    again.send({{EV_SW, SW_LID, 1}});
    QCOMPARE(readEvents(fresh.get()).size(), 2);
    QVERIFY(readEvents(fd.get()).isEmpty());
    QCOMPARE(errno, ENODEV);
}

void tst_EvdevSim::provokedFailures()
{
    InputDevice device("event0");
    device.add(EV_SW, {SW_LID}).publish();
    UniqueFd fd = open(device);
    char buffer[64];
    device.failIoctl(EVIOCGBIT(EV_SW, 0), EIO);
    QCOMPARE(ioctl(fd.get(), EVIOCGBIT(EV_SW, 8), buffer), -1);
    QCOMPARE(errno, EIO);
    QCOMPARE(ioctl(fd.get(), EVIOCGBIT(0, 8), buffer), int(sizeof(long)));
    device.failIoctl(EVIOCGBIT(EV_SW, 0), 0);
    QCOMPARE(ioctl(fd.get(), EVIOCGBIT(EV_SW, 8), buffer), int(sizeof(long)));

    device.failOpen(EBUSY);
    QVERIFY(!open(device).isOpen());
    QCOMPARE(errno, EBUSY);
    device.failOpen(0);

    device.failRead(EVDEV_END_OF_FILE);
    QVERIFY(isReadable(fd.get()));
    QCOMPARE(::read(fd.get(), buffer, sizeof(buffer)), ssize_t(0));
    QCOMPARE(::read(fd.get(), buffer, sizeof(buffer)), ssize_t(0));
    QVERIFY(isReadable(fd.get()));
    // Who comes later finds it broken too.
    const UniqueFd later = open(device);
    QVERIFY(isReadable(later.get()));
    QCOMPARE(::read(later.get(), buffer, sizeof(buffer)), ssize_t(0));
    device.failRead(0);
    QVERIFY(!isReadable(fd.get()));
    QVERIFY(!isReadable(later.get()));
    device.send({{EV_SW, SW_LID, 1}});
    QCOMPARE(readEvents(fd.get()).size(), 2);
}

void tst_EvdevSim::leavesOtherDescriptorsAlone()
{
    InputDevice device("event0");
    device.publish();
    UniqueFd fd = open(device);
    char name[32];
    QVERIFY(ioctl(fd.get(), EVIOCGNAME(sizeof(name)), name) > 0);
    // The number of an event device becomes a pipe's.
    int ends[2];
    QCOMPARE(pipe2(ends, O_CLOEXEC), 0);
    const UniqueFd writing(ends[1]);
    QCOMPARE(dup3(ends[0], fd.get(), O_CLOEXEC), fd.get());
    const UniqueFd reading = std::move(fd);
    ::close(ends[0]);
    char byte = 'x';
    QCOMPARE(::write(writing.get(), &byte, 1), ssize_t(1));
    QCOMPARE(::read(reading.get(), &byte, 1), ssize_t(1));
    int version = 0;
    QCOMPARE(ioctl(reading.get(), EVIOCGVERSION, &version), -1);
    QCOMPARE(errno, ENOTTY);
    QCOMPARE(ioctl(-1, EVIOCGVERSION, &version), -1);
    QCOMPARE(errno, EBADF);
    QCOMPARE(::read(-1, &byte, 1), ssize_t(-1));
    QCOMPARE(errno, EBADF);
    QCOMPARE(::open("/dev/input/none", O_RDONLY), -1);
    QCOMPARE(errno, ENOENT);

    // A FIFO in the folder is a FIFO.
    QCOMPARE(mkfifo("/dev/input/fifo", 0600), 0);
    const UniqueFd fifo(::open("/dev/input/fifo", O_RDWR | O_CLOEXEC));
    QVERIFY(QFile::remove(QStringLiteral("/dev/input/fifo")));
    QCOMPARE(::write(fifo.get(), &byte, 1), ssize_t(1));
    QCOMPARE(::read(fifo.get(), &byte, 1), ssize_t(1));
    QCOMPARE(ioctl(fifo.get(), EVIOCGVERSION, &version), -1);
    QCOMPARE(errno, ENOTTY);
}

void tst_EvdevSim::worksAcrossDescriptorsAndProcesses()
{
    InputDevice device("event0");
    device.add(EV_SW, {SW_LID}).publish();
    QVERIFY(QFile::link(QStringLiteral("event0"), QStringLiteral("/dev/input/lid")));
    const UniqueFd fd(::open("/dev/input/lid", O_RDONLY | O_CLOEXEC));
    QVERIFY(QFile::remove(QStringLiteral("/dev/input/lid")));
    QVERIFY(fd.isOpen());
    const UniqueFd copy(fcntl(fd.get(), F_DUPFD_CLOEXEC, 200));
    char name[32];
    QVERIFY(ioctl(copy.get(), EVIOCGNAME(sizeof(name)), name) > 0);
    const pid_t child = fork();
    if (child == 0) {
        device.send({{EV_SW, SW_LID, 1}});
        _exit(ioctl(fd.get(), EVIOCGNAME(sizeof(name)), name) > 0 ? 0 : 1);
    }
    int status = -1;
    QCOMPARE(waitpid(child, &status, 0), child);
    QCOMPARE(status, 0);
    QCOMPARE(readEvents(copy.get()), (QVector<Event>{{EV_SW, SW_LID, 1}, Report}));
    QCOMPARE(evdev_state("event0", EV_SW, SW_LID), 1);
}

void tst_EvdevSim::worksPreloaded()
{
    Dl_info library = {};
    QVERIFY(dladdr(reinterpret_cast<void *>(&evdev_send), &library));
    InputDevice device("event0");
    device.add(EV_SW, {SW_LID}).publish();
    QProcess dd;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // The loader takes a blank in a path for the end of it.
    const QString copy = QStringLiteral("/run/kiv/libkiv-evdevsim.so");
    QVERIFY(QFile::copy(QString::fromLocal8Bit(library.dli_fname), copy));
    environment.insert(QStringLiteral("LD_PRELOAD"), copy);
    dd.setProcessEnvironment(environment);
    dd.start(QStringLiteral("dd"),
             {QStringLiteral("if=") + device.path(), QStringLiteral("bs=4096"), QStringLiteral("count=1"),
              QStringLiteral("status=none")});
    QTRY_COMPARE(device.readers(), 1);
    device.send({{EV_SW, SW_LID, 1}});
    QVERIFY(dd.waitForFinished());
    QCOMPARE(dd.exitCode(), 0);
    const QByteArray output = dd.readAllStandardOutput();
    QCOMPARE(output.size(), int(2 * RecordSize));
    input_event record = {};
    memcpy(&record, output.constData(), RecordSize);
    QCOMPARE(int(record.type), EV_SW);
    QCOMPARE(record.value, 1);
    QTRY_COMPARE(device.readers(), 0);
}

void tst_EvdevSim::worksWithLibevdev()
{
    InputDevice device("event0");
    device.add(EV_SW, {SW_LID, SW_DOCK}).add(EV_KEY, {KEY_MEDIA}).preset(EV_SW, SW_DOCK).publish();
    const UniqueFd fd = open(device);
    libevdev *evdev = nullptr;
    QCOMPARE(libevdev_new_from_fd(fd.get(), &evdev), 0);
    const std::unique_ptr<libevdev, decltype(&libevdev_free)> owner(evdev, libevdev_free);
    QCOMPARE(libevdev_get_name(evdev), "test device");
    QVERIFY(libevdev_has_event_code(evdev, EV_SW, SW_LID));
    QVERIFY(!libevdev_has_event_code(evdev, EV_SW, SW_TABLET_MODE));
    QVERIFY(libevdev_has_event_code(evdev, EV_KEY, KEY_MEDIA));
    QCOMPARE(libevdev_get_event_value(evdev, EV_SW, SW_LID), 0);
    QCOMPARE(libevdev_get_event_value(evdev, EV_SW, SW_DOCK), 1);
    device.send({{EV_SW, SW_LID, 1}});
    input_event record = {};
    QCOMPARE(libevdev_next_event(evdev, LIBEVDEV_READ_FLAG_NORMAL, &record), int(LIBEVDEV_READ_STATUS_SUCCESS));
    QVERIFY(libevdev_event_is_code(&record, EV_SW, SW_LID));
    QCOMPARE(libevdev_next_event(evdev, LIBEVDEV_READ_FLAG_NORMAL, &record), int(LIBEVDEV_READ_STATUS_SUCCESS));
    QVERIFY(libevdev_event_is_code(&record, EV_SYN, SYN_REPORT));
    QCOMPARE(libevdev_next_event(evdev, LIBEVDEV_READ_FLAG_NORMAL, &record), -EAGAIN);
    QCOMPARE(libevdev_get_event_value(evdev, EV_SW, SW_LID), 1);
}

QTEST_GUILESS_MAIN(tst_EvdevSim)

#include "tst_evdevsim.moc"
