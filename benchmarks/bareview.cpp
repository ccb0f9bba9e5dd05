// SPDX-License-Identifier: BSD-3-Clause
//
// bareview FILE: the least program that shows a page, linked to the modules that Kiv is linked to.

#include <QGuiApplication>
#include <QQuickView>

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    QQuickView view;
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.setSource(QUrl::fromLocalFile(QString::fromLocal8Bit(argv[1])));
    view.showFullScreen();
    return QGuiApplication::exec();
}
