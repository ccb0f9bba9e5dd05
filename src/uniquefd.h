// SPDX-License-Identifier: BSD-3-Clause
#ifndef UNIQUEFD_H
#define UNIQUEFD_H

#include <utility>

#include <unistd.h>

/*! Owns one file descriptor and closes it. Negative means none. */
class UniqueFd
{
public:
    explicit UniqueFd(int fd = -1) : m_fd(fd) { }
    UniqueFd(UniqueFd &&other) noexcept : m_fd(std::exchange(other.m_fd, -1)) { }
    UniqueFd &operator=(UniqueFd &&other) noexcept
    {
        reset(std::exchange(other.m_fd, -1));
        return *this;
    }
    ~UniqueFd() { reset(); }

    int get() const { return m_fd; }
    bool isOpen() const { return m_fd >= 0; }
    void reset(int fd = -1)
    {
        if (m_fd >= 0)
            ::close(m_fd);
        m_fd = fd;
    }

private:
    int m_fd;
};

#endif
