#pragma once

#include "extract/ArchiveName.h"

#include <QString>
#include <optional>

/// What the profile's options and the settings mean for the tools. Each call reads the state of that moment.
namespace quillorentLibrary {

/// The method that encrypts a new backup: a key of the settings' `encparam` and `extensions`. None where the
/// profile names none.
[[nodiscard]] std::optional<QString> decideMethod();

/// The encoder's cipher command for a new backup, or for the archive `file` by its name; none where the
/// method is not among the settings.
[[nodiscard]] std::optional<QString> decideEncryption(const std::optional<QString> &file = std::nullopt);

/// The file extension of encrypted files, its dot included; otherwise the same.
[[nodiscard]] std::optional<QString> decideExtension(const std::optional<QString> &file = std::nullopt);

/// The method whose extension the archive's name carries before an ".rar", or "" where it carries none.
[[nodiscard]] QString detectExtension(const QString &file);

/// Every method that the settings give an extension.
[[nodiscard]] QList<Method> methodsOfSettings();

/// The archiver's volume argument: "-v" and the size in thousands of bytes, or "" where splitting is off.
[[nodiscard]] QString decideSplit();

/// The archiver's argument that dates an archive like its newest file, or "" where that is off.
[[nodiscard]] QString decideKeepDate();

/// Whether a folder that is to be written to counts as empty: nothing in it but hidden entries. Every folder
/// does while `prefCheck02` is on.
[[nodiscard]] bool folderIsEmpty(const QString &path);

} // namespace quillorentLibrary
