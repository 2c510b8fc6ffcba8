#include "ArchiveProcessor.h"
#include "Extractor.h"
#include "TreeWalker.h"

#include <algorithm>
#include <charconv>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <malloc.h>
#include <new>
#include <sys/resource.h>

using namespace archiver;

namespace {

constexpr char usageText[] = R"(
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

constexpr int usageError = 7; // as other archivers have it
constexpr int failure = 3;

struct Arguments {
    enum class Command { Add, Test, ExtractFlat, ExtractPaths, ListNames, Print };
    std::optional<Command> command;
    std::string archive;
    std::vector<std::string> names; ///< sources to add, or the destination (none: the working folder)
    unsigned method = 0;            ///< -m0 to -m5
    bool solid = false;             ///< -s
    TreeOptions tree;               ///< -ol, -ep
    bool timeOfNewest = false;      ///< -tl
    bool test = false;              ///< -t
    std::optional<std::uint64_t> volumeSize; ///< -v, in bytes
};

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
    if (name == "ol") return arguments.tree.keepLinks = true;
    if (name == "ep") return arguments.tree.bareNames = true;
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

/// Empty: they are complete.
std::string checkCompleteness(const Arguments &arguments)
{
    if (!arguments.command) return "ERROR: No command";
    if (arguments.archive.empty()) return "ERROR: No archive";
    const bool adds = arguments.command == Arguments::Command::Add;
    if (adds && arguments.names.empty()) return "ERROR: Nothing to add";
    const bool extracts = arguments.command == Arguments::Command::ExtractFlat ||
                          arguments.command == Arguments::Command::ExtractPaths;
    const std::size_t most = extracts ? 1 : 0;
    if (!adds && arguments.names.size() > most)
        return "ERROR: Unexpected argument: " + arguments.names.back();
    return {};
}

/// Reads the words behind the program's name; empty ones don't count. A message that says which of them is
/// wrong, or an empty one.
std::string parse(std::span<const char *const> words, Arguments &parsed)
{
    for (const std::string_view word : words) {
        if (word.empty()) continue;
        // Names that begin with '-' have to be given as paths, as callers of other archivers do it.
        if (word.starts_with('-')) {
            if (!applySwitch(word.substr(1), parsed))
                return "ERROR: Unknown option: " + std::string(word.substr(1));
        } else if (!parsed.command) {
            parsed.command = commandNamed(word);
            if (!parsed.command) return "ERROR: Unknown command: " + std::string(word);
        } else if (parsed.archive.empty()) {
            parsed.archive = word;
        } else {
            parsed.names.emplace_back(word);
        }
    }
    return checkCompleteness(parsed);
}

/// Prints the content of files, as it comes: what is wrong with it shows at its end.
class EntryPrinter final : public EntryReceiver {
public:
    explicit EntryPrinter(Diagnostics &diagnostics) : m_diagnostics(diagnostics) {}

    bool write(Bytes bytes) override
    {
        if (base::writeFully(STDOUT_FILENO, bytes)) return true;
        return m_diagnostics.reportSystem("Cannot print the content");
    }

private:
    Diagnostics &m_diagnostics;
};

/// An archive that misses something is none: nothing takes its name unless all went well.
void add(const Arguments &arguments, Diagnostics &diagnostics)
{
    OutputVolumes output(arguments.archive, arguments.volumeSize, diagnostics);
    const bool solid = arguments.solid && arguments.method > 0;
    if (solid) output.markSolid();
    if (!output.begin()) return;
    ArchiveWriter writer(output, {arguments.method, solid}, diagnostics);
    for (const std::string &source : arguments.names)
        if (!addTree(source, arguments.tree, writer, output, diagnostics)) return;
    if (!writer.finish() || !diagnostics.silent() || !output.finish()) return;
    if (arguments.test) processVolumes(*output.written(), entryTesters(), diagnostics);
    if (!diagnostics.silent() || interrupted()) return;
    (void)output.publish(arguments.timeOfNewest ? writer.newest() : std::nullopt); // it reports
}

/// The names are the bytes that they have on disk.
void list(const std::string &archive, Diagnostics &diagnostics)
{
    ByteBuffer lines;
    bool isDone = true; // one message is enough
    const auto print = [&] {
        if (isDone && !base::writeFully(STDOUT_FILENO, lines))
            isDone = diagnostics.reportSystem("Cannot write the list");
        lines.clear();
    };
    const auto add = [&](const FileHeader &header) {
        constexpr std::size_t enough = 64 << 10; // for one call of the system
        putText(lines, header.name);
        lines.push_back('\n');
        if (lines.size() >= enough) print();
    };
    visitEntries(archive, add, diagnostics);
    print();
}

/// All that goes wrong is reported; silence is success.
void runCommand(const Arguments &arguments, Diagnostics &diagnostics)
{
    using Command = Arguments::Command;
    const std::string folder = arguments.names.empty() ? "." : arguments.names.front();
    const auto print = [](Diagnostics &each) { return std::make_unique<EntryPrinter>(each); };
    switch (*arguments.command) {
    case Command::Add:
        return add(arguments, diagnostics);
    case Command::Test:
        return processArchive(arguments.archive, entryTesters(), diagnostics);
    case Command::ExtractFlat:
        return extractArchive(arguments.archive, folder, Paths::Drop, diagnostics);
    case Command::ExtractPaths:
        return extractArchive(arguments.archive, folder, Paths::Keep, diagnostics);
    case Command::ListNames:
        return list(arguments.archive, diagnostics);
    case Command::Print:
        return processArchive(arguments.archive, {print, true}, diagnostics);
    }
}

int run(std::span<const char *const> words, Diagnostics &diagnostics)
{
    Arguments arguments;
    if (const std::string problem = parse(words, arguments); !problem.empty()) {
        diagnostics.report(problem);
        std::fputs(usageText, stderr);
        return usageError;
    }
    runCommand(arguments, diagnostics);
    // So that the parent learns of it.
    if (interrupted()) base::endBySignal(base::StopSignals::received());
    return diagnostics.silent() ? EXIT_SUCCESS : failure;
}

/// Volumes stay open until they get their names, and there may be thousands.
void raiseOpenFileLimit()
{
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0) return;
    limit.rlim_cur = std::min<rlim_t>(limit.rlim_max, 65536);
    setrlimit(RLIMIT_NOFILE, &limit);
}

} // namespace

int main(int count, char **arguments)
{
    // libarchive turns names of older archives into those of the locale.
    std::setlocale(LC_CTYPE, "C.UTF-8");
    mallopt(M_MMAP_THRESHOLD, 256 << 10); // large buffers go back to the system at once, be it another's turn
    raiseOpenFileLimit();
    base::StopSignals signals(base::StopSignals::BrokenPipe::EndsIt);
    signals.watch(0); // no child: whoever is at work looks whether one came
    Diagnostics diagnostics;
    try {
        return run({arguments + 1, arguments + (count > 0 ? count : 1)}, diagnostics);
    } catch (const std::bad_alloc &) {
        diagnostics.report("Out of memory");
        return failure;
    }
}
