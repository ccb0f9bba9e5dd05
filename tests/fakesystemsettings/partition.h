// SPDX-License-Identifier: BSD-3-Clause
#ifndef PARTITION_H
#define PARTITION_H

#include <QFlags>
#include <QString>

#include <memory>

/*! A partition as the test makes it up. It has what Kiv uses of the platform's one and no more. */
class Partition
{
public:
    enum StorageType
    {
        Invalid = 0,
        Internal = 0x7,
        External = 0x8
    };
    Q_DECLARE_FLAGS(StorageTypes, StorageType)
    enum Status
    {
        Unmounted,
        Mounting,
        Mounted,
        Unmounting,
        Formatting,
        Formatted = 17
    };
    struct Data
    {
        StorageType storageType = External;
        Status status = Unmounted;
        bool mountFailed = false;
        QString mountPath;
    };

    Partition() = default;
    explicit Partition(std::shared_ptr<Data> data) : m_data(std::move(data)) { }

    StorageType storageType() const { return m_data ? m_data->storageType : Invalid; }
    Status status() const { return m_data ? m_data->status : Unmounted; }
    bool mountFailed() const { return m_data && m_data->mountFailed; }
    QString mountPath() const { return m_data ? m_data->mountPath : QString(); }
    bool operator==(const Partition &other) const { return m_data == other.m_data; }

private:
    std::shared_ptr<Data> m_data;
};

#endif
