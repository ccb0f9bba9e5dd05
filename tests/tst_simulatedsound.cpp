// SPDX-License-Identifier: BSD-3-Clause
#include "audioroute.h"
#include "files.h"
#include "pacmd.h"
#include "pulseaudio.h"
#include "recorder.h"
#include "runchild.h"

#include <QAudioInput>
#include <QProcess>
#include <QSignalSpy>
#include <QtTest>

#include <cstring>

/*! The sound of the simulated phone "full", a real server with its real tools, as Kiv sees it. */
class tst_SimulatedSound : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void names();
    void ports();
    void property();
    void realToolSpeaksEnglish();
    void microphones_data();
    void microphones();
    void streams();
    void playback();
    void routes();
    void serverThatCrashes();
};

namespace
{
constexpr int Rate = 48000;

/*! Standard output of a program, which must succeed. */
QByteArray run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    process.waitForFinished();
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        QTest::qFail(qPrintable(program + QLatin1Char(' ') + arguments.join(QLatin1Char(' '))), __FILE__, __LINE__);
    return process.readAllStandardOutput();
}

QByteArray phonectl(const QString &words)
{
    return run(QStringLiteral(KIV_PHONECTL), words.split(QLatin1Char(' ')));
}

QByteArray pactl(const QString &words)
{
    return run(QStringLiteral("pactl"), words.split(QLatin1Char(' ')));
}

/*! What this process has recorded. The file has no name, so it is found by its descriptor. */
QByteArray recording()
{
    const QDir descriptors(QStringLiteral("/proc/self/fd"));
    for (const QString &name : descriptors.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)) {
        const QString path = descriptors.filePath(name);
        if (QFile::symLinkTarget(path).startsWith(QDir::tempPath() + QStringLiteral("/#")))
            return readFile(path);
    }
    return QByteArray();
}

/*! The tone of one channel of the last half second, in Hertz. */
double toneOf(const QByteArray &frames, int channel)
{
    const auto sampleAt = [&](int frame) {
        qint16 sample;
        std::memcpy(&sample, frames.constData() + 4 * frame + 2 * channel, sizeof(sample));
        return sample;
    };
    const int count = frames.size() / 4;
    const int begin = qMax(1, count - Rate / 2);
    int periods = 0;
    for (int frame = begin; frame < count; ++frame)
        periods += sampleAt(frame - 1) < 0 && sampleAt(frame) >= 0;
    return double(periods) * Rate / qMax(1, count - begin);
}

QVariant valueOf(const PulseAudio &model, int row, const char *role)
{
    return model.data(model.index(row), model.roleNames().key(role));
}

void poll(PulseAudio *model)
{
    QMetaObject::invokeMethod(model, "refresh");
}
}

void tst_SimulatedSound::init()
{
    PaCmd().setBuiltinSourcePort(QStringLiteral("input-builtin_mic"));
    PaCmd().setPrimarySinkPort(QStringLiteral("output-speaker"));
}

void tst_SimulatedSound::names()
{
    const PaCmd sound;
    QCOMPARE(sound.primarySinkName(), QStringLiteral("sink.primary"));
    QCOMPARE(sound.builtinSourceName(), QStringLiteral("source.builtin"));
    QCOMPARE(sound.externalSourceName(), QStringLiteral("source.external"));
    QCOMPARE(sound.sourceName(QStringLiteral("droid.input.builtin")), QStringLiteral("source.builtin"));
    QCOMPARE(sound.sourceName(QStringLiteral("droid.input.none")), QString());
    QVERIFY(!sound.sourceIsCombined());
}

void tst_SimulatedSound::ports()
{
    PaCmd sound;
    QCOMPARE(sound.primarySinkActivePort(), QStringLiteral("output-speaker"));
    QCOMPARE(sound.builtinSourceActivePort(), QStringLiteral("input-builtin_mic"));
    QCOMPARE(sound.externalSourceActivePort(), QStringLiteral("input-wired_headset"));
    sound.setPrimarySinkPort(QStringLiteral("output-earpiece"));
    QCOMPARE(sound.primarySinkActivePort(), QStringLiteral("output-earpiece"));
    sound.setSinkPort(QStringLiteral("sink.primary"), QStringLiteral("output-speaker"));
    QCOMPARE(sound.primarySinkActivePort(), QStringLiteral("output-speaker"));
    sound.setBuiltinSourcePort(QStringLiteral("input-back_mic"));
    QCOMPARE(sound.sourceActivePort(QStringLiteral("droid.input.builtin")), QStringLiteral("input-back_mic"));
    QCOMPARE(sound.externalSourceActivePort(), QStringLiteral("input-wired_headset"));
    // What is not there is refused by the tool and changes nothing.
    sound.setBuiltinSourcePort(QStringLiteral("input-none"));
    sound.setExternalSourcePort(QStringLiteral("input-back_mic"));
    sound.setSourcePort(QStringLiteral("source.none"), QStringLiteral("input-builtin_mic"));
    QCOMPARE(sound.builtinSourceActivePort(), QStringLiteral("input-back_mic"));
    QCOMPARE(sound.externalSourceActivePort(), QStringLiteral("input-wired_headset"));
}

void tst_SimulatedSound::property()
{
    PaCmd().setPrimarySinkProperty(QStringLiteral("droid.parameter.kivmode=on"));
    QVERIFY(pactl(QStringLiteral("list sinks")).contains("\t\tdroid.parameter.kivmode = \"on\"\n"));
    PaCmd().setPrimarySinkProperty(QStringLiteral("droid.parameter.kivmode=off"));
    QVERIFY(pactl(QStringLiteral("list sinks")).contains("\t\tdroid.parameter.kivmode = \"off\"\n"));
}

void tst_SimulatedSound::realToolSpeaksEnglish()
{
    // The one that the phone's own hands everything on to.
    const QByteArray before = qgetenv("LC_ALL");
    qputenv("LC_ALL", "de_DE.UTF-8");
    const ChildResult result =
        runChild(QStringLiteral("/run/kiv-phone/sound/pactl"), {QStringLiteral("list"), QStringLiteral("sinks")});
    qputenv("LC_ALL", before);
    QVERIFY(result.succeeded());
    QVERIFY2(result.output.contains("\n\tMute: no\n"), result.output.constData());
}

void tst_SimulatedSound::microphones_data()
{
    QTest::addColumn<int>("source");
    QTest::addColumn<double>("left");
    QTest::addColumn<double>("right");
    QTest::newRow("top") << int(Recorder::TopMicrophone) << 440.0 << 660.0;
    QTest::newRow("bottom") << int(Recorder::BottomMicrophone) << 220.0 << 330.0;
    QTest::newRow("current") << int(Recorder::CurrentMicrophone) << 220.0 << 330.0;
}

void tst_SimulatedSound::microphones()
{
    QFETCH(int, source);
    QFETCH(double, left);
    QFETCH(double, right);
    Recorder recorder;
    recorder.setInputSource(Recorder::InputSource(source));
    recorder.setKivMode(true);
    recorder.record();
    QVERIFY(pactl(QStringLiteral("list sinks")).contains("droid.parameter.kivmode = \"on\""));
    // On a busy machine it takes a while until the server has worked off what it heard through the other port.
    const auto hears = [&] {
        const QByteArray frames = recording();
        return frames.size() > 4 * Rate && qAbs(toneOf(frames, 0) - left) < 6 && qAbs(toneOf(frames, 1) - right) < 6;
    };
    QTRY_VERIFY2_WITH_TIMEOUT(hears(), qPrintable(QString::number(toneOf(recording(), 0))), 30000);
    recorder.stop();
    QCOMPARE(PaCmd().builtinSourceActivePort(), QStringLiteral("input-builtin_mic"));
    QVERIFY(pactl(QStringLiteral("list sinks")).contains("droid.parameter.kivmode = \"off\""));
}

void tst_SimulatedSound::streams()
{
    PulseAudio model;
    const QSignalSpy counts(&model, &PulseAudio::countChanged);
    const QSignalSpy resets(&model, &PulseAudio::modelReset);
    QTRY_COMPARE(resets.count(), 1);
    QCOMPARE(model.count(), 0);

    phonectl(QStringLiteral("stream start Waltz"));
    poll(&model);
    QTRY_COMPARE(model.count(), 1);
    QCOMPARE(valueOf(model, 0, "mediaName"), QVariant(QStringLiteral("\"Waltz\"")));
    QVERIFY(valueOf(model, 0, "applicationName").toString().startsWith(QLatin1Char('"')));
    QCOMPARE(valueOf(model, 0, "volumeInfo"), QVariant(QStringLiteral("100% 100%")));
    QCOMPARE(valueOf(model, 0, "corked"), QVariant(false));
    QCOMPARE(valueOf(model, 0, "muted"), QVariant(false));

    const QString number = QString::fromLatin1(pactl(QStringLiteral("list short sink-inputs")).split('\t').first());
    pactl(QStringLiteral("set-sink-input-mute %1 1").arg(number));
    pactl(QStringLiteral("set-sink-input-volume %1 50% 75%").arg(number));
    poll(&model);
    QTRY_COMPARE(valueOf(model, 0, "muted"), QVariant(true));
    QCOMPARE(valueOf(model, 0, "volumeInfo"), QVariant(QStringLiteral("50% 75%")));

    phonectl(QStringLiteral("stream stop Waltz"));
    poll(&model);
    QTRY_COMPARE(model.count(), 0);
    QCOMPARE(counts.count(), 2);
}

void tst_SimulatedSound::playback()
{
    const auto streams = [] { return pactl(QStringLiteral("list sink-inputs")); };
    Recorder recorder;
    recorder.record();
    QTRY_VERIFY_WITH_TIMEOUT(recording().size() > 2 * Rate, 20000);
    recorder.setCategory(QStringLiteral("phone"));
    recorder.play();
    QTRY_VERIFY(streams().contains("\t\tmedia.role = \"phone\"\n"));
    PulseAudio model;
    QTRY_COMPARE(model.count(), 1);
    QVERIFY(streams().contains(": s16le 2ch 48000Hz\n"));
    recorder.stop();
    QTRY_VERIFY(streams().trimmed().isEmpty());
    poll(&model);
    QTRY_COMPARE(model.count(), 0);
}

void tst_SimulatedSound::routes()
{
    AudioRoute route;
    QTRY_VERIFY(route.findChildren<QObject *>().isEmpty());
    QVERIFY(!route.wiredOutputConnected() && !route.wiredInputConnected() && !route.fmRadio());
    phonectl(QStringLiteral("jack plug headset"));
    QTRY_VERIFY(route.wiredOutputConnected() && route.wiredInputConnected());
    {
        const AudioRoute later;
        QTRY_VERIFY(later.wiredOutputConnected() && later.wiredInputConnected());
    }
    phonectl(QStringLiteral("jack unplug"));
    QTRY_VERIFY(!route.wiredOutputConnected() && !route.wiredInputConnected());
    phonectl(QStringLiteral("jack plug headphone"));
    QTRY_VERIFY(route.wiredOutputConnected());
    QVERIFY(!route.wiredInputConnected());
    phonectl(QStringLiteral("jack unplug"));

    route.setFmRadio(true);
    QTRY_VERIFY(route.fmRadio());
    QVERIFY(phonectl(QStringLiteral("sound")).contains("FM radio on"));
    {
        const AudioRoute other;
        QTRY_VERIFY(other.fmRadio());
    }
    // Whoever goes switches it off.
    QTRY_VERIFY(!route.fmRadio());
    QVERIFY(phonectl(QStringLiteral("sound")).contains("FM radio off"));
}

void tst_SimulatedSound::serverThatCrashes()
{
    phonectl(QStringLiteral("stream start Waltz"));
    PulseAudio model;
    QTRY_COMPARE(model.count(), 1);
    const QSignalSpy counts(&model, &PulseAudio::countChanged);
    phonectl(QStringLiteral("sound stop"));
    PaCmd sound;
    QCOMPARE(sound.primarySinkName(), QString());
    QCOMPARE(sound.builtinSourceActivePort(), QString());
    QVERIFY(sound.sourceIsCombined());
    sound.setPrimarySinkPort(QStringLiteral("output-earpiece"));
    poll(&model);
    QTRY_COMPARE(model.count(), 0);
    QCOMPARE(counts.count(), 0);

    phonectl(QStringLiteral("sound start"));
    QCOMPARE(sound.primarySinkName(), QStringLiteral("sink.primary"));
    phonectl(QStringLiteral("stream start Waltz"));
    poll(&model);
    QTRY_COMPARE(model.count(), 1);
    phonectl(QStringLiteral("stream stop Waltz"));
}

QTEST_GUILESS_MAIN(tst_SimulatedSound)

#include "tst_simulatedsound.moc"
