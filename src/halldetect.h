// SPDX-License-Identifier: BSD-3-Clause
#ifndef HALLDETECT_H
#define HALLDETECT_H

#include "uniquefd.h"

#include <QObject>

#include <memory>

class QSocketNotifier;

/*!
 * The Hall switch that a magnet in the phone's cover closes. The kernel shows it as the lid switch of an event device
 * in /dev/input; the first one by name is taken. Opens nothing until asked to.
 */
class HallDetect : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool hall READ hall NOTIFY hallChanged)

public:
    explicit HallDetect(QObject *parent = nullptr);
    ~HallDetect() override;

public Q_SLOTS:
    /*!
     * Looks for the device afresh and follows it. The present state counts at once: hallChanged() is emitted before
     * this returns if it differs from the last known one. Without a device nothing is open and hall() stays.
     */
    void openFile();

    /*! Stops following the device. hall() stays. */
    void closeFile();

    /*! True while a magnet is present (the cover is closed), as far as known; false before the first openFile(). */
    bool hall() const;

    /*! Reads what the open device has to tell. The argument is of no account. */
    void readHallData(int);

Q_SIGNALS:
    void hallChanged();

private:
    void setHall(bool hall);

    // The notifier goes before the descriptor that it watches.
    UniqueFd m_fd;
    std::unique_ptr<QSocketNotifier> m_notifier;
    bool m_hall = false;
};

#endif
