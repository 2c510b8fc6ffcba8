#pragma once

#include "HuffmanDecoder.h"

namespace archiver {

/// Room that unpackLiteralBlock() needs for what is left of the bits.
[[nodiscard]] std::size_t roomForLiterals(const BitReader &bits, const CodeLengths &lengths);

/// Unpacks a block of literals only, to the start of `out`, which has roomForLiterals(). None where the block
/// is damaged, else how many there were.
[[nodiscard]] std::optional<std::size_t> unpackLiteralBlock(BitReader bits, const CodeLengths &lengths,
                                                            const BlockCodes &codes,
                                                            std::span<std::uint8_t> out,
                                                            std::size_t worthLanes = 200'000);

} // namespace archiver
