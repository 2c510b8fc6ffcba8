#pragma once

#include "backup/BackupOrder.h"
#include "files/FolderLock.h"
#include "runs/Findings.h"

#include <functional>

/// Looks at the order and at the disk before anything is written. Takes hold of the destination, ends what
/// runs that were killed left half done there, and measures the items, which takes long where they are large;
/// gives up once `goesOn` says no. Runs tools only where archives are there: to test that of a killed run,
/// and to try the password on one.
[[nodiscard]] Findings lookAtBackup(BackupOrder &order, FolderLock &lock,
                                    const std::function<bool()> &goesOn);

/// The room that the destination needs while folders of so many bytes together are backed up: an archive, the
/// same encrypted, and half of that again lie there at the same time.
[[nodiscard]] quint64 roomForBackup(quint64 bytes);
