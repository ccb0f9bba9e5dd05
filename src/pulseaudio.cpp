// SPDX-License-Identifier: BSD-3-Clause
#include "pulseaudio.h"

#include "runchild.h"

#include <QPointer>
#include <QRegularExpression>

#include <chrono>

namespace
{
constexpr std::chrono::milliseconds RefreshInterval{6021};
const QString Tool = QStringLiteral("/usr/bin/pactl");
const QStringList ToolArguments{QStringLiteral("list"), QStringLiteral("sink-inputs")};

const QString BlockStart = QStringLiteral("Sink Input");

// Where the tool's indentation puts the values.
constexpr int CorkedValueAt = 8;
constexpr int MuteValueAt = 6;
constexpr int VolumeValueAt = 8;
constexpr int MediaNameValueAt = 14;
constexpr int ApplicationNameValueAt = 20;

enum Role
{
    MediaName = Qt::UserRole + 1,
    ApplicationName,
    VolumeInfo,
    Corked,
    Muted,
};

/*! The keys of a line that matter. Where a line holds several of them, the lowest one decides. */
enum Key
{
    CorkedKey,
    MuteKey,
    VolumeKey,
    MediaNameKey,
    ApplicationNameKey,
    NoKey,
};

bool endsWith(const QChar *begin, const QChar *end, QLatin1String word)
{
    return end - begin >= word.size() && QStringView(end - word.size(), end) == word;
}

/*!
 * Finds the deciding key in one pass: all keys end with a colon or an equals sign, which are rare, so that the words
 * before them need not be searched for one by one in every line.
 */
Key findKey(const QStringRef &line)
{
    const QChar *const begin = line.cbegin();
    Key found = NoKey;
    for (const QChar *at = begin; at != line.cend(); ++at) {
        Key key = NoKey;
        if (*at == QLatin1Char(':')) {
            if (endsWith(begin, at, QLatin1String("Corked")))
                return CorkedKey;
            if (endsWith(begin, at, QLatin1String("Mute")))
                key = MuteKey;
            else if (endsWith(begin, at, QLatin1String("Volume")))
                key = VolumeKey;
        } else if (*at == QLatin1Char('=')) {
            if (endsWith(begin, at, QLatin1String("media.name ")))
                key = MediaNameKey;
            else if (endsWith(begin, at, QLatin1String("application.name ")))
                key = ApplicationNameKey;
        }
        found = qMin(found, key);
    }
    return found;
}

bool saysYes(const QStringRef &line, int valueAt)
{
    return line.mid(valueAt).contains(QLatin1String("yes"));
}
}

PulseAudio::PulseAudio(QObject *parent) : QAbstractListModel(parent)
{
    connect(&m_timer, &QTimer::timeout, this, &PulseAudio::refresh);
    m_timer.start(RefreshInterval);
    refresh();
}

PulseAudio::~PulseAudio()
{
    dropProcess();
}

int PulseAudio::count() const
{
    return m_sinkInputs.size();
}

int PulseAudio::rowCount(const QModelIndex &) const
{
    return count();
}

QModelIndex PulseAudio::index(int row, int column, const QModelIndex &parent) const
{
    if (row < 0 || row >= count() || column != 0 || parent.isValid())
        return QModelIndex();
    return createIndex(row, column);
}

QVariant PulseAudio::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= count())
        return QVariant();
    const SinkInput &sinkInput = m_sinkInputs.at(index.row());
    switch (role) {
    case MediaName:
        return sinkInput.mediaName;
    case ApplicationName:
        return sinkInput.applicationName.isEmpty() ? QVariant() : sinkInput.applicationName;
    case VolumeInfo:
        return sinkInput.volumeInfo;
    case Corked:
        return sinkInput.corked;
    case Muted:
        return sinkInput.muted;
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> PulseAudio::roleNames() const
{
    return {
        {MediaName, "mediaName"}, {ApplicationName, "applicationName"}, {VolumeInfo, "volumeInfo"}, {Corked, "corked"},
        {Muted, "muted"},
    };
}

void PulseAudio::refresh()
{
    dropProcess();
    m_process = new QProcess(this);
    m_process->setProcessEnvironment(toolEnvironment());
    m_process->setStandardErrorFile(QProcess::nullDevice());
    connect(m_process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this, &PulseAudio::onFinished);
    connect(m_process, &QProcess::readyReadStandardOutput, this, &PulseAudio::onReadyRead);
    // Queued, because the process does not survive it if a page is closed by what follows from its error.
    connect(m_process, &QProcess::errorOccurred, this, &PulseAudio::onErrorOccurred, Qt::QueuedConnection);
    m_process->start(Tool, ToolArguments, QIODevice::ReadOnly);
}

void PulseAudio::onReadyRead()
{
    // A tool that never stops printing would fill the memory before the next poll.
    if (m_process->bytesAvailable() > MaximumChildOutput)
        m_process->kill();
}

void PulseAudio::onFinished(int exitCode, QProcess::ExitStatus status)
{
    if (exitCode == 0 && status == QProcess::NormalExit)
        parse(QString::fromUtf8(m_process->readAllStandardOutput()));
    else
        clear();
}

void PulseAudio::onErrorOccurred()
{
    // The only error after which the process does not also finish. Asked for, because an earlier poll may have failed.
    if (m_process->error() == QProcess::FailedToStart)
        clear();
}

void PulseAudio::parse(const QString &text)
{
    const int oldCount = count();
    beginResetModel();
    m_sinkInputs.clear();
    int start = text.indexOf(BlockStart);
    while (start >= 0) {
        const int next = text.indexOf(BlockStart, start + BlockStart.size());
        // The newline that ends the listing belongs to no stream.
        const int end = next >= 0 ? next : text.size() - 1;
        m_sinkInputs.append(parseBlock(text.midRef(start, end - start)));
        start = next;
    }
    // A page may be closed by the reset.
    const QPointer<PulseAudio> alive(this);
    endResetModel();
    if (alive && count() != oldCount)
        Q_EMIT countChanged();
}

PulseAudio::SinkInput PulseAudio::parseBlock(const QStringRef &block)
{
    SinkInput sinkInput;
    int start = 0;
    while (start <= block.size()) {
        int end = block.indexOf(QLatin1Char('\n'), start);
        if (end < 0)
            end = block.size();
        parseLine(block.mid(start, end - start), &sinkInput);
        start = end + 1;
    }
    return sinkInput;
}

void PulseAudio::parseLine(const QStringRef &line, SinkInput *sinkInput)
{
    static const QRegularExpression volumes(QStringLiteral(R"(.*left:.*?(\d+%).*right:.*?(\d+%))"));
    switch (findKey(line)) {
    case CorkedKey:
        sinkInput->corked = saysYes(line, CorkedValueAt);
        break;
    case MuteKey:
        sinkInput->muted = saysYes(line, MuteValueAt);
        break;
    case VolumeKey: {
        const QRegularExpressionMatch match = volumes.match(line.mid(VolumeValueAt));
        if (match.hasMatch())
            sinkInput->volumeInfo = match.captured(1) + QLatin1Char(' ') + match.captured(2);
        break;
    }
    case MediaNameKey:
        sinkInput->mediaName = line.mid(MediaNameValueAt).trimmed().toString();
        break;
    case ApplicationNameKey:
        sinkInput->applicationName = line.mid(ApplicationNameValueAt).trimmed().toString();
        break;
    case NoKey:
        break;
    }
}

void PulseAudio::clear()
{
    if (m_sinkInputs.isEmpty())
        return;
    beginResetModel();
    m_sinkInputs.clear();
    endResetModel();
}

void PulseAudio::dropProcess()
{
    if (!m_process)
        return;
    m_process->disconnect(this);
    // Ended here, because a process that is deleted while it runs is complained about in the log.
    m_process->kill();
    m_process->waitForFinished();
    delete m_process;
    m_process = nullptr;
}
