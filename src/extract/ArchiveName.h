#pragma once

#include <QString>
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

/// Where an archive's extraction puts what, by names alone.
struct ExtractPaths {
    QString encrypted; ///< what comes out of the archive
    QString inner;     ///< what that is decrypted to
    QString leftover;  ///< the encrypted file with the method's extension once more; removed at the end
};

/// `methodExtension` has its dot; it is empty where the archive's name tells no method.
[[nodiscard]] ExtractPaths extractPaths(const QString &archive, const QString &folder,
                                        const QString &methodExtension);
