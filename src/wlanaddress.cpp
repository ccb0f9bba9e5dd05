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
}

QString readWlanAddress()
{
    const QDir directory(NetworkDirectory);
    const QStringList interfaces = directory.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString &interface : interfaces) {
        const QString path = directory.filePath(interface);
        if (isWireless(path))
            return QString::fromLatin1(readFirstLine(path + QStringLiteral("/address")));
    }
    return QString();
}
