#pragma once

#include <QString>

namespace quillorentLibrary {

/// The extraction of every archive of `extractList` into the profile's extraction folder, from its progress
/// sheet to its end; the body of the run's own thread.
void launchExtract(const QString &profile);

} // namespace quillorentLibrary
