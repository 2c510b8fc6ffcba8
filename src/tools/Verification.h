#pragma once

#include <QString>

namespace quillorentLibrary {

/// Whether the tool at `launchPath` is the expected one: run with "-h" it prints `expectedHelp`, and its file
/// name holds `expectedName`. Runs the tool and blocks until it ends.
[[nodiscard]] bool test(const QString &launchPath, const QString &expectedHelp, const QString &expectedName);

/// The same for a registered tool, by the settings. A tool without an entry for either text fails.
[[nodiscard]] bool testAll(const QString &name);

/// Verifies every registered tool, one after another on the calling thread, and shows the outcome: the
/// controller's counts, the level indicator, the table. Says whether every tool passed.
bool compliance();

/// compliance() on a thread of its own; the controller's `compliance` takes the result.
void updateCompliance();

} // namespace quillorentLibrary
