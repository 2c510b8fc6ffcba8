#pragma once

#include <QString>
#include <QStringList>

namespace quillorentLibrary {

/// What follows the last slash, slashes at the end aside; "/" of the root.
[[nodiscard]] QString lastPathComponent(const QString &path);

/// `name` in `folder`.
[[nodiscard]] QString joined(const QString &folder, const QString &name);

/// The archive base name of `path` among `paths`: its last component, and where others share that, "-" and
/// the index of the first equal path (-1 where `path` is not among them).
[[nodiscard]] QString nameRepeated(const QString &path, const QStringList &paths);

/// A path for a temporary file: the user's temporary folder, and a name made of the time in milliseconds. Two
/// calls in one millisecond give the same path.
[[nodiscard]] QString createTempFileName();

} // namespace quillorentLibrary
