// SPDX-License-Identifier: BSD-3-Clause
#ifndef PARTITIONMANAGER_H
#define PARTITIONMANAGER_H

#include "partition.h"
#include "udisksobjects.h"

#include <QDBusConnection>
#include <QHash>
#include <QMap>
#include <QObject>
#include <QPair>
#include <QVector>

#include <deque>

class QDBusMessage;
class QDBusPendingCallWatcher;

/*!
 * What Kiv uses of the phone's system-settings library to follow memory cards, for systems without it. It knows the
 * external partitions only, in the order of their device files.
 *
 * Source: the storage daemon org.freedesktop.UDisks2 on the system bus, which is never started from here. The
 * partitions present are known right after construction, which waits for the daemon's list for at most two seconds;
 * everything after that arrives on the event loop. While the daemon is absent there are no partitions.
 */
class PartitionManager : public QObject
{
    Q_OBJECT

public:
    explicit PartitionManager(QObject *parent = nullptr);
    ~PartitionManager() override;

    /*! The partitions of the types asked for. Disks that are divided into partitions are never among them. */
    QVector<Partition> partitions(Partition::StorageTypes types) const;

Q_SIGNALS:
    void partitionAdded(const Partition &partition);
    /*! Its status, mount path or the outcome of mounting it is another than before. */
    void partitionChanged(const Partition &partition);
    /*! It is no longer in the list; the handle keeps what was last known. */
    void partitionRemoved(const Partition &partition);

private Q_SLOTS:
    void onInterfacesAdded(const QDBusMessage &message);
    void onInterfacesRemoved(const QDBusMessage &message);
    void onPropertiesChanged(const QDBusMessage &message);
    void onJobCompleted(const QDBusMessage &message);
    void onBusLost();

private:
    struct Entry
    {
        std::shared_ptr<PartitionState> state;
        QByteArray device;
        bool mounted = false;
        QSet<QString> mountJobs; //!< that were running when last looked at
    };
    struct Notification
    {
        void (PartitionManager::*signal)(const Partition &);
        Partition partition;
    };
    using InterfaceOfObject = QPair<QString, QString>;

    void onOwnerChanged(const QString &newOwner);
    void queryObjects(const QString &destination);
    bool takeObjects(const QDBusMessage &reply);
    void queryProperties(const QString &path, const QString &interface);
    void forgetDaemon();
    bool isFromDaemon(const QDBusMessage &message, const char *signature) const;
    void refresh(const QSet<QString> &failedToMount = {});
    void notify();

    QDBusConnection m_bus;
    QString m_owner; //!< the daemon's own name on the bus, empty while it is absent
    QDBusPendingCallWatcher *m_objectsQuery = nullptr;
    QHash<InterfaceOfObject, QDBusPendingCallWatcher *> m_propertyQueries;
    UDisksObjects m_objects;
    QMap<QString, Entry> m_entries; //!< by object path
    std::deque<Notification> m_notifications; //!< still to be sent
};

#endif
