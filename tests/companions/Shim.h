#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <unistd.h>
#include <vector>

/// What a program's environment needs besides for Shim.cpp to come before the C library.
inline std::map<std::string, std::string> withShim(std::map<std::string, std::string> environment = {})
{
    environment["LD_PRELOAD"] = COMPANION_SHIM;
    environment["ASAN_OPTIONS"] = "verify_asan_link_order=0";
    return environment;
}

/// As on a file system where every file has a name.
inline std::map<std::string, std::string> withoutNamelessFiles()
{
    return withShim({{"SHIM_NO_NAMELESS", "1"}});
}

/// Before a command: root may do anything, so rules of permission are tested as nobody. `program` is copied
/// into the folder, which everybody may use from then on.
inline std::vector<std::string> asOrdinaryUser(const std::filesystem::path &folder,
                                               const std::string &program)
{
    std::filesystem::permissions(folder, std::filesystem::perms::all);
    std::filesystem::copy_file(program, folder / "program");
    if (getuid() != 0) return {folder / "program"};
    return {"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups", folder / "program"};
}
