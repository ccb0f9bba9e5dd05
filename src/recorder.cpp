// SPDX-License-Identifier: BSD-3-Clause
#include "recorder.h"

#include "channelwriter.h"
#include "hwsettings.h"
#include "pacmd.h"

#include <QAudioInput>
#include <QAudioOutput>
#include <QDebug>

#include <optional>

namespace
{
QAudioFormat recordingFormat()
{
    QAudioFormat format;
    format.setSampleRate(48000);
    format.setChannelCount(2);
    format.setSampleSize(16);
    format.setCodec(QStringLiteral("audio/pcm"));
    format.setByteOrder(QAudioFormat::LittleEndian);
    format.setSampleType(QAudioFormat::SignedInt);
    return format;
}

std::optional<ChannelWriter::Channel> channelFromName(const QString &name)
{
    if (name == QLatin1String("stereo"))
        return ChannelWriter::Stereo;
    if (name == QLatin1String("left"))
        return ChannelWriter::Left;
    if (name == QLatin1String("right"))
        return ChannelWriter::Right;
    return std::nullopt;
}
}

Recorder::Recorder(QObject *parent) : QObject(parent), m_settings(new HwSettings(this)), m_format(recordingFormat())
{
}

Recorder::~Recorder()
{
    stop();
}

float Recorder::volume() const
{
    return m_volume;
}

void Recorder::setVolume(float volume)
{
    if (m_volume == volume)
        return;
    m_volume = volume;
    Q_EMIT volumeChanged();
}

bool Recorder::kivMode() const
{
    return m_kivMode;
}

void Recorder::setKivMode(bool kivMode)
{
    if (m_kivMode == kivMode)
        return;
    m_kivMode = kivMode;
    Q_EMIT kivModeChanged();
}

Recorder::InputSource Recorder::inputSource() const
{
    return m_inputSource;
}

void Recorder::setInputSource(InputSource inputSource)
{
    if (m_inputSource == inputSource)
        return;
    m_inputSource = inputSource;
    Q_EMIT inputSourceChanged();
}

QString Recorder::category() const
{
    return m_category;
}

void Recorder::setCategory(const QString &category)
{
    if (m_category == category)
        return;
    m_category = category;
    Q_EMIT categoryChanged();
}

void Recorder::record()
{
    if (m_input)
        return;
    const QString name = channelName();
    const auto channel = channelFromName(name);
    if (!channel)
        return;

    applyKivMode(true);
    applyInputSource(m_inputSource);
    qDebug() << "record" << name << "channel";

    m_file.open();
    m_file.seek(0);
    m_input = new QAudioInput(m_format, this);
    const int sampleSize = m_format.bytesPerFrame() / m_format.channelCount();
    const auto writer = new ChannelWriter(&m_file, *channel, sampleSize, m_input);
    writer->open(QIODevice::WriteOnly);
    m_input->start(writer);
}

void Recorder::stopRecord()
{
    if (!m_input)
        return;
    m_input->stop();
    delete m_input;
    m_input = nullptr;
    m_file.close();
    applyInputSource(CurrentMicrophone);
    applyKivMode(false);
}

void Recorder::play()
{
    stopRecord();
    if (m_output)
        return;
    m_file.open();
    m_output = new QAudioOutput(m_format, this);
    m_output->setCategory(m_category);
    if (m_volume > 0.0f)
        m_output->setVolume(qreal(m_volume));
    m_output->start(&m_file);
}

void Recorder::stop()
{
    stopRecord();
    if (!m_output)
        return;
    m_output->stop();
    delete m_output;
    m_output = nullptr;
    m_file.close();
}

QString Recorder::channelName() const
{
    switch (m_inputSource) {
    case TopMicrophone:
        return m_settings->recordTopDeviceChannel();
    case BottomMicrophone:
        return m_settings->recordBottomDeviceChannel();
    case CurrentMicrophone:
        return QStringLiteral("stereo");
    }
    return QString();
}

void Recorder::applyKivMode(bool on)
{
    if (!m_kivMode)
        return;
    PaCmd().setPrimarySinkProperty(on ? QStringLiteral("droid.parameter.kivmode=on")
                                      : QStringLiteral("droid.parameter.kivmode=off"));
}

void Recorder::applyInputSource(InputSource source)
{
    QString port;
    switch (source) {
    case TopMicrophone:
        port = m_settings->recordTopDevice();
        break;
    case BottomMicrophone:
        port = m_settings->recordBottomDevice();
        break;
    case CurrentMicrophone:
        port = m_savedPort;
        break;
    }

    PaCmd sound;
    // Only the first of several switches saves, so that the last one restores what the user had.
    if (source != CurrentMicrophone && m_savedPort.isEmpty())
        m_savedPort = sound.builtinSourceActivePort();
    if (port.isEmpty())
        return;

    const QString name = m_settings->audioInputSource();
    if (name.isEmpty())
        sound.setBuiltinSourcePort(port);
    else
        sound.setSourcePort(name, port);
    if (source == CurrentMicrophone)
        m_savedPort.clear();
}
