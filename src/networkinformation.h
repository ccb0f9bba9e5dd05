// SPDX-License-Identifier: BSD-3-Clause
#ifndef NETWORKINFORMATION_H
#define NETWORKINFORMATION_H

#include <QObject>

/*!
 * Lets the NetworkInfo elements of Qt's module QtSystemInfo end without standing still for ever. Such an element hears
 * from a QNetworkInfo of its own. When it is destroyed, Qt holds one of its pooled locks while it tells that
 * QNetworkInfo that nobody hears it any more, and the QNetworkInfo then asks for its own lock: once in a hundred times
 * that is the same one. Here the two are separated before, when no lock is held.
 *
 * The interface says by a signal networkInformationMade(QtObject) of its root object that there is a new element; one
 * without that signal goes without.
 */
class NetworkInformation : public QObject
{
    Q_OBJECT

public:
    /*! root may be null. */
    explicit NetworkInformation(const QObject *root, QObject *parent = nullptr);

public Q_SLOTS:
    /*! Looks after the element until it is destroyed. */
    void watch(QObject *element);
};

#endif
