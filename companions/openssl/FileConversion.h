#pragma once

#include "smime/ByteStreams.h"

#include <functional>
#include <optional>
#include <string>

class Fault;

/// What the front reads and writes where it does itself what the command asks for.
struct FilePair {
    std::optional<std::string> input{};  ///< nothing: standard input
    std::optional<std::string> output{}; ///< nothing: standard output
    bool isOurs = false;                 ///< as in ToolRun
};

/// Makes of all the bytes of the input all those of the output. False: the fault is set, or the output
/// failed. What the output got is worth nothing then.
using Conversion = std::function<bool(ByteSource &, ByteSink &, Fault &)>;

/// Carries it out. Where anything fails, standard error says why, and no result is left behind.
/// Returns the exit status for the program; a signal that asks to stop ends the program.
[[nodiscard]] int convert(const FilePair &files, const Conversion &conversion);
