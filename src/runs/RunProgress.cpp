#include "runs/RunProgress.h"

#include "tools/ToolRun.h"

#include <algorithm>
#include <cmath>

namespace {

/// What was foreseen may be too little: then it comes nearer and nearer to the end, and never stands still.
double towardsOne(double part)
{
    constexpr double certain = 0.9;
    if (part <= certain) return std::max(part, 0.0);
    return std::min(1 - (1 - certain) * std::exp((certain - part) / (1 - certain)), 0.999);
}

/// Some tools can't be looked at. They are taken to be as fast as those were that came before them.
double estimated(const RunItem &item, Pace::Time now)
{
    const std::chrono::duration<double> before = item.stageBegan - item.began;
    const std::chrono::duration<double> since = now - item.stageBegan;
    if (item.shareBefore <= 0 || item.plan.share <= 0 || before.count() <= 0) return 0;
    return since / before * item.shareBefore / item.plan.share;
}

double partOfStage(const RunItem &item, Pace::Time now)
{
    if (item.tool < 0) return 1;
    if (item.tool == 0) return 0;
    const auto read = bytesReadBy(item.tool);
    if (!read || item.plan.bytes <= 0) return towardsOne(estimated(item, now));
    return towardsOne(double(*read) / item.plan.bytes);
}

double partOf(const RunItem &item, Pace::Time now)
{
    using enum RunItem::Phase;
    if (item.phase == Waiting) return 0;
    if (item.phase != Running) return 1;
    return std::min(item.shareBefore + item.plan.share * partOfStage(item, now), 1.0);
}

} // namespace

double RunProgress::neverLess(std::size_t index, const RunItem &item, double done)
{
    if (m_shown.size() <= index) m_shown.resize(index + 1);
    Shown &shown = m_shown[index];
    if (shown.path != item.path || shown.isCounted != item.isCounted) shown = {item.path, item.isCounted};
    return shown.done = std::max(done, shown.done);
}

RunFigures RunProgress::look(Pace::Time now)
{
    RunFigures figures;
    const std::vector<RunItem> items = m_run->items();
    if (items.empty()) m_shown.clear(); // which were another run's
    for (const RunItem &item : items) {
        const double done = neverLess(figures.items.size(), item, partOf(item, now));
        figures.items.push_back({item.path, item.stage, item.phase, done});
        if (!item.isCounted) continue;
        figures.bytesToDo += item.bytes;
        figures.bytesDone += item.bytes * done;
    }
    if (figures.bytesToDo <= 0) { // nothing is known yet of this run
        m_bytesDone = 0;
        m_pace = {};
        return figures;
    }
    figures.bytesDone = m_bytesDone = std::max(figures.bytesDone, m_bytesDone);
    m_pace.note(now, m_bytesDone);
    figures.bytesPerSecond = m_pace.perSecond();
    figures.left = m_pace.left(figures.bytesToDo);
    return figures;
}
