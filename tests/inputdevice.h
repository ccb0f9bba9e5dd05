// SPDX-License-Identifier: BSD-3-Clause
#ifndef INPUTDEVICE_H
#define INPUTDEVICE_H

#include <QByteArray>
#include <QString>
#include <QVector>

#include <initializer_list>

#include <dirent.h>
#include <evdevsim.h>
#include <linux/input.h>

/*! A simulated event device in /dev/input, there from publish() to its end. */
class InputDevice
{
public:
    explicit InputDevice(const char *node, bool isEvent = true) : m_node(node)
    {
        check(evdev_create(node, isEvent, "test device", "test/input0", nullptr));
    }
    InputDevice(InputDevice &&other) noexcept : m_node(other.m_node) { other.m_node = nullptr; }
    InputDevice &operator=(InputDevice &&) = delete;
    ~InputDevice()
    {
        if (m_node)
            evdev_remove(m_node);
    }

    InputDevice &add(int type, std::initializer_list<int> codes)
    {
        for (int code : codes)
            check(evdev_add_code(m_node, type, code));
        return *this;
    }
    InputDevice &preset(int type, int code, bool on = true)
    {
        check(evdev_preset(m_node, type, code, on));
        return *this;
    }
    InputDevice &publish(unsigned mode = 0660)
    {
        check(evdev_publish(m_node, mode));
        return *this;
    }
    void unplug() { check(evdev_remove(m_node)); }

    const char *node() const { return m_node; }
    QString path() const { return QStringLiteral("/dev/input/") + QLatin1String(m_node); }

    /*! One frame as a driver reports it. Returns the number of records that came of it. */
    int send(std::initializer_list<evdev_change> changes)
    {
        return check(evdev_send(m_node, changes.begin(), changes.size()));
    }
    /*! Exactly these bytes, whatever the device is. */
    void deliver(const QByteArray &bytes) { check(evdev_deliver(m_node, bytes.constData(), size_t(bytes.size()))); }

    void failOpen(int error) { check(evdev_fail_open(m_node, error)); }
    void failRead(int error) { check(evdev_fail_read(m_node, error)); }
    void failIoctl(unsigned long request, int error) { check(evdev_fail_ioctl(m_node, _IOC_NR(request), error)); }

    QVector<ulong> requests() const
    {
        QVector<ulong> all(256);
        all.resize(check(evdev_requests(m_node, all.data(), all.size())));
        return all;
    }
    int opens() const { return check(evdev_opens(m_node)); }
    int readers() const { return check(evdev_readers(m_node)); }
    int reads() const { return check(evdev_reads(m_node, nullptr)); }
    int readLength() const
    {
        size_t length = 0;
        check(evdev_reads(m_node, &length));
        return int(length);
    }

private:
    static int check(int result)
    {
        if (result < 0)
            qFatal("simulated input device: %s", strerror(-result));
        return result;
    }

    const char *m_node;
};

inline QByteArray inputRecord(int type, int code, int value)
{
    input_event record = {};
    record.input_event_sec = 1;
    record.type = quint16(type);
    record.code = quint16(code);
    record.value = value;
    return QByteArray(reinterpret_cast<const char *>(&record), sizeof(record));
}

/*! How many descriptors this process has open. */
inline int openDescriptors()
{
    int count = 0;
    DIR *folder = opendir("/proc/self/fd");
    while (readdir(folder))
        ++count;
    closedir(folder);
    return count;
}

#endif
