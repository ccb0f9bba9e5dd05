// SPDX-License-Identifier: BSD-3-Clause
#ifndef KIVUTILS_H
#define KIVUTILS_H

#include <QObject>
#include <QUrl>

/*! Odd jobs of the test pages. */
class KivUtils : public QObject
{
    Q_OBJECT

public:
    explicit KivUtils(QObject *parent = nullptr);

    /*! Removes a local file. False when it could not be removed or the URL does not name a local file. */
    Q_INVOKABLE bool removeFile(QUrl url); // NOLINT(performance-unnecessary-value-param): part of the meta-object
};

#endif
