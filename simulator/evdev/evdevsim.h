/* SPDX-License-Identifier: BSD-3-Clause */
#ifndef EVDEVSIM_H
#define EVDEVSIM_H

/*
 * Simulated event devices in /dev/input.
 *
 * A device is a node, /dev/input/<node>, and a hidden folder, /dev/input/.evdev/<node>, which holds what the device can
 * do and is doing (a file shared by all processes) and one queue (a FIFO) for each reader. There is no daemon: whoever
 * calls evdev_send() writes to the readers' queues. A program that has this library before the C library in its search
 * order, preloaded or linked, gets a queue of its own when it opens a node; read() and ioctl() on it then answer as the
 * kernel's evdev does:
 *
 *   - a reader gets what happens after its open, in whole records and whole frames;
 *   - an ioctl copies no more than the kernel's own bitmap or the caller's length, whichever is shorter, and returns
 *     the number of bytes copied;
 *   - asking for the state of switches or keys drops their queued records, which the answer contains already;
 *   - a change to the state that a switch or key has already is no event;
 *   - a reader that falls behind finds SYN_DROPPED.
 *
 * Not served, and answered with EINVAL: EVIOCGRAB, EVIOCREVOKE, clocks, masks, force feedback, slots, and every request
 * that sets something. Functions return 0 or more, and a negative error number on failure.
 */

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* For evdev_fail_read(): the device claims that its stream has ended. */
#define EVDEV_END_OF_FILE (-1)

struct evdev_change
{
    uint16_t type;
    uint16_t code;
    int32_t value;
};

/* Making a device: describe it, then publish it, which lays the node that programs find. A device of the same name is
 * removed first. Texts may be null. With is_event 0 the node opens and reads, and every ioctl is ENOTTY. */
int evdev_create(const char *node, int is_event, const char *name, const char *phys, const char *uniq);
int evdev_set_id(const char *node, int bus, int vendor, int product, int version);
int evdev_add_property(const char *node, int property);
int evdev_add_code(const char *node, int type, int code);
int evdev_set_axis(const char *node, int code, int value, int minimum, int maximum, int fuzz, int flat, int resolution);
/* The state that a switch, key, light or sound has before anything happens. */
int evdev_preset(const char *node, int type, int code, int on);
int evdev_publish(const char *node, unsigned mode);
/* The device is unplugged: its readers get ENODEV. */
int evdev_remove(const char *node);

/* One frame: the changes and a SYN_REPORT. Returns the number of records that each reader got, 0 if nothing changed. */
int evdev_send(const char *node, const struct evdev_change *changes, size_t count);
/* Any bytes at all to all readers, in pieces of at most 170 records; the device's state stays. What the kernel would
 * never do: records cut short, codes that the device does not have. Returns the number of bytes written. */
int evdev_deliver(const char *node, const void *bytes, size_t size);

/* Whether the device has the code, and its present state; for axes the value, by way of *value. */
int evdev_has(const char *node, int type, int code);
int evdev_state(const char *node, int type, int code);
int evdev_axis(const char *node, int code, int *value);
int evdev_name(const char *node, char *name, size_t size);

/* Provoked failures; error 0 ends them. The number of an ioctl is its _IOC_NR, for example _IOC_NR(EVIOCGBIT(EV_SW,
 * 0)). The end of a read failure also drops what was queued. */
int evdev_fail_open(const char *node, int error);
int evdev_fail_read(const char *node, int error);
int evdev_fail_ioctl(const char *node, int number, int error);

/* What readers have done since the device was made: the requests in order (the latest 256), the reads and the length
 * that the latest one asked for, and the queues now open. */
int evdev_requests(const char *node, unsigned long *requests, int size);
int evdev_reads(const char *node, size_t *length);
int evdev_opens(const char *node);
int evdev_readers(const char *node);

#ifdef __cplusplus
}
#endif

#endif
