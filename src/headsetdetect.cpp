// SPDX-License-Identifier: BSD-3-Clause
#include "headsetdetect.h"

#include "evdev.h"

#include <QLoggingCategory>
#include <QPointer>
#include <QSocketNotifier>

#include <cerrno>
#include <utility>

namespace
{
Q_LOGGING_CATEGORY(lcHeadset, "com.orvel.kiv.headsetdetect", QtWarningMsg)

// States of the jack: bits of what is plugged in.
constexpr int NothingIn = 0;
constexpr int HeadphoneIn = 1;
constexpr int MicrophoneIn = 2;
constexpr int HeadsetIn = HeadphoneIn | MicrophoneIn;

// Bytes asked for the switches that are on. The kernel has no more of them than this holds.
constexpr unsigned SwitchBytes = 16;

struct Button
{
    unsigned code;
    const char *name;
};

// The place in this table is the button's bit in buttonsPressed.
constexpr Button Buttons[] = {
    {BTN_MISC, "BTN_MISC"}, {BTN_1, "BTN_1"}, {BTN_2, "BTN_2"},         {BTN_3, "BTN_3"},
    {BTN_4, "BTN_4"},       {BTN_5, "BTN_5"}, {BTN_6, "BTN_6"},         {BTN_7, "BTN_7"},
    {BTN_8, "BTN_8"},       {BTN_9, "BTN_9"}, {KEY_MEDIA, "KEY_MEDIA"}, {KEY_PLAYPAUSE, "KEY_PLAYPAUSE"},
};

/*! By key code: the button's bit, or 0 for a key that is none of ours. */
struct ButtonBits
{
    constexpr ButtonBits()
    {
        quint16 bit = 1;
        for (const Button &button : Buttons) {
            m_bits[button.code] = bit;
            bit = quint16(bit << 1);
        }
    }

    constexpr uint of(unsigned code) const { return code < KEY_CNT ? m_bits[code] : 0; }

private:
    quint16 m_bits[KEY_CNT] = {};
};

constexpr ButtonBits BitOfButton;

/*! Whether this is an event device that has events of the type. */
bool hasEventType(int fd, const QString &path, int type)
{
    if (fd < 0)
        return false;
    EvdevBits bits;
    if (!bits.read(fd, EVIOCGVERSION)) {
        qCDebug(lcHeadset) << "Device" << path << "is not event device";
        return false;
    }
    if (!bits.read(fd, EVIOCGBIT(0, EV_CNT))) {
        qCWarning(lcHeadset) << "Device" << path << "EVIOCGBIT(0, EV_CNT) failed.";
        return false;
    }
    if (!bits.test(unsigned(type))) {
        qCDebug(lcHeadset) << "Device" << path << "is not of type" << type;
        return false;
    }
    return true;
}
}

HeadsetDetect::HeadsetDetect(QObject *parent) : QObject(parent)
{
}

HeadsetDetect::~HeadsetDetect() = default;

void HeadsetDetect::openDevice()
{
    // A page may do this in answer to a signal of ours, that is while the notifier delivers. It bears that: it does not
    // touch itself any more when its signal returns.
    m_headsetNotifier.reset();
    m_headsetFd.reset();
    m_deviceFound = false;
    m_headphoneOn = false;
    m_microphoneOn = false;
    m_jack = NothingIn;

    m_headsetFd = scan(&HeadsetDetect::isHeadset);
    if (!m_headsetFd.isOpen())
        return;
    m_headsetNotifier = std::make_unique<QSocketNotifier>(m_headsetFd.get(), QSocketNotifier::Read, this);
    connect(m_headsetNotifier.get(), &QSocketNotifier::activated, this, &HeadsetDetect::readHeadsetData);
    updateJack();
}

void HeadsetDetect::openButtonDevice()
{
    m_buttonNotifier.reset();
    m_buttonFd.reset();
    m_buttonsFound = false;
    m_buttonCount = 0;
    m_buttonsPressed = 0;

    m_buttonFd = scan(&HeadsetDetect::isButtonDevice);
    if (!m_buttonFd.isOpen())
        return;
    m_buttonNotifier = std::make_unique<QSocketNotifier>(m_buttonFd.get(), QSocketNotifier::Read, this);
    connect(m_buttonNotifier.get(), &QSocketNotifier::activated, this, &HeadsetDetect::readButtonData);
}

bool HeadsetDetect::deviceFound() const
{
    return m_deviceFound;
}

bool HeadsetDetect::headphoneInserted() const
{
    return m_jack == HeadphoneIn;
}

bool HeadsetDetect::microphoneInserted() const
{
    return m_jack == MicrophoneIn;
}

bool HeadsetDetect::headsetInserted() const
{
    return m_jack == HeadsetIn;
}

bool HeadsetDetect::buttonsFound() const
{
    return m_buttonsFound;
}

int HeadsetDetect::buttonCount() const
{
    return m_buttonCount;
}

uint HeadsetDetect::buttonsPressed() const
{
    return m_buttonsPressed;
}

bool HeadsetDetect::buttonPressed(HeadsetButton button) const
{
    return (uint(button) & m_buttonsPressed) != 0;
}

void HeadsetDetect::readHeadsetData(int fd)
{
    bool headphoneOn = m_headphoneOn;
    bool microphoneOn = m_microphoneOn;
    // Asked once for all records, for nobody changes the rules meanwhile.
    const bool tells = lcHeadset().isDebugEnabled();
    errno = 0;
    const ssize_t size = readInputRecords(fd, [&](const input_event &record) {
        if (record.type != EV_SW)
            return;
        const bool on = record.value == 1;
        if (record.code == SW_HEADPHONE_INSERT) {
            headphoneOn = on;
            if (tells)
                qCDebug(lcHeadset) << (on ? "headphone inserted" : "headphone removed");
        } else if (record.code == SW_MICROPHONE_INSERT) {
            microphoneOn = on;
            if (tells)
                qCDebug(lcHeadset) << (on ? "microphone inserted" : "microphone removed");
        }
    });
    if (size < 0) {
        qCWarning(lcHeadset) << "Couldn't read";
        return;
    }
    if (size == 0) {
        qCWarning(lcHeadset) << "EOF";
        return;
    }
    m_headphoneOn = headphoneOn;
    m_microphoneOn = microphoneOn;
    updateJack();
}

void HeadsetDetect::readButtonData(int fd)
{
    uint pressed = m_buttonsPressed;
    const bool tells = lcHeadset().isDebugEnabled();
    errno = 0;
    const ssize_t size = readInputRecords(fd, [&](const input_event &record) {
        const uint bit = record.type == EV_KEY ? BitOfButton.of(record.code) : 0;
        const bool down = record.value == 1;
        pressed = (pressed & ~bit) | (down ? bit : 0);
        if (tells && bit != 0) {
            qCDebug(lcHeadset) << "Button" << QStringLiteral("0x%1").arg(record.code, 0, 16)
                               << (down ? "pressed" : "released");
        }
    });
    if (size < 0) {
        qCWarning(lcHeadset) << "Couldn't read";
        return;
    }
    if (size == 0) {
        qCWarning(lcHeadset) << "EOF";
        return;
    }
    if (pressed == m_buttonsPressed)
        return;
    m_buttonsPressed = pressed;
    Q_EMIT buttonsPressedChanged();
}

/*! The first input node that passes the check; none if none does. */
UniqueFd HeadsetDetect::scan(bool (HeadsetDetect::*check)(int fd, const QString &path))
{
    const QStringList paths = inputNodes(QDir::System | QDir::Readable);
    for (const QString &path : paths) {
        UniqueFd fd = openInputNode(path);
        if (fd.isOpen() && (this->*check)(fd.get(), path))
            return fd;
    }
    return UniqueFd();
}

bool HeadsetDetect::isHeadset(int fd, const QString &path)
{
    if (!hasEventType(fd, path, EV_SW))
        return false;
    qCDebug(lcHeadset) << "Device" << path << "is of type EV_SW";

    EvdevBits switches;
    // The length is that of the keys. The kernel copies as many bytes as it has for switches.
    if (!switches.read(fd, EVIOCGBIT(EV_SW, KEY_CNT))) {
        qCWarning(lcHeadset) << "Device" << path << "EVIOCGBIT(EV_SW, KEY_CNT) failed.";
        return false;
    }
    const bool hasHeadphone = switches.test(SW_HEADPHONE_INSERT);
    const bool hasMicrophone = switches.test(SW_MICROPHONE_INSERT);
    if (hasHeadphone)
        qCDebug(lcHeadset) << "Device" << path << "has capability SW_HEADPHONE_INSERT";
    if (hasMicrophone)
        qCDebug(lcHeadset) << "Device" << path << "has capability SW_MICROPHONE_INSERT";
    if (!hasHeadphone || !hasMicrophone) {
        m_deviceFound = false;
        qCDebug(lcHeadset) << "Device" << path << "is not headset device";
        return false;
    }
    qCDebug(lcHeadset) << "Found headset device" << path;
    m_deviceFound = true;

    // If this fails nothing counts as plugged in, until the first event tells otherwise.
    EvdevBits states;
    states.read(fd, EVIOCGSW(SwitchBytes));
    if (states.test(SW_HEADPHONE_INSERT)) {
        m_headphoneOn = true;
        qCDebug(lcHeadset) << "Device" << path << "headphone inserted";
    }
    if (states.test(SW_MICROPHONE_INSERT)) {
        m_microphoneOn = true;
        qCDebug(lcHeadset) << "Device" << path << "microphone inserted";
    }
    return true;
}

bool HeadsetDetect::isButtonDevice(int fd, const QString &path)
{
    if (!hasEventType(fd, path, EV_KEY))
        return false;
    qCDebug(lcHeadset) << "Device" << path << "is of type EV_KEY";

    EvdevBits keys;
    if (!keys.read(fd, EVIOCGBIT(EV_KEY, KEY_CNT))) {
        qCWarning(lcHeadset) << "Device" << path << "EVIOCGBIT(EV_KEY, KEY_CNT) failed.";
        return false;
    }
    int count = 0;
    for (const Button &button : Buttons) {
        if (keys.test(button.code)) {
            ++count;
            qCDebug(lcHeadset) << "Device" << path << "has capability" << button.name;
        }
    }
    if (count == 0) {
        m_buttonsFound = false;
        qCDebug(lcHeadset) << "Device" << path << "is not button device";
        return false;
    }
    m_buttonCount += count;
    qCDebug(lcHeadset) << "Device" << path << "has max" << m_buttonCount << "buttons.";
    qCDebug(lcHeadset) << "Found button device" << path;
    m_buttonsFound = true;
    return true;
}

void HeadsetDetect::updateJack()
{
    const int jack = (m_headphoneOn ? HeadphoneIn : NothingIn) | (m_microphoneOn ? MicrophoneIn : NothingIn);
    if (jack == m_jack)
        return;
    const int before = std::exchange(m_jack, jack);
    const QPointer<HeadsetDetect> alive(this);
    emitJackChanged(before);
    // The handler of the first signal may have destroyed this object.
    if (alive)
        emitJackChanged(jack);
}

void HeadsetDetect::emitJackChanged(int jack)
{
    switch (jack) {
    case HeadphoneIn:
        Q_EMIT headphoneInsertedChanged();
        break;
    case MicrophoneIn:
        Q_EMIT microphoneInsertedChanged();
        break;
    case HeadsetIn:
        Q_EMIT headsetInsertedChanged();
        break;
    default:
        break;
    }
}
