// SPDX-License-Identifier: BSD-3-Clause
#include "kestraneapp.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickView>

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
    view->engine()->addImportPath(prefix() + QStringLiteral("/lib/qt5/qml"));
    return view;
}

QUrl KestraneApp::pathTo(const QString &filename)
{
    const QString executable = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    return QUrl::fromLocalFile(prefix() + QStringLiteral("/share/") + executable + QLatin1Char('/') + filename);
}
