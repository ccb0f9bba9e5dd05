// SPDX-License-Identifier: BSD-3-Clause
#include "networkinformation.h"

#include <QMetaMethod>
#include <QMetaObject>

namespace
{
const char Made[] = "networkInformationMade(QObject*)";

// One signal after the other: QNetworkInfo does not understand that all of them are meant.
void separate(const QObject *source, const QObject *element)
{
    const QMetaObject *const meta = source->metaObject();
    for (int i = 0; i < meta->methodCount(); ++i) {
        if (meta->method(i).methodType() == QMetaMethod::Signal)
            QObject::disconnect(source, meta->method(i), element, QMetaMethod());
    }
}
}

NetworkInformation::NetworkInformation(const QObject *root, QObject *parent) : QObject(parent)
{
    if (root && root->metaObject()->indexOfSignal(Made) >= 0)
        connect(root, SIGNAL(networkInformationMade(QObject *)), this, SLOT(watch(QObject *)));
}

void NetworkInformation::watch(QObject *element)
{
    if (!element)
        return;
    for (const QObject *const child : element->children()) {
        if (child->inherits("QNetworkInfo"))
            connect(element, &QObject::destroyed, child, [=] { separate(child, element); });
    }
}
