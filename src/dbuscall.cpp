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
