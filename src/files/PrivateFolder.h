#pragma once

#include "files/Entry.h"

#include <QString>

// Folders of a run's own: in the folder that it writes to, so that what comes out of them can be renamed to
// its place, under a name that nobody else has, and for nobody else to look into.

/// A path for such a folder in `folder`. Nothing is made.
[[nodiscard]] QString planPrivateFolder(const QString &folder);

/// Makes it. 0, or the error; one that is there is an error, too.
[[nodiscard]] int makePrivateFolder(const QString &path);

/// Whether what is at the path looks like one that a run has made.
[[nodiscard]] bool isPrivateFolder(const QString &path);

/// Removes it with all that is in it, whatever the rights there and however deep; links are not followed.
/// `identity` is what it had when it was made: another one stays, and where none was noted, because the run
/// was ended right then, it goes if it is empty. True where nothing is left of it.
bool removePrivateFolder(const QString &path, const std::optional<FileIdentity> &identity);
