// SPDX-License-Identifier: BSD-3-Clause
#include "files.h"
#include "pagememory.h"

#include <QQuickItem>
#include <QQuickView>
#include <QtTest>

#include <memory>

namespace
{
const QString Folder = QStringLiteral("/run/kiv/interface");
const QString Page = Folder + QStringLiteral("/Page.qml");
constexpr int Patience = 20000;

QByteArray page(int number)
{
    return "import QtQuick 2.15\nItem { property int number: " + QByteArray::number(number) + " }\n";
}

QByteArray interface(const QByteArray &signal)
{
    return "import QtQuick 2.15\n"
           "Item {\n"
           "    "
        + signal
        + "\n"
          "    property var held: ({})\n"
          "    readonly property int number: loader.item ? loader.item.number : -1\n"
          "    function hold() { held.page = Qt.createComponent('Page.qml'); }\n"
          "    function open() { loader.source = 'Page.qml'; }\n"
          "    function close() { loader.source = ''; held.page = null; if (root.pageClosed) pageClosed(); }\n"
          "    id: root\n"
          "    Loader { id: loader }\n"
          "}\n";
}
}

class tst_PageMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void closedPageIsLetGo();
    void openPageStays();
    void otherInterfacesKeepTheirs();
    void viewWithoutInterface();

private:
    void start(const QByteArray &signal);
    void call(const char *function);
    int number() const { return m_view->rootObject()->property("number").toInt(); }

    std::unique_ptr<QQuickView> m_view;
    std::unique_ptr<PageMemory> m_memory;
};

void tst_PageMemory::init()
{
    m_memory.reset();
    m_view = std::make_unique<QQuickView>();
}

void tst_PageMemory::start(const QByteArray &signal)
{
    writeFile(Page, page(1));
    writeFile(Folder + QStringLiteral("/main.qml"), interface(signal));
    m_view->setSource(QUrl::fromLocalFile(Folder + QStringLiteral("/main.qml")));
    QVERIFY(m_view->rootObject());
    m_memory = std::make_unique<PageMemory>(m_view.get());
}

void tst_PageMemory::call(const char *function)
{
    QVERIFY(QMetaObject::invokeMethod(m_view->rootObject(), function));
}

// What the engine still has it does not read again.
void tst_PageMemory::closedPageIsLetGo()
{
    start("signal pageClosed()");
    call("hold");
    call("open");
    QCOMPARE(number(), 1);
    writeFile(Page, page(2));
    call("close");
    call("open");
    QCOMPARE(number(), 1);

    const auto reopened = [this] {
        call("close");
        QTest::qWait(100);
        call("open");
        return number();
    };
    QTRY_COMPARE_WITH_TIMEOUT(reopened(), 2, Patience);
}

void tst_PageMemory::openPageStays()
{
    start("signal pageClosed()");
    call("open");
    const QPointer<QObject> item = m_view->rootObject()->findChild<QObject *>();
    QVERIFY(QMetaObject::invokeMethod(m_view->rootObject(), "pageClosed"));
    QTest::qWait(2500);
    QCOMPARE(number(), 1);
    QVERIFY(item);
}

void tst_PageMemory::otherInterfacesKeepTheirs()
{
    start("");
    call("open");
    writeFile(Page, page(2));
    call("close");
    QTest::qWait(2500);
    call("open");
    QCOMPARE(number(), 1);
}

void tst_PageMemory::viewWithoutInterface()
{
    m_memory = std::make_unique<PageMemory>(m_view.get());
    QTest::qWait(10);
    QVERIFY(!m_view->rootObject());
}

QTEST_MAIN(tst_PageMemory)
#include "tst_pagememory.moc"
