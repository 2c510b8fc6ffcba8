#pragma once

#include <QString>

namespace quillorentLibrary {

/// The backup of every folder of a profile, from its progress sheet to its end; the body of the run's own
/// thread.
void launchBackup(const QString &profile);

} // namespace quillorentLibrary
