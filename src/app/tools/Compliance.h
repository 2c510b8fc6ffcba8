#pragma once

namespace quillorentLibrary {

/// Verifies every registered tool, one after another on the calling thread, and shows the outcome: the
/// controller's counts, the level indicator, the table. Says whether every tool passed.
bool compliance();

/// compliance() on a thread of its own; the controller's `compliance` takes the result.
void updateCompliance();

} // namespace quillorentLibrary
