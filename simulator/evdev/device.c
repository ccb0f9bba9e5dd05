/* SPDX-License-Identifier: BSD-3-Clause */
/* What a simulated event device is: its folder, its state, its readers' queues. */

#define _GNU_SOURCE
#include "evdevsim.h"
#include "state.h"

#include <dirent.h>
#include <errno.h>
#include <fcntl.h>
#include <pthread.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

static pthread_mutex_t devices_mutex = PTHREAD_MUTEX_INITIALIZER;
static struct device *devices;

static void set_bit(unsigned long *bitmap, unsigned bit, int on)
{
    const unsigned long mask = 1ul << (bit % BITS_PER_LONG);
    if (on)
        bitmap[bit / BITS_PER_LONG] |= mask;
    else
        bitmap[bit / BITS_PER_LONG] &= ~mask;
}

int test_bit(const unsigned long *bitmap, unsigned bit)
{
    return (bitmap[bit / BITS_PER_LONG] >> (bit % BITS_PER_LONG)) & 1;
}

static int is_node_name(const char *node)
{
    return node && *node && *node != '.' && !strchr(node, '/') && strlen(node) < NODE_SIZE;
}

static void folder_of(const char *node, char *path, size_t size)
{
    snprintf(path, size, HIDDEN_FOLDER "/%s", node);
}

static void file_of(const char *node, const char *file, char *path, size_t size)
{
    snprintf(path, size, HIDDEN_FOLDER "/%s/%s", node, file);
}

struct device *find_device(const char *node)
{
    char path[PATH_MAX];
    struct stat status;
    if (!is_node_name(node)) {
        errno = ENOENT;
        return NULL;
    }
    file_of(node, "state", path, sizeof(path));
    if (stat(path, &status) < 0)
        return NULL;

    pthread_mutex_lock(&devices_mutex);
    struct device *device = devices;
    while (device
           && (device->inode != status.st_ino || device->device_number != status.st_dev
               || strcmp(device->node, node) != 0))
        device = device->next;
    if (!device) {
        struct state *state = MAP_FAILED;
        const int fd = real_open(path, O_RDWR | O_CLOEXEC, 0);
        if (fd >= 0) {
            state = mmap(NULL, sizeof(*state), PROT_READ | PROT_WRITE, MAP_SHARED, fd, 0);
            close(fd);
        }
        device = state != MAP_FAILED ? malloc(sizeof(*device)) : NULL;
        if (device) {
            snprintf(device->node, sizeof(device->node), "%s", node);
            device->device_number = status.st_dev;
            device->inode = status.st_ino;
            device->state = state;
            device->next = devices;
            devices = device;
        }
    }
    pthread_mutex_unlock(&devices_mutex);
    if (device && device->state->layout != LAYOUT) {
        errno = ENODEV;
        return NULL;
    }
    return device;
}

int lock_device(const struct device *device)
{
    char path[PATH_MAX];
    file_of(device->node, "state", path, sizeof(path));
    const int lock = real_open(path, O_RDONLY | O_CLOEXEC, 0);
    if (lock < 0)
        return errno == ENOENT ? -ENODEV : -errno;
    while (flock(lock, LOCK_EX) < 0) {
        if (errno != EINTR) {
            const int error = errno;
            close(lock);
            return -error;
        }
    }
    if (device->state->gone) {
        close(lock);
        return -ENODEV;
    }
    return lock;
}

void unlock_device(int lock)
{
    if (lock >= 0)
        close(lock);
}

/* ---- queues ---- */

static void write_whole(int queue, const void *bytes, size_t size)
{
    /* A full queue takes no more; that is seen by the one who asked for room. */
    const ssize_t written = write(queue, bytes, size);
    (void)written;
}

static size_t drain(int queue, char *bytes, size_t size)
{
    const int flags = fcntl(queue, F_GETFL);
    size_t have = 0;
    fcntl(queue, F_SETFL, flags | O_NONBLOCK);
    for (;;) {
        const ssize_t got = real_read(queue, bytes + have, size - have);
        if (got <= 0)
            break;
        have += (size_t)got;
    }
    fcntl(queue, F_SETFL, flags);
    return have;
}

static void fill_record(struct input_event *record, unsigned type, unsigned code, int value)
{
    struct timespec now;
    clock_gettime(CLOCK_REALTIME, &now);
    memset(record, 0, sizeof(*record));
    record->input_event_sec = now.tv_sec;
    record->input_event_usec = now.tv_nsec / 1000;
    record->type = (uint16_t)type;
    record->code = (uint16_t)code;
    record->value = value;
}

void wake_queue(int queue)
{
    struct input_event record;
    fill_record(&record, EV_SYN, SYN_REPORT, 0);
    write_whole(queue, &record, sizeof(record));
}

void flush_queue(int queue, unsigned type)
{
    char *bytes = malloc(QUEUE_SIZE);
    if (!bytes)
        return;
    const size_t size = drain(queue, bytes, QUEUE_SIZE);
    size_t kept = 0;
    size_t at = 0;
    int in_frame = 0;
    for (; at + sizeof(struct input_event) <= size; at += sizeof(struct input_event)) {
        struct input_event record;
        memcpy(&record, bytes + at, sizeof(record));
        const int is_report = record.type == EV_SYN && record.code == SYN_REPORT;
        if (record.type == type || (is_report && in_frame == 0))
            continue;
        in_frame = is_report ? 0 : in_frame + 1;
        memmove(bytes + kept, bytes + at, sizeof(record));
        kept += sizeof(record);
    }
    memmove(bytes + kept, bytes + at, size - at);
    kept += size - at;
    for (size_t from = 0; from < kept; from += BATCH_RECORDS * sizeof(struct input_event)) {
        const size_t left = kept - from;
        const size_t batch = BATCH_RECORDS * sizeof(struct input_event);
        write_whole(queue, bytes + from, left < batch ? left : batch);
    }
    free(bytes);
}

/* Calls the function with each reader's queue, opened for it, and removes the queues that nobody reads any more.
 * Returns the number of readers. */
static int for_each_queue(const struct device *device, void (*function)(int queue, void *context), void *context)
{
    char path[PATH_MAX];
    folder_of(device->node, path, sizeof(path));
    DIR *folder = opendir(path);
    if (!folder)
        return -errno;
    int readers = 0;
    const struct dirent *entry;
    while ((entry = readdir(folder))) {
        if (strncmp(entry->d_name, "queue-", 6) != 0)
            continue;
        file_of(device->node, entry->d_name, path, sizeof(path));
        /* Opening for writing alone tells whether there is a reader. */
        const int probe = real_open(path, O_WRONLY | O_NONBLOCK | O_CLOEXEC, 0);
        if (probe < 0) {
            if (errno == ENXIO)
                unlink(path);
            continue;
        }
        ++readers;
        if (function)
            function(probe, context);
        close(probe);
    }
    closedir(folder);
    return readers;
}

int open_queue(const struct device *device, int flags)
{
    static _Atomic unsigned counter;
    char path[PATH_MAX];
    for_each_queue(device, NULL, NULL);
    for (;;) {
        char name[48];
        snprintf(name, sizeof(name), "queue-%d-%u", (int)getpid(), counter++);
        file_of(device->node, name, path, sizeof(path));
        if (mkfifo(path, 0666) == 0)
            break;
        if (errno != EEXIST)
            return -errno;
    }
    chmod(path, 0666);
    /* The reader holds the writing end too, so that its stream never ends because nobody happens to write. */
    const int queue = real_open(path, O_RDWR | (flags & (O_CLOEXEC | O_NONBLOCK)), 0);
    if (queue < 0) {
        const int error = errno;
        unlink(path);
        return -error;
    }
    if (device->state->fail_read)
        wake_queue(queue);
    return queue;
}

/* The queue is open for writing only; what is in it comes out at its other end. */
static void empty_queue(int queue, void *context)
{
    (void)context;
    char path[64];
    snprintf(path, sizeof(path), "/proc/self/fd/%d", queue);
    const int reading = real_open(path, O_RDONLY | O_NONBLOCK | O_CLOEXEC, 0);
    char *lost = malloc(QUEUE_SIZE);
    if (reading >= 0 && lost) {
        while (drain(reading, lost, QUEUE_SIZE) == QUEUE_SIZE)
            ;
    }
    free(lost);
    if (reading >= 0)
        close(reading);
}

struct batch
{
    const char *bytes;
    size_t size;
};

static void write_batch(int queue, void *context)
{
    const struct batch *batch = context;
    if (write(queue, batch->bytes, batch->size) >= 0 || errno != EAGAIN)
        return;
    /* The reader is too slow: as in the kernel, it loses what it has not read, and is told so. */
    empty_queue(queue, NULL);
    struct input_event record;
    fill_record(&record, EV_SYN, SYN_DROPPED, 0);
    write_whole(queue, &record, sizeof(record));
    write_whole(queue, batch->bytes, batch->size);
}

static void wake(int queue, void *context)
{
    (void)context;
    wake_queue(queue);
}

static void write_batches(const struct device *device, const char *bytes, size_t size)
{
    const size_t limit = BATCH_RECORDS * sizeof(struct input_event);
    for (size_t from = 0; from < size; from += limit) {
        struct batch batch = {bytes + from, size - from < limit ? size - from : limit};
        for_each_queue(device, write_batch, &batch);
    }
}

/* ---- making and removing ---- */

static struct device *device_or_error(const char *node, int *error)
{
    struct device *device = find_device(node);
    if (!device)
        *error = -errno;
    else if (device->state->gone)
        *error = -ENODEV;
    else
        return device;
    return NULL;
}

int evdev_create(const char *node, int is_event, const char *name, const char *phys, const char *uniq)
{
    char path[PATH_MAX];
    if (!is_node_name(node))
        return -EINVAL;
    evdev_remove(node);
    if (mkdir(HIDDEN_FOLDER, 0755) < 0 && errno != EEXIST)
        return -errno;
    folder_of(node, path, sizeof(path));
    if (mkdir(path, 0777) < 0 && errno != EEXIST)
        return -errno;
    /* Programs that gave up their rights make their queues here too. */
    if (chmod(path, 0777) < 0)
        return -errno;
    file_of(node, "state", path, sizeof(path));
    unlink(path);
    const int fd = real_open(path, O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (fd < 0)
        return -errno;
    struct state *state = calloc(1, sizeof(*state));
    if (!state) {
        close(fd);
        return -ENOMEM;
    }
    state->layout = LAYOUT;
    state->is_event = is_event;
    snprintf(state->name, sizeof(state->name), "%s", name ? name : "");
    snprintf(state->phys, sizeof(state->phys), "%s", phys ? phys : "");
    snprintf(state->uniq, sizeof(state->uniq), "%s", uniq ? uniq : "");
    set_bit(state->can[0], EV_SYN, 1);
    const ssize_t written = write(fd, state, sizeof(*state));
    const int failed = written != (ssize_t)sizeof(*state) || fchmod(fd, 0666) < 0;
    free(state);
    close(fd);
    return failed ? -EIO : 0;
}

int evdev_set_id(const char *node, int bus, int vendor, int product, int version)
{
    int error = 0;
    struct device *device = device_or_error(node, &error);
    if (!device)
        return error;
    device->state->id = (struct input_id){
        .bustype = (uint16_t)bus,
        .vendor = (uint16_t)vendor,
        .product = (uint16_t)product,
        .version = (uint16_t)version,
    };
    return 0;
}

int evdev_add_property(const char *node, int property)
{
    int error = 0;
    struct device *device = device_or_error(node, &error);
    if (!device)
        return error;
    if (property < 0 || property > INPUT_PROP_MAX)
        return -EINVAL;
    set_bit(device->state->properties, (unsigned)property, 1);
    return 0;
}

int evdev_add_code(const char *node, int type, int code)
{
    int error = 0;
    struct device *device = device_or_error(node, &error);
    if (!device)
        return error;
    if (type <= 0 || type > EV_MAX || code < 0 || code > KEY_MAX)
        return -EINVAL;
    set_bit(device->state->can[0], (unsigned)type, 1);
    set_bit(device->state->can[type], (unsigned)code, 1);
    return 0;
}

int evdev_set_axis(const char *node, int code, int value, int minimum, int maximum, int fuzz, int flat, int resolution)
{
    const int error = code < 0 || code > ABS_MAX ? -EINVAL : evdev_add_code(node, EV_ABS, code);
    if (error)
        return error;
    find_device(node)->state->axes[code] = (struct input_absinfo){
        .value = value,
        .minimum = minimum,
        .maximum = maximum,
        .fuzz = fuzz,
        .flat = flat,
        .resolution = resolution,
    };
    return 0;
}

int evdev_preset(const char *node, int type, int code, int on)
{
    const int has = evdev_has(node, type, code);
    if (has <= 0)
        return has ? has : -EINVAL;
    set_bit(find_device(node)->state->is[type], (unsigned)code, on);
    return 0;
}

int evdev_publish(const char *node, unsigned mode)
{
    int error = 0;
    char path[PATH_MAX];
    if (!device_or_error(node, &error))
        return error;
    snprintf(path, sizeof(path), INPUT_FOLDER "/%s", node);
    /* Nobody listens at this socket. It is here because it needs no privilege to make, counts as a system file as a
     * device node does, and gives programs that do not know of the simulation an error instead of waiting for ever. */
    if (mknod(path, S_IFSOCK | 0600, 0) < 0 || chmod(path, mode) < 0)
        return -errno;
    return 0;
}

int evdev_remove(const char *node)
{
    char path[PATH_MAX];
    int error = 0;
    struct device *device = device_or_error(node, &error);
    if (!device)
        return error;
    const int lock = lock_device(device);
    if (lock < 0)
        return lock;
    device->state->gone = 1;
    for_each_queue(device, wake, NULL);
    snprintf(path, sizeof(path), INPUT_FOLDER "/%s", node);
    unlink(path);

    char folder_path[PATH_MAX];
    folder_of(node, folder_path, sizeof(folder_path));
    DIR *folder = opendir(folder_path);
    if (folder) {
        const struct dirent *entry;
        while ((entry = readdir(folder)))
            unlinkat(dirfd(folder), entry->d_name, 0);
        closedir(folder);
    }
    rmdir(folder_path);
    unlock_device(lock);
    return 0;
}

/* ---- events ---- */

/* Whether the input core passes the change on to the readers. Changes the state accordingly. */
static int accept(struct state *state, const struct evdev_change *change)
{
    const unsigned type = change->type;
    const unsigned code = change->code;
    if (type > EV_MAX || code > KEY_MAX || !test_bit(state->can[0], type))
        return 0;
    if (type == EV_SYN)
        return code != SYN_REPORT;
    if (!test_bit(state->can[type], code))
        return 0;
    switch (type) {
    case EV_KEY:
        if (change->value == 2) /* a key that repeats itself is still down */
            return 1;
        /* fall through */
    case EV_SW:
    case EV_LED:
    case EV_SND:
        if (test_bit(state->is[type], code) == !!change->value)
            return 0;
        set_bit(state->is[type], code, change->value != 0);
        return 1;
    case EV_ABS:
        if (code > ABS_MAX)
            return 0;
        /* Each contact of a touch panel has a value of its own, so the same one again is news. */
        if (code < ABS_MT_SLOT && state->axes[code].value == change->value)
            return 0;
        state->axes[code].value = change->value;
        return 1;
    case EV_REL:
        return change->value != 0;
    default:
        return 1;
    }
}

int evdev_send(const char *node, const struct evdev_change *changes, size_t count)
{
    int error = 0;
    struct device *device = device_or_error(node, &error);
    if (!device)
        return error;
    struct input_event *records = calloc(count + 1, sizeof(*records));
    if (!records)
        return -ENOMEM;
    const int lock = lock_device(device);
    if (lock < 0) {
        free(records);
        return lock;
    }
    size_t have = 0;
    for (size_t i = 0; i < count; ++i) {
        if (accept(device->state, &changes[i]))
            fill_record(&records[have++], changes[i].type, changes[i].code, changes[i].value);
    }
    /* A frame without content is none. */
    if (have > 0) {
        fill_record(&records[have++], EV_SYN, SYN_REPORT, 0);
        write_batches(device, (const char *)records, have * sizeof(*records));
    }
    unlock_device(lock);
    free(records);
    return (int)have;
}

int evdev_deliver(const char *node, const void *bytes, size_t size)
{
    int error = 0;
    struct device *device = device_or_error(node, &error);
    if (!device)
        return error;
    const int lock = lock_device(device);
    if (lock < 0)
        return lock;
    write_batches(device, bytes, size);
    unlock_device(lock);
    return (int)size;
}

/* ---- questions ---- */

int evdev_has(const char *node, int type, int code)
{
    int error = 0;
    struct device *device = device_or_error(node, &error);
    if (!device)
        return error;
    if (type < 0 || type > EV_MAX || code < 0 || code > KEY_MAX)
        return -EINVAL;
    return test_bit(device->state->can[type], (unsigned)code);
}

int evdev_state(const char *node, int type, int code)
{
    int error = 0;
    struct device *device = device_or_error(node, &error);
    if (!device)
        return error;
    if (type <= 0 || type > EV_MAX || code < 0 || code > KEY_MAX)
        return -EINVAL;
    return test_bit(device->state->is[type], (unsigned)code);
}

int evdev_axis(const char *node, int code, int *value)
{
    const int has = code > ABS_MAX ? -EINVAL : evdev_has(node, EV_ABS, code);
    if (has <= 0)
        return has ? has : -EINVAL;
    *value = find_device(node)->state->axes[code].value;
    return 0;
}

int evdev_name(const char *node, char *name, size_t size)
{
    int error = 0;
    struct device *device = device_or_error(node, &error);
    if (!device)
        return error;
    snprintf(name, size, "%s", device->state->name);
    return 0;
}

int evdev_fail_open(const char *node, int failure)
{
    int error = 0;
    struct device *device = device_or_error(node, &error);
    if (!device)
        return error;
    device->state->fail_open = failure;
    return 0;
}

int evdev_fail_read(const char *node, int failure)
{
    int error = 0;
    struct device *device = device_or_error(node, &error);
    if (!device)
        return error;
    const int lock = lock_device(device);
    if (lock < 0)
        return lock;
    device->state->fail_read = failure;
    /* Readers must find their queue readable to notice. */
    for_each_queue(device, failure ? wake : empty_queue, NULL);
    unlock_device(lock);
    return 0;
}

int evdev_fail_ioctl(const char *node, int number, int failure)
{
    int error = 0;
    struct device *device = device_or_error(node, &error);
    if (!device)
        return error;
    if (number < 0 || number > 255)
        return -EINVAL;
    device->state->fail_ioctl[number] = failure;
    return 0;
}

int evdev_requests(const char *node, unsigned long *requests, int size)
{
    int error = 0;
    struct device *device = device_or_error(node, &error);
    if (!device)
        return error;
    const uint32_t count = device->state->requests;
    const uint32_t first = count > LOG_SIZE ? count - LOG_SIZE : 0;
    int have = 0;
    for (uint32_t i = first; i < count && have < size; ++i)
        requests[have++] = device->state->request_log[i % LOG_SIZE];
    return have;
}

int evdev_reads(const char *node, size_t *length)
{
    int error = 0;
    struct device *device = device_or_error(node, &error);
    if (!device)
        return error;
    if (length)
        *length = device->state->read_length;
    return (int)device->state->reads;
}

int evdev_opens(const char *node)
{
    int error = 0;
    struct device *device = device_or_error(node, &error);
    return device ? (int)device->state->opens : error;
}

int evdev_readers(const char *node)
{
    int error = 0;
    struct device *device = device_or_error(node, &error);
    if (!device)
        return error;
    const int lock = lock_device(device);
    if (lock < 0)
        return lock;
    const int readers = for_each_queue(device, NULL, NULL);
    unlock_device(lock);
    return readers;
}
