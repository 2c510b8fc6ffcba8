#include "settings/Upgrade.h"

#include "plist/Value.h"
#include "settings/Paths.h"
#include "settings/UserFile.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace quillorentLibrary {

namespace {

const QString versionKey = u"version"_s;

/// Whether this merge comes for the first time. Settings without a version are merged at every start.
enum class Merge { Once, AtEachStart };

void addMissing(const plist::Dictionary &user, const QString &key, const plist::Value &value)
{
    if (!user.contains(key)) user.setValue(key, value);
}

// An element that the user's list lacks is not put into it: the user may have taken it out, and paths that
// come back with each version would be backed up against the user's will. The list's own key name marks, once
// for each such element, that the template's list holds more. The marks of an earlier start still do so.
void mergeList(const plist::Dictionary &user, const QString &key, const plist::Array &list, Merge merge)
{
    addMissing(user, key, list);
    const plist::Array present = user.array(key);
    auto marks = merge == Merge::AtEachStart ? present.strings().count(key) : 0;
    const QList<plist::Value> elements = list.values();
    for (const plist::Value &element : elements)
        if (!present.contains(element) && --marks < 0) present.append(plist::Value(key));
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
    const Merge merge = user.contains(versionKey) ? Merge::Once : Merge::AtEachStart;
    const QList<plist::Dictionary::Entry> entries = newDict.entries();
    for (const auto &[key, value] : entries) {
        // Settings without a version are brought up to date at each start; giving them one would end that.
        if (value.isString() && key != versionKey) addMissing(user, key, value);
        if (value.isArray()) mergeList(user, key, value.array(), merge);
        if (value.isDictionary()) mergeTable(user, key, value.dictionary(), value.dictionary());
    }
    if (user.contains(versionKey)) user.setValue(versionKey, newVers);
}

void mergeProfile(const plist::Dictionary &record, const plist::Dictionary &newDict, Merge merge)
{
    const QList<plist::Dictionary::Entry> entries = newDict.dictionary(u"Default profile"_s).entries();
    for (const auto &[key, value] : entries) {
        if (value.isString()) addMissing(record, key, value);
        if (value.isArray()) mergeList(record, key, value.array(), merge);
        // What a table of a profile must hold is said beside the profiles of the template, not in one of
        // them.
        if (value.isDictionary()) mergeTable(record, key, value.dictionary(), newDict.dictionary(key));
    }
}

void mergeProfiles(const plist::Dictionary &user, const plist::Dictionary &newDict, Merge merge)
{
    const QStringList profiles = user.keys();
    for (const QString &profile : profiles)
        mergeProfile(user.dictionary(profile), newDict, merge);
}

} // namespace

plist::Dictionary mergeData(const plist::Dictionary &user, const plist::Dictionary &newDict,
                            const QString &newVers, const QString &type)
{
    if (type == u"config") mergeSettings(user, newDict, newVers);
    if (type == u"profile") mergeProfiles(user, newDict, Merge::Once);
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
    const auto version = settingsFile().read().string(versionKey);
    if (version == newVersion) return;

    // One version is that of both files: profiles carry none. So it is written last, once the profiles are
    // safe; until then each start tries again.
    const auto mergeTheProfiles = [&] {
        const plist::Dictionary profilesTemplate = profilesFile().readTemplate();
        return profilesFile().change([&](const plist::Dictionary &profiles) {
            mergeProfiles(profiles, profilesTemplate, version ? Merge::Once : Merge::AtEachStart);
        });
    };
    settingsFile().change(
        [&](const plist::Dictionary &settings) {
            mergeData(settings, settingsTemplate, *newVersion, u"config"_s);
        },
        mergeTheProfiles);
}

} // namespace quillorentLibrary
