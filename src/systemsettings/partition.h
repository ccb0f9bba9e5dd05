// SPDX-License-Identifier: BSD-3-Clause
#ifndef PARTITION_H
#define PARTITION_H

#include <QFlags>
#include <QString>

#include <memory>

struct PartitionState;

/*!
 * One partition of the phone's storage, as PartitionManager follows it. Copies are handles on the same partition: all
 * of them show its present state, and the last one after it has gone. A default-constructed one stands for none.
 */
class Partition
{
public:
    enum StorageType
    {
        Invalid = 0, //!< no partition
        External = 0x8, //!< on a card or stick that can be taken out
        ExcludeParents = 0x1000 //!< as a wish only: no disks that are divided into partitions
    };
    Q_DECLARE_FLAGS(StorageTypes, StorageType)

    enum Status
    {
        Unmounted = 0,
        Mounting = 1,
        Mounted = 2,
        Unmounting = 3
    };

    Partition() = default;

    StorageType storageType() const;
    Status status() const;
    /*! Whether the latest attempt to mount it has failed, as far as this program has seen it. */
    bool mountFailed() const;
    /*! Where it is mounted, or the first of these places. Empty while it is not mounted. */
    QString mountPath() const;

    bool operator==(const Partition &other) const { return m_state == other.m_state; }
    bool operator!=(const Partition &other) const { return m_state != other.m_state; }

private:
    friend class PartitionManager;
    explicit Partition(std::shared_ptr<const PartitionState> state) : m_state(std::move(state)) { }

    std::shared_ptr<const PartitionState> m_state;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(Partition::StorageTypes)

#endif
