#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace archiver {

// RAR 5's packed data is a row of blocks, each a bit stream (most significant bit first) that may start with
// its code tables: 20 lengths of the length alphabet, then with it the lengths of four alphabets.

inline constexpr std::size_t lengthSymbols = 20;
inline constexpr std::size_t literalSymbols = 256; ///< bytes that stand for themselves
inline constexpr std::size_t mainSymbols = 306;    ///< literals and the commands of a dictionary
inline constexpr std::size_t allSymbols = mainSymbols + 64 + 16 + 44;
inline constexpr unsigned longestCode = 15;

/// Lengths of an optimal prefix code, none above `limit`; 0 for symbols that don't occur. At least two
/// symbols get a code, so that each has one bit or more.
[[nodiscard]] std::vector<std::uint8_t> codeLengths(std::span<const std::uint32_t> frequencies,
                                                    unsigned limit);

/// The canonical code of lengths: shorter codes first, within a length in the order of symbols.
/// Right-aligned.
[[nodiscard]] std::vector<std::uint16_t> canonicalCodes(std::span<const std::uint8_t> lengths);

/// Whether no more codes are used than there are.
[[nodiscard]] bool validLengths(std::span<const std::uint8_t> lengths);

/// The packed payload of a block, whose first byte is its flags; see BlockHeader.
struct BlockHeader {
    std::size_t headerSize = 0; ///< bytes before the payload
    std::size_t payloadSize = 0;
    unsigned usedBitsInLastByte = 8;
    bool last = false; ///< of the entry
    bool hasTables = false;
};

} // namespace archiver
