#include "sync/SyncFigures.h"

#include "files/Sizes.h"
#include "runs/Clock.h"
#include "runs/Pace.h"
#include "runs/Pauses.h"
#include "runs/ProgressWords.h"
#include "runs/RunState.h"
#include "sync/SyncArguments.h"
#include "tools/Threads.h"
#include "tools/ToolRun.h"

#include <QCoreApplication>
#include <algorithm>
#include <atomic>
#include <thread>

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

/// Shared with the thread that measures, which may be in the midst of a large folder when the run ends.
struct SyncFigures::Growth {
    explicit Growth(SyncOrder given) : order(std::move(given)) {}

    const SyncOrder order;
    std::atomic<bool> isWanted = true;
    std::atomic<quint64> bytes = 0;

    void measure();
    [[nodiscard]] quint64 sizeThere() const;
};

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(Progress)
};

} // namespace

quint64 SyncFigures::Growth::sizeThere() const
{
    const QString root = syncArguments::rootOf(order.entries);
    quint64 sum = 0;
    for (const QString &entry : order.entries)
        sum += quillorentLibrary::calculateSize(order.destination + u'/' + syncArguments::lineOf(entry, root),
                                                [this] { return isWanted.load(); });
    return sum;
}

void SyncFigures::Growth::measure()
{
    constexpr int restPerWork = 10; // so that it takes little of the disk from rsync
    const quint64 before = sizeThere();
    while (isWanted) {
        const auto began = std::chrono::steady_clock::now();
        const quint64 now = sizeThere();
        if (isWanted && now > before) bytes = now - before;
        const auto ended = std::chrono::steady_clock::now();
        const auto next =
            ended + std::max<std::chrono::steady_clock::duration>(500ms, restPerWork * (ended - began));
        while (isWanted && std::chrono::steady_clock::now() < next)
            std::this_thread::sleep_for(pauses().poll);
    }
}

SyncFigures::SyncFigures(const SyncOrder &order, RunState &state)
    : m_state(state), m_growth(std::make_shared<Growth>(order))
{
    if (!order.isRemote) detachThread(u"sync-size"_s, [growth = m_growth] { growth->measure(); });
}

SyncFigures::~SyncFigures() { m_growth->isWanted = false; }

void SyncFigures::watch(const std::function<void(const QString &)> &tell) const
{
    constexpr auto interval = 200ms;
    auto shown = -interval;
    RunFigures figures; // for its words
    Pace pace;
    while (!m_state.threadsRunning().isEmpty() && !m_state.cancelFlag()) {
        if (const auto now = m_state.elapsed(); now - shown >= interval) {
            QString text = Words::tr("Time: %1").arg(clockText(now));
            const auto read = double(bytesReadByTools());
            if (read > 0) text += u", "_s + Words::tr("read: %1").arg(progressWords::size(read));
            pace.note(std::chrono::steady_clock::now(), read);
            figures.bytesPerSecond = pace.perSecond();
            if (figures.bytesPerSecond) text += u", "_s + progressWords::pace(figures);
            m_state.setSizeDone(double(m_growth->bytes));
            if (m_growth->bytes > 0)
                text += u", "_s + Words::tr("more at the destination: %1")
                                      .arg(progressWords::size(double(m_growth->bytes)));
            tell(text);
            shown = now;
        }
        std::this_thread::sleep_for(pauses().poll);
    }
}
