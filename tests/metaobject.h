// SPDX-License-Identifier: BSD-3-Clause
#ifndef METAOBJECT_H
#define METAOBJECT_H

#include <QMetaEnum>
#include <QMetaMethod>
#include <QMetaObject>
#include <QMetaProperty>
#include <QStringList>

/*!
 * What a class itself adds to its base's meta-object, in order, one line each: "enum Mode: Off=0, On=1",
 * "property bool ready notify readyChanged", "signal readyChanged()", "private slot refresh(int)",
 * "invokable bool check(QString)". Qt's own deleteLater and objectName are its base's and not listed.
 */
inline QStringList ownInterface(const QMetaObject &meta)
{
    QStringList lines;
    for (int i = meta.enumeratorOffset(); i < meta.enumeratorCount(); ++i) {
        const QMetaEnum enumerator = meta.enumerator(i);
        QStringList keys;
        for (int key = 0; key < enumerator.keyCount(); ++key)
            keys << QStringLiteral("%1=%2").arg(QLatin1String(enumerator.key(key))).arg(enumerator.value(key));
        lines << QStringLiteral("enum %1: %2").arg(QLatin1String(enumerator.name()), keys.join(QStringLiteral(", ")));
    }
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        QString line =
            QStringLiteral("property %1 %2").arg(QLatin1String(property.typeName()), QLatin1String(property.name()));
        if (!property.isReadable())
            line += QStringLiteral(" unreadable");
        if (property.isWritable())
            line += QStringLiteral(" write");
        if (property.isResettable())
            line += QStringLiteral(" reset");
        if (property.isConstant())
            line += QStringLiteral(" constant");
        if (property.hasNotifySignal())
            line += QStringLiteral(" notify ") + QLatin1String(property.notifySignal().name());
        lines << line;
    }
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        QString line;
        if (method.methodType() == QMetaMethod::Signal) {
            line = QStringLiteral("signal ");
        } else {
            if (method.access() == QMetaMethod::Private)
                line = QStringLiteral("private ");
            else if (method.access() == QMetaMethod::Protected)
                line = QStringLiteral("protected ");
            line += method.methodType() == QMetaMethod::Slot ? QStringLiteral("slot ") : QStringLiteral("invokable ");
        }
        if (method.returnType() != QMetaType::Void)
            line += QLatin1String(method.typeName()) + QLatin1Char(' ');
        lines << line + QLatin1String(method.methodSignature());
    }
    return lines;
}

#endif
