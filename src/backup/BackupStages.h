#pragma once

#include "runs/RunItem.h"

struct BackupOrder;

/// What the stages of an item's backup are going to be like. Each is given the bytes of what it begins with.
namespace backupStages {

[[nodiscard]] StagePlan storing(const BackupOrder &order, double bytes);
[[nodiscard]] StagePlan encrypting(const BackupOrder &order, double bytes);
[[nodiscard]] StagePlan packing(const BackupOrder &order, double bytes);
[[nodiscard]] StagePlan finishing();

} // namespace backupStages
