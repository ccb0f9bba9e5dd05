// SPDX-License-Identifier: BSD-3-Clause
#ifndef PROCESSES_H
#define PROCESSES_H

#include <QAbstractListModel>
#include <QTimer>

#include <vector>

/*!
 * The running processes, busiest first, sampled from /proc every 5 seconds.
 *
 * | Role | Name       | Value |
 * |------|------------|-------|
 * | 257  | pid        | int, process id |
 * | 258  | name       | QString, what the process was started as; of a kernel thread, the kernel's name |
 * | 260  | percentCpu | float, share of one processor's time since the sample before, in percent |
 *
 * There are no rows until the second sample: only from then on does a share cover an interval.
 */
class Processes : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(int limit READ limit WRITE setLimit NOTIFY limitChanged)

public:
    explicit Processes(QObject *parent = nullptr);
    ~Processes() override;

    /*! Number of rows. */
    int count() const { return rowCount(); }

    /*! How many rows there are at most; no limit where negative, as it is at first. */
    int limit() const { return m_limit; }
    /*! Does not reset the model: views show the new number of rows from the next sample on. */
    void setLimit(int limit);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void limitChanged();
    void countChanged();

private Q_SLOTS:
    void refresh();

private:
    struct Process;

    QTimer m_timer;
    std::vector<Process> m_processes; // by process id
    std::vector<const Process *> m_rows; // the same, busiest first
    quint64 m_previousTotal = 0;
    int m_limit = -1;
    bool m_valid = false;
};

#endif
