#include "settings/Store.h"

#include "plist/File.h"
#include "settings/Companions.h"
#include "settings/KeptCopy.h"
#include "settings/Upgrade.h"
#include "settings/UserFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace quillorentLibrary {

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(settings)
};

QString saveCopy(const plist::Dictionary &content, const QString &folder, const QString &path)
{
    return plist::writeFile(freePath(QDir(folder).filePath(QFileInfo(path).fileName())), content);
}

} // namespace

plist::Dictionary readSettings()
{
    checkVersion();
    QStringList found;
    settingsFile().change([&](const plist::Dictionary &settings) { found = findCompanionsAgain(settings); });
    plist::Dictionary settings = settingsFile().read();
    findCompanionsAgain(settings); // where that could not be saved
    if (!found.isEmpty())
        settingsFile().notice(
            Words::tr(
                "The program has been moved. Its own tools are used from where they are now, in “%1”: %2.")
                .arg(companionFolder(), found.join(u", "_s)));
    return settings;
}

plist::Dictionary readProfiles()
{
    checkVersion();
    return profilesFile().read();
}

Saved saveSettings(const plist::Dictionary &settings, InConflict inConflict)
{
    return settingsFile().save(settings, inConflict);
}

Saved saveProfiles(const plist::Dictionary &profiles, InConflict inConflict)
{
    return profilesFile().save(profiles, inConflict);
}

bool areSettingsSaved(const plist::Dictionary &settings) { return settingsFile().holds(settings); }

bool areProfilesSaved(const plist::Dictionary &profiles) { return profilesFile().holds(profiles); }

QString whySettingsAreUnread() { return settingsFile().whyUnread(); }

QString whyProfilesAreUnread() { return profilesFile().whyUnread(); }

QStringList takeNotices() { return settingsFile().takeNotices() + profilesFile().takeNotices(); }

QString saveCopyOfSettings(const plist::Dictionary &settings, const QString &folder)
{
    return saveCopy(settings, folder, settingsPath());
}

QString saveCopyOfProfiles(const plist::Dictionary &profiles, const QString &folder)
{
    return saveCopy(profiles, folder, profilesPath());
}

plist::Dictionary dictionaryByDeepCopy(const plist::Dictionary &dictionary) { return dictionary.deepCopy(); }

} // namespace quillorentLibrary
