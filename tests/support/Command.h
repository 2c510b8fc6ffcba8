#pragma once

#include <functional>
#include <map>
#include <string>
#include <sys/types.h>
#include <vector>

/// What a program did: its exit status (128 + the signal's number where a signal ended it) and what it wrote.
struct CommandResult {
    int status = -1;
    std::string output; ///< standard output
    std::string errors; ///< standard error
};

struct CommandOptions {
    std::string folder{};                             ///< working directory; empty: the test's own
    std::map<std::string, std::string> environment{}; ///< set on top of the test's own
    std::string input{};                              ///< standard input
};

/// A program that goes on beside the test; it is killed with the object, or when the thread that made it
/// ends.
class BackgroundProgram {
public:
    /// What it writes goes at the end of the log.
    BackgroundProgram(const std::vector<std::string> &arguments, const CommandOptions &options,
                      const std::string &log);
    ~BackgroundProgram();
    BackgroundProgram(const BackgroundProgram &) = delete;
    BackgroundProgram &operator=(const BackgroundProgram &) = delete;

    [[nodiscard]] bool hasEnded();
    void signal(int number) const;

private:
    pid_t m_process = -1;
};

/// Runs a program (looked up in PATH) to its end, without a shell. Throws std::system_error where it can't be
/// started.
CommandResult runCommand(const std::vector<std::string> &arguments, const CommandOptions &options = {});

/// Throws where the condition does not come true in good time.
void waitUntil(const std::string &what, const std::function<bool()> &condition);
