#pragma once

#include "Diagnostics.h"
#include "StagedFile.h"

namespace archiver {

// How the files of an archive, several of them, are replaced by new ones.
//
// No call of the system does that at once, and the program can be killed, or the power fail, between any two
// renames. So all new files, whole and on the disk, first get passing names. Then a mark appears beside them,
// by one call, that lists them. Without the mark the former files are untouched and those with passing names
// are rubbish, which the next run for this archive removes. With it the new files are what counts, be it
// under their final or their passing names: whoever finds it goes on renaming, takes away what is left of the
// former set, and removes the mark last. Each step is on the disk before the next one begins.

/// The names that belong to the archive `base` (its file name without ".rar") in passing.
[[nodiscard]] base::PassingNames passingNamesOf(const std::string &base);

/// What the volumes of an archive of so many are called, without their folder; a single one is `name`.
[[nodiscard]] std::vector<std::string> finalNames(const std::string &name, std::size_t count);

/// What the folder has under the archive's name and those of its volumes, but for the `current` ones.
[[nodiscard]] std::vector<std::string> filesOfArchive(int folder, const std::string &name,
                                                      const std::vector<std::string> &current);
[[nodiscard]] bool isFileOfArchive(const std::string &file, const std::string &name);

/// Replaces all files of the archive `name` (with ".rar") by `files`, which are on the disk. False has been
/// reported.
[[nodiscard]] bool replaceSet(int folder, const std::string &name, std::vector<base::StagedFile> &files,
                              Diagnostics &diagnostics);

/// Finishes what replaceSet() began in a run that was killed. `path`: the archive, or one of its volumes. A
/// run that is still at it is waited for. False has been reported.
[[nodiscard]] bool finishReplacement(const std::string &path, Diagnostics &diagnostics);

} // namespace archiver
