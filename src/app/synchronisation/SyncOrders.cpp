#include "app/synchronisation/SyncOrders.h"

#include "app/QuillorentAppDelegate.h"
#include "app/synchronisation/SyncMonitor.h"
#include "tools/RegisteredTool.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(synchronisation)
};

} // namespace

SyncOrder readSyncOrder()
{
    const QuillorentAppDelegate &delegate = theDelegate();
    const plist::Dictionary record = delegate.currentRecord();
    return {.profile = delegate.currentProfile(),
            .tool = registeredTool(u"RSync"_s),
            .entries = record.array(u"sync"_s).strings(),
            .destination = record.string(u"rsyncdst"_s).value_or(QString()),
            .mode = record.string(u"rsyncmode"_s),
            .deletesExtra = record.isOn(u"rsyncdelete1"_s),
            .removesSources = record.isOn(u"rsyncdelete2"_s),
            .isRemote = delegate.syncCheck01.isOn(),
            .user = delegate.syncUser.text(),
            .server = delegate.syncServer.text(),
            .port = delegate.syncPort.text(),
            .parameters = delegate.setting(u"sync"_s, u"rsyncparams"_s),
            .excludes = delegate.setting(u"sync"_s, u"rsyncexcludes"_s)};
}

void quillorentLibrary::launchSync(const QString &)
{
    QuillorentAppDelegate &delegate = theDelegate();
    const SyncOrder order = readSyncOrder();
    SheetMonitor monitor(delegate, syncSheet(delegate));
    SyncDisplay display(delegate);
    if (!delegate.tryBeginRun()) return;
    display.begin(Words::tr("Synchronising…"));
    runSync(order, delegate, monitor, display);
}

void quillorentLibrary::runProcess3(const QStringList &)
{
    QuillorentAppDelegate &delegate = theDelegate();
    SheetMonitor monitor(delegate, syncSheet(delegate));
    SyncDisplay display(delegate);
    runRsyncAlone(readSyncOrder(), delegate, monitor, display);
}

void quillorentLibrary::stopProcess03() {}
