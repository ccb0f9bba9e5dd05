// SPDX-License-Identifier: BSD-3-Clause
#include "evdev.h"

#include <QFile>

#include <fcntl.h>
#include <sys/ioctl.h>

namespace
{
const QLatin1String InputFolder("/dev/input");
}

bool EvdevBits::read(int fd, unsigned long request)
{
    Q_ASSERT(_IOC_SIZE(request) <= sizeof(m_words));
    m_words.fill(0);
    return ::ioctl(fd, request, m_words.data()) >= 0;
}

QStringList inputNodes(QDir::Filters filters)
{
    const QDir folder(InputFolder);
    QStringList paths;
    const QStringList names = folder.entryList(filters, QDir::Name | QDir::IgnoreCase);
    for (const QString &name : names)
        paths.append(folder.absoluteFilePath(name));
    return paths;
}

UniqueFd openInputNode(const QString &path)
{
    // A FIFO that lies in the folder would hold up the page until somebody writes to it. An event device does not care.
    UniqueFd fd(::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (fd.isOpen())
        ::fcntl(fd.get(), F_SETFL, O_RDONLY);
    return fd;
}
