#pragma once

#include "runs/RunProgress.h"

#include <QString>

/// How far a run is, in words.
namespace progressWords {

/// "1.2 GB".
[[nodiscard]] QString size(double bytes);
/// "1.2 GB of 4.8 GB"; empty as long as it is not known how much there is to do.
[[nodiscard]] QString bytes(const RunFigures &figures);
/// "250.0 MB/s"; empty where that is not known.
[[nodiscard]] QString pace(const RunFigures &figures);
/// "About 3 min left"; empty where that is not known.
[[nodiscard]] QString left(const RunFigures &figures);
/// What is done with an item at the moment, or how it ended.
[[nodiscard]] QString step(const RunFigures::Item &item);

} // namespace progressWords
