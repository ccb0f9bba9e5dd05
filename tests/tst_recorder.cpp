// SPDX-License-Identifier: BSD-3-Clause
#include "channelwriter.h"
#include "files.h"
#include "messagelog.h"
#include "metaobject.h"
#include "recorder.h"
#include "soundserver.h"

#include <QAudioDeviceInfo>
#include <QAudioInput>
#include <QAudioOutput>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QtTest>

#include <cmath>
#include <cstring>
#include <memory>

#include <signal.h>
#include <sys/resource.h>

namespace
{
const QString Scratch = QStringLiteral("/run/kiv-test/");
const QString ToolDirectory = QStringLiteral("/usr/local/bin/");
const QString Settings = QStringLiteral("/usr/share/kiv/settings.d/10-hw-settings.ini");

const QByteArray SinkQuery = R"(pactl list sinks | grep -e "Name: " -e "droid.output.primary" | grep -e "= \"true\"" )"
                             R"(-B 1 | head -n 1 | awk '{ printf "%s", $2 }')";
const QByteArray SourceQuery = R"(pactl list sources | grep -e "Name: " -e "droid.input.builtin" | grep -e )"
                               R"("= \"true\"" -B 1 | head -n 1 | awk '{ printf "%s", $2 }')";
const QByteArray PortQuery = R"(pactl list sources | grep -e "Name: " -e "droid.input.builtin" -e "Active Port: " | )"
                             R"(grep -e "= \"true\"" -A 1 | tail -n 1 | awk '{ printf "%s", $3 }')";

QByteArray setPort(const QByteArray &port)
{
    return "pactl set-source-port phone.mics " + port;
}

QByteArray setMode(const QByteArray &value)
{
    return "pacmd update-sink-proplist phone.sink droid.parameter.kivmode=" + value;
}

/*! The commands that the shell has run since the last call. */
QByteArrayList commands()
{
    QByteArrayList lines = readFile(Scratch + QStringLiteral("commands")).split('\n');
    lines.removeAll(QByteArray());
    QFile::remove(Scratch + QStringLiteral("commands"));
    return lines;
}

QByteArray activePort()
{
    return readFile(Scratch + QStringLiteral("port")).trimmed();
}

/*! A phone's tools, which know one sink and one source with ports. */
void installTools()
{
    writeScript(ToolDirectory + QStringLiteral("pactl"),
                "case \"$1 $2\" in\n"
                "'list sinks') printf '\\tName: phone.sink\\n\\t\\tdroid.output.primary = \"true\"\\n' ;;\n"
                "'list sources') printf '\\tName: phone.mics\\n\\t\\tdroid.input.builtin = \"true\"\\n'\n"
                "    printf '\\tActive Port: %s\\n' \"$(cat /run/kiv-test/port)\" ;;\n"
                "set-source-port*) echo \"$3\" >/run/kiv-test/port ;;\n"
                "esac\n");
    writeScript(ToolDirectory + QStringLiteral("pacmd"), ":");
    writeFile(Scratch + QStringLiteral("port"), "input-first\n");
}

/*! The temporary files of this process. They have no names, so they are found by their descriptors. */
QStringList recordings()
{
    QStringList paths;
    const QDir descriptors(QStringLiteral("/proc/self/fd"));
    for (const QString &name : descriptors.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)) {
        const QString path = descriptors.filePath(name);
        if (QFile::symLinkTarget(path).startsWith(QDir::tempPath() + QStringLiteral("/#")))
            paths << path;
    }
    return paths;
}

QByteArray recording()
{
    const QStringList files = recordings();
    return files.size() == 1 ? readFile(files.first()) : QByteArray();
}

qint16 sampleAt(const QByteArray &frames, int index)
{
    qint16 sample;
    std::memcpy(&sample, frames.constData() + 2 * index, sizeof(sample));
    return sample;
}

/*! How many frames hold exactly these samples. */
int countFrames(const QByteArray &frames, qint16 left, qint16 right)
{
    int count = 0;
    for (int frame = 0; frame < frames.size() / 4; ++frame)
        count += sampleAt(frames, 2 * frame) == left && sampleAt(frames, 2 * frame + 1) == right;
    return count;
}

QAudioInput *inputOf(const Recorder &recorder)
{
    return recorder.findChild<QAudioInput *>();
}

QAudioOutput *outputOf(const Recorder &recorder)
{
    return recorder.findChild<QAudioOutput *>();
}
}

class tst_Recorder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void metaObject();
    void initialValues();
    void settersSignalOnChange();
    void recordsNothingWithoutServer();
    void playsNothingWithoutServer();
    void switchesThePort_data();
    void switchesThePort();
    void currentMicrophoneSwitchesNothing();
    void oddChannelsDoNothing_data();
    void oddChannelsDoNothing();
    void oddInputSourceDoesNothing();
    void recordsOnlyOnce();
    void savesOnlyTheFirstPort();
    void keepsThePortUntilARecordingStops();
    void everyWayOutRestores_data();
    void everyWayOutRestores();
    void namedSource();
    void kivMode();
    void kivModeChangedMeanwhile();
    void logs();
    void recordsChannels_data();
    void recordsChannels();
    void recordsOverTheLastOne();
    void playsFromTheStart();
    void playKeepsItsOutput();
    void recordsWhilePlaying();
    void recordsFromTheStartWhilePlaying();
    void volumeAndCategory();
    void removesItsFile();
    void usesOneFormat();
    void survivesAFullDisk();
    void survivesWithoutItsFile();
    void survivesTheServersDeath_data();
    void survivesTheServersDeath();

private:
    void startServer();

    SoundServer m_server;
};

void tst_Recorder::initTestCase()
{
    SoundServer::prepare();
    writeScript(ToolDirectory + QStringLiteral("sh"),
                "printf '%s\\n' \"$2\" >>/run/kiv-test/commands\nexec /bin/sh \"$@\"\n");
    // A process that finds no server at first never looks for one again, so this is a run of its own.
    if (!QCoreApplication::arguments().contains(QStringLiteral("recordsNothingWithoutServer")))
        startServer();
}

void tst_Recorder::init()
{
    QFile::remove(Settings);
    installTools();
    commands();
}

void tst_Recorder::startServer()
{
    QVERIFY(m_server.start());
    const bool found = QTest::qWaitFor(
        [] {
            return !QAudioDeviceInfo::availableDevices(QAudio::AudioInput).isEmpty()
                && QAudioDeviceInfo::defaultInputDevice().deviceName() == QLatin1String("phone.mics");
        },
        30000);
    QVERIFY2(found, m_server.report().constData());
}

void tst_Recorder::metaObject()
{
    QCOMPARE(ownInterface(Recorder::staticMetaObject),
             QStringList({
                 QStringLiteral("enum InputSource: CurrentMicrophone=0, TopMicrophone=1, BottomMicrophone=2"),
                 QStringLiteral("property float volume write notify volumeChanged"),
                 QStringLiteral("property bool kivMode write notify kivModeChanged"),
                 QStringLiteral("property Recorder::InputSource inputSource write notify inputSourceChanged"),
                 QStringLiteral("property QString category write notify categoryChanged"),
                 QStringLiteral("signal volumeChanged()"),
                 QStringLiteral("signal kivModeChanged()"),
                 QStringLiteral("signal inputSourceChanged()"),
                 QStringLiteral("signal categoryChanged()"),
                 QStringLiteral("slot record()"),
                 QStringLiteral("slot stopRecord()"),
                 QStringLiteral("slot play()"),
                 QStringLiteral("slot stop()"),
             }));
}

void tst_Recorder::initialValues()
{
    const Recorder recorder;
    QCOMPARE(recorder.volume(), 0.0f);
    QCOMPARE(recorder.kivMode(), false);
    QCOMPARE(recorder.inputSource(), Recorder::CurrentMicrophone);
    QVERIFY(recorder.category().isEmpty());
    QCOMPARE(commands(), QByteArrayList());
    QCOMPARE(recordings(), QStringList());
}

void tst_Recorder::settersSignalOnChange()
{
    Recorder recorder;
    const QSignalSpy volume(&recorder, &Recorder::volumeChanged);
    const QSignalSpy kivMode(&recorder, &Recorder::kivModeChanged);
    const QSignalSpy inputSource(&recorder, &Recorder::inputSourceChanged);
    const QSignalSpy category(&recorder, &Recorder::categoryChanged);
    for (int i = 0; i < 2; ++i) {
        recorder.setVolume(0.5f);
        recorder.setKivMode(true);
        recorder.setInputSource(Recorder::BottomMicrophone);
        recorder.setCategory(QStringLiteral("music"));
    }
    QCOMPARE(volume.count(), 1);
    QCOMPARE(kivMode.count(), 1);
    QCOMPARE(inputSource.count(), 1);
    QCOMPARE(category.count(), 1);
    QCOMPARE(recorder.volume(), 0.5f);
    QCOMPARE(recorder.kivMode(), true);
    QCOMPARE(recorder.inputSource(), Recorder::BottomMicrophone);
    QCOMPARE(recorder.category(), QStringLiteral("music"));
    // Exact: the next number up is another volume.
    recorder.setVolume(std::nextafter(0.5f, 1.0f));
    QCOMPARE(volume.count(), 2);
    QCOMPARE(commands(), QByteArrayList());
}

void tst_Recorder::recordsNothingWithoutServer()
{
    if (m_server.isRunning())
        QSKIP("run by itself");
    Recorder recorder;
    recorder.setInputSource(Recorder::TopMicrophone);
    QElapsedTimer timer;
    timer.start();
    recorder.record();
    QCOMPARE(activePort(), QByteArray("input-back_mic"));
    QTest::qWait(200);
    recorder.stopRecord();
    QCOMPARE(activePort(), QByteArray("input-first"));
    QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(recording(), QByteArray());
}

void tst_Recorder::playsNothingWithoutServer()
{
    if (m_server.isRunning())
        QSKIP("run by itself");
    Recorder recorder;
    recorder.record();
    recorder.play();
    QTest::qWait(200);
    recorder.stop();
    recorder.play();
}

void tst_Recorder::switchesThePort_data()
{
    QTest::addColumn<int>("source");
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QByteArray>("port");
    QTest::newRow("top") << 1 << QByteArray() << QByteArray("input-back_mic");
    QTest::newRow("bottom") << 2 << QByteArray() << QByteArray("input-builtin_mic");
    QTest::newRow("set top") << 1 << QByteArray("[Audio]\nRecordTopDevice=t\nRecordBottomDevice=b\n")
                             << QByteArray("t");
    QTest::newRow("set bottom") << 2 << QByteArray("[Audio]\nRecordTopDevice=t\nRecordBottomDevice=b\n")
                                << QByteArray("b");
}

void tst_Recorder::switchesThePort()
{
    QFETCH(int, source);
    QFETCH(QByteArray, settings);
    QFETCH(QByteArray, port);
    writeFile(Settings, settings);
    Recorder recorder;
    recorder.setInputSource(Recorder::InputSource(source));
    QCOMPARE(commands(), QByteArrayList());
    recorder.record();
    QCOMPARE(commands(), QByteArrayList({PortQuery, SourceQuery, setPort(port)}));
    recorder.stopRecord();
    QCOMPARE(commands(), QByteArrayList({SourceQuery, setPort("input-first")}));
    recorder.stopRecord();
    recorder.stop();
    QCOMPARE(commands(), QByteArrayList());
}

void tst_Recorder::currentMicrophoneSwitchesNothing()
{
    Recorder recorder;
    recorder.record();
    QVERIFY(inputOf(recorder));
    recorder.stopRecord();
    QVERIFY(!inputOf(recorder));
    QCOMPARE(commands(), QByteArrayList());
}

void tst_Recorder::oddChannelsDoNothing_data()
{
    QTest::addColumn<QByteArray>("channel");
    for (const auto &channel : {"", "Left", "RIGHT", "mono", "left ,", "2"})
        QTest::newRow(channel) << QByteArray(channel);
}

void tst_Recorder::oddChannelsDoNothing()
{
    QFETCH(QByteArray, channel);
    writeFile(Settings, "[Audio]\nRecordTopDeviceChannel=" + channel + "\n");
    Recorder recorder;
    recorder.setKivMode(true);
    recorder.setInputSource(Recorder::TopMicrophone);
    recorder.record();
    QVERIFY(!inputOf(recorder));
    recorder.stop();
    QCOMPARE(commands(), QByteArrayList());
    QCOMPARE(recordings(), QStringList());
    // The other microphone's channel is not the matter of this one.
    recorder.setKivMode(false);
    recorder.setInputSource(Recorder::BottomMicrophone);
    recorder.record();
    QVERIFY(inputOf(recorder));
}

void tst_Recorder::oddInputSourceDoesNothing()
{
    Recorder recorder;
    recorder.setKivMode(true);
    recorder.setInputSource(Recorder::InputSource(3));
    recorder.record();
    QVERIFY(!inputOf(recorder));
    QCOMPARE(commands(), QByteArrayList());
}

void tst_Recorder::recordsOnlyOnce()
{
    Recorder recorder;
    recorder.setInputSource(Recorder::TopMicrophone);
    recorder.record();
    const QAudioInput *const input = inputOf(recorder);
    commands();
    recorder.setInputSource(Recorder::BottomMicrophone);
    recorder.record();
    QCOMPARE(inputOf(recorder), input);
    QCOMPARE(recorder.findChildren<QAudioInput *>().size(), 1);
    QCOMPARE(commands(), QByteArrayList());
}

void tst_Recorder::savesOnlyTheFirstPort()
{
    Recorder recorder;
    recorder.setInputSource(Recorder::TopMicrophone);
    recorder.record();
    recorder.record();
    recorder.stopRecord();
    QCOMPARE(activePort(), QByteArray("input-first"));
    // Cleared: what the user chooses between two recordings is what the second one restores.
    writeFile(Scratch + QStringLiteral("port"), "input-second\n");
    recorder.record();
    recorder.stopRecord();
    QCOMPARE(activePort(), QByteArray("input-second"));
}

void tst_Recorder::keepsThePortUntilARecordingStops()
{
    // An unknown port is an empty one: it is asked for again, and there is nothing to restore.
    writeFile(Scratch + QStringLiteral("port"), "\n");
    Recorder recorder;
    recorder.setInputSource(Recorder::TopMicrophone);
    recorder.record();
    commands();
    recorder.stopRecord();
    QCOMPARE(commands(), QByteArrayList());
    QCOMPARE(activePort(), QByteArray("input-back_mic"));
    recorder.record();
    QCOMPARE(commands().first(), PortQuery);
}

void tst_Recorder::everyWayOutRestores_data()
{
    QTest::addColumn<QByteArray>("way");
    for (const auto &way : {"stopRecord", "stop", "play", "delete"})
        QTest::newRow(way) << QByteArray(way);
}

void tst_Recorder::everyWayOutRestores()
{
    QFETCH(QByteArray, way);
    auto recorder = std::make_unique<Recorder>();
    recorder->setInputSource(Recorder::BottomMicrophone);
    recorder->setKivMode(true);
    recorder->record();
    QCOMPARE(activePort(), QByteArray("input-builtin_mic"));
    commands();
    if (way == "delete")
        recorder.reset();
    else
        QVERIFY(QMetaObject::invokeMethod(recorder.get(), way.constData()));
    QCOMPARE(activePort(), QByteArray("input-first"));
    QCOMPARE(commands(), QByteArrayList({SourceQuery, setPort("input-first"), SinkQuery, setMode("off")}));
    recorder.reset();
    QCOMPARE(commands(), QByteArrayList());
}

void tst_Recorder::namedSource()
{
    writeFile(Settings, "[Audio]\nInputSource=source.own\n");
    Recorder recorder;
    recorder.setInputSource(Recorder::TopMicrophone);
    recorder.record();
    // The port that is kept is still that of the built-in source.
    QCOMPARE(commands(), QByteArrayList({PortQuery, "pactl set-source-port source.own input-back_mic"}));
    recorder.stopRecord();
    QCOMPARE(commands(), QByteArrayList({"pactl set-source-port source.own input-first"}));
}

void tst_Recorder::kivMode()
{
    Recorder recorder;
    recorder.setKivMode(true);
    recorder.record();
    QCOMPARE(commands(), QByteArrayList({SinkQuery, setMode("on")}));
    recorder.stopRecord();
    QCOMPARE(commands(), QByteArrayList({SinkQuery, setMode("off")}));
    // The hardware is set up before the port is switched.
    recorder.setInputSource(Recorder::TopMicrophone);
    recorder.record();
    QCOMPARE(commands(), QByteArrayList({SinkQuery, setMode("on"), PortQuery, SourceQuery, setPort("input-back_mic")}));
}

void tst_Recorder::kivModeChangedMeanwhile()
{
    Recorder recorder;
    recorder.setKivMode(true);
    recorder.record();
    recorder.setKivMode(false);
    commands();
    recorder.stopRecord();
    QCOMPARE(commands(), QByteArrayList());

    recorder.record();
    QCOMPARE(commands(), QByteArrayList());
    recorder.setKivMode(true);
    QCOMPARE(commands(), QByteArrayList());
    recorder.stopRecord();
    QCOMPARE(commands(), QByteArrayList({SinkQuery, setMode("off")}));
}

void tst_Recorder::logs()
{
    writeFile(Settings, "[Audio]\nRecordTopDeviceChannel=left\n");
    Recorder recorder;
    const MessageLog log;
    recorder.setInputSource(Recorder::TopMicrophone);
    recorder.record();
    QCOMPARE(log.debugs(),
             QStringList({QStringLiteral("pacmd: \"pactl set-source-port phone.mics input-back_mic\""),
                          QStringLiteral("record \"left\" channel")}));
    recorder.stop();
    recorder.setInputSource(Recorder::CurrentMicrophone);
    recorder.record();
    QCOMPARE(log.debugs().mid(2),
             QStringList({QStringLiteral("pacmd: \"pactl set-source-port phone.mics input-first\""),
                          QStringLiteral("record \"stereo\" channel")}));
    QCOMPARE(log.warnings(), QStringList());
}

void tst_Recorder::recordsChannels_data()
{
    QTest::addColumn<QByteArray>("channel");
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("right");
    QTest::newRow("left") << QByteArray("left") << int(SoundServer::Left) << int(SoundServer::Left);
    QTest::newRow("right") << QByteArray("right") << int(SoundServer::Right) << int(SoundServer::Right);
    QTest::newRow("stereo") << QByteArray("stereo") << int(SoundServer::Left) << int(SoundServer::Right);
}

void tst_Recorder::recordsChannels()
{
    QFETCH(QByteArray, channel);
    QFETCH(int, left);
    QFETCH(int, right);
    writeFile(Settings, "[Audio]\nRecordBottomDeviceChannel=" + channel + "\n");
    Recorder recorder;
    recorder.setInputSource(Recorder::BottomMicrophone);
    recorder.record();
    QTRY_VERIFY_WITH_TIMEOUT(countFrames(recording(), qint16(left), qint16(right)) > 9600, 20000);
    recorder.stopRecord();
    const QByteArray frames = recording();
    QCOMPARE(frames.size() % 4, 0);
    // Nothing but the microphone, and the silence before its first sample.
    QCOMPARE(countFrames(frames, qint16(left), qint16(right)) + countFrames(frames, 0, 0), frames.size() / 4);
}

void tst_Recorder::recordsOverTheLastOne()
{
    writeFile(Settings, "[Audio]\nRecordTopDeviceChannel=left\n");
    Recorder recorder;
    recorder.record();
    QTRY_VERIFY_WITH_TIMEOUT(recording().size() > 96000, 20000);
    recorder.stopRecord();
    const QStringList first = recordings();
    QCOMPARE(first.size(), 1);
    const int size = recording().size();
    QCOMPARE(countFrames(recording(), SoundServer::Left, SoundServer::Left), 0);

    recorder.setInputSource(Recorder::TopMicrophone);
    recorder.record();
    // At least so many frames have been written then.
    constexpr int Begin = 1200;
    QTRY_VERIFY_WITH_TIMEOUT(countFrames(recording(), SoundServer::Left, SoundServer::Left) >= Begin, 20000);
    recorder.stopRecord();
    QCOMPARE(recordings(), first);
    // It begins with the new microphone, and nothing is cut off.
    const QByteArray frames = recording();
    QVERIFY(frames.size() >= size);
    const int sounding = countFrames(frames.left(4 * Begin), SoundServer::Left, SoundServer::Left);
    QCOMPARE(sounding + countFrames(frames.left(4 * Begin), 0, 0), Begin);
}

void tst_Recorder::playsFromTheStart()
{
    Recorder recorder;
    recorder.record();
    QTRY_VERIFY_WITH_TIMEOUT(countFrames(recording(), SoundServer::Left, SoundServer::Right) > 24000, 20000);
    SoundServer::Listener listener;
    recorder.play();
    QVERIFY(!inputOf(recorder));
    const QAudioOutput *const output = outputOf(recorder);
    QVERIFY(output);
    const auto heard = [&] { return countFrames(listener.frames(), SoundServer::Left, SoundServer::Right); };
    QTRY_VERIFY_WITH_TIMEOUT(heard() > 20000, 20000);
    // The end of the recording does not end the playing.
    QTRY_VERIFY_WITH_TIMEOUT(output->state() == QAudio::IdleState, 20000);
    QCOMPARE(outputOf(recorder), output);
    recorder.stop();
    QVERIFY(!outputOf(recorder));

    // As often as the operator likes.
    SoundServer::Listener again;
    recorder.play();
    QTRY_VERIFY_WITH_TIMEOUT(countFrames(again.frames(), SoundServer::Left, SoundServer::Right) > 20000, 20000);
}

void tst_Recorder::playKeepsItsOutput()
{
    Recorder recorder;
    recorder.play();
    const QAudioOutput *const output = outputOf(recorder);
    QVERIFY(output);
    recorder.play();
    QCOMPARE(outputOf(recorder), output);
    recorder.stopRecord();
    QCOMPARE(outputOf(recorder), output);
    QCOMPARE(commands(), QByteArrayList());
}

void tst_Recorder::recordsWhilePlaying()
{
    Recorder recorder;
    recorder.play();
    recorder.record();
    QVERIFY(inputOf(recorder));
    QVERIFY(outputOf(recorder));
    QTRY_VERIFY_WITH_TIMEOUT(recording().size() > 9600, 20000);
    recorder.stopRecord();
    QVERIFY(outputOf(recorder));
    recorder.stop();
    QVERIFY(!outputOf(recorder));
}

void tst_Recorder::recordsFromTheStartWhilePlaying()
{
    writeFile(Settings, "[Audio]\nRecordTopDeviceChannel=left\n");
    Recorder recorder;
    recorder.record();
    QTRY_VERIFY_WITH_TIMEOUT(recording().size() > 800000, 20000);
    recorder.play();
    QTRY_VERIFY_WITH_TIMEOUT(outputOf(recorder)->state() == QAudio::IdleState, 20000);
    const int size = recording().size();
    // Not behind what has been played, although the file is still open there. Both move on in it from the start.
    recorder.setInputSource(Recorder::TopMicrophone);
    recorder.record();
    QTRY_VERIFY_WITH_TIMEOUT(countFrames(recording().left(size), SoundServer::Left, SoundServer::Left) > 0, 20000);
}

void tst_Recorder::volumeAndCategory()
{
    Recorder recorder;
    recorder.play();
    const qreal own = outputOf(recorder)->volume();
    QVERIFY(outputOf(recorder)->category() != QLatin1String("phone"));
    recorder.stop();
    recorder.setVolume(0.25f);
    recorder.setCategory(QStringLiteral("phone"));
    recorder.play();
    QCOMPARE(outputOf(recorder)->volume(), 0.25);
    QCOMPARE(outputOf(recorder)->category(), QStringLiteral("phone"));
    // For the next one only.
    recorder.setVolume(0.75f);
    QCOMPARE(outputOf(recorder)->volume(), 0.25);
    recorder.stop();
    for (const float none : {0.0f, -1.0f}) {
        recorder.setVolume(none);
        recorder.play();
        QCOMPARE(outputOf(recorder)->volume(), own);
        recorder.stop();
    }
}

void tst_Recorder::removesItsFile()
{
    {
        Recorder recorder;
        recorder.record();
        QCOMPARE(recordings().size(), 1);
        recorder.stop();
        QCOMPARE(recordings().size(), 1);
    }
    QCOMPARE(recordings(), QStringList());
}

void tst_Recorder::usesOneFormat()
{
    Recorder recorder;
    recorder.record();
    const QPointer<ChannelWriter> writer = inputOf(recorder)->findChild<ChannelWriter *>();
    QVERIFY(writer);
    QCOMPARE(writer->openMode() & QIODevice::ReadWrite, QIODevice::WriteOnly);
    const QAudioFormat recorded = inputOf(recorder)->format();
    recorder.play();
    QVERIFY(!writer);
    for (const QAudioFormat &format : {recorded, outputOf(recorder)->format()}) {
        QCOMPARE(format.sampleRate(), 48000);
        QCOMPARE(format.channelCount(), 2);
        QCOMPARE(format.sampleSize(), 16);
        QCOMPARE(format.codec(), QStringLiteral("audio/pcm"));
        QCOMPARE(format.byteOrder(), QAudioFormat::LittleEndian);
        QCOMPARE(format.sampleType(), QAudioFormat::SignedInt);
    }
}

void tst_Recorder::survivesAFullDisk()
{
    // No write goes beyond this size, like beyond the last free block.
    constexpr rlim_t Room = 50000;
    rlimit limit;
    ::getrlimit(RLIMIT_FSIZE, &limit);
    const auto handler = ::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{Room, limit.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);
    const auto back = qScopeGuard([&] {
        ::setrlimit(RLIMIT_FSIZE, &limit);
        ::signal(SIGXFSZ, handler);
    });

    const MessageLog log;
    Recorder recorder;
    recorder.setInputSource(Recorder::TopMicrophone);
    recorder.record();
    QTRY_VERIFY_WITH_TIMEOUT(recording().size() > int(Room) - 20000, 20000);
    QTest::qWait(500);
    recorder.stopRecord();
    QCOMPARE(activePort(), QByteArray("input-first"));
    // What went onto the disk is there and can be heard.
    const int size = recording().size();
    QVERIFY(size > int(Room) - 20000 && size <= int(Room));
    SoundServer::Listener listener;
    recorder.play();
    const auto heard = [&] { return countFrames(listener.frames(), SoundServer::Left, SoundServer::Right); };
    QTRY_VERIFY_WITH_TIMEOUT(heard() > 4000, 20000);
    recorder.stop();
    // With room again, so does the next one.
    ::setrlimit(RLIMIT_FSIZE, &limit);
    recorder.record();
    QTRY_VERIFY_WITH_TIMEOUT(recording().size() > int(Room), 20000);
    QCOMPARE(log.warnings(), QStringList());
}

void tst_Recorder::survivesWithoutItsFile()
{
    const QByteArray folder = qgetenv("TMPDIR");
    // Nobody, not even root, creates files in there.
    qputenv("TMPDIR", "/proc");
    const auto back = qScopeGuard([&] {
        if (folder.isNull())
            qunsetenv("TMPDIR");
        else
            qputenv("TMPDIR", folder);
    });
    const MessageLog log;
    Recorder recorder;
    recorder.setInputSource(Recorder::TopMicrophone);
    recorder.record();
    QCOMPARE(activePort(), QByteArray("input-back_mic"));
    QTest::qWait(500);
    recorder.stopRecord();
    QCOMPARE(activePort(), QByteArray("input-first"));
    recorder.play();
    QTest::qWait(500);
    recorder.stop();
    QVERIFY(!outputOf(recorder));
    QVERIFY(!log.warnings().isEmpty());
}

void tst_Recorder::survivesTheServersDeath_data()
{
    QTest::addColumn<bool>("playing");
    QTest::newRow("recording") << false;
    QTest::newRow("playing") << true;
}

void tst_Recorder::survivesTheServersDeath()
{
    QFETCH(bool, playing);
    if (!m_server.isRunning())
        QSKIP("run by itself, because Qt does not come back to a server that has died");
    auto recorder = std::make_unique<Recorder>();
    recorder->setInputSource(Recorder::TopMicrophone);
    recorder->record();
    QTRY_VERIFY_WITH_TIMEOUT(recording().size() > 9600, 20000);
    if (playing) {
        recorder->play();
        QTest::qWait(100);
    }
    m_server.kill();
    QTest::qWait(300);
    QElapsedTimer timer;
    timer.start();
    recorder->stop();
    QCOMPARE(activePort(), QByteArray("input-first"));
    // What was recorded before is still there.
    QCOMPARE(recordings().size(), 1);
    QVERIFY(recording().size() > 9600);
    recorder->record();
    recorder->play();
    recorder.reset();
    QCOMPARE(activePort(), QByteArray("input-first"));
    QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
}

QTEST_GUILESS_MAIN(tst_Recorder)
#include "tst_recorder.moc"
