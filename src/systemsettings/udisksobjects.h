// SPDX-License-Identifier: BSD-3-Clause
#ifndef UDISKSOBJECTS_H
#define UDISKSOBJECTS_H

#include <QByteArray>
#include <QHash>
#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariantMap>

class QDBusArgument;

/*!
 * What the storage daemon UDisks2 has told about its objects, as far as it takes part in the question which external
 * partitions there are. A property that is missing or of another type counts as false, 0 or empty.
 */
class UDisksObjects
{
public:
    /*! Interface org.freedesktop.UDisks2.Block. */
    struct Block
    {
        QByteArray device;
        QString drive;
        bool hintSystem = false;
        bool hintIgnore = false;

        void set(const QString &property, const QVariant &value);
    };

    /*! Interface org.freedesktop.UDisks2.Filesystem. */
    struct Filesystem
    {
        bool mounted = false;
        QString mountPath; //!< the first

        void set(const QString &property, const QVariant &value);
    };

    /*! Interface org.freedesktop.UDisks2.PartitionTable, of which its presence tells all. */
    struct PartitionTable
    {
        void set(const QString &, const QVariant &) { }
    };

    /*! Interface org.freedesktop.UDisks2.Drive. */
    struct Drive
    {
        bool removable = false;
        bool mediaRemovable = false;
        QString connectionBus;

        void set(const QString &property, const QVariant &value);
        bool isExternal() const;
    };

    /*! Interface org.freedesktop.UDisks2.Job. */
    struct Job
    {
        QString operation;
        QSet<QString> objects;
        quint64 startTime = 0; //!< microseconds since 1970

        void set(const QString &property, const QVariant &value);
        bool isMount() const;
        bool isUnmount() const;
    };

    /*! The running jobs that mount or unmount one object. */
    struct MountJobs
    {
        const Job *latest = nullptr; //!< a null pointer when there are none
        QSet<QString> mounting; //!< paths of those that mount it
    };

    /*! The interfaces whose properties matter. */
    static QStringList interfacesWithProperties();

    void clear();
    /*! Takes over a whole list of objects, of signature a{oa{sa{sv}}}, in place of all that was known. */
    void reset(const QDBusArgument &objects);
    /*! Takes over interfaces of one object, of signature a{sa{sv}}, beside those that it has. */
    void addInterfaces(const QString &path, const QDBusArgument &interfaces);
    void removeInterfaces(const QString &path, const QStringList &interfaces);
    /*! Takes over the properties named. False when the object is not known to have the interface. */
    bool changeProperties(const QString &path, const QString &interface, const QVariantMap &properties);
    /*! As changeProperties(), but a property that is not named is missing from now on. */
    void replaceProperties(const QString &path, const QString &interface, const QVariantMap &properties);
    /*! Notes that a job is over, and returns it. A null pointer when no such job was running. */
    const Job *completeJob(const QString &path);

    const QMap<QString, Block> &blocks() const { return m_blocks; }
    /*! The file system on the block device, if that is an external partition; else a null pointer. */
    const Filesystem *externalFilesystem(const QString &path, const Block &block) const;
    MountJobs mountJobs(const QString &path) const;

private:
    template<typename Function>
    bool withTable(const QString &interface, Function function);
    void addAll(const QString &path, const QDBusArgument &interfaces);

    QMap<QString, Block> m_blocks;
    QHash<QString, Filesystem> m_filesystems;
    QHash<QString, PartitionTable> m_partitionTables;
    QHash<QString, Drive> m_drives;
    QHash<QString, Job> m_jobs;
    QHash<QString, quint64> m_runningJobs; //!< the later a job was announced, the larger the number
    quint64 m_announcements = 0;
};

#endif
