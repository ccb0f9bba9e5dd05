// SPDX-License-Identifier: BSD-3-Clause
#include "messagelog.h"
#include "metaobject.h"
#include "signalhandler.h"

#include <QDir>
#include <QSignalSpy>
#include <QSocketNotifier>
#include <QThread>
#include <QtTest>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <memory>
#include <set>
#include <thread>

#include <dlfcn.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

namespace
{
const QString NoPair = QStringLiteral("Could not create socket pair for TERM signal handler, device state may not be "
                                      "restored on termination.");

const QString NoAction =
    QStringLiteral("Could not set sigaction for TERM signal handler, device state may not be restored on termination.");

/*! What installing a handler for SIGTERM returns without installing one; 0 lets it through. */
int refusal = 0;

/*! How the last pair was asked for. */
QVector<int> pairArguments;

/*! What a socketpair() that fails leaves in the caller's array; negative lets the call through. */
int leftover = -1;

std::set<int> openDescriptors()
{
    std::set<int> descriptors;
    for (int fd = 0; fd < 1024; ++fd) {
        if (::fcntl(fd, F_GETFD) != -1)
            descriptors.insert(fd);
    }
    return descriptors;
}

struct sigaction termAction()
{
    struct sigaction action;
    ::sigaction(SIGTERM, nullptr, &action);
    return action;
}

/*! A handler and the two ends of its pair, found from outside. */
struct Handler
{
    Handler()
    {
        const std::set<int> before = openDescriptors();
        handler = std::make_unique<SignalHandler>();
        const std::set<int> after = openDescriptors();
        std::set_difference(after.begin(), after.end(), before.begin(), before.end(),
                            std::inserter(descriptors, descriptors.end()));
        notifier = handler->findChild<QSocketNotifier *>();
        if (notifier)
            readEnd = int(notifier->socket());
        for (const int fd : descriptors) {
            if (fd != readEnd)
                writeEnd = fd;
        }
    }

    std::unique_ptr<SignalHandler> handler;
    std::set<int> descriptors;
    QSocketNotifier *notifier = nullptr;
    int readEnd = -1;
    int writeEnd = -1;
};
}

// Stands before the C library's.
extern "C" int sigaction(int number, const struct sigaction *action, struct sigaction *previous) noexcept
{
    using Function = int (*)(int, const struct sigaction *, struct sigaction *);
    static const auto next = reinterpret_cast<Function>(::dlsym(RTLD_NEXT, "sigaction"));
    if (number == SIGTERM && action && refusal != 0)
        return refusal;
    return next(number, action, previous);
}

extern "C" int socketpair(int domain, int type, int protocol, int ends[2]) noexcept
{
    using Function = int (*)(int, int, int, int *);
    static const auto next = reinterpret_cast<Function>(::dlsym(RTLD_NEXT, "socketpair"));
    pairArguments = {domain, type, protocol};
    if (leftover < 0)
        return next(domain, type, protocol, ends);
    ends[0] = leftover;
    ends[1] = leftover;
    errno = EMFILE;
    return -1;
}

class tst_SignalHandler : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void interface();
    void makesConnectedStreamPair();
    void installsHandler();
    void emitsFromTheEventLoop();
    void emitsOncePerSignal();
    void emitsInItsOwnThread();
    void swallowsOtherBytes();
    void isDeafWhileItEmits();
    void bearsCallsWithoutPair();
    void destroyedInItsOwnSignal();
    void keepsErrno();
    void survivesBurst();
    void withoutPairInstallsNothing();
    void withoutPairClosesNothing();
    void withoutHandlerStaysQuiet_data();
    void withoutHandlerStaysQuiet();
    void closesPairAndStaysHarmless();
    void canBeMadeAgain();
};

void tst_SignalHandler::init()
{
    ::signal(SIGTERM, SIG_DFL);
}

void tst_SignalHandler::interface()
{
    const QStringList expected = {
        QStringLiteral("signal termSignalReceived()"),
        QStringLiteral("private slot signalReceived()"),
    };
    QCOMPARE(ownInterface(SignalHandler::staticMetaObject), expected);
}

void tst_SignalHandler::makesConnectedStreamPair()
{
    MessageLog log;
    const Handler it;
    QCOMPARE(pairArguments, (QVector<int>{AF_UNIX, SOCK_STREAM, 0}));
    QVERIFY(it.notifier);
    QCOMPARE(it.notifier->parent(), it.handler.get());
    QCOMPARE(it.notifier->type(), QSocketNotifier::Read);
    QCOMPARE(it.descriptors.size(), size_t(2));
    for (const int fd : it.descriptors) {
        int type = 0;
        int family = 0;
        socklen_t size = sizeof(type);
        QCOMPARE(::getsockopt(fd, SOL_SOCKET, SO_TYPE, &type, &size), 0);
        QCOMPARE(::getsockopt(fd, SOL_SOCKET, SO_DOMAIN, &family, &size), 0);
        QCOMPARE(type, int(SOCK_STREAM));
        QCOMPARE(family, AF_UNIX);
        QVERIFY(::fcntl(fd, F_GETFD) & FD_CLOEXEC); // the children have no use for it
        QVERIFY(::fcntl(fd, F_GETFL) & O_NONBLOCK);
    }
    QVERIFY(log.all().isEmpty());
}

void tst_SignalHandler::installsHandler()
{
    const SignalHandler handler;
    const struct sigaction action = termAction();
    QVERIFY(action.sa_handler != SIG_DFL);
    QVERIFY(action.sa_flags & SA_RESTART);
    QVERIFY(!(action.sa_flags & (SA_RESETHAND | SA_SIGINFO)));
    for (int number = 1; number < 32; ++number)
        QCOMPARE(sigismember(&action.sa_mask, number), 0);
}

void tst_SignalHandler::emitsFromTheEventLoop()
{
    SignalHandler handler;
    QSignalSpy spy(&handler, &SignalHandler::termSignalReceived);
    ::raise(SIGTERM);
    QCOMPARE(spy.size(), 0);
    QTRY_COMPARE(spy.size(), 1);
    // Once is not enough to be deaf.
    ::raise(SIGTERM);
    QTRY_COMPARE(spy.size(), 2);
}

void tst_SignalHandler::emitsOncePerSignal()
{
    const Handler it;
    QSignalSpy spy(it.handler.get(), &SignalHandler::termSignalReceived);
    QVector<int> emittedBefore;
    connect(it.notifier, &QSocketNotifier::activated, this, [&] { emittedBefore << spy.size(); });
    ::raise(SIGTERM);
    ::raise(SIGTERM);
    QTRY_COMPARE(spy.size(), 2);
    // One byte for each activation. The handler's own slot was connected first.
    QCOMPARE(emittedBefore, QVector<int>({1, 2}));
    QVERIFY(!spy.wait(100));
}

void tst_SignalHandler::emitsInItsOwnThread()
{
    const SignalHandler handler;
    QThread *emitter = nullptr;
    connect(
        &handler, &SignalHandler::termSignalReceived, &handler, [&emitter] { emitter = QThread::currentThread(); },
        Qt::DirectConnection);
    std::thread([] { ::pthread_kill(::pthread_self(), SIGTERM); }).join();
    QTRY_VERIFY(emitter);
    QCOMPARE(emitter, thread());
}

void tst_SignalHandler::swallowsOtherBytes()
{
    const Handler it;
    QSignalSpy spy(it.handler.get(), &SignalHandler::termSignalReceived);
    int activations = 0;
    connect(it.notifier, &QSocketNotifier::activated, this, [&activations] { ++activations; });
    QCOMPARE(::write(it.writeEnd, "\0\2A", 3), ssize_t(3));
    QTRY_COMPARE(activations, 3);
    QCOMPARE(spy.size(), 0);
    QVERIFY(it.notifier->isEnabled());
    QCOMPARE(::write(it.writeEnd, "\1", 1), ssize_t(1));
    QTRY_COMPARE(spy.size(), 1);
}

void tst_SignalHandler::isDeafWhileItEmits()
{
    const Handler it;
    int depth = 0;
    int deepest = 0;
    int emissions = 0;
    connect(it.handler.get(), &SignalHandler::termSignalReceived, this, [&] {
        ++emissions;
        deepest = std::max(deepest, ++depth);
        if (emissions == 1) {
            // Somebody asks the user before the program ends, and a second signal arrives meanwhile.
            QVERIFY(!it.notifier->isEnabled());
            ::raise(SIGTERM);
            QTest::qWait(100);
            QCOMPARE(emissions, 1);
        }
        --depth;
    });
    ::raise(SIGTERM);
    QTRY_COMPARE(emissions, 2);
    QCOMPARE(deepest, 1);
    QVERIFY(it.notifier->isEnabled());
}

void tst_SignalHandler::bearsCallsWithoutPair()
{
    MessageLog log;
    leftover = INT_MAX;
    SignalHandler handler;
    leftover = -1;
    QCOMPARE(log.all(), QStringList(NoPair));
    QSignalSpy spy(&handler, &SignalHandler::termSignalReceived);
    QVERIFY(QMetaObject::invokeMethod(&handler, "signalReceived"));
    QCOMPARE(spy.size(), 0);
    QCOMPARE(log.all(), QStringList(NoPair));
}

void tst_SignalHandler::destroyedInItsOwnSignal()
{
    Handler it;
    bool destroyed = false;
    connect(it.handler.get(), &SignalHandler::termSignalReceived, this, [&] {
        it.handler.reset();
        destroyed = true;
    });
    ::raise(SIGTERM);
    QTRY_VERIFY(destroyed);
    for (const int fd : it.descriptors)
        QCOMPARE(::fcntl(fd, F_GETFD), -1);
}

void tst_SignalHandler::keepsErrno()
{
    auto handler = std::make_unique<SignalHandler>();
    handler.reset(); // from now on the write in the handler fails
    errno = EILSEQ;
    ::raise(SIGTERM);
    QCOMPARE(errno, EILSEQ);
}

void tst_SignalHandler::survivesBurst()
{
    // More than a socket pair holds, while nobody reads.
    SignalHandler handler;
    QSignalSpy spy(&handler, &SignalHandler::termSignalReceived);
    for (int i = 0; i < 10000; ++i)
        ::raise(SIGTERM);
    QTRY_VERIFY(spy.size() > 0);
}

void tst_SignalHandler::withoutPairInstallsNothing()
{
#ifdef __SANITIZE_ADDRESS__
    QSKIP("The sanitizers look at objects through a pipe, for which no descriptor is left here");
#endif
    const std::set<int> before = openDescriptors();
    struct rlimit limit;
    QCOMPARE(::getrlimit(RLIMIT_NOFILE, &limit), 0);
    int lowestFree = 0;
    while (before.count(lowestFree) != 0)
        ++lowestFree;
    const struct rlimit none = {rlim_t(lowestFree), limit.rlim_max};
    QCOMPARE(::setrlimit(RLIMIT_NOFILE, &none), 0);

    MessageLog log;
    auto handler = std::make_unique<SignalHandler>();
    QCOMPARE(::setrlimit(RLIMIT_NOFILE, &limit), 0);
    QCOMPARE(log.warnings(), QStringList(NoPair));
    QCOMPARE(log.all().size(), 1);
    QVERIFY(handler->children().isEmpty());
    QVERIFY(termAction().sa_handler == SIG_DFL);
    handler.reset();
    QCOMPARE(openDescriptors(), before);
}

void tst_SignalHandler::withoutPairClosesNothing()
{
    const int somebodysFile = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    QVERIFY(somebodysFile >= 0);
    MessageLog log;
    {
        leftover = somebodysFile;
        const SignalHandler handler;
        leftover = -1;
        QCOMPARE(log.all(), QStringList(NoPair));
    }
    QVERIFY(::fcntl(somebodysFile, F_GETFD) != -1);
    ::close(somebodysFile);

    // The next one finds nothing of it.
    SignalHandler handler;
    QSignalSpy spy(&handler, &SignalHandler::termSignalReceived);
    ::raise(SIGTERM);
    QTRY_COMPARE(spy.size(), 1);
}

void tst_SignalHandler::withoutHandlerStaysQuiet_data()
{
    QTest::addColumn<int>("result");
    QTest::addColumn<QStringList>("warnings");
    // The kernel's way of refusing goes unnoticed.
    QTest::newRow("negative") << -1 << QStringList();
    QTest::newRow("positive") << 1 << QStringList(NoAction);
}

void tst_SignalHandler::withoutHandlerStaysQuiet()
{
    QFETCH(int, result);
    QFETCH(QStringList, warnings);
    MessageLog log;
    refusal = result;
    const Handler it;
    refusal = 0;
    QCOMPARE(log.warnings(), warnings);
    QCOMPARE(log.all(), warnings);
    QVERIFY(it.notifier);
    QVERIFY(it.notifier->isEnabled());
    QVERIFY(termAction().sa_handler == SIG_DFL);
}

void tst_SignalHandler::closesPairAndStaysHarmless()
{
    const std::set<int> before = openDescriptors();
    Handler it;
    it.handler.reset();
    QCOMPARE(openDescriptors(), before);

    // Whoever has the numbers next gets no byte from a late signal.
    int next[2];
    QCOMPARE(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK, 0, next), 0);
    ::raise(SIGTERM);
    for (const int fd : next) {
        char byte;
        QCOMPARE(::read(fd, &byte, 1), ssize_t(-1));
        QCOMPARE(errno, EAGAIN);
    }
    ::close(next[0]);
    ::close(next[1]);
}

void tst_SignalHandler::canBeMadeAgain()
{
    for (int i = 0; i < 3; ++i) {
        SignalHandler handler;
        QSignalSpy spy(&handler, &SignalHandler::termSignalReceived);
        ::raise(SIGTERM);
        QTRY_COMPARE(spy.size(), 1);
    }
}

QTEST_GUILESS_MAIN(tst_SignalHandler)
#include "tst_signalhandler.moc"
