// SPDX-License-Identifier: BSD-3-Clause
#ifndef PULSEAUDIO_H
#define PULSEAUDIO_H

#include <QAbstractListModel>
#include <QProcess>
#include <QTimer>
#include <QVector>

/*!
 * The streams that play into the sound server, one row each, polled about every six seconds; each poll resets the
 * model. Source: the tool's text, /usr/bin/pactl list sink-inputs. A tool that is missing or fails empties the list.
 *
 * | role            | value                                                                      |
 * |-----------------|----------------------------------------------------------------------------|
 * | mediaName       | what plays, with the quotes that the tool prints                            |
 * | applicationName | who plays it, likewise; undefined where the stream does not say             |
 * | volumeInfo      | volume of the left and of the right channel, such as "100% 80%", or empty   |
 * | corked          | whether the stream is paused                                                |
 * | muted           | whether the stream is muted                                                 |
 */
class PulseAudio : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    explicit PulseAudio(QObject *parent = nullptr);
    ~PulseAudio() override;

    int count() const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex index(int row, int column = 0, const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    /*! The number of rows is another than before the poll. Not emitted when a failing tool emptied the list. */
    void countChanged();

private Q_SLOTS:
    void refresh();

private:
    struct SinkInput
    {
        QString mediaName;
        QString applicationName;
        QString volumeInfo;
        bool corked = false;
        bool muted = false;
    };

    static SinkInput parseBlock(const QStringRef &block);
    static void parseLine(const QStringRef &line, SinkInput *sinkInput);

    void onReadyRead();
    void onFinished(int exitCode, QProcess::ExitStatus status);
    void onErrorOccurred();
    void parse(const QString &text);
    void clear();
    void dropProcess();

    QTimer m_timer;
    QProcess *m_process = nullptr;
    QVector<SinkInput> m_sinkInputs;
};

#endif
