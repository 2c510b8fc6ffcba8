#pragma once

#include "TemporaryFolder.h"

#include <filesystem>
#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;
using Environment = std::map<std::string, std::string>;
using Arguments = std::vector<std::string>;

inline Arguments operator+(Arguments first, const Arguments &second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

/// The arguments that a line without quotes stands for.
inline Arguments words(const std::string &line)
{
    std::istringstream stream(line);
    return {std::istream_iterator<std::string>(stream), {}};
}

/// What a program's environment needs besides for Tripwire.cpp to come before the C library.
inline Environment withTripwire(Environment environment = {})
{
    environment["LD_PRELOAD"] = TRIPWIRE;
    environment["ASAN_OPTIONS"] = "verify_asan_link_order=0";
    return environment;
}

/// The second one: as on a file system where every file has a name.
inline const std::vector<Environment> fileSystems = {withTripwire(),
                                                     withTripwire({{"QUILLORENT_NO_NAMELESS", "1"}})};

/// Before a command: root may do anything, so rules of permission are tested as nobody. `program` is copied
/// into the folder, which everybody may use from then on.
inline Arguments asOrdinaryUser(const fs::path &folder, const std::string &program)
{
    fs::permissions(folder, fs::perms::all);
    fs::copy_file(program, folder / "program");
    if (getuid() != 0) return {folder / "program"};
    return {"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups", folder / "program"};
}

/// A letter for each line of a tripwire's log: a file is safe, named or gone; D, the folder is safe.
inline std::string stepsOf(const fs::path &log, const fs::path &folder)
{
    std::string steps;
    const std::string ending = (folder / "").string(); // with a slash
    std::istringstream stream(readFile(log));
    for (std::string line; std::getline(stream, line);)
        steps += line.ends_with(ending) ? 'D' : line[0];
    return steps;
}

inline std::size_t entriesIn(const fs::path &folder)
{
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), {}));
}
