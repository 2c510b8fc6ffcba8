#include "app/QuillorentAppDelegate.h"
#include "app/Start.h"
#include "app/synchronisation/SyncMonitor.h"
#include "app/synchronisation/SyncOrders.h"
#include "sync/Preview.h"
#include "sync/SyncLook.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(synchronisation)
};

bool deletes(const SyncOrder &order) { return order.deletesExtra || order.removesSources; }

Findings look(const SyncOrder &order, bool deletesUnseen)
{
    Findings findings;
    if (deletesUnseen)
        findings.addConcern(Words::tr(
            "The profile deletes files, at the destination or here. The window's preview shows which."));
    lookAtSync(order, findings);
    return findings;
}

void transfer(QuillorentAppDelegate &delegate, const SyncOrder &order, RunMonitor &monitor)
{
    if (const QString reason = makeDestination(order); !reason.isEmpty()) {
        delegate.warn(reason);
        delegate.endRun();
        return;
    }
    SyncDisplay display(delegate);
    display.begin(Words::tr("Synchronising…"));
    runSync(order, delegate, monitor, display);
}

} // namespace

/// Finds out what would be done and shows it, unless nothing of it is worth a look; what is shown can be done
/// then. What was `confirmed` is not asked again; none where nobody was asked.
void QuillorentAppDelegate::previewFirst(const SyncOrder &order, RunMonitor &monitor, PreviewFor purpose,
                                         const std::shared_ptr<const Preview> &confirmed)
{
    SyncDisplay display(*this);
    display.begin(Words::tr("Comparing both sides…"));
    runPreview(order, *this, monitor, display);
    const auto preview = display.preview();
    if (!preview || isCancelledByUser()) return;
    showPreview(preview);
    if (preview->rows.empty() && !failure().isEmpty()) return;
    QString question = purpose == PreviewFor::Question ? askForDeletions(*preview) : QString();
    if (confirmed && !question.isEmpty())
        question = deletesMore(*preview, *confirmed)
                       ? Words::tr("There is more to delete by now. ") + question
                       : QString();
    if (purpose == PreviewFor::Question && question.isEmpty() && failure().isEmpty()) {
        if (tryBeginRun()) carryOut(prepareTransfer(order));
        return;
    }
    if (!question.isEmpty()) previewText01.setText(question + u'\n' + previewText01.text());
    m_previewedOrder.set(order);
    previewPanel01.beginSheet();
}

/// The transfer alone: what there is to ask was asked.
RunStart QuillorentAppDelegate::prepareTransfer(const SyncOrder &order)
{
    return {.sheet = syncSheet(*this),
            .look = [](const std::function<bool()> &) { return Findings(); },
            .work = [this, order](RunMonitor &monitor) { transfer(*this, order, monitor); }};
}

/// Looks once more at what would be deleted: the answer may have come long after the question, when a disk
/// was gone or files had come.
RunStart QuillorentAppDelegate::prepareConfirmed(const SyncOrder &order)
{
    RunStart start = prepareTransfer(order);
    if (deletes(order))
        start.work = [this, order, confirmed = m_previewTable.preview()](RunMonitor &monitor) {
            previewFirst(order, monitor, PreviewFor::Question, confirmed);
        };
    return start;
}

RunStart QuillorentAppDelegate::prepareSync(bool isPreview)
{
    const SyncOrder order = readSyncOrder();
    const bool deletesUnseen = !isPreview && deletes(order) && !previewsDeletions;
    SyncDisplay(*this).begin(Words::tr("Looking at both sides…"));
    const auto work = [this, order, isPreview](RunMonitor &monitor) {
        if (isPreview)
            previewFirst(order, monitor, PreviewFor::Looking);
        else if (deletes(order) && previewsDeletions)
            previewFirst(order, monitor, PreviewFor::Question);
        else
            transfer(*this, order, monitor);
    };
    return {
        .sheet = syncSheet(*this),
        .look = [order, deletesUnseen](const std::function<bool()> &) { return look(order, deletesUnseen); },
        .work = work};
}

void QuillorentAppDelegate::buttonLaunch03()
{
    startRun(u"sync-run"_s, [this] { return prepareSync(false); });
}

void QuillorentAppDelegate::previewButton01Action()
{
    startRun(u"preview-run"_s, [this] { return prepareSync(true); });
}

void QuillorentAppDelegate::showPreview(const std::shared_ptr<const Preview> &preview)
{
    m_previewTable.setPreview(preview);
    previewTableView.setSelectedRows({});
    previewTableView.reloadData();
    previewText01.setText(summarize(*preview));
}

void QuillorentAppDelegate::previewPanel01Close() { closeSheet(previewPanel01); }

void QuillorentAppDelegate::previewPanel01Launch()
{
    previewPanel01Close();
    startRun(u"sync-run"_s, [this] { return prepareConfirmed(m_previewedOrder()); });
}
