// SPDX-License-Identifier: BSD-3-Clause
#ifndef MESSAGELOG_H
#define MESSAGELOG_H

#include <QStringList>
#include <QtGlobal>

/*! Collects what goes to the Qt message log while it exists, instead of printing it. One at a time. */
class MessageLog
{
public:
    MessageLog()
    {
        s_current = this;
        m_previous = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
            s_current->m_all << text;
            if (type == QtWarningMsg)
                s_current->m_warnings << text;
            else if (type == QtDebugMsg)
                s_current->m_debugs << text;
        });
    }
    ~MessageLog() { qInstallMessageHandler(m_previous); }
    Q_DISABLE_COPY(MessageLog)

    QStringList all() const { return m_all; }
    QStringList warnings() const { return m_warnings; }
    QStringList debugs() const { return m_debugs; }
    void clear()
    {
        m_all.clear();
        m_warnings.clear();
        m_debugs.clear();
    }

private:
    inline static MessageLog *s_current = nullptr;
    QtMessageHandler m_previous;
    QStringList m_all;
    QStringList m_warnings;
    QStringList m_debugs;
};

#endif
