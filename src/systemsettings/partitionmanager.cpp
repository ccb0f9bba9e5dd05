// SPDX-License-Identifier: BSD-3-Clause
#include "partitionmanager.h"

#include "partitionstate.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QPointer>

#include <algorithm>
#include <chrono>
#include <limits>
#include <utility>
#include <vector>

namespace
{
const QString Service = QStringLiteral("org.freedesktop.UDisks2");
const QString ManagerPath = QStringLiteral("/org/freedesktop/UDisks2");
const QString ObjectManagerInterface = QStringLiteral("org.freedesktop.DBus.ObjectManager");
const QString PropertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");
// Where Qt's own library tells of the connection.
const QString LocalPath = QStringLiteral("/org/freedesktop/DBus/Local");
const QString LocalInterface = QStringLiteral("org.freedesktop.DBus.Local");
const QString JobInterface = QStringLiteral("org.freedesktop.UDisks2.Job");

constexpr std::chrono::milliseconds FirstListTimeout{2000};
// A daemon that hangs may answer after all, and the bus itself answers for one that dies.
constexpr int NoTimeout = std::numeric_limits<int>::max();

QDBusMessage objectsCall(const QString &destination)
{
    QDBusMessage call = QDBusMessage::createMethodCall(destination, ManagerPath, ObjectManagerInterface,
                                                       QStringLiteral("GetManagedObjects"));
    call.setAutoStartService(false);
    return call;
}

bool hasSignature(const QDBusMessage &message, const char *signature)
{
    return message.signature() == QLatin1String(signature);
}

QDBusArgument argument(const QDBusMessage &message, int index)
{
    return message.arguments().at(index).value<QDBusArgument>();
}
}

PartitionManager::PartitionManager(QObject *parent) : QObject(parent), m_bus(QDBusConnection::systemBus())
{
    if (!m_bus.isConnected())
        return;
    // Without the service's name: Qt would look up its owner, which blocks. isFromDaemon() sees to it instead.
    const auto subscribe = [this](const QString &path, const QString &interface, const char *member,
                                  const QStringList &arguments, const char *slot) {
        m_bus.connect(QString(), path, interface, QLatin1String(member), arguments, QString(), this, slot);
    };
    subscribe(ManagerPath, ObjectManagerInterface, "InterfacesAdded", {}, SLOT(onInterfacesAdded(QDBusMessage)));
    subscribe(ManagerPath, ObjectManagerInterface, "InterfacesRemoved", {}, SLOT(onInterfacesRemoved(QDBusMessage)));
    for (const QString &interface : UDisksObjects::interfacesWithProperties()) {
        subscribe(QString(), PropertiesInterface, "PropertiesChanged", {interface},
                  SLOT(onPropertiesChanged(QDBusMessage)));
    }
    subscribe(QString(), JobInterface, "Completed", {}, SLOT(onJobCompleted(QDBusMessage)));
    subscribe(LocalPath, LocalInterface, "Disconnected", {}, SLOT(onBusLost()));
    const auto watcher = new QDBusServiceWatcher(Service, m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &, const QString &newOwner) { onOwnerChanged(newOwner); });

    const QDBusMessage reply = m_bus.call(objectsCall(Service), QDBus::Block, FirstListTimeout.count());
    if (!takeObjects(reply))
        queryObjects(Service); // it may be merely slow
}

PartitionManager::~PartitionManager() = default;

QVector<Partition> PartitionManager::partitions(Partition::StorageTypes types) const
{
    QVector<Partition> list;
    if (!types.testFlag(Partition::External))
        return list;
    std::vector<const Entry *> entries;
    for (const Entry &entry : m_entries)
        entries.push_back(&entry);
    std::stable_sort(entries.begin(), entries.end(),
                     [](const Entry *a, const Entry *b) { return a->device < b->device; });
    for (const Entry *entry : entries)
        list.append(Partition(entry->state));
    return list;
}

void PartitionManager::onOwnerChanged(const QString &newOwner)
{
    // A daemon that came while the first list was asked for may have answered before its coming is told.
    if (newOwner == m_owner)
        return;
    forgetDaemon();
    m_owner = newOwner;
    if (!newOwner.isEmpty())
        queryObjects(newOwner);
    refresh();
}

void PartitionManager::onBusLost()
{
    forgetDaemon();
    refresh();
}

void PartitionManager::forgetDaemon()
{
    delete std::exchange(m_objectsQuery, nullptr);
    qDeleteAll(std::exchange(m_propertyQueries, {}));
    m_owner.clear();
    m_objects.clear();
}

void PartitionManager::queryObjects(const QString &destination)
{
    m_objectsQuery = new QDBusPendingCallWatcher(m_bus.asyncCall(objectsCall(destination), NoTimeout), this);
    connect(m_objectsQuery, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher *watcher) {
        watcher->deleteLater();
        m_objectsQuery = nullptr;
        takeObjects(watcher->reply());
    });
}

// False when it was not the daemon that replied. Where it refuses the list, what it tells later counts nevertheless.
bool PartitionManager::takeObjects(const QDBusMessage &reply)
{
    if (!reply.service().startsWith(QLatin1Char(':')))
        return false;
    m_owner = reply.service();
    if (reply.type() == QDBusMessage::ReplyMessage && hasSignature(reply, "a{oa{sa{sv}}}"))
        m_objects.reset(argument(reply, 0));
    else
        m_objects.clear();
    refresh();
    return true;
}

void PartitionManager::queryProperties(const QString &path, const QString &interface)
{
    // An answer still under way was sent after the daemon told of this change, and so knows of it.
    QDBusPendingCallWatcher *&query = m_propertyQueries[InterfaceOfObject(path, interface)];
    if (query)
        return;
    QDBusMessage call = QDBusMessage::createMethodCall(m_owner, path, PropertiesInterface, QStringLiteral("GetAll"));
    call.setAutoStartService(false);
    call << interface;
    query = new QDBusPendingCallWatcher(m_bus.asyncCall(call, NoTimeout), this);
    connect(query, &QDBusPendingCallWatcher::finished, this, [this, path, interface](QDBusPendingCallWatcher *watcher) {
        watcher->deleteLater();
        m_propertyQueries.remove(InterfaceOfObject(path, interface));
        const QDBusMessage reply = watcher->reply();
        if (reply.type() != QDBusMessage::ReplyMessage || !hasSignature(reply, "a{sv}"))
            return;
        m_objects.replaceProperties(path, interface, qdbus_cast<QVariantMap>(argument(reply, 0)));
        refresh();
    });
}

void PartitionManager::onInterfacesAdded(const QDBusMessage &message)
{
    if (!isFromDaemon(message, "oa{sa{sv}}"))
        return;
    m_objects.addInterfaces(message.arguments().at(0).value<QDBusObjectPath>().path(), argument(message, 1));
    refresh();
}

void PartitionManager::onInterfacesRemoved(const QDBusMessage &message)
{
    if (!isFromDaemon(message, "oas"))
        return;
    m_objects.removeInterfaces(message.arguments().at(0).value<QDBusObjectPath>().path(),
                               message.arguments().at(1).toStringList());
    refresh();
}

void PartitionManager::onPropertiesChanged(const QDBusMessage &message)
{
    if (!isFromDaemon(message, "sa{sv}as"))
        return;
    const QString interface = message.arguments().at(0).toString();
    if (!m_objects.changeProperties(message.path(), interface, qdbus_cast<QVariantMap>(argument(message, 1))))
        return;
    if (!message.arguments().at(2).toStringList().isEmpty())
        queryProperties(message.path(), interface);
    refresh();
}

void PartitionManager::onJobCompleted(const QDBusMessage &message)
{
    if (!isFromDaemon(message, "bs"))
        return;
    const UDisksObjects::Job *job = m_objects.completeJob(message.path());
    if (!job)
        return;
    const bool succeeded = message.arguments().at(0).toBool();
    refresh(job->isMount() && !succeeded ? job->objects : QSet<QString>());
}

bool PartitionManager::isFromDaemon(const QDBusMessage &message, const char *signature) const
{
    return !m_owner.isEmpty() && message.service() == m_owner && hasSignature(message, signature);
}

// Works out the partitions anew and tells of every difference. May destroy this object.
void PartitionManager::refresh(const QSet<QString> &failedToMount)
{
    QMap<QString, Entry> entries;
    QVector<Partition> added;
    QVector<Partition> changed;
    const auto &blocks = m_objects.blocks();
    for (auto block = blocks.constBegin(); block != blocks.constEnd(); ++block) {
        const QString &path = block.key();
        const UDisksObjects::Filesystem *filesystem = m_objects.externalFilesystem(path, *block);
        if (!filesystem)
            continue;
        Entry entry = m_entries.take(path);
        const bool isNew = !entry.state;
        if (isNew)
            entry.state = std::make_shared<PartitionState>();

        const UDisksObjects::MountJobs jobs = m_objects.mountJobs(path);
        PartitionState state = *entry.state;
        // The daemon changes the mount points while the job is still running.
        if (jobs.latest)
            state.status = jobs.latest->isMount() ? Partition::Mounting : Partition::Unmounting;
        else
            state.status = filesystem->mounted ? Partition::Mounted : Partition::Unmounted;
        state.mountPath = filesystem->mountPath;
        const bool attempted = !entry.mountJobs.contains(jobs.mounting);
        if (attempted || (filesystem->mounted && !entry.mounted))
            state.mountFailed = false;
        if (failedToMount.contains(path))
            state.mountFailed = true;

        if (isNew)
            added.append(Partition(entry.state));
        else if (state != *entry.state)
            changed.append(Partition(entry.state));
        *entry.state = state;
        entry.device = block->device;
        entry.mounted = filesystem->mounted;
        entry.mountJobs = jobs.mounting;
        entries.insert(path, entry);
    }
    m_entries.swap(entries);

    for (const Entry &gone : qAsConst(entries))
        m_notifications.push_back({&PartitionManager::partitionRemoved, Partition(gone.state)});
    for (const Partition &partition : qAsConst(added))
        m_notifications.push_back({&PartitionManager::partitionAdded, partition});
    for (const Partition &partition : qAsConst(changed))
        m_notifications.push_back({&PartitionManager::partitionChanged, partition});
    notify();
}

// A receiver may run the event loop, and with it this function, or destroy this object.
void PartitionManager::notify()
{
    const QPointer<PartitionManager> alive(this);
    while (alive && !m_notifications.empty()) {
        const Notification next = m_notifications.front();
        m_notifications.pop_front();
        Q_EMIT(this->*next.signal)(next.partition);
    }
}
