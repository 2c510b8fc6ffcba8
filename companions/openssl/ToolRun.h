#pragma once

#include <optional>
#include <string>
#include <vector>

/// An open file that was read into and can't be wound back.
struct BegunStream {
    int descriptor;   ///< the caller's
    std::string head; ///< what was read
};

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
    std::optional<std::string> output;
    /// The file that the tool gets as its standard input. It has to be read to its end.
    std::optional<std::string> input;
    /// One that is open already, and the caller's, instead; -1: none.
    int openInput = -1;
    /// The stream that it gets instead. Nothing: a file, or the program's own standard input.
    std::optional<BegunStream> stream{};
    /// The caller asked for something to read, so what the tool prints is no sign of failure.
    bool mayPrint = false;
    /// Lines of its standard error that say nothing new and are left out, without their ends.
    std::vector<std::string> knownLines{};
};
