#include "Arguments.h"

#include <charconv>
#include <string_view>

namespace archiver {

namespace {

constexpr std::uint64_t volumeUnit = 1000;
constexpr std::uint64_t largestVolume = 1ull << 50; // far beyond any disk

std::optional<Arguments::Command> commandNamed(std::string_view text)
{
    if (text == "a") return Arguments::Command::Add;
    if (text == "t") return Arguments::Command::Test;
    if (text == "e") return Arguments::Command::ExtractFlat;
    if (text == "x") return Arguments::Command::ExtractPaths;
    if (text == "lb") return Arguments::Command::ListNames;
    if (text == "p") return Arguments::Command::Print;
    return std::nullopt;
}

std::optional<std::uint64_t> volumeSize(std::string_view digits)
{
    std::uint64_t thousands = 0;
    const char *const end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, thousands);
    if (error != std::errc() || stop != end || thousands == 0 || thousands > largestVolume / volumeUnit)
        return std::nullopt;
    return thousands * volumeUnit;
}

/// False where there is no such switch.
bool applySwitch(std::string_view name, Arguments &arguments)
{
    // Folders are always taken whole, files overwritten, and nothing is printed that is not wrong.
    if (name == "r" || name == "o+" || name == "idq") return true;
    if (name == "ol") return arguments.keepLinks = true;
    if (name == "ep") return arguments.bareNames = true;
    if (name == "tl") return arguments.timeOfNewest = true;
    if (name == "t") return arguments.test = true;
    if (name == "s" || name == "s-") {
        arguments.solid = name == "s";
        return true;
    }
    if (name.size() == 2 && name[0] == 'm' && name[1] >= '0' && name[1] <= '5') {
        arguments.method = static_cast<unsigned>(name[1] - '0');
        return true;
    }
    if (!name.starts_with('v')) return false;
    arguments.volumeSize = volumeSize(name.substr(1));
    return arguments.volumeSize.has_value();
}

std::string unknownOption(std::string_view name) { return "ERROR: Unknown option: " + std::string(name); }

/// Puts a word that is no switch where it belongs. A message where there is no place for it.
std::optional<std::string> takeWord(std::string_view word, bool &haveCommand, Arguments &arguments)
{
    if (!haveCommand) {
        const std::optional<Arguments::Command> command = commandNamed(word);
        if (!command) return "ERROR: Unknown command: " + std::string(word);
        arguments.command = *command;
        haveCommand = true;
    } else if (arguments.archive.empty()) {
        arguments.archive = word;
    } else {
        arguments.names.emplace_back(word);
    }
    return std::nullopt;
}

std::optional<std::string> checkCompleteness(bool haveCommand, const Arguments &arguments)
{
    if (!haveCommand) return "ERROR: No command";
    if (arguments.archive.empty()) return "ERROR: No archive";
    const bool adds = arguments.command == Arguments::Command::Add;
    if (adds && arguments.names.empty()) return "ERROR: Nothing to add";
    const bool extracts = arguments.command == Arguments::Command::ExtractFlat ||
                          arguments.command == Arguments::Command::ExtractPaths;
    const std::size_t most = extracts ? 1 : 0;
    if (!adds && arguments.names.size() > most)
        return "ERROR: Unexpected argument: " + arguments.names.back();
    return std::nullopt;
}

} // namespace

std::variant<Arguments, std::string> parseArguments(std::span<const char *const> arguments)
{
    Arguments parsed;
    bool haveCommand = false;
    for (const std::string_view argument : arguments) {
        if (argument.empty()) continue;
        // Names that begin with '-' have to be given as paths, as callers of other archivers do it.
        if (argument.starts_with('-')) {
            if (!applySwitch(argument.substr(1), parsed)) return unknownOption(argument.substr(1));
        } else if (std::optional<std::string> problem = takeWord(argument, haveCommand, parsed)) {
            return std::move(*problem);
        }
    }
    if (std::optional<std::string> problem = checkCompleteness(haveCommand, parsed))
        return std::move(*problem);
    return parsed;
}

std::string usageText()
{
    return R"(
rar a [SWITCH...] ARCHIVE SOURCE...    add files and folders to a new archive
rar t [SWITCH...] ARCHIVE              test an archive
rar e [SWITCH...] ARCHIVE [FOLDER]     extract all files into one folder
rar x [SWITCH...] ARCHIVE [FOLDER]     extract with full paths
rar lb [SWITCH...] ARCHIVE             list the names of all entries
rar p [SWITCH...] ARCHIVE              print what the files hold

  -ep     leave the paths out of the names
  -idq    print nothing but errors (always so)
  -m0     store (the default)
  -m1     pack what shrinks by it, as fast as can be; -m2 to -m5 take longer for less
  -o+     overwrite existing files (always so)
  -ol     store symbolic links as links
  -s      pack files together, in groups of 16 MiB; damage spoils no more than the rest of its group
  -s-     pack each file by itself (the default)
  -r      include all that is in a folder (always so)
  -t      test the archive before it takes its name
  -tl     give the archive the time of its newest file
  -vN     make volumes of N thousand bytes

Archives are RAR 5 archives; older ones and those of other archivers can be tested, listed and extracted. Symbolic
links, modes and times are kept; owners are not, so set-user-ID and set-group-ID bits are not restored. Pipes, sockets
and devices in folders are left out. An archive, or a set of volumes, takes the place of the one before only when it is
complete and on the disk, and nothing went wrong.
)";
}

} // namespace archiver
