#pragma once

#include <QString>

namespace quillorentLibrary {

/// Bytes below `path`: every file, folder and link at any depth, links not followed, folders with their own
/// size; of a file its own. 0 where nothing is there. What can't be read adds nothing: the figure serves for
/// progress only.
[[nodiscard]] quint64 calculateSize(const QString &path);

} // namespace quillorentLibrary
