#pragma once

#include "Headers.h"
#include "HuffmanEncoder.h"
#include "PackedBlock.h"

namespace archiver {

/// How an entry's content gets into the archive.
enum class Coding {
    None,    ///< it has none
    Store,   ///< as it is
    Literals ///< each byte by a code of its own
};

/// Some content of an entry, or an entry that has none.
struct Part {
    FileHeader header; ///< where the entry begins with this part
    Coding coding = Coding::None;
    bool first = true; ///< of the entry's parts
    bool last = true;
    std::size_t begin = 0; ///< of its bytes in the piece's content
    std::size_t size = 0;
    // What Packer finds:
    std::uint32_t crc = 0;
    std::size_t firstBlock = 0; ///< of its own in the piece's packed ones
    std::size_t endBlock = 0;
};

/// What is packed at a time: parts of a large file, or many small entries.
struct Piece {
    static constexpr std::size_t mostContent =
        HuffmanEncoder::blockInput; ///< what fits the cache, packed too
    static constexpr std::size_t mostParts = 1000;

    ByteBuffer content;
    std::size_t used = 0; ///< of it
    std::vector<Part> parts;
    PackedBlocks packed;
    bool outOfMemory = false;

    [[nodiscard]] Bytes contentOf(const Part &part) const
    {
        return Bytes(content).subspan(part.begin, part.size);
    }
    [[nodiscard]] bool hasRoomFor(std::size_t size) const
    {
        return used + size <= mostContent && parts.size() < mostParts;
    }
    void clear();
};

/// Packs pieces, each without regard to the others, so that many can be at it at once.
class Packer {
public:
    void pack(Piece &piece);

private:
    void pack(Part &part, Piece &piece);

    HuffmanEncoder m_literals;
};

} // namespace archiver
