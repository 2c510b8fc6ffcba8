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

void saveSettings(const plist::Dictionary &settings) { settingsFile().save(settings); }

void saveProfiles(const plist::Dictionary &profiles) { profilesFile().save(profiles); }

plist::Dictionary dictionaryByDeepCopy(const plist::Dictionary &dictionary) { return dictionary.deepCopy(); }

} // namespace quillorentLibrary
