// SPDX-License-Identifier: BSD-3-Clause
#include "udisksobjects.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QFile>

#include <utility>

namespace
{
const QLatin1String BlockInterface("org.freedesktop.UDisks2.Block");
const QLatin1String FilesystemInterface("org.freedesktop.UDisks2.Filesystem");
const QLatin1String PartitionTableInterface("org.freedesktop.UDisks2.PartitionTable");
const QLatin1String DriveInterface("org.freedesktop.UDisks2.Drive");
const QLatin1String JobInterface("org.freedesktop.UDisks2.Job");

bool toBool(const QVariant &value)
{
    return value.userType() == QMetaType::Bool && value.toBool();
}

quint64 toUInt64(const QVariant &value)
{
    return value.userType() == QMetaType::ULongLong ? value.toULongLong() : 0;
}

QString toText(const QVariant &value)
{
    return value.userType() == QMetaType::QString ? value.toString() : QString();
}

QString toPath(const QVariant &value)
{
    return value.userType() == qMetaTypeId<QDBusObjectPath>() ? value.value<QDBusObjectPath>().path() : QString();
}

// Names of files are sent with their terminating NUL.
QByteArray upToNul(const QByteArray &bytes)
{
    const int nul = bytes.indexOf('\0');
    return nul < 0 ? bytes : bytes.left(nul);
}

QByteArray toFileName(const QVariant &value)
{
    return value.userType() == QMetaType::QByteArray ? upToNul(value.toByteArray()) : QByteArray();
}

// Not every array has a type of its own in Qt; the others come undecoded.
bool isArray(const QVariant &value, const char *signature)
{
    return value.userType() == qMetaTypeId<QDBusArgument>()
        && value.value<QDBusArgument>().currentSignature() == QLatin1String(signature);
}

template<typename Item>
void setAll(Item &item, const QVariantMap &properties)
{
    for (auto property = properties.constBegin(); property != properties.constEnd(); ++property)
        item.set(property.key(), property.value());
}
}

void UDisksObjects::Block::set(const QString &property, const QVariant &value)
{
    if (property == QLatin1String("Device"))
        device = toFileName(value);
    else if (property == QLatin1String("Drive"))
        drive = toPath(value);
    else if (property == QLatin1String("HintSystem"))
        hintSystem = toBool(value);
    else if (property == QLatin1String("HintIgnore"))
        hintIgnore = toBool(value);
}

void UDisksObjects::Filesystem::set(const QString &property, const QVariant &value)
{
    if (property != QLatin1String("MountPoints"))
        return;
    mounted = false;
    mountPath.clear();
    if (!isArray(value, "aay"))
        return;
    const auto places = value.value<QDBusArgument>();
    places.beginArray();
    if (!places.atEnd()) {
        QByteArray first;
        places >> first;
        mounted = true;
        mountPath = QFile::decodeName(upToNul(first));
    }
    places.endArray();
}

void UDisksObjects::Drive::set(const QString &property, const QVariant &value)
{
    if (property == QLatin1String("Removable"))
        removable = toBool(value);
    else if (property == QLatin1String("MediaRemovable"))
        mediaRemovable = toBool(value);
    else if (property == QLatin1String("ConnectionBus"))
        connectionBus = toText(value);
}

bool UDisksObjects::Drive::isExternal() const
{
    return removable || mediaRemovable || connectionBus == QLatin1String("sdio")
        || connectionBus == QLatin1String("usb");
}

void UDisksObjects::Job::set(const QString &property, const QVariant &value)
{
    if (property == QLatin1String("Operation")) {
        operation = toText(value);
    } else if (property == QLatin1String("StartTime")) {
        startTime = toUInt64(value);
    } else if (property == QLatin1String("Objects")) {
        objects.clear();
        if (!isArray(value, "ao"))
            return;
        const auto paths = value.value<QDBusArgument>();
        paths.beginArray();
        while (!paths.atEnd()) {
            QDBusObjectPath path;
            paths >> path;
            objects.insert(path.path());
        }
        paths.endArray();
    }
}

bool UDisksObjects::Job::isMount() const
{
    return operation == QLatin1String("filesystem-mount");
}

bool UDisksObjects::Job::isUnmount() const
{
    return operation == QLatin1String("filesystem-unmount");
}

QStringList UDisksObjects::interfacesWithProperties()
{
    return {BlockInterface, FilesystemInterface, DriveInterface, JobInterface};
}

void UDisksObjects::clear()
{
    m_blocks.clear();
    m_filesystems.clear();
    m_partitionTables.clear();
    m_drives.clear();
    m_jobs.clear();
    m_runningJobs.clear();
}

void UDisksObjects::reset(const QDBusArgument &objects)
{
    clear();
    ++m_announcements;
    objects.beginMap();
    while (!objects.atEnd()) {
        QDBusObjectPath path;
        objects.beginMapEntry();
        objects >> path;
        addAll(path.path(), objects);
        objects.endMapEntry();
    }
    objects.endMap();
}

void UDisksObjects::addInterfaces(const QString &path, const QDBusArgument &interfaces)
{
    ++m_announcements;
    addAll(path, interfaces);
}

void UDisksObjects::addAll(const QString &path, const QDBusArgument &interfaces)
{
    interfaces.beginMap();
    while (!interfaces.atEnd()) {
        QString interface;
        interfaces.beginMapEntry();
        interfaces >> interface;
        const bool isNewJob = interface == JobInterface && !m_jobs.contains(path);
        const bool matters = withTable(interface, [&](auto &table) {
            QVariantMap properties;
            interfaces >> properties;
            auto &item = table[path];
            item = {};
            setAll(item, properties);
        });
        if (!matters)
            interfaces.asVariant(); // steps over it
        if (isNewJob)
            m_runningJobs.insert(path, m_announcements);
        interfaces.endMapEntry();
    }
    interfaces.endMap();
}

void UDisksObjects::removeInterfaces(const QString &path, const QStringList &interfaces)
{
    for (const QString &interface : interfaces) {
        withTable(interface, [&](auto &table) { table.remove(path); });
        if (interface == JobInterface)
            m_runningJobs.remove(path);
    }
}

bool UDisksObjects::changeProperties(const QString &path, const QString &interface, const QVariantMap &properties)
{
    bool known = false;
    withTable(interface, [&](auto &table) {
        const auto item = table.find(path);
        known = item != table.end();
        if (known)
            setAll(*item, properties);
    });
    return known;
}

void UDisksObjects::replaceProperties(const QString &path, const QString &interface, const QVariantMap &properties)
{
    withTable(interface, [&](auto &table) {
        const auto item = table.find(path);
        if (item == table.end())
            return;
        *item = {};
        setAll(*item, properties);
    });
}

const UDisksObjects::Job *UDisksObjects::completeJob(const QString &path)
{
    return m_runningJobs.remove(path) > 0 ? &m_jobs[path] : nullptr;
}

const UDisksObjects::Filesystem *UDisksObjects::externalFilesystem(const QString &path, const Block &block) const
{
    if (block.hintSystem || block.hintIgnore || m_partitionTables.contains(path))
        return nullptr;
    const auto drive = m_drives.constFind(block.drive);
    if (drive == m_drives.constEnd() || !drive->isExternal())
        return nullptr;
    const auto filesystem = m_filesystems.constFind(path);
    return filesystem == m_filesystems.constEnd() ? nullptr : &*filesystem;
}

UDisksObjects::MountJobs UDisksObjects::mountJobs(const QString &path) const
{
    MountJobs jobs;
    std::pair<quint64, quint64> latest;
    for (auto running = m_runningJobs.constBegin(); running != m_runningJobs.constEnd(); ++running) {
        const auto job = m_jobs.constFind(running.key());
        if (!(job->isMount() || job->isUnmount()) || !job->objects.contains(path))
            continue;
        if (job->isMount())
            jobs.mounting.insert(running.key());
        // Jobs of the first list are all announced at once.
        const std::pair<quint64, quint64> time(running.value(), job->startTime);
        if (!jobs.latest || time > latest) {
            jobs.latest = &*job;
            latest = time;
        }
    }
    return jobs;
}

// Calls the function with the table of the interface; false when the interface is none of those that matter.
template<typename Function>
bool UDisksObjects::withTable(const QString &interface, Function function)
{
    if (interface == BlockInterface)
        function(m_blocks);
    else if (interface == FilesystemInterface)
        function(m_filesystems);
    else if (interface == PartitionTableInterface)
        function(m_partitionTables);
    else if (interface == DriveInterface)
        function(m_drives);
    else if (interface == JobInterface)
        function(m_jobs);
    else
        return false;
    return true;
}
