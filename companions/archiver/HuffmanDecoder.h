#pragma once

#include "Bytes.h"
#include "HuffmanCode.h"

#include <array>
#include <bit>
#include <cstring>
#include <optional>

namespace archiver {

inline constexpr std::size_t shortestBlockHeader = 3;
/// How many bytes the header of a block has that begins with these `shortestBlockHeader` ones; at most 5.
[[nodiscard]] inline std::size_t blockHeaderSize(Bytes start) { return 3u + (start[0] >> 3 & 3); }
/// Of a block's first bytes, all that its header has; none where they can't be one.
[[nodiscard]] std::optional<BlockHeader> parseBlockHeader(Bytes header);

/// Takes bits off a block's payload, the most significant one of a byte first. What lies behind its end gives
/// bits as well, up to `padding` bytes, which have to be there: so it is enough to look at overrun() now and
/// then.
class BitReader {
public:
    BitReader() = default;
    BitReader(Bytes payload, const BlockHeader &header)
        : m_bytes(payload.data())
        , m_end(payload.empty() ? 0 : (payload.size() - 1) * 8 + header.usedBitsInLastByte)
    {
    }
    static constexpr std::size_t padding = 32;

    /// The next 57 bits or more, at the top of the result.
    [[nodiscard]] std::uint64_t peek() const
    {
        std::uint64_t bytes = 0;
        std::memcpy(&bytes, m_bytes + m_bit / 8, sizeof bytes);
        if constexpr (std::endian::native == std::endian::little) bytes = __builtin_bswap64(bytes);
        return bytes << (m_bit & 7);
    }
    void skip(std::size_t count) { m_bit += count; }
    /// Of the next bit, in the payload.
    [[nodiscard]] std::size_t position() const { return m_bit; }
    /// What is left between these positions.
    [[nodiscard]] BitReader between(std::size_t begin, std::size_t end) const
    {
        BitReader reader = *this;
        reader.m_bit = begin;
        reader.m_end = end;
        return reader;
    }
    /// At most 32 bits, as a number.
    [[nodiscard]] std::uint32_t take(unsigned count)
    {
        const std::uint64_t bits = peek() >> 1 >> (63 - count);
        skip(count);
        return static_cast<std::uint32_t>(bits);
    }
    [[nodiscard]] bool atEnd() const { return m_bit >= m_end; }
    [[nodiscard]] bool overrun() const { return m_bit > m_end; }
    [[nodiscard]] std::size_t left() const { return overrun() ? 0 : m_end - m_bit; }

private:
    const std::uint8_t *m_bytes = nullptr;
    std::size_t m_bit = 0; ///< the next one
    std::size_t m_end = 0;
};

/// A symbol, and how many bits stand for it; 0: there is no such code.
struct CodedSymbol {
    std::uint16_t value = 0;
    std::uint16_t length = 0;
};

/// A canonical code of at most mainSymbols symbols, ready to be read.
class Code {
public:
    /// False where there are more codes than bits can tell apart.
    [[nodiscard]] bool build(std::span<const std::uint8_t> lengths);
    /// The symbol that `bits`, as BitReader::peek() gives them, begin with, whose code has `shortest` bits or
    /// more.
    [[nodiscard]] CodedSymbol find(std::uint64_t bits, unsigned shortest = 1) const;
    /// Writes to `table`, for each start of `width` bits, the symbol whose code it begins with, if any.
    void fill(std::span<CodedSymbol> table, unsigned width) const;

private:
    /// For each length: the first 15-bit start beyond its codes, and what turns a code into an index of
    /// m_order.
    std::array<std::uint32_t, longestCode + 1> m_limits{};
    std::array<std::int32_t, longestCode + 1> m_offsets{};
    std::array<std::uint16_t, mainSymbols> m_order{}; ///< symbols, in the order of their codes
};

/// The same with a table for codes of up to `width` bits.
template <unsigned width>
class QuickCode {
public:
    [[nodiscard]] bool build(std::span<const std::uint8_t> lengths)
    {
        if (!m_code.build(lengths)) return false;
        m_code.fill(m_table, width);
        return true;
    }
    [[nodiscard]] CodedSymbol find(std::uint64_t bits) const
    {
        const CodedSymbol symbol = m_table[bits >> (64 - width)];
        return symbol.length > 0 ? symbol : m_code.find(bits, width + 1);
    }
    [[nodiscard]] const std::array<CodedSymbol, 1u << width> &table() const { return m_table; }

private:
    Code m_code;
    std::array<CodedSymbol, 1u << width> m_table{};
};

/// Lengths of all codes of a block.
using CodeLengths = std::array<std::uint8_t, allSymbols>;

/// From a block's start; false where they are damaged.
[[nodiscard]] bool readCodeLengths(BitReader &bits, CodeLengths &lengths);
/// Whether they have nothing but bytes that stand for themselves.
[[nodiscard]] bool areLiteralsOnly(const CodeLengths &lengths);

/// The four codes of a block. They are large: to be used again and again.
class BlockCodes {
public:
    /// `size`: of what they are for, in packed bytes. False where the lengths are damaged.
    [[nodiscard]] bool build(const CodeLengths &lengths, std::size_t size);

    static constexpr unsigned width = 12;
    /// What `width` bits begin with: one literal or two, or else a command.
    struct Start {
        std::array<std::uint8_t, 2> bytes; ///< the literals; the command's number, the lower byte first
        std::uint8_t literals;             ///< how many
        std::uint8_t bits;                 ///< of all that; 0: the code is longer
    };
    [[nodiscard]] Start start(std::uint64_t bits) const { return m_starts[bits >> (64 - width)]; }

    [[nodiscard]] CodedSymbol symbol(std::uint64_t bits) const { return m_main.find(bits); }
    [[nodiscard]] CodedSymbol distance(std::uint64_t bits) const { return m_distances.find(bits); }
    [[nodiscard]] CodedSymbol lowDistance(std::uint64_t bits) const { return m_lowDistances.find(bits); }
    [[nodiscard]] CodedSymbol repeatLength(std::uint64_t bits) const { return m_repeatLengths.find(bits); }

private:
    void joinLiterals(bool pairs);

    QuickCode<width> m_main;
    QuickCode<9> m_distances;
    QuickCode<7> m_lowDistances;
    QuickCode<8> m_repeatLengths;
    std::array<Start, 1u << width> m_starts{};
};

/// Unpacks literals to `out` as long as there are any and less than 8 of the bytes before `end` are left; to
/// where it came. It stops before a command, and some bytes before the end of the bits.
[[nodiscard]] inline std::uint8_t *unpackLiterals(BitReader &bits, const BlockCodes &codes, std::uint8_t *out,
                                                  const std::uint8_t *end)
{
    constexpr std::size_t lookups = 4; // of at most `width` bits each, from the 57 bits of a peek
    BitReader at = bits;
    while (at.left() >= lookups * BlockCodes::width && end - out >= 8) {
        std::uint64_t next = at.peek();
        for (std::size_t lookup = 0; lookup < lookups; ++lookup) {
            const BlockCodes::Start start = codes.start(next);
            if (start.literals == 0) {
                bits = at;
                return out;
            }
            std::memcpy(out, start.bytes.data(), 2);
            out += start.literals;
            next <<= start.bits;
            at.skip(start.bits);
        }
    }
    bits = at;
    return out;
}

} // namespace archiver
