#pragma once

#include "app/QuillorentAppDelegate.h"

/// One of the two files, as far as they differ.
struct SavedFile {
    QString name; ///< of what it holds
    Guarded<plist::Dictionary> QuillorentAppDelegate::*content;
    std::function<quillorentLibrary::Saved(const plist::Dictionary &, quillorentLibrary::InConflict)> save;
    std::function<bool(const plist::Dictionary &)> isSaved;
    std::function<QString()> whyUnread;
    std::function<QString(const plist::Dictionary &, const QString &)> saveCopy;
};

[[nodiscard]] const SavedFile &profilesToSave();
[[nodiscard]] const SavedFile &settingsToSave();
