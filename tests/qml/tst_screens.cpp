// SPDX-License-Identifier: BSD-3-Clause
//
// Draws every screen in every language, in several sizes and both variants, and looks for what a user would complain
// about: an empty screen, texts that are cut off, buttons too small for a finger.
#include "fakes.h"

#include <QDir>
#include <QFontMetricsF>
#include <QLocale>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickItemGrabResult>
#include <QQuickView>
#include <QSet>
#include <QTranslator>
#include <QtTest>

namespace
{
const QStringList Screens{QStringLiteral("disclaimer"), QStringLiteral("home"), QStringLiteral("settings"),
                          QStringLiteral("list"), QStringLiteral("summary")};
const QString Pages = QStringLiteral(KIV_PAGES);

int coloursOf(const QImage &image)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 2) {
        for (int x = 0; x < image.width(); x += 2)
            colours.insert(image.pixel(x, y));
    }
    return colours.size();
}

bool inheritsFrom(const QQuickItem *item, const char *name)
{
    return item->inherits(name);
}

const QQuickItem *ancestor(const QQuickItem *item, const char *name)
{
    for (const QQuickItem *parent = item->parentItem(); parent; parent = parent->parentItem()) {
        if (inheritsFrom(parent, name))
            return parent;
    }
    return nullptr;
}

QRectF placeIn(const QQuickItem *item, const QQuickItem *root)
{
    return item->mapRectToItem(root, QRectF(0, 0, item->width(), item->height()));
}

/*! What is wrong with the item and what is in it. */
void findFaults(const QQuickItem *item, const QQuickItem *root, qreal unit, QStringList *faults)
{
    if (!item->isVisible() || item->opacity() == 0)
        return;
    const QRectF place = placeIn(item, root);
    const bool scrolls = ancestor(item, "QQuickFlickable") != nullptr;

    if (inheritsFrom(item, "QQuickText") && !item->property("text").toString().isEmpty()) {
        const QString text = item->property("text").toString().left(40);
        if (item->property("truncated").toBool())
            *faults << QStringLiteral("cut short: %1").arg(text);
        if (item->property("contentWidth").toReal() > item->width() + 1)
            *faults << QStringLiteral("wider than its place: %1").arg(text);
        if (item->property("contentHeight").toReal() > item->height() + 1)
            *faults << QStringLiteral("higher than its place: %1").arg(text);
        if (place.left() < -1 || place.right() > root->width() + 1
            || (!scrolls && (place.top() < -1 || place.bottom() > root->height() + 1)))
            *faults << QStringLiteral("outside the window: %1").arg(text);
        const QQuickItem *const button = ancestor(item, "QQuickAbstractButton");
        if (button && !placeIn(button, root).adjusted(-1, -1, 1, 1).contains(place))
            *faults << QStringLiteral("outside its button: %1").arg(text);
        // A word that had to be broken in the middle: no line is as wide as it.
        const QFontMetricsF metrics(item->property("font").value<QFont>());
        const QStringList words =
            item->property("text").toString().split(QRegularExpression(QStringLiteral("[\\s-]+")));
        for (const QString &word : words) {
            if (item->property("textFormat").toInt() == Qt::PlainText
                && metrics.horizontalAdvance(word) > item->width() + 1 && !word.contains(QLatin1Char('/'))
                && !word.contains(QLatin1Char('{')))
                *faults << QStringLiteral("broken within a word: %1").arg(text);
        }
    }
    if (inheritsFrom(item, "QQuickAbstractButton") && item->isEnabled()
        && (item->width() < 9 * unit - 1 || item->height() < 9 * unit - 1))
        *faults << QStringLiteral("too small for a finger: %1").arg(item->property("text").toString());

    for (const QQuickItem *child : item->childItems())
        findFaults(child, root, unit, faults);
}
}

class tst_Screens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void looksRight_data();
    void looksRight();

private:
    QStringList testsWithPages() const;
    void look(const QString &page, bool hardware, QQuickView *view);

    int m_phone = -1;
};

void tst_Screens::initTestCase()
{
    m_phone = registerFakeTypes();
}

QStringList tst_Screens::testsWithPages() const
{
    QStringList names;
    const QStringList files = QDir(Pages + QStringLiteral("/pages")).entryList({QStringLiteral("*.qml")});
    QFile table(Pages + QStringLiteral("/flow/TestTable.js"));
    if (!table.open(QIODevice::ReadOnly))
        return names;
    const QString rows = QString::fromUtf8(table.readAll());
    for (const QString &file : files) {
        if (rows.contains(QStringLiteral("page: \"%1\"").arg(file)))
            names << file.chopped(4);
    }
    return names;
}

void tst_Screens::looksRight_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("dark");

    QStringList locales{QStringLiteral("en")};
    const QStringList catalogues = QDir(QStringLiteral(KIV_CATALOGUES)).entryList({QStringLiteral("kiv-*.qm")});
    for (const QString &name : catalogues)
        locales << name.mid(4).chopped(3);
    bool dark = false;
    for (const QString &locale : qAsConst(locales)) {
        for (const QSize &size : {QSize(360, 640), QSize(540, 960), QSize(1080, 1920)}) {
            QTest::addRow("%s %dx%d%s", qPrintable(locale), size.width(), size.height(), dark ? " dark" : "")
                << locale << size << dark;
            dark = !dark;
        }
    }
}

void tst_Screens::look(const QString &page, bool hardware, QQuickView *view)
{
    QFETCH(QSize, size);
    QFETCH(bool, dark);

    view->setResizeMode(QQuickView::SizeRootObjectToView);
    view->resize(size);
    view->rootContext()->setContextProperty(QStringLiteral("disclaimerText"), QStringLiteral("Take care."));
    view->setInitialProperties({{QStringLiteral("startPage"), page}, {QStringLiteral("dark"), dark}});
    QObject *const phone = view->engine()->singletonInstance<QObject *>(m_phone);
    QVERIFY(phone);
    if (!hardware)
        QVERIFY(QMetaObject::invokeMethod(phone, "removeEverything"));
    view->setSource(QUrl::fromLocalFile(Pages + QStringLiteral("/main.qml")));
    QVERIFY2(view->status() == QQuickView::Ready, qPrintable(page));
    view->show();

    QQuickItem *const root = view->rootObject();
    QTRY_VERIFY2(root->property("screen").value<QObject *>(), qPrintable(page));
    const auto currentPage = [root] {
        const auto screen = root->property("screen").value<QObject *>();
        return screen ? screen->property("page").value<QObject *>() : nullptr;
    };
    if (!Screens.contains(page)) {
        QTRY_VERIFY2(currentPage() && currentPage()->property("isOpen").toBool(), qPrintable(page));
    }
    // What the page found out is laid out in the next frames.
    QTest::qWait(60);

    QSharedPointer<QQuickItemGrabResult> grabbed = root->grabToImage();
    QVERIFY(grabbed);
    QSignalSpy ready(grabbed.data(), &QQuickItemGrabResult::ready);
    QVERIFY(ready.wait());
    // Text alone brings dozens of shades with its smooth edges.
    const int colours = coloursOf(grabbed->image());
    QVERIFY2(colours > 20, qPrintable(QStringLiteral("%1 shows only %2 colours").arg(page).arg(colours)));

    QStringList faults;
    findFaults(root, root, size.width() / 45, &faults);
    for (const QString &fault : qAsConst(faults))
        qWarning().noquote() << page << (hardware ? "" : "without hardware") << fault;
    QVERIFY2(faults.isEmpty(), qPrintable(page));
}

void tst_Screens::looksRight()
{
    QFETCH(QString, locale);

    const QString catalogues = QStringLiteral(KIV_CATALOGUES);
    QTranslator engineering;
    QTranslator localised;
    QVERIFY(engineering.load(QStringLiteral("kiv_eng_en"), catalogues));
    QCoreApplication::installTranslator(&engineering);
    if (locale != QLatin1String("en")) {
        QVERIFY(localised.load(QLocale(locale), QStringLiteral("kiv"), QStringLiteral("-"), catalogues));
        QCoreApplication::installTranslator(&localised);
    }
    QLocale::setDefault(QLocale(locale));

    for (const QString &page : Screens + testsWithPages()) {
        for (const bool hardware : {true, false}) {
            QQuickView view;
            look(page, hardware, &view);
            if (QTest::currentTestFailed())
                return;
        }
    }
}

QTEST_MAIN(tst_Screens)

#include "tst_screens.moc"
