// SPDX-License-Identifier: BSD-3-Clause
#ifndef RECORDER_H
#define RECORDER_H

#include <QAudioFormat>
#include <QObject>
#include <QTemporaryFile>

class HwSettings;
class QAudioInput;
class QAudioOutput;

/*!
 * Records from one of the phone's microphones into a temporary file and plays it back.
 *
 * The sound server's source is switched to the port of the microphone under test, and back to the port that was active
 * before when the recording stops. Where the hardware delivers both microphones as one stereo stream, only the channel
 * that the hardware settings name is kept. Audio is 48 kHz, stereo, 16 bits, on the default devices. Errors of the
 * sound server are not reported. Every switch blocks on one to three commands of PaCmd.
 */
class Recorder : public QObject
{
    Q_OBJECT
    Q_PROPERTY(float volume READ volume WRITE setVolume NOTIFY volumeChanged)
    Q_PROPERTY(bool kivMode READ kivMode WRITE setKivMode NOTIFY kivModeChanged)
    Q_PROPERTY(Recorder::InputSource inputSource READ inputSource WRITE setInputSource NOTIFY inputSourceChanged)
    Q_PROPERTY(QString category READ category WRITE setCategory NOTIFY categoryChanged)

public:
    /*! Which microphone to record from. */
    enum InputSource
    {
        CurrentMicrophone = 0, //!< as the sound server is set, both channels
        TopMicrophone = 1, //!< port and channel of the settings Audio/RecordTopDevice and ...Channel
        BottomMicrophone = 2, //!< port and channel of the settings Audio/RecordBottomDevice and ...Channel
    };
    Q_ENUM(InputSource)

    explicit Recorder(QObject *parent = nullptr);
    ~Recorder() override;

    /*! Playback volume, 0.0 to 1.0; 0.0 leaves the output's own. */
    float volume() const;
    void setVolume(float volume);

    /*! Whether recordings set the audio hardware's parameter "kivmode", looked at when one starts and stops. */
    bool kivMode() const;
    void setKivMode(bool kivMode);

    /*! The microphone of the next recording. */
    InputSource inputSource() const;
    void setInputSource(InputSource inputSource);

    /*! Audio role of the playback, such as "music". */
    QString category() const;
    void setCategory(const QString &category);

public Q_SLOTS:
    /*! Starts a recording over the last one. Nothing happens while one runs or when the settings name no channel. */
    void record();
    /*! Ends a running recording and puts the source's port and the hardware's parameter back. */
    void stopRecord();
    /*! Ends a running recording and plays it from the start. The output stays until stop(). */
    void play();
    /*! Ends recording and playback. */
    void stop();

Q_SIGNALS:
    void volumeChanged();
    void kivModeChanged();
    void inputSourceChanged();
    void categoryChanged();

private:
    QString channelName() const;
    void applyKivMode(bool on);
    void applyInputSource(InputSource source);

    HwSettings *m_settings;
    QAudioFormat m_format;
    QAudioInput *m_input = nullptr;
    QAudioOutput *m_output = nullptr;
    bool m_kivMode = false;
    InputSource m_inputSource = CurrentMicrophone;
    QString m_savedPort;
    QString m_category;
    float m_volume = 0.0f;
    QTemporaryFile m_file;
};

#endif
