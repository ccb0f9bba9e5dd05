// SPDX-License-Identifier: BSD-3-Clause
#include "channelwriter.h"
#include "metaobject.h"

#include <QBuffer>
#include <QtTest>

#include <cstring>

#include <sys/mman.h>
#include <unistd.h>

namespace
{
/*! A copy of some bytes that ends where the address space may not be read any more. */
class GuardedBytes
{
public:
    explicit GuardedBytes(const QByteArray &bytes)
    {
        const size_t page = size_t(::sysconf(_SC_PAGESIZE));
        m_size = (size_t(bytes.size()) / page + 2) * page;
        m_memory =
            static_cast<char *>(::mmap(nullptr, m_size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
        ::mprotect(m_memory + m_size - page, page, PROT_NONE);
        m_data = m_memory + m_size - page - bytes.size();
        std::memcpy(m_data, bytes.constData(), size_t(bytes.size()));
    }
    ~GuardedBytes() { ::munmap(m_memory, m_size); }
    Q_DISABLE_COPY(GuardedBytes)

    const char *data() const { return m_data; }

private:
    char *m_memory;
    char *m_data;
    size_t m_size;
};

/*! Takes a fixed number of bytes of each write, or fails. */
class StubbornDevice : public QIODevice
{
public:
    explicit StubbornDevice(qint64 result) : m_result(result) { open(QIODevice::WriteOnly | QIODevice::Unbuffered); }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *, qint64) override { return m_result; }

private:
    qint64 m_result;
};

/*! Remembers the address of what it was given. */
class AddressDevice : public QIODevice
{
public:
    AddressDevice() { open(QIODevice::WriteOnly | QIODevice::Unbuffered); }
    const char *written = nullptr;
    int calls = 0;

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *data, qint64 len) override
    {
        written = data;
        ++calls;
        return len;
    }
};

/*! What is expected, written as plainly as it can be said: each kept sample twice, cut where the buffer is cut. */
QByteArray expected(const QByteArray &frames, int channel, int sampleSize)
{
    if (channel == ChannelWriter::Stereo)
        return frames;
    QByteArray kept;
    for (int frame = 0; frame < frames.size(); frame += 2 * sampleSize) {
        const QByteArray sample = frames.mid(frame + channel * sampleSize, sampleSize);
        kept += sample + sample;
    }
    return kept;
}

QByteArray someBytes(int size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    for (int i = 0; i < size; ++i)
        bytes[i] = char((i * 7 + i / 251) & 0xff);
    return bytes;
}
}

class tst_ChannelWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsOneChannel_data();
    void keepsOneChannel();
    void everyLength_data();
    void everyLength();
    void passesOnTheTargetsResult_data();
    void passesOnTheTargetsResult();
    void stereoIsNotCopied();
    void writesOnceForEachBuffer();
    void cannotBeRead();
    void hasNoInterfaceOfItsOwn();
};

void tst_ChannelWriter::keepsOneChannel_data()
{
    QTest::addColumn<int>("channel");
    QTest::addColumn<QByteArray>("kept");
    QTest::newRow("left") << 0
                          << QByteArray("abab"
                                        "efef");
    QTest::newRow("right") << 1
                           << QByteArray("cdcd"
                                         "ghgh");
    QTest::newRow("stereo") << 2
                            << QByteArray("abcd"
                                          "efgh");
}

void tst_ChannelWriter::keepsOneChannel()
{
    QFETCH(int, channel);
    QFETCH(QByteArray, kept);
    QBuffer target;
    target.open(QIODevice::WriteOnly);
    ChannelWriter writer(&target, channel, 2);
    writer.open(QIODevice::WriteOnly);
    QCOMPARE(writer.write("abcdefgh", 8), qint64(8));
    QCOMPARE(target.data(), kept);
}

void tst_ChannelWriter::everyLength_data()
{
    QTest::addColumn<int>("channel");
    QTest::addColumn<int>("sampleSize");
    for (int channel = 0; channel <= 2; ++channel) {
        for (int sampleSize = 1; sampleSize <= 4; ++sampleSize)
            QTest::addRow("channel %d, %d-byte samples", channel, sampleSize) << channel << sampleSize;
    }
}

void tst_ChannelWriter::everyLength()
{
    QFETCH(int, channel);
    QFETCH(int, sampleSize);
    for (int length = 0; length <= 200; ++length) {
        const QByteArray frames = someBytes(length);
        const GuardedBytes guarded(frames);
        QBuffer target;
        target.open(QIODevice::WriteOnly);
        ChannelWriter writer(&target, channel, sampleSize);
        writer.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
        const qint64 result = writer.write(guarded.data(), length);
        const QByteArray kept = expected(frames, channel, sampleSize);
        QCOMPARE(target.data(), kept);
        QCOMPARE(result, qint64(kept.size()));
    }
}

void tst_ChannelWriter::passesOnTheTargetsResult_data()
{
    QTest::addColumn<int>("channel");
    QTest::addColumn<qint64>("result");
    for (int channel = 0; channel <= 2; ++channel) {
        QTest::addRow("error, channel %d", channel) << channel << qint64(-1);
        QTest::addRow("nothing, channel %d", channel) << channel << qint64(0);
        QTest::addRow("a part, channel %d", channel) << channel << qint64(3);
    }
}

void tst_ChannelWriter::passesOnTheTargetsResult()
{
    QFETCH(int, channel);
    QFETCH(qint64, result);
    StubbornDevice target(result);
    ChannelWriter writer(&target, channel, 2);
    writer.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    QCOMPARE(writer.write("abcdefgh", 8), result);
}

void tst_ChannelWriter::stereoIsNotCopied()
{
    AddressDevice target;
    ChannelWriter writer(&target, ChannelWriter::Stereo, 2);
    writer.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    const QByteArray frames = someBytes(65536);
    writer.write(frames.constData(), frames.size());
    QCOMPARE(static_cast<const void *>(target.written), static_cast<const void *>(frames.constData()));
}

void tst_ChannelWriter::writesOnceForEachBuffer()
{
    AddressDevice target;
    ChannelWriter writer(&target, ChannelWriter::Left, 2);
    writer.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    const QByteArray frames = someBytes(4096);
    writer.write(frames);
    QCOMPARE(target.calls, 1);
    writer.write(frames);
    QCOMPARE(target.calls, 2);
}

void tst_ChannelWriter::cannotBeRead()
{
    QBuffer target;
    target.open(QIODevice::ReadWrite);
    target.write("abcd");
    ChannelWriter writer(&target, ChannelWriter::Left, 2);
    writer.open(QIODevice::ReadWrite | QIODevice::Unbuffered);
    char byte = 0;
    QCOMPARE(writer.read(&byte, 1), qint64(-1));
}

void tst_ChannelWriter::hasNoInterfaceOfItsOwn()
{
    QCOMPARE(ownInterface(ChannelWriter::staticMetaObject), QStringList());
    QCOMPARE(ChannelWriter::staticMetaObject.className(), "ChannelWriter");
}

QTEST_GUILESS_MAIN(tst_ChannelWriter)
#include "tst_channelwriter.moc"
