/* SPDX-License-Identifier: BSD-3-Clause */
#ifndef STATE_H
#define STATE_H

/* Shared between the two halves of the library: what a device is, in memory that all processes share. */

#include <limits.h>
#include <linux/input.h>
#include <stdatomic.h>
#include <stdint.h>
#include <sys/types.h>

#define INPUT_FOLDER "/dev/input"
#define HIDDEN_FOLDER INPUT_FOLDER "/.evdev"

#define LAYOUT 0x6b657631u
#define TEXT_SIZE 128
#define NODE_SIZE 64
#define LOG_SIZE 256
/* A pipe's page has no room for a whole number of 24-byte records; whole records only are ever written at once. */
#define BATCH_RECORDS (4096 / sizeof(struct input_event))
#define QUEUE_SIZE 65536

#define BITS_PER_LONG (8 * sizeof(unsigned long))
#define BITMAP_LONGS ((KEY_CNT + BITS_PER_LONG - 1) / BITS_PER_LONG)

struct state
{
    uint32_t layout;
    int32_t is_event;
    struct input_id id;
    char name[TEXT_SIZE];
    char phys[TEXT_SIZE];
    char uniq[TEXT_SIZE];
    unsigned long properties[BITMAP_LONGS];
    unsigned long can[EV_CNT][BITMAP_LONGS]; /* row 0: the types */
    unsigned long is[EV_CNT][BITMAP_LONGS];
    struct input_absinfo axes[ABS_CNT];

    _Atomic int32_t gone;
    _Atomic int32_t fail_open;
    _Atomic int32_t fail_read;
    _Atomic int32_t fail_ioctl[256];

    _Atomic uint32_t opens;
    _Atomic uint32_t reads;
    _Atomic uint32_t read_length;
    _Atomic uint32_t requests;
    _Atomic uint32_t request_log[LOG_SIZE];
};

/* A device, mapped. Mappings stay for the life of the process: there are as many as it has seen devices. */
struct device
{
    struct device *next;
    char node[NODE_SIZE];
    dev_t device_number;
    ino_t inode;
    struct state *state;
};

int test_bit(const unsigned long *bitmap, unsigned bit);

/* The device that stands behind a node's name; null, and errno is set, if there is none. */
struct device *find_device(const char *node);

/* One process at a time changes a device or its queues. The lock is a descriptor, or a negative error number. */
int lock_device(const struct device *device);
void unlock_device(int lock);

/* All of the following with the lock held. */
int open_queue(const struct device *device, int flags);
void flush_queue(int queue, unsigned type);
void wake_queue(int queue);

/* The C library's own, past the interposed ones. */
int real_open(const char *path, int flags, mode_t mode);
ssize_t real_read(int fd, void *buffer, size_t size);

#endif
