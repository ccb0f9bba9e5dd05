// SPDX-License-Identifier: BSD-3-Clause
#ifndef SYSFILE_H
#define SYSFILE_H

#include <QByteArray>
#include <QString>

/*!
 * First line of a kernel file or other small file, without its newline. Null (isNull()) when the file cannot be opened
 * or read, empty when it is empty. A line of 16 MiB or more is cut off there.
 */
QByteArray readFirstLine(const QString &path);

/*!
 * The whole file, also where it claims to be empty as those in procfs do. Null when it cannot be opened or read. A file
 * of 16 MiB or more is cut off there.
 */
QByteArray readWholeFile(const QString &path);

#endif
