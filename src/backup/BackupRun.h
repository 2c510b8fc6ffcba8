#pragma once

#include <QString>

namespace quillorentLibrary {

/// The backup of every folder of a profile, from its progress sheet to its end; the body of the run's own
/// thread.
void launchBackup(const QString &profile);

/// Do nothing: a run is ended by its cancel flag alone. Kept as the places where another way to end one would
/// go.
void stopProcess01();
void stopProcess02();
void stopProcess03();

} // namespace quillorentLibrary
