#pragma once

#include <QByteArray>
#include <QString>

/// What is about to be replaced and is kept beside its successor, readable by the user alone: as
/// "<path>.damaged" what could not be read, as "<path>.kept" what could; then ".damaged.1" and so on. What
/// was kept already with the same content is not kept twice, and nothing that was kept is ever replaced. An
/// empty file is not worth keeping.
namespace quillorentLibrary {

enum class KeptAs { Damaged, Former };

struct KeptCopy {
    bool isSafe = false; ///< false: it could not be kept, and is where it was
    QString path;        ///< where it lies; empty where there was nothing worth keeping
};

/// Keeps a copy; the file stays.
[[nodiscard]] KeptCopy keepCopy(const QString &path, KeptAs as);

/// Keeps what was to be written to the path.
[[nodiscard]] KeptCopy keepContent(const QString &path, const QByteArray &content);

/// Keeps the file itself, or the link that it is, as a former one; nothing is at the path afterwards.
[[nodiscard]] KeptCopy moveAside(const QString &path);

/// The path itself, or the first of "<path>.1", "<path>.2" and so on at which nothing is.
[[nodiscard]] QString freePath(const QString &path);

} // namespace quillorentLibrary
