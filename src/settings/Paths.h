#pragma once

#include <QString>

/// Where the user's settings and the program's templates for them lie.
namespace quillorentLibrary {

/// The folder of both files: "~/Library/Preferences" on macOS; elsewhere $XDG_CONFIG_HOME where that is an
/// absolute path, and "~/.config" otherwise (https://specifications.freedesktop.org/basedir-spec/). It need
/// not exist.
[[nodiscard]] QString preferencesFolder();
[[nodiscard]] QString settingsPath();
[[nodiscard]] QString profilesPath();

/// Where the program's own files lie: beside the executable's folder, in ../share/quillorent.
[[nodiscard]] QString resourceFolder();
[[nodiscard]] QString settingsTemplatePath();
[[nodiscard]] QString profilesTemplatePath();

/// Where the program's companions lie: ../libexec/quillorent, likewise.
[[nodiscard]] QString companionFolder();

/// Makes a folder, and what is missing above it, for the user alone. Says whether it is there now.
[[nodiscard]] bool makePrivateFolder(const QString &folder);

/// For programs that don't lie in the program's own folder, which the tests are: looks for the program's
/// files here instead. An empty path undoes it. To be called before any thread is started.
void setResourceFolder(const QString &folder);

} // namespace quillorentLibrary
