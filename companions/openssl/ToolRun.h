#pragma once

#include <optional>
#include <string>
#include <vector>

/// A run of the tool under the front's eyes.
struct ToolRun {
    /// From the command's name on, without the options for the result and for the password below.
    std::vector<std::string> arguments;
    /// Whether this is a command line of the program that these tools belong to: then names are but names,
    /// and nothing is opened through a link or a pipe that waits under one.
    bool isOurs = false;
    /// Whether the password goes to the tool through a pipe.
    bool hasPassword = false;
    /// The file for the result. Nothing: the tool writes to its standard output.
    std::optional<std::string> output{};
    /// The file that the tool gets as its standard input. It has to be read to its end.
    std::optional<std::string> input{};
    /// The caller asked for something to read, so what the tool prints is no sign of failure.
    bool mayPrint = false;
};
