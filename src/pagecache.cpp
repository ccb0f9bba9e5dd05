// SPDX-License-Identifier: BSD-3-Clause
#include "pagecache.h"

#include "uniquefd.h"

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
constexpr off_t SmallestUnit = 256; // the header that the engine checks is shorter

bool isOlder(const struct stat &left, const struct stat &right)
{
    if (left.st_mtim.tv_sec != right.st_mtim.tv_sec)
        return left.st_mtim.tv_sec < right.st_mtim.tv_sec;
    return left.st_mtim.tv_nsec < right.st_mtim.tv_nsec;
}

/*! Maps the compiled form of the source for the rest of the process. Null when there is none that can be used. */
const void *mapCompiled(const QString &source)
{
    const QByteArray sourcePath = QFile::encodeName(source);
    const UniqueFd file(::open((sourcePath + 'c').constData(), O_RDONLY | O_CLOEXEC));
    if (!file.isOpen())
        return nullptr;

    struct stat compiledStatus;
    struct stat sourceStatus;
    if (::fstat(file.get(), &compiledStatus) != 0 || !S_ISREG(compiledStatus.st_mode)
        || compiledStatus.st_size < SmallestUnit || ::stat(sourcePath.constData(), &sourceStatus) != 0
        || isOlder(compiledStatus, sourceStatus))
        return nullptr;

    const auto size = size_t(compiledStatus.st_size);
    void *const mapping = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file.get(), 0);
    if (mapping == MAP_FAILED)
        return nullptr;
    if (std::memcmp(mapping, UnitMagic, sizeof(UnitMagic)) != 0) {
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
