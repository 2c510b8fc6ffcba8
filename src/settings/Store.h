#pragma once

#include "plist/Dictionary.h"
#include "settings/Paths.h"

/// The settings file and the profiles file of the user.
namespace quillorentLibrary {

/// Brings both files up to date (see checkVersion()), then reads one. None where it can't be read; the reason
/// is logged.
[[nodiscard]] plist::Dictionary readSettings();
[[nodiscard]] plist::Dictionary readProfiles();

/// Writes the dictionary in place of the old file, whole or not at all; none writes nothing. Gives the reason
/// of a failure, which is logged, too, and an empty text where it is saved. A file that is there but can't be
/// read is kept beside the new one as "….plist.damaged". Any thread may call; saves of one file are taken one
/// after another, and each writes the state at its own turn.
QString saveSettings(const plist::Dictionary &settings);
QString saveProfiles(const plist::Dictionary &profiles);

/// Whether the file has this content already, as far as it was read or saved by this program.
[[nodiscard]] bool areSettingsSaved(const plist::Dictionary &settings);
[[nodiscard]] bool areProfilesSaved(const plist::Dictionary &profiles);

/// A copy in which every container is new; none where there is nothing to copy.
[[nodiscard]] plist::Dictionary dictionaryByDeepCopy(const plist::Dictionary &dictionary);

} // namespace quillorentLibrary
