#pragma once

#include <QString>

namespace quillorentLibrary {

/// Whether the tool at `launchPath` is the expected one: run with "-h" it prints `expectedHelp`, and its file
/// name holds `expectedName`. Runs the tool and blocks until it ends.
[[nodiscard]] bool test(const QString &launchPath, const QString &expectedHelp, const QString &expectedName);

/// The same for a registered tool, by the settings. A tool without an entry for either text fails.
[[nodiscard]] bool testAll(const QString &name);

/// Whether the OpenSSL tool at `launchPath` derives keys from passwords in its older way, and complains of
/// it: by the rule that a tool which says something has failed, every backup and extraction by a password
/// would fail.
[[nodiscard]] bool warnsOfItsKeyDerivation(const QString &launchPath);

} // namespace quillorentLibrary
