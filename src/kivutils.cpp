// SPDX-License-Identifier: BSD-3-Clause
#include "kivutils.h"

#include <QFile>

KivUtils::KivUtils(QObject *parent) : QObject(parent)
{
}

bool KivUtils::removeFile(QUrl url) // NOLINT(performance-unnecessary-value-param)
{
    // Qt would complain about an empty name.
    const QString path = url.toLocalFile();
    return !path.isEmpty() && QFile::remove(path);
}
