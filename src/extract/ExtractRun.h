#pragma once

#include "extract/ExtractOrder.h"
#include "files/FolderLock.h"

#include <functional>

class RunMonitor;
class RunState;

/// An archive failed its test, so nothing is extracted. Returns when the person has seen it.
using FoundDamage = std::function<void(const QString &archive, const QString &reason)>;

/// The extraction of all items of the order, on the calling thread and its workers; returns at its end.
/// `lock` holds the folder. The state was begun; it is at rest again afterwards.
void runExtraction(const ExtractOrder &order, RunState &state, RunMonitor &monitor, FolderLock lock,
                   const FoundDamage &foundDamage);

/// The same for the first item alone, on the calling thread, without a test, a sheet and a summary.
void runExtractionOfOne(const ExtractOrder &order, RunState &state, RunMonitor &monitor);
