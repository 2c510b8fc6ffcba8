#pragma once

#include <cstdio>
#include <string>

/// Prints one line of the front's own to standard error.
inline void complain(const std::string &message) { std::fprintf(stderr, "openssl: %s\n", message.c_str()); }
