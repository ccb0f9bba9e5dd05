// SPDX-License-Identifier: BSD-3-Clause
#include "pagememory.h"

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>

#include <malloc.h>

namespace
{
/*! Milliseconds; by then the next page is on the screen, and opening it has not had to wait. */
constexpr int Delay = 1000;
const char Closed[] = "pageClosed()";
}

PageMemory::PageMemory(QQuickView *view, QObject *parent) : QObject(parent), m_view(view)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(Delay);
    connect(&m_timer, &QTimer::timeout, this, &PageMemory::collect);
    const QObject *const root = view->rootObject();
    if (root && root->metaObject()->indexOfSignal(Closed) >= 0)
        connect(root, SIGNAL(pageClosed()), this, SLOT(notePageClosed()));
}

// Not started anew: an operator who is quick would put it off for ever.
void PageMemory::notePageClosed()
{
    if (!m_timer.isActive())
        m_timer.start();
}

void PageMemory::collect()
{
    m_view->engine()->collectGarbage();
    // What was collected is deleted by the event loop, and only then nothing holds the page's code any more.
    QTimer::singleShot(0, this, &PageMemory::trim);
}

void PageMemory::trim()
{
    m_view->engine()->trimComponentCache();
    m_view->releaseResources();
#ifdef __GLIBC__
    ::malloc_trim(0);
#endif
}
