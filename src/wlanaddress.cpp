// SPDX-License-Identifier: BSD-3-Clause
#include "wlanaddress.h"

#include "sysfile.h"

#include <QDir>
#include <QFileInfo>

namespace
{
const QString NetworkDirectory = QStringLiteral("/sys/class/net");

bool isWireless(const QString &interface)
{
    // Drivers without the old wireless extensions have only the second.
    return QFileInfo::exists(interface + QStringLiteral("/wireless"))
        || QFileInfo::exists(interface + QStringLiteral("/phy80211"));
}

/*! Some vendors' drivers look like wired ones but for the name. */
bool isNamedWireless(const QString &interface)
{
    return QFileInfo(interface).fileName().startsWith(QLatin1String("wlan"));
}
}

QString readWlanAddress()
{
    const QDir directory(NetworkDirectory);
    const QStringList interfaces = directory.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const auto matches : {isWireless, isNamedWireless}) {
        for (const QString &interface : interfaces) {
            const QString path = directory.filePath(interface);
            if (matches(path))
                return QString::fromLatin1(readFirstLine(path + QStringLiteral("/address")));
        }
    }
    return QString();
}
