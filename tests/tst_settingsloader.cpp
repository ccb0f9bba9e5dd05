// SPDX-License-Identifier: BSD-3-Clause
#include "files.h"
#include "messagelog.h"
#include "ordinaryuser.h"
#include "settingsloader.h"

#include <QtTest>

#include <fcntl.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
const QString Installed = QStringLiteral("/usr/share/kiv/settings.d/");
const QString RunTime = QStringLiteral("/run/kiv/settings.d/");
const QString Filter = QStringLiteral("hw-settings");
constexpr int Megabyte = 1024 * 1024;

/*! All that a program could change about the settings folders and what they hold, but for the time of access. */
QStringList traces()
{
    QStringList lines;
    const QString folders[] = {QStringLiteral("/usr/share/kiv"), QStringLiteral("/run/kiv")};
    for (const QString &folder : folders) {
        QStringList paths = {folder};
        QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                             QDirIterator::Subdirectories);
        while (entries.hasNext())
            paths << entries.next();
        paths.sort();
        for (const QString &path : qAsConst(paths)) {
            struct stat status = {};
            ::lstat(QFile::encodeName(path).constData(), &status);
            lines << QStringLiteral("%1 %2 %3 %4 %5.%6 %7.%8 ")
                         .arg(path)
                         .arg(status.st_ino)
                         .arg(status.st_mode)
                         .arg(status.st_size)
                         .arg(status.st_mtim.tv_sec)
                         .arg(status.st_mtim.tv_nsec)
                         .arg(status.st_ctim.tv_sec)
                         .arg(status.st_ctim.tv_nsec);
            if (S_ISREG(status.st_mode))
                lines.last() += QString::fromLatin1(readFile(path).toHex());
        }
    }
    return lines;
}

QString text(const QSettings &settings, const char *key)
{
    return settings.value(QLatin1String(key)).toString();
}

void setTimes(const QString &path, time_t seconds)
{
    const timespec times[2] = {{seconds, 0}, {seconds, 0}};
    QCOMPARE(::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0), 0);
}
}

class tst_SettingsLoader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void findsNothing_data();
    void findsNothing();
    void choosesByName_data();
    void choosesByName();
    void namesAndFoldersGiveTheOrder();
    void firstFileMayBeInSecondFolder();
    void takesOnlyTheFolderItself();
    void takesOnlyFiles();
    void ignoresUndecodableNames();
    void followsLinksToFiles();

    void laterFileReplacesKeyByKey();
    void keepsValuesAsQtReadsThem();
    void tellsUpperFromLowerCase();

    void neverWrites_data();
    void neverWrites();
    void makesNoFolders();
    void sharesNothing();
    void readsFilesAsTheyAre();
    void seesFilesThatComeAndGo();

    void survivesBrokenFiles_data();
    void survivesBrokenFiles();
    void skipsKeysWithoutName();
    void unreadableFileIsEmpty();
    void unreadableFolderIsEmpty();
    void worksWithoutSpareDescriptors();
};

void tst_SettingsLoader::init()
{
    emptyFolder(QStringLiteral("/usr/share/kiv"));
    emptyFolder(QStringLiteral("/run/kiv"));
}

void tst_SettingsLoader::findsNothing_data()
{
    QTest::addColumn<QStringList>("paths");
    QTest::newRow("no folder") << QStringList();
    QTest::newRow("other files") << QStringList{Installed + QStringLiteral("factory-tests.ini"),
                                                RunTime + QStringLiteral("settings.ini"),
                                                RunTime + QStringLiteral("hw_settings.ini")};
    QTest::newRow("beside the folders") << QStringList{QStringLiteral("/usr/share/kiv/hw-settings.ini"),
                                                       QStringLiteral("/run/kiv/hw-settings.ini")};
    QTest::newRow("folder is a file") << QStringList{QStringLiteral("/usr/share/kiv/settings.d")};
}

void tst_SettingsLoader::findsNothing()
{
    QFETCH(QStringList, paths);
    for (const QString &path : qAsConst(paths))
        writeFile(path, "[SIM]\nModemCount=2\n");
    const MessageLog log;
    QVERIFY(!loadSettings(Filter));
    QCOMPARE(log.all(), QStringList());
}

void tst_SettingsLoader::choosesByName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("used");
    const auto row = [](const char *name, bool used) { QTest::newRow(name) << QString::fromLatin1(name) << used; };
    row("hw-settings.ini", true);
    row("10-hw-settings.ini", true);
    row("my-hw-settings-extra.ini", true);
    row("my hw-settings (old).ini", true);
    row("hw-settings.ini.ini", true);
    row("hw-settings%20%1.ini", true);
    row("hw-settings.conf", false);
    row("hw-settings", false);
    row("hw-settingsini", false);
    row("other.ini", false);
    row("hw-setting.ini", false);
    row("HW-Settings.ini", false);
    row("hw-settings.INI", false);
    row("hw-settings.ini~", false);
    row("hw-settings.ini.bak", false);
    row(".hw-settings.ini", false);
}

void tst_SettingsLoader::choosesByName()
{
    QFETCH(QString, name);
    QFETCH(bool, used);
    writeFile(Installed + name, "[SIM]\nModemCount=2\n");
    const MessageLog log;
    const auto settings = loadSettings(Filter);
    QCOMPARE(bool(settings), used);
    if (used) {
        QCOMPARE(text(*settings, "SIM/ModemCount"), QStringLiteral("2"));
        QCOMPARE(log.all(), QStringList{QStringLiteral("Load settings from \"%1\"").arg(name)});
        QCOMPARE(log.debugs().size(), 1);
    } else {
        QCOMPARE(log.all(), QStringList());
    }
}

void tst_SettingsLoader::namesAndFoldersGiveTheOrder()
{
    const QStringList installed = {QStringLiteral("a-hw-settings.ini"),  QStringLiteral("B-hw-settings.ini"),
                                   QStringLiteral("20-hw-settings.ini"), QStringLiteral("100-hw-settings.ini"),
                                   QStringLiteral("hw-settings.conf"),   QStringLiteral("50-factory-tests.ini")};
    const QStringList runTime = {QStringLiteral("b-hw-settings.ini"), QStringLiteral("05-hw-settings.ini")};
    for (const QString &name : installed)
        writeFile(Installed + name, "[Last]\nFile=installed " + name.toLatin1() + "\n");
    for (const QString &name : runTime)
        writeFile(RunTime + name, "[Last]\nFile=" + name.toLatin1() + "\n");

    const MessageLog log;
    const auto settings = loadSettings(Filter);
    QVERIFY(settings);
    const QStringList expected = {
        QStringLiteral("Load settings from \"100-hw-settings.ini\""),
        QStringLiteral("Append settings from \"20-hw-settings.ini\""),
        QStringLiteral("Append settings from \"B-hw-settings.ini\""),
        QStringLiteral("Append settings from \"a-hw-settings.ini\""),
        QStringLiteral("Append settings from \"05-hw-settings.ini\""),
        QStringLiteral("Append settings from \"b-hw-settings.ini\""),
    };
    QCOMPARE(log.all(), expected);
    QCOMPARE(log.debugs(), expected);
    QCOMPARE(text(*settings, "Last/File"), QStringLiteral("b-hw-settings.ini"));
}

void tst_SettingsLoader::firstFileMayBeInSecondFolder()
{
    writeFile(Installed + QStringLiteral("factory-tests.ini"), "[SIM]\nModemCount=1\n");
    writeFile(RunTime + QStringLiteral("1-hw-settings.ini"), "[SIM]\nModemCount=2\n");
    writeFile(RunTime + QStringLiteral("2-hw-settings.ini"), "[LED]\nLedType=RGB\n");
    const MessageLog log;
    const auto settings = loadSettings(Filter);
    QVERIFY(settings);
    QCOMPARE(log.all(),
             (QStringList{QStringLiteral("Load settings from \"1-hw-settings.ini\""),
                          QStringLiteral("Append settings from \"2-hw-settings.ini\"")}));
    QCOMPARE(settings->allKeys(), (QStringList{QStringLiteral("LED/LedType"), QStringLiteral("SIM/ModemCount")}));
}

void tst_SettingsLoader::takesOnlyTheFolderItself()
{
    writeFile(Installed + QStringLiteral("more/hw-settings.ini"), "[SIM]\nModemCount=2\n");
    QVERIFY(!loadSettings(Filter));
}

void tst_SettingsLoader::takesOnlyFiles()
{
    QDir().mkpath(Installed + QStringLiteral("1-hw-settings.ini"));
    QVERIFY(
        QFile::link(Installed + QStringLiteral("1-hw-settings.ini"), Installed + QStringLiteral("2-hw-settings.ini")));
    QVERIFY(QFile::link(QStringLiteral("/nowhere"), Installed + QStringLiteral("3-hw-settings.ini")));
    // Whoever opened the pipe would wait for a writer.
    QCOMPARE(::mkfifo(QFile::encodeName(Installed + QStringLiteral("4-hw-settings.ini")).constData(), 0644), 0);
    QVERIFY(
        QFile::link(Installed + QStringLiteral("4-hw-settings.ini"), Installed + QStringLiteral("5-hw-settings.ini")));
    QVERIFY(QFile::link(QStringLiteral("/dev/zero"), Installed + QStringLiteral("6-hw-settings.ini")));
    const MessageLog log;
    QVERIFY(!loadSettings(Filter));
    QCOMPARE(log.all(), QStringList());
}

void tst_SettingsLoader::ignoresUndecodableNames()
{
    QDir().mkpath(Installed);
    const QByteArray name = QFile::encodeName(Installed) + "\xff-hw-settings.ini";
    const int file = ::open(name.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0644);
    QVERIFY(file >= 0);
    ::close(file);
    const MessageLog log;
    QVERIFY(!loadSettings(Filter));
    QCOMPARE(log.all(), QStringList());
    QCOMPARE(::unlink(name.constData()), 0);
}

void tst_SettingsLoader::followsLinksToFiles()
{
    writeFile(QStringLiteral("/run/kiv/elsewhere"), "[SIM]\nModemCount=2\n");
    QDir().mkpath(Installed);
    QVERIFY(QFile::link(QStringLiteral("/run/kiv/elsewhere"), Installed + QStringLiteral("hw-settings.ini")));
    const auto settings = loadSettings(Filter);
    QVERIFY(settings);
    QCOMPARE(text(*settings, "SIM/ModemCount"), QStringLiteral("2"));
}

void tst_SettingsLoader::laterFileReplacesKeyByKey()
{
    writeFile(Installed + QStringLiteral("10-hw-settings.ini"),
              "Top=first\n[SIM]\nModemCount=2\nSlot=left\n[Keys]\nKeys=0x01000072, 0x01000070\n");
    writeFile(Installed + QStringLiteral("20-hw-settings.ini"), "[SIM]\nModemCount=3\n[Keys]\nKeys=0x01000072\n");
    writeFile(RunTime + QStringLiteral("10-hw-settings.ini"), "Top=last\n[SIM]\nModemCount=1\n[LED]\nLedType=RGB\n");
    const auto settings = loadSettings(Filter);
    QVERIFY(settings);
    QCOMPARE(text(*settings, "Top"), QStringLiteral("last"));
    QCOMPARE(text(*settings, "SIM/ModemCount"), QStringLiteral("1"));
    QCOMPARE(text(*settings, "SIM/Slot"), QStringLiteral("left"));
    QCOMPARE(text(*settings, "LED/LedType"), QStringLiteral("RGB"));
    QCOMPARE(settings->value(QStringLiteral("Keys/Keys")), QVariant(QStringLiteral("0x01000072")));
    QCOMPARE(settings->allKeys().size(), 5);
}

void tst_SettingsLoader::keepsValuesAsQtReadsThem()
{
    const QByteArray content = "; comment\nplain=text\nempty=\nlist=a, b,c\nquoted=\"a, b\"\nescaped=tab\\tx\\x41\n"
                               "invalid=@Invalid()\nbytes=@ByteArray(a\\0b)\nspace = x y  \nlatin=\xe9\n"
                               "[General]\ngeneral=1\n[%General]\ngeneral=2\n[a%20b]\nc%2Fd=3\n[a/b]\nc\\d=4\n"
                               "Battery.Test=true\n";
    writeFile(QStringLiteral("/run/kiv/reference.ini"), content);
    writeFile(Installed + QStringLiteral("1-hw-settings.ini"), content);
    // Once as the first file and once as a later one.
    for (int pass = 0; pass < 2; ++pass) {
        const auto settings = loadSettings(Filter);
        const QSettings reference(QStringLiteral("/run/kiv/reference.ini"), QSettings::IniFormat);
        QVERIFY(settings);
        QVERIFY(reference.allKeys().size() >= 14);
        const QStringList keys = reference.allKeys();
        for (const QString &key : keys) {
            QVERIFY2(settings->contains(key), qPrintable(key));
            QCOMPARE(settings->value(key), reference.value(key));
            QCOMPARE(settings->value(key).type(), reference.value(key).type());
        }
        settings->beginGroup(QStringLiteral("a/b"));
        QCOMPARE(settings->childKeys(), QStringList{QStringLiteral("Battery.Test")});
        QCOMPARE(settings->childGroups(), QStringList{QStringLiteral("c")});
        writeFile(Installed + QStringLiteral("0-hw-settings.ini"), "first=1\n");
    }
}

void tst_SettingsLoader::tellsUpperFromLowerCase()
{
    writeFile(Installed + QStringLiteral("1-hw-settings.ini"), "[LED]\nLedType=1\n");
    writeFile(Installed + QStringLiteral("2-hw-settings.ini"), "[Led]\nLedType=2\n[LED]\nledtype=3\n");
    const auto settings = loadSettings(Filter);
    QVERIFY(settings);
    QCOMPARE(text(*settings, "LED/LedType"), QStringLiteral("1"));
    QCOMPARE(text(*settings, "Led/LedType"), QStringLiteral("2"));
    QCOMPARE(text(*settings, "LED/ledtype"), QStringLiteral("3"));
    QVERIFY(!settings->contains(QStringLiteral("led/ledtype")));
}

void tst_SettingsLoader::neverWrites_data()
{
    QTest::addColumn<int>("files");
    QTest::newRow("one file") << 1;
    QTest::newRow("several files") << 4;
}

void tst_SettingsLoader::neverWrites()
{
    QFETCH(int, files);
    for (int i = 0; i < files; ++i) {
        // Comments and order are what a rewritten file would lose.
        writeFile((i % 2 ? RunTime : Installed) + QStringLiteral("%1-hw-settings.ini").arg(i),
                  "; our phone\n[Z]\nb=" + QByteArray::number(i) + "\na=1\n[A]\nk" + QByteArray::number(i) + "=1\n");
    }
    const QStringList before = traces();
    const MessageLog log;
    {
        const auto settings = loadSettings(Filter);
        QVERIFY(settings);
        QCOMPARE(traces(), before);
        QCoreApplication::processEvents();
        QCOMPARE(traces(), before);
        settings->setValue(QStringLiteral("Z/b"), QStringLiteral("changed"));
        settings->remove(QStringLiteral("Z/a"));
        settings->sync();
        QCoreApplication::processEvents();
        QCOMPARE(traces(), before);
        QCOMPARE(text(*settings, "Z/b"), QStringLiteral("changed"));
        settings->setValue(QStringLiteral("Z/c"), 1);
    }
    QCoreApplication::processEvents();
    QCOMPARE(traces(), before);
    QCOMPARE(log.debugs().size(), files);
    QCOMPARE(log.all().size(), files);
}

/*! Also where a phone has less than usual. */
void tst_SettingsLoader::makesNoFolders()
{
    const auto everywhere = [] {
        const QDir::Filters all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
        return QDir::root().entryList(all) + QDir(QStringLiteral("/dev")).entryList(all);
    };
    if (::mount("dev", "/dev", "tmpfs", MS_NOSUID, nullptr) != 0)
        QSKIP("A file system cannot be mounted here");
    const auto unmount = qScopeGuard([] { ::umount2("/dev", MNT_DETACH); });
    writeFile(Installed + QStringLiteral("hw-settings.ini"), "[A]\nb=1\n");
    const QStringList before = everywhere();
    const MessageLog log;
    loadSettings(Filter)->sync();
    QCOMPARE(everywhere(), before);
}

void tst_SettingsLoader::sharesNothing()
{
    writeFile(Installed + QStringLiteral("1-hw-settings.ini"), "[SIM]\nModemCount=1\n");
    writeFile(Installed + QStringLiteral("1-factory-tests.ini"), "[tests]\nVerificationTouch=true\n");
    const auto first = loadSettings(Filter);
    writeFile(RunTime + QStringLiteral("2-hw-settings.ini"), "[SIM]\nModemCount=2\n[LED]\nLedType=RGB\n");
    const auto second = loadSettings(Filter);
    const auto tests = loadSettings(QStringLiteral("factory-tests"));
    QVERIFY(first && second && tests);
    QCOMPARE(text(*first, "SIM/ModemCount"), QStringLiteral("1"));
    QCOMPARE(first->allKeys().size(), 1);
    QCOMPARE(text(*second, "SIM/ModemCount"), QStringLiteral("2"));
    QCOMPARE(tests->allKeys(), QStringList{QStringLiteral("tests/VerificationTouch")});

    second->setValue(QStringLiteral("SIM/ModemCount"), 3);
    second->sync();
    QCOMPARE(text(*first, "SIM/ModemCount"), QStringLiteral("1"));
    const auto third = loadSettings(Filter);
    QVERIFY(third);
    QCOMPARE(text(*third, "SIM/ModemCount"), QStringLiteral("2"));
    const QSettings file(RunTime + QStringLiteral("2-hw-settings.ini"), QSettings::IniFormat);
    QCOMPARE(text(file, "SIM/ModemCount"), QStringLiteral("2"));
    const QSettings base(Installed + QStringLiteral("1-hw-settings.ini"), QSettings::IniFormat);
    QCOMPARE(base.allKeys().size(), 1);
    QCOMPARE(text(base, "SIM/ModemCount"), QStringLiteral("1"));
}

void tst_SettingsLoader::readsFilesAsTheyAre()
{
    // The same size each time and the same time stamp, as a package may install it.
    const QString path = Installed + QStringLiteral("1-hw-settings.ini");
    for (int i = 1000; i < 1500; ++i) {
        writeFile(path, "[SIM]\nModemCount=" + QByteArray::number(i) + "\n");
        setTimes(path, 1000000000);
        const auto settings = loadSettings(Filter);
        QVERIFY(settings);
        QCOMPARE(text(*settings, "SIM/ModemCount"), QString::number(i));
    }
    const auto settings = loadSettings(Filter);
    writeFile(path, "[SIM]\nModemCount=1\n");
    settings->sync();
    QCOMPARE(text(*settings, "SIM/ModemCount"), QStringLiteral("1499"));
}

void tst_SettingsLoader::seesFilesThatComeAndGo()
{
    writeFile(Installed + QStringLiteral("1-hw-settings.ini"), "[SIM]\nModemCount=1\n");
    QVERIFY(loadSettings(Filter));
    QVERIFY(QFile::remove(Installed + QStringLiteral("1-hw-settings.ini")));
    QVERIFY(!loadSettings(Filter));
    writeFile(RunTime + QStringLiteral("1-hw-settings.ini"), "");
    const auto settings = loadSettings(Filter);
    QVERIFY(settings);
    QCOMPARE(settings->allKeys(), QStringList());
}

void tst_SettingsLoader::survivesBrokenFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QByteArray noise;
    quint32 state = 12345;
    for (int i = 0; i < Megabyte; ++i) {
        state = state * 1664525U + 1013904223U;
        noise.append(char(state >> 24));
    }
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("noise") << noise;
    QTest::newRow("NULs") << QByteArray(4096, '\0');
    QTest::newRow("NUL in line") << QByteArray("[A\0B]\nx\0y=1\0\n", 14);
    QTest::newRow("invalid UTF-8") << QByteArray("[\xff\xfe]\n\xc3\x28=\xe2\x82\n");
    QTest::newRow("byte order mark") << QByteArray("\xef\xbb\xbf[A]\nb=1\n");
    QTest::newRow("megabytes in one line") << "[A]\nb=" + QByteArray(8 * Megabyte, 'x') + "\n";
    QTest::newRow("megabytes of commas") << "[A]\nb=" + QByteArray(Megabyte, ',') + "\n";
    QTest::newRow("megabytes of key") << QByteArray(4 * Megabyte, 'k') + "=1\n";
    QTest::newRow("long group") << "[" + QByteArray(Megabyte, 'g') + "\n";
    QTest::newRow("no end of quote") << QByteArray("[A]\nb=\"open\nc=1\n");
    QTest::newRow("no end of line") << QByteArray("[A]\nb=1\\");
    QTest::newRow("no values") << QByteArray("[A]\nb\nc\n=\n==\n[]\n[\n]\n");
    QTest::newRow("bad escapes") << QByteArray("a%zz=\\x\nb%=\\xffffffff\nc%U12=\\777777\n");
    QTest::newRow("bad variant") << QByteArray("a=@Variant(\\0\\0\\0\\x7f\\xff\\xff\\xff\\xff)\nb=@Rect(1)\nc=@Foo(\n");
    QTest::newRow("huge variant") << QByteArray("a=@Variant(\\0\\0\\0\\n\\x7f\\xff\\xff\\xfe)\n");
}

void tst_SettingsLoader::survivesBrokenFiles()
{
    QFETCH(QByteArray, content);
    writeFile(Installed + QStringLiteral("1-hw-settings.ini"), "[SIM]\nModemCount=2\n");
    writeFile(Installed + QStringLiteral("2-hw-settings.ini"), content);
    writeFile(Installed + QStringLiteral("3-hw-settings.ini"), "[LED]\nLedType=RGB\n");
    const QStringList before = traces();
    {
        const MessageLog log;
        const auto settings = loadSettings(Filter);
        QVERIFY(settings);
        QCOMPARE(text(*settings, "SIM/ModemCount"), QStringLiteral("2"));
        QCOMPARE(text(*settings, "LED/LedType"), QStringLiteral("RGB"));
        QCOMPARE(log.debugs().size(), 3);
    }
    QVERIFY(QFile::remove(Installed + QStringLiteral("1-hw-settings.ini")));
    {
        const auto settings = loadSettings(Filter);
        QVERIFY(settings);
        QCOMPARE(text(*settings, "LED/LedType"), QStringLiteral("RGB"));
    }
    writeFile(Installed + QStringLiteral("1-hw-settings.ini"), "");
    QCOMPARE(traces().size(), before.size());
    QCOMPARE(readFile(Installed + QStringLiteral("2-hw-settings.ini")), content);
}

void tst_SettingsLoader::skipsKeysWithoutName()
{
    writeFile(Installed + QStringLiteral("1-hw-settings.ini"), "[SIM]\nModemCount=2\n");
    writeFile(Installed + QStringLiteral("2-hw-settings.ini"), "=nothing\n[SIM]\n=nothing\n/ModemCount=3\n");
    const MessageLog log;
    const auto settings = loadSettings(Filter);
    QVERIFY(settings);
    QCOMPARE(log.warnings(), QStringList());
    QCOMPARE(text(*settings, "SIM/ModemCount"), QStringLiteral("2"));
    QVERIFY(!settings->contains(QStringLiteral("SIM")));
}

void tst_SettingsLoader::unreadableFileIsEmpty()
{
    writeFile(Installed + QStringLiteral("1-hw-settings.ini"), "[SIM]\nModemCount=2\n");
    writeFile(Installed + QStringLiteral("2-hw-settings.ini"), "[SIM]\nModemCount=3\n");
    QCOMPARE(::chmod(QFile::encodeName(Installed + QStringLiteral("2-hw-settings.ini")).constData(), 0), 0);
    const Verdict verdict = asOrdinaryUser([] {
        const MessageLog log;
        const auto settings = loadSettings(Filter);
        return settings && text(*settings, "SIM/ModemCount") == QStringLiteral("2") && log.all().size() == 2;
    });
    if (verdict == Verdict::NoSuchUser)
        QSKIP("another user is needed");
    QCOMPARE(verdict, Verdict::True);
}

void tst_SettingsLoader::unreadableFolderIsEmpty()
{
    writeFile(Installed + QStringLiteral("1-hw-settings.ini"), "[SIM]\nModemCount=2\nSlot=left\n");
    writeFile(RunTime + QStringLiteral("2-hw-settings.ini"), "[SIM]\nModemCount=3\n");
    // Its files could be opened, but their names cannot be found out.
    QCOMPARE(::chmod(QFile::encodeName(Installed).constData(), 0711), 0);
    const Verdict verdict = asOrdinaryUser([] {
        const MessageLog log;
        const auto settings = loadSettings(Filter);
        return settings && settings->allKeys() == QStringList{QStringLiteral("SIM/ModemCount")}
        && text(*settings, "SIM/ModemCount") == QStringLiteral("3")
            && log.all() == QStringList{QStringLiteral("Load settings from \"2-hw-settings.ini\"")};
    });
    if (verdict == Verdict::NoSuchUser)
        QSKIP("another user is needed");
    QCOMPARE(verdict, Verdict::True);
}

void tst_SettingsLoader::worksWithoutSpareDescriptors()
{
    writeFile(Installed + QStringLiteral("1-hw-settings.ini"), "[SIM]\nModemCount=2\n");
    rlimit limit = {};
    QCOMPARE(::getrlimit(RLIMIT_NOFILE, &limit), 0);
    const rlimit few = {64, limit.rlim_max};
    QCOMPARE(::setrlimit(RLIMIT_NOFILE, &few), 0);
    const auto settings = loadSettings(Filter);
    QCOMPARE(::setrlimit(RLIMIT_NOFILE, &limit), 0);
    QVERIFY(settings);
    QCOMPARE(text(*settings, "SIM/ModemCount"), QStringLiteral("2"));
}

QTEST_GUILESS_MAIN(tst_SettingsLoader)
#include "tst_settingsloader.moc"
