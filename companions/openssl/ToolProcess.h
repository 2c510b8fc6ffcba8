#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace base {
class StopSignals;
}

/// The tool's standard streams; -1: the program's own.
struct ToolStreams {
    int input = -1;
    int output = -1;
    int errors = -1;
    std::vector<int> inherited{}; ///< more descriptors that the tool gets, under the same numbers; -1: none
};

/// Starts `tool` with these arguments (without a program name) as a child process that ends with this program
/// and whose files are its user's alone. -1, with errno set: no process could be made. Where the tool itself
/// can't be run, the child says so on its standard error and exits with 127.
[[nodiscard]] pid_t startTool(const std::string &tool, const std::vector<std::string> &arguments,
                              const ToolStreams &streams, const base::StopSignals &signals);

/// Becomes `tool`, with `argv` but for its name. Returns only on failure, with errno set.
void becomeTool(const std::string &tool, char **argv);
