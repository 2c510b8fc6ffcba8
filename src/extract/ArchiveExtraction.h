#pragma once

#include "extract/BroughtBack.h"
#include "extract/ExtractOrder.h"
#include "extract/HeldPaths.h"

class Run;

/// What the items of one extraction share.
struct ExtractShared {
    BroughtBack names;
    PathsUnderWay underWay;
    std::mutex mutex;
    QStringList ownFolders; ///< of archives whose entries have the names of another's; guarded by `mutex`
};

/// Turns one archive of the order back into what it was made of: takes the encrypted file out of it, decrypts
/// that, unpacks the result; the body of a worker's thread. An intermediate file goes once the next stage has
/// done its work; after a failure what is there stays.
void extractItem(Run &run, const ExtractOrder &order, qsizetype index, ExtractShared &shared);
