#include "sync/SyncRun.h"

#include "runs/Clock.h"
#include "runs/Run.h"
#include "sync/ListFile.h"
#include "sync/SyncArguments.h"
#include "sync/SyncExplanation.h"
#include "sync/SyncFigures.h"
#include "tools/ToolRun.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(sync)
};

class SyncRun : public Run {
public:
    enum class Kind { Transfer, Preview };
    SyncRun(const SyncOrder &order, RunState &state, RunMonitor &monitor, SyncEvents &events, Kind kind);

    void runRsync();

protected:
    void work() override;
    [[nodiscard]] QString summary() const override;

private:
    [[nodiscard]] ToolResult rsync();
    void showFailure(const ToolResult &result);
    void noteSilentFailure(const ToolResult &result);
    void readPreviewFrom(const ToolResult &result);

    const SyncOrder &m_order;
    SyncEvents &m_events;
    const Kind m_kind;
};

const QString item = u"rsync"_s;

RunRecord recordOf(const SyncOrder &order, SyncRun::Kind kind)
{
    return {.kind = kind == SyncRun::Kind::Preview ? QString() : u"sync"_s,
            .profile = order.profile,
            .folder = syncArguments::destination(order),
            .began = QDateTime::currentDateTimeUtc(),
            .items = {{.path = item}}};
}

SyncRun::SyncRun(const SyncOrder &order, RunState &state, RunMonitor &monitor, SyncEvents &events, Kind kind)
    : Run(state, monitor, recordOf(order, kind), {}), m_order(order), m_events(events), m_kind(kind)
{
}

void SyncRun::work()
{
    // Measuring the destination takes long, and may outlive the run by a moment.
    const SyncFigures figures(m_order, m_state);
    if (!launchWorker(u"sync"_s, item, [this] { runRsync(); })) return;
    figures.watch([this](const QString &text) { m_events.sawFigures(text); });
}

void SyncRun::runRsync()
{
    m_state.setStage(item, m_kind == Kind::Preview ? u"comparing"_s : u"copying"_s);
    const ToolResult result = rsync();
    if (m_kind == Kind::Preview)
        readPreviewFrom(result);
    else if (!result.isSilent())
        showFailure(result);
    else
        noteSilentFailure(result);
    const QStringList misnamed = syncArguments::misnamedEntries(m_order.entries);
    if (m_kind == Kind::Transfer && !misnamed.isEmpty())
        m_state.setFailure(u"Not found"_s, misnamed.join(u", "_s));
    journal().changeItem(0, [this](ItemRecord &record) {
        record.outcome = m_state.failure().isEmpty() ? Outcome::Succeeded : Outcome::Failed;
        record.reason = m_state.failure();
    });
    m_state.endItem(item);
}

/// Writes the list, and runs rsync on it.
ToolResult SyncRun::rsync()
{
    if (isCancelled()) return {Words::tr("Cancelled before it began.\n"), false};
    const ListFile list = makeListFile(syncArguments::list(m_order.entries));
    if (!list.reason.isEmpty()) return {list.reason + u'\n', false};
    m_events.listed(list.path);
    const auto arguments = m_kind == Kind::Preview ? syncArguments::preview : syncArguments::transfer;
    return runTool(m_order.tool, arguments(m_order, list.path));
}

/// What rsync said on the console, below a sentence on what it means.
void SyncRun::showFailure(const ToolResult &result)
{
    QString explanation;
    if (m_state.isCancelledByUser())
        explanation = Words::tr("Cancelled.");
    else if (!result.output)
        explanation = Words::tr("rsync's message is not readable text.");
    else if (result.wasStarted)
        explanation = explainSync(result.text(), m_order);
    m_events.failed(explanation + u"\nRSync ERROR : \n"_s + result.text() + u"\n *** ERROR! *** "_s);
    m_state.setFailure(item, explanation.isEmpty() ? result.text().trimmed() : explanation);
}

/// Where nothing was said. What goes wrong on a server may end rsync before the words for it have arrived;
/// its exit status tells even then.
void SyncRun::noteSilentFailure(const ToolResult &result)
{
    if (result.exitStatus == 0) return;
    m_state.setFailure(
        item,
        Words::tr("It ended with status %1 and did not say why; not everything is copied. Run it again.")
            .arg(result.exitStatus));
}

void SyncRun::readPreviewFrom(const ToolResult &result)
{
    const auto preview = std::make_shared<const Preview>(
        readPreview(result.wasStarted ? result.text() : QString(), m_order.removesSources));
    if (!result.wasStarted || !result.output)
        showFailure(result);
    else if (!preview->complaints.isEmpty())
        showFailure({preview->complaints});
    else
        noteSilentFailure(result);
    m_events.previewed(preview);
}

QString SyncRun::summary() const
{
    if (m_kind == Kind::Preview)
        return m_state.isCancelledByUser() ? Words::tr("Preview cancelled.") : QString();
    if (m_state.isCancelledByUser())
        return Words::tr("Cancelled. What was copied stays; the next run goes on from there.");
    if (!m_state.failure().isEmpty()) return Words::tr("Failed. %1").arg(m_state.failure());
    return Words::tr("Synchronised %1 in %2.")
        .arg(Words::tr("%n entries", nullptr, int(m_order.entries.size())), clockText(m_state.elapsed()));
}

} // namespace

void runSync(const SyncOrder &order, RunState &state, RunMonitor &monitor, SyncEvents &events)
{
    SyncRun(order, state, monitor, events, SyncRun::Kind::Transfer).execute();
}

void runPreview(const SyncOrder &order, RunState &state, RunMonitor &monitor, SyncEvents &events)
{
    SyncRun(order, state, monitor, events, SyncRun::Kind::Preview).execute();
}

void runRsyncAlone(const SyncOrder &order, RunState &state, RunMonitor &monitor, SyncEvents &events)
{
    SyncRun(order, state, monitor, events, SyncRun::Kind::Transfer).runRsync();
}
