#include "HuffmanDecoder.h"

#include <algorithm>

namespace archiver {

std::optional<BlockHeader> parseBlockHeader(Bytes start)
{
    if (start.size() < shortestBlockHeader || start.size() != blockHeaderSize(start)) return std::nullopt;
    const unsigned flags = start[0];
    BlockHeader header;
    header.headerSize = start.size();
    unsigned check = 0x5A ^ flags;
    for (std::size_t index = 2; index < start.size(); ++index) {
        check ^= start[index];
        header.payloadSize |= std::size_t{start[index]} << 8 * (index - 2);
    }
    if (check != start[1] || start.size() > 5) return std::nullopt;
    header.usedBitsInLastByte = (flags & 7) + 1;
    header.last = flags & 0x40;
    header.hasTables = flags & 0x80;
    return header;
}

bool Code::build(std::span<const std::uint8_t> lengths)
{
    std::array<std::uint32_t, longestCode + 1> counts{};
    for (const std::uint8_t length : lengths)
        ++counts[length];
    counts[0] = 0;
    std::uint32_t code = 0;
    std::uint32_t index = 0;
    std::array<std::uint32_t, longestCode + 1> next{};
    for (unsigned length = 1; length <= longestCode; ++length) {
        code <<= 1;
        m_offsets[length] = static_cast<std::int32_t>(index) - static_cast<std::int32_t>(code);
        next[length] = index;
        code += counts[length];
        index += counts[length];
        m_limits[length] = code << (longestCode - length);
    }
    if (m_limits[longestCode] > 1u << longestCode) return false;
    for (std::size_t symbol = 0; symbol < lengths.size(); ++symbol)
        if (lengths[symbol] > 0) m_order[next[lengths[symbol]]++] = static_cast<std::uint16_t>(symbol);
    return true;
}

CodedSymbol Code::find(std::uint64_t bits, unsigned shortest) const
{
    const auto start = static_cast<std::uint32_t>(bits >> (64 - longestCode));
    for (unsigned length = shortest; length <= longestCode; ++length) {
        if (start >= m_limits[length]) continue;
        const std::ptrdiff_t code = start >> (longestCode - length);
        const auto index = static_cast<std::size_t>(code + m_offsets[length]);
        return {m_order[index], static_cast<std::uint16_t>(length)};
    }
    return {};
}

void Code::fill(std::span<CodedSymbol> table, unsigned width) const
{
    std::size_t done = 0;
    for (unsigned length = 1; length <= width; ++length) {
        // Codes of a length lie side by side, behind all shorter ones.
        const std::size_t limit = m_limits[length] >> (longestCode - width);
        const std::size_t share = std::size_t{1} << (width - length);
        for (; done < limit; done += share) {
            const auto code = static_cast<std::ptrdiff_t>(done >> (width - length));
            const std::uint16_t symbol = m_order[static_cast<std::size_t>(code + m_offsets[length])];
            std::ranges::fill(table.subspan(done, share),
                              CodedSymbol{symbol, static_cast<std::uint16_t>(length)});
        }
    }
    std::ranges::fill(table.subspan(done), CodedSymbol{});
}

namespace {

bool readLengthAlphabet(BitReader &bits, Code &code)
{
    std::array<std::uint8_t, lengthSymbols> lengths{};
    for (std::size_t symbol = 0; symbol < lengths.size(); ++symbol) {
        const std::uint32_t length = bits.take(4);
        const std::uint32_t zeros = length == 15 ? bits.take(4) : 0;
        if (zeros == 0)
            lengths[symbol] = static_cast<std::uint8_t>(length);
        else
            symbol += zeros + 1; // zeros + 2 of them, which are there already
        if (bits.overrun()) return false;
    }
    return code.build(lengths);
}

} // namespace

bool readCodeLengths(BitReader &bits, CodeLengths &lengths)
{
    Code code;
    if (bits.atEnd() || !readLengthAlphabet(bits, code)) return false;
    for (std::size_t done = 0; done < lengths.size();) {
        const CodedSymbol symbol = code.find(bits.peek());
        bits.skip(symbol.length);
        if (symbol.length == 0 || bits.overrun()) return false;
        if (symbol.value < 16) {
            lengths[done++] = static_cast<std::uint8_t>(symbol.value);
            continue;
        }
        const bool longRun = symbol.value & 1;
        const std::size_t run = longRun ? 11 + bits.take(7) : 3 + bits.take(3);
        const bool repeats = symbol.value < 18;
        if (bits.overrun() || (repeats && done == 0) || run > lengths.size() - done) return false;
        std::fill_n(lengths.begin() + static_cast<std::ptrdiff_t>(done), run,
                    repeats ? lengths[done - 1] : std::uint8_t{0});
        done += run;
    }
    return true;
}

bool areLiteralsOnly(const CodeLengths &lengths)
{
    const auto commands = std::span(lengths).subspan(literalSymbols, mainSymbols - literalSymbols);
    return std::ranges::all_of(commands, [](std::uint8_t length) { return length == 0; });
}

bool BlockCodes::build(const CodeLengths &lengths, std::size_t size)
{
    const std::span<const std::uint8_t> all(lengths);
    if (!m_main.build(all.first(mainSymbols))) return false;
    // Joining pairs costs as much as unpacking some thousand bytes without them.
    constexpr std::size_t worthIt = 2048;
    joinLiterals(size >= worthIt);
    if (areLiteralsOnly(lengths)) return true;
    return m_distances.build(all.subspan(mainSymbols, 64)) &&
           m_lowDistances.build(all.subspan(mainSymbols + 64, 16)) &&
           m_repeatLengths.build(all.subspan(mainSymbols + 80, 44));
}

void BlockCodes::joinLiterals(bool pairs)
{
    for (std::size_t bits = 0; bits < m_starts.size(); ++bits) {
        const CodedSymbol first = m_main.table()[bits];
        Start &start = m_starts[bits];
        const bool isLiteral = first.length > 0 && first.value < literalSymbols;
        start = {{static_cast<std::uint8_t>(first.value), static_cast<std::uint8_t>(first.value >> 8)},
                 static_cast<std::uint8_t>(isLiteral ? 1 : 0),
                 static_cast<std::uint8_t>(first.length)};
        if (!isLiteral || !pairs) continue;
        const CodedSymbol second = m_main.table()[bits << first.length & (m_starts.size() - 1)];
        if (second.length == 0 || second.value >= literalSymbols || first.length + second.length > width)
            continue;
        start = {{start.bytes[0], static_cast<std::uint8_t>(second.value)},
                 2,
                 static_cast<std::uint8_t>(first.length + second.length)};
    }
}

} // namespace archiver
