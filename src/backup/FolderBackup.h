#pragma once

#include <QString>

/// What one worker is given.
struct BackupJob {
    QString source;      ///< folder or file, as the profile has it
    QString destination; ///< folder of the archives
    QString baseName;    ///< what the archive is called, without extensions
};

namespace quillorentLibrary {

/// Turns one folder into one archive: stores it, encrypts that, packs the result; the body of a worker's
/// thread. Reports through the run state, and through the console log where it failed. An intermediate file
/// goes once the next stage has succeeded; after a failure what is there stays.
void runProcess1(const BackupJob &job);

} // namespace quillorentLibrary
