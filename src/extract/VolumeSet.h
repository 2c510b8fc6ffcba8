#pragma once

#include <QList>
#include <QString>
#include <optional>

/// A volume of a set, as it lies on disk.
struct Volume {
    qulonglong number = 0;
    qint64 bytes = 0;
};

/// The volumes that lie beside `archive` and belong to its set, by number; none where it is no volume.
[[nodiscard]] std::optional<QList<Volume>> volumesBeside(const QString &archive);

/// What seems to be missing from a set, or to be too much, by the numbers and sizes of its volumes; empty
/// where nothing does. All volumes are of one size, and only the last is smaller.
[[nodiscard]] QString whatIsMissing(const QList<Volume> &volumes);

/// Bytes of an archive, with all volumes of its set.
[[nodiscard]] qint64 bytesOfArchive(const QString &archive);
