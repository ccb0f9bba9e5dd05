// SPDX-License-Identifier: BSD-3-Clause
#ifndef PARTITIONSTATE_H
#define PARTITIONSTATE_H

#include "partition.h"

/*! What the handles on one partition share. */
struct PartitionState
{
    Partition::Status status = Partition::Unmounted;
    bool mountFailed = false;
    QString mountPath;

    bool operator==(const PartitionState &other) const
    {
        return status == other.status && mountFailed == other.mountFailed && mountPath == other.mountPath;
    }
    bool operator!=(const PartitionState &other) const { return !(*this == other); }
};

#endif
