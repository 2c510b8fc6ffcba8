#pragma once

#include "runs/RunRecord.h"

#include <QString>
#include <QStringList>
#include <functional>

/// What runs that were killed, or failed, left behind.
namespace aftermath {

/// Whether the archiver finds nothing wrong with the archive, or with the set that it is the first volume of.
using IsWhole = std::function<bool(const QString &archive)>;

/// Ends what runs that were killed left half done in `folder`: an archive that they had set aside comes back,
/// unless its successor is whole, which then stays. Who calls holds the folder, so no such run is still at
/// work.
void repair(const QString &folder, const IsWhole &isWhole);

/// The files in `folder`, that earlier runs left and that are still there.
[[nodiscard]] QList<LeftFile> leftIn(const QString &folder);

/// The paths of all files, wherever they are, that earlier runs left in clear, and that are still there.
[[nodiscard]] QStringList leftInClear();

/// Removes them. Gives those that are still there.
QStringList removeLeftInClear();

} // namespace aftermath
