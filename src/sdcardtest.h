// SPDX-License-Identifier: BSD-3-Clause
#ifndef SDCARDTEST_H
#define SDCARDTEST_H

#include <QObject>

#include <partition.h>
#include <partitionmanager.h>

/*!
 * Whether a memory card is in the phone and mounted, and a test that writes to it and reads back.
 *
 * It follows one external partition, the first that the platform's partition manager lists, until that is removed.
 */
class SdCardTest : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Status status READ status NOTIFY statusChanged)
    Q_PROPERTY(bool mountFailed READ mountFailed NOTIFY mountFailedChanged)

public:
    enum Status
    {
        NoCard,
        Unmounted,
        Mounting,
        Mounted,
        Unmounting
    };
    Q_ENUM(Status)

    explicit SdCardTest(QObject *parent = nullptr);

    Status status() const;
    /*! Whether mounting has failed, for the partition that was the last to be reported: any external one, not only
     *  the one that status() is about. */
    bool mountFailed() const;

public Q_SLOTS:
    /*!
     * Writes 2048 bytes to the file "test.tmp" at the top of the card, reads them back and removes the file. Blocks
     * until that is done.
     * 0: not run, for the card is not mounted or its mount path is not a directory. 1: the file could not be created.
     * 2: what was read is not what was written. 3: passed.
     */
    int sdCardIOTest();

Q_SIGNALS:
    void statusChanged();
    void mountFailedChanged();

private:
    Partition pickCard() const;
    void update(const Partition &partition);

    PartitionManager m_manager;
    Partition m_card;
    Status m_status = Unmounted;
    bool m_mountFailed = false;
};

#endif
