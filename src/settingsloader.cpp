// SPDX-License-Identifier: BSD-3-Clause
#include "settingsloader.h"

#include "uniquefd.h"

#include <QDebug>
#include <QFile>

#include <climits>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace
{
const char *const SettingsDirectories[] = {
    "/usr/share/kiv/settings.d",
    "/run/kiv/settings.d",
};
const QString SettingsSuffix = QStringLiteral(".ini");

// No file can be made below a device, not by root either.
const QLatin1String Device("/dev/null");

// QSettings keeps about ten of the files that it has parsed and takes them for unchanged while size and time stamp are,
// which misses a file replaced within one tick of the file system's clock or installed with its old time stamp. It
// knows files by name, so each is opened by a name that it has forgotten by the time the name comes round again.
const QString DescriptorName = QStringLiteral("/proc/self/fd/%1");
constexpr int FirstDescriptor = 100;
constexpr int DescriptorCount = 100;

struct CloseDirectory
{
    void operator()(DIR *directory) const { ::closedir(directory); }
};
using Directory = std::unique_ptr<DIR, CloseDirectory>;

bool isRegularFile(DIR *directory, const dirent &entry)
{
    if (entry.d_type == DT_REG)
        return true;
    // Not every file system tells, and a link to a pipe would block its reader.
    struct stat status = {};
    return (entry.d_type == DT_LNK || entry.d_type == DT_UNKNOWN)
        && ::fstatat(::dirfd(directory), entry.d_name, &status, 0) == 0 && S_ISREG(status.st_mode);
}

// Not QDir, which would take a quarter of the time that loading takes.
QStringList matchingFiles(DIR *directory, const QString &filter)
{
    QStringList names;
    while (const dirent *const entry = ::readdir(directory)) {
        const QString name = QFile::decodeName(entry->d_name);
        const bool hidden = name.startsWith(QLatin1Char('.'));
        if (!hidden && name.endsWith(SettingsSuffix) && name.contains(filter) && isRegularFile(directory, *entry)
            && QFile::encodeName(name) == entry->d_name)
            names.append(name);
    }
    names.sort(Qt::CaseSensitive);
    return names;
}

/*! Another descriptor of the directory, with a number that was not used for long. */
UniqueFd uncommonDescriptor(DIR *directory)
{
    static int counter = 0;
    counter = (counter + 1) % DescriptorCount;
    return UniqueFd(::fcntl(::dirfd(directory), F_DUPFD_CLOEXEC, FirstDescriptor + counter));
}

/*!
 * A name of its own for every object, at which no file can be made: QSettings writes what was set in it to its file at
 * the latest when it is destroyed, and shares its content with every other object on the same file.
 */
QString unwritableName()
{
    static quint64 counter = 0;
    struct stat status = {};
    const bool isThere = ::stat(Device.data(), &status) == 0 && !S_ISDIR(status.st_mode);
    // Nor where a part of the path is too long, which takes longer to find out.
    const QString folder = isThere ? QString(Device) : QLatin1Char('/') + QString(NAME_MAX + 1, QLatin1Char('x'));
    return folder + QStringLiteral("/kiv-settings-%1").arg(++counter);
}

void copyValues(const QString &path, QSettings *target)
{
    const QSettings source(path, QSettings::IniFormat);
    const QStringList keys = source.allKeys();
    for (const QString &key : keys) {
        // Malformed lines leave keys behind that QSettings lists but does not find, or warns about when asked.
        if (key.isEmpty())
            continue;
        const QVariant value = source.value(key);
        if (value.isValid() || source.contains(key))
            target->setValue(key, value);
    }
}
}

std::unique_ptr<QSettings> loadSettings(const QString &filter)
{
    std::unique_ptr<QSettings> settings;
    for (const char *const path : SettingsDirectories) {
        const Directory directory(::opendir(path));
        const QStringList names = directory ? matchingFiles(directory.get(), filter) : QStringList();
        if (names.isEmpty())
            continue;
        const UniqueFd uncommon = uncommonDescriptor(directory.get());
        const QString uncommonPath = DescriptorName.arg(uncommon.isOpen() ? uncommon.get() : ::dirfd(directory.get()));
        // Without a proc file system the usual name has to do.
        const QString folder = QFile::exists(uncommonPath) ? uncommonPath : QString::fromLatin1(path);
        for (const QString &name : names) {
            if (settings) {
                qDebug() << "Append settings from" << name;
            } else {
                qDebug() << "Load settings from" << name;
                settings = std::make_unique<QSettings>(unwritableName(), QSettings::IniFormat);
            }
            copyValues(folder + QLatin1Char('/') + name, settings.get());
        }
    }
    return settings;
}

bool saysYes(const QVariant &value)
{
    // Stricter than QVariant::toBool(), to which every text but "0", "false" and none is true.
    const QString text = value.toString();
    return text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0 || text.toLongLong() != 0;
}
