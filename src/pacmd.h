// SPDX-License-Identifier: BSD-3-Clause
#ifndef PACMD_H
#define PACMD_H

#include <QObject>
#include <QString>

/*!
 * Routing of the sound server: which sink is the primary output, which sources carry the microphones, and the active
 * port of each.
 *
 * Every call runs the server's command-line tools in a shell, blocks until they end (30 seconds at most) and keeps
 * nothing for the next call. Queries return an empty string where the tool is missing, the server does not run or no
 * object carries the marker property; setters then do nothing.
 */
class PaCmd : public QObject
{
    Q_OBJECT

public:
    explicit PaCmd(QObject *parent = nullptr);

public Q_SLOTS:
    /*! Name of the sink with the property "droid.output.primary". Source: pactl list sinks. */
    QString primarySinkName() const;
    QString primarySinkActivePort() const;
    /*! Name of the source that has the property given by its type: "droid.input.builtin" for the phone's own
     *  microphones, "droid.input.external" for a headset's. Source: pactl list sources. */
    QString sourceName(const QString &sourceType) const;
    QString sourceActivePort(const QString &sourceType) const;
    QString builtinSourceName() const;
    QString externalSourceName() const;
    QString builtinSourceActivePort() const;
    QString externalSourceActivePort() const;
    /*! Whether one source carries both kinds of microphone; true also where there is neither. */
    bool sourceIsCombined() const;

    /*! Command: pactl set-sink-port. Neither name is quoted, so both must be single words. */
    void setSinkPort(const QString &sink, const QString &port);
    void setPrimarySinkPort(const QString &port);
    /*! Sets one "key=value" on the primary sink. Command: pacmd update-sink-proplist. */
    void setPrimarySinkProperty(const QString &value);
    /*! Command: pactl set-source-port. Neither name is quoted, so both must be single words. */
    void setSourcePort(const QString &source, const QString &port);
    void setBuiltinSourcePort(const QString &port);
    void setExternalSourcePort(const QString &port);

private:
    static QString runCommand(const QString &command, bool log);
};

#endif
