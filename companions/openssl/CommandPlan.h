#pragma once

#include "SmimeDecryption.h"

#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

class Secret;

/// The command is the tool's own affair: it gets the arguments as they are.
struct PassThrough {};

/// The command is not run at all, for this reason.
struct Refusal {
    std::string message;
};

/// A run of the tool under the front's eyes.
struct ToolRun {
    /// From the command's name on, without the options for the result and for the password below.
    std::vector<std::string> arguments;
    /// Whether the password goes to the tool through a pipe.
    bool hasPassword = false;
    /// The file for the result. Nothing: the tool writes to its standard output.
    std::optional<std::string> output;
    /// The file that the tool gets as its standard input. It has to be read to its end.
    std::optional<std::string> input;
    /// The front writes the result file itself, from the tool's standard output.
    bool collectsOutput = false;
    /// The caller asked for something to read, so what the tool prints is no sign of failure.
    bool mayPrint = false;
};

using CommandPlan = std::variant<PassThrough, Refusal, ToolRun, SmimeDecryption>;

/// What to do for this command line (without the program's name). A password in it moves to `password` and is
/// overwritten in the memory of the arguments, so that the system's list of processes shows it no longer.
[[nodiscard]] CommandPlan planCommand(std::span<char *const> arguments, Secret &password);
