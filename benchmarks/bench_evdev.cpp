// SPDX-License-Identifier: BSD-3-Clause
//
// How fast HallDetect and HeadsetDetect read their event devices: records decoded in full batches, against libevdev on
// the same stream, and the time from an event to the changed property. Makes devices:
// simulator/enter --test -- build/bench/benchmarks/bench_evdev

#include "halldetect.h"
#include "headsetdetect.h"
#include "uniquefd.h"

#include <QCoreApplication>
#include <QMetaObject>
#include <QSocketNotifier>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <thread>
#include <vector>

#include <evdevsim.h>
#include <fcntl.h>
#include <libevdev/libevdev.h>
#include <linux/input.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{
using Clock = std::chrono::steady_clock;

constexpr int Blocks = 31;
constexpr int BatchesPerBlock = 400;
constexpr int Changes = 501;
constexpr std::chrono::milliseconds Pause{3};
constexpr double TargetRatio = 10;
constexpr double TargetLatency = 1000; // microseconds
// A batch is as many whole records as one read of a page returns.
constexpr int BatchRecords = 4096 / int(sizeof(input_event));

const char Node[] = "event0";
const char Path[] = "/dev/input/event0";

std::atomic<long> allocations;
std::atomic<int> reads;

void check(int result)
{
    if (result < 0)
        qFatal("simulated input device: %s", strerror(-result));
}

/*! A device with the codes, each of which its events switch on and off by turns. */
class Device
{
public:
    Device(int type, std::vector<int> codes)
    {
        check(evdev_create(Node, 1, "benchmark", nullptr, nullptr));
        for (int code : codes)
            check(evdev_add_code(Node, type, code));
        check(evdev_publish(Node, 0600));
        const size_t frame = codes.size() + 1;
        for (size_t i = 0; m_batch.size() < size_t(BatchRecords); ++i) {
            input_event record = {};
            if (i % frame < codes.size()) {
                record.type = quint16(type);
                record.code = quint16(codes[i % frame]);
                record.value = int((i / frame + 1) % 2);
            }
            m_batch.push_back(record);
        }
    }
    ~Device() { evdev_remove(Node); }
    Q_DISABLE_COPY(Device)

    void deliverBatch() const { check(evdev_deliver(Node, m_batch.data(), m_batch.size() * sizeof(input_event))); }

private:
    std::vector<input_event> m_batch;
};

double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

struct Reading
{
    double nanoseconds; // per record
    double allocations; // per record
    double reads; // per batch
};

/*! Time of read() for each record, over batches that arrive one by one; the other reader has them too. */
template<typename Read, typename Other>
Reading measure(const Device &device, Read read, Other other)
{
    Clock::duration spent{};
    long allocated = 0;
    int readsOfBatches = 0;
    for (int batch = 0; batch < BatchesPerBlock; ++batch) {
        device.deliverBatch();
        const long allocatedBefore = allocations;
        const int readsBefore = reads;
        const auto begin = Clock::now();
        read();
        spent += Clock::now() - begin;
        readsOfBatches += reads - readsBefore;
        allocated += allocations - allocatedBefore;
        other();
    }
    constexpr double Records = double(BatchesPerBlock) * BatchRecords;
    return {std::chrono::duration<double, std::nano>(spent).count() / Records, double(allocated) / Records,
            double(readsOfBatches) / BatchesPerBlock};
}

/*! The slot of the element reads; libevdev does the same on a descriptor of its own. */
bool compare(const char *name, const Device &device, QObject *element, const char *slot)
{
    const auto *const notifier = element->findChild<QSocketNotifier *>();
    if (!notifier)
        qFatal("%s: no device", name);
    const int fd = int(notifier->socket());
    const int method = element->metaObject()->indexOfMethod(slot);
    // As a signal calls it. QMetaMethod::invoke() would first compare the names of the types.
    void *arguments[] = {nullptr, const_cast<int *>(&fd)};

    const UniqueFd other(::open(Path, O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    libevdev *evdev = nullptr;
    check(libevdev_new_from_fd(other.get(), &evdev));
    const std::unique_ptr<libevdev, decltype(&libevdev_free)> owner(evdev, libevdev_free);

    long seen = 0;
    const auto readByLibevdev = [&] {
        // The flag is the faster one: without it libevdev reads again after every record.
        input_event record;
        while (libevdev_next_event(evdev, LIBEVDEV_READ_FLAG_BLOCKING, &record) == LIBEVDEV_READ_STATUS_SUCCESS)
            ++seen;
    };
    const auto readByKiv = [&] { element->qt_metacall(QMetaObject::InvokeMetaMethod, method, arguments); };

    std::vector<double> kiv;
    std::vector<double> libraries;
    Reading last = {};
    for (int block = 0; block < Blocks; ++block) {
        libraries.push_back(measure(device, readByLibevdev, readByKiv).nanoseconds);
        last = measure(device, readByKiv, readByLibevdev);
        kiv.push_back(last.nanoseconds);
    }
    if (seen != 2l * Blocks * BatchesPerBlock * BatchRecords)
        qFatal("%s: libevdev has seen %ld records", name, seen);
    const double ratio = median(libraries) / median(kiv);
    std::printf("evdev: %-18s libevdev %5.1f ns, Kiv %5.2f ns a record, ratio %4.1f (at least %.0f); "
                "%.2f reads a batch, %.2f allocations a record\n",
                name, median(libraries), median(kiv), ratio, TargetRatio, last.reads, last.allocations);
    return ratio >= TargetRatio && last.allocations == 0;
}

/*! Time from the moment before the event is written to the signal of the changed property, in an idle event loop. */
template<typename Element, typename Signal>
bool latency(const char *name, Element *element, Signal changed, evdev_change change)
{
    std::atomic<Clock::rep> begin{0};
    std::atomic<int> seen{0};
    std::vector<double> microseconds;
    QObject::connect(element, changed, qApp, [&] {
        const Clock::duration elapsed = Clock::now().time_since_epoch() - Clock::duration(begin);
        microseconds.push_back(std::chrono::duration<double, std::micro>(elapsed).count());
        if (++seen == Changes)
            QCoreApplication::quit();
    });
    std::thread writer([&begin, &seen, change]() mutable {
        for (int i = 0; i < Changes; ++i) {
            // Two changes in one batch would be none.
            do {
                std::this_thread::sleep_for(Pause);
            } while (seen < i);
            change.value = (i + 1) % 2;
            begin = Clock::now().time_since_epoch().count();
            check(evdev_send(Node, &change, 1));
        }
    });
    QCoreApplication::exec();
    writer.join();
    const double middle = median(microseconds);
    std::printf("evdev: %-18s %.0f us from the event to the changed property (median; below %.0f)\n", name, middle,
                TargetLatency);
    return middle < TargetLatency;
}
}

// The allocator of the C library, counted, and the kernel's read(), which the simulation of devices would precede by a
// question about the descriptor that costs more than the read itself.
extern "C" {
Q_DECL_EXPORT ssize_t read(int fd, void *buffer, size_t size)
{
    reads.fetch_add(1, std::memory_order_relaxed);
    return ::syscall(SYS_read, fd, buffer, size);
}

void *__libc_malloc(size_t size);

void *malloc(size_t size)
{
    allocations.fetch_add(1, std::memory_order_relaxed);
    return __libc_malloc(size);
}
}

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    bool good = true;
    {
        const Device device(EV_SW, {SW_LID});
        HallDetect hall;
        hall.openFile();
        good = compare("cover", device, &hall, "readHallData(int)") && good;
    }
    {
        const Device device(EV_SW, {SW_LID});
        HallDetect hall;
        hall.openFile();
        good = latency("cover", &hall, &HallDetect::hallChanged, {EV_SW, SW_LID, 0}) && good;
    }
    {
        const Device device(EV_SW, {SW_HEADPHONE_INSERT, SW_MICROPHONE_INSERT});
        HeadsetDetect headset;
        headset.openDevice();
        good = compare("headset jack", device, &headset, "readHeadsetData(int)") && good;
    }
    {
        const Device device(EV_SW, {SW_HEADPHONE_INSERT, SW_MICROPHONE_INSERT});
        HeadsetDetect headset;
        headset.openDevice();
        good =
            latency("headset jack", &headset, &HeadsetDetect::headphoneInsertedChanged, {EV_SW, SW_HEADPHONE_INSERT, 0})
            && good;
    }
    {
        const Device device(EV_KEY, {KEY_MEDIA, BTN_3});
        HeadsetDetect headset;
        headset.openButtonDevice();
        good = compare("headset buttons", device, &headset, "readButtonData(int)") && good;
    }
    return good ? 0 : 1;
}
