#pragma once

#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

/// What tells a file from every other one, whatever it is called.
struct FileIdentity {
    dev_t device = 0;
    ino_t inode = 0;

    bool operator==(const FileIdentity &) const = default;
};

/// The identities of the running program, and of the one beside it that starts it; `ownName` is its argv[0].
/// Nothing: the system doesn't tell.
[[nodiscard]] std::vector<FileIdentity> ownIdentities(const char *ownName);

/// Where the system's tool may be, best first: the system's own folders, then the absolute ones of
/// `searchPath` (a list in the manner of PATH; null: none).
[[nodiscard]] std::vector<std::string> toolCandidates(const char *searchPath);

/// The first candidate that can be run and is none of `own`. Nothing: there is none.
[[nodiscard]] std::optional<std::string> findTool(const std::vector<std::string> &candidates,
                                                  const std::vector<FileIdentity> &own);
