#include "ArchiveWriter.h"

#include "Packer.h"
#include "Probe.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <limits>
#include <new>

namespace archiver {

namespace {

constexpr std::uint64_t largeFile = 8u << 20; // from here on a thread more makes up for its start

// Of libzstd, for the methods.
constexpr std::array finderLevels{0, 1, 2, 3, 5, 6};

constexpr std::uint64_t groupContent = 16u << 20; // what a damaged place in a solid archive costs at most
constexpr std::size_t historySize = 1u << 20;     // farther back the usual levels find next to nothing
constexpr std::size_t matchesTogether = 2u << 20; // at the least so much that the history is worth its search
constexpr std::size_t literalsTogether = HuffmanEncoder::blockInput; // fits the cache, packed too
constexpr std::size_t mostWhole = literalsTogether;
constexpr std::size_t mostParts = 1000;
static_assert(historySize + matchesTogether <= std::size_t{128 << 10} << MatchEncoder::dictionary);

constexpr std::size_t smallestSolid = 128;    // less than the tables take doesn't shrink
constexpr std::size_t smallestTwin = 1 << 10; // less is hardly worth the search
constexpr std::size_t mostAside = 2 << 20;
constexpr std::size_t mostAsideParts = 5000;

/// A single core is served best without any; more than a few would wait for the one that reads and writes,
/// and each takes memory.
unsigned packingThreads()
{
    constexpr unsigned most = 3;
    const unsigned cores = std::thread::hardware_concurrency();
    return cores < 2 ? 0 : std::min(cores, most);
}

Timestamp modifiedTime(const struct stat &status)
{
    return {status.st_mtim.tv_sec, static_cast<std::uint32_t>(status.st_mtim.tv_nsec)};
}

FileHeader describe(const struct stat &status, const std::string &name)
{
    FileHeader header;
    header.name = name;
    header.mode = status.st_mode;
    header.modified = modifiedTime(status);
    return header;
}

ByteBuffer copyOf(Bytes bytes) { return {bytes.begin(), bytes.end()}; }

void keepNewest(std::optional<Timestamp> &newest, const struct stat &status)
{
    newest = std::max(newest, std::optional(modifiedTime(status)));
}

} // namespace

bool ArchiveWriter::addFolder(const struct stat &status, const std::string &name)
{
    keepNewest(m_newestFolder, status);
    FileHeader header = describe(status, name);
    header.folder = true;
    return addWithoutData(header);
}

bool ArchiveWriter::addLink(const struct stat &status, const std::string &name, const std::string &target)
{
    keepNewest(m_newestFile, status);
    FileHeader header = describe(status, name);
    header.unpackedSize = target.size();
    header.link = LinkTarget{LinkTarget::Kind::Symbolic, false, target};
    return addWithoutData(header);
}

bool ArchiveWriter::addWithoutData(const FileHeader &header)
{
    if (!packs()) return m_entries.write(header);
    if (m_packing.solid) return putAside({.header = header}, {});
    if (!openPiece(0)) return false;
    m_piece->parts.push_back({.header = header});
    return true;
}

bool ArchiveWriter::addFile(int file, const struct stat &status, const std::string &name,
                            const std::string &path)
{
    if (static_cast<std::uint64_t>(status.st_size) > largestSize) {
        m_diagnostics.report("Cannot add " + printable(path) +
                             ": it has 4 TiB or more, and archives hold smaller files only");
        return true;
    }
    keepNewest(m_newestFile, status);
    // Some file systems give no sizes: those files are read to their end.
    const bool sizeKnown = status.st_size > 0;
    Source source{file, describe(status, name), std::numeric_limits<std::uint64_t>::max(), sizeKnown, path};
    source.header.unpackedSize = static_cast<std::uint64_t>(status.st_size);
    if (sizeKnown) source.left = source.header.unpackedSize;
    std::array<std::uint8_t, 1> byte{};
    if (!packs() || (!sizeKnown && base::readFullyAt(file, byte, 0) != 0)) return addStored(source);
    if (!sizeKnown) source.left = 0;
    if (source.left <= mostWhole) return addWhole(source);
    const Coding coding = probe(file, source.left);
    if (coding == Coding::Store) return addStored(source);
    return addLarge(source, m_packing.solid ? Coding::Matches : coding);
}

std::size_t ArchiveWriter::read(Source &source, std::span<std::uint8_t> into)
{
    const std::size_t wanted = static_cast<std::size_t>(std::min<std::uint64_t>(into.size(), source.left));
    if (wanted == 0) return 0;
    const ssize_t count = base::readFully(source.file, into.first(wanted));
    if (count < 0) {
        m_diagnostics.reportSystem("Cannot read " + printable(source.path));
        source.left = 0;
        return 0;
    }
    const auto got = static_cast<std::size_t>(count);
    if (got < wanted && source.sizeKnown)
        m_diagnostics.report(printable(source.path) + " became shorter while it was read");
    source.left = got < wanted ? 0 : source.left - got;
    return got;
}

bool ArchiveWriter::storeContent(Source &source)
{
    std::uint64_t size = 0;
    std::uint32_t crc = 0;
    while (source.left > 0) {
        const std::optional<std::span<std::uint8_t>> space = m_entries.space();
        if (!space) return false;
        const std::size_t count = read(source, *space);
        crc = crc32(space->first(count), crc);
        m_entries.commit(count);
        size += count;
    }
    return m_entries.end(crc, size);
}

bool ArchiveWriter::addWhole(Source &source)
{
    const auto size = static_cast<std::size_t>(source.left);
    if (!beginGroupFor(size) || !openPiece(size)) return false;
    addPart(source, size, size > 0 ? Coding::Matches : Coding::Store);
    return !m_packing.solid || joinGroupIfWorthIt();
}

/// What comes behind a file in the group leans on it, so it can't be stored when it turns out not to shrink.
bool ArchiveWriter::joinGroupIfWorthIt()
{
    Part &part = m_piece->parts.back();
    const Bytes content = m_piece->contentOf(part);
    if (content.size() >= smallestSolid && !looksRandom(content)) {
        joinGroup(part.header, part.size);
        return true;
    }
    if (content.size() >= smallestTwin) {
        const std::uint64_t key = std::uint64_t{content.size()} << 32 | crc32(content);
        const auto [twin, isFirst] = m_twins.try_emplace(key, m_aside.size());
        if (!isFirst) return joinGroupWithTwin(twin->second);
    }
    Part aside = takeLastPart();
    aside.coding = Coding::Store;
    return putAside(std::move(aside), content);
}

/// Its content stays where it is until the next one comes.
Part ArchiveWriter::takeLastPart()
{
    Part part = std::move(m_piece->parts.back());
    m_piece->parts.pop_back();
    m_piece->used -= part.size;
    return part;
}

/// The piece's last part has, most likely, the content of one that was put aside: that one joins the group
/// before it, where it hasn't yet, so that there is something to lean on.
bool ArchiveWriter::joinGroupWithTwin(std::size_t place)
{
    const Part part = takeLastPart();
    const ByteBuffer content = copyOf(m_piece->contentOf(part));
    const auto twin = std::ranges::find_if(
        m_asideParts, [&](const Part &each) { return each.begin == place && each.size == part.size; });
    if (twin != m_asideParts.end()) {
        const Part before = std::move(*twin);
        const ByteBuffer copy = copyOf(Bytes(m_aside).subspan(before.begin, before.size));
        m_asideParts.erase(twin);
        if (!addToGroup(before.header, copy)) return false;
    }
    return addToGroup(part.header, content);
}

/// A whole file, from memory.
bool ArchiveWriter::addToGroup(FileHeader header, Bytes content)
{
    if (!beginGroupFor(content.size()) || !openPiece(content.size())) return false;
    joinGroup(header, content.size());
    Piece &piece = *m_piece;
    std::ranges::copy(content, piece.content.begin() + static_cast<std::ptrdiff_t>(piece.used));
    piece.parts.push_back({std::move(header), Coding::Matches, true, true, piece.used, content.size()});
    piece.used += content.size();
    return true;
}

bool ArchiveWriter::addLarge(Source &source, Coding coding)
{
    if (!beginGroupFor(source.left)) return false;
    if (m_packing.solid) joinGroup(source.header, source.left);
    const std::size_t most = coding == Coding::Literals ? literalsTogether : matchesTogether;
    for (bool first = true; first || source.left > 0; first = false) {
        if (m_piece && !first) givePiece(coding == Coding::Literals ? History::Drop : History::Keep);
        const auto size = static_cast<std::size_t>(std::min<std::uint64_t>(most, source.left));
        if (interrupted() || !openPiece(size)) return false;
        addPart(source, size, coding);
        m_piece->parts.back().first = first;
    }
    return true;
}

/// What is as it was needs no thread but one that writes while the next bytes are read.
bool ArchiveWriter::addStored(Source &source)
{
    if (!writePieces()) return false;
    const bool large = source.header.unpackedSize >= largeFile;
    if (large) m_output.writeInBackground(true);
    const bool added = m_entries.begin(source.header) && storeContent(source);
    if (large) m_output.writeInBackground(false);
    return added;
}

/// Reads the next bytes of a file into the piece; of one that became shorter, what is there.
void ArchiveWriter::addPart(Source &source, std::size_t size, Coding coding)
{
    Piece &piece = *m_piece;
    const std::size_t begin = piece.used;
    const std::size_t count = read(source, std::span(piece.content).subspan(begin, size));
    piece.used += count;
    piece.parts.push_back({source.header, coding, true, source.left == 0, begin, count});
}

/// A new group, where the present one would become too long.
bool ArchiveWriter::beginGroupFor(std::uint64_t size)
{
    return m_groupSize + size <= groupContent || endGroup();
}

void ArchiveWriter::joinGroup(FileHeader &header, std::uint64_t size)
{
    header.solid = m_groupSize > 0;
    m_groupSize += size;
}

/// Has the entry come behind the group: for some readers a group ends with whatever doesn't belong to it.
bool ArchiveWriter::putAside(Part part, Bytes content)
{
    part.begin = m_aside.size();
    putBytes(m_aside, content);
    m_asideParts.push_back(std::move(part));
    return (m_aside.size() < mostAside && m_asideParts.size() < mostAsideParts) || endGroup();
}

bool ArchiveWriter::endGroup()
{
    if (m_piece) givePiece(History::Drop);
    m_history.clear();
    m_groupSize = 0;
    m_twins.clear();
    if (!m_asideParts.empty()) {
        if (!openPiece(m_aside.size())) return false;
        std::ranges::copy(m_aside, m_piece->content.begin());
        std::swap(m_piece->parts, m_asideParts);
        givePiece(History::Drop);
        m_asideParts.clear();
    }
    m_aside.clear();
    return true;
}

/// Sees to it that there is a piece with room for a part of that size.
bool ArchiveWriter::openPiece(std::size_t size)
{
    if (m_piece && (m_piece->room() < size || m_piece->parts.size() >= mostParts))
        givePiece(m_packing.solid ? History::Keep : History::Drop);
    if (m_piece) return true;
    if (!m_work) {
        // One is filled and one is written while the others are packed.
        const unsigned threads = packingThreads();
        const auto packers = std::make_shared<Packers>(finderLevels.at(m_packing.method), m_packing.solid);
        m_work = std::make_unique<base::OrderedWork<Piece>>(
            threads, threads == 0 ? 1 : threads + 2, [packers](Piece &piece) { packers->pack(piece); });
    }
    while (!(m_piece = m_work->free()))
        if (!writeOldestPiece()) return false;
    m_piece->open(m_history, std::max(size, m_packing.solid ? matchesTogether : literalsTogether));
    return true;
}

void ArchiveWriter::givePiece(History history)
{
    const Bytes used = Bytes(m_piece->content).first(m_piece->used);
    const Bytes kept = used.last(history == History::Keep ? std::min(used.size(), historySize) : 0);
    m_history.assign(kept.begin(), kept.end());
    m_piece = nullptr;
    m_work->give();
}

bool ArchiveWriter::finish()
{
    if (!writePieces()) return false;
    m_work.reset();
    m_history = m_aside = {}; // a test of the archive needs as much
    return true;
}

bool ArchiveWriter::writePieces()
{
    if (!endGroup()) return false;
    while (m_work && m_work->take())
        if (!writeOldestPiece()) return false;
    return true;
}

bool ArchiveWriter::writeOldestPiece()
{
    Piece &piece = *m_work->take();
    if (piece.outOfMemory) throw std::bad_alloc();
    for (Part &part : piece.parts)
        if (!writePart(piece, part)) return false;
    m_work->release();
    return true;
}

bool ArchiveWriter::writePart(const Piece &piece, Part &part)
{
    if (interrupted()) return false;
    if (part.coding == Coding::None) return m_entries.write(part.header);
    if (part.first) {
        m_size = 0;
        m_crc = 0;
        describePacking(part);
        if (!m_entries.begin(std::move(part.header))) return false;
    }
    m_size += part.size;
    m_crc = part.first ? part.crc : joinedCrc32(m_crc, part.crc, part.size);
    if (part.coding == Coding::Store && !m_entries.putStored(piece.contentOf(part))) return false;
    for (std::size_t index = part.firstBlock; index < part.endBlock; ++index)
        if (!m_entries.putBlock(piece.packed.at(index), part.last && index + 1 == part.endBlock))
            return false;
    return !part.last || m_entries.end(m_crc, m_size);
}

void ArchiveWriter::describePacking(Part &part)
{
    if (part.last) part.header.unpackedSize = part.size;
    if (part.coding == Coding::Store) return;
    part.header.method = m_packing.method;
    // As small as the matches let it be, for readers make room for it with each file; in a group all the
    // same.
    constexpr std::size_t smallDictionary = std::size_t{128 << 10} << HuffmanEncoder::dictionary;
    const bool isSmall =
        part.coding == Coding::Literals || (!m_packing.solid && part.last && part.size <= smallDictionary);
    part.header.dictionary = isSmall ? HuffmanEncoder::dictionary : MatchEncoder::dictionary;
}

} // namespace archiver
