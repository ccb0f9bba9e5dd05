// SPDX-License-Identifier: BSD-3-Clause
#ifndef MCEBUTTONBACKLIGHT_H
#define MCEBUTTONBACKLIGHT_H

#include <QObject>

/*! Names for the mode-control service's ways to light the touch buttons below the screen. */
class MceButtonBacklight : public QObject
{
    Q_OBJECT

public:
    enum Mode
    {
        ForceOff = 0,
        ForceOn = 1,
        /*! As the service itself sees fit. */
        Policy = 2
    };
    Q_ENUM(Mode)

    explicit MceButtonBacklight(QObject *parent = nullptr);
};

#endif
