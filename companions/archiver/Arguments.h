#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace archiver {

struct Arguments {
    enum class Command { Add, Test, ExtractFlat, ExtractPaths, ListNames, Print };
    Command command = Command::Test;
    std::string archive;
    std::vector<std::string> names; ///< sources to add, or the destination (none: the working folder)
    unsigned method = 0;            ///< -m0 to -m5
    bool solid = false;             ///< -s
    bool keepLinks = false;         ///< -ol
    bool bareNames = false;         ///< -ep
    bool timeOfNewest = false;      ///< -tl
    bool test = false;              ///< -t
    std::optional<std::uint64_t> volumeSize; ///< -v, in bytes
};

/// The arguments behind the program's name, or a message that says which of them is wrong. Empty ones don't
/// count.
[[nodiscard]] std::variant<Arguments, std::string> parseArguments(std::span<const char *const> arguments);

[[nodiscard]] std::string usageText();

} // namespace archiver
