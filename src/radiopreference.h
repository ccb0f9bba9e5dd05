// SPDX-License-Identifier: BSD-3-Clause
#ifndef RADIOPREFERENCE_H
#define RADIOPREFERENCE_H

#include <QObject>

/*! Whether the modem is configured to prefer 4G. */
class RadioPreference : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool getResult READ getResult)

public:
    explicit RadioPreference(QObject *parent = nullptr);

    /*!
     * True when the telephony stack's configuration has the section "[4gOn]" on a line of its own; false also when
     * the file is missing. Source: /etc/ofono/ril_subscription.conf, read anew each time.
     */
    bool getResult() const;
};

#endif
