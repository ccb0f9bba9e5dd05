// SPDX-License-Identifier: BSD-3-Clause
//
// Draws one screen of the installed pages, with the real types or pretended ones, and writes it to an image.
#include "fakes.h"
#include "registration.h"

#include <QCommandLineParser>
#include <QFile>
#include <QGuiApplication>
#include <QLocale>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExpression>
#include <QQuickItem>
#include <QQuickItemGrabResult>
#include <QQuickView>
#include <QTextStream>
#include <QTimer>
#include <QTranslator>

namespace
{
QString textOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}
}

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);

    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({
        {QStringLiteral("fake"), QStringLiteral("Use the pretended types.")},
        {QStringLiteral("run"),
         QStringLiteral("Script to run when the page is there; \"phone\" is what the "
                        "pretended types report, \"shell\" the root item."),
         QStringLiteral("script")},
        {QStringLiteral("page"), QStringLiteral("Screen or test to show."), QStringLiteral("name")},
        {QStringLiteral("size"), QStringLiteral("Size of the window."), QStringLiteral("WxH"),
         QStringLiteral("360x640")},
        {QStringLiteral("dark"), QStringLiteral("Dark colours.")},
        {QStringLiteral("locale"), QStringLiteral("Language of the texts."), QStringLiteral("name"),
         QStringLiteral("en")},
        {QStringLiteral("wait"), QStringLiteral("Milliseconds from the first frame to the image."),
         QStringLiteral("ms"), QStringLiteral("1500")},
    });
    parser.addPositionalArgument(QStringLiteral("prefix"), QStringLiteral("Where the pages are installed."));
    parser.addPositionalArgument(QStringLiteral("image"), QStringLiteral("The image to write."));
    parser.process(application);
    if (parser.positionalArguments().size() != 2)
        parser.showHelp(2);
    const QString share = parser.positionalArguments().at(0) + QStringLiteral("/share");
    const QString image = parser.positionalArguments().at(1);
    const QStringList size = parser.value(QStringLiteral("size")).split(QLatin1Char('x'));

    const QLocale locale(parser.value(QStringLiteral("locale")));
    QLocale::setDefault(locale);
    QTranslator engineering;
    QTranslator localised;
    if (!engineering.load(QStringLiteral("kiv_eng_en"), share + QStringLiteral("/translations")))
        qWarning() << "No engineering catalogue";
    if (localised.load(locale, QStringLiteral("kiv"), QStringLiteral("-"), share + QStringLiteral("/translations"))) {
        QCoreApplication::installTranslator(&engineering);
        QCoreApplication::installTranslator(&localised);
    } else {
        QCoreApplication::installTranslator(&engineering);
    }

    const int phone = parser.isSet(QStringLiteral("fake")) ? registerFakeTypes() : -1;
    if (phone < 0)
        registerKivTypes();

    QQuickView view;
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.resize(size.value(0).toInt(), size.value(1).toInt());
    const QString disclaimer = share + QStringLiteral("/kiv/disclaimer/disclaimer");
    QString text = textOf(disclaimer + QLatin1Char('-') + locale.name().left(2) + QStringLiteral(".html"));
    if (text.isEmpty())
        text = textOf(disclaimer + QStringLiteral(".html"));
    view.rootContext()->setContextProperty(QStringLiteral("disclaimerText"), text);
    QObject::connect(view.engine(), &QQmlEngine::quit, &application, &QCoreApplication::quit);
    view.setInitialProperties({{QStringLiteral("startPage"), parser.value(QStringLiteral("page"))},
                               {QStringLiteral("dark"), parser.isSet(QStringLiteral("dark"))}});
    if (phone >= 0) {
        addFakeModules(view.engine());
        view.rootContext()->setContextProperty(QStringLiteral("phone"),
                                               view.engine()->singletonInstance<QObject *>(phone));
    }
    view.setSource(QUrl::fromLocalFile(share + QStringLiteral("/kiv/main.qml")));
    view.show();
    if (parser.isSet(QStringLiteral("run"))) {
        view.rootContext()->setContextProperty(QStringLiteral("shell"), view.rootObject());
        QTimer::singleShot(300, &view, [&] {
            QQmlExpression script(view.rootContext(), view.rootObject(), parser.value(QStringLiteral("run")));
            script.evaluate();
            if (script.hasError())
                qWarning() << script.error();
        });
    }

    // The offscreen platform cannot give its window's content away, the scene graph can.
    QSharedPointer<QQuickItemGrabResult> result;
    int status = 1;
    QTimer::singleShot(parser.value(QStringLiteral("wait")).toInt(), &application, [&] {
        result = view.rootObject() ? view.rootObject()->grabToImage() : nullptr;
        if (!result)
            QCoreApplication::exit(1);
        else
            QObject::connect(result.data(), &QQuickItemGrabResult::ready, &application, [&] {
                status = result->image().save(image) ? 0 : 1;
                QCoreApplication::quit();
            });
    });
    QGuiApplication::exec();
    return status;
}
