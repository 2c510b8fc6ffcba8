#pragma once

#include "sync/SyncOrder.h"

/// What rsync is told: the list of entries and the arguments.
namespace syncArguments {

/// The folder that the entries are relative to: the longest one, from the first entry's parent upward, whose
/// path occurs inside every entry, wherever that is. Empty without entries, or where one is not absolute.
[[nodiscard]] QString rootOf(const QStringList &entries);

/// An entry as rsync's list names it: without `root`, each time that it occurs. Whole where the root is "/".
[[nodiscard]] QString lineOf(const QString &entry, const QString &root);

/// Entries that rsync does not find by their lines, since they hold the root's path a second time or not at
/// their beginning.
[[nodiscard]] QStringList misnamedEntries(const QStringList &entries);

/// The lines of all entries, without a line break after the last.
[[nodiscard]] QByteArray list(const QStringList &entries);

/// The destination, behind the server where there is one. An "@" stands before it only while the user is
/// empty; a port, if any, becomes the beginning of the path.
[[nodiscard]] QString destination(const SyncOrder &order);

/// The arguments of the transfer. They end before the first value that the settings lack.
[[nodiscard]] QStringList transfer(const SyncOrder &order, const QString &listFile);

/// The same with a dry run that reports, a line each, what would be done: the kind of change, the size, the
/// path, separated by tabs.
[[nodiscard]] QStringList preview(const SyncOrder &order, const QString &listFile);

} // namespace syncArguments
