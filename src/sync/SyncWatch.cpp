#include "sync/SyncWatch.h"

#include "app/Clock.h"
#include "app/Pauses.h"
#include "app/QuillorentAppDelegate.h"
#include "files/Sizes.h"
#include "sync/SyncArguments.h"
#include "tools/Threads.h"
#include "tools/ToolRun.h"

#include <QLocale>
#include <algorithm>
#include <atomic>
#include <thread>

using namespace std::chrono_literals;

namespace {

QString dataSize(double bytes)
{
    return QLocale().formattedDataSize(qint64(bytes), 1, QLocale::DataSizeSIFormat);
}

/// Which synchronisation it is: a measuring that takes long may outlive its own.
std::atomic<int> newest = 0;

quint64 sizeThere(const SyncRequest &request)
{
    const QString root = syncArguments::rootOf(request.entries);
    quint64 bytes = 0;
    for (const QString &entry : request.entries)
        bytes +=
            quillorentLibrary::calculateSize(request.destination + u'/' + syncArguments::lineOf(entry, root));
    return bytes;
}

/// Looks again and again by how much the entries have grown at a local destination; the body of a thread of
/// its own, since looking may take long.
void measureGrowth(int run)
{
    constexpr int restPerWork = 10; // so that it takes little of the disk from rsync
    QuillorentAppDelegate &delegate = theDelegate();
    const SyncRequest request = readSyncRequest();
    if (request.isRemote) return;
    const auto goesOn = [&] { return delegate.isRunActive() && run == newest; };
    const quint64 before = sizeThere(request);
    while (goesOn()) {
        const auto began = delegate.elapsed();
        const quint64 now = sizeThere(request);
        if (goesOn() && now > before) delegate.setSizeDone(double(now - before));
        const auto next =
            began + std::max<std::chrono::milliseconds>(500ms, restPerWork * (delegate.elapsed() - began));
        while (goesOn() && delegate.elapsed() < next)
            std::this_thread::sleep_for(pauses().poll);
    }
}

/// What can be seen of a tool that says nothing.
QString figures(const QuillorentAppDelegate &delegate)
{
    QString text = u"Time: "_qs + clockText(delegate.elapsed());
    if (const quint64 read = bytesReadByTools(); read > 0) text += u", read: "_qs + dataSize(double(read));
    if (delegate.sizeDone() > 0) text += u", more at the destination: "_qs + dataSize(delegate.sizeDone());
    return text;
}

} // namespace

void watchSync()
{
    constexpr auto interval = 200ms;
    QuillorentAppDelegate &delegate = theDelegate();
    delegate.setSizeDone(0);
    detachThread(u"sync-size"_qs, [run = ++newest] { measureGrowth(run); });
    auto shown = -interval;
    while (delegate.isRunActive()) {
        if (delegate.isCancelledByUser()) endTools();
        if (const auto now = delegate.elapsed(); now - shown >= interval) {
            delegate.progress03progressLabel02.setText(figures(delegate));
            shown = now;
        }
        std::this_thread::sleep_for(pauses().poll);
    }
}
