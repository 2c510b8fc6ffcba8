#pragma once

#include "backup/BackupOrder.h"

class Run;

/// Turns one item of the order into one archive: stores it, encrypts that, packs the result; the body of a
/// worker's thread. An intermediate file goes once the next stage has done its work, and the archive of an
/// earlier run once the new one is whole; after a failure what is there stays.
void backUpItem(Run &run, const BackupOrder &order, qsizetype index);
