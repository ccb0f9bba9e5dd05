// SPDX-License-Identifier: BSD-3-Clause
//
// On the simulated phone, whose telephony service Qt's NetworkInfo asks too.
#include "networkinformation.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QScopedPointer>
#include <QtTest>

#include <unistd.h>

namespace
{
// An element that was not looked after stood still within the first hundred.
constexpr int Elements = 200;
constexpr unsigned Patience = 120; // seconds, then SIGALRM ends the test
const char Interface[] = "import QtQml 2.15\n"
                         "import QtSystemInfo 5.0\n"
                         "QtObject {\n"
                         "    signal networkInformationMade(QtObject information)\n"
                         "    property Component element: NetworkInfo {\n"
                         "        function ask() {\n"
                         "            networkInterfaceCount(NetworkInfo.WlanMode)\n"
                         "            networkStatus(NetworkInfo.WlanMode, 0)\n"
                         "            networkName(NetworkInfo.WlanMode, 0)\n"
                         "            networkSignalStrength(NetworkInfo.WlanMode, 0)\n"
                         "            networkInterfaceCount(NetworkInfo.GsmMode)\n"
                         "            networkStatus(NetworkInfo.GsmMode, 0)\n"
                         "            networkName(NetworkInfo.GsmMode, 0)\n"
                         "            networkSignalStrength(NetworkInfo.GsmMode, 0)\n"
                         "        }\n"
                         "    }\n"
                         "    function make() {\n"
                         "        var made = element.createObject(null)\n"
                         "        made.ask()\n"
                         "        networkInformationMade(made)\n"
                         "        return made\n"
                         "    }\n"
                         "}\n";
}

class tst_NetworkInformation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void elementsEnd();
    void elementsEndWithTheEngine();
    void interfaceWithoutElements();

private:
    static QObject *make(QObject *root)
    {
        QVariant made;
        QMetaObject::invokeMethod(root, "make", Q_RETURN_ARG(QVariant, made));
        return made.value<QObject *>();
    }
};

void tst_NetworkInformation::elementsEnd()
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(Interface, QUrl());
    const QScopedPointer<QObject> root(component.create());
    QVERIFY2(root, qPrintable(component.errorString()));
    const NetworkInformation information(root.data());
    ::alarm(Patience);
    // Kept for a while, so that they lie at different places.
    QList<QObject *> kept;
    for (int i = 0; i < Elements; ++i) {
        QObject *const element = make(root.data());
        QVERIFY(element);
        kept.append(element);
        if (kept.size() == 20) {
            qDeleteAll(kept);
            kept.clear();
        }
    }
    ::alarm(0);
}

void tst_NetworkInformation::elementsEndWithTheEngine()
{
    ::alarm(Patience);
    for (int i = 0; i < 20; ++i) {
        QScopedPointer<NetworkInformation> information;
        QQmlEngine engine;
        QQmlComponent component(&engine);
        component.setData(Interface, QUrl());
        QObject *const root = component.create();
        QVERIFY(root);
        root->setParent(&engine);
        information.reset(new NetworkInformation(root));
        for (int j = 0; j < 10; ++j)
            QVERIFY(make(root));
    }
    ::alarm(0);
}

void tst_NetworkInformation::interfaceWithoutElements()
{
    QObject root;
    NetworkInformation information(&root);
    information.watch(nullptr);
    information.watch(&root);
    const NetworkInformation none(nullptr);
}

QTEST_GUILESS_MAIN(tst_NetworkInformation)

#include "tst_networkinformation.moc"
