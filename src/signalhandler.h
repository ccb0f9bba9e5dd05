// SPDX-License-Identifier: BSD-3-Clause
#ifndef SIGNALHANDLER_H
#define SIGNALHANDLER_H

#include <QObject>

class QSocketNotifier;

/*!
 * Turns SIGTERM into a Qt signal on the GUI thread, so that the program can end in order and put the device's state
 * back. There is one instance per process.
 */
class SignalHandler : public QObject
{
    Q_OBJECT

public:
    explicit SignalHandler(QObject *parent = nullptr);
    ~SignalHandler() override;

Q_SIGNALS:
    /*! Once for each SIGTERM that the process received. */
    void termSignalReceived();

private Q_SLOTS:
    void signalReceived();

private:
    static void handleTermSignal(int signalNumber);

    static int s_socketPair[2];

    QSocketNotifier *m_notifier = nullptr;
};

#endif
