#pragma once

#include "sync/SyncOrder.h"

/// What the current profile, the settings and the controls of the tab ask for at this moment.
[[nodiscard]] SyncOrder readSyncOrder();

namespace quillorentLibrary {

/// The synchronisation of the current profile as it is asked for at this moment, from its sheet to its end.
/// Blocks. The profile's name is not looked at.
void launchSync(const QString &profile);

/// Runs rsync once on what is asked for at this moment, and puts what it says on the console. Blocks. The
/// paths are not looked at.
void runProcess3(const QStringList &paths);

/// Does nothing: a run is ended by its cancel flag alone. Kept as the place where another way to end it would
/// go.
void stopProcess03();

} // namespace quillorentLibrary
