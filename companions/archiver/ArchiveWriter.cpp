#include "ArchiveWriter.h"

#include "Interrupt.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <limits>

namespace archiver {

namespace {

// What some readers need of packed data in volumes: behind a block that is not the last one some bytes of the
// next, and in a volume that ends in a file's data some more than a block's header.
constexpr std::uint64_t spaceBehindBlock = 32;
constexpr std::uint64_t smallestPart = 64;

constexpr std::uint64_t largeFile = 8u << 20; // from here on a thread more makes up for its start

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
    if (packing == Packing::Pack) m_block.resize(HuffmanEncoder::blockInput);
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
    m_header = header;
    m_headerBytes.clear();
    putFileHeader(m_headerBytes, header);
    return makeRoom(m_headerBytes.size(), 0) && m_output.append(m_headerBytes);
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
    m_header = describe(status, name);
    m_header.unpackedSize = static_cast<std::uint64_t>(status.st_size);
    m_fileCrc = 0;
    // Some file systems give no sizes: those files are read to their end.
    const bool sizeKnown = status.st_size > 0;
    Source source{file, sizeKnown ? m_header.unpackedSize : std::numeric_limits<std::uint64_t>::max(),
                  sizeKnown, path};
    const bool large = m_header.unpackedSize >= largeFile;
    if (large) m_output.writeInBackground(true);
    const bool added = addContent(source);
    if (large) m_output.writeInBackground(false);
    return added;
}

bool ArchiveWriter::addContent(Source &source)
{
    if (m_packing == Packing::Store || !source.sizeKnown) return addStored(source);
    if (source.left <= HuffmanEncoder::blockInput) return addPackedWhole(source);
    return shouldPack(source) ? addPackedBlocks(source) : addStored(source);
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

bool ArchiveWriter::addStored(Source &source)
{
    if (!beginPart()) return false;
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
    return endPart(false);
}

bool ArchiveWriter::shouldPack(const Source &source)
{
    // Some blocks from all over the file stand for it: what they gain is what it gains, about.
    constexpr std::uint64_t samples = 16;
    constexpr std::size_t sampleSize = 64 << 10;
    std::size_t before = 0;
    std::size_t after = 0;
    for (std::uint64_t sample = 0; sample < samples; ++sample) {
        const std::uint64_t offset = (source.left - sampleSize) / (samples - 1) * sample;
        const ssize_t count = base::readFullyAt(source.file, std::span(m_block).first(sampleSize), offset);
        if (count <= 0) return false; // addStored() will meet the fault, and report it
        const Bytes bytes = Bytes(m_block).first(static_cast<std::size_t>(count));
        before += bytes.size();
        after += HuffmanEncoder::estimate(bytes);
    }
    return after < before;
}

bool ArchiveWriter::addPackedWhole(Source &source)
{
    const Bytes content = Bytes(m_block).first(read(source, m_block));
    m_fileCrc = crc32(content);
    m_header.unpackedSize = content.size();
    if (content.empty()) return beginPart() && endPart(false);
    const Bytes packed = m_encoder.encode(content, true);
    if (packed.size() >= content.size()) return beginPart() && putStored(content) && endPart(false);
    m_header.method = HuffmanEncoder::method;
    m_header.dictionary = HuffmanEncoder::dictionary;
    return beginPart() && putBlock(packed, true) && endPart(false);
}

bool ArchiveWriter::addPackedBlocks(Source &source)
{
    m_header.method = HuffmanEncoder::method;
    m_header.dictionary = HuffmanEncoder::dictionary;
    if (!beginPart()) return false;
    while (source.left > 0) {
        if (interrupted()) return false;
        const Bytes content = Bytes(m_block).first(read(source, m_block));
        if (content.empty()) break;
        m_fileCrc = crc32(content, m_fileCrc);
        const bool last = source.left == 0;
        if (!putBlock(m_encoder.encode(content, last), last)) return false;
    }
    return endPart(false);
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
