#pragma once

#include <QString>
#include <functional>

namespace quillorentLibrary {

/// Bytes below `path`: every file, folder and link at any depth, links not followed, folders with their own
/// size; of a file its own. 0 where nothing is there. What can't be read adds nothing: the figure serves for
/// progress only.
[[nodiscard]] quint64 calculateSize(const QString &path);

/// The same, given up once `goesOn`, which is asked every few hundred entries, says no; then what was
/// counted.
[[nodiscard]] quint64 calculateSize(const QString &path, const std::function<bool()> &goesOn);

} // namespace quillorentLibrary
