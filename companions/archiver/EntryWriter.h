#pragma once

#include "OutputVolumes.h"

#include <algorithm>

namespace archiver {

/// Puts entries into an archive's volumes: an entry's header goes in front of its data first, and is replaced
/// when the data is there. Data goes on in the next volume where one is full, behind a header of its own.
/// Functions that give false have reported why.
class EntryWriter {
public:
    EntryWriter(OutputVolumes &output, Diagnostics &diagnostics)
        : m_output(output), m_diagnostics(diagnostics)
    {
    }

    /// An entry without data.
    [[nodiscard]] bool write(const FileHeader &header)
    {
        m_header = header;
        return putHeader(0);
    }

    /// One with data. The header's sizes may still change, its checksum and its parts are the writer's.
    [[nodiscard]] bool begin(FileHeader header)
    {
        m_header = std::move(header);
        return beginPart();
    }

    /// Where to put the next bytes of its content, at least one, to be added by commit(); none in case of a
    /// fault.
    [[nodiscard]] std::optional<std::span<std::uint8_t>> space()
    {
        if (m_output.room() == 0 && !continueInNextVolume()) return std::nullopt;
        if (!m_output.flushWhenFull()) return std::nullopt;
        m_space = m_output.buffer();
        m_space =
            m_space.first(static_cast<std::size_t>(std::min<std::uint64_t>(m_space.size(), m_output.room())));
        return m_space;
    }

    void commit(std::size_t count)
    {
        countData(m_space.first(count));
        m_output.commit(count);
    }

    [[nodiscard]] bool putStored(Bytes bytes)
    {
        while (!bytes.empty()) {
            if (m_output.room() == 0 && !continueInNextVolume()) return false;
            const auto count =
                static_cast<std::size_t>(std::min<std::uint64_t>(bytes.size(), m_output.room()));
            if (!putData(bytes.first(count))) return false;
            bytes = bytes.subspan(count);
        }
        return true;
    }

    /// `last`: of the entry's.
    [[nodiscard]] bool putBlock(Bytes block, bool last)
    {
        for (;;) {
            const std::uint64_t room = m_output.room();
            if (block.size() <= room && (last || room - block.size() >= spaceBehindBlock))
                return putData(block);
            // A volume must not end right behind the block, nor in the header of the next: it ends inside
            // this one.
            const std::size_t tail = std::min<std::size_t>(spaceBehindBlock, block.size() / 2);
            const std::size_t cut =
                block.size() > room ? static_cast<std::size_t>(room) : block.size() - tail;
            if (!putData(block.first(cut)) || !continueInNextVolume()) return false;
            block = block.subspan(cut);
        }
    }

    /// `crc` and `size`: of the content.
    [[nodiscard]] bool end(std::uint32_t crc, std::uint64_t size)
    {
        m_header.crc = crc;
        m_header.unpackedSize = size;
        m_header.continuesAfter = false;
        return endPart();
    }

private:
    // What some readers need of packed data in volumes: behind a block that is not the last one some bytes of
    // the next, and in a volume that ends in a file's data some more than a block's header.
    static constexpr std::uint64_t spaceBehindBlock = 32;
    static constexpr std::uint64_t smallestPart = 64;

    /// `dataSize`: bytes that are to come behind it.
    [[nodiscard]] bool putHeader(std::uint64_t dataSize)
    {
        m_headerBytes.clear();
        presentFormat.putFile(m_headerBytes, m_header);
        if (m_headerBytes.size() > largestHeader)
            return m_diagnostics.report(printable(m_header.name) +
                                        " has a longer name than an archive can hold");
        const std::uint64_t needed = m_headerBytes.size() + std::min(dataSize, smallestPart);
        if (m_output.room() < needed && !m_output.atStart() && !m_output.nextVolume()) return false;
        if (m_output.room() < needed)
            return m_diagnostics.report("The volumes are too small for " + printable(m_header.name));
        m_headerOffset = m_output.position();
        return m_output.append(m_headerBytes);
    }

    [[nodiscard]] bool beginPart()
    {
        m_header.packedSize = 0;
        m_header.continuesAfter = false;
        m_header.crc = 0;
        m_partCrc = 0;
        return putHeader(m_header.unpackedSize);
    }

    [[nodiscard]] bool endPart()
    {
        m_header.packedSize = m_output.position() - m_headerOffset - m_headerBytes.size();
        const std::size_t length = m_headerBytes.size();
        m_headerBytes.clear();
        presentFormat.putFile(m_headerBytes, m_header);
        if (m_headerBytes.size() != length)
            return m_diagnostics.report(printable(m_header.name) + " grew beyond what can be stored");
        return m_output.patch(m_headerOffset, m_headerBytes);
    }

    [[nodiscard]] bool continueInNextVolume()
    {
        m_header.crc = m_partCrc;
        m_header.continuesAfter = true;
        if (!endPart() || !m_output.nextVolume()) return false;
        m_header.continuesBefore = true;
        return beginPart();
    }

    [[nodiscard]] bool putData(Bytes bytes)
    {
        countData(bytes);
        return m_output.append(bytes);
    }

    void countData(Bytes bytes)
    {
        if (m_output.limited()) m_partCrc = crc32(bytes, m_partCrc);
    }

    OutputVolumes &m_output;
    Diagnostics &m_diagnostics;
    FileHeader m_header;
    ByteBuffer m_headerBytes;
    std::uint64_t m_headerOffset = 0;
    std::uint32_t m_partCrc = 0; ///< of what this volume has of it, where the size of volumes is limited
    std::span<std::uint8_t> m_space;
};

} // namespace archiver
