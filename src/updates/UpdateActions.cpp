#include "app/QuillorentAppDelegate.h"
#include "updates/SUUpdater.h"

void QuillorentAppDelegate::updatesCheck01Action()
{
    configPlist().dictionary(u"updates"_qs).setSwitch(u"automatic"_qs, updatesCheck01.isOn());
    if (showsUpdates) SUUpdater::sharedUpdater().setAutomaticallyChecksForUpdates(updatesCheck01.isOn());
}

void QuillorentAppDelegate::checkForUpdatesAtStart()
{
    if (!showsUpdates || !configPlist().dictionary(u"updates"_qs).isOn(u"automatic"_qs)) return;
    SUUpdater::sharedUpdater().setAutomaticallyChecksForUpdates(true);
    SUUpdater::sharedUpdater().checkForUpdatesInBackground();
}

void QuillorentAppDelegate::openBrowserAt(const outlets::Button &sender)
{
    if (!sender.alternateTitle().isEmpty()) openAddress(sender.alternateTitle());
}

void QuillorentAppDelegate::updatePanel01Close() { updatePanel01.orderOut(); }
