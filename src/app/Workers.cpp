#include "app/Workers.h"

#include "app/Pauses.h"
#include "app/QuillorentAppDelegate.h"
#include "tools/Threads.h"
#include "tools/ToolRun.h"

#include <algorithm>
#include <thread>
#include <unistd.h>

namespace {

void poll() { std::this_thread::sleep_for(pauses().poll); }

} // namespace

qsizetype workerLimit() { return std::max(1L, sysconf(_SC_NPROCESSORS_CONF)); }

bool launchWorker(const QString &threadName, const QString &item, std::function<void()> body)
{
    QuillorentAppDelegate &delegate = theDelegate();
    while (delegate.threadsRunning().size() >= workerLimit() && !delegate.cancelFlag())
        poll();
    if (delegate.cancelFlag()) return false;
    delegate.beginItem(item);
    detachThread(threadName, std::move(body));
    return true;
}

void waitForWorkers()
{
    while (!theDelegate().threadsRunning().isEmpty() && !theDelegate().cancelFlag())
        poll();
}

void endWorkers()
{
    // A worker between two looks at the flag may start one more tool, hence the loop.
    while (!theDelegate().threadsRunning().isEmpty()) {
        if (theDelegate().isCancelledByUser()) endTools();
        poll();
    }
}

void quillorentLibrary::stopProcess01() {}
void quillorentLibrary::stopProcess02() {}
void quillorentLibrary::stopProcess03() {}
