#include "PackedBlock.h"

#include <algorithm>

namespace archiver {

CodeTables::CodeTables(std::span<const std::uint8_t> codeLengths, std::size_t plainZeros)
{
    std::vector<std::uint8_t> all(codeLengths.begin(), codeLengths.end());
    all.resize(allSymbols - plainZeros, 0);
    for (std::size_t start = 0; start < all.size();) {
        std::size_t end = start + 1;
        while (end < all.size() && all[end] == all[start])
            ++end;
        addRun(all[start], end - start);
        start = end;
    }
    m_symbols.insert(m_symbols.end(), plainZeros, {0, 0, 0});

    std::array<std::uint32_t, lengthSymbols> frequencies{};
    for (const Symbol &symbol : m_symbols)
        ++frequencies[symbol.value];
    constexpr unsigned limit = 7; // stays clear of 15, which needs an escape
    m_lengths = archiver::codeLengths(frequencies, limit);
    m_codes = canonicalCodes(m_lengths);
    m_bits = 4 * lengthSymbols;
    for (const Symbol &symbol : m_symbols)
        m_bits += std::size_t{m_lengths[symbol.value]} + symbol.extraBits;
}

/// A run of one length: of zeros by symbols 18 and 19, of others by the length itself, then 16 and 17.
void CodeTables::addRun(std::uint8_t length, std::size_t run)
{
    if (length > 0) {
        m_symbols.push_back({length, 0, 0});
        --run;
    }
    const std::uint8_t shortRun = length > 0 ? 16 : 18;
    const std::uint8_t longRun = length > 0 ? 17 : 19;
    while (run >= 11) {
        const std::size_t part = std::min<std::size_t>(run, 138);
        m_symbols.push_back({longRun, 7, static_cast<std::uint8_t>(part - 11)});
        run -= part;
    }
    if (run >= 3) {
        m_symbols.push_back({shortRun, 3, static_cast<std::uint8_t>(run - 3)});
        run = 0;
    }
    for (; run > 0; --run)
        m_symbols.push_back({length, 0, 0});
}

BitWriter CodeTables::write(BitWriter writer) const
{
    for (const std::uint8_t length : m_lengths)
        writer.putAndFlush(length, 4);
    for (const Symbol &symbol : m_symbols) {
        writer.putAndFlush(m_codes[symbol.value], m_lengths[symbol.value]);
        if (symbol.extraBits > 0) writer.putAndFlush(symbol.extra, symbol.extraBits);
    }
    return writer;
}

std::uint8_t *putBlockHeader(std::uint8_t *payload, std::size_t size, unsigned usedBits, bool last)
{
    const unsigned sizeBytes = size < 1u << 8 ? 1 : size < 1u << 16 ? 2 : 3;
    auto flags =
        static_cast<std::uint8_t>((usedBits - 1) | (sizeBytes - 1) << 3 | (last ? 0x40u : 0u) | 0x80u);
    std::uint8_t check = 0x5A ^ flags;
    std::uint8_t *start = payload - 2 - sizeBytes;
    for (unsigned index = 0; index < sizeBytes; ++index) {
        const auto byte = static_cast<std::uint8_t>(size >> 8 * index);
        start[2 + index] = byte;
        check ^= byte;
    }
    start[0] = flags;
    start[1] = check;
    return start;
}

std::uint8_t *PackedBlocks::space(std::size_t size)
{
    if (m_bytes.size() < m_used + size) m_bytes.resize(m_used + size);
    return m_bytes.data() + m_used;
}

void PackedBlocks::add(const std::uint8_t *begin, const std::uint8_t *end)
{
    const auto first = static_cast<std::size_t>(begin - m_bytes.data());
    const auto size = static_cast<std::size_t>(end - begin);
    m_blocks.emplace_back(first, size);
    m_used = first + size;
}

void PackedBlocks::keep(std::size_t count)
{
    m_blocks.resize(count);
    m_used = count == 0 ? 0 : m_blocks.back().first + m_blocks.back().second;
}

std::array<std::uint32_t, 256> histogram(Bytes input)
{
    // Four counters for each byte: one would make every repeated byte wait for the one before.
    std::array<std::array<std::uint32_t, 256>, 4> counts{};
    std::size_t index = 0;
    for (; index + 4 <= input.size(); index += 4)
        for (std::size_t lane = 0; lane < 4; ++lane)
            ++counts[lane][input[index + lane]];
    for (; index < input.size(); ++index)
        ++counts[0][input[index]];
    for (std::size_t lane = 1; lane < 4; ++lane)
        for (std::size_t byte = 0; byte < 256; ++byte)
            counts[0][byte] += counts[lane][byte];
    return counts[0];
}

} // namespace archiver
