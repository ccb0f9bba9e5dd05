// SPDX-License-Identifier: BSD-3-Clause
#include "channelwriter.h"

#include <cstdint>
#include <cstring>

namespace
{
/*! Writes the sample of each whole frame twice. A plain loop over fixed sizes, which the compiler vectorises. */
void doubleSamples16(const char *sample, char *out, qint64 frames)
{
    for (qint64 frame = 0; frame < frames; ++frame) {
        std::uint16_t value;
        std::memcpy(&value, sample + 4 * frame, sizeof(value));
        const std::uint32_t doubled = value * 0x10001u;
        std::memcpy(out + 4 * frame, &doubled, sizeof(doubled));
    }
}

void doubleSamples(const char *sample, char *out, qint64 frames, qint64 sampleSize)
{
    for (qint64 frame = 0; frame < frames; ++frame) {
        std::memcpy(out, sample, size_t(sampleSize));
        std::memcpy(out + sampleSize, sample, size_t(sampleSize));
        sample += 2 * sampleSize;
        out += 2 * sampleSize;
    }
}
}

ChannelWriter::ChannelWriter(QIODevice *target, int channel, int sampleSize, QObject *parent)
    : QIODevice(parent), m_target(target), m_channel(channel), m_sampleSize(sampleSize)
{
}

ChannelWriter::~ChannelWriter() = default;

qint64 ChannelWriter::readData(char *, qint64)
{
    return -1;
}

qint64 ChannelWriter::writeData(const char *data, qint64 len)
{
    if (m_channel == Stereo)
        return m_target->write(data, len);
    return m_target->write(keptChannel(data, len));
}

QByteArray ChannelWriter::keptChannel(const char *data, qint64 len) const
{
    const qint64 frameSize = 2 * qint64(m_sampleSize);
    const qint64 offset = m_channel * qint64(m_sampleSize);
    const qint64 frames = len / frameSize;
    const qint64 wholeSize = frames * frameSize;

    // Of a frame that the buffer cuts off, whatever is there of the kept sample.
    const qint64 rest = qBound<qint64>(0, len - wholeSize - offset, m_sampleSize);

    QByteArray kept(int(wholeSize + 2 * rest), Qt::Uninitialized);
    if (m_sampleSize == sizeof(std::uint16_t))
        doubleSamples16(data + offset, kept.data(), frames);
    else
        doubleSamples(data + offset, kept.data(), frames, m_sampleSize);

    if (rest > 0) {
        char *const end = kept.data() + wholeSize;
        std::memcpy(end, data + wholeSize + offset, size_t(rest));
        std::memcpy(end + rest, data + wholeSize + offset, size_t(rest));
    }
    return kept;
}
