// SPDX-License-Identifier: BSD-3-Clause
#include "files.h"
#include "ordinaryuser.h"
#include "sysfile.h"

#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

namespace
{
const QString Path = QStringLiteral("/run/kiv/file \u00e4");

int openDescriptorCount()
{
    return QDir(QStringLiteral("/proc/self/fd"))
        .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
        .size();
}
}

class tst_SysFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QFile::remove(Path); }

    void reads_data();
    void reads();
    void readsLinesAcrossBlocks_data();
    void readsLinesAcrossBlocks();
    void readsFilesThatClaimToBeEmpty();
    void isNullForWhatCannotBeRead_data();
    void isNullForWhatCannotBeRead();
    void isNullForUnreadableFile();
    void doesNotWaitForAPipe();
    void doesNotReadForEver();
    void leavesNothingOpen();
};

void tst_SysFile::reads_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("line") << QByteArray("one\n") << QByteArray("one");
    QTest::newRow("lines") << QByteArray("one\ntwo\n") << QByteArray("one");
    QTest::newRow("no newline") << QByteArray("one") << QByteArray("one");
    QTest::newRow("blanks stay") << QByteArray(" one \n") << QByteArray(" one ");
    QTest::newRow("empty line") << QByteArray("\none") << QByteArray("");
    QTest::newRow("empty") << QByteArray("") << QByteArray("");
    QTest::newRow("NUL") << QByteArray("a\0b\nc", 5) << QByteArray("a\0b", 3);
    QTest::newRow("carriage return") << QByteArray("one\r\ntwo") << QByteArray("one\r");
    QTest::newRow("carriage returns") << QByteArray("o\rne\r") << QByteArray("o\rne\r");
    QTest::newRow("invalid UTF-8") << QByteArray("\xff\xfe\n") << QByteArray("\xff\xfe");
}

void tst_SysFile::reads()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, line);
    writeFile(Path, content);
    QCOMPARE(readFirstLine(Path), line);
    QVERIFY(!readFirstLine(Path).isNull());
    QCOMPARE(readWholeFile(Path), content);
    QVERIFY(!readWholeFile(Path).isNull());
}

void tst_SysFile::readsLinesAcrossBlocks_data()
{
    QTest::addColumn<int>("length");
    for (const int length : {4095, 4096, 4097, 8191, 8192, 8193, 5 * 1024 * 1024})
        QTest::addRow("%d", length) << length;
}

void tst_SysFile::readsLinesAcrossBlocks()
{
    QFETCH(int, length);
    QByteArray line(length, 'a');
    line[length - 1] = 'z';
    writeFile(Path, line + "\nnext");
    QCOMPARE(readFirstLine(Path), line);
    QCOMPARE(readWholeFile(Path), line + "\nnext");
    writeFile(Path, line);
    QCOMPARE(readFirstLine(Path), line);
}

void tst_SysFile::readsFilesThatClaimToBeEmpty()
{
    const QString status = QStringLiteral("/proc/self/status");
    QVERIFY(readFirstLine(status).startsWith("Name:\t"));
    QVERIFY(readWholeFile(status).contains("\nUid:\t"));
    QVERIFY(readWholeFile(status).endsWith('\n'));
}

void tst_SysFile::isNullForWhatCannotBeRead_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("missing") << QStringLiteral("/run/kiv/nothing");
    QTest::newRow("folder") << QStringLiteral("/run/kiv");
    QTest::newRow("below a file") << QStringLiteral("/proc/version/x");
    QTest::newRow("empty name") << QString();
    QTest::newRow("read fails") << QStringLiteral("/proc/self/mem"); // nothing is mapped at 0
}

void tst_SysFile::isNullForWhatCannotBeRead()
{
    QFETCH(QString, path);
    QVERIFY(readFirstLine(path).isNull());
    QVERIFY(readWholeFile(path).isNull());
}

void tst_SysFile::isNullForUnreadableFile()
{
    writeFile(Path, "secret", QFile::WriteOwner);
    const Verdict verdict = asOrdinaryUser([] { return readFirstLine(Path).isNull() && readWholeFile(Path).isNull(); });
    if (verdict == Verdict::NoSuchUser)
        QSKIP("another user is needed");
    QCOMPARE(verdict, Verdict::True);
}

void tst_SysFile::doesNotWaitForAPipe()
{
    QCOMPARE(::mkfifo(QFile::encodeName(Path).constData(), 0600), 0);
    // Without the flag the first of these never returns, and the test's time runs out.
    QVERIFY(readFirstLine(Path).isEmpty());
    QVERIFY(readWholeFile(Path).isEmpty());
}

void tst_SysFile::doesNotReadForEver()
{
    QVERIFY(QFile::link(QStringLiteral("/dev/zero"), Path));
    QCOMPARE(readFirstLine(Path), QByteArray(1 << 24, '\0'));
    QCOMPARE(readWholeFile(Path), QByteArray(1 << 24, '\0'));
}

void tst_SysFile::leavesNothingOpen()
{
    writeFile(Path, "one\ntwo\n");
    const int before = openDescriptorCount();
    for (int i = 0; i < 20; ++i) {
        readFirstLine(Path);
        readWholeFile(Path);
        readFirstLine(QStringLiteral("/run/kiv"));
    }
    QCOMPARE(openDescriptorCount(), before);
}

QTEST_GUILESS_MAIN(tst_SysFile)
#include "tst_sysfile.moc"
