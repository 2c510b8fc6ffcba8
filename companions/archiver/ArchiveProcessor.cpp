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

/// Keeps a text that is to be short.
class TextSink final : public ContentSink {
public:
    bool write(Bytes bytes) override
    {
        text.append(bytes.begin(), bytes.end());
        return text.size() <= longestLink;
    }
    std::string text;

private:
    static constexpr std::size_t longestLink = 65535;
};

/// Whether libarchive undoes such packing; it takes all for the same and makes rubbish of the rest. Of the
/// older format it knows that of RAR 3 and 4, where no file shares its dictionary; of RAR 5 not what came
/// with RAR 7.
bool isKnownToForeign(const FileHeader &header)
{
    constexpr unsigned firstOfRar3 = 29;
    return header.older ? header.version >= firstOfRar3 && !header.solid : header.version == 0;
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
        if (!m_reader.open()) return;
        for (std::size_t index = 0; !interrupted() && !(m_foreign && m_foreign->failed()) &&
                                    m_reader.next() == ArchiveReader::Step::Entry;
             ++index)
            processEntry(index);
    }

private:
    void processEntry(std::size_t index)
    {
        FileHeader header = m_reader.entry();
        if (header.link) return m_receiver.link(header);
        if (header.folder) return m_receiver.folder(header);
        if (!header.stored() && !header.solid) m_dictionary = index;
        if (header.older && header.unixHost && S_ISLNK(header.mode)) return processOlderLink(index, header);
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

    /// Of the format before: the target is the content.
    void processOlderLink(std::size_t index, FileHeader &header)
    {
        TextSink target;
        EntryUnpacker::Result result = m_unpacker.unpack(m_reader, target);
        if (result == EntryUnpacker::Result::NeedsDictionary && unpackForeign(index, header, target))
            result = EntryUnpacker::Result::Whole;
        if (result != EntryUnpacker::Result::Whole) return;
        header.link = LinkTarget{LinkTarget::Kind::Symbolic, false, target.text};
        m_receiver.link(header);
    }

    bool unpackForeign(std::size_t index, const FileHeader &header, ContentSink &sink)
    {
        if (m_path.empty()) return m_diagnostics.report(printable(header.name) + ": checksum error");
        if (!isKnownToForeign(header))
            return m_diagnostics.report(printable(header.name) +
                                        " is packed in a way that only the archiver that made it undoes");
        if (!m_foreign) m_foreign = std::make_unique<ForeignReader>(m_path, m_diagnostics);
        return m_foreign->unpack({m_dictionary, index}, header.name, sink);
    }

    std::string m_path;
    EntryReceiver &m_receiver;
    Diagnostics &m_diagnostics;
    ArchiveReader m_reader;
    EntryUnpacker m_unpacker;
    std::unique_ptr<ForeignReader> m_foreign;
    std::size_t m_dictionary = 0; ///< the entry with which the present one's dictionary begins
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
