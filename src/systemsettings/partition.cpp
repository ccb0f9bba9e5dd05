// SPDX-License-Identifier: BSD-3-Clause
#include "partition.h"

#include "partitionstate.h"

Partition::StorageType Partition::storageType() const
{
    return m_state ? External : Invalid;
}

Partition::Status Partition::status() const
{
    return m_state ? m_state->status : Unmounted;
}

bool Partition::mountFailed() const
{
    return m_state && m_state->mountFailed;
}

QString Partition::mountPath() const
{
    return m_state ? m_state->mountPath : QString();
}
