// SPDX-License-Identifier: BSD-3-Clause
#ifndef PARTITIONMANAGER_H
#define PARTITIONMANAGER_H

#include "partition.h"

#include <QObject>
#include <QVector>

/*! A partition manager that knows what the test tells it. */
class PartitionManager : public QObject
{
    Q_OBJECT

public:
    explicit PartitionManager(QObject *parent = nullptr) : QObject(parent) { s_latest = this; }
    ~PartitionManager() override
    {
        if (s_latest == this)
            s_latest = nullptr;
    }

    QVector<Partition> partitions(Partition::StorageTypes types) const
    {
        s_asked << int(types);
        return s_partitions;
    }

    inline static QVector<Partition> s_partitions;
    inline static QVector<int> s_asked;
    inline static PartitionManager *s_latest = nullptr;

Q_SIGNALS:
    void partitionAdded(const Partition &partition);
    void partitionChanged(const Partition &partition);
    void partitionRemoved(const Partition &partition);
};

#endif
