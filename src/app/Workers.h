#pragma once

#include <QString>
#include <functional>

// The worker threads of a run, one an item. All of it is for the run's own thread.

/// How many may work at once: as many as the machine has processors, whether they are busy or not.
[[nodiscard]] qsizetype workerLimit();

/// Waits until fewer than workerLimit() work, then starts one for `item`; its body ends with
/// RunState::endItem(). False, and nothing is started, where the run was cancelled by then.
[[nodiscard]] bool launchWorker(const QString &threadName, const QString &item, std::function<void()> body);

/// Waits for the workers. A raised flag ends the waiting at once, even while tools still run: nobody who
/// cancels wants to wait for them.
void waitForWorkers();

/// Waits until no worker is left, and ends the tools of a run that the user cancelled. The run is over only
/// then: a next one would write the same files.
void endWorkers();

namespace quillorentLibrary {

/// Do nothing: a run is ended by its cancel flag alone. Kept as the places where another way to end one would
/// go.
void stopProcess01();
void stopProcess02();
void stopProcess03();

} // namespace quillorentLibrary
