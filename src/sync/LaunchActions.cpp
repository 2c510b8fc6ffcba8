#include "app/QuillorentAppDelegate.h"
#include "sync/Preview.h"
#include "sync/SyncRequest.h"
#include "sync/SyncRun.h"
#include "tools/Threads.h"

namespace {

QString whatIsWrong(const SyncRequest &request)
{
    if (const QString missing = whatIsMissing(request); !missing.isEmpty()) return missing;
    if (theDelegate().isRunActive())
        return u"The last run is still ending its tools. Try again in a moment."_qs;
    return checkDestination(request);
}

/// Starts `body` on a thread of its own, or says what keeps it from starting.
void start(const QString &wrong, void (*body)(const QString &profile))
{
    QuillorentAppDelegate &delegate = theDelegate();
    if (!wrong.isEmpty()) {
        delegate.warn(wrong);
        return;
    }
    // Set before the thread exists: a second press must find the run.
    delegate.beginRun();
    detachThread(u"sync-run"_qs, [body, profile = delegate.currentProfile()] { body(profile); });
}

} // namespace

void QuillorentAppDelegate::buttonLaunch03()
{
    const SyncRequest request = readSyncRequest();
    QString wrong = whatIsWrong(request);
    if (wrong.isEmpty()) wrong = makeDestination(request);
    start(wrong, quillorentLibrary::launchSync);
}

void QuillorentAppDelegate::previewButton01Action()
{
    start(whatIsWrong(readSyncRequest()), quillorentLibrary::launchPreview);
}

void QuillorentAppDelegate::showPreview(const std::shared_ptr<const Preview> &preview)
{
    m_previewTable.setPreview(preview);
    previewTableView.setSelectedRows({});
    previewTableView.reloadData();
    previewText01.setText(summarize(*preview));
}

void QuillorentAppDelegate::previewPanel01Close()
{
    previewPanel01.close();
    window.orderFront();
}

void QuillorentAppDelegate::previewPanel01Launch()
{
    previewPanel01Close();
    buttonLaunch03();
}
