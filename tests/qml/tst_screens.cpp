// SPDX-License-Identifier: BSD-3-Clause
//
// Draws every screen in one language, in several sizes and both variants, and looks for what a user would complain
// about: an empty screen, texts that are cut off, buttons too small for a finger. The first argument is the language.
#include "fakes.h"

#include <QDir>
#include <QFontMetricsF>
#include <QLocale>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExpression>
#include <QQmlProperty>
#include <QQuickItem>
#include <QQuickView>
#include <QScreen>
#include <QSet>
#include <QTranslator>
#include <QtTest>

namespace
{
const QStringList Screens{QStringLiteral("disclaimer"), QStringLiteral("home"),    QStringLiteral("settings"),
                          QStringLiteral("list"),       QStringLiteral("summary"), QStringLiteral("runin"),
                          QStringLiteral("engineer")};

/*! What lies over a screen, and what it looks like after something has happened; said as the screen's own script. */
struct State
{
    const char *page;
    const char *script;
};
const State States[] = {
    {"VerificationHallDetect", "askAfterTimeOut()"},
    {"VerificationHallDetect", "askWhySkipped()"},
    {"VerificationBattery", "askWhyOverruled('01')"},
    {"VerificationHallDetect", "shell.showVerdict('03')"},
    {"VerificationHallDetect", "shell.blocking(qsTrId('kiv-working-probing'), function() {})"},
    {"summary",
     "flow.record('VerificationHallDetect', { code: '02', decided: '01', overruled: true, why: 'perceived', "
     "whyText: qsTrId('kiv-overrule-perceived'), reason: qsTrId('kiv-key-good'), timedOut: true, "
     "seconds: 754 })"},
    {"summary", "children[children.length - 1].open(shell.codeText())"},
    {"runin",
     "runIn.loop = 12, runIn.elapsed = 7205, runIn.failures = [{ row: runIn.rows[0], loop: 7, times: 9, "
     "loops: [7, 8, 9, 10, 11], reason: qsTrId('kiv-run-in-timeout') }], "
     "runIn.temperature.add(48.25), runIn.end = 'failure'"},
    {"runin", "runIn.temperature.now = NaN"},
    {"summary",
     "flow.mode = 1, flow.runInEnding = { why: 'time', code: '00', "
     "failedLoops: { TouchSelfTest: [3, 7, 40, 112, 240] }, "
     "text: qsTrId('kiv-run-in-end-time') + '\\n' + qsTrId('kiv-run-in-again') }, "
     "flow.record('TouchSelfTest', { code: '02', seconds: 3 }), flow.record('TouchSelfTest', { code: '00', seconds: 3 "
     "})"},
    {"runin", "runIn.temperature.add(55.5), runIn.temperature.add(61), runIn.end = 'temperature'"},
    {"runin", "runIn.machineStart = runIn.machineStartNow = new Date(2026, 1, 2), runIn.end = 'restart'"},
};
const QRegularExpression WordBreak(QStringLiteral("[\\s-]+|(?=\\p{Han})|(?<=\\p{Han})"),
                                   QRegularExpression::UseUnicodePropertiesOption);
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
        // A word that had to be broken in the middle: no line is as wide as it. Chinese breaks after any character.
        const QFontMetricsF metrics(item->property("font").value<QFont>());
        const QString whole = item->property("text").toString();
        if (item->property("textFormat").toInt() == Qt::PlainText && item->property("lineCount").toInt() > 1
            && !whole.contains(QLatin1Char('\n')) && metrics.horizontalAdvance(whole) <= item->width())
            *faults << QStringLiteral("in several lines that would fit into one: %1").arg(text);
        const QStringList words = whole.split(WordBreak);
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

public:
    explicit tst_Screens(const QString &language) : m_language(language) { }

private Q_SLOTS:
    void initTestCase();
    void looksRight_data();
    void looksRight();

private:
    QStringList testsWithPages() const;
    void open(const QString &page, bool hardware, QQuickView *view);
    void examine(const QString &what, QQuickView *view);

    const QString m_language;
    QTranslator m_engineering;
    QTranslator m_localised;
    QStringList m_faulty;
    int m_phone = -1;
};

void tst_Screens::initTestCase()
{
    const QString catalogues = QStringLiteral(KIV_CATALOGUES);
    QVERIFY(m_engineering.load(QStringLiteral("kiv_eng_en"), catalogues));
    QCoreApplication::installTranslator(&m_engineering);
    if (m_language != QLatin1String("en")) {
        QVERIFY2(m_localised.load(QLocale(m_language), QStringLiteral("kiv"), QStringLiteral("-"), catalogues),
                 qPrintable(m_language));
        QCoreApplication::installTranslator(&m_localised);
    }
    QLocale::setDefault(QLocale(m_language));
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

/*! One page in a window that has shown others before, as on the phone. */
void tst_Screens::open(const QString &page, bool hardware, QQuickView *view)
{
    QObject *const phone = view->engine()->singletonInstance<QObject *>(m_phone);
    QVERIFY(phone);
    QVERIFY(QMetaObject::invokeMethod(phone, "reset"));
    if (!hardware)
        QVERIFY(QMetaObject::invokeMethod(phone, "removeEverything"));

    QQuickItem *const root = view->rootObject();
    const auto screen = [root] { return root->property("screen").value<QObject *>(); };
    const QPointer<QObject> before = screen();
    root->setProperty("startPage", page);
    QVERIFY(QMetaObject::invokeMethod(root, "begin"));
    QTRY_VERIFY2(screen() && screen() != before, qPrintable(page));
    if (!Screens.contains(page)) {
        QVERIFY2(!screen()->property("broken").toBool(), qPrintable(page));
        const auto isOpen = [screen] {
            const auto current = screen()->property("page").value<QObject *>();
            return current && current->property("isOpen").toBool();
        };
        QTRY_VERIFY2_WITH_TIMEOUT(isOpen(), qPrintable(page), 20000);
    } else if (page == QLatin1String("list")) {
        // Comes after home, which the wait for the phone's answers covers.
        QTRY_VERIFY2_WITH_TIMEOUT(screen() && screen()->property("untested").isValid(), qPrintable(page), 20000);
    }
}

/*! Looks at what is in the window, in both variants. */
void tst_Screens::examine(const QString &what, QQuickView *view)
{
    QFETCH(QSize, size);

    QQuickItem *const root = view->rootObject();
    for (const bool dark : {true, false}) {
        root->setProperty("dark", dark);
        // What the page found out is laid out in the next frame, and what follows from that in the one after.
        QSignalSpy drawn(view, &QQuickWindow::frameSwapped);
        for (int frame = 0; frame < 2; ++frame) {
            drawn.clear();
            view->update();
            QVERIFY2(drawn.wait(20000), qPrintable(what));
        }
        // Text alone brings dozens of shades with its smooth edges.
        const int colours = coloursOf(view->screen()->grabWindow(view->winId()).toImage());
        QVERIFY2(colours > 20, qPrintable(QStringLiteral("%1 shows only %2 colours").arg(what).arg(colours)));
    }

    // Lists lay their lines out over some frames; what is still wrong after them stays so.
    QStringList faults;
    for (int look = 0; look < 20; ++look) {
        faults.clear();
        findFaults(root, root, size.width() / 45, &faults);
        if (faults.isEmpty())
            break;
        QTest::qWait(100);
    }
    for (const QString &fault : qAsConst(faults))
        qWarning().noquote() << what << fault;
    if (!faults.isEmpty() && !m_faulty.contains(what))
        m_faulty << what;
}

void tst_Screens::looksRight_data()
{
    QTest::addColumn<QSize>("size");

    for (const QSize &size : {QSize(360, 640), QSize(540, 960), QSize(1080, 1920)})
        QTest::addRow("%s %dx%d", qPrintable(m_language), size.width(), size.height()) << size;
}

void tst_Screens::looksRight()
{
    QFETCH(QSize, size);
    m_faulty.clear();

    QQuickView view;
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.resize(size);
    view.rootContext()->setContextProperty(QStringLiteral("disclaimerText"), QStringLiteral("Take care."));
    addFakeModules(view.engine());
    view.setInitialProperties({{QStringLiteral("startPage"), QStringLiteral("home")}});
    view.setSource(QUrl::fromLocalFile(Pages + QStringLiteral("/main.qml")));
    QCOMPARE(view.status(), QQuickView::Ready);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QQuickItem *const root = view.rootObject();
    QCOMPARE(QQmlProperty::read(root, QStringLiteral("LayoutMirroring.enabled"), qmlContext(root)),
             QVariant(QLocale(m_language).textDirection() == Qt::RightToLeft));

    for (const QString &page : Screens + testsWithPages()) {
        for (const bool hardware : {true, false}) {
            open(page, hardware, &view);
            if (QTest::currentTestFailed())
                return;
            examine(hardware ? page : page + QStringLiteral(" without hardware"), &view);
            if (QTest::currentTestFailed())
                return;
        }
    }
    for (const State &state : States) {
        const QString page = QString::fromLatin1(state.page);
        const QString script = QString::fromLatin1(state.script);
        // A page that measures a pass goes on by itself a few seconds later: it is not drawn first.
        open(page, true, &view);
        if (QTest::currentTestFailed())
            return;
        QObject *const screen = view.rootObject()->property("screen").value<QObject *>();
        QQmlExpression expression(qmlContext(screen), screen, script);
        expression.evaluate();
        QVERIFY2(!expression.hasError(), qPrintable(expression.error().toString()));
        examine(page + QLatin1Char(' ') + script, &view);
        if (QTest::currentTestFailed())
            return;
    }
    QCOMPARE(m_faulty, QStringList());
}

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    QStringList arguments = application.arguments();
    if (arguments.size() < 2) {
        qWarning("Usage: tst_screens LANGUAGE [options of the test]");
        return 2;
    }
    tst_Screens test(arguments.takeAt(1));
    return QTest::qExec(&test, arguments);
}

#include "tst_screens.moc"
