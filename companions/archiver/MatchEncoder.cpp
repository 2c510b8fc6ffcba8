#include "MatchEncoder.h"

#include <algorithm>

namespace archiver {

namespace {

constexpr std::size_t blockInput = 128 << 10;

// Commands of the main alphabet, and where the others begin among all symbols.
constexpr std::uint16_t repeatAll = 257;
constexpr std::uint16_t repeatDistance = 258;
constexpr std::uint16_t firstMatch = 262;
constexpr std::size_t distanceSymbols = mainSymbols;
constexpr std::size_t distanceCount = 64;
constexpr std::size_t lowSymbols = distanceSymbols + distanceCount;
constexpr std::size_t lowCount = 16;
constexpr std::size_t repeatLengthSymbols = lowSymbols + lowCount;
constexpr std::size_t repeatCount = allSymbols - repeatLengthSymbols;

constexpr std::size_t shortest = 2;
constexpr std::size_t longest = 4097;
constexpr std::size_t farthest = std::size_t{128 << 10} << MatchEncoder::dictionary;

/// By so much a new match is longer than what is written of its length: nobody writes short ones of far away.
std::size_t bonus(std::size_t distance)
{
    return (distance > 0x100 ? 1u : 0u) + (distance > 0x2000 ? 1u : 0u) + (distance > 0x40000 ? 1u : 0u);
}

/// Four numbers share a width; with each further bit of width there is one more behind the symbol.
struct Slot {
    unsigned symbol;
    unsigned bits;
    std::uint32_t extra;
};

Slot lengthSlot(std::size_t length)
{
    const auto value = static_cast<std::uint32_t>(length - shortest);
    if (value < 8) return {value, 0, 0};
    const auto bits = static_cast<unsigned>(std::bit_width(value)) - 3;
    return {4 * (bits + 1) + (value >> bits & 3), bits, value & ((1u << bits) - 1)};
}

Slot distanceSlot(std::size_t distance)
{
    const auto value = static_cast<std::uint32_t>(distance - 1);
    if (value < 4) return {value, 0, 0};
    const auto bits = static_cast<unsigned>(std::bit_width(value)) - 2;
    return {2 * bits + 2 + (value >> bits & 1), bits, value & ((1u << bits) - 1)};
}

} // namespace

std::size_t MatchEncoder::encode(Bytes window, const Range &range, MatchCursor &matches, PackedBlocks &into)
{
    m_window = window;
    m_into = &into;
    m_packed = 0;
    m_position = m_blockBegin = range.begin;
    m_known = 0;
    m_lastLength = 0;
    // The last byte has a block of its own: readers differ in how far they look ahead.
    const std::size_t end = range.last ? range.end - 1 : range.end;
    while (m_position < end) {
        const MatchCursor::Step step = matches.next(end - m_position);
        addLiterals(step.literals);
        if (step.length > 0) addMatch(step.distance, step.length);
    }
    if (m_position > m_blockBegin) endBlock();
    if (range.last) {
        static_cast<void>(matches.next(1));
        putLastByte(window[end]);
    }
    return m_packed;
}

void MatchEncoder::addLiterals(std::size_t count)
{
    while (count > 0) {
        const std::size_t part = std::min(count, m_blockBegin + blockInput - m_position);
        for (const std::uint8_t byte : m_window.subspan(m_position, part))
            ++m_counts[byte];
        m_literals += part;
        count -= part;
        cover(part);
    }
}

void MatchEncoder::addMatch(std::size_t distance, std::size_t length)
{
    const std::uint8_t *const here = m_window.data() + m_position;
    const bool isOne = distance > 0 && distance <= std::min(m_position, farthest) &&
                       std::equal(here, here + length, here - distance);
    while (isOne && length >= shortest) {
        const std::size_t done = addCommand(distance, length);
        if (done == 0) break;
        length -= done;
    }
    addLiterals(length);
}

/// Puts as much of the match as one command holds; 0 where it is too short for any.
std::size_t MatchEncoder::addCommand(std::size_t distance, std::size_t length)
{
    Token token{};
    token.literals = static_cast<std::uint32_t>(m_literals);
    auto *const end = m_distances.begin() + m_known;
    auto *const known = std::find(m_distances.begin(), end, distance);
    const bool isNewest = m_known > 0 && known == m_distances.begin();
    // What is left must not be a single byte.
    const auto atMost = [&](std::size_t most) {
        const std::size_t part = std::min(length, most);
        return length - part == 1 ? part - 1 : part;
    };
    std::size_t part = 0;
    if (isNewest && m_lastLength > 0 && atMost(m_lastLength) == m_lastLength &&
        (length == m_lastLength || m_lastLength >= longest)) {
        token.command = repeatAll;
        part = m_lastLength;
    } else if (known != end) {
        part = atMost(longest);
        token.command = static_cast<std::uint16_t>(repeatDistance + (known - m_distances.begin()));
        putLength(token, part, repeatLengthSymbols);
        std::rotate(m_distances.begin(), m_distances.begin() + (known - m_distances.begin()),
                    m_distances.begin() + (known - m_distances.begin()) + 1);
    } else {
        part = atMost(longest + bonus(distance));
        if (part < shortest + bonus(distance)) return 0;
        putLength(token, part - bonus(distance), firstMatch);
        putDistance(token, distance);
        std::rotate(m_distances.begin(), m_distances.end() - 1, m_distances.end());
        m_distances.front() = distance;
        m_known = std::min(m_known + 1, m_distances.size());
    }
    m_lastLength = part;
    token.length = static_cast<std::uint16_t>(part);
    count(token);
    cover(part);
    return part;
}

void MatchEncoder::putLength(Token &token, std::size_t length, std::size_t firstSymbol)
{
    const Slot slot = lengthSlot(length);
    token.lengthBits = static_cast<std::uint8_t>(slot.bits);
    token.lengthExtra = static_cast<std::uint16_t>(slot.extra);
    const auto symbol = static_cast<std::uint16_t>(firstSymbol + slot.symbol);
    (firstSymbol == firstMatch ? token.command : token.lengthSymbol) = symbol;
}

void MatchEncoder::putDistance(Token &token, std::size_t distance)
{
    const Slot slot = distanceSlot(distance);
    token.distanceSymbol = static_cast<std::uint8_t>(slot.symbol);
    token.distanceBits = static_cast<std::uint8_t>(slot.bits);
    token.distanceExtra = slot.extra;
    if (slot.bits < 4) return;
    // The lowest four bits have an alphabet of their own.
    token.distanceBits = static_cast<std::uint8_t>(slot.bits - 4);
    token.distanceExtra = slot.extra >> 4;
    token.lowDistance = static_cast<std::uint8_t>((slot.extra & 15) | 16);
}

void MatchEncoder::count(const Token &token)
{
    ++m_counts[token.command];
    if (token.command >= firstMatch) {
        ++m_counts[distanceSymbols + token.distanceSymbol];
        if (token.lowDistance > 0) ++m_counts[lowSymbols + (token.lowDistance & 15u)];
    } else if (token.command >= repeatDistance) {
        ++m_counts[token.lengthSymbol];
    }
    m_extraBits += token.lengthBits + token.distanceBits;
    m_tokens.push_back(token);
    m_literals = 0;
}

void MatchEncoder::cover(std::size_t size)
{
    m_position += size;
    if (m_position >= m_blockBegin + blockInput) endBlock();
}

void MatchEncoder::endBlock()
{
    m_lengths.fill(0);
    std::size_t bits = m_extraBits;
    for (std::size_t begin = 0;
         const std::size_t size : {mainSymbols, distanceCount, lowCount, repeatCount}) {
        const auto counts = std::span(m_counts).subspan(begin, size);
        if (std::ranges::any_of(counts, [](std::uint32_t count) { return count > 0; })) {
            const std::vector<std::uint8_t> lengths = codeLengths(counts, longestCode);
            const std::vector<std::uint16_t> codes = canonicalCodes(lengths);
            std::ranges::copy(lengths, m_lengths.begin() + static_cast<std::ptrdiff_t>(begin));
            std::ranges::copy(codes, m_codes.begin() + static_cast<std::ptrdiff_t>(begin));
            for (std::size_t symbol = 0; symbol < size; ++symbol)
                bits += std::size_t{counts[symbol]} * lengths[symbol];
        }
        begin += size;
    }
    const CodeTables tables(m_lengths);
    std::uint8_t *const payload = newPayload(tables.bits() + bits);
    finish(payload, writeTokens(tables.write(BitWriter(payload))), false);

    m_blockBegin = m_position;
    m_tokens.clear();
    m_literals = 0;
    m_counts.fill(0);
    m_extraBits = 0;
}

BitWriter MatchEncoder::writeTokens(BitWriter writer) const
{
    const std::uint8_t *next = m_window.data() + m_blockBegin;
    const auto put = [&](std::size_t symbol) { writer.put(m_codes[symbol], m_lengths[symbol]); };
    const auto putLiterals = [&](std::size_t count) {
        for (; count >= 3; count -= 3, next += 3) {
            put(next[0]);
            put(next[1]);
            put(next[2]);
            writer.flush();
        }
        for (; count > 0; --count)
            put(*next++);
        writer.flush();
    };
    for (const Token &token : m_tokens) {
        putLiterals(token.literals);
        put(token.command);
        if (token.command < firstMatch && token.command >= repeatDistance) put(token.lengthSymbol);
        writer.put(token.lengthExtra, token.lengthBits);
        writer.flush();
        if (token.command >= firstMatch) {
            put(distanceSymbols + token.distanceSymbol);
            writer.put(token.distanceExtra, token.distanceBits);
            if (token.lowDistance > 0) put(lowSymbols + (token.lowDistance & 15u));
            writer.flush();
        }
        next += token.length;
    }
    putLiterals(m_literals);
    return writer;
}

void MatchEncoder::putLastByte(std::uint8_t byte)
{
    // The longest code there is, beside the shortest for a symbol that never comes.
    m_lengths.fill(0);
    m_lengths[byte] = longestCode;
    m_lengths[byte == 0 ? 1 : 0] = 1;
    constexpr std::uint32_t code = 1u << (longestCode - 1);
    const CodeTables tables(m_lengths);
    std::uint8_t *const payload = newPayload(tables.bits() + longestCode);
    BitWriter writer = tables.write(BitWriter(payload));
    writer.putAndFlush(code, longestCode);
    finish(payload, writer, true);
}

/// Where the payload of the next block goes, of so many bits.
std::uint8_t *MatchEncoder::newPayload(std::size_t bits)
{
    constexpr std::size_t toSpare = 16;
    return m_into->space(largestBlockStart + bits / 8 + toSpare) + largestBlockStart;
}

void MatchEncoder::finish(std::uint8_t *payload, BitWriter writer, bool last)
{
    const auto [end, usedBits] = writer.finish();
    const std::uint8_t *const start =
        putBlockHeader(payload, static_cast<std::size_t>(end - payload), usedBits, last);
    m_into->add(start, end);
    m_packed += static_cast<std::size_t>(end - start);
}

} // namespace archiver
