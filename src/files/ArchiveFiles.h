#pragma once

#include <QString>
#include <QStringList>
#include <optional>

/// A path that ends in ".partN.rar", as the volumes of a set are called.
struct VolumeName {
    QString set{}; ///< the path up to ".part"
    qulonglong number = 0;
    bool isLater() const { return number > 1; }
};

/// None where `path` is no volume's: a ".part1" elsewhere in it makes no difference.
[[nodiscard]] std::optional<VolumeName> volumeName(const QString &path);

/// The path that the archive would have in one piece: of a volume without its ".partN".
[[nodiscard]] QString withoutVolumePart(const QString &path);

/// What lies in the folder of `archive` (its path in one piece) under its own name or as one of its volumes,
/// the first volume first. Folders are none of it.
[[nodiscard]] QStringList filesOfArchive(const QString &archive);
