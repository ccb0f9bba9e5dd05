// SPDX-License-Identifier: BSD-3-Clause
#ifndef DBUSCALL_H
#define DBUSCALL_H

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>

/*!
 * Calls a method of a service that runs already; the bus is told not to start one that does not. Returns at once.
 *
 * The call always finishes, with QDBusError::Disconnected where there is no bus to call over. Qt's own asynchronous
 * call returns one that never does.
 */
QDBusPendingCall callRunningService(const QDBusConnection &bus, QDBusMessage call);

#endif
