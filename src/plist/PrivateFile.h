#pragma once

#include <QByteArray>
#include <QString>

namespace plist {

/// Puts `content` in place of the file, whole or not at all, readable and writable by the user alone. Where
/// the path is a symbolic link, the file that it leads to is replaced (or made) and the link stays. Gives the
/// reason where that failed, beginning with the file's path, and the empty string where it did not.
[[nodiscard]] QString replacePrivateFile(const QString &path, const QByteArray &content);

} // namespace plist
