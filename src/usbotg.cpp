// SPDX-License-Identifier: BSD-3-Clause
#include "usbotg.h"

#include "dbuscall.h"

#include <QDBusObjectPath>
#include <QDebug>

namespace
{
const char Service[] = "org.freedesktop.systemd1";
const QString Path = QStringLiteral("/org/freedesktop/systemd1");
const QString Interface = QStringLiteral("org.freedesktop.systemd1.Manager");
const QString UnitPattern = QStringLiteral("dev-sd*.device");

void subscribeToUnits(const char *member, UsbOtg *receiver, const char *slot)
{
    if (!subscribe(QDBusConnection::systemBus(), QLatin1String(Service), Path, Interface, QLatin1String(member),
                   QStringLiteral("so"), receiver, slot))
        qWarning() << "Failed to connect " << Service << " " << member;
}
}

UsbOtg::UsbOtg(QObject *parent) : QObject(parent), m_unitPattern(UnitPattern, Qt::CaseSensitive, QRegExp::Wildcard)
{
    subscribeToUnits("UnitNew", this, SLOT(newUnit(QString, QDBusObjectPath)));
    subscribeToUnits("UnitRemoved", this, SLOT(unitRemoved(QString, QDBusObjectPath)));
}

bool UsbOtg::massStorage() const
{
    return m_massStorage;
}

void UsbOtg::newUnit(const QString &stringParam, const QDBusObjectPath &)
{
    if (m_unitPattern.exactMatch(stringParam))
        setMassStorage(true);
}

void UsbOtg::unitRemoved(const QString &stringParam, const QDBusObjectPath &)
{
    if (m_unitPattern.exactMatch(stringParam))
        setMassStorage(false);
}

void UsbOtg::setMassStorage(bool massStorage)
{
    if (m_massStorage == massStorage)
        return;
    m_massStorage = massStorage;
    Q_EMIT massStorageChanged();
}
