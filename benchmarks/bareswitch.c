// SPDX-License-Identifier: BSD-3-Clause
//
// Nothing but the system calls of "kiv disable_charger".

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

int main(void)
{
    static const char path[] = "/sys/class/power_supply/usb/charger_disable";
    chmod(path, 0644);
    const int fd = open(path, O_WRONLY);
    if (fd < 0 || write(fd, "1\n", 2) != 2)
        return 1;
    return close(fd) != 0;
}
