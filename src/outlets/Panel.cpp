#include "outlets/Panel.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>

namespace outlets {
namespace {

bool isMainThread()
{
    return QCoreApplication::instance() && QThread::currentThread() == QCoreApplication::instance()->thread();
}

} // namespace

void Panel::runModal()
{
    // Counted before the panel shows: it may be answered before the waiting begins.
    int stopsBefore = 0;
    {
        const std::lock_guard lock(m_mutex);
        if (m_quitting) return;
        stopsBefore = m_stops;
    }
    beginSheet();
    if (isMainThread()) {
        waitInEventLoop(stopsBefore);
        return;
    }
    std::unique_lock lock(m_mutex);
    m_stopped.wait(lock, [&] { return m_quitting || m_stops != stopsBefore; });
}

void Panel::waitInEventLoop(int stopsBefore)
{
    QEventLoop loop;
    {
        const std::lock_guard lock(m_mutex);
        if (m_quitting || m_stops != stopsBefore) return;
        m_loops.push_back(&loop);
    }
    loop.exec();
    const std::lock_guard lock(m_mutex);
    std::erase(m_loops, &loop);
}

void Panel::wake()
{
    m_stopped.notify_all();
    for (QEventLoop *loop : m_loops)
        QMetaObject::invokeMethod(loop, &QEventLoop::quit, Qt::QueuedConnection);
}

void Panel::stopModal()
{
    const std::lock_guard lock(m_mutex);
    ++m_stops;
    wake();
}

void Panel::endWaiting()
{
    const std::lock_guard lock(m_mutex);
    m_quitting = true;
    wake();
}

void Panel::close()
{
    stopModal();
    orderOut();
}

void Panel::orderFront()
{
    update([this] {
        m_place = Place::Window;
        ++m_timesOrderedFront;
        return true;
    });
}

} // namespace outlets
