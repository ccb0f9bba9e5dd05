// SPDX-License-Identifier: BSD-3-Clause
#include "messagelog.h"
#include "sdcardtest.h"

#include <QFile>
#include <QMetaEnum>
#include <QProcess>
#include <QtTest>

#include <memory>

/*! What phonectl does to the simulated phone's memory card, as Kiv sees it. Runs on the phone "full". */
class tst_SimulatedCard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void startsMounted();
    void unmountsAndMounts();
    void failsToMount();
    void comesAndGoes();
    void pulledInTheMiddle();
    void fails_data();
    void fails();
    void busyCard();
    void daemonEndsAndComesBack_data();
    void daemonEndsAndComesBack();
    void frozenDaemon();

private:
    /*! Exit status of phonectl with these words. Meanwhile this process goes on. */
    int phonectl(const QString &words)
    {
        QProcess process;
        process.start(QStringLiteral(KIV_PHONECTL), words.split(QLatin1Char(' ')));
        if (!QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, 30000))
            return -1;
        m_error = QString::fromUtf8(process.readAllStandardError());
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }
    void lookMeanwhile(const QString &verb, const QString &opposite, SdCardTest::Status status, const QString &word,
                       const QString &all);
    QStringList statuses() { return std::exchange(m_statuses, {}); }

    QString m_error;
    QStringList m_statuses;
    std::unique_ptr<MessageLog> m_log;
    std::unique_ptr<SdCardTest> m_test;
};

#define PHONECTL(words) QVERIFY2(phonectl(QStringLiteral(words)) == 0, qPrintable(m_error))
#define QTRY_STATUSES(...)                                                                                             \
    QTRY_COMPARE(m_statuses.join(QLatin1Char(' ')), QStringLiteral(__VA_ARGS__));                                      \
    m_statuses.clear()

void tst_SimulatedCard::init()
{
    m_log = std::make_unique<MessageLog>();
    m_test = std::make_unique<SdCardTest>();
    // Each test finds the card mounted, and leaves it so. A daemon that has to wait for the processor may tell it late.
    QTRY_COMPARE(m_test->status(), SdCardTest::Mounted);
    connect(m_test.get(), &SdCardTest::statusChanged, this, [this] {
        m_statuses << QLatin1String(QMetaEnum::fromType<SdCardTest::Status>().valueToKey(m_test->status()));
    });
}

void tst_SimulatedCard::cleanup()
{
    m_test.reset();
    m_statuses.clear();
    const QStringList messages = m_log->all();
    m_log.reset();
    QCOMPARE(messages, QStringList());
}

void tst_SimulatedCard::startsMounted()
{
    QVERIFY(!m_test->mountFailed());
    QCOMPARE(m_test->sdCardIOTest(), 3);
    QVERIFY(QFile::exists(QStringLiteral("/run/media/phone/CARD")));
    QVERIFY(!QFile::exists(QStringLiteral("/run/media/phone/CARD/test.tmp")));
}

// A job that lasts, seen while it does. On a busy machine the looking can take longer than the job.
void tst_SimulatedCard::lookMeanwhile(const QString &verb, const QString &opposite, SdCardTest::Status status,
                                      const QString &word, const QString &all)
{
    for (int seconds = 3; seconds < 60; seconds *= 4) {
        QVERIFY2(phonectl(QStringLiteral("sdcard %1 %2").arg(verb).arg(seconds)) == 0, qPrintable(m_error));
        QTRY_VERIFY(!m_statuses.isEmpty());
        const int result = m_test->sdCardIOTest();
        const SdCardTest late;
        const SdCardTest::Status seen = late.status();
        // What the daemon has told before it answered has arrived by now.
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        const bool lasts = m_statuses == QStringList(word);
        if (lasts) {
            QCOMPARE(result, 0);
            QCOMPARE(seen, status);
        }
        QTRY_COMPARE_WITH_TIMEOUT(m_statuses.join(QLatin1Char(' ')), all, 1000 * seconds + 10000);
        m_statuses.clear();
        if (lasts)
            return;
        QVERIFY2(phonectl(QStringLiteral("sdcard %1 0").arg(opposite)) == 0, qPrintable(m_error));
        QTRY_COMPARE(m_test->status(), status == SdCardTest::Mounting ? SdCardTest::Unmounted : SdCardTest::Mounted);
        m_statuses.clear();
    }
    QFAIL("the machine is too busy");
}

void tst_SimulatedCard::unmountsAndMounts()
{
    PHONECTL("sdcard unmount");
    QTRY_STATUSES("Unmounting Unmounted");
    QCOMPARE(m_test->sdCardIOTest(), 0);
    PHONECTL("sdcard mount");
    // The mount table follows when the job is over.
    QTRY_STATUSES("Mounting Unmounted Mounted");
    QCOMPARE(m_test->sdCardIOTest(), 3);

    lookMeanwhile(QStringLiteral("unmount"), QStringLiteral("mount"), SdCardTest::Unmounting,
                  QStringLiteral("Unmounting"), QStringLiteral("Unmounting Unmounted"));
    lookMeanwhile(QStringLiteral("mount"), QStringLiteral("unmount"), SdCardTest::Mounting, QStringLiteral("Mounting"),
                  QStringLiteral("Mounting Unmounted Mounted"));
}

void tst_SimulatedCard::failsToMount()
{
    PHONECTL("sdcard unmount 0");
    QTRY_STATUSES("Unmounting Unmounted");
    PHONECTL("sdcard fail-mount");
    QTRY_STATUSES("Mounting Unmounted");
    QVERIFY(m_test->mountFailed());
    PHONECTL("sdcard mount");
    QTRY_STATUSES("Mounting Unmounted Mounted");
    QVERIFY(!m_test->mountFailed());
}

void tst_SimulatedCard::comesAndGoes()
{
    PHONECTL("sdcard remove");
    QTRY_STATUSES("NoCard");
    QCOMPARE(m_test->sdCardIOTest(), 0);
    QCOMPARE(SdCardTest().status(), SdCardTest::NoCard);
    PHONECTL("sdcard insert OTHER");
    QTRY_STATUSES("Unmounted");
    PHONECTL("sdcard mount 0");
    QTRY_STATUSES("Mounting Unmounted Mounted");
    QCOMPARE(m_test->sdCardIOTest(), 3);
    PHONECTL("sdcard remove");
    QTRY_STATUSES("NoCard");
    PHONECTL("sdcard insert CARD");
    PHONECTL("sdcard mount");
    QTRY_COMPARE(m_test->status(), SdCardTest::Mounted);
}

void tst_SimulatedCard::pulledInTheMiddle()
{
    PHONECTL("sdcard unmount");
    PHONECTL("sdcard mount 60");
    QTRY_STATUSES("Unmounting Unmounted Mounting");
    PHONECTL("sdcard remove");
    QTRY_COMPARE(m_test->status(), SdCardTest::NoCard);
    PHONECTL("sdcard insert");
    QTRY_COMPARE(m_test->status(), SdCardTest::Unmounted);
    PHONECTL("sdcard mount");
    QTRY_COMPARE(m_test->status(), SdCardTest::Mounted);
    QVERIFY(!m_test->mountFailed());
}

void tst_SimulatedCard::fails_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<int>("result");
    QTest::newRow("readonly") << QStringLiteral("readonly") << 1;
    QTest::newRow("full") << QStringLiteral("full") << 2;
    QTest::newRow("corrupt") << QStringLiteral("corrupt") << 2;
}

void tst_SimulatedCard::fails()
{
    QFETCH(QString, fault);
    QFETCH(int, result);
    QCOMPARE(phonectl(QStringLiteral("sdcard ") + fault), 0);
    QCOMPARE(m_test->sdCardIOTest(), result);
    QCOMPARE(m_test->sdCardIOTest(), result);
    PHONECTL("sdcard unmount 0");
    PHONECTL("sdcard mount 0");
    QTRY_COMPARE(m_test->status(), SdCardTest::Mounted);
    QCOMPARE(m_test->sdCardIOTest(), result);
    QCOMPARE(phonectl(QStringLiteral("sdcard ") + fault + QStringLiteral(" off")), 0);
    QCOMPARE(m_test->sdCardIOTest(), 3);
}

void tst_SimulatedCard::busyCard()
{
    QFile file(QStringLiteral("/run/media/phone/CARD/in-use"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    if (phonectl(QStringLiteral("sdcard unmount")) == 0) {
        PHONECTL("sdcard mount");
        QTRY_COMPARE(m_test->status(), SdCardTest::Mounted);
        QSKIP("A card that an ordinary user has put in is never busy.");
    }
    QTRY_STATUSES("Unmounting Mounted");
    QVERIFY(!m_test->mountFailed());
}

void tst_SimulatedCard::daemonEndsAndComesBack_data()
{
    QTest::addColumn<QString>("how");
    QTest::newRow("stopped") << QStringLiteral("stop");
    QTest::newRow("killed") << QStringLiteral("kill");
}

void tst_SimulatedCard::daemonEndsAndComesBack()
{
    QFETCH(QString, how);
    QCOMPARE(phonectl(QStringLiteral("daemon %1 udisks2").arg(how)), 0);
    QTRY_STATUSES("NoCard");
    QCOMPARE(SdCardTest().status(), SdCardTest::NoCard);
    PHONECTL("daemon start udisks2");
    QTRY_STATUSES("Mounted");
    QCOMPARE(m_test->sdCardIOTest(), 3);
}

void tst_SimulatedCard::frozenDaemon()
{
    PHONECTL("daemon freeze udisks2");
    SdCardTest late;
    QCOMPARE(late.status(), SdCardTest::NoCard);
    QCOMPARE(m_test->status(), SdCardTest::Mounted);
    PHONECTL("daemon thaw udisks2");
    QTRY_COMPARE(late.status(), SdCardTest::Mounted);
    QCOMPARE(late.sdCardIOTest(), 3);
}

QTEST_GUILESS_MAIN(tst_SimulatedCard)
#include "tst_simulatedcard.moc"
