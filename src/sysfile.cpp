// SPDX-License-Identifier: BSD-3-Clause
#include "sysfile.h"

#include "uniquefd.h"

#include <QFile>

#include <cerrno>
#include <cstring>

#include <fcntl.h>

namespace
{
constexpr size_t ChunkSize = 4096; // one sysfs attribute fits into a page
constexpr int MaximumSize = 1 << 24; // some files never end, and memory does

ssize_t readChunk(int fd, char *buffer)
{
    ssize_t size;
    do {
        size = ::read(fd, buffer, ChunkSize);
    } while (size < 0 && errno == EINTR);
    return size;
}

/*! Reads until the delimiter, which is left out, or to the end where there is none, but not for ever. */
QByteArray readUntil(const QString &path, int delimiter)
{
    // A pipe that lies in the file's place must not hold up the page. Files do not care.
    const UniqueFd file(::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!file.isOpen())
        return QByteArray();

    QByteArray content("");
    char buffer[ChunkSize];
    ssize_t size = 0;
    while (content.size() < MaximumSize && (size = readChunk(file.get(), buffer)) > 0) {
        const auto *const end =
            delimiter < 0 ? nullptr : static_cast<const char *>(std::memchr(buffer, delimiter, size_t(size)));
        content.append(buffer, end ? int(end - buffer) : int(size));
        if (end)
            return content;
    }
    return size < 0 ? QByteArray() : content;
}
}

QByteArray readFirstLine(const QString &path)
{
    return readUntil(path, '\n');
}

QByteArray readWholeFile(const QString &path)
{
    return readUntil(path, -1);
}
