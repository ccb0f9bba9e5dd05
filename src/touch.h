// SPDX-License-Identifier: BSD-3-Clause
#ifndef TOUCH_H
#define TOUCH_H

#include "uniquefd.h"

#include <QThread>

#include <atomic>

/*!
 * The self-test of the touch controller, which its driver runs while a debug file is being read. That can take the
 * controller seconds, so it happens away from the GUI: start() begins one test, and resultChanged() ends it.
 *
 * May be destroyed in the middle of a test: nothing is reported then, and the destructor does not wait for the driver.
 */
class Touch : public QThread
{
    Q_OBJECT
    Q_PROPERTY(bool result READ result NOTIFY resultChanged)

public:
    explicit Touch(QObject *parent = nullptr);
    ~Touch() override;

    /*! Whether a test of this object has passed. A later failure does not take it back.
     *  Source: /sys/kernel/debug/tp_s3202_dbg/tp_self_test, whose first line is then "0". */
    bool result() const { return m_result; }

Q_SIGNALS:
    /*! Sent at the end of every test, whatever came out. */
    void resultChanged();

protected:
    void run() override;

private:
    bool isAbandoned() const;

    std::atomic<bool> m_result{false};
    UniqueFd m_abandoned; // an eventfd, readable once this object is being destroyed
};

#endif
