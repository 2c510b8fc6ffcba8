#pragma once

#include "OutputVolumes.h"

namespace archiver {

/// Puts entries into an archive's volumes: an entry's header goes in front of its data first, and is replaced
/// when the data is there. Data goes on in the next volume where one is full, behind a header of its own.
/// Functions that give false have reported why.
class EntryWriter {
public:
    EntryWriter(OutputVolumes &output, Diagnostics &diagnostics);

    /// An entry without data.
    [[nodiscard]] bool write(const FileHeader &header);

    /// One with data. The header's sizes may still change, its checksum and its parts are the writer's.
    [[nodiscard]] bool begin(FileHeader header);
    /// Where to put the next bytes of its content, at least one, to be added by commit(); none in case of a
    /// fault.
    [[nodiscard]] std::optional<std::span<std::uint8_t>> space();
    void commit(std::size_t count);
    [[nodiscard]] bool putStored(Bytes bytes);
    /// `last`: of the entry's.
    [[nodiscard]] bool putBlock(Bytes block, bool last);
    /// `crc` and `size`: of the content.
    [[nodiscard]] bool end(std::uint32_t crc, std::uint64_t size);

private:
    [[nodiscard]] bool putHeader(std::uint64_t dataSize);
    [[nodiscard]] bool beginPart();
    [[nodiscard]] bool endPart();
    [[nodiscard]] bool continueInNextVolume();
    [[nodiscard]] bool putData(Bytes bytes);
    void countData(Bytes bytes);

    OutputVolumes &m_output;
    Diagnostics &m_diagnostics;
    FileHeader m_header;
    ByteBuffer m_headerBytes;
    std::uint64_t m_headerOffset = 0;
    std::uint32_t m_partCrc = 0; ///< of what this volume has of it, where the size of volumes is limited
    std::span<std::uint8_t> m_space;
};

} // namespace archiver
