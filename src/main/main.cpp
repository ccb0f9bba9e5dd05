// SPDX-License-Identifier: BSD-3-Clause
//
// Installed set-user-id root, so this file keeps to the C library: nothing else may run its initialisers with
// root's rights. The application is a library that is loaded once those rights are gone.

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <dlfcn.h>
#include <fcntl.h>
#include <link.h>
#include <sys/auxv.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
const char ChargerControlFile[] = "/sys/class/power_supply/usb/charger_disable";
constexpr mode_t ChargerControlMode = 0644;

using ApplicationMain = int (*)(int argc, char **argv);

int writeChargerControl(const char *value, const char *action)
{
    const int fd = open(ChargerControlFile, O_WRONLY | O_CLOEXEC);
    if (fd < 0) {
        fprintf(stderr, "Failed to open %s, %s\n", ChargerControlFile, strerror(errno));
        return 1;
    }
    const size_t length = strlen(value);
    const ssize_t written = write(fd, value, length);
    const int error = written < 0 ? errno : EIO;
    close(fd);
    if (written != static_cast<ssize_t>(length)) {
        fprintf(stderr, "Failed to %s charger, %s\n", action, strerror(error));
        return 1;
    }
    return 0;
}

int disableCharger()
{
    // Some kernels create the switch read-only even for its owner.
    (void)chmod(ChargerControlFile, ChargerControlMode);
    return writeChargerControl("1\n", "disable");
}

int enableCharger()
{
    return writeChargerControl("0\n", "enable");
}

int runCommand(const char *command)
{
    if (strcmp(command, "disable_charger") == 0)
        return disableCharger();
    if (strcmp(command, "enable_charger") == 0)
        return enableCharger();
    return 0;
}

// setuid() leaves the saved user id behind where the caller is not root, and with it a way back.
bool dropPrivileges()
{
    const uid_t user = getuid();
    return setuid(user) == 0 && setresuid(user, user, user) == 0;
}

// The file that the process was started from, without links. Where there is no proc file system, the kernel's word at
// the start has to do.
bool executablePath(char (&path)[PATH_MAX])
{
    const ssize_t length = readlink("/proc/self/exe", path, sizeof(path) - 1);
    if (length >= 0) {
        path[length] = '\0';
        return true;
    }
    const auto *const name = reinterpret_cast<const char *>(getauxval(AT_EXECFN));
    return name && realpath(name, path);
}

// Neither the environment nor the working directory may choose the library.
bool applicationLibraryPath(char (&path)[PATH_MAX])
{
    if (!executablePath(path))
        return false;
    char *const slash = strrchr(path, '/');
    const size_t directory = slash ? slash + 1 - path : 0;
    if (directory == 0 || directory + sizeof(KIV_APPLICATION_LIBRARY) > sizeof(path)) {
        errno = ENAMETOOLONG;
        return false;
    }
    memcpy(path + directory, KIV_APPLICATION_LIBRARY, sizeof(KIV_APPLICATION_LIBRARY));
    return true;
}

// The loader maps what the file claims to hold, and the process would die of SIGBUS where an interrupted update or a
// full disk has cut it off. The section table stands at the end. Everything else that can be wrong the loader tells
// itself.
bool isCutOff(const char *path)
{
    const int fd = open(path, O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    ElfW(Ehdr) header;
    struct stat status;
    const bool isElf = fstat(fd, &status) == 0 && S_ISREG(status.st_mode)
        && read(fd, &header, sizeof(header)) == static_cast<ssize_t>(sizeof(header))
        && memcmp(header.e_ident, ELFMAG, SELFMAG) == 0;
    close(fd);
    if (!isElf)
        return false;
    const auto size = static_cast<unsigned long long>(status.st_size);
    const unsigned long long tableSize = 1ULL * header.e_shnum * header.e_shentsize;
    return header.e_shoff > size || tableSize > size - header.e_shoff;
}

int runApplication(int argc, char **argv)
{
    char path[PATH_MAX];
    if (!applicationLibraryPath(path)) {
        fprintf(stderr, "Failed to find the application library, %s\n", strerror(errno));
        return 1;
    }
    if (isCutOff(path)) {
        fprintf(stderr, "Failed to load the application library, %s: file is cut off\n", path);
        return 1;
    }
    void *const library = dlopen(path, RTLD_LAZY);
    void *const entry = library ? dlsym(library, "kivApplicationMain") : nullptr;
    if (!entry) {
        fprintf(stderr, "Failed to load the application library, %s\n", dlerror());
        return 1;
    }
    return reinterpret_cast<ApplicationMain>(entry)(argc, argv);
}
}

int main(int argc, char **argv)
{
    if (argc == 2)
        return runCommand(argv[1]);
    if (!dropPrivileges()) {
        fprintf(stderr, "Failed to drop privileges, %s\n", strerror(errno));
        return 1;
    }
    return runApplication(argc, argv);
}
