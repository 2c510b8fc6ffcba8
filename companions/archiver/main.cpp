#include "ArchiveProcessor.h"
#include "Arguments.h"
#include "Extractor.h"
#include "TreeWalker.h"

#include <algorithm>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <malloc.h>
#include <new>
#include <sys/resource.h>
#include <unistd.h>

using namespace archiver;

namespace {

constexpr int usageError = 7; // as other archivers have it
constexpr int failure = 3;

/// Prints the content of files, as it comes: what is wrong with it shows at its end.
class EntryPrinter final : public EntryReceiver {
public:
    explicit EntryPrinter(Diagnostics &diagnostics) : m_diagnostics(diagnostics) {}

    bool beginFile(const FileHeader &) override { return true; }
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
    TreeWalker walker(writer, output, arguments, diagnostics);
    for (const std::string &source : arguments.names)
        if (!walker.walk(source)) return;
    if (!writer.finish() || !diagnostics.silent() || !output.finish()) return;
    if (arguments.test) processVolumes(*output.written(), entryTesters(), diagnostics);
    if (!diagnostics.silent() || interrupted()) return;
    (void)output.publish(arguments.timeOfNewest ? writer.newest() : std::nullopt); // it reports
}

void extract(const Arguments &arguments, Diagnostics &diagnostics)
{
    Destination destination;
    const std::string folder = arguments.names.empty() ? "." : arguments.names.front();
    if (!destination.open(folder)) {
        diagnostics.reportSystem("Cannot open the destination " + printable(folder));
        return;
    }
    const bool paths = arguments.command == Arguments::Command::ExtractPaths;
    Extractor extractor(destination, paths ? Extractor::Paths::Keep : Extractor::Paths::Drop);
    processArchive(arguments.archive, extractor.receivers(), diagnostics);
    extractor.finish(diagnostics);
}

/// The names are the bytes that they have on disk.
void list(const std::string &archive, Diagnostics &diagnostics)
{
    ByteBuffer lines;
    bool isDone = true; // one message is enough
    const auto print = [&] {
        const bool wasDone = isDone;
        isDone = isDone && base::writeFully(STDOUT_FILENO, lines);
        if (wasDone && !isDone) diagnostics.reportSystem("Cannot write the list");
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

void print(const std::string &archive, Diagnostics &diagnostics)
{
    const auto make = [](Diagnostics &each) { return std::make_unique<EntryPrinter>(each); };
    processArchive(archive, {make, true}, diagnostics);
}

/// All that goes wrong is reported; silence is success.
void runCommand(const Arguments &arguments, Diagnostics &diagnostics)
{
    using Command = Arguments::Command;
    switch (arguments.command) {
    case Command::Add:
        return add(arguments, diagnostics);
    case Command::Test:
        return processArchive(arguments.archive, entryTesters(), diagnostics);
    case Command::ExtractFlat:
    case Command::ExtractPaths:
        return extract(arguments, diagnostics);
    case Command::ListNames:
        return list(arguments.archive, diagnostics);
    case Command::Print:
        return print(arguments.archive, diagnostics);
    }
}

int run(std::span<const char *const> words, Diagnostics &diagnostics)
{
    const auto parsed = parseArguments(words);
    if (const auto *problem = std::get_if<std::string>(&parsed)) {
        diagnostics.report(*problem);
        std::fputs(usageText().c_str(), stderr);
        return usageError;
    }
    runCommand(std::get<Arguments>(parsed), diagnostics);
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
