#pragma once

#include "backup/BackupOrder.h"
#include "files/FolderLock.h"

class RunMonitor;
class RunState;

/// The backup of all items of the order, on the calling thread and its workers; returns at its end. `lock`
/// holds the destination. The state was begun; it is at rest again afterwards.
void runBackup(const BackupOrder &order, RunState &state, RunMonitor &monitor, FolderLock lock);

/// The same for the first item alone, on the calling thread, without a sheet and a summary.
void runBackupOfOne(const BackupOrder &order, RunState &state, RunMonitor &monitor);
