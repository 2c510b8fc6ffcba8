#include "Commands.h"

#include "ArchiveProcessor.h"
#include "ArchiveWriter.h"
#include "EntryLister.h"
#include "Extractor.h"
#include "FileDescriptor.h"
#include "Interrupt.h"
#include "TreeWalker.h"

#include <algorithm>
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
class EntryPrinter final : public EntryReceiver, public ContentSink {
public:
    explicit EntryPrinter(Diagnostics &diagnostics) : m_diagnostics(diagnostics) {}

    void folder(const FileHeader &) override {}
    void link(const FileHeader &) override {}
    /// What comes once again is not printed again.
    ContentSink *beginFile(const FileHeader &header) override
    {
        if (header.name != m_name) m_printed = 0;
        m_name = header.name;
        m_seen = 0;
        return this;
    }
    void finishFile(const FileHeader &) override { m_name.clear(); }
    void abandonFile() override {}
    bool write(Bytes bytes) override
    {
        m_seen += bytes.size();
        if (m_seen <= m_printed) return true;
        const Bytes fresh = bytes.last(std::min<std::uint64_t>(bytes.size(), m_seen - m_printed));
        m_printed = m_seen;
        if (base::writeFully(STDOUT_FILENO, fresh)) return true;
        m_diagnostics.reportSystem("Cannot print the content");
        return false;
    }

private:
    Diagnostics &m_diagnostics;
    std::string m_name;          ///< of the file under way; empty: it came to its end
    std::uint64_t m_seen = 0;    ///< of its bytes, in this attempt
    std::uint64_t m_printed = 0; ///< of its bytes, in all
};

void test(VolumeSource &volumes, Diagnostics &diagnostics)
{
    EntryTester tester;
    processVolumes(volumes, tester, diagnostics);
}

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
    if (arguments.test) test(*output.written(), diagnostics);
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
    Extractor extractor(destination, paths ? Extractor::Paths::Keep : Extractor::Paths::Drop, diagnostics);
    processArchive(arguments.archive, extractor, diagnostics);
    extractor.finish();
}

void list(const std::string &archive, Diagnostics &diagnostics)
{
    EntryLister lister(diagnostics);
    processArchive(archive, lister, diagnostics);
    lister.finish();
}

} // namespace

void runCommand(const Arguments &arguments, Diagnostics &diagnostics)
{
    switch (arguments.command) {
    case Arguments::Command::Add:
        return add(arguments, diagnostics);
    case Arguments::Command::Test: {
        EntryTester tester;
        return processArchive(arguments.archive, tester, diagnostics);
    }
    case Arguments::Command::ExtractFlat:
    case Arguments::Command::ExtractPaths:
        return extract(arguments, diagnostics);
    case Arguments::Command::ListNames:
        return list(arguments.archive, diagnostics);
    case Arguments::Command::Print: {
        EntryPrinter printer(diagnostics);
        return processArchive(arguments.archive, printer, diagnostics);
    }
    }
}

} // namespace archiver
