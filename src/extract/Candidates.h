#pragma once

#include "tools/ToolRun.h"

#include <QStringList>
#include <optional>

/// Paths in their order; a folder gives way to the archives right in it, by name. What is no ".rar" is left
/// out.
[[nodiscard]] QStringList archivesAmong(const QStringList &paths);

/// What a person must know of those of `added` that are not among the archives `extracted`; empty where there
/// is nothing to say. `all` are the archives that are shown.
[[nodiscard]] QString describeLeftOut(const QStringList &added, const QStringList &all,
                                      const QStringList &extracted);

/// What the archiver says about an archive: nothing where it is whole.
[[nodiscard]] ToolResult testArchive(const QString &archive);

namespace quillorentLibrary {

/// Whether the archiver finds nothing wrong with the archive, or with the set that it is the first volume of.
[[nodiscard]] bool testFileToExtract(const QString &archive);

/// The decoder's command for an archive, by the choice of the method; none where the archive's name is to
/// tell it and does not.
[[nodiscard]] std::optional<QString> decideDecryption(const QString &archive);

} // namespace quillorentLibrary
