// SPDX-License-Identifier: BSD-3-Clause
#include <kestraneapp.h>

#include <QDir>
#include <QGuiApplication>
#include <QQuickView>
#include <QtTest>

#include <memory>

class tst_KestraneApp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void createsApplication();
    void pathToIsBelowTheDataFolder_data();
    void pathToIsBelowTheDataFolder();
    void createsView();
};

void tst_KestraneApp::createsApplication()
{
    // main() has made it.
    QVERIFY(qobject_cast<QGuiApplication *>(QCoreApplication::instance()));
    QCOMPARE(QCoreApplication::arguments().size(), 1);
}

void tst_KestraneApp::pathToIsBelowTheDataFolder_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("page") << QStringLiteral("main.qml");
    QTest::newRow("in a folder") << QStringLiteral("disclaimer/disclaimer");
    QTest::newRow("needs encoding") << QStringLiteral("a #1? b%20.html");
}

void tst_KestraneApp::pathToIsBelowTheDataFolder()
{
    QFETCH(QString, file);
    const QUrl url = KestraneApp::pathTo(file);
    QVERIFY(url.isLocalFile());
    // <prefix>/bin/<name> has its data in <prefix>/share/<name>.
    QDir prefix(QCoreApplication::applicationDirPath());
    QVERIFY(prefix.cdUp());
    QCOMPARE(url.toLocalFile(), prefix.filePath(QStringLiteral("share/tst_kestraneapp/") + file));
}

void tst_KestraneApp::createsView()
{
    const std::unique_ptr<QQuickView> view(KestraneApp::createView());
    QCOMPARE(view->resizeMode(), QQuickView::SizeRootObjectToView);
    QVERIFY(!view->isVisible());
    QVERIFY(view->source().isEmpty());
}

int main(int argc, char **argv)
{
    const std::unique_ptr<QGuiApplication> application(KestraneApp::application(argc, argv));
    tst_KestraneApp test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_kestraneapp.moc"
