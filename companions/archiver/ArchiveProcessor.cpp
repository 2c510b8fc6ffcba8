#include "ArchiveProcessor.h"

#include "ArchiveReader.h"
#include "EntryUnpacker.h"
#include "ForeignReader.h"
#include "Interrupt.h"
#include "SetReplacement.h"

#include <memory>
#include <sys/stat.h>

namespace archiver {

namespace {

/// `path`, and the volumes that follow it as long as there are any.
std::vector<std::string> existingVolumes(const std::string &path)
{
    constexpr std::size_t most = 100'000; // names repeat at some point
    const VolumeFiles files(path);
    std::vector<std::string> paths{path};
    struct stat status {};
    while (paths.size() < most && stat(files.name(paths.size()).c_str(), &status) == 0 &&
           S_ISREG(status.st_mode))
        paths.push_back(files.name(paths.size()));
    return paths;
}

/// Walks through one archive; `path` is empty where libarchive must not be asked.
class Processor {
public:
    Processor(std::string path, VolumeSource &volumes, EntryReceiver &receiver, Diagnostics &diagnostics)
        : m_path(std::move(path))
        , m_receiver(receiver)
        , m_diagnostics(diagnostics)
        , m_reader(volumes, diagnostics)
        , m_unpacker(diagnostics)
    {
    }

    void run()
    {
        const ArchiveReader::Format format = m_reader.open();
        if (format == ArchiveReader::Format::Older) processOlder();
        if (format != ArchiveReader::Format::Rar5) return;
        for (std::size_t index = 0; !interrupted() && m_reader.next() == ArchiveReader::Step::Entry; ++index)
            processEntry(index);
    }

private:
    void processEntry(std::size_t index)
    {
        const FileHeader header = m_reader.entry();
        if (header.link) return m_receiver.link(header);
        if (header.folder) return m_receiver.folder(header);
        ContentSink *sink = m_receiver.beginFile(header);
        if (!sink) return;
        EntryUnpacker::Result result = m_unpacker.unpack(m_reader, *sink);
        if (result == EntryUnpacker::Result::NeedsDictionary) {
            m_receiver.abandonFile();
            sink = m_receiver.beginFile(header);
            const bool whole = sink && unpackForeign(index, header, *sink);
            result = whole ? EntryUnpacker::Result::Whole : EntryUnpacker::Result::Failed;
        }
        if (result == EntryUnpacker::Result::Whole)
            m_receiver.finishFile(header);
        else
            m_receiver.abandonFile();
    }

    bool unpackForeign(std::size_t index, const FileHeader &header, ContentSink &sink)
    {
        if (m_path.empty()) return m_diagnostics.report(printable(header.name) + ": checksum error");
        return foreign().unpackEntry(index, header, sink);
    }

    void processOlder()
    {
        FileHeader header;
        for (;;) {
            const ForeignReader::Step step = foreign().next(header);
            if (step != ForeignReader::Step::Entry || interrupted()) return;
            if (header.link)
                m_receiver.link(header);
            else if (header.folder)
                m_receiver.folder(header);
            else if (ContentSink *sink = m_receiver.beginFile(header)) {
                if (foreign().unpack(header, *sink))
                    m_receiver.finishFile(header);
                else
                    m_receiver.abandonFile();
            }
        }
    }

    ForeignReader &foreign()
    {
        if (!m_foreign) m_foreign = std::make_unique<ForeignReader>(existingVolumes(m_path), m_diagnostics);
        return *m_foreign;
    }

    std::string m_path;
    EntryReceiver &m_receiver;
    Diagnostics &m_diagnostics;
    ArchiveReader m_reader;
    EntryUnpacker m_unpacker;
    std::unique_ptr<ForeignReader> m_foreign;
};

} // namespace

void processArchive(const std::string &path, EntryReceiver &receiver, Diagnostics &diagnostics)
{
    if (!finishReplacement(path, diagnostics)) return;
    VolumeFiles volumes(path);
    Processor(path, volumes, receiver, diagnostics).run();
}

void processVolumes(VolumeSource &volumes, EntryReceiver &receiver, Diagnostics &diagnostics)
{
    Processor({}, volumes, receiver, diagnostics).run();
}

} // namespace archiver
