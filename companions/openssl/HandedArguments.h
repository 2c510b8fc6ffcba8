#pragma once

#include <optional>
#include <vector>

/// The program's arguments, its name first and a null at the end, as for execv(). The program that starts
/// this one hides them from the list of processes: then the first in `argv` is "--arguments=N", and the open
/// file N holds the true ones, each with a NUL at its end. It is closed. They stay for as long as the program
/// runs, can be written over, and are in memory nowhere else. None, with errno set: they can't be read.
[[nodiscard]] std::optional<std::vector<char *>> takeArguments(int argc, char **argv);
