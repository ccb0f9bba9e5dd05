// SPDX-License-Identifier: BSD-3-Clause
#include "halldetect.h"

#include "evdev.h"

#include <QDebug>
#include <QSocketNotifier>

#include <cerrno>
#include <cstring>

namespace
{
// Bytes asked for the bits of the switches. The kernel has no more of them than this holds.
constexpr unsigned SwitchBytes = 16;

/*! Opens the node if it is a lid switch, and tells whether the switch is on. */
UniqueFd openLidSwitch(const QString &path, bool *on)
{
    UniqueFd fd = openInputNode(path);
    if (!fd.isOpen()) {
        qWarning() << path << "is not a valid device.";
        return fd;
    }
    EvdevBits types;
    if (!types.read(fd.get(), EVIOCGBIT(0, EV_CNT))) {
        qWarning("EVIOCGBIT(%d): %s", fd.get(), strerror(errno));
        return UniqueFd();
    }
    if (!types.test(EV_SW))
        return UniqueFd();
    EvdevBits switches;
    if (!switches.read(fd.get(), EVIOCGBIT(EV_SW, SwitchBytes))) {
        qWarning("EVIOCGBIT(%d): %s", fd.get(), strerror(errno));
        return UniqueFd();
    }
    if (!switches.test(SW_LID))
        return UniqueFd();
    EvdevBits states;
    if (!states.read(fd.get(), EVIOCGSW(SwitchBytes))) {
        qWarning("EVIOCGSW(%d): %s", fd.get(), strerror(errno));
        return UniqueFd();
    }
    *on = states.test(SW_LID);
    return fd;
}
}

HallDetect::HallDetect(QObject *parent) : QObject(parent)
{
}

HallDetect::~HallDetect()
{
    closeFile();
}

void HallDetect::openFile()
{
    closeFile();
    const QStringList paths = inputNodes(QDir::System | QDir::Files);
    for (const QString &path : paths) {
        bool on = false;
        UniqueFd fd = openLidSwitch(path, &on);
        if (!fd.isOpen())
            continue;
        m_fd = std::move(fd);
        m_notifier = std::make_unique<QSocketNotifier>(m_fd.get(), QSocketNotifier::Read, this);
        connect(m_notifier.get(), &QSocketNotifier::activated, this, &HallDetect::readHallData);
        setHall(on);
        return;
    }
}

void HallDetect::closeFile()
{
    // A page may do this in answer to hallChanged(), that is while the notifier delivers. It bears that: it does not
    // touch itself any more when its signal returns.
    m_notifier.reset();
    m_fd.reset();
}

bool HallDetect::hall() const
{
    return m_hall;
}

void HallDetect::readHallData(int)
{
    bool on = m_hall;
    const ssize_t size = readInputRecords(m_fd.get(), [&on](const input_event &record) {
        // Whatever the code: the device has no other switch.
        if (record.type == EV_SW)
            on = record.value != 0;
    });
    if (size < 1) {
        qWarning("file error!");
        return;
    }
    setHall(on);
}

// The handler of the signal may close, open or destroy this object, so nothing may follow a call.
void HallDetect::setHall(bool hall)
{
    if (m_hall == hall)
        return;
    m_hall = hall;
    Q_EMIT hallChanged();
}
