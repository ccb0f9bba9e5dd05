// SPDX-License-Identifier: BSD-3-Clause
#include "kestraneapp.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickView>
#include <QScreen>

namespace
{
QString prefix()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/.."));
}
}

QGuiApplication *KestraneApp::application(int &argc, char **argv)
{
    return new QGuiApplication(argc, argv);
}

QQuickView *KestraneApp::createView()
{
    const auto view = new QQuickView;
    view->setResizeMode(QQuickView::SizeRootObjectToView);
    // Where no window manager runs, nobody else makes a full-screen window as large as the screen.
    view->setGeometry(view->screen()->geometry());
    view->engine()->addImportPath(prefix() + QStringLiteral("/lib/qt5/qml"));
    return view;
}

QUrl KestraneApp::pathTo(const QString &filename)
{
    const QString executable = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    return QUrl::fromLocalFile(prefix() + QStringLiteral("/share/") + executable + QLatin1Char('/') + filename);
}
