// SPDX-License-Identifier: BSD-3-Clause
#ifndef CHANNELWRITER_H
#define CHANNELWRITER_H

#include <QIODevice>

/*!
 * Write-only device that keeps one channel of a stereo stream and passes it on to another device as both channels, so
 * that a recording holds only the microphone under test.
 */
class ChannelWriter : public QIODevice
{
    Q_OBJECT

public:
    /*! What is kept of each frame. */
    enum Channel
    {
        Left = 0,
        Right = 1,
        Stereo = 2, //!< everything, unchanged
    };

    /*! Writes to target, which is not owned and must be open. sampleSize is the size of one sample in bytes. */
    ChannelWriter(QIODevice *target, int channel, int sampleSize, QObject *parent = nullptr);
    ~ChannelWriter() override;

protected:
    /*! Always -1: there is nothing to read. */
    qint64 readData(char *data, qint64 maxSize) override;
    /*! Returns what the target's write() returned. */
    qint64 writeData(const char *data, qint64 len) override;

private:
    QByteArray keptChannel(const char *data, qint64 len) const;

    QIODevice *m_target;
    int m_channel;
    int m_sampleSize;
};

#endif
