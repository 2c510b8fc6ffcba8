#pragma once

#include <QString>
#include <optional>

namespace quillorentLibrary {

/// Whether the archiver finds nothing wrong with the archive, or with the set that it is the first volume of.
[[nodiscard]] bool testFileToExtract(const QString &archive);

/// The decoder's command for an archive, by the choice of the method; none where the archive's name is to
/// tell it and does not.
[[nodiscard]] std::optional<QString> decideDecryption(const QString &archive);

} // namespace quillorentLibrary
