// SPDX-License-Identifier: BSD-3-Clause
//
// Preloaded into kiv, writes "start: STEP" to standard error for each of what start-up and the end consist of.

#include <QObject>
#include <QString>

#include <cstdio>
#include <cstring>

#include <dlfcn.h>
#include <signal.h>

namespace
{
int signalSockets[2] = {-1, -1};
const void *engineering = nullptr;

void step(const char *name)
{
    std::fprintf(stderr, "start: %s\n", name);
}

void stepAtEnd(void *object, const char *name)
{
    QObject::connect(static_cast<QObject *>(object), &QObject::destroyed, [name] { step(name); });
}

bool isText(const void *string, const char *text)
{
    return *static_cast<const QString *>(string) == QLatin1String(text);
}

using Word = void *;
using Function = Word (*)(Word, Word, Word, Word, Word, Word, Word, Word);
}

// Arguments are words, or references, which are: handed on without knowing how many there are.
#define WORDS Word a, Word b, Word c, Word d, Word e, Word f, Word g, Word h
#define INTERPOSE(function, symbol)                                                                                    \
    extern "C" Q_DECL_EXPORT Word function(WORDS) __asm__(symbol);                                                     \
    Word function([[maybe_unused]] WORDS)
#define NEXT(symbol) reinterpret_cast<Function>(::dlsym(RTLD_NEXT, symbol))(a, b, c, d, e, f, g, h)

#define TRACE(function, symbol, condition, name)                                                                       \
    INTERPOSE(function, symbol)                                                                                        \
    {                                                                                                                  \
        if (condition)                                                                                                 \
            step(name);                                                                                                \
        return NEXT(symbol);                                                                                           \
    }
#define TRACE_OBJECT(function, symbol, made, gone)                                                                     \
    INTERPOSE(function, symbol)                                                                                        \
    {                                                                                                                  \
        step(made);                                                                                                    \
        const Word result = NEXT(symbol);                                                                              \
        stepAtEnd(a, gone);                                                                                            \
        return result;                                                                                                 \
    }

TRACE(kivSetuid, "setuid", true, "privileges")
TRACE(kivAlpha, "_ZN12QQuickWindow21setDefaultAlphaBufferEb", true, "alpha")
TRACE_OBJECT(kivApplication, "_ZN15QGuiApplicationC1ERiPPci", "application", "no application")
TRACE(kivBus, "_ZN15QDBusConnection7connectERK7QStringS2_S2_S2_P7QObjectPKc", isText(e, "shutdown_ind"), "shutdown")
TRACE(kivInstall, "_ZN16QCoreApplication17installTranslatorEP11QTranslator", true,
      a == engineering ? "install engineering" : "install locale")
TRACE_OBJECT(kivView, "_ZN10QQuickViewC1EP7QWindow", "view", "no view")
TRACE(kivName, "_ZN16QCoreApplication18setApplicationNameERK7QString", isText(a, "kiv"), "name")
TRACE(kivOrganization, "_ZN16QCoreApplication19setOrganizationNameERK7QString", isText(a, "org.kestraneos"),
      "organisation")
TRACE(kivDisclaimer, "_ZN11QQmlContext18setContextPropertyERK7QStringRK8QVariant", isText(b, "disclaimerText"),
      "disclaimer")
TRACE(kivTitle, "_ZN7QWindow8setTitleERK7QString", true, "title")
TRACE(kivSource, "_ZN10QQuickView9setSourceERK4QUrl", true, "source")
TRACE(kivShow, "_ZN7QWindow14showFullScreenEv", true, "full screen")
TRACE(kivCamera, "_Z7qputenvPKcRK10QByteArray",
      std::strcmp(static_cast<const char *>(a), "QT_GSTREAMER_CAMERABIN_SRC") == 0, "camera")
TRACE(kivLoop, "_ZN15QGuiApplication4execEv", true, "loop")

INTERPOSE(kivRegister, "_ZN11QQmlPrivate11qmlregisterENS_16RegistrationTypeEPv")
{
    static bool registered = false;
    if (!std::exchange(registered, true))
        step("types");
    return NEXT("_ZN11QQmlPrivate11qmlregisterENS_16RegistrationTypeEPv");
}

INTERPOSE(kivEngineering, "_ZN11QTranslator4loadERK7QStringS2_S2_S2_")
{
    step("load engineering");
    stepAtEnd(a, "no engineering");
    engineering = a;
    return NEXT("_ZN11QTranslator4loadERK7QStringS2_S2_S2_");
}

INTERPOSE(kivLocale, "_ZN11QTranslator4loadERK7QLocaleRK7QStringS5_S5_S5_")
{
    step("load locale");
    stepAtEnd(a, "no locale");
    return NEXT("_ZN11QTranslator4loadERK7QLocaleRK7QStringS5_S5_S5_");
}

INTERPOSE(kivAction, "sigaction")
{
    if (int(reinterpret_cast<qintptr>(a)) == SIGTERM && b) {
        step("signal handler");
        signalSockets[1] = signalSockets[0];
    }
    return NEXT("sigaction");
}

INTERPOSE(kivSocketPair, "socketpair")
{
    const Word result = NEXT("socketpair");
    signalSockets[0] = static_cast<int *>(d)[0];
    return result;
}

INTERPOSE(kivClose, "close")
{
    if (signalSockets[1] >= 0 && int(reinterpret_cast<qintptr>(a)) == signalSockets[1]) {
        signalSockets[1] = -1;
        step("no signal handler");
    }
    return NEXT("close");
}
