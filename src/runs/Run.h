#pragma once

#include "files/FolderLock.h"
#include "runs/RunJournal.h"
#include "runs/RunMonitor.h"
#include "runs/RunState.h"

#include <functional>

/// How many items may be worked on at once: as many as the machine has processors, whether they are busy or
/// not.
[[nodiscard]] qsizetype workerLimit();

/// One run, step by step, on a thread of its own. The state was begun by whoever starts it, and is at rest
/// again when execute() returns.
class Run {
public:
    /// `record` names the run and its items; `lock` holds the folder that is written to.
    Run(RunState &state, RunMonitor &monitor, RunRecord record, FolderLock lock);
    virtual ~Run() = default;
    Run(const Run &) = delete;
    Run &operator=(const Run &) = delete;

    /// Record, sheet, work, waiting, summary, and the end of the tools that are left.
    void execute();

    [[nodiscard]] RunState &state() { return m_state; }
    [[nodiscard]] RunMonitor &monitor() { return m_monitor; }
    [[nodiscard]] RunJournal &journal() { return m_journal; }
    [[nodiscard]] int lockDescriptor() const { return m_lock.descriptor(); }

protected:
    virtual void work() = 0;
    [[nodiscard]] virtual QString summary() const = 0;

    /// Waits until fewer than workerLimit() work and `mayStart` says yes, then starts one for `item`; its
    /// body ends with RunState::endItem(). False, and nothing is started, where the run was cancelled by
    /// then.
    [[nodiscard]] bool launchWorker(
        const QString &threadName, const QString &item, std::function<void()> body,
        const std::function<bool()> &mayStart = [] { return true; });

    /// Waits for the workers. A raised flag ends the waiting at once, even while tools still run: nobody who
    /// cancels wants to wait for them.
    void waitForWorkers() const;

    /// Waits until no worker is left, tells of those that take their time, and ends their tools once the user
    /// cancels. The run is over only then: a next one would write the same files.
    void endWorkers();

    /// A sentence for each file that was in the way, and has another name now.
    [[nodiscard]] QStringList describeKept() const;

    [[nodiscard]] bool isCancelled() const { return m_state.cancelFlag(); }

    RunState &m_state;
    RunMonitor &m_monitor;

    void conclude();

private:
    RunJournal m_journal;
    FolderLock m_lock;
};

/// A run of one item on the calling thread, without a sheet, a summary and a hold on a folder.
class LoneRun : public Run {
public:
    LoneRun(RunState &state, RunMonitor &monitor, RunRecord record)
        : Run(state, monitor, std::move(record), {})
    {
    }
    void executeAlone(const std::function<void()> &item);

protected:
    void work() override {}
    [[nodiscard]] QString summary() const override { return m_state.failure(); }
};
