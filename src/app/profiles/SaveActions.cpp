#include "app/QuillorentAppDelegate.h"
#include "app/tools/Compliance.h"
#include "runs/Pauses.h"
#include "settings/Store.h"
#include "tools/Threads.h"

#include <thread>

using quillorentLibrary::saveProfiles;
using quillorentLibrary::saveSettings;

namespace {

/// Tells whoever pressed a button that what they think is saved is not.
void tellUnlessSaved(const QString &what, const QString &reason)
{
    if (reason.isEmpty()) return;
    theDelegate().warn(
        u"%1 could not be saved:\n%2\n\nWhat you changed is kept only as long as the program runs. Make "
        "room, or make the folder writable, and save again."_qs.arg(what, reason));
}

} // namespace

// Saving may wait for a busy disk, and then waits so that its sign is seen: neither is the window's business,
// so both happen on a thread of their own.

void QuillorentAppDelegate::saveSettings1Action()
{
    indicator01.startAnimation();
    detachThread(u"save-settings"_qs, [this] {
        const QString reason = saveSettings(configPlist());
        std::this_thread::sleep_for(pauses().settingsSaved);
        quillorentLibrary::compliance();
        indicator01.stopAnimation();
        tellUnlessSaved(u"The settings"_qs, reason);
    });
}

void QuillorentAppDelegate::profileButton01Action()
{
    indicator02.startAnimation();
    indicator03.startAnimation();
    detachThread(u"save-profiles"_qs, [this] {
        const QString reason = saveProfiles(listPlist());
        std::this_thread::sleep_for(pauses().profilesSaved);
        indicator02.stopAnimation();
        indicator03.stopAnimation();
        tellUnlessSaved(u"The profiles"_qs, reason);
    });
}

void QuillorentAppDelegate::setterDefaultProfile()
{
    indicator02.startAnimation();
    indicator03.startAnimation();
    configPlist().dictionary(u"resources"_qs).setValue(u"selectedprofile"_qs, currentProfile());
    detachThread(u"save-both"_qs, [this] {
        const QString profiles = saveProfiles(listPlist());
        const QString settings = saveSettings(configPlist());
        std::this_thread::sleep_for(pauses().profilesSaved);
        indicator02.stopAnimation();
        indicator03.stopAnimation();
        tellUnlessSaved(u"The profiles"_qs, profiles);
        tellUnlessSaved(u"The settings"_qs, settings);
    });
}
