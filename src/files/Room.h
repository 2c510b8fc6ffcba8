#pragma once

#include <QString>
#include <optional>

/// Free bytes on the disk of `folder`; none where that can't be found out.
[[nodiscard]] std::optional<qint64> roomFree(const QString &folder);

/// A sentence on how much is needed and how much is free; empty where there is enough, or nobody knows.
[[nodiscard]] QString whyTooLittleRoom(const QString &folder, qint64 bytesNeeded);

/// Why nothing may be written into the folder; empty where it may.
[[nodiscard]] QString whyNotWritable(const QString &folder);

/// Whether the file system is, or may be, one that other systems have made: names that differ in upper and
/// lower case only can be one name there, rights are those that the disk was mounted with, and a file's
/// number can change.
[[nodiscard]] bool isOfOtherSystems(const QString &path);

/// Whether names that differ in upper and lower case only may be one name in the folder, as far as what is
/// there tells.
[[nodiscard]] bool mayIgnoreCase(const QString &folder);
