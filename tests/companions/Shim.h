#pragma once

#include <map>
#include <string>

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
