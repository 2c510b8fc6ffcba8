#include "ArchiveWriter.h"

#include "Interrupt.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <limits>
#include <new>
#include <thread>
#include <utility>

namespace archiver {

namespace {

// What some readers need of packed data in volumes: behind a block that is not the last one some bytes of the
// next, and in a volume that ends in a file's data some more than a block's header.
constexpr std::uint64_t spaceBehindBlock = 32;
constexpr std::uint64_t smallestPart = 64;

constexpr std::uint64_t largeFile = 8u << 20; // from here on a thread more makes up for its start

/// A single core is served best without any; more than a few would wait for the one that reads and writes,
/// and each takes memory.
unsigned packingThreads()
{
    constexpr unsigned most = 4;
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

void keepNewest(std::optional<Timestamp> &newest, const struct stat &status)
{
    newest = std::max(newest, std::optional(modifiedTime(status)));
}

} // namespace

ArchiveWriter::ArchiveWriter(OutputVolumes &output, Packing packing, Diagnostics &diagnostics)
    : m_output(output), m_packing(packing), m_diagnostics(diagnostics)
{
}

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
    if (m_packing == Packing::Store) return writeHeader(header);
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
    return addContent(source);
}

bool ArchiveWriter::addContent(Source &source)
{
    if (m_packing == Packing::Store || !source.sizeKnown) return addStored(source);
    if (source.left <= Piece::mostContent) return addWhole(source);
    return shouldPack(source) ? addLarge(source) : addStored(source);
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

/// What is as it was needs no thread but one that writes while the next bytes are read.
bool ArchiveWriter::addStored(Source &source)
{
    if (!finish()) return false;
    m_header = source.header;
    m_fileCrc = 0;
    const bool large = m_header.unpackedSize >= largeFile;
    if (large) m_output.writeInBackground(true);
    const bool added = beginPart() && storeContent(source) && endPart(false);
    if (large) m_output.writeInBackground(false);
    return added;
}

bool ArchiveWriter::storeContent(Source &source)
{
    std::uint64_t size = 0;
    while (source.left > 0) {
        if (m_output.room() == 0 && !continueInNextVolume()) return false;
        if (!m_output.flushWhenFull()) return false;
        const std::span<std::uint8_t> space = m_output.buffer();
        const auto fits = static_cast<std::size_t>(std::min<std::uint64_t>(space.size(), m_output.room()));
        const std::size_t count = read(source, space.first(fits));
        const Bytes bytes = space.first(count);
        m_fileCrc = crc32(bytes, m_fileCrc);
        countData(bytes);
        m_output.commit(count);
        size += count;
    }
    m_header.unpackedSize = size;
    return true;
}

bool ArchiveWriter::shouldPack(const Source &source) const
{
    // Some blocks from all over the file stand for it: what they gain is what it gains, about.
    constexpr std::uint64_t samples = 16;
    constexpr std::size_t sampleSize = 64 << 10;
    std::size_t before = 0;
    std::size_t after = 0;
    ByteBuffer block(sampleSize);
    for (std::uint64_t sample = 0; sample < samples; ++sample) {
        const std::uint64_t offset = (source.left - sampleSize) / (samples - 1) * sample;
        const ssize_t count = base::readFullyAt(source.file, block, offset);
        if (count <= 0) return false; // addStored() will meet the fault, and report it
        const Bytes bytes = Bytes(block).first(static_cast<std::size_t>(count));
        before += bytes.size();
        after += HuffmanEncoder::estimate(bytes);
    }
    return after < before;
}

bool ArchiveWriter::addWhole(Source &source)
{
    const auto size = static_cast<std::size_t>(source.left);
    if (!openPiece(size)) return false;
    addPart(source, size, Coding::Literals);
    return true;
}

bool ArchiveWriter::addLarge(Source &source)
{
    bool first = true;
    while (first || source.left > 0) {
        if (interrupted() || !openPiece(Piece::mostContent)) return false;
        addPart(source, Piece::mostContent, Coding::Literals);
        m_piece->parts.back().first = std::exchange(first, false);
    }
    return true;
}

/// Reads the next bytes of a file into the piece; of one that became shorter, what is there.
void ArchiveWriter::addPart(Source &source, std::size_t size, Coding coding)
{
    Piece &piece = *m_piece;
    const std::size_t begin = piece.used;
    piece.used += read(source, std::span(piece.content).subspan(begin, size));
    piece.parts.push_back({source.header, coding, true, source.left == 0, begin, piece.used - begin});
}

/// Sees to it that there is a piece with room for a part of that size.
bool ArchiveWriter::openPiece(std::size_t size)
{
    if (m_piece && !m_piece->hasRoomFor(size)) givePiece();
    if (m_piece) return true;
    if (!m_work) {
        // One is filled and one is written while the others are packed.
        const unsigned threads = packingThreads();
        const std::size_t pieces = threads == 0 ? 1 : threads + 2;
        m_work = std::make_unique<base::OrderedWork<Piece>>(threads, pieces, [](Piece &piece) {
            thread_local Packer packer;
            packer.pack(piece);
        });
    }
    while (!(m_piece = m_work->free()))
        if (!writeOldestPiece()) return false;
    m_piece->clear();
    m_piece->content.resize(Piece::mostContent);
    return true;
}

void ArchiveWriter::givePiece()
{
    m_piece = nullptr;
    m_work->give();
}

bool ArchiveWriter::finish()
{
    if (!m_work) return true;
    if (m_piece) givePiece();
    while (m_work->take())
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

bool ArchiveWriter::writeHeader(const FileHeader &header)
{
    m_header = header;
    m_headerBytes.clear();
    putFileHeader(m_headerBytes, header);
    return makeRoom(m_headerBytes.size(), 0) && m_output.append(m_headerBytes);
}

bool ArchiveWriter::writePart(const Piece &piece, Part &part)
{
    if (interrupted()) return false;
    if (part.coding == Coding::None) return writeHeader(part.header);
    if (part.first) {
        m_header = std::move(part.header);
        if (part.last) m_header.unpackedSize = part.size;
        if (part.coding != Coding::Store) m_header.method = HuffmanEncoder::method;
        if (part.coding != Coding::Store) m_header.dictionary = HuffmanEncoder::dictionary;
        if (!beginPart()) return false;
    }
    m_fileCrc = part.first ? part.crc : joinedCrc32(m_fileCrc, part.crc, part.size);
    const bool written =
        part.coding == Coding::Store ? putStored(piece.contentOf(part)) : putBlocks(piece.packed, part);
    return written && (!part.last || endPart(false));
}

bool ArchiveWriter::putBlocks(const PackedBlocks &packed, const Part &part)
{
    for (std::size_t index = part.firstBlock; index < part.endBlock; ++index)
        if (!putBlock(packed.at(index), part.last && index + 1 == part.endBlock)) return false;
    return true;
}

bool ArchiveWriter::makeRoom(std::size_t headerSize, std::uint64_t dataSize)
{
    if (headerSize > largestHeader)
        return m_diagnostics.report(printable(m_header.name) + " has a longer name than an archive can hold");
    const std::uint64_t needed = headerSize + std::min(dataSize, smallestPart);
    if (m_output.room() >= needed) return true;
    if (!m_output.atStart() && !m_output.nextVolume()) return false;
    if (m_output.room() >= needed) return true;
    return m_diagnostics.report("The volumes are too small for " + printable(m_header.name));
}

bool ArchiveWriter::beginPart()
{
    m_header.packedSize = 0;
    m_header.continuesAfter = false;
    m_header.crc = 0;
    m_partCrc = 0;
    m_headerBytes.clear();
    putFileHeader(m_headerBytes, m_header);
    if (!makeRoom(m_headerBytes.size(), m_header.unpackedSize)) return false;
    m_headerOffset = m_output.position();
    return m_output.append(m_headerBytes);
}

bool ArchiveWriter::endPart(bool continues)
{
    m_header.packedSize = m_output.position() - m_headerOffset - m_headerBytes.size();
    m_header.continuesAfter = continues;
    m_header.crc = continues ? m_partCrc : m_fileCrc;
    const std::size_t length = m_headerBytes.size();
    m_headerBytes.clear();
    putFileHeader(m_headerBytes, m_header);
    if (m_headerBytes.size() != length)
        return m_diagnostics.report(printable(m_header.name) + " grew beyond what can be stored");
    return m_output.patch(m_headerOffset, m_headerBytes);
}

bool ArchiveWriter::continueInNextVolume()
{
    if (!endPart(true) || !m_output.nextVolume()) return false;
    m_header.continuesBefore = true;
    return beginPart();
}

void ArchiveWriter::countData(Bytes bytes)
{
    if (m_output.limited()) m_partCrc = crc32(bytes, m_partCrc);
}

bool ArchiveWriter::putData(Bytes bytes)
{
    countData(bytes);
    return m_output.append(bytes);
}

bool ArchiveWriter::putStored(Bytes bytes)
{
    while (!bytes.empty()) {
        if (m_output.room() == 0 && !continueInNextVolume()) return false;
        const auto count = static_cast<std::size_t>(std::min<std::uint64_t>(bytes.size(), m_output.room()));
        if (!putData(bytes.first(count))) return false;
        bytes = bytes.subspan(count);
    }
    return true;
}

bool ArchiveWriter::putBlock(Bytes block, bool last)
{
    for (;;) {
        const std::uint64_t room = m_output.room();
        if (block.size() <= room && (last || room - block.size() >= spaceBehindBlock)) return putData(block);
        // A volume must not end right behind the block, nor in the header of the next: it ends inside this
        // one.
        const std::size_t tail = std::min<std::size_t>(spaceBehindBlock, block.size() / 2);
        const std::size_t cut = block.size() > room ? static_cast<std::size_t>(room) : block.size() - tail;
        if (!putData(block.first(cut)) || !continueInNextVolume()) return false;
        block = block.subspan(cut);
    }
}

} // namespace archiver
