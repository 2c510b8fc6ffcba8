#pragma once

#include "plist/Dictionary.h"
#include "settings/Paths.h"

#include <QStringList>

/// The settings file and the profiles file of the user.
namespace quillorentLibrary {

/// Brings both files up to date (see checkVersion()), then reads one. None where it can't be read; the reason
/// is logged. Companions whose registered paths have gone with a move of the program are found again.
[[nodiscard]] plist::Dictionary readSettings();
[[nodiscard]] plist::Dictionary readProfiles();

/// What is to be done where a file was changed by others since it was last read, and the same profile (or
/// entry of a table of the settings) was changed here as well.
enum class InConflict {
    Ask,       ///< nothing is written
    KeepMine,  ///< the file as others left it is kept beside the new one
    TakeTheirs ///< what was changed here is kept beside it
};

struct Saved {
    QString reason;        ///< why nothing was written, which is logged, too; empty where it is saved
    QStringList conflicts; ///< what both have changed; where the caller is to be asked, nothing was written
    QStringList takenOver; ///< what others changed, and the dictionary now holds

    [[nodiscard]] bool isDone() const { return reason.isEmpty(); }
};

/// Writes the dictionary in place of the old file, whole or not at all; none writes nothing. What others have
/// changed in the file since it was last read is taken over into the dictionary and kept. A file that is
/// there but can't be read is kept beside the new one as "….plist.damaged". Any thread may call; saves of one
/// file are taken one after another, and each writes the state at its own turn.
Saved saveSettings(const plist::Dictionary &settings, InConflict inConflict = InConflict::Ask);
Saved saveProfiles(const plist::Dictionary &profiles, InConflict inConflict = InConflict::Ask);

/// Whether the file has this content already, as far as it was read or saved by this program. Never waits for
/// a disk.
[[nodiscard]] bool areSettingsSaved(const plist::Dictionary &settings);
[[nodiscard]] bool areProfilesSaved(const plist::Dictionary &profiles);

/// Why a file could not be read the last time; empty where it could.
[[nodiscard]] QString whySettingsAreUnread();
[[nodiscard]] QString whyProfilesAreUnread();

/// What a person should know of what was done to the files, a sentence or two each; each is given once.
[[nodiscard]] QStringList takeNotices();

/// Writes a file into a folder of the user's choice under its own name, or that name and a number where
/// something has it. Gives the reason where that failed, else an empty text.
[[nodiscard]] QString saveCopyOfSettings(const plist::Dictionary &settings, const QString &folder);
[[nodiscard]] QString saveCopyOfProfiles(const plist::Dictionary &profiles, const QString &folder);

/// A copy in which every container is new; none where there is nothing to copy.
[[nodiscard]] plist::Dictionary dictionaryByDeepCopy(const plist::Dictionary &dictionary);

} // namespace quillorentLibrary
