// SPDX-License-Identifier: BSD-3-Clause
#include "files.h"
#include "messagelog.h"
#include "metaobject.h"
#include "pacmd.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QtTest>

namespace
{
const QString Scratch = QStringLiteral("/run/kiv-test/");
const QString ToolDirectory = QStringLiteral("/usr/local/bin/");

void installTool(const QString &name, const QByteArray &lines)
{
    writeScript(ToolDirectory + name, lines + '\n');
}

QByteArray recorded(const QString &name)
{
    return readFile(Scratch + name);
}

/*! A listing of the sound server's tool, as it prints it. */
QByteArray object(const QByteArray &kind, const QByteArray &name, const QByteArray &properties, const QByteArray &port)
{
    QByteArray text = kind + " #1\n\tState: SUSPENDED\n\tName: " + name + "\n\tDescription: " + name
        + "\n\tDriver: module-droid-card.c\n\tMute: no\n\tProperties:\n\t\tdevice.string = \"" + name + "\"\n";
    for (const QByteArray &property : properties.split(' '))
        text += property.isEmpty()
            ? ""
            : "\t\t" + property.split('=').first() + " = \"" + property.split('=').last() + "\"\n";
    if (!port.isEmpty())
        text += "\tPorts:\n\t\toutput-other: Other (priority: 1)\n\tActive Port: " + port + "\n";
    return text + "\tFormats:\n\t\tpcm\n\n";
}
}

class tst_PaCmd : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void metaObject();
    void runsTheseCommands_data();
    void runsTheseCommands();
    void picksItsAnswer_data();
    void picksItsAnswer();
    void combinedSources_data();
    void combinedSources();
    void onlySettersAreLogged();
    void portsAreNotQuoted();
    void isEmptyWithoutTheTool();
    void outputIsLatin1UpToANul();
    void nothingIsTrimmed();
    void answersInEveryLanguage();
    void readsListingsOfMegabytes();
    void keepsWhatAHangingToolHasPrinted();
};

void tst_PaCmd::init()
{
    for (const auto &name : {"sh", "pactl", "pacmd", "awk"})
        QFile::remove(ToolDirectory + QLatin1String(name));
    for (const auto &name : {"commands", "calls", "sinks", "sources"})
        QFile::remove(Scratch + QLatin1String(name));
    installTool(QStringLiteral("pactl"),
                "echo pactl \"$@\" >>/run/kiv-test/calls; [ \"$1\" = list ] && cat /run/kiv-test/$2");
    installTool(QStringLiteral("pacmd"), "echo pacmd \"$@\" >>/run/kiv-test/calls");
}

void tst_PaCmd::metaObject()
{
    QCOMPARE(ownInterface(PaCmd::staticMetaObject),
             QStringList({
                 QStringLiteral("slot QString primarySinkName()"),
                 QStringLiteral("slot QString primarySinkActivePort()"),
                 QStringLiteral("slot QString sourceName(QString)"),
                 QStringLiteral("slot QString sourceActivePort(QString)"),
                 QStringLiteral("slot QString builtinSourceName()"),
                 QStringLiteral("slot QString externalSourceName()"),
                 QStringLiteral("slot QString builtinSourceActivePort()"),
                 QStringLiteral("slot QString externalSourceActivePort()"),
                 QStringLiteral("slot bool sourceIsCombined()"),
                 QStringLiteral("slot setSinkPort(QString,QString)"),
                 QStringLiteral("slot setPrimarySinkPort(QString)"),
                 QStringLiteral("slot setPrimarySinkProperty(QString)"),
                 QStringLiteral("slot setSourcePort(QString,QString)"),
                 QStringLiteral("slot setBuiltinSourcePort(QString)"),
                 QStringLiteral("slot setExternalSourcePort(QString)"),
             }));
}

void tst_PaCmd::runsTheseCommands_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArrayList>("commands");

    const auto query = [](const QByteArray &list, const QByteArray &marker) {
        return QByteArray("pactl list " + list + " | grep -e \"Name: \" -e \"" + marker
                          + "\" | grep -e \"= \\\"true\\\"\" -B 1 | head -n 1 | awk '{ printf \"%s\", $2 }'");
    };
    const auto portQuery = [](const QByteArray &list, const QByteArray &marker) {
        return QByteArray("pactl list " + list + " | grep -e \"Name: \" -e \"" + marker
                          + "\" -e \"Active Port: \" | grep -e \"= \\\"true\\\"\" -A 1 | tail -n 1 | awk '{ printf "
                            "\"%s\", $3 }'");
    };
    const QByteArray sink = query("sinks", "droid.output.primary");
    const QByteArray builtin = query("sources", "droid.input.builtin");
    const QByteArray external = query("sources", "droid.input.external");
    const QStringList none;
    const QStringList word{QStringLiteral("x y")};

    QTest::newRow("1") << QByteArray("primarySinkName") << none << QByteArrayList{sink};
    QTest::newRow("2") << QByteArray("primarySinkActivePort") << none
                       << QByteArrayList{portQuery("sinks", "droid.output.primary")};
    QTest::newRow("3") << QByteArray("sourceName") << word << QByteArrayList{query("sources", "x y")};
    QTest::newRow("4") << QByteArray("sourceActivePort") << word << QByteArrayList{portQuery("sources", "x y")};
    QTest::newRow("5") << QByteArray("builtinSourceName") << none << QByteArrayList{builtin};
    QTest::newRow("6") << QByteArray("externalSourceName") << none << QByteArrayList{external};
    QTest::newRow("7") << QByteArray("builtinSourceActivePort") << none
                       << QByteArrayList{portQuery("sources", "droid.input.builtin")};
    QTest::newRow("8") << QByteArray("externalSourceActivePort") << none
                       << QByteArrayList{portQuery("sources", "droid.input.external")};
    QTest::newRow("9") << QByteArray("sourceIsCombined") << none << QByteArrayList{builtin, external};
    QTest::newRow("10") << QByteArray("setSinkPort") << QStringList{QStringLiteral("s"), QStringLiteral("p")}
                        << QByteArrayList{"pactl set-sink-port s p"};
    QTest::newRow("11") << QByteArray("setPrimarySinkPort") << word
                        << QByteArrayList{sink, "pactl set-sink-port phone.sink x y"};
    QTest::newRow("12") << QByteArray("setPrimarySinkProperty") << word
                        << QByteArrayList{sink, "pacmd update-sink-proplist phone.sink x y"};
    QTest::newRow("13") << QByteArray("setSourcePort") << QStringList{QStringLiteral("s"), QStringLiteral("p")}
                        << QByteArrayList{"pactl set-source-port s p"};
    QTest::newRow("14") << QByteArray("setBuiltinSourcePort") << word
                        << QByteArrayList{builtin, "pactl set-source-port phone.mics x y"};
    // No source is external: the name is empty and two blanks stand where it belongs.
    QTest::newRow("15") << QByteArray("setExternalSourcePort") << word
                        << QByteArrayList{external, "pactl set-source-port  x y"};
}

void tst_PaCmd::runsTheseCommands()
{
    QFETCH(QByteArray, slot);
    QFETCH(QStringList, arguments);
    QFETCH(QByteArrayList, commands);
    writeFile(Scratch + QStringLiteral("sinks"), object("Sink", "phone.sink", "droid.output.primary=true", "output-x"));
    writeFile(Scratch + QStringLiteral("sources"),
              object("Source", "phone.mics", "droid.input.builtin=true", "input-x"));
    installTool(QStringLiteral("sh"),
                "printf '%s\\000%s\\000%s\\000' \"$#\" \"$1\" \"$2\" >>/run/kiv-test/commands; exec /bin/sh \"$@\"");

    const MessageLog log;
    PaCmd sound;
    QGenericArgument generic[2];
    for (int i = 0; i < arguments.size(); ++i)
        generic[i] = Q_ARG(QString, arguments.at(i));
    QVERIFY(QMetaObject::invokeMethod(&sound, slot.constData(), generic[0], generic[1]));

    QByteArray expected;
    for (const QByteArray &command : qAsConst(commands))
        expected += QByteArray("2\0-c\0", 5) + command + '\0';
    QCOMPARE(recorded(QStringLiteral("commands")), expected);
}

void tst_PaCmd::picksItsAnswer_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<QByteArray>("sinks");
    QTest::addColumn<QByteArray>("sources");
    QTest::addColumn<QString>("answer");
    const QByteArray plain = object("Sink", "null.sink", "", "output-null");
    const QByteArray no = object("Sink", "no.sink", "droid.output.primary=false", "output-no");
    const QByteArray primary = object("Sink", "phone.sink", "droid.output.primary=true", "output-speaker");
    const QByteArray builtin = object("Source", "phone.mics", "droid.input.builtin=true", "input-back_mic");
    const QByteArray external = object("Source", "phone.wired", "droid.input.external=true", "input-wired_headset");
    const QByteArray both =
        object("Source", "phone.all", "droid.input.builtin=true droid.input.external=true", "input-x");

    QTest::newRow("sink") << QByteArray("primarySinkName") << primary << QByteArray() << QStringLiteral("phone.sink");
    QTest::newRow("sink among others") << QByteArray("primarySinkName") << plain + no + primary + plain << QByteArray()
                                       << QStringLiteral("phone.sink");
    QTest::newRow("no primary sink") << QByteArray("primarySinkName") << plain + no << QByteArray() << QString();
    QTest::newRow("sink port") << QByteArray("primarySinkActivePort") << plain + primary + plain << QByteArray()
                               << QStringLiteral("output-speaker");
    QTest::newRow("empty listing") << QByteArray("primarySinkActivePort") << QByteArray() << QByteArray() << QString();
    QTest::newRow("built-in") << QByteArray("builtinSourceName") << QByteArray() << external + builtin
                              << QStringLiteral("phone.mics");
    QTest::newRow("external") << QByteArray("externalSourceName") << QByteArray() << builtin + external
                              << QStringLiteral("phone.wired");
    QTest::newRow("built-in port") << QByteArray("builtinSourceActivePort") << QByteArray() << builtin + external
                                   << QStringLiteral("input-back_mic");
    QTest::newRow("external port") << QByteArray("externalSourceActivePort") << QByteArray() << builtin + external
                                   << QStringLiteral("input-wired_headset");
    QTest::newRow("one for both") << QByteArray("externalSourceName") << QByteArray() << both
                                  << QStringLiteral("phone.all");
}

void tst_PaCmd::picksItsAnswer()
{
    QFETCH(QByteArray, slot);
    QFETCH(QByteArray, sinks);
    QFETCH(QByteArray, sources);
    QFETCH(QString, answer);
    writeFile(Scratch + QStringLiteral("sinks"), sinks);
    writeFile(Scratch + QStringLiteral("sources"), sources);
    PaCmd sound;
    QString result;
    QVERIFY(QMetaObject::invokeMethod(&sound, slot.constData(), Q_RETURN_ARG(QString, result)));
    QCOMPARE(result, answer);
}

void tst_PaCmd::combinedSources_data()
{
    QTest::addColumn<QByteArray>("sources");
    QTest::addColumn<bool>("combined");
    const QByteArray builtin = object("Source", "phone.mics", "droid.input.builtin=true", "input-a");
    const QByteArray external = object("Source", "phone.wired", "droid.input.external=true", "input-b");
    QTest::newRow("neither") << QByteArray() << true;
    QTest::newRow("one for both") << object("Source", "x", "droid.input.builtin=true droid.input.external=true", "a")
                                  << true;
    QTest::newRow("separate") << builtin + external << false;
    QTest::newRow("built-in only") << builtin << false;
    QTest::newRow("names that differ in case")
        << builtin + object("Source", "Phone.mics", "droid.input.external=true", "input-a") << false;
}

void tst_PaCmd::combinedSources()
{
    QFETCH(QByteArray, sources);
    QFETCH(bool, combined);
    writeFile(Scratch + QStringLiteral("sources"), sources);
    QCOMPARE(PaCmd().sourceIsCombined(), combined);
}

void tst_PaCmd::onlySettersAreLogged()
{
    writeFile(Scratch + QStringLiteral("sinks"), object("Sink", "phone.sink", "droid.output.primary=true", "output-x"));
    const MessageLog log;
    PaCmd sound;
    sound.primarySinkName();
    sound.builtinSourceActivePort();
    QCOMPARE(log.all(), QStringList());
    sound.setPrimarySinkPort(QStringLiteral("output-speaker"));
    sound.setPrimarySinkProperty(QStringLiteral("a=b"));
    sound.setSourcePort(QStringLiteral("s"), QStringLiteral("p"));
    QCOMPARE(log.debugs(),
             QStringList({QStringLiteral("pacmd: \"pactl set-sink-port phone.sink output-speaker\""),
                          QStringLiteral("pacmd: \"pacmd update-sink-proplist phone.sink a=b\""),
                          QStringLiteral("pacmd: \"pactl set-source-port s p\"")}));
    QCOMPARE(log.all().size(), 3);
}

void tst_PaCmd::portsAreNotQuoted()
{
    installTool(QStringLiteral("pactl"), "for word; do echo \"<$word>\"; done >>/run/kiv-test/calls");
    const MessageLog log;
    PaCmd().setSinkPort(QStringLiteral("sink"), QStringLiteral("two words"));
    QCOMPARE(recorded(QStringLiteral("calls")), QByteArray("<set-sink-port>\n<sink>\n<two>\n<words>\n"));
}

void tst_PaCmd::isEmptyWithoutTheTool()
{
    QFile::remove(ToolDirectory + QStringLiteral("pactl"));
    installTool(QStringLiteral("pactl"), "echo trouble >&2; exit 1");
    QCOMPARE(PaCmd().primarySinkName(), QString());
}

void tst_PaCmd::outputIsLatin1UpToANul()
{
    installTool(QStringLiteral("awk"), "printf 'a\\344\\000b'");
    QCOMPARE(PaCmd().primarySinkName(), QStringLiteral("a\u00e4"));
}

void tst_PaCmd::nothingIsTrimmed()
{
    installTool(QStringLiteral("awk"), "printf ' a \\n'");
    QCOMPARE(PaCmd().primarySinkName(), QStringLiteral(" a \n"));
}

void tst_PaCmd::answersInEveryLanguage()
{
    // As the tool prints it, which is translated like any other.
    writeFile(Scratch + QStringLiteral("sinks"),
              "\tNimi: phone.sink\n\t\tdroid.output.primary = \"true\"\n\tAktiivinen portti: output-speaker\n");
    writeFile(Scratch + QStringLiteral("sinks.C"),
              "\tName: phone.sink\n\t\tdroid.output.primary = \"true\"\n\tActive Port: output-speaker\n");
    installTool(QStringLiteral("pactl"),
                "[ \"$LANGUAGE\" = C ] && exec cat /run/kiv-test/$2.C; exec cat /run/kiv-test/$2");
    QCOMPARE(PaCmd().primarySinkName(), QStringLiteral("phone.sink"));
    QCOMPARE(PaCmd().primarySinkActivePort(), QStringLiteral("output-speaker"));
}

void tst_PaCmd::readsListingsOfMegabytes()
{
    QByteArray sinks;
    for (int i = 0; i < 5000; ++i)
        sinks += object("Sink", "null." + QByteArray::number(i) + QByteArray(1000, 'x'), "", "output-null");
    sinks += object("Sink", "phone.sink", "droid.output.primary=true", "output-speaker");
    writeFile(Scratch + QStringLiteral("sinks"), sinks + sinks.left(sinks.size() / 2));
    QCOMPARE(PaCmd().primarySinkName(), QStringLiteral("phone.sink"));
    QCOMPARE(PaCmd().primarySinkActivePort(), QStringLiteral("output-speaker"));
}

void tst_PaCmd::keepsWhatAHangingToolHasPrinted()
{
    installTool(QStringLiteral("awk"), "echo $$ >/run/kiv-test/calls; printf partial; exec sleep 1000");
    const MessageLog log;
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(PaCmd().primarySinkName(), QStringLiteral("partial"));
    // It is waited for once, however busy the machine is.
    QVERIFY2(timer.elapsed() >= 30000 && timer.elapsed() < 60000, qPrintable(QString::number(timer.elapsed())));
    // Nothing of the pipeline is left behind.
    const QByteArray pid = recorded(QStringLiteral("calls")).trimmed();
    QTRY_VERIFY(!QFile::exists(QStringLiteral("/proc/") + QString::fromLatin1(pid)));
    QCOMPARE(log.all(), QStringList());
}

QTEST_GUILESS_MAIN(tst_PaCmd)
#include "tst_pacmd.moc"
