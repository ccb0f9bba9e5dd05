// SPDX-License-Identifier: BSD-3-Clause
#include "signalhandler.h"

#include <QDebug>
#include <QPointer>
#include <QSocketNotifier>

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <signal.h>
#include <sys/socket.h>
#include <unistd.h>

namespace
{
constexpr char TermByte = 1;
constexpr int WriteEnd = 0;
constexpr int ReadEnd = 1;
}

int SignalHandler::s_socketPair[2] = {-1, -1};

SignalHandler::SignalHandler(QObject *parent) : QObject(parent)
{
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, s_socketPair) != 0) {
        qWarning() << "Could not create socket pair for TERM signal handler, device state may not be restored on "
                      "termination.";
        s_socketPair[WriteEnd] = -1;
        s_socketPair[ReadEnd] = -1;
        return;
    }
    for (const int end : s_socketPair) {
        // No child is started yet that could inherit them in between.
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
        // Or a burst of signals would hang the process in the handler while its own thread is the reader.
        ::fcntl(end, F_SETFL, O_NONBLOCK);
    }

    m_notifier = new QSocketNotifier(s_socketPair[ReadEnd], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &SignalHandler::signalReceived);

    struct sigaction action = {};
    action.sa_handler = &SignalHandler::handleTermSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags |= SA_RESTART;
    if (sigaction(SIGTERM, &action, nullptr) > 0) {
        qWarning() << "Could not set sigaction for TERM signal handler, device state may not be restored on "
                      "termination.";
    }
}

SignalHandler::~SignalHandler()
{
    delete m_notifier;
    // The handler stays installed: a late SIGTERM must not write into whatever file gets this number next.
    ::close(std::exchange(s_socketPair[WriteEnd], -1));
    ::close(std::exchange(s_socketPair[ReadEnd], -1));
}

void SignalHandler::handleTermSignal(int)
{
    const int savedErrno = errno;
    const ssize_t written = ::write(s_socketPair[WriteEnd], &TermByte, sizeof(TermByte));
    Q_UNUSED(written)
    errno = savedErrno;
}

void SignalHandler::signalReceived()
{
    if (!m_notifier)
        return;
    // Whoever hears the signal may destroy this object.
    const QPointer<QSocketNotifier> notifier(m_notifier);
    notifier->setEnabled(false);
    char byte = 0;
    if (::read(s_socketPair[ReadEnd], &byte, sizeof(byte)) == sizeof(byte) && byte == TermByte)
        Q_EMIT termSignalReceived();
    if (notifier)
        notifier->setEnabled(true);
}
