#pragma once

#include <QString>
#include <QStringList>

namespace quillorentLibrary {

/// The synchronisation of the current profile, from its progress sheet to its end; the body of the run's own
/// thread. The profile's name is not looked at.
void launchSync(const QString &profile);

/// Runs rsync once on what the profile, the settings and the controls say, and puts what it says on the
/// console. The paths are not looked at.
void runProcess3(const QStringList &paths);

/// The same as launchSync(), but copies and deletes nothing: it shows what would be copied and deleted.
void launchPreview(const QString &profile);

} // namespace quillorentLibrary
