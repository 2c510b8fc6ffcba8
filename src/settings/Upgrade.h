#pragma once

#include "plist/Dictionary.h"

#include <QString>

namespace quillorentLibrary {

/// Makes sure that both files exist and may be written, and, where the settings' `version` is not the
/// template's, adds to both what their templates have and they lack: to both or, where one can't be read or
/// written, to none. A file that may not be written is replaced by its template and kept beside it as
/// "….plist.kept". Failures are logged. Any thread may call.
void checkVersion();

/// Adds to the user's dictionary, in place, what the template has and it lacks; `type` is "config" or
/// "profile", and any other type merges nothing. Nothing of the user's is replaced but the settings'
/// `version`. What is added is the template's own: the two dictionaries share it until the user's is saved
/// and read back. Settings without a version, which are merged again and again, do not grow by it. Gives the
/// user's dictionary.
plist::Dictionary mergeData(const plist::Dictionary &user, const plist::Dictionary &newDict,
                            const QString &newVers, const QString &type);

} // namespace quillorentLibrary
