// SPDX-License-Identifier: BSD-3-Clause
#include "mediaregistry.h"
#include "networkinformation.h"
#include "pagecache.h"
#include "pagememory.h"
#include "registration.h"
#include "signalhandler.h"

#include <kestraneapp.h>

#include <QDBusConnection>
#include <QDebug>
#include <QFile>
#include <QGuiApplication>
#include <QLocale>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QQuickWindow>
#include <QTranslator>

#include <memory>

namespace
{
const QString CatalogueDirectory = QStringLiteral("/usr/share/translations");
const QString EngineeringCatalogue = QStringLiteral("kiv_eng_en");
// Empty, not null, which would stand for Qt's own: a catalogue of a shorter name is none of English.
const QString NoDelimiters = QLatin1String("");
const QString LocaleCatalogue = QStringLiteral("kiv");
const QString LocaleCataloguePrefix = QStringLiteral("-");

/*! The disclaimer in the user's language, in its bare language, or the default one; empty when there is none. */
QString loadDisclaimer()
{
    const QString base = KestraneApp::pathTo(QStringLiteral("disclaimer/disclaimer")).toLocalFile();
    const QString locale = QLocale().name();
    const QString suffix = QStringLiteral(".html");
    QString name = base + QLatin1Char('-') + locale + suffix;
    if (!QFile::exists(name))
        name = base + QLatin1Char('-') + locale.left(2) + suffix;
    if (!QFile::exists(name))
        name = base + suffix;

    QFile file(name);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        qWarning() << "No disclaimer file found.";
        return QString();
    }
    const QByteArray content = file.readAll();
    return QString::fromUtf8(content.constData(), content.size()); // without the size, only up to the first NUL
}
}

/*! What main() calls once it has given up its privileges. Returns the exit status of the process. */
extern "C" Q_DECL_EXPORT int kivApplicationMain(int argc, char **argv)
{
    usePrecompiledPagesOnly();
    registerKivTypes();
    QQuickWindow::setDefaultAlphaBuffer(true);
    // Qt would keep the shaders of what it draws below the user's home.
    QCoreApplication::setAttribute(Qt::AA_DisableShaderDiskCache);

    // Destroyed in the reverse of this order when the event loop has ended.
    const auto engineering = std::make_unique<QTranslator>(nullptr);
    engineering->load(EngineeringCatalogue, CatalogueDirectory, NoDelimiters);
    const auto localised = std::make_unique<QTranslator>(nullptr);
    localised->load(QLocale(), LocaleCatalogue, LocaleCataloguePrefix, CatalogueDirectory);

    const std::unique_ptr<QGuiApplication> application(KestraneApp::application(argc, argv));
    const auto signalHandler = std::make_unique<SignalHandler>(nullptr);
    QObject::connect(signalHandler.get(), &SignalHandler::termSignalReceived, application.get(),
                     &QCoreApplication::quit);

    QDBusConnection systemBus = QDBusConnection::systemBus();
    systemBus.connect(QStringLiteral("com.nokia.dsme"), QStringLiteral("/com/nokia/dsme/signal"),
                      QStringLiteral("com.nokia.dsme.signal"), QStringLiteral("shutdown_ind"), application.get(),
                      SLOT(quit()));

    // The catalogue installed last is searched first.
    QCoreApplication::installTranslator(engineering.get());
    QCoreApplication::installTranslator(localised.get());

    keepMediaRegistryUnwritten();
    const std::unique_ptr<QQuickView> view(KestraneApp::createView());
    // Queued, because a page may ask to quit while it is being loaded, when no loop runs that could end.
    QObject::connect(view->engine(), &QQmlEngine::quit, application.get(), &QCoreApplication::quit,
                     Qt::QueuedConnection);

    QCoreApplication::setApplicationName(QStringLiteral("kiv"));
    QCoreApplication::setOrganizationName(QStringLiteral("org.kestraneos"));

    view->rootContext()->setContextProperty(QStringLiteral("disclaimerText"), loadDisclaimer());
    view->setTitle(qtTrId("kiv-ap-name"));
    view->setSource(KestraneApp::pathTo(QStringLiteral("main.qml")));
    const auto memory = std::make_unique<PageMemory>(view.get());
    const auto networkInformation = std::make_unique<NetworkInformation>(view->rootObject());
    view->showFullScreen();

    // For the camera pipelines that pages create from now on.
    qputenv("QT_GSTREAMER_CAMERABIN_SRC", "droidcamsrc");

    return QGuiApplication::exec();
}
