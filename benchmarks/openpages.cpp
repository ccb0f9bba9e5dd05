// SPDX-License-Identifier: BSD-3-Clause
//
// Opens every page of the installed interface, one after the other, with the real types, and prints what that costs:
// the GUI thread's time for opening it, the memory that a whole factory sequence leaves behind, and the time that a
// page takes while nothing happens. benchmarks/run starts it on the simulated phone.
//
// A call that blocks waits; what the thread computes is what counts here.
#include "networkinformation.h"
#include "pagememory.h"
#include "registration.h"

#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QRegularExpression>
#include <QTimer>
#include <QTranslator>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <malloc.h>
#include <memory>
#include <sys/resource.h>

namespace
{
const QString Pages = QStringLiteral("/usr/share/kiv");
constexpr int OpenTimeout = 60000;
constexpr double OpenLimit = 100;
constexpr double IdleLimit = 2;
constexpr double MemoryLimit = 1.05;
constexpr int SettleTime = 2000;
constexpr int IdleTime = 4000;
/*! After so many pages what all of them share has been loaded. */
constexpr int FirstPages = 5;

double threadTime()
{
    timespec time;
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return time.tv_sec * 1e3 + time.tv_nsec / 1e6;
}

/*! Of all threads and of children that have ended, in milliseconds. */
double processTime()
{
    double total = 0;
    for (const int who : {RUSAGE_SELF, RUSAGE_CHILDREN}) {
        rusage usage;
        ::getrusage(who, &usage);
        for (const timeval &time : {usage.ru_utime, usage.ru_stime})
            total += time.tv_sec * 1e3 + time.tv_usec / 1e3;
    }
    return total;
}

/*! Resident set size in KiB, when everything that can be given back has been. */
double memory(QQmlEngine *engine)
{
    engine->collectGarbage();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ::malloc_trim(0);
    QFile file(QStringLiteral("/proc/self/smaps_rollup"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QRegularExpressionMatch match =
        QRegularExpression(QStringLiteral("Rss: +(\\d+)")).match(QString::fromLatin1(file.readAll()));
    return match.captured(1).toDouble();
}

void wait(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

class Shell
{
public:
    explicit Shell(QQuickView *view) : m_view(view) { }

    void show(const QString &name)
    {
        QObject *const root = m_view->rootObject();
        root->setProperty("startPage", name);
        QMetaObject::invokeMethod(root, "begin");
    }

    QObject *page() const
    {
        const auto screen = m_view->rootObject()->property("screen").value<QObject *>();
        return screen ? screen->property("page").value<QObject *>() : nullptr;
    }

    bool isWorking() const
    {
        const auto working = m_view->rootObject()->findChild<QQuickItem *>(QStringLiteral("working"));
        return working && working->isVisible();
    }

    /*! The thread's milliseconds from the tap to the frame that shows the open page; negative when it does not open. */
    double open(const QString &name)
    {
        show(QStringLiteral("home"));
        wait(200);
        QElapsedTimer clock;
        clock.start();
        const double begin = threadTime();
        show(name);
        const auto isOpen = [this] { return page() && page()->property("isOpen").toBool() && !isWorking(); };
        while (!isOpen()) {
            if (clock.elapsed() > OpenTimeout)
                return -1;
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        int frames = 0;
        const auto counter = QObject::connect(m_view, &QQuickWindow::frameSwapped, m_view, [&frames] { ++frames; });
        m_view->update();
        while (frames == 0 && clock.elapsed() < OpenTimeout)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QObject::disconnect(counter);
        return threadTime() - begin;
    }

private:
    QQuickView *const m_view;
};

/*! Names of the tests that have pages, in their order. */
QStringList tests()
{
    QFile file(Pages + QStringLiteral("/flow/TestTable.js"));
    QStringList names;
    if (!file.open(QIODevice::ReadOnly))
        return names;
    static const QRegularExpression row(QStringLiteral("\\{ name: \"(\\w+)\"[^}]*page: \"(\\w+\\.qml)\""));
    auto matches = row.globalMatch(QString::fromUtf8(file.readAll()));
    while (matches.hasNext())
        names << matches.next().captured(1);
    return names;
}

struct Cost
{
    QString name;
    double value;
};

/*! The dearest ones, and whether all of them are within the limit. */
void report(const char *title, const char *unit, QVector<Cost> costs, double limit)
{
    std::sort(costs.begin(), costs.end(), [](const Cost &a, const Cost &b) { return a.value > b.value; });
    const int over =
        int(std::count_if(costs.cbegin(), costs.cend(), [limit](const Cost &c) { return c.value > limit; }));
    std::printf("%s, %d pages (at most %.0f %s), %d over the limit:\n", title, costs.size(), limit, unit, over);
    for (int i = 0; i < costs.size() && (i < 5 || costs.at(i).value > limit); ++i)
        std::printf("    %8.2f %s  %s\n", costs.at(i).value, unit, qPrintable(costs.at(i).name));
    std::fflush(stdout);
}

void reportMemory(const char *title, double subject, double base)
{
    std::printf("memory after %s:\n    %8.0f KiB, %8.0f KiB, ratio %.3f (at most %.2f)\n", title, subject, base,
                subject / base, MemoryLimit);
    std::fflush(stdout);
}
}

int main(int argc, char **argv)
{
    registerKivTypes();
    QGuiApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    QTranslator catalogue;
    if (catalogue.load(QStringLiteral("kiv_eng_en"), QStringLiteral("/usr/share/translations")))
        QCoreApplication::installTranslator(&catalogue);

    QQuickView view;
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.resize(540, 960);
    view.rootContext()->setContextProperty(QStringLiteral("disclaimerText"), QString());
    view.setInitialProperties({{QStringLiteral("startPage"), QStringLiteral("home")}});
    view.setSource(QUrl::fromLocalFile(Pages + QStringLiteral("/main.qml")));
    view.show();
    if (view.status() != QQuickView::Ready)
        return 1;
    const PageMemory keeper(&view);
    const NetworkInformation networkInformation(view.rootObject());
    wait(1000);

    Shell shell(&view);
    const QStringList names = tests();
    const int last = names.indexOf(QStringLiteral("VerificationUsbOtg"));
    const auto rest = [&] {
        shell.show(QStringLiteral("home"));
        wait(1500);
        return memory(view.engine());
    };
    // A sequence begins with its list: what its pages need is loaded behind it.
    shell.show(QStringLiteral("list"));
    wait(2000);
    // The receiver begins with the sequence, too.
    QQmlComponent satellites(view.engine(), QUrl::fromLocalFile(Pages + QStringLiteral("/flow/Satellites.qml")));
    const std::unique_ptr<QObject> receiver(satellites.create());
    QVector<Cost> opening;
    double first = 0;
    for (int i = 0; i < names.size(); ++i) {
        const double cost = shell.open(names.at(i));
        if (cost < 0)
            std::printf("%s does not open\n", qPrintable(names.at(i)));
        opening << Cost{names.at(i), cost};
        wait(300);
        if (i + 1 == FirstPages)
            first = rest();
        if (i == last)
            break;
    }
    const double whole = rest();
    for (int i = last + 1; i < names.size(); ++i) {
        opening << Cost{names.at(i), shell.open(names.at(i))};
        wait(300);
    }
    const double before = rest();
    for (int i = 0; i <= last; ++i) {
        shell.open(names.at(i));
        wait(300);
    }
    const double again = rest();
    report("opening a page, time of the GUI thread", "ms", opening, OpenLimit);
    // What the first use of sound, sensors and positions loads stays loaded; only what grows again is lost.
    reportMemory("a factory sequence, against its first five pages", whole, first);
    reportMemory("a second factory sequence, against what was before it", again, before);

    QVector<Cost> idle;
    for (const QString &name : names) {
        if (arguments.contains(QStringLiteral("--quick")) && names.indexOf(name) % 5 != 0)
            continue;
        shell.open(name);
        wait(SettleTime);
        // A page that has decided makes room for the next one by itself.
        const QPointer<QObject> page = shell.page();
        if (!page || !page->property("verdict").toString().isEmpty())
            continue;
        const double begin = processTime();
        QElapsedTimer clock;
        clock.start();
        wait(IdleTime);
        if (page && page == shell.page())
            idle << Cost{name, 100 * (processTime() - begin) / clock.elapsed()};
    }
    report("a page on which nothing happens, share of a processor", "%", idle, IdleLimit);
    return 0;
}
