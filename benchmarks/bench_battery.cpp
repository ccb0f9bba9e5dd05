// SPDX-License-Identifier: BSD-3-Clause
//
// One reading of Battery against the bare open(), read() and close() of its file.

#include "battery.h"

#include <QByteArray>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
constexpr int Rounds = 101;
constexpr int CallsPerRound = 500;
const char Folder[] = "/sys/class/power_supply/battery";

void writeAttribute(const char *name, const char *content)
{
    const QByteArray path = QByteArray(Folder) + '/' + name;
    const int fd = ::open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0 || ::write(fd, content, qstrlen(content)) != ssize_t(qstrlen(content)))
        std::abort();
    ::close(fd);
}

double microseconds(const std::function<void()> &call)
{
    const auto begin = std::chrono::steady_clock::now();
    for (int i = 0; i < CallsPerRound; ++i)
        call();
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - begin).count() / CallsPerRound;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}
}

int main()
{
    ::mkdir(Folder, 0755);
    writeAttribute("type", "Battery\n");
    writeAttribute("voltage_now", "3812500\n");

    const Battery battery;
    double sum = 0;
    const auto reading = [&] { sum += battery.voltageNow(); };
    const auto bare = [&] {
        char buffer[4096];
        const int fd = ::open("/sys/class/power_supply/battery/voltage_now", O_RDONLY | O_CLOEXEC);
        const ssize_t size = ::read(fd, buffer, sizeof(buffer) - 1);
        ::close(fd);
        buffer[size > 0 ? size : 0] = '\0';
        sum += std::strtod(buffer, nullptr);
    };
    std::vector<double> readings;
    std::vector<double> bares;
    for (int round = 0; round < Rounds; ++round) {
        readings.push_back(microseconds(reading));
        bares.push_back(microseconds(bare));
    }
    if (sum != 2.0 * Rounds * CallsPerRound * 3812500.0)
        return 1;
    std::printf("battery reading: %.2f us, bare %.2f us, ratio %.2f\n", median(readings), median(bares),
                median(readings) / median(bares));
    return 0;
}
