#include "ui/watching/RefreshQueue.h"

#include <QCoreApplication>
#include <QEvent>

namespace ui {

struct RefreshQueue::Mailbox {
    std::mutex mutex;
    RefreshQueue *receiver = nullptr;
    QList<size_t> due;

    void mark(size_t refresh)
    {
        const std::lock_guard lock(mutex);
        if (!receiver || due.contains(refresh)) return;
        if (due.isEmpty()) QCoreApplication::postEvent(receiver, new QEvent(QEvent::User));
        due.append(refresh);
    }

    QList<size_t> take()
    {
        const std::lock_guard lock(mutex);
        return std::exchange(due, {});
    }
};

RefreshQueue::RefreshQueue(QObject *parent) : QObject(parent), m_mailbox(std::make_shared<Mailbox>())
{
    m_mailbox->receiver = this;
}

RefreshQueue::~RefreshQueue()
{
    const std::lock_guard lock(m_mailbox->mutex);
    m_mailbox->receiver = nullptr;
}

void RefreshQueue::watch(std::initializer_list<outlets::Outlet *> outlets, Refresh refresh)
{
    const size_t number = m_refreshes.size();
    m_refreshes.push_back(std::move(refresh));
    for (outlets::Outlet *outlet : outlets)
        outlet->observe([mailbox = m_mailbox, number] { mailbox->mark(number); });
    m_refreshes[number]();
}

void RefreshQueue::customEvent(QEvent *)
{
    for (const size_t number : m_mailbox->take())
        m_refreshes[number]();
}

} // namespace ui
