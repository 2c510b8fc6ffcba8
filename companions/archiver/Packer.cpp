#include "Packer.h"

#include "Probe.h"

#include <algorithm>
#include <new>
#include <numeric>

namespace archiver {

namespace {

constexpr std::size_t oneKind = 64 << 10; // as little is hardly ever random in one place and not in another

/// Whether it is little more than the literals' codes that would shrink it.
bool hardlyRepeats(std::span<const ZSTD_Sequence> found, std::size_t size)
{
    constexpr std::size_t share = 50;
    const auto add = [](std::size_t sum, const ZSTD_Sequence &each) { return sum + each.matchLength; };
    return std::accumulate(found.begin(), found.end(), std::size_t{0}, add) < size / share;
}

} // namespace

void Piece::open(Bytes before, std::size_t room)
{
    parts.clear();
    packed.keep(0);
    outOfMemory = false;
    if (content.size() < before.size() + room) content.resize(before.size() + room);
    std::ranges::copy(before, content.begin());
    history = used = before.size();
    end = history + room;
}

void Packer::pack(Piece &piece)
{
    const Bytes window = Bytes(piece.content).first(piece.used);
    const bool together = m_solid && piece.used > piece.history;
    MatchCursor matches(together ? m_finder.find(window, piece.history) : std::span<const ZSTD_Sequence>());
    for (Part &part : piece.parts) {
        part.firstBlock = piece.packed.count();
        m_packed = 0;
        if (m_solid && part.coding == Coding::Matches)
            packMatches(part, piece, 0, matches);
        else if (part.coding != Coding::None)
            packAlone(part, piece);
        part.endBlock = piece.packed.count();
    }
}

void Packer::packAlone(Part &part, Piece &piece)
{
    const bool isSmall = part.first && part.last && part.size <= oneKind;
    if (isSmall && looksRandom(piece.contentOf(part))) part.coding = Coding::Store;
    if (part.coding == Coding::Matches) {
        // A file that begins in this piece knows nothing of what is before it.
        const std::size_t begin = part.first ? part.begin : 0;
        const Bytes window = Bytes(piece.content).subspan(begin, part.begin + part.size - begin);
        const std::span<const ZSTD_Sequence> found = m_finder.find(window, part.begin - begin);
        MatchCursor matches(found);
        if (part.first && part.last && hardlyRepeats(found, part.size))
            part.coding = Coding::Literals;
        else
            packMatches(part, piece, begin, matches);
    }
    if (part.coding == Coding::Literals) packLiterals(part, piece);
    if (part.first && part.last && m_packed >= part.size) {
        part.coding = Coding::Store;
        piece.packed.keep(part.firstBlock);
    }
    if (part.coding == Coding::Store) part.crc = crc32(piece.contentOf(part));
}

void Packer::packLiterals(Part &part, Piece &piece)
{
    for (Bytes rest = piece.contentOf(part); !rest.empty();) {
        const Bytes block = rest.first(std::min(rest.size(), HuffmanEncoder::blockInput));
        rest = rest.subspan(block.size());
        part.crc = crc32(block, part.crc); // while it is in the cache
        m_packed += m_literals.encode(block, part.last && rest.empty(), piece.packed).size();
    }
}

void Packer::packMatches(Part &part, Piece &piece, std::size_t windowBegin, MatchCursor &matches)
{
    part.crc = crc32(piece.contentOf(part));
    const Bytes window = Bytes(piece.content).subspan(windowBegin);
    const std::size_t begin = part.begin - windowBegin;
    m_packed += m_matches.encode(window, {begin, begin + part.size, part.last}, matches, piece.packed);
}

void Packers::pack(Piece &piece) noexcept
{
    try {
        std::unique_ptr<Packer> packer = take();
        packer->pack(piece);
        const std::lock_guard lock(m_mutex);
        m_idle.push_back(std::move(packer));
    } catch (const std::bad_alloc &) {
        piece.outOfMemory = true;
    }
}

std::unique_ptr<Packer> Packers::take()
{
    const std::lock_guard lock(m_mutex);
    if (m_idle.empty()) return std::make_unique<Packer>(m_level, m_solid);
    std::unique_ptr<Packer> packer = std::move(m_idle.back());
    m_idle.pop_back();
    return packer;
}

} // namespace archiver
