#include "ArchiveProcessor.h"

#include "ArchiveReader.h"
#include "ForeignReader.h"
#include "SetReplacement.h"
#include "UnpackWork.h"

#include <unordered_set>

namespace archiver {

namespace {

// Entries up to these sizes are unpacked several at once, by one thread; of those that share a dictionary as
// many as there is memory for.
constexpr std::uint64_t smallPacked = 256 << 10;
constexpr std::uint64_t smallUnpacked = 4 << 20;
constexpr std::uint64_t largestGroup = 16 << 20;
constexpr std::size_t mostEntries = 512;
constexpr std::size_t storedPiece = 512 << 10;

/// Keeps a text that is to be short.
class TextSink final : public ContentSink {
public:
    bool write(Bytes bytes) override
    {
        constexpr std::size_t longestLink = 65535;
        text.append(bytes.begin(), bytes.end());
        return text.size() <= longestLink;
    }
    std::string text;
};

class EntryTester final : public EntryReceiver {
public:
    bool write(Bytes) override { return true; }
};

/// Walks through one archive; `path` is empty where libarchive must not be asked.
class Processor {
public:
    Processor(std::string path, VolumeSource &volumes, const EntryReceivers &receivers,
              Diagnostics &diagnostics)
        : m_path(std::move(path))
        , m_receivers(receivers)
        , m_diagnostics(diagnostics)
        , m_reader(volumes, m_early)
        , m_walk(receivers.make(m_early))
        , m_inOrder(receivers.make(diagnostics))
        , m_unpacker(*m_inOrder, diagnostics)
        , m_work(receivers, [this](UnpackJob &job) { finish(job); })
    {
    }

    void run()
    {
        if (m_reader.open())
            while (!interrupted() && !(m_foreign && m_foreign->failed()) &&
                   m_reader.next() == ArchiveReader::Step::Entry) {
                processEntry();
                ++m_index;
            }
        if (!interrupted()) settle();
    }

private:
    void processEntry()
    {
        const FileHeader &entry = m_reader.entry();
        const std::string place = m_walk->place(entry);
        const bool isOlderPacked = entry.older && entry.hasBlocks();
        const bool isOlderLink = entry.older && entry.unixHost && S_ISLNK(entry.mode);
        const bool isCopy = entry.link && (entry.link->kind == LinkTarget::Kind::Hard ||
                                           entry.link->kind == LinkTarget::Kind::Copy);
        // What comes next may still need the dictionary of what is under way.
        const auto kind = isMember(entry) ? UnpackJob::Kind::EntriesLeft : UnpackJob::Kind::Entries;
        if (isOlderPacked || isOlderLink || isCopy || collides(place)) settle(kind);
        if (entry.link) return m_walk->link(entry);
        if (entry.folder) return m_walk->folder(entry);
        if (isOlderLink || isOlderPacked) return processOlder();
        isForGroup(entry) ? gather(place) : stream(place);
    }

    /// libarchive takes all that is packed for the same, and makes rubbish of what is older than RAR 3 or
    /// shares its dictionary.
    void processOlder()
    {
        FileHeader entry = m_reader.entry();
        const auto read = [&](ContentSink &sink) {
            constexpr unsigned firstOfRar3 = 29;
            if (m_path.empty()) return m_early.report(printable(entry.name) + ": checksum error");
            if (entry.encrypted)
                return m_early.report(printable(entry.name) +
                                      " is encrypted by the archiver, which is not supported");
            if (!entry.stored() && (entry.version < firstOfRar3 || entry.solid))
                return m_early.report(printable(entry.name) +
                                      " is packed in a way that only the archiver that made it undoes");
            if (!m_foreign) m_foreign = std::make_unique<ForeignReader>(m_path, m_early);
            return m_foreign->unpack(m_index, m_reader, sink);
        };
        if (S_ISLNK(entry.mode) && entry.unixHost) { // the target is the content
            TextSink target;
            if (!read(target)) return;
            entry.link = LinkTarget{LinkTarget::Kind::Symbolic, false, target.text};
            return m_walk->link(entry);
        }
        if (!m_walk->beginFile(entry)) return;
        read(*m_walk) ? m_walk->finishFile(entry) : m_walk->abandonFile();
    }

    /// Whether it needs the dictionary of the group's last entry, or such may follow.
    bool isMember(const FileHeader &entry) const
    {
        return m_chain == Chain::Group && (entry.hasBlocks() ? entry.solid : m_reader.isSolid());
    }

    bool isForGroup(const FileHeader &entry)
    {
        if (m_receivers.inOrder || entry.continuesAfter || entry.sizeUnknown) return false;
        if (isMember(entry))
            return m_group->size + entry.packedSize <= largestGroup &&
                   m_groupUnpacked + entry.unpackedSize <= 4 * largestGroup;
        if (entry.hasBlocks() && entry.solid) return false;
        if (entry.packedSize <= smallPacked && entry.unpackedSize <= smallUnpacked) return true;
        if (!entry.hasBlocks() || entry.packedSize > largestGroup || entry.unpackedSize > 4 * largestGroup)
            return false;
        // Literals are unpacked block by block; of any other a thread has all.
        const Bytes peeked = m_reader.peek(4096);
        ByteBuffer start(peeked.begin(), peeked.end());
        const std::size_t header = start.size() < shortestBlockHeader ? 0 : blockHeaderSize(start);
        if (start.size() <= header) return true;
        const std::size_t size = start.size() - header;
        start.resize(start.size() + BitReader::padding);
        BitReader bits(Bytes(start).subspan(header, size), {});
        CodeLengths lengths{};
        return !readCodeLengths(bits, lengths) || !areLiteralsOnly(lengths);
    }

    void gather(const std::string &place)
    {
        const FileHeader &entry = m_reader.entry();
        const bool isFull = m_group && (m_group->size >= smallPacked || m_groupUnpacked >= smallUnpacked ||
                                        m_group->entries.size() >= mostEntries);
        if (isFull && !isMember(entry)) closeGroup(UnpackJob::Kind::Entries);
        if (!m_group) {
            m_group = &m_work.next();
            m_groupUnpacked = 0;
        }
        if (entry.hasBlocks()) m_chain = Chain::Group;
        const std::size_t begin = m_group->size;
        const auto size = static_cast<std::size_t>(entry.packedSize);
        if (m_reader.read(m_group->grow(size)) < size) {
            m_group->size = begin;
            return;
        }
        m_group->entries.push_back({entry, begin, size, place});
        m_groupUnpacked += entry.unpackedSize;
        // Besides the packed bytes, what is unpacked at a time.
        m_group->cost = m_group->size + std::min(m_groupUnpacked, 3 * entry.dictionarySize() / 2);
        if (!place.empty()) m_underWay.insert(place);
    }

    void closeGroup(UnpackJob::Kind kind)
    {
        if (!std::exchange(m_group, nullptr)) return;
        if (m_chain == Chain::Group) m_chain = kind == UnpackJob::Kind::Entries ? Chain::Gone : Chain::Here;
        give(kind);
    }

    /// Large entries, piece by piece.
    void stream(const std::string &place)
    {
        using Kind = UnpackJob::Kind;
        const FileHeader &entry = m_reader.entry();
        closeGroup(isMember(entry) ? Kind::EntriesLeft : Kind::Entries);
        if (entry.hasBlocks() && !entry.solid) m_chain = Chain::Here;
        if (!place.empty()) m_underWay.insert(place);
        m_begins = entry;
        m_isUnwanted = false;
        const bool isWhole = entry.hasBlocks() ? streamBlocks() : streamStored();
        if (interrupted()) return;
        UnpackJob &last = m_work.next();
        last.ends = m_reader.entry();
        last.isWhole = !m_reader.failed();
        last.isDamaged = last.isWhole && !isWhole;
        give(Kind::End);
    }

    /// Always true.
    bool streamStored()
    {
        for (bool isLast = false; !isLast && goesOn();) {
            UnpackJob &piece = m_work.next();
            piece.size = 0;
            const std::size_t size = m_reader.read(piece.grow(storedPiece));
            piece.size = size;
            isLast = size < storedPiece;
            if (size > 0) give(UnpackJob::Kind::Stored);
        }
        return true;
    }

    /// False where the row of blocks is damaged.
    bool streamBlocks()
    {
        for (bool isLast = false; !isLast && goesOn();) {
            std::array<std::uint8_t, 6> start{};
            if (m_reader.read(std::span(start).first(shortestBlockHeader)) < shortestBlockHeader)
                return false;
            const std::size_t size = blockHeaderSize(start);
            const std::size_t rest = size - shortestBlockHeader;
            if (m_reader.read(std::span(start).subspan(shortestBlockHeader, rest)) < rest) return false;
            const std::optional<BlockHeader> header = parseBlockHeader(Bytes(start).first(size));
            if (!header) return false;
            UnpackJob &piece = m_work.next();
            piece.size = 0;
            if (m_reader.read(piece.grow(header->payloadSize)) < header->payloadSize) return false;
            piece.block = *header;
            piece.cost = piece.size;
            isLast = header->last;
            give(UnpackJob::Kind::Block);
        }
        // Bytes behind the last block belong to nothing.
        std::array<std::uint8_t, 1> behind{};
        return !goesOn() || m_reader.read(behind) == 0;
    }

    void give(UnpackJob::Kind kind)
    {
        UnpackJob &job = m_work.next();
        job.kind = kind;
        job.index = m_index;
        job.before = std::exchange(m_earlyMessages, {});
        job.begins = std::exchange(m_begins, std::nullopt);
        m_work.give();
    }

    /// Waits until all that came up to now is done.
    void settle(UnpackJob::Kind kind = UnpackJob::Kind::Entries)
    {
        closeGroup(kind);
        m_work.drain();
        m_diagnostics.repeat(std::exchange(m_earlyMessages, {}));
    }

    void finish(UnpackJob &job)
    {
        m_diagnostics.repeat(job.before);
        m_diagnostics.repeat(job.messages);
        const bool isLeft = job.kind == UnpackJob::Kind::EntriesLeft;
        if (!isLeft && job.kind != UnpackJob::Kind::Entries) return finishPiece(job);
        for (const UnpackJob::Entry &entry : job.entries) {
            if (isLeft && !interrupted())
                m_unpacker.unpack(entry.header, Bytes(job.packed).subspan(entry.begin, entry.size));
            if (!isLeft && entry.header.hasBlocks()) m_unpacker.breakChain();
            m_underWay.erase(entry.place);
        }
    }

    void finishPiece(UnpackJob &job)
    {
        if (job.begins) m_unpacker.begin(*job.begins);
        if (job.kind == UnpackJob::Kind::Stored)
            m_unpacker.stored(Bytes(job.packed).first(job.size), job.crc);
        else if (job.kind == UnpackJob::Kind::Block && job.isUnpacked)
            m_unpacker.literals(job.unpacked, job.unpackedSize, job.crc, job.lengths);
        else if (job.kind == UnpackJob::Kind::Block)
            m_unpacker.block(Bytes(job.packed).first(job.size), job.block);
        if (job.isDamaged) m_unpacker.damage();
        // Others may need what is packed for their dictionary.
        if (job.index == m_index && !m_unpacker.isWanted()) m_isUnwanted = !m_reader.isSolid();
        if (!job.ends) return;
        m_unpacker.end(*job.ends, job.isWhole);
        m_underWay.erase(m_inOrder->place(*job.ends));
    }

    /// Whether a file is under way that comes to that place, or above it.
    bool collides(const std::string &place) const
    {
        if (m_underWay.empty() || place.empty()) return false;
        for (std::size_t end = place.find('/'); end != std::string::npos; end = place.find('/', end + 1))
            if (m_underWay.contains(place.substr(0, end))) return true;
        return m_underWay.contains(place);
    }

    [[nodiscard]] bool goesOn() const { return !m_isUnwanted && !interrupted() && !m_reader.failed(); }

    std::string m_path;
    const EntryReceivers &m_receivers;
    Diagnostics &m_diagnostics;
    std::string m_earlyMessages; ///< of the walk, which is ahead of the work
    Diagnostics m_early{m_earlyMessages};
    ArchiveReader m_reader;
    std::size_t m_index = 0;
    std::unique_ptr<EntryReceiver> m_walk;    ///< for folders and links
    std::unique_ptr<EntryReceiver> m_inOrder; ///< for what this thread unpacks
    EntryUnpacker m_unpacker;
    std::unique_ptr<ForeignReader> m_foreign;

    UnpackJob *m_group = nullptr;      ///< in which entries are being gathered
    std::uint64_t m_groupUnpacked = 0; ///< bytes of theirs
    /// Who has the dictionary that a solid entry would go on with.
    enum class Chain { Gone, Group, Here };
    Chain m_chain = Chain::Here;
    std::optional<FileHeader> m_begins; ///< an entry of which no piece was given yet
    bool m_isUnwanted = false;          ///< what is left of the entry that is streamed
    std::unordered_set<std::string> m_underWay;
    UnpackWork m_work;
};

} // namespace

void processArchive(const std::string &path, const EntryReceivers &receivers, Diagnostics &diagnostics)
{
    if (!finishReplacement(path, diagnostics)) return;
    VolumeFiles volumes(path);
    Processor(path, volumes, receivers, diagnostics).run();
}

void processVolumes(VolumeSource &volumes, const EntryReceivers &receivers, Diagnostics &diagnostics)
{
    Processor({}, volumes, receivers, diagnostics).run();
}

EntryReceivers entryTesters()
{
    return {[](Diagnostics &) { return std::make_unique<EntryTester>(); }};
}

void visitEntries(const std::string &path, const std::function<void(const FileHeader &)> &visit,
                  Diagnostics &diagnostics)
{
    if (!finishReplacement(path, diagnostics)) return;
    VolumeFiles volumes(path);
    ArchiveReader reader(volumes, diagnostics);
    if (!reader.open()) return;
    while (!interrupted() && reader.next() == ArchiveReader::Step::Entry)
        visit(reader.entry());
}

} // namespace archiver
