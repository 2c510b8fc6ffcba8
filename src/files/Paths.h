#pragma once

#include <QString>
#include <QStringList>
#include <optional>

namespace quillorentLibrary {

/// `path` with "..", "." and double slashes collapsed and a leading "~" expanded.
[[nodiscard]] QString standardizePath(const QString &path);

/// Whether `path` is `folder` or lies in it, by their texts.
[[nodiscard]] bool isInside(const QString &path, const QString &folder);

/// Whether a folder is there, or a link to one.
[[nodiscard]] bool folderExists(const QString &path);

/// Whether nothing but hidden entries is in the folder; so it is where there is no folder.
[[nodiscard]] bool holdsNothing(const QString &folder);

/// The standardised form of those paths that exist, in their order.
[[nodiscard]] QStringList translatePath(const QStringList &paths);

/// The target of the link at `path`; `path` itself where there is no link; none for a target that is not
/// absolute.
[[nodiscard]] std::optional<QString> stringByConditionallyResolvingSymlink(const QString &path);

/// The target of the alias file at `path`; none where there is no alias.
[[nodiscard]] std::optional<QString> stringByConditionallyResolvingAlias(const QString &path);

} // namespace quillorentLibrary
