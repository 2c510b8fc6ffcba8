#include "app/QuillorentAppDelegate.h"
#include "updates/Appcast.h"
#include "updates/SUUpdater.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(updates)
};

} // namespace

void QuillorentAppDelegate::updatesCheck01Action()
{
    configPlist().dictionary(u"updates"_s).setSwitch(u"automatic"_s, updatesCheck01.isOn());
    if (showsUpdates) SUUpdater::sharedUpdater().setAutomaticallyChecksForUpdates(updatesCheck01.isOn());
}

void QuillorentAppDelegate::checkForUpdatesAtStart()
{
    SUUpdater::sharedUpdater().setClient(
        {.feed = [this] { return setting(u"updates"_s, u"feed"_s).value_or(QString()); },
         .showRelease =
             [this](const Release &release) {
                 updateText01.setText(Words::tr("Version %1 is there. You have version %2.")
                                          .arg(release.version, QStringLiteral(QUILLORENT_VERSION)));
                 updateNotes01.setText(release.notes);
                 downloadButton01.setAlternateTitle(release.page.toString());
                 updatePanel01.orderFront();
             }});
    if (!showsUpdates || !configPlist().dictionary(u"updates"_s).isOn(u"automatic"_s)) return;
    SUUpdater::sharedUpdater().setAutomaticallyChecksForUpdates(true);
    SUUpdater::sharedUpdater().checkForUpdatesInBackground();
}

void QuillorentAppDelegate::openBrowserAt(const outlets::Button &sender)
{
    if (!sender.alternateTitle().isEmpty()) openAddress(sender.alternateTitle());
}

void QuillorentAppDelegate::updatePanel01Close() { updatePanel01.orderOut(); }
