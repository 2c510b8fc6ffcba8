#pragma once

#include "sync/Preview.h"
#include "sync/SyncOrder.h"

#include <memory>

class RunMonitor;
class RunState;

/// Where a synchronisation tells what no other run does.
class SyncEvents {
public:
    SyncEvents() = default;
    virtual ~SyncEvents() = default;
    SyncEvents(const SyncEvents &) = delete;
    SyncEvents &operator=(const SyncEvents &) = delete;

    virtual void listed(const QString &listFile) = 0; ///< the file that tells rsync the entries
    virtual void sawFigures(const QString &text) = 0; ///< how far it is
    virtual void failed(const QString &text) = 0;     ///< the console's whole text from now on
    virtual void previewed(const std::shared_ptr<const Preview> &preview) = 0;
};

/// Runs rsync once on what the order says, on the calling thread and a worker; returns at its end. The state
/// was begun; it is at rest again afterwards.
void runSync(const SyncOrder &order, RunState &state, RunMonitor &monitor, SyncEvents &events);

/// The same, but copies and deletes nothing: it finds out what would be copied and deleted.
void runPreview(const SyncOrder &order, RunState &state, RunMonitor &monitor, SyncEvents &events);

/// Runs rsync once on the calling thread, without a sheet and without a summary.
void runRsyncAlone(const SyncOrder &order, RunState &state, RunMonitor &monitor, SyncEvents &events);
