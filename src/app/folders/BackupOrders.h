#pragma once

#include "backup/BackupOrder.h"

#include <memory>

/// The backup of a profile as it is asked for at this moment: its folders, with what the settings and the
/// controls say. Main thread.
[[nodiscard]] std::shared_ptr<BackupOrder> readBackupOrder(const QString &profile);

namespace quillorentLibrary {

/// What one worker is given.
struct BackupJob {
    QString source;      ///< folder or file, as the profile has it
    QString destination; ///< folder of the archives
    QString baseName;    ///< what the archive is called, without extensions
};

/// The backup of every folder of a profile as it is asked for at this moment, from its sheet to its end.
/// Blocks.
void launchBackup(const QString &profile);

/// The backup of one folder, with what the profile and the settings say at this moment. Blocks.
void runProcess1(const BackupJob &job);

/// Does nothing: a run is ended by its cancel flag alone. Kept as the place where another way to end it would
/// go.
void stopProcess01();

} // namespace quillorentLibrary
