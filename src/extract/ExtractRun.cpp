#include "extract/ExtractRun.h"

#include "extract/ArchiveExtraction.h"
#include "extract/ArchiveListing.h"
#include "extract/Candidates.h"
#include "extract/Explanation.h"
#include "extract/ExtractArguments.h"
#include "extract/VolumeSet.h"
#include "files/Sizes.h"
#include "runs/Pauses.h"
#include "runs/Run.h"
#include "tools/ToolRun.h"

#include <QCoreApplication>
#include <QLocale>
#include <chrono>
#include <memory>
#include <optional>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(extract)
};

struct Damage {
    QString archive;
    QString reason;
};

class ExtractRun : public Run {
public:
    ExtractRun(const ExtractOrder &order, RunState &state, RunMonitor &monitor, FolderLock lock,
               const FoundDamage &foundDamage);

protected:
    void work() override;
    [[nodiscard]] QString summary() const override;

private:
    [[nodiscard]] QString success() const;
    [[nodiscard]] std::optional<Damage> findDamage();
    [[nodiscard]] ToolResult test(const QString &archive);
    void measure();
    void launchWorkers();
    [[nodiscard]] bool isFree(const ExtractItem &item) const;

    const ExtractOrder &m_order;
    const FoundDamage &m_foundDamage;
    mutable ExtractShared m_shared;
};

QStringList archivesOf(const ExtractOrder &order)
{
    QStringList archives;
    for (const ExtractItem &item : order.items)
        archives.append(item.archive);
    return archives;
}

RunRecord recordOf(const ExtractOrder &order)
{
    RunRecord record{.kind = order.listing ? u"look"_s : u"extract"_s,
                     .profile = order.profile,
                     .folder = order.folder,
                     .began = QDateTime::currentDateTimeUtc()};
    for (const ExtractItem &item : order.items)
        record.items.append({.path = item.archive});
    for (const QString &archive : namesLeftOut(order.shown, archivesOf(order)))
        record.items.append({.path = archive,
                             .outcome = Outcome::Skipped,
                             .reason = Words::tr("its name is that of a later volume")});
    return record;
}

ExtractRun::ExtractRun(const ExtractOrder &order, RunState &state, RunMonitor &monitor, FolderLock lock,
                       const FoundDamage &foundDamage)
    : Run(state, monitor, recordOf(order), std::move(lock)), m_order(order), m_foundDamage(foundDamage)
{
}

void ExtractRun::work()
{
    // The sheet stays for a moment, so that it is seen; that is time to test in.
    const auto seen = std::chrono::steady_clock::now() + pauses().beforeMeasuring;
    const std::optional<Damage> damage = findDamage();
    if (isCancelled()) return;
    std::this_thread::sleep_until(seen);
    if (isCancelled()) return;

    // One damaged archive, and nothing is extracted at all.
    if (damage) {
        m_state.setFailure(damage->archive, damage->reason);
        m_foundDamage(damage->archive, damage->reason);
        return;
    }
    measure();
    launchWorkers();
}

/// Of the first archive that fails its test; tests no more once the run is cancelled.
std::optional<Damage> ExtractRun::findDamage()
{
    for (const ExtractItem &item : m_order.items) {
        if (isCancelled()) break;
        const ToolResult result = test(item.archive);
        if (result.isSilent() || isCancelled()) continue;
        return Damage{item.archive,
                      explain({.kind = FailedStage::Kind::Test, .tool = result, .archive = item.archive})};
    }
    return {};
}

/// On a thread of its own: testing a large archive takes long, and can be cancelled like any stage.
ToolResult ExtractRun::test(const QString &archive)
{
    const auto result = std::make_shared<ToolResult>();
    const bool isLaunched = launchWorker(u"extract-test"_s, archive, [this, archive, result] {
        m_state.setStage(archive, u"testing"_s, {.share = 1, .bytes = double(bytesOfArchive(archive))});
        *result = runTool(m_order.archiver, extractArguments::test(archive), lockDescriptor(),
                          [this, archive](int processId) { m_state.setTool(archive, processId); });
        m_state.endItem(archive);
    });
    if (!isLaunched) return {};
    waitForWorkers();
    endWorkers();
    return *result;
}

void ExtractRun::measure()
{
    // Later volumes count as well, though only the first is counted when its set is done.
    for (const QString &archive : m_order.shown)
        m_state.addToDo(double(quillorentLibrary::calculateSize(archive)));
    for (const ExtractItem &item : m_order.items)
        m_state.planItem(item.archive, double(bytesOfArchive(item.archive)));
    m_monitor.measured(m_state.sizeToDo());
}

/// Whether no archive that is worked on has a file of the same name on its way.
bool ExtractRun::isFree(const ExtractItem &item) const
{
    const auto pathsOf = [](const ExtractItem &of) {
        return QStringList{of.archive, of.paths.encrypted, of.paths.inner, of.paths.leftover};
    };
    const QStringList running = m_state.threadsRunning();
    for (const ExtractItem &other : m_order.items) {
        if (!running.contains(other.archive)) continue;
        for (const QString &path : pathsOf(other))
            if (pathsOf(item).contains(path)) return false;
    }
    return true;
}

void ExtractRun::launchWorkers()
{
    for (qsizetype index = 0; index < m_order.items.size(); ++index) {
        const ExtractItem &item = m_order.items[index];
        const auto body = [this, index] { extractItem(*this, m_order, index, m_shared); };
        if (!launchWorker(u"extract"_s, item.archive, body, [this, &item] { return isFree(item); })) return;
    }
}

QString ExtractRun::success() const
{
    if (m_order.listing)
        return Words::tr("Looked into the archive: it holds %n file(s) and folder(s).", nullptr,
                         int(m_order.listing->entries.size()));
    if (m_order.isPart())
        return Words::tr("Brought back what was chosen, %n file(s) or folder(s), to \"%1\".", nullptr,
                         int(m_order.chosen.size()))
            .arg(m_order.folder);
    const QLocale locale;
    return Words::tr("Extracted %1 of %2 into \"%3\".")
        .arg(locale.toString(qint64(m_state.foldersDone())), locale.toString(m_order.items.size()),
             m_order.folder);
}

QString ExtractRun::summary() const
{
    QStringList sentences;
    if (!m_state.failure().isEmpty())
        sentences.append(Words::tr("Failed: %1").arg(m_state.failure()));
    else if (m_state.isCancelledByUser() && m_order.listing)
        sentences.append(Words::tr("Cancelled. Nothing of yours was changed."));
    else if (m_state.isCancelledByUser() && m_order.isPart())
        sentences.append(Words::tr("Cancelled. What was chosen may have been brought back in part."));
    else if (m_state.isCancelledByUser())
        sentences.append(Words::tr("Cancelled. Files left in the extraction folder may be incomplete."));
    else
        sentences.append(success());
    const std::lock_guard lock(m_shared.mutex);
    for (const QString &folder : m_shared.ownFolders)
        sentences.append(
            Words::tr("\"%1\" has what would have replaced files of another archive.").arg(folder));
    const QStringList leftOut = namesLeftOut(m_order.shown, archivesOf(m_order));
    if (!leftOut.isEmpty())
        sentences.append(
            Words::tr("Not extracted, as they look like later volumes: %1.").arg(leftOut.join(u", "_s)));
    sentences += describeKept();
    return sentences.join(u' ');
}

} // namespace

void runExtraction(const ExtractOrder &order, RunState &state, RunMonitor &monitor, FolderLock lock,
                   const FoundDamage &foundDamage)
{
    ExtractRun(order, state, monitor, std::move(lock), foundDamage).execute();
}

void runExtractionOfOne(const ExtractOrder &order, RunState &state, RunMonitor &monitor)
{
    ExtractShared shared;
    LoneRun run(state, monitor, recordOf(order));
    run.executeAlone([&] { extractItem(run, order, 0, shared); });
}
