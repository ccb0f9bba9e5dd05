// SPDX-License-Identifier: BSD-3-Clause
#ifndef KESTRANEAPP_H
#define KESTRANEAPP_H

#include <QString>
#include <QUrl>

class QGuiApplication;
class QQuickView;

/*!
 * What Kiv uses of the phone's application-launcher library, for systems without it. Files are found relative to the
 * prefix that the running executable is installed under, so that a staged or relocated tree works.
 */
namespace KestraneApp
{
/*! Creates the application object; the caller owns it. argc is kept by reference and must outlive it. */
QGuiApplication *application(int &argc, char **argv);

/*! Creates a view whose root item follows the window's size and whose engine knows the prefix's QML modules.
 *  The caller owns it. */
QQuickView *createView();

/*! The local-file URL of a file below the data directory, <prefix>/share/<executable>. It need not exist. */
QUrl pathTo(const QString &filename);
}

#endif
