#pragma once

#include "Piece.h"

#include <cstdint>

namespace archiver {

/// Whether bytes are so evenly spread, by some of them, that nothing would make them shorter. Few bytes tell
/// little: of them only what can't but be random.
[[nodiscard]] bool looksRandom(Bytes content);

/// What would make a file shorter, by some stretches of it: Matches, Literals or, if nothing, Store; none
/// with errno set where it can't be read.
[[nodiscard]] Coding probe(int file, std::uint64_t size);

} // namespace archiver
