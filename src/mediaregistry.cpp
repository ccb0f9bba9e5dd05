// SPDX-License-Identifier: BSD-3-Clause
#include "mediaregistry.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <fcntl.h>

void keepMediaRegistryUnwritten()
{
    if (qEnvironmentVariableIsSet("GST_REGISTRY"))
        return;

    // GStreamer writes a file beside the list and renames it. In the folder of open files nobody can do that, root
    // neither, and reading from there works.
    QByteArray place = "/proc/self/fd/none";
    const QDir cache(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation)
                     + QStringLiteral("/gstreamer-1.0"));
    const QStringList lists = cache.entryList({QStringLiteral("registry.*.bin")}, QDir::Files, QDir::Time);
    if (!lists.isEmpty()) {
        // Stays open: GStreamer may be loaded at any time.
        const int list = ::open(QFile::encodeName(cache.filePath(lists.first())).constData(), O_RDONLY | O_CLOEXEC);
        if (list >= 0)
            place = "/proc/self/fd/" + QByteArray::number(list);
    }
    qputenv("GST_REGISTRY", place);
}
