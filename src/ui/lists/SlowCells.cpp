#include "ui/lists/SlowCells.h"

#include "tools/Threads.h"

#include <QCoreApplication>
#include <QEvent>

using namespace Qt::StringLiterals;

namespace ui {

struct SlowCells::Shared {
    struct Result {
        Cell cell;
        QVariant value;
    };

    const Fetch fetch;
    std::mutex mutex;
    SlowCells *receiver = nullptr;
    const outlets::TableDataSource *source = nullptr;
    QList<Cell> due;
    QList<Result> results;
    quint64 request = 0;
    bool working = false;

    explicit Shared(Fetch how) : fetch(how) {}

    void work()
    {
        std::unique_lock lock(mutex);
        while (receiver && !due.isEmpty()) {
            const Cell cell = due.takeFirst();
            const quint64 forRequest = request;
            const outlets::TableDataSource &from = *source;
            lock.unlock();
            const QVariant value = fetch(from, cell.column, cell.row);
            lock.lock();
            if (receiver && forRequest == request) deliver({cell, value});
        }
        working = false;
    }

    void deliver(const Result &result)
    {
        if (results.isEmpty()) QCoreApplication::postEvent(receiver, new QEvent(QEvent::User));
        results.append(result);
    }
};

SlowCells::SlowCells(Fetch how, QObject *parent) : QObject(parent), m_shared(std::make_shared<Shared>(how))
{
    m_shared->receiver = this;
}

SlowCells::~SlowCells()
{
    const std::lock_guard lock(m_shared->mutex);
    m_shared->receiver = nullptr;
}

void SlowCells::fetch(const outlets::TableDataSource &source, const QList<Cell> &cells)
{
    const std::lock_guard lock(m_shared->mutex);
    m_shared->source = &source;
    m_shared->due = cells;
    m_shared->results.clear();
    ++m_shared->request;
    if (m_shared->working || cells.isEmpty()) return;
    m_shared->working = true;
    detachThread(u"table-cells"_s, [shared = m_shared] { shared->work(); });
}

void SlowCells::customEvent(QEvent *)
{
    QList<Shared::Result> results;
    {
        const std::lock_guard lock(m_shared->mutex);
        results.swap(m_shared->results);
    }
    for (const auto &[cell, value] : results)
        Q_EMIT fetched(cell.column, cell.row, value);
}

} // namespace ui
