// SPDX-License-Identifier: BSD-3-Clause
#ifndef UDISKS2PROCESS_H
#define UDISKS2PROCESS_H

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QProcess>

#include <csignal>
#include <cstdio>
#include <cstdlib>

/*!
 * The simulated storage daemon in a process of its own, on the private bus that this process takes for the system bus.
 * KIV_SOURCE_DIR must be defined.
 */
class Udisks2Process
{
public:
    explicit Udisks2Process(const QString &address, const QString &name = QStringLiteral("control"))
        : m_control(QDBusConnection::connectToBus(address, name))
    {
    }
    ~Udisks2Process()
    {
        kill();
        QDBusConnection::disconnectFromBus(m_control.name());
    }
    Q_DISABLE_COPY(Udisks2Process)

    /*! False, with the reason printed, if the daemon did not come up. */
    bool start(const QString &parameters = QStringLiteral("{}"))
    {
        const QString source = QStringLiteral(KIV_SOURCE_DIR);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("KIV_SIMULATED_UDISKS2"),
                           source + QStringLiteral("/simulator/daemons/udisks2.py"));
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.setStandardOutputFile(QProcess::nullDevice());
        m_process.start(QStringLiteral("/usr/bin/python3"),
                        {QStringLiteral("-Es"), QStringLiteral("-m"), QStringLiteral("dbusmock"),
                         QStringLiteral("--system"), QStringLiteral("--template"),
                         source + QStringLiteral("/tests/udisks2mock.py"), QStringLiteral("--parameters"), parameters});
        // Calls made before it has set itself up wait for it; those before it has its name fail.
        for (int i = 0; i < 3000 && m_process.state() != QProcess::NotRunning; ++i) {
            if (call(QStringLiteral("Run"), {QStringLiteral("pass")}).type() == QDBusMessage::ReplyMessage)
                return true;
            m_process.waitForFinished(10);
        }
        qWarning("The simulated storage daemon does not start.");
        return false;
    }

    /*! Ends it as a crash would. Returns when it is gone from the bus. */
    void kill()
    {
        if (m_process.state() == QProcess::NotRunning)
            return;
        m_process.kill();
        m_process.waitForFinished(-1);
        synchronise(m_control);
    }
    void freeze() { ::kill(pid_t(m_process.processId()), SIGSTOP); }
    void thaw() { ::kill(pid_t(m_process.processId()), SIGCONT); }

    /*! Runs Python in the daemon, and waits until what it has sent has arrived in this process and been worked off.
     *  Returns the variable result. */
    QString run(const QString &statements)
    {
        const QDBusMessage reply = call(QStringLiteral("Run"), {statements});
        if (reply.type() != QDBusMessage::ReplyMessage)
            giveUp(statements, reply);
        settle();
        return reply.arguments().value(0).toString();
    }
    /*! Like run(), but what it has sent is left waiting in the queue of events. */
    void runUnseen(const QString &statements)
    {
        const QDBusMessage reply = call(QStringLiteral("Run"), {statements});
        if (reply.type() != QDBusMessage::ReplyMessage)
            giveUp(statements, reply);
        synchronise(QDBusConnection::systemBus());
    }
    void reset() { call(QStringLiteral("Reset"), {}); }

    static void settle()
    {
        // The reply comes after all that the bus has sent before, and events of this thread are handled in order.
        synchronise(QDBusConnection::systemBus());
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

private:
    // A mistake in the test itself; not over the message log, which tests look into.
    [[noreturn]] static void giveUp(const QString &statements, const QDBusMessage &reply)
    {
        std::fprintf(stderr, "The daemon did not run: %s\n%s\n", qPrintable(statements),
                     qPrintable(reply.errorMessage()));
        std::abort();
    }
    static void synchronise(const QDBusConnection &connection)
    {
        connection.call(QDBusMessage::createMethodCall(
            QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
            QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetId")));
    }
    QDBusMessage call(const QString &method, const QVariantList &arguments)
    {
        QDBusMessage message = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.UDisks2"),
                                                              QStringLiteral("/org/freedesktop/UDisks2"),
                                                              QStringLiteral("org.freedesktop.DBus.Mock"), method);
        message.setArguments(arguments);
        message.setAutoStartService(false);
        return m_control.call(message);
    }

    QDBusConnection m_control;
    QProcess m_process;
};

#endif
