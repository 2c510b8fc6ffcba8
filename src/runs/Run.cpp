#include "runs/Run.h"

#include "files/Names.h"
#include "runs/Pauses.h"
#include "tools/Threads.h"
#include "tools/ToolRun.h"

#include <QCoreApplication>
#include <algorithm>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(runs)
};

void poll() { std::this_thread::sleep_for(pauses().poll); }

QStringList describe(const std::vector<RunState::Item> &items)
{
    QStringList names;
    for (const RunState::Item &item : items)
        names.append(u"%1 (%2)"_s.arg(quillorentLibrary::lastPathComponent(item.path), item.stage));
    return names;
}

} // namespace

Pauses &pauses()
{
    static Pauses inForce;
    return inForce;
}

qsizetype workerLimit() { return std::max(1L, sysconf(_SC_NPROCESSORS_CONF)); }

Run::Run(RunState &state, RunMonitor &monitor, RunRecord record, FolderLock lock)
    : m_state(state), m_monitor(monitor), m_journal(std::move(record)), m_lock(std::move(lock))
{
}

void Run::execute()
{
    m_journal.begin(); // on disk before the first tool starts
    m_monitor.began();
    work();
    waitForWorkers();
    m_monitor.ended(summary());
    endWorkers();
    conclude();
    m_state.endRun();
}

void Run::conclude()
{
    const QString text = summary(); // looks at the record itself
    m_journal.end([this, &text](RunRecord &record) {
        for (ItemRecord &item : record.items)
            if (item.outcome == Outcome::Open) item.outcome = Outcome::Cancelled;
        const bool succeeded =
            m_state.failure().isEmpty() &&
            std::all_of(record.items.begin(), record.items.end(),
                        [](const ItemRecord &item) { return item.outcome == Outcome::Succeeded; });
        // What had failed before the user cancelled what was left of it has failed.
        const bool isCancelled = m_state.isCancelledByUser() && m_state.failure().isEmpty();
        record.outcome = isCancelled ? Outcome::Cancelled : succeeded ? Outcome::Succeeded : Outcome::Failed;
        record.summary = text;
        record.ended = QDateTime::currentDateTimeUtc();
    });
    m_journal.read([this](const RunRecord &record) { m_monitor.concluded(record); });
}

QStringList Run::describeKept() const
{
    QStringList sentences;
    m_journal.read([&](const RunRecord &record) {
        for (const ItemRecord &item : record.items)
            for (const Aside &kept : item.kept)
                sentences.append(
                    Words::tr("\"%1\" was in the way and is called \"%2\" now.").arg(kept.from, kept.to));
    });
    constexpr qsizetype most = 12; // as many as a person reads; the record has all
    const qsizetype more = sentences.size() - most;
    if (more > 0)
        sentences =
            sentences.first(most) +
            QStringList{Words::tr("%n more were in the way, and their names begin with \"kept-\" now.",
                                  nullptr, int(more))};
    return sentences;
}

bool Run::launchWorker(const QString &threadName, const QString &item, std::function<void()> body,
                       const std::function<bool()> &mayStart)
{
    while ((m_state.threadsRunning().size() >= workerLimit() || !mayStart()) && !isCancelled())
        poll();
    if (isCancelled()) return false;
    m_state.beginItem(item);
    detachThread(threadName, std::move(body));
    return true;
}

void Run::waitForWorkers() const
{
    while (!m_state.threadsRunning().isEmpty() && !isCancelled())
        poll();
}

void Run::endWorkers()
{
    constexpr auto unnoticed = 100ms; // the last worker of a run that went well is gone by then
    const auto began = std::chrono::steady_clock::now();
    QStringList told;
    // A worker between two looks at the flag may start one more tool, hence the loop.
    for (auto running = m_state.itemsRunning(); !running.empty(); running = m_state.itemsRunning()) {
        if (m_state.isCancelledByUser()) endTools();
        const QStringList names = describe(running);
        if (names != told && std::chrono::steady_clock::now() - began > unnoticed)
            m_monitor.toolsStillRun(told = names);
        poll();
    }
    if (!told.isEmpty()) m_monitor.toolsStillRun({});
}

void LoneRun::executeAlone(const std::function<void()> &item)
{
    journal().begin();
    item();
    conclude();
}
