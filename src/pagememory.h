// SPDX-License-Identifier: BSD-3-Clause
#ifndef PAGEMEMORY_H
#define PAGEMEMORY_H

#include <QObject>
#include <QTimer>

class QQuickView;

/*!
 * Gives back what closed pages leave behind: their compiled code, the pictures that the scene keeps in case they are
 * wanted again, and the free parts of the heap. Without it a sequence grows with every page, because the engine keeps
 * whatever it has once loaded. A test is seldom opened twice, and then its page is loaded again.
 *
 * The interface says by a signal pageClosed() of its root object that a page is gone; one without that signal keeps
 * what it has.
 */
class PageMemory : public QObject
{
    Q_OBJECT

public:
    /*! The view must have loaded its interface and must outlive this object. */
    explicit PageMemory(QQuickView *view, QObject *parent = nullptr);

private Q_SLOTS:
    void notePageClosed();

private:
    void collect();
    void trim();

    QQuickView *const m_view;
    QTimer m_timer;
};

#endif
