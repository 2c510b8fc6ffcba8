#pragma once

#include <QString>

/// Files that are about to be replaced and hold what could not be read or changed: they are kept beside their
/// successors as "<path>.damaged", ".damaged.1" and so on. One that was kept already with the same content is
/// not kept twice, and none that was kept is ever replaced. An empty file is not worth keeping.
namespace quillorentLibrary {

/// Keeps a copy, readable by the user alone; the file stays. False where that failed.
[[nodiscard]] bool keepCopy(const QString &path);

/// Keeps the file itself, or the link that it is; nothing is at the path afterwards. False where that failed,
/// and the file is where it was.
[[nodiscard]] bool moveAside(const QString &path);

} // namespace quillorentLibrary
