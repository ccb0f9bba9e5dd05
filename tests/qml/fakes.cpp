// SPDX-License-Identifier: BSD-3-Clause
#include "fakes.h"

#include "factoryutils.h"
#include "kivutils.h"

#include <QDir>
#include <QFile>
#include <QtQml>

int registerFakeTypes(const char *module)
{
    const QDir directory(QStringLiteral(KIV_FAKE_TYPES));
    const int phone = qmlRegisterSingletonType(QUrl::fromLocalFile(directory.filePath(QStringLiteral("Phone.qml"))),
                                               "KivFake", 1, 0, "Phone");
    const QStringList files = directory.entryList({QStringLiteral("*.qml")}, QDir::Files);
    for (const QString &name : files) {
        if (name == QLatin1String("Phone.qml"))
            continue;
        QFile file(directory.filePath(name));
        const QUrl url = QUrl::fromLocalFile(file.fileName());
        const QByteArray type = QFileInfo(name).baseName().toLatin1();
        if (file.open(QIODevice::ReadOnly) && file.readAll().contains("pragma Singleton"))
            qmlRegisterSingletonType(url, module, 1, 0, type.constData());
        else
            qmlRegisterType(url, module, 1, 0, type.constData());
    }
    // Properties that begin with a capital letter cannot be written in QML; these two have no hardware to pretend.
    qmlRegisterType<KivUtils>(module, 1, 0, "KivUtils");
    qmlRegisterSingletonType<FactoryUtils>(
        module, 1, 0, "FactoryUtils", [](QQmlEngine *, QJSEngine *) -> QObject * { return new FactoryUtils(nullptr); });
    return phone;
}

void addFakeModules(QQmlEngine *engine)
{
    engine->addImportPath(QStringLiteral(KIV_FAKE_MODULES));
}
