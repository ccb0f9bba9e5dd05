// SPDX-License-Identifier: BSD-3-Clause
#include "evdev.h"

#include "inputdevice.h"

#include <QFile>
#include <QTest>
#include <QVector>

#include <cerrno>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/stat.h>

class tst_Evdev : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bitsAreClearUntilRead();
    void readsBits_data();
    void readsBits();
    void bitsTellFailure();
    void bitsHaveRoomForWhatIsAsked();
    void listsNodes();
    void opensNodes();
    void opensNoFifoForEver();
    void readsRecords_data();
    void readsRecords();
    void readsAtMostOnePage();
    void readingTellsFailure();
};

void tst_Evdev::bitsAreClearUntilRead()
{
    const EvdevBits bits;
    for (unsigned bit = 0; bit < KEY_CNT; ++bit)
        QVERIFY(!bits.test(bit));
}

void tst_Evdev::readsBits_data()
{
    QTest::addColumn<ulong>("request");
    QTest::addColumn<QVector<int>>("expected");
    QTest::newRow("types") << ulong(EVIOCGBIT(0, EV_CNT)) << QVector<int>{EV_SYN, EV_KEY, EV_SW};
    QTest::newRow("types, one byte") << ulong(EVIOCGBIT(0, 1)) << QVector<int>{EV_SYN, EV_KEY, EV_SW};
    QTest::newRow("switches") << ulong(EVIOCGBIT(EV_SW, 16)) << QVector<int>{SW_LID, SW_MICROPHONE_INSERT, SW_MAX};
    QTest::newRow("switches, one byte") << ulong(EVIOCGBIT(EV_SW, 1)) << QVector<int>{SW_LID, SW_MICROPHONE_INSERT};
    QTest::newRow("switches, more than there is")
        << ulong(EVIOCGBIT(EV_SW, KEY_CNT)) << QVector<int>{SW_LID, SW_MICROPHONE_INSERT, SW_MAX};
    QTest::newRow("keys") << ulong(EVIOCGBIT(EV_KEY, KEY_CNT)) << QVector<int>{1, 31, 32, 63, 64, BTN_MISC, KEY_MAX};
    QTest::newRow("switches that are on") << ulong(EVIOCGSW(16)) << QVector<int>{SW_MICROPHONE_INSERT};
}

void tst_Evdev::readsBits()
{
    QFETCH(ulong, request);
    QFETCH(QVector<int>, expected);
    InputDevice device("event0");
    device.add(EV_KEY, {1, 31, 32, 63, 64, BTN_MISC, KEY_MAX}).add(EV_SW, {SW_LID, SW_MICROPHONE_INSERT, SW_MAX});
    device.preset(EV_SW, SW_MICROPHONE_INSERT).publish();
    const UniqueFd fd = openInputNode(device.path());
    QVERIFY(fd.isOpen());
    EvdevBits bits;
    // What an earlier request left behind does not shine through.
    QVERIFY(bits.read(fd.get(), EVIOCGBIT(EV_KEY, KEY_CNT)));
    QVERIFY(bits.read(fd.get(), request));
    QVector<int> set;
    for (unsigned bit = 0; bit < KEY_CNT; ++bit) {
        if (bits.test(bit))
            set << int(bit);
    }
    QCOMPARE(set, expected);
}

void tst_Evdev::bitsTellFailure()
{
    const UniqueFd fd(::open("/dev/null", O_RDONLY | O_CLOEXEC));
    EvdevBits bits;
    QVERIFY(!bits.read(fd.get(), EVIOCGBIT(0, EV_CNT)));
    QCOMPARE(errno, ENOTTY);
    QVERIFY(!bits.read(-1, EVIOCGBIT(0, EV_CNT)));
    QCOMPARE(errno, EBADF);
    QVERIFY(!bits.test(0));
}

void tst_Evdev::bitsHaveRoomForWhatIsAsked()
{
    QVERIFY(sizeof(EvdevBits) >= _IOC_SIZE(EVIOCGBIT(EV_KEY, KEY_CNT)));
    QCOMPARE(_IOC_SIZE(EVIOCGBIT(EV_KEY, KEY_CNT)), 768u);
}

void tst_Evdev::listsNodes()
{
    InputDevice ten("event10");
    ten.publish();
    InputDevice two("event2");
    two.publish();
    InputDevice upper("EVENT3");
    upper.publish();
    QVERIFY(QDir().mkdir(QStringLiteral("/dev/input/by-path")));
    QFile file(QStringLiteral("/dev/input/file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QStringList system = inputNodes(QDir::System | QDir::Readable);
    const QStringList all = inputNodes(QDir::System | QDir::Files);
    QVERIFY(file.remove());
    QVERIFY(QDir().rmdir(QStringLiteral("/dev/input/by-path")));
    QCOMPARE(system, (QStringList{ten.path(), two.path(), upper.path()}));
    QCOMPARE(all, (QStringList{ten.path(), two.path(), upper.path(), QStringLiteral("/dev/input/file")}));
}

void tst_Evdev::opensNodes()
{
    InputDevice device("event0");
    device.publish();
    const UniqueFd fd = openInputNode(device.path());
    QVERIFY(fd.isOpen());
    QCOMPARE(fcntl(fd.get(), F_GETFL) & O_NONBLOCK, 0);
    QCOMPARE(fcntl(fd.get(), F_GETFD) & FD_CLOEXEC, FD_CLOEXEC);

    device.failOpen(EACCES);
    QVERIFY(!openInputNode(device.path()).isOpen());
    QCOMPARE(errno, EACCES);
    QVERIFY(!openInputNode(QStringLiteral("/dev/input/none")).isOpen());
    QCOMPARE(errno, ENOENT);
}

void tst_Evdev::opensNoFifoForEver()
{
    QCOMPARE(mkfifo("/dev/input/fifo", 0600), 0);
    const UniqueFd fd = openInputNode(QStringLiteral("/dev/input/fifo"));
    QVERIFY(QFile::remove(QStringLiteral("/dev/input/fifo")));
    QVERIFY(fd.isOpen());
}

void tst_Evdev::readsRecords_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QVector<int>>("codes");
    const QByteArray first = inputRecord(EV_KEY, 0xffff, -5);
    const QByteArray second = inputRecord(EV_KEY, 7, -5);
    QTest::newRow("one") << first << QVector<int>{0xffff};
    QTest::newRow("two") << first + second << QVector<int>{0xffff, 7};
    QTest::newRow("one byte") << QByteArray(1, '\1') << QVector<int>();
    QTest::newRow("one byte short") << first.chopped(1) << QVector<int>();
    QTest::newRow("one byte more") << first + QByteArray(1, '\1') << QVector<int>{0xffff};
    QTest::newRow("two, one byte short") << first + second.chopped(1) << QVector<int>{0xffff};
}

void tst_Evdev::readsRecords()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QVector<int>, codes);
    int ends[2];
    QCOMPARE(pipe2(ends, O_CLOEXEC), 0);
    const UniqueFd reading(ends[0]);
    UniqueFd writing(ends[1]);
    QCOMPARE(::write(writing.get(), bytes.constData(), size_t(bytes.size())), ssize_t(bytes.size()));
    QVector<int> seen;
    const ssize_t size = readInputRecords(reading.get(), [&seen](const input_event &record) {
        QCOMPARE(int(record.type), EV_KEY);
        QCOMPARE(record.value, -5);
        seen << record.code;
    });
    QCOMPARE(size, ssize_t(bytes.size()));
    QCOMPARE(seen, codes);

    writing.reset();
    QCOMPARE(readInputRecords(reading.get(), [](const input_event &) { QFAIL("no record"); }), ssize_t(0));
}

void tst_Evdev::readsAtMostOnePage()
{
    int ends[2];
    QCOMPARE(pipe2(ends, O_CLOEXEC), 0);
    const UniqueFd reading(ends[0]);
    const UniqueFd writing(ends[1]);
    const QByteArray bytes = inputRecord(EV_KEY, 1, 1).repeated(400);
    QCOMPARE(::write(writing.get(), bytes.constData(), size_t(bytes.size())), ssize_t(bytes.size()));
    int count = 0;
    QCOMPARE(readInputRecords(reading.get(), [&count](const input_event &) { ++count; }), ssize_t(4096));
    QCOMPARE(count, 4096 / int(sizeof(input_event)));
}

void tst_Evdev::readingTellsFailure()
{
    QCOMPARE(readInputRecords(-1, [](const input_event &) { QFAIL("no record"); }), ssize_t(-1));
    QCOMPARE(errno, EBADF);
    InputDevice device("event0");
    device.publish();
    const UniqueFd fd = openInputNode(device.path());
    device.failRead(EIO);
    QCOMPARE(readInputRecords(fd.get(), [](const input_event &) { QFAIL("no record"); }), ssize_t(-1));
    QCOMPARE(errno, EIO);
}

QTEST_GUILESS_MAIN(tst_Evdev)

#include "tst_evdev.moc"
