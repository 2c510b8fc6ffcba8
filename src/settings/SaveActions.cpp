#include "app/Pauses.h"
#include "app/QuillorentAppDelegate.h"
#include "settings/Store.h"
#include "tools/Threads.h"
#include "tools/Verification.h"

#include <thread>

using quillorentLibrary::saveProfiles;
using quillorentLibrary::saveSettings;

// Saving may wait for a busy disk, and then waits so that its sign is seen: neither is the window's business,
// so both happen on a thread of their own.

void QuillorentAppDelegate::saveSettings1Action()
{
    indicator01.startAnimation();
    detachThread(u"save-settings"_qs, [this] {
        saveSettings(configPlist());
        std::this_thread::sleep_for(pauses().settingsSaved);
        quillorentLibrary::compliance();
        indicator01.stopAnimation();
    });
}

void QuillorentAppDelegate::profileButton01Action()
{
    indicator02.startAnimation();
    indicator03.startAnimation();
    detachThread(u"save-profiles"_qs, [this] {
        saveProfiles(listPlist());
        std::this_thread::sleep_for(pauses().profilesSaved);
        indicator02.stopAnimation();
        indicator03.stopAnimation();
    });
}

void QuillorentAppDelegate::setterDefaultProfile()
{
    indicator02.startAnimation();
    indicator03.startAnimation();
    configPlist().dictionary(u"resources"_qs).setValue(u"selectedprofile"_qs, currentProfile());
    detachThread(u"save-both"_qs, [this] {
        saveProfiles(listPlist());
        saveSettings(configPlist());
        std::this_thread::sleep_for(pauses().profilesSaved);
        indicator02.stopAnimation();
        indicator03.stopAnimation();
    });
}

void QuillorentAppDelegate::profileButton02Action()
{
    const QString chosen = profileCombo01.selectedTitle();
    if (chosen.isEmpty()) return;
    indicator02.startAnimation();
    setterCurrentProfile(chosen);
    detachThread(u"load-profile"_qs, [this] {
        std::this_thread::sleep_for(pauses().profileLoaded);
        listTableView.reloadData();
        extractTableView.reloadData();
        syncTableView.reloadData();
        indicator02.stopAnimation();
    });
}
