// SPDX-License-Identifier: BSD-3-Clause
#include "kivutils.h"

#include <QFile>

KivUtils::KivUtils(QObject *parent) : QObject(parent)
{
}

bool KivUtils::removeFile(QUrl url) // NOLINT(performance-unnecessary-value-param)
{
    return QFile::remove(url.toLocalFile());
}
