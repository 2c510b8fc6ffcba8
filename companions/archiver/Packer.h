#pragma once

#include "HuffmanEncoder.h"
#include "MatchEncoder.h"
#include "Piece.h"

#include <mutex>

namespace archiver {

/// Packs pieces, each without regard to the others, so that many can be at it at once.
class Packer {
public:
    /// `level`: libzstd's. `solid`: matches reach over the borders of files.
    Packer(int level, bool solid) : m_solid(solid), m_finder(level) {}

    void pack(Piece &piece);

private:
    void packAlone(Part &part, Piece &piece);
    void packLiterals(Part &part, Piece &piece);
    void packMatches(Part &part, Piece &piece, std::size_t windowBegin, MatchCursor &matches);

    bool m_solid;
    MatchFinder m_finder;
    MatchEncoder m_matches;
    HuffmanEncoder m_literals;
    std::size_t m_packed = 0; ///< bytes that the present part takes
};

/// As many packers as there are threads that call it.
class Packers {
public:
    Packers(int level, bool solid) : m_level(level), m_solid(solid) {}

    /// Marks the piece where memory is short.
    void pack(Piece &piece) noexcept;

private:
    [[nodiscard]] std::unique_ptr<Packer> take();

    int m_level;
    bool m_solid;
    std::mutex m_mutex;
    std::vector<std::unique_ptr<Packer>> m_idle;
};

} // namespace archiver
