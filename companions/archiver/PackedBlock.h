#pragma once

#include "Bytes.h"
#include "HuffmanCode.h"

#include <array>
#include <bit>
#include <cstring>
#include <utility>

namespace archiver {

// What blocks of packed data are made of, whatever symbols they use.

/// Collects bits, the most significant first. The caller sees to it that the output has 8 bytes to spare, and
/// that no more than 57 bits wait for flush().
class BitWriter {
public:
    explicit BitWriter(std::uint8_t *output) : m_next(output) {}

    void put(std::uint32_t bits, unsigned count)
    {
        m_bits |= std::uint64_t{bits} << (64 - m_used - count);
        m_used += count;
    }
    void flush()
    {
        std::uint64_t bytes = m_bits;
        if constexpr (std::endian::native == std::endian::little) bytes = __builtin_bswap64(bytes);
        std::memcpy(m_next, &bytes, sizeof bytes);
        m_next += m_used / 8;
        m_bits <<= m_used & ~7u;
        m_used &= 7;
    }
    void putAndFlush(std::uint32_t bits, unsigned count)
    {
        put(bits, count);
        flush();
    }
    /// The byte behind the last bit, and how many bits of the last byte are in use.
    std::pair<std::uint8_t *, unsigned> finish()
    {
        flush();
        return m_used == 0 ? std::pair(m_next, 8u) : std::pair(m_next + 1, m_used);
    }

private:
    std::uint8_t *m_next;
    std::uint64_t m_bits = 0;
    unsigned m_used = 0; // at most 7 after a flush
};

/// The code lengths of all alphabets as symbols of the length alphabet, with the codes of those.
class CodeTables {
public:
    /// Lengths that are missing at the end are zeros. `plainZeros` of these are written one by one, which
    /// changes nothing but the number of bits.
    explicit CodeTables(std::span<const std::uint8_t> codeLengths, std::size_t plainZeros = 0);

    [[nodiscard]] std::size_t bits() const { return m_bits; }
    /// By value: a writer whose address is known elsewhere is not kept in registers.
    [[nodiscard]] BitWriter write(BitWriter writer) const;

private:
    struct Symbol {
        std::uint8_t value;
        std::uint8_t extraBits;
        std::uint8_t extra;
    };
    void addRun(std::uint8_t length, std::size_t run);

    std::vector<Symbol> m_symbols;
    std::vector<std::uint8_t> m_lengths;
    std::vector<std::uint16_t> m_codes;
    std::size_t m_bits = 0;
};

/// Bytes in front of a payload that its header may take.
inline constexpr std::size_t largestBlockStart = 5;

/// Puts the header of a block with tables right before its payload; gives its first byte.
std::uint8_t *putBlockHeader(std::uint8_t *payload, std::size_t size, unsigned usedBits, bool last);

/// How often each byte occurs.
[[nodiscard]] std::array<std::uint32_t, 256> histogram(Bytes input);

/// Complete blocks of packed data, made in place. The memory is kept when they are cleared.
class PackedBlocks {
public:
    /// Space for a block, of at least that size with its header; valid until the next call.
    [[nodiscard]] std::uint8_t *space(std::size_t size);
    /// The block that was put there.
    void add(const std::uint8_t *begin, const std::uint8_t *end);
    /// Drops all blocks but the first ones.
    void keep(std::size_t count);

    [[nodiscard]] std::size_t count() const { return m_blocks.size(); }
    [[nodiscard]] Bytes at(std::size_t index) const
    {
        return Bytes(m_bytes).subspan(m_blocks[index].first, m_blocks[index].second);
    }

private:
    ByteBuffer m_bytes;
    std::vector<std::pair<std::size_t, std::size_t>> m_blocks; ///< first byte and size of each
    std::size_t m_used = 0;
};

} // namespace archiver
