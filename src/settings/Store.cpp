#include "settings/Store.h"

#include "settings/Upgrade.h"
#include "settings/UserFile.h"

namespace quillorentLibrary {

plist::Dictionary readSettings()
{
    checkVersion();
    return settingsFile().read();
}

plist::Dictionary readProfiles()
{
    checkVersion();
    return profilesFile().read();
}

QString saveSettings(const plist::Dictionary &settings) { return settingsFile().save(settings); }

QString saveProfiles(const plist::Dictionary &profiles) { return profilesFile().save(profiles); }

bool areSettingsSaved(const plist::Dictionary &settings) { return settingsFile().holds(settings); }

bool areProfilesSaved(const plist::Dictionary &profiles) { return profilesFile().holds(profiles); }

plist::Dictionary dictionaryByDeepCopy(const plist::Dictionary &dictionary) { return dictionary.deepCopy(); }

} // namespace quillorentLibrary
