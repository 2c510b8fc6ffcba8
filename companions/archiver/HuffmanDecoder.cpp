#include "HuffmanDecoder.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace archiver {

std::optional<BlockHeader> parseBlockHeader(Bytes start)
{
    if (start.size() < 3) return std::nullopt;
    const unsigned flags = start[0];
    const std::size_t sizeBytes = (flags >> 3 & 3) + 1;
    if (sizeBytes > 3 || start.size() < 2 + sizeBytes) return std::nullopt;
    BlockHeader header;
    header.headerSize = 2 + sizeBytes;
    unsigned check = 0x5A ^ flags;
    for (std::size_t index = 0; index < sizeBytes; ++index) {
        check ^= start[2 + index];
        header.payloadSize |= std::size_t{start[2 + index]} << 8 * index;
    }
    if (check != start[1]) return std::nullopt;
    header.usedBitsInLastByte = (flags & 7) + 1;
    header.last = flags & 0x40;
    header.hasTables = flags & 0x80;
    return header;
}

HuffmanDecoder::HuffmanDecoder() : m_fast(std::make_unique<std::array<Fast, 1u << fastBits>>()) {}

HuffmanDecoder::Start HuffmanDecoder::start(Bytes payload, const BlockHeader &header)
{
    m_payload = payload.data();
    m_bit = 0;
    m_endBit = payload.empty() ? 0 : (payload.size() - 1) * 8 + header.usedBitsInLastByte;
    m_damaged = false;
    if (header.hasTables) {
        const Start start = startTables();
        if (start != Start::Ready) return start;
    }
    // Filling the table costs as much as unpacking a thousand bytes without it.
    constexpr std::size_t worthIt = 512;
    if (m_haveTables && !m_haveFast && payload.size() >= worthIt) buildFast();
    return m_haveTables ? Start::Ready : Start::Damaged;
}

HuffmanDecoder::Start HuffmanDecoder::startTables()
{
    std::array<std::uint8_t, allSymbols> lengths{};
    m_haveTables = false;
    m_haveFast = false;
    if (!readTables(lengths)) return Start::Damaged;
    if (!validLengths(std::span(lengths).first(mainSymbols))) return Start::Damaged;
    const auto commands = std::span(lengths).subspan(literalSymbols, mainSymbols - literalSymbols);
    if (std::ranges::any_of(commands, [](std::uint8_t length) { return length > 0; }))
        return Start::NeedsDictionary;
    buildCode(std::span(lengths).first(literalSymbols));
    m_haveTables = true;
    return Start::Ready;
}

/// The 57 bits or more from `bit` on, at the top of the result.
std::uint64_t HuffmanDecoder::window(std::size_t bit) const
{
    std::uint64_t bytes = 0;
    std::memcpy(&bytes, m_payload + bit / 8, sizeof bytes);
    if constexpr (std::endian::native == std::endian::little) bytes = __builtin_bswap64(bytes);
    return bytes << (bit & 7);
}

unsigned HuffmanDecoder::takeBits(unsigned count)
{
    if (m_endBit - m_bit < count) {
        m_damaged = true;
        m_bit = m_endBit;
        return 0;
    }
    const auto bits = static_cast<unsigned>(window(m_bit) >> (64 - count));
    m_bit += count;
    return bits;
}

bool HuffmanDecoder::readLengthAlphabet(std::array<std::uint8_t, lengthSymbols> &lengths)
{
    for (std::size_t symbol = 0; symbol < lengths.size() && !m_damaged; ++symbol) {
        const unsigned length = takeBits(4);
        const unsigned zeros = length == 15 ? takeBits(4) : 0;
        if (zeros == 0)
            lengths[symbol] = static_cast<std::uint8_t>(length);
        else
            symbol += zeros + 1; // zeros + 2 of them, which are there already
    }
    return !m_damaged && validLengths(lengths);
}

bool HuffmanDecoder::readTables(std::array<std::uint8_t, allSymbols> &lengths)
{
    std::array<std::uint8_t, lengthSymbols> alphabet{};
    if (!readLengthAlphabet(alphabet)) return false;
    buildCode(alphabet);
    for (std::size_t done = 0; done < lengths.size();) {
        const Symbol symbol = find(window(m_bit));
        if (symbol.length == 0 || m_endBit - m_bit < symbol.length) return false;
        m_bit += symbol.length;
        if (symbol.value < 16) {
            lengths[done++] = static_cast<std::uint8_t>(symbol.value);
            continue;
        }
        const bool longRun = symbol.value & 1;
        const std::size_t run = longRun ? 11 + takeBits(7) : 3 + takeBits(3);
        const bool repeats = symbol.value < 18;
        if (m_damaged || (repeats && done == 0) || run > lengths.size() - done) return false;
        std::fill_n(lengths.begin() + static_cast<std::ptrdiff_t>(done), run,
                    repeats ? lengths[done - 1] : 0);
        done += run;
    }
    return true;
}

void HuffmanDecoder::buildCode(std::span<const std::uint8_t> lengths)
{
    std::array<std::uint32_t, longestCode + 1> counts{};
    for (const std::uint8_t length : lengths)
        if (length > 0) ++counts[length];
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
    for (std::size_t symbol = 0; symbol < lengths.size(); ++symbol)
        if (lengths[symbol] > 0) m_order[next[lengths[symbol]]++] = static_cast<std::uint16_t>(symbol);
}

void HuffmanDecoder::buildFast()
{
    for (std::uint64_t bits = 0; bits < m_fast->size(); ++bits) {
        Fast entry{};
        const Symbol first = find(bits << (64 - fastBits));
        if (first.length > 0 && first.length <= fastBits) {
            entry = {{static_cast<std::uint8_t>(first.value), 0}, 1, static_cast<std::uint8_t>(first.length)};
            const Symbol second =
                first.length < fastBits ? find(bits << (64 - fastBits + first.length)) : Symbol{0, 0};
            if (second.length > 0 && first.length + second.length <= fastBits) {
                entry.symbols[1] = static_cast<std::uint8_t>(second.value);
                entry.count = 2;
                entry.bits = static_cast<std::uint8_t>(first.length + second.length);
            }
        }
        (*m_fast)[static_cast<std::size_t>(bits)] = entry;
    }
    m_haveFast = true;
}

HuffmanDecoder::Symbol HuffmanDecoder::find(std::uint64_t window) const
{
    const auto bits = static_cast<std::uint32_t>(window >> (64 - longestCode));
    for (unsigned length = 1; length <= longestCode; ++length) {
        if (bits >= m_limits[length]) continue;
        const auto code = static_cast<std::int32_t>(bits >> (longestCode - length));
        const std::int32_t index = code + m_offsets[length];
        return {m_order[static_cast<std::size_t>(index)], length};
    }
    return {0, 0};
}

/// As much as can be done without looking at the ends of payload and output.
std::size_t HuffmanDecoder::decodeFast(std::span<std::uint8_t> output)
{
    constexpr std::size_t lookups = 4; // of at most fastBits each, from the 57 bits of a window
    constexpr std::ptrdiff_t room = 2 * lookups;
    const auto &fast = *m_fast;
    std::uint8_t *next = output.data();
    const std::uint8_t *const end = next + output.size();
    std::size_t bit = m_bit;
    while (bit + lookups * fastBits <= m_endBit && end - next >= room) {
        std::uint64_t bits = window(bit);
        for (std::size_t lookup = 0; lookup < lookups; ++lookup) {
            const Fast entry = fast[bits >> (64 - fastBits)];
            if (entry.count == 0) {
                m_bit = bit;
                return static_cast<std::size_t>(next - output.data());
            }
            std::memcpy(next, entry.symbols, 2);
            next += entry.count;
            bits <<= entry.bits;
            bit += entry.bits;
        }
    }
    m_bit = bit;
    return static_cast<std::size_t>(next - output.data());
}

std::size_t HuffmanDecoder::decode(std::span<std::uint8_t> output)
{
    std::size_t done = 0;
    while (done < output.size() && m_bit < m_endBit) {
        if (m_haveFast) done += decodeFast(output.subspan(done));
        if (done == output.size() || m_bit == m_endBit) break;
        // A code that is too long for the fast way, or the last bits.
        const Symbol symbol = find(window(m_bit));
        if (symbol.length == 0 || m_endBit - m_bit < symbol.length) {
            m_damaged = true;
            break;
        }
        output[done++] = static_cast<std::uint8_t>(symbol.value);
        m_bit += symbol.length;
    }
    return done;
}

} // namespace archiver
