// SPDX-License-Identifier: BSD-3-Clause
#ifndef SOUNDSERVER_H
#define SOUNDSERVER_H

#include "files.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QThread>

#include <atomic>
#include <cstdint>
#include <memory>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

/*!
 * A real PulseAudio server without hardware: the sink "phone.sink", whose sound ends nowhere, and the source
 * "phone.mics", whose left channel always has the one value and whose right channel the other.
 */
class SoundServer
{
public:
    static constexpr std::int16_t Left = 1234;
    static constexpr std::int16_t Right = -4321;

    /*! Hears what is played to the sink. */
    class Listener
    {
    public:
        Listener()
        {
            m_process.start(QStringLiteral("/usr/bin/parec"),
                            {QStringLiteral("--device=phone.sink.monitor"), QStringLiteral("--format=s16le"),
                             QStringLiteral("--rate=48000"), QStringLiteral("--channels=2"),
                             QStringLiteral("--latency-msec=20")});
            // Its first bytes tell that it listens.
            m_process.waitForReadyRead(10000);
        }
        ~Listener()
        {
            m_process.kill();
            m_process.waitForFinished();
        }
        QByteArray frames()
        {
            m_frames += m_process.readAllStandardOutput();
            return m_frames;
        }

    private:
        QProcess m_process;
        QByteArray m_frames;
    };

    SoundServer() = default;
    ~SoundServer() { kill(); }
    Q_DISABLE_COPY(SoundServer)

    /*! Before this process first talks to a sound server: none must be started by the asking. */
    static void prepare()
    {
        writeFile(QString::fromLocal8Bit(qgetenv("HOME")) + QStringLiteral("/.config/pulse/client.conf"),
                  "autospawn = no\nenable-shm = no\n");
    }

    bool isRunning() const { return m_server != nullptr; }

    /*! What the server says of itself, for a test that fails. */
    QByteArray report() const
    {
        if (m_server)
            m_server->waitForFinished(0);
        const bool runs = m_server && m_server->state() == QProcess::Running;
        return (runs ? "it runs: " : "it has ended: ") + readFile(QStringLiteral("/run/kiv-test/server.log"));
    }

    bool start()
    {
        if (m_server)
            return true;
        writeFile(QStringLiteral("/run/kiv-test/server.pa"),
                  "load-module module-null-sink sink_name=phone.sink rate=48000 "
                  "sink_properties=droid.output.primary=true\n"
                  "load-module module-pipe-source source_name=phone.mics file=/run/kiv-test/mics format=s16le "
                  "rate=48000 channels=2 source_properties=droid.input.builtin=true\n"
                  "load-module module-native-protocol-unix auth-anonymous=1\n"
                  "set-default-sink phone.sink\nset-default-source phone.mics\n");
        m_server = std::make_unique<QProcess>();
        m_server->setStandardErrorFile(QStringLiteral("/run/kiv-test/server.log"));
        m_server->start(QStringLiteral("/usr/bin/pulseaudio"),
                        {QStringLiteral("-n"), QStringLiteral("--exit-idle-time=-1"), QStringLiteral("--daemonize=no"),
                         QStringLiteral("--use-pid-file=no"), QStringLiteral("--disable-shm=yes"),
                         // The kernel kills a server whose real-time thread is busy for too long.
                         QStringLiteral("--realtime=no"), QStringLiteral("--high-priority=no"), QStringLiteral("-F"),
                         QStringLiteral("/run/kiv-test/server.pa")});
        QElapsedTimer timer;
        timer.start();
        while (QProcess::execute(QStringLiteral("/bin/sh"),
                                 {QStringLiteral("-c"), QStringLiteral("/usr/bin/pactl info >/dev/null 2>&1")})
               != 0) {
            if (m_server->state() == QProcess::NotRunning || timer.elapsed() > 20000)
                return false;
            QThread::msleep(20);
        }
        m_speaking = true;
        m_speaker = std::thread([this] { speak(); });
        return true;
    }

    /*! As a crash would end it. */
    void kill()
    {
        if (!m_server)
            return;
        m_speaking = false;
        if (m_speaker.joinable())
            m_speaker.join();
        m_server->kill();
        m_server->waitForFinished();
        m_server.reset();
    }

private:
    /*! Twice as fast as real microphones: nobody has to wait, and no recording becomes much longer than is asked for.
     */
    void speak()
    {
        const int fd = ::open("/run/kiv-test/mics", O_WRONLY | O_NONBLOCK | O_CLOEXEC);
        std::int16_t frames[2048];
        for (int i = 0; i < 2048; ++i)
            frames[i] = i % 2 == 0 ? Left : Right;
        while (fd >= 0 && m_speaking) {
            // Whole frames only: at most so many bytes are written in one piece or not at all.
            Q_UNUSED(::write(fd, frames, sizeof(frames)))
            QThread::msleep(10);
        }
        if (fd >= 0)
            ::close(fd);
    }

    std::unique_ptr<QProcess> m_server;
    std::atomic<bool> m_speaking{false};
    std::thread m_speaker;
};

#endif
