// SPDX-License-Identifier: BSD-3-Clause
/*!
 * What one refresh of the process list costs: against a bare loop that does nothing but read the same files, and
 * against one refresh of top. Arguments: numbers of processes, 1000 and 4000 unless given. All times are those of the
 * processor, so other work on the machine disturbs little. Exit status 1 when the process list costs too much.
 */
#include "processes.h"

#include <QCoreApplication>
#include <QProcess>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
constexpr int Rounds = 41;
constexpr int TopRounds = 10;
constexpr double MaximumToLoop = 1.15;
constexpr double MaximumToTop = 1.0;

double processorMs()
{
    timespec now;
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

double childrenMs()
{
    rusage usage;
    ::getrusage(RUSAGE_CHILDREN, &usage);
    return double(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) * 1e3
        + double(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e3;
}

bool canRead(int proc, const char *pid, const char *name)
{
    char path[32];
    std::strcat(std::strcpy(path, pid), name);
    const int fd = ::openat(proc, path, O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    char buffer[4096];
    const bool done = ::read(fd, buffer, sizeof(buffer)) >= 0;
    ::close(fd);
    return done;
}

/*! Lists /proc and opens, reads and closes both files of every process. */
int bareLoop()
{
    int count = 0;
    DIR *const proc = ::opendir("/proc");
    while (const dirent *entry = ::readdir(proc)) {
        if (entry->d_name[0] < '0' || entry->d_name[0] > '9')
            continue;
        if (canRead(::dirfd(proc), entry->d_name, "/cmdline") && canRead(::dirfd(proc), entry->d_name, "/stat"))
            ++count;
    }
    ::closedir(proc);
    return count;
}

double median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
    return values[values.size() / 2];
}

/*! Of one refresh of top, without its start. */
double topMs()
{
    const auto cost = [](int rounds) {
        const double before = childrenMs();
        QProcess top;
        top.setStandardOutputFile(QProcess::nullDevice());
        top.start(QStringLiteral("top"),
                  {QStringLiteral("-b"), QStringLiteral("-d"), QStringLiteral("0.05"), QStringLiteral("-n"),
                   QString::number(rounds)});
        if (!top.waitForFinished(-1) || top.exitCode() != 0)
            return 0.0;
        return childrenMs() - before;
    };
    return (cost(1 + TopRounds) - cost(1)) / TopRounds;
}

bool measure(int processes)
{
    std::vector<pid_t> pids;
    for (int i = 0; i < processes; ++i) {
        const pid_t pid = ::fork();
        if (pid == 0) {
            ::prctl(PR_SET_PDEATHSIG, SIGKILL);
            for (;;)
                ::pause();
        }
        if (pid < 0) {
            std::perror("fork");
            break;
        }
        pids.push_back(pid);
    }

    Processes model;
    std::vector<double> ours, bare, ratios;
    int count = 0;
    for (int round = 0; round < Rounds; ++round) {
        const double begin = processorMs();
        QMetaObject::invokeMethod(&model, "refresh", Qt::DirectConnection);
        const double middle = processorMs();
        count = bareLoop();
        const double end = processorMs();
        ours.push_back(middle - begin);
        bare.push_back(end - middle);
        ratios.push_back((middle - begin) / (end - middle));
    }
    const double top = topMs();

    const double toLoop = median(ratios);
    const double toTop = top > 0 ? median(ours) / top : 0;
    std::printf("%5d processes: refresh %.2f ms, %.2f times a bare loop of %.2f ms (at most %.2f); ", count,
                median(ours), toLoop, median(bare), MaximumToLoop);
    if (top > 0)
        std::printf("%.2f times one refresh of top of %.2f ms (below %.2f)\n", toTop, top, MaximumToTop);
    else
        std::printf("no top to compare with\n");

    for (const pid_t pid : pids)
        ::kill(pid, SIGKILL);
    for (const pid_t pid : pids)
        ::waitpid(pid, nullptr, 0);
    return model.count() >= int(pids.size()) && toLoop <= MaximumToLoop && toTop < MaximumToTop;
}
}

int main(int argc, char **argv)
{
    std::vector<int> sizes;
    for (int i = 1; i < argc; ++i)
        sizes.push_back(std::atoi(argv[i]));
    if (sizes.empty())
        sizes = {1000, 4000};
    const QCoreApplication application(argc, argv);
    bool good = true;
    for (const int size : sizes)
        good = measure(size) && good;
    return good ? EXIT_SUCCESS : EXIT_FAILURE;
}
