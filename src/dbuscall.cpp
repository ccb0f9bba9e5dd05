// SPDX-License-Identifier: BSD-3-Clause
#include "dbuscall.h"

#include <QDBusError>

QDBusPendingCall callRunningService(const QDBusConnection &bus, QDBusMessage call)
{
    if (!bus.isConnected()) {
        return QDBusPendingCall::fromError(
            QDBusError(QDBusError::Disconnected, QStringLiteral("Not connected to D-Bus server")));
    }
    call.setAutoStartService(false);
    return bus.asyncCall(call);
}

bool subscribe(QDBusConnection bus, const QString &service, const QString &path, const QString &interface,
               const QString &member, const QString &signature, QObject *receiver, const char *slot)
{
    return bus.isConnected() && bus.connect(service, path, interface, member, QStringList(), signature, receiver, slot);
}
