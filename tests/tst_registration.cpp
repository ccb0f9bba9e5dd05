// SPDX-License-Identifier: BSD-3-Clause
#include "files.h"
#include "registration.h"

#include <QJSValue>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QSet>
#include <QtTest>

#include <memory>

#include <dlfcn.h>

namespace
{
enum Kind
{
    Creatable,
    Singleton,
    EnumsOnly
};

struct Row
{
    const char *name;
    const char *className;
    Kind kind;
};

// In the order of registration. A row may be missing as long as src/ has no header of its class.
const Row Table[] = {
    {"HeadsetDetect", "HeadsetDetect", Creatable},
    {"HallDetect", "HallDetect", Creatable},
    {"Recorder", "Recorder", Creatable},
    {"PaCmd", "PaCmd", Creatable},
    {"Battery", "Battery", Creatable},
    {"GyroSensor", "GyroSensor", Creatable},
    {"Touch", "Touch", Creatable},
    {"SdCardTest", "SdCardTest", Creatable},
    {"RadioPreference", "RadioPreference", Creatable},
    {"Uptime", "Uptime", Creatable},
    {"Zel", "Zel", Creatable},
    {"UsbOtg", "UsbOtg", Creatable},
    {"Gps", "Gps", Creatable},
    {"KivUtils", "KivUtils", Creatable},
    {"Processes", "Processes", Creatable},
    {"Mce", "Mce", Creatable},
    {"PulseAudio", "PulseAudio", Creatable},
    {"CalibrationTest", "CalibrationTest", Creatable},
    {"MacValidator", "MacValidator", Creatable},
    {"AudioRoute", "AudioRoute", Creatable},
    {"FactoryUtils", "FactoryUtils", Singleton},
    {"Features", "Features", Singleton},
    {"KivHwSettings", "HwSettings", Singleton},
    {"SensorCalibrationResolver", "SensorCalibrationResolver", Singleton},
    {"SensorCalibration", "SensorCalibration", Creatable},
    {"MceButtonBacklight", "MceButtonBacklight", EnumsOnly},
};

const QString EnumsOnlyReason = QStringLiteral("MceButtonBacklight class exists for enums only");

/*! What went through the one door to the QML type system, in order. */
struct Registration
{
    int kind;
    QByteArray uri;
    int major;
    int minor;
    QByteArray name;
    QByteArray className;
    QString reason;
};

QVector<Registration> registrations;

bool isBuilt(const Row &row)
{
    static const QStringList headers = QStringLiteral(KIV_HEADERS).split(QLatin1Char(','));
    return headers.contains(QString::fromLatin1(row.className).toLower() + QStringLiteral(".h"));
}

QVector<Row> builtRows()
{
    QVector<Row> rows;
    for (const Row &row : Table) {
        if (isBuilt(row))
            rows << row;
    }
    return rows;
}
}

// Stands before the library's function of this name: every registration of this program comes by here.
int QQmlPrivate::qmlregister(RegistrationType type, void *data)
{
    using Function = int (*)(RegistrationType, void *);
    static const auto next =
        reinterpret_cast<Function>(::dlsym(RTLD_NEXT, "_ZN11QQmlPrivate11qmlregisterENS_16RegistrationTypeEPv"));
    if (type == TypeRegistration) {
        const auto *const info = static_cast<RegisterType *>(data);
        registrations << Registration{info->create ? Creatable : EnumsOnly,
                                      info->uri,
                                      info->versionMajor,
                                      info->versionMinor,
                                      info->elementName,
                                      info->metaObject->className(),
                                      info->noCreationReason};
    } else if (type == SingletonRegistration) {
        const auto *const info = static_cast<RegisterSingletonType *>(data);
        registrations << Registration{
            Singleton,          info->uri,      info->versionMajor,
            info->versionMinor, info->typeName, info->instanceMetaObject ? info->instanceMetaObject->className() : "",
            QString()};
    } else {
        registrations << Registration{-1, QByteArray(), int(type), 0, QByteArray(), QByteArray(), QString()};
    }
    return next(type, data);
}

class tst_Registration : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void registersTheTableInOrder();
    void everyRowIsThere();
    void creatableTypesCanBeCreatedAndDestroyed_data();
    void creatableTypesCanBeCreatedAndDestroyed();
    void singletonsAreOnePerEngine_data();
    void singletonsAreOnePerEngine();
    void singletonsCannotBeCreated();
    void enumHolderCannotBeCreated();
    void otherNamesAreUnknown_data();
    void otherNamesAreUnknown();
};

void tst_Registration::initTestCase()
{
    registerKivTypes();
}

void tst_Registration::registersTheTableInOrder()
{
    QStringList actual;
    QStringList expected;
    for (const Registration &registration : qAsConst(registrations)) {
        actual << QStringLiteral("%1 %2.%3 %4 %5 %6 %7")
                      .arg(QString::fromLatin1(registration.uri))
                      .arg(registration.major)
                      .arg(registration.minor)
                      .arg(QString::fromLatin1(registration.name), QString::fromLatin1(registration.className))
                      .arg(registration.kind)
                      .arg(registration.reason);
    }
    const QVector<Row> rows = builtRows();
    for (const Row &row : rows) {
        expected << QStringLiteral("Kiv 1.0 %1 %2 %3 %4")
                        .arg(QString::fromLatin1(row.name), QString::fromLatin1(row.className))
                        .arg(row.kind)
                        .arg(row.kind == EnumsOnly ? EnumsOnlyReason : QString());
    }
    QCOMPARE(actual, expected);
}

void tst_Registration::everyRowIsThere()
{
    QStringList missing;
    for (const Row &row : Table) {
        if (!isBuilt(row))
            missing << QString::fromLatin1(row.name);
    }
    if (!missing.isEmpty())
        QSKIP(qPrintable(QStringLiteral("not built yet: ") + missing.join(QLatin1Char(' '))));
    QCOMPARE(registrations.size(), 26);
}

void tst_Registration::creatableTypesCanBeCreatedAndDestroyed_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("className");
    const QVector<Row> rows = builtRows();
    for (const Row &row : rows) {
        if (row.kind == Creatable)
            QTest::newRow(row.name) << QByteArray(row.name) << QByteArray(row.className);
    }
}

void tst_Registration::creatableTypesCanBeCreatedAndDestroyed()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, className);
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import Kiv 1.0\n" + name + " { }\n", QUrl());
    // On a phone that has nothing.
    const std::unique_ptr<QObject> object(component.create());
    QVERIFY2(object, qPrintable(component.errorString()));
    QVERIFY(object->inherits(className.constData()));
    QVERIFY(!object->parent());
}

void tst_Registration::singletonsAreOnePerEngine_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("className");
    const QVector<Row> rows = builtRows();
    for (const Row &row : rows) {
        if (row.kind == Singleton)
            QTest::newRow(row.name) << QByteArray(row.name) << QByteArray(row.className);
    }
}

void tst_Registration::singletonsAreOnePerEngine()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, className);
    const QByteArray page = "import QtQml 2.15\nimport Kiv 1.0\nQtObject { property QtObject it: " + name + " }\n";
    const QString one = QStringLiteral("/run/kiv/One.qml");
    const QString two = QStringLiteral("/run/kiv/Two.qml");
    writeFile(one, page);
    writeFile(two, page);

    const auto singleton = [](QQmlEngine &engine, const QString &file) -> QObject * {
        QQmlComponent component(&engine, file);
        const std::unique_ptr<QObject> object(component.create());
        return object ? object->property("it").value<QObject *>() : nullptr;
    };
    auto engine = std::make_unique<QQmlEngine>();
    const QPointer<QObject> first = singleton(*engine, one);
    QVERIFY(first);
    QVERIFY(first->inherits(className.constData()));
    QCOMPARE(singleton(*engine, two), first.data());

    QQmlEngine other;
    QObject *const others = singleton(other, one);
    QVERIFY(others);
    QVERIFY(others != first);

    engine.reset();
    QVERIFY(!first); // it went with its engine
}

void tst_Registration::singletonsCannotBeCreated()
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import Kiv 1.0\nFactoryUtils { }\n", QUrl());
    QVERIFY(component.isError());
}

void tst_Registration::enumHolderCannotBeCreated()
{
    const Row &row = Table[sizeof(Table) / sizeof(Table[0]) - 1];
    if (!isBuilt(row))
        QSKIP("not built yet");
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import Kiv 1.0\nMceButtonBacklight { }\n", QUrl());
    QVERIFY(component.isError());
    QVERIFY2(component.errorString().contains(EnumsOnlyReason), qPrintable(component.errorString()));
}

void tst_Registration::otherNamesAreUnknown_data()
{
    QTest::addColumn<QByteArray>("name");
    // Classes of the program that are none of the pages' business.
    for (const char *const name : {"HwSettings", "ChannelWriter", "SignalHandler", "ComNokiaMceRequestInterface"})
        QTest::newRow(name) << QByteArray(name);
}

void tst_Registration::otherNamesAreUnknown()
{
    QFETCH(QByteArray, name);
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import Kiv 1.0\n" + name + " { }\n", QUrl());
    QVERIFY(component.isError());
    QVERIFY2(component.errorString().contains(QStringLiteral("is not a type")), qPrintable(component.errorString()));
}

QTEST_MAIN(tst_Registration)
#include "tst_registration.moc"
