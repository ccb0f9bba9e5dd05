// SPDX-License-Identifier: BSD-3-Clause
#ifndef FILES_H
#define FILES_H

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>

/*! Puts a file with this content at the path, with the folders it needs. */
inline void writeFile(const QString &path, const QByteArray &content, QFile::Permissions permissions = {})
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
    file.close();
    if (permissions)
        file.setPermissions(permissions);
}

/*! Puts a program at the path. */
inline void writeScript(const QString &path, const QByteArray &content)
{
    QFile::remove(path);
    writeFile(path, "#!/bin/sh\n" + content,
              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
}

inline QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/*! Removes whatever stands below the folder, but not the folder. */
inline void emptyFolder(const QString &path)
{
    const auto entries =
        QDir(path).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const QFileInfo &entry : entries) {
        if (entry.isDir() && !entry.isSymLink())
            QDir(entry.filePath()).removeRecursively();
        else
            QFile::remove(entry.filePath());
    }
}

#endif
