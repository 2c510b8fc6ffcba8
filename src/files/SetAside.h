#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

/// A file that has, or is to have, another name in its folder for as long as something else needs its own.
struct Aside {
    QString from; ///< the path that it had
    QString to;

    friend bool operator==(const Aside &, const Aside &) = default;
};

/// Other names for all of `paths`, which lie in one folder: "WORD-name", or where one of them is taken
/// "WORD-b-name" and so on. The word stands in front, so that a volume still is one of its set. None where a
/// name would be longer than the file system takes. Looks only; nothing is renamed.
[[nodiscard]] std::optional<QList<Aside>> planAside(const QStringList &paths, const QString &word);

/// Gives the files their other names; nothing is ever replaced. Where the file system has links, at each
/// moment one of the two sets of names is complete. The reason where it failed, else empty; then all bear
/// their own names again, as far as that goes.
[[nodiscard]] QString setAside(const QList<Aside> &files);

/// Gives the files their names back, over what may have come there in the meantime; those that are not under
/// their other names any more stay as they are. The reason where that failed, else empty; then all keep their
/// other names.
[[nodiscard]] QString putBack(const QList<Aside> &files);

/// Removes what was set aside, and whose successor is whole.
void dropAside(const QList<Aside> &files);

/// Renames, but never over something that is there. 0, or the error.
[[nodiscard]] int renameToFree(const QString &from, const QString &to);
