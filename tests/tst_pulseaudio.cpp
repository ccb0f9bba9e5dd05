// SPDX-License-Identifier: BSD-3-Clause
#include "files.h"
#include "messagelog.h"
#include "metaobject.h"
#include "pulseaudio.h"

#include <QPointer>
#include <QTimer>
#include <QtTest>

#include <signal.h>

namespace
{
const QString Tool = QStringLiteral("/usr/bin/pactl");
const QString CallLog = QStringLiteral("/run/kiv-test/pactl.log");
const QString Listing = QStringLiteral("/run/kiv-test/listing");
constexpr int PollMs = 6021;

enum Role
{
    MediaName = Qt::UserRole + 1,
    ApplicationName,
    VolumeInfo,
    Corked,
    Muted
};

/*! Puts a shell script in the tool's place. It has logged its arguments when it comes to the given lines. */
void installTool(const QByteArray &lines)
{
    writeScript(Tool, "echo \"$@\" >>" + CallLog.toUtf8() + "\n" + lines + "\n");
}

void installListing(const QByteArray &text)
{
    writeFile(Listing, text);
    installTool("cat " + Listing.toUtf8());
}

QByteArray stream(int number, const QByteArray &lines)
{
    return "Sink Input #" + QByteArray::number(number) + "\n" + lines;
}

const QByteArray Playing =
    stream(7,
           "\tDriver: protocol-native.c\n"
           "\tSink: 0\n"
           "\tCorked: no\n"
           "\tMute: yes\n"
           "\tVolume: front-left: 65536 / 100% / 0.00 dB,   front-right: 52428 /  80% / -5.81 dB\n"
           "\t        balance -0.20\n"
           "\tProperties:\n"
           "\t\tmedia.name = \"Playback\"\n"
           "\t\tapplication.name = \"paplay\"\n");

/*! Catches the timer that is no child of its model, as soon as it expires. */
class TimerCatcher : public QObject
{
public:
    TimerCatcher() { QCoreApplication::instance()->installEventFilter(this); }
    QPointer<QTimer> caught;

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (const auto timer = qobject_cast<QTimer *>(object); timer && event->type() == QEvent::Timer)
            caught = timer;
        return false;
    }
};

/*! Keeps the models from polling by themselves. On a busy machine a test may take longer than the time between two
 * polls, and would meet one more than its own. */
class NoPolls : public QObject
{
public:
    NoPolls() { QCoreApplication::instance()->installEventFilter(this); }

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        const auto timer = qobject_cast<QTimer *>(object);
        return timer && event->type() == QEvent::Timer && timer->interval() == PollMs;
    }
};

struct Row
{
    QString mediaName;
    QVariant applicationName;
    QString volumeInfo;
    bool corked = false;
    bool muted = false;
};

Row rowOf(const PulseAudio &model, int row)
{
    const QModelIndex index = model.index(row);
    return {model.data(index, MediaName).toString(), model.data(index, ApplicationName),
            model.data(index, VolumeInfo).toString(), model.data(index, Corked).toBool(),
            model.data(index, Muted).toBool()};
}
}

/*! Destroys an object at once when it is told to. */
class Destroyer : public QObject
{
    Q_OBJECT

public:
    explicit Destroyer(QObject *victim) : m_victim(victim) { }

public Q_SLOTS:
    void destroy() { delete m_victim; }

private:
    QObject *m_victim;
};

class tst_PulseAudio : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void metaObject();
    void readsAListing();
    void keysAndPlaces_data();
    void keysAndPlaces();
    void cutsBlocks_data();
    void cutsBlocks();
    void roles();
    void indexes();
    void signalsOnlyAChangedCount();
    void resetsOnEveryPoll();
    void failingToolEmptiesTheListSilently_data();
    void failingToolEmptiesTheListSilently();
    void callsTheToolWithItsArguments();
    void pollsAgain();
    void dropsAPollThatStillRuns();
    void isDestroyedDuringAPoll();
    void isDestroyedByItsOwnSignals_data();
    void isDestroyedByItsOwnSignals();
    void readsAListingInEveryLanguage();
    void largeAndOddOutput();
    void endsAToolThatNeverStopsPrinting();

private:
    std::unique_ptr<NoPolls> m_noPolls;
};

void tst_PulseAudio::initTestCase()
{
    QVERIFY2(!QFile::exists(Tool), "this machine's own tool would be overwritten");
}

void tst_PulseAudio::init()
{
    m_noPolls = std::make_unique<NoPolls>();
    QFile::remove(CallLog);
    QFile::remove(Tool);
}

void tst_PulseAudio::metaObject()
{
    QCOMPARE(ownInterface(PulseAudio::staticMetaObject),
             QStringList({QStringLiteral("property int count notify countChanged"),
                          QStringLiteral("signal countChanged()"), QStringLiteral("private slot refresh()")}));
}

void tst_PulseAudio::readsAListing()
{
    installListing(Playing + "\n");
    PulseAudio model;
    QCOMPARE(model.count(), 0);
    QTRY_COMPARE(model.count(), 1);
    QCOMPARE(model.rowCount(), 1);
    const Row row = rowOf(model, 0);
    QCOMPARE(row.mediaName, QStringLiteral("\"Playback\""));
    QCOMPARE(row.applicationName, QVariant(QStringLiteral("\"paplay\"")));
    QCOMPARE(row.volumeInfo, QStringLiteral("100% 80%"));
    QCOMPARE(row.corked, false);
    QCOMPARE(row.muted, true);
}

void tst_PulseAudio::keysAndPlaces_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("mediaName");
    QTest::addColumn<QString>("applicationName");
    QTest::addColumn<QString>("volumeInfo");
    QTest::addColumn<bool>("corked");
    QTest::addColumn<bool>("muted");
    const QString none;

    QTest::newRow("corked") << QByteArray("\tCorked: yes") << none << none << none << true << false;
    QTest::newRow("not corked") << QByteArray("\tCorked: no") << none << none << none << false << false;
    QTest::newRow("yes before its place") << QByteArray("yes Corked:") << none << none << none << false << false;
    QTest::newRow("yes at its place") << QByteArray("Corked: yes") << none << none << none << true << false;
    QTest::newRow("yes one before its place") << QByteArray("Corked:yes") << none << none << none << false << false;
    QTest::newRow("muted") << QByteArray("\tMute: yes") << none << none << none << false << true;
    QTest::newRow("muted, one before its place") << QByteArray("Mute:yes") << none << none << none << false << false;
    QTest::newRow("muted, at its place") << QByteArray("Mute: yes") << none << none << none << false << true;
    QTest::newRow("muted, far behind") << QByteArray("\tMute: no, oh yes") << none << none << none << false << true;
    QTest::newRow("case counts") << QByteArray("\tmute: yes corked: yes") << none << none << none << false << false;
    QTest::newRow("corked wins over mute")
        << QByteArray("\tMute: no, yes Corked:") << none << none << none << true << false;
    QTest::newRow("corked in a media name")
        << QByteArray("\t\tmedia.name = \"Corked: yes\"") << none << none << none << true << false;
    QTest::newRow("mute in a media name")
        << QByteArray("\t\tmedia.name = \"Mute: no\"") << none << none << none << false << false;
    QTest::newRow("volume in an application name")
        << QByteArray("\t\tapplication.name = \"Volume: left: 1% right: 2%\"") << none << none
        << QStringLiteral("1% 2%") << false << false;
    QTest::newRow("media before application")
        << QByteArray("application.name =  media.name = x") << QStringLiteral("me =  media.name = x") << none << none
        << false << false;
    QTest::newRow("media name") << QByteArray("\t\tmedia.name = \"a = b: c\"") << QStringLiteral("\"a = b: c\"") << none
                                << none << false << false;
    QTest::newRow("media name, trimmed") << QByteArray("\t\tmedia.name =  \t x y \t ") << QStringLiteral("x y") << none
                                         << none << false << false;
    QTest::newRow("media name, empty") << QByteArray("\t\tmedia.name =") << none << none << none << false << false;
    QTest::newRow("media name, indented once")
        << QByteArray("\tmedia.name = \"x\"") << QStringLiteral("\"x\"") << none << none << false << false;
    QTest::newRow("media name, not indented")
        << QByteArray("media.name = \"x\"") << QStringLiteral("x\"") << none << none << false << false;
    QTest::newRow("media name without a blank")
        << QByteArray("\t\tmedia.name=\"x\"") << none << none << none << false << false;
    QTest::newRow("media name behind another key")
        << QByteArray("\t\tnode.media.name = \"x\"") << QStringLiteral("ame = \"x\"") << none << none << false << false;
    QTest::newRow("not latin") << QByteArray("\t\tmedia.name = \"\xc3\xa4\xe4\xbd\xa0\"")
                               << QString::fromUtf8("\"\xc3\xa4\xe4\xbd\xa0\"") << none << none << false << false;
    QTest::newRow("places count characters") << QByteArray("\xc3\xa4\xc3\xa4\xc3\xa4\xc3\xa4 media.name =Xy")
                                             << QStringLiteral("e =Xy") << none << none << false << false;
    QTest::newRow("application name") << QByteArray("\t\tapplication.name = \"paplay\"") << none
                                      << QStringLiteral("\"paplay\"") << none << false << false;
    QTest::newRow("application name without a blank")
        << QByteArray("\t\tapplication.name=\"x\"") << none << none << none << false << false;
    QTest::newRow("volume") << QByteArray("\tVolume: front-left: 1 / 12% / x,   front-right: 2 / 34% / x") << none
                            << none << QStringLiteral("12% 34%") << false << false;
    QTest::newRow("volume, last left and right count") << QByteArray("\tVolume: left: 1% right: 2% left: 3% right: 4%")
                                                       << none << none << QStringLiteral("3% 4%") << false << false;
    QTest::newRow("volume, mono") << QByteArray("\tVolume: mono: 65536 / 100% / 0.00 dB") << none << none << none
                                  << false << false;
    QTest::newRow("volume, left only") << QByteArray("\tVolume: front-left: 65536 / 100% / 0.00 dB") << none << none
                                       << none << false << false;
    QTest::newRow("volume, right before left")
        << QByteArray("\tVolume: right: 1% left: 2%") << none << none << none << false << false;
    QTest::newRow("volume, no percent") << QByteArray("\tVolume: left: 12 right: 34") << none << none << none << false
                                        << false;
    QTest::newRow("volume, left before its place")
        << QByteArray("left: 1% Volume: right: 2%") << none << none << none << false << false;
    QTest::newRow("volume, left at its place")
        << QByteArray("Volume: left: 1% right: 2%") << none << none << QStringLiteral("1% 2%") << false << false;
    QTest::newRow("volume, left one before its place")
        << QByteArray("Volume:left: 1% right: 2%") << none << none << none << false << false;
    QTest::newRow("nothing") << QByteArray("\tDriver: x") << none << none << none << false << false;
}

void tst_PulseAudio::keysAndPlaces()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, mediaName);
    QFETCH(QString, applicationName);
    QFETCH(QString, volumeInfo);
    QFETCH(bool, corked);
    QFETCH(bool, muted);
    installListing(stream(1, line + "\n"));
    const PulseAudio model;
    QTRY_COMPARE(model.count(), 1);
    const Row row = rowOf(model, 0);
    QCOMPARE(row.mediaName, mediaName);
    QCOMPARE(row.applicationName.isValid(), !applicationName.isEmpty());
    QCOMPARE(row.applicationName.toString(), applicationName);
    QCOMPARE(row.volumeInfo, volumeInfo);
    QCOMPARE(row.corked, corked);
    QCOMPARE(row.muted, muted);
}

void tst_PulseAudio::cutsBlocks_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("mediaNames");
    const QByteArray a = "\t\tmedia.name = a\n";
    const QByteArray b = "\t\tmedia.name = b\n";
    const auto names = [](std::initializer_list<const char *> list) {
        QStringList result;
        for (const char *name : list)
            result << QString::fromLatin1(name);
        return result;
    };
    QTest::newRow("text before") << QByteArray("oh\n\t\tmedia.name = x\n" + stream(1, a)) << names({"a"});
    QTest::newRow("two") << QByteArray(stream(1, a) + "\n" + stream(2, b)) << names({"a", "b"});
    QTest::newRow("last character is dropped") << QByteArray("Sink Input\n\t\tmedia.name = abc") << names({"ab"});
    QTest::newRow("only the words") << QByteArray("Sink Input") << names({""});
    QTest::newRow("one behind the other") << QByteArray("Sink InputSink InputSink Input\n") << names({"", "", ""});
    QTest::newRow("words in a name cut the block")
        << QByteArray(stream(1, "\t\tmedia.name = x Sink Input y\n" + b)) << names({"x", "b"});
    QTest::newRow("case counts") << QByteArray(stream(1, a) + "sink input #2\n" + b) << names({"b"});
    QTest::newRow("last line decides") << QByteArray(stream(1, a + b)) << names({"b"});
    QTest::newRow("cut in the middle") << QByteArray(stream(1, a) + "Sink Inp") << names({"a"});
}

void tst_PulseAudio::cutsBlocks()
{
    QFETCH(QByteArray, text);
    QFETCH(QStringList, mediaNames);
    installListing(text);
    PulseAudio model;
    const QSignalSpy reset(&model, &PulseAudio::modelReset);
    QTRY_COMPARE(reset.count(), 1);
    QStringList found;
    for (int row = 0; row < model.count(); ++row)
        found << rowOf(model, row).mediaName;
    QCOMPARE(found, mediaNames);
}

void tst_PulseAudio::roles()
{
    installListing(Playing);
    const PulseAudio model;
    const QHash<int, QByteArray> expected{
        {257, "mediaName"}, {258, "applicationName"}, {259, "volumeInfo"}, {260, "corked"}, {261, "muted"}};
    QCOMPARE(model.roleNames(), expected);
    QTRY_COMPARE(model.count(), 1);
    const QModelIndex index = model.index(0);
    QCOMPARE(model.data(index, MediaName).userType(), int(QMetaType::QString));
    QCOMPARE(model.data(index, Corked).userType(), int(QMetaType::Bool));
    QVERIFY(!model.data(index, Qt::DisplayRole).isValid());
    QVERIFY(!model.data(index, Qt::UserRole).isValid());
    QVERIFY(!model.data(index, 262).isValid());
    QVERIFY(!model.data(QModelIndex(), MediaName).isValid());
}

void tst_PulseAudio::indexes()
{
    installListing(Playing);
    const PulseAudio model;
    QVERIFY(!model.index(0).isValid());
    QTRY_COMPARE(model.count(), 1);
    const QModelIndex first = model.index(0);
    QVERIFY(first.isValid());
    QVERIFY(!model.index(1).isValid());
    QVERIFY(!model.index(-1).isValid());
    QVERIFY(!model.index(0, 1).isValid());
    QVERIFY(!model.index(0, 0, first).isValid());
    QCOMPARE(model.rowCount(first), 1);
}

void tst_PulseAudio::signalsOnlyAChangedCount()
{
    installListing(Playing);
    PulseAudio model;
    const QSignalSpy counts(&model, &PulseAudio::countChanged);
    const QSignalSpy resets(&model, &PulseAudio::modelReset);
    QTRY_COMPARE(resets.count(), 1);
    QCOMPARE(counts.count(), 1);

    QMetaObject::invokeMethod(&model, "refresh");
    QTRY_COMPARE(resets.count(), 2);
    QCOMPARE(counts.count(), 1);

    installListing("Welcome to nothing\n");
    QMetaObject::invokeMethod(&model, "refresh");
    QTRY_COMPARE(resets.count(), 3);
    QCOMPARE(model.count(), 0);
    QCOMPARE(counts.count(), 2);

    // After a failure that was passed over in silence, it is counted from the empty list.
    installListing(Playing);
    QMetaObject::invokeMethod(&model, "refresh");
    QTRY_COMPARE(counts.count(), 3);
    installTool("exit 1");
    QMetaObject::invokeMethod(&model, "refresh");
    QTRY_COMPARE(model.count(), 0);
    QCOMPARE(counts.count(), 3);
    installListing(Playing);
    QMetaObject::invokeMethod(&model, "refresh");
    QTRY_COMPARE(model.count(), 1);
    QCOMPARE(counts.count(), 4);
}

void tst_PulseAudio::resetsOnEveryPoll()
{
    installListing("");
    PulseAudio model;
    const QSignalSpy resets(&model, &PulseAudio::modelReset);
    QTRY_COMPARE(resets.count(), 1);
    QMetaObject::invokeMethod(&model, "refresh");
    QTRY_COMPARE(resets.count(), 2);
}

void tst_PulseAudio::failingToolEmptiesTheListSilently_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::newRow("exit code") << QByteArray("cat " + Listing.toUtf8() + "; exit 1");
    QTest::newRow("killed") << QByteArray("cat " + Listing.toUtf8() + "; kill -9 $$");
    QTest::newRow("missing") << QByteArray();
}

void tst_PulseAudio::failingToolEmptiesTheListSilently()
{
    QFETCH(QByteArray, lines);
    installListing(Playing);
    PulseAudio model;
    QTRY_COMPARE(model.count(), 1);

    if (lines.isEmpty())
        QFile::remove(Tool);
    else
        installTool(lines);
    const QSignalSpy counts(&model, &PulseAudio::countChanged);
    const QSignalSpy resets(&model, &PulseAudio::modelReset);
    QMetaObject::invokeMethod(&model, "refresh");
    QTRY_COMPARE(resets.count(), 1);
    QCOMPARE(model.count(), 0);
    QCOMPARE(counts.count(), 0);

    // An empty list is not even reset.
    QFile::remove(CallLog);
    QMetaObject::invokeMethod(&model, "refresh");
    QProcess *const process = model.findChild<QProcess *>();
    QTRY_COMPARE(process->state(), QProcess::NotRunning);
    QCOMPARE(resets.count(), 1);
}

void tst_PulseAudio::callsTheToolWithItsArguments()
{
    installListing("");
    PulseAudio model;
    const QSignalSpy resets(&model, &PulseAudio::modelReset);
    QTRY_COMPARE(resets.count(), 1);
    QCOMPARE(readFile(CallLog), QByteArray("list sink-inputs\n"));
}

void tst_PulseAudio::pollsAgain()
{
    m_noPolls.reset();
    installListing("");
    QElapsedTimer timer;
    timer.start();
    PulseAudio model;
    const TimerCatcher catcher;
    const QSignalSpy resets(&model, &PulseAudio::modelReset);
    QTRY_COMPARE_WITH_TIMEOUT(resets.count(), 2, 20000);
    QVERIFY2(timer.elapsed() > 5500, "the poll came too early");
    QVERIFY(catcher.caught);
    QCOMPARE(catcher.caught->interval(), PollMs);
    QVERIFY(!catcher.caught->isSingleShot());
}

void tst_PulseAudio::dropsAPollThatStillRuns()
{
    installTool("cat " + Listing.toUtf8() + "; exec sleep 1000");
    writeFile(Listing, Playing);
    PulseAudio model;
    const QSignalSpy resets(&model, &PulseAudio::modelReset);
    QTRY_VERIFY(QFile::exists(CallLog));
    const qint64 pid = model.findChild<QProcess *>()->processId();

    installListing("");
    const MessageLog log;
    QMetaObject::invokeMethod(&model, "refresh");
    QCOMPARE(log.all(), QStringList());
    QVERIFY2(::kill(pid_t(pid), 0) != 0, "the earlier tool still runs");
    QCOMPARE(model.findChildren<QProcess *>().size(), 1);
    QTRY_COMPARE(resets.count(), 1);
    QCOMPARE(model.count(), 0);
}

void tst_PulseAudio::isDestroyedDuringAPoll()
{
    installTool("exec sleep 1000");
    auto model = std::make_unique<PulseAudio>();
    const qint64 pid = model->findChild<QProcess *>()->processId();
    QElapsedTimer timer;
    timer.start();
    model.reset();
    // The tool is ended, not waited for.
    QVERIFY(timer.elapsed() < 20000);
    QVERIFY(::kill(pid_t(pid), 0) != 0);
}

void tst_PulseAudio::isDestroyedByItsOwnSignals_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QByteArray>("lines");
    QTest::newRow("reset") << QByteArray(SIGNAL(modelReset())) << QByteArray("cat " + Listing.toUtf8());
    QTest::newRow("count") << QByteArray(SIGNAL(countChanged())) << QByteArray(":");
    QTest::newRow("reset by a failing tool") << QByteArray(SIGNAL(modelReset())) << QByteArray("exit 1");
    QTest::newRow("reset by a missing tool") << QByteArray(SIGNAL(modelReset())) << QByteArray();
}

void tst_PulseAudio::isDestroyedByItsOwnSignals()
{
    QFETCH(QByteArray, signal);
    QFETCH(QByteArray, lines);
    installListing(Playing);
    auto *model = new PulseAudio;
    QTRY_COMPARE(model->count(), 1);
    if (lines.isEmpty())
        QFile::remove(Tool);
    else
        installTool(lines);
    Destroyer destroyer(model);
    QSignalSpy destroyed(model, &QObject::destroyed);
    QVERIFY(connect(model, signal.constData(), &destroyer, SLOT(destroy())));
    QMetaObject::invokeMethod(model, "refresh");
    QTRY_COMPARE(destroyed.count(), 1);
    QTest::qWait(50);
}

void tst_PulseAudio::readsAListingInEveryLanguage()
{
    // As the tool prints it, which is translated like any other.
    writeFile(Listing, Playing);
    installTool("[ \"$LANGUAGE\" = C ] && exec cat " + Listing.toUtf8() + "; echo 'Ziel-Eingabe #7'");
    const PulseAudio model;
    QTRY_COMPARE(model.count(), 1);
}

void tst_PulseAudio::largeAndOddOutput()
{
    QByteArray text;
    for (int i = 0; i < 3000; ++i)
        text += stream(i, QByteArray("\t\tmedia.name = \"") + QByteArray(500, char('a' + i % 26)) + "\"\n");
    text += QByteArray("Sink Input\n\t\tmedia.name = \xff\xfe"
                       "a\0b\n",
                       31);
    installListing(text);
    const PulseAudio model;
    QTRY_COMPARE(model.count(), 3001);
    QCOMPARE(rowOf(model, 2999).mediaName.size(), 502);
}

void tst_PulseAudio::endsAToolThatNeverStopsPrinting()
{
    installListing(Playing);
    PulseAudio model;
    QTRY_COMPARE(model.count(), 1);
    installTool("exec cat /dev/zero");
    const QSignalSpy resets(&model, &PulseAudio::modelReset);
    QMetaObject::invokeMethod(&model, "refresh");
    const auto *process = model.findChild<QProcess *>();
    // Without the next poll, which would end it, too.
    QTRY_COMPARE_WITH_TIMEOUT(resets.count(), 1, 30000);
    QCOMPARE(process->state(), QProcess::NotRunning);
    QCOMPARE(model.findChild<QProcess *>(), process);
    QCOMPARE(model.count(), 0);
}

QTEST_GUILESS_MAIN(tst_PulseAudio)
#include "tst_pulseaudio.moc"
