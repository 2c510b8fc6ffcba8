#include "app/profiles/SavedFile.h"

#include "settings/Store.h"

using C = QuillorentAppDelegate;
using namespace quillorentLibrary;

const SavedFile &profilesToSave()
{
    static const SavedFile file{u"profiles"_qs,   &C::listPlist,        saveProfiles,
                                areProfilesSaved, whyProfilesAreUnread, saveCopyOfProfiles};
    return file;
}

const SavedFile &settingsToSave()
{
    static const SavedFile file{u"settings"_qs,   &C::configPlist,      saveSettings,
                                areSettingsSaved, whySettingsAreUnread, saveCopyOfSettings};
    return file;
}
