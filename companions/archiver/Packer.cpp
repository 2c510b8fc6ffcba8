#include "Packer.h"

#include <algorithm>
#include <new>

namespace archiver {

void Piece::clear()
{
    used = 0;
    parts.clear();
    packed.keep(0);
    outOfMemory = false;
}

void Packer::pack(Piece &piece)
try {
    for (Part &part : piece.parts)
        pack(part, piece);
} catch (const std::bad_alloc &) {
    piece.outOfMemory = true; // no exception gets out of a thread
}

void Packer::pack(Part &part, Piece &piece)
{
    const Bytes content = piece.contentOf(part);
    if (part.coding != Coding::Literals) {
        part.crc = crc32(content);
        return;
    }
    PackedBlocks &packed = piece.packed;
    part.firstBlock = packed.count();
    std::size_t size = 0;
    for (Bytes rest = content; !rest.empty();) {
        const Bytes block = rest.first(std::min(rest.size(), HuffmanEncoder::blockInput));
        rest = rest.subspan(block.size());
        part.crc = crc32(block, part.crc); // while it is in the cache
        size += m_literals.encode(block, part.last && rest.empty(), packed).size();
    }
    if (part.first && part.last && size >= part.size) {
        part.coding = Coding::Store;
        packed.keep(part.firstBlock);
    }
    part.endBlock = packed.count();
}

} // namespace archiver
