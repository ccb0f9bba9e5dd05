// SPDX-License-Identifier: BSD-3-Clause
#ifndef PRIVATEBUS_H
#define PRIVATEBUS_H

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QFile>
#include <QHash>
#include <QList>
#include <QProcess>
#include <QTemporaryDir>
#include <QVariantList>

/*!
 * A real dbus-daemon of the test's own, which this process takes for the system or the session bus. Made before the
 * process first asks Qt for that bus: Qt connects once.
 */
class PrivateBus
{
public:
    enum Kind
    {
        System,
        Session
    };

    explicit PrivateBus(Kind kind)
    {
        QFile configuration(m_directory.filePath(QStringLiteral("bus.conf")));
        configuration.open(QIODevice::WriteOnly);
        configuration.write("<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\"\n"
                            " \"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">\n"
                            "<busconfig>\n"
                            "  <type>session</type>\n"
                            "  <listen>unix:path="
                            + m_directory.filePath(QStringLiteral("bus")).toUtf8()
                            + "</listen>\n"
                              "  <auth>EXTERNAL</auth>\n"
                              "  <servicedir>"
                            + m_directory.path().toUtf8()
                            + "</servicedir>\n"
                              "  <policy context=\"default\">\n"
                              "    <allow user=\"*\"/>\n"
                              "    <allow own=\"*\"/>\n"
                              "    <allow send_destination=\"*\" eavesdrop=\"true\"/>\n"
                              "    <allow eavesdrop=\"true\"/>\n"
                              "  </policy>\n"
                              "</busconfig>\n");
        configuration.close();

        m_daemon.setStandardErrorFile(QProcess::nullDevice());
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--nofork"), QStringLiteral("--nopidfile"), QStringLiteral("--print-address"),
                        QStringLiteral("--config-file=") + configuration.fileName()});
        QByteArray address;
        while (!address.endsWith('\n') && m_daemon.waitForReadyRead())
            address += m_daemon.readAllStandardOutput();
        m_address = QString::fromUtf8(address.trimmed());
        qputenv(kind == System ? "DBUS_SYSTEM_BUS_ADDRESS" : "DBUS_SESSION_BUS_ADDRESS", address.trimmed());
    }
    ~PrivateBus() { kill(); }
    Q_DISABLE_COPY(PrivateBus)

    /*! Empty if the daemon did not start. */
    QString address() const { return m_address; }

    /*! Ends the bus as a crash would. */
    void kill()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    /*! From now on the bus starts a program for whoever calls the service while that is not there. */
    bool makeStartable(const QString &service)
    {
        const QString program = m_directory.filePath(service + QStringLiteral(".sh"));
        QFile script(program);
        QFile file(m_directory.filePath(service + QStringLiteral(".service")));
        if (!script.open(QIODevice::WriteOnly) || !file.open(QIODevice::WriteOnly))
            return false;
        script.write("#!/bin/sh\n: > '" + startMark(service).toUtf8() + "'\nexit 1\n");
        script.close();
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        file.write("[D-BUS Service]\nName=" + service.toUtf8() + "\nExec=" + program.toUtf8() + "\n");
        file.close();

        return reloaded().contains(service);
    }
    /*! Takes makeStartable() back. */
    bool makeUnstartable(const QString &service)
    {
        QFile::remove(m_directory.filePath(service + QStringLiteral(".service")));
        return !reloaded().contains(service);
    }
    /*! Whether the bus has started the program of a startable service. */
    bool hasStarted(const QString &service) const { return QFile::exists(startMark(service)); }

private:
    /*! The startable services after the bus has read its folder again. */
    QStringList reloaded() const
    {
        const QString name = QStringLiteral("reload");
        const QDBusConnection connection = QDBusConnection::connectToBus(m_address, name);
        connection.call(QDBusMessage::createMethodCall(
            QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
            QStringLiteral("org.freedesktop.DBus"), QStringLiteral("ReloadConfig")));
        const QStringList services = connection.interface()->activatableServiceNames();
        QDBusConnection::disconnectFromBus(name);
        return services;
    }
    QString startMark(const QString &service) const
    {
        return m_directory.filePath(service + QStringLiteral(".started"));
    }

    QTemporaryDir m_directory;
    QProcess m_daemon;
    QString m_address;
};

/*!
 * A daemon on a private bus, with a connection of its own, that answers whatever the test tells it to, on all of its
 * object paths. It lives in this thread, so only asynchronous calls reach it, as long as it is not moved to another.
 */
class FakeDaemon : public QDBusVirtualObject
{
public:
    /*! Without a service it is just somebody on the bus. */
    explicit FakeDaemon(const QString &address, const QString &service = QString())
        : m_name(QStringLiteral("daemon-%1").arg(quintptr(this))),
          m_connection(QDBusConnection::connectToBus(address, m_name))
    {
        m_connection.registerVirtualObject(QStringLiteral("/"), this, QDBusConnection::SubPath);
        if (!service.isEmpty())
            own(service);
    }
    ~FakeDaemon() override { die(); }

    bool own(const QString &service) { return m_connection.registerService(service); }
    bool disown(const QString &service) { return m_connection.unregisterService(service); }
    QString uniqueName() const { return m_connection.baseService(); }

    /*! Leaves the bus as a crash would: calls that it has not answered end with an error. */
    void die()
    {
        m_held.clear();
        m_connection.unregisterObject(QStringLiteral("/"), QDBusConnection::UnregisterTree);
        m_connection = QDBusConnection(QString());
        QDBusConnection::disconnectFromBus(m_name);
    }

    void answer(const QString &member, const QVariantList &values)
    {
        m_answers.insert(member, QDBusMessage());
        m_values.insert(member, values);
    }
    void answerWithError(const QString &member, const QString &name, const QString &text)
    {
        m_answers.insert(member, QDBusMessage::createError(name, text));
    }
    /*! Lets callers wait until answerHeld(). */
    void hold(const QString &member) { m_holding << member; }
    /*! Gives the calls that wait the answer that their members have now. */
    void answerHeld()
    {
        m_holding.clear();
        const QList<QDBusMessage> held = std::exchange(m_held, QList<QDBusMessage>());
        for (const QDBusMessage &call : held)
            reply(call);
    }

    /*! Sends a broadcast, or with a destination only to that unique name, and waits until the bus has passed it on. */
    void emitSignal(const QString &path, const QString &interface, const QString &member, const QVariantList &values,
                    const QString &destination = QString())
    {
        QDBusMessage message = destination.isEmpty()
            ? QDBusMessage::createSignal(path, interface, member)
            : QDBusMessage::createTargetedSignal(destination, path, interface, member);
        message.setArguments(values);
        m_connection.send(message);
        synchronise(m_connection);
    }

    /*! Every call so far, in order, whether answered or not. */
    QList<QDBusMessage> calls() const { return m_calls; }
    QStringList members() const
    {
        QStringList names;
        for (const QDBusMessage &call : m_calls)
            names << call.member();
        return names;
    }

    /*! Returns when the bus has worked off all that was sent over this connection until now. */
    static void synchronise(const QDBusConnection &connection)
    {
        connection.call(QDBusMessage::createMethodCall(
            QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
            QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetId")));
    }

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &) override
    {
        m_calls << message;
        if (m_holding.contains(message.member())) {
            m_held << message;
            return true;
        }
        return reply(message);
    }
    QString introspect(const QString &) const override { return QString(); }

private:
    bool reply(const QDBusMessage &call)
    {
        const auto found = m_answers.constFind(call.member());
        if (found == m_answers.constEnd())
            return false;
        if (found->type() == QDBusMessage::ErrorMessage)
            return m_connection.send(call.createErrorReply(found->errorName(), found->errorMessage()));
        return m_connection.send(call.createReply(m_values.value(call.member())));
    }

    QString m_name;
    QDBusConnection m_connection;
    QHash<QString, QDBusMessage> m_answers;
    QHash<QString, QVariantList> m_values;
    QStringList m_holding;
    QList<QDBusMessage> m_held;
    QList<QDBusMessage> m_calls;
};

#endif
