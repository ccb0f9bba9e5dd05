// SPDX-License-Identifier: BSD-3-Clause
#include "sdcardtest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QTextStream>

namespace
{
// The platform's library fixes these numbers.
constexpr int NoStorage = 0;
constexpr int ExternalStorage = 0x8;
constexpr int ExcludeParents = 0x1000;

const QLatin1String TestFile("/test.tmp");
const QLatin1String TestText("UU");
constexpr int TestRepetitions = 1024;

constexpr QIODevice::OpenMode TestFileMode = QIODevice::ReadWrite | QIODevice::Text;

enum TestResult
{
    NotRun = 0,
    NotCreated = 1,
    Different = 2,
    Passed = 3
};

bool isHeld(const Partition &partition)
{
    return int(partition.storageType()) != NoStorage;
}

// A card may carry anything under the name: a link would lead the test away from the card, a pipe would block it.
bool mayBeOpened(const QString &path)
{
    const QFileInfo file(path);
    return !file.isSymLink() && (!file.exists() || file.isFile());
}

// A pipe, or a link through which a file elsewhere would be changed or made. What else stands there fails the test.
bool isInTheWay(const QString &path)
{
    const QFileInfo file(path);
    if (!file.isSymLink())
        return !mayBeOpened(path);
    return file.exists() ? file.isFile() : QFileInfo(file.symLinkTarget()).dir().exists();
}

// False when there is no such file afterwards. What could not be written shows when it is read back.
bool writeTestFile(const QString &path)
{
    if (isInTheWay(path))
        QFile::remove(path);
    if (mayBeOpened(path)) {
        QFile file(path);
        if (file.open(TestFileMode)) {
            QTextStream stream(&file);
            for (int i = 0; i < TestRepetitions; ++i)
                stream << TestText;
        }
    }
    return QFile::exists(path);
}

bool readsBackAsWritten(const QString &path)
{
    QFile file(path);
    if (!mayBeOpened(path) || !file.open(TestFileMode))
        return false;
    QTextStream stream(&file);
    do {
        if (stream.read(TestText.size()) != TestText)
            return false;
    } while (!stream.atEnd());
    return true;
}
}

SdCardTest::SdCardTest(QObject *parent) : QObject(parent), m_card(pickCard())
{
    update(m_card);
    connect(&m_manager, &PartitionManager::partitionAdded, this, [this](const Partition &partition) {
        if (isHeld(m_card))
            return;
        m_card = pickCard();
        update(partition);
    });
    connect(&m_manager, &PartitionManager::partitionChanged, this, &SdCardTest::update);
    connect(&m_manager, &PartitionManager::partitionRemoved, this, [this](const Partition &partition) {
        if (!(partition == m_card))
            return;
        m_card = pickCard();
        update(partition);
    });
}

SdCardTest::Status SdCardTest::status() const
{
    return m_status;
}

bool SdCardTest::mountFailed() const
{
    return m_mountFailed;
}

Partition SdCardTest::pickCard() const
{
    const auto cards = m_manager.partitions(Partition::StorageTypes(QFlag(ExternalStorage | ExcludeParents)));
    return cards.isEmpty() ? Partition() : cards.first();
}

// May destroy this object.
void SdCardTest::update(const Partition &partition)
{
    const Status oldStatus = m_status;
    const bool oldMountFailed = m_mountFailed;
    if (isHeld(m_card)) {
        switch (int(m_card.status())) {
        case 0:
            m_status = Unmounted;
            break;
        case 1:
            m_status = Mounting;
            break;
        case 2:
            m_status = Mounted;
            break;
        case 3:
            m_status = Unmounting;
            break;
        default:
            break; // formatting and the like, which says nothing about mounting
        }
    } else {
        m_status = NoCard;
    }
    m_mountFailed = partition.mountFailed();

    const bool mountFailedDiffers = m_mountFailed != oldMountFailed;
    const QPointer<SdCardTest> alive(this);
    if (m_status != oldStatus)
        Q_EMIT statusChanged();
    if (alive && mountFailedDiffers)
        Q_EMIT mountFailedChanged();
}

int SdCardTest::sdCardIOTest()
{
    if (m_status != Mounted)
        return NotRun;
    const QString mountPath = m_card.mountPath();
    if (!QFileInfo(mountPath).isDir()) // nor is an empty path one
        return NotRun;

    const QString path = mountPath + TestFile;
    TestResult result = NotCreated;
    if (writeTestFile(path))
        result = readsBackAsWritten(path) ? Passed : Different;
    QFile::remove(path);
    return result;
}
