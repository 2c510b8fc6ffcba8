#pragma once

#include "Files.h"

class Secret;

/// What tells a file from every other one, whatever it is called: device and inode.
using FileIdentity = std::pair<dev_t, ino_t>;

/// The identities of the running program, and of the one beside it that starts it; `ownName` is its argv[0].
/// None: the system doesn't tell.
[[nodiscard]] std::vector<FileIdentity> ownIdentities(const char *ownName);

/// Where the system's tool may be, best first: the system's own folders, then the absolute ones of
/// `searchPath` (a list in the manner of PATH; null: none).
[[nodiscard]] std::vector<std::string> toolCandidates(const char *searchPath);

/// The first candidate that can be run and is none of `own`. Nothing: there is none.
[[nodiscard]] std::optional<std::string> findTool(const std::vector<std::string> &candidates,
                                                  const std::vector<FileIdentity> &own);

/// Becomes `tool`, with `argv` but for its name. Returns only on failure, with errno set.
void becomeTool(const std::string &tool, char **argv);

/// A run of the tool under the front's eyes.
struct ToolRun {
    /// From the command's name on, without the options for the result and for the password below.
    std::vector<std::string> arguments;
    /// The input is the file that the tool gets as its standard input, and has to be read to its end; the
    /// output is the result's. Where there is none, the tool has the program's own streams.
    FilePair files{};
    /// Whether the password goes to the tool through a pipe.
    bool hasPassword = false;
    /// The caller asked for something to read, so what the tool prints is no sign of failure.
    bool mayPrint = false;
};

/// Runs the tool and judges the run: its exit status has to be 0 and, unless `run.mayPrint`, it must have
/// printed nothing. Only then is there a result file; in every other case something was printed that tells
/// why. `password` is wiped as soon as it is in the pipe to the tool. Returns the exit status for the
/// program: 0, or else the tool's own, or 1. Where a signal asked to stop, the program ends by that signal
/// instead, once the tool is gone and nothing is left behind.
[[nodiscard]] int runTool(const std::string &tool, const ToolRun &run, Secret &password);
