// SPDX-License-Identifier: BSD-3-Clause
#include "zel.h"

#include "dbuscall.h"

#include <QDBusArgument>
#include <QDBusPendingCallWatcher>
#include <QDebug>
#include <QPointer>

namespace
{
const QString Service = QStringLiteral("com.orvel.zeld");
const QString Path = QStringLiteral("/com/orvel/zeld");
const QString Interface = QStringLiteral("com.orvel.zeld");
const QString PropertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

const QLatin1String ReadyProperty("Ready");
const QLatin1String DockedProperty("Docked");
const QLatin1String IdProperty("ZELID");

/*! The properties in a reply; none where it carries something else. */
QVariantMap propertiesIn(const QDBusMessage &reply)
{
    const QVariant properties = reply.arguments().value(0);
    if (properties.userType() != qMetaTypeId<QDBusArgument>())
        return properties.toMap();
    // Demarshalling anything but exactly this into a map ends the process.
    const auto marshalled = properties.value<QDBusArgument>();
    if (marshalled.currentSignature() != QLatin1String("a{sv}"))
        return QVariantMap();
    return qdbus_cast<QVariantMap>(marshalled);
}
}

Zel::Zel(QObject *parent) : QObject(parent)
{
    const QDBusConnection bus = QDBusConnection::systemBus();
    subscribe(bus, Service, Path, PropertiesInterface, QStringLiteral("PropertiesChanged"), QStringLiteral("sa{sv}as"),
              this, SLOT(propertiesChanged(QString, QVariantMap, QStringList)));

    // Without a QDBusInterface, whose constructor starts the daemon and waits until that has described itself.
    QDBusMessage call = QDBusMessage::createMethodCall(Service, Path, PropertiesInterface, QStringLiteral("GetAll"));
    call << Interface;
    const auto *watcher = new QDBusPendingCallWatcher(callRunningService(bus, call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, &Zel::getPropertiesFinished);
}

bool Zel::ready() const
{
    return m_ready != 0;
}

bool Zel::docked() const
{
    return m_docked != 0;
}

QString Zel::zelId() const
{
    return m_zelId;
}

bool Zel::error() const
{
    return m_error;
}

void Zel::getPropertiesFinished(QDBusPendingCallWatcher *watcher)
{
    watcher->deleteLater();
    if (watcher->isError()) {
        m_error = true;
        Q_EMIT errorChanged();
        return;
    }
    updateProperties(propertiesIn(watcher->reply()));
}

void Zel::propertiesChanged(const QString &interfaceName, const QVariantMap &changedProperties,
                            const QStringList &invalidatedProperties)
{
    if (interfaceName != Interface)
        return;
    const QPointer<Zel> alive(this);
    updateProperties(changedProperties);
    for (auto name = invalidatedProperties.cbegin(); alive && name != invalidatedProperties.cend(); ++name)
        updateProperty(*name, QVariant());
}

void Zel::updateProperties(const QVariantMap &properties)
{
    // A page may be closed by the signal of any of them.
    const QPointer<Zel> alive(this);
    for (auto property = properties.cbegin(); alive && property != properties.cend(); ++property)
        updateProperty(property.key(), property.value());
}

// Signals without a change too: the page reads anew on every report.
void Zel::updateProperty(const QString &name, const QVariant &value)
{
    if (name == ReadyProperty) {
        m_ready = value.toInt();
        Q_EMIT readyChanged();
    } else if (name == DockedProperty) {
        m_docked = value.toInt();
        Q_EMIT dockedChanged();
    } else if (name == IdProperty) {
        m_zelId = value.toString();
        Q_EMIT zelIdChanged();
    } else {
        qDebug() << "Unknown property" << name << value;
    }
}
