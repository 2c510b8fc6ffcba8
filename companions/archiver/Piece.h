#pragma once

#include "Headers.h"
#include "PackedBlock.h"

namespace archiver {

/// How an entry's content gets into the archive.
enum class Coding {
    None,     ///< it has none
    Store,    ///< as it is
    Literals, ///< each byte by a code of its own
    Matches   ///< what repeats by where it was before
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
    ByteBuffer content;
    std::size_t history = 0; ///< bytes at its start that belong to the piece before
    std::size_t used = 0;    ///< these, and what came behind them
    std::size_t end = 0;     ///< of what can be used
    std::vector<Part> parts;
    PackedBlocks packed;
    bool outOfMemory = false;

    /// Begins anew, with room for so many bytes behind the history.
    void open(Bytes before, std::size_t room);
    [[nodiscard]] std::size_t room() const { return end - used; }
    [[nodiscard]] Bytes contentOf(const Part &part) const
    {
        return Bytes(content).subspan(part.begin, part.size);
    }
};

} // namespace archiver
