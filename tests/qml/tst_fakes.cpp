// SPDX-License-Identifier: BSD-3-Clause
//
// What pages are tested with must look like what they run with: every pretended type has the enums, properties,
// methods, signals and roles of the real one. It may have more, for the tests' own use.
#include "fakes.h"
#include "registration.h"

#include <QAbstractListModel>
#include <QDir>
#include <QMetaEnum>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QtTest>

#include <memory>

namespace
{
const QString Pretended = QStringLiteral(KIV_FAKE_TYPES);

/*! Scripts have one kind of number, and a property of any type takes what comes. */
bool isLike(int found, int wanted)
{
    static const QVector<int> numbers{QMetaType::Int, QMetaType::UInt, QMetaType::LongLong, QMetaType::Float,
                                      QMetaType::Double};
    return found == wanted || found == QMetaType::QVariant || (numbers.contains(found) && numbers.contains(wanted));
}

/*! How many arguments a signal or a function of this name takes at most; -1 where there is none. */
int arguments(const QMetaObject *type, const QByteArray &name, bool isSignal)
{
    int most = -1;
    for (int i = 0; i < type->methodCount(); ++i) {
        const QMetaMethod method = type->method(i);
        if (method.name() == name && method.access() != QMetaMethod::Private
            && (method.methodType() == QMetaMethod::Signal) == isSignal)
            most = qMax(most, method.parameterCount());
    }
    return most;
}

QStringList rolesOf(const QObject *object)
{
    const auto *const model = qobject_cast<const QAbstractItemModel *>(object);
    QStringList roles;
    if (model) {
        const auto names = model->roleNames();
        for (const QByteArray &name : names)
            roles << QString::fromLatin1(name);
        roles.sort();
    }
    return roles;
}
}

class tst_Fakes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void looksLikeTheRealType_data();
    void looksLikeTheRealType();

private:
    QObject *make(const QString &module, const QString &type, bool isSingleton);

    QQmlEngine m_engine;
};

void tst_Fakes::initTestCase()
{
    registerKivTypes();
    registerFakeTypes("Pretended");
}

void tst_Fakes::looksLikeTheRealType_data()
{
    QTest::addColumn<bool>("isSingleton");
    const QStringList files = QDir(Pretended).entryList({QStringLiteral("*.qml")}, QDir::Files);
    QVERIFY(files.size() > 15);
    for (const QString &name : files) {
        QFile file(QDir(Pretended).filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        if (name != QLatin1String("Phone.qml"))
            QTest::newRow(qPrintable(name.chopped(4))) << file.readAll().contains("pragma Singleton");
    }
}

QObject *tst_Fakes::make(const QString &module, const QString &type, bool isSingleton)
{
    QQmlComponent component(&m_engine);
    const QString body = isSingleton ? QStringLiteral("property QtObject it: %1").arg(type)
                                     : QStringLiteral("property QtObject it: %1 { }").arg(type);
    component.setData(QStringLiteral("import QtQml 2.15\nimport %1 1.0\nQtObject { %2 }").arg(module, body).toUtf8(),
                      QUrl());
    QObject *const holder = component.create();
    if (!holder) {
        qWarning() << component.errors();
        return nullptr;
    }
    holder->setParent(this);
    return holder->property("it").value<QObject *>();
}

void tst_Fakes::looksLikeTheRealType()
{
    QFETCH(bool, isSingleton);
    const QString name = QString::fromLatin1(QTest::currentDataTag());

    const QObject *const real = make(QStringLiteral("Kiv"), name, isSingleton);
    const QObject *const fake = make(QStringLiteral("Pretended"), name, isSingleton);
    QVERIFY(real);
    QVERIFY(fake);
    const QMetaObject *const realType = real->metaObject();
    const QMetaObject *const fakeType = fake->metaObject();

    QStringList differences;
    for (int i = realType->propertyOffset(); i < realType->propertyCount(); ++i) {
        const QMetaProperty wanted = realType->property(i);
        const int index = fakeType->indexOfProperty(wanted.name());
        const QMetaProperty found = fakeType->property(index);
        if (index < 0)
            differences << QStringLiteral("no property %1").arg(QLatin1String(wanted.name()));
        else if (!isLike(found.userType(), wanted.isEnumType() ? int(QMetaType::Int) : wanted.userType()))
            differences << QStringLiteral("%1 is %2, not %3")
                               .arg(QLatin1String(wanted.name()), QLatin1String(found.typeName()),
                                    QLatin1String(wanted.typeName()));
        else if (wanted.isWritable() && !found.isWritable())
            differences << QStringLiteral("%1 cannot be written").arg(QLatin1String(wanted.name()));
    }
    for (int i = realType->methodOffset(); i < realType->methodCount(); ++i) {
        const QMetaMethod wanted = realType->method(i);
        // A getter that a page could call has the name of its property, which comes first.
        if (wanted.access() == QMetaMethod::Private || realType->indexOfProperty(wanted.name()) >= 0)
            continue;
        const bool isSignal = wanted.methodType() == QMetaMethod::Signal;
        const int most = arguments(realType, wanted.name(), isSignal);
        const int has = arguments(fakeType, wanted.name(), isSignal);
        const QString what = QStringLiteral("%1 %2").arg(isSignal ? QStringLiteral("signal") : QStringLiteral("method"),
                                                         QString::fromLatin1(wanted.name()));
        if (has < 0)
            differences << QStringLiteral("no ") + what;
        // The engine's own change signals carry nothing; a handler finds the value in its property.
        else if (has != most && !(isSignal && wanted.name().endsWith("Changed")))
            differences << QStringLiteral("%1 takes %2 arguments, not %3").arg(what).arg(has).arg(most);
    }
    differences.removeDuplicates();
    QCOMPARE(differences.join(QStringLiteral("; ")), QString());
    QCOMPARE(rolesOf(fake), rolesOf(real));

    // Enums that a page can name.
    for (int i = realType->enumeratorOffset(); i < realType->enumeratorCount(); ++i) {
        const QMetaEnum enumerator = realType->enumerator(i);
        for (int key = 0; key < enumerator.keyCount(); ++key) {
            QQmlComponent component(&m_engine);
            component.setData(
                QStringLiteral("import QtQml 2.15\nimport Pretended 1.0\nQtObject { property var it: %1.%2 }")
                    .arg(name, QLatin1String(enumerator.key(key)))
                    .toUtf8(),
                QUrl());
            const std::unique_ptr<QObject> holder(component.create());
            QVERIFY2(holder, qPrintable(component.errorString()));
            QVERIFY2(holder->property("it").toInt() == enumerator.value(key) && holder->property("it").isValid(),
                     enumerator.key(key));
        }
    }
}

QTEST_MAIN(tst_Fakes)

#include "tst_fakes.moc"
