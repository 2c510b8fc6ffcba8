#include "sync/SyncRun.h"

#include "app/Clock.h"
#include "app/QuillorentAppDelegate.h"
#include "sync/ListFile.h"
#include "sync/Preview.h"
#include "sync/SyncArguments.h"
#include "sync/SyncExplanation.h"
#include "sync/SyncWatch.h"
#include "tools/RegisteredTool.h"
#include "tools/Threads.h"

namespace {

void begin(const QString &what)
{
    QuillorentAppDelegate &delegate = theDelegate();
    delegate.setCancelFlag(false);
    delegate.beginRun();
    delegate.buttonCancel03.setTitle(u"Cancel"_qs);
    delegate.outputText03.setText({});
    delegate.progress03progressLabel01.setText(what);
    delegate.progress03progressLabel02.setText(u"Time: "_qs + clockText({}));
    delegate.progressPanel03.beginSheet();
    delegate.consoleTextView01.setText({});
    delegate.progress03progressIndicator01.setIndeterminate(true);
    delegate.progress03progressIndicator01.startAnimation();
    detachThread(u"sync-watch"_qs, watchSync);
}

void end(const QString &summary)
{
    QuillorentAppDelegate &delegate = theDelegate();
    delegate.progress03progressIndicator01.stopAnimation();
    delegate.outputText03.setText(summary);
    delegate.progressPanel03.close();
    // Who cancelled knows why rsync complains.
    if (!delegate.consoleTextView01.text().isEmpty() && !delegate.isCancelledByUser())
        delegate.consolePanel01.orderFront();
    delegate.endRun();
}

using Arguments = QStringList (*)(const SyncRequest &, const QString &);

/// Writes the list, and gives rsync the arguments that `make` makes with it.
ToolResult runRsync(const SyncRequest &request, Arguments make)
{
    QuillorentAppDelegate &delegate = theDelegate();
    if (delegate.cancelFlag()) return {u"Cancelled before it began.\n"_qs, false};
    const ListFile list = makeListFile(syncArguments::list(request.entries));
    if (!list.reason.isEmpty()) return {list.reason + u'\n', false};
    delegate.tempFile.set(list.path);
    return runRegisteredTool(u"RSync"_qs, make(request, list.path));
}

/// What rsync said on the console, below a sentence on what it means.
void showFailure(const ToolResult &result, const SyncRequest &request)
{
    QuillorentAppDelegate &delegate = theDelegate();
    QString explanation;
    if (delegate.isCancelledByUser())
        explanation = u"Cancelled."_qs;
    else if (!result.output)
        explanation = u"rsync's message is not readable text."_qs;
    else if (result.wasStarted)
        explanation = explainSync(result.text(), request);
    delegate.consoleTextView01.setText({});
    delegate.consoleTextView01.append(explanation + u"\nRSync ERROR : \n"_qs + result.text() +
                                      u"\n *** ERROR! *** "_qs);
    delegate.setFailure(u"rsync"_qs, explanation.isEmpty() ? result.text().trimmed() : explanation);
}

/// Where nothing was said. What goes wrong on a server may end rsync before the words for it have arrived;
/// its exit status tells even then.
void noteSilentFailure(const ToolResult &result)
{
    if (result.exitStatus == 0) return;
    theDelegate().setFailure(u"rsync"_qs,
                             u"It ended with status %1 and did not say why; not everything is copied. "
                             "Run it again."_qs.arg(result.exitStatus));
}

QString summaryOfSync(const SyncRequest &request)
{
    const QuillorentAppDelegate &delegate = theDelegate();
    if (delegate.isCancelledByUser())
        return u"Cancelled. What was copied stays; the next run goes on from there."_qs;
    if (!delegate.failure().isEmpty()) return u"Failed. "_qs + delegate.failure();
    return u"Synchronised %1 in %2."_qs.arg(
        request.entries.size() == 1 ? u"1 entry"_qs : u"%1 entries"_qs.arg(request.entries.size()),
        clockText(delegate.elapsed()));
}

} // namespace

void quillorentLibrary::launchSync(const QString &)
{
    QuillorentAppDelegate &delegate = theDelegate();
    begin(u"Synchronising…"_qs);
    runProcess3({delegate.syncTextSourcePath.text(), delegate.syncTextDestPath.text()});
    end(summaryOfSync(readSyncRequest()));
}

void quillorentLibrary::runProcess3(const QStringList &)
{
    const SyncRequest request = readSyncRequest();
    const ToolResult result = runRsync(request, syncArguments::transfer);
    if (!result.isSilent())
        showFailure(result, request);
    else
        noteSilentFailure(result);
    if (const QStringList misnamed = syncArguments::misnamedEntries(request.entries); !misnamed.isEmpty())
        theDelegate().setFailure(u"Not found"_qs, misnamed.join(u", "_qs));
}

void quillorentLibrary::launchPreview(const QString &)
{
    QuillorentAppDelegate &delegate = theDelegate();
    begin(u"Comparing both sides…"_qs);
    const SyncRequest request = readSyncRequest();
    const ToolResult result = runRsync(request, syncArguments::preview);
    const auto preview = std::make_shared<const Preview>(
        readPreview(result.wasStarted ? result.text() : QString(), request.removesSources));
    if (!result.wasStarted || !result.output)
        showFailure(result, request);
    else if (!preview->complaints.isEmpty())
        showFailure({preview->complaints}, request);
    else
        noteSilentFailure(result);
    delegate.showPreview(preview);
    const bool isCancelled = delegate.isCancelledByUser();
    const bool hasResult = !preview->rows.empty() || delegate.failure().isEmpty();
    end(isCancelled ? u"Preview cancelled."_qs : QString());
    if (hasResult && !isCancelled) delegate.previewPanel01.beginSheet();
}
