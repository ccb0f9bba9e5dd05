// SPDX-License-Identifier: BSD-3-Clause
#ifndef MESSAGELOG_H
#define MESSAGELOG_H

#include <QMutex>
#include <QMutexLocker>
#include <QStringList>
#include <QtGlobal>

/*! Collects what goes to the Qt message log while it exists, from any thread, instead of printing it. One at a time. */
class MessageLog
{
public:
    MessageLog()
    {
        s_current = this;
        m_previous = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
            const QMutexLocker locker(&s_current->m_mutex);
            s_current->m_all << text;
            if (type == QtWarningMsg)
                s_current->m_warnings << text;
            else if (type == QtDebugMsg)
                s_current->m_debugs << text;
        });
    }
    ~MessageLog() { qInstallMessageHandler(m_previous); }
    Q_DISABLE_COPY(MessageLog)

    QStringList all() const { return copy(m_all); }
    QStringList warnings() const { return copy(m_warnings); }
    QStringList debugs() const { return copy(m_debugs); }
    void clear()
    {
        const QMutexLocker locker(&m_mutex);
        m_all.clear();
        m_warnings.clear();
        m_debugs.clear();
    }

private:
    QStringList copy(const QStringList &list) const
    {
        const QMutexLocker locker(&m_mutex);
        return list;
    }

    inline static MessageLog *s_current = nullptr;
    QtMessageHandler m_previous;
    mutable QMutex m_mutex;
    QStringList m_all;
    QStringList m_warnings;
    QStringList m_debugs;
};

#endif
