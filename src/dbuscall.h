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

/*!
 * Connects a broadcast to a slot given with SLOT(). False when that is not possible, as without a bus.
 *
 * Only what has exactly this D-Bus signature, and comes from the owner of the service, reaches the slot: Qt ends the
 * process over a container that comes where the slot takes a plain value. Qt also ends it over a subscription on a bus
 * that has gone; here that fails.
 */
bool subscribe(QDBusConnection bus, const QString &service, const QString &path, const QString &interface,
               const QString &member, const QString &signature, QObject *receiver, const char *slot);

#endif
