// SPDX-License-Identifier: BSD-3-Clause
#ifndef HEADSETDETECT_H
#define HEADSETDETECT_H

#include "uniquefd.h"

#include <QObject>

#include <memory>

class QSocketNotifier;

/*!
 * What is plugged into the headset jack, and which buttons of the headset are held down.
 *
 * Jack and buttons are two event devices of /dev/input, each the first suitable one by name, each opened by a call of
 * its own and kept open until the next such call or the end of this object. The jack device has switches for headphones
 * and for a microphone, both of them; the button device has at least one of the keys of HeadsetButton. A device that
 * disappears is not looked for again.
 *
 * Messages go to the logging category com.orvel.kiv.headsetdetect, of which warnings are shown unless rules say
 * otherwise; its debug messages tell why each device was taken or not.
 */
class HeadsetDetect : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool headphoneInserted READ headphoneInserted NOTIFY headphoneInsertedChanged)
    Q_PROPERTY(bool microphoneInserted READ microphoneInserted NOTIFY microphoneInsertedChanged)
    Q_PROPERTY(bool headsetInserted READ headsetInserted NOTIFY headsetInsertedChanged)
    Q_PROPERTY(uint buttonsPressed READ buttonsPressed NOTIFY buttonsPressedChanged)

public:
    /*! Bits of buttonsPressed(). The kernel has one code for BTN_MISC and BTN_0. */
    enum HeadsetButton
    {
        ButtonMisc = 1,
        Button0 = 1,
        Button1 = 2,
        Button2 = 4,
        Button3 = 8,
        Button4 = 16,
        Button5 = 32,
        Button6 = 64,
        Button7 = 128,
        Button8 = 256,
        Button9 = 512,
        KeyMedia = 1024,
        KeyPlayPause = 2048,
    };
    Q_ENUM(HeadsetButton)

    explicit HeadsetDetect(QObject *parent = nullptr);
    ~HeadsetDetect() override;

public Q_SLOTS:
    /*!
     * Looks for the jack device afresh. What was known is forgotten without a signal; what is plugged in now is
     * announced before this returns.
     */
    void openDevice();
    /*! Looks for the button device afresh. What was known is forgotten without a signal; nothing counts as pressed. */
    void openButtonDevice();

    /*! Whether a jack device is open. */
    bool deviceFound() const;
    /*! Headphones without a microphone. At most one of the three is true. */
    bool headphoneInserted() const;
    /*! A microphone without headphones. */
    bool microphoneInserted() const;
    /*! Headphones with a microphone. */
    bool headsetInserted() const;
    /*! Whether a button device is open. */
    bool buttonsFound() const;
    /*! How many codes of HeadsetButton the button device can send; 0 without a device. */
    int buttonCount() const;
    /*! The HeadsetButton bits of the buttons held down. */
    uint buttonsPressed() const;
    /*! Whether the button is held down. */
    bool buttonPressed(HeadsetButton button) const;

Q_SIGNALS:
    void headphoneInsertedChanged();
    void microphoneInsertedChanged();
    void headsetInsertedChanged();
    void buttonsPressedChanged();

private Q_SLOTS:
    void readHeadsetData(int fd);
    void readButtonData(int fd);

private:
    UniqueFd scan(bool (HeadsetDetect::*check)(int fd, const QString &path));
    bool isHeadset(int fd, const QString &path);
    bool isButtonDevice(int fd, const QString &path);
    void updateJack();
    void emitJackChanged(int jack);

    // A notifier goes before the descriptor that it watches.
    UniqueFd m_headsetFd;
    std::unique_ptr<QSocketNotifier> m_headsetNotifier;
    UniqueFd m_buttonFd;
    std::unique_ptr<QSocketNotifier> m_buttonNotifier;
    bool m_deviceFound = false;
    bool m_headphoneOn = false;
    bool m_microphoneOn = false;
    int m_jack = 0;
    bool m_buttonsFound = false;
    int m_buttonCount = 0;
    uint m_buttonsPressed = 0;
};

#endif
