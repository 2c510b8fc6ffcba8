#pragma once

#include "extract/ExtractOrder.h"
#include "files/FolderLock.h"
#include "runs/Findings.h"

/// What seems to be missing for the extraction, or in its way; found by looking at the disk, before anything
/// is written. Takes hold of the folder, and ends what backups that were killed left half done beside the
/// archives; only for that a tool may run.
[[nodiscard]] Findings lookAtExtraction(ExtractOrder &order, FolderLock &lock);

/// About how many bytes an extraction needs, at the moment when it needs most. `archives` are the archives'
/// bytes, with all their volumes; `atOnce` is how many are worked on at the same time.
[[nodiscard]] qint64 roomNeeded(QList<qint64> archives, qsizetype atOnce);
