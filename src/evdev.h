// SPDX-License-Identifier: BSD-3-Clause
#ifndef EVDEV_H
#define EVDEV_H

#include "uniquefd.h"

#include <QDir>
#include <QStringList>

#include <array>
#include <cstring>

#include <linux/input.h>
#include <unistd.h>

/*!
 * Bits that an event device reports about itself: its event types, the codes of one type, or the switches that are on.
 * All clear until read. The kernel's own bitmaps differ in length from kernel to kernel; bits that it does not know
 * stay clear.
 */
class EvdevBits
{
public:
    /*!
     * Fills the bits by one of the EVIOCG... requests that copy a bitmap. \a request may ask for up to KEY_CNT bytes.
     * Returns false, with errno set, when the ioctl fails.
     */
    bool read(int fd, unsigned long request);

    bool test(unsigned bit) const
    {
        constexpr unsigned BitsPerWord = 8 * sizeof(unsigned long);
        return (m_words[bit / BitsPerWord] >> (bit % BitsPerWord)) & 1;
    }

private:
    // As many bytes as the longest request announces, although the kernel needs an eighth of them for its longest
    // bitmap: what a driver could copy then fits.
    std::array<unsigned long, KEY_CNT / sizeof(unsigned long)> m_words{};
};

/*! Absolute paths of the entries of /dev/input that pass the filters, by name and without regard to case. */
QStringList inputNodes(QDir::Filters filters);

/*! Opens an input node for blocking reads. None, with errno set, when that fails. Never waits in the open itself. */
UniqueFd openInputNode(const QString &path);

/*!
 * One read of at most 4096 bytes; handle(record) for each whole input record in it, in order. A record cut short at the
 * end is left out. Returns what read() returned: 0 at end of file, negative on error.
 */
template<typename Handler>
ssize_t readInputRecords(int fd, Handler handle)
{
    alignas(input_event) char buffer[4096];
    const ssize_t size = ::read(fd, buffer, sizeof(buffer));
    input_event record;
    for (ssize_t at = 0; at + ssize_t(sizeof(record)) <= size; at += ssize_t(sizeof(record))) {
        std::memcpy(&record, buffer + at, sizeof(record));
        handle(record);
    }
    return size;
}

#endif
