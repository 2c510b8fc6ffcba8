#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

/// What is kept of one file, folder or link; all of it can be compared.
struct TreeEntry {
    char type = '?';               ///< 'f' file, 'd' folder, 'l' symbolic link, 'o' anything else
    unsigned mode = 0;             ///< permission bits with set-user-ID and the like; 0 for a link
    std::int64_t seconds = 0;      ///< time of the last change, since 1970
    std::int64_t nanoseconds = 0;  ///< its fraction
    std::uint64_t size = 0;        ///< bytes of a file, 0 for the others
    std::uint64_t contentHash = 0; ///< of a file's bytes
    std::string target;            ///< of a symbolic link
};

/// All that is below a folder, by its path relative to it; "." is the folder itself. Paths are bytes, in no
/// encoding.
using TreeSnapshot = std::map<std::string, TreeEntry>;

struct TreeComparison {
    bool nanoseconds = true;
    bool linkTimes = true; ///< times of symbolic links
    bool modes = true;
    bool root = true; ///< compare the entry "." as well
};

/// Links are not followed. Throws std::system_error where something can't be read.
TreeSnapshot snapshotTree(const std::filesystem::path &folder);

/// One line for each difference, with control bytes and bytes beyond ASCII escaped; empty where the trees
/// agree.
std::string treeDifference(const TreeSnapshot &expected, const TreeSnapshot &actual,
                           const TreeComparison &comparison = {});

/// The same for two folders on disk.
std::string treeDifference(const std::filesystem::path &expected, const std::filesystem::path &actual,
                           const TreeComparison &comparison = {});

/// Makes a folder with what backups meet sooner or later: relative, absolute and dangling links, empty
/// folders and files, a hard-linked pair, a file of 1.5 MB, names with spaces, line breaks, a leading '-' or
/// '@', wildcards, backslashes, private-use characters or bytes that are not UTF-8, rare modes, and times
/// with nanoseconds from 1971 to 2100. Everything in it can be read by its owner. About 60 entries; the
/// content is the same every time.
void makeSampleTree(const std::filesystem::path &folder);

/// `size` bytes that no archiver can compress; the same for the same seed.
std::string randomBytes(std::size_t size, std::uint32_t seed = 1);
