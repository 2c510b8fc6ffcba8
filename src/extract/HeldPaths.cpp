#include "extract/HeldPaths.h"

#include "runs/Pauses.h"

#include <algorithm>
#include <thread>
#include <utility>

bool PathsUnderWay::take(const QStringList &paths)
{
    const std::lock_guard lock(m_mutex);
    const auto isTaken = [this](const QString &path) { return m_paths.contains(path); };
    if (std::any_of(paths.begin(), paths.end(), isTaken)) return false;
    m_paths.unite({paths.begin(), paths.end()});
    return true;
}

void PathsUnderWay::giveBack(const QStringList &paths)
{
    const std::lock_guard lock(m_mutex);
    m_paths.subtract({paths.begin(), paths.end()});
}

bool HeldPaths::hold(const QStringList &paths, const std::function<bool()> &isCancelled)
{
    for (; !isCancelled(); std::this_thread::sleep_for(pauses().poll)) {
        if (!m_all.take(paths)) continue;
        m_paths = paths;
        return true;
    }
    return false;
}

void HeldPaths::letGo() { m_all.giveBack(std::exchange(m_paths, {})); }
