// SPDX-License-Identifier: BSD-3-Clause
//
// What merging the settings costs over merely reading them: loadSettings() against opening the same files with
// QSettings and reading every key once. Prints the ratio of the medians. Writes the settings files, so run it inside
// simulator/enter.

#include "files.h"
#include "settingsloader.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>

namespace
{
const QStringList Paths = {
    QStringLiteral("/usr/share/kiv/settings.d/10-hw-settings.ini"),
    QStringLiteral("/usr/share/kiv/settings.d/20-hw-settings.ini"),
    QStringLiteral("/run/kiv/settings.d/10-hw-settings.ini"),
    QStringLiteral("/run/kiv/settings.d/20-hw-settings.ini"),
};
const QString Filter = QStringLiteral("hw-settings");
constexpr int Groups = 3;
constexpr int Blocks = 40;
constexpr int RunsPerBlock = 50;
constexpr double Target = 1.5;

/*! Files of three groups each. Their keys are the same in all files or different in each. */
void writeFiles(int keysPerFile, bool sameKeys)
{
    int number = 0;
    for (const QString &path : Paths) {
        QByteArray content;
        if (sameKeys)
            number = 0;
        for (int group = 0; group < Groups; ++group) {
            content += "[Group" + QByteArray::number(group) + "]\n";
            for (int key = group; key < keysPerFile; key += Groups) {
                const QByteArray text = QByteArray::number(number++);
                content += "Key" + text + "=value " + text + "\n";
            }
        }
        writeFile(path, content);
    }
}

/*! Makes QSettings read the files instead of remembering them, which it does when they look unchanged. */
void renewFiles()
{
    static time_t seconds = 1000000000;
    ++seconds;
    const timespec times[2] = {{seconds, 0}, {seconds, 0}};
    for (const QString &path : Paths) {
        if (::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0) != 0)
            qFatal("cannot touch %s", qPrintable(path));
    }
}

int read()
{
    int length = 0;
    for (const QString &path : Paths) {
        const QSettings settings(path, QSettings::IniFormat);
        const QStringList keys = settings.allKeys();
        for (const QString &key : keys)
            length += settings.value(key).toString().size();
    }
    return length;
}

int load()
{
    return int(loadSettings(Filter) != nullptr);
}

double microseconds(int (*operation)())
{
    renewFiles();
    QElapsedTimer timer;
    timer.start();
    const int result = operation();
    const qint64 elapsed = timer.nsecsElapsed();
    if (result == 0)
        qFatal("nothing was read");
    return double(elapsed) / 1000.0;
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

bool compare(const char *name, int keysPerFile, bool sameKeys)
{
    writeFiles(keysPerFile, sameKeys);
    std::vector<double> reading;
    std::vector<double> loading;
    // In blocks by turns, so that a slow moment hits both, but mostly none frees what the other has left in the cache.
    for (int block = 0; block < Blocks; ++block) {
        for (int run = 0; run < RunsPerBlock; ++run)
            reading.push_back(microseconds(read));
        for (int run = 0; run < RunsPerBlock; ++run)
            loading.push_back(microseconds(load));
    }
    const double ratio = median(loading) / median(reading);
    std::printf("settings: %-32s read %6.1f us, load %6.1f us, ratio %.2f (at most %.1f)\n", name, median(reading),
                median(loading), ratio, Target);
    return ratio <= Target;
}
}

int main()
{
    // The message is made but not printed: a terminal would cost more than everything else.
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        if (type == QtFatalMsg)
            std::fprintf(stderr, "%s\n", qPrintable(text));
    });
    bool good = compare("4 files, the same 30 keys in each", 30, true);
    good = compare("4 files, 30 keys of its own each", 30, false) && good;
    good = compare("4 files, 32 keys in all", 8, false) && good;
    return good ? 0 : 1;
}
