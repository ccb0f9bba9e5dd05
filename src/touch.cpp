// SPDX-License-Identifier: BSD-3-Clause
#include "touch.h"

#include <QBuffer>
#include <QDebug>
#include <QTextStream>

#include <cerrno>
#include <cstring>
#include <system_error>
#include <thread>

#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <sys/stat.h>

namespace
{
const char ChipFile[] = "/proc/touchinfo/tp_chip";
const char SelfTestFile[] = "/sys/kernel/debug/tp_s3202_dbg/tp_self_test";
const QLatin1String PassedLine("0");
constexpr size_t ChunkSize = 4096;
constexpr int MaximumSize = 1 << 20; // no driver writes a longer line, and memory has an end
const char OpenedMark = '+';
constexpr int Forever = -1;

int pollRetrying(pollfd *watched, nfds_t count, int timeoutMs)
{
    int ready;
    do {
        ready = ::poll(watched, count, timeoutMs);
    } while (ready < 0 && errno == EINTR);
    return ready;
}

/*! Like read(), but returns 0 as soon as the other descriptor has an event, while there is nothing to be read. */
ssize_t readUnless(pollfd other, int fd, char *buffer, size_t size)
{
    ssize_t got;
    do {
        pollfd watched[] = {{fd, POLLIN, 0}, other};
        if (pollRetrying(watched, std::size(watched), Forever) < 0 || watched[1].revents != 0)
            return 0;
        got = ::read(fd, buffer, size);
    } while (got < 0 && errno == EINTR);
    return got;
}

bool sendAll(int channel, const char *data, size_t size)
{
    while (size > 0) {
        const ssize_t sent = ::send(channel, data, size, MSG_NOSIGNAL);
        if (sent < 0 && errno != EINTR)
            return false;
        data += qMax(sent, ssize_t(0));
        size -= size_t(qMax(sent, ssize_t(0)));
    }
    return true;
}

/*!
 * Sends the first line of the file, and what was read along with it, through the channel, after one byte to say that
 * the file could be opened. Gives up when the other end of the channel is closed.
 */
void sendFirstLine(const char *path, int channel)
{
    // A pipe in the file's place must not hold up the opening. A driver has to serve one who waits, though: the others
    // it may turn away, and poll() says that its file can be read all the same.
    const UniqueFd file(::open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status;
    if (!file.isOpen() || ::fstat(file.get(), &status) != 0 || S_ISDIR(status.st_mode)
        || ::fcntl(file.get(), F_SETFL, 0) != 0)
        return;
    bool more = sendAll(channel, &OpenedMark, sizeof(OpenedMark));
    char buffer[ChunkSize];
    ssize_t size;
    while (more && (size = readUnless({channel, 0, 0}, file.get(), buffer, sizeof(buffer))) > 0) {
        const bool lineEnds = std::memchr(buffer, '\n', size_t(size));
        more = sendAll(channel, buffer, size_t(size)) && !lineEnds;
    }
}

/*!
 * A file whose reader can walk away. Nothing interrupts a driver in the middle of a read, so that happens on a thread
 * which nobody waits for. It shares nothing but the channel, and ends by itself once the driver lets go.
 */
class SlowFile
{
public:
    SlowFile(const char *path, int abandoned) : m_abandoned{abandoned, POLLIN, 0}
    {
        int ends[2];
        if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
            return;
        m_channel.reset(ends[0]);
        UniqueFd remote(ends[1]);
        try {
            std::thread([path, remote = std::move(remote)] { sendFirstLine(path, remote.get()); }).detach();
        } catch (const std::system_error &) {
            // Without a thread there is no other end, and the file counts as one that does not open.
        }
    }

    /*! Waits until the file is open; false when it does not open, and when it was abandoned. */
    bool waitOpened()
    {
        char mark;
        return m_channel.isOpen() && readUnless(m_abandoned, m_channel.get(), &mark, sizeof(mark)) == 1;
    }

    /*! Waits for the first line, as a text stream reads it; null when there is none. */
    QString waitFirstLine()
    {
        QByteArray content;
        char buffer[ChunkSize];
        ssize_t size;
        while (content.size() < MaximumSize
               && (size = readUnless(m_abandoned, m_channel.get(), buffer, sizeof(buffer))) > 0)
            content.append(buffer, int(size));
        QBuffer device(&content);
        device.open(QIODevice::ReadOnly | QIODevice::Text);
        return QTextStream(&device).readLine();
    }

private:
    const pollfd m_abandoned;
    UniqueFd m_channel;
};
}

Touch::Touch(QObject *parent) : QThread(parent), m_abandoned(::eventfd(0, EFD_CLOEXEC))
{
}

Touch::~Touch()
{
    ::eventfd_write(m_abandoned.get(), 1);
    wait();
}

void Touch::run()
{
    if (SlowFile chip(ChipFile, m_abandoned.get()); chip.waitOpened()) {
        const QString line = chip.waitFirstLine();
        if (isAbandoned())
            return;
        qDebug() << "Chip is " << line;
    }

    if (SlowFile selfTest(SelfTestFile, m_abandoned.get()); selfTest.waitOpened()) {
        qDebug() << "Read file";
        const QString line = selfTest.waitFirstLine();
        if (isAbandoned())
            return;
        qDebug() << "Result = " << line;
        if (line == PassedLine)
            m_result = true;
    }

    if (isAbandoned())
        return;
    qDebug() << "resultChanged sent, value: " << result();
    Q_EMIT resultChanged();
}

bool Touch::isAbandoned() const
{
    pollfd watched{m_abandoned.get(), POLLIN, 0};
    return pollRetrying(&watched, 1, 0) > 0;
}
