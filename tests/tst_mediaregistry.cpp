// SPDX-License-Identifier: BSD-3-Clause
#include "files.h"
#include "mediaregistry.h"

#include <QTemporaryDir>
#include <QtTest>

class tst_MediaRegistry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void listOfOthersIsRead();
    void withoutAListNoneIsMade();
    void unreadableListIsNone();
    void usersOwnPlaceStands();

private:
    QScopedPointer<QTemporaryDir> m_cache;
};

void tst_MediaRegistry::init()
{
    m_cache.reset(new QTemporaryDir);
    QVERIFY(m_cache->isValid());
    qputenv("XDG_CACHE_HOME", m_cache->path().toLocal8Bit());
    qunsetenv("GST_REGISTRY");
}

void tst_MediaRegistry::listOfOthersIsRead()
{
    const QString folder = m_cache->path() + QStringLiteral("/gstreamer-1.0");
    writeFile(folder + QStringLiteral("/registry.arm.bin"), "plugins");
    writeFile(folder + QStringLiteral("/other"), "else");

    keepMediaRegistryUnwritten();

    QFile list(QString::fromLocal8Bit(qgetenv("GST_REGISTRY")));
    QVERIFY(list.open(QIODevice::ReadOnly));
    QCOMPARE(list.readAll(), QByteArray("plugins"));
    // Nobody can make a file beside it.
    QFile beside(list.fileName() + QStringLiteral(".tmp"));
    QVERIFY(!beside.open(QIODevice::WriteOnly));
}

void tst_MediaRegistry::withoutAListNoneIsMade()
{
    keepMediaRegistryUnwritten();

    const QString place = QString::fromLocal8Bit(qgetenv("GST_REGISTRY"));
    QVERIFY(!place.isEmpty());
    QVERIFY(!QFile::exists(place));
    QFile file(place);
    QVERIFY(!file.open(QIODevice::WriteOnly));
    QVERIFY(QDir(m_cache->path()).isEmpty());
}

void tst_MediaRegistry::unreadableListIsNone()
{
    QVERIFY(QDir().mkpath(m_cache->path() + QStringLiteral("/gstreamer-1.0/registry.arm.bin")));

    keepMediaRegistryUnwritten();

    QVERIFY(!QFile::exists(QString::fromLocal8Bit(qgetenv("GST_REGISTRY"))));
}

void tst_MediaRegistry::usersOwnPlaceStands()
{
    qputenv("GST_REGISTRY", "/somewhere/else");
    keepMediaRegistryUnwritten();
    QCOMPARE(qgetenv("GST_REGISTRY"), QByteArray("/somewhere/else"));
}

QTEST_GUILESS_MAIN(tst_MediaRegistry)

#include "tst_mediaregistry.moc"
