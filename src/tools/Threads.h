#pragma once

#include <QString>
#include <chrono>
#include <functional>

/// Starts a thread that nobody waits for by itself: a run, a worker, a save that waits. It bears `name` (15
/// bytes at most are seen in a debugger), and an exception that escapes `body` is logged and ends that thread
/// alone.
void detachThread(const QString &name, std::function<void()> body);

/// Waits until every such thread has ended, and joins them; says whether all did in time.
[[nodiscard]] bool waitForThreads(std::chrono::milliseconds atMost);
