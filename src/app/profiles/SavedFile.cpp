#include "app/profiles/SavedFile.h"

#include "settings/Store.h"

#include <QCoreApplication>

using C = QuillorentAppDelegate;
using namespace quillorentLibrary;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(profiles)
};

} // namespace

const SavedFile &profilesToSave()
{
    static const SavedFile file{Words::tr("profiles"), &C::listPlist,        saveProfiles,
                                areProfilesSaved,      whyProfilesAreUnread, saveCopyOfProfiles};
    return file;
}

const SavedFile &settingsToSave()
{
    static const SavedFile file{Words::tr("settings"), &C::configPlist,      saveSettings,
                                areSettingsSaved,      whySettingsAreUnread, saveCopyOfSettings};
    return file;
}
