// SPDX-License-Identifier: BSD-3-Clause
#include "pagecache.h"

#include "sysfile.h"
#include "uniquefd.h"

#include <QCryptographicHash>
#include <QFile>
#include <QMutex>
#include <QString>
#include <QUrl>
#include <QtQml/qqmlprivate.h>

#include <cstring>
#include <map>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>

namespace
{
const char UnitMagic[] = {'q', 'v', '4', 'c', 'd', 'a', 't', 'a'};
constexpr size_t SmallestUnit = 256; // the header that the engine checks is shorter
constexpr size_t SumLength = 40; // of the page's SHA-1, hexadecimal, which the build puts behind the unit

// Not the time stamps: a page that is copied or unpacked with its old one replaces a newer page.
bool isMadeOf(const char *compiled, size_t size, const QString &source)
{
    const QByteArray page = readWholeFile(source);
    const QByteArray sum = QCryptographicHash::hash(page, QCryptographicHash::Sha1).toHex();
    return !page.isNull() && std::memcmp(compiled + size - SumLength, sum.constData(), SumLength) == 0;
}

/*! Maps the compiled form of the source for the rest of the process. Null when there is none that can be used. */
const void *mapCompiled(const QString &source)
{
    const UniqueFd file(::open(QFile::encodeName(source + QLatin1Char('c')).constData(), O_RDONLY | O_CLOEXEC));
    if (!file.isOpen())
        return nullptr;

    struct stat status;
    if (::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)
        || size_t(status.st_size) < SmallestUnit + SumLength)
        return nullptr;

    const auto size = size_t(status.st_size);
    void *const mapping = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file.get(), 0);
    if (mapping == MAP_FAILED)
        return nullptr;
    if (std::memcmp(mapping, UnitMagic, sizeof(UnitMagic)) != 0
        || !isMadeOf(static_cast<const char *>(mapping), size, source)) {
        ::munmap(mapping, size);
        return nullptr;
    }
    return mapping;
}

/*! What the engine asks for each file it loads. It asks from its loader thread too, and keeps the pointer. */
const QQmlPrivate::CachedQmlUnit *lookUp(const QUrl &url)
{
    static QMutex mutex;
    static std::map<QString, QQmlPrivate::CachedQmlUnit> units; // whose nodes stay where they are

    if (!url.isLocalFile())
        return nullptr;
    const QString path = url.toLocalFile();
    const QMutexLocker locker(&mutex);
    auto unit = units.find(path);
    if (unit == units.end()) {
        const auto *const data = static_cast<const QV4::CompiledData::Unit *>(mapCompiled(path));
        unit = units.insert({path, {data, nullptr, nullptr}}).first;
    }
    return unit->second.qmlData ? &unit->second : nullptr;
}
}

void usePrecompiledPagesOnly()
{
    // The engine's own look-up of compiled pages cannot be had without its writing.
    qputenv("QML_DISABLE_DISK_CACHE", "1");

    QQmlPrivate::RegisterQmlUnitCacheHook hook{0, lookUp};
    QQmlPrivate::qmlregister(QQmlPrivate::QmlUnitCacheHookRegistration, &hook);
}
