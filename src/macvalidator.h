// SPDX-License-Identifier: BSD-3-Clause
#ifndef MACVALIDATOR_H
#define MACVALIDATOR_H

#include <QObject>
#include <QString>

class HwSettings;
class QNetworkInfo;

/*!
 * Checks the hardware addresses that production wrote into the phone. There are two types, "bluetooth" and "wireless";
 * any other is unknown.
 */
class MacValidator : public QObject
{
    Q_OBJECT

public:
    explicit MacValidator(QObject *parent = nullptr);

    /*! Whether the pattern of the type matches anywhere in its address. False for an unknown type, an empty address and
     *  an invalid pattern. */
    Q_INVOKABLE bool isMacValid(const QString &type) const;
    /*!
     * The address in lower case; empty for an unknown type and when it cannot be read.
     * Sources: the first line of /var/lib/bluetooth/board-address; the system's first wireless network interface.
     */
    Q_INVOKABLE QString getMac(const QString &type) const;
    /*! The regular expression for the address: BTMACCheck/Regex or WLANMACCheck/Regex of the hardware settings, else
     *  one for six pairs of digits joined by colons. Empty for an unknown type. */
    Q_INVOKABLE QString getMacCriteria(const QString &type) const;

private:
    QString wirelessAddress() const;

    HwSettings *m_settings;
    QNetworkInfo *m_networkInfo = nullptr; // stays null where Qt System Info is missing
};

#endif
