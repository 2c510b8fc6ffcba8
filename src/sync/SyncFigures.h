#pragma once

#include "sync/SyncOrder.h"

#include <functional>
#include <memory>

class RunState;

/// What can be seen of rsync, which says nothing: how long it runs, how much it has read, by how much the
/// entries have grown at a local destination. That is measured on a thread of its own, which ends soon after
/// this does.
class SyncFigures {
public:
    SyncFigures(const SyncOrder &order, RunState &state);
    ~SyncFigures();
    SyncFigures(const SyncFigures &) = delete;
    SyncFigures &operator=(const SyncFigures &) = delete;

    /// Tells several times a second, until no item runs any more or the run is cancelled.
    void watch(const std::function<void(const QString &)> &tell) const;

private:
    struct Growth;
    RunState &m_state;
    std::shared_ptr<Growth> m_growth;
};
