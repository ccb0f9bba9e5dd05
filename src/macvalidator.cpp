// SPDX-License-Identifier: BSD-3-Clause
#include "macvalidator.h"

#include "hwsettings.h"
#include "sysfile.h"

#include <QDebug>
#include <QRegularExpression>

#ifdef KIV_HAVE_SYSTEMINFO
#include <QNetworkInfo>
#else
#include "wlanaddress.h"
#endif

namespace
{
const QString BluetoothType = QStringLiteral("bluetooth");
const QString WirelessType = QStringLiteral("wireless");
const QString BluetoothAddressFile = QStringLiteral("/var/lib/bluetooth/board-address");
const QString BluetoothPatternKey = QStringLiteral("BTMACCheck/Regex");
const QString WirelessPatternKey = QStringLiteral("WLANMACCheck/Regex");
const QString DefaultPattern = QStringLiteral("(([0-9a-f]){2}:){5}([0-9a-f]){2}");
}

MacValidator::MacValidator(QObject *parent) : QObject(parent), m_settings(new HwSettings(this))
{
#ifdef KIV_HAVE_SYSTEMINFO
    m_networkInfo = new QNetworkInfo(this);
#endif
}

bool MacValidator::isMacValid(const QString &type) const
{
    const QString address = getMac(type);
    if (address.isEmpty()) {
        qDebug() << "Mac of type:" << type << "is empty/unspecified.";
        return false;
    }
    const QString pattern = getMacCriteria(type);
    if (pattern.isEmpty()) {
        qDebug() << "Requested to validate mac of unknown type";
        return false;
    }
    const QRegularExpression expression(pattern);
    // Asked to match, an invalid expression would only write a warning first.
    return expression.isValid() && expression.match(address).hasMatch();
}

QString MacValidator::getMac(const QString &type) const
{
    QString address;
    if (type == BluetoothType)
        address = QString::fromLatin1(readFirstLine(BluetoothAddressFile));
    else if (type == WirelessType)
        address = wirelessAddress();
    return address.toLower().trimmed();
}

QString MacValidator::getMacCriteria(const QString &type) const
{
    QString pattern;
    if (type == BluetoothType)
        pattern = m_settings->stringValue(BluetoothPatternKey);
    else if (type == WirelessType)
        pattern = m_settings->stringValue(WirelessPatternKey);
    else
        return QString();
    if (pattern.isEmpty()) {
        pattern = DefaultPattern;
        qDebug() << "No regular expression defined for mac type:" << type << "using default:" << pattern;
    }
    return pattern;
}

QString MacValidator::wirelessAddress() const
{
#ifdef KIV_HAVE_SYSTEMINFO
    constexpr int FirstInterface = 0;
    return m_networkInfo->macAddress(QNetworkInfo::WlanMode, FirstInterface);
#else
    return readWlanAddress();
#endif
}
