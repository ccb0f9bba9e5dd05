// SPDX-License-Identifier: BSD-3-Clause
//
// Runs the tests below pages/ against the pages with pretended hardware.
#include "fakes.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QTranslator>
#include <QtQuickTest>

class Setup : public QObject
{
    Q_OBJECT

public:
    Setup() { registerFakeTypes(); }

public Q_SLOTS:
    void applicationAvailable()
    {
        QVERIFY(m_catalogue.load(QStringLiteral("kiv_eng_en"), QStringLiteral(KIV_CATALOGUES)));
        QCoreApplication::installTranslator(&m_catalogue);
    }

    void qmlEngineAvailable(QQmlEngine *engine)
    {
        addFakeModules(engine);
        engine->rootContext()->setContextProperty(QStringLiteral("disclaimerText"), QStringLiteral("Take care."));
    }

private:
    QTranslator m_catalogue;
};

QUICK_TEST_MAIN_WITH_SETUP(pages, Setup)

#include "tst_pages.moc"
