#pragma once

#include <string_view>

/// The arguments as the program got them, its name left out, each with a NUL at its end. They are not in the
/// list of processes any more. None are kept where there are more than fit; then they are still there.
struct KeptArguments {
    bool areKept;
    std::string_view bytes;
};
[[nodiscard]] KeptArguments keptArguments();

/// Overwrites in place all that could be a password. It may be too much: nobody takes the arguments from this
/// list any more.
void wipePasswords(int argc, char **argv);
