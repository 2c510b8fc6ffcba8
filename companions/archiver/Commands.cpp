#include "Commands.h"

#include "ArchiveProcessor.h"
#include "ArchiveWriter.h"
#include "Extractor.h"
#include "FileDescriptor.h"
#include "Interrupt.h"
#include "TreeWalker.h"

#include <unistd.h>

namespace archiver {

namespace {

/// Writes what the walk finds into the archive, except the archive itself.
class Adder final : public TreeVisitor {
public:
    Adder(ArchiveWriter &writer, const OutputVolumes &output) : m_writer(writer), m_output(output) {}

    bool file(int descriptor, const struct stat &status, const std::string &name,
              const std::string &path) override
    {
        return m_writer.addFile(descriptor, status, name, path);
    }
    bool folder(const struct stat &status, const std::string &name) override
    {
        return m_writer.addFolder(status, name);
    }
    bool link(const struct stat &status, const std::string &name, const std::string &target) override
    {
        return m_writer.addLink(status, name, target);
    }
    bool excluded(const struct stat &folder, const std::string &name) override
    {
        return m_output.owns(folder, name);
    }

private:
    ArchiveWriter &m_writer;
    const OutputVolumes &m_output;
};

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
    Adder adder(writer, output);
    TreeWalker walker(adder, arguments.keepLinks ? TreeWalker::Links::Keep : TreeWalker::Links::Follow,
                      arguments.bareNames ? TreeWalker::Names::Bare : TreeWalker::Names::Path, diagnostics);
    for (const std::string &source : arguments.names)
        if (!walker.walk(source)) return;
    if (!writer.finish() || !diagnostics.silent() || !output.finish()) return;
    if (arguments.test) processVolumes(*output.written(), entryTesters(), diagnostics);
    if (!diagnostics.silent() || interrupted()) return;
    const bool published = output.publish(arguments.timeOfNewest ? writer.newest() : std::nullopt);
    static_cast<void>(published); // reported
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

} // namespace

void runCommand(const Arguments &arguments, Diagnostics &diagnostics)
{
    switch (arguments.command) {
    case Arguments::Command::Add:
        return add(arguments, diagnostics);
    case Arguments::Command::Test:
        return processArchive(arguments.archive, entryTesters(), diagnostics);
    case Arguments::Command::ExtractFlat:
    case Arguments::Command::ExtractPaths:
        return extract(arguments, diagnostics);
    case Arguments::Command::ListNames:
        return list(arguments.archive, diagnostics);
    case Arguments::Command::Print:
        return print(arguments.archive, diagnostics);
    }
}

} // namespace archiver
