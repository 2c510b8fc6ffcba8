#pragma once

#include <QString>

/// What one worker is given.
struct ExtractJob {
    QString archive; ///< in one piece, or the first volume of a set
    QString folder;  ///< where its contents go
};

namespace quillorentLibrary {

/// Turns one archive back into what it was made of: takes the encrypted file out of it, decrypts that,
/// unpacks the result; the body of a worker's thread. Reports through the run state, and through the console
/// log where it failed. An intermediate file goes once the next stage has succeeded; after a failure what is
/// there stays.
void runProcess2(const ExtractJob &job);

} // namespace quillorentLibrary
