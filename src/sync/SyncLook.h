#pragma once

#include "runs/Findings.h"
#include "sync/SyncOrder.h"

/// What keeps the synchronisation from starting, and what the user may overrule; found by looking at both
/// sides, as far as they are on this computer. Runs no tool.
void lookAtSync(const SyncOrder &order, Findings &findings);
