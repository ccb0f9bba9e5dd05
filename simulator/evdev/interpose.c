/* SPDX-License-Identifier: BSD-3-Clause */
/* open(), read() and ioctl() for programs that use simulated event devices. Everything else passes through. */

#define _GNU_SOURCE
#include "state.h"

#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <pthread.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

/* These are defined here under the C library's names, which its headers may turn into macros or give other types. */
#undef open
#undef open64
#undef openat
#undef openat64
#undef read

#define END_OF_FILE (-1)
#define CACHE_SIZE 1024

#define REAL(name) ((__typeof__(&name))real_function(#name, &real_##name##_pointer))

static void *real_function(const char *name, _Atomic(void *) *pointer)
{
    void *function = *pointer;
    if (!function) {
        function = dlsym(RTLD_NEXT, name);
        if (!function)
            abort();
        *pointer = function;
    }
    return function;
}

static _Atomic(void *) real_open_pointer;
static _Atomic(void *) real_openat_pointer;
static _Atomic(void *) real_read_pointer;
static _Atomic(void *) real_ioctl_pointer;

int real_open(const char *path, int flags, mode_t mode)
{
    /* On 32-bit machines this must open files beyond 2 GiB for callers of open64() too. */
    return REAL(open)(path, flags, mode);
}

ssize_t real_read(int fd, void *buffer, size_t size)
{
    return REAL(read)(fd, buffer, size);
}

/* ---- which descriptors are ours ---- */

/* By descriptor: the file it was when last asked about, and the device that this file is a queue of, or null. A
 * descriptor that has been closed and used again is another file, so nothing has to be told of a close. */
struct known
{
    dev_t device_number;
    ino_t inode;
    struct device *device;
};

static pthread_mutex_t cache_mutex = PTHREAD_MUTEX_INITIALIZER;
static struct known cache[CACHE_SIZE];

/* For queues of which the device was removed before we knew it. */
static struct state gone_state = {.layout = LAYOUT, .is_event = 1, .gone = 1};
static struct device gone_device = {.state = &gone_state};

static struct device *device_of_path(int fd)
{
    char link[64];
    char path[PATH_MAX];
    snprintf(link, sizeof(link), "/proc/self/fd/%d", fd);
    const ssize_t length = readlink(link, path, sizeof(path) - 1);
    if (length < 0)
        return NULL;
    path[length] = '\0';
    const size_t prefix = strlen(HIDDEN_FOLDER "/");
    if (strncmp(path, HIDDEN_FOLDER "/", prefix) != 0)
        return NULL;
    char *node = path + prefix;
    char *end = strchr(node, '/');
    if (!end || strncmp(end, "/queue-", 7) != 0)
        return NULL;
    *end = '\0';
    struct device *device = strstr(end + 1, " (deleted)") ? NULL : find_device(node);
    return device ? device : &gone_device;
}

static void remember(int fd, const struct stat *status, struct device *device)
{
    if (fd >= CACHE_SIZE)
        return;
    pthread_mutex_lock(&cache_mutex);
    cache[fd] = (struct known){status->st_dev, status->st_ino, device};
    pthread_mutex_unlock(&cache_mutex);
}

static int recall(int fd, const struct stat *status, struct device **device)
{
    if (fd >= CACHE_SIZE)
        return 0;
    pthread_mutex_lock(&cache_mutex);
    const int known = cache[fd].inode == status->st_ino && cache[fd].device_number == status->st_dev;
    *device = known ? cache[fd].device : NULL;
    pthread_mutex_unlock(&cache_mutex);
    return known;
}

static struct device *device_of(int fd)
{
    const int error = errno;
    struct stat status;
    struct device *device = NULL;
    if (fstat(fd, &status) == 0 && S_ISFIFO(status.st_mode) && !recall(fd, &status, &device)) {
        device = device_of_path(fd);
        remember(fd, &status, device);
    }
    errno = error;
    return device;
}

/* ---- open ---- */

/* The simulated device that the path leads to, by whatever way. */
static struct device *device_at(const char *path, char *real)
{
    const size_t prefix = strlen(INPUT_FOLDER "/");
    if (!path || strncmp(path, INPUT_FOLDER "/", prefix) != 0 || !realpath(path, real)
        || strncmp(real, INPUT_FOLDER "/", prefix) != 0)
        return NULL;
    return find_device(real + prefix);
}

static int open_device(struct device *device, const char *path, int flags)
{
    struct state *state = device->state;
    const int wanted = (flags & O_ACCMODE) == O_RDONLY ? R_OK : (flags & O_ACCMODE) == O_WRONLY ? W_OK : R_OK | W_OK;
    int result = 0;
    if (flags & O_DIRECTORY)
        result = -ENOTDIR;
    else if (faccessat(AT_FDCWD, path, wanted, AT_EACCESS) < 0)
        result = -errno;
    else if (state->fail_open)
        result = -state->fail_open;
    else if (state->gone)
        result = -ENODEV;
    if (result == 0) {
        const int lock = lock_device(device);
        result = lock < 0 ? lock : open_queue(device, flags);
        unlock_device(lock);
    }
    if (result < 0) {
        errno = -result;
        return -1;
    }
    struct stat status;
    if (fstat(result, &status) == 0)
        remember(result, &status, device);
    state->opens++;
    return result;
}

static int open_any(int folder, const char *path, int flags, mode_t mode)
{
    if (!(flags & O_PATH)) {
        const int error = errno;
        char real[PATH_MAX];
        struct device *device = device_at(path, real);
        errno = error;
        if (device)
            return open_device(device, real, flags);
    }
    return folder == AT_FDCWD ? real_open(path, flags, mode) : REAL(openat)(folder, path, flags, mode);
}

#define OPEN_MODE(flags)                                                                                               \
    mode_t mode = 0;                                                                                                   \
    if (((flags)&O_CREAT) || ((flags)&O_TMPFILE) == O_TMPFILE) {                                                       \
        va_list arguments;                                                                                             \
        va_start(arguments, flags);                                                                                    \
        mode = va_arg(arguments, mode_t);                                                                              \
        va_end(arguments);                                                                                             \
    }

int open(const char *path, int flags, ...)
{
    OPEN_MODE(flags)
    return open_any(AT_FDCWD, path, flags, mode);
}

int open64(const char *path, int flags, ...)
{
    OPEN_MODE(flags)
    return open_any(AT_FDCWD, path, flags | O_LARGEFILE, mode);
}

int openat(int folder, const char *path, int flags, ...)
{
    OPEN_MODE(flags)
    return open_any(folder, path, flags, mode);
}

int openat64(int folder, const char *path, int flags, ...)
{
    OPEN_MODE(flags)
    return open_any(folder, path, flags | O_LARGEFILE, mode);
}

/* What the fortified headers call. */
int __open_2(const char *path, int flags);
int __open64_2(const char *path, int flags);
int __openat_2(int folder, const char *path, int flags);
int __openat64_2(int folder, const char *path, int flags);

int __open_2(const char *path, int flags)
{
    return open_any(AT_FDCWD, path, flags, 0);
}

int __open64_2(const char *path, int flags)
{
    return open_any(AT_FDCWD, path, flags | O_LARGEFILE, 0);
}

int __openat_2(int folder, const char *path, int flags)
{
    return open_any(folder, path, flags, 0);
}

int __openat64_2(int folder, const char *path, int flags)
{
    return open_any(folder, path, flags | O_LARGEFILE, 0);
}

/* ---- read ---- */

static int read_failure(const struct state *state)
{
    return state->gone ? ENODEV : state->fail_read;
}

static ssize_t failed_read(int failure)
{
    if (failure == END_OF_FILE)
        return 0;
    errno = failure;
    return -1;
}

static ssize_t read_device(struct device *device, int fd, void *buffer, size_t size)
{
    struct state *state = device->state;
    state->reads++;
    state->read_length = (uint32_t)size;
    if (size > 0 && size < sizeof(struct input_event)) {
        errno = EINVAL;
        return -1;
    }
    int failure = read_failure(state);
    if (failure)
        return failed_read(failure);
    const ssize_t got = real_read(fd, buffer, size - size % sizeof(struct input_event));
    failure = read_failure(state);
    if (failure && got > 0) {
        /* Woken by what went wrong. The descriptor stays readable as long as it does. */
        wake_queue(fd);
        return failed_read(failure);
    }
    return got;
}

ssize_t read(int fd, void *buffer, size_t size)
{
    struct device *device = device_of(fd);
    return device ? read_device(device, fd, buffer, size) : real_read(fd, buffer, size);
}

ssize_t __read_chk(int fd, void *buffer, size_t size, size_t room);

ssize_t __read_chk(int fd, void *buffer, size_t size, size_t room)
{
    if (size > room)
        abort();
    return read(fd, buffer, size);
}

/* ---- ioctl ---- */

static int copy_out(void *to, size_t size, const void *from, size_t length)
{
    const size_t bytes = length < size ? length : size;
    memcpy(to, from, bytes);
    return (int)bytes;
}

/* The kernel's bitmap of bits 0 to last, in whole longs. */
static int copy_bits(void *to, size_t size, const unsigned long *bitmap, unsigned last)
{
    return copy_out(to, size, bitmap, (last + BITS_PER_LONG - 1) / BITS_PER_LONG * sizeof(unsigned long));
}

static int copy_text(void *to, size_t size, const char *text)
{
    return *text ? copy_out(to, size, text, strlen(text) + 1) : -ENOENT;
}

/* The greatest code of a type; negative when the kernel keeps no codes of it. */
static int last_code(unsigned type)
{
    switch (type) {
    case 0:
        return EV_MAX;
    case EV_KEY:
        return KEY_MAX;
    case EV_REL:
        return REL_MAX;
    case EV_ABS:
        return ABS_MAX;
    case EV_MSC:
        return MSC_MAX;
    case EV_LED:
        return LED_MAX;
    case EV_SND:
        return SND_MAX;
    case EV_FF:
        return FF_MAX;
    case EV_SW:
        return SW_MAX;
    default:
        return -1;
    }
}

static int copy_state(struct device *device, int fd, unsigned type, void *to, size_t size)
{
    const int lock = lock_device(device);
    if (lock < 0)
        return lock;
    flush_queue(fd, type);
    const int copied = copy_bits(to, size, device->state->is[type], (unsigned)last_code(type));
    unlock_device(lock);
    return copied;
}

static int device_ioctl(struct device *device, int fd, unsigned long request, void *argument)
{
    struct state *state = device->state;
    const unsigned number = _IOC_NR(request);
    const size_t size = _IOC_SIZE(request);
    if (!state->is_event)
        return -ENOTTY;
    state->request_log[state->requests++ % LOG_SIZE] = (uint32_t)request;
    if (state->gone)
        return -ENODEV;
    if (state->fail_ioctl[number])
        return -state->fail_ioctl[number];

    switch (request) {
    case EVIOCGVERSION:
        *(int *)argument = EV_VERSION;
        return 0;
    case EVIOCGID:
        memcpy(argument, &state->id, sizeof(state->id));
        return 0;
    case EVIOCGREP:
        if (!test_bit(state->can[0], EV_REP))
            return -ENOSYS;
        ((unsigned *)argument)[0] = 250;
        ((unsigned *)argument)[1] = 33;
        return 0;
    case EVIOCGEFFECTS:
        *(int *)argument = 0;
        return 0;
    default:
        break;
    }
    if (_IOC_DIR(request) != _IOC_READ)
        return -EINVAL;
    switch (number) {
    case _IOC_NR(EVIOCGNAME(0)):
        return copy_text(argument, size, state->name);
    case _IOC_NR(EVIOCGPHYS(0)):
        return copy_text(argument, size, state->phys);
    case _IOC_NR(EVIOCGUNIQ(0)):
        return copy_text(argument, size, state->uniq);
    case _IOC_NR(EVIOCGPROP(0)):
        return copy_bits(argument, size, state->properties, INPUT_PROP_MAX);
    case _IOC_NR(EVIOCGKEY(0)):
        return copy_state(device, fd, EV_KEY, argument, size);
    case _IOC_NR(EVIOCGLED(0)):
        return copy_state(device, fd, EV_LED, argument, size);
    case _IOC_NR(EVIOCGSND(0)):
        return copy_state(device, fd, EV_SND, argument, size);
    case _IOC_NR(EVIOCGSW(0)):
        return copy_state(device, fd, EV_SW, argument, size);
    default:
        break;
    }
    const unsigned first_bits = _IOC_NR(EVIOCGBIT(0, 0));
    if (number >= first_bits && number < first_bits + EV_CNT) {
        const unsigned type = number - first_bits;
        const int last = last_code(type);
        return last < 0 ? -EINVAL : copy_bits(argument, size, state->can[type], (unsigned)last);
    }
    const unsigned first_axis = _IOC_NR(EVIOCGABS(0));
    if (number >= first_axis && number < first_axis + ABS_CNT) {
        if (!test_bit(state->can[0], EV_ABS))
            return -EINVAL;
        copy_out(argument, size, &state->axes[number - first_axis], sizeof(struct input_absinfo));
        return 0;
    }
    return -EINVAL;
}

static int ioctl_any(int fd, unsigned long request, void *argument)
{
    struct device *device = _IOC_TYPE(request) == 'E' ? device_of(fd) : NULL;
    if (!device)
        return REAL(ioctl)(fd, request, argument);
    const int error = errno;
    const int result = device_ioctl(device, fd, request, argument);
    errno = result < 0 ? -result : error;
    return result < 0 ? -1 : result;
}

int ioctl(int fd, unsigned long request, ...)
{
    va_list arguments;
    va_start(arguments, request);
    void *argument = va_arg(arguments, void *);
    va_end(arguments);
    return ioctl_any(fd, request, argument);
}

/* What 32-bit programs with 64-bit times call. */
int __ioctl_time64(int fd, unsigned long request, ...);

int __ioctl_time64(int fd, unsigned long request, ...)
{
    va_list arguments;
    va_start(arguments, request);
    void *argument = va_arg(arguments, void *);
    va_end(arguments);
    return ioctl_any(fd, request, argument);
}
