#pragma once

#include "sync/SyncOrder.h"

/// What rsync, or ssh below it, means by `output`: a sentence on what happened and one on what to do. Where
/// several things went wrong, the one that kept the most from being done.
[[nodiscard]] QString explainSync(const QString &output, const SyncOrder &order);
