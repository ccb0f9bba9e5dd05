// SPDX-License-Identifier: BSD-3-Clause
/*!
 * What sound costs: keeping one channel against appending its bytes two at a time; reading the listing of streams
 * against splitting it into strings; asking the sound server against the same pipeline run by a bare QProcess. Exit
 * status 1 when something costs too much. The listing is delivered by a pactl of its own, so this runs inside
 * simulator/enter --test --absent /usr/bin/pactl.
 */
#include "channelwriter.h"
#include "pacmd.h"
#include "pulseaudio.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <vector>

namespace
{
constexpr int Rounds = 31;
// Five processes are started in each, and any of them may have to wait for a processor.
constexpr int QueryRounds = 121;
constexpr double MinimumThroughput = 10.0;
constexpr double MaximumParse = 0.7;
constexpr double MaximumGrowth = 12.0;
constexpr double MaximumQuery = 1.1;

double processorMs()
{
    timespec now;
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

double median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
    return values[values.size() / 2];
}

/*! Takes everything and keeps nothing, so that only the writer is measured; remembers what it was given. */
class Sink : public QIODevice
{
public:
    Sink() { open(QIODevice::WriteOnly | QIODevice::Unbuffered); }
    const char *last = nullptr;

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *data, qint64 len) override
    {
        last = data;
        return len;
    }
};

bool measureWriter(int size)
{
    const QByteArray frames(size, '\x5a');
    const int repeats = (16 << 20) / size;
    Sink sink;
    std::vector<double> ratios;
    for (int round = 0; round < Rounds; ++round) {
        ChannelWriter writer(&sink, ChannelWriter::Right, 2);
        writer.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
        const double begin = processorMs();
        for (int i = 0; i < repeats; ++i)
            writer.write(frames);
        const double middle = processorMs();
        for (int i = 0; i < repeats; ++i) {
            QByteArray kept;
            kept.reserve(size);
            for (int at = 0; at < size; at += 4) {
                kept.append(frames.constData() + at + 2, 2);
                kept.append(frames.constData() + at + 2, 2);
            }
            sink.write(kept);
        }
        ratios.push_back((processorMs() - middle) / (middle - begin));
    }
    ChannelWriter stereo(&sink, ChannelWriter::Stereo, 2);
    stereo.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    stereo.write(frames);
    const bool copied = sink.last != frames.constData();
    std::printf("channel writer, %d bytes: %.1f times the throughput of appending (at least %.0f); stereo %s\n", size,
                median(ratios), MinimumThroughput, copied ? "copies" : "copies nothing");
    return median(ratios) >= MinimumThroughput && !copied;
}

QByteArray listing(int streams)
{
    QByteArray text;
    for (int i = 0; i < streams; ++i) {
        const QByteArray number = QByteArray::number(i);
        text += "Sink Input #" + number
            + "\n\tDriver: protocol-native.c\n\tOwner Module: 10\n\tClient: 12\n\tSink: 0\n"
              "\tResample method: copy\n\tChannel Map: front-left,front-right\n"
              "\tFormat: pcm, format.sample_format = \"\\\"s16le\\\"\"  format.rate = \"48000\"\n"
              "\tCorked: no\n\tMute: no\n"
              "\tVolume: front-left: 65536 / 100% / 0.00 dB,   front-right: 52428 /  80% / -5.81 dB\n"
              "\t        balance 0.00\n\tBuffer Latency: 90000 usec\n\tSink Latency: 20000 usec\n"
              "\tResample method: n/a\n\tProperties:\n\t\tmedia.name = \"Song "
            + number
            + "\"\n\t\tapplication.name = \"Player\"\n\t\tnative-protocol.version = \"35\"\n"
              "\t\tapplication.process.id = \"4711\"\n\t\tapplication.process.user = \"phone\"\n"
              "\t\tapplication.process.binary = \"player\"\n\t\tapplication.language = \"en_GB.UTF-8\"\n\n";
    }
    return text;
}

/*! The plain way: strings for all blocks and lines, the expression compiled once. */
int plainParser(const QByteArray &bytes)
{
    static const QRegularExpression volumes(QStringLiteral(R"(.*left:.*?(\d+%).*right:.*?(\d+%))"));
    struct Row
    {
        QString mediaName, applicationName, volumeInfo;
        bool corked = false, muted = false;
    };
    std::vector<Row> rows;
    const QString text = QString::fromUtf8(bytes);
    const QStringList blocks = text.split(QStringLiteral("Sink Input")).mid(1);
    for (const QString &block : blocks) {
        Row row;
        for (const QString &line : block.split(QLatin1Char('\n'))) {
            if (line.contains(QLatin1String("Corked:"))) {
                row.corked = line.mid(8).contains(QLatin1String("yes"));
            } else if (line.contains(QLatin1String("Mute:"))) {
                row.muted = line.mid(6).contains(QLatin1String("yes"));
            } else if (line.contains(QLatin1String("Volume:"))) {
                const auto match = volumes.match(line.mid(8));
                if (match.hasMatch())
                    row.volumeInfo = match.captured(1) + QLatin1Char(' ') + match.captured(2);
            } else if (line.contains(QLatin1String("media.name ="))) {
                row.mediaName = line.mid(14).trimmed();
            } else if (line.contains(QLatin1String("application.name ="))) {
                row.applicationName = line.mid(20).trimmed();
            }
        }
        rows.push_back(row);
    }
    return int(rows.size());
}

/*! Processor time of the model from the announcement of the reset to its end, which is the parsing, and of decoding the
 *  tool's bytes, which it does before. */
double parseMs(int streams)
{
    QFile file(QStringLiteral("/run/kiv-test/listing"));
    file.open(QIODevice::WriteOnly);
    const QByteArray text = listing(streams);
    file.write(text);
    file.close();
    PulseAudio model;
    double begin = 0, spent = -1;
    QObject::connect(&model, &QAbstractItemModel::modelAboutToBeReset, &model, [&] { begin = processorMs(); });
    QObject::connect(&model, &QAbstractItemModel::modelReset, &model, [&] { spent = processorMs() - begin; });
    QElapsedTimer limit;
    limit.start();
    while (spent < 0 && limit.elapsed() < 10000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    const double decoding = processorMs();
    const QString decoded = QString::fromUtf8(text);
    spent += processorMs() - decoding;
    return model.count() == streams && !decoded.isEmpty() ? spent : 1e9;
}

bool measureParser()
{
    QFile tool(QStringLiteral("/usr/bin/pactl"));
    tool.open(QIODevice::WriteOnly);
    tool.write("#!/bin/sh\nexec cat /run/kiv-test/listing\n");
    tool.close();
    tool.setPermissions(QFile::ReadOwner | QFile::ExeOwner);

    const QByteArray text = listing(1000);
    std::vector<double> ratios, growth;
    for (int round = 0; round < Rounds; ++round) {
        const double ours = parseMs(1000);
        const double begin = processorMs();
        if (plainParser(text) != 1000)
            return false;
        ratios.push_back(ours / (processorMs() - begin));
        if (round % 4 == 0)
            growth.push_back(parseMs(10000) / ours);
    }
    std::printf(
        "stream list: 1000 streams %.2f times the plain parser (at most %.2f); 10000 are %.1f times 1000 (at most "
        "%.0f)\n",
        median(ratios), MaximumParse, median(growth), MaximumGrowth);
    return median(ratios) <= MaximumParse && median(growth) <= MaximumGrowth;
}

bool measureQuery()
{
    const QString command = QStringLiteral(
        R"(pactl list sinks | grep -e "Name: " -e "droid.output.primary" | grep -e "= \"true\"" -B 1 | head -n 1 | awk '{ printf "%s", $2 }')");
    const auto ours = [] { PaCmd().primarySinkName(); };
    const auto theirs = [&command] {
        QProcess bare;
        bare.start(QStringLiteral("sh"), {QStringLiteral("-c"), command});
        bare.waitForFinished(30000);
        bare.readAllStandardOutput();
    };
    const auto spent = [](const auto &query) {
        QElapsedTimer timer;
        timer.start();
        query();
        return double(timer.nsecsElapsed());
    };
    std::vector<double> ratios;
    for (int round = 0; round < QueryRounds; ++round) {
        // What runs second finds the tools' pages where the first has left them, so they take turns.
        if (round % 2 == 0) {
            const double first = spent(ours);
            ratios.push_back(first / spent(theirs));
        } else {
            const double first = spent(theirs);
            ratios.push_back(spent(ours) / first);
        }
    }
    std::printf("query: %.2f times a bare QProcess (at most %.2f)\n", median(ratios), MaximumQuery);
    return median(ratios) <= MaximumQuery;
}
}

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    bool good = measureWriter(4096);
    good = measureWriter(65536) && good;
    good = measureParser() && good;
    good = measureQuery() && good;
    return good ? EXIT_SUCCESS : EXIT_FAILURE;
}
