#include "settings/Upgrade.h"

#include "plist/Value.h"
#include "settings/Paths.h"
#include "settings/UserFile.h"

#include <QFileInfo>

namespace quillorentLibrary {

namespace {

const QString versionKey = u"version"_qs;

void addMissing(const plist::Dictionary &user, const QString &key, const plist::Value &value)
{
    if (!user.contains(key)) user.setValue(key, value);
}

// An element that the user's list lacks is not put into it: the user may have taken it out, and paths that
// come back with each version would be backed up against the user's will. The list's own key name marks, once
// for each such element, that the template's list holds more.
void mergeList(const plist::Dictionary &user, const QString &key, const plist::Array &list)
{
    addMissing(user, key, list);
    const plist::Array present = user.array(key);
    const QList<plist::Value> elements = list.values();
    for (const plist::Value &element : elements)
        if (!present.contains(element)) present.append(plist::Value(key));
}

// Likewise, an entry that the user's table lacks is not put into it: the reference goes in whole, under the
// table's own key, so that no entry of the user's is mistaken for one of the template's.
void mergeTable(const plist::Dictionary &user, const QString &key, const plist::Dictionary &table,
                const plist::Dictionary &reference)
{
    addMissing(user, key, table);
    const plist::Dictionary present = user.dictionary(key);
    const QStringList entries = reference.keys();
    for (const QString &entry : entries)
        if (!present.contains(entry)) present.setValue(key, reference);
}

void mergeSettings(const plist::Dictionary &user, const plist::Dictionary &newDict, const QString &newVers)
{
    const QList<plist::Dictionary::Entry> entries = newDict.entries();
    for (const auto &[key, value] : entries) {
        // Settings without a version are brought up to date at each start; giving them one would end that.
        if (value.isString() && key != versionKey) addMissing(user, key, value);
        if (value.isArray()) mergeList(user, key, value.array());
        if (value.isDictionary()) mergeTable(user, key, value.dictionary(), value.dictionary());
    }
    if (user.contains(versionKey)) user.setValue(versionKey, newVers);
}

void mergeProfile(const plist::Dictionary &record, const plist::Dictionary &newDict)
{
    const QList<plist::Dictionary::Entry> entries = newDict.dictionary(u"Default profile"_qs).entries();
    for (const auto &[key, value] : entries) {
        if (value.isString()) addMissing(record, key, value);
        if (value.isArray()) mergeList(record, key, value.array());
        // What a table of a profile must hold is said beside the profiles of the template, not in one of
        // them.
        if (value.isDictionary()) mergeTable(record, key, value.dictionary(), newDict.dictionary(key));
    }
}

void mergeProfiles(const plist::Dictionary &user, const plist::Dictionary &newDict)
{
    const QStringList profiles = user.keys();
    for (const QString &profile : profiles)
        mergeProfile(user.dictionary(profile), newDict);
}

} // namespace

plist::Dictionary mergeData(const plist::Dictionary &user, const plist::Dictionary &newDict,
                            const QString &newVers, const QString &type)
{
    if (type == u"config") mergeSettings(user, newDict, newVers);
    if (type == u"profile") mergeProfiles(user, newDict);
    return user;
}

void checkVersion()
{
    settingsFile().makeUsable();
    profilesFile().makeUsable();
    if (!QFileInfo::exists(settingsPath())) return;

    const plist::Dictionary settingsTemplate = settingsFile().readTemplate();
    const auto newVersion = settingsTemplate.string(versionKey);
    if (!newVersion) {
        qCWarning(logSettings).noquote()
            << settingsTemplatePath() << "gives no version: nothing is brought up to date";
        return;
    }
    if (settingsFile().read().string(versionKey) == newVersion) return;

    // One version is that of both files: profiles carry none.
    settingsFile().change([&](const plist::Dictionary &settings) {
        mergeData(settings, settingsTemplate, *newVersion, u"config"_qs);
    });
    const plist::Dictionary profilesTemplate = profilesFile().readTemplate();
    profilesFile().change([&](const plist::Dictionary &profiles) {
        mergeData(profiles, profilesTemplate, *newVersion, u"profile"_qs);
    });
}

} // namespace quillorentLibrary
