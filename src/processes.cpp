// SPDX-License-Identifier: BSD-3-Clause
#include "processes.h"

#include "uniquefd.h"

#include <QPointer>

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace
{
const char ProcDirectory[] = "/proc";
const char CpuFile[] = "stat";
const char CommandLineFile[] = "/cmdline";
const char StatFile[] = "/stat";
constexpr int RefreshIntervalMs = 5000;
constexpr size_t ChunkSize = 4096; // more than any line that is read here, but for command lines
constexpr quint64 Percent = 100;

enum Role
{
    PidRole = Qt::UserRole + 1,
    NameRole = Qt::UserRole + 2,
    PercentCpuRole = Qt::UserRole + 4,
};

// Where proc(5) has utime and stime, counted from the state, which is the first field after the name.
constexpr int UserTimeField = 11;
constexpr int SystemTimeField = 12;

using Directory = std::unique_ptr<DIR, int (*)(DIR *)>;

/*! The number that the text is, or 0 when it is none or too large. */
template<typename Number>
Number toNumber(const char *begin, const char *end)
{
    Number number = 0;
    const std::from_chars_result result = std::from_chars(begin, end, number);
    return result.ec == std::errc() && result.ptr == end ? number : 0;
}

bool isSpace(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

const char *find(const char *begin, const char *end, char c)
{
    return static_cast<const char *>(std::memchr(begin, c, size_t(end - begin)));
}

UniqueFd openIn(DIR *directory, const char *path)
{
    return UniqueFd(::openat(::dirfd(directory), path, O_RDONLY | O_CLOEXEC));
}

UniqueFd openOfProcess(DIR *proc, int pid, const char *name)
{
    char path[32] = {};
    char *const end = std::to_chars(path, std::end(path), pid).ptr;
    std::strncpy(end, name, size_t(std::end(path) - end) - 1);
    return openIn(proc, path);
}

/*! Fills the chunk and returns where the content ends in it: at its beginning when nothing can be read. */
const char *readChunk(const UniqueFd &file, char (&chunk)[ChunkSize])
{
    return chunk + std::max(::read(file.get(), chunk, ChunkSize), ssize_t(0));
}

bool isDirectory(DIR *parent, const dirent &entry)
{
    if (entry.d_type == DT_DIR)
        return true;
    struct stat status;
    return (entry.d_type == DT_LNK || entry.d_type == DT_UNKNOWN)
        && ::fstatat(::dirfd(parent), entry.d_name, &status, 0) == 0 && S_ISDIR(status.st_mode);
}

/*! The ids of the running processes, in ascending order. */
std::vector<int> listProcesses(DIR *proc, size_t expected)
{
    std::vector<int> pids;
    pids.reserve(expected);
    while (const dirent *entry = ::readdir(proc)) {
        const char *const name = entry->d_name;
        if (name[0] >= '0' && name[0] <= '9' && isDirectory(proc, *entry))
            pids.push_back(toNumber<int>(name, name + std::strlen(name)));
    }
    std::sort(pids.begin(), pids.end());
    pids.erase(std::unique(pids.begin(), pids.end()), pids.end());
    return pids;
}

/*! Time of all processors since boot in jiffies, without that spent waiting for devices. */
quint64 readTotal(const UniqueFd &file)
{
    char chunk[ChunkSize];
    const char *const end = readChunk(file, chunk);
    const char *const newline = find(chunk, end, '\n');
    chunk[std::min(size_t((newline ? newline : end) - chunk), ChunkSize - 1)] = '\0';

    unsigned long long user = 0, nice = 0, system = 0, idle = 0;
    std::sscanf(chunk, "%*s %llu %llu %llu %llu", &user, &nice, &system, &idle);
    return user + nice + system + idle;
}

/*! The text up to the first NUL, or up to the first newline and with it. A name that is known already stays as it is.
 */
void readProgramName(const UniqueFd &file, QString *name)
{
    QByteArray beginning;
    bool complete;
    do {
        char chunk[ChunkSize];
        const char *const contentEnd = readChunk(file, chunk);
        const char *const nul = find(chunk, contentEnd, '\0');
        const char *const newline = find(chunk, nul ? nul : contentEnd, '\n');
        const char *const end = newline ? newline + 1 : nul ? nul : contentEnd;
        complete = newline || nul || contentEnd < std::end(chunk);
        if (complete && beginning.isEmpty()) {
            const QLatin1String text(chunk, int(end - chunk));
            if (*name != text)
                *name = text;
            return;
        }
        beginning.append(chunk, int(end - chunk));
    } while (!complete);
    *name = QString::fromLatin1(beginning);
}

}

struct Processes::Process
{
    explicit Process(int pid) : pid(pid) { }

    bool readName(DIR *proc);
    void readStat(DIR *proc, quint64 totalDelta, quint64 processors);

    int pid;
    QString name;
    quint64 previousTicks = 0;
    float percentCpu = 0;
};

/*! False when the process is gone. */
bool Processes::Process::readName(DIR *proc)
{
    const UniqueFd file = openOfProcess(proc, pid, CommandLineFile);
    if (!file.isOpen())
        return false;
    readProgramName(file, &name);
    return true;
}

/*! Leaves everything as it is when the process is gone or the kernel's line makes no sense. */
void Processes::Process::readStat(DIR *proc, quint64 totalDelta, quint64 processors)
{
    const UniqueFd file = openOfProcess(proc, pid, StatFile);
    if (!file.isOpen())
        return;
    char chunk[ChunkSize];
    const char *const end = readChunk(file, chunk);
    // A name may hold a parenthesis itself. The first one ends it all the same, and the fields behind it shift.
    const char *const nameEnd = find(chunk, end, ')');
    if (!nameEnd)
        return;
    const char *const nameBegin = find(chunk, nameEnd, '(');
    if (name.isEmpty() && nameBegin)
        name = QString::fromUtf8(nameBegin + 1, int(nameEnd - nameBegin - 1));

    quint64 ticks = 0;
    const char *at = nameEnd + 1;
    for (int field = 0; field <= SystemTimeField; ++field) {
        const char *const begin = std::find_if_not(at, end, isSpace);
        at = std::find_if(begin, end, isSpace);
        if (begin == end)
            return;
        if (field >= UserTimeField)
            ticks += toNumber<unsigned long>(begin, at);
    }

    const quint64 delta = ticks - previousTicks;
    // Two samples within one jiffy say nothing, and not-a-number would confuse the sorting.
    percentCpu = totalDelta == 0 ? 0 : float(delta * processors * Percent) / float(totalDelta);
    previousTicks = ticks;
}

Processes::Processes(QObject *parent) : QAbstractListModel(parent), m_timer(this)
{
    connect(&m_timer, &QTimer::timeout, this, &Processes::refresh);
    m_timer.start(RefreshIntervalMs);
    refresh();
}

Processes::~Processes() = default;

void Processes::setLimit(int limit)
{
    if (m_limit == limit)
        return;
    const QPointer<Processes> alive(this);
    const int oldCount = rowCount();
    m_limit = limit;
    Q_EMIT limitChanged();
    if (alive && rowCount() != oldCount)
        Q_EMIT countChanged();
}

int Processes::rowCount(const QModelIndex &parent) const
{
    if (!m_valid || parent.isValid())
        return 0;
    const int size = int(m_rows.size());
    return m_limit < 0 ? size : qMin(size, m_limit);
}

QVariant Processes::data(const QModelIndex &index, int role) const
{
    // Not by rowCount(): until the next sample a view still has the rows that a new limit leaves out.
    if (!index.isValid() || index.row() >= int(m_rows.size()))
        return QVariant();
    const Process &process = *m_rows[size_t(index.row())];
    switch (role) {
    case PidRole:
        return process.pid;
    case NameRole:
        return process.name;
    case PercentCpuRole:
        return process.percentCpu;
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> Processes::roleNames() const
{
    return {{PidRole, QByteArrayLiteral("pid")},
            {NameRole, QByteArrayLiteral("name")},
            {PercentCpuRole, QByteArrayLiteral("percentCpu")}};
}

void Processes::refresh()
{
    const int oldCount = rowCount();
    const Directory proc(::opendir(ProcDirectory), ::closedir);
    if (!proc)
        return;
    const std::vector<int> pids = listProcesses(proc.get(), m_processes.size());
    const UniqueFd cpuFile = openIn(proc.get(), CpuFile);
    if (!cpuFile.isOpen())
        return;
    m_valid = !m_processes.empty();
    const bool resets = m_valid;
    // Every signal may be answered by destroying this object.
    const QPointer<Processes> alive(this);
    if (resets)
        beginResetModel();
    if (!alive)
        return;
    const quint64 total = readTotal(cpuFile);
    const quint64 totalDelta = total - m_previousTotal;
    const auto processors = quint64(::sysconf(_SC_NPROCESSORS_ONLN));

    // Both lists are in order: what is not met on the way through the known processes is gone.
    std::vector<Process> processes;
    processes.reserve(pids.size());
    auto known = m_processes.begin();
    for (const int pid : pids) {
        known = std::find_if(known, m_processes.end(), [pid](const Process &process) { return process.pid >= pid; });
        const bool isKnown = known != m_processes.end() && known->pid == pid;
        Process process = isKnown ? std::move(*known) : Process(pid);
        if (process.readName(proc.get()))
            process.readStat(proc.get(), totalDelta, processors);
        else if (!isKnown)
            continue;
        processes.push_back(std::move(process));
    }
    m_processes = std::move(processes);

    m_rows.clear();
    for (const Process &process : m_processes)
        m_rows.push_back(&process);
    std::sort(m_rows.begin(), m_rows.end(),
              [](const Process *a, const Process *b) { return a->percentCpu > b->percentCpu; });

    m_previousTotal = total;
    if (resets)
        endResetModel();
    if (alive && rowCount() != oldCount)
        Q_EMIT countChanged();
}
